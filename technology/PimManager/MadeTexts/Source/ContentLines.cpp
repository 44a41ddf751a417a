#include "ContentLines.h"

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kLongestEncodedLine = 76;

bool MayFoldBefore( char a_byte )
{
    const bool isInsideSequence = ( static_cast<uchar>( a_byte ) & 0xC0 ) == 0x80;
    return !isInsideSequence && a_byte != ' ';
}

QByteArray Encoded( char a_byte )
{
    return '=' + QByteArray( 1, a_byte ).toHex().toUpper();
}

QList<QByteArray> Encoded( const QList<QByteArray>& a_values )
{
    QList<QByteArray> pieces;
    for ( const QByteArray& value : a_values )
    {
        if ( !pieces.isEmpty() )
            pieces.append( QByteArrayLiteral( ";" ) );
        for ( const char byte : value )
            pieces.append( Encoded( byte ) );
    }
    return pieces;
}

} // namespace

QByteArray FoldedLine( const QByteArray& a_line, int a_column )
{
    QByteArray folded;
    int start = 0;
    int room = a_column;
    while ( a_line.size() - start > room )
    {
        int end = start + room;
        while ( !MayFoldBefore( a_line.at( end ) ) )
            --end;
        folded += a_line.mid( start, end - start ) + "\r\n ";
        start = end;
        room = a_column - 1;
    }
    return folded + a_line.mid( start ) + "\r\n";
}

QByteArray QuotedPrintableLine( const QByteArray& a_start, const QList<QByteArray>& a_values )
{
    QByteArray text = a_start;
    auto column = a_start.size();
    const QList<QByteArray> pieces = Encoded( a_values );
    for ( const QByteArray& piece : pieces )
    {
        if ( column + piece.size() >= s_kLongestEncodedLine )
        {
            text += "=\r\n";
            column = 0;
        }
        text += piece;
        column += piece.size();
    }
    return text + "\r\n";
}

} // namespace PimManager::vCard::MadeTexts
