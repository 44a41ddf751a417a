// Every sample file gives its reference result, and the invariants hold for it and for every start of it.

#include "PimVCardTestLog.h"
#include "SampleFiles.h"

#include "Checks/Invariants.h"
#include "Checks/PieceChecks.h"
#include "Checks/RandomOptions.h"
#include "Checks/Transcript.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

class ReaderSamplesTest : public testing::TestWithParam<std::string>
{
protected:
    QByteArray Sample() const { return SampleFile( GetParam() + ".vcf" ); }
};

TEST_P( ReaderSamplesTest, WholeFileGivesItsReferenceResult )
{
    EXPECT_EQ( TranscriptOf( ReadWhole( Sample() ) ).toStdString(),
               SampleFile( GetParam() + ".expected" ).toStdString() );
}

TEST_P( ReaderSamplesTest, ReadingWritesNothingToTheLog )
{
    const vCard::LogCapture log;
    const std::string transcript = TranscriptOf( ReadWhole( Sample() ) ).toStdString();
    EXPECT_TRUE( log.Messages().isEmpty() ) << transcript;
}

TEST_P( ReaderSamplesTest, InvariantsHoldForTheWholeFile )
{
    EXPECT_EQ( BrokenInvariantOf( Sample(), PimContactOptions(), 0 ).toStdString(), "" );
}

TEST_P( ReaderSamplesTest, TwoPiecesGiveTheSameWhereverTheCutIs )
{
    const QByteArray bytes = Sample();
    const std::string whole = TranscriptOf( ReadWhole( bytes ) ).toStdString();
    for ( const qint64 place : AllPlaces( bytes.size() ) )
        ASSERT_EQ( TranscriptOf( ReadInPieces( bytes, { place } ) ).toStdString(), whole ) << place;
}

TEST_P( ReaderSamplesTest, InvariantsHoldForEveryStartOfTheFile )
{
    const QByteArray bytes = Sample();
    for ( int length = 0; length <= bytes.size(); ++length )
    {
        const auto seed = static_cast<unsigned>( length );
        const PimContactOptions options = length % 2 == 0 ? PimContactOptions() : RandomOptions( seed );
        ASSERT_EQ( BrokenInvariantOf( bytes.left( length ), options, seed ).toStdString(), "" ) << length;
    }
}

std::string TestNameOf( const testing::TestParamInfo<std::string>& a_info )
{
    std::string name;
    bool isUpper = true;
    for ( const char character : a_info.param )
    {
        const bool isDash = character == '-';
        if ( !isDash )
            name += isUpper ? static_cast<char>( std::toupper( character ) ) : character;
        isUpper = isDash;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P( Samples, ReaderSamplesTest, testing::ValuesIn( SampleNames() ), TestNameOf );

} // namespace

} // namespace PimManager::Contacts
