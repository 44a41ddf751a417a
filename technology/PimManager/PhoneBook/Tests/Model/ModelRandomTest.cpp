// Random phone books and searches, with a view that follows the signals of the model.

#include "ModelBooks.h"
#include "ShadowList.h"

#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include <gtest/gtest.h>

#include <QPersistentModelIndex>

#include <algorithm>
#include <map>
#include <random>

namespace PimManager::PhoneBook
{

namespace
{

using Contacts = std::vector<TestContact>;

/// Changes a book as people and telephones do, and now and then thoroughly.
class RandomBook
{
public:
    explicit RandomBook( unsigned a_seed ) :
        m_random( a_seed )
    {
    }

    int Below( int a_end ) { return static_cast<int>( m_random() % static_cast<unsigned>( a_end ) ); }

    const Contacts& Next()
    {
        const int kind = Below( 12 );
        if ( kind == 0 )
            m_contacts.clear();
        else if ( kind == 1 )
            std::shuffle( m_contacts.begin(), m_contacts.end(), m_random );
        else if ( kind == 2 )
            Add( 100 );
        else
            Edit( Below( 8 ) );
        return m_contacts;
    }

private:
    void Edit( int a_edits )
    {
        for ( int edit = 0; edit < a_edits; ++edit )
        {
            const int kind = m_contacts.empty() ? 0 : Below( 4 );
            if ( kind == 0 )
                Add( 1 );
            else if ( kind == 1 )
                m_contacts.erase( m_contacts.begin() + Below( static_cast<int>( m_contacts.size() ) ) );
            else if ( kind == 2 )
                Any().m_number = Number();
            else
                std::swap( Any(), Any() );
        }
    }

    TestContact& Any() { return m_contacts[m_random() % m_contacts.size()]; }

    // Names are different, but have few beginnings.
    void Add( int a_count )
    {
        for ( int i = 0; i < a_count; ++i )
        {
            const std::string name = std::string( 1, static_cast<char>( 'A' + Below( 4 ) ) ) +
                                     static_cast<char>( 'a' + Below( 4 ) ) + std::to_string( ++m_names );
            m_contacts.insert( m_contacts.begin() + Below( static_cast<int>( m_contacts.size() ) + 1 ),
                               { name, Number() } );
        }
    }

    std::string Number() { return std::to_string( 1000 + Below( 9000 ) ); }

    std::mt19937 m_random;
    Contacts m_contacts;
    int m_names = 0;
};

/// The contacts that the program remembers, such as the selected ones, by their names.
using Remembered = std::map<std::string, QPersistentModelIndex>;

Remembered RememberSome( const PimPhoneBookModel& a_model, RandomBook& a_random )
{
    Remembered remembered;
    for ( int i = 0; i < 5 && a_model.Count() > 0; ++i )
    {
        const QModelIndex index = a_model.index( a_random.Below( a_model.Count() ) );
        remembered[index.data().toString().toStdString()] = index;
    }
    return remembered;
}

// The steps of a change of so few rows are always exact.
void ExpectStillTheSame( const Remembered& a_remembered, const PimPhoneBookModel& a_model, int a_rowsBefore )
{
    const bool isExact = a_rowsBefore + a_model.Count() < 60;
    for ( const auto& [name, index] : a_remembered )
    {
        const QModelIndex start = a_model.index( 0 );
        const bool isShown =
            !a_model.match( start, Qt::DisplayRole, QString::fromStdString( name ), 1, Qt::MatchExactly ).isEmpty();
        EXPECT_TRUE( index.isValid() ? index.data().toString().toStdString() == name : !isShown || !isExact ) << name;
    }
}

// Changes the search or the book. \return what was done, for messages.
std::string ChangeSomething( PimPhoneBookModel& a_model, RandomBook& a_random )
{
    const std::vector<QString> texts = { QString(),
                                         QStringLiteral( "a" ),
                                         QStringLiteral( "ab" ),
                                         QStringLiteral( "B" ),
                                         QStringLiteral( "zz" ),
                                         QStringLiteral( "1" ) };
    const std::vector<QString> keys = { QString(), QStringLiteral( "2" ), QStringLiteral( "22" ),
                                        QStringLiteral( "31" ), QStringLiteral( "999999" ) };
    switch ( a_random.Below( 3 ) )
    {
    case 0:
        a_model.SetFilter( texts[static_cast<size_t>( a_random.Below( static_cast<int>( texts.size() ) ) )] );
        return "filter " + a_model.Filter().toStdString();
    case 1:
        a_model.SetKeys( keys[static_cast<size_t>( a_random.Below( static_cast<int>( keys.size() ) ) )] );
        return "keys " + a_model.Keys().toStdString();
    default:
        a_model.SetPhoneBook( PhoneBookOf( a_random.Next() ) );
        return "book of " + std::to_string( a_model.PhoneBook().Size() );
    }
}

std::vector<int> RowsOf( const PimPhoneBookModel& a_model )
{
    std::vector<int> rows;
    for ( int row = 0; row < a_model.Count(); ++row )
        rows.push_back( a_model.ContactAt( row ) );
    return rows;
}

// The rows of a model that had no other phone book and no other search before.
std::vector<int> RowsOfFreshModel( const PimPhoneBookModel& a_like )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( a_like.PhoneBook() );
    if ( a_like.Keys().isEmpty() )
        model.SetFilter( a_like.Filter() );
    else
        model.SetKeys( a_like.Keys() );
    return RowsOf( model );
}

} // namespace

class ModelRandomTest : public testing::TestWithParam<unsigned>
{
};

TEST_P( ModelRandomTest, ViewFollowsAllChangesWithoutReset )
{
    RandomBook random( GetParam() );
    PimPhoneBookModel model;
    const ShadowList view( model );
    for ( int round = 0; round < 100; ++round )
    {
        const Remembered remembered = RememberSome( model, random );
        const int rowsBefore = model.Count();
        const std::string done = ChangeSomething( model, random );
        SCOPED_TRACE( std::to_string( round ) + " " + done );
        ASSERT_EQ( view.Shown(), view.Expected() );
        ASSERT_EQ( RowsOf( model ), RowsOfFreshModel( model ) );
        ASSERT_EQ( view.Resets(), 0 );
        ExpectStillTheSame( remembered, model, rowsBefore );
        if ( HasFailure() )
            return;
    }
    EXPECT_GT( view.Steps(), 50 );
}

INSTANTIATE_TEST_SUITE_P( Seeds, ModelRandomTest, testing::Range( 1U, 9U ) );

} // namespace PimManager::PhoneBook
