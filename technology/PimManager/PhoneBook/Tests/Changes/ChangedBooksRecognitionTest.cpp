// How many contacts of made books are recognised, and how many are taken for somebody else.

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include "BookTexts.h"
#include "ChangedBooks.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace PimManager::PhoneBook
{

namespace
{

using Contacts::PimContactBook;
using vCard::MadeTexts::ChangedBookGenerator;
using vCard::MadeTexts::ChangedBooks;

constexpr int s_kPeople = 300;
constexpr quint32 s_kSeeds = 20;
constexpr quint32 s_kManySeeds = 400;
constexpr double s_kLeastPrecision = 0.999;
constexpr double s_kLeastRecall = 0.95;

/// Pairs that were found, and pairs that there are.
struct Figures
{
    int m_found = 0;
    int m_right = 0;
    int m_real = 0;

    double Precision() const { return m_found == 0 ? 1.0 : double( m_right ) / m_found; }
    double Recall() const { return m_real == 0 ? 1.0 : double( m_right ) / m_real; }
    void Print( const char* a_name ) const
    {
        std::printf( "%s: %d pairs, %d found, %d wrong: precision %.3f %%, recall %.2f %%\n", a_name, m_real, m_found,
                     m_found - m_right, 100 * Precision(), 100 * Recall() );
    }
};

/// The figures for all pairs, and for those without equal content and without the same identifier.
struct Recognition
{
    Figures m_all;
    Figures m_byName;

    void Add( quint32 a_seed );
};

bool IsByName( PimPhoneBookBasis a_basis )
{
    return a_basis == PimPhoneBookBasis::NameAndNumber || a_basis == PimPhoneBookBasis::Name;
}

// With PIMVCARD_SHOW_WRONG in the environment, the wrong pairs are printed.
void Show( quint32 a_seed, const PimContactBook& a_old, const PimContactBook& a_new, const PimPhoneBookPair& a_pair )
{
    if ( std::getenv( "PIMVCARD_SHOW_WRONG" ) != nullptr )
        std::printf( "seed %u, %s\n%s%s\n", a_seed, qPrintable( NameOf( a_pair.m_basis ) ),
                     a_old.CardAt( a_pair.m_old ).Bytes().constData(),
                     a_new.CardAt( a_pair.m_new ).Bytes().constData() );
}

void Recognition::Add( quint32 a_seed )
{
    const ChangedBooks books = ChangedBookGenerator( a_seed ).Make( s_kPeople );
    const PimContactBook old = PimContactBook::FromBytes( books.m_old );
    const PimContactBook changed = PimContactBook::FromBytes( books.m_new );
    ASSERT_EQ( old.Size(), books.m_oldSize );
    ASSERT_EQ( changed.Size(), books.m_oldOf.size() );
    const auto changes = PimPhoneBookChanges::Compare( old, changed );
    for ( const PimPhoneBookPair& pair : changes.Pairs() )
    {
        const bool isRight = books.m_oldOf.at( pair.m_new ) == pair.m_old;
        for ( Figures* figures : { &m_all, IsByName( pair.m_basis ) ? &m_byName : nullptr } )
        {
            if ( figures == nullptr )
                continue;
            ++figures->m_found;
            figures->m_right += isRight ? 1 : 0;
            figures->m_real += isRight ? 1 : 0;
        }
        if ( !isRight )
            Show( a_seed, old, changed, pair );
    }
    // A pair that was not found would have needed the names.
    for ( int i = 0; i < changed.Size(); ++i )
    {
        const int real = books.m_oldOf.at( i );
        if ( real < 0 || changes.OldOf( i ) == real )
            continue;
        ++m_all.m_real;
        ++m_byName.m_real;
    }
}

void ExpectRecognition( quint32 a_seeds )
{
    Recognition recognition;
    for ( quint32 seed = 0; seed < a_seeds; ++seed )
        recognition.Add( seed );
    recognition.m_all.Print( "all" );
    recognition.m_byName.Print( "by name" );
    EXPECT_GE( recognition.m_all.Precision(), s_kLeastPrecision );
    EXPECT_GE( recognition.m_all.Recall(), s_kLeastRecall );
    EXPECT_GT( recognition.m_byName.m_real, static_cast<int>( a_seeds ) * 10 );
}

} // namespace

TEST( ChangedBooksRecognitionTest, PeopleAreRecognised )
{
    ExpectRecognition( s_kSeeds );
}

TEST( ChangedBooksRecognitionTest, PeopleOfManyBooksAreRecognised )
{
    ExpectRecognition( s_kManySeeds );
}

} // namespace PimManager::PhoneBook
