#include "Writing/HeadMemory.h"

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr VersionStep s_k30To21 = { PimContactVersion::V30, PimContactVersion::V21 };
constexpr VersionStep s_k21To21 = { PimContactVersion::V21, PimContactVersion::V21 };
constexpr VersionStep s_k30To30 = { PimContactVersion::V30, PimContactVersion::V30 };

HeadMeaning& MeaningOf( HeadMemory& a_memory, std::string_view a_head, VersionStep a_step )
{
    return a_memory.Of( a_head.substr( 0, a_head.find( ';' ) ), a_head, a_step );
}

TEST( HeadMemoryTest, PropertyAndParametersAreUnderstood )
{
    HeadMemory memory;
    const HeadMeaning phone = MeaningOf( memory, "tel;TYPE=HOME,VOICE", s_k30To30 );
    EXPECT_EQ( phone.m_property, PropertyId::Tel );
    EXPECT_TRUE( phone.m_isLegal );
    EXPECT_FALSE( phone.m_rule.m_isAllowed );
    EXPECT_FALSE( MeaningOf( memory, "TEL;HOME", s_k30To30 ).m_isLegal );
    EXPECT_TRUE( MeaningOf( memory, "TEL;HOME", s_k21To21 ).m_isLegal );
    EXPECT_TRUE( MeaningOf( memory, "TEL;TYPE=HOME", s_k30To21 ).m_rule.m_isAllowed );
    EXPECT_EQ( MeaningOf( memory, "", s_k30To30 ).m_property, PropertyId::Other );
    EXPECT_TRUE( MeaningOf( memory, "", s_k30To30 ).m_isLegal );
}

TEST( HeadMemoryTest, WrittenHeadIsRemembered )
{
    HeadMemory memory;
    MeaningOf( memory, "TEL;TYPE=HOME", s_k30To21 ).m_written.Set( "TEL;HOME" );
    MeaningOf( memory, "N", s_k30To21 ).m_written.Set( "N" );
    EXPECT_EQ( MeaningOf( memory, "TEL;TYPE=HOME", s_k30To21 ).m_written.Text(), "TEL;HOME" );
    EXPECT_EQ( MeaningOf( memory, "N", s_k30To21 ).m_written.Text(), "N" );
    EXPECT_FALSE( MeaningOf( memory, "TEL;TYPE=HOME", s_k30To30 ).m_written.IsKnown() );
    EXPECT_FALSE( MeaningOf( memory, "TEL;TYPE=WORK", s_k30To21 ).m_written.IsKnown() );
}

// Whatever is replaced, no head has the meaning of another one.
TEST( HeadMemoryTest, ManyHeadsAreNotMixedUp )
{
    HeadMemory memory;
    for ( int i = 0; i < 2000; ++i )
    {
        const std::string head = "TEL;TYPE=X-" + std::to_string( i % 500 );
        WrittenHead& written = MeaningOf( memory, head, s_k30To21 ).m_written;
        ASSERT_TRUE( !written.IsKnown() || written.Text() == head );
        written.Set( head );
        ASSERT_EQ( MeaningOf( memory, head, s_k30To21 ).m_written.Text(), head );
    }
}

// Heads of every length that differ in one byte.
TEST( HeadMemoryTest, EachByteOfAHeadMatters )
{
    HeadMemory memory;
    for ( size_t length = 1; length <= 48; ++length )
    {
        const std::string head( length, 'A' );
        MeaningOf( memory, head, s_k30To21 ).m_written.Set( "known" );
        ASSERT_TRUE( MeaningOf( memory, head, s_k30To21 ).m_written.IsKnown() );
        for ( size_t place = 0; place < length; ++place )
        {
            std::string other = head;
            other[place] = 'B';
            EXPECT_FALSE( MeaningOf( memory, other, s_k30To21 ).m_written.IsKnown() ) << other;
        }
    }
}

TEST( HeadMemoryTest, LongHeadsAreNotRemembered )
{
    HeadMemory memory;
    const std::string head = "TEL;TYPE=" + std::string( 60, 'x' );
    HeadMeaning& meaning = MeaningOf( memory, head, s_k30To21 );
    EXPECT_EQ( meaning.m_property, PropertyId::Tel );
    meaning.m_written.Set( head );
    EXPECT_FALSE( MeaningOf( memory, head, s_k30To21 ).m_written.IsKnown() );
}

TEST( HeadMemoryTest, LongWrittenHeadStaysUnknown )
{
    WrittenHead written;
    written.Set( std::string( 100, 'x' ) );
    EXPECT_FALSE( written.IsKnown() );
    written.Set( std::string( 63, 'x' ) );
    EXPECT_EQ( written.Text(), std::string( 63, 'x' ) );
}

} // namespace

} // namespace PimManager::Contacts
