// Reads every example in docs/vcard-support.md with the component and with Contacts, and checks that its row shows what
// they return.

#include "DocumentFile.h"
#include "SupportAnswer.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <map>
#include <set>

using namespace PimManager::vCard::Documents;

namespace
{

std::vector<TableRow> SupportRows()
{
    return TableRows( DocumentText( QStringLiteral( "docs/vcard-support.md" ) ),
                      { QStringLiteral( "section" ), QStringLiteral( "construct" ), QStringLiteral( "example" ),
                        QStringLiteral( "component" ), QStringLiteral( "contacts" ) } );
}

// The version of the cards under a heading.
const std::map<QString, QString>& Versions()
{
    static const std::map<QString, QString> s_kVersions = {
        { QStringLiteral( "vCard 2.1" ), QStringLiteral( "2.1" ) },
        { QStringLiteral( "RFC 2425" ), QStringLiteral( "3.0" ) },
        { QStringLiteral( "RFC 2426" ), QStringLiteral( "3.0" ) },
        { QStringLiteral( "RFC 6350" ), QStringLiteral( "4.0" ) },
        { QStringLiteral( "RFC 6868" ), QStringLiteral( "4.0" ) },
    };
    return s_kVersions;
}

TEST( VCardSupportTest, EachStandardHasItsTable )
{
    std::set<QString> headings;
    for ( const TableRow& row : SupportRows() )
        headings.insert( row.m_heading );
    for ( const auto& [heading, version] : Versions() )
        EXPECT_EQ( headings.erase( heading ), 1U ) << heading.toStdString();
    EXPECT_TRUE( headings.empty() ) << headings.begin()->toStdString();
}

TEST( VCardSupportTest, EachExampleGivesWhatItsRowSays )
{
    for ( const TableRow& row : SupportRows() )
    {
        const QString version = Versions().at( row.m_heading );
        const SupportAnswer answer = AnswerTo( ExampleOf( WithoutQuotes( row.m_cells[2] ), version ) );
        EXPECT_EQ( row.m_cells[3].toStdString(), answer.m_component.toStdString() ) << "line " << row.m_line;
        EXPECT_EQ( row.m_cells[4].toStdString(), answer.m_contacts.toStdString() ) << "line " << row.m_line;
    }
}

TEST( VCardSupportTest, RowsAreWhole )
{
    static const QRegularExpression s_kSection( QStringLiteral( "\\A[1-9][0-9]*(\\.[1-9][0-9]*)*\\z" ) );
    for ( const TableRow& row : SupportRows() )
    {
        ASSERT_EQ( row.m_cells.size(), 5 ) << "line " << row.m_line;
        EXPECT_TRUE( s_kSection.match( row.m_cells[0] ).hasMatch() ) << "line " << row.m_line;
        EXPECT_NE( WithoutQuotes( row.m_cells[2] ), row.m_cells[2] ) << "line " << row.m_line;
    }
}

} // namespace
