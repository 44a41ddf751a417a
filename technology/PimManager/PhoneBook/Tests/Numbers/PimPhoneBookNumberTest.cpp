#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace PimManager::PhoneBook
{

namespace
{

struct NotationRow
{
    const char16_t* m_text;
    const char* m_region;
    const char* m_international;
    const char* m_digits;
    const char* m_extension;
};

constexpr std::array s_kNotations = {
    // Punctuation.
    NotationRow{ u"+49 30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49.30.90-18/20", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49\u00A0(30)\u2011901\u202F820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"\u202A+49 30 901820\u202C", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"(+49) 30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+ 49 30 901820", "", "+4930901820", "4930901820", "" },
    // A zero for callers within the country.
    NotationRow{ u"+49 (0)30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 ( 0 ) 30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"0049 (0) 30 901820", "DE", "+4930901820", "004930901820", "" },
    NotationRow{ u"011 49 (0)30 901820", "US", "+4930901820", "0114930901820", "" },
    NotationRow{ u"49 (0)30 901820", "", "", "4930901820", "" },
    NotationRow{ u"+49 030 901820", "", "+4930901820", "49030901820", "" },
    NotationRow{ u"+49 (030) 901820", "", "+4930901820", "49030901820", "" },
    NotationRow{ u"+39 (0)6 69812345", "", "+390669812345", "390669812345", "" },
    NotationRow{ u"(0)30 901820", "DE", "+4930901820", "030901820", "" },
    // Prefixes of regions.
    NotationRow{ u"030 901820", "DE", "+4930901820", "030901820", "" },
    NotationRow{ u"030 901820", "de", "+4930901820", "030901820", "" },
    NotationRow{ u"030 901820", "", "", "030901820", "" },
    NotationRow{ u"030 901820", "XX", "", "030901820", "" },
    NotationRow{ u"030 901820", "DEU", "", "030901820", "" },
    NotationRow{ u"030 901820", "\xC3\x84\xC3\x9F", "", "030901820", "" },
    NotationRow{ u"0049 30 901820", "DE", "+4930901820", "004930901820", "" },
    NotationRow{ u"0049 30 901820", "", "", "004930901820", "" },
    NotationRow{ u"011 49 30 901820", "US", "+4930901820", "0114930901820", "" },
    NotationRow{ u"011 49 30 901820", "DE", "+49114930901820", "0114930901820", "" },
    NotationRow{ u"8~10 49 30 901820", "RU", "+4930901820", "8104930901820", "" },
    NotationRow{ u"0011 49 30 901820", "AU", "+4930901820", "00114930901820", "" },
    NotationRow{ u"010 49 30 901820", "JP", "+4930901820", "0104930901820", "" },
    NotationRow{ u"901820", "DE", "", "901820", "" },
    NotationRow{ u"110", "DE", "", "110", "" },
    NotationRow{ u"(201) 555-0123", "US", "+12015550123", "2015550123", "" },
    NotationRow{ u"1 201 555 0123", "US", "+12015550123", "12015550123", "" },
    NotationRow{ u"555-0123", "US", "", "5550123", "" },
    NotationRow{ u"460-1234", "AG", "+12684601234", "4601234", "" },
    NotationRow{ u"250123", "JE", "+441534250123", "250123", "" },
    NotationRow{ u"06 69812345", "IT", "+390669812345", "0669812345", "" },
    NotationRow{ u"06 69812345", "VA", "+390669812345", "0669812345", "" },
    NotationRow{ u"39 06 6981234", "IT", "", "39066981234", "" },
    NotationRow{ u"393 1234567", "IT", "+393931234567", "3931234567", "" },
    NotationRow{ u"3331234567", "IT", "+393331234567", "3331234567", "" },
    NotationRow{ u"8 (495) 123-45-67", "RU", "+74951234567", "84951234567", "" },
    NotationRow{ u"8 (727) 123-45-67", "KZ", "+77271234567", "87271234567", "" },
    NotationRow{ u"800 123-45-67", "RU", "+78001234567", "8001234567", "" },
    NotationRow{ u"+7 8 495 123 45 67", "", "+74951234567", "784951234567", "" },
    NotationRow{ u"06 1 234 5678", "HU", "+3612345678", "0612345678", "" },
    NotationRow{ u"011 15-2345-6789", "AR", "+5491123456789", "0111523456789", "" },
    NotationRow{ u"0351 15-234-5678", "AR", "+5493512345678", "0351152345678", "" },
    NotationRow{ u"02966 15-42-1234", "AR", "+5492966421234", "0296615421234", "" },
    NotationRow{ u"011 2345-6789", "AR", "+541123456789", "01123456789", "" },
    NotationRow{ u"+54 11 15 2345 6789", "", "+5491123456789", "54111523456789", "" },
    NotationRow{ u"+54 3512 3456 7890", "", "+54351234567890", "54351234567890", "" },
    NotationRow{ u"044 55 1234 5678", "MX", "+525512345678", "0445512345678", "" },
    NotationRow{ u"045 55 1234 5678", "MX", "+525512345678", "0455512345678", "" },
    NotationRow{ u"01 55 1234 5678", "MX", "+525512345678", "015512345678", "" },
    NotationRow{ u"+52 1 55 1234 5678", "", "+525512345678", "5215512345678", "" },
    NotationRow{ u"0 15 11 2345-6789", "BR", "+551123456789", "0151123456789", "" },
    NotationRow{ u"0 41 11 96123-4567", "BR", "+5511961234567", "04111961234567", "" },
    NotationRow{ u"011 2345-6789", "BR", "+551123456789", "01123456789", "" },
    NotationRow{ u"8 017 234-56-78", "BY", "+375172345678", "80172345678", "" },
    NotationRow{ u"8 5 234 5678", "LT", "+37052345678", "852345678", "" },
    NotationRow{ u"0 5 234 5678", "LT", "+37052345678", "052345678", "" },
    NotationRow{ u"886377", "SM", "+3780549886377", "886377", "" },
    NotationRow{ u"+378 886377", "", "+3780549886377", "378886377", "" },
    NotationRow{ u"+378 0549 886377", "", "+3780549886377", "3780549886377", "" },
    // URIs.
    NotationRow{ u"tel:+49-30-901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"TEL:+49-30-901820;ext=12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"tel:%2B49%2030%20901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"tel:30901820;phone-context=+49", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"tel:30901820;ext=5;phone-context=+49;isub=7", "", "+4930901820", "4930901820", "5" },
    NotationRow{ u"tel:+4930901820;ext=1;ext=2;EXT=3", "", "+4930901820", "4930901820", "1" },
    NotationRow{ u"tel:7042;phone-context=example.com", "DE", "", "7042", "" },
    // Extensions and pauses.
    NotationRow{ u"+49 30 901820 ext. 12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 x12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 #12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 (Ext: 12)", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 Durchwahl 12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 доб. 12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 ДОБ. 12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+81 3 1234 5678 内線12", "", "+81312345678", "81312345678", "12" },
    NotationRow{ u"+49 30 901820p12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820w12p3", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820,,12#", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820;12", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820#", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 x", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820,", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 x12 / 13", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820 ext. 1-2.3 4", "", "+4930901820", "4930901820", "1234" },
    NotationRow{ u"+49 30 901820 x123456789012345678901", "", "+4930901820", "4930901820", "12345678901234567890" },
    NotationRow{ u"+49 30 901820 x x", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+683 7012 #12", "", "+6837012", "6837012", "12" },
    NotationRow{ u"7012 #12", "NU", "+6837012", "7012", "12" },
    NotationRow{ u"7012,12", "NU", "+6837012", "7012", "12" },
    NotationRow{ u"110,12", "DE", "", "11012", "" },
    NotationRow{ u"0049 mobil 171 2345678", "DE", "+491712345678", "00491712345678", "" },
    NotationRow{ u"110 x12", "DE", "", "110", "12" },
    // Codes.
    NotationRow{ u"*31#+49 30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"#31#030 901820", "DE", "+4930901820", "030901820", "" },
    NotationRow{ u"*67 (201) 555-0123", "US", "+12015550123", "2015550123", "" },
    NotationRow{ u"*100#", "DE", "", "*100#", "" },
    NotationRow{ u"*#06#", "DE", "", "*#06#", "" },
    NotationRow{ u"**61*+4930901820*11*20#", "DE", "", "**61*4930901820*11*20#", "" },
    NotationRow{ u"**21*030901820#", "DE", "", "**21*030901820#", "" },
    NotationRow{ u"*21*030#030901820", "DE", "", "*21*030#030901820", "" },
    NotationRow{ u"*67 12345", "US", "", "*6712345", "" },
    NotationRow{ u"*31#1234", "DE", "", "*31#1234", "" },
    NotationRow{ u"12#34", "DE", "", "12#34", "" },
    NotationRow{ u"12*34", "DE", "", "12*34", "" },
    NotationRow{ u"+12*34", "DE", "", "12*34", "" },
    NotationRow{ u"*3", "", "", "*3", "" },
    NotationRow{ u"#", "", "", "#", "" },
    // Other scripts.
    NotationRow{ u"\u0660\u0663\u0660 \u0669\u0660\u0661\u0668\u0662\u0660", "DE", "+4930901820", "030901820", "" },
    NotationRow{ u"\u06F0\u06F3\u06F0\u06F9\u06F0\u06F1\u06F8\u06F2\u06F0", "DE", "+4930901820", "030901820", "" },
    NotationRow{ u"\u0966\u0969\u0966\u096F\u0966\u0967\u096E\u0968\u0966", "DE", "+4930901820", "030901820", "" },
    NotationRow{ u"\uFF0B\uFF14\uFF19\uFF083\uFF10\uFF099\uFF1018\uFF12\uFF10", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 \U0001D7D1\U0001D7CE 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 ｅｘｔ１２", "", "+4930901820", "4930901820", "12" },
    NotationRow{ u"+49 30 901820\u00B2", "", "+4930901820", "4930901820", "" },
    // Words.
    NotationRow{ u"Tel.: +49 30 901820", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 (office)", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 room 5", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"+49 30 901820 / +49 30 5", "", "+4930901820", "4930901820", "" },
    NotationRow{ u"1-800-FLOWERS", "US", "+18003569377", "18003569377", "" },
    NotationRow{ u"1-800-GO-FEDEX", "US", "+18004633339", "18004633339", "" },
    NotationRow{ u"+1 888 flowers", "", "+18883569377", "18883569377", "" },
    NotationRow{ u"1-800-MICROSOFT", "US", "+18006427676", "18006427676", "" },
    NotationRow{ u"1-800-234-5678 (office)", "US", "+18002345678", "18002345678", "" },
    NotationRow{ u"0800 FLOWERS", "GB", "+448003569377", "08003569377", "" },
    NotationRow{ u"0800 Büro", "GB", "", "0800", "" },
    // Calling codes that are not assigned.
    NotationRow{ u"+999 30 901820", "DE", "", "99930901820", "" },
    NotationRow{ u"+030 901820", "DE", "", "030901820", "" },
};

constexpr std::array s_kNoNumbers = { u"",        u" ",      u"+",      u"phone", u"()", u"+ext",
                                      u";ext=12", u"\xD835", u"\x0301", u"tel:",  u"%",  u"\u00B2" };

struct GradeRow
{
    const char* m_number;
    const char* m_other;
    const char* m_region;
    PimPhoneBookGrade m_grade;
};

constexpr std::array s_kGrades = {
    GradeRow{ "+49 30 901820", "tel:+49-30-901820", "", PimPhoneBookGrade::Exact },
    GradeRow{ "+49 30 901820", "0049 30 901820", "DE", PimPhoneBookGrade::Exact },
    GradeRow{ "+49 30 901820", "0049 30 901820", "", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820", "030 901820", "DE", PimPhoneBookGrade::National },
    GradeRow{ "+49 30 901820", "011 49 30 901820", "DE", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820", "030 901820", "AT", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820", "030 901820", "", PimPhoneBookGrade::Ending },
    GradeRow{ "030 901820", "030901820", "", PimPhoneBookGrade::National },
    GradeRow{ "030 901820", "030901820", "DE", PimPhoneBookGrade::National },
    GradeRow{ "030 901820", "030901821", "DE", PimPhoneBookGrade::None },
    GradeRow{ "901820", "901820", "DE", PimPhoneBookGrade::National },
    GradeRow{ "901820", "030 901820", "DE", PimPhoneBookGrade::None },
    GradeRow{ "30 901820", "030 901820", "DE", PimPhoneBookGrade::Ending },
    GradeRow{ "12 345 678", "+33 12 345 678", "FR", PimPhoneBookGrade::Ending },
    GradeRow{ "1 23 45 67 89", "01 23 45 67 89", "FR", PimPhoneBookGrade::National },
    GradeRow{ "49 30 901820", "+49 30 901820", "DE", PimPhoneBookGrade::Ending },
    GradeRow{ "49 30 901820", "+49 30 901820", "", PimPhoneBookGrade::Ending },
    GradeRow{ "98 9601", "+98 9601", "IR", PimPhoneBookGrade::Ending },
    GradeRow{ "9601", "+98 9601", "IR", PimPhoneBookGrade::Ending },
    GradeRow{ "39 06 6981234", "+39 06 6981234", "IT", PimPhoneBookGrade::Ending },
    GradeRow{ "+43 30 901820", "+49 30 901820", "DE", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820", "+49 40 901820", "DE", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820", "+49 31 901820", "DE", PimPhoneBookGrade::None },
    GradeRow{ "555 0123", "+1 201 555 0123", "US", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820 ext. 12", "+49 30 901820 x12", "", PimPhoneBookGrade::Exact },
    GradeRow{ "+49 30 901820 ext. 12", "+49 30 901820", "", PimPhoneBookGrade::Ending },
    GradeRow{ "+49 30 901820 ext. 12", "+49 30 901820 ext. 13", "", PimPhoneBookGrade::None },
    GradeRow{ "+49 30 901820p12", "+49 30 901820;ext=12", "", PimPhoneBookGrade::Exact },
    GradeRow{ "*100#", "*100#", "DE", PimPhoneBookGrade::National },
    GradeRow{ "*100#", "100", "DE", PimPhoneBookGrade::None },
    GradeRow{ "+999 1234567", "+999 1234567", "", PimPhoneBookGrade::Exact },
    GradeRow{ "+999 1234567", "9991234567", "", PimPhoneBookGrade::Ending },
    GradeRow{ "", "", "DE", PimPhoneBookGrade::None },
    GradeRow{ "", "030 901820", "DE", PimPhoneBookGrade::None },
    GradeRow{ "12345678901234567890123456789012", "12345678901234567890123456789012", "", PimPhoneBookGrade::National },
    GradeRow{ "912345678901234567890123456789012", "812345678901234567890123456789012", "", PimPhoneBookGrade::Ending },
    GradeRow{ "912345678901234567890123456789012", "912345678901234567890123456789012", "", PimPhoneBookGrade::Ending },
};

PimPhoneBookNumber NumberOf( const char* a_text, const char* a_region )
{
    return PimPhoneBookNumber::FromText( QString::fromUtf8( a_text ), QString::fromUtf8( a_region ) );
}

QString RandomText( std::mt19937& a_random )
{
    constexpr std::array<char16_t, 32> s_kCharacters = {
        u'0', u'1', u'4', u'9',   u'+',   u'*',   u'#',   u'(',   u')', u' ', u';', u',', u'=', u'%', u'x',   u'p',
        u'e', u'2', u'B', 0xD835, 0xDFCE, 0x0301, 0x0660, 0xFF0B, u't', 0,    u'-', u'/', u'8', u'7', 0xFF58, u'3' };
    QString text;
    for ( size_t size = a_random() % 60; size > 0; --size )
        text += QChar( s_kCharacters[a_random() % s_kCharacters.size()] );
    return text;
}

bool AreDigits( const QString& a_text )
{
    return std::all_of( a_text.begin(), a_text.end(),
                        []( QChar a_character ) { return a_character >= u'0' && a_character <= u'9'; } );
}

} // namespace

TEST( PimPhoneBookNumberTest, NotationIsRead )
{
    for ( const NotationRow& row : s_kNotations )
    {
        const QString text = QString::fromUtf16( row.m_text );
        SCOPED_TRACE( qPrintable( text + QLatin1Char( ' ' ) + QString::fromUtf8( row.m_region ) ) );
        const auto number = PimPhoneBookNumber::FromText( text, QString::fromUtf8( row.m_region ) );
        EXPECT_FALSE( number.IsNull() );
        EXPECT_EQ( number.International().toStdString(), row.m_international );
        EXPECT_EQ( number.Digits().toStdString(), row.m_digits );
        EXPECT_EQ( number.Extension().toStdString(), row.m_extension );
    }
}

TEST( PimPhoneBookNumberTest, TextWithoutDigitsIsNull )
{
    for ( const char16_t* const text : s_kNoNumbers )
    {
        const QString string = QString::fromUtf16( text );
        const auto number = PimPhoneBookNumber::FromText( string, QStringLiteral( "DE" ) );
        EXPECT_TRUE( number.IsNull() ) << qPrintable( string );
        EXPECT_EQ( number.Digits(), QString() ) << qPrintable( string );
        EXPECT_EQ( number.International(), QString() ) << qPrintable( string );
        EXPECT_EQ( number.Compare( number ), PimPhoneBookGrade::None ) << qPrintable( string );
    }
}

TEST( PimPhoneBookNumberTest, GradeIsTheSameInBothDirections )
{
    for ( const GradeRow& row : s_kGrades )
    {
        SCOPED_TRACE( std::string( row.m_number ) + " and " + row.m_other + " in " + row.m_region );
        const PimPhoneBookNumber number = NumberOf( row.m_number, row.m_region );
        const PimPhoneBookNumber other = NumberOf( row.m_other, row.m_region );
        EXPECT_EQ( number.Compare( other ), row.m_grade );
        EXPECT_EQ( other.Compare( number ), row.m_grade );
        EXPECT_TRUE( row.m_grade == PimPhoneBookGrade::None || number.EndingHash() == other.EndingHash() );
    }
}

TEST( PimPhoneBookNumberTest, RandomTextIsRead )
{
    std::mt19937 random( 1 );
    const QString region = QStringLiteral( "DE" );
    PimPhoneBookNumber other;
    for ( int round = 0; round < 20000; ++round )
    {
        const QString text = RandomText( random );
        SCOPED_TRACE( qPrintable( text ) );
        const auto number = PimPhoneBookNumber::FromText( text, region );
        EXPECT_LE( number.Digits().size(), 32 );
        EXPECT_EQ( number.IsNull(), number.Digits().isEmpty() );
        EXPECT_TRUE( AreDigits( number.Extension() ) );
        EXPECT_TRUE( AreDigits( number.International().mid( 1 ) ) );
        EXPECT_TRUE( number.International().isEmpty() || number.International().startsWith( QLatin1Char( '+' ) ) );
        EXPECT_EQ( number.Compare( other ), other.Compare( number ) );
        EXPECT_EQ( number.Compare( number ) == PimPhoneBookGrade::None, number.IsNull() );
        other = number;
    }
}

TEST( PimPhoneBookNumberTest, LongNumberHasItsLastDigits )
{
    QString text;
    for ( int size = 1; size <= 200; ++size )
    {
        text += QChar( u'0' + size * size % 10 );
        EXPECT_EQ( PimPhoneBookNumber::FromText( text ).Digits(), text.right( 32 ) ) << size;
        const QString wide = QString( text ).replace( QLatin1Char( '4' ), QChar( 0xFF14 ) );
        EXPECT_EQ( PimPhoneBookNumber::FromText( wide ).Digits(), text.right( 32 ) ) << size;
    }
}

TEST( PimPhoneBookNumberTest, LongTextIsReadInLinearTime )
{
    constexpr int s_kSize = 200000;
    for ( const char* const piece : { "1", " ", "*", "#", "+", "(", "(0)", "a", "1 p ", "x ", ";", ";a=", ";ext=,", ",",
                                      "%31", "12#", ";phone-context=+", "\xE2\x82\xAC", "1x1p,;" } )
    {
        const QString text = QString::fromUtf8( piece ).repeated( s_kSize / static_cast<int>( qstrlen( piece ) ) );
        const auto number = PimPhoneBookNumber::FromText( text, QStringLiteral( "DE" ) );
        EXPECT_LE( number.Digits().size(), 32 ) << piece;
        EXPECT_NE( number.Compare( PimPhoneBookNumber::FromText( QStringLiteral( "+49 30 1" ) ) ),
                   PimPhoneBookGrade::Exact )
            << piece;
    }
}

TEST( PimPhoneBookNumberTest, DefaultNumberIsNull )
{
    const PimPhoneBookNumber number;
    EXPECT_TRUE( number.IsNull() );
    EXPECT_EQ( number, PimPhoneBookNumber::FromText( QString() ) );
    EXPECT_EQ( number.International(), QString() );
    EXPECT_EQ( number.National(), QString() );
    EXPECT_EQ( number.Extension(), QString() );
}

TEST( PimPhoneBookNumberTest, NationalDigitsHaveNoPrefix )
{
    EXPECT_EQ( NumberOf( "+49 (0)30 901820", "" ).National(), QStringLiteral( "30901820" ) );
    EXPECT_EQ( NumberOf( "030 901820", "DE" ).National(), QStringLiteral( "30901820" ) );
    EXPECT_EQ( NumberOf( "030 901820", "" ).National(), QStringLiteral( "030901820" ) );
    EXPECT_EQ( NumberOf( "901820", "DE" ).National(), QStringLiteral( "901820" ) );
    EXPECT_EQ( NumberOf( "+39 06 69812345", "" ).National(), QStringLiteral( "0669812345" ) );
    EXPECT_EQ( NumberOf( "+1 201 555 0123", "" ).National(), QStringLiteral( "2015550123" ) );
}

TEST( PimPhoneBookNumberTest, EndingDigitsDecideAboutEndings )
{
    const PimPhoneBookNumber number = NumberOf( "+49 30 1234567", "" );
    const PimPhoneBookNumber other = NumberOf( "+43 30 1234567", "" );
    EXPECT_EQ( number.Compare( other, 9 ), PimPhoneBookGrade::Ending );
    EXPECT_EQ( number.EndingHash( 9 ), other.EndingHash( 9 ) );
    EXPECT_EQ( number.Compare( other, 10 ), PimPhoneBookGrade::None );
    EXPECT_NE( number.EndingHash( 10 ), other.EndingHash( 10 ) );
    EXPECT_EQ( NumberOf( "+49 567", "" ).Compare( NumberOf( "+43 567", "" ), -1 ), PimPhoneBookGrade::Ending );
    EXPECT_EQ( NumberOf( "+49 567", "" ).Compare( NumberOf( "+43 467", "" ), -1 ), PimPhoneBookGrade::None );
}

TEST( PimPhoneBookNumberTest, EqualNumbersAreEqual )
{
    const PimPhoneBookNumber number = NumberOf( "+49 30 901820", "" );
    EXPECT_EQ( number, NumberOf( "+49-30-901820", "" ) );
    EXPECT_NE( number, NumberOf( "+49 30 901821", "" ) );
    EXPECT_NE( number, NumberOf( "+49 30 901820 x1", "" ) );
    EXPECT_NE( number, NumberOf( "030 901820", "DE" ) );
    EXPECT_NE( number, NumberOf( "4930901820", "" ) );
}

TEST( PimPhoneBookNumberTest, PhoneHasItsExtensionAndContext )
{
    const auto contact =
        Contacts::PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:A\r\n"
                                             "TEL;VALUE=uri:tel:30901820;ext=12;phone-context=+49\r\nEND:VCARD\r\n" )
            .At( 0 );
    const auto number = PimPhoneBookNumber::FromPhone( contact.Phones().first() );
    EXPECT_EQ( number.International(), QStringLiteral( "+4930901820" ) );
    EXPECT_EQ( number.Extension(), QStringLiteral( "12" ) );
    EXPECT_EQ( PimPhoneBookNumber::FromPhone( Contacts::PimContactPhone( QStringLiteral( "030 901820" ) ),
                                              QStringLiteral( "DE" ) )
                   .International(),
               QStringLiteral( "+4930901820" ) );
    EXPECT_TRUE( PimPhoneBookNumber::FromPhone( Contacts::PimContactPhone() ).IsNull() );
}

} // namespace PimManager::PhoneBook
