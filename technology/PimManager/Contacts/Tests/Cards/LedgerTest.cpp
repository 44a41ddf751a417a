#include "Cards/Ledger.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;

// What the handlers of a ledger receive.
class LedgerTest : public ::testing::Test
{
protected:
    void Reset( int a_mostDiagnostics, bool a_hasHandlers )
    {
        m_ledger.Reset( a_mostDiagnostics );
        if ( !a_hasHandlers )
            return;
        m_ledger.SetExtentHandler(
            [this]( const PimContactExtent& a_extent )
            {
                m_extents += std::to_string( a_extent.Offset() ) + '+' + std::to_string( a_extent.Length() ) + ' ' +
                             NameOf( a_extent.Kind() ).data() + ' ' + std::to_string( a_extent.Card() ) + "; ";
            } );
        m_ledger.SetDiagnosticHandler( [this]( const PimContactDiagnostic& a_finding )
                                       { m_findings += Described( a_finding ); } );
    }

    static std::string Described( const PimContactDiagnostic& a_finding )
    {
        return NameOf( a_finding.Code() ).data() + ( ' ' + std::to_string( a_finding.Offset() ) ) + " in " +
               std::to_string( a_finding.Card() ) + " at " + std::to_string( a_finding.Line() ) + ':' +
               std::to_string( a_finding.Column() ) + " x" + std::to_string( a_finding.Count() ) + "; ";
    }

    std::string Kept() const
    {
        std::string text;
        for ( const PimContactDiagnostic& finding : m_ledger.Data().m_diagnostics )
            text += Described( finding );
        return text;
    }

    qint64 Counted( Code a_code ) const { return m_ledger.Data().m_findings[static_cast<size_t>( a_code )]; }

    Ledger m_ledger;
    std::string m_extents;
    std::string m_findings;
};

} // namespace

TEST_F( LedgerTest, ExtentsFollowEachOther )
{
    Reset( 10, true );
    m_ledger.Add( PimContactExtentKind::Outside, "text\n", 0 );
    m_ledger.Add( PimContactExtentKind::Blank, "", 0 );
    m_ledger.Add( PimContactExtentKind::Boundary, "BEGIN:VCARD\n", 1 );
    m_ledger.Add( PimContactExtentKind::Outside, "a", 0 );
    EXPECT_EQ( m_extents, "0+5 outside 0; 5+12 boundary 1; 17+1 outside 0; " );
    EXPECT_EQ( m_ledger.Offset(), 18 );
    EXPECT_EQ( m_ledger.Data().m_bytes[static_cast<size_t>( PimContactExtentKind::Outside )], 6 );
    EXPECT_EQ( m_ledger.Data().m_extents[static_cast<size_t>( PimContactExtentKind::Outside )], 2 );
    EXPECT_EQ( m_ledger.Data().m_extents[static_cast<size_t>( PimContactExtentKind::Blank )], 0 );
}

TEST_F( LedgerTest, ManyExtentsAreCounted )
{
    Reset( 10, false );
    EXPECT_FALSE( m_ledger.HasExtentHandler() );
    m_ledger.AddMany( PimContactExtentKind::Line, 3, 30 );
    m_ledger.AddMany( PimContactExtentKind::Line, 1, 5 );
    EXPECT_EQ( m_ledger.Offset(), 35 );
    EXPECT_EQ( m_ledger.Data().m_bytes[static_cast<size_t>( PimContactExtentKind::Line )], 35 );
    EXPECT_EQ( m_ledger.Data().m_extents[static_cast<size_t>( PimContactExtentKind::Line )], 4 );
}

TEST_F( LedgerTest, FindingsHaveTheirPlace )
{
    Reset( 10, true );
    m_ledger.Report( Code::MissingColon, 2, { 17, 3, 12 } );
    m_ledger.Report( Code::ControlCharacters, 2, { 17, 3, 12 }, 4 );
    const char* const expected = "missing-colon 17 in 2 at 3:6 x1; control-characters 17 in 2 at 3:6 x4; ";
    EXPECT_EQ( m_findings, expected );
    EXPECT_EQ( Kept(), expected );
}

TEST_F( LedgerTest, AnnouncedFindingsWaitForTheirTurn )
{
    Reset( 10, true );
    m_ledger.Announce( Code::LineEnd, { 10, 2, 8 } );
    m_ledger.Announce( Code::LineEnd, { 30, 4, 28 } );
    EXPECT_EQ( m_findings, "" );
    m_ledger.Report( Code::MissingColon, 1, { 9, 2, 8 } );
    EXPECT_EQ( m_findings, "missing-colon 9 in 1 at 2:2 x1; " );
    m_ledger.Report( Code::OddName, 1, { 10, 2, 8 } );
    EXPECT_EQ( m_findings, "missing-colon 9 in 1 at 2:2 x1; line-end 10 in 0 at 2:3 x1; odd-name 10 in 1 at 2:3 x1; " );
    m_findings.clear();
    m_ledger.FlushUpTo( 29 );
    EXPECT_EQ( m_findings, "" );
    m_ledger.FlushUpTo( 30 );
    EXPECT_EQ( m_findings, "line-end 30 in 0 at 4:3 x1; " );
}

TEST_F( LedgerTest, FindingsBeyondTheLimitAreCountedAndPassed )
{
    Reset( 2, true );
    for ( qint64 i = 0; i < 4; ++i )
        m_ledger.Report( Code::Comment, 1, { i, 1, 0 } );
    EXPECT_EQ( Kept(), "comment 0 in 1 at 1:1 x1; comment 1 in 1 at 1:2 x1; " );
    EXPECT_EQ(
        m_findings,
        "comment 0 in 1 at 1:1 x1; comment 1 in 1 at 1:2 x1; comment 2 in 1 at 1:3 x1; comment 3 in 1 at 1:4 x1; " );
    EXPECT_EQ( Counted( Code::Comment ), 4 );
    EXPECT_FALSE( m_ledger.IsOnlyCounting() );
}

TEST_F( LedgerTest, LedgerOnlyCountsWhenNobodyTakesMore )
{
    Reset( 1, false );
    EXPECT_FALSE( m_ledger.IsOnlyCounting() );
    m_ledger.Report( Code::Comment, 1, {} );
    EXPECT_TRUE( m_ledger.IsOnlyCounting() );
    m_ledger.CountFindings( Code::Comment, 1 );
    m_ledger.Report( Code::Comment, 1, {} );
    EXPECT_EQ( Counted( Code::Comment ), 3 );
    EXPECT_EQ( m_ledger.Data().m_diagnostics.size(), 1 );
    Reset( 0, false );
    EXPECT_TRUE( m_ledger.IsOnlyCounting() ) << "a limit of 0";
    Reset( -1, false );
    EXPECT_FALSE( m_ledger.IsOnlyCounting() ) << "no limit";
}

TEST_F( LedgerTest, ResetForgetsAnnouncedFindings )
{
    Reset( 10, true );
    m_ledger.Add( PimContactExtentKind::Outside, "a", 0 );
    m_ledger.Announce( Code::LineEnd, { 1, 1, 0 } );
    m_ledger.Reset( 10 );
    m_ledger.FlushUpTo( 100 );
    EXPECT_EQ( m_findings, "" );
    EXPECT_EQ( m_ledger.Offset(), 0 );
    EXPECT_EQ( m_ledger.Data().m_extents[static_cast<size_t>( PimContactExtentKind::Outside )], 0 );
}

} // namespace PimManager::Contacts
