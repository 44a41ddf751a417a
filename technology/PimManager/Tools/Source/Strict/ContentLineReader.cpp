#include "Strict/ContentLineReader.h"

#include "Strict/PlainText.h"

#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

const QByteArray s_kEncodedSoftBreak = QByteArrayLiteral( "=0D=0A=" );

// UTF-8, then UTF-16 in both orders.
int ByteOrderMarkLength( const QByteArray& a_bytes )
{
    for ( const char* mark : { "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF" } )
    {
        if ( a_bytes.startsWith( mark ) )
            return static_cast<int>( qstrlen( mark ) );
    }
    return 0;
}

bool IsLineBreak( char a_byte )
{
    return a_byte >= '\n' && a_byte <= '\r';
}

bool IsQuotedPrintable( const QByteArray& a_line )
{
    static const QRegularExpression s_kHead(
        QStringLiteral( R"(\A(?:[^":]|"[^"]*+")*?;[ \t]?ENCODING=[^:;]*QUOTED-PRINTABLE)" ),
        QRegularExpression::CaseInsensitiveOption );
    const QString line = QString::fromUtf8( a_line.constData(), static_cast<int>( a_line.size() ) );
    return s_kHead.match( line ).hasMatch();
}

} // namespace

ContentLineReader::ContentLineReader( const QByteArray& a_bytes ) :
    m_position( a_bytes.constData() + ByteOrderMarkLength( a_bytes ) ),
    m_end( a_bytes.constData() + a_bytes.size() )
{
    SkipBlanks();
}

bool ContentLineReader::Read( QByteArray& a_line )
{
    if ( m_position == m_end )
        return false;
    a_line.resize( 0 );
    do
        AppendLineOfFile( a_line );
    while ( IsContinued( a_line ) );
    return true;
}

void ContentLineReader::AppendLineOfFile( QByteArray& a_line )
{
    const char* const lineEnd = std::find_if( m_position, m_end, IsLineBreak );
    m_lineOfFile = QByteArray::fromRawData( m_position, static_cast<int>( lineEnd - m_position ) );
    a_line.append( m_lineOfFile.constData(), m_lineOfFile.size() );
    m_position = lineEnd;
    if ( m_end - m_position >= 2 && m_position[0] == '\r' && m_position[1] == '\n' )
        ++m_position;
    if ( m_position != m_end )
        ++m_position;
}

bool ContentLineReader::IsContinued( QByteArray& a_line )
{
    if ( m_position == m_end )
        return false;
    if ( m_lineOfFile.endsWith( s_kEncodedSoftBreak ) )
    {
        a_line.chop( s_kEncodedSoftBreak.size() );
        a_line.append( ' ' );
        SkipBlanks();
        return true;
    }
    if ( m_lineOfFile.endsWith( '=' ) )
    {
        if ( IsLineBreak( *m_position ) || !IsQuotedPrintable( a_line ) )
            return false;
        a_line.chop( 1 );
        return true;
    }
    if ( !IsBlank( *m_position ) )
        return false;
    SkipBlanks();
    return true;
}

void ContentLineReader::SkipBlanks()
{
    m_position = std::find_if_not( m_position, m_end, IsBlank );
}

} // namespace PimManager::Tools
