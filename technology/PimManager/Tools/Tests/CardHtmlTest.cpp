#include "Page/CardHtml.h"

#include "TestBooks.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QBuffer>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <set>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

QByteArray Html( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( CardText( a_lines ) );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.left( 1000 ).constData();
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    CardHtml html( buffer, PimContact( book.CardAt( 0 ) ), PimContactLine() );
    html.WriteHead( "h3" );
    html.WriteBody();
    return buffer.data();
}

// What a browser makes of the HTML. Each element must be closed, but for pictures, which have no end tag.
struct Parsed
{
    explicit Parsed( const QByteArray& a_html );

    QString m_text;
    // Their names, each once, in order.
    std::set<std::string> m_elements;
    std::set<std::string> m_attributes;
};

Parsed::Parsed( const QByteArray& a_html )
{
    static const QRegularExpression s_kPicture( QStringLiteral( "(<img [^>]*)>" ) );
    const QString html = QString::fromUtf8( a_html ).replace( s_kPicture, QStringLiteral( "\\1/>" ) );
    QXmlStreamReader reader( QStringLiteral( "<body>" ) + html + QStringLiteral( "</body>" ) );
    while ( !reader.atEnd() )
    {
        reader.readNext();
        m_text += reader.isCharacters() ? reader.text().toString() : QString();
        if ( !reader.isStartElement() )
            continue;
        m_elements.insert( Utf8( reader.name().toString() ) );
        const QXmlStreamAttributes attributes = reader.attributes();
        for ( const QXmlStreamAttribute& attribute : attributes )
            m_attributes.insert( Utf8( attribute.name().toString() ) );
    }
    EXPECT_FALSE( reader.hasError() ) << Utf8( reader.errorString() ) << '\n' << a_html.constData();
}

// Texts that occur nowhere else. Types are shown in other capitals than those that were written.
class Markers
{
public:
    QByteArray Next()
    {
        m_markers << "m" + QByteArray::number( m_markers.size() ) + "z";
        return m_markers.last();
    }

    void ExpectAllIn( const QString& a_text ) const
    {
        for ( const QByteArray& marker : m_markers )
            EXPECT_TRUE( a_text.contains( QLatin1String( marker ), Qt::CaseInsensitive ) ) << marker.constData();
    }

private:
    QList<QByteArray> m_markers;
};

QByteArray Components( Markers& a_markers, int a_count )
{
    QByteArray value;
    for ( int i = 0; i < a_count; ++i )
        value += ( i == 0 ? "" : ";" ) + a_markers.Next() + "," + a_markers.Next() + "\\, " + a_markers.Next();
    return value;
}

QByteArray LinesOf( const QByteArray& a_name, Markers& a_markers )
{
    const QByteArray parameters = ";TYPE=" + a_markers.Next() + ',' + a_markers.Next() +
                                  ";LANGUAGE=" + a_markers.Next() + ";X-P=\"" + a_markers.Next() + ", " +
                                  a_markers.Next() + "\";" + a_markers.Next();
    return a_name + ':' + Components( a_markers, 20 ) + "\r\n" + a_name + parameters + ':' +
           Components( a_markers, 2 ) + "\r\ng." + a_name + ':' + a_markers.Next() + "\r\n" + a_name +
           ";X-P=" + a_markers.Next() + ":\r\n";
}

QByteArray AllLines( Markers& a_markers )
{
    QByteArray lines;
    for ( const char* name :
          { "FN",    "N",          "NICKNAME", "ORG",    "TITLE",        "ROLE",      "TEL",
            "EMAIL", "ADR",        "URL",      "NOTE",   "BDAY",         "GENDER",    "GEO",
            "IMPP",  "CATEGORIES", "REV",      "UID",    "CLIENTPIDMAP", "X-ABLabel", "X-IRMC-CALL-DATETIME",
            "LABEL", "RELATED",    "MEMBER",   "AGENT",  "PHOTO",        "LOGO",      "SOUND",
            "KEY",   "X-ODD",      "x-lower",  "PROFILE" } )
        lines += LinesOf( name, a_markers );
    lines += "X-" + a_markers.Next() + ":x\r\n";
    for ( const char* start : { "EMAIL:Nell ", "TEL:tel:5;phone-context=", "EMAIL:mailto:a@b?subject=" } )
        lines += start + a_markers.Next() + ( start[6] == 'N' ? " <a@b>\r\n" : "\r\n" );
    return lines + "h.TEL;TYPE=" + a_markers.Next() + ":" + a_markers.Next() + "\r\nh.X-ABLabel:" + a_markers.Next() +
           "\r\n";
}

// Without the elements round kinds and behind labels.
QByteArray InARow( QByteArray a_html )
{
    a_html.replace( "</bdi></dt><dd><span class=\"text\" dir=\"auto\">", ": " );
    a_html.replace( "</span> <span class=\"kind\" dir=\"auto\">", "</span> " );
    a_html.replace( "</a> <span class=\"kind\" dir=\"auto\">", "</a> " );
    return a_html.replace( "</span> ", " " );
}

} // namespace

TEST( CardHtmlTest, EveryTextOfACardIsShown )
{
    for ( const char* version : { "", "VERSION:2.1\r\n", "VERSION:3.0\r\n", "VERSION:4.0\r\n", "VERSION:odd\r\n" } )
    {
        Markers markers;
        const QByteArray lines = version + AllLines( markers );
        SCOPED_TRACE( version );
        const Parsed parsed( Html( lines ) );
        markers.ExpectAllIn( parsed.m_text );
    }
}

TEST( CardHtmlTest, EveryTextOfANestedCardIsShown )
{
    Markers markers;
    const QByteArray inner = CardText( "VERSION:2.1\r\n" + AllLines( markers ) );
    const QByteArray middle =
        CardText( "VERSION:2.1\r\nAGENT;X-P=" + markers.Next() + ":\r\n" + inner + "FN:" + markers.Next() + "\r\n" );
    const Parsed parsed( Html( "VERSION:2.1\r\nAGENT:\r\n" + middle + "N:" + markers.Next() + "\r\n" ) );
    markers.ExpectAllIn( parsed.m_text );
}

TEST( CardHtmlTest, NothingOfACardIsMarkup )
{
    const QByteArray text = HostileText();
    QByteArray lines = "VERSION:3.0\r\n" + PhotoLine( PngPicture() ) + PhotoLine( text );
    for ( const char* name : { "FN",
                               "N",
                               "ORG",
                               "TITLE",
                               "TEL",
                               "EMAIL",
                               "ADR",
                               "URL",
                               "NOTE",
                               "X-A",
                               "item1.TEL",
                               "item1.X-ABLabel",
                               "\"><b>.TEL",
                               "TEL;TYPE=\"<b>\"",
                               "TEL;X-A=\"'><b>\"",
                               "TEL;\"><b>=x",
                               "PHOTO;ENCODING=b;TYPE=\"><script>",
                               "PHOTO",
                               "PHOTO:data:\"><b>;base64,AAAA",
                               "X-<script>",
                               "IMPP" } )
        lines += QByteArray( name ) + ':' + text + "\r\n";
    lines += "TEL:5\r\nAGENT:\r\n" + CardText( lines );
    const QByteArray html = Html( lines );
    const Parsed parsed( html );
    const std::set<std::string> elements = { "a",  "bdi", "body", "dd", "details", "dl",   "dt",      "h3",
                                             "h4", "img", "li",   "p",  "section", "span", "summary", "ul" };
    const std::set<std::string> attributes = { "alt", "class", "decoding", "dir", "href", "loading", "rel", "src" };
    EXPECT_EQ( parsed.m_elements, elements );
    EXPECT_EQ( parsed.m_attributes, attributes );
    EXPECT_TRUE( IsHarmless( html.toStdString() ) );
}

TEST( CardHtmlTest, PropertyThatIsShownInFullIsNotRepeated )
{
    for ( const char* lines : {
              "VERSION:2.1\r\n",
              "VERSION:4.0\r\n",
              "N:Brackwater;Nell;Imogen;;\r\nFN:Nell Imogen Brackwater\r\n",
              "FN:Nell\r\nFN:Nell\r\n",
              "N;SORT-AS=\"Wrenfield,Siobhan\":Wrenfield;Siobhan;;;\r\n",
              "FN:Nell\r\nTITLE:Pilot\r\nROLE:Captain\r\nORG;TYPE=work:Tide Office;Charts\r\n",
              "TEL;TYPE=CELL;PREF=3:5\r\nTEL;VALUE=uri:tel:+1-555-0100;ext=12\r\na.TEL:6\r\na.X-ABLabel:boat\r\n",
              "EMAIL;TYPE=INTERNET:a@b\r\nEMAIL:Nell <a@b>\r\nEMAIL:mailto:a@b\r\n",
              "ADR;TYPE=HOME:12;Loft;3 Ferry Steps;Port Lanthorn;Coast;X1 4PL;Lanthornia\r\n",
              "a.ADR:;;3 Ferry Steps;;;;Lanthornia\r\na.X-ABADR:lt\r\na.X-ABLabel:_$!<Home>!$_\r\n",
              "VERSION:2.1\r\nADR;HOME:;;3 Ferry Steps;Port;;;\r\nLABEL;HOME:Nell, 3 Ferry Steps, Port\r\n",
              "URL:x\r\nNOTE;LANGUAGE=de:y\r\nNICKNAME:Nellie,Nel\r\nCATEGORIES:tea,ships\r\n",
              "BDAY:19850203\r\nX-ABDATE:2011-06-18\r\nBDAY;X-APPLE-OMIT-YEAR=1604:1604-02-03\r\n",
              "IMPP:xmpp:nell@example.org\r\nX-SKYPE:nell\r\nIMPP;X-SERVICE-TYPE=Skype:skype:nell\r\n",
              "VERSION:4.0\r\nGENDER:F\r\nLANG:de-CH\r\nRELATED;TYPE=friend;VALUE=text:Tobias\r\n",
              "X-SPOUSE:Tobias\r\nX-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Nellie;1;;;;;;;;;;;;;\r\n",
              "TEL:\r\nADR:;;;;;;\r\nCATEGORIES:,\r\nX-A: \r\n",
              "PHOTO;ENCODING=b:iVBORw0KGgo=\r\n",
          } )
        EXPECT_FALSE( Html( lines ).contains( "<details" ) ) << lines << Html( lines ).constData();
}

TEST( CardHtmlTest, WhatIsNotShownElsewhereIsInTheList )
{
    struct Row
    {
        const char* m_lines;
        const char* m_inList;
    };
    const std::vector<Row> rows = {
        { "VERSION:5.0\r\n", ">Version</bdi></dt><dd><span class=\"text\" dir=\"auto\">5.0</span></dd>" },
        { "UID:u1\r\n", ">Identifier</bdi></dt><dd><span class=\"text\" dir=\"auto\">u1</span></dd>" },
        { "REV:20240304T102200Z\r\n",
          ">Last changed</bdi></dt><dd><span class=\"text\" dir=\"auto\">4 March 2024, 10:22 UTC</span></dd>" },
        { "X-IRMC-CALL-DATETIME;DIALED:20240311T084512Z\r\n",
          "11 March 2024, 8:45:12 UTC</span> <span class=\"kind\"" },
        { "BDAY;X-P=about:1985-02-03\r\n", "3 February 1985</span> <span class=\"kind\" dir=\"auto\">P: about</span>" },
        { "X-OPENING-HOURS:Tu-Su\r\n", ">Opening hours</bdi></dt><dd><span class=\"text\" dir=\"auto\">Tu-Su</span>" },
        { "TEL;X-HOURS=noon:5\r\n",
          ">Phone</bdi></dt><dd><span class=\"text\" dir=\"auto\">5</span> <span class=\"kind\" dir=\"auto\">Hours: "
          "noon</span></dd>" },
        { "FN:Nell\r\nN:Brackwater;Nell;;;\r\nN:Brack;Nelly;;;\r\n", ">Full name</bdi></dt>" },
        { "VERSION:4.0\r\nADR:;;3 Steps;;;;;;Loft\r\n", "3 Steps; ; ; ; ; ; Loft" },
        { "VERSION:2.1\r\nADR;HOME:;;3 Ferry Steps;;;;\r\nLABEL;HOME:Ferry Steps\r\n",
          ">Address</bdi></dt><dd><span class=\"text\" dir=\"auto\">3 Ferry Steps</span>" },
        { "X-ANDROID-CUSTOM:vnd.example/tide;12;;;\r\n",
          ">Android custom</bdi></dt><dd><span class=\"text\" dir=\"auto\">vnd.example/tide;12;;;</span></dd>" },
        { "a.X-ABLabel:boat\r\n", ">Label</bdi></dt><dd><span class=\"text\" dir=\"auto\">boat</span></dd>" },
        { "VERSION:4.0\r\nFN;ALTID=1:Nell\r\nFN;ALTID=1;LANGUAGE=el:Nelly\r\n", "Nelly</span> <span class=\"kind\"" },
        { "PHOTO;ENCODING=b:%\r\n", ">Picture</bdi></dt><dd><span class=\"text\" dir=\"auto\">0 bytes, damaged at "
                                    "character 1:\n%</span></dd>" },
        { "PHOTO;VALUE=uri:https://example.com/x.png\r\n", ">https://example.com/x.png</span></dd>" },
    };
    for ( const Row& row : rows )
    {
        const QByteArray html = Html( row.m_lines );
        const auto list = html.indexOf( "<details class=\"rest\">" );
        EXPECT_GE( list, 0 ) << row.m_lines << html.constData();
        EXPECT_GE( html.indexOf( row.m_inList, list ), 0 ) << row.m_lines << html.constData();
    }
}

TEST( CardHtmlTest, FieldsAreShownAsPeopleSayThem )
{
    struct Row
    {
        const char* m_lines;
        const char* m_shown;
    };
    const std::vector<Row> rows = {
        { "TEL;TYPE=CELL,VOICE;PREF=1:5\r\n", "5</a> mobile voice preferred" },
        { "TEL;TYPE=HOME,FAX:5\r\n", "5</a> home fax" },
        { "a.TEL;TYPE=CELL:5\r\na.X-ABLabel:boat phone\r\n", "5</a> boat phone mobile" },
        { "a.TEL:5\r\na.X-ABLabel:_$!<Mobile>!$_\r\n", "5</a> Mobile<" },
        { "TEL:5\r\nNOTE;LANGUAGE=de:Hallo\r\n", "Hallo German<" },
        { "EMAIL:Nell <a@b>\r\n", "a@b</a> Nell<" },
        { "IMPP:xmpp:nell@example.org\r\n", ">nell@example.org XMPP<" },
        { "X-SKYPE:nell\r\n", ">nell Skype<" },
        { "ADR;TYPE=HOME:;;3 Ferry Steps;Port Lanthorn;;X1 4PL;Lanthornia\r\n",
          "3 Ferry Steps\nX1 4PL Port Lanthorn\nLanthornia home<" },
        { "a.ADR:;;3 Ferry Steps;;;;\r\na.X-ABADR:lt\r\n", "3 Ferry Steps\nlt<" },
        { "BDAY:19850203\r\n", "Birthday: 3 February 1985<" },
        { "BDAY:--02-03\r\n", "Birthday: 3 February<" },
        { "BDAY:circa 1800\r\n", "Birthday: circa 1800<" },
        { "ANNIVERSARY:2011-06\r\n", "Anniversary: June 2011<" },
        { "a.X-ABDATE:2011-06-18\r\na.X-ABLabel:first boat\r\n", "first boat: 18 June 2011<" },
        { "X-SPOUSE:Tobias\r\n", "Spouse: Tobias<" },
        { "VERSION:4.0\r\nRELATED;TYPE=co-worker;VALUE=text:Tobias\r\n", "Co-worker: Tobias<" },
        { "VERSION:4.0\r\nGENDER:F;sailor\r\n", "Gender: female, sailor<" },
        { "VERSION:4.0\r\nLANG:de-CH\r\nLANG:ga\r\n", "Speaks: German (Switzerland)<" },
        { "VERSION:4.0\r\nHOBBY;LEVEL=high:sailing\r\n", "Hobby: sailing (high)<" },
        { "FN:Nell\r\nN:Brackwater;Nell;;;\r\n", "Full name: Nell Brackwater<" },
        { "FN:Nell\r\nFN:Nelly\r\n", "Also called: Nelly<" },
        { "NICKNAME;TYPE=home:Nel,Nellie\r\n", "Nickname: Nel, Nellie home<" },
        { "CATEGORIES:tea,ships\r\n", "Categories: tea, ships<" },
    };
    for ( const Row& row : rows )
    {
        EXPECT_TRUE( InARow( Html( row.m_lines ) ).contains( row.m_shown ) )
            << row.m_lines << Html( row.m_lines ).constData();
    }
}

TEST( CardHtmlTest, LongLabelIsCutAtItsFieldAndShownInFullOnce )
{
    const QByteArray label( 10000, 'l' );
    const QByteArray html = Html( QByteArray( "a.TEL:5\r\n" ).repeated( 1000 ) + "a.X-ABLabel:" + label + "\r\n" );
    EXPECT_EQ( html.count( label ), 1 );
    EXPECT_LT( html.size(), 500000 );
}

TEST( CardHtmlTest, KindsOfAListAreShownOnce )
{
    QByteArray types;
    for ( int i = 0; i < 1000; ++i )
        types += ";TYPE=t" + QByteArray::number( i );
    const QByteArray html = Html( "NICKNAME" + types + ":" + QByteArray( "n," ).repeated( 1000 ) + "\r\n" );
    EXPECT_EQ( html.count( "class=\"kind\"" ), 1000 );
}

TEST( CardHtmlTest, CardOfANameFromRightToLeftIsMirrored )
{
    const auto direction = []( const QByteArray& a_name )
    {
        const PimContactBook book = PimContactBook::FromBytes( CardText( "VERSION:3.0\r\nFN:" + a_name + "\r\n" ) );
        return DirectionOf( PimContact( book.CardAt( 0 ) ) ).toStdString();
    };
    EXPECT_EQ( direction( "\xD7\x93\xD7\xA0\xD7\x94" ), " dir=\"rtl\"" );
    EXPECT_EQ( direction( "1 \xD9\x84\xD9\x8A Nell" ), " dir=\"rtl\"" );
    EXPECT_EQ( direction( "Nell \xD7\x93" ), "" );
    EXPECT_EQ( direction( "555" ), "" );
}

TEST( CardHtmlTest, OrganisationThatIsTheNameIsShownOnce )
{
    const QByteArray html = Html( "FN:Oven Row\r\nORG:Oven Row;\r\nTITLE:Baker\r\n" );
    EXPECT_EQ( html.count( "Oven Row" ), 1 ) << html.constData();
    EXPECT_TRUE( html.contains( "<bdi>Baker</bdi>" ) ) << html.constData();
}

TEST( CardHtmlTest, CardWithoutANameIsCalledSo )
{
    EXPECT_TRUE( Html( "NOTE:x\r\n" ).startsWith( "<h3 dir=\"auto\">(no name)</h3>\n" ) );
}

TEST( CardHtmlTest, NothingIsCut )
{
    const QByteArray html =
        Html( "NOTE:" + QByteArray( 1000000, 'x' ) + "\r\n" + QByteArray( "TEL:5\r\n" ).repeated( 5000 ) +
              QByteArray( "X-A:y\r\n" ).repeated( 5000 ) );
    EXPECT_GE( html.count( 'x' ), 1000000 );
    EXPECT_EQ( html.count( "tel:5" ), 5000 );
    EXPECT_EQ( html.count( ">y<" ), 5000 );
}

TEST( CardHtmlTest, PicturesOfNestedCardsAreShown )
{
    const QByteArray html =
        Html( "VERSION:3.0\r\nAGENT:\r\n" + CardText( "VERSION:3.0\r\n" + PhotoLine( GifPicture() ) ) );
    EXPECT_EQ( html.count( "<img" ), 1 ) << html.constData();
    EXPECT_TRUE( html.contains( "src=\"data:image/gif;base64," + GifPicture().toBase64() + '"' ) );
}
