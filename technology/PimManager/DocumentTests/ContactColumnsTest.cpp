// docs/vcard-support.md: the columns "in a contact". Each property and parameter of the tables has a sample here. The
// column names the functions whose results change if a card has the sample.

#include "ContactFunctions.h"
#include "DocumentFile.h"

#include "Lines/ParameterTable.h"
#include "Lines/PropertyRules.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::vCard::Documents;

namespace
{

struct Version
{
    PimContactVersion m_version;
    const char* m_number;
};

const std::vector<Version> s_kVersions = {
    { PimContactVersion::V21, "2.1" }, { PimContactVersion::V30, "3.0" }, { PimContactVersion::V40, "4.0" } };

using Column = std::map<std::string, std::string>;

// The last cells of the rows of a table, by their first cells.
Column ColumnOf( const char* a_heading )
{
    Column column;
    const std::vector<TableRow> table =
        TableRows( DocumentText( QStringLiteral( "docs/vcard-support.md" ) ),
                   { QString::fromLatin1( a_heading ), QStringLiteral( "2.1" ), QStringLiteral( "3.0" ),
                     QStringLiteral( "4.0" ), QStringLiteral( "in a contact" ) } );
    for ( const TableRow& row : table )
        EXPECT_TRUE( column.emplace( row.m_cells.first().toStdString(), row.m_cells.last().toStdString() ).second )
            << "line " << row.m_line;
    return column;
}

std::string CellOf( const QStringList& a_functions )
{
    if ( a_functions.isEmpty() )
        return "no";
    return ( QLatin1Char( '`' ) + a_functions.join( QStringLiteral( "`, `" ) ) + QLatin1Char( '`' ) ).toStdString();
}

PimContact ContactOf( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + a_lines + "END:VCARD\r\n" );
    EXPECT_FALSE( book.IsEmpty() ) << a_lines.toStdString();
    return book.IsEmpty() ? PimContact() : PimContact( book.CardAt( 0 ) );
}

// The functions that return something only if the card has the sample.
QStringList FunctionsThatRead( const QByteArray& a_sample, const char* a_version )
{
    const QByteArray version = QByteArray( "VERSION:" ) + a_version + "\r\n";
    const QByteArray others = a_sample.startsWith( "VERSION" ) ? QByteArray() : version;
    const QStringList without = FunctionsWithResult( ContactOf( others ) );
    QStringList functions = FunctionsWithResult( ContactOf( others + a_sample + "\r\n" ) );
    for ( const QString& name : without )
        functions.removeAll( name );
    return functions;
}

const std::map<std::string, QByteArray>& PropertySamples()
{
    static const std::map<std::string, QByteArray> s_kSamples = {
        { "ADR", "ADR:;;12 Mill Lane;Thornvale;;;" },
        { "AGENT", "AGENT:http://example.org/bo.vcf" },
        { "ANNIVERSARY", "ANNIVERSARY:20090808" },
        { "BDAY", "BDAY:19840229" },
        { "BEGIN", "BEGIN:VCARD" },
        { "BIRTHPLACE", "BIRTHPLACE:Thornvale" },
        { "CALADRURI", "CALADRURI:mailto:ada@example.org" },
        { "CALURI", "CALURI:http://example.org/calendar" },
        { "CATEGORIES", "CATEGORIES:sea,tea" },
        { "CLASS", "CLASS:PRIVATE" },
        { "CLIENTPIDMAP", "CLIENTPIDMAP:1;urn:uuid:53e374d9" },
        { "CONTACT-URI", "CONTACT-URI:http://example.org/contact" },
        { "CREATED", "CREATED:20220705T093412Z" },
        { "DEATHDATE", "DEATHDATE:19960415" },
        { "DEATHPLACE", "DEATHPLACE:Thornvale" },
        { "EMAIL", "EMAIL:ada@example.org" },
        { "END", "END:VCARD" },
        { "EXPERTISE", "EXPERTISE:tides" },
        { "FBURL", "FBURL:http://example.org/busy" },
        { "FN", "FN:Ada Fenwick" },
        { "GENDER", "GENDER:F" },
        { "GEO", "GEO:37.24;-17.87" },
        { "GRAMGENDER", "GRAMGENDER:feminine" },
        { "HOBBY", "HOBBY:reading" },
        { "IMPP", "IMPP:xmpp:ada@example.org" },
        { "INTEREST", "INTEREST:rowing" },
        { "JSPROP", "JSPROP;JSPTR=\"tide\":\"high\"" },
        { "KEY", "KEY:http://example.org/ada.key" },
        { "KIND", "KIND:group" },
        { "LABEL", "LABEL:12 Mill Lane" },
        { "LANG", "LANG:fr" },
        { "LANGUAGE", "LANGUAGE:de" },
        { "LOGO", "LOGO:http://example.org/logo.gif" },
        { "MAILER", "MAILER:Quill 1.2" },
        { "MEMBER", "MEMBER:urn:uuid:03a0e51f" },
        { "N", "N:Fenwick;Ada;;;" },
        { "NAME", "NAME:Ada's card" },
        { "NICKNAME", "NICKNAME:Addy" },
        { "NOTE", "NOTE:Calls after noon." },
        { "ORG", "ORG:Tide Office;Charts" },
        { "ORG-DIRECTORY", "ORG-DIRECTORY:http://example.org/directory" },
        { "PHOTO", "PHOTO:http://example.org/ada.gif" },
        { "PRODID", "PRODID:-//EXAMPLE//Quill//EN" },
        { "PROFILE", "PROFILE:VCARD" },
        { "PRONOUNS", "PRONOUNS:she/her" },
        { "RELATED", "RELATED;TYPE=friend:urn:uuid:f81d4fae" },
        { "REV", "REV:19951031T222710Z" },
        { "ROLE", "ROLE:Navigator" },
        { "SOCIALPROFILE", "SOCIALPROFILE:https://example.org/@ada" },
        { "SORT-STRING", "SORT-STRING:Fenwick" },
        { "SOUND", "SOUND:http://example.org/ada.wav" },
        { "SOURCE", "SOURCE:http://example.org/ada.vcf" },
        { "TEL", "TEL:+1-555-0102" },
        { "TITLE", "TITLE:Keeper" },
        { "TZ", "TZ:-05:00" },
        { "UID", "UID:urn:uuid:4fbe8971" },
        { "URL", "URL:http://example.org/ada" },
        { "VERSION", "VERSION:%" },
        { "XML", "XML:<a xmlns=\"http://example.org/a\"/>" },
    };
    return s_kSamples;
}

// Lines that are read with the parameter and without it. The percent sign marks its position.
struct ParameterSample
{
    const char* m_lines;
    const char* m_parameter;
    QStringList ( *m_differences )( const PimContact&, const PimContact& );
};

template <class Field>
Field FirstOf( const PimContactList<Field>& a_fields )
{
    EXPECT_FALSE( a_fields.isEmpty() );
    return a_fields.value( 0 );
}

PimContactName FirstOf( const PimContactName& a_name )
{
    EXPECT_FALSE( a_name.IsEmpty() );
    return a_name;
}

// The functions that differ in the first field that a function of the contact returns.
template <auto s_kFunction>
QStringList In( const PimContact& a_contact, const PimContact& a_other )
{
    return DifferingFunctions( FirstOf( ( a_contact.*s_kFunction )() ), FirstOf( ( a_other.*s_kFunction )() ) );
}

PimContactText OtherLineOf( const PimContact& a_contact )
{
    const QList<PimContactLine> lines = a_contact.OtherLines();
    EXPECT_FALSE( lines.isEmpty() );
    return a_contact.FieldOf( lines.value( 0 ) );
}

QStringList InOtherLines( const PimContact& a_contact, const PimContact& a_other )
{
    return DifferingFunctions( OtherLineOf( a_contact ), OtherLineOf( a_other ) );
}

const std::map<std::string, std::vector<ParameterSample>>& ParameterSamples()
{
    static const std::map<std::string, std::vector<ParameterSample>> s_kSamples = {
        { "ALTID", { { "TITLE%:Keeper\r\nTITLE%;LANGUAGE=fr:Gardienne", "ALTID=1", In<&PimContact::Titles> } } },
        { "AUTHOR", { { "NOTE%:tide", "AUTHOR=\"mailto:bo@example.org\"", In<&PimContact::Notes> } } },
        { "AUTHOR-NAME", { { "NOTE%:tide", "AUTHOR-NAME=Bo", In<&PimContact::Notes> } } },
        { "CALSCALE", { { "BDAY%:19840229", "CALSCALE=gregorian", In<&PimContact::Events> } } },
        { "CC", { { "ADR%:;;12 Mill Lane;;;;", "CC=DE", In<&PimContact::Addresses> } } },
        { "CHARSET", { { "NOTE%:\xC1\xC2", "CHARSET=KOI8-R", In<&PimContact::Notes> } } },
        { "CONTEXT", { { "SOURCE%:http://example.org/ada.vcf", "CONTEXT=tide", In<&PimContact::Sources> } } },
        { "CREATED", { { "NOTE%:tide", "CREATED=20220705T093412Z", In<&PimContact::Notes> } } },
        { "DERIVED", { { "FN%:Ada", "DERIVED=true", In<&PimContact::FormattedNames> } } },
        { "ENCODING", { { "PHOTO%:R0lGODlhAQABAAAAACw=", "ENCODING=b", In<&PimContact::Photos> } } },
        { "GEO", { { "ADR%:;;12 Mill Lane;;;;", "GEO=\"geo:37.24,-17.87\"", In<&PimContact::Addresses> } } },
        { "INDEX", { { "HOBBY%:reading", "INDEX=1", In<&PimContact::Hobbies> } } },
        { "JSCOMPS", { { "N%:Fenwick;Ada;;;", "JSCOMPS=\";1;0\"", In<&PimContact::Name> } } },
        { "JSPTR", { { "JSPROP%:\"high\"", "JSPTR=tide", InOtherLines } } },
        { "LABEL", { { "ADR%:;;12 Mill Lane;;;;", "LABEL=12 Mill Lane\\, Thornvale", In<&PimContact::Addresses> } } },
        { "LANGUAGE", { { "TITLE%:Keeper", "LANGUAGE=en", In<&PimContact::Titles> } } },
        { "LEVEL", { { "HOBBY%:reading", "LEVEL=high", In<&PimContact::Hobbies> } } },
        { "MEDIATYPE", { { "PHOTO%:http://example.org/ada", "MEDIATYPE=image/gif", In<&PimContact::Photos> } } },
        { "PHONETIC", { { "N%:Fenwick;Ada;;;", "PHONETIC=ipa", In<&PimContact::Name> } } },
        { "PID", { { "TEL%:5550102", "PID=1.1", In<&PimContact::Phones> } } },
        { "PREF", { { "TEL%:5550102", "PREF=1", In<&PimContact::Phones> } } },
        { "PROP-ID", { { "TEL%:5550102", "PROP-ID=p1", In<&PimContact::Phones> } } },
        { "SCRIPT", { { "N%:Fenwick;Ada;;;", "SCRIPT=Latn", In<&PimContact::Name> } } },
        { "SERVICE-TYPE",
          { { "SOCIALPROFILE%:https://example.org/@ada", "SERVICE-TYPE=Tern", In<&PimContact::Messengers> } } },
        { "SORT-AS",
          { { "N%:Fenwick;Ada;;;", "SORT-AS=Ada", In<&PimContact::Name> },
            { "ORG%:The Tide Office", "SORT-AS=Tide Office", In<&PimContact::Organisations> } } },
        { "TYPE",
          { { "TEL%:5550102", "TYPE=CELL;TYPE=X-Boat;TYPE=PREF", In<&PimContact::Phones> },
            { "PHOTO%:http://example.org/ada", "TYPE=GIF", In<&PimContact::Photos> } } },
        { "TZ", { { "ADR%:;;12 Mill Lane;;;;", "TZ=-0500", In<&PimContact::Addresses> } } },
        { "USERNAME", { { "SOCIALPROFILE%:https://example.org/@ada", "USERNAME=ada", In<&PimContact::Messengers> } } },
        { "VALUE",
          { { "BDAY%:19840229", "VALUE=text", In<&PimContact::Events> },
            { "PHOTO%:tide.gif", "VALUE=uri", In<&PimContact::Photos> } } },
    };
    return s_kSamples;
}

PimContact ContactOf( const ParameterSample& a_sample, const char* a_version, bool a_hasParameter )
{
    const QByteArray parameter = a_hasParameter ? QByteArray( ";" ) + a_sample.m_parameter : QByteArray();
    return ContactOf( QByteArray( "VERSION:" ) + a_version + "\r\n" +
                      QByteArray( a_sample.m_lines ).replace( "%", parameter ) + "\r\n" );
}

// Parameters() always differs, so it is listed only if nothing else differs.
QStringList FunctionsThatDiffer( const std::vector<ParameterSample>& a_samples, const char* a_version )
{
    QStringList functions;
    for ( const ParameterSample& sample : a_samples )
    {
        functions +=
            sample.m_differences( ContactOf( sample, a_version, true ), ContactOf( sample, a_version, false ) );
    }
    functions.removeDuplicates();
    const QString parameters = QStringLiteral( "Parameters()" );
    if ( functions.size() > 1 )
        functions.removeAll( parameters );
    return functions;
}

// The part of a header that declares the functions.
QString DeclarationsOf( const QString& a_class )
{
    const QString text = DocumentText(
        QStringLiteral( "technology/PimManager/Contacts/Include/PimManager/Contacts/%1.h" ).arg( a_class ) );
    if ( a_class == QLatin1String( "PimContact" ) )
        return QStringLiteral( "    Version() const\n" ) +
               text.section( QStringLiteral( "\\name Names" ), 1 ).section( QStringLiteral( "\\name Lines" ), 0, 0 );
    return text.section( QStringLiteral( "\npublic:\n" ), 1 )
        .section( QRegularExpression( QStringLiteral( "\n(private|protected):\n" ) ), 0, 0 );
}

QStringList DeclaredFunctions( const QString& a_class )
{
    static const QRegularExpression s_kFunction( QStringLiteral( "^    (?!///).*\\b(\\w+\\(\\)) const\\b" ),
                                                 QRegularExpression::MultilineOption );
    QStringList functions;
    QRegularExpressionMatchIterator matches = s_kFunction.globalMatch( DeclarationsOf( a_class ) );
    while ( matches.hasNext() )
        functions.append( matches.next().captured( 1 ) );
    return functions;
}

} // namespace

TEST( ContactColumnsTest, PropertiesAreReadByTheirFunctions )
{
    const Column column = ColumnOf( "property" );
    EXPECT_EQ( column.size(), PropertySamples().size() );
    for ( const auto& [name, cell] : column )
    {
        const auto sample = PropertySamples().find( name );
        ASSERT_NE( sample, PropertySamples().end() ) << name << " has no sample";
        const PropertyId property = StandardPropertyOf( name );
        for ( const Version& version : s_kVersions )
        {
            const QByteArray line = QByteArray( sample->second ).replace( '%', version.m_number );
            if ( FindRule( property, version.m_version ) != nullptr )
            {
                EXPECT_EQ( cell, CellOf( FunctionsThatRead( line, version.m_number ) ) )
                    << name << " in " << version.m_number;
            }
        }
    }
}

TEST( ContactColumnsTest, ParametersChangeTheirFunctions )
{
    const Column column = ColumnOf( "parameter" );
    EXPECT_EQ( column.size(), ParameterSamples().size() );
    for ( const auto& [name, cell] : column )
    {
        const auto samples = ParameterSamples().find( name );
        ASSERT_NE( samples, ParameterSamples().end() ) << name << " has no sample";
        const StandardParameter parameter = StandardParameterOf( name );
        for ( const Version& version : s_kVersions )
        {
            if ( !SectionOf( parameter, version.m_version ).m_number.empty() )
            {
                EXPECT_EQ( cell, CellOf( FunctionsThatDiffer( samples->second, version.m_number ) ) )
                    << name << " in " << version.m_number;
            }
        }
    }
}

TEST( ContactColumnsTest, AllFunctionsOfTheHeadersAreCalled )
{
    for ( const ClassFunctions& functions : CalledFunctions() )
        EXPECT_EQ( functions.m_functions.join( QLatin1Char( ' ' ) ).toStdString(),
                   DeclaredFunctions( functions.m_class ).join( QLatin1Char( ' ' ) ).toStdString() )
            << functions.m_class.toStdString();
}
