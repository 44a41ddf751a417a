#include "Writing/VCardText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

// A text of visible ASCII and blanks, as 2.1 writes it.
struct Row
{
    std::string_view m_head;
    ValueShape m_shape;
    std::string m_value;
    bool m_isShort;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_head << ':' << a_row.m_value;
}

const std::vector<Row> s_kRows = {
    { "FN", ValueShape::Single, "", true },
    { "FN", ValueShape::Single, "a b", true },
    { "FN", ValueShape::Single, " a", true },
    { "FN", ValueShape::Single, "a ", false },
    { "FN", ValueShape::Single, "a\t", false },
    { "FN", ValueShape::Single, std::string( 72, 'a' ), true },
    { "FN", ValueShape::Single, std::string( 73, 'a' ), false },
    { "FN", ValueShape::Single, std::string( 36, ';' ), true },
    { "FN", ValueShape::Single, std::string( 37, ';' ), false },
    { "NOTE;X-ABCDEF", ValueShape::Single, std::string( 61, 'a' ), true },
    { "NOTE;X-ABCDEF", ValueShape::Single, std::string( 62, 'a' ), false },
};

class VCardTextRowTest : public testing::TestWithParam<Row>
{
};

INSTANTIATE_TEST_SUITE_P( Values, VCardTextRowTest, testing::ValuesIn( s_kRows ) );

Property PropertyOfText( std::string_view a_name, std::string_view a_text )
{
    Property property;
    property.m_name = a_name;
    property.m_property = PropertyOf( a_name );
    property.SetText( a_text );
    return property;
}

} // namespace

TEST_P( VCardTextRowTest, ShortValueIsNotEncoded )
{
    const Row& row = GetParam();
    const LineHeadText head = { {}, row.m_head };
    EXPECT_EQ( VCardText::IsShort( head, row.m_value, row.m_shape ), row.m_isShort );
    QByteArray out;
    VCardText text( PimContactVersion::V21, out );
    text.TakeOldTexts( head, { { row.m_value, 0 } }, row.m_shape );
    EXPECT_EQ( out.contains( "QUOTED-PRINTABLE" ), !row.m_isShort ) << out.constData();
}

TEST( VCardTextTest, ComponentsAreShortWithTheirSemicolons )
{
    const std::string value = std::string( 35, 'a' ) + ';' + std::string( 37, 'b' );
    EXPECT_TRUE( VCardText::IsShort( { "g.", "N" }, value.substr( 2 ), ValueShape::Components ) );
    EXPECT_FALSE( VCardText::IsShort( { "g.", "N" }, value.substr( 1 ), ValueShape::Components ) );
}

TEST( VCardTextTest, ValueIsWrittenAsItIsAndFolded )
{
    QByteArray out;
    VCardText text( PimContactVersion::V30, out );
    text.TakeValue( { "item1.", "TEL;TYPE=HOME" }, "1\\,2" );
    EXPECT_EQ( out.toStdString(), "item1.TEL;TYPE=HOME:1\\,2\r\n" );
    out.clear();
    text.TakeValue( { {}, "NOTE" }, std::string( 80, 'a' ) );
    EXPECT_EQ( out.toStdString(), "NOTE:" + std::string( 70, 'a' ) + "\r\n " + std::string( 10, 'a' ) + "\r\n" );
}

TEST( VCardTextTest, UnfoldedValueStaysInOneLine )
{
    QByteArray out;
    VCardText text( PimContactVersion::V30, out );
    text.SetUnfolded();
    text.TakeValue( { {}, "NOTE" }, std::string( 80, 'a' ) );
    EXPECT_EQ( out.toStdString(), "NOTE:" + std::string( 80, 'a' ) + "\r\n" );
}

TEST( VCardTextTest, HeadIsThatOfTheLastProperty )
{
    QByteArray out;
    VCardText text( PimContactVersion::V21, out );
    const std::string number( 80, '1' );
    Property property = PropertyOfText( "TEL", number );
    property.m_group = "item1";
    property.m_parameters = { { "TYPE", "HOME", StandardParameter::Type }, { "TYPE", "foo", StandardParameter::Type } };
    text.Take( property );
    EXPECT_EQ( text.Head(), "TEL;HOME;TYPE=foo" );
    text.Take( PropertyOfText( "FN", "a" ) );
    EXPECT_EQ( text.Head(), "FN" );
}

// A word that is the name of a character set is no bare type.
TEST( VCardTextTest, TypesOf21AreBare )
{
    QByteArray out;
    VCardText text( PimContactVersion::V21, out );
    Property property = PropertyOfText( "TEL", "1" );
    for ( const std::string_view word : { "home", "X-a", "X-EUC-JP", "X-a,b", "foo" } )
        property.m_parameters.push_back( { "TYPE", word, StandardParameter::Type } );
    text.Take( property );
    EXPECT_EQ( out.toStdString(), "TEL;home;X-a;TYPE=X-EUC-JP;TYPE=\"X-a,b\";TYPE=foo:1\r\n" );
}

TEST( VCardTextTest, EncodedTextHasNoBlanksInARowAndNoColons )
{
    QByteArray out;
    VCardText text( PimContactVersion::V21, out );
    const std::string head = ";ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:";
    text.Take( PropertyOfText( "FN", " a  b:c=d\\;,\n\xC3\xA4" ) );
    EXPECT_EQ( out.toStdString(), "FN" + head + "=20a =20b=3Ac=3Dd=5C;,=0D=0A=\r\n=C3=A4\r\n" );
    out.clear();
    text.TakeOldTexts( { {}, "N" }, { { "a;b,c\n", 0 }, { " d", 1 } }, ValueShape::Components );
    EXPECT_EQ( out.toStdString(), "N" + head + "a\\;b,c=0D=0A;=20d\r\n" );
    out.clear();
    text.TakeOldTexts( { {}, "X-A" }, { { "a;b,c", 0 }, { "d", 0 } }, ValueShape::List );
    EXPECT_EQ( out.toStdString(), "X-A" + head + "a;b=2Cc,d\r\n" );
}

} // namespace PimManager::Contacts
