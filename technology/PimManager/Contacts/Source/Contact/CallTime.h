/// \file
/// The time of a call in the call list of a phone.

#pragma once

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// A time in the extended form of ISO 8601.
class CallTime
{
public:
    /// \param a_text such as `20240311T084512`, with hyphens and colons or without, and `Z` behind it or not.
    explicit CallTime( std::string_view a_text );

    /// \return such as `2024-03-11T08:45:12Z`; empty if the text is no such time.
    std::string_view Text() const { return std::string_view( m_text.data(), m_size ); }

private:
    std::array<char, 20> m_text;
    size_t m_size = 0;
};

} // namespace PimManager::Contacts
