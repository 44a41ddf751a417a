/// \file
/// Text that a page shows as text, whatever it is.

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

class QIODevice;

namespace PimManager::Tools
{

/// \return the text for the inside of an element or of a quoted attribute: what HTML would read as its own is a
///         character reference, and what IsUnsafeOnTerminal() says is written as there, but for line feeds, which stay.
QString ToHtmlText( QStringView a_text );

/// Writes what ToHtmlText() returns.
void WriteHtmlText( QIODevice& a_device, QStringView a_text );

/// \return a link that dials a number: `tel:` and its digits, with a plus before them; empty when the text holds
///         anything that no telephone number does.
QByteArray TelephoneLink( const QString& a_number );

/// \return a link that writes to an address: `mailto:` and the percent-encoded text; empty when it holds no "@".
QByteArray MailLink( const QString& a_address );

/// \return a link to a page of the web, safe in a quoted attribute; empty unless it is one of http or https.
QByteArray WebLink( const QString& a_address );

} // namespace PimManager::Tools
