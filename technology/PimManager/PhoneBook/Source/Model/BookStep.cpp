#include "Model/BookStep.h"

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <numeric>

namespace PimManager::PhoneBook
{

namespace
{

QVector<int> Numbers( int a_count )
{
    QVector<int> numbers( a_count );
    std::iota( numbers.begin(), numbers.end(), 0 );
    return numbers;
}

bool HaveSameSections( const PimPhoneBookOptions& a_first, const PimPhoneBookOptions& a_second )
{
    return a_first.Locale() == a_second.Locale() && a_first.Sorting() == a_second.Sorting();
}

BookStep StepOfChanges( const PimPhoneBook& a_from, const PimPhoneBook& a_to )
{
    const auto changes = PimPhoneBookChanges::Compare( a_from.Book(), a_to.Book() );
    BookStep step = { a_from, QVector<int>( a_from.Size() ), {} };
    for ( int contact = 0; contact < a_from.Size(); ++contact )
        step.m_newOf[contact] = changes.NewOf( contact );
    for ( const PimPhoneBookPair& pair : changes.Changed() )
        step.m_changed.append( pair.m_new );
    return step;
}

} // namespace

BookStep StepBetween( const PimPhoneBook& a_from, const PimPhoneBook& a_to )
{
    BookStep step = IsSameBook( a_from, a_to ) ? StepOfGrowth( a_from ) : StepOfChanges( a_from, a_to );
    if ( !HaveSameSections( a_from.Options(), a_to.Options() ) )
        step.m_changed = Numbers( a_to.Size() );
    return step;
}

BookStep StepOfGrowth( const PimPhoneBook& a_from )
{
    return { a_from, Numbers( a_from.Size() ), {} };
}

bool IsSameBook( const PimPhoneBook& a_first, const PimPhoneBook& a_second )
{
    const Contacts::PimContactBook first = a_first.Book();
    const Contacts::PimContactBook second = a_second.Book();
    return first.Size() == second.Size() && ( first.IsEmpty() || &first.CardAt( 0 ) == &second.CardAt( 0 ) );
}

} // namespace PimManager::PhoneBook
