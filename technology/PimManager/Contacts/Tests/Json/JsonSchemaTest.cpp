// The JSON of every sample file conforms to docs/contact.schema.json, and other JSON does not.

#include "OneCard.h"
#include "SampleFiles.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

/// \param a_documents one a line.
/// \return what the validator prints.
std::string Validated( const QByteArray& a_documents )
{
    constexpr int s_kPatience = 240000;
    QProcess validator;
    validator.start( QStringLiteral( PIMCONTACT_PYTHON ),
                     { QStringLiteral( PIMCONTACT_VALIDATOR ), QStringLiteral( PIMCONTACT_SCHEMA ) } );
    validator.write( a_documents );
    validator.closeWriteChannel();
    EXPECT_TRUE( validator.waitForFinished( s_kPatience ) );
    EXPECT_EQ( validator.exitCode(), 0 ) << validator.readAllStandardError().toStdString();
    return validator.readAllStandardOutput().toStdString();
}

/// \return the lines of a card that has every member of the format.
QByteArray EveryMember()
{
    return "VERSION:4.0\r\n"
           "FN;LANGUAGE=en:Nell Brackwater\r\n"
           "FN;LANGUAGE=de:Nell B.\r\n"
           "N;SORT-AS=b;ALTID=1:Brackwater,Quill;Nell;Imogen;Dr.;jr.;Tarn;II\r\n"
           "X-PHONETIC-LAST-NAME:brak\r\n"
           "X-PHONETIC-FIRST-NAME:nel\r\n"
           "X-PHONETIC-MIDDLE-NAME:im\r\n"
           "X-MAIDENNAME:Tarn\r\n"
           "NICKNAME;TYPE=work;PREF=2:Nelly,Quill\r\n"
           "TEL;TYPE=\"cell,fax\":tel:+1-555;ext=2;phone-context=x.example\r\n"
           "EMAIL;TYPE=home:\"Nell\" <n@example.com>\r\n"
           "ADR;TYPE=home;LABEL=there;CC=DE;GEO=\"geo:1.5,-2.25\";TZ=Z:1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17;18\r\n"
           "SOCIALPROFILE;SERVICE-TYPE=Tern;USERNAME=nell:https://tern.example/nell\r\n"
           "IMPP;TYPE=work:xmpp:n@example.com\r\n"
           "URL:https://example.com\r\n"
           "CONTACT-URI:https://example.com/c\r\n"
           "LANG:de\r\n"
           "GEO:geo:1,2\r\n"
           "TZ:-0500\r\n"
           "BDAY;CALSCALE=gregorian:--0412\r\n"
           "BIRTHPLACE:Kirkholm\r\n"
           "ANNIVERSARY;VALUE=text:circa 1800\r\n"
           "DEATHPLACE:Easterby\r\n"
           "ORG;SORT-AS=t;TYPE=work:Tide Office;Charts\r\n"
           "TITLE:Pilot\r\n"
           "ROLE:Guide\r\n"
           "EXPERTISE;LEVEL=expert:tides\r\n"
           "HOBBY;LEVEL=high:boats\r\n"
           "INTEREST:maps\r\n"
           "ORG-DIRECTORY:https://example.com/o\r\n"
           "RELATED;TYPE=co-worker;VALUE=text:Ada\r\n"
           "RELATED:urn:uuid:2\r\n"
           "KIND:individual\r\n"
           "MEMBER:urn:uuid:3\r\n"
           "PHOTO;X-ABCROP-RECTANGLE=ABClipRect_1&0&12&320&320&x:data:image/gif;base64,R0lGODlh\r\n"
           "LOGO:https://example.com/l.png\r\n"
           "SOUND;ENCODING=b:*\r\n"
           "KEY;VALUE=text:k\r\n"
           "UID:urn:uuid:1\r\n"
           "REV:20240311T084512Z\r\n"
           "CREATED:20240311T084512+0130\r\n"
           "X-IRMC-CALL-DATETIME:20240311T084512\r\n"
           "NOTE:x\r\n"
           "CATEGORIES:a,b\r\n"
           "GENDER:F;girl\r\n"
           "GRAMGENDER:feminine\r\n"
           "PRONOUNS:she/her\r\n"
           "LANGUAGE:en\r\n"
           "CALURI:https://example.com/cal\r\n"
           "CALADRURI:mailto:n@example.com\r\n"
           "FBURL:https://example.com/fb\r\n"
           "SOURCE:https://example.com/n.vcf\r\n"
           "XML:<a/>\r\n"
           "CLIENTPIDMAP:1;urn:uuid:4\r\n"
           "CLASS:PUBLIC\r\n"
           "MAILER:m\r\n"
           "PRODID:p";
}

QByteArray JsonLines( const QByteArray& a_file, int& a_count )
{
    const PimContactBook book = PimContactBook::FromBytes( a_file );
    PimContactJson json;
    json.SetFile( QStringLiteral( "sample.vcf" ) );
    QByteArray lines;
    for ( const PimContactCard& card : book.Cards() )
    {
        json.Append( card, lines );
        lines += '\n';
        ++a_count;
    }
    return lines;
}

struct Change
{
    QByteArray m_from;
    QByteArray m_to;
};

/// Expects that a document conforms, and that it does not with any of the changes.
void ExpectRefused( const QByteArray& a_good, const std::vector<Change>& a_changes )
{
    QByteArray lines = a_good + "\n";
    for ( const Change& change : a_changes )
    {
        const QByteArray changed = QByteArray( a_good ).replace( change.m_from, change.m_to );
        EXPECT_NE( changed, a_good ) << change.m_from.toStdString() << " in " << a_good.toStdString();
        lines += changed + "\n";
    }
    const std::string answer = Validated( lines );
    EXPECT_NE( answer.find( "\n1 conform\n" ), std::string::npos ) << answer;
    for ( size_t i = 0; i < a_changes.size(); ++i )
        EXPECT_NE( answer.find( "line " + std::to_string( i + 2 ) + ": " ), std::string::npos )
            << a_changes[i].m_to.toStdString();
}

} // namespace

TEST( JsonSchemaTest, SamplesConform )
{
    QByteArray lines;
    int count = 0;
    for ( const std::string& name : SampleNames() )
        lines += JsonLines( SampleFile( name + ".vcf" ), count );
    EXPECT_EQ( Validated( lines ), std::to_string( count ) + " conform\n" );
}

TEST( JsonSchemaTest, EveryKindOfPropertyConforms )
{
    const QByteArray json = PimContactJson::Of( CardOf(
        "VERSION:3.0\r\nN:a\r\nADR:b\r\nORG:c\r\nitem1.TEL;PREF=100;X-A=b:1\r\nitem1.X-ABLabel:l\r\nEMAIL:e@f\r\n"
        "PHOTO;ENCODING=b:R0lGODlh\r\nPHOTO;ENCODING=b:*\r\nX-IRMC-CALL-DATETIME;MISSED:20240311T084512Z\r\n"
        "AGENT:\r\nBEGIN:VCARD\r\nFN:n\r\nEND:VCARD" ) );
    EXPECT_EQ( Validated( json + "\n" ), "1 conform\n" );
}

TEST( JsonSchemaTest, EveryMemberConforms )
{
    const QByteArray json = PimContactJson::Of( CardOf( EveryMember() ) );
    EXPECT_EQ( Validated( json + "\n" ), "1 conform\n" );
    const QJsonObject object = QJsonDocument::fromJson( json ).object();
    QFile file( QStringLiteral( PIMCONTACT_SCHEMA ) );
    ASSERT_TRUE( file.open( QIODevice::ReadOnly ) );
    const QStringList members = QJsonDocument::fromJson( file.readAll() )
                                    .object()
                                    .value( QLatin1String( "$defs" ) )
                                    .toObject()
                                    .value( QLatin1String( "contactMembers" ) )
                                    .toObject()
                                    .value( QLatin1String( "properties" ) )
                                    .toObject()
                                    .keys();
    EXPECT_GT( members.size(), 50 );
    for ( const QString& member : members )
        EXPECT_TRUE( object.contains( member ) ) << member.toStdString();
}

// A schema that accepts everything would let the other tests pass.
TEST( JsonSchemaTest, OtherJsonDoesNotConform )
{
    const QByteArray good = PimContactJson::Of(
        CardOf( "VERSION:3.0\r\nN:a\r\nTEL;PREF:1\r\nX-IRMC-CALL-DATETIME;MISSED:20240311T084512Z\r\n"
                "PHOTO;ENCODING=b:R0lGODlh\r\nPHOTO;ENCODING=b:*" ) );
    const std::vector<Change> changes = {
        { "\"card\":1", "\"card\":-1" },
        { "\"line\":1", "\"line\":\"1\"" },
        { "\"whole\":true", "\"whole\":1" },
        { "\"version\":\"3.0\",", "" },
        { "\"mails\":[],", "" },
        { "\"organisation\":\"\"", "\"organization\":\"\"" },
        { "\"number\":\"1\"", "\"number\":\"1\",\"more\":1" },
        { "\"number\":\"1\"", "\"number\":\"\"" },
        { "\"preference\":1", "\"preference\":0" },
        { "\"preference\":1", "\"preference\":101" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"values\":[\"3.0\"]" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"types\":[]" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"types\":[],\"values\":[]" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"types\":[],\"values\":[3.0]" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"types\":[\"A\",\"A\"],\"values\":[\"3.0\"]" },
        { "\"types\":[],\"values\":[\"3.0\"]", "\"types\":[],\"values\":[\"3.0\"],\"more\":1" },
        { "\"name\":\"VERSION\"", "\"name\":\"version\"" },
        { "\"family\":\"a\",", "" },
        { "\"family\":\"a\"", "\"family\":\"a\",\"street\":\"b\"" },
        { "\"direction\":\"missed\"", "\"direction\":\"lost\"" },
        { "\"time\":\"2024-", "\"time\":\"24-" },
        { "\"mediaType\":\"image/gif\",", "" },
        { "\"mediaType\":\"image/gif\"", "\"mediaType\":\"image\"" },
        { "\"size\":6,", "" },
        { "\"data\":\"R0lGODlh\"", "\"data\":\"R0l GODlh\"" },
        { "\"data\":\"R0lGODlh\"", "\"data\":\"R0lGODlh\",\"values\":[\"\"]" },
        { "\"fault\":0", "\"fault\":-1" },
        { "{\"card\"", "{\"more\":1,\"card\"" },
    };
    ExpectRefused( good, changes );
}

// The same for the members that the properties of a contact make.
TEST( JsonSchemaTest, OtherMembersDoNotConform )
{
    const std::vector<Change> changes = {
        { "\"family\":[", "\"families\":[" },
        { "\"family\":[\"Brackwater\",\"Quill\"]", "\"family\":\"Brackwater\"" },
        { "\"given\":[\"Nell\"]", "\"given\":[]" },
        { "\"given\":[\"Nell\"]", "\"given\":[\"\"]" },
        { "\"sortName\":\"b\"", "\"sortName\":\"\"" },
        { "\"formattedNames\":[{\"text\":\"Nell Brackwater\",\"language\":\"en\"},", "\"formattedNames\":[" },
        { "\"nicknames\":[{\"text\":\"Nelly\"", "\"nicknames\":[{\"name\":\"Nelly\"" },
        { "\"kinds\":[\"mobile\",\"fax\"]", "\"kinds\":[\"mobile\",\"cell\"]" },
        { "\"kinds\":[\"mobile\",\"fax\"]", "\"kinds\":[]" },
        { "\"extension\":\"2\"", "\"extension\":2" },
        { "\"latitude\":1.5", "\"latitude\":91" },
        { "\"latitude\":1.5,", "" },
        { "\"direction\":[\"18\"]", "\"direction\":[18]" },
        { "\"position\":{\"latitude\":1,", "\"position\":{" },
        { "\"socialProfile\":true", "\"socialProfile\":false" },
        { "\"kind\":\"birth\"", "\"kind\":\"born\"" },
        { "\"date\":\"--04-12\"", "\"date\":\"12.04.\"" },
        { "\"text\":\"circa 1800\"", "\"text\":\"circa 1800\",\"date\":\"1800\"" },
        { "\"units\":[\"Charts\"]", "\"units\":\"Charts\"" },
        { "\"kinds\":[\"co-worker\"]", "\"kinds\":[\"co-worker\",\"co-worker\"]" },
        { "\"damaged\":true", "\"damaged\":false" },
        { "\"crop\":{\"x\":0,", "\"crop\":{" },
        { "\"address\":\"https://example.com/l.png\"", "\"mediaType\":\"image/png\"" },
        { "\"sex\":\"female\"", "\"sex\":\"f\"" },
        { "\"clientPidMap\":[{\"number\":1", "\"clientPidMap\":[{\"number\":0" },
        { "\"kind\":\"individual\"", "\"kind\":[\"individual\"]" },
        { "\"uid\":", "\"id\":" },
    };
    ExpectRefused( PimContactJson::Of( CardOf( EveryMember() ) ), changes );
}

} // namespace PimManager::Contacts
