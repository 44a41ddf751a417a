#include "Contact/CallTime.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <QDate>
#include <QTime>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kForm = "0000-00-00T00:00:00";

bool IsDigit( char a_byte )
{
    return a_byte >= '0' && a_byte <= '9';
}

int NumberAt( std::string_view a_text, size_t a_place, size_t a_length )
{
    int number = 0;
    for ( const char digit : a_text.substr( a_place, a_length ) )
        number = number * 10 + ( digit - '0' );
    return number;
}

bool IsTime( std::string_view a_text )
{
    return QDate::isValid( NumberAt( a_text, 0, 4 ), NumberAt( a_text, 5, 2 ), NumberAt( a_text, 8, 2 ) ) &&
           QTime::isValid( NumberAt( a_text, 11, 2 ), NumberAt( a_text, 14, 2 ), NumberAt( a_text, 17, 2 ) );
}

} // namespace

CallTime::CallTime( std::string_view a_text )
{
    const std::string_view text = WithoutOuterSpace( a_text );
    size_t place = 0;
    for ( size_t i = 0; i < s_kForm.size(); ++i )
    {
        const char expected = s_kForm[i];
        const char byte = place < text.size() ? text[place] : '\0';
        const bool isMark = expected == '-' || expected == ':';
        const bool isThere = expected == '0' ? IsDigit( byte ) : Upper( byte ) == expected;
        if ( !isThere && !isMark )
            return;
        m_text.at( i ) = expected == '0' ? byte : expected;
        place += isThere ? 1 : 0;
    }
    const bool isUtc = place + 1 == text.size() && Upper( text.back() ) == 'Z';
    if ( ( place != text.size() && !isUtc ) || !IsTime( std::string_view( m_text.data(), s_kForm.size() ) ) )
        return;
    m_text.back() = 'Z';
    m_size = s_kForm.size() + ( isUtc ? 1 : 0 );
}

} // namespace PimManager::Contacts
