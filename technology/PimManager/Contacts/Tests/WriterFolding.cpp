#include "WriterFolding.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

bool IsInsideCharacter( const QByteArray& a_text, int a_place )
{
    return a_place < a_text.size() && ( static_cast<uchar>( a_text.at( a_place ) ) & 0xC0 ) == 0x80;
}

int EndOfWholeCharacters( const QByteArray& a_text, int a_place )
{
    while ( IsInsideCharacter( a_text, a_place ) )
        --a_place;
    return a_place;
}

int EndOfCharacters( const QByteArray& a_text, int a_count )
{
    int place = 0;
    for ( ; a_count > 0 && place < a_text.size(); --a_count )
    {
        ++place;
        while ( IsInsideCharacter( a_text, place ) )
            ++place;
    }
    return place;
}

// A word that is too long is not broken.
int EndOfWords( const QByteArray& a_text, int a_place )
{
    const int blank = static_cast<int>( a_text.lastIndexOf( ' ', a_place ) );
    return blank > 0 ? blank : static_cast<int>( a_text.size() );
}

// How much of the text is on the next physical line.
int LengthOfPiece( const QByteArray& a_text, FoldAt a_at, int a_width )
{
    if ( a_text.size() <= a_width )
        return static_cast<int>( a_text.size() );
    switch ( a_at )
    {
    case FoldAt::WholeOctets:
        return EndOfWholeCharacters( a_text, a_width );
    case FoldAt::Characters:
        return EndOfCharacters( a_text, a_width );
    case FoldAt::Words:
        return EndOfWords( a_text, a_width );
    default:
        return a_width;
    }
}

} // namespace

QByteArray Folded( const QByteArray& a_line, const Folding& a_folding )
{
    const int lineEnd = static_cast<int>( a_folding.m_break.indexOf( "\r\n" ) );
    const int before = std::max( lineEnd, 0 );
    const int behind = static_cast<int>( a_folding.m_break.size() ) - before - 2;
    QByteArray rest = a_line;
    QByteArray folded;
    for ( int width = a_folding.m_width - before; !rest.isEmpty(); width = a_folding.m_width - before - behind )
    {
        const int length = LengthOfPiece( rest, a_folding.m_at, width );
        folded += ( folded.isEmpty() ? QByteArray() : a_folding.m_break ) + rest.left( length );
        rest.remove( 0, length );
    }
    return folded;
}

} // namespace PimManager::Contacts
