/// \file
/// Cards from the lines of a contact, and lines from text.

#pragma once

#include "Contact/ContactLines.h"

#include <QByteArray>

namespace PimManager::Contacts
{

/// \return a card with the lines of a contact, which has a card.
PimContactCard CardOf( const ContactLines& a_lines );

/// \return an empty card of version 3.0.
PimContactCard EmptyCard();

/// \param a_line  a content line without a line ending.
/// \param a_lines of the contact that the line is for: it is read by their version and has their indentation.
/// \return a card whose last line it is; a null card if it is not exactly one property in UTF-8, whatever lines are
///         before and after it, or if it is VERSION.
PimContactCard CardWithLine( const QByteArray& a_line, const ContactLines& a_lines );

} // namespace PimManager::Contacts
