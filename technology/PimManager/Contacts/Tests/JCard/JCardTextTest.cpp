#include "JCard/JCardText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_literals;

constexpr qint64 s_kLongest = 1000;

struct Converted
{
    std::string m_text;
    // `name card:line:offset xcount @position in the converted text; `
    std::string m_findings;

    friend bool operator==( const Converted& a_left, const Converted& a_right )
    {
        return a_left.m_text == a_right.m_text && a_left.m_findings == a_right.m_findings;
    }
    friend std::ostream& operator<<( std::ostream& a_stream, const Converted& a_converted )
    {
        return a_stream << a_converted.m_text << "\n" << a_converted.m_findings;
    }
};

void Add( Converted& a_all, std::string_view a_text, const JCardText& a_cards )
{
    a_all.m_text += a_text;
    for ( const JsonFinding& finding : a_cards.Findings() )
        a_all.m_findings += NameOf( finding.m_code ).data() + " "s + std::to_string( finding.m_card ) + ":" +
                            std::to_string( finding.m_place.m_line ) + ":" +
                            std::to_string( finding.m_place.m_offset ) + " x" + std::to_string( finding.m_count ) +
                            " @" + std::to_string( finding.m_offset ) + "; ";
}

// Each piece is in memory of its own, so that a sanitizer finds every byte that is read beyond it.
Converted Convert( const std::string& a_json, const std::vector<size_t>& a_places, qint64 a_longest = s_kLongest )
{
    JCardText cards( a_longest );
    cards.Reset();
    Converted all;
    size_t begin = 0;
    for ( const size_t place : a_places )
    {
        const std::vector<char> piece( a_json.begin() + static_cast<qptrdiff>( begin ),
                                       a_json.begin() + static_cast<qptrdiff>( place ) );
        Add( all, cards.Convert( std::string_view( piece.data(), piece.size() ) ), cards );
        begin = place;
    }
    const std::vector<char> piece( a_json.begin() + static_cast<qptrdiff>( begin ), a_json.end() );
    Add( all, cards.Convert( std::string_view( piece.data(), piece.size() ) ), cards );
    Add( all, cards.Finish(), cards );
    return all;
}

std::string CardOf( const std::string& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:4.0\r\n" + a_lines + "END:VCARD\r\n";
}

struct TextRow
{
    std::string m_json;
    std::string m_text;
    std::string m_findings;
};

const std::string s_kFn = R"(["fn",{},"text","Mara"])";

// Rows that are read as a whole, cut in two anywhere, and byte by byte.
std::vector<TextRow> Rows()
{
    const std::string card = CardOf( "FN:Mara\r\n" );
    return {
        { R"(["vcard",[)" + s_kFn + "]]", card, "" },
        { "  \t\r\n[ \"vcard\" ,\n[ " + s_kFn + " ] ] \n", card, "" },
        { "\xEF\xBB\xBF[\"vcard\",[" + s_kFn + "]]", "\xEF\xBB\xBF" + card, "" },
        { R"(["VCARD",[)" + s_kFn + "]]", card, "" },
        { R"([["vcard",[)" + s_kFn + R"(]],["vcard",[)" + s_kFn + "]]]", card + card, "" },
        { R"([[["vcard",[)" + s_kFn + R"(]]],[],[["vcard",[]]]])", card + CardOf( "" ), "" },
        { R"(["vcard",[)" + s_kFn + "]]\n" + R"(["vcard",[)" + s_kFn + "]]\n", card + card, "" },
        { R"(["vcard",[["version",{},"text","4.0"],)" + s_kFn + "]]", card, "" },
        { R"(["vcard",[)" + s_kFn + R"(,["version",{"x":"y"},"text","4.0"]]])",
          CardOf( "FN:Mara\r\nVERSION;X=y:4.0\r\n" ), "" },
        { R"(["vcard",[["version",{"x":"y"},"text","4.0"]]])", "BEGIN:VCARD\r\nVERSION;X=y:4.0\r\nEND:VCARD\r\n", "" },
        // What is not a card or property.
        { R"(["vcard",[["version",{},"text","5.0"]]])", CardOf( "X-JCARD:[\"version\"\\,{}\\,\"text\"\\,\"5.0\"]\r\n" ),
          "json-part 1:1:10 x1 @26; " },
        { R"(["vcard",[1,)" + s_kFn + R"(,{"a":[]},"b"]])",
          CardOf( "X-JCARD:1\r\nFN:Mara\r\nX-JCARD:{\"a\":[]}\r\nX-JCARD:\"b\"\r\n" ),
          "json-part 1:1:10 x1 @26; json-part 1:1:36 x1 @46; json-part 1:1:45 x1 @64; " },
        { R"(["vcard",[["fn",{},"text",)"
          "\n"
          R"({"a":"]"}]]])",
          CardOf( "X-JCARD:[\"fn\"\\,{}\\,\"text\"\\,\\n{\"a\":\"]\"}]\r\n" ), "json-part 1:1:10 x1 @26; " },
        { R"(["vcard",1,[],2])", CardOf( "X-JCARD:1\r\nX-JCARD:2\r\n" ),
          "json-part 1:1:9 x1 @26; json-part 1:1:14 x1 @37; " },
        { R"(["vcard"])", CardOf( "" ), "json-syntax 1:1:8 x1 @13; " },
        { R"([["vcard",[]],["vcards",[["fn"]]],[1],{},x])",
          CardOf( "" ) + "# [\"vcards\",[[\"fn\"]]]\r\n# [1]\r\n# {}\r\n# x\r\n",
          "json-part 0:1:14 x1 @37; json-part 0:1:34 x1 @60; json-part 0:1:38 x1 @67; json-part 0:1:41 x1 @73; " },
        { R"([["vcard",[]],["v)", CardOf( "" ) + "# [\"v\r\n", "json-part 0:1:14 x1 @37; json-syntax 0:1:17 x1 @44; " },
        // Commas and brackets.
        { R"(["vcard",[)" + s_kFn + ",]]", card, "json-syntax 1:1:34 x1 @35; " },
        { R"(["vcard",[,)" + s_kFn + "]]", card, "json-syntax 1:1:10 x1 @13; " },
        { R"(["vcard",[)" + s_kFn + s_kFn + "]]", CardOf( "FN:Mara\r\nFN:Mara\r\n" ), "json-syntax 1:1:33 x1 @35; " },
        { R"(["vcard" [)" + s_kFn + "]]", card, "json-syntax 1:1:9 x1 @13; " },
        { R"(["vcard",[)" + s_kFn + "],]", card, "json-syntax 1:1:35 x1 @35; " },
        { R"([["vcard",[]]["vcard",[]],])", CardOf( "" ) + CardOf( "" ),
          "json-syntax 0:1:13 x1 @37; json-syntax 0:1:26 x1 @74; " },
        { R"(["vcard",[]]])", CardOf( "" ), "json-syntax 0:1:12 x1 @37; " },
        { R"(["vcard",[]],)", CardOf( "" ), "json-syntax 0:1:12 x1 @37; " },
        { R"([["vcard",[]])", CardOf( "" ), "json-syntax 0:1:13 x1 @37; " },
        { R"(["vcard",[]] [)", CardOf( "" ), "json-syntax 0:1:14 x1 @37; " },
        { R"(["vcard",[)" + s_kFn, "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:Mara\r\n", "json-syntax 1:1:33 x1 @35; " },
        { R"(["vcard",[["fn",{},"te)", "BEGIN:VCARD\r\nVERSION:4.0\r\nX-JCARD:[\"fn\"\\,{}\\,\"te\r\n",
          "json-part 1:1:10 x1 @26; json-syntax 1:1:22 x1 @50; " },
        { R"(["vcard")", "BEGIN:VCARD\r\n", "json-syntax 1:1:8 x1 @13; " },
        // Strings.
        { "[\"vcard\",[\n" + s_kFn + ",\n[\"note\",{},\"text\",\n\"a\\qb\nc\"]]]",
          CardOf( "FN:Mara\r\nNOTE:aqb\\nc\r\n" ), "json-syntax 1:4:57 x2 @48; " },
        { R"(["vcard",[["note",{},"text","END:VCARD\r\nEND:VCARD\u000aEND:VCARD"]]])",
          CardOf( "NOTE:END:VCARD\\nEND:VCARD\\nEND:VCARD\r\n" ), "" },
        // No jCard.
        { "", "", "" },
        { "[", "[", "" },
        { "  [[ ", "  [[ ", "" },
        { "[\"vcar", "[\"vcar", "" },
        { "[\"vcal\"]", "[\"vcal\"]", "" },
        { "\"vcard\"", "\"vcard\"", "" },
        { "[1]", "[1]", "" },
        { "BEGIN:VCARD\r\nEND:VCARD\r\n", "BEGIN:VCARD\r\nEND:VCARD\r\n", "" },
        { " \n\nBEGIN:VCARD\n", " \n\nBEGIN:VCARD\n", "" },
    };
}

} // namespace

TEST( JCardTextTest, CardsAreConverted )
{
    for ( const TextRow& row : Rows() )
        EXPECT_EQ( Convert( row.m_json, {} ), ( Converted{ row.m_text, row.m_findings } ) ) << row.m_json;
}

TEST( JCardTextTest, PiecesMakeNoDifference )
{
    for ( const TextRow& row : Rows() )
    {
        const Converted expected = { row.m_text, row.m_findings };
        std::vector<size_t> all;
        for ( size_t place = 0; place < row.m_json.size(); ++place )
        {
            EXPECT_EQ( Convert( row.m_json, { place } ), expected ) << row.m_json << " cut at " << place;
            all.push_back( place );
        }
        EXPECT_EQ( Convert( row.m_json, all ), expected ) << row.m_json;
    }
}

TEST( JCardTextTest, LongPropertyIsKeptAsItIs )
{
    const std::string head = R"(["vcard",[)";
    const std::string property = R"(["fn",{},"text","abcdefgh"])";
    const std::string json = head + s_kFn + "," + property + "]]";
    const std::string kept = CardOf( "FN:Mara\r\nFN:abcdefgh\r\n" );
    const auto longest = static_cast<qint64>( property.size() );
    const Converted other = { CardOf( R"(FN:Mara)"
                                      "\r\n"
                                      R"(X-JCARD:["fn"\,{}\,"text"\,"abcdefgh"])"
                                      "\r\n" ),
                              "json-part 1:1:34 x1 @35; " };
    for ( size_t place = 0; place < json.size(); ++place )
    {
        EXPECT_EQ( Convert( json, { place }, longest ), ( Converted{ kept, "" } ) ) << place;
        EXPECT_EQ( Convert( json, { place }, longest - 1 ), other ) << place;
    }
}

TEST( JCardTextTest, WhiteSpaceBeforeTheFirstCardIsLimited )
{
    const std::string card = R"(["vcard",[]])";
    EXPECT_EQ( Convert( std::string( JCardText::s_kLookedAt - 1, ' ' ) + card, {} ).m_text, CardOf( "" ) );
    const std::string late = std::string( JCardText::s_kLookedAt, ' ' ) + card;
    EXPECT_EQ( Convert( late, {} ).m_text, late );
    EXPECT_EQ( Convert( late, { 10, JCardText::s_kLookedAt + 2 } ).m_text, late );
}

// Nothing of it is lost, and nothing takes long.
TEST( JCardTextTest, HostileTextsAreLinear )
{
    constexpr size_t s_kBytes = 640 * 1024;
    const std::string head = R"(["vcard",[)" + s_kFn + ",";
    for ( const char byte : std::string( "[]{}\"\\,:1 \n" ) )
    {
        const std::string json = head + std::string( s_kBytes, byte );
        const Converted whole = Convert( json, {}, 2 * s_kBytes );
        std::vector<size_t> places;
        for ( size_t place = 0; place < json.size(); place += 1000 )
            places.push_back( place );
        EXPECT_EQ( whole, Convert( json, places, 2 * s_kBytes ) ) << byte;
        EXPECT_EQ( whole.m_text.substr( 0, 35 ), "BEGIN:VCARD\r\nVERSION:4.0\r\nFN:Mara\r\n" ) << byte;
        EXPECT_NE( whole.m_findings, "" ) << byte;
    }
}

} // namespace PimManager::Contacts
