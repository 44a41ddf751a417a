#include "OneLine.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactValueKind s_kText = PimContactValueKind::Text;
constexpr PimContactValueKind s_kList = PimContactValueKind::List;
constexpr PimContactValueKind s_kComponents = PimContactValueKind::Components;
constexpr PimContactValueKind s_kBinary = PimContactValueKind::Binary;

struct ValuePartsRow
{
    const char* m_name;
    const char* m_version;
    QByteArray m_line;
    PimContactValueKind m_kind;
    std::string m_values;
    std::string m_componentLists;
};

std::ostream& operator<<( std::ostream& a_stream, const ValuePartsRow& a_row )
{
    return a_stream << a_row.m_name;
}

class ValuePartsTest : public ::testing::TestWithParam<ValuePartsRow>
{
};

std::string RowName( const ::testing::TestParamInfo<ValuePartsRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Names, ValuePartsTest,
    ::testing::Values(
        ValuePartsRow{ "Note", "3.0", "NOTE:a;b,c", s_kText, "a;b,c", "[a][b,c]" },
        ValuePartsRow{ "Extension", "3.0", "X-A:a;b,c", s_kText, "a;b,c", "[a][b,c]" },
        ValuePartsRow{ "Name21", "2.1", "N:Doe;Jane,Ann;;", s_kComponents, "Doe|Jane,Ann||", "[Doe][Jane,Ann][][]" },
        ValuePartsRow{ "Name30", "3.0", "N:Doe;Jane,Ann;;", s_kComponents, "Doe|Jane,Ann||", "[Doe][Jane|Ann][][]" },
        ValuePartsRow{ "Name40", "4.0", "n:Doe;Jane,Ann;;", s_kComponents, "Doe|Jane,Ann||", "[Doe][Jane|Ann][][]" },
        ValuePartsRow{ "NameWithoutVersion", "", "N:Doe;Jane,Ann", s_kComponents, "Doe|Jane,Ann", "[Doe][Jane|Ann]" },
        ValuePartsRow{ "EscapedInName", "3.0", "N:D\\;oe;a\\,b,c", s_kComponents, "D;oe|a,b,c", "[D;oe][a,b|c]" },
        ValuePartsRow{ "EscapesAtTheStart", "3.0", "ORG:\\;a;\\\\b", s_kComponents, ";a|\\b", "[;a][\\b]" },
        ValuePartsRow{ "Address", "3.0", "ADR:;;1 Main\\, St,x;T", s_kComponents, "||1 Main, St,x|T",
                       "[][][1 Main, St|x][T]" },
        ValuePartsRow{ "Address21", "2.1", "ADR;HOME:;;1 Main, St;T", s_kComponents, "||1 Main, St|T",
                       "[][][1 Main, St][T]" },
        ValuePartsRow{ "MoreThanSevenComponents", "4.0", "ADR:1;2;3;4;5;6;7;8;9;10", s_kComponents,
                       "1|2|3|4|5|6|7|8|9|10", "[1][2][3][4][5][6][7][8][9][10]" },
        ValuePartsRow{ "Organization", "3.0", "ORG:A, B;C", s_kComponents, "A, B|C", "[A, B][C]" },
        ValuePartsRow{ "Organization21", "2.1", "ORG:A, B;C", s_kComponents, "A, B|C", "[A, B][C]" },
        ValuePartsRow{ "EmptyName", "3.0", "N:", s_kComponents, "", "[]" },
        ValuePartsRow{ "Nicknames", "3.0", "NICKNAME:a\\,b,c;d", s_kList, "a,b|c;d", "[a,b,c][d]" },
        ValuePartsRow{ "Nicknames21", "2.1", "NICKNAME:a,b", s_kList, "a|b", "[a,b]" },
        ValuePartsRow{ "Categories21", "2.1", "CATEGORIES:a,b", s_kList, "a|b", "[a,b]" },
        ValuePartsRow{ "Categories40", "4.0", "item1.Categories:a,b\\n,", s_kList, "a|b\n|", "[a,b\n,]" },
        ValuePartsRow{ "Position21", "2.1", "GEO:1,2", s_kText, "1,2", "[1,2]" },
        ValuePartsRow{ "Position30", "3.0", "GEO:1;2", s_kComponents, "1|2", "[1][2]" },
        ValuePartsRow{ "Position40", "4.0", "GEO:geo:1,2;u=3", s_kText, "geo:1,2;u=3", "[geo:1,2][u=3]" },
        ValuePartsRow{ "Gender30", "3.0", "GENDER:F;x", s_kText, "F;x", "[F][x]" },
        ValuePartsRow{ "Gender40", "4.0", "GENDER:F;x", s_kComponents, "F|x", "[F][x]" },
        ValuePartsRow{ "ClientPidMap", "4.0", "CLIENTPIDMAP:1;urn:x", s_kComponents, "1|urn:x", "[1][urn:x]" },
        ValuePartsRow{ "Photo", "3.0", "PHOTO;ENCODING=b:Zm9v", s_kBinary, "Zm9v", "[Zm9v]" },
        ValuePartsRow{ "PhotoAddress", "3.0", "PHOTO;VALUE=uri:http://a/b", s_kText, "http://a/b", "[http://a/b]" },
        ValuePartsRow{ "DataUri", "4.0", "PHOTO:data:image/gif;base64,Zm9v", s_kBinary, "data:image/gif;base64,Zm9v",
                       "[data:image/gif][base64,Zm9v]" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    QuotedPrintable, ValuePartsTest,
    ::testing::Values( ValuePartsRow{ "EncodedSemicolonIsText", "2.1", "N;ENCODING=QUOTED-PRINTABLE:a=3Bb;c",
                                      s_kComponents, "a;b|c", "[a;b][c]" },
                       ValuePartsRow{ "EncodedCommaIsText", "3.0", "N;ENCODING=QUOTED-PRINTABLE:a=2Cb,c", s_kComponents,
                                      "a,b,c", "[a,b|c]" },
                       ValuePartsRow{ "EncodedBackslashIsText", "2.1", "N;ENCODING=QUOTED-PRINTABLE:a=5C;b",
                                      s_kComponents, "a\\|b", "[a\\][b]" },
                       ValuePartsRow{ "EncodedList", "2.1", "CATEGORIES;QUOTED-PRINTABLE:=C3=A9,=2C", s_kList,
                                      "\xC3\xA9|,", "[\xC3\xA9,,]" },
                       ValuePartsRow{ "SemicolonBehindSoftBreak", "2.1", "N;QUOTED-PRINTABLE:a=\r\n;=3B=\r\n;b",
                                      s_kComponents, "a|;|b", "[a][;][b]" },
                       ValuePartsRow{ "OtherCharset", "2.1",
                                      "N;CHARSET=KOI8-R;ENCODING=QUOTED-PRINTABLE:=C1=3B;=3B=C2\\;", s_kComponents,
                                      "\xD0\xB0;|;\xD0\xB1;", "[\xD0\xB0;][;\xD0\xB1;]" } ),
    RowName );

// The whole value is encoded, so the delimiters and escapes are those of the decoded text.
INSTANTIATE_TEST_SUITE_P(
    Base64, ValuePartsTest,
    ::testing::Values( ValuePartsRow{ "Name21", "2.1", "N;ENCODING=BASE64:" + QByteArray( "Doe;Jane,Ann;;" ).toBase64(),
                                      s_kComponents, "Doe|Jane,Ann||", "[Doe][Jane,Ann][][]" },
                       ValuePartsRow{ "Name30", "3.0", "N;ENCODING=b:" + QByteArray( "Doe;Jane,Ann;;" ).toBase64(),
                                      s_kComponents, "Doe|Jane,Ann||", "[Doe][Jane|Ann][][]" },
                       ValuePartsRow{ "Escapes", "3.0",
                                      "ADR;ENCODING=b:" + QByteArray( ";;a\\;b\\nc\\,d,e;T" ).toBase64(), s_kComponents,
                                      "||a;b\nc,d,e|T", "[][][a;b\nc,d|e][T]" },
                       ValuePartsRow{ "SecondBytes", "2.1",
                                      "ORG;CHARSET=SHIFT_JIS;BASE64:" + QByteArray( "\x83\x5C;a" ).toBase64(),
                                      s_kComponents, "\xE3\x82\xBD|a", "[\xE3\x82\xBD][a]" },
                       ValuePartsRow{ "List", "3.0", "CATEGORIES;ENCODING=b:" + QByteArray( "a\\,b,c" ).toBase64(),
                                      s_kList, "a,b|c", "[a,b,c]" },
                       ValuePartsRow{ "Note", "3.0", "NOTE;ENCODING=b:" + QByteArray( "a;b,c" ).toBase64(), s_kText,
                                      "a;b,c", "[a][b,c]" },
                       ValuePartsRow{ "Empty", "3.0", "N;ENCODING=b:", s_kComponents, "", "[]" },
                       ValuePartsRow{ "Bytes", "3.0", "N;ENCODING=b:AP//", s_kBinary, "AP//", "[AP//]" },
                       ValuePartsRow{ "EncodedOneByOne", "3.0", "N;ENCODING=b:RG9l;SmFuZQ==", s_kBinary,
                                      "RG9l;SmFuZQ==", "[RG9l][SmFuZQ==]" } ),
    RowName );

TEST_P( ValuePartsTest, ValueIsDividedByItsKind )
{
    const ValuePartsRow& row = GetParam();
    const PimContactLine line = OneLine( row.m_line, row.m_version );
    EXPECT_EQ( line.Kind(), row.m_kind );
    EXPECT_EQ( Joined( line.Values() ), row.m_values );
    EXPECT_EQ( Joined( line.ComponentLists() ), row.m_componentLists );
}

TEST( ValuePartsOfLineTest, CallerMayDivideAnyValue )
{
    const PimContactLine line = OneLine( "X-A:a\\,b,c;d\\;e" );
    EXPECT_EQ( Joined( line.List() ), "a,b|c;d;e" );
    EXPECT_EQ( Joined( line.Components() ), "a,b,c|d;e" );
    EXPECT_EQ( Joined( line.Values() ), "a,b,c;d;e" );
}

TEST( ValuePartsOfLineTest, EmptyValueHasOnePart )
{
    const PimContactLine line = OneLine( "X-A:" );
    EXPECT_EQ( line.List(), QStringList( QString() ) );
    EXPECT_EQ( line.Components(), QStringList( QString() ) );
    EXPECT_EQ( line.Values(), QStringList( QString() ) );
    EXPECT_EQ( line.ComponentLists(), QList<QStringList>{ QStringList( QString() ) } );
}

} // namespace PimManager::Contacts
