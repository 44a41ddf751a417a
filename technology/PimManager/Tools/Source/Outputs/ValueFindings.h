/// \file
/// What is wrong with the values of cards.

#pragma once

#include "Outputs/ReportPhrases.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactDecoding.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <map>

namespace PimManager::Tools
{

/// Decodes the values of cards and describes what PimContactDecoding reports about them, in the form that compilers
/// use:
///
///     book.vcf:7:1: repaired: the line names no character set and was read as windows-1252 [assumed-charset]
///
/// Unknown escapes are left out, because the reader reports them. Nothing contains text of the card.
class ValueFindings
{
public:
    /// Forgets the counts.
    void Clear() { m_counts.clear(); }

    /// Linear in the length of the card, nested cards included.
    /// \param a_source the name of the file, safe for a terminal.
    /// \return the findings without line endings, in the order of the lines. Columns are always 1.
    QStringList Of( const QString& a_source, const Contacts::PimContactCard& a_card );

    /// The findings since Clear().
    QList<FindingCount> Counts() const;

private:
    void Examine( const QString& a_source, const Contacts::PimContactCard& a_card, QStringList& a_findings );
    void Describe( const QString& a_place, const Contacts::PimContactDecoding& a_decoding, QStringList& a_findings );

    std::map<Contacts::PimContactDecodingProblem, qint64> m_counts;
};

} // namespace PimManager::Tools
