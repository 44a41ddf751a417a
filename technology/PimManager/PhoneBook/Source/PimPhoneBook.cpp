#include <PimManager/PhoneBook/PimPhoneBook.h>

#include "Numbers/WrittenNumber.h"
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

namespace
{

// The lines of a card are read faster than the phones of a contact. The ids of its lines count from 1.
void AddNumbers( NumberStore& a_numbers, int a_contact, const Contacts::PimContactCard& a_card )
{
    int id = 0;
    for ( const Contacts::PimContactLine& line : a_card )
    {
        ++id;
        if ( !line.IsNamed( QLatin1String( "TEL" ) ) )
            continue;
        const WrittenNumber number = ReadWrittenNumber( line.Text() );
        a_numbers.Append( a_contact, id, number.Digits(), number.m_form, number.m_extension.View() );
    }
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
    for ( int contact = 0; contact < a_book.Size(); ++contact )
        AddNumbers( d->m_numbers, contact, a_book.CardAt( contact ) );
    d->m_numbers.Squeeze();
    d->m_callers = CallerIndex( d->m_numbers, HomeOf( a_options.Region() ), a_options.EndingDigits() );
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
    return d->m_callers.Find( d->m_numbers, ReadWrittenNumber( a_number ) );
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
