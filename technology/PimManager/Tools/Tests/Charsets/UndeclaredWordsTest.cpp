#include "Charsets/UndeclaredWords.h"

#include <gtest/gtest.h>

#include <string>

using namespace PimManager::Tools;

namespace
{

QByteArray CardOf( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

QByteArray SampleOf( const QByteArray& a_book )
{
    return UndeclaredWordsOf( a_book ).m_sample;
}

} // namespace

TEST( UndeclaredWordsTest, WordsOfEachKindOfLine )
{
    struct Row
    {
        const char* m_name;
        QByteArray m_book;
        std::string m_words;
    };
    for ( const Row& row : {
              Row{ "empty", "", "" },
              Row{ "ASCII", CardOf( "FN:Jane" ), "" },
              Row{ "UTF-8", CardOf( "FN:\xC3\xA9t\xC3\xA9" ), "" },
              Row{ "outside cards", "FN:\xE9", "" },
              Row{ "one word", CardOf( "FN:Ren\xE9" ), "Ren\xE9\n" },
              Row{ "words with a byte beyond ASCII", CardOf( "FN:Ren\xE9 Doe Zo\xEB" ), "Ren\xE9\nZo\xEB\n" },
              Row{ "punctuation", CardOf( "ADR:;;\xE9 1,\xE8-\xEA;\xEB.\xEC/(\xED)" ),
                   "\xE9\n\xE8\n\xEA\n\xEB\n\xEC\n\xED\n" },
              Row{ "second bytes", CardOf( "FN:\x83\x5C\x83\x40\x81\x30\x81\x39" ),
                   "\x83\x5C\x83\x40\x81\x30\x81\x39\n" },
              Row{ "each word once", CardOf( "N:\xE9;\xE8\r\nFN:\xE8 \xE9\r\nORG:\xEA" ), "\xE9\n\xE8\n\xEA\n" },
              Row{ "named character set", CardOf( "FN;CHARSET=KOI8-R:\xE9" ), "" },
              Row{ "named in another card", CardOf( "FN;CHARSET=KOI8-R:\xE9" ) + CardOf( "FN:\xE8" ), "\xE8\n" },
              Row{ "QUOTED-PRINTABLE", CardOf( "FN;QUOTED-PRINTABLE:=E9a=20b" ),
                   "\xE9"
                   "a\n" },
              Row{ "pictures", CardOf( "PHOTO;BASE64:\xE9" ), "" },
              Row{ "nested card", CardOf( "FN:\xE9\r\nAGENT:\r\n" + CardOf( "FN:\xE8" ) ), "\xE9\n\xE8\n" },
              Row{ "card without END", "BEGIN:VCARD\r\nFN:\xE9", "\xE9\n" },
          } )
        EXPECT_EQ( SampleOf( row.m_book ).toStdString(), row.m_words ) << row.m_name;
}

TEST( UndeclaredWordsTest, LineThatMayGoOnIsLeftOut )
{
    const QByteArray line = "BEGIN:VCARD\r\nFN:\xE9\r\nNOTE:";
    const auto room = static_cast<int>( s_kGuessedStart - line.size() );
    EXPECT_EQ( SampleOf( line + QByteArray( room - 3, 'x' ) + " \xE8" ), "\xE9\n\xE8\n" );
    EXPECT_EQ( SampleOf( line + QByteArray( room - 2, 'x' ) + " \xE8" ), "\xE9\n" );
    EXPECT_EQ( SampleOf( line + QByteArray( room - 1, 'x' ) + " \xE8\r\nFN:\xEA" ), "\xE9\n" );
}

TEST( UndeclaredWordsTest, EndlessWordIsNotInTheSample )
{
    EXPECT_EQ( SampleOf( CardOf( "NOTE:" + QByteArray( 4096, '\xE9' ) ) ).size(), 4097 );
    const UndeclaredWords words = UndeclaredWordsOf( CardOf( "NOTE:" + QByteArray( 4097, '\xE9' ) + " \xE8" ) );
    EXPECT_EQ( words.m_sample, "\xE8\n" );
    EXPECT_EQ( words.m_all, QByteArray( 4097, '\xE9' ) + "\n\xE8\n" );
}

TEST( UndeclaredWordsTest, SampleHasEachWordOnceAndNotAllOfAnEndlessBook )
{
    QByteArray book;
    QByteArray all;
    for ( int i = 0; i < 10000; ++i )
    {
        const QByteArray word = "\xE9" + QByteArray::number( i );
        book += CardOf( "N:" + word + "\r\nFN:" + word );
        all += word + '\n' + word + '\n';
    }
    const UndeclaredWords words = UndeclaredWordsOf( book );
    EXPECT_TRUE( words.m_all == all );
    EXPECT_GT( words.m_sample.size(), 16000 );
    EXPECT_LT( words.m_sample.size(), 17000 );
    EXPECT_EQ( words.m_sample.count( "\xE9" ), words.m_sample.count( '\n' ) );
    EXPECT_EQ( words.m_sample.count( "1234\n" ), 1 );
}
