#include "Outputs/ReportText.h"

#include "TestBooks.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

PimContactReport ReportOn( const QByteArray& a_book, const PimContactOptions& a_options = PimContactOptions() )
{
    PimContactReader reader( a_options );
    reader.Feed( a_book );
    reader.Finish();
    return reader.Report();
}

struct Row
{
    QByteArray m_book;
    const char* m_summary;
    ExitStatus m_status;
};

void ExpectSummaries( const std::vector<Row>& a_rows )
{
    for ( const Row& row : a_rows )
    {
        const PimContactReport report = ReportOn( row.m_book );
        EXPECT_EQ( Utf8( SummaryText( report, true ) ), row.m_summary );
        EXPECT_EQ( int( StatusOf( report, true ) ), int( row.m_status ) ) << row.m_summary;
    }
}

constexpr ExitStatus s_kGiven = ExitStatus::AllGiven;
constexpr ExitStatus s_kRefused = ExitStatus::SomeRefused;

const QByteArray s_kOldCard = CardText( "VERSION:2.1\r\nN:x\r\n" );

} // namespace

TEST( ReportTextTest, BookIsDescribedByItsCards )
{
    const QByteArray nested = CardText( "VERSION:2.1\r\nN:x\r\nAGENT:\r\n" + s_kOldCard );
    ExpectSummaries( {
        { CleanCard(), "1 card: 1 whole; CR LF line endings; UTF-8 (all ASCII); version 3.0; no findings", s_kGiven },
        { CleanCard() + PartCard(),
          "2 cards: 1 whole, 1 in part; CR LF line endings; UTF-8 (all ASCII); version 3.0; 1 × not-a-property",
          s_kRefused },
        { CleanCard() + s_kOldCard + s_kOldCard,
          "3 cards: 3 whole; CR LF line endings; UTF-8 (all ASCII); versions 2.1 (2 cards), 3.0 (1 card); no findings",
          s_kGiven },
        { nested, "1 card: 1 whole; 1 nested card; CR LF line endings; UTF-8 (all ASCII); version 2.1; no findings",
          s_kGiven },
        { CardText( "N:x\r\n" ),
          "1 card: 1 whole; CR LF line endings; UTF-8 (all ASCII); version none or other; no findings", s_kGiven },
    } );
}

TEST( ReportTextTest, LineEndingsAreCounted )
{
    struct EndsRow
    {
        const char* m_end;
        const char* m_text;
    };
    const std::vector<EndsRow> rows = {
        { "\n", "; LF line endings; " },
        { "\r", "; CR line endings; " },
        { "\r\r\n", "; CR CR LF line endings; " },
    };
    for ( const EndsRow& row : rows )
    {
        const QByteArray book = CleanCard().replace( "\r\n", row.m_end );
        const std::string summary = Utf8( SummaryText( ReportOn( book ), true ) );
        EXPECT_NE( summary.find( row.m_text ), std::string::npos ) << summary;
    }
    const std::string mixed = Utf8( SummaryText( ReportOn( CleanCard() + "\n\n" ), true ) );
    EXPECT_NE( mixed.find( "; mixed line endings (5 CR LF, 2 LF); " ), std::string::npos ) << mixed;
}

TEST( ReportTextTest, CharacterSetIsNamedWithItsReason )
{
    struct CharsetRow
    {
        QByteArray m_book;
        const char* m_text;
    };
    const std::vector<CharsetRow> rows = {
        { CardText( "FN:N\xC3\xA9ll\r\n" ), "; UTF-8 (valid); " },
        { CardText( "FN:N\xE9ll\r\n" ), "; windows-1252 (assumed); " },
        { CardText( "FN;CHARSET=ISO-8859-2:N\xE9ll\r\n" ), "; ISO-8859-2 (named by CHARSET); " },
        { "\xEF\xBB\xBF" + CleanCard(), "; UTF-8 (byte order mark); " },
        { Utf16( CleanCard() ), "; UTF-16LE (byte order mark); " },
        { Utf16( CleanCard() ).mid( 2 ), "; UTF-16LE (by its NUL bytes); " },
    };
    for ( const CharsetRow& row : rows )
    {
        const std::string summary = Utf8( SummaryText( ReportOn( row.m_book ), true ) );
        EXPECT_NE( summary.find( row.m_text ), std::string::npos ) << summary;
    }
}

TEST( ReportTextTest, FileWithoutCardsIsDescribedByItsKind )
{
    ExpectSummaries( {
        { "", "is empty", s_kGiven },
        { QByteArray( "\x1F\x8B\x08\0\0\0\0\0\0\x03", 10 ), "is a gzip or zip archive; 1 × compressed-file",
          s_kRefused },
        { QByteArray( "PK\x03\x04\x14\0\0\0", 8 ), "is a gzip or zip archive; 1 × compressed-file", s_kRefused },
        { "%PDF-1.4\n", "is a PDF document; 1 × document-file", s_kRefused },
        { PngPicture(), "is an image; 1 × image-file", s_kRefused },
        { "<!DOCTYPE html>\n<title>x</title>\n",
          "is an HTML page; LF line endings; UTF-8 (all ASCII); 1 × line-end, 1 × text-outside, 1 × html-file",
          s_kRefused },
        { "hello\r\n", "is text without a card; CR LF line endings; UTF-8 (all ASCII); 1 × text-outside, 1 × no-card",
          s_kRefused },
        { QByteArray( "\1\2\3\0\4\5", 6 ).repeated( 10 ),
          "is of an unknown kind; 1 × last-line-end, 1 × text-outside, 1 × unknown-file", s_kRefused },
    } );
}

TEST( ReportTextTest, WorstFindingsComeFirst )
{
    const QByteArray book = PartCard().replace( "FN:", " FN :\\q" ).chopped( 2 );
    const std::string summary = Utf8( SummaryText( ReportOn( book ), true ) );
    const auto dropped = summary.find( "× not-a-property" );
    const auto repaired = summary.find( "× last-line-end" );
    const auto note = summary.find( "× unknown-escape" );
    EXPECT_TRUE( dropped < repaired && repaired < note && note != std::string::npos ) << summary;
}

TEST( ReportTextTest, TextOutsideCardsIsNoFailure )
{
    EXPECT_EQ( StatusOf( ReportOn( "hello\r\n" + CleanCard() + "bye\r\n" ), true ), s_kGiven );
}

TEST( ReportTextTest, LossesAreEmptyOnlyIfNothingIsMissing )
{
    PimContactOptions oneCard;
    oneCard.SetCards( 1 );
    PimContactOptions oneLevel;
    oneLevel.SetNesting( 1 );
    struct LossRow
    {
        QByteArray m_book;
        const char* m_losses;
        PimContactOptions m_options;
    };
    const std::vector<LossRow> rows = {
        { "", "", {} },
        { CleanCard(), "", {} },
        { CleanCard().chopped( 11 ), "", {} },
        { "hello\r\n" + CleanCard() + "END:VCARD\r\n", "", {} },
        { "FN:x\r\nTEL:5\r\nEND:VCARD\r\n", "", {} },
        { "hello", "contains no vCard", {} },
        { QByteArray( "\1\2\3\0\4\5", 6 ).repeated( 10 ), "contains no vCard", {} },
        { "%PDF-1.4\n", "is a PDF document", {} },
        { "<!DOCTYPE html>\n<title>x</title>\n", "is an HTML page", {} },
        { PartCard(), "1 line dropped", {} },
        { PartCard() + PartCard(), "2 lines dropped", {} },
        { CardText( "# a\r\n# b\r\nFN:x\r\n" ), "2 lines dropped", {} },
        { "BEGIN:VCARD x\r\nFN:x\r\nEND:VCARD\r\n", "1 line dropped", {} },
        { CleanCard() + CleanCard(), "1 card refused", oneCard },
        { PartCard() + CleanCard() + CleanCard(), "2 cards refused, 1 line dropped", oneCard },
        { CardText( "AGENT:\r\n" + CardText( "AGENT:\r\n" + CleanCard() ) ), "1 line dropped", oneLevel },
    };
    for ( const LossRow& row : rows )
    {
        const PimContactReport report = ReportOn( row.m_book, row.m_options );
        EXPECT_EQ( Utf8( LossesText( report, true ) ), row.m_losses ) << row.m_book.constData();
        EXPECT_EQ( StatusOf( report, true ) == s_kGiven, *row.m_losses == '\0' ) << row.m_book.constData();
    }
    EXPECT_EQ( Utf8( LossesText( ReportOn( "hello" ), false ) ), "" );
    EXPECT_EQ( Utf8( LossesText( ReportOn( PartCard() ), false ) ), "1 line dropped" );
}

TEST( ReportTextTest, InterruptedFileNeedNotHoldACard )
{
    EXPECT_EQ( Utf8( SummaryText( ReportOn( "" ), false ) ), "not read to its end" );
    EXPECT_EQ( StatusOf( ReportOn( "" ), false ), s_kGiven );
    const PimContactReport text = ReportOn( "hello\r\n" );
    EXPECT_EQ( StatusOf( text, false ), s_kGiven );
    EXPECT_TRUE( SummaryText( text, false ).endsWith( QLatin1String( "; not read to its end" ) ) );
}

TEST( ReportTextTest, FactsAreNamed )
{
    const QByteArray nested = CardText( "VERSION:2.1\r\nN:x\r\nAGENT:\r\n" + s_kOldCard );
    struct FactsRow
    {
        QByteArray m_book;
        const char* m_facts;
    };
    const std::vector<FactsRow> rows = {
        { "", "" },
        { "%PDF-1.4\n", "File: is a PDF document|" },
        { "hello\r\n", "File: is text without a card|Line endings: CR LF line endings|Encoding: UTF-8 (all ASCII)|" },
        { nested, "Cards: 1 card: 1 whole|Cards inside cards: 1 nested card|Line endings: CR LF line endings|"
                  "Encoding: UTF-8 (all ASCII)|Versions: version 2.1|" },
    };
    for ( const FactsRow& row : rows )
    {
        QString text;
        const QList<ReportFact> facts = FactsOn( ReportOn( row.m_book ) );
        for ( const ReportFact& fact : facts )
            text += fact.m_name + QStringLiteral( ": " ) + fact.m_text + QLatin1Char( '|' );
        EXPECT_EQ( Utf8( text ), row.m_facts );
    }
}

TEST( ReportTextTest, BytesAreCountedByWhatBecameOfThem )
{
    struct BytesRow
    {
        QByteArray m_book;
        const char* m_text;
    };
    const QByteArray marked = "\xEF\xBB\xBF" + CardText( "N:x\r\n\r\n# y\r\n" ) + "bye\r\n";
    const std::vector<BytesRow> rows = {
        { "", "0 bytes" },
        { CardText( "N:x\r\n" ), "29 bytes: 5 in properties, 24 in BEGIN and END lines" },
        { marked, "44 bytes: 5 in properties, 24 in BEGIN and END lines, 2 in blank lines, 3 in byte order marks, "
                  "5 outside cards, 5 dropped" },
        { "%PDF-1.4\n", "9 bytes: 9 refused" },
        { Utf16( "a\r\n" ), "6 bytes in UTF-8: 3 in byte order marks, 3 outside cards" },
    };
    for ( const BytesRow& row : rows )
        EXPECT_EQ( Utf8( BytesText( ReportOn( row.m_book ) ) ), row.m_text );
}
