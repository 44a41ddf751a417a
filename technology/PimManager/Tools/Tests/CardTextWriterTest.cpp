#include "CardTextWriter.h"

#include "ToolsTestText.h"

#include <QBuffer>

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

namespace
{

constexpr CardTextWriter::Length s_kShort = CardTextWriter::Length::Short;
constexpr CardTextWriter::Length s_kFull = CardTextWriter::Length::Full;

std::string Printed( const PimVCard& a_card, CardTextWriter::Length a_length = s_kShort )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    CardTextWriter writer( buffer, a_length );
    writer.Begin();
    writer.Write( a_card, 1, QStringLiteral( "book.vcf" ) );
    writer.End();
    return buffer.data().toStdString();
}

// The one property line of a card without a name.
std::string PrintedLine( const QByteArray& a_line, CardTextWriter::Length a_length = s_kShort )
{
    const std::string heading = "1. (no name) (book.vcf)\n\n    ";
    const std::string text = Printed( *OnlyCard( a_line + "\r\n" ), a_length );
    EXPECT_EQ( text.substr( 0, heading.size() ), heading );
    return text.substr( heading.size() );
}

} // namespace

TEST( CardTextWriterTest, CardIsAHeadingAndAlignedLines )
{
    EXPECT_EQ( Printed( *OnlyCard( "VERSION:3.0\r\nFN:Nell Brackwater\r\nN:Brackwater;Nell;;;\r\n"
                                   "item1.TEL;TYPE=CELL;pref:555-0101\r\nNOTE:\r\n" ) ),
               "1. Nell Brackwater (book.vcf)\n"
               "\n"
               "    VERSION    3.0\n"
               "    FN         Nell Brackwater\n"
               "    N          Brackwater;Nell;;;\n"
               "    item1.TEL  [TYPE=CELL; pref] 555-0101\n"
               "    NOTE\n" );
}

TEST( CardTextWriterTest, PropertyLineTellsEverythingReadably )
{
    struct Row
    {
        const char* m_line;
        const char* m_printed;
    };
    const std::vector<Row> rows = {
        { "X-A:", "X-A\n" },
        { "X-A:;", "X-A  ;\n" },
        { "X-A;HOME:", "X-A  [HOME]\n" },
        { "X-A;HOME:x", "X-A  [HOME] x\n" },
        { "X-A;TYPE=HOME,WORK;pref:x;y", "X-A  [TYPE=HOME,WORK; pref] x;y\n" },
        { "X-A;Z=\"q; r\":x", "X-A  [Z=\"q; r\"] x\n" },
        { "a.b.X-A:x", "a.b.X-A  x\n" },
        { R"(X-A:a\;b;c\\;d\,e)", "X-A  a\\;b;c\\\\;d,e\n" },
        { "X-A:one\ntwo", "X-A  one\\ntwo\n" },
        { "X-A:\xC2\x9B"
          "31m\xE2\x80\xAE\xE2\x80\xAC",
          "X-A  \\x9b31m\\u202e\\u202c\n" },
        { "X-A;Z=\"\xC2\x9B\":x", "X-A  [Z=\"\\x9b\"] x\n" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( PrintedLine( row.m_line ), row.m_printed ) << row.m_line;
}

TEST( CardTextWriterTest, LongTextsAreCutAndTellTheirLength )
{
    const QByteArray name( 100, 'N' );
    const QByteArray value( 5944, 'v' );
    const std::string cutName = std::string( 60, 'N' ) + "\xE2\x80\xA6 (100 characters)";
    const std::string cutValue = std::string( 60, 'v' ) + "\xE2\x80\xA6 (5944 characters)";
    EXPECT_EQ( PrintedLine( "X-A:" + value + ";short" ), "X-A  " + cutValue + ";short\n" );
    EXPECT_EQ( PrintedLine( name + ":x" ), cutName + "  x\n" );
    EXPECT_EQ( PrintedLine( "X-A;" + name + ":x" ), "X-A  [" + cutName + "] x\n" );
    EXPECT_EQ( PrintedLine( "X-A:" + QByteArray( 999, ';' ) ),
               "X-A  " + std::string( 20, ';' ) + "\xE2\x80\xA6 (1000 in all)\n" );
}

TEST( CardTextWriterTest, FullLengthCutsNothing )
{
    const QByteArray value( 100000, 'v' );
    EXPECT_EQ( PrintedLine( "X-A:" + value, s_kFull ), "X-A  " + value.toStdString() + "\n" );
    EXPECT_EQ( PrintedLine( "X-A:" + QByteArray( 999, ';' ), s_kFull ), "X-A  " + std::string( 999, ';' ) + "\n" );
}

TEST( CardTextWriterTest, FullLengthKeepsSurrogatePairsTogether )
{
    // The text is written in pieces; each odd start puts another half of a pair at their ends.
    for ( int shift : { 0, 1 } )
    {
        const QByteArray value = QByteArray( shift, 'x' ) + QByteArray( "\xF0\x9F\x94\xAD" ).repeated( 20000 );
        EXPECT_EQ( PrintedLine( "X-A:" + value, s_kFull ), "X-A  " + value.toStdString() + "\n" );
    }
}

TEST( CardTextWriterTest, HeadingIsCutAndHarmless )
{
    const std::string text = Printed( *OnlyCard( "FN:\xC2\x9B" + QByteArray( 500, 'n' ) + "\r\n" ) );
    EXPECT_EQ( text.substr( 0, text.find( '\n' ) ),
               "1. \\x9b" + std::string( 59, 'n' ) + "\xE2\x80\xA6 (501 characters) (book.vcf)" );
}

TEST( CardTextWriterTest, VeryLongLabelDoesNotPushTheOthersAway )
{
    const std::string text = Printed( *OnlyCard( QByteArray( 70, 'N' ) + ":x\r\nTEL:555-0100\r\n" ) );
    EXPECT_NE( text.find( "    TEL" + std::string( 21 + 2, ' ' ) + "555-0100\n" ), std::string::npos ) << text;
}

TEST( CardTextWriterTest, CardsStandApart )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    CardTextWriter writer( buffer, s_kShort );
    writer.Write( *OnlyCard( "FN:a\r\n" ), 1, QStringLiteral( "x" ) );
    writer.Write( *OnlyCard( "FN:b\r\n" ), 2, QStringLiteral( "x" ) );
    EXPECT_EQ( buffer.data().toStdString(), "1. a (x)\n\n    FN  a\n\n2. b (x)\n\n    FN  b\n" );
}

TEST( CardTextWriterTest, NullEntriesAreSkipped )
{
    auto* const property =
        new PimVCardProperty( QString(), QStringLiteral( "X" ), new QList<PimVCardParameter*>{ nullptr }, nullptr );
    EXPECT_EQ( Printed( PimVCard( new QList<PimVCardProperty*>{ nullptr, property } ) ),
               "1. (no name) (book.vcf)\n\n    X\n" );
}
