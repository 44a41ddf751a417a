#include "Lines/FoldEvidence.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

// A line of that many bytes.
std::string Line( size_t a_length, char a_letter = 'a' )
{
    return std::string( a_length, a_letter );
}

std::string WideLine( size_t a_characters )
{
    std::string text;
    for ( size_t i = 0; i < a_characters; ++i )
        text += "\xC3\xA9";
    return text;
}

struct FoldRow
{
    const char* m_name;
    std::vector<std::string> m_lines;
    bool m_isAscii;
    bool m_isByLength;
};

std::ostream& operator<<( std::ostream& a_stream, const FoldRow& a_row )
{
    return a_stream << a_row.m_name;
}

class FoldEvidenceTest : public ::testing::TestWithParam<FoldRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Cards, FoldEvidenceTest,
    ::testing::Values(
        FoldRow{ "NoLine", {}, true, false }, FoldRow{ "NoFold", { Line( 75 ) }, true, false },
        FoldRow{ "OneFoldAt74", { Line( 74 ) + "\n b" }, true, false },
        FoldRow{ "OneFoldAt75", { Line( 75 ) + "\n b" }, true, true },
        FoldRow{ "OneFoldAt76", { Line( 76 ) + "\n b" }, true, true },
        FoldRow{ "OneFoldAt77", { Line( 77 ) + "\n b" }, true, false },
        FoldRow{ "OneFoldBeforeAnEscape", { Line( 74 ) + "\n \\,b" }, true, true },
        FoldRow{ "OneFoldBeforeAWideCharacter", { Line( 74 ) + "\n \xC3\xA9" }, false, true },
        FoldRow{ "OneFoldTooFarBeforeAWideCharacter", { Line( 73 ) + "\n \xC3\xA9" }, false, false },
        FoldRow{ "OneFoldBeforeALongCharacter", { Line( 72 ) + "\n \xF0\x9F\x98\x80" }, false, true },
        FoldRow{ "FoldBeforeWhiteSpaceOnly", { Line( 75 ) + "\n " }, true, false },
        FoldRow{ "TwoFoldsAt69", { Line( 69 ) + "\n b", Line( 69 ) + "\n b" }, true, false },
        FoldRow{ "TwoFoldsAt70", { Line( 70 ) + "\n b", Line( 70 ) + "\n b" }, true, true },
        FoldRow{ "TwoFoldsAt78", { Line( 78 ) + "\n b", Line( 78 ) + "\n b" }, true, true },
        FoldRow{ "TwoFoldsAt79", { Line( 79 ) + "\n b", Line( 79 ) + "\n b" }, true, false },
        FoldRow{ "TwoLengths", { Line( 72 ) + "\n b", Line( 73 ) + "\n b" }, true, false },
        FoldRow{ "TwoLengthsWithinAnEscape", { Line( 72 ) + "\n \\n", Line( 73 ) + "\n b" }, true, true },
        FoldRow{ "EscapeOnTheWrongSide", { Line( 72 ) + "\n b", Line( 73 ) + "\n \\n" }, true, false },
        FoldRow{ "BlankOfTheContinuationCounts", { Line( 75 ) + "\n " + Line( 74 ) + "\n b" }, true, true },
        FoldRow{ "BlankOfTheContinuationDoesNotCount", { Line( 75 ) + "\n " + Line( 75 ) + "\n b" }, true, true },
        FoldRow{
            "BlankCountsInSomeLines", { Line( 75 ) + "\n " + Line( 74 ) + "\n " + Line( 75 ) + "\n b" }, true, false },
        FoldRow{ "ShortContinuation", { Line( 75 ) + "\n " + Line( 40 ) + "\n b" }, true, false },
        FoldRow{ "LengthsInCharacters", { WideLine( 75 ) + "\n b", Line( 75 ) + "\n b" }, false, true },
        FoldRow{ "LengthsInBytes", { WideLine( 36 ) + "\n b", Line( 72 ) + "\n b" }, false, true },
        FoldRow{ "LengthsInNeither", { WideLine( 36 ) + "\n b", Line( 75 ) + "\n b" }, false, false } ),
    []( const ::testing::TestParamInfo<FoldRow>& a_info ) { return std::string( a_info.param.m_name ); } );

TEST_P( FoldEvidenceTest, OneLengthMustFitAllFolds )
{
    FoldEvidence evidence;
    for ( const std::string& line : GetParam().m_lines )
    {
        IndexEntry entry;
        entry.m_hasFolds = line.find( '\n' ) != std::string::npos;
        evidence.Take( line, entry, GetParam().m_isAscii );
    }
    EXPECT_EQ( evidence.IsByLength(), GetParam().m_isByLength );
}

TEST( FoldEvidenceUseTest, EncodedLinesSayNothing )
{
    for ( const PimContactEncoding encoding : { PimContactEncoding::Base64, PimContactEncoding::QuotedPrintable } )
    {
        FoldEvidence evidence;
        IndexEntry entry;
        entry.m_hasFolds = true;
        entry.m_encoding = encoding;
        evidence.Take( Line( 75 ) + "\n b", entry, true );
        EXPECT_FALSE( evidence.IsByLength() ) << static_cast<int>( encoding );
    }
}

TEST( FoldEvidenceUseTest, OtherJoinsSayNothing )
{
    JoinWriter joins;
    joins.Add( { 20, 1, PimContactJoin::LineFeed, 1 } );
    IndexEntry entry;
    entry.m_hasFolds = true;
    entry.m_joins = joins.Bytes();
    FoldEvidence evidence;
    evidence.Take( Line( 20 ) + '\n' + Line( 75 ) + "\n b", entry, true );
    EXPECT_TRUE( evidence.IsByLength() );
}

} // namespace PimManager::Contacts
