#include "Charsets/Language.h"

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

namespace
{

constexpr int s_kAsciiLetter = 30;
constexpr int s_kKana = 42;
constexpr int s_kPunctuation = 65;
constexpr int s_kUnusualLetter = 105;
constexpr int s_kSymbol = 120;
constexpr int s_kNoText = 200;
// For what is odd about neighbours.
constexpr int s_kCapitalAfterSmall = 40;
constexpr int s_kThreeOfAKind = 25;
constexpr int s_kTwoScripts = 60;
constexpr int s_kSymbolInWord = 60;

constexpr int s_kMostLatin = 70;
constexpr int s_kMostAlphabet = 46;
constexpr int s_kMostEastAsian = 86;

// Of the letters in each group. Those of Latin include that one letter in twenty is beyond ASCII.
constexpr std::array s_kLatinCosts = { 30, 40, 50, 60, 70, 80, 90 };
constexpr std::array s_kAlphabetCosts = { 25, 32, 42, 55, 70 };
constexpr std::array s_kEastAsianCosts = { 62 };

template <size_t Size>
int CostIn( const std::array<int, Size>& a_costs, size_t a_group )
{
    return a_costs.at( std::min( a_group, Size - 1 ) );
}

int CostOfGroup( Script a_script, size_t a_group )
{
    if ( a_script == Script::Latin )
        return CostIn( s_kLatinCosts, a_group );
    return a_script == Script::Alphabet ? CostIn( s_kAlphabetCosts, a_group ) : CostIn( s_kEastAsianCosts, a_group );
}

// The highest average cost of a character beyond ASCII in real text; random text costs more.
int MostOf( Script a_script )
{
    if ( a_script == Script::Latin )
        return s_kMostLatin;
    return a_script == Script::Alphabet ? s_kMostAlphabet : s_kMostEastAsian;
}

bool IsAscii( QChar a_letter )
{
    return a_letter.unicode() < 0x80;
}

bool IsBetween( QChar a_letter, ushort a_first, ushort a_last )
{
    return a_letter.unicode() >= a_first && a_letter.unicode() <= a_last;
}

bool IsKana( QChar a_letter )
{
    return IsBetween( a_letter, 0x3041, 0x30FE ) || IsBetween( a_letter, 0xFF66, 0xFF9F );
}

// Punctuation that occurs in names and addresses, the wide forms of ASCII included.
bool IsUsualPunctuation( QChar a_letter )
{
    return IsBetween( a_letter, 0x2010, 0x2026 ) || IsBetween( a_letter, 0x3000, 0x301F ) ||
           IsBetween( a_letter, 0xFF01, 0xFF5E ) ||
           QStringLiteral( "\u00A0\u00AB\u00BB\u00BA\u00AA\u00B0\u2116\u30FB" ).contains( a_letter );
}

bool IsNoText( QChar a_letter )
{
    return a_letter.isSurrogate() || a_letter.category() == QChar::Other_Control ||
           a_letter.category() == QChar::Other_PrivateUse || a_letter.category() == QChar::Other_NotAssigned;
}

// The letter without its accent.
QChar BaseOf( QChar a_letter )
{
    const QString parts = a_letter.decomposition();
    return ( parts.isEmpty() ? a_letter : parts.at( 0 ) ).toLower();
}

bool IsVowel( QChar a_letter )
{
    return QStringLiteral( "aeiouy\u00E6\u00F8\u0153\u0131" ).contains( BaseOf( a_letter ) );
}

// Hardly a word has three vowels or three consonants in a row with an accent on the middle one.
bool IsAmongItsKind( const QString& a_word, int a_place )
{
    if ( a_place == 0 || a_place + 1 >= a_word.size() )
        return false;
    const QChar before = a_word.at( a_place - 1 );
    const QChar after = a_word.at( a_place + 1 );
    const bool isVowel = IsVowel( a_word.at( a_place ) );
    return before.isLetter() && after.isLetter() && IsVowel( before ) == isVowel && IsVowel( after ) == isVowel;
}

// An apostrophe and a dash are usual there.
bool IsSymbolInWord( const QString& a_word, int a_place )
{
    const QChar letter = a_word.at( a_place );
    if ( IsAscii( letter ) || letter.isLetterOrNumber() || letter.isMark() || IsBetween( letter, 0x2010, 0x2019 ) )
        return false;
    return a_place > 0 && a_word.at( a_place - 1 ).isLetter() && a_place + 1 < a_word.size() &&
           a_word.at( a_place + 1 ).isLetter();
}

// East Asian words may follow Latin capitals, as in names of companies.
bool AreOfTwoScripts( Script a_script, QChar a_first, QChar a_second )
{
    if ( a_script == Script::Latin || IsAscii( a_first ) == IsAscii( a_second ) )
        return false;
    const QChar ascii = IsAscii( a_first ) ? a_first : a_second;
    return a_script == Script::Alphabet ? ascii.isLetter() : ascii.isLower();
}

int CostOfNeighbours( Script a_script, const QString& a_word, int a_place )
{
    const QChar letter = a_word.at( a_place );
    const QChar before = a_place > 0 ? a_word.at( a_place - 1 ) : QChar();
    const bool isAscii = IsAscii( before ) && IsAscii( letter );
    int cost = AreOfTwoScripts( a_script, before, letter ) ? s_kTwoScripts : 0;
    if ( before.isLower() && letter.isUpper() && !isAscii )
        cost += s_kCapitalAfterSmall;
    if ( a_script == Script::Latin && letter.isLetter() && !IsAscii( letter ) && IsAmongItsKind( a_word, a_place ) )
        cost += s_kThreeOfAKind;
    if ( IsSymbolInWord( a_word, a_place ) && ( a_script == Script::Latin || a_script == Script::Alphabet ) )
        cost += s_kSymbolInWord;
    return cost;
}

} // namespace

Fit& Fit::operator+=( const Fit& a_other )
{
    m_cost += a_other.m_cost;
    m_wide += a_other.m_wide;
    m_wideCost += a_other.m_wideCost;
    return *this;
}

Language::Language( Script a_script, std::u16string_view a_letters ) :
    m_script( a_script )
{
    size_t group = 0;
    for ( const char16_t letter : a_letters )
    {
        if ( letter == u'/' )
            ++group;
        else
            m_costs.insert( letter, CostOfGroup( a_script, group ) );
    }
}

Fit Language::FitOf( const QString& a_word ) const
{
    Fit fit;
    for ( int i = 0; i < a_word.size(); ++i )
    {
        const QChar letter = a_word.at( i );
        const int cost = CostOf( letter ) + CostOfNeighbours( m_script, a_word, i );
        fit.m_cost += cost;
        fit.m_wide += IsAscii( letter ) ? 0 : 1;
        fit.m_wideCost += IsAscii( letter ) ? 0 : cost;
    }
    return fit;
}

bool Language::IsCommon( const Fit& a_fit ) const
{
    return a_fit.m_wideCost <= a_fit.m_wide * MostOf( m_script );
}

int Language::CostOf( QChar a_letter ) const
{
    if ( IsAscii( a_letter ) )
        return a_letter.isLetter() ? s_kAsciiLetter : 0;
    const auto found = m_costs.constFind( a_letter.toLower().unicode() );
    return found != m_costs.constEnd() ? *found : CostOfUnusual( a_letter );
}

int Language::CostOfUnusual( QChar a_letter ) const
{
    if ( m_script == Script::Japanese && IsKana( a_letter ) )
        return s_kKana;
    if ( IsUsualPunctuation( a_letter ) )
        return s_kPunctuation;
    if ( IsNoText( a_letter ) )
        return s_kNoText;
    return a_letter.isLetter() ? s_kUnusualLetter : s_kSymbol;
}

} // namespace PimManager::Tools
