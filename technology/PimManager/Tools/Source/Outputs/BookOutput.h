/// \file
/// What can be made of address books.

#pragma once

#include "ExitStatus.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactDiagnostic.h>
#include <PimManager/Contacts/PimContactExtent.h>
#include <PimManager/Contacts/PimContactReader.h>
#include <PimManager/Contacts/PimContactReport.h>

#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// A file of the command line while it is read.
struct BookInRun
{
    /// The name for messages; safe for a terminal.
    QString m_source;
    /// From 1, in the order of the command line.
    int m_number = 0;
    /// Complete when EndBook() is called, and empty before.
    Contacts::PimContactReport m_report;
    /// False if the reading was interrupted or failed. Known when EndBook() is called.
    bool m_isReadToEnd = false;
};

/// Receives what is read from the files, in their order. ContactRun calls the functions.
class BookOutput
{
public:
    BookOutput() = default;
    virtual ~BookOutput() = default;
    Q_DISABLE_COPY( BookOutput )

    /// Creates what the output needs. If an output then has Failures(), nothing more is called.
    virtual void Open() {}
    /// Called before all files, even if none can be read.
    virtual void Begin() {}
    /// \param a_reader is about to read the file, and exists until EndBook() has been called.
    virtual void BeginBook( const BookInRun& /*a_book*/, const Contacts::PimContactReader& /*a_reader*/ ) {}
    virtual void TakeCard( const BookInRun& /*a_book*/, const Contacts::PimContactCard& /*a_card*/ ) {}
    virtual void TakeDiagnostic( const BookInRun& /*a_book*/, const Contacts::PimContactDiagnostic& /*a_diagnostic*/ )
    {
    }
    /// Called only if WantsExtents().
    virtual void TakeExtent( const BookInRun& /*a_book*/, const Contacts::PimContactExtent& /*a_extent*/ ) {}
    virtual void EndBook( const BookInRun& /*a_book*/ ) {}
    /// Called before End() if none of the files could be opened: a file that exists stays as it is.
    virtual void Abandon() {}
    /// Called last.
    virtual void End() {}
    /// Called if one of the functions above has thrown an exception: the output may be cut off anywhere.
    virtual void Fail( const QString& /*a_reason*/ ) {}

    /// \return true if the output needs TakeExtent().
    virtual bool WantsExtents() const { return false; }

    /// \return why something is missing, as sentences for the user without a full stop; empty if nothing is.
    virtual QStringList Failures() const { return {}; }

    /// \return AllGiven, or SomeRefused if the output found something in the files that the exit status is to report.
    virtual ExitStatus Status() const { return ExitStatus::AllGiven; }

    /// \return a few words for the totals, such as `2 pictures written`; empty to say nothing.
    virtual QString Result() const { return QString(); }
};

} // namespace PimManager::Tools
