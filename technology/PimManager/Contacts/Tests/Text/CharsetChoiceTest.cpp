#include "Text/CharsetChoice.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

TEST( CharsetChoiceTest, CharsetIsKnown )
{
    static constexpr std::array s_kNames = { "KOI8-R"sv, "iso-8859-1"sv, "\t Shift_JIS "sv, "ISO-2022-JP"sv };
    for ( const std::string_view name : s_kNames )
        EXPECT_TRUE( IsKnownCharset( name ) ) << name;
}

TEST( CharsetChoiceTest, CharsetIsNotKnown )
{
    static constexpr std::array s_kNames = { ""sv, "no-such-set"sv, "UTF-8"sv, " utf8 "sv, "US-ASCII"sv, "UTF-16"sv };
    for ( const std::string_view name : s_kNames )
        EXPECT_FALSE( IsKnownCharset( name ) ) << name;
}

TEST( CharsetChoiceTest, EscapeCharacterIsFound )
{
    EXPECT_TRUE( MayBeShifted( "\x1B"sv ) );
    EXPECT_TRUE( MayBeShifted( "FN:\x1B$B;3ED\x1B(B"sv ) );
    EXPECT_TRUE( MayBeShifted( "FN:\0\x1B"sv ) );
    EXPECT_FALSE( MayBeShifted( ""sv ) );
    EXPECT_FALSE( MayBeShifted( "FN:$B;3ED(B"sv ) );
    EXPECT_FALSE( MayBeShifted( "\x1A\x1C\x9B"sv ) );
}

// What is known about the card of a line.
enum Card : unsigned
{
    Bare = 0,
    Utf8 = 1,
    HasCharset = 2,
    HasDefault = 4,
};

struct Row
{
    const char* m_name;
    unsigned m_card;
    std::string_view m_text;
    std::string_view m_named;
    LineCharset m_expected;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

CharsetChoice ChoiceFor( unsigned a_card )
{
    return CharsetChoice( ( a_card & Card::Utf8 ) != 0, ( a_card & Card::HasCharset ) != 0,
                          ( a_card & Card::HasDefault ) != 0 );
}

template <size_t Size>
void ExpectRows( const std::array<Row, Size>& a_rows )
{
    for ( const Row& row : a_rows )
        EXPECT_EQ( ChoiceFor( row.m_card ).Of( row.m_text, row.m_named ), row.m_expected ) << row;
}

constexpr unsigned s_kAll = Card::Utf8 | Card::HasCharset | Card::HasDefault;

TEST( CharsetChoiceTest, CardInUtf8IsReadAsUtf8 )
{
    static constexpr std::array s_kRows = {
        Row{ "ASCII", Card::Utf8, "FN:Ann"sv, ""sv, LineCharset::Utf8 },
        Row{ "wide characters", Card::Utf8, "FN:J\xC3\xB6rg"sv, ""sv, LineCharset::Utf8 },
        Row{ "another set is named", s_kAll, "FN:J\xC3\xB6rg"sv, "ISO-8859-1"sv, LineCharset::Utf8 },
        Row{ "another set is named for ASCII", s_kAll, "FN:Joerg"sv, "ISO-8859-1"sv, LineCharset::Utf8 },
        Row{ "ISO-2022-JP is named, and no escape character", s_kAll, "FN:Ann"sv, "ISO-2022-JP"sv, LineCharset::Utf8 },
        Row{ "an escape character without a name", s_kAll, "FN:\x1B[1mAnn"sv, ""sv, LineCharset::Utf8 },
        Row{ "an escape character and another set", s_kAll, "FN:\x1B(I1"sv, "Shift_JIS"sv, LineCharset::Utf8 },
        Row{ "an escape character and an unknown set", s_kAll, "FN:\x1B(I1"sv, "ISO-2022-XY"sv, LineCharset::Utf8 },
        Row{ "an escape character and half a name", s_kAll, "FN:\x1B(I1"sv, "ISO-202"sv, LineCharset::Utf8 },
    };
    ExpectRows( s_kRows );
}

TEST( CharsetChoiceTest, ShiftsOfIso2022JpAreRecognisedInEveryCard )
{
    for ( unsigned card = Card::Bare; card <= s_kAll; ++card )
    {
        const std::array rows = {
            Row{ "ESC $ B", card, "FN:\x1B$B;3ED\x1B(B"sv, ""sv, LineCharset::Iso2022Jp },
            Row{ "ESC $ @", card, "FN:\x1B$@;3ED\x1B(J"sv, ""sv, LineCharset::Iso2022Jp },
            Row{ "behind another escape character", card, "FN:\x1B(J1\x1B$B;3ED\x1B(B"sv, ""sv,
                 LineCharset::Iso2022Jp },
            Row{ "with UTF-8 named", card, "FN:\x1B$B;3ED\x1B(B"sv, "UTF-8"sv, LineCharset::Iso2022Jp },
            Row{ "with another set named", card, "FN:\x1B$B;3ED\x1B(B"sv, "Shift_JIS"sv, LineCharset::Iso2022Jp },
            Row{ "with an unknown set named", card, "FN:\x1B$B;3ED\x1B(B"sv, "ISO-2022-XY"sv, LineCharset::Iso2022Jp },
            Row{ "with its own name", card, "FN:\x1B$B;3ED\x1B(B"sv, "ISO-2022-JP"sv, LineCharset::Line },
            Row{ "named in small letters", card, "FN:\x1B$B;3ED\x1B(B"sv, " iso-2022-jp "sv, LineCharset::Line },
            Row{ "named, with another shift", card, "FN:\x1B(I1\x1B(B"sv, "ISO-2022-JP"sv, LineCharset::Line },
        };
        SCOPED_TRACE( card );
        ExpectRows( rows );
    }
}

TEST( CharsetChoiceTest, LineOfAnotherCardIsDecidedByItself )
{
    constexpr unsigned card = Card::HasCharset | Card::HasDefault;
    static constexpr std::array s_kRows = {
        Row{ "ASCII", card, "FN:Ann"sv, ""sv, LineCharset::Utf8 },
        Row{ "ASCII with a known set", card, "FN:Ann"sv, "KOI8-R"sv, LineCharset::Utf8 },
        Row{ "an escape character in ASCII", card, "FN:\x1B[1mAnn"sv, ""sv, LineCharset::Utf8 },
        Row{ "a known set", card, "FN:J\xF6rg"sv, "ISO-8859-1"sv, LineCharset::Line },
        Row{ "a known set with blanks", card, "FN:J\xF6rg"sv, " iso-8859-1 "sv, LineCharset::Line },
        Row{ "ISO-2022-JP without an escape character", card, "FN:J\xF6rg"sv, "ISO-2022-JP"sv, LineCharset::Card },
        Row{ "ISO-2022-JP for valid UTF-8", card, "FN:J\xC3\xB6rg"sv, "ISO-2022-JP"sv, LineCharset::Utf8 },
        Row{ "ISO-2022-JP for ASCII", card, "FN:Ann"sv, "ISO-2022-JP"sv, LineCharset::Utf8 },
        Row{ "a known set for valid UTF-8", card, "FN:J\xC3\xB6rg"sv, "ISO-8859-1"sv, LineCharset::Line },
        Row{ "valid UTF-8", card, "FN:J\xC3\xB6rg"sv, ""sv, LineCharset::Utf8 },
        Row{ "valid UTF-8 that is named", card, "FN:J\xC3\xB6rg"sv, "UTF-8"sv, LineCharset::Utf8 },
        Row{ "valid UTF-8 with an unknown set", card, "FN:J\xC3\xB6rg"sv, "no-such-set"sv, LineCharset::Utf8 },
        Row{ "UTF-8 cut short, two to one", card, "FN:\xC3\xB6\xC3\xB6\xC3"sv, ""sv, LineCharset::Utf8 },
        Row{ "UTF-8 cut short, one to one", card, "FN:\xC3\xB6\xC3"sv, ""sv, LineCharset::Card },
        Row{ "UTF-8 cut short, two to two", card, "FN:\xC3\xB6\xC3\xB6\xE2\x82"sv, ""sv, LineCharset::Card },
        Row{ "other bytes", card, "FN:J\xF6rg"sv, ""sv, LineCharset::Card },
        Row{ "other bytes named UTF-8", card, "FN:J\xF6rg"sv, "UTF-8"sv, LineCharset::Card },
        Row{ "other bytes named ASCII", card, "FN:J\xF6rg"sv, "US-ASCII"sv, LineCharset::Card },
        Row{ "other bytes with an unknown set", card, "FN:J\xF6rg"sv, "no-such-set"sv, LineCharset::Card },
    };
    ExpectRows( s_kRows );
}

TEST( CharsetChoiceTest, UndecidedLineIsReadByTheCardThenByTheDefault )
{
    static constexpr std::array s_kRows = {
        Row{ "both", Card::HasCharset | Card::HasDefault, "FN:J\xF6rg"sv, ""sv, LineCharset::Card },
        Row{ "card", Card::HasCharset, "FN:J\xF6rg"sv, ""sv, LineCharset::Card },
        Row{ "default", Card::HasDefault, "FN:J\xF6rg"sv, ""sv, LineCharset::Default },
        Row{ "neither", Card::Bare, "FN:J\xF6rg"sv, ""sv, LineCharset::Utf8 },
        Row{ "neither, with a name", Card::Bare, "FN:J\xF6rg"sv, "ISO-8859-1"sv, LineCharset::Line },
    };
    ExpectRows( s_kRows );
}

} // namespace

} // namespace PimManager::Contacts
