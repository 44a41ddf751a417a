/// \file
/// What people call the properties of a card.

#pragma once

#include <PimManager/Contacts/PimContactLine.h>

#include <QString>

namespace PimManager::Tools
{

/// \return what people call a property, such as `Last changed` for REV. A name that is not known is made readable:
///         `X-OPENING-HOURS` becomes `Opening hours`. Not safe for HTML.
QString PropertyLabel( const Contacts::PimContactLine& a_line );

/// \return a name of a property or a parameter as words: without `X-`, with blanks, in small letters but for the first.
QString ReadableName( const QString& a_name );

} // namespace PimManager::Tools
