/// \file
/// Where the program talks to its user.

#pragma once

#include "ExitStatus.h"
#include "Outputs/OutputDevice.h"
#include "Terminal/Screen.h"

#include <QString>

namespace PimManager::Tools
{

/// Results go out, messages go beside them. Everything is UTF-8, whatever the locale.
class Console
{
public:
    /// \param a_out where results go; must outlive the console.
    /// \param a_err where messages go; must outlive the console.
    /// \param a_outScreen what a_out is shown on.
    /// \param a_errScreen what a_err is shown on.
    Console( OutputDevice& a_out, OutputDevice& a_err, const Screen& a_outScreen = {}, const Screen& a_errScreen = {} );

    OutputDevice& Out() { return m_out; }
    OutputDevice& Err() { return m_err; }
    const Screen& OutScreen() const { return m_outScreen; }
    const Screen& ErrScreen() const { return m_errScreen; }

    /// Writes one message after all results so far, as `pimvcard: ` and the text, wrapped into a terminal. Safe for a
    /// terminal if the text is.
    void Tell( const QString& a_text ) { Write( a_text, Ink::Error ); }

    /// The same for something that is no error. Nothing is written if remarks are not wanted.
    void Remark( const QString& a_text );

    /// True by default.
    bool AreRemarksWanted() const { return m_areRemarksWanted; }
    void SetRemarksWanted( bool a_areWanted ) { m_areRemarksWanted = a_areWanted; }

    /// Writes one result and is done.
    ExitStatus Show( const QString& a_text );

    /// Tells that the program was called wrongly, and where to read more.
    /// \param a_command names the help to read, such as `pimvcard list`.
    ExitStatus Refuse( const QString& a_text, const QString& a_command );

    /// \return false once results cannot be written any more.
    bool IsOpen() const { return m_out.Error() == 0; }

    /// Sends what is left. Tells why when that fails, but says nothing to a reader who has gone away.
    /// \return a_status, or Trouble when results were lost otherwise.
    ExitStatus Close( ExitStatus a_status );

private:
    void Write( const QString& a_text, Ink a_ink );

    OutputDevice& m_out;
    OutputDevice& m_err;
    const Screen m_outScreen;
    const Screen m_errScreen;
    bool m_areRemarksWanted = true;
};

} // namespace PimManager::Tools
