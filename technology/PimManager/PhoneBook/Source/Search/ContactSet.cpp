#include "Search/ContactSet.h"

#include <algorithm>
#include <numeric>

namespace PimManager::PhoneBook
{

bool ContactSet::IsEmpty() const
{
    return std::all_of( m_words.begin(), m_words.end(), []( quint64 a_word ) { return a_word == 0; } );
}

int ContactSet::Size() const
{
    return std::accumulate( m_words.begin(), m_words.end(), 0,
                            []( int a_sum, quint64 a_word )
                            { return a_sum + static_cast<int>( qPopulationCount( a_word ) ); } );
}

} // namespace PimManager::PhoneBook
