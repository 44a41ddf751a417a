#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

std::string ShownOrganisations( const PimContact& a_contact )
{
    return ShownList( a_contact.Organisations(),
                      []( const PimContactOrganisation& a_organisation )
                      {
                          return a_organisation.Name().toStdString() + Named( "units", a_organisation.Units() ) +
                                 Named( "sort", a_organisation.SortAs() ) + ShownKinds( a_organisation.Kinds() ) +
                                 ShownCommon( a_organisation );
                      } );
}

constexpr std::array s_kOrganisations = {
    ContactRow{ "3.0", "ORG:Lanthorn;Tide;Pumps", "Lanthorn units=Tide|Pumps" },
    ContactRow{ "2.1", "ORG:Lanthorn, Sons;;Tide;", "Lanthorn, Sons units=Tide" },
    ContactRow{ "4.0", "ORG;SORT-AS=\"Lanthorn,Tide\";TYPE=work;PREF=1;LANGUAGE=en:The Lanthorn\\, Sons;Tide",
                "The Lanthorn, Sons units=Tide sort=Lanthorn|Tide {Work} types=WORK pref=1 language=en" },
    ContactRow{ "3.0", "ORG:;Tide", " units=Tide" },
    ContactRow{ "3.0", "ORG:\r\nORG:;;\r\nORG: ; ", "" },
    ContactRow{ "2.1", "ORG;ENCODING=QUOTED-PRINTABLE:Lant=3Bhorn;T=C3=BCde",
                "Lant;horn units=T\xC3\xBC"
                "de" },
    ContactRow{ "3.0", "a.ORG:Lanthorn\r\na.X-ABLabel:boss", "Lanthorn label=boss" },
};

struct TextRow
{
    const char* m_name;
    PimContactList<PimContactText> ( PimContact::*m_texts )() const;
};

const std::array s_kTexts = {
    TextRow{ "TITLE", &PimContact::Titles },        TextRow{ "ROLE", &PimContact::Roles },
    TextRow{ "EXPERTISE", &PimContact::Expertise }, TextRow{ "HOBBY", &PimContact::Hobbies },
    TextRow{ "INTEREST", &PimContact::Interests },  TextRow{ "ORG-DIRECTORY", &PimContact::OrganisationDirectories },
};

} // namespace

TEST( PimContactWorkTest, OrganisationsAreRead )
{
    ExpectRows( s_kOrganisations, ShownOrganisations );
}

TEST( PimContactWorkTest, OrganisationIsTextForPeople )
{
    EXPECT_EQ( ContactWith( "ORG:Lanthorn;Tide", "3.0" ).Organisations().value( 0 ).Text(),
               QLatin1String( "Lanthorn, Tide" ) );
    EXPECT_EQ( ContactWith( "ORG:;Tide", "3.0" ).Organisations().value( 0 ).Text(), QLatin1String( "Tide" ) );
}

TEST( PimContactWorkTest, TextsAreRead )
{
    for ( const TextRow& row : s_kTexts )
    {
        const QByteArray name = row.m_name;
        const PimContact contact = ContactWith( name + ": Pumps\\, valves; weirs \r\n" + name + ":\r\n" + name +
                                                    ";LEVEL=Expert;TYPE=work;PREF=2:b",
                                                "4.0" );
        EXPECT_EQ( ShownTexts( ( contact.*row.m_texts )() ),
                   "Pumps, valves; weirs / b {Work} level=expert types=WORK pref=2" )
            << row.m_name;
    }
}

} // namespace PimManager::Contacts
