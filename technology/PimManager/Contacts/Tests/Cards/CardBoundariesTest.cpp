#include "Cards/CardBoundaries.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct BoundaryRow
{
    std::string m_line;
    // The kind, its parts, and "mended".
    const char* m_inside;
    // Outside cards, if that differs.
    const char* m_outside = nullptr;
};

std::string Described( const CardBoundary& a_boundary, const std::string& a_line )
{
    static const std::array<const char*, 5> kinds = { "None", "Begin", "End", "AgentBegin", "EndAndBegin" };
    std::string text = kinds[static_cast<size_t>( a_boundary.m_kind )];
    if ( a_boundary.m_beginPlace > 0 )
        text += " at " + std::to_string( a_boundary.m_beginPlace );
    const auto add = [&]( const char* a_name, ByteRange a_range )
    {
        if ( a_range.m_length > 0 )
            text += std::string( " " ) + a_name + " '" + std::string( a_range.In( a_line ) ) + '\'';
    };
    add( "mark", a_boundary.m_mark );
    add( "group", a_boundary.m_group );
    add( "parameters", a_boundary.m_parameters );
    add( "rest", a_boundary.m_rest );
    return text + ( a_boundary.m_isMended ? " mended" : "" );
}

} // namespace

TEST( CardBoundariesTest, LinesAreDistinguished )
{
    const std::vector<BoundaryRow> rows = {
        { "", "None" },
        { "BEGIN:VCARD", "Begin" },
        { "END:VCARD", "End" },
        { "begin:vCard", "Begin" },
        { "End:vcarD", "End" },
        { " BEGIN:VCARD", "Begin mended" },
        { "END:VCARD \t", "End mended" },
        { "BEGIN : VCARD", "Begin mended" },
        { "\x01"
          "END:VCARD\x1A",
          "End mended" },
        { "\xEF\xBB\xBF"
          "BEGIN:VCARD",
          "Begin mark '\xEF\xBB\xBF'" },
        { "BEGIN:VCARD\xEF\xBB\xBF", "Begin mended" },
        { "item1.BEGIN:VCARD", "Begin group 'item1.'" },
        { "BEGIN;X=1:VCARD", "Begin parameters ';X=1'" },
        { "item1.END;X:VCARD", "End group 'item1.' parameters ';X'" },
        { "END:VCARD the end", "End rest 'the end' mended" },
        { "END:VCARD;", "End rest ';'" },
        { "BEGIN:VCARD, first", "Begin rest ', first'" },
        { "END:VCARDS", "None" },
        { "BEGIN:VCARD1", "None", "Begin rest '1'" },
        { "BEGIN:VCARDVERSION:2.1", "None", "Begin rest 'VERSION:2.1'" },
        { " BEGIN:VCARDVERSION:2.1", "None", "Begin rest 'VERSION:2.1' mended" },
        { "BEGIN:VCALENDAR", "None" },
        { "BEGIN:VCAR", "None" },
        { "BEGIN VCARD", "None" },
        { "NOTE:BEGIN:VCARD", "None" },
        { "NOTE:VCARD", "None" },
        { "VCARD", "None" },
        { "AGENT:BEGIN:VCARD", "AgentBegin at 6" },
        { "AGENT;TYPE=x: begin:vcard ", "AgentBegin at 14" },
        { " AGENT:BEGIN:VCARD", "AgentBegin at 7" },
        { "\x01"
          "AGENT:BEGIN:VCARD",
          "None" },
        { "AGENT:END:VCARD", "None" },
        { "END:VCARDBEGIN:VCARD", "EndAndBegin at 9" },
        { " END:VCARDBEGIN:VCARD", "EndAndBegin at 10" },
        { "END:VCARD BEGIN:VCARD", "EndAndBegin at 10" },
        { "END:VCARD\xEF\xBB\xBF"
          "BEGIN:VCARD",
          "EndAndBegin at 12" },
    };
    for ( const BoundaryRow& row : rows )
    {
        SCOPED_TRACE( ::testing::PrintToString( row.m_line ) );
        EXPECT_EQ( Described( CardBoundary::Of( row.m_line ), row.m_line ), row.m_inside );
        EXPECT_EQ( Described( CardBoundary::OfOutside( row.m_line ), row.m_line ),
                   row.m_outside == nullptr ? row.m_inside : row.m_outside );
    }
}

TEST( CardBoundariesTest, LongLinesAreNone )
{
    for ( const char* const word : { "BEGIN:VCARD", "END:VCARD" } )
    {
        const auto longest = static_cast<size_t>( CardBoundary::s_kLongest );
        std::string line = word + std::string( longest - std::string( word ).size(), ' ' );
        EXPECT_NE( CardBoundary::Of( line ).m_kind, CardBoundary::Kind::None ) << word;
        EXPECT_NE( CardBoundary::OfOutside( line ).m_kind, CardBoundary::Kind::None ) << word;
        line += ' ';
        EXPECT_EQ( CardBoundary::Of( line ).m_kind, CardBoundary::Kind::None ) << word;
        EXPECT_EQ( CardBoundary::OfOutside( line ).m_kind, CardBoundary::Kind::None ) << word;
    }
}

TEST( CardBoundariesTest, BlanksAndMarksAreNoText )
{
    const auto textOf = []( const char* a_line )
    {
        const CardBoundary boundary = CardBoundary::Of( a_line );
        return boundary.m_group.m_length + boundary.m_parameters.m_length + boundary.m_rest.m_length;
    };
    EXPECT_EQ( textOf( "\xEF\xBB\xBF"
                       "BEGIN:VCARD " ),
               0U );
    for ( const char* const line : { "a.BEGIN:VCARD", "BEGIN;A:VCARD", "BEGIN:VCARD a" } )
        EXPECT_GT( textOf( line ), 0U ) << line;
}

TEST( CardBoundariesTest, OpenAgentIsAnAgentWithoutAValue )
{
    struct Row
    {
        std::string_view m_line;
        bool m_isOpen;
    };
    constexpr std::array<Row, 12> rows = { { { "AGENT:", true },
                                             { "agent:", true },
                                             { " AGENT: \t", true },
                                             { "AGENT;X=1:", true },
                                             { "a.AGENT:", true },
                                             { "AGENT", false },
                                             { "AGENT;X=1", false },
                                             { "AGENT:a", false },
                                             { "AGENT:BEGIN:VCARD", false },
                                             { "AGENTS:", false },
                                             { "NOTE:AGENT:", false },
                                             { "", false } } };
    for ( const Row& row : rows )
        EXPECT_EQ( CardBoundary::IsOpenAgent( row.m_line ), row.m_isOpen ) << row.m_line;
}

TEST( CardBoundariesTest, LinesInPartsAndLinesBeyondTheLimitAreTooLong )
{
    PhysicalLine line;
    line.m_length = CardBoundary::s_kLongest;
    EXPECT_FALSE( CardBoundary::IsTooLong( line ) );
    ++line.m_length;
    EXPECT_TRUE( CardBoundary::IsTooLong( line ) );
    line.m_length = 0;
    line.m_isLong = true;
    EXPECT_TRUE( CardBoundary::IsTooLong( line ) );
}

} // namespace PimManager::Contacts
