/// \file
/// A date as text.

#pragma once

#include "Contact/DateFields.h"

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// The formats of ISO 8601.
enum class DateFormat
{
    Basic,    ///< without separators, as vCard 4.0 has it: `19850412T102200Z`
    Extended, ///< with separators, as vCard 3.0 and people have it: `1985-04-12T10:22:00Z`
};

/// The text of a date. The object contains the text, so nothing is allocated.
class DateText
{
public:
    /// \param a_fields valid fields, or no known part at all.
    DateText( const DateFields& a_fields, DateFormat a_format );

    /// \return a date-and-or-time (RFC 6350, section 4.3.4), in which a time begins with `T`. Empty if no part is
    ///         known. ReadDate() reads it back. The text is valid as long as this object exists.
    std::string_view Text() const { return std::string_view( m_text.data(), m_size ); }

private:
    void AppendDate( const DateFields& a_fields );
    void AppendTime( const DateFields& a_fields );
    void AppendOffset( int a_offset );
    std::string_view Separator( std::string_view a_separator ) const;
    void Append( std::string_view a_text );
    void AppendNumber( int a_number, int a_digits );

    std::array<char, sizeof( "1985-04-12T10:22:00+00:00" )> m_text;
    size_t m_size = 0;
    DateFormat m_format;
};

} // namespace PimManager::Contacts
