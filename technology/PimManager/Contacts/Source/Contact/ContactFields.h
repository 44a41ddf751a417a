/// \file
/// The fields of a contact that are read from several lines.

#pragma once

#include "Contact/ContactData.h"

#include <QPair>
#include <QString>

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

// Each implements the function of PimContact with the same name.
PimContactList<PimContactAddress> ReadAddresses( const PimContactPrivate& a_contact );
PimContactList<PimContactEvent> ReadEvents( const PimContactPrivate& a_contact );
PimContactList<PimContactMessenger> ReadMessengers( const PimContactPrivate& a_contact );
PimContactList<PimContactRelation> ReadRelations( const PimContactPrivate& a_contact );
PimContactName ReadNames( const PimContactPrivate& a_contact );

/// One field for each element of NICKNAME or CATEGORIES.
PimContactList<PimContactText> ReadElements( const PimContactPrivate& a_contact, PropertyId a_property );

/// The texts of a property.
PimContactList<PimContactText> ReadTexts( const PimContactPrivate& a_contact, PropertyId a_property );

/// \param a_text the text of a CLIENTPIDMAP, such as `1;urn:uuid:…`.
/// \return nothing if it does not begin with a number from 1.
std::optional<QPair<int, QString>> PidEntryOf( std::string_view a_text );

/// \return the text of the first line with a property that is not empty.
QString FirstText( const PimContactPrivate& a_contact, PropertyId a_property );

/// \return the date of the first line with a property that is not empty.
PimContactDate FirstDate( const PimContactPrivate& a_contact, PropertyId a_property );

} // namespace PimManager::Contacts
