/// \file
/// Phrases that every command uses.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// \return a number with its noun, such as `1 card` or `2 cards`.
QString Counted( qint64 a_count, const QString& a_one, const QString& a_many );

/// \return what to call a contact: its name, or `(no name)`. Not safe for a terminal.
QString ShownName( const Contacts::PimContact& a_contact );

/// \return how to call an input when talking to the user: its name, or `standard input` for `-`; safe for a terminal.
QString SourceName( const QByteArray& a_fileName );

} // namespace PimManager::Tools
