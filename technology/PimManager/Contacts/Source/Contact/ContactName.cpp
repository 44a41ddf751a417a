#include "Contact/ContactName.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

namespace PimManager::Contacts
{

void ContactName::Clear()
{
    Empty( m_text );
    m_source = PropertyId::Other;
}

void ContactName::Take( PropertyId a_source, std::initializer_list<std::string_view> a_parts )
{
    Empty( m_candidate );
    for ( const std::string_view part : a_parts )
        AppendWords( part, m_candidate );
    if ( m_candidate.isEmpty() )
        return;
    m_text.swap( m_candidate );
    m_source = a_source;
}

void ContactName::TakeParts( const NamedParts& a_parts )
{
    Empty( m_parts );
    for ( const size_t part : { 3U, 1U, 2U, 0U, 4U } )
    {
        const std::string_view text = WithoutOuterSpace( a_parts.at( part ) );
        if ( !m_parts.isEmpty() && !text.empty() )
            m_parts.append( ' ' );
        Append( m_parts, text );
    }
    if ( m_parts.isEmpty() )
        return;
    Empty( m_text );
    m_source = PropertyId::N;
}

std::string_view ContactName::Text()
{
    if ( m_source == PropertyId::N && m_text.isEmpty() )
        AppendWords( ViewOf( m_parts ), m_text );
    return ViewOf( m_text );
}

} // namespace PimManager::Contacts
