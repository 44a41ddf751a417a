/// \file
/// Contacts of two books that have a key in common.

#pragma once

#include <QtGlobal>

#include <algorithm>
#include <tuple>
#include <vector>

namespace PimManager::PhoneBook
{

/// A contact with a number that stands for something it has: its content, its name, one of its telephone numbers.
struct KeyedContact
{
    quint64 m_key;
    int m_contact;

    bool operator<( const KeyedContact& a_other ) const
    {
        return std::tie( m_key, m_contact ) < std::tie( a_other.m_key, a_other.m_contact );
    }
};

using KeyedContacts = std::vector<KeyedContact>;

/// Contacts with one key, in the order of their book.
class ContactRun
{
public:
    ContactRun( const KeyedContact* a_begin, const KeyedContact* a_end ) :
        m_begin( a_begin ),
        m_end( a_end )
    {
    }
    const KeyedContact* begin() const { return m_begin; }
    const KeyedContact* end() const { return m_end; }
    qint64 Size() const { return m_end - m_begin; }

private:
    const KeyedContact* m_begin;
    const KeyedContact* m_end;
};

/// Sorts the contacts, and calls a_visit( old run, new run ) for each key that both books have, in ascending order.
template <typename Visit>
void VisitCommonKeys( KeyedContacts& a_old, KeyedContacts& a_new, Visit a_visit )
{
    const auto runAt = []( const KeyedContacts& a_contacts, size_t a_begin )
    {
        size_t end = a_begin;
        while ( end < a_contacts.size() && a_contacts[end].m_key == a_contacts[a_begin].m_key )
            ++end;
        return ContactRun( a_contacts.data() + a_begin, a_contacts.data() + end );
    };
    std::sort( a_old.begin(), a_old.end() );
    std::sort( a_new.begin(), a_new.end() );
    size_t oldPlace = 0;
    size_t newPlace = 0;
    while ( oldPlace < a_old.size() && newPlace < a_new.size() )
    {
        const ContactRun oldRun = runAt( a_old, oldPlace );
        const ContactRun newRun = runAt( a_new, newPlace );
        const quint64 oldKey = oldRun.begin()->m_key;
        const quint64 newKey = newRun.begin()->m_key;
        if ( oldKey == newKey )
            a_visit( oldRun, newRun );
        oldPlace += oldKey <= newKey ? static_cast<size_t>( oldRun.Size() ) : 0;
        newPlace += newKey <= oldKey ? static_cast<size_t>( newRun.Size() ) : 0;
    }
}

} // namespace PimManager::PhoneBook
