#include "Lines/LineFilter.h"

#include "Lines/KnownNames.h"
#include "Lines/LineHead.h"
#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kDataUri = "data:";

// Whether the BASE64 of a text property is text is known only at its end. A name must not be lost.
bool IsMedia( const LineHead& a_head, std::string_view a_name, std::string_view a_value )
{
    return ( a_head.m_encoding == PimContactEncoding::Base64 && !IsKnownTextName( a_name ) ) || IsMediaName( a_name ) ||
           IsSameWord( TrimmedLeft( a_value ).substr( 0, s_kDataUri.size() ), s_kDataUri );
}

} // namespace

LineFilter::LineFilter( const PimContactOptions& a_options ) :
    m_areMediaWanted( a_options.AreMediaWanted() )
{
    const QList<QByteArray> names = a_options.Names();
    for ( const QByteArray& name : names )
        m_names.push_back( name.toUpper() );
    std::sort( m_names.begin(), m_names.end() );
}

bool LineFilter::IsWanted( const LineHead& a_head, std::string_view a_name, std::string_view a_value ) const
{
    if ( IsSameWord( a_name, "VERSION" ) )
        return true;
    if ( !m_areMediaWanted && IsMedia( a_head, a_name, a_value ) )
        return false;
    return m_names.empty() || std::binary_search( m_names.begin(), m_names.end(), BytesOf( a_name ).toUpper() );
}

} // namespace PimManager::Contacts
