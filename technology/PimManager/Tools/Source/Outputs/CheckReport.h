/// \file
/// What `pimvcard check` prints without `--extents`.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/StandardFindings.h"
#include "Outputs/ValueFindings.h"
#include "Terminal/Screen.h"

class QIODevice;

namespace PimManager::Tools
{

/// Writes one line for each finding as soon as it is made, in the form that compilers use, and a summary after each
/// file. On a terminal, lines are wrapped and severities have colours. What is wrong with the values of a card follows
/// everything else about the card, and what does not conform to its standard comes last.
///
///     book.vcf:12:7: repaired: the last line has no line ending [last-line-end]
///     book.vcf: 3 cards: 3 whole; CR LF line endings; UTF-8 (valid); version 3.0; 1 × last-line-end
class CheckReport : public BookOutput
{
public:
    /// Whether cards are compared with the standard of their version.
    enum class Conformance
    {
        Ignored,
        Checked,
    };

    /// \param a_device must be open and outlive the report.
    CheckReport( QIODevice& a_device, Conformance a_conformance, const Screen& a_screen );

    void BeginBook( const BookInRun& a_book, const Contacts::PimContactReader& a_reader ) override;
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void TakeDiagnostic( const BookInRun& a_book, const Contacts::PimContactDiagnostic& a_diagnostic ) override;
    void EndBook( const BookInRun& a_book ) override;
    ExitStatus Status() const override { return m_status; }

private:
    void Write( const QStringList& a_findings );
    QString Shown( const QString& a_finding ) const;

    QIODevice& m_device;
    const Screen m_screen;
    // The name of the file, as it is shown.
    QString m_source;
    const bool m_isStandardChecked;
    ValueFindings m_values;
    StandardFindings m_standard;
    ExitStatus m_status = ExitStatus::AllGiven;
};

} // namespace PimManager::Tools
