/// \file
/// Tests the check functions of the self-check: what they accept and how they fail.

#include "Test/PimVCardParserTestBase.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>

namespace PimManager::vCard
{

namespace
{

using Base = PimVCardParserTestBase;
using Texts = QList<const char*>;

PimVCardProperty* MakeProperty( QList<PimVCardParameter*>* a_parameters )
{
    return new PimVCardProperty( QStringLiteral( "item1" ), QStringLiteral( "TEL" ), a_parameters,
                                 new QList<QString>{ QStringLiteral( "5550102" ) } );
}

QList<PimVCardParameter*>* OneParameter()
{
    return new QList<PimVCardParameter*>{ new PimVCardParameter( QStringLiteral( "TYPE" ), QStringLiteral( "HOME" ) ) };
}

/// Makes the protected functions of the fixture public. Represents a case whose body has ended.
class BareCase : public PimVCardParserTestBase
{
public:
    using PimVCardParserTestBase::SetUp;
    using PimVCardParserTestBase::TearDown;
    void TestBody() override {}
};

class FixtureTest : public testing::Test
{
protected:
    void TearDown() override
    {
        sm_property.reset();
        delete Base::sm_parser;
        Base::sm_parser = nullptr;
    }

    // Static, because EXPECT_FATAL_FAILURE cannot use anything else in its statement.
    static inline std::unique_ptr<PimVCardProperty> sm_property;
};

} // namespace

TEST_F( FixtureTest, PropertyWithoutParametersPassesWithAnEmptyAndANullList )
{
    sm_property.reset( MakeProperty( new QList<PimVCardParameter*> ) );
    Base::TestProperty( sm_property.get(), "item1", "TEL", 0, {}, {}, 1, { "5550102" } );
    sm_property.reset( MakeProperty( nullptr ) );
    Base::TestProperty( sm_property.get(), "item1", "TEL", 0, {}, {}, 1, { "5550102" } );
    sm_property = std::make_unique<PimVCardProperty>( QString(), QStringLiteral( "TEL" ), nullptr, nullptr );
    Base::TestProperty( sm_property.get(), "", "TEL", 0, {}, {}, 0, {} );
}

TEST_F( FixtureTest, WrongCountsFailBeforeThePropertyIsRead )
{
    static const Texts one{ "a" };
    static const Texts two{ "a", "b" };
    static const Texts three{ "a", "b", "c" };
    static const char* const message = "Failed\nError in TestProperty: size mismatch...";
    EXPECT_FATAL_FAILURE( Base::TestProperty( nullptr, "", "TEL", 2, three, two, 1, one ), message );
    EXPECT_FATAL_FAILURE( Base::TestProperty( nullptr, "", "TEL", 2, two, three, 1, one ), message );
    EXPECT_FATAL_FAILURE( Base::TestProperty( nullptr, "", "TEL", 2, two, two, 2, one ), message );
}

TEST_F( FixtureTest, NullPropertyFails )
{
    EXPECT_FATAL_FAILURE( Base::TestProperty( nullptr, "", "TEL", 0, {}, {}, 0, {} ),
                          "Value of: a_property\n  Actual: false\nExpected: true" );
}

TEST_F( FixtureTest, OnlyTheFirstDifferenceIsReported )
{
    static const Texts one{ "wrong" };
    sm_property.reset( MakeProperty( OneParameter() ) );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item2", "FN", 1, one, one, 1, one ),
                          "a_property->GetGroupID().toLocal8Bit().toStdString().c_str()\n    Which is: \"item1\"" );
}

TEST_F( FixtureTest, EachFieldIsCompared )
{
    static const Texts type{ "TYPE" };
    static const Texts home{ "HOME" };
    static const Texts number{ "5550102" };
    static const Texts wrong{ "wrong" };
    sm_property.reset( MakeProperty( OneParameter() ) );
    Base::TestProperty( sm_property.get(), "item1", "TEL", 1, type, home, 1, number );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "FN", 1, type, home, 1, number ),
                          "a_property->GetName().toLocal8Bit().toStdString().c_str()" );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "TEL", 0, {}, {}, 1, number ),
                          "parameters.size()" );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "TEL", 1, wrong, home, 1, number ),
                          "parameters.at( i )->GetName().toLocal8Bit().toStdString().c_str()" );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "TEL", 1, type, wrong, 1, number ),
                          "parameters.at( i )->GetValue().toLocal8Bit().toStdString().c_str()" );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "TEL", 1, type, home, 0, {} ),
                          "values.size()" );
    EXPECT_FATAL_FAILURE( Base::TestProperty( sm_property.get(), "item1", "TEL", 1, type, home, 1, wrong ),
                          "values.at( i ).toLocal8Bit().toStdString().c_str()" );
}

TEST_F( FixtureTest, StartAndEndAreCheckedBothWays )
{
    Base::sm_parser = new PimVCardParser( "BEGIN:VCARD\r\nBEGIN:VCARD\r\n" );
    Base::TestParseStart( true );
    EXPECT_FATAL_FAILURE( Base::TestParseStart( false ),
                          "Value of: sm_parser->ParseStart()\n  Actual: true\nExpected: false" );
    Base::TestParseEnd( nullptr, false );
    EXPECT_FATAL_FAILURE( Base::TestParseEnd( nullptr, true ),
                          "Value of: sm_parser->ParseEnd( a_property )\n  Actual: false\nExpected: true" );
}

TEST_F( FixtureTest, CaseBeginsAndEndsWithoutAParser )
{
    BareCase bareCase;
    bareCase.TearDown();
    EXPECT_EQ( nullptr, Base::sm_parser );
    Base::sm_parser = new PimVCardParser( QByteArray() );
    bareCase.TearDown();
    EXPECT_EQ( nullptr, Base::sm_parser );
    bareCase.SetUp();
    EXPECT_EQ( nullptr, Base::sm_parser );
}

} // namespace PimManager::vCard
