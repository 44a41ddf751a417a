#include "Values/PlainParameters.h"
#include "Values/ParameterReader.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_parameters;
    bool m_isPlain;
};

constexpr std::array s_kRows = {
    Row{ ";HOME", true },
    Row{ ";TYPE=HOME", true },
    Row{ ";TYPE=HOME,WORK;PREF=1", true },
    Row{ ";HOME,WORK;;CELL", true },
    Row{ ";;HOME", true },
    Row{ "", false },
    Row{ ";", false },
    Row{ ";HOME;", false },
    Row{ ";TYPE=", false },
    Row{ ";TYPE=;HOME", false },
    Row{ ";TYPE=,HOME", false },
    Row{ ";TYPE=HOME,", false },
    Row{ ";TYPE=HOME,,WORK", false },
    Row{ ";TYPE=HOME,TYPE=WORK", false },
    Row{ ";=HOME", false },
    Row{ ";HOME,TYPE=WORK", false },
    Row{ ",HOME", false },
    Row{ ";TYPE=\"HOME\"", false },
    Row{ ";TYPE= HOME", false },
    Row{ ";X-A=a^n", false },
    Row{ ";X-A=\xC3\xA4", false },
    Row{ ";X-CUSTOM(CHARSET=UTF-8)", false },
};

std::string Shown( std::string_view a_name, std::string_view a_value )
{
    return std::string( a_name ) + '=' + std::string( a_value ) + ';';
}

std::string ReadPlainly( std::string_view a_parameters )
{
    std::string text;
    for ( PlainParameters reader( a_parameters ); reader.Next(); )
        text += Shown( reader.Name().empty() ? NameOfBare( reader.Value() ) : reader.Name(), reader.Value() );
    return text;
}

std::string ReadByJudge( std::string_view a_parameters )
{
    std::string text;
    for ( ParameterReader reader( a_parameters, PimContactVersion::V30 ); reader.Next(); )
        text += Shown( reader.Name(), reader.Value() );
    return text;
}

class PlainParametersTest : public testing::TestWithParam<Row>
{
};

} // namespace

TEST_P( PlainParametersTest, PlainOnesAreAccepted )
{
    const std::string_view parameters = GetParam().m_parameters;
    ASSERT_EQ( PlainParameters::AreIn( parameters ), GetParam().m_isPlain ) << parameters;
    if ( GetParam().m_isPlain )
    {
        EXPECT_EQ( ReadPlainly( parameters ), ReadByJudge( parameters ) ) << parameters;
    }
}

INSTANTIATE_TEST_SUITE_P( Rows, PlainParametersTest, testing::ValuesIn( s_kRows ) );

TEST( PlainParametersRandomTest, AcceptedOnesAreReadAsParameterReaderDoes )
{
    constexpr std::array<std::string_view, 9> s_kPieces = { ";",    ";",    ",",      "=",        "TYPE",
                                                            "HOME", "PREF", "BASE64", "SHIFT-JIS" };
    std::mt19937 random( 1 );
    int accepted = 0;
    for ( int round = 0; round < 20000; ++round )
    {
        std::string parameters = ";";
        for ( auto pieces = random() % 10; pieces > 0; --pieces )
            parameters += s_kPieces.at( random() % s_kPieces.size() );
        if ( !PlainParameters::AreIn( parameters ) )
            continue;
        ++accepted;
        ASSERT_EQ( ReadPlainly( parameters ), ReadByJudge( parameters ) ) << parameters;
    }
    EXPECT_GT( accepted, 2000 );
}

} // namespace PimManager::Contacts
