/// \file
/// Where the program talks to its user.

#pragma once

#include "ExitStatus.h"
#include "Outputs/OutputDevice.h"

#include <QString>

namespace PimManager::vCard::Tools
{

/// Results go out, messages go beside them. Everything is UTF-8, whatever the locale.
class Console
{
public:
    /// \param a_out where results go; must outlive the console.
    /// \param a_err where messages go; must outlive the console.
    Console( OutputDevice& a_out, OutputDevice& a_err );

    OutputDevice& Out() { return m_out; }
    OutputDevice& Err() { return m_err; }

    /// Writes one message after all results so far, as `pimvcard: ` and the text. Safe for a terminal if the text is.
    void Tell( const QString& a_text );

    /// Writes one result and is done.
    ExitStatus Show( const QString& a_text );

    /// Tells that the program was called wrongly, and where to read more.
    /// \param a_command names the help to read, such as `pimvcard print`.
    ExitStatus Refuse( const QString& a_text, const QString& a_command );

    /// \return false once results cannot be written any more.
    bool IsOpen() const { return m_out.Error() == 0; }

    /// Sends what is left. Tells why when that fails, but says nothing to a reader who has gone away.
    /// \return a_status, or Trouble when results were lost otherwise.
    ExitStatus Close( ExitStatus a_status );

private:
    OutputDevice& m_out;
    OutputDevice& m_err;
};

} // namespace PimManager::vCard::Tools
