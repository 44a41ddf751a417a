#include "Lines/LineFilter.h"

#include "Lines/LineHead.h"
#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kDataUri = "data:";

bool IsMedia( const LineHead& a_head, std::string_view a_name, std::string_view a_value )
{
    return a_head.m_encoding == PimContactEncoding::Base64 || IsSameWord( a_name, "PHOTO" ) ||
           IsSameWord( a_name, "LOGO" ) || IsSameWord( a_name, "SOUND" ) || IsSameWord( a_name, "KEY" ) ||
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
