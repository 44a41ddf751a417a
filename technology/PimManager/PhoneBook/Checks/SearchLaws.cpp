#include "Checks/SearchLaws.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <algorithm>
#include <numeric>

namespace PimManager::PhoneBook::Checks
{

namespace
{

using Contacts::PimContact;
using Contacts::PimContactBook;
using Contacts::PimContactPhone;

// Of a long book, so many contacts are looked up.
constexpr int s_kMostLookedUp = 50;

bool IsPermutation( QVector<int> a_contacts, int a_size )
{
    std::sort( a_contacts.begin(), a_contacts.end() );
    QVector<int> all( a_size );
    std::iota( all.begin(), all.end(), 0 );
    return a_contacts == all;
}

template <typename Found>
bool AreDifferentContacts( const QVector<Found>& a_found, int a_size )
{
    QVector<int> contacts;
    for ( const Found& found : a_found )
        contacts.append( found.m_contact );
    std::sort( contacts.begin(), contacts.end() );
    return std::adjacent_find( contacts.begin(), contacts.end() ) == contacts.end() &&
           ( contacts.isEmpty() || ( contacts.constFirst() >= 0 && contacts.constLast() < a_size ) );
}

template <typename Found>
bool Contains( const QVector<Found>& a_found, int a_contact )
{
    return std::any_of( a_found.begin(), a_found.end(),
                        [a_contact]( const Found& a_one ) { return a_one.m_contact == a_contact; } );
}

bool IsCallerBefore( const PimPhoneBookCaller& a_first, const PimPhoneBookCaller& a_second )
{
    return a_first.m_grade != a_second.m_grade ? a_first.m_grade > a_second.m_grade
                                               : a_first.m_contact < a_second.m_contact;
}

bool IsPlaceBefore( const PimPhoneBookMatch& a_first, const PimPhoneBookMatch& a_second )
{
    return a_first.m_place < a_second.m_place;
}

/// A phone book, and the laws.
class Book
{
public:
    explicit Book( const PimContactBook& a_book ) :
        m_phoneBook( a_book )
    {
    }

    std::string BrokenLaw( const QString& a_number, const QString& a_text ) const
    {
        if ( !IsPermutation( m_phoneBook.Sorted(), m_phoneBook.Size() ) )
            return "each contact is sorted once";
        if ( !HaveSections() )
            return "each contact has a section";
        if ( !AreCallers( m_phoneBook.WhoIs( a_number ) ) )
            return "callers are sorted by grade, once each, and have the line";
        for ( const QString& text : { a_text, a_number } )
        {
            if ( !AreMatches( m_phoneBook.Find( text ) ) || !AreMatches( m_phoneBook.FindByKeys( text ) ) )
                return "contacts are found once, the best place first";
        }
        if ( m_phoneBook.Find( QString() ).size() != m_phoneBook.Size() )
            return "an empty text finds all contacts";
        for ( int contact = 0; contact < std::min( m_phoneBook.Size(), s_kMostLookedUp ); ++contact )
        {
            if ( !AreOwnNumbersFound( contact ) )
                return "a number finds its contact";
            if ( !AreOwnNamesFound( contact ) )
                return "a name finds its contact";
        }
        return std::string();
    }

private:
    bool HaveSections() const
    {
        for ( int contact = 0; contact < m_phoneBook.Size(); ++contact )
        {
            if ( m_phoneBook.Section( contact ).isEmpty() )
                return false;
        }
        return true;
    }

    bool AreCallers( const QVector<PimPhoneBookCaller>& a_callers ) const
    {
        return AreDifferentContacts( a_callers, m_phoneBook.Size() ) &&
               std::is_sorted( a_callers.begin(), a_callers.end(), IsCallerBefore ) &&
               std::all_of( a_callers.begin(), a_callers.end(),
                            [this]( const PimPhoneBookCaller& a_caller )
                            {
                                return a_caller.m_grade != PimPhoneBookGrade::None &&
                                       !m_phoneBook.At( a_caller.m_contact ).Line( a_caller.m_line ).IsNull();
                            } );
    }

    bool AreMatches( const QVector<PimPhoneBookMatch>& a_matches ) const
    {
        return AreDifferentContacts( a_matches, m_phoneBook.Size() ) &&
               std::is_sorted( a_matches.begin(), a_matches.end(), IsPlaceBefore );
    }

    bool AreOwnNumbersFound( int a_contact ) const
    {
        for ( const PimContactPhone& phone : m_phoneBook.At( a_contact ).Phones() )
        {
            const auto own = PimPhoneBookNumber::FromPhone( phone );
            const PimPhoneBookGrade grade = PimPhoneBookNumber::FromText( phone.Number() ).Compare( own );
            if ( grade != PimPhoneBookGrade::None && !Contains( m_phoneBook.WhoIs( phone.Number() ), a_contact ) )
                return false;
        }
        return true;
    }

    bool AreOwnNamesFound( int a_contact ) const
    {
        const QString name = m_phoneBook.At( a_contact ).DisplayName();
        return Contains( m_phoneBook.Find( name ), a_contact );
    }

    const PimPhoneBook m_phoneBook;
};

} // namespace

std::string BrokenSearchLaw( const PimContactBook& a_book, const QString& a_number, const QString& a_text )
{
    return Book( a_book ).BrokenLaw( a_number, a_text );
}

} // namespace PimManager::PhoneBook::Checks
