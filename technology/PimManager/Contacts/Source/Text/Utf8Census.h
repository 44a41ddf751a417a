/// \file
/// Checks whether a text is UTF-8.

#pragma once

#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Counts the characters of a text that is passed in pieces. A character may continue in the next piece; the counts do
/// not depend on how the text is cut.
///
/// Overlong forms, surrogates and characters beyond U+10FFFF are malformed (RFC 3629). Each byte that belongs to no
/// character counts as one malformed character. For example, `E2 82 61` has two of them, and then the letter `a`.
///
/// A character that is still unfinished is not counted until the next piece or EndText() decides.
class Utf8Census
{
public:
    /// Counts the next bytes of the text.
    void Take( std::string_view a_piece );

    /// Ends the text: an unfinished character is malformed. Further pieces belong to another text; the counts continue.
    void EndText();

    bool IsAscii() const { return m_wide == 0 && m_malformed == 0; }
    bool IsValid() const { return m_malformed == 0; }
    /// The number of complete characters beyond ASCII.
    qint64 Wide() const { return m_wide; }
    /// The number of bytes that belong to no character.
    qint64 Malformed() const { return m_malformed; }

private:
    void TakeByte( uchar a_byte );
    void Begin( uchar a_lead );
    void Expect( int a_tails, uchar a_least, uchar a_most );

    qint64 m_wide = 0;
    qint64 m_malformed = 0;
    // The unfinished character: the number of bytes read, the number missing, and the range of the next one.
    int m_taken = 0;
    int m_missing = 0;
    uchar m_least = 0x80;
    uchar m_most = 0xBF;
};

} // namespace PimManager::Contacts
