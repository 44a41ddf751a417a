#include <PimManager/PhoneBook/PimPhoneBook.h>
#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <gtest/gtest.h>

#include <array>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

namespace
{

QByteArray CardOf( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nN:A;;;;\r\nFN:A\r\n" + a_lines + "END:VCARD\r\n";
}

PimPhoneBook BookOf( const QByteArray& a_cards, const QString& a_region )
{
    PimPhoneBookOptions options;
    options.SetRegion( a_region );
    return PimPhoneBook( PimContactBook::FromBytes( a_cards ), options );
}

struct LineRow
{
    const char* m_line;
    const char* m_caller;
    PimPhoneBookGrade m_grade;
};

constexpr std::array s_kLines = {
    LineRow{ "TEL:+49 30 901820\r\n", "+4930901820", PimPhoneBookGrade::Exact },
    LineRow{ "TEL;TYPE=CELL:030 901820\r\n", "+4930901820", PimPhoneBookGrade::National },
    LineRow{ "TEL;VALUE=uri:tel:+49-30-901820\r\n", "+4930901820", PimPhoneBookGrade::Exact },
    LineRow{ "TEL;VALUE=uri:tel:30901820;phone-context=+49\r\n", "+4930901820", PimPhoneBookGrade::Exact },
    LineRow{ "TEL;VALUE=uri:tel:+49-30-901820;ext=12\r\n", "+4930901820", PimPhoneBookGrade::Ending },
    LineRow{ "TEL;VALUE=uri:tel:+49-30-901820;ext=12\r\n", "+4930901820,12", PimPhoneBookGrade::Exact },
    LineRow{ "TEL:+49 30 901820 ext. 12\r\n", "+4930901820;ext=12", PimPhoneBookGrade::Exact },
    LineRow{ "TEL:+49 30 901820 Durchwahl 12\r\n", "+4930901820;ext=13", PimPhoneBookGrade::None },
    LineRow{ "TEL:49 30 901820\r\n", "+4930901820", PimPhoneBookGrade::Ending },
    LineRow{ "TEL:*100#\r\n", "*100#", PimPhoneBookGrade::National },
    LineRow{ "TEL:110\r\n", "110", PimPhoneBookGrade::National },
    LineRow{ "TEL:\r\n", "", PimPhoneBookGrade::None },
    LineRow{ "TEL:unknown\r\n", "unknown", PimPhoneBookGrade::None },
};

} // namespace

TEST( WhoIsTest, LineIsFound )
{
    for ( const LineRow& row : s_kLines )
    {
        SCOPED_TRACE( std::string( row.m_line ) + row.m_caller );
        const PimPhoneBook phoneBook = BookOf( CardOf( {} ) + CardOf( row.m_line ), QStringLiteral( "de" ) );
        const QVector<PimPhoneBookCaller> callers = phoneBook.WhoIs( QString::fromLatin1( row.m_caller ) );
        ASSERT_EQ( callers.size(), row.m_grade == PimPhoneBookGrade::None ? 0 : 1 );
        for ( const PimPhoneBookCaller& caller : callers )
        {
            EXPECT_EQ( caller.m_contact, 1 );
            EXPECT_EQ( caller.m_line, phoneBook.At( 1 ).Phones().first().Id() );
            EXPECT_EQ( caller.m_grade, row.m_grade );
        }
    }
}

// Each number of a phone is found in the line that the phone was read from.
TEST( WhoIsTest, LineIsThatOfThePhone )
{
    const QByteArray lines = "NOTE:before\r\nTEL:+49 30 1000001\r\nitem1.TEL;ALTID=1:+49 30 1000002\r\n"
                             "AGENT:BEGIN:VCARD\r\nTEL:+49 30 1000009\r\nEND:VCARD\r\nX-A:1\r\n"
                             "tel;type=work:+49 30\r\n  1000003\r\n"
                             "TEL;ENCODING=QUOTED-PRINTABLE:=2B49 30 1000=\r\n004\r\n";
    const PimPhoneBook phoneBook = BookOf( CardOf( lines ), {} );
    const auto phones = phoneBook.At( 0 ).Phones();
    ASSERT_EQ( phones.size(), 4 );
    for ( const PimContactPhone& phone : phones )
    {
        const auto callers = phoneBook.WhoIs( phone.Number() );
        ASSERT_EQ( callers.size(), 1 ) << qPrintable( phone.Number() );
        EXPECT_EQ( callers.first().m_line, phone.Id() ) << qPrintable( phone.Number() );
        EXPECT_EQ( callers.first().m_grade, PimPhoneBookGrade::Exact ) << qPrintable( phone.Number() );
    }
}

// A URI is found by the number that the contact reads in it.
TEST( WhoIsTest, UriIsReadAsTheContactReadsIt )
{
    for ( const char* const uri : { "tel:+49-3N;0-5550;ext=13", "TEL:+49%2030%201234567", "tel:5550123;x=1;ext=2",
                                    "tel:1234567;phone-context=+49;ext=%31%32" } )
    {
        const PimPhoneBook phoneBook = BookOf( CardOf( "TEL: " + QByteArray( uri ) + "\r\nTEL:tel:1\r\n" ), {} );
        const PimContactPhone phone = phoneBook.At( 0 ).Phones().constFirst();
        const auto number = PimPhoneBookNumber::FromPhone( phone );
        const QString written = ( number.International().isEmpty() ? number.Digits() : number.International() ) +
                                QLatin1String( ";ext=" ) + number.Extension();
        const auto callers = phoneBook.WhoIs( written );
        ASSERT_EQ( callers.size(), 1 ) << uri << qPrintable( written );
        EXPECT_EQ( callers.first().m_line, phone.Id() ) << uri;
        EXPECT_GE( callers.first().m_grade, PimPhoneBookGrade::National ) << uri;
    }
}

TEST( WhoIsTest, RegionDecidesAboutNationalNumbers )
{
    const QByteArray cards = CardOf( "TEL:0171 2345678\r\n" );
    struct
    {
        const char* m_region;
        PimPhoneBookGrade m_grade;
    } const rows[] = { { "DE", PimPhoneBookGrade::National },
                       { "AT", PimPhoneBookGrade::Ending },
                       { "", PimPhoneBookGrade::Ending },
                       { "QQ", PimPhoneBookGrade::Ending } };
    for ( const auto& row : rows )
    {
        const auto callers =
            BookOf( cards, QString::fromLatin1( row.m_region ) ).WhoIs( QStringLiteral( "+491712345678" ) );
        ASSERT_EQ( callers.size(), 1 ) << row.m_region;
        EXPECT_EQ( callers.first().m_grade, row.m_grade ) << row.m_region;
    }
}

TEST( WhoIsTest, EndingDigitsDecideAboutEndings )
{
    const auto book = PimContactBook::FromBytes( CardOf( "TEL:+43 30 901820\r\n" ) );
    PimPhoneBookOptions options;
    options.SetEndingDigits( 8 );
    EXPECT_EQ( PimPhoneBook( book, options ).WhoIs( QStringLiteral( "+49 30 901820" ) ).size(), 1 );
    options.SetEndingDigits( 9 );
    EXPECT_EQ( PimPhoneBook( book, options ).WhoIs( QStringLiteral( "+49 30 901820" ) ).size(), 0 );
}

TEST( WhoIsTest, EmptyBookHasNoCaller )
{
    EXPECT_TRUE( PimPhoneBook().WhoIs( QStringLiteral( "1" ) ).isEmpty() );
    EXPECT_TRUE( BookOf( {}, {} ).WhoIs( QStringLiteral( "1" ) ).isEmpty() );
}

TEST( WhoIsTest, ManyNumbersOfOneContactAreOneCaller )
{
    QByteArray lines;
    for ( int number = 0; number < 20000; ++number )
        lines += "TEL:+49 30 901820\r\n";
    const PimPhoneBook phoneBook = BookOf( CardOf( lines ), {} );
    const auto callers = phoneBook.WhoIs( QStringLiteral( "+49 30 901820" ) );
    ASSERT_EQ( callers.size(), 1 );
    EXPECT_EQ( callers.first().m_line, phoneBook.At( 0 ).Phones().first().Id() );
}

TEST( WhoIsTest, OneNumberOfManyContactsHasAllCallers )
{
    QByteArray cards;
    const QByteArray card = CardOf( "TEL:+49 30 901820\r\n" );
    for ( int contact = 0; contact < 1000; ++contact )
        cards += card;
    const auto callers = BookOf( cards, {} ).WhoIs( QStringLiteral( "+49 30 901820" ) );
    ASSERT_EQ( callers.size(), 1000 );
    for ( int contact = 0; contact < 1000; ++contact )
        ASSERT_EQ( callers[contact].m_contact, contact );
}
