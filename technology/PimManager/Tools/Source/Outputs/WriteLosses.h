/// \file
/// What a format could not say.

#pragma once

#include "Terminal/Console.h"

#include <PimManager/Contacts/PimContactWriteReport.h>

#include <QString>
#include <QStringList>

#include <array>

namespace PimManager::Tools
{

/// Collects what was written, and what could not be written as it was found.
class WriteLosses
{
public:
    /// Adds the contacts of a report.
    void Add( const Contacts::PimContactWriteReport& a_report );

    /// Writes one remark for each of the first notes, such as `contact 3, line 5: KIND was written as X-KIND`.
    void Remark( Console& a_console ) const;

    /// \return a few words for the totals, such as `12 contacts written (2 property-renamed)`.
    QString Result() const;

private:
    qint64 m_contacts = 0;
    qint64 m_notes = 0;
    QStringList m_first;
    std::array<qint64, Contacts::s_kPimContactWriteCodes> m_counts = {};
};

} // namespace PimManager::Tools
