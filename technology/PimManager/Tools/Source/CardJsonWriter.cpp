#include "CardJsonWriter.h"

#include "CodePoints.h"
#include "PimVCard.h"
#include "TerminalText.h"
#include "TextPieces.h"

#include <QIODevice>
#include <QStringList>

namespace PimManager::vCard::Tools
{

namespace
{

// Writes the comma between the elements of a list, each time but the first.
class Separator
{
public:
    explicit Separator( QIODevice& a_device ) :
        m_device( a_device )
    {
    }

    void Next()
    {
        if ( !m_isFirst )
            m_device.write( "," );
        m_isFirst = false;
    }

private:
    QIODevice& m_device;
    bool m_isFirst = true;
};

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

CardJsonWriter::CardJsonWriter( QIODevice& a_device, Form a_form ) :
    m_device( a_device ),
    m_isDocument( a_form == Form::Document )
{
}

void CardJsonWriter::Begin()
{
    if ( m_isDocument )
        m_device.write( "[" );
}

void CardJsonWriter::Write( const PimVCard& a_card, qint64 /*a_number*/, const QString& /*a_source*/ )
{
    if ( m_isDocument )
        m_device.write( m_isFirst ? "\n" : ",\n" );
    m_isFirst = false;
    m_device.write( R"({"properties":[)" );
    Separator separator( m_device );
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property == nullptr )
            continue;
        separator.Next();
        WriteProperty( *property );
    }
    m_device.write( m_isDocument ? "]}" : "]}\n" );
}

void CardJsonWriter::End()
{
    if ( m_isDocument )
        m_device.write( m_isFirst ? "]\n" : "\n]\n" );
}

void CardJsonWriter::WriteProperty( const PimVCardProperty& a_property )
{
    m_device.write( "{" );
    WriteMember( "group", a_property.GetGroupID() );
    m_device.write( "," );
    WriteMember( "name", a_property.GetName() );
    m_device.write( R"(,"parameters":[)" );
    WriteParameters( a_property );
    m_device.write( R"(],"values":[)" );
    Separator separator( m_device );
    const QList<QString> values = a_property.GetValues();
    for ( const QString& value : values )
    {
        separator.Next();
        WriteString( value );
    }
    m_device.write( "]}" );
}

void CardJsonWriter::WriteParameters( const PimVCardProperty& a_property )
{
    Separator separator( m_device );
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        if ( parameter == nullptr )
            continue;
        separator.Next();
        m_device.write( "{" );
        WriteMember( "name", parameter->GetName() );
        m_device.write( "," );
        WriteMember( "value", parameter->GetValue() );
        m_device.write( "}" );
    }
}

void CardJsonWriter::WriteMember( const char* a_name, const QString& a_value )
{
    m_device.write( "\"" );
    m_device.write( a_name );
    m_device.write( "\":" );
    WriteString( a_value );
}

void CardJsonWriter::WriteString( const QString& a_text )
{
    m_device.write( "\"" );
    WriteEscaped( m_device, a_text, ToJsonText );
    m_device.write( "\"" );
}

} // namespace PimManager::vCard::Tools
