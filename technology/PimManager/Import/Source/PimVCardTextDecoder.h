/// \file
/// The first step of import: from the bytes of a file to bytes in which ASCII is ASCII.

#pragma once

#include "PimVCardImportAccount.h"

#include <QByteArray>

#include <memory>

class QTextDecoder;

namespace PimManager::vCardImport
{

/// Finds a byte order mark or UTF-16 by the first four bytes of a file, and makes UTF-16 UTF-8. Any other text passes
/// as it is: its character set is found card by card.
class PimVCardTextDecoder
{
public:
    PimVCardTextDecoder();
    ~PimVCardTextDecoder();

    /// \return what the piece gives; nothing while the first bytes are awaited.
    QByteArray Decode( const QByteArray& a_piece );

    /// \return what is left when no byte follows.
    QByteArray Finish();

    bool IsUtf16() const { return m_decoder != nullptr; }
    /// The length of the byte order mark in bytes, 0 without one.
    int MarkLength() const { return m_markLength; }
    /// Empty unless the first bytes decided.
    QByteArray Charset() const { return m_charset; }
    PimVCardEvidence Evidence() const { return m_evidence; }
    /// Units and bytes of UTF-16 that are no character.
    qint64 Replaced() const { return m_replaced; }

private:
    void Decide();
    void BeginUtf16( const char* a_charset, int a_markLength );
    QByteArray DecodeUtf16( const QByteArray& a_bytes );

    QByteArray m_first;
    bool m_isDecided = false;
    int m_markLength = 0;
    QByteArray m_charset;
    PimVCardEvidence m_evidence = PimVCardEvidence::None;
    std::unique_ptr<QTextDecoder> m_decoder;
    // A high surrogate whose low one has not come yet.
    QString m_pendingUnit;
    bool m_isHalfUnit = false;
    qint64 m_replaced = 0;
};

} // namespace PimManager::vCardImport
