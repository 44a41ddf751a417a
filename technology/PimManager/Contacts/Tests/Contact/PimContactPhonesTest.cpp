#include "ContactRows.h"

#include <QMetaEnum>

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

std::string Shown( const PimContactPhone& a_phone )
{
    return a_phone.Number().toStdString() + Named( "ext", a_phone.Extension() ) +
           Named( "context", a_phone.Context() ) + ShownKinds( a_phone.Kinds() ) + ShownCommon( a_phone );
}

std::string ShownPhones( const PimContact& a_contact )
{
    return ShownList( a_contact.Phones(), []( const PimContactPhone& a_phone ) { return Shown( a_phone ); } );
}

constexpr std::array s_kNumbers = {
    ContactRow{ "2.1", "TEL: +1 (555) 010-2233 ", "+1 (555) 010-2233" },
    ContactRow{ "4.0", "TEL;VALUE=uri:tel:+1-555-0102;ext=12", "+1-555-0102 ext=12" },
    ContactRow{ "4.0", "TEL;VALUE=uri:TEL:0102;PHONE-CONTEXT=+1-555;EXT=7;x=y", "0102 ext=7 context=+1-555" },
    ContactRow{ "4.0", "TEL;VALUE=uri:tel:%2B1%20555", "+1 555" },
    ContactRow{ "3.0", "TEL:tel:+1-555", "+1-555" },
    ContactRow{ "3.0", "TEL:+1-555 ext. 12", "+1-555 ext=12" },
    ContactRow{ "3.0", "TEL:+1-555x12", "+1-555 ext=12" },
    ContactRow{ "3.0", "TEL:+1-555\\;ext=12", "+1-555 ext=12" },
    ContactRow{ "3.0", "TEL:555p12\r\nTEL:555\\,12\r\nTEL:555w12", "555p12 / 555,12 / 555w12" },
    ContactRow{ "3.0", "TEL:*21#", "*21#" },
    ContactRow{ "3.0", "TEL:call the harbour", "call the harbour" },
    ContactRow{ "2.1", "TEL;ENCODING=QUOTED-PRINTABLE:=2B1-555", "+1-555" },
    ContactRow{ "3.0", "TEL;ENCODING=b:KzEtNTU1", "+1-555" },
    ContactRow{ "4.0", "TEL;VALUE=uri:sip:omega@example.com", "sip:omega@example.com" },
    ContactRow{ "3.0", "TEL:\r\nTEL: \r\nTEL:tel:\r\nTEL:1", "1" },
    ContactRow{ "4.0", "TEL:tel:;ext=5", " ext=5" },
};

constexpr std::array s_kTypes = {
    ContactRow{ "2.1", "TEL;HOME;VOICE:1", "1 {Home|Voice} types=HOME|VOICE" },
    ContactRow{ "2.1", "TEL;WORK;TYPE=FAX;PREF:1", "1 {Work|Fax} types=WORK|FAX pref=1" },
    ContactRow{ "3.0", "TEL;TYPE=home,cell;TYPE=pref:1", "1 {Home|Mobile} types=HOME|CELL pref=1" },
    ContactRow{ "3.0", "TEL;type=CELL;type=VOICE;type=cell:1", "1 {Mobile|Voice} types=CELL|VOICE" },
    ContactRow{ "4.0", "TEL;TYPE=\"voice,home\";PREF=1:1", "1 {Home|Voice} types=VOICE|HOME pref=1" },
    ContactRow{ "4.0", "TEL;TYPE=\"work\",\"text\";PREF=30;PREF=2:1", "1 {Work|Text} types=WORK|TEXT pref=30" },
    ContactRow{ "3.0", "TEL;CELL;WORK:1", "1 {Work|Mobile} types=CELL|WORK" },
    ContactRow{ "4.0", "TEL;PREF=0:1\r\nTEL;PREF=101:2\r\nTEL;PREF=x;TYPE=pref:3\r\nTEL;PREF=100:4",
                "1 / 2 / 3 pref=1 / 4 pref=100" },
    ContactRow{ "3.0", "TEL;TYPE=:1\r\nTEL;TYPE=,,:2\r\nTEL;=x:3", "1 / 2 / 3 label=x types=X" },
    ContactRow{ "3.0", "TEL;TYPE=X-EVOLUTION-CALLBACK:1\r\nTEL;TYPE=X-cell:2",
                "1 {Callback} types=X-EVOLUTION-CALLBACK / 2 {Mobile} types=X-CELL" },
    ContactRow{ "4.0", "TEL;TYPE=\xC3\xA4:1", "1 label=\xC3\xA4 types=\xC3\xA4" },
};

constexpr std::array s_kLabels = {
    ContactRow{ "3.0", "item1.TEL:1\r\nITEM1.X-ABLabel:boat phone", "1 label=boat phone" },
    ContactRow{ "3.0", "item1.X-ABLabel:_$!<HomeFAX>!$_\r\nitem1.TEL;type=pref:1",
                "1 {Home|Fax} label=HomeFAX pref=1" },
    ContactRow{ "3.0", "a.TEL;TYPE=CELL:1\r\na.X-ABLabel:Home", "1 {Mobile} label=Home types=CELL" },
    ContactRow{ "3.0", "a.TEL:1\r\na.TEL:2\r\nb.TEL:3\r\na.X-ABLabel:boat", "1 label=boat / 2 label=boat / 3" },
    ContactRow{ "3.0", "a.TEL:1\r\na.X-ABLabel:boat\r\na.X-ABLabel:car", "1 label=boat" },
    ContactRow{ "3.0", "a.TEL:1\r\na.X-ABLabel:\r\nX-ABLabel:boat", "1" },
    ContactRow{ "2.1", "TEL;X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=42=6F=61=74):1", "1 label=Boat" },
    ContactRow{ "3.0", "TEL;X-CUSTOM=Boat;TYPE=cell,Ship:1", "1 {Mobile} label=Boat types=CELL|SHIP" },
    ContactRow{ "3.0", "a.TEL;X-CUSTOM=Boat;TYPE=Ship:1\r\na.X-ABLabel:Yacht", "1 label=Yacht types=SHIP" },
    ContactRow{ "3.0", "TEL;TYPE=CELL;TYPE=X-Boat:1", "1 {Mobile} label=Boat types=CELL|X-BOAT" },
    ContactRow{ "3.0", "TEL;TYPE=Boat,Ship:1", "1 label=Boat types=BOAT|SHIP" },
    ContactRow{ "2.1", "TEL;X-Boat:1", "1 label=Boat types=X-BOAT" },
    ContactRow{ "3.0", "TEL;TYPE=INTERNET:1", "1 types=INTERNET" },
};

struct WordRow
{
    const char* m_word;
    const char* m_kinds;
};

// Every word that PimContactKinds.h lists.
constexpr std::array s_kWords = {
    WordRow{ "home", "Home" },
    WordRow{ "work", "Work" },
    WordRow{ "business", "Work" },
    WordRow{ "cell", "Mobile" },
    WordRow{ "cellular", "Mobile" },
    WordRow{ "mobile", "Mobile" },
    WordRow{ "iPhone", "Mobile" },
    WordRow{ "fax", "Fax" },
    WordRow{ "homefax", "Home|Fax" },
    WordRow{ "home-fax", "Home|Fax" },
    WordRow{ "workfax", "Work|Fax" },
    WordRow{ "otherfax", "Fax|Other" },
    WordRow{ "pager", "Pager" },
    WordRow{ "video", "Video" },
    WordRow{ "text", "Text" },
    WordRow{ "sms", "Text" },
    WordRow{ "msg", "Text" },
    WordRow{ "textphone", "TextPhone" },
    WordRow{ "tty", "TextPhone" },
    WordRow{ "tdd", "TextPhone" },
    WordRow{ "ttytdd", "TextPhone" },
    WordRow{ "tty-tdd", "TextPhone" },
    WordRow{ "voice", "Voice" },
    WordRow{ "car", "Car" },
    WordRow{ "isdn", "Isdn" },
    WordRow{ "bbs", "Bbs" },
    WordRow{ "modem", "Modem" },
    WordRow{ "pcs", "Pcs" },
    WordRow{ "main", "Main" },
    WordRow{ "main-number", "Main" },
    WordRow{ "company-main", "Main|Company" },
    WordRow{ "assistant", "Assistant" },
    WordRow{ "callback", "Callback" },
    WordRow{ "company", "Company" },
    WordRow{ "radio", "Radio" },
    WordRow{ "telex", "Telex" },
    WordRow{ "tlx", "Telex" },
    WordRow{ "other", "Other" },
};

} // namespace

TEST( PimContactPhonesTest, NumbersAreRead )
{
    ExpectRows( s_kNumbers, ShownPhones );
}

TEST( PimContactPhonesTest, TypesAndPreferenceAreRead )
{
    ExpectRows( s_kTypes, ShownPhones );
}

TEST( PimContactPhonesTest, LabelsAreRead )
{
    ExpectRows( s_kLabels, ShownPhones );
}

TEST( PimContactPhonesTest, WordsSetKindsInEveryForm )
{
    for ( const WordRow& row : s_kWords )
    {
        const QByteArray word = row.m_word;
        const QList<QByteArray> cards = { ";TYPE=" + word + ":1", ";type=" + word.toUpper() + ":1", ";" + word + ":1",
                                          ";TYPE=\"" + word + "\":1", ";TYPE=pref," + word + ":1" };
        for ( const QByteArray& card : cards )
        {
            const PimContactPhone phone = ContactWith( "TEL" + card, "3.0" ).Phones().value( 0 );
            EXPECT_EQ( ShownKinds( phone.Kinds() ), " {" + std::string( row.m_kinds ) + '}' ) << card.toStdString();
            EXPECT_EQ( phone.Label(), QString() ) << card.toStdString();
        }
        const PimContact contact = ContactWith( "a.TEL:1\r\na.X-ABLabel:_$!<" + word + ">!$_", "3.0" );
        EXPECT_EQ( ShownKinds( contact.Phones().value( 0 ).Kinds() ), " {" + std::string( row.m_kinds ) + '}' )
            << row.m_word;
    }
}

TEST( PimContactPhonesTest, EveryKindHasAWord )
{
    const auto kinds = QMetaEnum::fromType<PimContactPhoneKinds>();
    for ( int i = 0; i < kinds.keyCount(); ++i )
    {
        const bool isThere =
            std::any_of( s_kWords.begin(), s_kWords.end(),
                         [&kinds, i]( const WordRow& a_row )
                         { return QByteArray( a_row.m_kinds ).split( '|' ).contains( kinds.key( i ) ); } );
        EXPECT_TRUE( isThere ) << kinds.key( i );
    }
}

TEST( PimContactPhonesTest, PreferredIsTheMostWanted )
{
    const std::array rows = {
        ContactRow{ "3.0", "TEL:1\r\nTEL;TYPE=pref:2\r\nTEL;TYPE=pref:3", "2 pref=1" },
        ContactRow{ "4.0", "TEL;PREF=20:1\r\nTEL;PREF=3:2\r\nTEL:3", "2 pref=3" },
        ContactRow{ "4.0", "TEL:1\r\nTEL:2", "1" },
        ContactRow{ "4.0", "TEL:1\r\nTEL;PREF=100:2", "2 pref=100" },
        ContactRow{ "4.0", "FN:x", "" },
    };
    ExpectRows( rows, []( const PimContact& a_contact ) { return Shown( a_contact.Phones().Preferred() ); } );
}

TEST( PimContactPhonesTest, PurposeIsLabelOrTypes )
{
    const std::array rows = {
        ContactRow{ "3.0", "TEL;TYPE=CELL,work,pref:1", "cell, work" },
        ContactRow{ "3.0", "TEL;TYPE=CELL,Boat:1", "cell, boat" },
        ContactRow{ "3.0", "a.TEL;TYPE=CELL:1\r\na.X-ABLabel:_$!<HomeFAX>!$_", "HomeFAX" },
        ContactRow{ "2.1", "TEL;X-CUSTOM=Boat Phone;CELL:1", "Boat Phone" },
        ContactRow{ "3.0", "TEL:1", "" },
    };
    ExpectRows( rows,
                []( const PimContact& a_contact ) { return a_contact.Phones().value( 0 ).Purpose().toStdString(); } );
}

TEST( PimContactPhonesTest, LinesOfTheLabelAreKnown )
{
    const PimContact contact = ContactWith( "a.X-ABLabel:boat\r\nTEL:1\r\nA.TEL:2\r\na.X-ABLabel:car", "3.0" );
    ASSERT_EQ( contact.Phones().size(), 2 );
    EXPECT_EQ( contact.Phones().at( 0 ).LineIds(), QList<int>{ 3 } );
    EXPECT_EQ( contact.Phones().at( 1 ).LineIds(), ( QList<int>{ 4, 2 } ) );
    EXPECT_EQ( contact.Line( 4 ).Value(), QByteArray( "2" ) );
}

TEST( PimContactPhonesTest, TextShowsTheExtension )
{
    EXPECT_EQ( ContactWith( "TEL:+1-555x12", "3.0" ).Phones().value( 0 ).Text(), QLatin1String( "+1-555 ext. 12" ) );
    EXPECT_EQ( ContactWith( "TEL:+1-555", "3.0" ).Phones().value( 0 ).Text(), QLatin1String( "+1-555" ) );
}

} // namespace PimManager::Contacts
