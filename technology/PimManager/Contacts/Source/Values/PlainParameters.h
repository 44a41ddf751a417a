/// \file
/// The parameters of most lines: names, words and nothing that must be decoded.

#pragma once

#include <string_view>

namespace PimManager::Contacts
{

/// Reads the values of all parameters one after the other, like ParameterReader, but only of a text that AreIn()
/// accepts. It takes a tenth of the time.
class PlainParameters
{
public:
    /// \return true if a text consists of name bytes, semicolons, commas, and one "=" at most in each parameter, with a
    ///         name before it and a value after it.
    static bool AreIn( std::string_view a_parameters );

    explicit PlainParameters( std::string_view a_parameters ) :
        m_rest( a_parameters )
    {
    }

    /// \return false after the last value.
    bool Next();

    /// The name as written; empty for a bare word.
    std::string_view Name() const { return m_name; }
    /// The value. It is never empty, and is a part of the text.
    std::string_view Value() const { return m_value; }

private:
    std::string_view m_rest;
    std::string_view m_name;
    std::string_view m_value;
};

} // namespace PimManager::Contacts
