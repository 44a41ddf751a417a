// The JSON of every sample file has what the lines of its cards return.

#include "LineComparison.h"
#include "SampleFiles.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( JsonSamplesTest, PropertiesAreThoseOfTheLines )
{
    for ( const std::string& name : SampleNames() )
        ExpectSameBook( SampleFile( name + ".vcf" ), name );
}

} // namespace PimManager::Contacts
