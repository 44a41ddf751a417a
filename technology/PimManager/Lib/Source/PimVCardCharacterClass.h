/// \file
/// The characters that the vocabulary's token patterns accept, known without matching. Private to the component.

#pragma once

#include <QChar>
#include <QRegularExpression>
#include <QString>

#include <array>

namespace PimManager::vCard
{

/// The characters and the escape pairs that one token pattern accepts in a run.
///
/// Layout: `m_bytes` has an entry for each byte value, so the end of a run is found in UTF-8 text without decoding it:
///
///     byte    0x00 … 0x7F  true if the character is accepted; false for the backslash, which begins an escape pair
///             0x80 … 0xFF  true if every character that contains this byte is accepted
///
/// A character whose first byte is false here is decoded and tested alone.
struct PimVCardCharacterClass
{
    enum class Beyond : quint8
    {
        Nothing,
        LineBreaks, ///< NEL, U+2028 and U+2029
        Everything, ///< except for U+FEFF, which a run reads as the empty text
    };

    std::array<bool, 256> m_bytes;
    /// What is accepted above ASCII.
    Beyond m_beyond = Beyond::Nothing;
    /// A backslash that is not part of an escape pair is accepted.
    bool m_backslash = false;
    /// A backslash before a backslash, comma, semicolon or colon is accepted.
    bool m_escapePairs = false;
    /// The tokens of this class are few and recur often.
    bool m_recurs = false;
    /// Carriage returns are accepted.
    bool m_endsLines = false;
    /// The only character of the class. Null if there are more.
    const QString* m_delimiter = nullptr;

    /// \return the class of an expression that was made from a token pattern of the vocabulary, without options. Null
    ///         for any other expression.
    static const PimVCardCharacterClass* Find( const QRegularExpression& a_expression );

    /// The same for the pattern itself.
    static const PimVCardCharacterClass* Find( const QString& a_pattern );

    bool Matches( QChar a_character ) const
    {
        const ushort code = a_character.unicode();
        return code < 0x80 ? m_bytes[code] || ( m_backslash && code == '\\' ) : MatchesBeyondAscii( code );
    }

    /// True if a run may contain non-ASCII characters that m_bytes accepts.
    bool MayTakeBeyondAscii() const { return m_beyond == Beyond::Everything; }

    /// Like Matches(), for a backslash and the character after it.
    bool MatchesEscaped( QChar a_character ) const;

    /// \return the first byte from a_begin on that is not part of the run. a_end if there is none.
    const char* EndOfRun( const char* a_begin, const char* a_end ) const
    {
        const auto isIn = [this]( char a_byte ) { return m_bytes[static_cast<uchar>( a_byte )]; };
        const char* place = a_begin;
        // Four at a time: a photo is one run of thousands of bytes.
        while ( a_end - place >= 4 && isIn( place[0] ) && isIn( place[1] ) && isIn( place[2] ) && isIn( place[3] ) )
            place += 4;
        while ( place != a_end && isIn( *place ) )
            ++place;
        return place;
    }

private:
    bool MatchesBeyondAscii( ushort a_code ) const;
};

} // namespace PimManager::vCard
