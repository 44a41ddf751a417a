/// \file
/// The letters on the keys of a telephone.

#pragma once

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::PhoneBook
{

/// Up to sixteen keys from 2 to 9 in one number, which sorts as the keys do.
///
/// The first key is in the highest four bits, and zeros are after the last one. So the words that begin with some keys
/// are all numbers from KeyWord::First() to KeyWord::Last().
class KeyWord
{
public:
    /// The number of keys that are kept; further ones are left out.
    static constexpr int s_kMostKeys = 16;

    void Add( int a_key )
    {
        if ( m_shift < 0 )
            return;
        m_keys |= static_cast<quint64>( a_key ) << m_shift;
        m_shift -= s_kBits;
    }
    bool IsEmpty() const { return m_keys == 0; }

    quint64 First() const { return m_keys; }
    quint64 Last() const
    {
        return IsEmpty() ? ~quint64( 0 ) : m_keys + ( ( quint64( 1 ) << ( m_shift + s_kBits ) ) - 1 );
    }

private:
    static constexpr int s_kBits = 4;

    quint64 m_keys = 0;
    // The place of the next key; negative if there is none.
    int m_shift = s_kBits * ( s_kMostKeys - 1 );
};

/// \return the key of a folded character, from 2 to 9; for the digits 0 and 1, that digit; -1 if it is on no key.
///
/// Latin letters as in ITU-T E.161. Greek in the order of the alphabet, with three letters for each key. Cyrillic in
/// the order of the Russian alphabet, with four letters for each key; letters of other languages are with the one that
/// they are a form of. Hebrew and Arabic as on telephones of Israel and of Arabic countries.
int KeyOf( char32_t a_character );

/// Calls a function with each KeyWord of a folded word: the digits 0 and 1 divide it, and a character on no key ends
/// the part that it is in.
/// \param a_word UTF-8.
/// \param a_take returns false to end.
template <class Take>
void ForEachKeyWord( std::string_view a_word, Take a_take );

/// \return one of these, counted from 0.
inline KeyWord KeyWordAt( std::string_view a_word, quint32 a_index )
{
    KeyWord found;
    ForEachKeyWord( a_word,
                    [&]( const KeyWord& a_keys )
                    {
                        found = a_keys;
                        return a_index-- > 0;
                    } );
    return found;
}

/// Reads a character that is not ASCII, in valid UTF-8, and removes it from the text.
/// \return its key, as KeyOf() does.
int TakeOtherKey( std::string_view& a_text );

constexpr std::array<signed char, 0x80> FindKeysOfAscii()
{
    constexpr std::string_view s_kLetters = "22233344455566677778889999";
    std::array<signed char, 0x80> keys = {};
    for ( signed char& key : keys )
        key = -1;
    for ( size_t i = 0; i < s_kLetters.size(); ++i )
        keys['a' + i] = static_cast<signed char>( s_kLetters[i] - '0' );
    for ( size_t i = 0; i < 10; ++i )
        keys['0' + i] = static_cast<signed char>( i );
    return keys;
}

/// The keys of ASCII characters; a digit is its own key.
constexpr std::array<signed char, 0x80> s_kKeysOfAscii = FindKeysOfAscii();

/// The same for any character.
inline int TakeKey( std::string_view& a_text )
{
    const auto first = static_cast<uchar>( a_text.front() );
    if ( first >= s_kKeysOfAscii.size() )
        return TakeOtherKey( a_text );
    a_text.remove_prefix( 1 );
    return s_kKeysOfAscii[first];
}

template <class Take>
void ForEachKeyWord( std::string_view a_word, Take a_take )
{
    KeyWord keys;
    bool isEnded = false;
    while ( !a_word.empty() )
    {
        const int key = TakeKey( a_word );
        if ( key > 1 && !isEnded )
            keys.Add( key );
        else if ( key < 0 )
            isEnded = true;
        else if ( key <= 1 )
        {
            if ( !keys.IsEmpty() && !a_take( keys ) )
                return;
            keys = KeyWord();
            isEnded = false;
        }
    }
    if ( !keys.IsEmpty() )
        a_take( keys );
}

} // namespace PimManager::PhoneBook
