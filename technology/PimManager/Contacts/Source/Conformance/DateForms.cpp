#include "Conformance/DateForms.h"

#include "Conformance/ValueForms.h"
#include "Contact/DateParser.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

// In the patterns, "0" is any digit.

constexpr std::array s_kDates40 = { "00000000"sv, "0000-00"sv, "0000"sv, "--0000"sv, "--00"sv, "---00"sv };
constexpr std::array s_kDatesBeforeTime40 = { "00000000"sv, "--0000"sv, "---00"sv };
constexpr std::array s_kDatesOfTimestamps40 = { "00000000"sv };
constexpr std::array s_kTimes40 = { "000000"sv, "0000"sv, "00"sv, "-0000"sv, "-00"sv, "--00"sv };
constexpr std::array s_kTimesBehindDate40 = { "000000"sv, "0000"sv, "00"sv };
constexpr std::array s_kTimesOfTimestamps40 = { "000000"sv };
constexpr std::array s_kOffsets40 = { "+0000"sv, "-0000"sv, "+00"sv, "-00"sv };

constexpr std::array s_kDates30 = { "00000000"sv, "0000-00-00"sv, "0000-0000"sv, "000000-00"sv };
constexpr std::array s_kTimes30 = { "000000"sv, "00:00:00"sv, "00:0000"sv, "0000:00"sv };
constexpr std::array s_kOffsetsOfTimes30 = { "+0000"sv, "-0000"sv, "+00:00"sv, "-00:00"sv };
constexpr std::array s_kOffsets30 = { "+00:00"sv, "-00:00"sv };
constexpr std::array s_kOffsets21 = { "+0000"sv, "-0000"sv, "+00:00"sv, "-00:00"sv, "+00"sv, "-00"sv };

bool HasPattern( std::string_view a_text, std::string_view a_pattern )
{
    return std::equal( a_text.begin(), a_text.end(), a_pattern.begin(), a_pattern.end(),
                       []( char a_byte, char a_mark )
                       { return a_mark == '0' ? IsDigit( a_byte ) : Upper( a_byte ) == a_mark; } );
}

template <size_t s_kSize>
bool HasPattern( std::string_view a_text, const std::array<std::string_view, s_kSize>& a_patterns )
{
    return std::any_of( a_patterns.begin(), a_patterns.end(),
                        [a_text]( std::string_view a_pattern ) { return HasPattern( a_text, a_pattern ); } );
}

/// The parts of a date and a time.
struct Moment
{
    explicit Moment( std::string_view a_text ) :
        m_designator( std::min( a_text.find_first_of( "Tt" ), a_text.size() ) ),
        m_date( a_text.substr( 0, m_designator ) ),
        m_hasTime( m_designator < a_text.size() )
    {
        if ( m_hasTime )
            SetTime( a_text.substr( m_designator + 1 ) );
    }

    /// A sign after a digit begins the offset. One at the start means an unknown hour.
    void SetTime( std::string_view a_text )
    {
        const size_t digit = std::min( a_text.find_first_of( "0123456789" ), a_text.size() );
        const size_t zone = std::min( a_text.find_first_of( "+-Zz", digit ), a_text.size() );
        m_time = a_text.substr( 0, zone );
        m_zone = a_text.substr( zone );
    }

    /// Removes the fraction of a second.
    bool TakeFraction()
    {
        const size_t mark = m_time.find_first_of( ",." );
        const bool isValid = mark == std::string_view::npos || AreDigits( m_time.substr( mark + 1 ) );
        m_time = m_time.substr( 0, mark );
        return isValid;
    }

    template <size_t s_kSize>
    bool HasZone( const std::array<std::string_view, s_kSize>& a_offsets ) const
    {
        return m_zone.empty() || HasPattern( m_zone, "Z" ) || HasPattern( m_zone, a_offsets );
    }

    size_t m_designator;
    std::string_view m_date;
    bool m_hasTime;
    std::string_view m_time;
    std::string_view m_zone;
};

Moment TimeOnly( std::string_view a_text )
{
    Moment moment( std::string_view{} );
    moment.m_hasTime = true;
    moment.SetTime( a_text );
    return moment;
}

template <size_t s_kDates, size_t s_kTimes>
bool HasForm40( const Moment& a_moment, const std::array<std::string_view, s_kDates>& a_dates,
                const std::array<std::string_view, s_kTimes>& a_times )
{
    return a_moment.m_hasTime && HasPattern( a_moment.m_date, a_dates ) && HasPattern( a_moment.m_time, a_times ) &&
           a_moment.HasZone( s_kOffsets40 );
}

bool IsTime40( const Moment& a_moment )
{
    return a_moment.m_hasTime && a_moment.m_date.empty() && HasPattern( a_moment.m_time, s_kTimes40 ) &&
           a_moment.HasZone( s_kOffsets40 );
}

bool IsDate40( const Moment& a_moment )
{
    return !a_moment.m_hasTime && HasPattern( a_moment.m_date, s_kDates40 );
}

bool HasForm40( std::string_view a_text, ValueType a_type )
{
    const Moment moment( a_text );
    switch ( a_type )
    {
    case ValueType::Date:
        return IsDate40( moment );
    case ValueType::Time:
        return IsTime40( TimeOnly( a_text ) );
    case ValueType::DateTime:
        return HasForm40( moment, s_kDatesBeforeTime40, s_kTimesBehindDate40 );
    case ValueType::Timestamp:
        return HasForm40( moment, s_kDatesOfTimestamps40, s_kTimesOfTimestamps40 );
    default:
        return IsDate40( moment ) || IsTime40( moment ) ||
               HasForm40( moment, s_kDatesBeforeTime40, s_kTimesBehindDate40 );
    }
}

bool HasForm30( std::string_view a_text, ValueType a_type )
{
    Moment moment = a_type == ValueType::Time ? TimeOnly( a_text ) : Moment( a_text );
    const bool hasDate = a_type != ValueType::Time;
    const bool hasTime = a_type != ValueType::Date;
    if ( moment.m_hasTime != hasTime || ( hasDate && !HasPattern( moment.m_date, s_kDates30 ) ) )
        return false;
    return !hasTime || ( moment.TakeFraction() && HasPattern( moment.m_time, s_kTimes30 ) &&
                         moment.HasZone( s_kOffsetsOfTimes30 ) );
}

/// \return false if the month or the day is zero, which DateParser reads as unknown.
bool AreDateDigitsRead( std::string_view a_text, const DateFields& a_fields )
{
    const std::string_view date = Moment( a_text ).m_date;
    const auto digits = static_cast<size_t>( std::count_if( date.begin(), date.end(), IsDigit ) );
    const size_t hyphens = std::min( date.find_first_not_of( '-' ), date.size() );
    const bool hasYear = hyphens == 0 && digits >= 4;
    const bool hasMonth = hasYear ? digits > 4 : hyphens == 2;
    const bool hasDay = hasYear ? digits > 6 : digits > 2 || hyphens == 3;
    return ( !hasMonth || a_fields.m_month ) && ( !hasDay || a_fields.m_day );
}

} // namespace

bool IsDateOfType( std::string_view a_text, ValueType a_type, PimContactVersion a_version )
{
    const bool hasForm =
        a_version == PimContactVersion::V40 ? HasForm40( a_text, a_type ) : HasForm30( a_text, a_type );
    if ( !hasForm )
        return false;
    const bool isTime = a_type == ValueType::Time;
    const std::optional<DateFields> fields = ReadDate( a_text, isTime ? DateHint::Time : DateHint::Any );
    return fields && ( isTime || AreDateDigitsRead( a_text, *fields ) );
}

bool IsOffset( std::string_view a_text, PimContactVersion a_version )
{
    const bool hasForm = a_version == PimContactVersion::V40   ? HasPattern( a_text, s_kOffsets40 )
                         : a_version == PimContactVersion::V30 ? HasPattern( a_text, s_kOffsets30 )
                                                               : HasPattern( a_text, s_kOffsets21 );
    return hasForm && ReadOffset( a_text ).has_value();
}

} // namespace PimManager::Contacts
