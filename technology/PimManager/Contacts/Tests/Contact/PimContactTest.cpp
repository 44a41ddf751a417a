#include <PimManager/Contacts/PimContact.h>

#include "OneLine.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

PimContact ContactOf( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + a_lines + "\r\nEND:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.toStdString();
    return book.IsEmpty() ? PimContact() : PimContact( book.CardAt( 0 ) );
}

// Text, types, label and preference.
std::string Shown( const QString& a_text, const PimContactField& a_field )
{
    return a_text.toStdString() + '|' + Joined( a_field.Types() ) + '|' + a_field.Label().toStdString() + '|' +
           std::to_string( a_field.Preference().value_or( 0 ) );
}

std::string Shown( const PimContactText& a_text )
{
    return Shown( a_text.Text(), a_text );
}

template <class Field>
std::string Shown( const PimContactList<Field>& a_fields, QString ( Field::*a_text )() const )
{
    std::string text;
    for ( const Field& field : a_fields )
        text += Shown( ( field.*a_text )(), field ) + '/';
    return text;
}

struct Row
{
    const char* m_lines;
    const char* m_shown;
};

class PimContactNameTest : public testing::TestWithParam<Row>
{
};

constexpr std::array s_kNames = {
    Row{
        "TEL:1\r\nEMAIL:a@example.com\r\nORG:Lanthorn;Tide\r\nNICKNAME:Nell,Nelly\r\nN:Brackwater;Nell\r\nFN: Nell  B ",
        "Nell B" },
    Row{ "TEL:1\r\nEMAIL:a@example.com\r\nORG:Lanthorn;Tide\r\nNICKNAME:Nell,Nelly\r\nN:Brackwater;Nell;Imogen;Dr.;MSc",
         "Dr. Nell Imogen Brackwater MSc" },
    Row{ "TEL:1\r\nORG:Lanthorn;Tide\r\nNICKNAME:Nell,Nelly\r\nN:;;;;\r\nFN:", "Nell, Nelly" },
    Row{ "TEL:1\r\nEMAIL:a@example.com\r\nORG:;\r\nORG:Lanthorn;;Tide", "Lanthorn, Tide" },
    Row{ "TEL:1\r\nEMAIL:\"Omega\" <a@example.com>", "a@example.com" },
    Row{ "NOTE:x\r\nTEL:tel:+1-555", "+1-555" },
    Row{ "NOTE:x", "" },
    Row{ "FN;ENCODING=BASE64:SsO2cmc=", "J\xC3\xB6rg" },
    Row{ "FN;CHARSET=ISO-8859-1;BASE64:SvZyZw==", "J\xC3\xB6rg" },
    Row{ "N;ENCODING=b:RG9lO0rDtnJn", "J\xC3\xB6rg Doe" },
    Row{ "TEL;ENCODING=b:KzEtNTU1", "+1-555" },
};

class PimContactFieldTest : public testing::TestWithParam<Row>
{
};

constexpr std::array s_kEntries = {
    Row{ "TEL;TYPE=cell,Voice;PREF=3:tel:+1-555;ext=2", "+1-555;ext=2|CELL|VOICE||3" },
    Row{ "EMAIL;TYPE=INTERNET,pref,Home:mailto:a@example.com", "a@example.com|HOME||1" },
    Row{ "TEL;TYPE=INTERNET:1", "1|INTERNET||0" },
    Row{ "item1.TEL:1\r\nITEM1.X-ABLabel:_$!<Boat phone>!$_", "1||Boat phone|0" },
    Row{ "ADR:12;;3 Weir Lane;Ouse Mouth;Fenshire;FN1 2AB;Anglia",
         "12\n3 Weir Lane\nFN1 2AB Ouse Mouth\nFenshire\nAnglia|||0" },
    Row{ "ADR:;;;Ouse Mouth", "Ouse Mouth|||0" },
    Row{ "X-IRMC-CALL-DATETIME;MISSED:20240311T084512Z", "2024-03-11 08:45:12 UTC|MISSED||0" },
    Row{ "X-IRMC-CALL-DATETIME:yesterday", "yesterday|||0" },
    Row{ "CATEGORIES:a\\,b, c,,d", "a,b, c, d|||0" },
    Row{ "ORG:;Lanthorn; Tide ", "Lanthorn, Tide|||0" },
    Row{ "NOTE: one\\ntwo; three, four ", "one\ntwo; three, four|||0" },
    Row{ "TEL;TYPE=cell;ENCODING=b:KzEtNTU1", "+1-555|CELL||0" },
    Row{ "ADR;BASE64:Ozs7T3VzZSBNb3V0aA==", "Ouse Mouth|||0" },
    Row{ "NOTE;ENCODING=b:AP//", "AP//|||0" },
    Row{ "NOTE;TYPE=\xC3\xA4\x62:", "|\xC3\xA4"
                                    "B||0" },
};

} // namespace

TEST_P( PimContactNameTest, BestNameIsChosen )
{
    EXPECT_EQ( ContactOf( GetParam().m_lines ).DisplayName().toStdString(), GetParam().m_shown );
}

INSTANTIATE_TEST_SUITE_P( Rows, PimContactNameTest, testing::ValuesIn( s_kNames ) );

TEST_P( PimContactFieldTest, LineIsReadable )
{
    const PimContact contact = ContactOf( GetParam().m_lines );
    EXPECT_EQ( Shown( contact.FieldOf( *contact.Card().begin() ) ), GetParam().m_shown ) << GetParam().m_lines;
}

INSTANTIATE_TEST_SUITE_P( Rows, PimContactFieldTest, testing::ValuesIn( s_kEntries ) );

TEST( PimContactTest, NumbersAndMailsAreThoseWithText )
{
    const PimContact contact = ContactOf( "TEL:1\r\nEMAIL:a@example.com\r\nTEL: \r\nTEL;WORK:2\r\nEMAIL:" );
    EXPECT_EQ( Shown( contact.Phones(), &PimContactPhone::Number ), "1|||0/2|WORK||0/" );
    EXPECT_EQ( Shown( contact.Mails(), &PimContactMail::Address ), "a@example.com|||0/" );
}

TEST( PimContactTest, PurposeIsLabelOrTypes )
{
    const PimContact contact = ContactOf( "a.TEL;CELL:1\r\na.X-ABLabel:boat phone\r\nTEL;CELL;WORK:2\r\nTEL:3" );
    ASSERT_EQ( contact.Phones().size(), 3 );
    EXPECT_EQ( contact.Phones().at( 0 ).Purpose(), QLatin1String( "boat phone" ) );
    EXPECT_EQ( contact.Phones().at( 1 ).Purpose(), QLatin1String( "cell, work" ) );
    EXPECT_EQ( contact.Phones().at( 2 ).Purpose(), QString() );
}

TEST( PimContactTest, NestedCardIsNotRead )
{
    const PimContact contact = ContactOf( "AGENT:\r\nBEGIN:VCARD\r\nFN:Omega\r\nTEL:2\r\nEND:VCARD\r\nTEL:1" );
    EXPECT_EQ( contact.DisplayName(), QLatin1String( "1" ) );
    EXPECT_EQ( Shown( contact.Phones(), &PimContactPhone::Number ), "1|||0/" );
}

TEST( PimContactTest, NullContactIsEmpty )
{
    for ( const PimContact& contact : { PimContact(), PimContact( PimContactCard() ) } )
    {
        EXPECT_TRUE( contact.IsNull() );
        EXPECT_TRUE( contact.Card().IsNull() );
        EXPECT_EQ( contact.DisplayName() + contact.SortName(), QString() );
        EXPECT_TRUE( contact.Phones().isEmpty() && contact.Organisations().isEmpty() );
        EXPECT_EQ( Shown( contact.FieldOf( PimContactLine() ) ), "|||0" );
    }
}

TEST( PimContactTest, ContactOutlivesItsBook )
{
    PimContact contact;
    {
        contact = ContactOf( "FN:Nell" );
    }
    const PimContact copy = contact;
    contact = PimContact();
    EXPECT_EQ( copy.DisplayName(), QLatin1String( "Nell" ) );
    EXPECT_FALSE( copy.IsNull() );
    EXPECT_EQ( copy.Card().LineCount(), 1 );
}

} // namespace PimManager::Contacts
