#include "JCard/ExtendedForms.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Form
{
    // A digit is 0.
    std::string_view m_basic;
    std::string_view m_delimiters;
    // The positions of the delimiters.
    std::array<size_t, 2> m_places;
};

bool HasForm( std::string_view a_text, std::string_view a_form )
{
    return a_text.size() == a_form.size() &&
           std::equal( a_text.begin(), a_text.end(), a_form.begin(),
                       []( char a_byte, char a_expected )
                       { return a_expected == '0' ? a_byte >= '0' && a_byte <= '9' : a_byte == a_expected; } );
}

constexpr std::array s_kDates = {
    Form{ "00000000", "--", { 4, 6 } },
    Form{ "--0000", "-", { 4, 0 } },
};

constexpr std::array s_kTimes = {
    Form{ "000000", "::", { 2, 4 } },
    Form{ "0000", ":", { 2, 0 } },
    Form{ "-0000", ":", { 3, 0 } },
};

template <typename Forms>
void AppendIn( const Forms& a_forms, std::string_view a_text, std::string& a_out )
{
    const auto* const form = std::find_if(
        a_forms.begin(), a_forms.end(), [a_text]( const Form& a_form ) { return HasForm( a_text, a_form.m_basic ); } );
    size_t begin = 0;
    for ( size_t i = 0; form != a_forms.end() && i < form->m_delimiters.size(); ++i )
    {
        a_out.append( a_text.substr( begin, form->m_places[i] - begin ) ) += form->m_delimiters[i];
        begin = form->m_places[i];
    }
    a_out.append( a_text.substr( begin ) );
}

// A time begins with an hour, or with "-" for each part that it does not have.
void AppendTime( std::string_view a_time, std::string& a_out )
{
    const size_t begin = std::min( a_time.find_first_not_of( '-' ), a_time.size() );
    const size_t zone = std::min( a_time.find_first_of( "+-Z", begin ), a_time.size() );
    const size_t fraction = std::min( a_time.find_first_of( ".,", begin ), zone );
    AppendIn( s_kTimes, a_time.substr( 0, fraction ), a_out );
    a_out.append( a_time.substr( fraction, zone - fraction ) );
    if ( zone == a_time.size() )
        return;
    a_out += a_time[zone];
    AppendIn( s_kTimes, a_time.substr( zone + 1 ), a_out );
}

} // namespace

void AppendExtendedForm( std::string_view a_text, bool a_isTime, std::string& a_out )
{
    const size_t middle = a_text.find( 'T' );
    const bool hasTime = middle != std::string_view::npos;
    // An offset from UTC.
    const bool isOffset = a_isTime && HasForm( a_text.substr( 0, std::min<size_t>( 1, a_text.size() ) ), "+" );
    if ( !a_isTime || hasTime )
        AppendIn( s_kDates, a_text.substr( 0, middle ), a_out );
    if ( hasTime )
        a_out += 'T';
    if ( isOffset )
        a_out += '+';
    if ( hasTime )
        AppendTime( a_text.substr( middle + 1 ), a_out );
    else if ( a_isTime )
        AppendTime( a_text.substr( isOffset ? 1 : 0 ), a_out );
}

} // namespace PimManager::Contacts
