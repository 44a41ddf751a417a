/// \file
/// The calling codes of the world, and how numbers are dialled in their countries.

#pragma once

#include <QStringView>
#include <QtGlobal>

#include <string>
#include <string_view>

namespace PimManager::PhoneBook
{

/// A calling code (ITU-T E.164) and the rules of the countries that share it.
struct CallingCode
{
    enum Rule : uchar
    {
        NoRule = 0,
        /// Numbers may begin with a zero, also after the calling code.
        KeepsZero = 1,
        /// Mobile numbers have 9 before the area code after the calling code, and 15 after the area code without it.
        Argentina = 2,
        /// Numbers of six digits have the area code 0549, which may be left out.
        SanMarino = 4
    };

    quint16 m_code;
    /// The number of digits after the calling code and the trunk prefix: the fewest, the most, and the number that
    /// shows that a number is complete if it has no trunk prefix; 0 if none does.
    uchar m_least;
    uchar m_most;
    uchar m_complete;
    uchar m_international;
    uchar m_trunk;
    uchar m_rule;

    bool HasTrunkPrefix() const { return m_trunk != 0; }
    bool Is( Rule a_rule ) const { return ( m_rule & a_rule ) != 0; }
    bool IsLength( size_t a_size ) const { return a_size >= m_least && a_size <= m_most; }
    /// The number of digits of the code.
    size_t Size() const { return m_code < 10 ? 1 : m_code < 100 ? 2 : 3; }
};

/// How the people of a region dial.
struct Home
{
    /// nullptr if the region is not known.
    const CallingCode* m_code = nullptr;
    /// In a region with one area code: the code, and the number of digits of a number without it. Otherwise 0.
    int m_area = 0;
    size_t m_localSize = 0;
};

/// \param a_region two letters (ISO 3166-1) in any letter case; may be anything.
Home HomeOf( QStringView a_region );

/// \return the calling code that digits begin with; nullptr if there is none.
const CallingCode* CallingCodeOf( std::string_view a_digits );

/// \return the digits that are usually dialled before a national number, such as `0`; may be empty.
std::string TrunkPrefixOf( const CallingCode& a_code );

/// \return the digits after the trunk prefix; all digits if they do not begin with one.
std::string_view WithoutTrunkPrefix( const CallingCode& a_code, std::string_view a_digits );

/// \return the digits after the international prefix, from the calling code on; empty if they do not begin with one.
std::string_view WithoutInternationalPrefix( const CallingCode& a_home, std::string_view a_digits );

/// The memory of all tables.
size_t CallingCodesBytes();

} // namespace PimManager::PhoneBook
