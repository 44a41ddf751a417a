#include "Numbers/NumberCharacters.h"

#include "Numbers/NumberWords.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

namespace
{

int HexValue( char16_t a_character )
{
    if ( IsDigit( a_character ) )
        return a_character - u'0';
    const char16_t letter = a_character | 0x20;
    return letter >= u'a' && letter <= u'f' ? letter - u'a' + 10 : -1;
}

// The fullwidth forms of the ASCII characters, and other signs that mean the same in a number.
char16_t PlainSign( char16_t a_character )
{
    constexpr char16_t s_kFirstFullwidth = 0xFF01;
    constexpr char16_t s_kLastFullwidth = 0xFF5E;
    constexpr char16_t s_kSmallPlus = 0xFE62;
    if ( a_character >= s_kFirstFullwidth && a_character <= s_kLastFullwidth )
        return static_cast<char16_t>( a_character - s_kFirstFullwidth + u'!' );
    return a_character == s_kSmallPlus ? u'+' : a_character;
}

} // namespace

bool NumberCharacters::IsLetter() const
{
    return m_current <= s_kLastAscii ? IsAsciiLetter( m_current ) : QChar::isLetter( m_text[m_place].unicode() );
}

// What most numbers consist of, without a decision for each character.
size_t NumberCharacters::TakeDigits( char* a_digits, size_t a_most )
{
    char* digit = a_digits;
    const QChar* character = m_text.begin() + m_place;
    const QChar* const end = character + std::min( m_text.size() - m_place, static_cast<qsizetype>( a_most ) );
    for ( ; character != end; ++character )
    {
        const char16_t code = character->unicode();
        if ( IsDigit( code ) )
            *digit++ = static_cast<char>( code );
        else if ( code != u' ' && code != u'-' && code != u')' && code != u'.' && code != u'/' )
            break;
    }
    m_place = character - m_text.begin();
    Decode();
    return static_cast<size_t>( digit - a_digits );
}

QString NumberCharacters::TakeLetters()
{
    QString letters;
    for ( ; !IsEnd() && IsLetter(); Step() )
        letters += QChar( m_current );
    return letters;
}

QStringView NumberCharacters::TakeUpTo( char16_t a_sign, char16_t a_other )
{
    const qsizetype begin = m_place;
    while ( !IsEnd() && m_current != a_sign && m_current != a_other )
        Step();
    return m_text.mid( begin, m_place - begin );
}

void NumberCharacters::DecodeOther()
{
    uint character = m_current;
    if ( QChar::isHighSurrogate( character ) && m_place + 1 < m_text.size() && m_text[m_place + 1].isLowSurrogate() )
    {
        character = QChar::surrogateToUcs4( m_current, m_text[m_place + 1].unicode() );
        m_width = 2;
    }
    m_current = QChar::isDigit( character ) ? static_cast<char16_t>( u'0' + QChar::digitValue( character ) )
                                            : PlainSign( m_current );
}

void NumberCharacters::DecodePercent()
{
    constexpr qsizetype s_kSize = 3;
    constexpr int s_kBase = 16;
    if ( m_text.size() - m_place < s_kSize )
        return;
    const int high = HexValue( m_text[m_place + 1].unicode() );
    const int low = HexValue( m_text[m_place + 2].unicode() );
    if ( high < 0 || low < 0 )
        return;
    m_current = static_cast<char16_t>( high * s_kBase + low );
    m_width = s_kSize;
}

} // namespace PimManager::PhoneBook
