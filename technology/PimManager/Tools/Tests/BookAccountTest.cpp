#include "Strict/BookAccount.h"

#include "Strict/ComponentLog.h"
#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

BookAccount AccountOf( const QByteArray& a_text )
{
    BookAccount account;
    ExamineText( a_text, account );
    const ComponentLog log( nullptr );
    const Cards cards = ParseBook( QByteArray( a_text ) );
    account.m_failedCards = log.FailedCards();
    ExamineCards( cards, account );
    return account;
}

std::string Notes( const QByteArray& a_text )
{
    return Utf8( NotesOn( AccountOf( a_text ) ).join( QLatin1Char( '\n' ) ) );
}

const QByteArray s_kGood = CardText( "FN:Nell\r\n" );
const QByteArray s_kBroken = CardText( "X_Y:z\r\n" );
const QByteArray s_kWithoutEnd = "BEGIN:VCARD\r\nFN:Tobias\r\n";

} // namespace

TEST( BookAccountTest, CardsAndRefusalsAddUp )
{
    struct Row
    {
        const char* m_what;
        QByteArray m_text;
        int m_beginLines;
        int m_cards;
        int m_refused;
        ExitStatus m_status;
    };
    const std::vector<Row> rows = {
        { "empty", "", 0, 0, 0, ExitStatus::AllGiven },
        { "white space", "\r\n \r\n", 0, 0, 1, ExitStatus::SomeRefused },
        { "no vCard", "Dear Nell,\r\n", 0, 0, 1, ExitStatus::SomeRefused },
        { "one card", s_kGood, 1, 1, 0, ExitStatus::AllGiven },
        { "byte order mark", "\xEF\xBB\xBF" + s_kGood, 1, 1, 0, ExitStatus::AllGiven },
        { "empty line first", "\r\n" + s_kGood, 1, 1, 1, ExitStatus::SomeRefused },
        { "UTF-16", Utf16( s_kGood + s_kGood ), 2, 0, 2, ExitStatus::SomeRefused },
        { "odd BEGIN line", "item.begin;X=y:\tvcard\r\nend : vcard\r\n", 1, 1, 0, ExitStatus::AllGiven },
        { "broken between good", s_kGood + s_kBroken + s_kGood, 3, 2, 1, ExitStatus::SomeRefused },
        { "two broken", s_kBroken + s_kBroken + s_kGood, 3, 1, 2, ExitStatus::SomeRefused },
        { "swallowed", s_kWithoutEnd + s_kGood, 2, 1, 1, ExitStatus::SomeRefused },
        { "two swallowed", s_kWithoutEnd + s_kWithoutEnd + s_kGood, 3, 1, 2, ExitStatus::SomeRefused },
        { "END missing at the end", s_kGood + s_kWithoutEnd, 2, 1, 1, ExitStatus::SomeRefused },
        { "last line end missing", "BEGIN:VCARD\r\nEND:VCARD", 1, 0, 1, ExitStatus::SomeRefused },
        { "rubbish behind", s_kGood + "rubbish\r\n", 1, 1, 1, ExitStatus::SomeRefused },
        { "bare LF", "BEGIN:VCARD\nFN:x\nEND:VCARD\n", 1, 0, 1, ExitStatus::SomeRefused },
        { "bare CR", "BEGIN:VCARD\rFN:x\rEND:VCARD\r", 1, 1, 0, ExitStatus::AllGiven },
        { "vertical tab", "BEGIN:VCARD\vEND:VCARD\v", 1, 1, 0, ExitStatus::AllGiven },
        { "folded BEGIN", "BEGIN:VC\r\n ARD\r\nEND:VCARD\r\n", 1, 1, 0, ExitStatus::AllGiven },
        { "BEGIN in a fold", CardText( "NOTE:x\r\n BEGIN:VCARD\r\n" ), 1, 1, 0, ExitStatus::AllGiven },
        { "BEGIN in a soft-broken value", CardText( "NOTE;ENCODING=QUOTED-PRINTABLE:x=\r\nBEGIN:VCARD\r\n" ), 1, 1, 0,
          ExitStatus::AllGiven },
        { "BEGIN in a joined value", CardText( "NOTE;ENCODING=QUOTED-PRINTABLE:x=0D=0A=\r\nBEGIN:VCARD\r\n" ), 1, 1, 0,
          ExitStatus::AllGiven },
        { "BEGIN behind base64", "BEGIN:VCARD\r\nX;ENCODING=b:AA==\r\n" + s_kGood, 2, 1, 1, ExitStatus::SomeRefused },
        { "behind NUL", s_kGood + '\0' + s_kGood, 2, 1, 1, ExitStatus::SomeRefused },
        { "blank behind a swallowed BEGIN", "BEGIN:VCARD\r\nBEGIN:VCARD \r\nEND:VCARD\r\n", 2, 1, 1,
          ExitStatus::SomeRefused },
    };
    for ( const Row& row : rows )
    {
        const BookAccount account = AccountOf( row.m_text );
        EXPECT_EQ( account.m_beginLines, row.m_beginLines ) << row.m_what;
        EXPECT_EQ( account.m_cards, row.m_cards ) << row.m_what;
        EXPECT_EQ( account.Refused(), row.m_refused ) << row.m_what;
        EXPECT_EQ( int( StatusOf( account ) ), int( row.m_status ) ) << row.m_what;
    }
}

TEST( BookAccountTest, NothingIsNotedWhenEveryCardCame )
{
    EXPECT_EQ( Notes( s_kGood + s_kGood ), "" );
    EXPECT_EQ( Notes( CardText( "NOTE:a\nb\r\n" ) ), "" );
    EXPECT_EQ( Notes( s_kGood + '\0' ), "" );
}

TEST( BookAccountTest, NoteTellsWhatDidNotCome )
{
    struct Row
    {
        QByteArray m_text;
        const char* m_notes;
    };
    const std::vector<Row> rows = {
        { "", "is empty" },
        { "\r\n", "contains no vCard" },
        { "Dear Nell,\n", "contains no vCard" },
        { s_kGood + s_kBroken, "1 of 2 cards refused" },
        { s_kWithoutEnd + s_kGood, "1 of 2 cards refused\n"
                                   "card 1 (Tobias) contains another card: there is a BEGIN:VCARD line in it, so its "
                                   "END:VCARD line is probably missing" },
        { "BEGIN:VCARD\nEND:VCARD\n",
          "1 of 1 cards refused\n"
          "2 of 2 lines end in a bare LF; the strict reader needs CR LF, which \"pimvcard convert\" writes" },
        { "BEGIN:VCARD\rX_Y:z\rEND:VCARD\r",
          "1 of 1 cards refused\n"
          "3 of 3 lines end in a bare CR; the strict reader needs CR LF, which \"pimvcard convert\" writes" },
        { s_kGood + "BEGIN:VCARD\r\nEND:VCARD",
          "1 of 2 cards refused\n"
          "the last line has no line ending; the strict reader needs CR LF there, too" },
        { QByteArray( "BEGIN:VCARD\nEND:VCARD\n" ) + '\0',
          "1 of 1 cards refused\n"
          "byte 23 is NUL and nothing after it is read; if the text is UTF-16, \"pimvcard convert\" reads it\n"
          "2 of 2 lines end in a bare LF; the strict reader needs CR LF, which \"pimvcard convert\" writes" },
        { "\r\n" + s_kGood, "1 refused, cards or text that belongs to no card" },
        { s_kGood + '\0' + s_kGood,
          "1 of 2 cards refused\n"
          "byte 34 is NUL and nothing after it is read; if the text is UTF-16, \"pimvcard convert\" reads it" },
        { Utf16( s_kGood ),
          "1 of 1 cards refused\n"
          "byte 4 is NUL and nothing after it is read; if the text is UTF-16, \"pimvcard convert\" reads it" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Notes( row.m_text ), row.m_notes );
}

TEST( BookAccountTest, SwallowersAreNamedByTheirPlaceAndHarmlessly )
{
    const QByteArray swallower = "BEGIN:VCARD\r\nFN:\xC2\x9B" + QByteArray( 200, 'x' ) + "\r\n" + s_kGood;
    const BookAccount account = AccountOf( s_kGood + swallower );
    ASSERT_EQ( account.m_swallowers.size(), 1 );
    EXPECT_EQ( Utf8( account.m_swallowers.first() ),
               "card 2 (\\x9b" + std::string( 59, 'x' ) + "\xE2\x80\xA6 (201 characters))" );
}

TEST( BookAccountTest, ManySwallowersAreNotAllNamed )
{
    const BookAccount account = AccountOf( ( s_kWithoutEnd + s_kGood ).repeated( 50 ) );
    EXPECT_EQ( account.m_swallowers.size(), 50 );
    EXPECT_EQ( account.Refused(), 50 );
    EXPECT_LT( NotesOn( account ).size(), 25 );
}
