#include "Text/KeptTexts.h"

#include <functional>

namespace PimManager::Contacts
{

bool IsInside( std::string_view a_part, std::string_view a_text )
{
    const std::less<> isBefore;
    return !isBefore( a_part.data(), a_text.data() ) && isBefore( a_part.data(), a_text.data() + a_text.size() );
}

void KeptTexts::Begin( std::string_view a_text )
{
    m_text = a_text;
    m_hasCopies = false;
}

std::string_view KeptTexts::Keep( std::string_view a_part )
{
    if ( a_part.empty() || IsInside( a_part, m_text ) )
        return a_part;
    if ( !m_hasCopies )
    {
        // All copies together fit, so that no copy moves.
        m_copies.resize( 0 );
        m_copies.reserve( 2 * static_cast<int>( m_text.size() ) );
        m_hasCopies = true;
    }
    const auto place = m_copies.size();
    m_copies.append( a_part.data(), static_cast<int>( a_part.size() ) );
    return std::string_view( m_copies.constData() + place, a_part.size() );
}

} // namespace PimManager::Contacts
