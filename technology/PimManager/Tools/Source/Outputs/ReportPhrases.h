/// \file
/// Phrases about what a reader found in a file. None of them contains text of the file.

#pragma once

#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// A number of things of one kind. Kinds of which there are none are left out of every phrase.
struct NamedCount
{
    qint64 m_count;
    QString m_name;
};

/// \return a number of cards and what became of them, such as `12 cards: 11 whole, 1 refused`.
QString CardsPhrase( qint64 a_cards, const QList<NamedCount>& a_fates );

/// \param a_unit  what is counted, such as `bytes` or `bytes in UTF-8`.
/// \return a number of bytes and where they are, such as `90 bytes: 80 in properties, 10 dropped`.
QString BytesPhrase( qint64 a_bytes, const QString& a_unit, const QList<NamedCount>& a_places );

/// \param a_kinds the number of lines with each line ending.
/// \return a phrase such as `LF line endings` or `mixed line endings (10 CR LF, 2 LF)`.
QString LineEndsPhrase( const QList<NamedCount>& a_kinds );

/// \return the reason for a character set, such as `valid` or `assumed`.
QString EvidencePhrase( Contacts::PimContactEvidence a_evidence );

/// \param a_versions the number of cards of each version.
/// \return a phrase such as `version 3.0` or `versions 2.1 (4 cards), 3.0 (1 card)`.
QString VersionsPhrase( const QList<NamedCount>& a_versions );

/// The findings of one code.
struct FindingCount
{
    /// The larger, the worse.
    int m_severity;
    NamedCount m_findings;
};

/// \return a phrase for each code, such as `3 × unknown-escape`, the worst severity first; empty without findings.
QStringList FindingPhrases( QList<FindingCount> a_codes );

} // namespace PimManager::Tools
