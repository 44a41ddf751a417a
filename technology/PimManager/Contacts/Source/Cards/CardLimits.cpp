#include "Cards/CardLimits.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr qint64 s_kMostBytes = qint64( 1 ) << 30;
constexpr int s_kMostNesting = 64;

template <typename Number>
Number Bounded( Number a_limit, Number a_most )
{
    return a_limit > 0 ? std::min( a_limit, a_most ) : a_most;
}

// With shorter lines, the index of a card would exceed the memory that the limit of a card allows for.
qint64 MostLinesIn( qint64 a_bytes )
{
    constexpr qint64 s_kLeastBytesOfLine = 5;
    constexpr qint64 s_kAlwaysAllowed = 1024;
    return std::max( a_bytes / s_kLeastBytesOfLine, s_kAlwaysAllowed );
}

} // namespace

CardLimits::CardLimits( const PimContactOptions& a_options ) :
    m_bytes( Bounded( a_options.CardBytes(), s_kMostBytes ) ),
    m_lines( Bounded( a_options.CardLines(), MostLinesIn( m_bytes ) ) ),
    m_nesting( Bounded( a_options.Nesting(), s_kMostNesting ) )
{
}

} // namespace PimManager::Contacts
