#include "Commands/Suggestion.h"

#include <algorithm>
#include <vector>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kMostChanges = 2;

// Three rows of the table of distances, because an exchange looks two rows back.
int Changes( const QString& a_first, const QString& a_second )
{
    const auto width = static_cast<size_t>( a_second.size() ) + 1;
    std::vector<int> before( width );
    std::vector<int> last( width );
    std::vector<int> row( width );
    for ( size_t column = 0; column < width; ++column )
        row[column] = static_cast<int>( column );
    for ( int i = 0; i < a_first.size(); ++i )
    {
        before.swap( last );
        last.swap( row );
        row[0] = i + 1;
        for ( int j = 0; j < a_second.size(); ++j )
        {
            const auto column = static_cast<size_t>( j );
            const int replaced = last[column] + ( a_first.at( i ) == a_second.at( j ) ? 0 : 1 );
            row[column + 1] = std::min( { replaced, last[column + 1] + 1, row[column] + 1 } );
            if ( i > 0 && j > 0 && a_first.at( i ) == a_second.at( j - 1 ) && a_first.at( i - 1 ) == a_second.at( j ) )
                row[column + 1] = std::min( row[column + 1], before[column - 1] + 1 );
        }
    }
    return row.back();
}

} // namespace

QString SuggestionFor( const QString& a_word, const QStringList& a_words )
{
    QString best;
    int fewest = s_kMostChanges + 1;
    for ( const QString& word : a_words )
    {
        if ( std::abs( static_cast<int>( a_word.size() - word.size() ) ) > s_kMostChanges )
            continue;
        const int changes = Changes( a_word.toLower(), word.toLower() );
        if ( changes < fewest && 2 * changes < word.size() )
        {
            fewest = changes;
            best = word;
        }
    }
    return best.isEmpty() ? QString() : QStringLiteral( " Did you mean \"%1\"?" ).arg( best );
}

} // namespace PimManager::Tools
