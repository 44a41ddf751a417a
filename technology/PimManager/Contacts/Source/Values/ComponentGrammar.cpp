#include "Values/ComponentGrammar.h"

#include "Cards/LineView.h"
#include "Text/Bytes.h"
#include "Text/EncodedCharset.h"
#include "Values/ParameterReader.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// The length that the component can read on every processor.
constexpr size_t s_kLongestText = 100'000'000;

constexpr std::string_view s_kLineEnd = "\r\n";
constexpr std::string_view s_kEncodedLineBreak = "=0D=0A=";
// U+FEFF, U+0085, U+2028 and U+2029.
constexpr std::array s_kUnkeptCharacters = { s_kByteOrderMark, "\xC2\x85"sv, "\xE2\x80\xA8"sv, "\xE2\x80\xA9"sv };

bool HasPlainControls( std::string_view a_text )
{
    constexpr char s_kDelete = '\x7F';
    for ( size_t place = 0; place < a_text.size(); ++place )
    {
        const char byte = a_text[place];
        if ( byte == '\r' && a_text.substr( place, s_kLineEnd.size() ) == s_kLineEnd )
            ++place;
        else if ( IsControlByte( byte ) || byte == s_kDelete )
            return false;
    }
    return true;
}

bool HasPlainCharacters( std::string_view a_text )
{
    const auto isUnkept = [a_text]( std::string_view a_character )
    { return a_text.find( a_character ) != std::string_view::npos; };
    return HasPlainControls( a_text ) && IsValidUtf8( a_text ) &&
           std::none_of( s_kUnkeptCharacters.begin(), s_kUnkeptCharacters.end(), isUnkept );
}

bool IsPlainBoundary( std::string_view a_line )
{
    const std::string_view text = WithoutLineEnd( a_line );
    const size_t colon = std::min( text.find( ':' ), text.size() );
    const std::string_view name = TrimmedRight( text.substr( 0, colon ) );
    return ( IsSameWord( name, "BEGIN" ) || IsSameWord( name, "END" ) ) && colon < text.size() &&
           IsSameWord( TrimmedLeft( text.substr( colon + 1 ) ), "VCARD" );
}

bool IsPlainGroup( std::string_view a_group )
{
    std::string_view rest = a_group;
    for ( size_t dot = rest.find( '.' ); dot != std::string_view::npos; dot = rest.find( '.' ) )
    {
        if ( !IsName( rest.substr( 0, dot ) ) )
            return false;
        rest.remove_prefix( dot + 1 );
    }
    return IsName( rest );
}

/// The parameters of a line as the component reads them.
class ParameterGrammar
{
public:
    /// \param a_parameters from the first semicolon up to the colon.
    explicit ParameterGrammar( std::string_view a_parameters ) :
        m_rest( a_parameters )
    {
    }

    /// \return true if the component reads them all.
    bool Read()
    {
        while ( TakeByte( ';' ) )
        {
            if ( !TakeParameter() )
                return false;
        }
        return m_rest.empty();
    }

    /// The encoding according to ENCODING. The component does not treat a bare word as an encoding.
    PimContactEncoding Encoding() const { return m_encoding; }

private:
    bool TakeByte( char a_byte )
    {
        if ( m_rest.empty() || m_rest.front() != a_byte )
            return false;
        m_rest.remove_prefix( 1 );
        return true;
    }

    std::string_view TakeName()
    {
        const auto* const end = std::find_if_not( m_rest.begin(), m_rest.end(), IsNameByte );
        const std::string_view name = m_rest.substr( 0, static_cast<size_t>( end - m_rest.begin() ) );
        m_rest.remove_prefix( name.size() );
        return name;
    }

    bool TakeParameter()
    {
        if ( !m_rest.empty() && IsBlank( m_rest.front() ) )
            m_rest.remove_prefix( 1 );
        const std::string_view name = TakeName();
        if ( name.empty() )
            return false;
        const bool isNamed = TakeByte( '=' );
        const std::string_view values = m_rest;
        if ( isNamed && !TakeElement() )
            return false;
        while ( TakeByte( ',' ) )
        {
            if ( !TakeElement() )
                return false;
        }
        return !isNamed || !IsSameWord( name, s_kEncodingParameter ) ||
               TakeEncoding( values.substr( 0, values.size() - m_rest.size() ) );
    }

    bool TakeElement() { return TakeByte( '"' ) ? TakeQuoted() : !TakeName().empty(); }

    // After the quote.
    bool TakeQuoted()
    {
        const size_t length = std::min( m_rest.find_first_of( "\"\\" ), m_rest.size() );
        m_rest.remove_prefix( length );
        return length > 0 && TakeByte( '"' );
    }

    bool TakeEncoding( std::string_view a_value )
    {
        if ( IsSameWord( a_value, "7BIT" ) || IsSameWord( a_value, "8BIT" ) )
            return true;
        const bool isFirst = m_encoding == PimContactEncoding::None;
        if ( IsSameWord( a_value, "QUOTED-PRINTABLE" ) )
            m_encoding = PimContactEncoding::QuotedPrintable;
        else if ( IsSameWord( a_value, "BASE64" ) || IsSameWord( a_value, "B" ) )
            m_encoding = PimContactEncoding::Base64;
        else
            return false;
        return isFirst;
    }

    std::string_view m_rest;
    PimContactEncoding m_encoding = PimContactEncoding::None;
};

bool HasPlainEscapes( std::string_view a_value )
{
    constexpr std::string_view s_kEscapable = "\\,;:";
    size_t end = 0;
    for ( size_t place = a_value.find( '\\' ); place != std::string_view::npos; place = a_value.find( '\\', end ) )
    {
        const bool beginsComponent = place == 0 || ( a_value[place - 1] == ';' && place != end );
        const bool isLast = place + 1 == a_value.size();
        if ( beginsComponent || isLast || s_kEscapable.find( a_value[place + 1] ) == std::string_view::npos )
            return false;
        end = place + 2;
    }
    return true;
}

bool IsBase64List( std::string_view a_value )
{
    return std::all_of( a_value.begin(), a_value.end(),
                        []( char a_byte ) { return a_byte == ';' || IsBase64Byte( a_byte ); } );
}

/// \param a_value the value with its continuation lines joined.
bool IsPlainValue( std::string_view a_value, PimContactEncoding a_encoding )
{
    const bool isSoftBreakOpen = a_encoding == PimContactEncoding::QuotedPrintable
                                     ? EndsWith( a_value, "=" )
                                     : EndsWith( a_value, s_kEncodedLineBreak );
    if ( isSoftBreakOpen )
        return false;
    return a_encoding == PimContactEncoding::Base64 ? IsBase64List( a_value ) : HasPlainEscapes( a_value );
}

// A backslash would be an ordinary character to the component on either side of the break.
bool IsPlainSoftBreak( std::string_view a_before, std::string_view a_behind )
{
    constexpr std::string_view s_kUnwanted = " \t\r\\";
    return !EndsWith( a_before, s_kEncodedLineBreak ) && !EndsWith( a_before, "\\=" ) && !a_behind.empty() &&
           s_kUnwanted.find( a_behind.front() ) == std::string_view::npos;
}

bool IsPlainFold( std::string_view a_behind )
{
    return a_behind.size() > 1 && IsBlank( a_behind[0] ) && !IsBlank( a_behind[1] ) && a_behind[1] != '\r';
}

bool HasPlainBreaks( const IndexedLine& a_line, PimContactEncoding a_encoding )
{
    const std::string_view text = a_line.m_text;
    const bool areFoldsPlain = a_line.m_card.m_record.FoldStyle() == PimContactFoldStyle::BlankRemoved;
    for ( size_t place = text.find( s_kLineEnd ); place != std::string_view::npos;
          place = text.find( s_kLineEnd, place + s_kLineEnd.size() ) )
    {
        const std::string_view before = text.substr( 0, place );
        const std::string_view behind = text.substr( place + s_kLineEnd.size() );
        const bool maySoftBreak =
            a_encoding == PimContactEncoding::QuotedPrintable && place > a_line.m_entry.m_valueBegin;
        const bool isPlain = EndsWith( before, "=" ) ? maySoftBreak && IsPlainSoftBreak( before, behind )
                                                     : areFoldsPlain && IsPlainFold( behind );
        if ( !isPlain )
            return false;
    }
    return true;
}

bool IsPlainLine( const IndexedLine& a_line )
{
    const IndexEntry& entry = a_line.m_entry;
    if ( static_cast<int>( entry.AllOddities() ) != 0 || entry.m_charset != LineCharset::Utf8 )
        return false;
    const auto part = [&a_line]( ByteRange a_range )
    { return Unfolded( a_line.m_text, a_line.m_entry, a_line.m_card.m_record.FoldStyle(), a_range ); };
    const QByteArray group = part( entry.m_group );
    if ( ( !group.isEmpty() && !IsPlainGroup( ViewOf( group ) ) ) || !IsName( ViewOf( part( entry.m_name ) ) ) )
        return false;
    const QByteArray parameters = part( entry.m_parameters );
    ParameterGrammar grammar( ViewOf( parameters ) );
    return grammar.Read() && HasPlainBreaks( a_line, grammar.Encoding() ) &&
           IsPlainValue( ViewOf( part( a_line.ValueRange() ) ), grammar.Encoding() );
}

bool IsPlainPart( const IndexedLine& a_part )
{
    switch ( a_part.m_entry.m_kind )
    {
    case EntryKind::Line:
        return IsPlainLine( a_part );
    case EntryKind::Boundary:
        return IsPlainBoundary( a_part.m_bytes );
    case EntryKind::Blank:
        return std::none_of( a_part.m_bytes.begin(), a_part.m_bytes.end(), IsBlank );
    default:
        return false;
    }
}

} // namespace

bool IsReadByComponent( const PimContactCard& a_card )
{
    const std::string_view bytes = PimContactCardPrivate::BytesOf( a_card );
    if ( !a_card.HasBegin() || !a_card.HasEnd() || bytes.size() > s_kLongestText || !EndsWith( bytes, s_kLineEnd ) ||
         !HasPlainCharacters( bytes ) )
        return false;
    LineCursor cursor( a_card );
    while ( cursor.NextPart() )
    {
        if ( !IsPlainPart( cursor.Line() ) )
            return false;
    }
    return true;
}

} // namespace PimManager::Contacts
