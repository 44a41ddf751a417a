/// \file
/// Collects decoded characters as UTF-8.

#pragma once

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// The result of decoding a text.
struct DecodeResult
{
    /// The number of malformed bytes. Each became one U+FFFD.
    qint64 m_malformed = 0;
    /// The position of the first malformed byte, if there is one.
    quint32 m_firstMalformed = 0;
    /// True if the text has characters that this system cannot decode, because a module of iconv() is missing. Their
    /// bytes count as malformed.
    bool m_isUnavailable = false;
};

/// The text that DecodeTo() appends to, the positions of its characters, and what was malformed. A position is that of
/// the first byte of a character in the encoded text.
class DecodedText
{
public:
    /// \param a_places may be null. It must outlive the object, and so must \a a_out.
    DecodedText( QByteArray& a_out, std::vector<quint32>* a_places );

    /// Appends ASCII characters, of which the first one is at \a a_place.
    void AppendAscii( std::string_view a_text, size_t a_place );
    /// Appends a character that is already UTF-8.
    void AppendUtf8( std::string_view a_character, size_t a_place );
    void Append( char32_t a_character, size_t a_place );
    /// Appends U+FFFD and counts a malformed byte.
    void AppendMalformed( size_t a_place );
    void SetUnavailable() { m_result.m_isUnavailable = true; }

    const DecodeResult& Result() const { return m_result; }

private:
    void AppendBytes( std::string_view a_bytes );

    QByteArray& m_out;
    std::vector<quint32>* m_places;
    DecodeResult m_result;
};

} // namespace PimManager::Contacts
