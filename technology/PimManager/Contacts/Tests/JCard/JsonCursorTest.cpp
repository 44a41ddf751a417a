#include "JCard/JsonCursor.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct StringRow
{
    std::string_view m_json;
    std::string_view m_decoded;
    std::string_view m_escaped;
    qint64 m_errors = 0;
    size_t m_firstError = 0;
};

std::string StringIn( const StringRow& a_row, StringForm a_form )
{
    JsonCursor json( a_row.m_json );
    std::string out;
    EXPECT_TRUE( json.AppendString( out, a_form ) ) << a_row.m_json;
    EXPECT_EQ( json.Length(), a_row.m_json.size() ) << a_row.m_json;
    EXPECT_EQ( json.Errors(), a_row.m_errors ) << a_row.m_json;
    EXPECT_EQ( json.FirstError(), a_row.m_firstError ) << a_row.m_json;
    return out;
}

} // namespace

TEST( JsonCursorTest, StringsAreDecoded )
{
    const std::vector<StringRow> rows = {
        { R"("")", "", "" },
        { R"("plain")", "plain", "plain" },
        { R"(  "blanks before")", "blanks before", "blanks before" },
        { R"("a long text, with; delimiters")", "a long text, with; delimiters", R"(a long text\, with\; delimiters)" },
        { R"("12345678,90123456;8")", "12345678,90123456;8", R"(12345678\,90123456\;8)" },
        { R"("\"\\\/")", R"("\/)", R"("\\/)" },
        { R"("\t\b\f")", "\t\b\f", "\t\b\f" },
        { R"("a\nb\r\nc\rd")", "a\nb\nc\nd", R"(a\nb\nc\nd)" },
        { R"("\r\r\n\n")", "\n\n\n", R"(\n\n\n)" },
        { R"("\r\u000a")", "\n", R"(\n)" },
        { R"("\u0041\u00e9\u6F22")", "A\xC3\xA9\xE6\xBC\xA2", "A\xC3\xA9\xE6\xBC\xA2" },
        { R"("\u002c\u003B\u005c")", ",;\\", R"(\,\;\\)" },
        { R"("\ud83d\ude00")", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80" },
        { R"("\u0000")", "\0"sv, "\0"sv },
        { "\"\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80\"", "\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80",
          "\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80" },
        { R"("\'")", "'", "'", 1, 1 },
        { R"("a\,b")", "a,b", R"(a\,b)", 1, 2 },
        { R"("\ud83d")", "\xEF\xBF\xBD", "\xEF\xBF\xBD", 1, 1 },
        { R"("\ude00\ud83dx")", "\xEF\xBF\xBD\xEF\xBF\xBDx", "\xEF\xBF\xBD\xEF\xBF\xBDx", 2, 1 },
        { R"("\ud83d\u0041")", "\xEF\xBF\xBD\x41", "\xEF\xBF\xBD\x41", 1, 1 },
        { R"("\ud83d\ud83d\ude00")", "\xEF\xBF\xBD\xF0\x9F\x98\x80", "\xEF\xBF\xBD\xF0\x9F\x98\x80", 1, 1 },
        { R"("\u12")", "u12", "u12", 1, 1 },
        { R"("\uzzzz")", "uzzzz", "uzzzz", 1, 1 },
        { "\"a\nb\"", "a\nb", R"(a\nb)", 1, 2 },
        { "\"a\tb\0\""sv, "a\tb\0"sv, "a\tb\0"sv, 2, 2 },
    };
    for ( const StringRow& row : rows )
    {
        const std::string_view json( row.m_json );
        EXPECT_EQ( StringIn( row, StringForm::Decoded ), row.m_decoded ) << json;
        EXPECT_EQ( StringIn( row, StringForm::Escaped ), row.m_escaped ) << json;
    }
}

TEST( JsonCursorTest, OneLineKeepsDelimiters )
{
    EXPECT_EQ( StringIn( { R"("a,b;c\\d\r\ne")", "", "" }, StringForm::OneLine ), R"(a,b;c\d\ne)" );
}

TEST( JsonCursorTest, StringsThatAreCutOffAreRefusedWhereverTheCutIs )
{
    const std::string_view json = R"("a\n\u00e9\ud83d\ude00, and more")";
    for ( size_t length = 0; length < json.size(); ++length )
    {
        JsonCursor cursor( json.substr( 0, length ) );
        std::string out;
        EXPECT_FALSE( cursor.AppendString( out, StringForm::Escaped ) ) << length;
        EXPECT_LE( cursor.Length(), length );
    }
}

TEST( JsonCursorTest, WordsEndAtDelimiters )
{
    JsonCursor json( " 12.5e-3 ,true]{}\"x\" 7" );
    EXPECT_EQ( json.TakeWord(), "12.5e-3" );
    EXPECT_TRUE( json.Take( ',' ) );
    EXPECT_EQ( json.TakeWord(), "true" );
    EXPECT_FALSE( json.Take( '[' ) );
    EXPECT_TRUE( json.Take( ']' ) && json.Take( '{' ) && json.Take( '}' ) );
    std::string out;
    EXPECT_TRUE( json.AppendString( out, StringForm::Decoded ) );
    // It may continue.
    EXPECT_EQ( json.TakeWord(), "" );
    EXPECT_EQ( json.Peek(), '7' );
}

TEST( JsonCursorTest, QuotesAndBackslashesAreFoundInEveryPlace )
{
    for ( size_t place = 0; place < 20; ++place )
    {
        for ( const char wanted : { '"', '\\' } )
        {
            std::string text( 20, '\x01' );
            text[place] = wanted;
            const char* const begin = text.data();
            EXPECT_EQ( FindQuoteOrBackslash( begin, begin + text.size() ), begin + place );
            EXPECT_EQ( FindQuoteOrBackslash( begin, begin + place ), begin + place );
        }
    }
}

} // namespace PimManager::Contacts
