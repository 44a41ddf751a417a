/// \file
/// The vocabulary as bytes of a text, for code that reads a text without decoding it. Private to the component.

#pragma once

#include "PimVCardVocabulary.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <array>
#include <cstring>

namespace PimManager::vCard
{

/// What begins an escape pair. Of the format's delimiters it alone stands in no constant of the vocabulary.
constexpr QLatin1Char s_kBackslash( '\\' );

/// \return the byte of a delimiter, which is ASCII like every text of the vocabulary.
inline char ByteOf( const QString& a_delimiter )
{
    return a_delimiter.constData()->toLatin1();
}

/// \return true for a blank or a tab.
inline bool IsBlank( QChar a_character )
{
    return a_character == *s_kSpace.constData() || a_character == QChar::Tabulation;
}

/// A word of the vocabulary, or several put together, as the bytes that they are in a text.
///
/// An object needs no destruction, so a static one may still be used while the program ends.
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

    /// \pre the text has at least Length() bytes there.
    bool IsAt( const char* a_place ) const
    {
        return std::memcmp( a_place, m_bytes.data(), static_cast<size_t>( m_length ) ) == 0;
    }

private:
    std::array<char, 16> m_bytes{};
    int m_length;
};

} // namespace PimManager::vCard
