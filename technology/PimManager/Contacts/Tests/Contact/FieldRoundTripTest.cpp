// Fields that a program makes are read back from its contact.

#include "EditedContacts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

// What a version cannot hold is left out for it:
// - in 2.1, lists in components of N and ADR: a comma is text there
// - before 4.0, another preference than 1
// - before 4.0, an address that is only a delivery text, if there is an address without one: it belongs to that
// - ALTID: a field that is added is no alternative of another one
constexpr int s_k21 = 1;
constexpr int s_k30 = 2;
constexpr int s_k40 = 4;
constexpr int s_kAll = s_k21 | s_k30 | s_k40;
constexpr int s_kNot21 = s_k30 | s_k40;

int BitOf( const std::string& a_version )
{
    return a_version == "2.1" ? s_k21 : ( a_version == "3.0" ? s_k30 : s_k40 );
}

template <class Field>
Field WithCommon( Field a_field, int a_preference )
{
    a_field.SetLabel( QString::fromUtf8( "boat; \"\xC3\xA4\"" ) );
    a_field.SetLanguage( QStringLiteral( "de-CH" ) );
    a_field.SetPreference( a_preference );
    return a_field;
}

struct Row
{
    const char* m_name;
    int m_versions;
    // Adds the field; returns what went wrong.
    std::function<std::string( PimContact& )> m_check;
};

template <class Field>
Row MakeRow( const char* a_name, int a_versions, const Field& a_field, int ( PimContact::*a_add )( const Field& ),
             PimContactList<Field> ( PimContact::*a_read )() const )
{
    const auto check = [=]( PimContact& a_contact ) -> std::string
    {
        const auto before = ( a_contact.*a_read )();
        const int id = ( a_contact.*a_add )( a_field );
        auto fields = ( a_contact.*a_read )();
        if ( id == 0 || fields.size() != before.size() + 1 )
            return "it was not added";
        if ( fields.constLast() != a_field )
            return "it is another one";
        if ( fields.constLast().Id() != id )
            return "it has another id";
        if ( !std::equal( before.begin(), before.end(), fields.begin() ) )
            return "others changed";
        return std::string();
    };
    return { a_name, a_versions, check };
}

Row PhoneRow( const char* a_name, int a_versions, const PimContactPhone& a_phone )
{
    return MakeRow( a_name, a_versions, a_phone, &PimContact::AddPhone, &PimContact::Phones );
}

PimContactPhone PhoneWith( const char* a_number, const char* a_extension )
{
    PimContactPhone phone( QString::fromUtf8( a_number ), PimContactPhoneKind::Work | PimContactPhoneKind::Main );
    phone.SetExtension( QString::fromUtf8( a_extension ) );
    return phone;
}

PimContactPhoneKinds AllPhoneKinds()
{
    return PimContactPhoneKinds( QFlag( ( 1 << 21 ) - 1 ) );
}

PimContactAddress AddressWith( const QStringList& a_streets, const char* a_text )
{
    PimContactAddress address;
    address.SetParts( PimContactAddressPart::Street, a_streets );
    address.SetParts( PimContactAddressPart::Locality, { QString::fromUtf8( "M\xC3\xBCnchen; Ost" ) } );
    address.SetParts( PimContactAddressPart::Country, { QStringLiteral( "DE\\" ) } );
    address.SetDeliveryText( QString::fromUtf8( a_text ) );
    address.SetCountryCode( QStringLiteral( "de" ) );
    address.SetKinds( PimContactAddressKind::Home | PimContactAddressKind::Billing );
    return address;
}

PimContactAddress NewAddress()
{
    PimContactAddress address = AddressWith( { QStringLiteral( "1 Weir Lane" ) }, "" );
    address.SetParts( PimContactAddressPart::Direction, { QStringLiteral( "north" ) } );
    address.SetParts( PimContactAddressPart::Room, { QStringLiteral( "7" ) } );
    return address;
}

PimContactAddress LetterOnly()
{
    PimContactAddress address;
    address.SetDeliveryText( QStringLiteral( "1 Weir Lane\nOuse Mouth" ) );
    address.SetKinds( PimContactAddressKind::Work );
    return address;
}

PimContactText TextWith( const char* a_text )
{
    return PimContactText( QString::fromUtf8( a_text ), PimContactKind::Work | PimContactKind::Other );
}

PimContactDate DateOf( const char* a_text )
{
    return PimContactDate::FromText( QString::fromLatin1( a_text ) );
}

PimContactEvent EventWith( PimContactEvent::Kind a_kind, const char* a_date )
{
    return PimContactEvent( a_kind, DateOf( a_date ) );
}

std::vector<Row> PhoneRows()
{
    return {
        PhoneRow( "Phone", s_kAll, PimContactPhone( QStringLiteral( "+1-555" ), AllPhoneKinds() ) ),
        PhoneRow( "PhoneCommon", s_kAll, WithCommon( PimContactPhone( QStringLiteral( "1;2,3" ) ), 1 ) ),
        PhoneRow( "PhonePreference", s_k40, WithCommon( PimContactPhone( QStringLiteral( "1" ) ), 17 ) ),
        PhoneRow( "PhoneExtension", s_kAll, PhoneWith( "+1 (555) 0", "12" ) ),
        PhoneRow( "PhoneOddExtension", s_kAll, PhoneWith( "+1;%3D", "1;2 =x" ) ),
        PhoneRow( "PhoneWords", s_kAll, PhoneWith( "ask Pat", "9" ) ),
        PhoneRow( "PhoneExtensionOnly", s_kAll, PhoneWith( "", "9" ) ),
    };
}

std::vector<Row> AddressRows()
{
    const auto row = []( const char* a_name, int a_versions, const PimContactAddress& a_address )
    { return MakeRow( a_name, a_versions, a_address, &PimContact::AddAddress, &PimContact::Addresses ); };
    const QStringList street = { QStringLiteral( "1 Weir Lane, left" ) };
    const QStringList streets = { QStringLiteral( "1 Weir Lane" ), QStringLiteral( "left" ) };
    return {
        row( "Address", s_kNot21, AddressWith( street, "" ) ),
        row( "AddressList", s_kNot21, AddressWith( streets, "" ) ),
        row( "AddressOfOne", s_kAll, AddressWith( { QStringLiteral( "1 Weir Lane" ) }, "" ) ),
        row( "AddressCommon", s_kNot21, WithCommon( AddressWith( street, "1 Weir Lane\nM\xC3\xBCnchen \\n" ), 1 ) ),
        row( "AddressLetter", s_kAll, AddressWith( { QStringLiteral( "2" ) }, "\"2\" Weir Lane\n^n \\; :" ) ),
        row( "AddressNewParts", s_kAll, NewAddress() ),
        row( "AddressLetterOnly", s_k40, LetterOnly() ),
    };
}

std::vector<Row> TextRows()
{
    const auto row = []( const char* a_name, int ( PimContact::*a_add )( const PimContactText& ),
                         PimContactList<PimContactText> ( PimContact::*a_read )() const, const char* a_text )
    { return MakeRow( a_name, s_kAll, WithCommon( TextWith( a_text ), 1 ), a_add, a_read ); };
    constexpr const char* s_kText = "a;b,c\\n\nd\xC3\xA4 ^";
    return {
        row( "Note", &PimContact::AddNote, &PimContact::Notes, s_kText ),
        row( "Title", &PimContact::AddTitle, &PimContact::Titles, s_kText ),
        row( "Role", &PimContact::AddRole, &PimContact::Roles, s_kText ),
        row( "Nickname", &PimContact::AddNickname, &PimContact::Nicknames, s_kText ),
        row( "Url", &PimContact::AddUrl, &PimContact::Urls, "https://example.com/a,b;c\\d?\xC3\xA4=^" ),
    };
}

std::vector<Row> MailAndMediaRows()
{
    const auto mail = []( const char* a_name, const PimContactMail& a_mail )
    { return MakeRow( a_name, s_kAll, a_mail, &PimContact::AddMail, &PimContact::Mails ); };
    const auto photo = []( const char* a_name, const PimContactMedia& a_photo )
    { return MakeRow( a_name, s_kAll, a_photo, &PimContact::AddPhoto, &PimContact::Photos ); };
    const auto organisation = []( const char* a_name, const PimContactOrganisation& a_organisation )
    { return MakeRow( a_name, s_kAll, a_organisation, &PimContact::AddOrganisation, &PimContact::Organisations ); };
    const QByteArray jpeg( "\xFF\xD8\xFF\xE0 picture" );
    return {
        mail( "Mail", PimContactMail( QStringLiteral( "\"a,b\"@example.com" ), PimContactKind::Mobile ) ),
        mail( "MailCommon", WithCommon( PimContactMail( QStringLiteral( "a@example.com" ) ), 1 ) ),
        photo( "Photo", PimContactMedia( jpeg ) ),
        photo( "PhotoType", PimContactMedia( QByteArray( 3000, '\xA5' ), QStringLiteral( "image/x-other" ) ) ),
        photo( "PhotoOtherType", PimContactMedia( QByteArray( 3, '\xA5' ), QStringLiteral( "Video/MP4" ) ) ),
        photo( "PhotoCommon", WithCommon( PimContactMedia( jpeg ), 1 ) ),
        MakeRow( "Logo", s_kAll, PimContactMedia( jpeg ), &PimContact::AddLogo, &PimContact::Logos ),
        organisation( "Organisation", PimContactOrganisation( QStringLiteral( "A;B, C" ),
                                                              { QStringLiteral( "D\\E" ), QStringLiteral( "F;" ) } ) ),
        organisation( "OrganisationUnits", PimContactOrganisation( QString(), { QString::fromUtf8( "\xC3\xA4" ) } ) ),
        organisation( "OrganisationCommon", WithCommon( PimContactOrganisation( QStringLiteral( "A" ) ), 1 ) ),
    };
}

std::vector<Row> EventAndRelationRows()
{
    using Kind = PimContactEvent::Kind;
    const auto event = []( const char* a_name, const PimContactEvent& a_event )
    { return MakeRow( a_name, s_kAll, a_event, &PimContact::AddEvent, &PimContact::Events ); };
    const auto relation = []( const char* a_name, const PimContactRelation& a_relation )
    { return MakeRow( a_name, s_kAll, a_relation, &PimContact::AddRelation, &PimContact::Relations ); };
    const QString name = QString::fromUtf8( "Nell; \xC3\xA4" );
    return {
        event( "Birthday", EventWith( Kind::Birth, "1985-04-12" ) ),
        event( "BirthdayOpen", EventWith( Kind::Birth, "--04-12" ) ),
        event( "Anniversary", EventWith( Kind::Anniversary, "1985-04-12T10:22:00+02:00" ) ),
        event( "Death", EventWith( Kind::Death, "around 1985; or so" ) ),
        event( "OtherEvent", WithCommon( EventWith( Kind::Other, "1985-04" ), 1 ) ),
        event( "EventTime", EventWith( Kind::Other, "T10:22" ) ),
        relation( "Relation", PimContactRelation( name ) ),
        relation( "RelationLikeAddress", PimContactRelation( QStringLiteral( "mailto:a@example.com" ) ) ),
        relation( "RelationKinds", PimContactRelation( name, PimContactRelationKinds( QFlag( ( 1 << 30 ) - 1 ) ) ) ),
        relation( "Spouse", PimContactRelation( name, PimContactRelationKind::Spouse ) ),
        relation( "Manager", WithCommon( PimContactRelation( name, PimContactRelationKind::Manager ), 1 ) ),
        relation( "Agent", PimContactRelation( name, PimContactRelationKind::Agent ) ),
    };
}

std::vector<Row> Rows()
{
    std::vector<Row> rows;
    for ( const std::vector<Row>& some :
          { PhoneRows(), AddressRows(), TextRows(), MailAndMediaRows(), EventAndRelationRows() } )
        rows.insert( rows.end(), some.begin(), some.end() );
    return rows;
}

struct Account
{
    const char* m_service;
    const char* m_handle;
    // Of the line in 2.1, 3.0 and 4.0.
    std::array<const char*, 3> m_lines;
};

constexpr std::array s_kAccounts = {
    Account{ "XMPP",
             "omega@example.com",
             { "X-JABBER:omega@example.com", "IMPP:xmpp:omega@example.com", "IMPP:xmpp:omega@example.com" } },
    Account{ "XMPP", "a:b/c", { "X-JABBER;VALUE=text:a:b/c", "IMPP:xmpp:a:b%2Fc", "IMPP:xmpp:a:b%2Fc" } },
    Account{ "Matrix",
             "@omega:example.com",
             { "X-MATRIX;VALUE=text:@omega:example.com", "IMPP:matrix:u/omega:example.com",
               "IMPP:matrix:u/omega:example.com" } },
    Account{ "Facebook",
             "omega",
             { "IMPP;X-SERVICE-TYPE=Facebook:omega", "IMPP;X-SERVICE-TYPE=Facebook:omega",
               "IMPP;X-SERVICE-TYPE=Facebook:omega" } },
    Account{ "QQ", "12345", { "X-QQ:12345", "X-QQ:12345", "X-QQ:12345" } },
    Account{ "Tide; Net",
             "a:b",
             { "IMPP;X-SERVICE-TYPE=\"Tide; Net\";VALUE=text:a:b", "IMPP;X-SERVICE-TYPE=\"Tide; Net\";VALUE=text:a:b",
               "IMPP;X-SERVICE-TYPE=\"Tide; Net\";VALUE=text:a:b" } },
    Account{ "", "omega", { "IMPP:omega", "IMPP:omega", "IMPP:omega" } },
};

} // namespace

TEST( FieldRoundTripTest, FieldIsReadBack )
{
    for ( const Row& row : Rows() )
    {
        for ( const char* const version : s_kVersions )
        {
            if ( ( row.m_versions & BitOf( version ) ) == 0 )
                continue;
            PimContact contact = ContactIn(
                version, "FN:x\r\nTEL:0\r\nADR:;;s\r\nEMAIL:e\r\nNOTE:n\r\nitem1.BDAY:2000-01-01\r\nX-A:b\r\n" );
            const std::string name = std::string( row.m_name ) + " in " + version;
            EXPECT_EQ( row.m_check( contact ), std::string() ) << name << '\n' << contact.Card().Bytes().toStdString();
            EXPECT_EQ( row.m_check( contact ), std::string() ) << name << ", again";
            ExpectWritten( contact, name );
        }
    }
}

TEST( FieldRoundTripTest, FieldIsReadBackFromNewContact )
{
    for ( const Row& row : Rows() )
    {
        if ( ( row.m_versions & s_k30 ) == 0 )
            continue;
        PimContact contact;
        EXPECT_EQ( row.m_check( contact ), std::string() ) << row.m_name;
        ExpectWritten( contact, row.m_name );
    }
}

// The address of an account is made of service and handle where the version has it.
TEST( FieldRoundTripTest, AccountIsReadBack )
{
    for ( const Account& account : s_kAccounts )
    {
        for ( size_t i = 0; i < s_kVersions.size(); ++i )
        {
            const std::string name = std::string( account.m_service ) + " in " + s_kVersions[i];
            PimContact contact = ContactIn( s_kVersions[i], "FN:x\r\n" );
            PimContactMessenger messenger( QString::fromLatin1( account.m_service ),
                                           QString::fromLatin1( account.m_handle ) );
            EXPECT_GT( contact.AddMessenger( messenger ), 0 ) << name;
            ASSERT_EQ( contact.Messengers().size(), 1 ) << name;
            const PimContactMessenger read = contact.Messengers().constFirst();
            EXPECT_EQ( contact.Line( read.Id() ).Bytes().toStdString(),
                       std::string( account.m_lines.at( i ) ) + "\r\n" );
            EXPECT_EQ( read.Service().toStdString(), account.m_service ) << name;
            EXPECT_EQ( read.Handle().toStdString(), account.m_handle ) << name;
            EXPECT_FALSE( read.IsSocialProfile() ) << name;
            ExpectWritten( contact, name );
        }
    }
}

TEST( FieldRoundTripTest, EmptyFieldIsNotAdded )
{
    PimContact contact;
    EXPECT_EQ( contact.AddPhone( PimContactPhone() ), 0 );
    EXPECT_EQ( contact.AddMail( PimContactMail() ), 0 );
    EXPECT_EQ( contact.AddAddress( PimContactAddress() ), 0 );
    EXPECT_EQ( contact.AddMessenger( PimContactMessenger() ), 0 );
    EXPECT_EQ( contact.AddEvent( PimContactEvent() ), 0 );
    EXPECT_EQ( contact.AddOrganisation( PimContactOrganisation() ), 0 );
    EXPECT_EQ( contact.AddRelation( PimContactRelation() ), 0 );
    EXPECT_EQ( contact.AddNote( PimContactText() ), 0 );
    EXPECT_EQ( contact.AddPhoto( PimContactMedia() ), 0 );
    EXPECT_TRUE( contact.IsNull() );
    EXPECT_TRUE( contact.Card().IsNull() );
}

} // namespace PimManager::Contacts
