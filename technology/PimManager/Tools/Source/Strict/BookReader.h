/// \file
/// Reads a file as a whole.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

class InputDevice;

/// The most bytes that are read from one file. The component works on the whole text at once, and Qt's texts end at 2
/// GB, of which its way to UTF-8 wants three bytes for each character. Where addresses have 32 bits, the text and the
/// cards, which take up to 28 bytes for each byte of it, must fit in 3 GB together.
constexpr qint64 s_kLargestBook = sizeof( void* ) < 8 ? 100'000'000 : 700'000'000;

/// The bytes of a file, or the reason why they are not read.
struct Book
{
    QByteArray m_bytes;
    /// Empty if the file is small enough; otherwise a few words for the user, safe for a terminal.
    QString m_refusal;
};

/// Reads a file, pipe or device to its end.
/// \param a_limit the most bytes that are accepted; a longer file is refused.
/// \return its bytes. If the device fails, those up to that place; its Error() says so.
Book ReadBook( InputDevice& a_input, qint64 a_limit = s_kLargestBook );

} // namespace PimManager::Tools
