#include "Charsets/GuessedCharset.h"

#include "Charsets/UndeclaredWords.h"
#include "Checks/TrickleDevice.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <gtest/gtest.h>

#include <QBuffer>

#include <ostream>
#include <string>

using namespace PimManager::Contacts;
using namespace PimManager::Tools;

namespace
{

QByteArray CardOf( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

// Ivan Petrov, in KOI8-R; the same name in UTF-8, and in KOI8-R where the line says so.
const char* const s_kRussian = "FN:\xE9\xD7\xC1\xCE \xF0\xC5\xD4\xD2\xCF\xD7";
const char* const s_kUtf8 = "FN:\xD0\x98\xD0\xB2\xD0\xB0\xD0\xBD";
const char* const s_kNamed = "FN;CHARSET=KOI8-R:\xE9\xD7\xC1\xCE";

struct GuessedRow
{
    const char* m_name;
    QByteArray m_book;
    const char* m_charset;
    /// Behind the name of the book; empty for none.
    std::string m_note;
};

std::ostream& operator<<( std::ostream& a_stream, const GuessedRow& a_row )
{
    return a_stream << a_row.m_name;
}

class GuessedCharsetTest : public ::testing::TestWithParam<GuessedRow>
{
};

std::string RowName( const ::testing::TestParamInfo<GuessedRow>& a_info )
{
    return a_info.param.m_name;
}

// The note on a book that is read from a device.
std::string NoteOn( GuessedCharset& a_charset )
{
    PimContactOptions options;
    options.SetDefaultCharset( a_charset.Name() );
    PimContactReader reader( options );
    PimContactCard card;
    while ( reader.Next( a_charset.Device(), card ) == PimContactNext::Card )
        a_charset.Count( card );
    EXPECT_EQ( reader.Next( a_charset.Device(), card ), PimContactNext::End );
    return a_charset.Note( QStringLiteral( "book" ) ).toStdString();
}

// A book whose start, as far as it is looked at, is a name in KOI8-R and ASCII.
QByteArray LongBook( const QByteArray& a_rest )
{
    return CardOf( s_kRussian ) + CardOf( "NOTE:" + QByteArray( static_cast<int>( s_kGuessedStart ), 'x' ) ) + a_rest;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Books, GuessedCharsetTest,
    ::testing::Values(
        GuessedRow{ "Empty", "", "windows-1252", "" }, GuessedRow{ "Ascii", CardOf( "FN:Jane" ), "windows-1252", "" },
        GuessedRow{ "Utf8", CardOf( s_kUtf8 ), "windows-1252", "" },
        GuessedRow{ "Named", CardOf( s_kNamed ), "windows-1252", "" },
        GuessedRow{ "OneCard", CardOf( s_kRussian ), "KOI8-R",
                    "book: 1 card names no character set and was read as KOI8-R, which was guessed from its letters. "
                    "Use --charset NAME if names look wrong." },
        GuessedRow{ "OnlyCardsInTheDefaultCount",
                    CardOf( s_kNamed ) + CardOf( s_kRussian ) + CardOf( s_kUtf8 ) + CardOf( "FN:Jane" ) +
                        CardOf( "FN;QUOTED-PRINTABLE:=E9=D7=C1=CE" ),
                    "KOI8-R",
                    "book: 2 cards name no character set and were read as KOI8-R, which was guessed from their "
                    "letters. Use --charset NAME if names look wrong." },
        GuessedRow{ "CardsBehindTheStartCount", LongBook( CardOf( s_kRussian ) + CardOf( s_kRussian ) ), "KOI8-R",
                    "book: 3 cards name no character set and were read as KOI8-R, which was guessed from their "
                    "letters. Use --charset NAME if names look wrong." },
        GuessedRow{ "OneCardNotKnown", CardOf( "FN:\xFF\xFE\x81\x8D\x90\x9D" ), "windows-1252",
                    "book: 1 card names no character set and was read as windows-1252. "
                    "Use --charset NAME if names look wrong." },
        GuessedRow{ "CardsNotKnown", CardOf( "FN:\xFF\xFE\x81\x8D\x90\x9D" ).repeated( 3 ), "windows-1252",
                    "book: 3 cards name no character set and were read as windows-1252. "
                    "Use --charset NAME if names look wrong." },
        GuessedRow{ "OnlyAParameter", CardOf( "TEL;X-A=\xE9:1" ), "windows-1252",
                    "book: 1 card names no character set and was read as windows-1252. "
                    "Use --charset NAME if names look wrong." } ),
    RowName );

TEST_P( GuessedCharsetTest, FileIsReadInTheGuess )
{
    QBuffer file;
    file.setData( GetParam().m_book );
    file.open( QIODevice::ReadOnly );
    GuessedCharset charset( file );
    EXPECT_EQ( charset.Name(), GetParam().m_charset );
    EXPECT_EQ( NoteOn( charset ), GetParam().m_note );
}

TEST_P( GuessedCharsetTest, PipeIsReadLikeTheFile )
{
    Checks::TrickleDevice pipe( GetParam().m_book, 1, 100000 );
    pipe.open( QIODevice::ReadOnly );
    GuessedCharset charset( pipe );
    while ( pipe.Arrive() )
    {
    }
    EXPECT_EQ( charset.Name(), GetParam().m_charset );
    EXPECT_EQ( NoteOn( charset ), GetParam().m_note );
}
