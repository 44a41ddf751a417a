/// \file
/// What holds of the JSON and of the component's objects of each card.

#pragma once

#include "Checks/Subject.h"

namespace PimManager::Contacts::Checks
{

/// Each card, nested or not, has objects of the component: one property for each line, each with a value and a name.
/// Making them writes nothing to Qt's log.
Broken BrokenObjects( const Subject& a_subject );

/// The JSON of each card satisfies BrokenJsonText(). One PimContactJson that writes all cards appends the same.
Broken BrokenJson( const Subject& a_subject );

/// The text is one JSON object in valid UTF-8 and without control characters, and has that many properties.
Broken BrokenJsonText( const QByteArray& a_json, int a_properties );

} // namespace PimManager::Contacts::Checks
