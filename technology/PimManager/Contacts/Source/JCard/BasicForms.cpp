#include "JCard/BasicForms.h"

#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

// \return true if the text has the form, where 0 is any digit.
bool HasForm( std::string_view a_text, std::string_view a_form )
{
    return a_text.size() == a_form.size() &&
           std::equal( a_text.begin(), a_text.end(), a_form.begin(),
                       []( char a_byte, char a_expected )
                       { return a_expected == '0' ? IsDigit( a_byte ) : a_byte == a_expected; } );
}

bool IsDate( std::string_view a_text )
{
    return std::all_of( a_text.begin(), a_text.end(),
                        []( char a_byte ) { return IsDigit( a_byte ) || a_byte == '-'; } );
}

bool IsTime( std::string_view a_text )
{
    constexpr std::string_view s_kOthers = ":-+.,Z";
    return std::all_of( a_text.begin(), a_text.end(),
                        [s_kOthers]( char a_byte )
                        { return IsDigit( a_byte ) || s_kOthers.find( a_byte ) != std::string_view::npos; } );
}

void AppendDate( std::string_view a_date, std::string& a_out )
{
    if ( HasForm( a_date, "0000-00-00" ) )
        a_out.append( a_date, 0, 4 ).append( a_date, 5, 2 ).append( a_date, 8, 2 );
    else if ( HasForm( a_date, "--00-00" ) )
        a_out.append( a_date, 0, 4 ).append( a_date, 5, 2 );
    else
        a_out.append( a_date );
}

void AppendTime( std::string_view a_time, std::string& a_out )
{
    std::remove_copy( a_time.begin(), a_time.end(), std::back_inserter( a_out ), ':' );
}

} // namespace

bool AppendBasicForm( std::string_view a_text, bool a_isTime, std::string& a_out )
{
    const size_t middle = a_text.find( 'T' );
    const bool hasTime = middle != std::string_view::npos;
    const std::string_view date = a_isTime && !hasTime ? std::string_view() : a_text.substr( 0, middle );
    const std::string_view time = hasTime ? a_text.substr( middle + 1 ) : a_isTime ? a_text : std::string_view();
    if ( a_text.empty() || !IsDate( date ) || !IsTime( time ) )
        return false;
    AppendDate( date, a_out );
    if ( hasTime )
        a_out += 'T';
    AppendTime( time, a_out );
    return true;
}

} // namespace PimManager::Contacts
