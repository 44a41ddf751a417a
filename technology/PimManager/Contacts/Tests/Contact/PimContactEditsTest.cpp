#include "EditedContacts.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct SetRow
{
    const char* m_name;
    std::function<void( PimContact& )> m_set;
    // The properties that are replaced; all other lines remain.
    const char* m_properties;
};

const QString& OddText()
{
    static const QString s_text = QString::fromUtf8( "J\xC3\xB6rg; \"a,b\\n\" ^\nx" );
    return s_text;
}

PimContactDate Day()
{
    return PimContactDate::FromText( QStringLiteral( "1985-04-12" ) );
}

PimContactName OddName()
{
    PimContactName name( OddText(), QStringLiteral( "O;Neill" ) );
    name.SetParts( PimContactNamePart::Prefix, { QStringLiteral( "Dr." ) } );
    return name;
}

const QStringList& OddList()
{
    static const QStringList s_list = { QStringLiteral( "a,b" ), OddText(), QStringLiteral( "c" ) };
    return s_list;
}

const std::vector<SetRow>& SetRows()
{
    static const std::vector<SetRow> s_rows = {
        { "DisplayName",
          []( PimContact& a_contact )
          {
              a_contact.SetDisplayName( QString::fromUtf8( "J\xC3\xB6rg; \\n" ) );
              EXPECT_EQ( a_contact.DisplayName(), QString::fromUtf8( "J\xC3\xB6rg; \\n" ) );
          },
          "FN" },
        { "Name",
          []( PimContact& a_contact )
          {
              a_contact.SetName( OddName() );
              EXPECT_EQ( a_contact.Name(), OddName() );
          },
          "N X-PHONETIC-FIRST-NAME X-MAIDENNAME" },
        { "Birthday",
          []( PimContact& a_contact )
          {
              a_contact.SetBirthday( Day() );
              EXPECT_EQ( a_contact.Birthday(), Day() );
          },
          "BDAY" },
        { "Anniversary",
          []( PimContact& a_contact )
          {
              a_contact.SetAnniversary( PimContactDate::FromText( QStringLiteral( "12.04.1985" ) ) );
              EXPECT_EQ( a_contact.Anniversary().Text(), QLatin1String( "12.04.1985" ) );
          },
          "ANNIVERSARY X-ANNIVERSARY" },
        { "Photo",
          []( PimContact& a_contact )
          {
              const PimContactMedia photo( QByteArray( 4000, '\x81' ), QStringLiteral( "image/x-any" ) );
              a_contact.SetPhoto( photo );
              EXPECT_EQ( a_contact.Photos(), PimContactList<PimContactMedia>{ photo } );
          },
          "PHOTO" },
        { "Gender",
          []( PimContact& a_contact )
          {
              const PimContactGender gender( PimContactGender::Sex::Other, OddText() );
              a_contact.SetGender( gender );
              EXPECT_EQ( a_contact.Gender(), gender );
          },
          "GENDER" },
        { "GenderText",
          []( PimContact& a_contact )
          {
              const PimContactGender gender( PimContactGender::Sex::Open, QStringLiteral( "M" ) );
              a_contact.SetGender( gender );
              EXPECT_EQ( a_contact.Gender(), gender );
          },
          "GENDER" },
        { "Categories",
          []( PimContact& a_contact )
          {
              a_contact.SetCategories( OddList() );
              QStringList texts;
              for ( const PimContactText& category : a_contact.Categories() )
                  texts.append( category.Text() );
              EXPECT_EQ( texts, OddList() );
          },
          "CATEGORIES" },
        { "Uid",
          []( PimContact& a_contact )
          {
              a_contact.SetUid( QString::fromUtf8( "a;b,c\\n\xC3\xA4" ) );
              EXPECT_EQ( a_contact.Uid(), QString::fromUtf8( "a;b,c\\n\xC3\xA4" ) );
          },
          "UID" },
        { "Kind",
          []( PimContact& a_contact )
          {
              a_contact.SetKind( QStringLiteral( "group" ) );
              EXPECT_TRUE( a_contact.IsGroup() );
          },
          "KIND X-ADDRESSBOOKSERVER-KIND" },
        { "Revision",
          []( PimContact& a_contact )
          {
              const PimContactDate moment = PimContactDate::FromText( QStringLiteral( "1985-04-12T10:22:00Z" ) );
              a_contact.SetRevision( moment );
              EXPECT_EQ( a_contact.Revision(), moment );
          },
          "REV" },
        { "Members",
          []( PimContact& a_contact )
          {
              a_contact.SetMembers( { QStringLiteral( "urn:uuid:1,2;3" ), QString(), QStringLiteral( "mailto:a@b" ),
                                      QStringLiteral( "x-any:" ) } );
              ASSERT_EQ( a_contact.Members().size(), 3 );
              EXPECT_EQ( a_contact.Members().at( 0 ).Text(), QLatin1String( "urn:uuid:1,2;3" ) );
              EXPECT_EQ( a_contact.Members().at( 2 ).Text(), QLatin1String( "x-any:" ) );
          },
          "MEMBER X-ADDRESSBOOKSERVER-MEMBER" },
        { "Nothing",
          []( PimContact& a_contact )
          {
              a_contact.SetDisplayName( QString() );
              a_contact.SetName( PimContactName() );
              a_contact.SetBirthday( PimContactDate() );
              a_contact.SetPhoto( PimContactMedia() );
              a_contact.SetCategories( { QString() } );
              a_contact.SetMembers( {} );
              EXPECT_TRUE( a_contact.FormattedNames().isEmpty() && a_contact.Birthday().IsNull() &&
                           a_contact.Name().IsEmpty() && a_contact.Name().MaidenName().isEmpty() &&
                           a_contact.Photos().isEmpty() && a_contact.Categories().isEmpty() );
          },
          "FN N X-PHONETIC-FIRST-NAME X-MAIDENNAME BDAY PHOTO CATEGORIES X-ADDRESSBOOKSERVER-MEMBER" },
    };
    return s_rows;
}

constexpr const char* s_kCards[] = {
    "",
    "FN:a\r\nN:b;c\r\nX-MAIDENNAME:d\r\nX-PHONETIC-FIRST-NAME:e\r\nBDAY:2000-01-01\r\nPHOTO;ENCODING=b:AAAA\r\n"
    "CATEGORIES:x,y\r\nUID:1\r\nREV:2000-01-01\r\nX-ADDRESSBOOKSERVER-MEMBER:m\r\nX-ANY;A=b:keep\r\n this\r\n",
    "UID:1\r\nUID:2\r\n\r\na.FN:a\r\nFN:b\r\nBDAY:1\r\nKEEP:x=\r\nBDAY:2\r\nCATEGORIES:x\r\nCATEGORIES:y\r\n"
    "PHOTO:http://a\r\nPHOTO:http://b\r\nX-ANNIVERSARY:1\r\nX-ANNIVERSARY:2\r\nGENDER:M\r\nREV:1\r\nREV:2\r\n",
};

/// The lines that have none of these names, with their ids.
std::string OtherLines( const PimContact& a_contact, const std::string& a_names )
{
    std::string lines;
    for ( const int id : a_contact.LineIds() )
    {
        const PimContactLine line = a_contact.Line( id );
        if ( ( ' ' + a_names + ' ' ).find( ' ' + line.Name().toUpper().toStdString() + ' ' ) == std::string::npos )
            lines += std::to_string( id ) + ' ' + line.Bytes().toStdString();
    }
    return lines;
}

PimContact WithTwo()
{
    return ContactIn( "3.0", "FN:x\r\nTEL:1\r\nTEL:2\r\n" );
}

} // namespace

TEST( PimContactEditsTest, SetReplacesItsPropertiesOnly )
{
    for ( const char* const version : s_kVersions )
    {
        for ( const char* const lines : s_kCards )
        {
            for ( const SetRow& row : SetRows() )
            {
                const std::string name = std::string( row.m_name ) + " in " + version + '\n' + lines;
                SCOPED_TRACE( name );
                const PimContact before = ContactIn( version, lines );
                PimContact contact = before;
                row.m_set( contact );
                ExpectWritten( contact, name );
                EXPECT_EQ( OtherLines( contact, row.m_properties ), OtherLines( before, row.m_properties ) );
                EXPECT_TRUE( before == PimContact( before.Card() ) ) << "a copy changed";
                PimContact again = contact;
                row.m_set( again );
                EXPECT_TRUE( again == contact ) << "the same edit again changed something";
            }
        }
    }
}

TEST( PimContactEditsTest, SetOfNewContactMakesVersion3 )
{
    for ( const SetRow& row : SetRows() )
    {
        PimContact contact;
        row.m_set( contact );
        EXPECT_EQ( contact.IsNull(), row.m_name == std::string( "Nothing" ) ) << row.m_name;
        if ( contact.IsNull() )
            continue;
        EXPECT_TRUE( contact.Card().Bytes().startsWith( "BEGIN:VCARD\r\nVERSION:3.0\r\n" ) ) << row.m_name;
        ExpectWritten( contact, row.m_name );
    }
}

TEST( PimContactEditsTest, FirstLineKeepsIdAndGroup )
{
    PimContact contact = ContactIn( "3.0", "NOTE:n\r\na.FN;LANGUAGE=de:x\r\nFN:y\r\nTEL:1\r\n" );
    contact.SetDisplayName( QStringLiteral( "z" ) );
    EXPECT_EQ( LinesOf( contact ), "NOTE:n\r\na.FN:z\r\nTEL:1\r\n" );
    EXPECT_EQ( contact.LineIds(), ( QList<int>{ 1, 2, 3, 5 } ) );
}

TEST( PimContactEditsTest, BirthdayOfPhoneIsReplaced )
{
    PimContact contact = ContactIn( "2.1", "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;1999-09-09;3;;;\r\n"
                                           "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Nell;1;;;\r\n" );
    ASSERT_FALSE( contact.Birthday().IsNull() );
    contact.SetBirthday( Day() );
    EXPECT_EQ( contact.Birthday(), Day() );
    EXPECT_EQ( contact.Events().size(), 1 );
    EXPECT_EQ( contact.Nicknames().size(), 1 );
}

TEST( PimContactEditsTest, FieldInLineOfOtherKindGetsItsProperty )
{
    PimContact contact = ContactIn( "2.1", "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;1999-09-09;3;;;\r\n"
                                           "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Nell;1;;;\r\n"
                                           "X-SPOUSE:Ada\r\nBIRTHPLACE:Ouse Mouth\r\n" );
    PimContactEvent event = contact.Events().value( 0 );
    event.SetDate( Day() );
    EXPECT_TRUE( contact.Replace( contact.Events().value( 0 ), event ) );
    EXPECT_TRUE( contact.Replace( contact.Nicknames().value( 0 ), PimContactText( QStringLiteral( "Lin" ) ) ) );
    EXPECT_TRUE( contact.Replace( contact.Relations().value( 0 ),
                                  PimContactRelation( QStringLiteral( "Ada" ), PimContactRelationKind::Friend ) ) );
    EXPECT_EQ( LinesOf( contact ), "BDAY:1985-04-12\r\nNICKNAME:Lin\r\n"
                                   "X-ABRELATEDNAMES;TYPE=X-FRIEND:Ada\r\nBIRTHPLACE:Ouse Mouth\r\n" );
    EXPECT_EQ( contact.Events().value( 0 ).Place(), QLatin1String( "Ouse Mouth" ) );
}

TEST( PimContactEditsTest, ReplacedLineKeepsWhatTheFieldDoesNotKnow )
{
    PimContact contact =
        ContactIn( "4.0", "b.TEL;PID=1.1,2.1;TYPE=cell;X-A=\"b;c\";ALTID=1;PREF=3;VALUE=uri:tel:+1\r\nX-B:c\r\n" );
    PimContactPhone phone = contact.Phones().value( 0 );
    phone.SetNumber( QStringLiteral( "+2" ) );
    ASSERT_TRUE( contact.Replace( contact.Phones().value( 0 ), phone ) );
    EXPECT_EQ( LinesOf( contact ), "b.TEL;PREF=3;TYPE=CELL;ALTID=1;PID=1.1;PID=2.1;X-A=\"b;c\":+2\r\nX-B:c\r\n" );
    EXPECT_EQ( contact.Phones().value( 0 ), phone );
}

TEST( PimContactEditsTest, ReplacingByItselfChangesNothingThatIsSaid )
{
    for ( const char* const version : s_kVersions )
    {
        const PimContact before = ContactIn(
            version,
            "FN:x\r\nTEL;TYPE=cell,Boat;X-A=b:1;ext=2\r\na.ADR;LANGUAGE=de;TYPE=home:;;s;;;;c\r\na.X-ABADR:de\r\n"
            "a.LABEL:s\\nc\r\na.X-ABLabel:ship\r\na.TZ:-0500\r\nX-JABBER;TYPE=work:o@e.com\r\n"
            "X-SOCIALPROFILE;TYPE=twitter;X-USER=o:http://twitter.com/o\r\nX-TWITTER:o\r\n"
            "IMPP;X-SERVICE-TYPE=Tide:x-apple:o\r\nBDAY:--0412\r\nBIRTHPLACE:here\r\nX-MS-SPOUSE:Ada\r\n"
            "b.X-ABRELATEDNAMES:Nell\r\nb.X-ABLabel:_$!<Friend>!$_\r\nEMAIL:\"O\" <o@e.com>\r\nORG:a;b\r\n"
            "AGENT:BEGIN:VCARD\\nFN:Omega\\nTEL:1\\nEND:VCARD\r\nPHOTO;ENCODING=b;TYPE=JPEG;"
            "X-ABCROP-RECTANGLE=ABClipRect_1&0&12&320&320&h==:/9j/4AAQ\r\nNOTE:n\r\nNICKNAME;LANGUAGE=de:a,b\r\n" );
        PimContact contact = before;
        const auto replaceAll = [&contact]( const auto& a_fields )
        {
            for ( const auto& field : a_fields )
                EXPECT_TRUE( contact.Replace( field, field ) ) << contact.Line( field.Id() ).Bytes().toStdString();
        };
        replaceAll( contact.Phones() );
        replaceAll( contact.Addresses() );
        replaceAll( contact.Messengers() );
        replaceAll( contact.Events() );
        replaceAll( contact.Relations() );
        replaceAll( contact.Mails() );
        replaceAll( contact.Organisations() );
        replaceAll( contact.Photos() );
        replaceAll( contact.Notes() );
        replaceAll( contact.Nicknames() );
        EXPECT_TRUE( contact == before ) << version << '\n' << contact.Card().Bytes().toStdString();
        EXPECT_EQ( contact.LineIds(), before.LineIds() ) << version;
        ExpectWritten( contact, version );
    }
}

TEST( PimContactEditsTest, AdditionsOfAddressFollowIt )
{
    const PimContact before = ContactIn( "3.0", "a.ADR:;;s\r\nTEL:1\r\na.X-ABADR:de\r\na.TZ:-0500\r\nLABEL:s\\nt\r\n"
                                                "a.X-ABLabel:ship\r\n" );
    PimContact contact = before;
    PimContactAddress address = contact.Addresses().value( 0 );
    address.SetCountryCode( QStringLiteral( "at" ) );
    address.SetDeliveryText( QStringLiteral( "u" ) );
    ASSERT_TRUE( contact.Replace( contact.Addresses().value( 0 ), address ) );
    EXPECT_EQ( contact.Addresses(), PimContactList<PimContactAddress>{ address } );
    EXPECT_EQ( LinesOf( contact ), "a.ADR;CC=at:;;s;;;;\r\na.LABEL:u\r\nTEL:1\r\na.TZ:-0500\r\na.X-ABLabel:ship\r\n" );
    ExpectWritten( contact, "changed" );
    contact = before;
    ASSERT_TRUE( contact.Remove( contact.Addresses().value( 0 ) ) );
    EXPECT_EQ( LinesOf( contact ), "TEL:1\r\n" );
}

TEST( PimContactEditsTest, ElementLeavesItsLineAlone )
{
    PimContact contact = ContactIn( "3.0", "NICKNAME;LANGUAGE=de;TYPE=work;X-A=b:a\\,b,c,,d\r\n" );
    ASSERT_EQ( contact.Nicknames().size(), 3 );
    const auto nicknames = contact.Nicknames();
    EXPECT_TRUE( contact.Replace( nicknames.at( 1 ), PimContactText( QStringLiteral( "x;y" ) ) ) );
    EXPECT_EQ( LinesOf( contact ), "NICKNAME;TYPE=WORK;LANGUAGE=de;X-A=b:a\\,b,x\\;y,d\r\n" );
    EXPECT_TRUE( contact.Remove( nicknames.at( 0 ) ) );
    EXPECT_EQ( LinesOf( contact ), "NICKNAME;TYPE=WORK;LANGUAGE=de;X-A=b:x\\;y,d\r\n" );
    EXPECT_FALSE( contact.Remove( nicknames.at( 1 ) ) ) << "it was replaced";
    EXPECT_TRUE( contact.Remove( nicknames.at( 2 ) ) );
    EXPECT_TRUE( contact.Remove( contact.Nicknames().value( 0 ) ) );
    EXPECT_EQ( LinesOf( contact ), "" );
}

TEST( PimContactEditsTest, FieldOfAnotherContactChangesNothing )
{
    const PimContact other = ContactIn( "3.0", "FN:x\r\nTEL:9\r\nTEL:2\r\n" );
    PimContact contact = WithTwo();
    EXPECT_FALSE( contact.Remove( other.Phones().at( 0 ) ) );
    EXPECT_FALSE( contact.Replace( other.Phones().at( 0 ), PimContactPhone( QStringLiteral( "7" ) ) ) );
    EXPECT_FALSE( contact.Remove( PimContactPhone( QStringLiteral( "1" ) ) ) );
    EXPECT_FALSE( contact.Replace( contact.Phones().at( 0 ), PimContactMail( QStringLiteral( "a@b" ) ) ) );
    EXPECT_TRUE( contact == WithTwo() );
    EXPECT_EQ( LinesOf( contact ), "FN:x\r\nTEL:1\r\nTEL:2\r\n" );
    EXPECT_TRUE( contact.Remove( other.Phones().at( 1 ) ) ) << "the lines are the same";
}

TEST( PimContactEditsTest, FieldIsReadAgainAfterItsLineWasReplaced )
{
    PimContact contact = WithTwo();
    const PimContactPhone old = contact.Phones().at( 0 );
    ASSERT_TRUE( contact.Replace( old, PimContactPhone( QStringLiteral( "3" ) ) ) );
    EXPECT_FALSE( contact.Remove( old ) );
    EXPECT_TRUE( contact.Remove( contact.Phones().at( 0 ) ) );
    EXPECT_FALSE( contact.Remove( old ) );
    EXPECT_EQ( LinesOf( contact ), "FN:x\r\nTEL:2\r\n" );
}

TEST( PimContactEditsTest, FieldOfAnotherContactCanBeAdded )
{
    for ( const char* const version : s_kVersions )
    {
        const PimContact other = ContactIn( version, "a.TEL;TYPE=cell:1\r\na.X-ABLabel:boat\r\nBDAY:2000-01-01\r\n"
                                                     "BIRTHPLACE:here\r\nAGENT:BEGIN:VCARD\\nFN:O\\nEND:VCARD\r\n" );
        PimContact contact = ContactIn( version, "a.EMAIL:e\r\n" );
        EXPECT_GT( contact.AddPhone( other.Phones().at( 0 ) ), 0 );
        EXPECT_GT( contact.AddEvent( other.Events().at( 0 ) ), 0 );
        EXPECT_GT( contact.AddRelation( other.Relations().at( 0 ) ), 0 );
        EXPECT_EQ( contact.Phones(), other.Phones() ) << version;
        EXPECT_EQ( contact.Events(), other.Events() ) << version;
        EXPECT_EQ( contact.Relations().at( 0 ).Text(), QLatin1String( "O" ) ) << version;
        EXPECT_EQ( contact.Relations().at( 0 ).Contact().IsNull(), version == std::string( "4.0" ) ) << version;
        ExpectWritten( contact, version );
    }
}

TEST( PimContactEditsTest, NullContactStaysNullWithoutLines )
{
    PimContact contact;
    EXPECT_FALSE( contact.Remove( PimContactPhone() ) );
    EXPECT_FALSE( contact.RemoveLine( 1 ) );
    EXPECT_FALSE( contact.Replace( PimContactPhone(), PimContactPhone( QStringLiteral( "1" ) ) ) );
    EXPECT_EQ( contact.AddLine( "no property" ), 0 );
    EXPECT_TRUE( contact.IsNull() );
    EXPECT_EQ( contact.AddLine( "TEL:1" ), 2 );
    EXPECT_EQ( contact.Card().Bytes(), QByteArray( "BEGIN:VCARD\r\nVERSION:3.0\r\nTEL:1\r\nEND:VCARD\r\n" ) );
}

TEST( PimContactEditsTest, OnlyOnePropertyIsAddedAsLine )
{
    const std::array refused = {
        "",
        "X",
        " X:1",
        "\tX:1",
        "X:1\r\nY:2",
        "X:1\n",
        "X:1\rY:2",
        ":1",
        "VERSION:4.0",
        "a.version:2.1",
        "BEGIN:VCARD",
        "END:VCARD",
        "BEGIN:VEVENT",
        "N:M\xFCller",
        "NOTE;ENCODING=QUOTED-PRINTABLE:a=",
        "NOTE;QUOTED-PRINTABLE:a= ",
        "  ",
        "# comment",
    };
    for ( const char* const version : { "2.1", "3.0", "4.0", "" } )
    {
        PimContact contact = ContactIn( version, "FN:x\r\n" );
        for ( const char* const line : refused )
            EXPECT_EQ( contact.AddLine( line ), 0 ) << version << ' ' << line;
        EXPECT_EQ( LinesOf( contact ), "FN:x\r\n" ) << version;
        EXPECT_GT( contact.AddLine( "b.X-ANY;A=\"b;c\":\xC3\xA4=" ), 0 ) << version;
        EXPECT_GT( contact.AddLine( "TEL:1" ), 0 ) << version;
        EXPECT_EQ( LinesOf( contact ), "FN:x\r\nb.X-ANY;A=\"b;c\":\xC3\xA4=\r\nTEL:1\r\n" ) << version;
        ExpectWritten( contact, version );
    }
}

TEST( PimContactEditsTest, VersionStays )
{
    PimContact contact = ContactIn( "4.0", "FN:x\r\n" );
    EXPECT_FALSE( contact.RemoveLine( 1 ) );
    EXPECT_TRUE( contact.RemoveLine( 2 ) );
    EXPECT_FALSE( contact.RemoveLine( 2 ) );
    EXPECT_EQ( contact.Card().Bytes(), QByteArray( "BEGIN:VCARD\r\nVERSION:4.0\r\nEND:VCARD\r\n" ) );
}

TEST( PimContactEditsTest, AddedLineOfIndentedCardIsIndented )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "\t BEGIN:VCARD\n\t VERSION:3.0\n\t FN:x\n\t  y\n\t END:VCARD\n" );
    ASSERT_EQ( book.Size(), 1 );
    PimContact contact = book.At( 0 );
    contact.AddPhone( PimContactPhone( QStringLiteral( "1" ) ) );
    contact.SetDisplayName( QStringLiteral( "z" ) );
    EXPECT_EQ( contact.Card().Bytes(),
               QByteArray( "\t BEGIN:VCARD\n\t VERSION:3.0\n\t FN:z\r\n\t TEL:1\r\n\t END:VCARD\n" ) );
    ExpectWritten( contact, "indented" );
}

TEST( PimContactEditsTest, NestedCardIsEdited )
{
    const PimContact outer = ContactIn( "2.1", "FN:x\r\nAGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nFN:y\r\nAGENT:\r\n"
                                               "BEGIN:VCARD\r\nTEL:2\r\nEND:VCARD\r\nEND:VCARD\r\nTEL:1\r\n" );
    PimContact agent = outer.Relations().value( 0 ).Contact();
    const qint64 offset = agent.Card().Offset();
    agent.AddPhone( PimContactPhone( QStringLiteral( "3" ) ) );
    EXPECT_EQ( agent.Card().Bytes(),
               QByteArray( "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:y\r\nAGENT:\r\nBEGIN:VCARD\r\nTEL:2\r\n"
                           "END:VCARD\r\nTEL:3\r\nEND:VCARD\r\n" ) );
    EXPECT_EQ( agent.Card().Offset(), offset );
    EXPECT_GT( offset, 0 );
    ExpectWritten( agent, "nested" );
}

TEST( PimContactEditsTest, CompactedGivesMemoryBack )
{
    PimContact contact = ContactIn( "3.0", "FN:x\r\nPHOTO;ENCODING=b:" + QByteArray( 100000, 'A' ) + "\r\nTEL:1\r\n" );
    contact.SetPhoto( PimContactMedia( QByteArray( 3, '\x81' ) ) );
    const PimContact compacted = contact.Compacted();
    EXPECT_LT( compacted.Card().Bytes().size(), 200 );
    EXPECT_EQ( compacted.Card().Bytes(), contact.Card().Bytes() );
    EXPECT_EQ( compacted.Card(), compacted.Card() );
    // Each line is in the card itself, and none in one of its own.
    for ( const int id : compacted.LineIds() )
        EXPECT_EQ( compacted.Card().Bytes().mid( int( compacted.Line( id ).OffsetInCard() ),
                                                 compacted.Line( id ).Bytes().size() ),
                   compacted.Line( id ).Bytes() );
    PimContact edited = compacted;
    const int id = edited.AddLine( "X-ANY:1" );
    EXPECT_FALSE( compacted.LineIds().contains( id ) );
    EXPECT_TRUE( edited.Remove( contact.Phones().at( 0 ) ) );
}

TEST( PimContactEditsTest, BookHoldsEditedCards )
{
    PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\nBEGIN:VCARD\r\nFN:b\r\nEND:VCARD\r\n" );
    const PimContactBook before = book;
    PimContact contact = book.At( 0 );
    contact.SetDisplayName( QStringLiteral( "c" ) );
    book.Replace( 0, contact );
    book.Append( contact );
    book.Append( PimContact() );
    book.Replace( 1, PimContact() );
    ASSERT_EQ( book.Size(), 3 );
    EXPECT_TRUE( book.At( 0 ) == contact && book.At( 2 ) == contact );
    EXPECT_EQ( book.CardAt( 0 ).Number(), 1 );
    EXPECT_EQ( book.At( 1 ).DisplayName(), QLatin1String( "b" ) );
    EXPECT_EQ( before.At( 0 ).DisplayName(), QLatin1String( "a" ) );
}

TEST( PimContactEditsTest, CopiesInOtherThreadsDoNotChange )
{
    const PimContact contact = ContactIn( "3.0", "a.TEL:1\r\na.X-ABLabel:boat\r\nFN:x\r\n" );
    std::vector<std::thread> threads;
    std::array<std::string, 4> lines;
    for ( size_t i = 0; i < lines.size(); ++i )
    {
        threads.emplace_back(
            [&contact, &lines, i]
            {
                for ( int round = 0; round < 50; ++round )
                {
                    PimContact copy = contact;
                    PimContactPhone phone = copy.Phones().at( 0 );
                    phone.SetLabel( QString::number( i ) );
                    copy.Replace( contact.Phones().at( 0 ), phone );
                    copy.SetDisplayName( QString::number( i ) );
                    lines.at( i ) = LinesOf( copy );
                }
            } );
    }
    for ( std::thread& thread : threads )
        thread.join();
    for ( size_t i = 0; i < lines.size(); ++i )
    {
        const std::string number = std::to_string( i );
        EXPECT_EQ( lines.at( i ), "a.TEL:1\r\na.X-ABLabel:" + number + "\r\nFN:" + number + "\r\n" );
    }
    EXPECT_EQ( LinesOf( contact ), "a.TEL:1\r\na.X-ABLabel:boat\r\nFN:x\r\n" );
}

// Hangs if an edit costs more than the number of lines, or an edit of many lines costs that for each of them.
TEST( PimContactEditsTest, ManyEditsOfManyLinesEnd )
{
    constexpr int s_kLines = 20000;
    QByteArray lines;
    for ( int i = 0; i < s_kLines; ++i )
        lines += "a.TEL:" + QByteArray::number( i ) + "\r\n";
    PimContact contact = ContactIn( "3.0", lines );
    for ( int i = 0; i < s_kLines; ++i )
        EXPECT_GT( contact.AddLine( "X-ANY:1" ), 0 );
    for ( int i = 0; i < s_kLines; ++i )
        EXPECT_TRUE( contact.RemoveLine( i + 2 ) );
    EXPECT_EQ( contact.LineIds().size(), s_kLines + 1 );
    QStringList members;
    for ( int i = 0; i < s_kLines; ++i )
        members.append( QString::number( i ) );
    contact.SetMembers( members );
    contact.SetMembers( members );
    EXPECT_EQ( contact.Compacted().LineIds(), contact.LineIds() );
    contact.SetMembers( {} );
    EXPECT_EQ( contact.LineIds().size(), s_kLines + 1 );
}

} // namespace PimManager::Contacts
