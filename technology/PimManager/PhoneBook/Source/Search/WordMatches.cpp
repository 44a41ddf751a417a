#include "Search/WordMatches.h"

namespace PimManager::PhoneBook
{

PlaceMatches::PlaceMatches( const WordMatches& a_word ) :
    m_upTo{ a_word.m_wholeName, a_word.m_name, a_word.m_wholeOrganisation, a_word.m_organisation, a_word.m_number }
{
    // A name that the text begins is worse than a whole one, and better than an organisation.
    m_upTo[2] |= m_upTo[0];
    m_upTo[3] |= m_upTo[1];
    m_upTo[4] |= m_upTo[3];
}

void PlaceMatches::And( const PlaceMatches& a_word )
{
    for ( size_t place = 0; place < s_kPlaces; ++place )
        m_upTo[place] &= a_word.m_upTo[place];
}

void PlaceMatches::And( const ContactSet& a_contacts )
{
    for ( ContactSet& place : m_upTo )
        place &= a_contacts;
}

void PlaceMatches::Or( const PlaceMatches& a_text )
{
    for ( size_t place = 0; place < s_kPlaces; ++place )
        m_upTo[place] |= a_text.m_upTo[place];
}

} // namespace PimManager::PhoneBook
