#include "ProgramRun.h"

#include "TestBooks.h"

#include <vector>

using namespace PimManager::Tools;

namespace
{

ProgramRun CheckStandard( const QByteArray& a_book )
{
    return ProgramCall( { "check", "--standard", "-" } ).WithInput( a_book ).Run();
}

QByteArray Conformant()
{
    return CardText( "VERSION:4.0\r\nFN:Nell\r\n" );
}

} // namespace

TEST( CheckStandardTest, ConformantBookHasNoFindings )
{
    const ProgramRun run = CheckStandard( Conformant() + CardText( "VERSION:2.1\r\nN:Nell\r\nTEL;CELL:1\r\n" ) );
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "standard input: 2 cards: 2 whole; CR LF line endings; UTF-8 (all ASCII); "
                          "versions 2.1 (1 card), 4.0 (1 card); no findings\n" );
}

TEST( CheckStandardTest, FindingsHaveLineTextSectionAndWord )
{
    struct Row
    {
        const char* m_lines;
        const char* m_finding;
    };
    const std::vector<Row> rows = {
        { "VERSION:3.0\r\nFN:Nell\r\n",
          "standard input:1:1: invalid: N is missing (RFC 2426, section 3.1.2) [missing-property]\n" },
        { "FN:Nell\r\n",
          "standard input:1:1: invalid: VERSION is missing (RFC 6350, section 6.7.9) [missing-version]\n" },
        { "VERSION:4.0\r\nFN:Nell\r\nBDAY:1984-02-29\r\n", "standard input:4:1: invalid: the value of BDAY is not of "
                                                           "the type date-and-or-time (RFC 6350, section 6.2.5) "
                                                           "[invalid-value]\n" },
        { "VERSION:4.0\r\nFN:Nell\r\nTEL;CHARSET=UTF-8:1\r\n",
          "standard input:4:1: invalid: the version does not have a parameter of the line (RFC 6350, section 5) "
          "[unknown-parameter]\n" },
    };
    for ( const Row& row : rows )
    {
        const ProgramRun run = CheckStandard( CardText( row.m_lines ) );
        EXPECT_EQ( run.m_status, 1 ) << row.m_lines;
        EXPECT_EQ( run.m_out.substr( 0, run.m_out.find( '\n' ) + 1 ), row.m_finding );
    }
}

TEST( CheckStandardTest, SummaryCountsTheFindings )
{
    const ProgramRun run =
        CheckStandard( CardText( "VERSION:4.0\r\nFN:Nell\r\nBDAY:a\r\nREV:b\r\nFN:a\\qb\r\nAGENT:c\r\n" ) );
    EXPECT_NE( run.m_out.find( "; 1 \xC3\x97 unknown-escape, 1 \xC3\x97 unknown-property, 2 \xC3\x97 invalid-value, "
                               "1 \xC3\x97 bad-escape\n" ),
               std::string::npos )
        << run.m_out;
}

TEST( CheckStandardTest, NestedCardsAreChecked )
{
    const ProgramRun run = CheckStandard(
        CardText( "VERSION:2.1\r\nN:Nell\r\nAGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nFN:Tobias\r\nEND:VCARD\r\n" ) );
    EXPECT_EQ( run.m_out.find( "standard input:5:1: invalid: N is missing (vCard 2.1, section 2.2.2) " ), 0U )
        << run.m_out;
}

TEST( CheckStandardTest, FindingsOfEachFileAreItsOwn )
{
    const Folder folder;
    const QByteArray good = folder.Write( "good", Conformant() );
    const QByteArray bad = folder.Write( "bad", CardText( "VERSION:4.0\r\nN:;;;;\r\n" ) );
    const ProgramRun run = RunPimvcard( { "check", "-S", bad, good } );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_NE( run.m_out.find( "version 4.0; 1 \xC3\x97 missing-property\n" ), std::string::npos ) << run.m_out;
    EXPECT_NE( run.m_out.find( "version 4.0; no findings\n" ), std::string::npos ) << run.m_out;
}

TEST( CheckStandardTest, NothingChangesWithoutTheOption )
{
    const ProgramRun run =
        ProgramCall( { "check", "-" } ).WithInput( CardText( "VERSION:4.0\r\nBDAY:1984-02-29\r\n" ) ).Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( run.m_out, "standard input: 1 card: 1 whole; CR LF line endings; UTF-8 (all ASCII); version 4.0; "
                          "no findings\n" );
}

TEST( CheckStandardTest, NothingOfTheCardsIsPrinted )
{
    const QByteArray card =
        CardText( "VERSION:4.0\r\nX-SECRET;SECRET=SECRET:SECRET\r\nSECRET:SECRET\r\nBDAY:SECRET\r\n" );
    const ProgramRun run = CheckStandard( card );
    EXPECT_EQ( run.m_status, 1 );
    EXPECT_EQ( run.m_out.find( "SECRET" ), std::string::npos ) << run.m_out;
}
