/// \file
/// What in cards does not conform to the standard of their version.

#pragma once

#include "Outputs/ReportPhrases.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactConformance.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <array>

namespace PimManager::Tools
{

/// Describes the findings of PimContactConformance in the form that compilers use:
///
///     book.vcf:3:1: invalid: FN is missing (RFC 6350, section 6.2.1) [missing-property]
///
/// Nothing contains text of the card.
class StandardFindings
{
public:
    /// Forgets the counts.
    void Clear() { m_counts.fill( 0 ); }

    /// Linear in the length of the card, nested cards included.
    /// \param a_source the name of the file, safe for a terminal.
    /// \return the findings without line endings. Those of nested cards follow. Columns are always 1.
    QStringList Of( const QString& a_source, const Contacts::PimContactCard& a_card );

    /// The findings since Clear().
    QList<FindingCount> Counts() const;

private:
    void Examine( const QString& a_source, const Contacts::PimContactCard& a_card, QStringList& a_findings );

    std::array<qint64, Contacts::s_kPimContactFindingCodes> m_counts = {};
};

} // namespace PimManager::Tools
