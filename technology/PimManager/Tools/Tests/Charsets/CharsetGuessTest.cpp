#include "Charsets/CharsetGuess.h"

#include "Charsets/RegionalBook.h"
#include "Charsets/UndeclaredWords.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

using NamesOf = std::vector<RegionalNames> ( * )();

constexpr unsigned s_kBooks = 200;
constexpr int s_kContacts = 20;
constexpr int s_kLeastRight = 196;

struct GuessRow
{
    const char* m_name;
    /// The name that iconv() knows.
    const char* m_charset;
    NamesOf m_names;
};

std::ostream& operator<<( std::ostream& a_stream, const GuessRow& a_row )
{
    return a_stream << a_row.m_name;
}

class CharsetGuessTest : public ::testing::TestWithParam<GuessRow>
{
};

std::string RowName( const ::testing::TestParamInfo<GuessRow>& a_info )
{
    return a_info.param.m_name;
}

// The books of a row are in its languages by turns.
QByteArray BookOf( NamesOf a_names, unsigned a_seed, int a_contacts = s_kContacts )
{
    const std::vector<RegionalNames> names = a_names();
    return RegionalBook( names[a_seed % names.size()], a_seed ).Cards( a_contacts );
}

std::string GuessOf( const QByteArray& a_book )
{
    const PimContactCharset charset = GuessCharset( a_book );
    return charset.IsKnown() ? charset.Name().toStdString() : "none";
}

QByteArray CardOf( const QByteArray& a_line )
{
    return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + a_line + "\r\nEND:VCARD\r\n";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Sets, CharsetGuessTest,
    ::testing::Values( GuessRow{ "Windows1251", "CP1251", RussianNames }, GuessRow{ "Koi8R", "KOI8-R", RussianNames },
                       GuessRow{ "Cp932", "CP932", JapaneseNames }, GuessRow{ "Gbk", "GBK", SimplifiedChineseNames },
                       GuessRow{ "Big5", "BIG5", TraditionalChineseNames }, GuessRow{ "Uhc", "UHC", KoreanNames },
                       GuessRow{ "Iso8859Part2", "ISO-8859-2", CentralEuropeanNames },
                       GuessRow{ "Windows1250", "CP1250", CentralEuropeanNames },
                       GuessRow{ "Windows1252", "CP1252", WesternEuropeanNames } ),
    RowName );

// A guess is right if it decodes the book to the text that it was made of.
TEST_P( CharsetGuessTest, NearlyAllBooksOfTwentyContactsAreRight )
{
    int right = 0;
    std::string others;
    for ( unsigned seed = 0; seed < s_kBooks; ++seed )
    {
        const QByteArray text = BookOf( GetParam().m_names, seed );
        const QByteArray book = Encoded( text, GetParam().m_charset );
        const PimContactCharset guess = GuessCharset( book );
        if ( guess.IsKnown() && guess.Decode( book ) == QString::fromUtf8( text ) )
            ++right;
        else
            others += "book " + std::to_string( seed ) + ": " + GuessOf( book ) + '\n';
    }
    EXPECT_GE( right, s_kLeastRight ) << others;
    RecordProperty( "right", right );
}

TEST_P( CharsetGuessTest, SameBookInUtf8HasNone )
{
    for ( unsigned seed = 0; seed < s_kBooks; ++seed )
        EXPECT_EQ( GuessOf( BookOf( GetParam().m_names, seed ) ), "none" ) << "book " << seed;
}

TEST_P( CharsetGuessTest, OnlyWholeLinesOfTheStartCount )
{
    const QByteArray book = Encoded( BookOf( GetParam().m_names, 3 ), GetParam().m_charset );
    const std::string expected = GuessOf( book );
    QByteArray start = book + "BEGIN:VCARD\r\nVERSION:2.1\r\nNOTE:";
    start = start.leftJustified( static_cast<int>( s_kGuessedStart ) - 1, 'x' ) + '\xFF';
    EXPECT_NE( expected, "none" );
    EXPECT_EQ( GuessOf( start ), expected );
    EXPECT_EQ( GuessOf( start + "\xFE\r\nFN:\xFF\xFE\r\nEND:VCARD\r\n" ), expected );
}

TEST( CharsetGuessTest, CertainBooks )
{
    struct Row
    {
        QByteArray m_book;
        const char* m_guess;
    };
    const QByteArray russian = BookOf( RussianNames, 1 );
    const QByteArray hungarian = RegionalBook( CentralEuropeanNames().at( 2 ), 1 ).Cards( s_kContacts );
    const QByteArray german = RegionalBook( WesternEuropeanNames().front(), 1 ).Cards( s_kContacts );
    for ( const Row& row : {
              Row{ "", "none" },
              Row{ "no card at all \xC1", "none" },
              Row{ CardOf( "FN:Jane Doe" ), "none" },
              Row{ CardOf( "FN;CHARSET=KOI8-R:\xC1\xC2\xD7" ), "none" },
              Row{ CardOf( "PHOTO;BASE64:\xC1\xC2\xD7" ), "none" },
              Row{ CardOf( "FN:\xFF\xFE\x81\x8D\x90\x9D" ), "none" },
              Row{ CardOf( "FN:\xC1" ), "none" },
              Row{ CardOf( "FN:Ren\xE9 M\xFCller" ), "windows-1252" },
              Row{ Encoded( german, "CP1250" ), "windows-1252" },
              Row{ Encoded( hungarian, "CP1250" ), "ISO-8859-2" },
              Row{ Encoded( russian, "IBM866" ), "IBM866" },
              Row{ Encoded( russian, "ISO-8859-5" ), "ISO-8859-5" },
              Row{ Encoded( BookOf( JapaneseNames, 1 ), "EUC-JP" ), "EUC-JP" },
              Row{ russian + CardOf( "FN;QUOTED-PRINTABLE:=C8=E2=E0=ED=EE=E2 =CF=E5=F2=F0=EE=E2=E8=F7=20" ),
                   "windows-1251" },
          } )
        EXPECT_EQ( GuessOf( row.m_book ), row.m_guess ) << row.m_book.toPercentEncoding().left( 200 ).data();
}

// The sample is full of other words when half a character rules out the character sets of Japanese.
TEST( CharsetGuessTest, EveryByteOfTheStartMustFit )
{
    QByteArray japanese = Encoded( BookOf( JapaneseNames, 1 ), "CP932" );
    for ( int i = 0; i < 3000; ++i )
        japanese += CardOf( "FN:\x8E\x52\x93\x63" + QByteArray::number( i ) );
    EXPECT_EQ( GuessOf( japanese ), "Shift_JIS" );
    const QByteArray cut = japanese + CardOf( "FN:\x83" );
    EXPECT_EQ( UndeclaredWordsOf( cut ).m_sample, UndeclaredWordsOf( japanese ).m_sample );
    EXPECT_NE( GuessOf( cut ), "Shift_JIS" );
}
