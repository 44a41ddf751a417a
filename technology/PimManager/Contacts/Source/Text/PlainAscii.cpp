#include "Text/PlainAscii.h"

#include "Text/EightBytes.h"

#include <QtGlobal>

#include <cstddef>

namespace PimManager::Contacts
{

namespace
{

constexpr std::ptrdiff_t s_kFourWords = 4 * s_kWord;

// Sets the high bit of a byte that is odd. That of a plain byte may be set only after an odd one.
quint64 NotPrintable( quint64 a_word )
{
    return a_word | ( a_word + s_kOnes ) | ( a_word - s_kOnes * ' ' );
}

} // namespace

// The last word may overlap the one before it.
bool IsPrintableAscii( std::string_view a_text )
{
    if ( a_text.size() < s_kWord )
        return ( NotPrintable( FirstEight( a_text, ' ' ) ) & s_kHighBits ) == 0;
    const char* place = a_text.data();
    const char* const last = place + a_text.size() - s_kWord;
    quint64 odd = NotPrintable( WordAt( last ) );
    for ( ; last - place > s_kFourWords; place += s_kFourWords )
    {
        odd |= NotPrintable( WordAt( place ) ) | NotPrintable( WordAt( place + s_kWord ) ) |
               NotPrintable( WordAt( place + 2 * s_kWord ) ) | NotPrintable( WordAt( place + 3 * s_kWord ) );
    }
    for ( ; place < last; place += s_kWord )
        odd |= NotPrintable( WordAt( place ) );
    return ( odd & s_kHighBits ) == 0;
}

} // namespace PimManager::Contacts
