#include "Contact/FieldWriter.h"

#include "EditedContacts.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct Text
{
    const char* m_name;
    QString m_text;
};

// What a text of that kind is as well: white space at both ends is not kept.
const std::vector<Text>& Texts()
{
    static const std::vector<Text> s_texts = {
        { "Delimiters", QStringLiteral( "a;b,c:d=e.f" ) },
        { "OnlyDelimiters", QStringLiteral( ";,:=." ) },
        { "Backslashes", QStringLiteral( "a\\nb\\\\c\\,d\\;e\\" ) },
        { "Quotes", QStringLiteral( "\"a\" 'b' \"" ) },
        { "Carets", QStringLiteral( "^n ^' ^^ ^" ) },
        { "LineFeeds", QStringLiteral( "a\n\nb" ) },
        { "CarriageReturn", QStringLiteral( "a\rEND:VCARD\rb" ) },
        { "CarriageReturnLineFeed", QStringLiteral( "a\r\nEND:VCARD\r\nb" ) },
        { "UnicodeLineEnds", QString( QStringLiteral( "a%1TEL:1%2b%3c" ) )
                                 .arg( QChar( 0x2028 ) )
                                 .arg( QChar( 0x2029 ) )
                                 .arg( QChar( 0x85 ) ) },
        { "VerticalTabFormFeed", QString( QStringLiteral( "a%1TEL:1%2b" ) ).arg( QChar( 0x0B ) ).arg( QChar( 0x0C ) ) },
        { "NulEscapeDelete",
          QString( QStringLiteral( "a%1b%2$Bc%3d" ) ).arg( QChar( 0 ) ).arg( QChar( 0x1B ) ).arg( QChar( 0x7F ) ) },
        { "Tab", QStringLiteral( "a\tb" ) },
        { "Equals", QStringLiteral( "a=0D=0Ab=" ) },
        { "EqualsAndWide", QString( QStringLiteral( "=3D%1=" ) ).arg( QChar( 0xE9 ) ) },
        { "Wide", QString::fromUtf8( "J\xC3\xB6rg \xE6\x9D\xB1 \xF0\x9F\x98\x80" ) },
        { "ByteOrderMark", QString( QStringLiteral( "a%1b" ) ).arg( QChar( 0xFEFF ) ) },
        { "Boundary", QStringLiteral( "BEGIN:VCARD\nEND:VCARD" ) },
        { "Long", QString( 3000, QLatin1Char( 'x' ) ) + QStringLiteral( "\n y" ) },
    };
    return s_texts;
}

/// What every version can hold of a text: line feeds as line breaks, and no control characters.
QString Kept( const QString& a_text )
{
    QString text = a_text;
    text.replace( QStringLiteral( "\r\n" ), QStringLiteral( "\n" ) )
        .replace( QLatin1Char( '\r' ), QLatin1Char( '\n' ) );
    QString kept;
    for ( const QChar character : std::as_const( text ) )
    {
        if ( character >= QLatin1Char( ' ' ) || character == QLatin1Char( '\n' ) || character == QLatin1Char( '\t' ) )
            kept += character;
    }
    return kept;
}

PimContactVersion VersionNamed( const std::string& a_version )
{
    return a_version == "2.1" ? PimContactVersion::V21
                              : ( a_version == "3.0" ? PimContactVersion::V30 : PimContactVersion::V40 );
}

/// Reads a line between two others, which must not change.
PimContactLine ReadLine( const char* a_version, const QByteArray& a_line, const std::string& a_row )
{
    const PimContact contact = ContactIn( a_version, "X-BEFORE:1\r\n" + a_line + "\r\nX-BEHIND:2\r\n" );
    const QList<int> ids = contact.LineIds();
    EXPECT_EQ( ids.size(), 4 ) << a_row << ' ' << a_line.toStdString();
    EXPECT_EQ( contact.Line( 2 ).Bytes(), QByteArray( "X-BEFORE:1\r\n" ) ) << a_row;
    EXPECT_EQ( contact.Line( 4 ).Bytes(), QByteArray( "X-BEHIND:2\r\n" ) ) << a_row;
    return contact.Line( 3 );
}

class FieldWriterTest : public testing::TestWithParam<const char*>
{
protected:
    FieldWriter Writer( std::string_view a_name ) const { return FieldWriter( VersionNamed( GetParam() ), a_name ); }
    PimContactLine Read( const QByteArray& a_line, const std::string& a_row ) const
    {
        return ReadLine( GetParam(), a_line, a_row );
    }
};

} // namespace

TEST_P( FieldWriterTest, TextIsReadBack )
{
    for ( const Text& text : Texts() )
    {
        FieldWriter writer = Writer( "NOTE" );
        writer.SetText( text.m_text );
        EXPECT_EQ( Read( writer.Line( QByteArray() ), text.m_name ).Text(), Kept( text.m_text ) ) << text.m_name;
    }
}

TEST_P( FieldWriterTest, PlainValueIsReadBackOnOneLine )
{
    for ( const Text& text : Texts() )
    {
        FieldWriter writer = Writer( "URL" );
        writer.SetPlain( text.m_text );
        QString expected = Kept( text.m_text );
        expected.replace( QLatin1Char( '\n' ), QLatin1Char( ' ' ) );
        EXPECT_EQ( Read( writer.Line( QByteArray() ), text.m_name ).Text(), expected ) << text.m_name;
    }
}

TEST_P( FieldWriterTest, ElementsOfListAreReadBack )
{
    for ( const Text& text : Texts() )
    {
        FieldWriter writer = Writer( "NICKNAME" );
        writer.SetList( { text.m_text, QString(), QStringLiteral( "next" ) } );
        const QStringList expected = { Kept( text.m_text ), QStringLiteral( "next" ) };
        EXPECT_EQ( Read( writer.Line( QByteArray() ), text.m_name ).List(), expected ) << text.m_name;
    }
}

TEST_P( FieldWriterTest, ComponentsAreReadBack )
{
    for ( const Text& text : Texts() )
    {
        FieldWriter writer = Writer( "ORG" );
        writer.SetComponents( { { QStringLiteral( "first" ) }, { text.m_text }, {} } );
        const QStringList expected = { QStringLiteral( "first" ), Kept( text.m_text ), QString() };
        EXPECT_EQ( Read( writer.Line( QByteArray() ), text.m_name ).Components(), expected ) << text.m_name;
    }
}

// 2.1 has no escapes in parameters.
TEST_P( FieldWriterTest, ParameterIsReadBack )
{
    for ( const Text& text : Texts() )
    {
        QString expected = Kept( text.m_text );
        if ( GetParam() == std::string( "2.1" ) )
            expected.replace( QLatin1Char( '"' ), QLatin1Char( '\'' ) )
                .replace( QLatin1Char( '\n' ), QLatin1Char( ' ' ) );
        for ( const char* const name : { "LANGUAGE", "X-ANY", "LABEL" } )
        {
            FieldWriter writer = Writer( "ADR" );
            writer.AddParameter( name, text.m_text );
            writer.AddParameter( "CC", QStringLiteral( "DE" ) );
            writer.SetText( QStringLiteral( "value" ) );
            const PimContactLine line = Read( writer.Line( "item1" ), text.m_name );
            EXPECT_EQ( line.Parameter( QLatin1String( name ) ), QStringList( expected ) ) << name << ' ' << text.m_name;
            EXPECT_EQ( line.Parameter( QLatin1String( "CC" ) ), QStringList( QStringLiteral( "DE" ) ) ) << text.m_name;
            EXPECT_EQ( line.Text(), QLatin1String( "value" ) ) << name << ' ' << text.m_name;
            EXPECT_EQ( line.Group(), QByteArray( "item1" ) ) << text.m_name;
        }
    }
}

TEST_P( FieldWriterTest, EmptyParametersAreLeftOut )
{
    FieldWriter writer = Writer( "NOTE" );
    writer.AddParameter( "LANGUAGE", QString() );
    writer.AddParameter( "X-ANY", { QString(), QString( QChar( 1 ) ) } );
    writer.AddTypes( {} );
    writer.SetText( QStringLiteral( "x" ) );
    EXPECT_EQ( writer.Line( QByteArray() ), QByteArray( "NOTE:x" ) );
}

TEST_P( FieldWriterTest, BytesAreReadBack )
{
    const std::array<QByteArray, 3> contents = { QByteArray( "\xFF\xD8\xFF\xE0 picture" ), QByteArray( 1, '\0' ),
                                                 QByteArray( 5000, '\xA5' ) };
    for ( const QByteArray& content : contents )
    {
        for ( const char* const type : { "image/jpeg", "", "video/mp4", "a;b,c\r\nEND:VCARD" } )
        {
            FieldWriter writer = Writer( "PHOTO" );
            writer.SetBytes( content, QString::fromLatin1( type ) );
            const PimContactBinary binary = Read( writer.Line( QByteArray() ), type ).Binary();
            EXPECT_EQ( binary.Bytes(), content ) << type;
            EXPECT_FALSE( binary.IsDamaged() ) << type;
        }
    }
}

INSTANTIATE_TEST_SUITE_P( Versions, FieldWriterTest, testing::ValuesIn( s_kVersions ) );

TEST( FieldWriterTextTest, EachVersionHasItsOwnForm )
{
    const auto line = []( PimContactVersion a_version, std::string_view a_name, const QString& a_text )
    {
        FieldWriter writer( a_version, a_name );
        writer.AddTypes( { QStringLiteral( "HOME" ), QStringLiteral( "WORK" ) } );
        writer.SetSingle( a_text );
        return writer.Line( QByteArray() ).toStdString();
    };
    const QString text = QString::fromUtf8( "\xC3\xB6,;" );
    EXPECT_EQ( line( PimContactVersion::V21, "NOTE", text ),
               "NOTE;TYPE=HOME;TYPE=WORK;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=B6,;" );
    EXPECT_EQ( line( PimContactVersion::V30, "NOTE", text ), "NOTE;TYPE=HOME,WORK:\xC3\xB6\\,\\;" );
    EXPECT_EQ( line( PimContactVersion::V40, "NICKNAME", text ), "NICKNAME;TYPE=HOME,WORK:\xC3\xB6\\,\\;" );
    EXPECT_EQ( line( PimContactVersion::V40, "URL", text ), "URL;TYPE=HOME,WORK:\xC3\xB6,;" );
}

} // namespace PimManager::Contacts
