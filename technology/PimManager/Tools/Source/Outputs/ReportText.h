/// \file
/// The report on a file in words. None of them contains text of the file.

#pragma once

#include "ExitStatus.h"
#include "Outputs/ReportPhrases.h"

#include <PimManager/Contacts/PimContactReport.h>

#include <QList>
#include <QString>

namespace PimManager::Tools
{

/// One thing that is known about a file.
struct ReportFact
{
    /// What it is about, such as `Line endings`.
    QString m_name;
    /// What is known, such as `CR LF line endings`.
    QString m_text;
};

/// \return the cards, line endings, character set and versions of a file; of a file without cards what it is. Empty for
///         an empty file.
QList<ReportFact> FactsOn( const Contacts::PimContactReport& a_report );

/// \return what became of the bytes, such as `90 bytes: 56 in properties, 24 in BEGIN and END lines, 10 dropped`.
QString BytesText( const Contacts::PimContactReport& a_report );

/// \param a_values findings that are not in the report, see ValueFindings.
/// \return the number of findings of each code, the worst first, such as `1 × comment, 3 × unknown-escape`, or
///         `no findings`.
QString FindingsText( const Contacts::PimContactReport& a_report, const QList<FindingCount>& a_values = {} );

/// \param a_isReadToEnd false if the reading was interrupted or failed.
/// \param a_values      as for FindingsText().
/// \return one line about the file without its name, such as
///         `2 cards: 1 whole, 1 in part; LF line endings; UTF-8 (valid); version 3.0; 1 × not-a-property`. Of a file
///         without cards it says what the file is, such as `is a PDF document; 1 × document-file`.
QString SummaryText( const Contacts::PimContactReport& a_report, bool a_isReadToEnd,
                     const QList<FindingCount>& a_values = {} );

/// \param a_isReadToEnd false if the reading was interrupted or failed.
/// \return what is missing, such as `1 card refused, 2 lines dropped`. Of a file that is not empty and has no card:
///         `contains no vCard`, or what it is, such as `is a PDF document`. Empty if nothing is missing; then
///         StatusOf() is AllGiven.
QString LossesText( const Contacts::PimContactReport& a_report, bool a_isReadToEnd );

/// \param a_isReadToEnd false if the reading was interrupted or failed.
/// \return SomeRefused if something was dropped or refused, or if a file that is not empty holds no vCard; otherwise
///         AllGiven.
ExitStatus StatusOf( const Contacts::PimContactReport& a_report, bool a_isReadToEnd );

} // namespace PimManager::Tools
