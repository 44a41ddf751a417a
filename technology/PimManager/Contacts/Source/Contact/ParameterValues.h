/// \file
/// Reads values of TYPE and PREF in the forms that programs write.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \param a_value  a value of TYPE.
/// \param a_buffer receives the word if it is not a part of the value.
/// \return the word in it, without quotes, backslashes, a second "=", and the marks of labels; may be empty.
std::string_view TypeWordIn( std::string_view a_value, QByteArray& a_buffer );

/// \return true for the word PREF.
bool IsPreferredType( std::string_view a_word );

/// \param a_value a value of PREF.
/// \return from 1 (most preferred) to 100; 0 if it is not such a number.
int PreferenceIn( std::string_view a_value );

} // namespace PimManager::Contacts
