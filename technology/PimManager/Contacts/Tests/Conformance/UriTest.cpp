#include "Conformance/Uri.h"

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

TEST( UriTest, UrisHaveASchemeAndTheirCharacters )
{
    for ( const char* const uri :
          { "http://example.org", "HTTP://example.org/a?b=c&d#e", "tel:+1-555-555-5555;ext=1", "cid:a@example.org",
            "urn:uuid:f81d4fae", "data:image/gif;base64,R0lGODlh/+=", "ldap://[2001:db8::7]/c=GB?one", "geo:1,2",
            "geo:-90,180,5.5;u=35", "geo:1000,2000;crs=moon", "a+b-c.d:e", "mailto:a%20b@example.org", "x:" } )
        EXPECT_TRUE( IsConformingUri( uri ) ) << uri;
}

TEST( UriTest, OtherTextsAreNone )
{
    for ( const char* const uri :
          { "", ":", "example.org", "//example.org", "1a:b", "a b:c", "http://a b", "http://a%2", "http://a%gg",
            "http://\xC3\xA4", "a:<b>", "a:b\\c", "a:{b}", "a:\x7F", "geo:1", "geo:91,0", "geo:0,181", "geo:a,b" } )
        EXPECT_FALSE( IsConformingUri( uri ) ) << uri;
}

} // namespace PimManager::Contacts
