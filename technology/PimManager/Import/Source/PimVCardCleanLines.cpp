#include "PimVCardCleanLines.h"

#include "PimVCardBytes.h"
#include "PimVCardUtf8.h"

#include <array>

namespace PimManager::vCardImport
{

namespace
{

enum class Kind : unsigned char
{
    Bad,
    Plain,
    Semicolon,
    Backslash,
    Wide,
};

using Kinds = std::array<Kind, 256>;

constexpr Kinds With( Kinds a_kinds, unsigned a_first, unsigned a_last, Kind a_kind )
{
    for ( unsigned byte = a_first; byte <= a_last; ++byte )
        a_kinds[byte] = a_kind;
    return a_kinds;
}

constexpr Kinds With( Kinds a_kinds, unsigned char a_byte, Kind a_kind )
{
    a_kinds[a_byte] = a_kind;
    return a_kinds;
}

constexpr Kinds s_kPrintable =
    With( With( With( Kinds{}, ' ', '~', Kind::Plain ), '\t', Kind::Plain ), 0x80, 0xFF, Kind::Wide );
constexpr Kinds s_kValueKinds = With( With( s_kPrintable, ';', Kind::Semicolon ), '\\', Kind::Backslash );
constexpr Kinds s_kQuotedKinds = With( With( s_kPrintable, '"', Kind::Bad ), '\\', Kind::Bad );
constexpr Kinds s_kLettersAndDigits =
    With( With( With( Kinds{}, '0', '9', Kind::Plain ), 'A', 'Z', Kind::Plain ), 'a', 'z', Kind::Plain );
constexpr Kinds s_kNameKinds = With( s_kLettersAndDigits, '-', Kind::Plain );
constexpr Kinds s_kBase64Kinds =
    With( With( With( With( s_kLettersAndDigits, '+', Kind::Plain ), '/', Kind::Plain ), '=', Kind::Plain ), ';',
          Kind::Semicolon );

Kind KindOf( const Kinds& a_kinds, char a_byte )
{
    return a_kinds[static_cast<unsigned char>( a_byte )];
}

// Four at a time: a photo is thousands of bytes.
const char* EndOfPlain( const Kinds& a_kinds, const char* a_begin, const char* a_end )
{
    const auto isPlain = [&a_kinds]( char a_byte ) { return KindOf( a_kinds, a_byte ) == Kind::Plain; };
    const char* place = a_begin;
    while ( a_end - place >= 4 && isPlain( place[0] ) && isPlain( place[1] ) && isPlain( place[2] ) &&
            isPlain( place[3] ) )
        place += 4;
    while ( place != a_end && isPlain( *place ) )
        ++place;
    return place;
}

// What the component does not keep as it is: a byte order mark, and what it takes for a line break.
bool IsKept( std::string_view a_character )
{
    return a_character != "\xEF\xBB\xBF" && a_character != "\xC2\x85" && a_character != "\xE2\x80\xA8" &&
           a_character != "\xE2\x80\xA9";
}

// The length of the character beyond ASCII that is clean, else 0.
size_t CleanLength( std::string_view a_text )
{
    const auto length = static_cast<size_t>( Utf8LengthOfFirst( a_text ) );
    return IsKept( a_text.substr( 0, length ) ) ? length : 0;
}

/// Reads the left side of a line as the component's grammar says, byte by byte.
class HeadReader
{
public:
    explicit HeadReader( std::string_view a_line ) :
        m_rest( a_line )
    {
    }

    std::string_view Rest() const { return m_rest; }
    std::string_view Name() const { return m_name; }
    PimVCardEncoding Encoding() const { return m_encoding; }
    bool IsEncodingNamed() const { return m_isEncodingNamed; }

    // [group.]name
    bool TakeName()
    {
        do
        {
            m_name = TakeRun( s_kNameKinds );
            if ( m_name.empty() )
                return false;
        } while ( TakeByte( '.' ) );
        return true;
    }

    // Up to what follows the last parameter.
    bool TakeParameters()
    {
        while ( TakeByte( ';' ) )
        {
            if ( !TakeParameter() )
                return false;
        }
        return true;
    }

    void SkipBlanks() { m_rest = TrimmedLeft( m_rest ); }

    bool TakeByte( char a_byte )
    {
        if ( m_rest.empty() || m_rest.front() != a_byte )
            return false;
        m_rest.remove_prefix( 1 );
        return true;
    }

private:
    std::string_view TakeRun( const Kinds& a_kinds )
    {
        size_t length = 0;
        while ( length < m_rest.size() && KindOf( a_kinds, m_rest[length] ) == Kind::Plain )
            ++length;
        const std::string_view run = m_rest.substr( 0, length );
        m_rest.remove_prefix( length );
        return run;
    }

    bool TakeParameter()
    {
        if ( !m_rest.empty() && IsBlank( m_rest.front() ) )
            m_rest.remove_prefix( 1 );
        const std::string_view word = TakeRun( s_kNameKinds );
        if ( word.empty() )
            return false;
        const bool isNamed = TakeByte( '=' );
        const char* const value = isNamed ? m_rest.data() : word.data();
        if ( isNamed && !TakeElement() )
            return false;
        while ( TakeByte( ',' ) )
        {
            if ( !TakeElement() )
                return false;
        }
        const bool isEnded = !m_rest.empty() && ( m_rest.front() == ':' || m_rest.front() == ';' );
        return isEnded && NoteEncoding( isNamed ? word : std::string_view(),
                                        std::string_view( value, static_cast<size_t>( m_rest.data() - value ) ) );
    }

    bool TakeElement() { return TakeByte( '"' ) ? TakeQuoted() : !TakeRun( s_kNameKinds ).empty(); }

    bool TakeQuoted()
    {
        const size_t begin = m_rest.size();
        for ( ;; )
        {
            TakeRun( s_kQuotedKinds );
            if ( m_rest.empty() || KindOf( s_kQuotedKinds, m_rest.front() ) != Kind::Wide )
                break;
            const size_t length = CleanLength( m_rest );
            if ( length == 0 )
                return false;
            m_rest.remove_prefix( length );
        }
        return m_rest.size() != begin && TakeByte( '"' );
    }

    // Only plain words pass, and one of them.
    bool NoteEncoding( std::string_view a_name, std::string_view a_value )
    {
        const bool isNamed = IsSameWord( a_name, "ENCODING" );
        if ( !a_name.empty() && !isNamed )
            return true;
        PimVCardEncoding encoding = PimVCardEncoding::None;
        if ( IsSameWord( a_value, "QUOTED-PRINTABLE" ) )
            encoding = PimVCardEncoding::QuotedPrintable;
        else if ( IsSameWord( a_value, "BASE64" ) || IsSameWord( a_value, "B" ) )
            encoding = PimVCardEncoding::Base64;
        else
            return isNamed ? IsSameWord( a_value, "8BIT" ) || IsSameWord( a_value, "7BIT" )
                           : !IsSameWord( a_value, "QUOTEDPRINTABLE" );
        const bool isFirst = m_encoding == PimVCardEncoding::None;
        m_encoding = encoding;
        m_isEncodingNamed = isNamed;
        return isFirst;
    }

    std::string_view m_rest;
    std::string_view m_name;
    PimVCardEncoding m_encoding = PimVCardEncoding::None;
    bool m_isEncodingNamed = false;
};

bool IsEscapable( char a_byte )
{
    return a_byte == '\\' || a_byte == ',' || a_byte == ';' || a_byte == ':';
}

// Names by which import does more than the component.
bool IsSpecial( std::string_view a_name )
{
    return IsSameWord( a_name, "BEGIN" ) || IsSameWord( a_name, "END" ) || IsSameWord( a_name, "AGENT" );
}

} // namespace

void PimVCardCleanLines::Begin()
{
    *this = PimVCardCleanLines();
}

bool PimVCardCleanLines::Take( std::string_view a_line )
{
    if ( a_line.empty() )
    {
        m_isOpen = false;
        return MayEnd();
    }
    if ( m_isSoftBreakOpen )
    {
        // A backslash behind a soft line break is as one at the start to the component.
        m_isAtStart = true;
        return !IsBlank( a_line.front() ) && a_line.find( ':' ) == std::string_view::npos && TakeValue( a_line );
    }
    return IsBlank( a_line.front() ) ? TakeContinuation( a_line ) : TakeNewLine( a_line );
}

bool PimVCardCleanLines::TakeContinuation( std::string_view a_line )
{
    const std::string_view text = TrimmedLeft( a_line );
    return m_isOpen && !m_endsInEquals && !text.empty() && TakeValue( text );
}

bool PimVCardCleanLines::TakeNewLine( std::string_view a_line )
{
    if ( m_isEscaped )
        return false;
    HeadReader head( a_line );
    if ( !head.TakeName() || IsSpecial( head.Name() ) || !head.TakeParameters() || !head.TakeByte( ':' ) )
        return false;
    m_isOpen = true;
    m_isAtStart = true;
    m_encoding = head.Encoding();
    m_isEncodingNamed = head.IsEncodingNamed();
    return TakeValue( head.Rest() );
}

bool PimVCardCleanLines::TakeValue( std::string_view a_text )
{
    // A bare word does not change how the component reads the value.
    const bool isBase64 = m_encoding == PimVCardEncoding::Base64 && m_isEncodingNamed;
    const Kinds& kinds = isBase64 ? s_kBase64Kinds : s_kValueKinds;
    const char* const end = a_text.data() + a_text.size();
    const char* place = a_text.data();
    while ( place != end )
    {
        const char* const run = place;
        if ( m_isEscaped )
        {
            if ( !IsEscapable( *place++ ) )
                return false;
            m_isEscaped = false;
        }
        place = EndOfPlain( kinds, place, end );
        if ( place != run )
            m_isAtStart = false;
        if ( place == end )
            break;
        switch ( KindOf( kinds, *place ) )
        {
        case Kind::Semicolon:
            m_isAtStart = true;
            ++place;
            break;
        case Kind::Backslash:
            if ( m_isAtStart )
                return false;
            m_isEscaped = true;
            ++place;
            break;
        case Kind::Wide:
        {
            const size_t length = CleanLength( std::string_view( place, static_cast<size_t>( end - place ) ) );
            if ( length == 0 )
                return false;
            m_isAtStart = false;
            m_isWide = true;
            place += length;
            break;
        }
        default:
            return false;
        }
    }
    return MayEndIn( a_text );
}

// What a line that ends in "=" means to the component.
bool PimVCardCleanLines::MayEndIn( std::string_view a_text )
{
    m_endsInEquals = !a_text.empty() && a_text.back() == '=';
    const bool isQuotedPrintable = m_encoding == PimVCardEncoding::QuotedPrintable;
    m_isSoftBreakOpen = isQuotedPrintable && m_endsInEquals;
    if ( !m_endsInEquals )
        return true;
    // An encoded line break before a line end is taken for a blank, whatever the encoding.
    const std::string_view encodedBreak = "=0D=0A=";
    const bool isBreakEncoded =
        a_text.size() >= encodedBreak.size() && a_text.substr( a_text.size() - encodedBreak.size() ) == encodedBreak;
    return !isBreakEncoded && ( !isQuotedPrintable || m_isEncodingNamed );
}

bool PimVCardCleanLines::IsCleanBoundary( std::string_view a_line )
{
    HeadReader head( a_line );
    if ( !head.TakeName() || !head.TakeParameters() )
        return false;
    head.SkipBlanks();
    if ( !head.TakeByte( ':' ) || head.Encoding() != PimVCardEncoding::None )
        return false;
    head.SkipBlanks();
    return IsSameWord( head.Rest(), "VCARD" );
}

bool PimVCardCleanLines::IsCleanLine( std::string_view a_line )
{
    PimVCardCleanLines lines;
    return !a_line.empty() && !IsBlank( a_line.front() ) && lines.Take( a_line ) && lines.MayEnd();
}

} // namespace PimManager::vCardImport
