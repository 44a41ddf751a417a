/// \file
/// The vocabulary as bytes of a text, for code that reads a text without decoding it. Private to the component.

#pragma once

#include <QChar>
#include <QLatin1Char>
#include <QString>

#include <algorithm>
#include <array>
#include <cstring>

namespace PimManager::vCard
{

/// Begins an escape pair. It is the only delimiter of the format that is not a constant of the vocabulary.
constexpr QLatin1Char s_kBackslash( '\\' );

/// \return the byte of a delimiter, which is ASCII like every text of the vocabulary.
inline char ByteOf( const QString& a_delimiter )
{
    return a_delimiter.constData()->toLatin1();
}

/// A word of the vocabulary, or several joined, as the bytes that represent them in a text.
///
/// An object needs no destruction, so a static one may still be used while the program exits.
class PimVCardWord
{
public:
    /// \param a_word at most 16 characters.
    explicit PimVCardWord( const QString& a_word ) :
        m_length( static_cast<int>( a_word.size() ) )
    {
        std::transform( a_word.begin(), a_word.end(), m_bytes.begin(),
                        []( QChar a_character ) { return a_character.toLatin1(); } );
    }

    const char* Bytes() const { return m_bytes.data(); }
    int Length() const { return m_length; }

    /// \pre The text has at least Length() bytes there.
    bool IsAt( const char* a_place ) const
    {
        return std::memcmp( a_place, m_bytes.data(), static_cast<size_t>( m_length ) ) == 0;
    }

private:
    std::array<char, 16> m_bytes{};
    int m_length;
};

/// The words and delimiters that the preparation and the search for the next card look for. Both use these instead of
/// the vocabulary, because each source file that includes the vocabulary constructs all of its constants, which is 10
/// KB of code on the target.
struct PimVCardVocabularyBytes
{
    const char m_blank;
    const char m_cr;
    const char m_lf;
    const char m_colon;
    const char m_equals;
    const PimVCardWord m_begin;
    const PimVCardWord m_vCard;
    /// "=0D=0A=".
    const PimVCardWord m_encodedBreak;

    /// \return true for a blank or a tab.
    bool IsBlank( char a_byte ) const { return a_byte == m_blank || a_byte == '\t'; }

    /// \return the only object, created by the first call. Any thread may call this.
    static const PimVCardVocabularyBytes& Get();
};

} // namespace PimManager::vCard
