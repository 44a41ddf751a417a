#include "Writing/CleanLine.h"

#include "Contact/UriPieces.h"
#include "Lines/KnownNames.h"
#include "Lines/KnownTypes.h"
#include "Lines/ParameterTable.h"
#include "Lines/PropertyRules.h"
#include "Text/Buffer.h"
#include "Text/ByteFlags.h"
#include "Text/Bytes.h"
#include "Text/Charset.h"
#include "Text/EncodedCharset.h"
#include "Text/PlainAscii.h"
#include "Values/BinaryValue.h"
#include "Values/ParameterMemory.h"
#include "Values/ParameterReader.h"
#include "Writing/CleanText.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace PimManager::Contacts
{

namespace
{

/// \param a_line one physical line with its line ending, which may be any.
bool HasGoodEnd( std::string_view a_line )
{
    const size_t size = a_line.size();
    return size > 2 && a_line[size - 1] == '\n' && a_line[size - 2] == '\r' && a_line[size - 3] != '\r';
}

/// The same.
bool IsLong( std::string_view a_line )
{
    return a_line.size() > s_kLineLength + 2;
}

// A folded head is never copied, and 2.1 does not fold texts.
bool MayBeFolded( quint32 a_valueBegin, PimContactVersion a_version )
{
    return a_version != PimContactVersion::V21 && a_valueBegin <= s_kLineLength;
}

Cleanness OfOldFolds( PimContactFoldStyle a_style )
{
    return a_style == PimContactFoldStyle::BlankKept ? Cleanness::WithCard : Cleanness::None;
}

/// \param a_line the line with its line endings.
bool HasGoodLayout( std::string_view a_line )
{
    const char* place = a_line.data();
    const char* const end = place + a_line.size();
    while ( place != end )
    {
        const auto* const lineFeed =
            static_cast<const char*>( std::memchr( place, '\n', static_cast<size_t>( end - place ) ) );
        if ( lineFeed == nullptr || lineFeed - place < 2 || lineFeed[-1] != '\r' )
            return false;
        const auto length = static_cast<size_t>( lineFeed - place - 1 );
        if ( length > s_kLineLength || std::memchr( place, '\r', length ) != nullptr )
            return false;
        const std::string_view text( place, length );
        place = lineFeed + 1;
        if ( place == end )
            return true;
        if ( EndsInEscape( text ) )
            return false;
        const bool isCut = end - place > 1 && IsInsideCharacter( place[1] );
        if ( isCut )
            return false;
    }
    return false;
}

/// Takes the parameter at the start of a text that begins after a semicolon.
/// \param[out] a_values the part after "="; empty if there is none.
/// \return the name, or the bare word; empty if it is malformed.
std::string_view TakeParameter( std::string_view& a_rest, std::string_view& a_values )
{
    size_t place = 0;
    while ( place < a_rest.size() && IsNameByte( a_rest[place] ) )
        ++place;
    const std::string_view name = a_rest.substr( 0, place );
    a_values = std::string_view();
    if ( place < a_rest.size() && a_rest[place] == '=' )
    {
        const size_t begin = ++place;
        bool isQuoted = false;
        for ( ; place < a_rest.size() && ( isQuoted || a_rest[place] != ';' ); ++place )
            isQuoted = isQuoted != ( a_rest[place] == '"' );
        a_values = a_rest.substr( begin, place - begin );
        if ( isQuoted || a_values.empty() )
            return std::string_view();
    }
    if ( place < a_rest.size() && a_rest[place] != ';' )
        return std::string_view();
    a_rest.remove_prefix( std::min( place + 1, a_rest.size() ) );
    return name;
}

/// Takes the first value of a list. \return false if it is malformed.
bool TakeValue( std::string_view& a_rest, std::string_view& a_value )
{
    const bool isQuoted = a_rest.front() == '"';
    size_t end = isQuoted ? a_rest.find( '"', 1 ) : std::min( a_rest.find( ',' ), a_rest.size() );
    if ( end == std::string_view::npos )
        return false;
    a_value = isQuoted ? a_rest.substr( 1, end - 1 ) : a_rest.substr( 0, end );
    end += isQuoted ? 1 : 0;
    const bool isEnd = end == a_rest.size();
    if ( !isEnd && ( a_rest[end] != ',' || end + 1 == a_rest.size() ) )
        return false;
    a_rest.remove_prefix( isEnd ? end : end + 1 );
    const char* const odd = isQuoted ? "\"" : "\":= \t";
    return !a_value.empty() && a_value.find_first_of( odd ) == std::string_view::npos;
}

bool IsLegalEncoding( std::string_view a_value, PimContactVersion a_version )
{
    if ( a_version == PimContactVersion::V30 )
        return IsSameWord( a_value, "b" );
    return a_version == PimContactVersion::V21 && !IsSameWord( a_value, "b" ) && !IsSameWord( a_value, "q" );
}

bool IsLegalValue( StandardParameter a_parameter, std::string_view a_value, PimContactVersion a_version )
{
    switch ( a_parameter )
    {
    case StandardParameter::Encoding:
        return IsLegalEncoding( a_value, a_version );
    case StandardParameter::Charset:
        return a_version == PimContactVersion::V21 && Charset::Of( a_value ).IsUtf8();
    case StandardParameter::Type:
        return a_version != PimContactVersion::V40 || !IsSameWord( a_value, "pref" );
    case StandardParameter::Value:
        return a_version == PimContactVersion::V21 || ValueTypeOf( a_value, a_version ) != ValueType::Other ||
               IsExtensionName( a_value );
    default:
        return true;
    }
}

bool IsLegalBare( std::string_view a_word )
{
    const std::string_view name = NameOfBare( a_word );
    const bool isType = name == s_kTypeParameter && IsType21( a_word );
    return isType || name == s_kEncodingParameter || name == s_kValueParameter;
}

bool IsLegalParameter( std::string_view a_name, std::string_view a_values, PimContactVersion a_version )
{
    if ( a_values.empty() )
        return a_version == PimContactVersion::V21 && IsLegalBare( a_name );
    const StandardParameter parameter = StandardParameterOf( a_name );
    if ( parameter == StandardParameter::Other )
        return IsExtensionName( a_name ) || a_version == PimContactVersion::V30 ||
               ( a_version == PimContactVersion::V40 && !IsReservedParameter( a_name ) );
    if ( SectionOf( parameter, a_version ).m_number.empty() )
        return false;
    std::string_view rest = a_values;
    int count = 0;
    while ( !rest.empty() )
    {
        std::string_view value;
        if ( !TakeValue( rest, value ) || !IsLegalValue( parameter, value, a_version ) )
            return false;
        ++count;
    }
    return count == 1 || a_version != PimContactVersion::V21;
}

bool AreLegal( std::string_view a_parameters, PimContactVersion a_version )
{
    std::string_view rest = a_parameters.substr( 1 );
    while ( !rest.empty() )
    {
        std::string_view values;
        const std::string_view name = TakeParameter( rest, values );
        if ( name.empty() || !IsLegalParameter( name, values, a_version ) )
            return false;
    }
    return a_parameters.size() > 1 && a_parameters.back() != ';';
}

// Each version needs its own reader to cache its parameters.
quint32 LegalIn21( std::string_view a_parameters )
{
    return AreLegal( a_parameters, PimContactVersion::V21 ) ? 1 : 0;
}

quint32 LegalIn30( std::string_view a_parameters )
{
    return AreLegal( a_parameters, PimContactVersion::V30 ) ? 1 : 0;
}

quint32 LegalIn40( std::string_view a_parameters )
{
    return AreLegal( a_parameters, PimContactVersion::V40 ) ? 1 : 0;
}

bool IsBase64Text( std::string_view a_value )
{
    return std::all_of( a_value.begin(), a_value.end(),
                        []( char a_byte )
                        { return IsBase64Byte( a_byte ) || IsBlank( a_byte ) || IsLineEndByte( a_byte ); } );
}

bool HasValueParameter( std::string_view a_parameters )
{
    return a_parameters.find( "VALUE" ) != std::string_view::npos ||
           a_parameters.find( "value" ) != std::string_view::npos;
}

/// For a value that is not encoded. Only 4.0 has binary values without an encoding, as `data:` URIs. In 3.0 such a URI
/// needs VALUE.
bool IsCleanMedia( const IndexedLine& a_line, std::string_view a_parameters, PimContactVersion a_version )
{
    const std::string_view value = a_line.ValueRange().In( a_line.m_text );
    if ( value.empty() )
        return true;
    if ( a_version == PimContactVersion::V40 )
        return !IsBinary( a_line ) || MayBeLetterOfScheme( value.front(), 'D' );
    return ( HasValueParameter( a_parameters ) || a_version == PimContactVersion::V21 ) && !IsBinary( a_line );
}

/// True if a value has only the escapes of the standards, including those that 3.0 requires. Readers also accept `\:`.
bool HasCleanEscapes( std::string_view a_value, bool a_needsSemicolons )
{
    std::string_view rest = a_value;
    for ( ;; )
    {
        const size_t place = rest.find( '\\' );
        if ( a_needsSemicolons && rest.substr( 0, place ).find( ';' ) != std::string_view::npos )
            return false;
        if ( place == std::string_view::npos )
            return true;
        if ( rest.substr( place + 1, 1 ) == ":" )
            return false;
        rest.remove_prefix( std::min( place + 2, rest.size() ) );
    }
}

/// For a line of 3.0 or 4.0.
bool IsCleanValue( const IndexedLine& a_line, PropertyId a_property, PimContactVersion a_version, bool a_hasBackslash )
{
    const std::string_view value = a_line.ValueRange().In( a_line.m_text );
    std::string_view rest = value;
    if ( a_property == PropertyId::Email && RemoveScheme( rest, "mailto:" ) )
        return false;
    const bool needsSemicolons =
        value.find( ';' ) != std::string_view::npos &&
        HasEscapedSemicolons( a_property, a_line.m_entry.m_parameters.In( a_line.m_text ), a_version );
    if ( !needsSemicolons && !a_hasBackslash )
        return true;
    // BEGIN\:VCARD is not the start of a card.
    const bool mayBeCard = a_property == PropertyId::Agent || a_property == PropertyId::Related;
    return mayBeCard || HasCleanEscapes( value, needsSemicolons );
}

/// For a line that is not odd. A group of several names contains dots, and a group without a name is only its dot.
bool IsCleanGroup( const IndexEntry& a_entry, std::string_view a_text )
{
    if ( a_entry.m_group.m_length == 0 )
        return a_entry.m_name.m_begin == 0;
    return a_entry.m_group.In( a_text ).find( '.' ) == std::string_view::npos;
}

/// \return the number of soft line breaks; nothing if there are other joins.
std::optional<size_t> SoftBreaksOf( const IndexEntry& a_entry )
{
    size_t count = 0;
    LineJoin join;
    for ( JoinReader joins( a_entry ); joins.Next( join ); ++count )
    {
        if ( join.m_kind != PimContactJoin::SoftBreak )
            return std::nullopt;
    }
    return count;
}

int HexadecimalOf( char a_byte )
{
    if ( a_byte >= '0' && a_byte <= '9' )
        return a_byte - '0';
    return a_byte >= 'A' && a_byte <= 'F' ? a_byte - 'A' + 10 : -1;
}

} // namespace

bool AreLegalParameters( std::string_view a_parameters, PimContactVersion a_version )
{
    if ( a_parameters.empty() )
        return true;
    thread_local ParameterMemory<bool> t_legal;
    const auto reader = a_version == PimContactVersion::V21
                            ? LegalIn21
                            : ( a_version == PimContactVersion::V30 ? LegalIn30 : LegalIn40 );
    if ( const bool* const known = t_legal.Find( a_parameters, reader ) )
        return *known;
    const bool isLegal = reader( a_parameters ) != 0;
    t_legal.Remember( a_parameters, reader, isLegal );
    return isLegal;
}

bool HasEscapedSemicolons( PropertyId a_property, std::string_view a_parameters, PimContactVersion a_version )
{
    const PropertyRule* const rule =
        a_version == PimContactVersion::V30 ? FindRule( a_property, PimContactVersion::V30 ) : nullptr;
    return rule != nullptr &&
           ( rule->m_defaultType == ValueType::Text || rule->m_defaultType == ValueType::PhoneNumber ) &&
           ( rule->m_shape == ValueShape::Single || rule->m_shape == ValueShape::List ) &&
           !HasValueParameter( a_parameters );
}

Cleanness CleanLine::Of( const IndexedLine& a_line, PropertyId a_property, PimContactVersion a_version )
{
    const IndexEntry& entry = a_line.m_entry;
    const bool is21 = a_version == PimContactVersion::V21;
    const bool isEncoded = entry.m_encoding == PimContactEncoding::QuotedPrintable;
    const bool isIndented = IsBlank( a_line.m_bytes.front() );
    if ( isIndented || !entry.m_hasColon || entry.m_oddities != PimContactOddities() ||
         entry.m_charset != LineCharset::Utf8 || ( entry.m_joins.m_size > 0 && !( is21 && isEncoded ) ) ||
         ( isEncoded && !is21 ) || !IsCleanGroup( entry, a_line.m_text ) )
        return Cleanness::None;
    const std::string_view parameters = entry.m_parameters.In( a_line.m_text );
    const bool isLong = !a_line.IsContinued() && IsLong( a_line.m_bytes );
    const bool isGoodLayout = a_line.IsContinued() ? HasGoodLayout( a_line.m_bytes ) : HasGoodEnd( a_line.m_bytes );
    if ( !isGoodLayout || ( isLong && !MayBeFolded( entry.m_valueBegin, a_version ) ) ||
         !AreLegalParameters( parameters, a_version ) )
        return Cleanness::None;
    const ByteFlags bytes = ByteFlagsOf( a_line.m_bytes );
    const bool mayBeDamaged = a_line.m_card.m_record.Has( CardRecord::IsOtherCharset );
    if ( !bytes.m_isAscii && ( is21 || ( mayBeDamaged && !IsValidUtf8( a_line.m_bytes ) ) ) )
        return Cleanness::None;
    if ( bytes.m_hasDelete || ( !bytes.m_isAscii && HasOtherLineBreaks( a_line.m_bytes ) ) )
        return Cleanness::None;
    const Cleanness clean = isLong ? Cleanness::Long : Cleanness::Full;
    const bool isMedia = IsMediaProperty( a_property );
    if ( entry.m_encoding == PimContactEncoding::Base64 )
    {
        const bool isText = !isMedia && a_property != PropertyId::Other;
        return !isText && IsBase64Text( a_line.ValueRange().In( a_line.m_text ) ) ? clean : Cleanness::None;
    }
    if ( isMedia && !IsCleanMedia( a_line, parameters, a_version ) )
        return Cleanness::None;
    if ( is21 )
        return OfOldText( a_line );
    return IsCleanValue( a_line, a_property, a_version, bytes.m_hasBackslash ) ? clean : Cleanness::None;
}

Cleanness CleanLine::OfOther( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                              PimContactFoldStyle a_style, PimContactVersion a_version )
{
    const bool isLong = !a_line.m_hasFolds && IsLong( a_bytes );
    const bool isGoodLayout = a_line.m_hasFolds ? HasGoodLayout( a_bytes ) : HasGoodEnd( a_bytes );
    if ( !isGoodLayout || IsBlank( a_bytes.front() ) ||
         ( isLong && !MayBeFolded( a_line.m_parameters.End() + 1, a_version ) ) )
        return Cleanness::None;
    if ( a_version == PimContactVersion::V21 && a_line.m_hasFolds )
        return OfOldFolds( a_style );
    return isLong ? Cleanness::Long : Cleanness::Full;
}

Cleanness CleanLine::OfOldText( const IndexedLine& a_line )
{
    if ( a_line.m_entry.m_encoding == PimContactEncoding::QuotedPrintable )
        return IsCleanQuotedPrintable( a_line ) ? Cleanness::Full : Cleanness::None;
    if ( !a_line.IsContinued() )
        return Cleanness::Full;
    return OfOldFolds( a_line.m_card.m_record.FoldStyle() );
}

// Most lines are decoded like this. Their character set is UTF-8, because their parameters are legal.
bool CleanLine::IsSurelyClean( const IndexedLine& a_line, std::string_view a_value, bool a_isNamed )
{
    constexpr size_t s_kEncodedByte = 3;
    Resize( m_decoded, static_cast<int>( a_value.size() ) );
    char* const begin = m_decoded.data();
    char* out = begin;
    size_t softBreaks = 0;
    for ( std::string_view rest = a_value; !rest.empty(); )
    {
        if ( IsLineEndByte( rest.front() ) )
            return false;
        if ( rest.front() != '=' )
        {
            *out++ = rest.front();
            rest.remove_prefix( 1 );
            continue;
        }
        if ( rest.size() < s_kEncodedByte )
            return false;
        if ( rest[1] == '\r' && rest[2] == '\n' )
            ++softBreaks;
        else if ( HexadecimalOf( rest[1] ) < 0 || HexadecimalOf( rest[2] ) < 0 )
            return false;
        else
            *out++ = static_cast<char>( HexadecimalOf( rest[1] ) * 16 + HexadecimalOf( rest[2] ) );
        rest.remove_prefix( s_kEncodedByte );
    }
    const std::string_view text( begin, static_cast<size_t>( out - begin ) );
    return SoftBreaksOf( a_line.m_entry ) == softBreaks &&
           ( IsPrintableAscii( text ) || ( a_isNamed && IsCleanText( text ) && IsValidUtf8( text ) ) );
}

bool CleanLine::IsCleanQuotedPrintable( const IndexedLine& a_line )
{
    const std::string_view value = a_line.ValueRange().In( a_line.m_text );
    const std::string_view parameters = a_line.m_entry.m_parameters.In( a_line.m_text );
    const bool isNamed = parameters.find( "CHARSET" ) != std::string_view::npos ||
                         parameters.find( "charset" ) != std::string_view::npos;
    if ( IsSurelyClean( a_line, value, isNamed ) )
        return true;
    // A fold would be another line break.
    size_t lineBreaks = static_cast<size_t>( std::count( value.begin(), value.end(), '\n' ) );
    bool isWide = false;
    for ( size_t place = value.find( '=' ); place != std::string_view::npos; place = value.find( '=', place + 1 ) )
    {
        const std::string_view encoded = value.substr( place + 1, 2 );
        if ( encoded == "\r\n" )
        {
            // Programs do not agree on whether a blank after it is a part of the text.
            if ( place + 3 < value.size() && IsBlank( value[place + 3] ) )
                return false;
            --lineBreaks;
            continue;
        }
        if ( encoded.size() < 2 || HexadecimalOf( encoded[0] ) < 0 || HexadecimalOf( encoded[1] ) < 0 )
            return false;
        isWide = isWide || HexadecimalOf( encoded[0] ) >= 8;
    }
    if ( lineBreaks != 0 || !SoftBreaksOf( a_line.m_entry ) )
        return false;
    m_decoder.Decode( a_line );
    return m_decoder.Found().Problems() == PimContactDecodingProblems() && ( !isWide || isNamed ) &&
           IsCleanText( m_decoder.Escaped().m_text );
}

} // namespace PimManager::Contacts
