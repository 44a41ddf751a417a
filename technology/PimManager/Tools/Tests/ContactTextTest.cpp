#include "Outputs/ContactText.h"

#include "Terminal/TextColumns.h"
#include "TestBooks.h"
#include "ToolsTestText.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QBuffer>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

constexpr ContactText::Length s_kShort = ContactText::Length::Short;
constexpr ContactText::Length s_kFull = ContactText::Length::Full;

// What is shown of a book.
std::string Shown( const QByteArray& a_book, ContactText::Length a_length = s_kShort, int a_columns = 0 )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    ContactText output( buffer, a_length, Screen{ a_columns } );
    BookInRun run;
    run.m_source = QStringLiteral( "book.vcf" );
    const PimContactBook book = PimContactBook::FromBytes( a_book );
    for ( const PimContactCard& card : book.Cards() )
        output.TakeCard( run, card );
    return buffer.data().toStdString();
}

// A card with a marker in every place that can have one. Markers have numbers.
class MarkedCard
{
public:
    QByteArray Text();
    int Count() const { return m_count; }
    static QByteArray Marker( int a_number ) { return "mark" + QByteArray::number( a_number ) + "."; }

private:
    QByteArray Next() { return Marker( m_count++ ); }
    QByteArray Components( int a_count );
    QByteArray Properties();

    int m_count = 0;
};

QByteArray MarkedCard::Components( int a_count )
{
    QByteArray text = Next();
    for ( int i = 1; i < a_count; ++i )
        text += ';' + Next() + ',' + Next();
    return text;
}

QByteArray MarkedCard::Properties()
{
    QByteArray text = "FN:" + Next() + "\r\nN:" + Components( 6 ) + "\r\nORG:" + Components( 30 ) +
                      "\r\nADR:" + Components( 7 ) + "\r\nADR:" + Components( 9 ) + "\r\nNICKNAME:" + Next() + ',' +
                      Next() + "\r\nNOTE:" + Next() + "\\n" + Next() + "\r\nTEL:tel:" + Next() + ";x=" + Next() +
                      "\r\nEMAIL:" + Next() + " <" + Next() + "@example.com>\r\n";
    text += Next() + ".X-" + Next() + ";" + Next() + ";TYPE=" + Next() + "," + Next() + ";LANGUAGE=" + Next() +
            ";X-A=" + Next() + ",\"" + Next() + "\";X-A=" + Next() + ";PREF=" + Next() + ":x\r\n";
    text += "NOTE;ENCODING=" + Next() + ";CHARSET=" + Next() + ":x\r\n";
    const QByteArray group = Next();
    text += group + ".TEL;" + Next() + ":" + Next() + "\r\n" + group + ".X-ABLabel:" + Next() + "\r\n";
    return text + "PHOTO;ENCODING=b:AAAA%" + Next() + "\r\n";
}

QByteArray MarkedCard::Text()
{
    const QByteArray outer = Properties();
    const QByteArray agent = Properties();
    const QByteArray agentOfAgent = Properties();
    return CardText( outer + "AGENT;X-A=" + Next() + ":\r\n" +
                     CardText( agent + "AGENT:\r\n" + CardText( agentOfAgent ) ) );
}

} // namespace

TEST( ContactTextTest, CardIsAHeadingAndAlignedLines )
{
    EXPECT_EQ( Shown( CardText( "VERSION:3.0\r\nFN:Nell Brackwater\r\nTEL;TYPE=CELL:+1-555-0101\r\n"
                                "item1.TEL:+1-555-0102\r\nitem1.X-ABLabel:boat phone\r\n"
                                "ADR;TYPE=HOME:;;3 Weir Lane;Ouse Mouth;;FN1 2AB;\r\n"
                                "NOTE:one\\n\\ntwo\r\nX-EMPTY:\r\n" ) +
                      CardText( "VERSION:4.0\r\nFN:Bo\r\n" ) ),
               "1. Nell Brackwater (book.vcf)\n"
               "\n"
               "    VERSION                      3.0\n"
               "    FN                           Nell Brackwater\n"
               "    TEL              cell        +1-555-0101\n"
               "    TEL              boat phone  +1-555-0102\n"
               "    item1.X-ABLabel              boat phone\n"
               "    ADR              home        3 Weir Lane\n"
               "                                 FN1 2AB Ouse Mouth\n"
               "    NOTE                         one\n"
               "\n"
               "                                 two\n"
               "    X-EMPTY\n"
               "\n"
               "2. Bo (book.vcf)\n"
               "\n"
               "    VERSION  4.0\n"
               "    FN       Bo\n" );
}

TEST( ContactTextTest, WideNamesAndRemarksDoNotMoveTheOtherValues )
{
    EXPECT_EQ( Shown( CardText( "X-A-VERY-LONG-NAME-OF-A-PROPERTY:1\r\nTEL;HOME:2\r\nX-A-NAME-OF-20-LETTE:3\r\n"
                                "NOTE;LANGUAGE=de;X-A=something:4\r\nX-A;X-A=somewhatlonger:\r\n" ) ),
               "1. 2 (book.vcf)\n"
               "\n"
               "    X-A-VERY-LONG-NAME-OF-A-PROPERTY\n"
               "                                1\n"
               "    TEL                   home  2\n"
               "    X-A-NAME-OF-20-LETTE        3\n"
               "    NOTE                  [LANGUAGE=de; X-A=something]\n"
               "                                4\n"
               "    X-A                   [X-A=somewhatlonger]\n" );
}

TEST( ContactTextTest, WideCharactersAreAligned )
{
    EXPECT_EQ( Shown( CardText( "i.X-ABLabel:月見里\r\ni.TEL:1\r\nTEL;CELL:2\r\n" ) ),
               "1. 1 (book.vcf)\n"
               "\n"
               "    i.X-ABLabel          月見里\n"
               "    TEL          月見里  1\n"
               "    TEL          cell    2\n" );
}

TEST( ContactTextTest, ValuesAreWrappedIntoTheTerminal )
{
    EXPECT_EQ(
        Shown( CardText( "FN:Nell\r\nNOTE:Rings back after the last ferry.\\nNever before nine.\r\n" ), s_kShort, 35 ),
        "1. Nell (book.vcf)\n"
        "\n"
        "    FN    Nell\n"
        "    NOTE  Rings back after the last\n"
        "          ferry.\n"
        "          Never before nine.\n" );
}

TEST( ContactTextTest, NarrowTerminalHasRoomForValues )
{
    EXPECT_EQ(
        Shown( CardText( "VERSION:3.0\r\nFN:Otmar von Huegelstein zu Maulwurfsburg\r\nTEL;TYPE=HOME:+1-555-0170\r\n"
                         "TEL;TYPE=WORK;X-A=something;X-B=something:+1-555-0171\r\n"
                         "EMAIL:otmar.huegelstein@example.com\r\n" ),
               s_kShort, 40 ),
        "1. Otmar von Huegelstein zu\n"
        "   Maulwurfsburg (book.vcf)\n"
        "\n"
        "    VERSION        3.0\n"
        "    FN             Otmar von Huegelstein\n"
        "                   zu Maulwurfsburg\n"
        "    TEL      home  +1-555-0170\n"
        "    TEL      work [X-A=something;\n"
        "      X-B=something]\n"
        "                   +1-555-0171\n"
        "    EMAIL          otmar.huegelstein\n"
        "                   @example.com\n" );
}

TEST( ContactTextTest, NoLineIsWiderThanTheTerminal )
{
    const QByteArray wide = "FN:" + QByteArray( "Lanthornia " ).repeated( 30 ) + "\r\nX-" + QByteArray( 100, 'X' ) +
                            ";X-A=" + QByteArray( 100, 'a' ) +
                            ":1\r\nNOTE;LANGUAGE=de:👩🏽\u200D🚀🇩🇪 月見里 ليلى " +
                            QByteArray( 300, 'x' ) + "\r\n";
    QByteArray card = CardText( wide );
    for ( int depth = 0; depth < 7; ++depth )
        card = CardText( wide + "AGENT:\r\n" + card );
    for ( int columns = 20; columns <= 200; ++columns )
    {
        const QStringList lines =
            QString::fromStdString( Shown( card, s_kFull, columns ) ).split( QLatin1Char( '\n' ) );
        EXPECT_GT( lines.size(), 30 );
        for ( const QString& line : lines )
            EXPECT_LE( ColumnsOf( line ), columns ) << Utf8( line );
    }
}

TEST( ContactTextTest, TextFromRightToLeftIsIsolatedOnATerminal )
{
    const QByteArray card = CardText( "FN:ליאור\r\ni.X-ABLabel:סירה\r\ni.TEL:1\r\n" );
    EXPECT_EQ( Shown( card, s_kShort, 80 ), "1. \u2068ליאור\u2069 (book.vcf)\n"
                                            "\n"
                                            "    FN                 \u2068ליאור\u2069\n"
                                            "    i.X-ABLabel        \u2068סירה\u2069\n"
                                            "    TEL          \u2068סירה\u2069  1\n" );
    EXPECT_EQ( Shown( card ).find( "\u2068" ), std::string::npos );
}

TEST( ContactTextTest, NestedCardIsIndentedBelowItsLine )
{
    EXPECT_EQ( Shown( CardText( "FN:Nell\r\nAGENT;X-A=1:\r\n" +
                                CardText( "FN:Tom\r\nAGENT:\r\n" + CardText( "FN:Bo\r\n" ) + "TITLE:Helper\r\n" ) +
                                "NOTE:x\r\n" ) ),
               "1. Nell (book.vcf)\n"
               "\n"
               "    FN              Nell\n"
               "    AGENT  [X-A=1]  Tom\n"
               "        FN     Tom\n"
               "        AGENT  Bo\n"
               "            FN  Bo\n"
               "        TITLE  Helper\n"
               "    NOTE            x\n" );
}

TEST( ContactTextTest, CardInPartSaysSo )
{
    const std::string text = Shown( PartCard() );
    EXPECT_EQ( text.substr( 0, text.find( '\n' ) ), "1. Tobias (book.vcf, in part)" );
}

TEST( ContactTextTest, FullShowsEverything )
{
    MarkedCard card;
    const QByteArray book = card.Text();
    const QByteArray text = QByteArray::fromStdString( Shown( book, s_kFull ) ).toLower();
    EXPECT_GT( card.Count(), 200 );
    for ( int i = 0; i < card.Count(); ++i )
        EXPECT_TRUE( text.contains( MarkedCard::Marker( i ) ) ) << i << '\n' << text.constData();
}

TEST( ContactTextTest, NothingInACardDrivesTheTerminal )
{
    const QByteArray hostile = HostileText();
    const QByteArray agent = CardText( "FN:" + hostile + "\r\n" );
    const QByteArray book =
        CardText( "FN:" + hostile + "\r\nN:" + hostile + ";" + hostile + "\r\nNOTE;X-A=\"" + hostile +
                  "\";TYPE=" + hostile + ":\\n" + hostile + "\r\n" + hostile + ".X-" + hostile +
                  ":x\r\ni.TEL:\r\ni.X-ABLabel:" + hostile + "\r\nPHOTO;ENCODING=b:AAAA" + hostile +
                  "\r\nPHOTO:data:" + hostile + ";base64,AAAA\r\nADR:;;" + hostile + ";;;;\r\nAGENT:\r\n" + agent );
    for ( const ContactText::Length length : { s_kShort, s_kFull } )
    {
        for ( const int columns : { 0, 40 } )
        {
            const std::string text = Shown( book, length, columns );
            EXPECT_TRUE( IsHarmless( text ) ) << text;
            EXPECT_NE( text.find( "AGENT" ), std::string::npos ) << text;
        }
    }
}
