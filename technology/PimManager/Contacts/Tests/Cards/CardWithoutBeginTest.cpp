#include "Cards/CardWithoutBegin.h"

#include "SealedText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct WithoutBeginRow
{
    const char* m_name;
    // "/" is a line feed.
    std::string m_text;
    bool m_expected;
    bool m_isFiltered = false;
};

std::ostream& operator<<( std::ostream& a_stream, const WithoutBeginRow& a_row )
{
    return a_stream << a_row.m_name;
}

std::string NameOfRow( const ::testing::TestParamInfo<WithoutBeginRow>& a_info )
{
    return a_info.param.m_name;
}

class KnownPropertyTest : public ::testing::TestWithParam<WithoutBeginRow>
{
};

class ContactWithoutBeginTest : public ::testing::TestWithParam<WithoutBeginRow>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Lines, KnownPropertyTest,
    ::testing::Values( WithoutBeginRow{ "Name", "FN:a", true }, WithoutBeginRow{ "LowerCase", "fn:a", true },
                       WithoutBeginRow{ "Parameters", "TEL;HOME;X=1:1", true },
                       WithoutBeginRow{ "Group", "item1.EMAIL:a", true },
                       WithoutBeginRow{ "NoContact", "NOTE:a", true }, WithoutBeginRow{ "NoValue", "FN:", true },
                       WithoutBeginRow{ "NoColon", "FN;a", false }, WithoutBeginRow{ "OtherWord", "Hello:a", false },
                       WithoutBeginRow{ "MixedCase", "Tel: 555", false },
                       WithoutBeginRow{ "OddGroup", "a!b.TEL:1", false },
                       WithoutBeginRow{ "BlankInTheName", "F N:a", false },
                       WithoutBeginRow{ "Sentence", "Note that FN:a", false }, WithoutBeginRow{ "Empty", "", false } ),
    NameOfRow );

TEST_P( KnownPropertyTest, NameAndLooksDecide )
{
    EXPECT_EQ( IsKnownProperty( GetParam().m_text ), GetParam().m_expected );
}

INSTANTIATE_TEST_SUITE_P(
    Cards, ContactWithoutBeginTest,
    ::testing::Values( WithoutBeginRow{ "FormattedName", "FN:a/", true }, WithoutBeginRow{ "Name", "N:a/", true },
                       WithoutBeginRow{ "Phone", "TEL:1/", true }, WithoutBeginRow{ "Mail", "EMAIL:a/", true },
                       WithoutBeginRow{ "Organisation", "ORG:a/", true },
                       WithoutBeginRow{ "LowerCaseAndGroup", "a.tel;home:1/", true },
                       WithoutBeginRow{ "Other", "NOTE:a/ADR:b/", false },
                       WithoutBeginRow{ "LongerWord", "NX:a/", false },
                       WithoutBeginRow{ "BehindOthers", "NOTE:a/ b///ADR:b/N:a/", true },
                       WithoutBeginRow{ "DroppedLine", "NOTE:a/;N:b/", false },
                       WithoutBeginRow{ "InACardInside", "AGENT:/BEGIN:VCARD/FN:a/END:VCARD/", false },
                       WithoutBeginRow{ "BehindACardInside", "AGENT:/BEGIN:VCARD/END:VCARD/FN:a/", true },
                       WithoutBeginRow{ "FilteredLine", "FN:a/", true, true },
                       WithoutBeginRow{ "OtherFilteredLine", "TITLE:a/", false, true } ),
    NameOfRow );

TEST_P( ContactWithoutBeginTest, OneNameIsEnough )
{
    PimContactOptions options;
    if ( GetParam().m_isFiltered )
        options.SetNames( { QByteArrayLiteral( "NOTE" ) } );
    std::string text = GetParam().m_text + "END:VCARD/";
    std::replace( text.begin(), text.end(), '/', '\n' );
    const SealedText card( text, options );
    EXPECT_EQ( card.Index().Record().Has( CardRecord::IsFiltered ), GetParam().m_isFiltered );
    EXPECT_EQ( IsContact( card.Index(), card.Bytes() ), GetParam().m_expected );
}

} // namespace PimManager::Contacts
