#include "Contact/FieldWriter.h"

#include "Contact/NamedMediaType.h"
#include "Lines/PropertyRules.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Values/PropertyKinds.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kQuotedPrintable = ";ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8";
// The characters for which a parameter value needs quotes.
constexpr std::string_view s_kParameterDelimiters = ";:,= \t";

bool IsLost( QChar a_character )
{
    return a_character < QLatin1Char( ' ' ) && a_character != QLatin1Char( '\t' ) && a_character != QLatin1Char( '\n' );
}

/// \return the text in UTF-8 with line feeds as its only line breaks, and without other control characters.
QByteArray CleanText( const QString& a_text )
{
    QString text = a_text;
    text.replace( QStringLiteral( "\r\n" ), QStringLiteral( "\n" ) )
        .replace( QLatin1Char( '\r' ), QLatin1Char( '\n' ) );
    text.truncate( static_cast<int>( std::remove_if( text.begin(), text.end(), IsLost ) - text.begin() ) );
    return text.toUtf8();
}

void AppendHexadecimal( QByteArray& a_out, char a_byte )
{
    constexpr std::string_view s_kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<uchar>( a_byte );
    a_out.append( '=' ).append( s_kDigits[byte >> 4U] ).append( s_kDigits[byte & 0x0FU] );
}

bool NeedsEncoding( char a_byte )
{
    return !IsAsciiByte( a_byte ) || a_byte == '\n' || a_byte == '\\';
}

/// For a text in QUOTED-PRINTABLE.
void AppendEncoded( QByteArray& a_out, char a_byte, bool a_isDelimiter )
{
    if ( a_byte == '\n' )
        a_out.append( "=0D=0A" );
    else if ( a_byte == ';' && a_isDelimiter )
        a_out.append( "\\;" );
    else if ( NeedsEncoding( a_byte ) || a_byte == '=' || a_isDelimiter )
        AppendHexadecimal( a_out, a_byte );
    else
        a_out.append( a_byte );
}

/// \return true for a property whose value is a URI unless VALUE names another type.
bool IsUriProperty( PropertyId a_property )
{
    const PropertyRule* const rule = FindRule( a_property, PimContactVersion::V40 );
    return rule != nullptr && rule->m_defaultType == ValueType::Uri;
}

bool IsMediaTypeCharacter( QChar a_character )
{
    const bool isName = a_character < QChar( 0x80 ) && IsNameByte( a_character.toLatin1() );
    return isName || QStringLiteral( "/+._!#$&" ).contains( a_character );
}

/// \return the media type without characters that a `data:` URI cannot contain. Empty if it is not a media type.
QString CleanMediaType( const QString& a_mediaType )
{
    const bool isClean = std::all_of( a_mediaType.begin(), a_mediaType.end(), IsMediaTypeCharacter );
    return isClean && a_mediaType.contains( QLatin1Char( '/' ) ) ? a_mediaType : QString();
}

void AppendEscaped( QByteArray& a_out, char a_byte )
{
    if ( a_byte == '\n' )
        a_out.append( "\\n" );
    else if ( a_byte == '\\' || a_byte == ';' || a_byte == ',' )
        a_out.append( '\\' ).append( a_byte );
    else
        a_out.append( a_byte );
}

/// RFC 6868.
void AppendCaretEncoded( QByteArray& a_out, char a_byte )
{
    if ( a_byte == '\n' )
        a_out.append( "^n" );
    else if ( a_byte == '"' )
        a_out.append( "^'" );
    else if ( a_byte == '^' )
        a_out.append( "^^" );
    else
        a_out.append( a_byte );
}

} // namespace

/// Writes the texts of a value of version 2.1, which is encoded as a whole or not at all.
class FieldWriter::OldValue
{
public:
    explicit OldValue( QByteArray& a_value, bool a_isEncoded ) :
        m_value( a_value ),
        m_isEncoded( a_isEncoded )
    {
    }

    void Append( const QByteArray& a_text, char a_delimiter )
    {
        for ( const char byte : a_text )
        {
            const bool isDelimiter = a_delimiter != '\0' && byte == a_delimiter;
            if ( m_isEncoded )
                AppendEncoded( m_value, byte, isDelimiter );
            else
                m_value.append( isDelimiter ? "\\" : "" ).append( byte );
        }
        // A blank at the end of a line may be lost in transit.
        if ( m_isEncoded && m_value.endsWith( ' ' ) )
            m_value.replace( m_value.size() - 1, 1, "=20" );
    }

private:
    QByteArray& m_value;
    bool m_isEncoded;
};

FieldWriter::FieldWriter( PimContactVersion a_version, std::string_view a_name ) :
    m_version( a_version ),
    m_name( a_name ),
    m_property( PropertyOf( a_name ) )
{
}

void FieldWriter::AddParameter( const char* a_name, const QString& a_value )
{
    AddParameter( a_name, QStringList( a_value ) );
}

void FieldWriter::AddParameter( const char* a_name, const QStringList& a_values )
{
    bool isFirst = true;
    for ( const QString& text : a_values )
    {
        QByteArray value = CleanText( text );
        if ( value.isEmpty() )
            continue;
        // The escapes of values are removed from this parameter as well (RFC 6350, section 6.3.1).
        if ( IsSameWord( a_name, "LABEL" ) )
            value.replace( '\\', "\\\\" );
        if ( isFirst )
            m_parameters.append( ';' ).append( a_name ).append( '=' );
        else
            m_parameters.append( ',' );
        AppendParameterValue( value );
        isFirst = false;
    }
}

void FieldWriter::AddTypes( const QStringList& a_words )
{
    if ( !IsVersion( PimContactVersion::V21 ) )
    {
        AddParameter( "TYPE", a_words );
        return;
    }
    for ( const QString& word : a_words )
        AddParameter( "TYPE", word );
}

void FieldWriter::AppendParameterValue( const QByteArray& a_value )
{
    const bool isQuoted = ViewOf( a_value ).find_first_of( s_kParameterDelimiters ) != std::string_view::npos;
    m_parameters.append( isQuoted ? "\"" : "" );
    for ( const char byte : a_value )
    {
        if ( !IsVersion( PimContactVersion::V21 ) )
            AppendCaretEncoded( m_parameters, byte );
        else
            m_parameters.append( byte == '"' ? '\'' : ( byte == '\n' ? ' ' : byte ) );
    }
    m_parameters.append( isQuoted ? "\"" : "" );
}

void FieldWriter::SetText( const QString& a_text )
{
    SetTexts( { QStringList( a_text ) }, '\0' );
}

void FieldWriter::SetPlain( const QString& a_value )
{
    QByteArray value = CleanText( a_value );
    value.replace( '\n', ' ' );
    m_value.resize( 0 );
    SetEncoded( std::any_of( value.begin(), value.end(), NeedsEncoding ) );
    if ( IsVersion( PimContactVersion::V21 ) )
        OldValue( m_value, m_isEncoded ).Append( value, '\0' );
    else
        m_value = value.replace( '\\', "\\\\" );
}

void FieldWriter::SetSingle( const QString& a_value )
{
    if ( IsUriProperty( m_property ) )
        SetPlain( a_value );
    else if ( DelimitersOf( m_property, m_version ) == Delimiters::Commas )
        SetList( { a_value } );
    else
        SetText( a_value );
}

void FieldWriter::SetList( const QStringList& a_texts )
{
    QStringList texts = a_texts;
    texts.removeAll( QString() );
    SetTexts( { texts }, ',' );
}

void FieldWriter::SetComponents( const QVector<QStringList>& a_components )
{
    SetTexts( a_components, ';' );
}

// In 2.1, a value has only the delimiter that is passed.
void FieldWriter::SetTexts( const QVector<QStringList>& a_components, char a_delimiter )
{
    QVector<QList<QByteArray>> components;
    bool isEncoded = false;
    for ( const QStringList& texts : a_components )
    {
        components.append( QList<QByteArray>() );
        for ( const QString& text : texts )
        {
            components.last().append( CleanText( text ) );
            const QByteArray& bytes = components.last().constLast();
            isEncoded = isEncoded || std::any_of( bytes.begin(), bytes.end(), NeedsEncoding ) ||
                        ( a_delimiter == ',' && bytes.contains( ',' ) );
        }
    }
    const bool isOld = IsVersion( PimContactVersion::V21 );
    SetEncoded( isEncoded );
    m_value.resize( 0 );
    OldValue old( m_value, m_isEncoded );
    for ( int component = 0; component < components.size(); ++component )
    {
        m_value.append( component > 0 ? ";" : "" );
        bool isFirst = true;
        for ( const QByteArray& text : std::as_const( components[component] ) )
        {
            m_value.append( isFirst ? "" : "," );
            isFirst = false;
            if ( isOld )
                old.Append( text, a_delimiter );
            else
                std::for_each( text.begin(), text.end(), [this]( char a_byte ) { AppendEscaped( m_value, a_byte ); } );
        }
    }
}

void FieldWriter::SetEncoded( bool a_isEncoded )
{
    m_isEncoded = a_isEncoded && IsVersion( PimContactVersion::V21 );
}

void FieldWriter::SetBytes( const QByteArray& a_bytes, const QString& a_mediaType )
{
    const QByteArray text = a_bytes.toBase64();
    if ( IsVersion( PimContactVersion::V40 ) )
    {
        m_value = "data:" + CleanMediaType( a_mediaType ).toLatin1() + ";base64," + text;
        return;
    }
    AddParameter( "ENCODING",
                  IsVersion( PimContactVersion::V21 ) ? QStringLiteral( "BASE64" ) : QStringLiteral( "b" ) );
    AddParameter( "TYPE", MediaSubtype( a_mediaType ) );
    m_value = text;
}

void FieldWriter::AddMediaType( const QString& a_mediaType )
{
    if ( IsVersion( PimContactVersion::V40 ) )
        AddParameter( "MEDIATYPE", a_mediaType );
    else
        AddParameter( "TYPE", MediaSubtype( a_mediaType ) );
}

// For example JPEG for a picture. For any other kind of file, the whole media type.
QString FieldWriter::MediaSubtype( const QString& a_mediaType ) const
{
    const QString type = CleanMediaType( a_mediaType );
    const QString mainType = StringOf( MainTypeOf( m_property ) );
    return type.startsWith( mainType ) ? type.mid( mainType.size() ).toUpper() : type;
}

QByteArray FieldWriter::Line( const QByteArray& a_group ) const
{
    QByteArray line = a_group;
    line.append( a_group.isEmpty() ? "" : "." );
    Append( line, m_name );
    line.append( m_parameters );
    if ( m_isEncoded )
        Append( line, s_kQuotedPrintable );
    return line.append( ':' ).append( m_value );
}

} // namespace PimManager::Contacts
