#include "Outputs/MatchingNumbers.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <QRegularExpression>

#include <vector>

namespace PimManager::Tools
{

using namespace Contacts;
using namespace PhoneBook;

namespace
{

/// The numbers of several contacts, each as a contact of its own, so that the search tells which one it finds.
class Numbers
{
public:
    Numbers( const PimContactBook& a_book, const QVector<int>& a_contacts, const PimPhoneBookOptions& a_options );

    /// Adds the numbers that a search has found to the contacts without any.
    void Take( const QVector<PimPhoneBookMatch>& a_matches );

    const PimPhoneBook& Book() const { return m_book; }
    const QVector<QList<int>>& Found() const { return m_found; }

private:
    // Where a number is.
    struct Place
    {
        int m_contact = 0;
        int m_line = 0;
    };

    PimContactBook ReadNumbers( const PimContactBook& a_book, const QVector<int>& a_contacts );

    std::vector<Place> m_places;
    const PimPhoneBook m_book;
    QVector<QList<int>> m_found;
};

Numbers::Numbers( const PimContactBook& a_book, const QVector<int>& a_contacts, const PimPhoneBookOptions& a_options ) :
    m_book( ReadNumbers( a_book, a_contacts ), a_options ),
    m_found( a_contacts.size() )
{
}

PimContactBook Numbers::ReadNumbers( const PimContactBook& a_book, const QVector<int>& a_contacts )
{
    PimContactBook numbers;
    for ( int i = 0; i < a_contacts.size(); ++i )
    {
        for ( const PimContactPhone& phone : a_book.At( a_contacts.at( i ) ).Phones() )
        {
            PimContact number;
            number.AddPhone( phone );
            numbers.Append( number );
            m_places.push_back( { i, phone.Id() } );
        }
    }
    return numbers;
}

void Numbers::Take( const QVector<PimPhoneBookMatch>& a_matches )
{
    std::vector<bool> isFound( m_places.size(), false );
    for ( const PimPhoneBookMatch& match : a_matches )
        isFound[static_cast<size_t>( match.m_contact )] = true;
    const QVector<QList<int>> before = m_found;
    for ( size_t i = 0; i < m_places.size(); ++i )
    {
        const Place place = m_places[i];
        if ( isFound[i] && before.at( place.m_contact ).isEmpty() )
            m_found[place.m_contact] << place.m_line;
    }
}

} // namespace

QVector<QList<int>> MatchingNumbers( const PimContactBook& a_book, const QVector<int>& a_contacts,
                                     const QString& a_text, SearchedAs a_as, const PimPhoneBookOptions& a_options )
{
    static const QRegularExpression s_kBlanks( QStringLiteral( "\\s+" ) );
    Numbers numbers( a_book, a_contacts, a_options );
    if ( a_as == SearchedAs::Keys )
    {
        numbers.Take( numbers.Book().FindByKeys( a_text ) );
        return numbers.Found();
    }
    numbers.Take( numbers.Book().Find( a_text ) );
    QVector<PimPhoneBookMatch> byWord;
    for ( const QString& word : a_text.split( s_kBlanks, Qt::SkipEmptyParts ) )
        byWord += numbers.Book().Find( word );
    numbers.Take( byWord );
    return numbers.Found();
}

} // namespace PimManager::Tools
