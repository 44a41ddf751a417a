/// \file
/// Walks over the characters of a text.

#pragma once

#include <QChar>
#include <QStringView>

namespace PimManager::Tools
{

/// The first character of a text that is not empty, as a code point. Half of a surrogate pair without its other half
/// is a character of its own.
inline uint FirstCodePoint( QStringView a_text )
{
    if ( a_text.size() > 1 && a_text[0].isHighSurrogate() && a_text[1].isLowSurrogate() )
        return QChar::surrogateToUcs4( a_text[0], a_text[1] );
    return a_text[0].unicode();
}

inline int UnitsOf( uint a_codePoint )
{
    return QChar::requiresSurrogates( a_codePoint ) ? 2 : 1;
}

/// Calls `a_visit( codePoint, units )` for each character in order; `units` is the piece of the text that it stands in.
template <typename Visit>
void ForEachCodePoint( QStringView a_text, Visit a_visit )
{
    while ( !a_text.isEmpty() )
    {
        const uint codePoint = FirstCodePoint( a_text );
        a_visit( codePoint, a_text.left( UnitsOf( codePoint ) ) );
        a_text = a_text.mid( UnitsOf( codePoint ) );
    }
}

} // namespace PimManager::Tools
