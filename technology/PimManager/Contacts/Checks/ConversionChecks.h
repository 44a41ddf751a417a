/// \file
/// Checks the JSON and the component's objects of each card.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Checks that each card, nested or not, has objects of the component: one property for each line, each with a value
/// and a name. Creating them must not write to Qt's log.
Broken BrokenObjects( const Subject& a_subject );

/// Checks the JSON of each card with BrokenJsonText(), and that one PimContactJson that writes all cards appends the
/// same.
Broken BrokenJson( const Subject& a_subject );

/// Checks that the text is one JSON object in valid UTF-8, without control characters and with this many properties.
Broken BrokenJsonText( const QByteArray& a_json, int a_properties );

} // namespace PimManager::Contacts::Checks
