// The JSON of every sample file conforms to docs/contact.schema.json, and other JSON does not.

#include "OneCard.h"
#include "SampleFiles.h"

#include <QProcess>
#include <QString>

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

QByteArray JsonLines( const QByteArray& a_file, int& a_count )
{
    const PimContactBook book = PimContactBook::FromBytes( a_file );
    PimContactJson json;
    json.SetFile( QStringLiteral( "sample.vcf" ) );
    QByteArray lines;
    for ( const PimContactCard& card : book )
    {
        json.Append( card, lines );
        lines += '\n';
        ++a_count;
    }
    return lines;
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

// A schema that accepts everything would let the other tests pass.
TEST( JsonSchemaTest, OtherJsonDoesNotConform )
{
    const QByteArray good = PimContactJson::Of(
        CardOf( "VERSION:3.0\r\nN:a\r\nTEL;PREF:1\r\nX-IRMC-CALL-DATETIME;MISSED:20240311T084512Z\r\n"
                "PHOTO;ENCODING=b:R0lGODlh\r\nPHOTO;ENCODING=b:*" ) );
    struct Change
    {
        QByteArray m_from;
        QByteArray m_to;
    };
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
    QByteArray lines = good + "\n";
    for ( const Change& change : changes )
    {
        const QByteArray changed = QByteArray( good ).replace( change.m_from, change.m_to );
        EXPECT_NE( changed, good ) << change.m_from.toStdString();
        lines += changed + "\n";
    }
    const std::string answer = Validated( lines );
    EXPECT_NE( answer.find( "\n1 conform\n" ), std::string::npos ) << answer;
    for ( size_t i = 0; i < changes.size(); ++i )
        EXPECT_NE( answer.find( "line " + std::to_string( i + 2 ) + ": " ), std::string::npos )
            << changes[i].m_to.toStdString();
}

} // namespace PimManager::Contacts
