#include "Contact/PropertyName.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( PropertyNameTest, NamesAreFoundInAnyLetterCase )
{
    EXPECT_EQ( PropertyNameOf( "FN" ), PropertyName::Fn );
    EXPECT_EQ( PropertyNameOf( "n" ), PropertyName::N );
    EXPECT_EQ( PropertyNameOf( "Nickname" ), PropertyName::Nickname );
    EXPECT_EQ( PropertyNameOf( "org" ), PropertyName::Org );
    EXPECT_EQ( PropertyNameOf( "Email" ), PropertyName::Email );
    EXPECT_EQ( PropertyNameOf( "TEL" ), PropertyName::Tel );
    EXPECT_EQ( PropertyNameOf( "adr" ), PropertyName::Adr );
    EXPECT_EQ( PropertyNameOf( "version" ), PropertyName::Version );
    EXPECT_EQ( PropertyNameOf( "x-irmc-call-datetime" ), PropertyName::CallTime );
    for ( const char* name : { "", "X", "FM", "URL", "PHOTO", "FN2", "X-ABLABEL", "X-IRMC-CALL-DATETIMES" } )
        EXPECT_EQ( PropertyNameOf( name ), PropertyName::Other ) << name;
}

} // namespace PimManager::Contacts
