#include "JCard/PropertyConverter.h"

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct LineRow
{
    const char* m_json;
    const char* m_line;
};

std::string LineOf( const std::string& a_json )
{
    PropertyConverter converter;
    std::string out = "<";
    if ( !converter.Convert( a_json, out ) )
        return out == "<" ? "wrong" : "not removed";
    EXPECT_EQ( converter.Length(), a_json.size() );
    return out.size() > 3 && out.substr( out.size() - 2 ) == "\r\n" ? out.substr( 1, out.size() - 3 )
                                                                    : "no line ending";
}

} // namespace

TEST( PropertyConverterTest, ValuesOfEveryTypeAreConverted )
{
    const std::vector<LineRow> rows = {
        { R"(["fn",{},"text","Mara Vell"])", "FN:Mara Vell" },
        { R"([ "fn" , { } , "text" , "Mara Vell" ])", "FN:Mara Vell" },
        { R"(["FN",{},"TEXT","Mara"])", "FN:Mara" },
        { R"(["note",{},"text","a, b; c\\d\ne"])", R"(NOTE:a\, b\; c\\d\ne)" },
        { R"(["n",{},"text",["Vell","Mara","","",["B.Sc.","M, A"]]])", R"(N:Vell;Mara;;;B.Sc.,M\, A)" },
        { R"(["n",{},"text",["Vell","Mara",[],"",""]])", "N:Vell;Mara;;;" },
        { R"(["org",{},"text",["Quern; Sons","R&D"]])", R"(ORG:Quern\; Sons;R&D)" },
        { R"(["org",{},"text","Quern"])", "ORG:Quern" },
        { R"(["nickname",{},"text","M","Ma,ra"])", R"(NICKNAME:M,Ma\,ra)" },
        { R"(["gender",{},"text",["O","it's"]])", "GENDER:O;it's" },
        { R"(["clientpidmap",{},"text",["1","urn:uuid:53e374d9"]])", "CLIENTPIDMAP:1;urn:uuid:53e374d9" },
        { R"(["clientpidmap",{},"text",[1,"urn:a,b"]])", R"(CLIENTPIDMAP:1;urn:a\,b)" },
        { R"(["url",{},"uri","https://example.com/a,b;c"])", "URL:https://example.com/a,b;c" },
        { R"(["url",{},"uri","https://example.com/\r\nEND:VCARD"])", R"(URL:https://example.com/\nEND:VCARD)" },
        { R"(["url",{},"uri","example.com"])", "URL:example.com" },
        { R"(["related",{},"uri","Mara"])", "RELATED;VALUE=uri:Mara" },
        { R"(["photo",{},"uri","mara.jpg"])", "PHOTO;VALUE=uri:mara.jpg" },
        { R"(["photo",{},"uri",""])", "PHOTO:" },
        { R"(["photo",{"type":"a"},"text","mara.jpg"])", "PHOTO;TYPE=a:mara.jpg" },
        { R"(["photo",{},"text","http://a"])", "PHOTO;VALUE=text:http://a" },
        { R"(["tel",{},"uri","tel:+1-555-555-0100;ext=102"])", "TEL;VALUE=uri:tel:+1-555-555-0100;ext=102" },
        { R"(["tel",{},"text","+1 555 0100"])", "TEL:+1 555 0100" },
        { R"(["bday",{},"date-and-or-time","--02-03"])", "BDAY:--0203" },
        { R"(["bday",{},"date","1985-04-12"])", "BDAY;VALUE=date:19850412" },
        { R"(["bday",{},"text","circa, 1800"])", R"(BDAY;VALUE=text:circa\, 1800)" },
        { R"(["bday",{},"date-and-or-time","circa, 1800"])", R"(BDAY:circa\, 1800)" },
        { R"(["anniversary",{},"date-and-or-time","2009-08-08T14:30:00-05:00"])", "ANNIVERSARY:20090808T143000-0500" },
        { R"(["rev",{},"timestamp","2013-02-14T12:30:00Z"])", "REV:20130214T123000Z" },
        { R"(["x-when",{},"date-time","1996-10-22T14:00:00"])", "X-WHEN;VALUE=date-time:19961022T140000" },
        { R"(["x-when",{},"time","10:22:00-08:00"])", "X-WHEN;VALUE=time:102200-0800" },
        { R"(["tz",{},"utc-offset","-05:00"])", "TZ;VALUE=utc-offset:-0500" },
        { R"(["tz",{},"text","America/New_York"])", "TZ:America/New_York" },
        { R"(["lang",{"pref":"1"},"language-tag","de"])", "LANG;PREF=1:de" },
        { R"(["x-flag",{},"boolean",true])", "X-FLAG;VALUE=boolean:TRUE" },
        { R"(["x-flag",{},"boolean",false,true])", "X-FLAG;VALUE=boolean:FALSE,TRUE" },
        { R"(["x-count",{},"integer",3,-12345678901234567890])", "X-COUNT;VALUE=integer:3,-12345678901234567890" },
        { R"(["x-size",{},"float",1.30e5])", "X-SIZE;VALUE=float:130000" },
        { R"(["x-size",{},"float",[1e-2,[2.5,1e1]]])", "X-SIZE;VALUE=float:0.01;2.5,10" },
        { R"(["x-count",{},"integer",2e3,3.14])", "X-COUNT;VALUE=integer:2000,3" },
        { R"(["x-count",{},"text",2e3])", "X-COUNT;VALUE=text:2e3" },
        { R"(["x-when",{},"date",["1985-04-12",["1986-01-01","circa"]]])",
          "X-WHEN;VALUE=date:19850412;19860101,circa" },
        { R"(["x-when",{},"utc-offset",["-05:00"]])", "X-WHEN;VALUE=utc-offset:-0500" },
        { R"(["x-any",{},"unknown","a\\,b;c"])", R"(X-ANY:a\,b;c)" },
        { R"(["x-any",{},"text","a,b"])", R"(X-ANY;VALUE=text:a\,b)" },
        { R"(["x-any",{},"x-type","a,b"])", R"(X-ANY;VALUE=x-type:a\,b)" },
        { R"(["geo",{},"uri","geo:46.772673,-71.282945"])", "GEO:geo:46.772673,-71.282945" },
        { R"(["version",{},"text","4.0"])", "VERSION:4.0" },
        { R"(["version",{},"text","3.0"])", "VERSION:4.0" },
        { R"(["categories",{},"text","a"])", "CATEGORIES:a" },
        { R"(["note",{},"text",""])", "NOTE:" },
        { R"(["adr",{},"text",[]])", "ADR:" },
    };
    for ( const LineRow& row : rows )
        EXPECT_EQ( LineOf( row.m_json ), row.m_line ) << row.m_json;
}

TEST( PropertyConverterTest, ParametersAreConverted )
{
    const std::vector<LineRow> rows = {
        { R"(["tel",{"type":"work"},"text","1"])", "TEL;TYPE=work:1" },
        { R"(["tel",{"type":["work","voice"],"pref":"1"},"text","1"])", "TEL;TYPE=work,voice;PREF=1:1" },
        { R"(["tel",{"type":[]},"text","1"])", "TEL;TYPE=:1" },
        { R"(["tel",{"pref":1},"text","1"])", "TEL;PREF=1:1" },
        { R"(["n",{"sort-as":["Vell, A","Mara"]},"text",["Vell"]])", R"(N;SORT-AS="Vell, A",Mara:Vell)" },
        { R"(["adr",{"label":"a; \"b\"\r\nc^d"},"text",["","","s"]])", R"(ADR;LABEL="a; ^'b^'^nc^^d":;;s)" },
        { R"(["adr",{"Label":"C:\\new","x-a":"C:\\new"},"text",["","",""]])",
          R"(ADR;LABEL="C:\\new";X-A="C:\new":;;)" },
        { R"(["tel",{"group":"item1"},"text","1"])", "item1.TEL:1" },
        { R"(["tel",{"type":"home","GROUP":"Item-1"},"text","1"])", "Item-1.TEL;TYPE=home:1" },
        { R"(["tel",{"group":"a.b"},"text","1"])", "TEL;X-GROUP=a.b:1" },
        { R"(["tel",{"group":""},"text","1"])", "TEL;X-GROUP=:1" },
        { R"(["tel",{"group":["a","b"]},"text","1"])", "TEL;X-GROUP=a,b:1" },
        { R"(["tel",{"group":"a","Group":"b"},"text","1"])", "a.TEL;X-GROUP=b:1" },
        { R"(["tel",{"value":"uri"},"text","1"])", "TEL;X-VALUE=uri:1" },
        { R"(["x-any",{"VALUE":"uri"},"unknown","1"])", "X-ANY;X-VALUE=uri:1" },
        { R"(["tel",{"x-a":"b\r\nEND:VCARD"},"text","1"])", R"(TEL;X-A="b^nEND:VCARD":1)" },
    };
    for ( const LineRow& row : rows )
        EXPECT_EQ( LineOf( row.m_json ), row.m_line ) << row.m_json;
}

TEST( PropertyConverterTest, OtherShapesAreRefused )
{
    for ( const char* const json : {
              "",
              "[",
              "[]",
              "{}",
              R"(["fn"])",
              R"(["fn",{}])",
              R"(["fn",{},"text"])",
              R"(["fn",{},"text",])",
              R"(["fn",{},"text","a",])",
              R"(["fn",{},"text","a")",
              R"(["fn",{},"text","a"})",
              R"(["fn",[],"text","a"])",
              R"(["fn",{"a"},"text","a"])",
              R"(["fn",{"a":},"text","a"])",
              R"(["fn",{"a":"b",},"text","a"])",
              R"(["fn",{"a":null},"text","a"])",
              R"(["fn",{"a":{}},"text","a"])",
              R"(["fn",{"a b":"c"},"text","a"])",
              R"(["fn",{"":"c"},"text","a"])",
              R"(["fn",{},1,"a"])",
              R"(["fn",{},"","a"])",
              R"(["fn",{},"a;b","a"])",
              R"(["fn",{},"text",null])",
              R"(["fn",{},"text",{}])",
              R"(["fn",{},"text",plain])",
              R"(["n",{},"text",[["a",["b"]]]])",
              R"(["n",{},"text",["a",]])",
              R"(["x-size",{},"float",1e31])",
              R"(["x-count",{},"integer",1-2])",
              R"(["",{},"text","a"])",
              R"(["a:b",{},"text","a"])",
              R"(["a\r\nend",{},"text","a"])",
              R"([1,{},"text","a"])",
              R"(["begin",{},"text","VCARD"])",
              R"(["end",{},"text","VCARD"])",
              R"(["version",{},"text","5.0"])",
              R"(["version",{"group":"a"},"text","4.0"])",
          } )
        EXPECT_EQ( LineOf( json ), "wrong" ) << json;
}

TEST( PropertyConverterTest, TextAfterThePropertyIsLeft )
{
    PropertyConverter converter;
    std::string out;
    ASSERT_TRUE( converter.Convert( R"(["fn",{},"text","a"],["tel")", out ) );
    EXPECT_EQ( converter.Length(), 20U );
    EXPECT_EQ( out, "FN:a\r\n" );
}

TEST( PropertyConverterTest, ErrorsInStringsAreCounted )
{
    PropertyConverter converter;
    std::string out;
    ASSERT_TRUE( converter.Convert( R"(["fn",{"x":"\q"},"text","\ud800"])", out ) );
    EXPECT_EQ( converter.Errors(), 2 );
    EXPECT_EQ( converter.FirstError(), 12U );
    EXPECT_EQ( out, "FN;X=q:\xEF\xBF\xBD\r\n" );
}

} // namespace PimManager::Contacts
