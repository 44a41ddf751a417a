#include "Conformance/LanguageTag.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

TEST( LanguageTagTest, TagsAreWellFormed )
{
    for ( const char* const tag : { "de",
                                    "DE-ch",
                                    "jp",
                                    "zh-Hant",
                                    "zh-cmn-Hans-CN",
                                    "yue-HK",
                                    "sr-Latn-RS",
                                    "sl-rozaj-biske",
                                    "de-CH-1901",
                                    "sl-IT-nedis",
                                    "hy-Latn-IT-arevela",
                                    "es-419",
                                    "de-CH-x-phonebk",
                                    "x-whatever",
                                    "x-a-b-c",
                                    "qaa-Qaaa-QM",
                                    "en-US-u-islamcal",
                                    "zh-CN-a-myext-x-private",
                                    "en-a-myext-b-another",
                                    "i-klingon",
                                    "en-GB-oed",
                                    "art-lojban",
                                    "zh-min-nan",
                                    "sgn-BE-FR",
                                    "abcd",
                                    "abcdefgh" } )
        EXPECT_TRUE( IsLanguageTag( tag ) ) << tag;
}

TEST( LanguageTagTest, OtherTextsAreNone )
{
    for ( const char* const tag :
          { "",          "-",         "a",         "de_CH", "de-",       "-de",          "de--CH",
            "abcdefghi", "d3",        "de-CHEX1-", "x",     "x-",        "de-x",         "en-a",
            "en-a-b",    "de-419-DE", "i-boat",    "de CH", "d\xC3\xA9", "de-Latn-Latn", "zh-cmn-yue-nan-gan" } )
        EXPECT_FALSE( IsLanguageTag( tag ) ) << tag;
}

TEST( LanguageTagTest, LongTextsAreRead )
{
    std::string tag = "en";
    for ( int i = 0; i < 100000; ++i )
        tag += "-rozaj";
    EXPECT_TRUE( IsLanguageTag( tag ) );
    EXPECT_FALSE( IsLanguageTag( tag + "-" ) );
}

} // namespace PimManager::Contacts
