#include "Strict/BeginLine.h"

#include "PimVCard.h"
#include "PimVCardParser.h"
#include "Strict/ComponentLog.h"
#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::Tools;

namespace
{

struct Row
{
    const char* m_line;
    bool m_isBegin;
};

const std::vector<Row> s_kRows = {
    { "BEGIN:VCARD", true },
    { "begin:vcard", true },
    { "Begin:vCard", true },
    { "BEGIN  :     \tVCARD", true },
    { "BEGIN\t:VCARD", true },
    { "item1.BEGIN:VCARD", true },
    { "a.b-2.BEGIN :VCARD", true },
    { ".BEGIN:VCARD", true },
    { "BEGIN;TYPE=X:VCARD", true },
    { "BEGIN;X:\tVCARD", true },
    { "BEGIN; X,Y;Z=\"a:b;c\",d:VCARD", true },
    { "", false },
    { "VCARD", false },
    { ":VCARD", false },
    { "BEGIN VCARD", false },
    { "BEGIN", false },
    { "BEGIN:", false },
    { "BEGIN:VCARDS", false },
    { "BEGIN:VCARD;VCARD", false },
    { "BEGIN:XVCARD", false },
    { "BEGIN:VEVENT", false },
    { "END:VCARD", false },
    { "XBEGIN:VCARD", false },
    { "X_Y.BEGIN:VCARD", false },
    { "NOTE:BEGIN:VCARD", false },
    { "AGENT: BEGIN:VCARD", false },
    { "BEGIN ;X:VCARD", false },
    { "BEGIN;X :VCARD", false },
    { "BEGIN;:VCARD", false },
    { "BEGIN;X=:VCARD", false },
    { "BEGIN;X=\"\":VCARD", false },
    { "BEGIN;X=a/b:VCARD", false },
};

bool ParserSaysBegin( const QByteArray& a_line )
{
    const ComponentLog quiet( nullptr );
    return PimVCardParser( a_line + "\r\n" ).ParseStart();
}

} // namespace

TEST( BeginLineTest, LineIsJudgedAsItShouldBe )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( IsBeginLine( QByteArray( row.m_line ) ), row.m_isBegin ) << row.m_line;
}

TEST( BeginLineTest, LineIsJudgedAsTheParserDoes )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( ParserSaysBegin( row.m_line ), row.m_isBegin ) << row.m_line;
}

TEST( BeginLineTest, BlanksAtTheEndAreForgiven )
{
    EXPECT_TRUE( IsBeginLine( QByteArray( "BEGIN:VCARD \t" ) ) );
    EXPECT_FALSE( ParserSaysBegin( "BEGIN:VCARD \t" ) );
}

TEST( BeginLineTest, PropertyIsJudgedByNameAndValue )
{
    const auto isBegin = []( const QString& a_name, const QList<QString>& a_values )
    { return IsBeginLine( PimVCardProperty( QString(), a_name, nullptr, new QList<QString>( a_values ) ) ); };
    const QString begin = QStringLiteral( "begin" );
    const QString card = QStringLiteral( "vcard" );
    EXPECT_TRUE( isBegin( begin, { card } ) );
    EXPECT_TRUE( isBegin( begin, { card + QStringLiteral( "  " ) } ) );
    EXPECT_FALSE( isBegin( begin, {} ) );
    EXPECT_FALSE( isBegin( begin, { card, card } ) );
    EXPECT_FALSE( isBegin( begin, { QStringLiteral( "VEVENT" ) } ) );
    EXPECT_FALSE( isBegin( QStringLiteral( "END" ), { card } ) );
}

TEST( BeginLineTest, LongHostileLinesAreJudgedInLinearTime )
{
    EXPECT_FALSE( IsBeginLine( QByteArray( 2000000, 'a' ) + ":VCARD" ) );
    EXPECT_FALSE( IsBeginLine( QByteArray( "a." ).repeated( 1000000 ) + ":VCARD" ) );
    EXPECT_FALSE( IsBeginLine( "BEGIN" + QByteArray( ";a" ).repeated( 1000000 ) + "/:VCARD" ) );
    EXPECT_TRUE( IsBeginLine( "BEGIN" + QByteArray( ";a=b,c" ).repeated( 1000 ) + ":VCARD" ) );
}
