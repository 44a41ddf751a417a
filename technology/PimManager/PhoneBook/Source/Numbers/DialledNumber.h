/// \file
/// A number as it is dialled from a region, to compare.

#pragma once

#include "Numbers/CallingCodes.h"
#include "Numbers/WrittenNumber.h"

#include <PimManager/PhoneBook/PimPhoneBookMatch.h>

namespace PimManager::PhoneBook
{

/// The digits of a number with its calling code, if it is known, and without trunk prefixes.
struct DialledNumber
{
    enum class Country : uchar
    {
        /// The digits are those that were written.
        Unknown,
        /// The region has a trunk prefix and the number may be one that is dialled without it. But it may also be a
        /// number of one place in the region.
        Likely,
        /// Follows from the region.
        OfRegion,
        /// The number has a calling code.
        Written
    };

    /// \param a_digits as NumberStore has them.
    /// \param a_form   flags of WrittenNumber::Form.
    DialledNumber( std::string_view a_digits, uint a_form, const Home& a_home );
    DialledNumber( const WrittenNumber& a_number, const Home& a_home ) :
        DialledNumber( a_number.Digits(), a_number.m_form, a_home )
    {
    }

    std::string_view Digits() const { return m_digits.View(); }
    /// The digits after the calling code. All digits if the country is not known.
    std::string_view NationalDigits() const { return Digits().substr( m_codeSize ); }
    /// The last digits. All if there are not as many. Equal for all numbers that are the same with any grade.
    std::string_view Ending( size_t a_digits ) const;

    // Room for the written digits, a calling code, an area code and the 9 of Argentina.
    ShortText<WrittenNumber::s_kMostDigits + 8> m_digits;
    uchar m_codeSize = 0;
    Country m_country = Country::Unknown;
    bool m_isTooLong;

private:
    void AddInternational( std::string_view a_digits );
    void AddNational( std::string_view a_digits, const Home& a_home );
    void AddNumber( int a_number );
    void AddWithCode( const CallingCode& a_code, int a_area, std::string_view a_digits );
    void AddArgentinian( std::string_view a_digits );
};

/// \return a hash value of all 32 bits.
quint32 HashOf( std::string_view a_digits );

/// \return how certain it is that two numbers are the same. Extensions are not compared.
/// \param a_endingDigits the number of last digits that must be equal for PimPhoneBookGrade::Ending.
PimPhoneBookGrade GradeOf( const DialledNumber& a_number, const DialledNumber& a_other, size_t a_endingDigits );

/// \return the grade of two numbers with extensions: None for two different extensions, at most Ending if only one
///         number has an extension.
PimPhoneBookGrade GradeWithExtensions( PimPhoneBookGrade a_grade, std::string_view a_extension,
                                       std::string_view a_other );

} // namespace PimManager::PhoneBook
