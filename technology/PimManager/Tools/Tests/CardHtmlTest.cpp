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
    CardHtml( buffer, PimContact( book.CardAt( 0 ) ), PimContactLine() ).Write( "h3" );
    return buffer.data();
}

// What a browser makes of the HTML. Each element must be closed, but for pictures, which have no end tag.
struct Parsed
{
    explicit Parsed( QByteArray a_html );

    QString m_text;
    // Their names, each once, in order.
    std::set<std::string> m_elements;
    std::set<std::string> m_attributes;
};

Parsed::Parsed( QByteArray a_html )
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
           Components( a_markers, 2 ) + "\r\n" + a_markers.Next() + '.' + a_name + ':' + a_markers.Next() + "\r\n" +
           a_name + ";VALUE=" + a_markers.Next() + ":\r\n";
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
    const QByteArray group = a_markers.Next();
    return lines + group + ".TEL;TYPE=" + a_markers.Next() + ":" + a_markers.Next() + "\r\n" + group +
           ".X-ABLabel:" + a_markers.Next() + "\r\n";
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
        EXPECT_TRUE(
            parsed.m_text.contains( QString::fromLatin1( version ).section( QLatin1Char( ':' ), 1 ).trimmed() ) );
    }
}

TEST( CardHtmlTest, EveryTextOfANestedCardIsShown )
{
    Markers markers;
    const QByteArray inner = CardText( "VERSION:2.1\r\n" + AllLines( markers ) );
    const QByteArray middle =
        CardText( "VERSION:2.1\r\nAGENT;X-P=" + markers.Next() + ":\r\n" + inner + "FN:" + markers.Next() + "\r\n" );
    const Parsed parsed(
        Html( "VERSION:2.1\r\n" + markers.Next() + ".AGENT:\r\n" + middle + "N:" + markers.Next() + "\r\n" ) );
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
    const QByteArray html =
        Html( "FN:Nell\r\nTITLE:Pilot\r\nORG:Tide Office\r\nTEL;TYPE=CELL:5\r\nEMAIL;TYPE=INTERNET:a@b\r\n"
              "ADR;TYPE=HOME:;;3 Ferry Steps;;;;\r\nURL:x\r\nNOTE:y\r\n" );
    EXPECT_FALSE( html.contains( "<details>" ) ) << html.constData();
}

TEST( CardHtmlTest, PropertyThatIsShownInPartIsInTheList )
{
    struct Row
    {
        const char* m_lines;
        const char* m_inList;
    };
    const std::vector<Row> rows = {
        { "FN:Nell\r\nFN:Nelly\r\n", "<dt><bdi>FN</bdi></dt><dd class=\"text\" dir=\"auto\">Nelly</dd>" },
        { "FN;TYPE=work:Nell\r\n", "<dt><bdi>FN work</bdi></dt><dd class=\"text\" dir=\"auto\">Nell</dd>" },
        { "FN;LANGUAGE=de:Nell\r\n", "<dt><bdi>FN [LANGUAGE=de]</bdi></dt>" },
        { "NOTE;LANGUAGE=de:x\r\n", "<dt><bdi>NOTE [LANGUAGE=de]</bdi></dt>" },
        { "a.TEL;TYPE=CELL:5\r\n", "<dt><bdi>a.TEL cell</bdi></dt>" },
        { "EMAIL:Nell <a@b>\r\n", ">Nell &lt;a@b&gt;</dd>" },
        { "TEL:\r\n", "<dt><bdi>TEL</bdi></dt><dd class=\"text\" dir=\"auto\"></dd>" },
        { "PHOTO;ENCODING=b:%\r\n", "<dt><bdi>PHOTO [ENCODING=b]</bdi></dt><dd class=\"text\" dir=\"auto\">0 bytes, "
                                    "damaged at character 1:\n%</dd>" },
    };
    for ( const Row& row : rows )
        EXPECT_TRUE( Html( row.m_lines ).contains( row.m_inList ) ) << row.m_lines << Html( row.m_lines ).constData();
}

TEST( CardHtmlTest, LabelIsShownWithItsPropertyAndInTheList )
{
    const QByteArray html = Html( "a.TEL:5\r\na.X-ABLabel:boat phone\r\n" );
    EXPECT_TRUE( html.contains( ">5</a> <span class=\"kind\" dir=\"auto\">boat phone</span></li>" ) )
        << html.constData();
    EXPECT_TRUE( html.contains( "<dt><bdi>a.X-ABLabel</bdi></dt><dd class=\"text\" dir=\"auto\">boat phone</dd>" ) )
        << html.constData();
    EXPECT_EQ( html.count( "<dt>" ), 1 ) << html.constData();
}

TEST( CardHtmlTest, OrganisationThatIsTheNameIsShownOnce )
{
    const QByteArray html = Html( "FN:Oven Row\r\nORG:Oven Row;\r\nTITLE:Baker\r\n" );
    EXPECT_EQ( html.count( "Oven Row" ), 1 ) << html.constData();
    EXPECT_TRUE( html.contains( ">Baker</p>" ) ) << html.constData();
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
