#include "Page/NameOrder.h"

#include "Terminal/CodePoints.h"

#include <QStringList>

#include <algorithm>

namespace PimManager::Tools
{

namespace
{

const QString s_kRest = QStringLiteral( "#" );
// The longest part of a name that is compared.
constexpr int s_kCompared = 60;

bool IsAccent( uint a_codePoint )
{
    return QChar::script( a_codePoint ) == QChar::Script_Inherited && QChar::isMark( a_codePoint );
}

QString WithoutAccents( const QString& a_text )
{
    QString text;
    ForEachCodePoint( a_text.normalized( QString::NormalizationForm_KD ),
                      [&text]( uint a_codePoint, QStringView a_units )
                      {
                          if ( !IsAccent( a_codePoint ) )
                              text += a_units;
                      } );
    return text.normalized( QString::NormalizationForm_C );
}

QString FromFirstLetter( QStringView a_text )
{
    while ( !a_text.isEmpty() && !QChar::isLetterOrNumber( FirstCodePoint( a_text ) ) )
        a_text = a_text.mid( UnitsOf( FirstCodePoint( a_text ) ) );
    return a_text.toString();
}

// Kana are in the order of their rows. Katakana have the same order.
QString KanaRow( uint a_codePoint )
{
    static const QString s_rows = QStringLiteral( u"あかさたなはまやらわ" );
    constexpr uint s_kKatakana = 0x30A0;
    constexpr uint s_kToHiragana = 0x60;
    const QChar kana( static_cast<ushort>( a_codePoint >= s_kKatakana ? a_codePoint - s_kToHiragana : a_codePoint ) );
    const auto* const next = std::upper_bound( s_rows.begin(), s_rows.end(), kana );
    return QString( next == s_rows.begin() ? *next : *( next - 1 ) );
}

bool IsKana( uint a_codePoint )
{
    constexpr uint s_kFirst = 0x3041;
    constexpr uint s_kLast = 0x30FF;
    return a_codePoint >= s_kFirst && a_codePoint <= s_kLast;
}

bool IsHangulSyllable( uint a_codePoint )
{
    constexpr uint s_kFirst = 0xAC00;
    constexpr uint s_kLast = 0xD7A3;
    return a_codePoint >= s_kFirst && a_codePoint <= s_kLast;
}

// A syllable is found by its first consonant; a doubled one is with the plain one.
QString FirstConsonant( uint a_codePoint )
{
    static const QString s_consonants = QStringLiteral( u"ㄱㄱㄴㄷㄷㄹㅁㅂㅂㅅㅅㅇㅈㅈㅊㅋㅌㅍㅎ" );
    constexpr uint s_kFirst = 0xAC00;
    constexpr uint s_kPerConsonant = 588;
    return QString( s_consonants[static_cast<int>( ( a_codePoint - s_kFirst ) / s_kPerConsonant )] );
}

QString SectionOf( const QString& a_text )
{
    const uint letter = a_text.isEmpty() ? '#' : FirstCodePoint( a_text );
    if ( !QChar::isLetter( letter ) )
        return s_kRest;
    if ( IsKana( letter ) )
        return KanaRow( letter );
    if ( IsHangulSyllable( letter ) )
        return FirstConsonant( letter );
    if ( QChar::script( letter ) == QChar::Script_Han )
        return QStringLiteral( u"漢" );
    return a_text.left( UnitsOf( letter ) ).toUpper();
}

} // namespace

NamePlace PlaceOf( const QString& a_name )
{
    const QString text = FromFirstLetter( WithoutAccents( a_name ) );
    return { SectionOf( text ), text.left( s_kCompared ).toCaseFolded() };
}

bool operator<( const NamePlace& a_left, const NamePlace& a_right )
{
    if ( a_left.m_section == a_right.m_section )
        return a_left.m_text < a_right.m_text;
    if ( a_left.m_section == s_kRest || a_right.m_section == s_kRest )
        return a_right.m_section == s_kRest;
    return a_left.m_section < a_right.m_section;
}

} // namespace PimManager::Tools
