/// \file
/// What the vocabulary's token patterns accept, known without matching. Private to the component.

#pragma once

#include <QChar>
#include <QRegularExpression>
#include <QString>

#include <array>

namespace PimManager::vCard
{

/// The characters and the escape pairs that one token pattern accepts in a run.
///
/// Layout: `m_bytes` has an entry for each byte value, so that a run is found in UTF-8 text without decoding it:
///
///     byte    0x00 … 0x7F  the character itself; false for the backslash, which begins an escape pair
///             0x80 … 0xFF  true if every character that it begins or goes on with is accepted
///
/// A character whose first byte is false here is decoded and asked for alone.
struct PimVCardCharacterClass
{
    enum class Beyond : quint8
    {
        Nothing,
        LineBreaks, ///< NEL, U+2028 and U+2029
        Everything, ///< but for U+FEFF, which a run reads as the empty text
    };

    std::array<bool, 256> m_bytes;
    /// What is accepted above ASCII.
    Beyond m_beyond = Beyond::Nothing;
    /// A backslash without a partner is accepted.
    bool m_backslash = false;
    /// A backslash with a backslash, comma, semicolon or colon is accepted.
    bool m_escapePairs = false;
    /// The same few tokens come again and again.
    bool m_recurs = false;
    /// Carriage returns are accepted.
    bool m_endsLines = false;
    /// The only character of the class; null if there are more.
    const QString* m_delimiter = nullptr;

    /// \return the class of an expression that was made from a token pattern of the vocabulary, without options; null
    ///         for any other expression.
    static const PimVCardCharacterClass* Find( const QRegularExpression& a_expression );

    /// The same for the pattern itself.
    static const PimVCardCharacterClass* Find( const QString& a_pattern );

    bool Matches( QChar a_character ) const
    {
        const ushort code = a_character.unicode();
        return code < 0x80 ? m_bytes[code] || ( m_backslash && code == '\\' ) : MatchesBeyondAscii( code );
    }

    /// True if a run may hold characters that m_bytes accepts and that are not ASCII.
    bool MayTakeBeyondAscii() const { return m_beyond == Beyond::Everything; }

    /// The same for a backslash and a character.
    bool MatchesEscaped( QChar a_character ) const;

    /// \return the first byte from a_begin on that does not go on with a run; a_end if there is none.
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
