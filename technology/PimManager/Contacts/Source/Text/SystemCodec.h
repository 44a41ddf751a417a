/// \file
/// Decodes the large character sets of East Asia by iconv().

#pragma once

#include "Text/Charset.h"
#include "Text/DecodedText.h"

#include <iconv.h>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// A character set of iconv(). Bytes below 0x80 are ASCII in it, unless they are the second or a later byte of a
/// character. The text is decoded one character at a time, so that the position of each character is known, and a
/// malformed one costs no more than others.
///
/// An object belongs to one thread.
class SystemCodec
{
public:
    /// \param a_name the name that iconv() knows. It must be a constant, never a name from a file, because iconv() also
    ///               accepts options and its other modules there.
    explicit SystemCodec( const char* a_name );
    ~SystemCodec();
    Q_DISABLE_COPY( SystemCodec )

    /// \return the codec of this thread for Shift_JIS, EUC-JP, EUC-KR, GB18030 or Big5. It is opened when it is needed
    ///         first, and closed at the end of the thread.
    static SystemCodec& Of( Charset a_charset );

    /// \return false if the system has no module for the character set.
    bool IsAvailable() const;

    /// Decodes one character.
    ///
    /// \param a_bytes begins with the character.
    /// \param a_place the position of \a a_bytes in the whole text.
    /// \return the length of the character. Returns 0 if it is malformed, incomplete, or not available; then nothing is
    ///         appended.
    size_t DecodeFirst( std::string_view a_bytes, size_t a_place, DecodedText& a_text );

private:
    size_t ReadFirst( std::string_view a_bytes, char32_t& a_character );
    bool ReadSecond( char32_t& a_character );

    iconv_t m_handle;
};

} // namespace PimManager::Contacts
