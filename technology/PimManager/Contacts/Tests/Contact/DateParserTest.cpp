#include "Contact/DateParser.h"

#include "Contact/DateText.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

void PrintTo( const DateFields& a_fields, std::ostream* a_stream )
{
    for ( const std::optional<int>& part : { a_fields.m_year, a_fields.m_month, a_fields.m_day, a_fields.m_hour,
                                             a_fields.m_minute, a_fields.m_second, a_fields.m_offset } )
        *a_stream << ( part ? std::to_string( *part ) : "open" ) << ' ';
}

namespace
{

constexpr std::nullopt_t s_kOpen = std::nullopt;

struct Row
{
    const char* m_text;
    DateFields m_fields;
};

DateFields OfDate( std::optional<int> a_year, std::optional<int> a_month = s_kOpen, std::optional<int> a_day = s_kOpen )
{
    return { a_year, a_month, a_day, s_kOpen, s_kOpen, s_kOpen, s_kOpen };
}

DateFields OfTime( std::optional<int> a_hour, std::optional<int> a_minute = s_kOpen,
                   std::optional<int> a_second = s_kOpen, std::optional<int> a_offset = s_kOpen )
{
    return { s_kOpen, s_kOpen, s_kOpen, a_hour, a_minute, a_second, a_offset };
}

// RFC 6350, sections 4.3.1, 4.3.3, 4.3.4, 4.3.5, 6.2.5, 6.2.6 and 6.7.4.
const std::array s_kExamplesOf4 = {
    Row{ "19850412", OfDate( 1985, 4, 12 ) },
    Row{ "1985-04", OfDate( 1985, 4 ) },
    Row{ "1985", OfDate( 1985 ) },
    Row{ "--0412", OfDate( s_kOpen, 4, 12 ) },
    Row{ "---12", OfDate( s_kOpen, s_kOpen, 12 ) },
    Row{ "19961022T140000", { 1996, 10, 22, 14, 0, 0, s_kOpen } },
    Row{ "--1022T1400", { s_kOpen, 10, 22, 14, 0, s_kOpen, s_kOpen } },
    Row{ "---22T14", { s_kOpen, s_kOpen, 22, 14, s_kOpen, s_kOpen, s_kOpen } },
    Row{ "T102200", OfTime( 10, 22, 0 ) },
    Row{ "T1022", OfTime( 10, 22 ) },
    Row{ "T10", OfTime( 10 ) },
    Row{ "T-2200", OfTime( s_kOpen, 22, 0 ) },
    Row{ "T--00", OfTime( s_kOpen, s_kOpen, 0 ) },
    Row{ "T102200Z", OfTime( 10, 22, 0, 0 ) },
    Row{ "T102200-0800", OfTime( 10, 22, 0, -480 ) },
    Row{ "19961022T140000Z", { 1996, 10, 22, 14, 0, 0, 0 } },
    Row{ "19961022T140000-05", { 1996, 10, 22, 14, 0, 0, -300 } },
    Row{ "19961022T140000-0500", { 1996, 10, 22, 14, 0, 0, -300 } },
    Row{ "19960415", OfDate( 1996, 4, 15 ) },
    Row{ "--0415", OfDate( s_kOpen, 4, 15 ) },
    Row{ "19531015T231000Z", { 1953, 10, 15, 23, 10, 0, 0 } },
    Row{ "19951031T222710Z", { 1995, 10, 31, 22, 27, 10, 0 } },
};

// RFC 6350, section 4.3.2.
const std::array s_kTimesOf4 = {
    Row{ "102200", OfTime( 10, 22, 0 ) },
    Row{ "1022", OfTime( 10, 22 ) },
    Row{ "10", OfTime( 10 ) },
    Row{ "-2200", OfTime( s_kOpen, 22, 0 ) },
    Row{ "--00", OfTime( s_kOpen, s_kOpen, 0 ) },
    Row{ "102200Z", OfTime( 10, 22, 0, 0 ) },
    Row{ "102200-0800", OfTime( 10, 22, 0, -480 ) },
};

// RFC 2426, sections 3.1.5 and 3.6.4.
const std::array s_kExamplesOf3 = {
    Row{ "1996-04-15", OfDate( 1996, 4, 15 ) },
    Row{ "1953-10-15T23:10:00Z", { 1953, 10, 15, 23, 10, 0, 0 } },
    Row{ "1987-09-27T08:30:00-06:00", { 1987, 9, 27, 8, 30, 0, -360 } },
    Row{ "1995-10-31T22:27:10Z", { 1995, 10, 31, 22, 27, 10, 0 } },
    Row{ "1997-11-15", OfDate( 1997, 11, 15 ) },
};

const std::array s_kForms = {
    Row{ "1985-04-12", OfDate( 1985, 4, 12 ) },
    Row{ "--04-12", OfDate( s_kOpen, 4, 12 ) },
    Row{ "--04", OfDate( s_kOpen, 4 ) },
    Row{ "1985-0412", OfDate( 1985, 4, 12 ) },
    Row{ "T10:22:00", OfTime( 10, 22, 0 ) },
    Row{ "T10:22", OfTime( 10, 22 ) },
    Row{ "T-22:00", OfTime( s_kOpen, 22, 0 ) },
    Row{ "T-22", OfTime( s_kOpen, 22 ) },
    Row{ "T-22Z", OfTime( s_kOpen, 22, s_kOpen, 0 ) },
    Row{ "T--00+01", OfTime( s_kOpen, s_kOpen, 0, 60 ) },
    Row{ "T10Z", OfTime( 10, s_kOpen, s_kOpen, 0 ) },
    Row{ "T10-08", OfTime( 10, s_kOpen, s_kOpen, -480 ) },
    Row{ "T10:22+05:30", OfTime( 10, 22, s_kOpen, 330 ) },
    Row{ "T10:22-0330", OfTime( 10, 22, s_kOpen, -210 ) },
    Row{ "T10:22+00:00", OfTime( 10, 22, s_kOpen, 0 ) },
    Row{ "T23:59:60Z", OfTime( 23, 59, 60, 0 ) },
    Row{ "1996-10-22T14:00:00+02:00", { 1996, 10, 22, 14, 0, 0, 120 } },
    Row{ "--10-22T14:00", { s_kOpen, 10, 22, 14, 0, s_kOpen, s_kOpen } },
    Row{ "1984-02-29", OfDate( 1984, 2, 29 ) },
    Row{ "--02-29", OfDate( s_kOpen, 2, 29 ) },
};

const std::array s_kFormsOfPrograms = {
    Row{ "1985-4-2", OfDate( 1985, 4, 2 ) },
    Row{ "1985-4-12", OfDate( 1985, 4, 12 ) },
    Row{ "1985-12-2", OfDate( 1985, 12, 2 ) },
    Row{ "1985-4", OfDate( 1985, 4 ) },
    Row{ "1985/04/12", OfDate( 1985, 4, 12 ) },
    Row{ "1985/4/2", OfDate( 1985, 4, 2 ) },
    Row{ "0000-04-12", OfDate( s_kOpen, 4, 12 ) },
    Row{ "00000412", OfDate( s_kOpen, 4, 12 ) },
    Row{ "0000-04", OfDate( s_kOpen, 4 ) },
    Row{ "0000-00-12", OfDate( s_kOpen, s_kOpen, 12 ) },
    Row{ "0000-02-29", OfDate( s_kOpen, 2, 29 ) },
    Row{ "1985-00-00", OfDate( 1985 ) },
    Row{ "19850000", OfDate( 1985 ) },
    Row{ "1985-04-00", OfDate( 1985, 4 ) },
    Row{ "0000-04-12T10:22:00Z", { s_kOpen, 4, 12, 10, 22, 0, 0 } },
    Row{ "19850412T000000Z", { 1985, 4, 12, 0, 0, 0, 0 } },
    Row{ "1985-04-12T00:00:00Z", { 1985, 4, 12, 0, 0, 0, 0 } },
    Row{ "19850412t000000z", { 1985, 4, 12, 0, 0, 0, 0 } },
    Row{ "1985-04-12 10:22:00", { 1985, 4, 12, 10, 22, 0, s_kOpen } },
    Row{ "1985-04-12 10:22", { 1985, 4, 12, 10, 22, s_kOpen, s_kOpen } },
    Row{ "1996-10-22T14:00:00.5+02:00", { 1996, 10, 22, 14, 0, 0, 120 } },
    Row{ "1996-10-22T14:00:00,123456789Z", { 1996, 10, 22, 14, 0, 0, 0 } },
    Row{ "T102200.000", OfTime( 10, 22, 0 ) },
    Row{ " \t1985-04-12\r\n", OfDate( 1985, 4, 12 ) },
    Row{ "\xC2\xA0"
         "1985\xE3\x80\x80",
         OfDate( 1985 ) },
};

constexpr std::array s_kNoDates = {
    "",
    " ",
    "circa 1800",
    "12.04.1985",
    "04/12/1985",
    "12-04-1985",
    "850412",
    "198504",
    "102200",
    "10",
    "-2200",
    "-0412",
    "10:22",
    "985-04-12",
    "01985-04-12",
    "1985.04.12",
    "1985/04-12",
    "1985-04/12",
    "1985/04",
    "1985-412",
    "1985-04-",
    "1985-",
    "1985-04-123",
    "1985-102",
    "1985-W15-5",
    "1985102",
    "1985-13-45",
    "2001-2005",
    "1985-04-31",
    "1985-02-29",
    "1900-02-29",
    "--02-30",
    "--13",
    "--00",
    "--4-12",
    "---32",
    "---00",
    "---",
    "--",
    "-",
    "0000",
    "0000-00-00",
    "00000000",
    "1985-00-12",
    "T",
    "T1",
    "T24",
    "T240000",
    "T1060",
    "T10:2",
    "T10:22:61",
    "T10:22:0",
    "T10::00",
    "T-",
    "T--",
    "T---00",
    "T10:22.5",
    "T10:22:00.",
    "T10:22:00.Z",
    "T10:22:00ZZ",
    "T10:22:00+2",
    "T10:22:00+24:00",
    "T10:22:00+01:60",
    "T10:22:00+01:00:00",
    "T10:22:00 PST",
    "TZ",
    "Z",
    "1985T10",
    "1985-04T10:22",
    "--04T10:22",
    "1985-00-00T00:00:00Z",
    "1985-04-12Z",
    "1985-04-12T",
    "1985-04-12T-22",
    "1985-04-12 10",
    "1985-04-12  10:22",
    "1985-04-12T10:22:00Z tail",
    "1985-04-12,1986-04-12",
    "\xD9\xA1\xD9\xA9\xD9\xA8\xD9\xA5",
};

constexpr std::array s_kNoTimes = {
    "", "1985-04-12", "19850412T102200", "1985", "---12", "T", "1", "-", "240000",
};

const std::array s_kCallTimes = {
    Row{ "20240311T084512Z", { 2024, 3, 11, 8, 45, 12, 0 } },
    Row{ "20240311T084512", { 2024, 3, 11, 8, 45, 12, s_kOpen } },
    Row{ "2024-03-11T08:45:12Z", { 2024, 3, 11, 8, 45, 12, 0 } },
    Row{ " 2024-0311t08:4512z\n", { 2024, 3, 11, 8, 45, 12, 0 } },
    Row{ "20240229T235959", { 2024, 2, 29, 23, 59, 59, s_kOpen } },
};

constexpr std::array s_kNoCallTimes = {
    "20230229T000000",    "20240311T240000",   "20240311T006000", "20241311T000000", "20240311", "20240311T0845",
    "20240311T084512+01", "20240311T084512ZZ", "2024031T1084512", "--0311T084512Z",  "",         "yesterday",
};

struct OffsetRow
{
    const char* m_text;
    std::optional<int> m_offset;
};

const std::array s_kOffsets = {
    OffsetRow{ "-0500", -300 },  // RFC 6350, section 4.7
    OffsetRow{ "-05:00", -300 }, // RFC 2426, section 3.4.1
    OffsetRow{ "+02", 120 },
    OffsetRow{ "+0530", 330 },
    OffsetRow{ "-00:30", -30 },
    OffsetRow{ "+23:59", 1439 },
    OffsetRow{ "+0000", 0 },
    OffsetRow{ "Z", 0 },
    OffsetRow{ "z", 0 },
    OffsetRow{ " -0500\n", -300 },
    OffsetRow{ "", s_kOpen },
    OffsetRow{ "0500", s_kOpen },
    OffsetRow{ "-5", s_kOpen },
    OffsetRow{ "-5:00", s_kOpen },
    OffsetRow{ "-05:", s_kOpen },
    OffsetRow{ "-05000", s_kOpen },
    OffsetRow{ "+24", s_kOpen },
    OffsetRow{ "+0160", s_kOpen },
    OffsetRow{ "-0500; EST", s_kOpen },
    OffsetRow{ "Europe/Lisbon", s_kOpen },
};

template <typename Rows>
void ExpectFields( const Rows& a_rows, DateHint a_hint = DateHint::Any )
{
    for ( const Row& row : a_rows )
        EXPECT_EQ( ReadDate( row.m_text, a_hint ), row.m_fields ) << row.m_text;
}

template <typename Rows>
void ExpectRoundTrip( const Rows& a_rows )
{
    for ( const Row& row : a_rows )
    {
        for ( const DateFormat format : { DateFormat::Basic, DateFormat::Extended } )
            EXPECT_EQ( ReadDate( DateText( row.m_fields, format ).Text() ), row.m_fields ) << row.m_text;
    }
}

} // namespace

TEST( DateParserTest, ExamplesOfVersion4AreRead )
{
    ExpectFields( s_kExamplesOf4 );
}

TEST( DateParserTest, TimesOfVersion4AreReadWhereALineSaysTime )
{
    ExpectFields( s_kTimesOf4, DateHint::Time );
}

TEST( DateParserTest, TimesAreReadWithTheirLetterWhereALineSaysTime )
{
    for ( const Row& row : s_kTimesOf4 )
        EXPECT_EQ( ReadDate( std::string( "T" ) + row.m_text, DateHint::Time ), row.m_fields ) << row.m_text;
}

TEST( DateParserTest, ExamplesOfVersion3AreRead )
{
    ExpectFields( s_kExamplesOf3 );
}

TEST( DateParserTest, BasicAndExtendedFormsAreRead )
{
    ExpectFields( s_kForms );
}

TEST( DateParserTest, FormsOfProgramsAreRead )
{
    ExpectFields( s_kFormsOfPrograms );
}

TEST( DateParserTest, WrittenFieldsAreReadBack )
{
    ExpectRoundTrip( s_kExamplesOf4 );
    ExpectRoundTrip( s_kTimesOf4 );
    ExpectRoundTrip( s_kExamplesOf3 );
    ExpectRoundTrip( s_kForms );
    ExpectRoundTrip( s_kFormsOfPrograms );
}

TEST( DateParserTest, AmbiguousAndBrokenTextsAreNoDates )
{
    for ( const char* const text : s_kNoDates )
        EXPECT_EQ( ReadDate( text ), std::nullopt ) << text;
}

TEST( DateParserTest, DatesAreNoTimes )
{
    for ( const char* const text : s_kNoTimes )
        EXPECT_EQ( ReadDate( text, DateHint::Time ), std::nullopt ) << text;
}

TEST( DateParserTest, NoDateIsReadWhereALineSaysText )
{
    for ( const Row& row : s_kExamplesOf4 )
        EXPECT_EQ( ReadDate( row.m_text, DateHint::Text ), std::nullopt ) << row.m_text;
}

TEST( DateParserTest, OmittedYearIsOpen )
{
    EXPECT_EQ( ReadDate( "1604-04-12", DateHint::Any, 1604 ), OfDate( s_kOpen, 4, 12 ) );
    EXPECT_EQ( ReadDate( "16040229", DateHint::Any, 1604 ), OfDate( s_kOpen, 2, 29 ) );
}

TEST( DateParserTest, AnyOtherYearIsKnown )
{
    EXPECT_EQ( ReadDate( "1604-04-12" ), OfDate( 1604, 4, 12 ) );
    EXPECT_EQ( ReadDate( "1985-04-12", DateHint::Any, 1604 ), OfDate( 1985, 4, 12 ) );
}

TEST( DateParserTest, OmittedYearAloneIsNoDate )
{
    EXPECT_EQ( ReadDate( "1604", DateHint::Any, 1604 ), std::nullopt );
}

TEST( DateParserTest, LongTextsAreNoDates )
{
    for ( const char byte : { '0', '1', '-', ':', '/', 'T', 'Z', '+', '.' } )
    {
        const std::string bytes( 600'000, byte );
        for ( const std::string& start : { std::string(), std::string( "1985-04-12" ), std::string( "T10:22:00." ) } )
        {
            EXPECT_EQ( ReadDate( start + bytes ), std::nullopt ) << start << byte;
            EXPECT_EQ( ReadDate( start + bytes, DateHint::Time ), std::nullopt ) << start << byte;
            EXPECT_EQ( ReadOffset( start + bytes ), std::nullopt ) << start << byte;
        }
    }
}

TEST( DateParserTest, AnyAmountOfOuterSpaceIsIgnored )
{
    const std::string space( 600'000, ' ' );
    EXPECT_EQ( ReadDate( space + "1985-04-12" + space ), OfDate( 1985, 4, 12 ) );
    EXPECT_EQ( ReadDate( space ), std::nullopt );
}

TEST( DateParserTest, CallTimesAreRead )
{
    for ( const Row& row : s_kCallTimes )
        EXPECT_EQ( ReadCallTime( row.m_text ), row.m_fields ) << row.m_text;
}

TEST( DateParserTest, OtherTimesAreNoCallTimes )
{
    for ( const char* const text : s_kNoCallTimes )
        EXPECT_EQ( ReadCallTime( text ), std::nullopt ) << text;
}

TEST( DateParserTest, OffsetsAreRead )
{
    for ( const OffsetRow& row : s_kOffsets )
        EXPECT_EQ( ReadOffset( row.m_text ), row.m_offset ) << row.m_text;
}

} // namespace PimManager::Contacts
