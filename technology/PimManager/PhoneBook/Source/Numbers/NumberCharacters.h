/// \file
/// The characters of a telephone number.

#pragma once

#include <QString>
#include <QStringView>

namespace PimManager::PhoneBook
{

inline bool IsDigit( char16_t a_character )
{
    return a_character >= u'0' && a_character <= u'9';
}

/// The characters of a number, one at a time, in ASCII where an ASCII character means the same: decimal digits of any
/// script, fullwidth characters and percent-encoded ones.
class NumberCharacters
{
public:
    explicit NumberCharacters( QStringView a_text ) :
        m_text( a_text )
    {
        Decode();
    }

    bool IsEnd() const { return m_place >= m_text.size(); }
    /// `\0` at the end.
    char16_t Current() const { return m_current; }
    /// \return true for a letter of any alphabet of the Basic Multilingual Plane.
    bool IsLetter() const;
    void Step()
    {
        m_place += m_width;
        Decode();
    }
    /// Steps over ASCII digits and common punctuation and writes the digits, up to a number of characters.
    /// \return the number of digits.
    size_t TakeDigits( char* a_digits, size_t a_most );
    /// Steps over letters and returns them.
    QString TakeLetters();
    /// Steps to one of two signs or to the end and returns the text before it as written.
    QStringView TakeUpTo( char16_t a_sign, char16_t a_other );
    void SkipBlanks()
    {
        while ( m_current == u' ' )
            Step();
    }

private:
    void Decode()
    {
        m_width = 1;
        m_current = IsEnd() ? u'\0' : m_text[m_place].unicode();
        if ( m_current > s_kLastAscii )
            DecodeOther();
        else if ( m_current == u'%' )
            DecodePercent();
    }
    void DecodeOther();
    void DecodePercent();

    static constexpr char16_t s_kLastAscii = 0x7F;

    QStringView m_text;
    qsizetype m_place = 0;
    qsizetype m_width = 1;
    char16_t m_current = u'\0';
};

} // namespace PimManager::PhoneBook
