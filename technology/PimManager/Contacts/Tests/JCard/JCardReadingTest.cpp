#include "Checks/Invariants.h"
#include "Checks/Reading.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <random>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

// Every kind of value and parameter that RFC 7095 describes; most of it is as in its appendix B.1.
const char* const s_kJson = R"(
["vcard",
  [
    ["version", {}, "text", "4.0"],
    ["fn", {}, "text", "Mara Vell"],
    ["n", {}, "text", ["Vell", "Mara", "", "", ["ing. jr", "M.Sc."]]],
    ["bday", {}, "date-and-or-time", "--02-03"],
    ["anniversary", {}, "date-and-or-time", "2009-08-08T14:30:00-05:00"],
    ["gender", {}, "text", "F"],
    ["lang", { "pref": "1" }, "language-tag", "fr"],
    ["lang", { "pref": "2" }, "language-tag", "en"],
    ["org", { "type": "work" }, "text", ["Quern, Ltd.", "Mills"]],
    ["adr", { "type": "work" }, "text",
      ["", "Suite D2-630", "52 Ridgeback Hollow Avenue", "Port Selwyn", "QC", "G1V 2M2", "Canada"]],
    ["tel", { "type": ["work", "voice"], "pref": "1" }, "uri", "tel:+1-555-555-0100;ext=102"],
    ["email", { "type": "work", "group": "item1" }, "text", "mara@example.com"],
    ["x-ablabel", { "group": "item1" }, "unknown", "Mill, new"],
    ["geo", { "type": "work" }, "uri", "geo:46.772673,-71.282945"],
    ["categories", {}, "text", "a,b", "c"],
    ["note", {}, "text", "two\nlines, with; delimiters \ud83d\ude00"],
    ["tz", {}, "utc-offset", "-05:00"],
    ["url", { "type": "home" }, "uri", "https://example.com"]
  ]
])";

const char* const s_kVCard = "BEGIN:VCARD\r\n"
                             "VERSION:4.0\r\n"
                             "FN:Mara Vell\r\n"
                             "N:Vell;Mara;;;ing. jr,M.Sc.\r\n"
                             "BDAY:--0203\r\n"
                             "ANNIVERSARY:20090808T143000-0500\r\n"
                             "GENDER:F\r\n"
                             "LANG;PREF=1:fr\r\n"
                             "LANG;PREF=2:en\r\n"
                             "ORG;TYPE=work:Quern\\, Ltd.;Mills\r\n"
                             "ADR;TYPE=work:;Suite D2-630;52 Ridgeback Hollow Avenue;Port Selwyn;QC;G1V 2M2;Canada\r\n"
                             "TEL;TYPE=work,voice;PREF=1;VALUE=uri:tel:+1-555-555-0100;ext=102\r\n"
                             "item1.EMAIL;TYPE=work:mara@example.com\r\n"
                             "item1.X-ABLABEL:Mill, new\r\n"
                             "GEO;TYPE=work:geo:46.772673,-71.282945\r\n"
                             "CATEGORIES:a\\,b,c\r\n"
                             "NOTE:two\\nlines\\, with\\; delimiters \xF0\x9F\x98\x80\r\n"
                             "TZ;VALUE=utc-offset:-0500\r\n"
                             "URL;TYPE=home:https://example.com\r\n"
                             "END:VCARD\r\n";

} // namespace

TEST( JCardReadingTest, CardIsTheSameAsTheVCard )
{
    const PimContactBook book = PimContactBook::FromBytes( s_kJson );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( book.CardAt( 0 ).Bytes(), QByteArray( s_kVCard ) );
    EXPECT_EQ( book.At( 0 ), PimContactBook::FromBytes( s_kVCard ).At( 0 ) );
    EXPECT_TRUE( book.Report().IsComplete() );
    EXPECT_TRUE( book.Report().IsConverted() );
    EXPECT_EQ( book.Report().FileKind(), PimContactFileKind::AddressBook );
    EXPECT_EQ( book.Report().Findings( PimContactDiagnosticCode::JCard ), 1 );
    EXPECT_EQ( book.Report().Diagnostics().size(), 1 );
}

// A file may have spaces; what is written has none.
TEST( JCardReadingTest, CardBecomesTheSameJCard )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, PimContactFormat::JCard );
    EXPECT_TRUE( writer.Write( PimContactBook::FromBytes( s_kVCard ).CardAt( 0 ) ) );
    EXPECT_TRUE( writer.Finish() );
    EXPECT_EQ( QJsonDocument::fromJson( buffer.data() ), QJsonDocument::fromJson( s_kJson ) );
    EXPECT_FALSE( QJsonDocument::fromJson( s_kJson ).isEmpty() );
}

TEST( JCardReadingTest, Utf16IsRead )
{
    QByteArray bytes( "\xFF\xFE" );
    const QString text = QString::fromUtf8( s_kJson );
    for ( const QChar character : text )
        bytes.append( static_cast<char>( character.cell() ) ).append( static_cast<char>( character.row() ) );
    const PimContactBook book = PimContactBook::FromBytes( bytes );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( book.CardAt( 0 ).LineCount(), PimContactBook::FromBytes( s_kVCard ).CardAt( 0 ).LineCount() );
}

// As it is made of a vCard of 3.0 without another conversion (RFC 7095, section 3.3.1.1).
TEST( JCardReadingTest, ValuesOfVersion30AreRead )
{
    const PimContactBook book = PimContactBook::FromBytes( R"(["vcard",[["version",{},"text","3.0"],
        ["n",{},"text",["Vell","Mara","","",""]],["fn",{},"text","Mara Vell"],["bday",{},"date","1985-04-12"],
        ["tel",{"type":["home","pref"]},"phone-number","+1-555-555-0100"],["geo",{},"float",[46.77,-71.28]],
        ["rev",{},"date-time","1995-10-31T22:27:10Z"],["note",{},"text","a;b"],
        ["photo",{"encoding":"b","type":"GIF"},"binary","R0lGODlh"]]])" );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( book.Report().Diagnostics().size(), 1 );
    const PimContact contact = book.At( 0 );
    EXPECT_EQ( contact.Card().Version(), PimContactVersion::V40 );
    EXPECT_EQ( contact.Birthday(), PimContactDate::FromText( QStringLiteral( "1985-04-12" ) ) );
    EXPECT_EQ( contact.Phones().at( 0 ).Number(), QStringLiteral( "+1-555-555-0100" ) );
    EXPECT_TRUE( contact.Phones().at( 0 ).Kinds().testFlag( PimContactPhoneKind::Home ) );
    EXPECT_EQ( contact.Phones().at( 0 ).Preference(), 1 );
    EXPECT_EQ( contact.Position(), ( PimContactPosition{ 46.77, -71.28 } ) );
    EXPECT_FALSE( contact.Revision().IsNull() );
    EXPECT_EQ( contact.Notes().at( 0 ).Text(), QStringLiteral( "a;b" ) );
    EXPECT_EQ( contact.Photos().at( 0 ).Bytes(), QByteArray( "GIF89a" ) );
}

TEST( JCardReadingTest, DamageIsReportedWithItsPlaceInTheJson )
{
    const QByteArray json = "[[\"vcard\",\n [[\"fn\",{},\"text\",\"Mara\"],\n  [\"tel\",{}],]],\n {\"a\":\"b\"}]";
    const Checks::Reading reading = Checks::ReadWhole( json );
    ASSERT_EQ( reading.m_cards.size(), 1U );
    EXPECT_FALSE( reading.m_report.IsComplete() );
    EXPECT_EQ( reading.m_report.Extents( PimContactExtentKind::Outside ), 1 );
    EXPECT_TRUE( reading.m_cards.front().Bytes().contains( "\r\nX-JCARD:[\"tel\"\\,{}]\r\n" ) );
    QByteArray found;
    for ( const PimContactDiagnostic& diagnostic : reading.m_diagnostics )
        found += QByteArray( NameOf( diagnostic.Code() ).data() ) + ' ' + QByteArray::number( diagnostic.Card() ) +
                 ':' + QByteArray::number( diagnostic.Line() ) + ':' + QByteArray::number( diagnostic.Column() ) + "; ";
    EXPECT_EQ( found, "jcard 0:1:1; json-part 1:3:3; json-syntax 1:3:14; "
                      "json-part 0:4:2; text-outside 0:6:1; " );
}

TEST( JCardReadingTest, OtherPartsAreNotJoinedWithANote )
{
    const PimContactBook book =
        PimContactBook::FromBytes( R"(["vcard",[["note",{},"text","a"],"b",["note",{},"text","c"]],1])" );
    ASSERT_EQ( book.Size(), 1 );
    const PimContactList<PimContactText> notes = book.At( 0 ).Notes();
    ASSERT_EQ( notes.size(), 2 );
    EXPECT_EQ( notes.at( 0 ).Text(), QStringLiteral( "a" ) );
    EXPECT_EQ( notes.at( 1 ).Text(), QStringLiteral( "c" ) );
}

TEST( JCardReadingTest, CardThatIsCutOffIsDelivered )
{
    const PimContactBook book = PimContactBook::FromBytes( QByteArray( s_kJson ).left( 300 ) );
    ASSERT_EQ( book.Size(), 1 );
    EXPECT_EQ( book.At( 0 ).DisplayName(), QStringLiteral( "Mara Vell" ) );
    EXPECT_EQ( book.Report().Findings( PimContactDiagnosticCode::EndOfFile ), 1 );
    EXPECT_EQ( book.Report().CardsInPart(), 1 );
}

TEST( JCardReadingTest, LimitsApply )
{
    PimContactOptions options;
    options.SetCardBytes( 5000 );
    options.SetNames( { QByteArrayLiteral( "FN" ), QByteArrayLiteral( "NOTE" ) } );
    const QByteArray small = "[\"vcard\",[[\"fn\",{},\"text\",\"a\"],[\"tel\",{},\"text\",\"1\"]]]";
    const QByteArray large =
        "[\"vcard\",[[\"fn\",{},\"text\",\"b\"],[\"note\",{},\"text\",\"" + QByteArray( 6000, 'x' ) + "\"]]]";
    const PimContactBook book = PimContactBook::FromBytes( small + large + small, options );
    ASSERT_EQ( book.Size(), 2 );
    EXPECT_EQ( book.CardAt( 0 ).Bytes(), QByteArray( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:a\r\nEND:VCARD\r\n" ) );
    EXPECT_EQ( book.Report().Findings( PimContactDiagnosticCode::CardTooLong ), 1 );
    EXPECT_EQ( book.Report().CardsRefused(), 1 );
}

TEST( JCardReadingTest, DamagedTextsKeepAllInvariants )
{
    constexpr std::string_view s_kBytes = "[]{}\",:\\u\n 0#\xC3";
    const QByteArray json = QByteArray( "[" ) + s_kJson + "," + s_kJson + "]";
    std::mt19937 random( 7 );
    for ( unsigned seed = 0; seed < 150; ++seed )
    {
        QByteArray damaged = json;
        for ( unsigned i = 0; i < seed % 8; ++i )
        {
            const int place = 12 + static_cast<int>( random() % static_cast<unsigned>( json.size() - 20 ) );
            const int length = static_cast<int>( random() % 3 );
            damaged.replace( place, length, QByteArray( 1, s_kBytes[random() % s_kBytes.size()] ) );
        }
        damaged.truncate( seed % 5 == 4 ? static_cast<int>( random() % 900 ) : damaged.size() );
        EXPECT_EQ( Checks::BrokenInvariantOf( damaged, PimContactOptions(), seed ), QByteArray() )
            << seed << damaged.toStdString();
    }
}

} // namespace PimManager::Contacts
