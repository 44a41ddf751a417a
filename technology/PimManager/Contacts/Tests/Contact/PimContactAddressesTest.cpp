#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

// The components up to the last one that is not empty, and what belongs to them.
std::string Shown( const PimContactAddress& a_address )
{
    QStringList parts;
    for ( int part = 0; part < s_kPimContactAddressParts; ++part )
        parts.append( a_address.Parts( static_cast<PimContactAddressPart>( part ) ).join( QLatin1Char( ',' ) ) );
    while ( !parts.isEmpty() && parts.constLast().isEmpty() )
        parts.removeLast();
    const std::optional<PimContactPosition> position = a_address.Position();
    const QString place =
        position ? QStringLiteral( "%1,%2" ).arg( position->m_latitude ).arg( position->m_longitude ) : QString();
    return parts.join( QLatin1Char( ';' ) ).toStdString() + Named( "text", a_address.DeliveryText() ) +
           Named( "country", a_address.CountryCode() ) + Named( "zone", a_address.TimeZone() ) +
           Named( "place", place ) + ShownKinds( a_address.Kinds() ) + ShownCommon( a_address );
}

std::string ShownAddresses( const PimContact& a_contact )
{
    return ShownList( a_contact.Addresses(), []( const PimContactAddress& a_address ) { return Shown( a_address ); } );
}

constexpr std::array s_kParts = {
    ContactRow{ "3.0", "ADR:12;Flat 2;3 Weir Lane;Ouse Mouth;Fenshire;FN1 2AB;Anglia",
                "12;Flat 2;3 Weir Lane;Ouse Mouth;Fenshire;FN1 2AB;Anglia" },
    ContactRow{ "3.0", "ADR:;;3 Weir Lane,Back door;Ouse Mouth", ";;3 Weir Lane,Back door;Ouse Mouth" },
    ContactRow{ "2.1", "ADR:;;3 Weir Lane, Back door;Ouse Mouth", ";;3 Weir Lane, Back door;Ouse Mouth" },
    ContactRow{ "2.1", "ADR;ENCODING=QUOTED-PRINTABLE:;;3 Weir Lane=0D=0ABack door;Ouse=3BMouth",
                ";;3 Weir Lane\nBack door;Ouse;Mouth" },
    ContactRow{ "4.0", "ADR:a;b;c;d;e;f;g;h;i;j;k;l;m;n;o;p;q;r", "a;b;c;d;e;f;g;h;i;j;k;l;m;n;o;p;q;r" },
    ContactRow{ "4.0", "ADR:;;;;;;;;;;3;Weir Lane,Mill Lane;;;;;;r;s;t", ";;;;;;;;;;3;Weir Lane,Mill Lane;;;;;;r,s,t" },
    ContactRow{ "3.0", "ADR:;;;;;;\r\nADR:\r\nADR:,,,;,", "" },
    ContactRow{ "3.0", "ADR:;;3 Weir\\; Lane\\,\\nHouse", ";;3 Weir; Lane,\nHouse" },
    ContactRow{ "3.0", "ADR;BASE64:Ozs7T3VzZSBNb3V0aA==", ";;;Ouse Mouth" },
};

constexpr std::array s_kTypes = {
    ContactRow{ "2.1", "ADR;DOM;HOME;POSTAL;PARCEL:;;a",
                ";;a {Home|Domestic|Postal|Parcel} types=DOM|HOME|POSTAL|PARCEL" },
    ContactRow{ "3.0", "ADR;TYPE=intl,work,pref:;;a", ";;a {Work|International} types=INTL|WORK pref=1" },
    ContactRow{ "4.0", "ADR;TYPE=billing;PREF=3:;;a\r\nADR;TYPE=\"delivery,business\":;;b",
                ";;a {Billing} types=BILLING pref=3 / ;;b {Work|Delivery} types=DELIVERY|BUSINESS" },
    ContactRow{ "3.0", "a.ADR;TYPE=other:;;a\r\na.X-ABLabel:_$!<Home>!$_", ";;a {Home|Other} label=Home types=OTHER" },
    ContactRow{ "3.0", "ADR;TYPE=X-Dock:;;a\r\nb.ADR:;;b\r\nb.X-ABLabel:Mill",
                ";;a label=Dock types=X-DOCK / ;;b label=Mill" },
};

constexpr std::array s_kParameters = {
    ContactRow{ "4.0", "ADR;GEO=\"geo:12.5,-3\";TZ=Europe/Berlin;CC=DE;LANGUAGE=de:;;a",
                ";;a country=DE zone=Europe/Berlin place=12.5,-3 language=de" },
    ContactRow{ "4.0", "ADR;LABEL=\"Weir Lane^nOuse Mouth\":;;a", ";;a text=Weir Lane\nOuse Mouth" },
    ContactRow{ "4.0", "ADR;LABEL=\"Weir Lane\":;;;;;;", " text=Weir Lane" },
    ContactRow{ "4.0", "ADR;GEO=12.5:;;a\r\nADR;GEO=\"geo:91,0\":;;b\r\nADR;GEO:;;c",
                ";;a / ;;b / ;;c label=GEO types=GEO" },
    ContactRow{ "3.0", "a.ADR:;;a\r\na.X-ABADR:de\r\nA.GEO:12.5;-3\r\na.TZ:-0500",
                ";;a country=de zone=-0500 place=12.5,-3" },
    ContactRow{ "3.0", "a.X-ABADR:de\r\na.X-ABADR:fr\r\na.ADR:;;a\r\na.ADR:;;b\r\nb.X-ABADR:us",
                ";;a country=de / ;;b" },
    ContactRow{ "4.0", "a.ADR;CC=DE;TZ=UTC;GEO=\"geo:1,2\":;;a\r\na.X-ABADR:fr\r\na.TZ:x\r\na.GEO:geo:3,4",
                ";;a country=DE zone=UTC place=1,2" },
    ContactRow{ "3.0", "a.ADR:;;a\r\na.GEO:north\r\na.GEO:1;2", ";;a place=1,2" },
    ContactRow{ "3.0", "ADR:;;a\r\nGEO:1;2\r\nTZ:-0500\r\nX-ABADR:de", ";;a" },
    ContactRow{ "3.0", "a.ADR:;;;;;;\r\na.ADR:;;b\r\na.X-ABADR:de", ";;b country=de" },
};

constexpr std::array s_kLabels = {
    // By the group.
    ContactRow{ "3.0", "a.ADR:;;a\r\nb.ADR:;;b\r\nB.LABEL:B\\nb\r\na.LABEL:A", ";;a text=A / ;;b text=B\nb" },
    // By the types.
    ContactRow{ "3.0", "ADR;TYPE=home:;;a\r\nADR;TYPE=work,pref:;;b\r\nLABEL;TYPE=WORK:B\r\nLABEL;TYPE=home:A",
                ";;a text=A {Home} types=HOME / ;;b text=B {Work} types=WORK pref=1" },
    ContactRow{ "2.1", "ADR;WORK:;;a\r\nADR;WORK:;;b\r\nLABEL;WORK;ENCODING=QUOTED-PRINTABLE:A=0D=0Aa\r\nLABEL;WORK:B",
                ";;a text=A\na {Work} types=WORK / ;;b text=B {Work} types=WORK" },
    // In order.
    ContactRow{ "3.0", "ADR;TYPE=home:;;a\r\nADR:;;b\r\nLABEL;TYPE=dom:A\r\nLABEL;TYPE=intl:B",
                ";;a text=A {Home} types=HOME / ;;b text=B" },
    // The types precede the order.
    ContactRow{ "3.0", "ADR:;;a\r\nADR;TYPE=home:;;b\r\nLABEL;TYPE=work:A\r\nLABEL;TYPE=home:B",
                ";;a text=A / ;;b text=B {Home} types=HOME" },
    // One too many, and none.
    ContactRow{ "3.0", "ADR:;;a\r\nLABEL:A\r\nLABEL;TYPE=home:B", ";;a text=A /  text=B {Home} types=HOME" },
    ContactRow{ "3.0", "LABEL;TYPE=work,pref;LANGUAGE=de:A", " text=A {Work} types=WORK pref=1 language=de" },
    ContactRow{ "3.0", "LABEL:\r\nLABEL: ", "" },
    ContactRow{ "4.0", "ADR;LABEL=A:;;a\r\nLABEL:B", ";;a text=A /  text=B" },
};

constexpr std::array s_kTexts = {
    ContactRow{ "3.0", "ADR:12;Flat 2;3 Weir Lane,Back;Ouse Mouth;Fenshire;FN1 2AB;Anglia",
                "12\nFlat 2\n3 Weir Lane, Back\nFN1 2AB Ouse Mouth\nFenshire\nAnglia" },
    ContactRow{ "3.0", "ADR:;;3 Weir Lane;Ouse Mouth", "3 Weir Lane\nOuse Mouth" },
    ContactRow{ "3.0", "ADR:;;3 Weir Lane\r\nLABEL:On the weir", "On the weir" },
};

} // namespace

TEST( PimContactAddressesTest, PartsAreRead )
{
    ExpectRows( s_kParts, ShownAddresses );
}

TEST( PimContactAddressesTest, TypesAreRead )
{
    ExpectRows( s_kTypes, ShownAddresses );
}

TEST( PimContactAddressesTest, ParametersAndLinesOfTheGroupBelongToIt )
{
    ExpectRows( s_kParameters, ShownAddresses );
}

TEST( PimContactAddressesTest, LabelsBelongToAddresses )
{
    ExpectRows( s_kLabels, ShownAddresses );
}

TEST( PimContactAddressesTest, TextIsForPeople )
{
    ExpectRows( s_kTexts,
                []( const PimContact& a_contact ) { return a_contact.Addresses().value( 0 ).Text().toStdString(); } );
}

TEST( PimContactAddressesTest, LinesThatBelongToItAreKnown )
{
    const PimContact contact =
        ContactWith( "a.ADR:;;a\r\na.X-ABADR:de\r\na.X-ABADR:fr\r\na.X-ABLabel:mill\r\na.GEO:1;2\r\nLABEL:A", "3.0" );
    ASSERT_EQ( contact.Addresses().size(), 1 );
    EXPECT_EQ( contact.Addresses().at( 0 ).LineIds(), ( QList<int>{ 2, 5, 3, 6, 7 } ) );
}

} // namespace PimManager::Contacts
