// What the helpers read from properties, a row each.

#include "PimVCardDecoding.h"
#include "PimVCardImporter.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <ostream>
#include <string>

namespace PimManager::vCardImport
{

namespace
{

std::unique_ptr<vCard::PimVCard> CardOf( const QByteArray& a_lines )
{
    PimVCardImportResult result = PimVCardImporter().Import( "BEGIN:VCARD\r\n" + a_lines + "\r\nEND:VCARD\r\n" );
    return std::move( result.m_cards.at( 0 ).m_card );
}

struct Row
{
    const char* m_line;
    const char* m_expected;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_line;
}

// Reads the first property of each row's card.
template <typename Reader, size_t Size>
void ExpectRows( const std::array<Row, Size>& a_rows, const Reader& a_read )
{
    for ( const Row& row : a_rows )
    {
        const auto card = CardOf( row.m_line );
        ASSERT_FALSE( card->GetProperties().isEmpty() ) << row;
        const QString text = a_read( *card->GetProperties().constFirst() );
        EXPECT_EQ( text.toStdString(), row.m_expected ) << row;
    }
}

TEST( PimVCardDecodingTest, TextIsDecoded )
{
    static constexpr std::array s_kRows = {
        Row{ "NOTE:plain\\, text", "plain, text" },
        Row{ "NOTE:a\\nb", "a\nb" },
        Row{ "NOTE:a;b", "a;b" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE:a=0D=0Ab", "a\nb" },
        Row{ "NOTE;ENCODING=quoted-printable:=c3=a4", "\xC3\xA4" },
        Row{ "NOTE;QUOTED-PRINTABLE:=41=5", "A=5" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=ISO-8859-1:=E9", "\xC3\xA9" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE:=E9t=E9", "\xC3\xA9t\xC3\xA9" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=\"SHIFT_JIS\":=8A=BF=8E=9A", "\xE6\xBC\xA2\xE5\xAD\x97" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=SHIFT_JIS:=83\\=83g", "\xE3\x82\xBD\xE3\x83\x88" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=A4", "\xC3\xA4" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=US-ASCII:=C3=A4", "\xC3\xA4" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=ISO-2022-JP:=C3=A4", "\xC3\xA4" },
        Row{ "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=no-such-set:=C3=A4", "\xC3\xA4" },
        Row{ "NOTE;ENCODING=BASE64:SGVsbG8=", "Hello" },
        Row{ "NOTE;ENCODING=b:/9j/4A==", "/9j/4A==" },
        Row{ "NOTE;ENCODING=8BIT:=41", "=41" },
        Row{ "N;ENCODING=QUOTED-PRINTABLE:M=FCller;J=F6rg", "M\xC3\xBCller;J\xC3\xB6rg" },
    };
    ExpectRows( s_kRows, []( const vCard::PimVCardProperty& a_property ) { return TextOf( a_property ); } );
}

TEST( PimVCardDecodingTest, TypesAreWordsInUpperCase )
{
    static constexpr std::array s_kRows = {
        Row{ "TEL:1", "0 " },
        Row{ "TEL;TYPE=home,cell:1", "0 HOME CELL" },
        Row{ "TEL;TYPE=home;TYPE=Cell:1", "0 HOME CELL" },
        Row{ "TEL;TYPE=\"home,cell\":1", "0 HOME CELL" },
        Row{ "TEL;HOME;CELL:1", "0 HOME CELL" },
        Row{ "TEL;home;TYPE=HOME:1", "0 HOME" },
        Row{ "TEL;TYPE=pref,home:1", "1 HOME" },
        Row{ "TEL;PREF;WORK:1", "1 WORK" },
        Row{ "TEL;PREF=7;TYPE=work:1", "7 WORK" },
        Row{ "TEL;PREF=0;TYPE=work:1", "0 WORK" },
        Row{ "TEL;PREF=101:1", "0 " },
        Row{ "TEL;ENCODING=QUOTED-PRINTABLE;QUOTED-PRINTABLE;HOME:1", "0 HOME" },
        Row{ "PHOTO;BASE64;JPEG:AAAA", "0 JPEG" },
        Row{ "TEL;TYPE='work':1", "0 WORK" },
        Row{ "TEL;TYPE=_$!<Mobile>!$_:1", "0 MOBILE" },
        Row{ "TEL;TYPE=isdn\\,fax:1", "0 ISDN FAX" },
        Row{ "TEL;TYPE=\"main line\":1", "0 MAIN LINE" },
        Row{ "TEL;TYPE=\"open:1", "0 OPEN" },
    };
    const auto read = []( const vCard::PimVCardProperty& a_property )
    {
        return QString::number( PreferenceOf( a_property ) ) + QLatin1Char( ' ' ) +
               TypesOf( a_property ).join( QLatin1Char( ' ' ) );
    };
    ExpectRows( s_kRows, read );
}

TEST( PimVCardDecodingTest, ParameterValuesLoseQuotesAndCarets )
{
    static constexpr std::array s_kRows = {
        Row{ "TEL;X=a:1", "a" },
        Row{ "TEL;x=\"a;b:c\":1", "a;b:c" },
        Row{ "TEL;X=a,\"b,c\":1", "a|b,c" },
        Row{ "TEL;X=a;Y=b;X=c:1", "a|c" },
        Row{ "TEL;X=\"a^nb^'c^'^^^x^\":1", "a\nb\"c\"^^x^" },
        Row{ "TEL;Y=a:1", "" },
    };
    ExpectRows( s_kRows, []( const vCard::PimVCardProperty& a_property )
                { return ParameterValuesOf( a_property, "X" ).join( QLatin1Char( '|' ) ); } );
}

TEST( PimVCardDecodingTest, NumbersAndMailAddressesLoseTheirSchemes )
{
    static constexpr std::array s_kNumbers = {
        Row{ "TEL:+1 (555) 0100", "+1 (555) 0100" },
        Row{ "TEL;VALUE=uri:tel:+1-555-0100", "+1-555-0100" },
        Row{ "TEL;VALUE=uri:TEL:+1-555;ext=5", "+1-555" },
        Row{ "TEL;VALUE=uri:tel:%2B1", "+1" },
        Row{ "TEL:", "" },
    };
    static constexpr std::array s_kAddresses = {
        Row{ "EMAIL:ada@example.org", "ada@example.org" },
        Row{ "EMAIL:mailto:ada%40example.org?subject=x", "ada@example.org" },
    };
    ExpectRows( s_kNumbers,
                []( const vCard::PimVCardProperty& a_property ) { return TelephoneNumberOf( a_property ); } );
    ExpectRows( s_kAddresses, []( const vCard::PimVCardProperty& a_property ) { return MailAddressOf( a_property ); } );
}

TEST( PimVCardDecodingTest, NamesAndAddressesHaveNamedParts )
{
    const auto name = CardOf( "N:Fenwick; Ada ;Mae,Lou;Dr.;Jr." );
    const PimVCardName parts = NameOf( *name->GetProperties().constFirst() );
    EXPECT_EQ( parts.m_family, QLatin1String( "Fenwick" ) );
    EXPECT_EQ( parts.m_given, QLatin1String( "Ada" ) );
    EXPECT_EQ( parts.m_additional, QLatin1String( "Mae,Lou" ) );
    EXPECT_EQ( parts.m_prefixes, QLatin1String( "Dr." ) );
    EXPECT_EQ( parts.m_suffixes, QLatin1String( "Jr." ) );

    const auto card = CardOf( "ADR:PO 1;Flat 2;3 Heron Row;Wick;Caithness;KW1;Scotland" );
    const vCard::PimVCardProperty& property = *card->GetProperties().constFirst();
    const PimVCardAddress address = AddressOf( property );
    EXPECT_EQ( address.m_postOfficeBox, QLatin1String( "PO 1" ) );
    EXPECT_EQ( address.m_extended, QLatin1String( "Flat 2" ) );
    EXPECT_EQ( address.m_street, QLatin1String( "3 Heron Row" ) );
    EXPECT_EQ( address.m_locality, QLatin1String( "Wick" ) );
    EXPECT_EQ( address.m_region, QLatin1String( "Caithness" ) );
    EXPECT_EQ( address.m_postalCode, QLatin1String( "KW1" ) );
    EXPECT_EQ( address.m_country, QLatin1String( "Scotland" ) );
    EXPECT_EQ( AddressTextOf( property ), QLatin1String( "PO 1\nFlat 2\n3 Heron Row\nKW1 Wick\nCaithness\nScotland" ) );
    EXPECT_EQ( AddressOf( *CardOf( "ADR:" )->GetProperties().constFirst() ).m_country, QString() );
}

TEST( PimVCardDecodingTest, DisplayNameIsTheBestThatThereIs )
{
    static constexpr std::array s_kRows = {
        Row{ "FN: Ada  Fenwick ", "Ada Fenwick" },
        Row{ "FN:\r\nN:Fenwick;Ada;Mae;Dr.;Jr.", "Dr. Ada Mae Fenwick Jr." },
        Row{ "N:;;;;\r\nNICKNAME:Ada", "Ada" },
        Row{ "TEL:1\r\nORG:;Mill\\, Ltd.;Sales", "Mill, Ltd., Sales" },
        Row{ "TEL:1\r\nEMAIL:mailto:a@example.org", "a@example.org" },
        Row{ "NOTE:x\r\nTEL:tel:+1", "+1" },
        Row{ "NOTE:x", "" },
    };
    for ( const Row& row : s_kRows )
        EXPECT_EQ( DisplayNameOf( *CardOf( row.m_line ) ).toStdString(), row.m_expected ) << row;
}

TEST( PimVCardDecodingTest, LabelIsThatOfTheGroup )
{
    static constexpr std::array s_kRows = {
        Row{ "item1.TEL:1\r\nitem1.X-ABLabel:Boat", "Boat" },
        Row{ "ITEM1.TEL:1\r\nitem2.X-ABLabel:Car\r\nitem1.x-ablabel:_$!<Home>!$_", "Home" },
        Row{ "item1.TEL:1\r\nX-ABLabel:Boat", "" },
        Row{ "TEL:1\r\nX-ABLabel:Boat", "" },
        Row{ "item1.TEL:1\r\nitem1.X-ABLabel:_$!<", "_$!<" },
    };
    for ( const Row& row : s_kRows )
    {
        const auto card = CardOf( row.m_line );
        EXPECT_EQ( LabelOf( *card, *card->GetProperties().constFirst() ).toStdString(), row.m_expected ) << row;
    }
}

TEST( PimVCardDecodingTest, CallLogEntriesAreRead )
{
    static constexpr std::array s_kRows = {
        Row{ "X-IRMC-CALL-DATETIME;MISSED:20110803T164213", "3 2011-08-03T16:42:13" },
        Row{ "X-IRMC-CALL-DATETIME;TYPE=dialed:20110803T164213Z", "1 2011-08-03T16:42:13Z" },
        Row{ "X-IRMC-CALL-DATETIME;RECEIVED:2011-08-03T16:42:13", "2 2011-08-03T16:42:13" },
        Row{ "X-IRMC-CALL-DATETIME:yesterday", "0 " },
        Row{ "TEL;MISSED:20110803T164213", "none" },
    };
    const auto read = []( const vCard::PimVCardProperty& a_property )
    {
        const std::optional<PimVCardCall> call = CallOf( a_property );
        return call.has_value() ? QString::number( static_cast<int>( call->m_direction ) ) + QLatin1Char( ' ' ) +
                                      call->m_when.toString( Qt::ISODate )
                                : QStringLiteral( "none" );
    };
    ExpectRows( s_kRows, read );
}

TEST( PimVCardDecodingTest, AttachmentsAreBytesOrAddresses )
{
    static constexpr std::array s_kRows = {
        Row{ "PHOTO;ENCODING=b;TYPE=PNG:/9j/4AA=", "5 image/jpeg jpg " },
        Row{ "PHOTO;BASE64:R0lGODlh", "6 image/gif gif " },
        Row{ "PHOTO;ENCODING=BASE64:\r\n iVBORw\r\n 0KGgo=\r\n", "8 image/png png " },
        Row{ "PHOTO:data:image/png;base64,iVBORw0KGgo=", "8 image/png png " },
        Row{ "PHOTO:DATA:image/svg+xml,%3Csvg%3E", "5 image/svg+xml bin " },
        Row{ "PHOTO;MEDIATYPE=image/png:http://pics.example/1?a;b", "0 image/png bin http://pics.example/1?a;b" },
        Row{ "PHOTO;VALUE=URL;TYPE=GIF:file:///tmp/x", "0  bin file:///tmp/x" },
        Row{ "PHOTO:R0lGODlh", "6 image/gif gif " },
        Row{ "PHOTO:nonsense", "0  bin " },
        Row{ "PHOTO;ENCODING=b:", "0  bin " },
        Row{ "PHOTO;ENCODING=b;TYPE=../../etc:QUJD", "3  bin " },
        Row{ "SOUND;ENCODING=b:SUQzBA==", "4 audio/mpeg mp3 " },
    };
    const auto read = []( const vCard::PimVCardProperty& a_property )
    {
        const PimVCardAttachment attachment = AttachmentOf( a_property );
        return QStringLiteral( "%1 %2 %3 %4" )
            .arg( QString::number( attachment.m_bytes.size() ), attachment.m_mediaType, attachment.m_fileEnding,
                  attachment.m_address );
    };
    ExpectRows( s_kRows, read );
}

} // namespace

} // namespace PimManager::vCardImport
