#include "Contact/NumberAndMail.h"

#include "Text/Bytes.h"
#include "Text/PercentEncoding.h"
#include "Text/WhiteSpace.h"
#include "Values/Buffer.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kExtension = ";ext=";

/// Removes a scheme in any letter case. \return false if the text does not begin with it.
bool RemoveScheme( std::string_view& a_text, std::string_view a_scheme )
{
    if ( !IsSameWord( a_text.substr( 0, a_scheme.size() ), a_scheme ) )
        return false;
    a_text.remove_prefix( a_scheme.size() );
    return true;
}

/// \return the parameter `;ext=` with its value; empty without one.
std::string_view ExtensionIn( std::string_view a_uri )
{
    size_t place = a_uri.find( ';' );
    while ( place != std::string_view::npos )
    {
        const size_t end = std::min( a_uri.find( ';', place + 1 ), a_uri.size() );
        if ( IsSameWord( a_uri.substr( place, s_kExtension.size() ), s_kExtension ) )
            return a_uri.substr( place, end - place );
        place = a_uri.find( ';', end );
    }
    return std::string_view();
}

std::string_view WithoutPersonName( std::string_view a_mail )
{
    const size_t open = a_mail.rfind( '<' );
    if ( open == std::string_view::npos || a_mail.back() != '>' )
        return a_mail;
    const std::string_view address = WithoutOuterSpace( a_mail.substr( open + 1, a_mail.size() - open - 2 ) );
    return address.find( '@' ) == std::string_view::npos ? a_mail : address;
}

} // namespace

std::string_view NumberOf( std::string_view a_text, QByteArray& a_buffer )
{
    std::string_view number = WithoutOuterSpace( a_text );
    if ( !RemoveScheme( number, "tel:" ) )
        return number;
    Empty( a_buffer );
    AppendPercentDecoded( number.substr( 0, number.find( ';' ) ), a_buffer );
    AppendPercentDecoded( ExtensionIn( number ), a_buffer );
    return WithoutOuterSpace( ViewOf( a_buffer ) );
}

std::string_view MailOf( std::string_view a_text, QByteArray& a_buffer )
{
    std::string_view mail = WithoutOuterSpace( a_text );
    if ( RemoveScheme( mail, "mailto:" ) )
    {
        Empty( a_buffer );
        AppendPercentDecoded( mail.substr( 0, mail.find( '?' ) ), a_buffer );
        mail = WithoutOuterSpace( ViewOf( a_buffer ) );
    }
    return WithoutPersonName( mail );
}

} // namespace PimManager::Contacts
