#include "Search/LetterFolding.h"

#include <QChar>
#include <QString>
#include <QVector>

#include <algorithm>
#include <array>

namespace PimManager::PhoneBook
{

namespace
{

constexpr size_t s_kMemory = 128;
constexpr char32_t s_kNoCharacter = 0xFFFFFFFF;
constexpr char32_t s_kDiaeresis = 0x0308;
constexpr char32_t s_kRing = 0x030A;

struct Range
{
    char32_t m_first;
    char32_t m_last;
};

struct Replacement
{
    char32_t m_from;
    const char* m_plain;
    const char* m_spelled;
};

constexpr std::array s_kDroppedMarks = {
    Range{ 0x0300, 0x036F }, Range{ 0x0483, 0x0489 },   Range{ 0x0591, 0x05BD }, Range{ 0x05BF, 0x05BF },
    Range{ 0x05C1, 0x05C2 }, Range{ 0x05C4, 0x05C5 },   Range{ 0x05C7, 0x05C7 }, Range{ 0x0610, 0x061A },
    Range{ 0x0640, 0x0640 }, Range{ 0x064B, 0x065F },   Range{ 0x0670, 0x0670 }, Range{ 0x06D6, 0x06DC },
    Range{ 0x06DF, 0x06E4 }, Range{ 0x06E7, 0x06E8 },   Range{ 0x06EA, 0x06ED }, Range{ 0x08D3, 0x08FF },
    Range{ 0x1AB0, 0x1AFF }, Range{ 0x1DC0, 0x1DFF },   Range{ 0x20D0, 0x20F0 }, Range{ 0xFE00, 0xFE0F },
    Range{ 0xFE20, 0xFE2F }, Range{ 0xE0100, 0xE01EF },
};

// Apostrophes and strokes that Unicode counts as letters.
constexpr std::array s_kLetterApostrophes = { Range{ 0x02B9, 0x02C1 }, Range{ 0x02C6, 0x02DF } };

constexpr std::array s_kIdeographs = {
    Range{ 0x1100, 0x11FF }, Range{ 0x2E80, 0x2FDF },   Range{ 0x3005, 0x3007 },   Range{ 0x3021, 0x3029 },
    Range{ 0x3041, 0x3096 }, Range{ 0x309D, 0x309F },   Range{ 0x30A1, 0x30FA },   Range{ 0x30FD, 0x312F },
    Range{ 0x3131, 0x318E }, Range{ 0x31A0, 0x31FF },   Range{ 0x3400, 0x4DBF },   Range{ 0x4E00, 0x9FFF },
    Range{ 0xAC00, 0xD7A3 }, Range{ 0xF900, 0xFAFF },   Range{ 0xFF66, 0xFF6F },   Range{ 0xFF71, 0xFF9D },
    Range{ 0xFFA0, 0xFFDC }, Range{ 0x1B000, 0x1B16F }, Range{ 0x20000, 0x3FFFF },
};

// In the order of the code points.
constexpr std::array s_kReplacements = {
    Replacement{ 0x00DF, "s", "ss" },              // sharp s
    Replacement{ 0x00E6, "a", "ae" },              // ae
    Replacement{ 0x00F0, "d", "th" },              // eth
    Replacement{ 0x00F8, "o", "oe" },              // o with stroke
    Replacement{ 0x00FE, "t", "th" },              // thorn
    Replacement{ 0x0111, "d", "dj" },              // d with stroke
    Replacement{ 0x0127, "h", "h" },               // h with stroke
    Replacement{ 0x0131, "i", "i" },               // dotless i
    Replacement{ 0x0138, "k", "k" },               // kra
    Replacement{ 0x0142, "l", "l" },               // l with stroke
    Replacement{ 0x014B, "n", "ng" },              // eng
    Replacement{ 0x0153, "o", "oe" },              // oe
    Replacement{ 0x0167, "t", "t" },               // t with stroke
    Replacement{ 0x0180, "b", "b" },               // b with stroke
    Replacement{ 0x0192, "f", "f" },               // f with hook
    Replacement{ 0x0259, "e", "a" },               // schwa
    Replacement{ 0x0268, "i", "i" },               // i with stroke
    Replacement{ 0x0454, "\xD0\xB5", "\xD0\xB5" }, // Ukrainian ie
    Replacement{ 0x0491, "\xD0\xB3", "\xD0\xB3" }, // ghe with upturn
    Replacement{ 0x05DA, "\xD7\x9B", "\xD7\x9B" }, // final kaf
    Replacement{ 0x05DD, "\xD7\x9E", "\xD7\x9E" }, // final mem
    Replacement{ 0x05DF, "\xD7\xA0", "\xD7\xA0" }, // final nun
    Replacement{ 0x05E3, "\xD7\xA4", "\xD7\xA4" }, // final pe
    Replacement{ 0x05E5, "\xD7\xA6", "\xD7\xA6" }, // final tsadi
    Replacement{ 0x0629, "\xD9\x87", "\xD8\xAA" }, // teh marbuta: heh, teh
    Replacement{ 0x0649, "\xD9\x8A", "\xD9\x8A" }, // alef maksura: yeh
    Replacement{ 0x0671, "\xD8\xA7", "\xD8\xA7" }, // alef wasla: alef
    Replacement{ 0x06A9, "\xD9\x83", "\xD9\x83" }, // keheh: kaf
    Replacement{ 0x06BE, "\xD9\x87", "\xD9\x87" }, // heh doachashmee: heh
    Replacement{ 0x06C1, "\xD9\x87", "\xD9\x87" }, // heh goal: heh
    Replacement{ 0x06CC, "\xD9\x8A", "\xD9\x8A" }, // Farsi yeh: yeh
    Replacement{ 0x06D5, "\xD9\x87", "\xD9\x87" }, // ae: heh
};

template <size_t t_count>
bool IsIn( const std::array<Range, t_count>& a_ranges, char32_t a_character )
{
    const auto range =
        std::lower_bound( a_ranges.begin(), a_ranges.end(), a_character,
                          []( const Range& a_range, char32_t a_value ) { return a_range.m_last < a_value; } );
    return range != a_ranges.end() && range->m_first <= a_character;
}

const Replacement* ReplacementOf( char32_t a_character )
{
    const auto* const found =
        std::lower_bound( s_kReplacements.begin(), s_kReplacements.end(), a_character,
                          []( const Replacement& a_row, char32_t a_value ) { return a_row.m_from < a_value; } );
    return found != s_kReplacements.end() && found->m_from == a_character ? found : nullptr;
}

char32_t HiraganaOf( char32_t a_character )
{
    constexpr Range s_kKatakana = { 0x30A1, 0x30F6 };
    constexpr char32_t s_kDistance = 0x60;
    const bool isKatakana = a_character >= s_kKatakana.m_first && a_character <= s_kKatakana.m_last;
    return isKatakana ? a_character - s_kDistance : a_character;
}

LetterKind KindOf( char32_t a_character )
{
    if ( a_character > QChar::LastValidCodePoint || QChar::isSurrogate( a_character ) )
        return LetterKind::Joint;
    if ( QChar::isSpace( a_character ) )
        return LetterKind::Space;
    if ( IsIn( s_kDroppedMarks, a_character ) || QChar::category( a_character ) == QChar::Other_Format )
        return LetterKind::Ignored;
    if ( QChar::digitValue( a_character ) >= 0 && QChar::category( a_character ) == QChar::Number_DecimalDigit )
        return LetterKind::Digit;
    const bool isLetter = QChar::isLetter( a_character ) || QChar::isMark( a_character ) ||
                          QChar::category( a_character ) == QChar::Number_Letter;
    if ( !isLetter || IsIn( s_kLetterApostrophes, a_character ) )
        return LetterKind::Joint;
    return IsIn( s_kIdeographs, a_character ) && !QChar::isMark( a_character ) ? LetterKind::Ideograph
                                                                               : LetterKind::Letter;
}

/// Appends a character of a decomposition.
void AppendFolded( char32_t a_character, FoldedLetter& a_letter )
{
    const LetterKind kind = KindOf( a_character );
    if ( kind == LetterKind::Ignored && !a_letter.m_plain.empty() )
        a_letter.m_spelled += SpellingOfMark( a_letter.m_plain.back(), a_character );
    if ( kind == LetterKind::Digit )
    {
        a_letter.m_plain += static_cast<char>( '0' + QChar::digitValue( a_character ) );
        a_letter.m_spelled += a_letter.m_plain.back();
    }
    if ( kind != LetterKind::Letter && kind != LetterKind::Ideograph )
        return;
    const char32_t folded = HiraganaOf( QChar::toCaseFolded( a_character ) );
    if ( const Replacement* const replacement = ReplacementOf( folded ) )
    {
        a_letter.m_plain += replacement->m_plain;
        a_letter.m_spelled += replacement->m_spelled;
        return;
    }
    AppendUtf8( folded, a_letter.m_plain );
    AppendUtf8( folded, a_letter.m_spelled );
}

void Fold( FoldedLetter& a_letter )
{
    a_letter.m_plain.clear();
    a_letter.m_spelled.clear();
    a_letter.m_kind = KindOf( a_letter.m_character );
    if ( a_letter.m_kind < LetterKind::Letter )
        return;
    const char32_t character = a_letter.m_character;
    const auto decomposed = QString::fromUcs4( &character, 1 ).normalized( QString::NormalizationForm_KD ).toUcs4();
    for ( const uint part : decomposed )
        AppendFolded( part, a_letter );
    if ( a_letter.m_plain.empty() )
        a_letter.m_kind = LetterKind::Joint;
}

} // namespace

const FoldedLetter& LetterFolding::Of( char32_t a_character )
{
    if ( m_memory.empty() )
        m_memory.resize( s_kMemory, { s_kNoCharacter, LetterKind::Joint, {}, {} } );
    FoldedLetter& letter = m_memory[a_character % s_kMemory];
    if ( letter.m_character != a_character )
    {
        letter.m_character = a_character;
        Fold( letter );
    }
    return letter;
}

const char* SpellingOfMark( char a_letter, char32_t a_mark )
{
    if ( a_mark == s_kDiaeresis && ( a_letter == 'a' || a_letter == 'o' || a_letter == 'u' ) )
        return "e";
    return a_mark == s_kRing && a_letter == 'a' ? "a" : "";
}

void AppendUtf8( char32_t a_character, std::string& a_text )
{
    const auto add = [&a_text]( char32_t a_byte ) { a_text += static_cast<char>( static_cast<uchar>( a_byte ) ); };
    if ( a_character < 0x80 )
        return add( a_character );
    if ( a_character < 0x800 )
        add( 0xC0 | a_character >> 6 );
    else if ( a_character < 0x10000 )
        add( 0xE0 | a_character >> 12 );
    else
        add( 0xF0 | a_character >> 18 );
    if ( a_character >= 0x10000 )
        add( 0x80 | ( a_character >> 12 & 0x3F ) );
    if ( a_character >= 0x800 )
        add( 0x80 | ( a_character >> 6 & 0x3F ) );
    add( 0x80 | ( a_character & 0x3F ) );
}

} // namespace PimManager::PhoneBook
