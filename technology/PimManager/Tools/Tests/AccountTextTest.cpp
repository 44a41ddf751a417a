#include "AccountText.h"

#include "ImportTestBooks.h"

#include "PimVCardImporter.h"

#include <vector>

using namespace PimManager::vCard::Tools;
using namespace PimManager::vCardImport;

namespace
{

PimVCardImportAccount AccountOf( const QByteArray& a_book )
{
    return PimVCardImporter().Import( a_book ).m_account;
}

} // namespace

TEST( AccountTextTest, CardsAreCountedByWhatBecameOfThem )
{
    EXPECT_EQ( Utf8( CardsText( AccountOf( "" ) ) ), "0 cards" );
    EXPECT_EQ( Utf8( CardsText( AccountOf( CleanCard() ) ) ), "1 card: 1 whole" );
    EXPECT_EQ( Utf8( CardsText( AccountOf( CleanCard() + CleanCard() + PartCard() ) ) ),
               "3 cards: 2 whole, 1 in part" );
}

TEST( AccountTextTest, LineEndsAreNamed )
{
    struct Row
    {
        const char* m_book;
        const char* m_text;
    };
    const std::vector<Row> rows = {
        { "", "no line endings" },
        { "x", "no line endings" },
        { "x\r\ny\r\n", "CR LF line endings" },
        { "x\ny\n", "LF line endings" },
        { "x\ry\rz", "CR line endings" },
        { "x\r\ny\nz\n", "mixed line endings (1 CR LF, 2 LF)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( LineEndsText( AccountOf( row.m_book ) ) ), row.m_text ) << row.m_book;
}

TEST( AccountTextTest, EncodingIsNamedWithWhatSpeaksForIt )
{
    struct Row
    {
        QByteArray m_name;
        const char* m_text;
    };
    const std::vector<Row> rows = {
        { "Nell", "UTF-8 (all ASCII)" },
        { "N\xC3\xA9ll", "UTF-8 (valid)" },
        { "N\xE9ll", "windows-1252 (assumed)" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Utf8( EncodingText( AccountOf( CardText( "FN:" + row.m_name + "\r\n" ) ) ) ), row.m_text );
    EXPECT_EQ( Utf8( EncodingText( AccountOf( "\xEF\xBB\xBF" + CleanCard() ) ) ), "UTF-8 (byte order mark)" );
}

TEST( AccountTextTest, VersionsAreCountedWhenThereAreSeveral )
{
    const QByteArray old = CardText( "VERSION:2.1\r\nFN:x\r\n" );
    EXPECT_EQ( Utf8( VersionsText( AccountOf( "" ) ) ), "no version" );
    EXPECT_EQ( Utf8( VersionsText( AccountOf( CleanCard() + CleanCard() ) ) ), "version 3.0" );
    EXPECT_EQ( Utf8( VersionsText( AccountOf( CleanCard() + old + old ) ) ), "versions 2.1 (2 cards), 3.0 (1 card)" );
}

TEST( AccountTextTest, WorstFindingsComeFirst )
{
    const QStringList texts = FindingsTexts( AccountOf( PartCard().chopped( 2 ) + "\n\n" ) );
    ASSERT_EQ( texts.size(), 2 ) << Utf8( texts.join( QLatin1Char( ' ' ) ) );
    EXPECT_EQ( Utf8( texts.at( 0 ) ), "1 × not-a-property" );
    EXPECT_EQ( Utf8( texts.at( 1 ) ), "1 × line-end" );
    EXPECT_TRUE( FindingsTexts( AccountOf( CleanCard() ) ).isEmpty() );
}

TEST( AccountTextTest, StatusAndLossesAgree )
{
    struct Row
    {
        QByteArray m_book;
        ExitStatus m_status;
        const char* m_losses;
    };
    const std::vector<Row> rows = {
        { "", ExitStatus::AllGiven, "" },
        { CleanCard(), ExitStatus::AllGiven, "" },
        { CleanCard().chopped( 11 ), ExitStatus::AllGiven, "" },
        { "hello", ExitStatus::SomeRefused, "holds no vCard" },
        { PartCard(), ExitStatus::SomeRefused, "1 line dropped" },
        { PartCard() + PartCard(), ExitStatus::SomeRefused, "2 lines dropped" },
        { CleanCard() + "END:VCARD\r\n", ExitStatus::AllGiven, "" },
        { CleanCard() + "FN:x\r\nTEL:5\r\nEND:VCARD\r\n", ExitStatus::SomeRefused, "1 card without BEGIN left out" },
    };
    for ( const Row& row : rows )
    {
        EXPECT_EQ( StatusOf( AccountOf( row.m_book ) ), row.m_status ) << row.m_losses;
        EXPECT_EQ( Utf8( LossesText( AccountOf( row.m_book ) ) ), row.m_losses );
    }
}
