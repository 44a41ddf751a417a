#include "Values/QuotedPrintable.h"

#include "Text/Bytes.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

struct QuotedPrintableRow
{
    const char* m_name;
    std::string_view m_text;
    std::string_view m_decoded;
    // An "e" for each decoded byte that was encoded, a "." for any other.
    std::string_view m_encoded;
    qint64 m_faults;
    quint32 m_firstFault;
};

std::ostream& operator<<( std::ostream& a_stream, const QuotedPrintableRow& a_row )
{
    return a_stream << a_row.m_name;
}

class QuotedPrintableTest : public ::testing::TestWithParam<QuotedPrintableRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Values, QuotedPrintableTest,
    ::testing::Values( QuotedPrintableRow{ "Empty", "", "", "", 0, 0 },
                       QuotedPrintableRow{ "NothingEncoded", "a;b", "a;b", "...", 0, 0 },
                       QuotedPrintableRow{ "EverythingEncoded", "=41=42", "AB", "ee", 0, 0 },
                       QuotedPrintableRow{ "SmallDigits", "=c3=A9=3b", "\xC3\xA9;", "eee", 0, 0 },
                       QuotedPrintableRow{ "Mixed", "a=3Db=20c", "a=b c", ".e.e.", 0, 0 },
                       QuotedPrintableRow{ "EncodedEqualsIsNotDecodedAgain", "=3D41", "=41", "e..", 0, 0 },
                       QuotedPrintableRow{ "LineBreakIsLineFeed", "a=0D=0Ab", "a\nb", ".e.", 0, 0 },
                       QuotedPrintableRow{ "TwoLineBreaks", "=0D=0A=0D=0A", "\n\n", "ee", 0, 0 },
                       QuotedPrintableRow{ "LineFeedAlone", "a=0Ab", "a\nb", ".e.", 0, 0 },
                       QuotedPrintableRow{ "CarriageReturnAlone", "a=0Db", "a\rb", ".e.", 0, 0 },
                       QuotedPrintableRow{ "LineBreakInTwoRuns", "=0Da=0A", "\ra\n", "e.e", 0, 0 },
                       QuotedPrintableRow{ "Nul", "=00", "\0"sv, "e", 0, 0 },
                       QuotedPrintableRow{ "NoDigits", "a=zz=41", "a=zzA", "....e", 1, 1 },
                       QuotedPrintableRow{ "OneDigit", "=4z", "=4z", "...", 1, 0 },
                       QuotedPrintableRow{ "SecondDigitOnly", "=z4", "=z4", "...", 1, 0 },
                       QuotedPrintableRow{ "TwoEquals", "==41", "=A", ".e", 1, 0 },
                       QuotedPrintableRow{ "AtTheEnd", "a=", "a=", "..", 1, 1 },
                       QuotedPrintableRow{ "CutShort", "ab=4", "ab=4", "....", 1, 2 },
                       QuotedPrintableRow{ "SeveralFaultsAndTheFirst", "x=a=b=41=", "x=a=bA=", ".....e.", 3, 1 } ),
    []( const ::testing::TestParamInfo<QuotedPrintableRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( QuotedPrintableTest, TextIsDecoded )
{
    const QuotedPrintableRow& row = GetParam();
    QByteArray decoded( "x" );
    std::vector<EncodedRun> runs;
    const QuotedPrintableFaults faults = DecodeQuotedPrintable( row.m_text, decoded, runs );
    EXPECT_EQ( ViewOf( decoded ), "x" + std::string( row.m_decoded ) );
    std::string encoded( static_cast<size_t>( decoded.size() ), '.' );
    for ( const EncodedRun& run : runs )
        encoded.replace( run.m_begin, run.m_end - run.m_begin, run.m_end - run.m_begin, 'e' );
    EXPECT_EQ( encoded, "." + std::string( row.m_encoded ) );
    EXPECT_EQ( faults.m_count, row.m_faults );
    if ( row.m_faults > 0 )
    {
        EXPECT_EQ( faults.m_first, row.m_firstFault );
    }
}

} // namespace PimManager::Contacts
