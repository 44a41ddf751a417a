// The members of a contact.

#include "OneCard.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct HeadRow
{
    const char* m_name;
    QByteArray m_lines;
    const char* m_member;
    std::string m_json;
};

std::ostream& operator<<( std::ostream& a_stream, const HeadRow& a_row )
{
    return a_stream << a_row.m_name;
}

class CardJsonTest : public ::testing::TestWithParam<HeadRow>
{
};

std::string RowName( const ::testing::TestParamInfo<HeadRow>& a_info )
{
    return a_info.param.m_name;
}

constexpr const char* s_kName = R"("name":)";
constexpr const char* s_kNumbers = R"("numbers":)";
constexpr const char* s_kMails = R"("mails":)";
constexpr const char* s_kOrganisation = R"("organisation":)";
constexpr const char* s_kVersion = R"("version":)";

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Names, CardJsonTest,
    ::testing::Values(
        HeadRow{ "None", "NOTE:x", s_kName, R"("",)" },
        HeadRow{ "Fn", "TEL:1\r\nN:Doe;Jane\r\nFN: Jane  Doe\\n jr.", s_kName, R"("Jane Doe jr.",)" },
        HeadRow{ "FirstFn", "FN:\r\nFN:One\r\nFN:Two", s_kName, R"("One",)" },
        HeadRow{ "NInOrderOfSpeech", "N:Doe;Jane;Q.;Dr.;jr.", s_kName, R"("Dr. Jane Q. Doe jr.",)" },
        HeadRow{ "NBehindEmptyFn", "FN: \r\nN:Doe;;;;", s_kName, R"("Doe",)" },
        HeadRow{ "Nickname", "ORG:o\r\nNICKNAME:a,b", s_kName, R"("a,b",)" },
        HeadRow{ "Org", "EMAIL:a@b\r\nORG:One; ;Two", s_kName, R"("One, Two",)" },
        HeadRow{ "Mail", "TEL:1\r\nEMAIL:\"Omega\" <omega@example.com>", s_kName, R"("omega@example.com",)" },
        HeadRow{ "Number", "TEL:tel:+1;ext=2", s_kName, R"("+1;ext=2",)" },
        HeadRow{ "Base64", "FN;BASE64:SsO2cmc=", s_kName, "\"J\xC3\xB6rg\"," },
        HeadRow{ "Base64OfN", "N;BASE64:" + QByteArray( "Doe;J\xC3\xB6rg" ).toBase64(), s_kName,
                 "\"J\xC3\xB6rg Doe\"," },
        HeadRow{ "QuotedPrintable", "FN;QUOTED-PRINTABLE:J=C3=B6=0D=0ADoe", s_kName, "\"J\xC3\xB6 Doe\"," } ),
    RowName );

INSTANTIATE_TEST_SUITE_P(
    Lists, CardJsonTest,
    ::testing::Values( HeadRow{ "NoNumbers", "FN:x", s_kNumbers, R"([],"mails":[],)" },
                       HeadRow{ "Numbers", "TEL;TYPE=cell,pref:1\r\nTEL:\r\nitem1.TEL;PREF=2:2\r\nitem1.X-ABLabel:boat",
                                s_kNumbers,
                                R"([{"number":"1","types":["CELL"],"kinds":["mobile"],"preference":1},)"
                                R"({"number":"2","types":[],"label":"boat","preference":2}],)" },
                       HeadRow{ "Base64OfANumber", "TEL;CELL;BASE64:KzEtNTU1", s_kNumbers,
                                R"([{"number":"+1-555","types":["CELL"],"kinds":["mobile"]}],)" },
                       HeadRow{ "NumberUri", "TEL;VALUE=uri:tel:+1-555;ext=2", s_kNumbers,
                                R"([{"number":"+1-555;ext=2","extension":"2","types":[]}],)" },
                       HeadRow{ "NumberWithContext", "TEL:tel:5;phone-context=x.example", s_kNumbers,
                                R"([{"number":"5","context":"x.example","types":[]}],)" },
                       HeadRow{ "NumberWithExtension", "TEL:555 ext. 12", s_kNumbers,
                                R"([{"number":"555 ext. 12","extension":"12","types":[]}],)" },
                       HeadRow{ "NumberWithBuiltInLabel", "item1.TEL;WORK:1\r\nitem1.X-ABLabel:_$!<Home>!$_",
                                s_kNumbers,
                                R"([{"number":"1","types":["WORK"],"kinds":["home","work"],"label":"Home"}],)" },
                       HeadRow{ "NumberWithTypeOfTheOwner", "TEL;TYPE=X-Boat;LANGUAGE=de;ALTID=1:1", s_kNumbers,
                                R"([{"number":"1","types":["X-BOAT"],"label":"Boat","language":"de","altId":"1"}],)" },
                       HeadRow{ "NumberWithEmptyLabel", "i.TEL;TYPE=X-Boat:1\r\ni.X-ABLabel: ", s_kNumbers,
                                R"([{"number":"1","types":["X-BOAT"],"label":"Boat"}],)" },
                       HeadRow{ "Mails", "EMAIL;INTERNET;HOME:mailto:a%40b?x=y\r\nEMAIL:\"O\" <o@e.com>", s_kMails,
                                R"([{"mail":"a@b","types":["HOME"],"kinds":["home"]},)"
                                R"({"mail":"o@e.com","name":"O","types":[]}],)" },
                       HeadRow{ "Organisation", "ORG:\r\nORG: Tide Office ;Charts\r\nORG:x", s_kOrganisation,
                                R"("Tide Office, Charts",)" },
                       HeadRow{ "NoVersion", "FN:x", s_kVersion, R"("",)" },
                       HeadRow{ "FirstVersion", "VERSION: 5.0 \r\nVERSION:3.0", s_kVersion, R"("5.0",)" } ),
    RowName );

TEST_P( CardJsonTest, MemberIsThatOfTheRow )
{
    const HeadRow& row = GetParam();
    const std::string json = JsonOf( row.m_lines );
    // The members of the contact precede those of its properties.
    const size_t place = json.find( row.m_member );
    ASSERT_NE( place, std::string::npos ) << json;
    EXPECT_EQ( json.substr( place + std::string( row.m_member ).size(), row.m_json.size() ), row.m_json ) << json;
}

TEST( CardJsonOrderTest, MembersHaveOneOrder )
{
    EXPECT_EQ( JsonOf( "VERSION:2.1\r\nFN:Nell\r\nTEL;CELL;PREF:555\r\nEMAIL;INTERNET:n@example.com\r\n"
                       "ORG:Tide Office;Charts" ),
               R"({"card":1,"line":1,"whole":true,"version":"2.1","name":"Nell",)"
               R"("numbers":[{"number":"555","types":["CELL"],"kinds":["mobile"],"preference":1}],)"
               R"("mails":[{"mail":"n@example.com","types":[]}],"organisation":"Tide Office, Charts",)"
               R"("organisations":[{"name":"Tide Office","units":["Charts"]}],)"
               R"("properties":[{"name":"VERSION","types":[],"values":["2.1"]},)"
               R"({"name":"FN","types":[],"values":["Nell"]},)"
               R"({"name":"TEL","types":["CELL"],"preference":1,"values":["555"]},)"
               R"({"name":"EMAIL","types":["INTERNET"],"values":["n@example.com"]},)"
               R"({"name":"ORG","types":[],"values":["Tide Office","Charts"]}]})" );
}

TEST( CardJsonOrderTest, PlaceIsThatInTheFile )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "text\r\nBEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\n\r\nBEGIN:VCARD\r\nFN:b\r\n" );
    ASSERT_EQ( book.Size(), 2 );
    EXPECT_EQ( Checked( PimContactJson::Of( book.CardAt( 0 ) ) ).find( R"({"card":1,"line":2,"whole":true,)" ), 0U );
    EXPECT_EQ( Checked( PimContactJson::Of( book.CardAt( 1 ) ) ).find( R"({"card":2,"line":6,"whole":false,)" ), 0U );
}

TEST( CardJsonOrderTest, CardWithoutLinesHasNoProperties )
{
    const std::string json = R"("version":"","name":"","numbers":[],"mails":[],"organisation":"","properties":[]})";
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\nEND:VCARD\r\n" );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( Checked( PimContactJson::Of( book.CardAt( 0 ) ) ), R"({"card":1,"line":1,"whole":true,)" + json );
    EXPECT_EQ( Checked( PimContactJson::Of( PimContactCard() ) ), R"({"card":0,"line":0,"whole":false,)" + json );
}

TEST( CardJsonFileTest, FileIsTheFirstMember )
{
    PimContactJson json;
    EXPECT_TRUE( json.File().isNull() );
    json.SetFile( QStringLiteral( "a \"b\"\n\u202E.vcf" ) );
    EXPECT_EQ( json.File(), QStringLiteral( "a \"b\"\n\u202E.vcf" ) );
    QByteArray out;
    json.Append( CardOf( "FN:x" ), out );
    EXPECT_EQ( Checked( out ).find( R"({"file":"a \"b\"\n\u202e.vcf","card":1,)" ), 0U ) << out.toStdString();
    json.SetFile( QLatin1String( "" ) );
    out.resize( 0 );
    json.Append( CardOf( "FN:x" ), out );
    EXPECT_EQ( Checked( out ).find( R"({"file":"","card":1,)" ), 0U ) << out.toStdString();
    json.SetFile( QString() );
    out.resize( 0 );
    json.Append( CardOf( "FN:x" ), out );
    EXPECT_EQ( Checked( out ).find( R"({"card":1,)" ), 0U ) << out.toStdString();
}

// Half of a surrogate pair cannot be written as UTF-8. Each version of Qt replaces it in its own way.
TEST( CardJsonFileTest, HalfACharacterIsReplaced )
{
    PimContactJson json;
    json.SetFile( QString( QChar( 0xD800 ) ) + QLatin1Char( 'x' ) );
    QByteArray out;
    json.Append( CardOf( "FN:x" ), out );
    const std::string text = Checked( out );
    EXPECT_NE( text.find( R"(x","card":1,)" ), std::string::npos ) << text;
    EXPECT_EQ( text.find( "\xED\xA0\x80" ), std::string::npos ) << text;
}

TEST( CardJsonNestingTest, NestedCardIsAnObject )
{
    EXPECT_EQ( JsonOf( "VERSION:2.1\r\nFN:Ada\r\nitem1.AGENT;WORK:\r\nBEGIN:VCARD\r\nVERSION:3.0\r\nFN:Bea\r\n"
                       "TEL:2\r\nEND:VCARD\r\nTEL:1" ),
               R"({"card":1,"line":1,"whole":true,"version":"2.1","name":"Ada","numbers":[{"number":"1","types":[]}],)"
               R"("mails":[],"organisation":"","relations":[{"text":"Bea","kinds":["agent"]}],)"
               R"("properties":[{"name":"VERSION","types":[],"values":["2.1"]},)"
               R"({"name":"FN","types":[],"values":["Ada"]},{"name":"AGENT","group":"item1","types":["WORK"],)"
               R"("card":{"line":5,"whole":true,"version":"3.0","name":"Bea","numbers":[{"number":"2","types":[]}],)"
               R"("mails":[],"organisation":"","properties":[{"name":"VERSION","types":[],"values":["3.0"]},)"
               R"({"name":"FN","types":[],"values":["Bea"]},{"name":"TEL","types":[],"values":["2"]}]}},)"
               R"({"name":"TEL","types":[],"values":["1"]}]})" );
}

TEST( CardJsonNestingTest, EachCardHasItsOwnLabels )
{
    const std::string json =
        JsonOf( "item1.NOTE:o\r\nitem1.X-ABLabel:outer\r\nAGENT:\r\nBEGIN:VCARD\r\nitem1.NOTE:i\r\nitem2.NOTE:j\r\n"
                "item1.X-ABLabel:inner\r\nEND:VCARD\r\nitem1.TEL:1\r\nitem2.TEL:2" );
    EXPECT_NE( json.find( R"("types":[],"label":"outer","values":["o"])" ), std::string::npos ) << json;
    EXPECT_NE( json.find( R"("types":[],"label":"inner","values":["i"])" ), std::string::npos ) << json;
    EXPECT_NE( json.find( R"("group":"item2","types":[],"values":["j"])" ), std::string::npos ) << json;
    EXPECT_NE( json.find( R"("types":[],"label":"outer","values":["1"])" ), std::string::npos ) << json;
    EXPECT_NE( json.find( R"("group":"item2","types":[],"values":["2"])" ), std::string::npos ) << json;
}

TEST( CardJsonNestingTest, DeepestCardIsWritten )
{
    QByteArray lines = "FN:0";
    for ( int depth = 1; depth <= 64; ++depth )
        lines += "\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:" + QByteArray::number( depth );
    for ( int depth = 1; depth <= 64; ++depth )
        lines += "\r\nEND:VCARD";
    PimContactOptions options;
    options.SetNesting( 0 );
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + lines + "\r\nEND:VCARD\r\n", options );
    ASSERT_EQ( book.Size(), 1 );
    const std::string json = Checked( PimContactJson::Of( book.CardAt( 0 ) ) );
    EXPECT_NE( json.find( R"("name":"64")" ), std::string::npos );
}

TEST( CardJsonUseTest, CardsAreAppended )
{
    PimContactJson json;
    QByteArray out = "[";
    json.Append( CardOf( "FN:one" ), out );
    out += ',';
    json.Append( CardOf( "FN:two" ), out );
    out += ']';
    EXPECT_EQ( Checked( out ), "[" + JsonOf( "FN:one" ) + "," + JsonOf( "FN:two" ) + "]" );
}

TEST( CardJsonUseTest, ResultDoesNotDependOnCardsBefore )
{
    const std::vector<PimContactCard> cards = {
        CardOf( "VERSION:3.0\r\nN:a\\,b;c\r\nitem1.TEL;PREF;X-A=b:1\r\nitem1.X-ABLabel:x\r\nORG:o;p\r\nEMAIL:e@f" ),
        CardOf( "FN:b" ),
        CardOf( "VERSION:2.1\r\nitem1.TEL:1\r\nAGENT:\r\nBEGIN:VCARD\r\nFN:n\r\nEND:VCARD" ),
        CardOf( "item1.NOTE:" + QByteArray( 200000, 'x' ) ),
    };
    PimContactJson json;
    for ( const PimContactCard& before : cards )
    {
        for ( const PimContactCard& card : cards )
        {
            QByteArray out;
            json.Append( before, out );
            out.resize( 0 );
            json.Append( card, out );
            EXPECT_EQ( out, PimContactJson::Of( card ) );
        }
    }
}

TEST( CardJsonUseTest, MovedObjectWrites )
{
    PimContactJson first;
    first.SetFile( QStringLiteral( "f" ) );
    PimContactJson second( std::move( first ) );
    PimContactJson third;
    third = std::move( second );
    EXPECT_EQ( third.File(), QStringLiteral( "f" ) );
    QByteArray out;
    third.Append( CardOf( "FN:x" ), out );
    EXPECT_FALSE( out.isEmpty() );
}

} // namespace PimManager::Contacts
