#include "Writing/VCardText.h"

#include "Contact/NamedMediaType.h"
#include "Lines/KnownNames.h"
#include "Lines/KnownTypes.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/PlainAscii.h"
#include "Text/Uri.h"
#include "Text/WhiteSpace.h"
#include "Values/ParameterReader.h"
#include "Writing/CleanText.h"
#include "Writing/Folding.h"
#include "Writing/PropertyReader.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kEncoded = ";ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:";

// Bytes that are escaped, that may be a part of a line break, or that are lost.
constexpr std::array<bool, 256> BytesOfInterest( std::string_view a_escaped )
{
    std::array<bool, 256> bytes = {};
    for ( size_t byte = 0; byte < 0x20; ++byte )
        bytes[byte] = byte != '\t';
    for ( const size_t byte : { 0x7FU, 0xC2U, 0xE2U } )
        bytes[byte] = true;
    for ( const char byte : a_escaped )
        bytes[static_cast<uchar>( byte )] = true;
    return bytes;
}

constexpr std::array<bool, 256> s_kEscapedBytes = BytesOfInterest( "\\;," );
constexpr std::array<bool, 256> s_kPlainBytes = BytesOfInterest( "\\" );

/// \return true if a value of one type needs no VALUE where another type is the usual one.
bool IsUsual( ValueType a_type, ValueType a_usual, PimContactVersion a_version )
{
    const auto isPlain = []( ValueType a_any )
    { return a_any == ValueType::Text || a_any == ValueType::PhoneNumber || a_any == ValueType::Inline; };
    if ( a_type == a_usual || ( isPlain( a_type ) && isPlain( a_usual ) ) )
        return true;
    const bool isExact = a_version == PimContactVersion::V30 && a_usual != ValueType::DateAndOrTime;
    return IsDay( a_type ) && IsDay( a_usual ) && !isExact;
}

/// \return the type that a reader assumes without VALUE.
ValueType AssumedTypeOf( const Property& a_property, PimContactVersion a_version )
{
    const PropertyRule* const rule = ShapeRuleOf( a_property.m_property, a_version );
    const ValueType usual = DefaultTypeOf( a_property.m_name, a_property.m_property, rule );
    const bool isExtension =
        IsExtensionName( a_property.m_name ) && rule != nullptr && rule->m_types.Has( ValueType::Text );
    const bool mayBeText = usual == ValueType::Uri && ( isExtension || IsMediaName( a_property.m_name ) );
    return mayBeText && !IsUri( a_property.Text() ) ? ValueType::Text : usual;
}

/// \return the name of a type in 2.1, which has few of them. A text that looks like a date or a URI needs one as well.
std::string_view OldNameOf( ValueType a_type, ValueType a_assumed )
{
    if ( a_type == ValueType::Uri )
        return "URL";
    const bool isNeeded = IsDay( a_assumed ) || a_assumed == ValueType::Uri;
    return isNeeded && a_type == ValueType::Text ? NameOf( ValueType::Text ) : std::string_view();
}

/// \return true for an AGENT that would begin a card.
bool IsOpenAgent( const Property& a_property )
{
    constexpr std::string_view s_kBegin = "BEGIN:VCARD";
    return a_property.m_property == PropertyId::Agent && IsSameWord( WithoutOuterSpace( a_property.Text() ), s_kBegin );
}

/// \return true for a type that 2.1 defines. There it needs no parameter name.
bool IsBare( const ParameterText& a_parameter )
{
    if ( !a_parameter.Is( StandardParameter::Type ) || !IsType21( a_parameter.m_value ) )
        return false;
    // Words that are not in the list may be the name of a character set.
    return !IsExtensionName( a_parameter.m_value ) ||
           ( IsName( a_parameter.m_value ) && NameOfBare( a_parameter.m_value ) == s_kTypeParameter );
}

/// \return the end of the written text.
char* WriteHexadecimal( char a_byte, char* a_out )
{
    constexpr std::string_view s_kDigits = "0123456789ABCDEF";
    const auto byte = static_cast<uchar>( a_byte );
    *a_out++ = '=';
    *a_out++ = s_kDigits[byte >> 4U];
    *a_out++ = s_kDigits[byte & 0x0FU];
    return a_out;
}

// The treatment of a byte in an encoded text.
enum class Encoding : quint8
{
    None,
    Hexadecimal,
    Blank,
    LineBreak,
    Delimiter,
};

constexpr std::array<Encoding, 256> FindEncodings()
{
    std::array<Encoding, 256> encodings = {};
    for ( size_t byte = 0x80; byte < encodings.size(); ++byte )
        encodings[byte] = Encoding::Hexadecimal;
    for ( const char byte : std::string_view( "\\=:" ) )
        encodings[static_cast<uchar>( byte )] = Encoding::Hexadecimal;
    encodings[static_cast<uchar>( ' ' )] = encodings[static_cast<uchar>( '\t' )] = Encoding::Blank;
    encodings[static_cast<uchar>( ';' )] = encodings[static_cast<uchar>( ',' )] = Encoding::Delimiter;
    encodings[static_cast<uchar>( '\n' )] = Encoding::LineBreak;
    return encodings;
}

constexpr std::array<Encoding, 256> s_kEncodings = FindEncodings();

/// \param a_delimiter the delimiter of the value. A semicolon is escaped, and a comma is encoded.
char* WriteDelimiter( char a_byte, char a_delimiter, char* a_out )
{
    if ( a_byte == ',' && a_delimiter == ',' )
        return WriteHexadecimal( a_byte, a_out );
    if ( a_byte == ';' && a_delimiter == ';' )
        *a_out++ = '\\';
    *a_out++ = a_byte;
    return a_out;
}

char DelimiterOf( ValueShape a_shape )
{
    if ( a_shape == ValueShape::Single )
        return '\0';
    return a_shape == ValueShape::List ? ',' : ';';
}

// Few texts have it.
size_t CountOf( char a_byte, std::string_view a_text )
{
    size_t count = 0;
    for ( size_t place = a_text.find( a_byte ); place != std::string_view::npos;
          place = a_text.find( a_byte, place + 1 ) )
        ++count;
    return count;
}

bool EndsInBlank( std::string_view a_text )
{
    return !a_text.empty() && IsBlank( a_text.back() );
}

} // namespace

bool NeedsTypeName( const Property& a_property, PimContactVersion a_version )
{
    const bool isEmpty = a_property.m_texts.size() < 2 && a_property.Text().empty();
    return !isEmpty && !IsUsual( a_property.m_type, AssumedTypeOf( a_property, a_version ), a_version );
}

bool IsEscapedType( ValueType a_type )
{
    switch ( a_type )
    {
    case ValueType::Text:
    case ValueType::PhoneNumber:
    case ValueType::VCard:
    case ValueType::Inline:
    case ValueType::ContentId:
    case ValueType::Other:
        return true;
    default:
        return false;
    }
}

std::string_view VersionLineOf( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return "VERSION:2.1\r\n";
    case PimContactVersion::V40:
        return "VERSION:4.0\r\n";
    default:
        return "VERSION:3.0\r\n";
    }
}

void VCardText::BeginCard()
{
    Append( m_out, "BEGIN:VCARD\r\n" );
    if ( m_version == PimContactVersion::V40 )
        Append( m_out, VersionLineOf( m_version ) );
}

void VCardText::TakeVersion()
{
    Append( m_out, VersionLineOf( m_version ) );
}

void VCardText::EndCard()
{
    Append( m_out, "END:VCARD\r\n" );
}

void VCardText::TakeWritten( std::string_view a_text )
{
    Append( m_out, a_text );
}

void VCardText::TakeValue( const LineHeadText& a_head, std::string_view a_value )
{
    ForgetLosses();
    if ( Is21() || a_head.Size() + 1 + a_value.size() <= s_kLineLength )
        return AppendAll( m_out, { a_head.m_group, a_head.m_text, ":", a_value, "\r\n" } );
    m_line.resize( 0 );
    AppendAll( m_line, { a_head.m_group, a_head.m_text, ":", a_value } );
    EndLine();
}

void VCardText::TakeOldTexts( const LineHeadText& a_head, const std::vector<ValueText>& a_texts, ValueShape a_shape )
{
    ForgetLosses();
    m_line.resize( 0 );
    AppendAll( m_line, { a_head.m_group, a_head.m_text } );
    m_oldTexts = a_texts;
    AppendOldTexts( a_shape, NeedsEncoding( a_shape ) );
}

void VCardText::TakeLong( std::string_view a_line )
{
    AppendFolded( a_line, m_out );
}

void VCardText::TakeHolder( const Property& a_property )
{
    m_line.resize( 0 );
    AppendHead( a_property );
    m_line.append( ":\r\n" );
    m_out.append( m_line );
}

void VCardText::Take( const Property& a_property )
{
    ForgetLosses();
    m_line.resize( 0 );
    AppendHead( a_property );
    if ( a_property.m_isBinary )
        TakeBytes( a_property );
    else if ( Is21() )
        TakeOldTexts( a_property );
    else
        TakeTexts( a_property );
}

void VCardText::AppendHead( const Property& a_property )
{
    if ( !a_property.m_group.empty() )
    {
        Append( m_line, a_property.m_group );
        m_line.append( '.' );
    }
    m_headBegin = static_cast<size_t>( m_line.size() );
    Append( m_line, a_property.m_name );
    if ( a_property.m_isBinary && m_version != PimContactVersion::V40 )
    {
        m_line.append( Is21() ? ";ENCODING=BASE64" : ";ENCODING=b" );
        AppendMediaType( a_property );
    }
    if ( !a_property.m_parameters.empty() )
        AppendParameters( a_property );
    AppendValueType( a_property );
    m_headLength = static_cast<size_t>( m_line.size() ) - m_headBegin;
}

void VCardText::AppendParameters( const Property& a_property )
{
    std::string_view last;
    for ( const ParameterText& parameter : a_property.m_parameters )
    {
        const auto place = m_line.size();
        const bool isMore = parameter.m_name == last && !Is21();
        m_line.append( isMore ? ',' : ';' );
        if ( !isMore && !( Is21() && IsBare( parameter ) ) )
        {
            Append( m_line, parameter.m_name );
            m_line.append( '=' );
        }
        const auto begin = m_line.size();
        AppendParameterValue( parameter );
        if ( m_line.size() == begin )
            m_line.truncate( place );
        else
            last = parameter.m_name;
    }
}

void VCardText::AppendParameterValue( const ParameterText& a_parameter )
{
    if ( IsName( a_parameter.m_value ) )
        return Append( m_line, a_parameter.m_value );
    std::string_view value = a_parameter.m_value;
    QByteArray clean;
    if ( !IsCleanText( value ) )
    {
        clean = CleanText( value );
        value = ViewOf( clean );
        m_lostParameter = a_parameter.m_name;
    }
    // A reader removes white space around a type, even in quotes.
    if ( a_parameter.Is( StandardParameter::Type ) )
        value = WithoutOuterSpace( value );
    const bool isQuoted = NeedsQuotes( value );
    m_line.append( isQuoted ? "\"" : "" );
    for ( const char byte : value )
    {
        if ( Is21() )
            AppendOldParameterByte( byte, a_parameter.m_name );
        else if ( byte == '\n' || byte == '"' || byte == '^' )
            m_line.append( '^' ).append( byte == '\n' ? 'n' : ( byte == '"' ? '\'' : '^' ) );
        else
            m_line.append( byte == '\\' && a_parameter.Is( StandardParameter::Label ) ? "\\" : "" ).append( byte );
    }
    m_line.append( isQuoted ? "\"" : "" );
}

// Parameters of 2.1 can contain neither quotes nor line breaks.
void VCardText::AppendOldParameterByte( char a_byte, std::string_view a_name )
{
    const bool isChanged = a_byte == '\n' || a_byte == '"';
    if ( isChanged )
        m_lostParameter = a_name;
    m_line.append( !isChanged ? a_byte : ( a_byte == '"' ? '\'' : ' ' ) );
}

void VCardText::AppendValueType( const Property& a_property )
{
    const bool isUri = a_property.m_isBinary || ( a_property.m_type == ValueType::Uri && !a_property.Text().empty() );
    // Some programs treat pictures of 4.0 as URIs only if VALUE says so.
    const bool isMediaUri = isUri && m_version == PimContactVersion::V40 && IsMediaName( a_property.m_name );
    if ( !isMediaUri && ( a_property.m_isBinary || !NeedsTypeName( a_property, m_version ) ) )
        return;
    const std::string_view name = Is21() ? OldNameOf( a_property.m_type, AssumedTypeOf( a_property, m_version ) )
                                         : NameOf( isMediaUri ? ValueType::Uri : a_property.m_type );
    if ( name.empty() )
        return;
    m_line.append( ";VALUE=" );
    Append( m_line, name );
}

// For example JPEG for a picture. For any other kind of file, the whole media type.
void VCardText::AppendMediaType( const Property& a_property )
{
    const std::string_view type = a_property.m_mediaType;
    if ( type.empty() )
        return;
    const std::string_view mainType = MainTypeOf( a_property.m_property );
    const bool isUsual = IsSameWord( type.substr( 0, mainType.size() ), mainType );
    const QByteArray subtype = BytesOf( isUsual ? type.substr( mainType.size() ) : type ).toUpper();
    const QByteArray value = isUsual ? subtype : BytesOf( type );
    const ParameterText parameter = { s_kTypeParameter, ViewOf( value ), StandardParameter::Type };
    m_line.append( Is21() && IsBare( parameter ) ? ";" : ";TYPE=" );
    AppendParameterValue( parameter );
}

void VCardText::TakeBytes( const Property& a_property )
{
    const QByteArray base64 =
        QByteArray::fromRawData( a_property.m_bytes.data(), static_cast<int>( a_property.m_bytes.size() ) ).toBase64();
    if ( m_version == PimContactVersion::V40 )
    {
        m_line.append( ":data:" );
        AppendPlain( a_property.m_mediaType );
        m_line.append( ";base64," ).append( base64 );
        return EndLine();
    }
    m_line.append( ':' ).append( base64 );
    EndLine();
    if ( Is21() )
        Append( m_out, "\r\n" );
}

void VCardText::TakeTexts( const Property& a_property )
{
    if ( IsOpenAgent( a_property ) )
    {
        // Otherwise it would be the start of a card.
        m_line.append( ":BEGIN\\:VCARD" );
        return EndLine();
    }
    char before = ':';
    quint32 component = 0;
    const bool isEscaped = IsEscapedType( a_property.m_type );
    for ( const ValueText& text : a_property.m_texts )
    {
        // A component without texts is empty.
        for ( ; component < text.m_component; ++component )
        {
            m_line.append( before == ':' ? ":;" : ";" );
            before = '\0';
        }
        if ( before != '\0' )
            m_line.append( before );
        if ( isEscaped )
            AppendEscaped( text.m_text );
        else
            AppendPlain( text.m_text );
        before = ',';
    }
    if ( a_property.m_texts.empty() )
        m_line.append( ':' );
    EndLine();
}

void VCardText::AppendEscaped( std::string_view a_text )
{
    AppendValue( a_text, s_kEscapedBytes );
}

// A URI, a date or a number has no delimiters. A backslash is escaped because a reader removes escapes.
void VCardText::AppendPlain( std::string_view a_text )
{
    AppendValue( a_text, s_kPlainBytes );
}

// Runs that need no check are copied at once.
void VCardText::AppendValue( std::string_view a_text, const ByteSet& a_special )
{
    std::string_view rest = a_text;
    while ( !rest.empty() )
    {
        const auto* const special = std::find_if(
            rest.begin(), rest.end(), [&a_special]( char a_byte ) { return a_special[static_cast<uchar>( a_byte )]; } );
        Append( m_line, rest.substr( 0, static_cast<size_t>( special - rest.begin() ) ) );
        rest.remove_prefix( static_cast<size_t>( special - rest.begin() ) );
        if ( !rest.empty() )
            AppendSpecial( rest );
    }
}

/// \param a_rest begins with a byte that needs a check. The byte is removed.
void VCardText::AppendSpecial( std::string_view& a_rest )
{
    TextUnits units( a_rest );
    char byte = '\0';
    const TextUnit unit = units.Next( byte );
    m_isTextLost = m_isTextLost || unit == TextUnit::Lost || ( unit == TextUnit::LineBreak && byte != '\n' );
    if ( unit == TextUnit::LineBreak )
        m_line.append( "\\n" );
    else if ( unit == TextUnit::Byte && ( byte == '\\' || byte == ';' || byte == ',' ) )
        m_line.append( '\\' ).append( byte );
    else if ( unit == TextUnit::Byte )
        m_line.append( byte );
    a_rest.remove_prefix( a_rest.size() - units.Left() );
}

void VCardText::EndLine()
{
    if ( m_isFolded )
        return AppendFolded( ViewOf( m_line ), m_out );
    m_out.append( m_line ).append( "\r\n" );
}

bool VCardText::NeedsEncoding( ValueShape a_shape ) const
{
    size_t length = static_cast<size_t>( m_line.size() ) + 1;
    const auto isOdd = []( char a_byte ) { return !IsAsciiByte( a_byte ) || a_byte == '\n'; };
    for ( const ValueText& text : m_oldTexts )
    {
        const bool isOther =
            !IsPrintableAscii( text.m_text ) && std::any_of( text.m_text.begin(), text.m_text.end(), isOdd );
        const bool hasComma = a_shape == ValueShape::List && text.m_text.find( ',' ) != std::string_view::npos;
        if ( isOther || hasComma || text.m_text.find( '\\' ) != std::string_view::npos )
            return true;
        // Each escaped semicolon takes one more.
        length += text.m_text.size() + 1;
        length += CountOf( ';', text.m_text );
    }
    // A blank at the end of a line may be lost in transit.
    return length > s_kLineLength + 1 || ( !m_oldTexts.empty() && EndsInBlank( m_oldTexts.back().m_text ) );
}

bool VCardText::IsShort( const LineHeadText& a_head, std::string_view a_value, ValueShape a_shape )
{
    size_t length = a_head.Size() + 1 + a_value.size();
    if ( a_shape == ValueShape::Single && length <= s_kLineLength )
        length += CountOf( ';', a_value );
    return length <= s_kLineLength && !EndsInBlank( a_value );
}

// Texts with line breaks other than line feeds or with control characters are copied.
void VCardText::CleanOldTexts()
{
    m_copies.clear();
    for ( ValueText& text : m_oldTexts )
    {
        if ( IsPrintableAscii( text.m_text ) || IsCleanText( text.m_text ) )
            continue;
        m_isTextLost = true;
        m_copies.push_back( CleanText( text.m_text ) );
        text.m_text = ViewOf( m_copies.back() );
    }
}

void VCardText::TakeOldTexts( const Property& a_property )
{
    m_oldTexts = a_property.m_texts;
    CleanOldTexts();
    AppendOldTexts( a_property.m_shape, NeedsEncoding( a_property.m_shape ) || IsOpenAgent( a_property ) );
}

void VCardText::AppendOldTexts( ValueShape a_shape, bool a_isEncoded )
{
    const char delimiter = DelimiterOf( a_shape );
    m_value.resize( 0 );
    quint32 component = 0;
    bool isFirst = true;
    for ( const ValueText& text : m_oldTexts )
    {
        const bool isSame = text.m_component == component;
        for ( ; component < text.m_component; ++component )
            m_value.append( ';' );
        if ( isSame && !isFirst )
            m_value.append( ',' );
        isFirst = false;
        if ( a_isEncoded )
            AppendEncoded( text.m_text, delimiter );
        else
            AppendOldText( text.m_text, delimiter );
    }
    if ( a_isEncoded )
        return EndEncodedLine();
    AppendAll( m_out, { ViewOf( m_line ), ":", ViewOf( m_value ), "\r\n" } );
}

void VCardText::AppendOldText( std::string_view a_text, char a_delimiter )
{
    if ( a_delimiter != ';' || a_text.find( ';' ) == std::string_view::npos )
        return Append( m_value, a_text );
    for ( const char byte : a_text )
        m_value.append( byte == ';' ? "\\" : "" ).append( byte );
}

void VCardText::EndEncodedLine()
{
    if ( !m_value.isEmpty() && IsBlank( m_value.back() ) )
    {
        m_value.append( m_value.back() == ' ' ? "=20" : "=09" );
        m_value.remove( m_value.size() - 4, 1 );
    }
    Append( m_line, s_kEncoded );
    AppendSoftBroken( ViewOf( m_line ), ViewOf( m_value ), m_out );
}

// No two blanks follow each other, so that no blank follows a soft line break. There are no colons, so that the text
// after a soft line break does not look like a property.
void VCardText::AppendEncoded( std::string_view a_text, char a_delimiter )
{
    constexpr int s_kLongestEncoding = 6; // of a line break
    const auto begin = m_value.size();
    m_value.resize( begin + s_kLongestEncoding * static_cast<int>( a_text.size() ) );
    char* out = m_value.data() + begin;
    bool isBehindBlank = true;
    for ( const char byte : a_text )
    {
        const Encoding encoding = s_kEncodings[static_cast<uchar>( byte )];
        if ( encoding == Encoding::None || ( encoding == Encoding::Blank && !isBehindBlank ) )
            *out++ = byte;
        else if ( encoding == Encoding::Delimiter )
            out = WriteDelimiter( byte, a_delimiter, out );
        else if ( encoding == Encoding::LineBreak )
            out = WriteHexadecimal( '\n', WriteHexadecimal( '\r', out ) );
        else
            out = WriteHexadecimal( byte, out );
        isBehindBlank = encoding == Encoding::Blank;
    }
    m_value.truncate( static_cast<int>( out - m_value.data() ) );
}

} // namespace PimManager::Contacts
