#include "SampleFiles.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

QByteArray Written( const PimContactBook& a_book, PimContactFormat a_format = PimContactFormat::JCard )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, a_format );
    for ( const PimContactCard& card : a_book.Cards() )
        EXPECT_TRUE( writer.Write( card ) );
    EXPECT_TRUE( writer.Finish() );
    return buffer.data();
}

PimContactBook BookOf( const QByteArray& a_lines, const QByteArray& a_version = "4.0" )
{
    return PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\nFN:Mara\r\n" + a_lines +
                                      "\r\nEND:VCARD\r\n" );
}

// Version 4.0 has no control characters, and no line breaks of Unicode.
bool HasControls( const std::string& a_name )
{
    return a_name == "control-characters" || a_name == "html-and-vertical-tabs" || a_name == "nul-bytes";
}

// The properties after FN.
QByteArray JsonOf( const QByteArray& a_line )
{
    const QByteArray head = R"(["vcard",[["version",{},"text","4.0"],["fn",{},"text","Mara"],)";
    const QByteArray json = Written( BookOf( a_line ) );
    EXPECT_TRUE( json.startsWith( head ) && json.endsWith( "]]\n" ) ) << json.toStdString();
    return json.mid( head.size() ).chopped( 3 );
}

struct LineRow
{
    const char* m_line;
    const char* m_json;
};

} // namespace

TEST( JCardWritingTest, PropertiesAreWrittenByTheirTypes )
{
    const std::vector<LineRow> rows = {
        { "NOTE:a\\, b\\; c\\\\d\\ne", R"(["note",{},"text","a, b; c\\d\ne"])" },
        { "N:Vell;Mara;;;B.Sc.,M\\, A", R"(["n",{},"text",["Vell","Mara","","",["B.Sc.","M, A"]]])" },
        { "ORG:Quern\\; Sons;R&D", R"(["org",{},"text",["Quern; Sons","R&D"]])" },
        { "ORG:Quern", R"(["org",{},"text","Quern"])" },
        { "NICKNAME:M,Ma\\,ra", R"(["nickname",{},"text","M","Ma,ra"])" },
        { "CATEGORIES:a", R"(["categories",{},"text","a"])" },
        { "GENDER:O;it's", R"(["gender",{},"text",["O","it's"]])" },
        { "CLIENTPIDMAP:1;urn:uuid:53e374d9", R"(["clientpidmap",{},"text",["1","urn:uuid:53e374d9"]])" },
        { "URL:https://example.com/a,b;c", R"(["url",{},"uri","https://example.com/a,b;c"])" },
        { "TEL;TYPE=work,voice;PREF=1;VALUE=uri:tel:+1-555-555-0100;ext=102",
          R"(["tel",{"type":["work","voice"],"pref":"1"},"uri","tel:+1-555-555-0100;ext=102"])" },
        { "TEL:+1 555 0100", R"(["tel",{},"text","+1 555 0100"])" },
        { "BDAY:--0203", R"(["bday",{},"date-and-or-time","--02-03"])" },
        { "BDAY;VALUE=text:circa 1800", R"(["bday",{},"text","circa 1800"])" },
        { "ANNIVERSARY:20090808T143000-0500", R"(["anniversary",{},"date-and-or-time","2009-08-08T14:30:00-05:00"])" },
        { "REV:20130214T123000Z", R"(["rev",{},"timestamp","2013-02-14T12:30:00Z"])" },
        { "TZ;VALUE=utc-offset:-0500", R"(["tz",{},"utc-offset","-05:00"])" },
        { "LANG;PREF=1:de", R"(["lang",{"pref":"1"},"language-tag","de"])" },
        { "GEO:geo:46.772673,-71.282945", R"(["geo",{},"uri","geo:46.772673,-71.282945"])" },
        { "X-FLAG;VALUE=boolean:TRUE", R"(["x-flag",{},"boolean",true])" },
        { "X-COUNT;VALUE=integer:3", R"(["x-count",{},"integer",3])" },
        { "X-COUNT;VALUE=integer:007", R"(["x-count",{},"integer",7])" },
        { "X-COUNT;VALUE=integer:+42,-0,-007", R"(["x-count",{},"integer",42,-0,-7])" },
        { "X-COUNT;VALUE=integer:many,1-2,--1", R"(["x-count",{},"integer","many","1-2","--1"])" },
        { "X-SIZE;VALUE=float:+02.50", R"(["x-size",{},"float",2.50])" },
        { "X-SIZE;VALUE=float:-1.30e5", R"(["x-size",{},"float",-1.30e5])" },
        { "X-WHEN;VALUE=time:102200-0800", R"(["x-when",{},"time","10:22:00-08:00"])" },
        { "X-ANY:a\\,b;c\\nd", R"(["x-any",{},"unknown","a\\,b;c\\nd"])" },
        { "X-ANY;VALUE=text:a\\,b", R"(["x-any",{},"text","a,b"])" },
        { "item1.EMAIL;TYPE=home:m@example.com",
          R"(["email",{"group":"item1","type":"home"},"text","m@example.com"])" },
        { "TEL;TYPE=a;PREF=2;TYPE=b:1", R"(["tel",{"pref":"2","type":["a","b"]},"text","1"])" },
        { "TEL;X-C=1;X-C=2;X-C=3;X-B=1:1", R"(["tel",{"x-c":["1","2","3"],"x-b":"1"},"text","1"])" },
        { "TEL;X-Q=\"a;b^n^'c^'\":1", R"(["tel",{"x-q":"a;b\n\"c\""},"text","1"])" },
        { "PHOTO:data:image/gif;base64,R0lGODlh", R"(["photo",{},"uri","data:image/gif;base64,R0lGODlh"])" },
        { "PHOTO:mara.jpg", R"(["photo",{},"text","mara.jpg"])" },
        { "PHOTO;VALUE=uri:mara.jpg", R"(["photo",{},"uri","mara.jpg"])" },
        { "NOTE:", R"(["note",{},"text",""])" },
        { "N:Vell", R"(["n",{},"text",["Vell","","","",""]])" },
        { "N:", R"(["n",{},"text",["","","","",""]])" },
        { "ADR:;;Street,House", R"(["adr",{},"text",["","",["Street","House"],"","","",""]])" },
        { "ORG:;Sales", R"(["org",{},"text",["","Sales"]])" },
        { "GENDER:;other", R"(["gender",{},"text",["","other"]])" },
        { "ITEM1.EMAIL:m@example.com", R"(["email",{"group":"item1"},"text","m@example.com"])" },
        { "item1.EMAIL;GROUP=b:m@example.com", R"(["email",{"group":"item1"},"text","m@example.com"])" },
        { "BDAY;VALUE=date:20150203T1200", R"(["bday",{},"date-and-or-time","2015-02-03T12:00"])" },
        { R"(ORG;SORT-AS=",A":Quern)", R"(["org",{"sort-as":",A"},"text","Quern"])" },
        { R"(ORG;SORT-AS="Vell, A":Quern)", R"(["org",{"sort-as":["Vell","A"]},"text","Quern"])" },
    };
    for ( const LineRow& row : rows )
        EXPECT_EQ( JsonOf( row.m_line ), QByteArray( row.m_json ) ) << row.m_line;
}

TEST( JCardWritingTest, ChangedLineBreakInAParameterIsReported )
{
    const PimContactBook book =
        BookOf( "TEL;X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=41=0D=42):1\r\nTEL;X-CUSTOM=a:2", "2.1" );
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    const QList<PimContactWriteNote> notes = book.Save( buffer, PimContactFormat::JCard ).Notes();
    EXPECT_TRUE( buffer.data().contains( R"({"x-custom":"A\nB"})" ) ) << buffer.data().toStdString();
    ASSERT_EQ( notes.size(), 1 );
    EXPECT_EQ( notes.first().Code(), PimContactWriteCode::ParameterDropped );
    EXPECT_EQ( notes.first().Detail(), QStringLiteral( "X-CUSTOM" ) );
}

TEST( JCardWritingTest, WhatWasWrittenIsReadAsTheSameLine )
{
    const std::vector<const char*> lines = {
        "NOTE:a\\, b\\; c\\\\d\\ne",
        "N:Vell;Mara;;;B.Sc.,M\\, A",
        "GENDER:O;it's",
        "TEL;TYPE=work,voice;PREF=1;VALUE=uri:tel:+1-555-555-0100;ext=102",
        "BDAY:--0203",
        "BDAY;VALUE=text:circa 1800",
        "REV:20130214T123000Z",
        "TZ;VALUE=utc-offset:-0500",
        "X-FLAG;VALUE=boolean:TRUE",
        "X-COUNT;VALUE=integer:7",
        "X-WHEN;VALUE=date:19850412;19860101,--0203",
        "X-WHEN;VALUE=time:123000;-2050",
        "X-WHEN;VALUE=utc-offset:-0500;+0100",
        "X-ANY:a\\,b;c\\nd,e",
        "X-ANY;VALUE=text:a\\,b",
        "URL:https://example.com/a,b;c\\\\d",
        "item1.EMAIL;TYPE=home:m@example.com",
        "ADR;LABEL=\"a, ^'b^'^nc^^d\":;;Street;Town;;1;",
        R"(ADR;LABEL=C:\\new:;;Street;Town;;1;)",
    };
    for ( const char* const line : lines )
    {
        const PimContactBook book = PimContactBook::FromBytes( Written( BookOf( line ) ) );
        ASSERT_EQ( book.Size(), 1 ) << line;
        EXPECT_EQ( book.CardAt( 0 ).Bytes(), BookOf( line ).CardAt( 0 ).Bytes() ) << line;
    }
}

TEST( JCardWritingTest, SeveralCardsAreAnArray )
{
    const QByteArray card = R"(["vcard",[["version",{},"text","4.0"],["fn",{},"text","Mara"],["note",{},"text","x"]]])";
    PimContactBook book;
    EXPECT_EQ( Written( book ), "[]\n" );
    book.Append( BookOf( "NOTE:x" ).CardAt( 0 ) );
    EXPECT_EQ( Written( book ), card + "\n" );
    book.Append( BookOf( "NOTE:x" ).CardAt( 0 ) );
    book.Append( BookOf( "NOTE:x" ).CardAt( 0 ) );
    EXPECT_EQ( Written( book ), "[\n" + card + ",\n" + card + ",\n" + card + "\n]\n" );
}

TEST( JCardWritingTest, LargeCardsAreWrittenInOrder )
{
    PimContactBook book;
    for ( int i = 0; i < 4; ++i )
        book.Append( BookOf( "NOTE:" + QByteArray( 100000, static_cast<char>( 'a' + i ) ) ).CardAt( 0 ) );
    const PimContactBook back = PimContactBook::FromBytes( Written( book ) );
    ASSERT_EQ( back.Size(), 4 );
    for ( int i = 0; i < 4; ++i )
        EXPECT_EQ( back.At( i ).Notes(), book.At( i ).Notes() );
}

TEST( JCardWritingTest, OldVersionsBecomeTheSameContactsAsIn40 )
{
    for ( const std::string& name : SampleNames() )
    {
        const PimContactBook book = PimContactBook::FromBytes( SampleFile( name + ".vcf" ) );
        const QByteArray json = Written( book );
        QJsonParseError error;
        QJsonDocument::fromJson( json, &error );
        EXPECT_EQ( error.error, QJsonParseError::NoError ) << name;
        const PimContactBook back = PimContactBook::FromBytes( json );
        const PimContactBook expected = PimContactBook::FromBytes( Written( book, PimContactFormat::V40 ) );
        ASSERT_EQ( back.Size(), expected.Size() ) << name;
        for ( int i = 0; i < back.Size(); ++i )
            EXPECT_EQ( back.At( i ), HasControls( name ) ? book.At( i ) : expected.At( i ) )
                << name << "\n"
                << back.CardAt( i ).Bytes().toStdString() << "\n"
                << expected.CardAt( i ).Bytes().toStdString();
        EXPECT_EQ( Written( back ), json ) << name;
    }
}

} // namespace PimManager::Contacts
