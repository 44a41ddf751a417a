#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>

#include <gtest/gtest.h>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

// An example of RFC 7095, in its two forms.
struct ExampleRow
{
    const char* m_section;
    const char* m_line;
    const char* m_property;
};

constexpr const char* s_kHead = R"(["vcard",[["version",{},"text","4.0"],["fn",{},"text","Mara"],)";

QByteArray Written( const QByteArray& a_text, PimContactFormat a_format )
{
    const PimContactBook book = PimContactBook::FromBytes( a_text );
    EXPECT_EQ( book.Size(), 1 );
    EXPECT_TRUE( book.Report().IsComplete() );
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, a_format );
    for ( const PimContactCard& card : book.Cards() )
        EXPECT_TRUE( writer.Write( card ) );
    EXPECT_TRUE( writer.Finish() );
    return buffer.data();
}

QByteArray CardOf( const QByteArray& a_line )
{
    return "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:Mara\r\n" + a_line + "\r\nEND:VCARD\r\n";
}

QByteArray JsonOf( const QByteArray& a_property )
{
    return s_kHead + a_property + "]]\n";
}

QByteArray LineIn( const QByteArray& a_json )
{
    const PimContactBook book = PimContactBook::FromBytes( a_json );
    EXPECT_EQ( book.Size(), 1 );
    EXPECT_TRUE( book.Report().IsComplete() );
    return book.IsEmpty() ? QByteArray() : book.CardAt( 0 ).Bytes();
}

// The examples that are the same in both directions. FN is a property of every card here.
const std::vector<ExampleRow> s_kExamples = {
    { "3.3", "GENDER:M", R"(["gender",{},"text","M"])" },
    { "3.3", "CATEGORIES:computers,cameras", R"(["categories",{},"text","computers","cameras"])" },
    { "3.3.1.3", "ADR:;;123 Main Street;Any Town;CA;91921-1234;U.S.A.",
      R"(["adr",{},"text",["","","123 Main Street","Any Town","CA","91921-1234","U.S.A."]])" },
    { "3.3.1.3", "ADR:;;My Street,Left Side,Second Shack;Hometown;PA;18252;U.S.A.",
      R"(["adr",{},"text",["","",["My Street","Left Side","Second Shack"],"Hometown","PA","18252","U.S.A."]])" },
    { "3.3.1.3", "GENDER:F;grrrl", R"(["gender",{},"text",["F","grrrl"]])" },
    { "3.3.1.3", R"(ADR;LABEL="123 Maple Ave^nSuite 901^nVancouver BC^nA1B 2C9^nCanada":;;;;;;)",
      R"(["adr",{"label":"123 Maple Ave\nSuite 901\nVancouver BC\nA1B 2C9\nCanada"},"text",["","","","","","",""]])" },
    { "3.4", "ROLE;LANGUAGE=tr:roca", R"(["role",{"language":"tr"},"text","roca"])" },
    { "3.4.2", "N;SORT-AS=Harten,Rene:van der Harten;Rene;J.;Sir;R.D.O.N.",
      R"(["n",{"sort-as":["Harten","Rene"]},"text",["van der Harten","Rene","J.","Sir","R.D.O.N."]])" },
    { "3.5.1", "KIND:group", R"(["kind",{},"text","group"])" },
    { "3.5.2", "SOURCE:ldap://ldap.example.com/cn=babs%20jensen",
      R"(["source",{},"uri","ldap://ldap.example.com/cn=babs%20jensen"])" },
    { "3.5.3", "BDAY;VALUE=date:19850412", R"(["bday",{},"date","1985-04-12"])" },
    { "3.5.3", "BDAY;VALUE=date:1985-04", R"(["bday",{},"date","1985-04"])" },
    { "3.5.3", "BDAY;VALUE=date:1985", R"(["bday",{},"date","1985"])" },
    { "3.5.3", "BDAY;VALUE=date:--0412", R"(["bday",{},"date","--04-12"])" },
    { "3.5.3", "BDAY;VALUE=date:--04", R"(["bday",{},"date","--04"])" },
    { "3.5.3", "BDAY;VALUE=date:---12", R"(["bday",{},"date","---12"])" },
    { "3.5.4", "X-TIME-LOCAL;VALUE=time:123000", R"(["x-time-local",{},"time","12:30:00"])" },
    { "3.5.4", "X-TIME-UTC;VALUE=time:123000Z", R"(["x-time-utc",{},"time","12:30:00Z"])" },
    { "3.5.4", "X-TIME-OFFSET;VALUE=time:123000-0800", R"(["x-time-offset",{},"time","12:30:00-08:00"])" },
    { "3.5.4", "X-TIME-REDUCED;VALUE=time:23", R"(["x-time-reduced",{},"time","23"])" },
    { "3.5.4", "X-TIME-TRUNCATED;VALUE=time:-30", R"(["x-time-truncated",{},"time","-30"])" },
    { "3.5.4", "X-TIME;VALUE=time:232050", R"(["x-time",{},"time","23:20:50"])" },
    { "3.5.4", "X-TIME;VALUE=time:2320", R"(["x-time",{},"time","23:20"])" },
    { "3.5.4", "X-TIME;VALUE=time:-2050", R"(["x-time",{},"time","-20:50"])" },
    { "3.5.4", "X-TIME;VALUE=time:--50", R"(["x-time",{},"time","--50"])" },
    { "3.5.4", "X-TIME;VALUE=time:2320+04", R"(["x-time",{},"time","23:20+04"])" },
    { "3.5.4", "X-TIME;VALUE=time:-2050Z", R"(["x-time",{},"time","-20:50Z"])" },
    { "3.5.5", "ANNIVERSARY;VALUE=date-time:20130214T123000",
      R"(["anniversary",{},"date-time","2013-02-14T12:30:00"])" },
    { "3.5.5", "ANNIVERSARY;VALUE=date-time:20130110T190000Z",
      R"(["anniversary",{},"date-time","2013-01-10T19:00:00Z"])" },
    { "3.5.5", "ANNIVERSARY;VALUE=date-time:20130815T094500+0100",
      R"(["anniversary",{},"date-time","2013-08-15T09:45:00+01:00"])" },
    { "3.5.5", "ANNIVERSARY;VALUE=date-time:---15T094500+0100",
      R"(["anniversary",{},"date-time","---15T09:45:00+01:00"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:19850412T232050+04", R"(["x-day",{},"date-time","1985-04-12T23:20:50+04"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:19850412T2320", R"(["x-day",{},"date-time","1985-04-12T23:20"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:19850412T23", R"(["x-day",{},"date-time","1985-04-12T23"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:--0412T2320", R"(["x-day",{},"date-time","--04-12T23:20"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:--04T2320", R"(["x-day",{},"date-time","--04T23:20"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:---12T2320", R"(["x-day",{},"date-time","---12T23:20"])" },
    { "3.5.5", "X-DAY;VALUE=date-time:--04T23", R"(["x-day",{},"date-time","--04T23"])" },
    { "3.5.6", "BDAY:20130214T123000", R"(["bday",{},"date-and-or-time","2013-02-14T12:30:00"])" },
    { "3.5.6", "BDAY:---22T1400", R"(["bday",{},"date-and-or-time","---22T14:00"])" },
    { "3.5.6", "BDAY:1985", R"(["bday",{},"date-and-or-time","1985"])" },
    { "3.5.6", "BDAY:T1230", R"(["bday",{},"date-and-or-time","T12:30"])" },
    { "3.5.7", "REV:20130214T123000", R"(["rev",{},"timestamp","2013-02-14T12:30:00"])" },
    { "3.5.7", "REV:20130214T123000Z", R"(["rev",{},"timestamp","2013-02-14T12:30:00Z"])" },
    { "3.5.7", "REV:20130214T123000-05", R"(["rev",{},"timestamp","2013-02-14T12:30:00-05"])" },
    { "3.5.7", "REV:20130214T123000-0500", R"(["rev",{},"timestamp","2013-02-14T12:30:00-05:00"])" },
    { "3.5.8", "X-NON-SMOKING;VALUE=boolean:TRUE", R"(["x-non-smoking",{},"boolean",true])" },
    { "3.5.9", "X-KARMA-POINTS;VALUE=integer:42", R"(["x-karma-points",{},"integer",42])" },
    { "3.5.10", "X-GRADE;VALUE=float:1.3", R"(["x-grade",{},"float",1.3])" },
    { "3.5.11", "TZ;VALUE=utc-offset:-0500", R"(["tz",{},"utc-offset","-05:00"])" },
    { "3.5.12", "LANG:de", R"(["lang",{},"language-tag","de"])" },
    { "5.3", "X-COMPLAINT-URI:mailto:abuse@example.org",
      R"(["x-complaint-uri",{},"unknown","mailto:abuse@example.org"])" },
    { "5.3", R"(X-COFFEE-DATA:Stenophylla;Guinea\,Africa)",
      R"(["x-coffee-data",{},"unknown","Stenophylla;Guinea\\,Africa"])" },
    { "5.3", "X-KARMA-POINTS;VALUE=integer:95", R"(["x-karma-points",{},"integer",95])" },
    { "5.3", "GENDER;X-PROBABILITY=0.8:M", R"(["gender",{"x-probability":"0.8"},"text","M"])" },
};

} // namespace

TEST( JCardExamplesTest, VCardBecomesTheJCard )
{
    for ( const ExampleRow& row : s_kExamples )
        EXPECT_EQ( Written( CardOf( row.m_line ), PimContactFormat::JCard ), JsonOf( row.m_property ) )
            << row.m_section;
}

TEST( JCardExamplesTest, JCardBecomesTheVCard )
{
    for ( const ExampleRow& row : s_kExamples )
        EXPECT_EQ( LineIn( JsonOf( row.m_property ) ), CardOf( row.m_line ) ) << row.m_section;
}

TEST( JCardExamplesTest, JCardStaysAsItIs )
{
    for ( const ExampleRow& row : s_kExamples )
        EXPECT_EQ( Written( JsonOf( row.m_property ), PimContactFormat::JCard ), JsonOf( row.m_property ) )
            << row.m_section;
}

// Section 3.3.1.2.1 has capitals in its example, and a rule that demands lower case.
TEST( JCardExamplesTest, GroupIsAParameter )
{
    const QByteArray card = "BEGIN:VCARD\r\nVERSION:4.0\r\nCONTACT.FN:Mr. John Q. Public\\, Esq.\r\nEND:VCARD\r\n";
    const QByteArray json =
        R"(["vcard",[["version",{},"text","4.0"],["fn",{"group":"CONTACT"},"text","Mr. John Q. Public, Esq."]]])";
    EXPECT_EQ( LineIn( json ), card );
    EXPECT_EQ( Written( card, PimContactFormat::JCard ), QByteArray( json ).replace( "CONTACT", "contact" ) + '\n' );
}

// Section 3.3.1.3 and 3.4.2: RFC 6350 writes line feeds and lists in parameters in two ways.
TEST( JCardExamplesTest, OlderParametersBecomeTheSame )
{
    const std::vector<ExampleRow> rows = {
        { "3.3.1.3", "ADR;LABEL=\"123 Maple Ave\\nSuite 901\\nVancouver BC\\nA1B 2C9\\nCan\r\n ada\":;;;;;;",
          R"(["adr",{"label":"123 Maple Ave\nSuite 901\nVancouver BC\nA1B 2C9\nCanada"},"text",["","","","","","",""]])" },
        { "3.4.2", R"(N;SORT-AS="Harten,Rene":van der Harten;Rene;J.;Sir;R.D.O.N.)",
          R"(["n",{"sort-as":["Harten","Rene"]},"text",["van der Harten","Rene","J.","Sir","R.D.O.N."]])" },
        { "B.1", R"(TEL;VALUE=uri;TYPE="work,voice";PREF=1:tel:+1-555-555-0100;ext=102)",
          R"(["tel",{"type":["work","voice"],"pref":"1"},"uri","tel:+1-555-555-0100;ext=102"])" },
    };
    for ( const ExampleRow& row : rows )
        EXPECT_EQ( Written( CardOf( row.m_line ), PimContactFormat::JCard ), JsonOf( row.m_property ) )
            << row.m_section;
}

} // namespace PimManager::Contacts
