#include "Lines/ParameterTable.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

std::string SectionText( StandardParameter a_parameter, PimContactVersion a_version )
{
    const StandardSection section = SectionOf( a_parameter, a_version );
    return section.m_number.empty() ? "none" : TextOf( section ).toStdString();
}

struct Row
{
    const char* m_name;
    StandardParameter m_parameter;
    const char* m_v21;
    const char* m_v30;
    const char* m_v40;
};

const Row s_kRows[] = {
    { "ALTID", StandardParameter::AltId, "none", "none", "RFC 6350, section 5.4" },
    { "AUTHOR", StandardParameter::Author, "none", "none", "RFC 9554, section 4.1" },
    { "AUTHOR-NAME", StandardParameter::AuthorName, "none", "none", "RFC 9554, section 4.2" },
    { "CALSCALE", StandardParameter::CalScale, "none", "none", "RFC 6350, section 5.8" },
    { "CC", StandardParameter::Cc, "none", "none", "RFC 8605, section 3.1" },
    { "CHARSET", StandardParameter::Charset, "vCard 2.1, section 2.1.6", "none", "none" },
    { "CONTEXT", StandardParameter::Context, "none", "RFC 2426, section 2.1.4", "none" },
    { "CREATED", StandardParameter::Created, "none", "none", "RFC 9554, section 4.3" },
    { "DERIVED", StandardParameter::Derived, "none", "none", "RFC 9554, section 4.4" },
    { "ENCODING", StandardParameter::Encoding, "vCard 2.1, section 2.1.5", "RFC 2426, section 2.2", "none" },
    { "GEO", StandardParameter::Geo, "none", "none", "RFC 6350, section 5.10" },
    { "INDEX", StandardParameter::Index, "none", "none", "RFC 6715, section 3.1" },
    { "JSCOMPS", StandardParameter::JsComps, "none", "none", "RFC 9555, section 3.3.1" },
    { "JSPTR", StandardParameter::JsPtr, "none", "none", "RFC 9555, section 3.3.2" },
    { "LABEL", StandardParameter::Label, "none", "none", "RFC 6350, section 6.3.1" },
    { "LANGUAGE", StandardParameter::Language, "vCard 2.1, section 2.1.7", "RFC 2425, section 5.8.3",
      "RFC 6350, section 5.1" },
    { "LEVEL", StandardParameter::Level, "none", "none", "RFC 6715, section 3.2" },
    { "MEDIATYPE", StandardParameter::MediaType, "none", "none", "RFC 6350, section 5.7" },
    { "PHONETIC", StandardParameter::Phonetic, "none", "none", "RFC 9554, section 4.6" },
    { "PID", StandardParameter::Pid, "none", "none", "RFC 6350, section 5.5" },
    { "PREF", StandardParameter::Pref, "none", "none", "RFC 6350, section 5.3" },
    { "PROP-ID", StandardParameter::PropId, "none", "none", "RFC 9554, section 4.7" },
    { "SCRIPT", StandardParameter::Script, "none", "none", "RFC 9554, section 4.8" },
    { "SERVICE-TYPE", StandardParameter::ServiceType, "none", "none", "RFC 9554, section 4.9" },
    { "SORT-AS", StandardParameter::SortAs, "none", "none", "RFC 6350, section 5.9" },
    { "TYPE", StandardParameter::Type, "vCard 2.1, section 2.1.2", "RFC 2426, section 4", "RFC 6350, section 5.6" },
    { "TZ", StandardParameter::Tz, "none", "none", "RFC 6350, section 5.11" },
    { "USERNAME", StandardParameter::UserName, "none", "none", "RFC 9554, section 4.10" },
    { "VALUE", StandardParameter::Value, "vCard 2.1, section 2.1.8", "RFC 2426, section 2.3", "RFC 6350, section 5.2" },
};

} // namespace

class ParameterTableTest : public testing::TestWithParam<Row>
{
};

TEST_P( ParameterTableTest, ParameterHasItsSections )
{
    const Row& row = GetParam();
    EXPECT_EQ( StandardParameterOf( row.m_name ), row.m_parameter );
    EXPECT_EQ( NameOf( row.m_parameter ), row.m_name );
    EXPECT_EQ( SectionText( row.m_parameter, PimContactVersion::V21 ), row.m_v21 );
    EXPECT_EQ( SectionText( row.m_parameter, PimContactVersion::V30 ), row.m_v30 );
    EXPECT_EQ( SectionText( row.m_parameter, PimContactVersion::V40 ), row.m_v40 );
    EXPECT_EQ( SectionText( row.m_parameter, PimContactVersion::Unknown ), "none" );
}

INSTANTIATE_TEST_SUITE_P( Rows, ParameterTableTest, testing::ValuesIn( s_kRows ) );

TEST( ParameterTableTest, EveryParameterHasARow )
{
    EXPECT_EQ( std::size( s_kRows ), s_kStandardParameters );
}

TEST( ParameterTableTest, LetterCaseDoesNotMatter )
{
    EXPECT_EQ( StandardParameterOf( "type" ), StandardParameter::Type );
    EXPECT_EQ( StandardParameterOf( "Sort-As" ), StandardParameter::SortAs );
}

TEST( ParameterTableTest, OtherNamesAreUnknown )
{
    for ( const char* const name : { "", "X-TYPE", "TYPES", "TYP", "HOME", "SORT_AS" } )
        EXPECT_EQ( StandardParameterOf( name ), StandardParameter::Other ) << name;
}

} // namespace PimManager::Contacts
