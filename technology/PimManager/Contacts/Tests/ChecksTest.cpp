// The checks can fail: each row changes something that the reader returned, or what the check compares it with.

#include "Checks/CardChecks.h"
#include "Checks/ContactChecks.h"
#include "Checks/ConversionChecks.h"
#include "Checks/ConvertedText.h"
#include "Checks/DiagnosticChecks.h"
#include "Checks/ExtentChecks.h"
#include "Checks/FilterChecks.h"
#include "Checks/Invariants.h"
#include "Checks/LimitChecks.h"
#include "Checks/LineChecks.h"
#include "Checks/PhysicalLines.h"
#include "Checks/PieceChecks.h"
#include "Checks/RandomOptions.h"
#include "Checks/RereadChecks.h"
#include "Checks/Transcript.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

const QByteArray s_kText = "outside\r\n"
                           "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Ada\r\nNOTE:one\r\n two\r\nAGENT:\r\n"
                           "BEGIN:VCARD\r\nFN:Agent\r\nEND:VCARD\r\nEND:VCARD\r\n"
                           "BEGIN:VCARD\r\nVERSION:4.0\r\nN:M\xFCller\r\n***\r\nPHOTO;ENCODING=b:AAAA\r\nEND:VCARD\r\n"
                           "BEGIN:VCARD\r\nFN:Cleo\n\r\nTITLE;QUOTED-PRINTABLE:J=F6rg\r\nEND:VCARD\r\n";

Reading OtherReading()
{
    return ReadWhole( QByteArray( s_kText ).replace( "two", "too" ).replace( "FN:Cleo\n", "FN:Cleo\r" ) );
}

using Find = Broken ( * )( const Subject& a_subject );
using Change = void ( * )( Subject& a_subject );

struct Row
{
    const char* m_name;
    Find m_find;
    Change m_change;
    /// A part of what the check says.
    const char* m_broken;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

class ChecksTest : public testing::TestWithParam<Row>
{
};

TEST_P( ChecksTest, OnlyTheChangedReadingIsBroken )
{
    Subject subject( s_kText, PimContactOptions(), 1 );
    EXPECT_EQ( GetParam().m_find( subject ).toStdString(), "" );
    GetParam().m_change( subject );
    const std::string broken = GetParam().m_find( subject ).toStdString();
    EXPECT_NE( broken.find( GetParam().m_broken ), std::string::npos ) << broken;
}

const Row s_kRows[] = {
    { "ExtentMissing", BrokenExtents,
      []( Subject& a_subject ) { a_subject.m_reading.m_extents.erase( a_subject.m_reading.m_extents.begin() + 3 ); },
      "a gap" },
    { "ExtentsSwapped", BrokenExtents,
      []( Subject& a_subject ) { std::swap( a_subject.m_reading.m_extents[3], a_subject.m_reading.m_extents[4] ); },
      "a gap" },
    { "LastExtentMissing", BrokenExtents, []( Subject& a_subject ) { a_subject.m_reading.m_extents.pop_back(); },
      "bytes of all extents" },
    { "OtherBytes", BrokenExtents, []( Subject& a_subject ) { a_subject.m_text.replace( "Ada", "Bea" ); },
      "not the bytes of the file" },
    { "OtherSums", BrokenSums, []( Subject& a_subject ) { a_subject.m_reading.m_extents.pop_back(); }, "Report()" },
    { "CardMissing", BrokenCards,
      []( Subject& a_subject )
      {
          a_subject.m_reading.m_cards.pop_back();
          a_subject.m_reading.m_extentsBefore.pop_back();
      },
      "disagree about whether card 3" },
    { "CardTwice", BrokenCards,
      []( Subject& a_subject ) { a_subject.m_reading.m_cards[1] = a_subject.m_reading.m_cards[0]; }, "do not ascend" },
    { "OtherCard", BrokenCards,
      []( Subject& a_subject ) { a_subject.m_reading.m_cards[0] = OtherReading().m_cards[0]; },
      "differ from the extents" },
    { "CardBeforeItsExtents", BrokenCards, []( Subject& a_subject ) { --a_subject.m_reading.m_extentsBefore[1]; },
      "after its card" },
    { "CountsOfFewerCards", BrokenCounts, []( Subject& a_subject ) { a_subject.m_reading.m_cards.pop_back(); },
      "CardsWhole()" },
    { "OtherLineEnds", BrokenCounts,
      []( Subject& a_subject ) { a_subject.m_reading.m_report = OtherReading().m_report; }, "LineEnds( kind )" },
    { "OtherValue", BrokenLineTexts,
      []( Subject& a_subject ) { a_subject.m_reading.m_cards[0] = OtherReading().m_cards[0]; }, "value" },
    { "CardBeyondTheLimit", BrokenLimits, []( Subject& a_subject ) { a_subject.m_options.SetCardBytes( 60 ); },
      "bytes of a card" },
    { "LinesBeyondTheLimit", BrokenLimits, []( Subject& a_subject ) { a_subject.m_options.SetCardLines( 6 ); },
      "lines of a card" },
    { "LineBeyondTheLimit", BrokenLimits, []( Subject& a_subject ) { a_subject.m_options.SetLineBytes( 12 ); },
      "bytes of a line" },
    { "CardsBeyondTheLimit", BrokenLimits, []( Subject& a_subject ) { a_subject.m_options.SetCards( 2 ); }, "cards" },
    { "BookBeyondTheLimit", BrokenLimits, []( Subject& a_subject ) { a_subject.m_options.SetBookBytes( 100 ); },
      "bytes of all cards" },
    { "DiagnosticMissing", BrokenDiagnostics,
      []( Subject& a_subject )
      { a_subject.m_reading.m_diagnostics.erase( a_subject.m_reading.m_diagnostics.begin() ); },
      "instead of" },
    { "DiagnosticsSwapped", BrokenDiagnostics,
      []( Subject& a_subject )
      { std::swap( a_subject.m_reading.m_diagnostics.front(), a_subject.m_reading.m_diagnostics.back() ); },
      "order" },
    { "OtherLines", BrokenDiagnostics,
      []( Subject& a_subject )
      { a_subject.m_lines = PhysicalLinesOf( QByteArray( a_subject.m_text ).replace( "\r\n", "  " ) ); },
      "line" },
    { "TooManyKept", BrokenDiagnostics, []( Subject& a_subject ) { a_subject.m_options.SetDiagnostics( 1 ); },
      "kept diagnostics" },
    { "NameNotWanted", BrokenFilter, []( Subject& a_subject ) { a_subject.m_options.SetNames( { "FN" } ); },
      "not wanted" },
    { "MediaNotWanted", BrokenFilter, []( Subject& a_subject ) { a_subject.m_options.SetMediaWanted( false ); },
      "not wanted" },
    { "OtherReadingInPieces", BrokenPieces, []( Subject& a_subject ) { a_subject.m_reading = OtherReading(); },
      "differs when read by" },
    { "OtherCharsetWhenRereading", BrokenReread,
      []( Subject& a_subject ) { a_subject.m_options.SetDefaultCharset( "KOI8-R" ); }, "read alone" },
    { "OtherCharsetForContacts", BrokenContacts,
      []( Subject& a_subject ) { a_subject.m_options.SetDefaultCharset( "KOI8-R" ); },
      "the bytes of an edited card say something else" },
    { "NullCardForObjects", BrokenObjects,
      []( Subject& a_subject ) { a_subject.m_reading.m_cards[1] = PimContactCard(); }, "has no objects" },
};

INSTANTIATE_TEST_SUITE_P( Rows, ChecksTest, testing::ValuesIn( s_kRows ),
                          []( const testing::TestParamInfo<Row>& a_info )
                          { return std::string( a_info.param.m_name ); } );

TEST( JsonTextChecksTest, EveryFaultOfTheJsonIsFound )
{
    struct JsonRow
    {
        QByteArray m_json;
        const char* m_broken;
    };
    const std::vector<JsonRow> rows = {
        { "{\"properties\":[{},{}]}", "" },
        { " {\"properties\":[{},{}]}", "not an object" },
        { "{\"properties\":[{},{}]}\n", "not an object" },
        { "{\"properties\":[{},{\"a\":\"\x1F\"}]}", "control characters" },
        { "{\"properties\":[{},{\"a\":\"\x7F\"}]}", "control characters" },
        { "{\"properties\":[{},{\"a\":\"\xC3\"}]}", "not UTF-8" },
        { "{\"properties\":[{},{\"a\":\"}]}", "cannot be parsed" },
        { "{\"properties\":[{}]}", "properties of the JSON" },
        { "{}", "properties of the JSON" },
    };
    for ( const JsonRow& row : rows )
    {
        const std::string broken = BrokenJsonText( row.m_json, 2 ).toStdString();
        EXPECT_EQ( broken.empty(), *row.m_broken == 0 ) << row.m_json.toStdString() << broken;
        EXPECT_NE( broken.find( row.m_broken ), std::string::npos ) << row.m_json.toStdString() << broken;
    }
}

TEST( ConvertedTextTest, Utf16BecomesUtf8 )
{
    EXPECT_EQ( ConvertedTextOf( QByteArray( "\xFF\xFE"
                                            "a\0\xAC\x20",
                                            6 ) )
                   .toStdString(),
               "\xEF\xBB\xBF"
               "a\xE2\x82\xAC" );
    EXPECT_EQ( ConvertedTextOf( QByteArray( "\0a\0b\xD8\x3C\xDF\x3B", 8 ) ).toStdString(), "ab\xF0\x9F\x8C\xBB" );
    EXPECT_EQ( ConvertedTextOf( QByteArray( "\0a\0b\xD8\x3C\0c\0", 9 ) ).toStdString(), "ab\xEF\xBF\xBD"
                                                                                        "c\xEF\xBF\xBD" );
    EXPECT_EQ( ConvertedTextOf( "abc" ).toStdString(), "abc" );
}

TEST( PhysicalLinesTest, EachLineEndingEndsALine )
{
    const std::vector<PhysicalLine> lines = PhysicalLinesOf( "a\r\nb\nc\rd\r\r\n\r\re" );
    ASSERT_EQ( lines.size(), 7U );
    const std::array<qint64, s_kNoLineEnd> counts = LineEndsOf( lines );
    EXPECT_EQ( counts[static_cast<size_t>( PimContactLineEnd::CrLf )], 1 );
    EXPECT_EQ( counts[static_cast<size_t>( PimContactLineEnd::Lf )], 1 );
    EXPECT_EQ( counts[static_cast<size_t>( PimContactLineEnd::Cr )], 3 );
    EXPECT_EQ( counts[static_cast<size_t>( PimContactLineEnd::CrCrLf )], 1 );
    EXPECT_EQ( LineAt( lines, 0 ), 0U );
    EXPECT_EQ( LineAt( lines, 2 ), 0U );
    EXPECT_EQ( LineAt( lines, 3 ), 1U );
    EXPECT_EQ( LineAt( lines, 14 ), 6U );
}

TEST( RandomOptionsTest, OptionsDependOnTheNumberAlone )
{
    int defaults = 0;
    for ( unsigned seed = 0; seed < 400; ++seed )
    {
        const PimContactOptions options = RandomOptions( seed );
        EXPECT_EQ( options.CardBytes(), RandomOptions( seed ).CardBytes() ) << seed;
        EXPECT_EQ( options.Names(), RandomOptions( seed ).Names() ) << seed;
        defaults += options.CardBytes() == PimContactOptions().CardBytes() ? 1 : 0;
    }
    EXPECT_GT( defaults, 100 );
    EXPECT_LT( defaults, 350 );
}

TEST( TranscriptTest, WhatDoesNotPrintIsEscaped )
{
    EXPECT_EQ( Shown( "a\\b\r\n\t\x7F\xC3\xA9" ).toStdString(), "a\\\\b\\x0D\\x0A\\x09\\x7F\xC3\xA9" );
    EXPECT_EQ( Shown( "a\xE9" ).toStdString(), "a\\xE9" );
    EXPECT_EQ( Shown( QByteArray( 161, 'a' ) ).toStdString().substr( 160, 10 ), "... (161, " );
}

} // namespace

} // namespace PimManager::Contacts
