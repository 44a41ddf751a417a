/// \file
/// Telephone numbers of the whole world, written in many ways.

#pragma once

#include <QString>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// A number that libphonenumber knows.
struct ExampleNumber
{
    std::string m_region;
    int m_code;
    /// The digits after the calling code.
    std::string m_national;
};

/// \return an example of each region and of each type of number in it, such as mobile or free of charge.
std::vector<ExampleNumber> ExampleNumbers();

/// The ways in which a number is written.
enum class Way
{
    E164,
    International,
    National,
    Uri,
    NationalDigits,
    Dots,
    OptionalZero,
    InternationalPrefix,
    ArabicDigits,
    FullwidthDigits,
    CodeBefore,
    Brackets,
    NoBreak,
    Context,
    Description,
    WithoutPlus,
    WithoutPlusAndBlanks
};

constexpr int s_kWays = static_cast<int>( Way::WithoutPlusAndBlanks ) + 1;

const char* NameOf( Way a_way );

/// True if the calling code is written, with a `+` or with what means the same.
bool HasCountry( Way a_way );

/// True if the calling code is written without a `+`.
bool LacksPlus( Way a_way );

/// \return the number as the people of its region write it.
/// \param a_extension empty, or the digits of an extension.
QString Written( const ExampleNumber& a_number, Way a_way, const std::string& a_extension = {} );

} // namespace PimManager::PhoneBook
