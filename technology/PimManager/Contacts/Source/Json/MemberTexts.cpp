#include "Json/MemberTexts.h"

namespace PimManager::Contacts
{

namespace
{

/// Appends the end of a member that begins with a text.
void EndMember( std::string_view a_begin, JsonText& a_json )
{
    if ( a_begin.back() == '[' )
        a_json.Raw( "]" );
}

} // namespace

void MemberTexts::Clear()
{
    constexpr size_t s_kMany = 4096;
    m_json.Clear();
    m_elements.clear();
    if ( m_elements.capacity() > s_kMany )
        m_elements.shrink_to_fit();
    m_members = 0;
}

JsonText& MemberTexts::Begin( ContactMember a_member )
{
    const size_t element = m_elements.size();
    Chain& chain = m_chains[static_cast<size_t>( a_member )];
    if ( Has( a_member ) )
        m_elements[chain.m_last].m_next = element;
    else
        chain.m_first = element;
    chain.m_last = element;
    m_members |= BitOf( a_member );
    m_elements.push_back( { m_json.Place(), s_kNone } );
    return m_json;
}

void MemberTexts::Write( ContactMember a_member, JsonText& a_json ) const
{
    const std::string_view begin = BeginOf( a_member );
    a_json.Raw( begin );
    size_t element = m_chains[static_cast<size_t>( a_member )].m_first;
    a_json.Raw( TextOf( element ) );
    for ( element = m_elements[element].m_next; element != s_kNone; element = m_elements[element].m_next )
    {
        a_json.Raw( "," );
        a_json.Raw( TextOf( element ) );
    }
    EndMember( begin, a_json );
}

std::string_view MemberTexts::TextOf( size_t a_element ) const
{
    const size_t begin = m_elements[a_element].m_begin;
    const bool isLast = a_element + 1 == m_elements.size();
    const size_t end = isLast ? m_json.Place() : m_elements[a_element + 1].m_begin;
    return m_json.From( begin ).substr( 0, end - begin );
}

void WriteMember( ContactMember a_member, std::string_view a_value, JsonText& a_json )
{
    const std::string_view begin = BeginOf( a_member );
    a_json.Raw( begin );
    a_json.Raw( a_value );
    EndMember( begin, a_json );
}

} // namespace PimManager::Contacts
