#include "Contact/ContactName.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/Buffer.h"

namespace PimManager::Contacts
{

void ContactName::Clear()
{
    Empty( m_text );
    m_source = PropertyName::Other;
}

void ContactName::Take( PropertyName a_source, std::initializer_list<std::string_view> a_parts )
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
    Take( PropertyName::N, { a_parts[3], a_parts[1], a_parts[2], a_parts[0], a_parts[4] } );
}

std::string_view ContactName::Text() const
{
    return ViewOf( m_text );
}

} // namespace PimManager::Contacts
