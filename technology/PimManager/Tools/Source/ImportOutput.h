/// \file
/// What may be made of imported books.

#pragma once

#include "PimVCardImporter.h"

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Tools
{

/// A book while it is imported.
struct ImportedBook
{
    /// How to call it, safe for a terminal.
    QString m_source;
    /// Counted from 1 over the files of the command line.
    int m_number = 0;
    /// What became of it; of the whole of it only at its end.
    vCardImport::PimVCardImportAccount m_account;
};

/// Takes what comes of books, in the order of the files. Everything is called by ImportRun, and everything may be left
/// out.
class ImportOutput
{
public:
    ImportOutput() = default;
    virtual ~ImportOutput() = default;
    Q_DISABLE_COPY( ImportOutput )

    /// Creates what the output needs. If an output then has Failures(), nothing more is called: the run is refused.
    virtual void Open() {}
    /// Comes before all books, also when no book can be read.
    virtual void Begin() {}
    virtual void BeginBook( const ImportedBook& /*a_book*/ ) {}
    virtual void TakeCard( const ImportedBook& /*a_book*/, const vCardImport::PimVCardImportedCard& /*a_card*/ ) {}
    virtual void TakeReject( const vCardImport::PimVCardReject& /*a_reject*/ ) {}
    /// The account of the book is complete now.
    virtual void EndBook( const ImportedBook& /*a_book*/ ) {}
    /// Comes last.
    virtual void End() {}
    /// Comes after an exception that one of the calls above has thrown: what was written may be cut off anywhere.
    virtual void Fail( const QString& /*a_reason*/ ) {}

    /// \return why something is missing, as whole sentences for the user without a full stop; empty while all is well.
    virtual QStringList Failures() const { return {}; }

    /// \return a few words for the totals, such as `2 pictures written`; empty to say nothing.
    virtual QString Result() const { return QString(); }
};

} // namespace PimManager::vCard::Tools
