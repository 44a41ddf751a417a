/// \file
/// The numbers of a phone book.

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::PhoneBook
{

/// The numbers of all contacts in one block of memory, in the order of the book: about eight bytes for each number and
/// its digits, and four bytes for each contact.
class NumberStore
{
public:
    /// Adds a number at the end.
    /// \param a_contact the index of the contact; not smaller than that of the number before.
    /// \param a_line the id of the TEL line; not negative.
    /// \param a_digits ASCII digits, `*` and `#`, as a person would dial them: `+49 (0)30 12` is `493012`, `030 12` is
    ///                 `03012`. May be empty.
    /// \param a_form any seven bits that describe the number.
    /// \param a_extension ASCII digits; may be empty.
    /// \return its index. Amortised constant time, plus one step for each contact since that of the number before.
    int Append( int a_contact, int a_line, std::string_view a_digits, uint a_form = 0,
                std::string_view a_extension = {} );

    /// Frees the memory that is kept for more numbers.
    void Squeeze();

    /// The number of numbers.
    int Size() const { return static_cast<int>( m_begins.size() ); }

    /// \param a_number from 0 to Size() - 1. So in all functions.
    /// \return the digits without an extension. Valid until a number is added. Constant time.
    std::string_view Digits( int a_number ) const;

    bool HasExtension( int a_number ) const { return IsMarked( End( a_number ) - 1 ); }
    /// \return the digits of the extension. Constant time for one of bounded length.
    std::string Extension( int a_number ) const;
    uint Form( int a_number ) const { return Byte( m_begins[static_cast<size_t>( a_number )] ) & s_kBits; }
    int LineOf( int a_number ) const;

    /// \return the index of the contact. Logarithmic in the number of contacts.
    int ContactOf( int a_number ) const;

    /// \param a_contact an index of a contact; may be larger than those of all numbers.
    /// \return the index of the first number of the contact. If it has none, that of the next contact that has one;
    ///         Size() if there is none. The numbers of a contact end at First( a_contact + 1 ). Constant time.
    int First( int a_contact ) const
    {
        const auto contact = static_cast<size_t>( a_contact );
        return contact < m_firsts.size() ? static_cast<int>( m_firsts[contact] ) : Size();
    }

    /// \return true if the digits begin with others.
    bool BeginsWith( int a_number, std::string_view a_digits ) const
    {
        size_t place = Begin( a_number ) + 1;
        while ( IsMarked( place ) )
            ++place;
        return m_bytes.size() - place >= a_digits.size() &&
               std::equal( a_digits.begin(), a_digits.end(), m_bytes.data() + place );
    }

    /// \param a_contact as in First().
    /// \return the digits of all numbers of the contact, and other bytes between them. Constant time.
    std::string_view Block( int a_contact ) const
    {
        const size_t begin = BeginOfBlock( First( a_contact ) );
        return std::string_view( m_bytes ).substr( begin, BeginOfBlock( First( a_contact + 1 ) ) - begin );
    }

    /// \return true for a byte of a block that is in no number.
    static bool IsBetweenNumbers( char a_byte ) { return ( static_cast<uchar>( a_byte ) & s_kMark ) != 0; }

    /// The memory in bytes.
    size_t Bytes() const;

private:
    static constexpr uint s_kMark = 0x80;
    static constexpr uint s_kBits = 0x7F;
    static constexpr uint s_kBitsOfByte = 7;

    uint Byte( size_t a_place ) const { return static_cast<uchar>( m_bytes[a_place] ); }
    bool IsMarked( size_t a_place ) const { return ( Byte( a_place ) & s_kMark ) != 0; }
    static char Marked( uint a_bits ) { return static_cast<char>( ( a_bits & s_kBits ) | s_kMark ); }
    void AddBytes( uint a_line, uint a_form, std::string_view a_digits, std::string_view a_extension );
    size_t Begin( int a_number ) const { return m_begins[static_cast<size_t>( a_number )]; }
    size_t BeginOfBlock( int a_number ) const { return a_number < Size() ? Begin( a_number ) : m_bytes.size(); }
    size_t End( int a_number ) const;
    /// The place of the first digit.
    size_t BeginOfDigits( int a_number ) const;
    /// The place after the last digit, where the extension begins.
    size_t EndOfDigits( int a_number ) const;

    // For each number: its form, its line with seven bits in each byte, the lowest first, its digits and its extension.
    // All bytes but those of the digits are marked.
    std::string m_bytes;
    std::vector<quint32> m_begins;
    // For each contact: its first number.
    std::vector<quint32> m_firsts;
};

} // namespace PimManager::PhoneBook
