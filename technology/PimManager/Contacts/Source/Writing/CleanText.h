/// \file
/// Texts without the characters that could end a line.

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// The kind of a byte for a writer.
enum class TextUnit : quint8
{
    Byte,      ///< to be written, escaped if necessary
    LineBreak, ///< a line break of any kind: CR LF, CR, LF, or one of U+0085, U+2028 and U+2029
    Lost,      ///< a control character, which no version can express
};

/// Reads the units of a text, one after the other.
///
/// Programs treat any of these line breaks as the end of a line, so a writer writes all of them as an escaped line
/// feed. Control characters other than tabs are lost.
class TextUnits
{
public:
    explicit TextUnits( std::string_view a_text ) :
        m_place( a_text.data() ),
        m_end( a_text.data() + a_text.size() )
    {
    }

    bool AtEnd() const { return m_place == m_end; }
    /// The number of remaining bytes.
    size_t Left() const { return static_cast<size_t>( m_end - m_place ); }

    /// \param[out] a_byte the byte if the unit is a Byte.
    TextUnit Next( char& a_byte )
    {
        a_byte = *m_place++;
        const auto byte = static_cast<uchar>( a_byte );
        const bool isUsual = ( byte >= 0x20 && byte < 0x7F ) || ( byte >= 0x80 && byte != 0xC2 && byte != 0xE2 );
        return isUsual || byte == '\t' ? TextUnit::Byte : NextUnusual( byte );
    }

private:
    TextUnit NextUnusual( uchar a_byte );
    bool IsNext( std::string_view a_text ) const
    {
        return std::string_view( m_place, static_cast<size_t>( m_end - m_place ) ).substr( 0, a_text.size() ) == a_text;
    }

    const char* m_place;
    const char* m_end;
};

/// \return true if a text has one of U+0085, U+2028 and U+2029.
bool HasOtherLineBreaks( std::string_view a_text );

/// \return true if a text has no control characters other than tabs, and no line breaks other than line feeds.
bool IsCleanText( std::string_view a_text );

/// \return the text with line feeds as its only line breaks, and without control characters other than tabs.
QByteArray CleanText( std::string_view a_text );

} // namespace PimManager::Contacts
