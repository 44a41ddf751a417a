#include "JsonStream.h"

#include "CodePoints.h"
#include "TerminalText.h"
#include "TextPieces.h"

#include <QIODevice>

namespace PimManager::vCard::Tools
{

namespace
{

QString Escaped( QStringView a_units )
{
    constexpr int s_kDigits = 4;
    constexpr int s_kHexadecimal = 16;
    QString escaped;
    for ( const QChar unit : a_units )
        escaped += QStringLiteral( "\\u%1" ).arg( unit.unicode(), s_kDigits, s_kHexadecimal, QLatin1Char( '0' ) );
    return escaped;
}

} // namespace

QString ToJsonText( QStringView a_text )
{
    QString json;
    json.reserve( static_cast<int>( a_text.size() ) );
    ForEachCodePoint( a_text,
                      [&json]( uint a_codePoint, QStringView a_units )
                      {
                          if ( a_codePoint == '"' || a_codePoint == '\\' )
                              json += QLatin1Char( '\\' ) + a_units.toString();
                          else if ( a_codePoint == '\n' )
                              json += QStringLiteral( "\\n" );
                          else if ( QChar::isSurrogate( a_codePoint ) )
                              json += QChar::ReplacementCharacter;
                          else if ( IsUnsafeOnTerminal( a_codePoint ) )
                              json += Escaped( a_units );
                          else
                              json += a_units;
                      } );
    return json;
}

JsonStream::JsonStream( QIODevice& a_device ) :
    m_device( a_device )
{
}

void JsonStream::BeginObject()
{
    Begin( '{' );
}

void JsonStream::EndObject()
{
    End( '}' );
}

void JsonStream::BeginList()
{
    Begin( '[' );
}

void JsonStream::EndList()
{
    End( ']' );
}

void JsonStream::Name( const char* a_name )
{
    BeginValue();
    m_device.write( "\"" );
    m_device.write( a_name );
    m_device.write( "\":" );
    m_needsComma = false;
}

void JsonStream::Text( const QString& a_text )
{
    BeginValue();
    m_device.write( "\"" );
    WriteEscaped( m_device, a_text, ToJsonText );
    m_device.write( "\"" );
}

void JsonStream::Number( qint64 a_number )
{
    BeginValue();
    m_device.write( QByteArray::number( a_number ) );
}

void JsonStream::Truth( bool a_isTrue )
{
    BeginValue();
    m_device.write( a_isTrue ? "true" : "false" );
}

void JsonStream::PlainText( const QByteArray& a_text )
{
    BeginValue();
    m_device.write( "\"" );
    m_device.write( a_text );
    m_device.write( "\"" );
}

void JsonStream::Member( const char* a_name, const QString& a_text )
{
    Name( a_name );
    Text( a_text );
}

void JsonStream::Member( const char* a_name, const QStringList& a_texts )
{
    Name( a_name );
    BeginList();
    for ( const QString& text : a_texts )
        Text( text );
    EndList();
}

void JsonStream::Member( const char* a_name, qint64 a_number )
{
    Name( a_name );
    Number( a_number );
}

void JsonStream::BeginValue()
{
    if ( m_needsComma )
        m_device.write( "," );
    m_needsComma = true;
}

void JsonStream::Begin( char a_bracket )
{
    BeginValue();
    m_device.putChar( a_bracket );
    m_needsComma = false;
}

void JsonStream::End( char a_bracket )
{
    m_device.putChar( a_bracket );
    m_needsComma = true;
}

} // namespace PimManager::vCard::Tools
