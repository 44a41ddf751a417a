/// \file
/// The parts of a date, a time or both.

#pragma once

#include <optional>

namespace PimManager::Contacts
{

/// Each part may be unknown.
struct DateFields
{
    std::optional<int> m_year;
    std::optional<int> m_month;
    std::optional<int> m_day;
    std::optional<int> m_hour;
    std::optional<int> m_minute;
    std::optional<int> m_second;
    std::optional<int> m_offset; ///< in minutes, positive east of Greenwich; 0 is UTC

    bool HasDate() const { return m_year || m_month || m_day; }
    bool HasTime() const { return m_hour || m_minute || m_second; }

    /// \return true if the parts make up a date-and-or-time (RFC 6350, section 4.3.4) and the day exists. 29 February
    ///         exists if the year is unknown, and a second may be 60.
    bool IsValid() const;
};

bool operator==( const DateFields& a_first, const DateFields& a_second );

} // namespace PimManager::Contacts
