#include "Contact.h"

#include "ToolsTestText.h"

#include "PimVCard.h"

#include <vector>

using namespace PimManager::vCard;
using namespace PimManager::vCard::Tools;

TEST( ContactTest, CardWithoutANameIsCalledSo )
{
    EXPECT_EQ( Utf8( ReadContact( *OnlyCard( "NOTE:x\r\n" ) ).m_name ), "(no name)" );
    EXPECT_EQ( Utf8( ReadContact( *OnlyCard( "FN:\r\nN:Brackwater;Nell;;;\r\n" ) ).m_name ), "Nell Brackwater" );
}

TEST( ContactTest, EntriesAreDecodedAndEmptyOnesLeftOut )
{
    const Contact contact =
        ReadContact( *OnlyCard( "FN:x\r\nTEL:\r\nTEL;VALUE=uri;TYPE=home;PREF=1:tel:+1-555-0100\r\n"
                                "TEL;CELL;ENCODING=QUOTED-PRINTABLE:555=2D01\r\nEMAIL;INTERNET;HOME:a@example.com\r\n"
                                "ORG:Tide Office;;Charts\r\nORG:Other\r\n" ) );
    ASSERT_EQ( contact.m_numbers.size(), 2 );
    EXPECT_EQ( Utf8( contact.m_numbers[0].m_text ), "+1-555-0100" );
    EXPECT_EQ( contact.m_numbers[0].m_preference, 1 );
    EXPECT_EQ( Utf8( PurposeOf( contact.m_numbers[0] ) ), "home" );
    EXPECT_EQ( Utf8( contact.m_numbers[1].m_text ), "555-01" );
    ASSERT_EQ( contact.m_mails.size(), 1 );
    EXPECT_EQ( Utf8( PurposeOf( contact.m_mails[0] ) ), "home" );
    EXPECT_EQ( Utf8( contact.m_organisation ), "Tide Office, Charts" );
}

TEST( ContactTest, LabelSaysMoreThanTypes )
{
    const Contact contact = ReadContact( *OnlyCard( "item1.TEL;TYPE=CELL:5\r\nitem1.X-ABLabel:_$!<Mobile>!$_\r\n" ) );
    ASSERT_EQ( contact.m_numbers.size(), 1 );
    EXPECT_EQ( Utf8( PurposeOf( contact.m_numbers[0] ) ), "Mobile" );
}

TEST( ContactTest, PropertiesAreReadable )
{
    struct Row
    {
        const char* m_line;
        const char* m_text;
    };
    const std::vector<Row> rows = {
        { "NOTE:  a  ", "a" },
        { "NOTE:", "" },
        { "CATEGORIES:a,b", "a,b" },
        { "N:Brackwater;Nell;;;", "Brackwater, Nell" },
        { "TEL;VALUE=uri:tel:+1-555", "+1-555" },
        { "EMAIL:mailto:a@example.com", "a@example.com" },
        { "ADR:;;3 Ferry Steps;Port Lanthorn;;X1;", "3 Ferry Steps\nX1 Port Lanthorn" },
        { "X-IRMC-CALL-DATETIME;MISSED:20240311T084512Z", "2024-03-11 08:45:12 UTC" },
        { "X-IRMC-CALL-DATETIME;TYPE=DIALED:20240311T084512", "2024-03-11 08:45:12" },
        { "X-IRMC-CALL-DATETIME;DIALED:yesterday", "yesterday" },
        { "NOTE;QUOTED-PRINTABLE;ENCODING=QUOTED-PRINTABLE:a=3Bb", "a;b" },
    };
    for ( const Row& row : rows )
    {
        const auto card = OnlyCard( QByteArray( row.m_line ) + "\r\n" );
        EXPECT_EQ( Utf8( ReadableTextOf( *card->GetProperties().first() ) ), row.m_text ) << row.m_line;
    }
}
