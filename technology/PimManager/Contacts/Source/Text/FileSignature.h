/// \file
/// Recognises the kind of a file by its bytes.

#pragma once

#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// The number of bytes that FileKindBySignature() needs.
constexpr size_t s_kSignatureBytes = 16;

/// Recognises files that cannot be address books by their first bytes.
///
/// \param a_start the first s_kSignatureBytes bytes of a file, or all of them if the file is shorter.
/// \return Compressed (gzip, zip), Document (PDF), Image (see MediaType.h), or Unknown.
PimContactFileKind FileKindBySignature( std::string_view a_start );

/// Determines what a file without cards contains, by the first 4 KiB of its text.
class TextKind
{
public:
    /// \param a_bytes the next bytes of the text. Once 4 KiB have been passed, further bytes are ignored.
    void Take( std::string_view a_bytes );

    /// \return Html if the text begins with an HTML document type or element; white space, a byte order mark, comments
    ///         and an XML declaration may precede it. Otherwise Unknown if the text has a NUL byte, or more than one
    ///         control character in 32 bytes (tabs and line endings do not count). Otherwise Text.
    PimContactFileKind Kind() const;

private:
    QByteArray m_start;
};

} // namespace PimManager::Contacts
