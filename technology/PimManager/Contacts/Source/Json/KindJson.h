/// \file
/// The kinds of a field in lower case.

#pragma once

#include "Contact/FieldParameters.h"
#include "Lines/PropertyTable.h"
#include "Text/JsonText.h"

#include <QtGlobal>

namespace PimManager::Contacts
{

/// The flags of PimContactKinds.h that a field has.
enum class KindSet : quint8
{
    None,
    Kinds,
    Phone,
    Address,
    Relation,
};

/// The flags of a field that has kinds.
KindSet KindSetOf( PropertyId a_property );

/// \return the function that reads a word of TYPE.
FieldParameters::KindsOf WordReaderOf( KindSet a_set );

/// Appends a comma and the member `kinds`. Appends nothing if there are no kinds.
/// \param a_kinds the value of the flags.
void WriteKinds( KindSet a_set, quint32 a_kinds, JsonText& a_json );

} // namespace PimManager::Contacts
