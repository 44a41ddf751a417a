#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

std::string ShownRelations( const PimContact& a_contact )
{
    return ShownList( a_contact.Relations(),
                      []( const PimContactRelation& a_relation )
                      {
                          return a_relation.Text().toStdString() + Named( "uri", a_relation.Address() ) +
                                 ShownKinds( a_relation.Kinds() ) + ShownCommon( a_relation ) +
                                 ( a_relation.Contact().IsNull() ? "" : " card" );
                      } );
}

constexpr std::array s_kRelated = {
    ContactRow{ "4.0", "RELATED;TYPE=friend:urn:uuid:f81d4fae", " uri=urn:uuid:f81d4fae {Friend} types=FRIEND" },
    ContactRow{ "4.0", "RELATED;VALUE=text;TYPE=\"co-worker,met\";PREF=1:Ada: the second",
                "Ada: the second {Met|CoWorker} types=CO-WORKER|MET pref=1" },
    ContactRow{ "4.0", "RELATED;VALUE=text:mailto:a@b", "mailto:a@b" },
    ContactRow{ "4.0", "RELATED;TYPE=agent;VALUE=uri:http://example.com",
                " uri=http://example.com {Agent} types=AGENT" },
    ContactRow{ "4.0", "RELATED;TYPE=godmother;LANGUAGE=en:Ada Marsh",
                "Ada Marsh label=godmother types=GODMOTHER language=en" },
    ContactRow{ "4.0", "RELATED:\r\nRELATED;TYPE=friend: ", "" },
    ContactRow{ "3.0", "a.X-ABRELATEDNAMES;type=pref:Ada\r\na.X-ABLabel:_$!<Mother>!$_",
                "Ada {Mother} label=Mother pref=1" },
    ContactRow{ "3.0", "a.X-ABRELATEDNAMES:Ada\r\na.X-ABLabel:_$!<Assistant>!$_", "Ada {Assistant} label=Assistant" },
    ContactRow{ "3.0", "a.X-ABRELATEDNAMES:Ada\r\na.X-ABLabel:godmother\r\nX-ABRELATEDNAMES:Ida",
                "Ada label=godmother / Ida" },
    ContactRow{ "2.1",
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/relation;Ada;8;;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/relation;Ida;0;godmother;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/relation;Ela;99;x;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/relation;;1;;;",
                "Ada {Mother} / Ida label=godmother / Ela" },
};

struct PropertyRow
{
    const char* m_property;
    const char* m_kind;
};

constexpr std::array s_kProperties = {
    PropertyRow{ "X-SPOUSE", "Spouse" },          PropertyRow{ "X-EVOLUTION-SPOUSE", "Spouse" },
    PropertyRow{ "X-MS-SPOUSE", "Spouse" },       PropertyRow{ "X-KADDRESSBOOK-X-SpousesName", "Spouse" },
    PropertyRow{ "X-MANAGER", "Manager" },        PropertyRow{ "X-EVOLUTION-MANAGER", "Manager" },
    PropertyRow{ "X-MS-MANAGER", "Manager" },     PropertyRow{ "X-KADDRESSBOOK-X-ManagersName", "Manager" },
    PropertyRow{ "X-ASSISTANT", "Assistant" },    PropertyRow{ "X-EVOLUTION-ASSISTANT", "Assistant" },
    PropertyRow{ "X-MS-ASSISTANT", "Assistant" }, PropertyRow{ "X-KADDRESSBOOK-X-AssistantsName", "Assistant" },
    PropertyRow{ "X-MS-CHILD", "Child" },
};

constexpr std::array s_kAgents = {
    ContactRow{ "2.1", "AGENT:\r\nBEGIN:VCARD\r\nFN:Ada Marsh\r\nTEL:1\r\nEND:VCARD", "Ada Marsh {Agent} card" },
    ContactRow{ "2.1", "AGENT:BEGIN:VCARD\r\nVERSION:2.1\r\nN:Marsh;Ada\r\nEND:VCARD", "Ada Marsh {Agent} card" },
    ContactRow{ "3.0", "AGENT:BEGIN:VCARD\\nFN:Ada\\, Marsh\\nTEL:1\\nEND:VCARD\\n", "Ada, Marsh {Agent} card" },
    ContactRow{ "3.0", "AGENT;VALUE=uri:CID:JQPUBLIC.part3@example.com",
                " uri=CID:JQPUBLIC.part3@example.com {Agent}" },
    ContactRow{ "3.0", "AGENT:Ada", "Ada {Agent}" },
    ContactRow{ "3.0", "AGENT:", "" },
    ContactRow{ "3.0", "AGENT:BEGIN:VCARD\\nTITLE:x\\nEND:VCARD", " {Agent} card" },
    ContactRow{ "3.0", "AGENT:begin the day", "begin the day {Agent}" },
};

} // namespace

TEST( PimContactRelationsTest, RelationsAreRead )
{
    ExpectRows( s_kRelated, ShownRelations );
}

TEST( PimContactRelationsTest, PropertiesOfVendorsSetTheKind )
{
    for ( const PropertyRow& row : s_kProperties )
        EXPECT_EQ( ShownRelations( ContactWith( QByteArray( row.m_property ) + ":Ada Marsh", "3.0" ) ),
                   "Ada Marsh {" + std::string( row.m_kind ) + '}' )
            << row.m_property;
}

TEST( PimContactRelationsTest, EveryKindHasItsWord )
{
    const auto kinds = QMetaEnum::fromType<PimContactRelationKinds>();
    ASSERT_EQ( kinds.keyCount(), 30 );
    for ( int i = 0; i < kinds.keyCount(); ++i )
    {
        const PimContact contact = ContactWith( QByteArray( "RELATED;TYPE=" ) + kinds.key( i ) + ":Ada Marsh", "4.0" );
        EXPECT_EQ( static_cast<int>( contact.Relations().value( 0 ).Kinds() ), kinds.value( i ) ) << kinds.key( i );
        EXPECT_EQ( contact.Relations().value( 0 ).Label(), QString() ) << kinds.key( i );
    }
}

TEST( PimContactRelationsTest, AgentsAreRead )
{
    ExpectRows( s_kAgents, ShownRelations );
}

TEST( PimContactRelationsTest, CardOfAnAgentIsAContact )
{
    const PimContact nested = ContactWith( s_kAgents[0].m_lines, "2.1" ).Relations().value( 0 ).Contact();
    EXPECT_EQ( nested.Phones().value( 0 ).Number(), QLatin1String( "1" ) );
    const PimContact text = ContactWith( s_kAgents[2].m_lines, "3.0" ).Relations().value( 0 ).Contact();
    EXPECT_EQ( text.Phones().value( 0 ).Number(), QLatin1String( "1" ) );
}

} // namespace PimManager::Contacts
