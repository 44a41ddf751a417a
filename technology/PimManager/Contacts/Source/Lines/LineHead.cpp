#include "Lines/LineHead.h"

#include "Lines/KnownNames.h"
#include "Text/Bytes.h"

#include <QtAlgorithms>

#include <algorithm>
#include <array>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace PimManager::Contacts
{

namespace
{

constexpr quint8 s_kNameByte = 0x01;
constexpr quint8 s_kBlank = 0x02;
constexpr quint8 s_kEquals = 0x04;
constexpr quint8 s_kQuote = 0x08;
constexpr quint8 s_kControl = 0x10;
constexpr quint8 s_kComma = 0x20;
// A semicolon or colon, and the end of the text.
constexpr quint8 s_kEnd = 0x40;
constexpr quint8 s_kOther = 0x80;
// Odd in a parameter, except the quotes around an element.
constexpr quint8 s_kOddByte = s_kQuote | s_kControl;

constexpr quint8 FindClass( int a_byte )
{
    switch ( a_byte )
    {
    case ' ':
    case '\t':
        return s_kBlank;
    case '=':
        return s_kEquals;
    case '"':
        return s_kQuote;
    case ',':
        return s_kComma;
    case ';':
    case ':':
        return s_kEnd;
    default:
        break;
    }
    const bool isLetter = ( a_byte >= 'A' && a_byte <= 'Z' ) || ( a_byte >= 'a' && a_byte <= 'z' );
    if ( isLetter || ( a_byte >= '0' && a_byte <= '9' ) || a_byte == '-' )
        return s_kNameByte;
    return a_byte < 0x20 || a_byte == 0x7F ? s_kControl : s_kOther;
}

constexpr std::array<quint8, 256> FindClasses()
{
    std::array<quint8, 256> classes = {};
    for ( int byte = 0; byte < 256; ++byte )
        classes[static_cast<size_t>( byte )] = FindClass( byte );
    return classes;
}

constexpr std::array<quint8, 256> s_kClasses = FindClasses();

quint8 ClassOf( char a_byte )
{
    return s_kClasses[static_cast<unsigned char>( a_byte )];
}

/// \return the first position from a_place on with a byte of another class, or the length of the text.
size_t SkipClasses( std::string_view a_text, size_t a_place, int a_classes )
{
    while ( a_place < a_text.size() && ( ClassOf( a_text[a_place] ) & a_classes ) != 0 )
        ++a_place;
    return a_place;
}

/// Finds the bytes of a text that are not name bytes, one after the other.
class DelimiterSearch
{
public:
    explicit DelimiterSearch( std::string_view a_text ) :
        m_text( a_text )
    {
    }

    /// \return the next position, or the length of the text.
    size_t Next()
    {
#ifdef __SSE2__
        for ( ; m_found == 0 && m_place + s_kVectorBytes <= m_text.size(); m_place += s_kVectorBytes )
            m_found = DelimitersIn( m_text.data() + m_place );
        if ( m_found != 0 )
        {
            const uint bit = m_found;
            m_found &= m_found - 1;
            return m_place - s_kVectorBytes + qCountTrailingZeroBits( bit | s_kBehindVector );
        }
#endif
        const size_t place = SkipClasses( m_text, m_place, s_kNameByte );
        m_place = place + 1;
        return place;
    }

private:
#ifdef __SSE2__
    static constexpr size_t s_kVectorBytes = 16;
    static constexpr uint s_kBehindVector = 1U << s_kVectorBytes;

    static __m128i VectorOf( char a_byte )
    {
        return _mm_set1_epi8( a_byte );
    }

    // 0xFF for each byte between two of ASCII, and 0 for others.
    static __m128i Between( __m128i a_bytes, char a_first, char a_last )
    {
        return _mm_and_si128( _mm_cmpgt_epi8( a_bytes, VectorOf( static_cast<char>( a_first - 1 ) ) ),
                              _mm_cmplt_epi8( a_bytes, VectorOf( static_cast<char>( a_last + 1 ) ) ) );
    }

    // A bit for each byte.
    static uint DelimitersIn( const char* a_bytes )
    {
        // Letters differ from capitals in this bit.
        constexpr char caseBit = 0x20;
        const __m128i bytes = _mm_loadu_si128( reinterpret_cast<const __m128i*>( a_bytes ) );
        const __m128i letters = Between( _mm_or_si128( bytes, VectorOf( caseBit ) ), 'a', 'z' );
        const __m128i others = _mm_or_si128( Between( bytes, '0', '9' ), _mm_cmpeq_epi8( bytes, VectorOf( '-' ) ) );
        const int names = _mm_movemask_epi8( _mm_or_si128( letters, others ) );
        return static_cast<uint>( names ) ^ ( s_kBehindVector - 1 );
    }

    // In the vector before m_place.
    uint m_found = 0;
#endif

    std::string_view m_text;
    size_t m_place = 0;
};

bool IsEndAt( std::string_view a_text, size_t a_place )
{
    return a_place == a_text.size() || ClassOf( a_text[a_place] ) == s_kEnd;
}

std::string_view Part( std::string_view a_text, size_t a_begin, size_t a_end )
{
    return std::string_view( a_text.data() + a_begin, a_end - a_begin );
}

ByteRange RangeOf( size_t a_begin, size_t a_end )
{
    return { static_cast<quint32>( a_begin ), static_cast<quint32>( a_end - a_begin ) };
}

ByteRange RangeOf( std::string_view a_line, std::string_view a_part )
{
    const auto begin = static_cast<size_t>( a_part.data() - a_line.data() );
    return RangeOf( begin, begin + a_part.size() );
}

struct Parameter
{
    /// Between two semicolons, without blanks around it.
    size_t m_begin = 0;
    /// The part before the "=", without blanks. Empty for a bare parameter.
    size_t m_nameBegin = 0;
    size_t m_nameEnd = 0;
    /// The part after the "=", without blanks; all of a bare parameter. Opening quotes that are never closed are left
    /// out here and at the start of a name.
    size_t m_valueBegin = 0;
    size_t m_valueEnd = 0;
    /// The position of the delimiter that ends it.
    size_t m_end = 0;

    bool IsBare() const { return m_nameBegin == m_nameEnd; }
};

/// \return a parameter such as `HOME` or `TYPE=HOME,WORK`, without quotes, blanks and control characters; the null
///         parameter if there is any other.
inline Parameter PlainParameterAt( std::string_view a_text, size_t a_begin )
{
    const size_t wordEnd = SkipClasses( a_text, a_begin, s_kNameByte );
    if ( wordEnd == a_begin )
        return {};
    const bool isNamed = wordEnd < a_text.size() && a_text[wordEnd] == '=';
    const size_t valueBegin = isNamed ? wordEnd + 1 : a_begin;
    const size_t end = isNamed ? SkipClasses( a_text, valueBegin, s_kNameByte | s_kOther | s_kComma | s_kEquals )
                               : SkipClasses( a_text, wordEnd, s_kNameByte | s_kOther );
    if ( !IsEndAt( a_text, end ) )
        return {};
    return { a_begin, a_begin, isNamed ? wordEnd : a_begin, valueBegin, end, end };
}

/// Reads parameters, one after the other, and each byte at most twice.
class ParameterReader
{
public:
    /// \param a_isNoQuoteClosed true if no quote that opens in the text is closed.
    explicit ParameterReader( std::string_view a_text, bool a_isNoQuoteClosed = false ) :
        m_text( a_text ),
        m_isNoQuoteClosed( a_isNoQuoteClosed )
    {
    }

    Parameter Read( size_t a_begin )
    {
        Parameter parameter = PlainParameterAt( m_text, a_begin );
        if ( parameter.m_end == 0 )
            parameter = ReadAny( a_begin );
        return parameter;
    }

    bool IsNoQuoteClosed() const { return m_isNoQuoteClosed; }
    PimContactOddities Oddities() const { return m_oddities; }

private:
    quint8 Class() const { return m_place < m_text.size() ? ClassOf( m_text[m_place] ) : s_kEnd; }
    bool IsAt( int a_classes ) const { return ( Class() & a_classes ) != 0; }

    Q_NEVER_INLINE Parameter ReadAny( size_t a_begin );
    bool ReadName( Parameter& a_parameter );
    void ReadElements( size_t a_begin, bool a_isBare );
    size_t BeginElement();
    bool SkipQuoted();

    void SkipUntil( int a_classes )
    {
        for ( Skip( ~( a_classes | s_kOddByte ) ); !IsAt( a_classes ); Skip( ~( a_classes | s_kOddByte ) ) )
        {
            m_hasOddByte = true;
            ++m_place;
        }
    }

    size_t EndOfTrimmed( size_t a_begin, size_t a_end ) const
    {
        return a_begin + TrimmedRight( Part( m_text, a_begin, a_end ) ).size();
    }

    void Skip( int a_classes ) { m_place = SkipClasses( m_text, m_place, a_classes ); }

    void Add( bool a_isFound, PimContactOddity a_oddity )
    {
        m_oddities.setFlag( a_oddity, a_isFound || m_oddities.testFlag( a_oddity ) );
    }

    std::string_view m_text;
    size_t m_place = 0;
    PimContactOddities m_oddities;
    bool m_hasOddByte = false;
    bool m_isNoQuoteClosed = false;
};

Parameter ParameterReader::ReadAny( size_t a_begin )
{
    Parameter parameter;
    m_place = a_begin;
    Skip( s_kBlank );
    parameter.m_begin = m_place;
    if ( IsAt( s_kEnd ) )
    {
        Add( true, PimContactOddity::EmptyParameter );
        parameter.m_valueBegin = parameter.m_valueEnd = parameter.m_end = m_place;
        return parameter;
    }
    parameter.m_nameBegin = parameter.m_nameEnd = parameter.m_valueBegin = BeginElement();
    if ( ReadName( parameter ) )
    {
        const size_t elementBegin = BeginElement();
        parameter.m_valueBegin = parameter.IsBare() ? parameter.m_nameBegin : elementBegin;
    }
    ReadElements( parameter.m_valueBegin, parameter.IsBare() );
    parameter.m_end = m_place;
    parameter.m_valueEnd = EndOfTrimmed( parameter.m_valueBegin, m_place );
    // One blank after the semicolon is part of the grammar.
    Add( parameter.m_begin > a_begin + 1 || IsBlank( m_text[m_place - 1] ), PimContactOddity::NameBlanks );
    return parameter;
}

/// \return true if it is after the "=".
bool ParameterReader::ReadName( Parameter& a_parameter )
{
    Skip( s_kNameByte );
    const bool isName = m_place > a_parameter.m_nameBegin;
    const size_t wordEnd = m_place;
    SkipUntil( s_kEquals | s_kQuote | s_kComma | s_kEnd );
    if ( !IsAt( s_kEquals ) )
        return false;
    a_parameter.m_nameEnd = EndOfTrimmed( a_parameter.m_nameBegin, m_place );
    Add( !isName || a_parameter.m_nameEnd != wordEnd, PimContactOddity::OddParameter );
    const bool hasBlankBefore = a_parameter.m_nameEnd != m_place++;
    Add( hasBlankBefore || IsAt( s_kBlank ), PimContactOddity::NameBlanks );
    return true;
}

void ParameterReader::ReadElements( size_t a_begin, bool a_isBare )
{
    for ( size_t begin = a_begin;; begin = BeginElement() )
    {
        SkipUntil( s_kComma | s_kEnd );
        Add( a_isBare && m_place == begin, PimContactOddity::EmptyParameter );
        if ( !IsAt( s_kComma ) )
            break;
        ++m_place;
    }
    Add( m_hasOddByte, PimContactOddity::OddParameter );
}

/// \return where the element begins: after blanks and quotes that nothing closes. A quoted element is skipped.
size_t ParameterReader::BeginElement()
{
    Skip( s_kBlank );
    const size_t begin = m_place;
    if ( !IsAt( s_kQuote ) || SkipQuoted() )
        return begin;
    Add( true, PimContactOddity::OpenQuote );
    Skip( s_kQuote | s_kBlank );
    return m_place;
}

/// Skips a quoted element and the blanks after it. If nothing closes the quote, nothing closes a later one, so the rest
/// of the text is searched in vain only once.
bool ParameterReader::SkipQuoted()
{
    if ( m_isNoQuoteClosed )
        return false;
    const size_t begin = m_place++;
    bool hasOddByte = false;
    while ( m_place < m_text.size() )
    {
        const quint8 byteClass = ClassOf( m_text[m_place++] );
        hasOddByte = hasOddByte || byteClass == s_kControl;
        if ( byteClass != s_kQuote )
            continue;
        Skip( s_kBlank );
        if ( IsAt( s_kComma | s_kEnd ) )
        {
            m_hasOddByte = m_hasOddByte || hasOddByte;
            return true;
        }
        hasOddByte = true;
    }
    m_isNoQuoteClosed = true;
    m_place = begin;
    return false;
}

std::string_view Unquoted( std::string_view a_text )
{
    const bool isQuoted = a_text.size() >= 2 && a_text.front() == '"' && a_text.back() == '"';
    return isQuoted ? a_text.substr( 1, a_text.size() - 2 ) : a_text;
}

// Most words are written in upper case, and comparing them with the capitals is faster.
bool IsWord( std::string_view a_text, std::string_view a_capitals )
{
    return a_text == a_capitals || IsSameWord( a_text, a_capitals );
}

// Without a call, so that LineHead::Of() has none for most lines.
inline bool IsBoundaryName( std::string_view a_name )
{
    const auto is = [a_name]( size_t a_place, char a_capital ) { return Upper( a_name[a_place] ) == a_capital; };
    switch ( a_name.size() )
    {
    case 3:
        return is( 0, 'E' ) && is( 1, 'N' ) && is( 2, 'D' );
    case 5:
        return is( 0, 'B' ) && is( 1, 'E' ) && is( 2, 'G' ) && is( 3, 'I' ) && is( 4, 'N' );
    default:
        return false;
    }
}

bool ContainsWord( std::string_view a_text, std::string_view a_upperCaseWord )
{
    return std::search( a_text.begin(), a_text.end(), a_upperCaseWord.begin(), a_upperCaseWord.end(),
                        []( char a_byte, char a_upper ) { return Upper( a_byte ) == a_upper; } ) != a_text.end();
}

bool ContainsBlank( std::string_view a_text )
{
    return SkipClasses( a_text, 0, ~s_kBlank ) < a_text.size();
}

bool IsPlainGroup( std::string_view a_group )
{
    return std::all_of( a_group.begin(), a_group.end(),
                        []( char a_byte )
                        { return a_byte == '.' || ( ClassOf( a_byte ) & ( s_kNameByte | s_kBlank ) ) != 0; } );
}

/// Reads a line up to its colon.
class HeadReader
{
public:
    HeadReader( std::string_view a_line, LineHead& a_head ) :
        m_line( a_line ),
        m_head( a_head )
    {
    }

    /// \param a_wordEnd after the name bytes at the start of the line.
    void Read( size_t a_wordEnd );
    /// Reads the parameters of a line whose name has been read.
    /// \param a_begin after the name.
    /// \param a_next  after the parameters that have been read and noted.
    void ReadParameters( size_t a_begin, size_t a_next );
    void NoteParameter( const Parameter& a_parameter );

private:
    size_t ReadPlainName( size_t a_wordEnd );
    Q_NEVER_INLINE size_t ReadAnyName();
    void NoteName( std::string_view a_name, std::string_view a_group, bool a_isPlainGroup );
    void NoteEncoding( PimContactEncoding a_encoding );
    void NoteEncodings( std::string_view a_value );

    std::string_view m_line;
    LineHead& m_head;
};

void HeadReader::Read( size_t a_wordEnd )
{
    size_t place = ReadPlainName( a_wordEnd );
    if ( place == 0 )
        place = ReadAnyName();
    if ( IsBoundaryName( Part( m_line, m_head.m_name.m_begin, m_head.m_name.End() ) ) )
        m_head.m_oddities |= PimContactOddity::OddName;
    ReadParameters( place, place );
}

/// Reads a name such as `TEL` or `item1.TEL`.
///
/// \return the position of the delimiter after it; 0 for any other name.
size_t HeadReader::ReadPlainName( size_t a_wordEnd )
{
    const bool hasGroup = a_wordEnd < m_line.size() && m_line[a_wordEnd] == '.';
    const size_t begin = hasGroup ? a_wordEnd + 1 : 0;
    const size_t end = hasGroup ? SkipClasses( m_line, begin, s_kNameByte ) : a_wordEnd;
    if ( end == begin || !IsEndAt( m_line, end ) )
        return 0;
    if ( hasGroup )
        m_head.m_group = RangeOf( 0, a_wordEnd );
    m_head.m_name = RangeOf( begin, end );
    return end;
}

size_t HeadReader::ReadAnyName()
{
    const std::string_view beforeColon = m_line.substr( 0, m_line.find( ':' ) );
    const std::string_view text = beforeColon.substr( 0, beforeColon.find( ';' ) );
    const size_t dot = text.rfind( '.' );
    if ( dot == std::string_view::npos )
    {
        NoteName( text, std::string_view(), true );
        return text.size();
    }
    const std::string_view group = text.substr( 0, dot );
    const std::string_view name = text.substr( dot + 1 );
    const std::string_view trimmedName = Trimmed( name );
    const bool isPlainGroup = IsPlainGroup( group );
    const bool isGroup = isPlainGroup || IsKnownName( trimmedName ) || IsExtensionName( trimmedName );
    if ( isGroup && !trimmedName.empty() )
        NoteName( name, group, isPlainGroup );
    else
        NoteName( text, std::string_view(), true );
    return text.size();
}

void HeadReader::NoteName( std::string_view a_name, std::string_view a_group, bool a_isPlainGroup )
{
    const std::string_view name = Trimmed( a_name );
    const std::string_view group = Trimmed( a_group );
    m_head.m_name = RangeOf( m_line, name );
    if ( !group.empty() )
        m_head.m_group = RangeOf( m_line, group );
    if ( !a_isPlainGroup || !IsName( name ) )
        m_head.m_oddities |= PimContactOddity::OddName;
    if ( name.size() != a_name.size() || ContainsBlank( a_group ) )
        m_head.m_oddities |= PimContactOddity::NameBlanks;
}

void HeadReader::ReadParameters( size_t a_begin, size_t a_next )
{
    ParameterReader parameters( m_line );
    size_t place = a_next;
    while ( place < m_line.size() && m_line[place] == ';' )
    {
        const Parameter parameter = parameters.Read( place + 1 );
        NoteParameter( parameter );
        place = parameter.m_end;
    }
    m_head.m_parameters = RangeOf( a_begin, place );
    m_head.m_oddities |= parameters.Oddities();
    m_head.m_hasColon = place < m_line.size();
    m_head.m_valueBegin = static_cast<quint32>( place + ( m_head.m_hasColon ? 1 : 0 ) );
}

void HeadReader::NoteParameter( const Parameter& a_parameter )
{
    const std::string_view name = Part( m_line, a_parameter.m_nameBegin, a_parameter.m_nameEnd );
    const std::string_view value = Part( m_line, a_parameter.m_valueBegin, a_parameter.m_valueEnd );
    if ( name.empty() )
    {
        if ( value.empty() )
            return;
        NoteEncoding( EncodingOf( value ) );
        m_head.m_hasWordsForParameters = m_head.m_hasWordsForParameters || ContainsBlank( value );
    }
    else if ( name.size() == 8 && IsWord( name, "ENCODING" ) )
        NoteEncodings( value );
    else if ( name.size() == 7 && IsWord( name, "CHARSET" ) && m_head.m_charset.m_begin == 0 )
        m_head.m_charset = RangeOf( m_line, Unquoted( value ) );
}

void HeadReader::NoteEncoding( PimContactEncoding a_encoding )
{
    if ( a_encoding == PimContactEncoding::None )
        return;
    if ( m_head.m_encoding == PimContactEncoding::None )
        m_head.m_encoding = a_encoding;
    else if ( m_head.m_encoding != a_encoding )
        m_head.m_oddities |= PimContactOddity::OddParameter;
}

// A list may contain encodings.
void HeadReader::NoteEncodings( std::string_view a_value )
{
    const PimContactEncoding encoding = EncodingOf( a_value );
    if ( encoding != PimContactEncoding::None )
        return NoteEncoding( encoding );
    if ( ContainsWord( a_value, "QUOTED-PRINTABLE" ) )
        NoteEncoding( PimContactEncoding::QuotedPrintable );
    if ( ContainsWord( a_value, "BASE64" ) )
        NoteEncoding( PimContactEncoding::Base64 );
}

// An encoding alone, and the parameters ENCODING and CHARSET, by their first letter.
inline bool MayTellEncoding( char a_first, bool a_isBare )
{
    const char first = Upper( a_first );
    return a_isBare ? first == 'B' || first == 'Q' || first == 'X' : first == 'E' || first == 'C';
}

// Without a call for most lines.
Q_NEVER_INLINE void NoteParameter( std::string_view a_text, const Parameter& a_parameter, LineHead& a_head )
{
    HeadReader( a_text, a_head ).NoteParameter( a_parameter );
}

// Skips parameters such as `;HOME` and `;TYPE=HOME,WORK`.
// \return the position after them.
inline size_t PassPlainParameters( std::string_view a_text, size_t a_begin, DelimiterSearch& a_delimiters,
                                   LineHead& a_head )
{
    size_t begin = a_begin;
    while ( begin < a_text.size() && a_text[begin] == ';' )
    {
        const size_t word = begin + 1;
        const size_t wordEnd = a_delimiters.Next();
        if ( wordEnd == word || wordEnd >= a_text.size() )
            return begin;
        const bool isBare = a_text[wordEnd] != '=';
        size_t end = wordEnd;
        while ( !isBare && end < a_text.size() &&
                ( ClassOf( a_text[end] ) & ( s_kOther | s_kComma | s_kEquals ) ) != 0 )
            end = a_delimiters.Next();
        if ( end >= a_text.size() || ClassOf( a_text[end] ) != s_kEnd )
            return begin;
        if ( MayTellEncoding( a_text[word], isBare ) )
            NoteParameter( a_text, { word, word, isBare ? word : wordEnd, isBare ? word : wordEnd + 1, end, end },
                           a_head );
        begin = end;
    }
    return begin;
}

// These are not inlined, so that most lines, which LineHead::Read() reads itself, do not save their registers.
Q_NEVER_INLINE LineHead AnyHeadOf( std::string_view a_line, size_t a_wordEnd )
{
    LineHead head;
    HeadReader( a_line, head ).Read( a_wordEnd );
    return head;
}

Q_NEVER_INLINE void ReadAnyParameters( std::string_view a_line, size_t a_begin, size_t a_next, LineHead& a_head )
{
    HeadReader( a_line, a_head ).ReadParameters( a_begin, a_next );
}

bool HasLower( std::string_view a_text )
{
    return std::any_of( a_text.begin(), a_text.end(), []( char a_byte ) { return a_byte >= 'a' && a_byte <= 'z'; } );
}

bool HasUpper( std::string_view a_text )
{
    return std::any_of( a_text.begin(), a_text.end(), []( char a_byte ) { return a_byte >= 'A' && a_byte <= 'Z'; } );
}

// Words before a colon: `TEL HOME` and `X-GOOGLE TALK` are names, `see you` is not.
bool MayBeOddName( std::string_view a_name )
{
    if ( a_name.empty() || a_name.find( '"' ) != std::string_view::npos )
        return false;
    if ( IsExtensionName( a_name ) )
        return true;
    const size_t blank = a_name.find_first_of( " \t" );
    if ( blank == std::string_view::npos )
        return IsNameByte( a_name.front() );
    const std::string_view first = a_name.substr( 0, blank );
    return IsKnownName( first ) && !HasLower( first );
}

LineLooks LooksWithoutColon( std::string_view a_name )
{
    const bool isName = IsKnownName( a_name ) || ( IsExtensionName( a_name ) && IsName( a_name ) );
    return isName && !HasLower( a_name ) ? LineLooks::NameOnly : LineLooks::Text;
}

} // namespace

PimContactEncoding EncodingOf( std::string_view a_word )
{
    const std::string_view word = Unquoted( a_word );
    switch ( word.size() )
    {
    case 1:
        return Upper( word.front() ) == 'B' ? PimContactEncoding::Base64 : PimContactEncoding::None;
    case 6:
        return IsWord( word, "BASE64" ) ? PimContactEncoding::Base64 : PimContactEncoding::None;
    case 15:
        return IsWord( word, "QUOTEDPRINTABLE" ) ? PimContactEncoding::QuotedPrintable : PimContactEncoding::None;
    case 16:
        return IsWord( word, "QUOTED-PRINTABLE" ) ? PimContactEncoding::QuotedPrintable : PimContactEncoding::None;
    case 18:
        return IsWord( word, "X-QUOTED-PRINTABLE" ) ? PimContactEncoding::QuotedPrintable : PimContactEncoding::None;
    default:
        return PimContactEncoding::None;
    }
}

bool LineHead::Read( std::string_view a_line )
{
    DelimiterSearch delimiters( a_line );
    const size_t wordEnd = delimiters.Next();
    const bool hasGroup = wordEnd > 0 && wordEnd < a_line.size() && a_line[wordEnd] == '.';
    const size_t nameBegin = hasGroup ? wordEnd + 1 : 0;
    const size_t nameEnd = hasGroup ? delimiters.Next() : wordEnd;
    if ( nameEnd == nameBegin || !IsEndAt( a_line, nameEnd ) || IsBoundaryName( Part( a_line, nameBegin, nameEnd ) ) )
    {
        *this = AnyHeadOf( a_line, wordEnd );
        return false;
    }
    *this = LineHead();
    if ( hasGroup )
        m_group = RangeOf( 0, wordEnd );
    m_name = RangeOf( nameBegin, nameEnd );
    const size_t colon = PassPlainParameters( a_line, nameEnd, delimiters, *this );
    if ( colon == a_line.size() || a_line[colon] == ';' )
    {
        ReadAnyParameters( a_line, nameEnd, colon, *this );
        return false;
    }
    m_parameters = RangeOf( nameEnd, colon );
    m_hasColon = true;
    m_valueBegin = static_cast<quint32>( colon + 1 );
    return !m_oddities;
}

LineLooks LooksOf( const LineHead& a_head, std::string_view a_line )
{
    const std::string_view name = a_head.m_name.In( a_line );
    if ( !a_head.m_hasColon )
        return LooksWithoutColon( name );
    if ( a_head.m_oddities.testFlag( PimContactOddity::OddName ) && !IsName( name ) )
        return MayBeOddName( name ) ? LineLooks::Property : LineLooks::Text;
    if ( IsExtensionName( name ) )
        return LineLooks::ClearlyProperty;
    // Names are written either in upper case or in lower case; "Tel: 555" is a line of a note.
    if ( IsKnownName( name ) )
        return HasLower( name ) && HasUpper( name ) ? LineLooks::Property : LineLooks::ClearlyProperty;
    return a_head.m_hasWordsForParameters ? LineLooks::Text : LineLooks::Property;
}

ParameterSplitter::ParameterSplitter( std::string_view a_parameters ) :
    m_rest( a_parameters )
{
}

bool ParameterSplitter::Next( std::string_view& a_parameter )
{
    if ( m_rest.empty() || m_rest.front() != ';' )
        return false;
    ParameterReader reader( m_rest, m_isNoQuoteClosed );
    const Parameter parameter = reader.Read( 1 );
    a_parameter = TrimmedRight( Part( m_rest, parameter.m_begin, parameter.m_end ) );
    m_isNoQuoteClosed = reader.IsNoQuoteClosed();
    m_rest.remove_prefix( parameter.m_end );
    return true;
}

} // namespace PimManager::Contacts
