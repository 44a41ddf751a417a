#include "Outputs/PropertyText.h"

#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

// The property that the last line of a card is, as `name|remarks|line|line`.
std::string LastProperty( const QByteArray& a_lines, TextLength a_length = TextLength::Short )
{
    const PimContactBook book = PimContactBook::FromBytes( CardText( a_lines + "\r\n" ) );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.constData();
    const PimContact contact( book.CardAt( 0 ) );
    QStringList texts;
    for ( const PimContactLine& line : contact.Card() )
    {
        const PropertyText text = PropertyTextOf( contact, line, a_length );
        texts = QStringList{ text.m_name, text.m_remarks } + text.m_lines;
    }
    return Utf8( texts.join( QLatin1Char( '|' ) ) );
}

QString HeadingOf( const QByteArray& a_book, const char* a_source = "" )
{
    return ContactHeading( PimContact( PimContactBook::FromBytes( a_book ).CardAt( 0 ) ),
                           QString::fromUtf8( a_source ) );
}

struct Row
{
    const char* m_lines;
    const char* m_text;
};

void ExpectTexts( const std::vector<Row>& a_rows, TextLength a_length = TextLength::Short )
{
    for ( const Row& row : a_rows )
        EXPECT_EQ( LastProperty( row.m_lines, a_length ), row.m_text ) << row.m_lines;
}

} // namespace

TEST( PropertyTextTest, NameIsAsWritten )
{
    ExpectTexts( {
        { "VERSION:3.0", "VERSION||3.0" },
        { "X-a:x", "X-a||x" },
        { "a.b.X-A:x", "a.b.X-A||x" },
        { "X-A:", "X-A|" },
    } );
}

TEST( PropertyTextTest, RemarksAreThePurposeAndOtherParameters )
{
    ExpectTexts( {
        { "TEL;TYPE=CELL,Work:1", "TEL|cell, work|1" },
        { "TEL;TYPE=CELL,PREF:1", "TEL|cell [PREF]|1" },
        { "TEL;CELL;PREF:1", "TEL|cell [PREF]|1" },
        { "VERSION:4.0\r\nTEL;TYPE=cell;PREF=2:1", "TEL|cell [PREF=2]|1" },
        { "VERSION:4.0\r\nTEL;PREF=first:1", "TEL|[PREF=first]|1" },
        { "EMAIL;TYPE=INTERNET,HOME:a@example.com", "EMAIL|home|a@example.com" },
        { "NOTE;LANGUAGE=de;X-A=1,\"2,3\";x-a=4:x", "NOTE|[LANGUAGE=de; X-A=1,2,3,4]|x" },
        { "NOTE;LANGUAGE=:x", "NOTE|[LANGUAGE=]|x" },
        { "VERSION:3.0\r\nNOTE;X-A=a^nb:x", "NOTE|[X-A=a\\nb]|x" },
    } );
}

TEST( PropertyTextTest, LabelTakesThePlaceOfTheGroupAndOfTypes )
{
    ExpectTexts( {
        { "item1.X-ABLabel:boat phone\r\nitem1.TEL:1", "TEL|boat phone|1" },
        { "item1.X-ABLabel:_$!<Home>!$_\r\nitem1.TEL;TYPE=CELL,VOICE:1", "TEL|Home [TYPE=CELL,VOICE]|1" },
        { "item1.X-ABLabel:a\r\nitem1.TEL;X-A=1;CELL;PREF:1", "TEL|a [TYPE=CELL; PREF; X-A=1]|1" },
        { "item1.X-ABLabel:a\r\nitem2.TEL:1", "item2.TEL||1" },
        { "item1.TEL:1\r\nitem1.X-ABLabel:a", "item1.X-ABLabel||a" },
    } );
}

TEST( PropertyTextTest, EncodingIsShownInFullOnly )
{
    const char* const line = "NOTE;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE;X-A=1:H=C3=A9";
    EXPECT_EQ( LastProperty( line ), "NOTE|[X-A=1]|H\xC3\xA9" );
    EXPECT_EQ( LastProperty( line, TextLength::Full ),
               "NOTE|[CHARSET=UTF-8; ENCODING=QUOTED-PRINTABLE; X-A=1]|H\xC3\xA9" );
}

TEST( PropertyTextTest, ValuesAreDecodedTexts )
{
    ExpectTexts( {
        { "NOTE:one\\ntwo\\n\\nthree\\, four\\; five", "NOTE||one|two||three, four; five" },
        { "NOTE;QUOTED-PRINTABLE:one=0D=0Atwo", "NOTE||one|two" },
        { "VERSION:3.0\r\nN:Brackwater;Nell;;Dr.;", "N||Brackwater; Nell; ; Dr." },
        { "VERSION:3.0\r\nN:;Nell;Ann,Mary;;", "N||; Nell; Ann,Mary" },
        { "N:;;;;", "N|" },
        { "ORG:Lanthorn\\nTide;Office", "ORG||Lanthorn|Tide; Office" },
        { "CATEGORIES:bread,tea\\,green,gossip", "CATEGORIES||bread, tea,green, gossip" },
        { "ADR;TYPE=HOME:;;3 Weir Lane;Ouse Mouth;;FN1 2AB;", "ADR|home|3 Weir Lane|FN1 2AB Ouse Mouth" },
        { "ADR:1;2;3;4;5;6;7;8", "ADR||1; 2; 3; 4; 5; 6; 7; 8" },
        { "TEL:tel:+1-555;phone-context=x", "TEL||tel:+1-555;phone-context=x" },
        { "EMAIL:Nell <a@example.com>", "EMAIL||Nell <a@example.com>" },
        { "X-IRMC-CALL-DATETIME;DIALED:20240311T084512Z", "X-IRMC-CALL-DATETIME|dialed|2024-03-11 08:45:12 UTC" },
    } );
}

TEST( PropertyTextTest, BytesAreATypeAndASize )
{
    ExpectTexts( {
        { "PHOTO;ENCODING=b;TYPE=GIF:R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs=",
          "PHOTO|gif|image/gif, 35 bytes" },
        { "PHOTO;ENCODING=b:AA==", "PHOTO||1 byte" },
        { "PHOTO:data:image/x-mine;base64,AAAA", "PHOTO||image/x-mine, 3 bytes" },
        { "PHOTO:data:a\xE2\x80\xAE/b;base64,AAAA", "PHOTO||a\\u202e/b, 3 bytes" },
        { "PHOTO;VALUE=uri:https://example.com/a.png", "PHOTO|[VALUE=uri]|https://example.com/a.png" },
    } );
}

TEST( PropertyTextTest, DamagedBytesSaySoAndShowTheirText )
{
    EXPECT_EQ( LastProperty( "PHOTO;ENCODING=b:AAAA%%" ), "PHOTO||3 bytes, damaged at character 5:|AAAA%%" );
    EXPECT_EQ( LastProperty( "PHOTO:data:image/png;base64,AAA%" ),
               "PHOTO||image/png, 2 bytes, damaged at character 4:|data:image/png;base64,AAA%" );
}

TEST( PropertyTextTest, NestedCardIsItsName )
{
    const QByteArray agent = "AGENT:\r\nBEGIN:VCARD\r\n";
    EXPECT_EQ( LastProperty( agent + "FN:Tom\r\nEND:VCARD" ), "AGENT||Tom" );
    EXPECT_EQ( LastProperty( agent + "TITLE:x\r\nEND:VCARD" ), "AGENT||(no name)" );
    EXPECT_EQ( LastProperty( agent + "FN:Tom\r\n\x01 %%%\r\nEND:VCARD" ), "AGENT||Tom (in part)" );
}

TEST( PropertyTextTest, LongTextsAreCutUnlessFull )
{
    const QByteArray text( 100, 'x' );
    const std::string cut = std::string( 60, 'x' ) + "\xE2\x80\xA6 (100 characters)";
    const std::string full = text.toStdString();
    const std::string lines = QByteArray( "|x" ).repeated( 20 ).toStdString();
    struct LongRow
    {
        QByteArray m_line;
        std::string m_short;
        std::string m_full;
    };
    const std::vector<LongRow> rows = {
        { "NOTE:" + text + "\\n" + text, "NOTE||" + cut + "|" + cut, "NOTE||" + full + "|" + full },
        { "N:" + text + ";a", "N||" + cut + "; a", "N||" + full + "; a" },
        { text + ":a", cut + "||a", full + "||a" },
        { "X-A;TYPE=" + text + ":a", "X-A|" + cut + "|a", "X-A|" + full + "|a" },
        { "NOTE:" + QByteArray( "x\\n" ).repeated( 24 ) + "x", "NOTE|" + lines + "|\xE2\x80\xA6 (25 in all)",
          "NOTE|" + lines + "|x|x|x|x|x" },
    };
    for ( const LongRow& row : rows )
    {
        EXPECT_EQ( LastProperty( row.m_line ), row.m_short ) << row.m_line.constData();
        EXPECT_EQ( LastProperty( row.m_line, TextLength::Full ), row.m_full ) << row.m_line.constData();
    }
}

TEST( PropertyTextTest, HeadingHasTheNameAndWhatIsMissing )
{
    EXPECT_EQ( Utf8( HeadingOf( CardText( "FN:Nell\r\n" ) ) ), "Nell" );
    EXPECT_EQ( Utf8( HeadingOf( CardText( "FN:Nell\r\n" ), "book.vcf" ) ), "Nell (book.vcf)" );
    EXPECT_EQ( Utf8( HeadingOf( CardText( "TITLE:x\r\n" ) ) ), "(no name)" );
    EXPECT_EQ( Utf8( HeadingOf( CardText( "FN:Nell\r\n\x01 %%%\r\n" ), "book.vcf" ) ), "Nell (book.vcf, in part)" );
    EXPECT_EQ( Utf8( HeadingOf( CardText( "FN:\xC2\x9B" + QByteArray( 500, 'n' ) + "\r\n" ) ) ),
               "\\x9b" + std::string( 59, 'n' ) + "\xE2\x80\xA6 (501 characters)" );
}
