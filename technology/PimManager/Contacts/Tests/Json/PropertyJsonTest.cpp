// The members of a property, each rule of docs/program.md a row.

#include "OneCard.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct PropertyRow
{
    const char* m_name;
    const char* m_version;
    QByteArray m_line;
    std::string m_json;
};

std::ostream& operator<<( std::ostream& a_stream, const PropertyRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PropertyJsonTest : public ::testing::TestWithParam<PropertyRow>
{
};

std::string RowName( const ::testing::TestParamInfo<PropertyRow>& a_info )
{
    return a_info.param.m_name;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Heads, PropertyJsonTest,
    ::testing::Values(
        PropertyRow{ "NameIsInUpperCase", "3.0", "note:a", R"({"name":"NOTE","types":[],"values":["a"]})" },
        PropertyRow{ "OddName", "3.0", "X-a b_\xC3\xA9:a",
                     "{\"name\":\"X-A B_\xC3\xA9\",\"types\":[],\"values\":[\"a\"]}" },
        PropertyRow{ "FoldedName", "3.0", "NO\r\n TE:a", R"({"name":"NOTE","types":[],"values":["a"]})" },
        PropertyRow{ "Group", "3.0", "item1.note:a", R"({"name":"NOTE","group":"item1","types":[],"values":["a"]})" },
        PropertyRow{ "Types", "3.0", "TEL;TYPE=home,Voice;TYPE=HOME;FAX=:5",
                     R"({"name":"TEL","types":["HOME","VOICE","FAX"],"values":["5"]})" },
        PropertyRow{ "NumberedTypes", "3.0", "TEL;A1;A2;A3;A4;A5;A6;A7;A8;A9;a3:5",
                     R"({"name":"TEL","types":["A1","A2","A3","A4","A5","A6","A7","A8","A9"],"values":["5"]})" },
        PropertyRow{ "InternetIsWritten", "3.0", "EMAIL;INTERNET:a@b",
                     R"({"name":"EMAIL","types":["INTERNET"],"values":["a@b"]})" },
        PropertyRow{ "Preference", "4.0", "TEL;PREF=3:5",
                     R"({"name":"TEL","types":[],"preference":3,"values":["5"]})" },
        PropertyRow{ "PreferenceAndParameters", "3.0", "item1.TEL;TYPE=home,pref;X-A=\"b\";LANGUAGE=en;x-a=c:5",
                     R"({"name":"TEL","group":"item1","types":["HOME"],"preference":1,)"
                     R"("parameters":[{"name":"X-A","values":["b","c"]},{"name":"LANGUAGE","values":["en"]}],)"
                     R"("values":["5"]})" },
        PropertyRow{
            "ParameterTexts", "4.0", "NOTE;X-A=^'a^n\\;X-B=:a",
            R"({"name":"NOTE","types":["X-B"],"parameters":[{"name":"X-A","values":["\"a\n\\"]}],"values":["a"]})" },
        PropertyRow{ "EncodingIsNoParameter", "2.1", "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=A9",
                     "{\"name\":\"NOTE\",\"types\":[],\"values\":[\"\xC3\xA9\"]}" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Values, PropertyJsonTest,
    ::testing::Values(
        PropertyRow{ "Empty", "3.0", "NOTE:", R"({"name":"NOTE","types":[],"values":[""]})" },
        PropertyRow{ "TextIsOneValue", "3.0", "NOTE:a;b,c\\nd", R"({"name":"NOTE","types":[],"values":["a;b,c\nd"]})" },
        PropertyRow{ "ListHasElements", "3.0", "CATEGORIES:a,b\\,c,,d;e",
                     R"({"name":"CATEGORIES","types":[],"values":["a","b,c","","d;e"]})" },
        PropertyRow{ "NicknameHasElements", "2.1", "NICKNAME:a,b",
                     R"({"name":"NICKNAME","types":[],"values":["a","b"]})" },
        PropertyRow{ "OrgHasComponents", "3.0", "ORG:a;b\\;c;",
                     R"({"name":"ORG","types":[],"values":["a","b;c",""]})" },
        PropertyRow{ "GeoHasComponents30", "3.0", "GEO:1.5;2", R"({"name":"GEO","types":[],"values":["1.5","2"]})" },
        PropertyRow{ "GeoIsText21", "2.1", "GEO:1.5,2", R"({"name":"GEO","types":[],"values":["1.5,2"]})" },
        PropertyRow{ "EncodedSemicolonDividesNothing", "2.1", "ORG;QUOTED-PRINTABLE:a=3Bb;c",
                     R"({"name":"ORG","types":[],"values":["a;b","c"]})" },
        PropertyRow{ "Base64OfComponents", "2.1", "ORG;ENCODING=BASE64:" + QByteArray( "a;b\\;c" ).toBase64(),
                     R"({"name":"ORG","types":[],"values":["a","b;c"]})" },
        PropertyRow{ "Base64OfAName", "2.1", "N;CHARSET=ISO-8859-1;BASE64:" + QByteArray( "D\xF6;J" ).toBase64(),
                     "{\"name\":\"N\",\"types\":[],\"values\":[\"D\xC3\xB6\",\"J\"],"
                     "\"parts\":{\"family\":\"D\xC3\xB6\",\"given\":\"J\",\"additional\":\"\",\"prefixes\":\"\","
                     "\"suffixes\":\"\"}}" },
        PropertyRow{ "FoldsAndControls", "3.0", "NOTE:a\r\n b\x1B[1m",
                     R"({"name":"NOTE","types":[],"values":["ab\u001b[1m"]})" },
        PropertyRow{ "LinkedPhoto", "3.0", "PHOTO;VALUE=uri:http://example.com/x.jpg",
                     R"({"name":"PHOTO","types":[],"parameters":[{"name":"VALUE","values":["uri"]}],)"
                     R"("values":["http://example.com/x.jpg"]})" } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Parts, PropertyJsonTest,
    ::testing::Values(
        PropertyRow{ "Name", "3.0", "N:Brackwater;Nell;Imogen;Dr.;",
                     R"({"name":"N","types":[],"values":["Brackwater","Nell","Imogen","Dr.",""],)"
                     R"("parts":{"family":"Brackwater","given":"Nell","additional":"Imogen","prefixes":"Dr.",)"
                     R"("suffixes":""}})" },
        PropertyRow{ "ShortName", "2.1", "N: Brackwater ",
                     R"({"name":"N","types":[],"values":[" Brackwater "],)"
                     R"("parts":{"family":"Brackwater","given":"","additional":"","prefixes":"","suffixes":""}})" },
        PropertyRow{ "ListsAndEscapesInComponents", "3.0", "N:a,b\\,c;d\\;e;f,g;;;h;i;j",
                     R"({"name":"N","types":[],"values":["a,b,c","d;e","f,g","","","h","i","j"],)"
                     R"("parts":{"family":"a,b,c","given":"d;e","additional":"f,g","prefixes":"","suffixes":""}})" },
        PropertyRow{ "ManyEscapes", "3.0", "N:\\,\\,;\\;\\;;\\n\\n;\\\\;\\:",
                     R"({"name":"N","types":[],"values":[",,",";;","\n\n","\\",":"],)"
                     R"("parts":{"family":",,","given":";;","additional":"","prefixes":"\\","suffixes":":"}})" },
        PropertyRow{ "Address", "3.0", "ADR;HOME:;;3 Ferry Steps\\nQuay;Port Lanthorn;;X1,Y2;L",
                     R"({"name":"ADR","types":["HOME"],)"
                     R"("values":["","","3 Ferry Steps\nQuay","Port Lanthorn","","X1,Y2","L"],)"
                     R"("parts":{"postOfficeBox":"","extended":"","street":"3 Ferry Steps\nQuay",)"
                     R"("locality":"Port Lanthorn","region":"","postalCode":"X1,Y2","country":"L"}})" },
        PropertyRow{ "Call", "2.1", "X-IRMC-CALL-DATETIME;DIALED:20240311T084512Z",
                     R"({"name":"X-IRMC-CALL-DATETIME","types":["DIALED"],"values":["20240311T084512Z"],)"
                     R"("call":{"direction":"dialed","time":"2024-03-11T08:45:12Z"}})" },
        PropertyRow{ "ReceivedCall", "2.1", "X-IRMC-CALL-DATETIME;TYPE=received:",
                     R"({"name":"X-IRMC-CALL-DATETIME","types":["RECEIVED"],"values":[""],)"
                     R"("call":{"direction":"received"}})" },
        PropertyRow{ "MissedCall", "2.1", "X-IRMC-CALL-DATETIME;MISSED:x",
                     R"({"name":"X-IRMC-CALL-DATETIME","types":["MISSED"],"values":["x"],)"
                     R"("call":{"direction":"missed"}})" },
        PropertyRow{ "UnknownCall", "2.1", "X-IRMC-CALL-DATETIME:20240311T084512",
                     R"({"name":"X-IRMC-CALL-DATETIME","types":[],"values":["20240311T084512"],)"
                     R"("call":{"direction":"unknown","time":"2024-03-11T08:45:12"}})" } ),
    RowName );

TEST_P( PropertyJsonTest, MembersAreThoseOfTheRow )
{
    const PropertyRow& row = GetParam();
    EXPECT_EQ( PropertyOf( row.m_line, row.m_version ), row.m_json );
}

TEST( PropertyJsonLabelTest, LabelFollowsTheTypes )
{
    EXPECT_EQ( PropertyOf( "item1.TEL;PREF;X-A=b:5\r\nITEM1.X-ABLabel:_$!<Home>!$_" ),
               R"({"name":"TEL","group":"item1","types":[],"label":"Home","preference":1,)"
               R"("parameters":[{"name":"X-A","values":["b"]}],"values":["5"]},)"
               R"({"name":"X-ABLABEL","group":"ITEM1","types":[],"label":"Home","values":["_$!<Home>!$_"]})" );
    EXPECT_EQ( PropertyOf( "item1.X-ABLabel:a\"b\r\nitem2.NOTE:n\r\nitem1.NOTE:n" ),
               R"({"name":"X-ABLABEL","group":"item1","types":[],"label":"a\"b","values":["a\"b"]},)"
               R"({"name":"NOTE","group":"item2","types":[],"values":["n"]},)"
               R"({"name":"NOTE","group":"item1","types":[],"label":"a\"b","values":["n"]})" );
}

} // namespace PimManager::Contacts
