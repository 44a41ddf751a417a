#include <PimManager/PhoneBook/PimPhoneBook.h>

#include "PhoneBookIndex.h"

#include <algorithm>
#include <numeric>

namespace PimManager::PhoneBook
{

namespace
{

QString DigitsOf( const QString& a_text )
{
    QString digits;
    for ( const QChar character : a_text )
    {
        if ( character.isDigit() )
            digits += character;
    }
    return digits;
}

} // namespace

PimPhoneBook::PimPhoneBook() :
    d( new PimPhoneBookPrivate )
{
}

PimPhoneBook::PimPhoneBook( const Contacts::PimContactBook& a_book, const PimPhoneBookOptions& a_options ) :
    d( new PimPhoneBookPrivate )
{
    d->m_book = a_book;
    d->m_options = a_options;
    d->m_sorted.resize( a_book.Size() );
    std::iota( d->m_sorted.begin(), d->m_sorted.end(), 0 );
    std::sort( d->m_sorted.begin(), d->m_sorted.end(),
               [&]( int a_first, int a_second )
               { return a_book.At( a_first ).SortName() < a_book.At( a_second ).SortName(); } );
}

PimPhoneBook::PimPhoneBook( const PimPhoneBook& a_other ) = default;
PimPhoneBook::PimPhoneBook( PimPhoneBook&& a_other ) noexcept = default;
PimPhoneBook& PimPhoneBook::operator=( const PimPhoneBook& a_other ) = default;
PimPhoneBook& PimPhoneBook::operator=( PimPhoneBook&& a_other ) noexcept = default;
PimPhoneBook::~PimPhoneBook() = default;

Contacts::PimContactBook PimPhoneBook::Book() const
{
    return d->m_book;
}

PimPhoneBookOptions PimPhoneBook::Options() const
{
    return d->m_options;
}

int PimPhoneBook::Size() const
{
    return d->m_book.Size();
}

Contacts::PimContact PimPhoneBook::At( int a_contact ) const
{
    return d->m_book.At( a_contact );
}

QVector<int> PimPhoneBook::Sorted() const
{
    return d->m_sorted;
}

QString PimPhoneBook::Section( int a_contact ) const
{
    return At( a_contact ).SortName().left( 1 ).toUpper();
}

QVector<PimPhoneBookCaller> PimPhoneBook::WhoIs( const QString& a_number ) const
{
    QVector<PimPhoneBookCaller> callers;
    const QString ending = DigitsOf( a_number ).right( d->m_options.EndingDigits() );
    for ( int contact = 0; !ending.isEmpty() && contact < Size(); ++contact )
    {
        for ( const Contacts::PimContactPhone& phone : At( contact ).Phones() )
        {
            if ( DigitsOf( phone.Number() ).endsWith( ending ) )
                callers.append( { contact, phone.Id(), PimPhoneBookGrade::Ending } );
        }
    }
    return callers;
}

QVector<PimPhoneBookMatch> PimPhoneBook::Find( const QString& a_text ) const
{
    QVector<PimPhoneBookMatch> matches;
    for ( const int contact : d->m_sorted )
    {
        if ( At( contact ).DisplayName().contains( a_text, Qt::CaseInsensitive ) )
            matches.append( { contact, PimPhoneBookPlace::Name } );
    }
    return matches;
}

QVector<PimPhoneBookMatch> PimPhoneBook::FindByKeys( const QString& a_keys ) const
{
    QVector<PimPhoneBookMatch> matches;
    for ( const int contact : d->m_sorted )
    {
        for ( const Contacts::PimContactPhone& phone : At( contact ).Phones() )
        {
            if ( DigitsOf( phone.Number() ).contains( a_keys ) )
                matches.append( { contact, PimPhoneBookPlace::Number } );
        }
    }
    return matches;
}

void PimPhoneBook::SetRecentCalls( const QStringList& ) {}

} // namespace PimManager::PhoneBook
