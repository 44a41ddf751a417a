#include "Contact/DateFields.h"

#include <QDate>

#include <array>
#include <tuple>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kMinutesOfDay = 24 * 60;
constexpr std::array s_kDaysOfMonths = { 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };

bool IsOpenOrIn( const std::optional<int>& a_part, int a_least, int a_most )
{
    return !a_part || ( *a_part >= a_least && *a_part <= a_most );
}

bool AreInRange( const DateFields& a_fields )
{
    return IsOpenOrIn( a_fields.m_year, 1, 9999 ) && IsOpenOrIn( a_fields.m_month, 1, 12 ) &&
           IsOpenOrIn( a_fields.m_hour, 0, 23 ) && IsOpenOrIn( a_fields.m_minute, 0, 59 ) &&
           IsOpenOrIn( a_fields.m_second, 0, 60 ) &&
           IsOpenOrIn( a_fields.m_offset, 1 - s_kMinutesOfDay, s_kMinutesOfDay - 1 );
}

// The month is in its range.
bool DayExists( const DateFields& a_fields )
{
    const int month = a_fields.m_month.value_or( 1 );
    const bool isShortFebruary = month == 2 && a_fields.m_year && !QDate::isLeapYear( *a_fields.m_year );
    const int days = isShortFebruary ? 28 : s_kDaysOfMonths.at( static_cast<size_t>( month - 1 ) );
    return IsOpenOrIn( a_fields.m_day, 1, days );
}

// No standard has a form for the outer two of three parts.
bool HasGap( const std::optional<int>& a_first, const std::optional<int>& a_middle, const std::optional<int>& a_last )
{
    return a_first && !a_middle && a_last;
}

bool HaveForm( const DateFields& a_fields )
{
    if ( HasGap( a_fields.m_year, a_fields.m_month, a_fields.m_day ) ||
         HasGap( a_fields.m_hour, a_fields.m_minute, a_fields.m_second ) )
        return false;
    if ( a_fields.HasDate() && a_fields.HasTime() )
        return a_fields.m_day && a_fields.m_hour;
    return a_fields.HasTime() || ( a_fields.HasDate() && !a_fields.m_offset );
}

auto AllOf( const DateFields& a_fields )
{
    return std::tie( a_fields.m_year, a_fields.m_month, a_fields.m_day, a_fields.m_hour, a_fields.m_minute,
                     a_fields.m_second, a_fields.m_offset );
}

} // namespace

bool DateFields::IsValid() const
{
    return AreInRange( *this ) && DayExists( *this ) && HaveForm( *this );
}

bool operator==( const DateFields& a_first, const DateFields& a_second )
{
    return AllOf( a_first ) == AllOf( a_second );
}

} // namespace PimManager::Contacts
