/// \file
/// What `pimvcard check` can print.

#pragma once

#include <PimManager/Contacts/PimContactReader.h>
#include <PimManager/Contacts/PimContactReport.h>

#include <QString>

namespace PimManager::vCard::Tools
{

/// Prints something about each file. CheckRun calls the functions in their order, once for each file.
class CheckOutput
{
public:
    CheckOutput() = default;
    virtual ~CheckOutput() = default;
    Q_DISABLE_COPY( CheckOutput )

    /// A file begins.
    /// \param a_source how to call the file; safe for a terminal.
    /// \param a_reader reads the file. The output sets the handlers that it needs; the card handler is not its own.
    virtual void BeginBook( const QString& a_source, Contacts::PimContactReader& a_reader ) = 0;

    /// The file has been read.
    /// \param a_isReadToEnd false if the reading was interrupted or failed.
    virtual void EndBook( const Contacts::PimContactReport& a_report, bool a_isReadToEnd ) = 0;
};

} // namespace PimManager::vCard::Tools
