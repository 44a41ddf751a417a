#include "Text/JsonText.h"

#include "Text/UnsafeCharacters.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

std::string StringJson( std::string_view a_text )
{
    QByteArray out;
    JsonText json( out );
    json.String( a_text );
    json.Finish();
    return out.toStdString();
}

QString Read( const std::string& a_string )
{
    QJsonParseError error;
    const QByteArray document = "[" + QByteArray::fromStdString( a_string ) + "]";
    const QJsonArray array = QJsonDocument::fromJson( document, &error ).array();
    EXPECT_EQ( error.error, QJsonParseError::NoError ) << a_string;
    EXPECT_EQ( array.size(), 1 ) << a_string;
    return array.at( 0 ).toString();
}

QString StringOf( uint a_character )
{
    if ( !QChar::requiresSurrogates( a_character ) )
        return QString( QChar( static_cast<ushort>( a_character ) ) );
    return QString( QChar( QChar::highSurrogate( a_character ) ) ) + QChar( QChar::lowSurrogate( a_character ) );
}

std::string_view ViewOf( const QByteArray& a_text )
{
    return std::string_view( a_text.constData(), static_cast<size_t>( a_text.size() ) );
}

struct Row
{
    std::string_view m_text;
    std::string_view m_json;
};

} // namespace

TEST( JsonTextTest, StringsAreEscaped )
{
    const std::vector<Row> rows = {
        { "", R"("")" },
        { "plain", R"("plain")" },
        { "a \"b\" \\c/", R"("a \"b\" \\c/")" },
        { "\n\r\t\0\x1B\x7F"sv, R"("\n\u000d\u0009\u0000\u001b\u007f")" },
        { "\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80", "\"\xC3\xA9\xE6\xBC\xA2\xF0\x9F\x98\x80\"" },
        { "\xC2\x85\xC2\xA0\xC2\xAD", "\"\\u0085\xC2\xA0\\u00ad\"" },
        { "\xE2\x80\xA8\xE2\x80\xA9\xE2\x80\xAE\xEF\xBB\xBF", R"("\u2028\u2029\u202e\ufeff")" },
        { "\xE2\x80\x8C\xE2\x80\x8D", "\"\xE2\x80\x8C\xE2\x80\x8D\"" },
        { "\xEF\xBF\xBE\xEF\xB7\x90\xF4\x8F\xBF\xBF", R"("\ufffe\ufdd0\udbff\udfff")" },
        { "\xF3\xA0\x81\x81", R"("\udb40\udc41")" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( StringJson( row.m_text ), row.m_json );
}

TEST( JsonTextTest, MalformedBytesAreReplaced )
{
    const std::string bad = "\xEF\xBF\xBD";
    for ( const std::string_view text :
          { "\x80"sv, "\xBF"sv, "\xC0"sv, "\xC1"sv, "\xC3"sv, "\xE2"sv, "\xF0"sv, "\xF5"sv, "\xFE"sv, "\xFF"sv } )
    {
        EXPECT_EQ( StringJson( text ), "\"" + bad + "\"" );
        EXPECT_EQ( StringJson( std::string( text ) + "a" ), "\"" + bad + "a\"" );
        EXPECT_EQ( StringJson( std::string( text ) + "\"" ), "\"" + bad + "\\\"\"" );
    }
    EXPECT_EQ( StringJson( "\xC0\xAF" ), "\"" + bad + bad + "\"" );
    EXPECT_EQ( StringJson( "\xE0\x80\xA2" ), "\"" + bad + bad + bad + "\"" );
    EXPECT_EQ( StringJson( "\xED\xA0\x80" ), "\"" + bad + bad + bad + "\"" );
    EXPECT_EQ( StringJson( "\xF4\x90\x80\x80" ), "\"" + bad + bad + bad + bad + "\"" );
    EXPECT_EQ( StringJson( "\xE2\x82" ), "\"" + bad + bad + "\"" );
}

// At each position in short and long strings, so that each way of copying meets each byte.
TEST( JsonTextTest, EveryByteIsEscapedWhereverItIs )
{
    for ( const size_t length : { 1U, 3U, 4U, 7U, 8U, 9U, 15U, 16U, 17U, 40U, 255U, 256U, 257U, 600U } )
    {
        for ( size_t place = 0; place < length; place += length < 50 ? 1 : 37 )
        {
            for ( int byte = 0; byte < 256; ++byte )
            {
                std::string text( length, 'x' );
                text[place] = static_cast<char>( byte );
                const std::string json = StringJson( text );
                const bool isPlain = byte >= 0x20 && byte < 0x7F && byte != '"' && byte != '\\';
                ASSERT_EQ( json == "\"" + text + "\"", isPlain ) << length << ' ' << place << ' ' << byte;
                ASSERT_EQ( Read( json ), QString::fromUtf8( text.data(), static_cast<int>( text.size() ) ) )
                    << length << ' ' << place << ' ' << byte;
            }
        }
    }
}

TEST( JsonTextTest, EveryCharacterIsReadAsItWas )
{
    for ( uint character = 0; character <= 0x10FFFF; ++character )
    {
        if ( QChar::isSurrogate( character ) )
            continue;
        // Qt leaves out a byte order mark at the start.
        const QString text = QLatin1Char( 'a' ) + StringOf( character );
        const QByteArray utf8 = text.toUtf8();
        const std::string json = StringJson( ViewOf( utf8 ) );
        const bool isEscaped = json.find( '\\' ) != std::string::npos;
        ASSERT_EQ( isEscaped, IsUnsafe( character ) || character == '"' || character == '\\' ) << std::hex << character;
        ASSERT_EQ( Read( json ), text ) << std::hex << character;
    }
}

TEST( JsonTextTest, RandomTextsAreReadAsTheyWere )
{
    std::mt19937 random( 7 );
    const std::vector<QByteArray> pieces = { "a",
                                             "bc",
                                             "defghijk",
                                             "\"",
                                             "\\",
                                             "\n",
                                             "\xC3\xA9",
                                             "\xF0\x9F\x98\x80",
                                             "\xE2\x80\xAE",
                                             QByteArray( 1, '\0' ),
                                             "\x1B[31m",
                                             QByteArray( 300, 'x' ) };
    for ( int round = 0; round < 2000; ++round )
    {
        QByteArray text;
        for ( auto count = random() % 12; count > 0; --count )
            text += pieces[random() % pieces.size()];
        ASSERT_EQ( Read( StringJson( ViewOf( text ) ) ), QString::fromUtf8( text.constData(), text.size() ) )
            << text.toStdString();
    }
}

TEST( JsonTextTest, UpperStringsHaveCapitals )
{
    QByteArray out;
    JsonText json( out );
    json.UpperString( "x-Name1" );
    json.UpperString( "" );
    json.UpperString( "a\"b\n\xC3\xA9z\x80" );
    json.Finish();
    EXPECT_EQ( out.toStdString(), "\"X-NAME1\"\"\"\"A\\\"B\\n\xC3\xA9Z\xEF\xBF\xBD\"" );
}

TEST( JsonTextTest, NumbersAreDecimal )
{
    QByteArray out;
    JsonText json( out );
    for ( const qint64 number :
          { qint64( 0 ), qint64( -1 ), std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min() } )
    {
        json.Number( number );
        json.Raw( "," );
    }
    json.Finish();
    EXPECT_EQ( out, "0,-1,9223372036854775807,-9223372036854775808," );
}

TEST( JsonTextTest, TextIsAppendedInsertedAndRemoved )
{
    QByteArray out = "before";
    {
        JsonText json( out );
        json.Raw( "one" );
        const size_t place = json.Place();
        json.Raw( "three" );
        json.Insert( place, "two" );
        EXPECT_EQ( json.From( place ), "twothree" );
        const size_t end = json.Place();
        json.Raw( std::string( 10000, 'x' ) );
        json.Remove( end );
        json.Insert( 0, "zero" );
        json.Finish();
    }
    EXPECT_EQ( out, "beforezeroonetwothree" );
}

TEST( JsonTextTest, AppendedAndInsertedTextMayBeEmpty )
{
    QByteArray out = "before";
    JsonText json( out );
    json.Raw( std::string_view() );
    json.Insert( 0, std::string_view() );
    json.Finish();
    EXPECT_EQ( out, "before" );
}

TEST( JsonTextTest, UnfinishedTextIsRemoved )
{
    QByteArray out = "before";
    {
        JsonText json( out );
        json.Raw( std::string( 10000, 'x' ) );
    }
    EXPECT_EQ( out, "before" );
}

TEST( JsonTextTest, SharedArrayIsNotChanged )
{
    const QByteArray original = "before";
    QByteArray out = original;
    JsonText json( out );
    json.Raw( "x" );
    json.Finish();
    EXPECT_EQ( original, "before" );
    EXPECT_EQ( out, "beforex" );
}

TEST( JsonTextTest, ClearedTextIsEmpty )
{
    JsonText json;
    for ( const size_t length : { 10U, 1000000U, 10U } )
    {
        json.Raw( std::string( length, 'x' ) );
        EXPECT_EQ( json.Place(), length );
        json.Clear();
        EXPECT_EQ( json.Place(), 0U );
    }
}

TEST( JsonTextTest, BufferKeepsItsMemory )
{
    QByteArray out;
    const char* memory = nullptr;
    for ( int i = 0; i < 10; ++i )
    {
        out.resize( 0 );
        JsonText json( out );
        json.Raw( std::string( 100000, 'x' ) );
        json.Finish();
        EXPECT_TRUE( i == 0 || out.constData() == memory );
        memory = out.constData();
    }
}

TEST( JsonTextTest, PlainStringIsAppendedOnlyIfItIsPlain )
{
    for ( const std::string_view text : { ""sv, "a"sv, "Nell"sv, "Nell Brackwater, Kirkholm"sv } )
    {
        QByteArray out;
        JsonText json( out );
        EXPECT_TRUE( json.PlainString( text ) ) << text;
        json.Finish();
        EXPECT_EQ( out.toStdString(), StringJson( text ) );
    }
    for ( const std::string_view text : { "\r"sv, "a\"b"sv, "N\xC3\xA9ll"sv, "Nell\\Brackwater"sv } )
    {
        QByteArray out;
        JsonText json( out );
        EXPECT_FALSE( json.PlainString( text ) ) << text;
        json.Finish();
        EXPECT_EQ( out, "" );
    }
}

TEST( JsonTextTest, NamesAreInLowerCase )
{
    const std::string name = "X-ABShowAs-09-Zz";
    for ( size_t length = 1; length <= name.size(); ++length )
    {
        const std::string start = name.substr( 0, length );
        QByteArray out;
        JsonText json( out );
        json.LowerName( start );
        json.Finish();
        EXPECT_EQ( out.toStdString(), '"' + QString::fromStdString( start ).toLower().toStdString() + '"' );
    }
}

} // namespace PimManager::Contacts
