#include "Search/Keypad.h"

namespace PimManager::PhoneBook
{

namespace
{

/// The keys of the characters from a_first on, one digit for each; `-` for none.
struct Alphabet
{
    char32_t m_first;
    std::string_view m_keys;
};

constexpr Alphabet s_kLatin = { U'a', "22233344455566677778889999" };
// From alpha to omega, with the final sigma.
constexpr Alphabet s_kGreek = { 0x03B1, "2223334445556667777888999" };
// From a to ya, then from ie with grave to dzhe.
constexpr Alphabet s_kCyrillic = { 0x0430, "222233334444555566667777888899993332334444564467" };
// From alef to tav, with the final letters.
constexpr Alphabet s_kHebrew = { 0x05D0, "333222666555544449999888777" };
// From hamza to yeh.
constexpr Alphabet s_kArabic = { 0x0621, "33373732222666555544449999------8888877777" };

int KeyIn( const Alphabet& a_alphabet, char32_t a_character )
{
    const char32_t place = a_character - a_alphabet.m_first;
    if ( a_character < a_alphabet.m_first || place >= a_alphabet.m_keys.size() )
        return -1;
    const char key = a_alphabet.m_keys[place];
    return key == '-' ? -1 : key - '0';
}

int KeyOfFurther( char32_t a_character )
{
    switch ( a_character )
    {
    case 0x067E: // peh
        return 2;
    case 0x0686: // tcheh
        return 6;
    case 0x0698: // jeh
        return 5;
    case 0x06A4: // veh
    case 0x06AF: // gaf
        return 8;
    default:
        return -1;
    }
}

char32_t TakeUtf8( std::string_view& a_text )
{
    const auto byteAt = [&a_text]( size_t a_place ) { return static_cast<uchar>( a_text[a_place] ); };
    const uchar first = byteAt( 0 );
    const size_t size = first < 0xC0 ? 1U : first < 0xE0 ? 2U : first < 0xF0 ? 3U : 4U;
    char32_t character = size == 1U ? first : first & ( 0x7FU >> size );
    for ( size_t i = 1; i < size && i < a_text.size(); ++i )
        character = character << 6 | ( byteAt( i ) & 0x3FU );
    a_text.remove_prefix( size < a_text.size() ? size : a_text.size() );
    return character;
}

} // namespace

int KeyOf( char32_t a_character )
{
    if ( a_character >= U'0' && a_character <= U'9' )
        return static_cast<int>( a_character - U'0' );
    for ( const Alphabet& alphabet : { s_kLatin, s_kGreek, s_kCyrillic, s_kHebrew, s_kArabic } )
    {
        const int key = KeyIn( alphabet, a_character );
        if ( key >= 0 )
            return key;
    }
    return KeyOfFurther( a_character );
}

int TakeOtherKey( std::string_view& a_text )
{
    return KeyOf( TakeUtf8( a_text ) );
}

} // namespace PimManager::PhoneBook
