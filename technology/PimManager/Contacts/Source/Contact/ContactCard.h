/// \file
/// Creates cards from the lines of a contact, and lines from text.

#pragma once

#include "Contact/ContactLines.h"

#include <QByteArray>

namespace PimManager::Contacts
{

/// \return a card with the lines of a contact. The contact must have a card.
PimContactCard CardOf( const ContactLines& a_lines );

/// \return an empty card of version 3.0.
PimContactCard EmptyCard();

/// \param a_line  a content line without a line ending.
/// \param a_lines the lines of the contact that the line is for. It is read by their version and has their indentation.
/// \return a card with this line as the last one. A null card if the line is VERSION, or if it is not exactly one
///         property in UTF-8 regardless of the lines before and after it.
PimContactCard CardWithLine( const QByteArray& a_line, const ContactLines& a_lines );

} // namespace PimManager::Contacts
