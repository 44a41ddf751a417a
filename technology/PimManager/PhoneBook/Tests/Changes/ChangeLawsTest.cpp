#include "Checks/ChangeLaws.h"

#include "BookTexts.h"
#include "ChangedBooks.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace PimManager::PhoneBook
{

namespace
{

using Checks::BrokenChangeLaw;
using Contacts::PimContactBook;
using vCard::MadeTexts::ChangedBookGenerator;
using vCard::MadeTexts::ChangedBooks;

// Few of each, so that contacts have much in common.
constexpr std::array s_kLines = {
    "UID:1",
    "UID:2",
    "UID:urn:uuid:1",
    "UID:",
    "X-BT-UID:1",
    "X-BT-UID:2",
    "FN:Ada Lindqvist",
    "FN:Ada Lindqvits",
    "FN:Lindqvist\\, Ada",
    "FN:Ada Celia Lindqvist",
    "FN:Celia",
    "fn:Celia",
    "N:Lindqvist;Ada",
    "ORG:Tern",
    "TEL:123",
    "TEL;TYPE=home:123",
    "TEL;HOME:123",
    "TEL:456",
    "a.TEL:789",
    "a.X-ABLabel:boat",
    "b.X-ABLabel:car",
    "EMAIL:a@b.example",
    "NOTE:x",
    "NOTE:x\n y",
    "NOTE;ENCODING=QUOTED-PRINTABLE:x=20y",
    "REV:20200101",
    "REV:2020-01-01",
    "BDAY:19960415",
    "X-A:b",
    "X-A;B=C:b",
    "x-a;b=c:b",
    "AGENT:\nBEGIN:VCARD\nFN:c\nEND:VCARD",
    "PHOTO;ENCODING=b:/9j/4AAQ",
    "TEL:",
};
constexpr std::array s_kVersions = { "2.1", "3.0", "3.0", "3.0", "4.0" };

class RandomBooks
{
public:
    explicit RandomBooks( unsigned a_seed ) :
        m_random( a_seed )
    {
    }

    PimContactBook Book()
    {
        QByteArray text;
        for ( auto cards = m_random() % 9; cards > 0; --cards )
            text += Card();
        return PimContactBook::FromBytes( text );
    }

    // Some cards are those of another book.
    PimContactBook BookLike( const PimContactBook& a_book )
    {
        PimContactBook book = Book();
        for ( int i = 0; i < a_book.Size(); ++i )
        {
            if ( m_random() % 3 != 0 )
                book.Append( a_book.CardAt( i ) );
            if ( !book.IsEmpty() && m_random() % 3 != 0 )
                book.Move( static_cast<int>( m_random() % static_cast<unsigned>( book.Size() ) ), 0 );
        }
        return book;
    }

private:
    QByteArray Card()
    {
        QByteArray text =
            QByteArray( "BEGIN:VCARD\nVERSION:" ) + s_kVersions.at( m_random() % s_kVersions.size() ) + '\n';
        for ( auto lines = m_random() % 6; lines > 0; --lines )
            text += QByteArray( s_kLines.at( m_random() % s_kLines.size() ) ) + '\n';
        return text + "END:VCARD\n";
    }

    std::mt19937 m_random;
};

void ExpectLaws( unsigned a_seeds )
{
    for ( unsigned seed = 0; seed < a_seeds; ++seed )
    {
        RandomBooks books( seed );
        const PimContactBook old = books.Book();
        const PimContactBook other = seed % 2 == 0 ? books.Book() : books.BookLike( old );
        ASSERT_EQ( BrokenChangeLaw( old, other ), "" ) << "seed " << seed;
    }
}

} // namespace

TEST( ChangeLawsTest, HoldForRandomBooks )
{
    ExpectLaws( 2000 );
}

TEST( ChangeLawsTest, HoldForManyBooks )
{
    ExpectLaws( 100000 );
}

TEST( ChangeLawsTest, HoldForChangedBooks )
{
    for ( quint32 seed = 0; seed < 15; ++seed )
    {
        const ChangedBooks books = ChangedBookGenerator( seed ).Make( 60 );
        EXPECT_EQ(
            BrokenChangeLaw( PimContactBook::FromBytes( books.m_old ), PimContactBook::FromBytes( books.m_new ) ), "" )
            << "seed " << seed;
    }
}

} // namespace PimManager::PhoneBook
