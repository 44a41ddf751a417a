/// \file
/// The data of PimContactDiagnostic.

#pragma once

#include <PimManager/Contacts/PimContactDiagnostic.h>

#include <QSharedData>

namespace PimManager::Contacts
{

/// A position in the text.
struct TextPlace
{
    qint64 m_offset = 0;
    /// From 1.
    qint64 m_line = 1;
    /// The offset of the first byte of the line.
    qint64 m_lineOffset = 0;
};

/// The data of a finding.
class PimContactDiagnosticPrivate : public QSharedData
{
public:
    static PimContactDiagnostic Create( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place,
                                        qint64 a_count );

    PimContactDiagnosticCode m_code = PimContactDiagnosticCode::Encoding;
    qint64 m_card = 0;
    TextPlace m_place;
    qint64 m_count = 1;
};

} // namespace PimManager::Contacts
