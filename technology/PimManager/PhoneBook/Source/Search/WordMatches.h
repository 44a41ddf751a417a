/// \file
/// The contacts that contain a text.

#pragma once

#include "Search/ContactSet.h"

#include <PimManager/PhoneBook/PimPhoneBookMatch.h>

#include <array>

namespace PimManager::PhoneBook
{

/// The contacts that contain one word, by the kind of the word in them.
struct WordMatches
{
    explicit WordMatches( int a_contacts ) :
        m_wholeName( a_contacts ),
        m_name( a_contacts ),
        m_wholeOrganisation( a_contacts ),
        m_organisation( a_contacts ),
        m_number( a_contacts )
    {
    }

    ContactSet m_wholeName;
    /// Also those of m_wholeName.
    ContactSet m_name;
    ContactSet m_wholeOrganisation;
    /// Also those of m_wholeOrganisation.
    ContactSet m_organisation;
    ContactSet m_number;
};

/// The contacts that contain each word of a text, by PimPhoneBookPlace.
class PlaceMatches
{
public:
    static constexpr size_t s_kPlaces = static_cast<size_t>( PimPhoneBookPlace::Number ) + 1;

    /// Creates the contacts that contain one word.
    explicit PlaceMatches( const WordMatches& a_word );

    /// Keeps the contacts that contain a further word.
    void And( const PlaceMatches& a_word );
    /// Keeps the contacts of a set.
    void And( const ContactSet& a_contacts );
    /// Adds the contacts that contain another text.
    void Or( const PlaceMatches& a_text );
    bool IsEmpty() const { return m_upTo.back().IsEmpty(); }

    /// \return the contacts that contain it in a name or organisation.
    const ContactSet& Named() const { return m_upTo[s_kPlaces - 2]; }
    /// \return the contacts with this place or a better one.
    const ContactSet& UpTo( size_t a_place ) const { return m_upTo[a_place]; }

private:
    std::array<ContactSet, s_kPlaces> m_upTo;
};

} // namespace PimManager::PhoneBook
