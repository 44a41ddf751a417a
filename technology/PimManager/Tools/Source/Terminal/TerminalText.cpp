#include "Terminal/TerminalText.h"

#include "Terminal/CodePoints.h"

namespace PimManager::Tools
{

namespace
{

constexpr uint s_kZeroWidthNonJoiner = 0x200C;
constexpr uint s_kZeroWidthJoiner = 0x200D;

QString Numbered( const QString& a_form, uint a_codePoint, int a_width )
{
    constexpr int s_kHexadecimal = 16;
    return a_form.arg( a_codePoint, a_width, s_kHexadecimal, QLatin1Char( '0' ) );
}

QString Escaped( uint a_codePoint )
{
    switch ( a_codePoint )
    {
    case '\n':
        return QStringLiteral( "\\n" );
    case '\r':
        return QStringLiteral( "\\r" );
    case '\t':
        return QStringLiteral( "\\t" );
    default:
        break;
    }
    if ( a_codePoint <= 0xFF )
        return Numbered( QStringLiteral( "\\x%1" ), a_codePoint, 2 );
    if ( a_codePoint <= 0xFFFF )
        return Numbered( QStringLiteral( "\\u%1" ), a_codePoint, 4 );
    return Numbered( QStringLiteral( "\\u{%1}" ), a_codePoint, 1 );
}

QString ToTerminal( QStringView a_text, bool a_isValue )
{
    QString safe;
    safe.reserve( static_cast<int>( a_text.size() ) );
    ForEachCodePoint( a_text,
                      [&safe, a_isValue]( uint a_codePoint, QStringView a_units )
                      {
                          if ( IsUnsafeOnTerminal( a_codePoint ) )
                          {
                              safe += Escaped( a_codePoint );
                              return;
                          }
                          if ( a_isValue && ( a_codePoint == '\\' || a_codePoint == ';' ) )
                              safe += QLatin1Char( '\\' );
                          safe += a_units;
                      } );
    return safe;
}

} // namespace

bool IsUnsafeOnTerminal( uint a_codePoint )
{
    switch ( QChar::category( a_codePoint ) )
    {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return a_codePoint != s_kZeroWidthNonJoiner && a_codePoint != s_kZeroWidthJoiner;
    default:
        return QChar::isNonCharacter( a_codePoint );
    }
}

QString ToTerminalText( QStringView a_text )
{
    return ToTerminal( a_text, false );
}

QString ToTerminalValue( QStringView a_text )
{
    return ToTerminal( a_text, true );
}

QString ToShownFileName( const QByteArray& a_fileName )
{
    if ( a_fileName.isEmpty() )
        return QStringLiteral( "\"\"" );
    return ToTerminalText( QString::fromUtf8( a_fileName ) );
}

} // namespace PimManager::Tools
