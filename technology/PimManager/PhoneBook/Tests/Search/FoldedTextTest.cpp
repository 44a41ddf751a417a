#include "Search/FoldedText.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

struct Row
{
    const char16_t* m_text;
    /// The words. `|` divides the spellings of a word; `/` is between words of one chain, `-` before a start that is no
    /// word, and a blank between chains.
    const char* m_words;
};

std::string Both( const FoldedText& a_text, const FoldedText::Chain& a_chain, const FoldedText::Start& a_begin,
                  const FoldedText::Start& a_end )
{
    const auto plain = std::string( a_text.Text( a_begin.m_plain, a_end.m_plain ) );
    if ( !a_chain.HasSpelling() )
        return plain;
    const auto spelled = std::string( a_text.Text( a_begin.m_spelled, a_end.m_spelled ) );
    return spelled == plain ? plain : plain + '|' + spelled;
}

std::string WordsOf( const FoldedText& a_text )
{
    std::string words;
    for ( const FoldedText::Chain& chain : a_text.Chains() )
    {
        words += words.empty() ? "" : " ";
        for ( quint32 i = 0; i < chain.m_starts; ++i )
        {
            const FoldedText::Start begin = a_text.StartAt( chain, i );
            const FoldedText::Start end = i + 1 < chain.m_starts
                                              ? a_text.StartAt( chain, i + 1 )
                                              : FoldedText::Start{ chain.m_plainEnd, chain.m_spelledEnd, true };
            words += i == 0 ? "" : begin.m_isWord ? "/" : "-";
            words += Both( a_text, chain, begin, end );
        }
    }
    return words;
}

constexpr std::array s_kRows = {
    Row{ u"", "" },
    Row{ u" \t\n", "" },
    Row{ u"Anna", "anna" },
    Row{ u"  Anna   BERG ", "anna berg" },
    // German, and letters that other people write in two ways.
    Row{ u"Müller", "muller|mueller" },
    Row{ u"MU\u0308LLER", "muller|mueller" },
    Row{ u"Mueller", "mueller" },
    Row{ u"Jörg Weiß", "jorg|joerg weis|weiss" },
    Row{ u"GROẞ", "gros|gross" },
    Row{ u"Bärenstößer", "barenstoser|baerenstoesser" },
    Row{ u"Sørensen Ærø", "sorensen|soerensen aro|aeroe" },
    Row{ u"Åström A\u030Astro\u0308m", "astrom|aastroem astrom|aastroem" },
    Row{ u"Œuvre", "ouvre|oeuvre" },
    Row{ u"Đoković đ", "dokovic|djokovic d|dj" },
    Row{ u"Þór Guðrún", "tor|thor gudrun|guthrun" },
    Row{ u"Łucja Ħal ĸ", "lucja hal k" },
    Row{ u"\u01D6", "u|ue" },
    // Accents of Latin letters.
    Row{ u"Zoë Núria François Škoda Nguyễn Ñuñez Čapek", "zoe nuria francois skoda nguyen nunez capek" },
    Row{ u"e\u0301e\u0301", "ee" },
    Row{ u"ñ\u0303\u0303\u0303", "n" },
    Row{ u"İstanbul ISPARTA ıspartA", "istanbul isparta isparta" },
    Row{ u"ﬁn \u01C4 ſ", "fin dz s" },
    Row{ u"Ｆｕｌｌ１２", "full-12" },
    // Greek.
    Row{ u"Δάφνη ΣΊΣΥΦΟΣ", "\xCE\xB4\xCE\xB1\xCF\x86\xCE\xBD\xCE\xB7 "
                           "\xCF\x83\xCE\xB9\xCF\x83\xCF\x85\xCF\x86\xCE\xBF\xCF\x83" },
    Row{ u"ας ᾳ", "\xCE\xB1\xCF\x83 \xCE\xB1" },
    // Cyrillic.
    Row{ u"Алёна Андрей", "\xD0\xB0\xD0\xBB\xD0\xB5\xD0\xBD\xD0\xB0 "
                          "\xD0\xB0\xD0\xBD\xD0\xB4\xD1\x80\xD0\xB5\xD0\xB8" },
    Row{ u"Ґ Є Ї", "\xD0\xB3 \xD0\xB5 \xD1\x96" },
    // Hebrew and Arabic.
    Row{ u"שָׁלוֹם", "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9E" },
    Row{ u"مُحَمَّد", "\xD9\x85\xD8\xAD\xD9\x85\xD8\xAF" },
    Row{ u"مـحـمـد", "\xD9\x85\xD8\xAD\xD9\x85\xD8\xAF" },
    Row{ u"أحمد إيمان آدم", "\xD8\xA7\xD8\xAD\xD9\x85\xD8\xAF \xD8\xA7\xD9\x8A\xD9\x85\xD8\xA7\xD9\x86 "
                            "\xD8\xA7\xD8\xAF\xD9\x85" },
    Row{ u"ليلى", "\xD9\x84\xD9\x8A\xD9\x84\xD9\x8A" },
    Row{ u"ة", "\xD9\x87|\xD8\xAA" },
    Row{ u"ک ی", "\xD9\x83 \xD9\x8A" },
    Row{ u"\uFEFB", "\xD9\x84\xD8\xA7" },
    // The vowels of other scripts are marks.
    Row{ u"कि", "\xE0\xA4\x95\xE0\xA4\xBF" },
    // Words without white space between them.
    Row{ u"O'Neil O\u2019Neil Jean-Luc", "o/neil o/neil jean/luc" },
    Row{ u"J.R.R. (Tolkien)", "j/r/r tolkien" },
    Row{ u"Ka\u02BBiulani", "ka/iulani" },
    Row{ u"Müller-Lüdenscheidt", "muller|mueller/ludenscheidt|luedenscheidt" },
    Row{ u"Ann\u00ADa\u200Db", "annab" },
    Row{ u"agent007 4you", "agent-007 4-you" },
    Row{ u"AT&T Foo™ ½ \U0001F600", "at/t foo" },
    // Scripts without blanks.
    Row{ u"山田太郎", "\xE5\xB1\xB1-\xE7\x94\xB0-\xE5\xA4\xAA-\xE9\x83\x8E" },
    Row{ u"山田　太郎", "\xE5\xB1\xB1-\xE7\x94\xB0/\xE5\xA4\xAA-\xE9\x83\x8E" },
    Row{ u"\U00020BB7野", "\xF0\xA0\xAE\xB7-\xE9\x87\x8E" },
    Row{ u"山 a 田", "\xE5\xB1\xB1 a \xE7\x94\xB0" },
    Row{ u"サ ｻ さ", "\xE3\x81\x95/\xE3\x81\x95/\xE3\x81\x95" },
    // Digits of other scripts.
    Row{ u"٣٤ ०१ \U0001D7D8", "34 01 0" },
    // What is no text.
    Row{ u"\u0001\u001F\u007F\u0085", "" },
    Row{ u"\u0301\u0308", "" },
    Row{ u"-\uFFFE\uFFFF\U0010FFFF", "" },
};

} // namespace

TEST( FoldedTextTest, TextIsCutAndFolded )
{
    for ( const Row& row : s_kRows )
    {
        FoldedText text;
        text.Append( QString::fromUtf16( row.m_text ) );
        EXPECT_EQ( row.m_words, WordsOf( text ) ) << QString::fromUtf16( row.m_text ).toStdString();
    }
}

TEST( FoldedTextTest, TextsAreNotJoined )
{
    FoldedText text;
    text.Append( QStringLiteral( "ann-" ) );
    text.Append( QStringLiteral( "a" ) );
    EXPECT_EQ( "ann a", WordsOf( text ) );
    text.Clear();
    text.Append( QStringLiteral( "\u00E4b" ) );
    text.Append( QStringLiteral( "cd" ) );
    EXPECT_EQ( "ab|aeb cd", WordsOf( text ) );
}

TEST( FoldedTextTest, LoneSurrogateDividesWords )
{
    for ( const int surrogate : { 0xD800, 0xDBFF, 0xDC00, 0xDFFF } )
    {
        FoldedText text;
        text.Append( QStringLiteral( "a" ) + QChar( surrogate ) + QStringLiteral( "b" ) );
        EXPECT_EQ( "a/b", WordsOf( text ) ) << std::hex << surrogate;
    }
}

TEST( FoldedTextTest, NulDividesWords )
{
    FoldedText text;
    text.Append( QStringLiteral( "a" ) + QChar( u'\0' ) + QStringLiteral( "b" ) );
    EXPECT_EQ( "a/b", WordsOf( text ) );
}

TEST( FoldedTextTest, PlusBeforeAWordIsKnown )
{
    FoldedText text;
    text.Append( QStringLiteral( "+49 30 a+ 5 \uFF0B7 +a8" ) );
    std::string pluses;
    for ( const FoldedText::Chain& chain : text.Chains() )
        pluses += chain.m_isAfterPlus ? '+' : '-';
    EXPECT_EQ( "+---++", pluses );
}

TEST( FoldedTextTest, EveryCodePointIsFoldedWithoutAFault )
{
    LetterFolding letters;
    int folded = 0;
    for ( char32_t character = 0; character <= 0x110000; ++character )
    {
        const FoldedLetter& letter = letters.Of( character );
        EXPECT_EQ( letter.m_kind >= LetterKind::Letter, !letter.m_plain.empty() ) << std::hex << int( character );
        EXPECT_EQ( letter.m_plain.empty(), letter.m_spelled.empty() ) << std::hex << int( character );
        folded += letter.m_plain.empty() ? 0 : 1;
    }
    EXPECT_GT( folded, 100000 );
}

// A folded text is found by itself.
TEST( FoldedTextTest, FoldingAgainChangesNothing )
{
    LetterFolding letters;
    for ( char32_t character = 0x80; character <= 0x2FFFF; ++character )
    {
        const std::string plain = letters.Of( character ).m_plain;
        if ( plain.empty() )
            continue;
        FoldedText text;
        text.Append( QString::fromStdString( plain ) );
        ASSERT_EQ( 1U, text.Chains().size() ) << std::hex << int( character );
        EXPECT_EQ( plain, text.Text( 0, text.Chains().front().m_plainEnd ) ) << std::hex << int( character );
    }
}

} // namespace PimManager::PhoneBook
