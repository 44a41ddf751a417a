#include "Outputs/MatchingNumbers.h"

#include "ToolsTestText.h"

#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

// The ids as text, those of each contact with a semicolon.
std::string Joined( const QVector<QList<int>>& a_ids )
{
    std::string text;
    for ( const QList<int>& ids : a_ids )
    {
        for ( const int id : ids )
            text += std::to_string( id ) + ' ';
        text += ';';
    }
    return text;
}

} // namespace

TEST( MatchingNumbersTest, LinesAreThoseThatContainTheTextOrAWordOfIt )
{
    const PimContactBook book =
        PimContactBook::FromBytes( CardText( "FN:Ada\r\nTEL:+1-555-0101\r\nNOTE:x\r\nTEL:+1-555-0202\r\n" ) +
                                   CardText( "FN:Bo\r\n" ) + CardText( "FN:Cy\r\nTEL:+1-555-0102\r\n" ) );
    struct Row
    {
        const char* m_text;
        SearchedAs m_as;
        const char* m_ids;
    };
    const std::vector<Row> rows = {
        { "0101", SearchedAs::Text, "2 ;;;" },    { "010", SearchedAs::Text, "2 ;;2 ;" },
        { "555", SearchedAs::Text, "2 4 ;;2 ;" }, { "cy 0102", SearchedAs::Text, ";;2 ;" },
        { "999", SearchedAs::Text, ";;;" },       { "202", SearchedAs::Keys, "4 ;;2 ;" },
        { "999", SearchedAs::Keys, ";;;" },
    };
    for ( const Row& row : rows )
    {
        const std::string ids =
            Joined( MatchingNumbers( book, { 0, 1, 2 }, QString::fromLatin1( row.m_text ), row.m_as, {} ) );
        EXPECT_EQ( ids, row.m_ids ) << row.m_text;
    }
    EXPECT_EQ( Joined( MatchingNumbers( book, { 2 }, QStringLiteral( "0" ), SearchedAs::Text, {} ) ), "2 ;" );
    EXPECT_EQ( Joined( MatchingNumbers( book, {}, QStringLiteral( "0" ), SearchedAs::Text, {} ) ), "" );
}
