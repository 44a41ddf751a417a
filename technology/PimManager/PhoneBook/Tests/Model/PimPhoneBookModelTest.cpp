#include <PimManager/PhoneBook/PimPhoneBookModel.h>

#include "ModelBooks.h"
#include "ShadowList.h"

#include <gtest/gtest.h>

#include <QPersistentModelIndex>

#include <algorithm>
#include <numeric>
#include <random>

namespace PimManager::PhoneBook
{

namespace
{

using Texts = std::vector<std::string>;

const char* const s_kPerson =
    "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Nell Brackwater\r\nN:Brackwater;Nell;;;\r\nORG:Lanthorn;Tide\r\n"
    "TEL;TYPE=home:+1-555-0102\r\nTEL;TYPE=cell,pref:+1-555-0101\r\nEMAIL:nell@example.com\r\n"
    "EMAIL:tide@example.com\r\nPHOTO;ENCODING=b;TYPE=PNG:iVBORw0KGgo=\r\nEND:VCARD\r\n";
const char* const s_kOnlyName = "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Barnaby\r\nN:Barnaby;;;;\r\nEND:VCARD\r\n";

PimPhoneBook PhoneBookOfText( const QByteArray& a_text )
{
    return PimPhoneBook( Contacts::PimContactBook::FromBytes( a_text ) );
}

std::string Text( const QVariant& a_value )
{
    if ( a_value.canConvert<Contacts::PimContactPhone>() )
        return a_value.value<Contacts::PimContactPhone>().Number().toStdString();
    if ( a_value.canConvert<Contacts::PimContactMail>() )
        return a_value.value<Contacts::PimContactMail>().Address().toStdString();
    if ( a_value.canConvert<Contacts::PimContactMedia>() )
        return a_value.value<Contacts::PimContactMedia>().MediaType().toStdString();
    if ( a_value.canConvert<Contacts::PimContact>() )
        return a_value.value<Contacts::PimContact>().SortName().toStdString();
    return a_value.isValid() ? a_value.toString().toStdString() : "undefined";
}

// The value of a role in QML. The parts of a list are separated by blanks.
std::string Shown( const PimPhoneBookModel& a_model, int a_row, const char* a_role )
{
    const QVariant value = a_model.data( a_model.index( a_row ), a_model.roleNames().key( a_role, -1 ) );
    if ( value.userType() != QMetaType::QVariantList )
        return Text( value );
    std::string texts;
    for ( const QVariant& each : value.toList() )
        texts += ( texts.empty() ? "" : " " ) + Text( each );
    return texts;
}

Texts Names( const PimPhoneBookModel& a_model )
{
    Texts names;
    for ( int row = 0; row < a_model.Count(); ++row )
        names.push_back( a_model.index( row ).data().toString().toStdString() );
    return names;
}

/// Counts signals, and looks how many rows there are when they arrive.
struct Signals
{
    explicit Signals( const PimPhoneBookModel& a_model )
    {
        using Model = PimPhoneBookModel;
        QObject::connect( &a_model, &Model::FilterChanged, &m_context, [&] { Note( "filter", a_model ); } );
        QObject::connect( &a_model, &Model::KeysChanged, &m_context, [&] { Note( "keys", a_model ); } );
        QObject::connect( &a_model, &Model::CountChanged, &m_context, [&] { Note( "count", a_model ); } );
    }

    void Note( const std::string& a_signal, const PimPhoneBookModel& a_model )
    {
        m_noted += ( m_noted.empty() ? "" : " " ) + a_signal + std::to_string( a_model.Count() );
    }

    std::string Take() { return std::exchange( m_noted, std::string() ); }

    QObject m_context;
    std::string m_noted;
};

struct RoleRow
{
    const char* m_role;
    const char* m_ofPerson;
    const char* m_ofOnlyName;
};

// Cards with the same names for people, sorted by other names.
PimPhoneBook SortedBy( const std::vector<TestContact>& a_contacts, const std::vector<int>& a_places )
{
    QByteArray text;
    for ( size_t i = 0; i < a_contacts.size(); ++i )
    {
        text += CardOf( a_contacts[i] );
        text.replace( "\r\nN:" + QByteArray::fromStdString( a_contacts[i].m_name ),
                      "\r\nN:" + QByteArray::number( 1000 + a_places[i] ) );
    }
    return PhoneBookOfText( text );
}

std::vector<int> Places( size_t a_count )
{
    std::vector<int> places( a_count );
    std::iota( places.begin(), places.end(), 0 );
    return places;
}

} // namespace

TEST( PimPhoneBookModelTest, EmptyModelHasNoRows )
{
    const PimPhoneBookModel model;
    EXPECT_EQ( model.rowCount(), 0 );
    EXPECT_EQ( model.Count(), 0 );
    EXPECT_EQ( model.ContactAt( 0 ), -1 );
    EXPECT_EQ( model.RowOf( 0 ), -1 );
    EXPECT_EQ( model.PhoneBook().Size(), 0 );
}

TEST( PimPhoneBookModelTest, EachRoleShowsItsPartOfTheContact )
{
    const std::vector<RoleRow> rows = {
        { "contact", "Brackwater Nell", "Barnaby" },
        { "name", "Nell Brackwater", "Barnaby" },
        { "section", "B", "B" },
        { "number", "+1-555-0101", "" },
        { "numbers", "+1-555-0102 +1-555-0101", "" },
        { "mails", "nell@example.com tide@example.com", "" },
        { "photo", "image/png", "undefined" },
        { "organisation", "Lanthorn, Tide", "" },
        { "unknown", "undefined", "undefined" },
    };
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOfText( QByteArray( s_kPerson ) + s_kOnlyName ) );
    ASSERT_EQ( Names( model ), ( Texts{ "Barnaby", "Nell Brackwater" } ) );
    for ( const RoleRow& row : rows )
    {
        EXPECT_EQ( Shown( model, 1, row.m_role ), row.m_ofPerson ) << row.m_role;
        EXPECT_EQ( Shown( model, 0, row.m_role ), row.m_ofOnlyName ) << row.m_role;
    }
    EXPECT_EQ( model.roleNames().size(), static_cast<int>( rows.size() ) - 1 );
    EXPECT_EQ( Text( model.data( model.index( 1 ) ) ), "Nell Brackwater" );
}

TEST( PimPhoneBookModelTest, OtherRolesAndRowsHaveNoData )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOfText( s_kPerson ) );
    EXPECT_FALSE( model.data( model.index( 0 ), Qt::DecorationRole ).isValid() );
    EXPECT_FALSE( model.data( QModelIndex(), PimPhoneBookModel::NameRole ).isValid() );
    EXPECT_FALSE( model.data( model.index( 1 ), PimPhoneBookModel::NameRole ).isValid() );
    EXPECT_EQ( model.rowCount( model.index( 0 ) ), 0 );
}

TEST( PimPhoneBookModelTest, RowsAndContactsKnowEachOther )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( { { "Cora", "3" }, { "Anna", "1" }, { "Bella", "2" } } ) );
    ASSERT_EQ( Names( model ), ( Texts{ "Anna", "Bella", "Cora" } ) );
    EXPECT_EQ( model.ContactAt( 0 ), 1 );
    EXPECT_EQ( model.ContactAt( 2 ), 0 );
    EXPECT_EQ( model.ContactAt( 3 ), -1 );
    EXPECT_EQ( model.ContactAt( -1 ), -1 );
    EXPECT_EQ( model.RowOf( 0 ), 2 );
    EXPECT_EQ( model.RowOf( 3 ), -1 );
    model.SetFilter( QStringLiteral( "bel" ) );
    EXPECT_EQ( model.ContactAt( 0 ), 2 );
    EXPECT_EQ( model.RowOf( 0 ), -1 );
}

TEST( PimPhoneBookModelTest, FilterAndKeysReplaceEachOther )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( { { "Anna", "1234567" }, { "Bella", "7654321" }, { "Cora", "1111111" } } ) );
    Signals signals_( model );
    model.SetFilter( QStringLiteral( "bel" ) );
    EXPECT_EQ( Names( model ), Texts{ "Bella" } );
    EXPECT_EQ( signals_.Take(), "count1 filter1" );
    model.SetFilter( QStringLiteral( "bel" ) );
    EXPECT_EQ( signals_.Take(), "" );
    model.SetKeys( QStringLiteral( "234" ) );
    EXPECT_EQ( Names( model ), Texts{ "Anna" } );
    EXPECT_EQ( signals_.Take(), "filter1 keys1" );
    EXPECT_EQ( model.Filter(), QString() );
    EXPECT_EQ( model.Keys(), QStringLiteral( "234" ) );
    model.SetFilter( QString() );
    EXPECT_EQ( Names( model ), ( Texts{ "Anna", "Bella", "Cora" } ) );
    EXPECT_EQ( signals_.Take(), "count3 keys3" );
    EXPECT_EQ( model.Keys(), QString() );
}

TEST( PimPhoneBookModelTest, NewPhoneBookTouchesOnlyWhatChanged )
{
    struct Row
    {
        const char* m_name;
        std::vector<TestContact> m_contacts;
        int m_steps;
        int m_rows;
    };
    const std::vector<TestContact> former = { { "Anna", "1" }, { "Bella", "2" }, { "Cora", "3" } };
    const std::vector<Row> rows = {
        { "the same", former, 0, 0 },
        { "another order in the file", { { "Cora", "3" }, { "Anna", "1" }, { "Bella", "2" } }, 0, 0 },
        { "another number", { { "Anna", "1" }, { "Bella", "9" }, { "Cora", "3" } }, 1, 1 },
        { "other numbers", { { "Anna", "1" }, { "Bella", "9" }, { "Cora", "9" } }, 1, 2 },
        { "one more", { { "Anna", "1" }, { "Bella", "2" }, { "Beth", "4" }, { "Cora", "3" } }, 1, 1 },
        { "one less", { { "Anna", "1" }, { "Cora", "3" } }, 1, 1 },
        { "all others", { { "Dora", "1" }, { "Edda", "2" } }, 2, 5 },
        { "none", {}, 1, 3 },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        PimPhoneBookModel model;
        model.SetPhoneBook( PhoneBookOf( former ) );
        const ShadowList view( model );
        model.SetPhoneBook( PhoneBookOf( row.m_contacts ) );
        EXPECT_EQ( view.Steps(), row.m_steps );
        EXPECT_EQ( view.RowsTouched(), row.m_rows );
        EXPECT_EQ( view.Shown(), view.Expected() );
        EXPECT_EQ( model.Count(), static_cast<int>( row.m_contacts.size() ) );
    }
}

TEST( PimPhoneBookModelTest, SameBookWithOtherSortingMovesAndChangesRows )
{
    const auto book = Contacts::PimContactBook::FromBytes(
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Zora Adler\r\nN:Adler;Zora;;;\r\nEND:VCARD\r\n"
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Anna Zweig\r\nN:Zweig;Anna;;;\r\nEND:VCARD\r\n" );
    PimPhoneBookModel model;
    model.SetPhoneBook( PimPhoneBook( book ) );
    const ShadowList view( model );
    PimPhoneBookOptions options;
    options.SetSorting( PimPhoneBookSorting::GivenName );
    model.SetPhoneBook( PimPhoneBook( book, options ) );
    EXPECT_EQ( view.Shown(), view.Expected() );
    EXPECT_GE( view.RowsTouched(), 2 );
}

TEST( PimPhoneBookModelTest, IndexesFollowMovedContacts )
{
    const std::vector<TestContact> contacts = ManyContacts( 12 );
    std::vector<int> places = Places( contacts.size() );
    PimPhoneBookModel model;
    model.SetPhoneBook( SortedBy( contacts, places ) );
    const ShadowList view( model );
    std::vector<QPersistentModelIndex> indexes;
    for ( int row = 0; row < model.Count(); ++row )
        indexes.emplace_back( model.index( row ) );
    std::mt19937 random( 1 );
    for ( int round = 0; round < 100; ++round )
    {
        SCOPED_TRACE( round );
        std::shuffle( places.begin(), places.end(), random );
        model.SetPhoneBook( SortedBy( contacts, places ) );
        ASSERT_EQ( view.Shown(), view.Expected() );
        for ( size_t i = 0; i < contacts.size(); ++i )
        {
            ASSERT_EQ( indexes[i].row(), places[i] );
            ASSERT_EQ( indexes[i].data().toString().toStdString(), contacts[i].m_name );
        }
    }
    EXPECT_EQ( view.Resets(), 0 );
}

TEST( PimPhoneBookModelTest, ReversedContactsKeepTheirIndexes )
{
    const std::vector<TestContact> contacts = ManyContacts( 300 );
    std::vector<int> places = Places( contacts.size() );
    PimPhoneBookModel model;
    model.SetPhoneBook( SortedBy( contacts, places ) );
    const QPersistentModelIndex first = model.index( 0 );
    std::reverse( places.begin(), places.end() );
    model.SetPhoneBook( SortedBy( contacts, places ) );
    EXPECT_EQ( first.row(), 299 );
}

TEST( PimPhoneBookModelTest, EverySecondContactGoesAndTheOthersKeepTheirIndexes )
{
    const std::vector<TestContact> contacts = ManyContacts( 1000 );
    std::vector<TestContact> fewer;
    for ( size_t i = 0; i < contacts.size(); i += 2 )
        fewer.push_back( contacts[i] );
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( contacts ) );
    const ShadowList view( model );
    const QPersistentModelIndex index = model.index( 500 );
    model.SetPhoneBook( PhoneBookOf( fewer ) );
    EXPECT_EQ( index.row(), 250 );
    EXPECT_EQ( view.Steps(), 500 );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

TEST( PimPhoneBookModelTest, RecentCallsApplyToThisAndTheNextPhoneBook )
{
    const QString text = QStringLiteral( "Name" );
    const QStringList calls = { QStringLiteral( "+49 30 500003" ), QStringLiteral( "+49 30 500001" ) };
    PimPhoneBookModel model;
    const ShadowList view( model );
    model.SetPhoneBook( PhoneBookOf( ManyContacts( 4 ) ) );
    model.SetFilter( text );
    for ( const QStringList& numbers : { calls, QStringList() } )
    {
        model.SetRecentCalls( numbers );
        for ( const int size : { 4, 6 } )
        {
            SCOPED_TRACE( size );
            PimPhoneBook phoneBook = PhoneBookOf( ManyContacts( size ) );
            model.SetPhoneBook( phoneBook );
            phoneBook.SetRecentCalls( numbers );
            Texts expected;
            for ( const PimPhoneBookMatch& match : phoneBook.Find( text ) )
                expected.push_back( phoneBook.At( match.m_contact ).DisplayName().toStdString() );
            EXPECT_EQ( Names( model ), expected );
            EXPECT_EQ( view.Shown(), view.Expected() );
        }
    }
}

TEST( PimPhoneBookModelTest, SearchWithManyScatteredMatchesIsOneRemovalAndOneInsertion )
{
    std::vector<TestContact> contacts = ManyContacts( 1000 );
    for ( size_t i = 1; i < contacts.size(); i += 2 )
        contacts[i].m_name += " x";
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( contacts ) );
    const ShadowList view( model );
    model.SetFilter( QStringLiteral( "x" ) );
    ASSERT_EQ( model.Count(), 500 );
    EXPECT_EQ( view.Steps(), 2 );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

TEST( PimPhoneBookModelTest, SlotThatSearchesDuringAChangeIsHeardAfterIt )
{
    PimPhoneBookModel model;
    const ShadowList view( model );
    QObject context;
    QObject::connect( &model, &PimPhoneBookModel::rowsInserted, &context,
                      [&] { model.SetFilter( QStringLiteral( "Bella" ) ); } );
    model.SetPhoneBook( PhoneBookOf( { { "Anna", "1" }, { "Bella", "2" }, { "Cora", "3" } } ) );
    EXPECT_EQ( Names( model ), Texts{ "Bella" } );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

TEST( PimPhoneBookModelTest, SlotThatSetsAPhoneBookDuringAChangeIsHeardAfterIt )
{
    PimPhoneBookModel model;
    model.SetPhoneBook( PhoneBookOf( { { "Anna", "1" }, { "Bella", "2" } } ) );
    const ShadowList view( model );
    const PimPhoneBook last = PhoneBookOf( { { "Dora", "4" } } );
    QObject context;
    QObject::connect( &model, &PimPhoneBookModel::rowsAboutToBeRemoved, &context, [&] { model.SetPhoneBook( last ); } );
    model.SetPhoneBook( PhoneBookOf( { { "Cora", "3" } } ) );
    EXPECT_EQ( Names( model ), Texts{ "Dora" } );
    EXPECT_EQ( view.Shown(), view.Expected() );
    EXPECT_EQ( model.PhoneBook().Size(), 1 );
}

TEST( PimPhoneBookModelTest, ContactsWithoutTextsOrWithLongOnesAreRows )
{
    const QByteArray longName( 1000000, 'x' );
    QByteArray numbers = "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:\x01 control\r\n";
    for ( int i = 0; i < 20000; ++i )
        numbers += "TEL:+49301234\r\n";
    const PimPhoneBook phoneBook = PhoneBookOfText( "BEGIN:VCARD\r\nVERSION:3.0\r\nEND:VCARD\r\n"
                                                    "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" +
                                                    longName + "\r\nEND:VCARD\r\n" + numbers + "END:VCARD\r\n" );
    PimPhoneBookModel model;
    model.SetPhoneBook( phoneBook );
    const ShadowList view( model );
    ASSERT_EQ( model.Count(), phoneBook.Size() );
    std::vector<qsizetype> counts;
    for ( int row = 0; row < model.Count(); ++row )
        counts.push_back( model.data( model.index( row ), PimPhoneBookModel::NumbersRole ).toList().size() );
    EXPECT_EQ( *std::max_element( counts.begin(), counts.end() ), 20000 );
    model.SetFilter( QStringLiteral( "xx" ) );
    EXPECT_EQ( view.Shown(), view.Expected() );
}

} // namespace PimManager::PhoneBook
