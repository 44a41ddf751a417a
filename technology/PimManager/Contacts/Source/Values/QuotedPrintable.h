/// \file
/// Decodes QUOTED-PRINTABLE.

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Bytes of a decoded text that were encoded.
struct EncodedRun
{
    quint32 m_begin = 0;
    quint32 m_end = 0;
};

/// Each "=" without two hexadecimal digits after it.
struct QuotedPrintableFaults
{
    qint64 m_count = 0;
    /// The position of the first one.
    quint32 m_first = 0;
};

/// Decodes a text without soft line breaks (RFC 2045, section 6.7). Lower-case hexadecimal digits are accepted. A "="
/// that no two digits follow is kept. An encoded line break, `=0D=0A`, becomes a line feed.
///
/// \param[out] a_out  the decoded text, after what it contains already.
/// \param[out] a_runs the bytes that were encoded, by their position in a_out.
QuotedPrintableFaults DecodeQuotedPrintable( std::string_view a_text, QByteArray& a_out,
                                             std::vector<EncodedRun>& a_runs );

} // namespace PimManager::Contacts
