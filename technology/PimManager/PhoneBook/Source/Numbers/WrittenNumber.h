/// \file
/// A telephone number as it is written.

#pragma once

#include <PimManager/Contacts/PimContactPhone.h>

#include <QStringView>
#include <QtGlobal>

#include <algorithm>
#include <array>
#include <string_view>

namespace PimManager::PhoneBook
{

/// A few ASCII characters in an object of fixed size.
template <size_t a_most>
class ShortText
{
public:
    bool IsEmpty() const { return m_size == 0; }
    bool IsFull() const { return m_size == a_most; }
    size_t Size() const { return m_size; }
    /// Adds a character if there is room.
    void Add( char a_character )
    {
        if ( !IsFull() )
            m_characters[m_size++] = a_character;
    }
    /// Adds as many characters as there is room for.
    void Add( std::string_view a_text )
    {
        const size_t size = std::min( a_text.size(), Room() );
        std::copy_n( a_text.begin(), size, m_characters.begin() + m_size );
        m_size = static_cast<uchar>( m_size + size );
    }
    /// The place after the last character, to write up to Room() characters to. Then pass their number to Grow().
    char* End() { return m_characters.data() + m_size; }
    size_t Room() const { return a_most - m_size; }
    void Grow( size_t a_size ) { m_size = static_cast<uchar>( m_size + a_size ); }
    /// Removes characters at the beginning.
    void RemoveFirst( size_t a_size )
    {
        std::copy( m_characters.begin() + a_size, m_characters.begin() + m_size, m_characters.begin() );
        m_size = static_cast<uchar>( m_size - a_size );
    }
    std::string_view View() const { return { m_characters.data(), m_size }; }

private:
    std::array<char, a_most> m_characters;
    uchar m_size = 0;
};

/// The digits of a number, and what its notation says about them.
struct WrittenNumber
{
    /// Seven bits, which NumberStore stores.
    enum Form : uchar
    {
        Plain = 0,
        /// The digits begin with a calling code: after `+`, or with a context.
        International = 1,
        /// A code of a network such as `*100#`. The digits contain its `*` and `#`.
        Code = 2,
        /// More than s_kMostDigits. The digits are the last ones.
        TooLong = 4
    };

    /// The longest number of ITU-T E.164 has 15 digits; prefixes of networks come before it.
    static constexpr size_t s_kMostDigits = 32;
    static constexpr size_t s_kMostExtensionDigits = 20;

    std::string_view Digits() const { return m_digits.View(); }
    bool Is( Form a_form ) const { return ( m_form & a_form ) != 0; }

    ShortText<2 * s_kMostDigits> m_digits;
    ShortText<s_kMostExtensionDigits> m_extension;
    uchar m_form = Plain;
};

/// Reads a number in any notation: with blanks, punctuation, brackets and digits of any script, `tel:` URIs (RFC 3966),
/// extensions, pauses, codes such as `*31#` before a number, and letters in service numbers such as 1-800-FLOWERS.
/// \return the number. Without digits if there is none. Linear in the length of the text.
WrittenNumber ReadWrittenNumber( QStringView a_text );

/// Reads the number of a contact, with its extension and its phone-context.
WrittenNumber ReadWrittenNumber( const Contacts::PimContactPhone& a_phone );

/// Replaces the extension by the digits of a text, unless it has none.
void SetExtension( WrittenNumber& a_number, QStringView a_text );

/// Adds the calling code of a phone-context (RFC 3966, section 5.1.5), such as `+49`, to a number without one. Other
/// contexts change nothing.
void SetContext( WrittenNumber& a_number, QStringView a_context );

} // namespace PimManager::PhoneBook
