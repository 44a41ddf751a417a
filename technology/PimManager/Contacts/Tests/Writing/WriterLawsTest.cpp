// The laws of writing hold for every sample, for made-up books and for hostile texts.

#include "SampleFiles.h"

#include "BookGenerator.h"
#include "Checks/RandomOptions.h"
#include "Checks/WriteChecks.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

class WriterLawsTest : public testing::TestWithParam<std::string>
{
};

TEST_P( WriterLawsTest, HoldForTheSample )
{
    const QByteArray bytes = SampleFile( GetParam() + ".vcf" );
    EXPECT_EQ( BrokenWriting( Subject( bytes, PimContactOptions(), 0 ) ).toStdString(), "" );
}

INSTANTIATE_TEST_SUITE_P( Samples, WriterLawsTest, testing::ValuesIn( SampleNames() ),
                          []( const testing::TestParamInfo<std::string>& a_info )
                          {
                              std::string name = a_info.param;
                              for ( char& character : name )
                                  character = character == '-' ? '_' : character;
                              return name;
                          } );

TEST( WriterLawsTest, HoldForMadeUpBooks )
{
    vCard::MadeTexts::BookGenerator generator;
    for ( const vCard::MadeTexts::BookKind kind : vCard::MadeTexts::AllBookKinds() )
    {
        const QByteArray book = generator.Book( kind, 20 );
        EXPECT_EQ( BrokenWriting( Subject( book, PimContactOptions(), 0 ) ).toStdString(), "" )
            << vCard::MadeTexts::NameOf( kind ).constData();
    }
}

} // namespace

} // namespace PimManager::Contacts
