#include "Text/Iso2022Jp.h"

#include "Text/Bytes.h"
#include "Text/Utf8Encoding.h"

#include <algorithm>
#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr char s_kEscape = '\x1B';
constexpr char32_t s_kFirstKatakana = 0xFF61;

enum class Shift
{
    Ascii,
    Katakana,
    Kanji,           // JIS X 0208
    AdditionalKanji, // JIS X 0212
};

struct EscapeSequence
{
    std::string_view m_bytes;
    Shift m_shift;
};

constexpr std::array s_kEscapeSequences = {
    EscapeSequence{ "\x1B(B"sv, Shift::Ascii },    EscapeSequence{ "\x1B(J"sv, Shift::Ascii },
    EscapeSequence{ "\x1B$B"sv, Shift::Kanji },    EscapeSequence{ "\x1B$@"sv, Shift::Kanji },
    EscapeSequence{ "\x1B$(B"sv, Shift::Kanji },   EscapeSequence{ "\x1B$(@"sv, Shift::Kanji },
    EscapeSequence{ "\x1B(I"sv, Shift::Katakana }, EscapeSequence{ "\x1B$(D"sv, Shift::AdditionalKanji },
};

// A byte of a character after an escape sequence. All others below 0x80 are blanks and control characters.
bool IsGraphic( char a_byte )
{
    return a_byte > ' ' && a_byte < '\x7F';
}

char Raised( char a_byte )
{
    return static_cast<char>( static_cast<uchar>( a_byte ) | 0x80U );
}

class Decoding
{
public:
    Decoding( std::string_view a_bytes, SystemCodec& a_codec, DecodedText& a_text ) :
        m_bytes( a_bytes ),
        m_codec( a_codec ),
        m_text( a_text )
    {
    }

    void Run()
    {
        while ( m_place < m_bytes.size() )
            m_place += Step();
    }

private:
    // Each of these functions returns the number of bytes that it has read.
    size_t Step();
    size_t TakeEscape();
    size_t TakeKatakana();
    size_t TakeKanji();
    size_t TakeMalformed( size_t a_bytes );

    std::string_view Rest() const { return m_bytes.substr( m_place ); }

    std::string_view m_bytes;
    SystemCodec& m_codec;
    DecodedText& m_text;
    size_t m_place = 0;
    Shift m_shift = Shift::Ascii;
};

size_t Decoding::Step()
{
    const char byte = m_bytes[m_place];
    if ( byte == s_kEscape )
        return TakeEscape();
    if ( !IsAsciiByte( byte ) )
        return TakeMalformed( 1 );
    if ( m_shift != Shift::Ascii && IsGraphic( byte ) )
        return m_shift == Shift::Katakana ? TakeKatakana() : TakeKanji();
    m_text.AppendAscii( Rest().substr( 0, 1 ), m_place );
    return 1;
}

size_t Decoding::TakeEscape()
{
    const auto* const found =
        std::find_if( s_kEscapeSequences.begin(), s_kEscapeSequences.end(),
                      [this]( const EscapeSequence& a_sequence )
                      { return Rest().substr( 0, a_sequence.m_bytes.size() ) == a_sequence.m_bytes; } );
    if ( found == s_kEscapeSequences.end() )
        return TakeMalformed( 1 );
    m_shift = found->m_shift;
    return found->m_bytes.size();
}

size_t Decoding::TakeKatakana()
{
    constexpr char first = '\x21';
    constexpr char last = '\x5F';
    const char byte = m_bytes[m_place];
    if ( byte > last )
        return TakeMalformed( 1 );
    m_text.Append( s_kFirstKatakana + static_cast<char32_t>( byte - first ), m_place );
    return 1;
}

size_t Decoding::TakeKanji()
{
    constexpr std::string_view additional = "\x8F";
    const std::string_view pair = Rest().substr( 0, 2 );
    if ( pair.size() < 2 || !IsGraphic( pair[1] ) )
        return TakeMalformed( 1 );
    std::string character( m_shift == Shift::AdditionalKanji ? additional : ""sv );
    character += { Raised( pair[0] ), Raised( pair[1] ) };
    return m_codec.DecodeFirst( character, m_place, m_text ) == 0 ? TakeMalformed( 2 ) : 2;
}

size_t Decoding::TakeMalformed( size_t a_bytes )
{
    for ( size_t place = m_place; place < m_place + a_bytes; ++place )
        m_text.AppendMalformed( place );
    return a_bytes;
}

} // namespace

void DecodeIso2022Jp( std::string_view a_bytes, SystemCodec& a_codec, DecodedText& a_text )
{
    Decoding( a_bytes, a_codec, a_text ).Run();
}

} // namespace PimManager::Contacts
