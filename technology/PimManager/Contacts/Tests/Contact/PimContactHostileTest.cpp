// Cards of one shape that are as long as a shape needs to show work that is not linear. Each is read whole; the time
// limit of the test program stops work that is not.

#include "ContactRows.h"

#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kLength = 160000;

/// \return a text again and again; in each, `#` is its number.
QByteArray Repeated( const QByteArray& a_text )
{
    const bool isNumbered = a_text.contains( '#' );
    QByteArray repeated;
    for ( int i = 0; repeated.size() < s_kLength; ++i )
        repeated += isNumbered ? QByteArray( a_text ).replace( '#', QByteArray::number( i ) ) : a_text;
    return repeated;
}

int CountOf( const QByteArray& a_text )
{
    return ( s_kLength + static_cast<int>( a_text.size() ) - 1 ) / static_cast<int>( a_text.size() );
}

struct Counts
{
    int m_fields;
    int m_others;
};

/// Reads everything, alternatives, types and purposes included.
template <class Field>
int CountFields( const PimContactList<Field>& a_fields )
{
    int count = 0;
    for ( const Field& field : a_fields )
        count += static_cast<int>( field.Alternatives().size() );
    const Field preferred = a_fields.Preferred();
    // Each is linear in the line of the field.
    const bool isMade = preferred.Id() == 0 && ( !preferred.Types().isEmpty() || !preferred.Purpose().isEmpty() );
    return isMade ? -1 : count;
}

Counts CountsOf( const PimContact& a_contact )
{
    const auto count = [&a_contact]( auto... a_lists ) { return ( CountFields( ( a_contact.*a_lists )() ) + ... ); };
    const int fields =
        count( &PimContact::FormattedNames, &PimContact::Nicknames, &PimContact::Phones, &PimContact::Mails,
               &PimContact::Addresses, &PimContact::Messengers, &PimContact::Urls, &PimContact::Events,
               &PimContact::Organisations, &PimContact::Titles, &PimContact::Relations, &PimContact::Members,
               &PimContact::Photos, &PimContact::Notes, &PimContact::Categories );
    return { fields, static_cast<int>( a_contact.OtherLines().size() ) };
}

struct HostileRow
{
    const char* m_name;
    QByteArray m_lines;
    Counts m_counts;
};

std::vector<HostileRow> Rows()
{
    const int phones = CountOf( "a.TEL:1\r\n" );
    return {
        { "numbers of one group", "a.X-ABLabel:x\r\n" + Repeated( "a.TEL:1\r\n" ), { phones, 0 } },
        { "labels of one group",
          "a.TEL:1\r\n" + Repeated( "a.X-ABLabel:x\r\n" ),
          { 1, CountOf( "a.X-ABLabel:x\r\n" ) - 1 } },
        { "delivery texts", Repeated( "LABEL:x\r\n" ), { CountOf( "LABEL:x\r\n" ), 0 } },
        { "addresses and delivery texts",
          Repeated( "ADR:;;x\r\nLABEL;DOM:x\r\n" ),
          { CountOf( "ADR:;;x\r\nLABEL;DOM:x\r\n" ), 0 } },
        { "positions of one group", "a.ADR:;;x\r\n" + Repeated( "a.GEO:x\r\n" ), { 1, CountOf( "a.GEO:x\r\n" ) } },
        { "places", "BDAY:1985\r\n" + Repeated( "BIRTHPLACE:x\r\n" ), { CountOf( "BIRTHPLACE:x\r\n" ), 0 } },
        { "events and places",
          Repeated( "X-ABDATE:1985\r\nBIRTHPLACE:x\r\n" ),
          { 2 * CountOf( "X-ABDATE:1985\r\nBIRTHPLACE:x\r\n" ), 0 } },
        { "words of TYPE", "TEL;TYPE=a" + Repeated( ",b" ) + ":1", { 1, 0 } },
        { "parameters", "TEL" + Repeated( ";LABEL=a" ) + ":1", { 1, 0 } },
        { "parameters before LANGUAGE", "TITLE" + Repeated( ";SORT-AS=a" ) + ";LANGUAGE=de;ALTID=1:x", { 1, 0 } },
        { "commas of ADR", "ADR:" + Repeated( "," ), { 0, 1 } },
        { "texts of ADR", "ADR:" + Repeated( "x," ), { 1, 0 } },
        { "components of ADR", "ADR:" + Repeated( "x;" ), { 1, 0 } },
        { "escapes of N", "N:" + Repeated( "\\n" ), { 0, 0 } },
        { "units of ORG", "ORG:" + Repeated( "x;" ), { 1, 0 } },
        { "alternatives", Repeated( "TITLE;ALTID=1:x\r\n" ), { CountOf( "TITLE;ALTID=1:x\r\n" ), 0 } },
        { "elements of alternatives",
          Repeated( "NICKNAME;ALTID=1:a,b\r\n" ),
          { 2 * CountOf( "NICKNAME;ALTID=1:a,b\r\n" ), 0 } },
        { "hyphens of a language", "TITLE;ALTID=1;LANGUAGE=" + Repeated( "-" ) + ":x", { 1, 0 } },
        { "semicolons of an item", "X-ANDROID-CUSTOM:" + Repeated( ";" ), { 0, 1 } },
        { "accounts of a service",
          "X-messaging/aim-All:" + Repeated( "a\xEE\x80\x80" ),
          { CountOf( "a\xEE\x80\x80" ), 0 } },
        { "types and accounts of a service",
          "X-messaging/aim-All;TYPE=a" + Repeated( ",b" ) + ':' + Repeated( "a\xEE\x80\x80" ),
          { CountOf( "a\xEE\x80\x80" ), 0 } },
        { "marks of accounts", "X-messaging/aim-All:" + Repeated( "\xEE\x80\x80" ), { 0, 1 } },
        { "elements of NICKNAME", "NICKNAME:" + Repeated( "a," ), { CountOf( "a," ), 0 } },
        { "parameters of a URI", "TEL:tel:1" + Repeated( ";ext=" ), { 1, 0 } },
        { "quotes of a mail", "EMAIL:" + Repeated( "\"" ) + "<a@b>", { 1, 0 } },
        { "brackets of a mail", "EMAIL:" + Repeated( "<" ) + "a@b>", { 1, 0 } },
        { "agents",
          Repeated( "AGENT:BEGIN:VCARD\\nEND:VCARD\r\n" ),
          { CountOf( "AGENT:BEGIN:VCARD\\nEND:VCARD\r\n" ), 0 } },
        { "numbers", Repeated( "UID:1\r\n" ), { 0, CountOf( "UID:1\r\n" ) - 1 } },
    };
}

} // namespace

TEST( PimContactHostileTest, LongCardsAreReadWhole )
{
    for ( const HostileRow& row : Rows() )
    {
        PimContact contact = ContactWith( row.m_lines, "3.0" );
        contact.SetLanguages( { QStringLiteral( "de" ), QStringLiteral( "en" ) } );
        const Counts counts = CountsOf( contact );
        EXPECT_EQ( counts.m_fields, row.m_counts.m_fields ) << row.m_name;
        EXPECT_EQ( counts.m_others, row.m_counts.m_others ) << row.m_name;
    }
}

TEST( PimContactHostileTest, ManyGroupsAreReadWhole )
{
    const PimContact contact = ContactWith(
        Repeated( "g#.TEL:1\r\ng#.X-ABLabel:x#\r\ng#.ADR:;;a\r\ng#.LABEL:b\r\ng#.X-ABADR:de\r\n" ), "3.0" );
    const PimContactList<PimContactPhone> phones = contact.Phones();
    const PimContactList<PimContactAddress> addresses = contact.Addresses();
    ASSERT_GT( phones.size(), 1000 );
    EXPECT_EQ( addresses.size(), phones.size() );
    EXPECT_EQ( phones.constLast().Label(), QStringLiteral( "x%1" ).arg( phones.size() - 1 ) );
    EXPECT_EQ( addresses.constLast().LineIds().size(), 4 );
    EXPECT_TRUE( contact.OtherLines().isEmpty() );
}

TEST( PimContactHostileTest, ManyLanguagesAreChosenFrom )
{
    PimContact contact =
        ContactWith( Repeated( "TITLE;ALTID=1;LANGUAGE=l#:x#\r\nROLE;ALTID=#;LANGUAGE=l#:x\r\n" ), "4.0" );
    const auto count = static_cast<int>( contact.Roles().size() );
    ASSERT_GT( count, 1000 );
    QStringList languages;
    for ( int i = count - 1; i >= 0; --i )
        languages.append( QStringLiteral( "l%1" ).arg( i ) );
    contact.SetLanguages( languages );
    EXPECT_EQ( contact.Titles().size(), 1 );
    EXPECT_EQ( contact.Titles().constFirst().Text(), QStringLiteral( "x%1" ).arg( count - 1 ) );
    EXPECT_EQ( contact.Titles().constFirst().Alternatives().size(), count );
    EXPECT_EQ( contact.Roles().size(), count );
}

} // namespace PimManager::Contacts
