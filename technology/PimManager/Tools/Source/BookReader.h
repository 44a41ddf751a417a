/// \file
/// From the name of a file to its bytes.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::vCard::Tools
{

/// The most bytes that are read from one file. The parser works on the whole text at once, and Qt's texts end at 2 GB,
/// of which its way to UTF-8 wants three bytes for each character. Where addresses have 32 bits, the text and the
/// cards, which take up to 28 bytes for each byte of it, must fit in 3 GB together.
constexpr qint64 s_kLargestBook = sizeof( void* ) < 8 ? 100'000'000 : 700'000'000;

/// A file that was read, or the reason why it was not.
struct Book
{
    QByteArray m_bytes;
    /// Empty when the file was read; else a few words for the user, safe for a terminal.
    QString m_refusal;
};

/// Reads a whole file, pipe or device. A folder is refused.
/// \param a_fileName the name as the system takes it; `-` is standard input.
/// \param a_limit    the most bytes that are taken; a longer file is refused.
Book ReadBook( const QByteArray& a_fileName, qint64 a_limit = s_kLargestBook );

} // namespace PimManager::vCard::Tools
