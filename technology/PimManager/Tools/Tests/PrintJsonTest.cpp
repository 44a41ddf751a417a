#include "ProgramRun.h"

#include "ComponentLog.h"
#include "PimVCard.h"
#include "ToolsTestText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

namespace
{

const QByteArray s_kBook =
    CardText( "VERSION:3.0\r\nN:Brackwater;Nell;;;\r\nitem1.TEL;TYPE=CELL,VOICE;pref:555-0101\r\nNOTE:\r\n" ) +
    CardText( "" ) +
    CardText( "FN:Δάφνη \xF0\x9F\x94\xAD\r\nX-A;Z=\"a;\xC2\x9B\":x\\;\\\\\tq\"\nx;\xE2\x80\xAE\xE2\x80\xA8\r\n" ) +
    CardText( "PHOTO;ENCODING=b:" + QByteArray( 50000, 'A' ) + "\r\n" );

QJsonObject Parameter( const PimVCardParameter& a_parameter )
{
    return { { QStringLiteral( "name" ), a_parameter.GetName() },
             { QStringLiteral( "value" ), a_parameter.GetValue() } };
}

QJsonObject Property( const PimVCardProperty& a_property )
{
    QJsonArray parameters;
    for ( const PimVCardParameter* parameter : a_property.GetParameters() )
        parameters.append( Parameter( *parameter ) );
    return { { QStringLiteral( "group" ), a_property.GetGroupID() },
             { QStringLiteral( "name" ), a_property.GetName() },
             { QStringLiteral( "parameters" ), parameters },
             { QStringLiteral( "values" ), QJsonArray::fromStringList( a_property.GetValues() ) } };
}

// What the component gives, as Qt would put it.
QJsonArray Expected( const QByteArray& a_text )
{
    const ComponentLog quiet( nullptr );
    QJsonArray cards;
    for ( const auto& card : ParseBook( QByteArray( a_text ) ) )
    {
        QJsonArray properties;
        for ( const PimVCardProperty* property : card->GetProperties() )
            properties.append( Property( *property ) );
        cards.append( QJsonObject{ { QStringLiteral( "properties" ), properties } } );
    }
    return cards;
}

QJsonDocument Parsed( const std::string& a_json )
{
    QJsonParseError error = {};
    QJsonDocument document = QJsonDocument::fromJson( QByteArray::fromStdString( a_json ), &error );
    EXPECT_EQ( error.error, QJsonParseError::NoError ) << Utf8( error.errorString() ) << "\n" << a_json;
    return document;
}

QJsonArray ParsedLines( const std::string& a_lines )
{
    QJsonArray objects;
    const QList<QByteArray> lines = QByteArray::fromStdString( a_lines ).split( '\n' );
    EXPECT_TRUE( lines.last().isEmpty() );
    for ( const QByteArray& line : lines.mid( 0, lines.size() - 1 ) )
        objects.append( Parsed( line.toStdString() ).object() );
    return objects;
}

} // namespace

TEST( PrintJsonTest, DocumentHoldsWhatTheComponentGives )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kBook );
    ASSERT_EQ( Expected( s_kBook ).size(), 4 );
    for ( const char* option : { "--json", "-j" } )
    {
        const ProgramRun run = RunPimvcard( { "print", option, book } );
        EXPECT_EQ( run.m_status, 0 ) << run.m_err;
        EXPECT_EQ( Parsed( run.m_out ).array(), Expected( s_kBook ) );
    }
}

TEST( PrintJsonTest, LinesHoldWhatTheComponentGives )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kBook );
    for ( const char* option : { "--json-lines", "-J" } )
    {
        const ProgramRun run = RunPimvcard( { "print", option, book } );
        EXPECT_EQ( run.m_status, 0 ) << run.m_err;
        EXPECT_EQ( ParsedLines( run.m_out ), Expected( s_kBook ) );
    }
}

TEST( PrintJsonTest, AllFilesAreInOneDocument )
{
    const Folder folder;
    const QByteArray first = folder.Write( "a", CardText( "FN:a\r\n" ) );
    const QByteArray second = folder.Write( "b", CardText( "FN:b\r\n" ) + "rubbish\r\n" );
    const ProgramRun run = RunPimvcard( { "print", "--json", first, folder.Path( "missing" ), second } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( Parsed( run.m_out ).array(), Expected( CardText( "FN:a\r\n" ) + CardText( "FN:b\r\n" ) ) );
}

TEST( PrintJsonTest, DocumentIsCompleteWithoutCards )
{
    const Folder folder;
    EXPECT_EQ( RunPimvcard( { "print", "--json", folder.Write( "empty", "" ) } ).m_out, "[]\n" );
    EXPECT_EQ( RunPimvcard( { "print", "--json", folder.Path( "missing" ) } ).m_out, "[]\n" );
    EXPECT_EQ( RunPimvcard( { "print", "--json-lines", folder.Path( "empty" ) } ).m_out, "" );
}

TEST( PrintJsonTest, FullChangesNothing )
{
    const Folder folder;
    const QByteArray book = folder.Write( "a", s_kBook );
    EXPECT_EQ( RunPimvcard( { "print", "--json", "--full", book } ).m_out,
               RunPimvcard( { "print", "--json", book } ).m_out );
}
