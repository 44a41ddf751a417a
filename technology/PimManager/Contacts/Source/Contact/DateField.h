/// \file
/// Dates in the lines of a contact.

#pragma once

#include <PimManager/Contacts/PimContactDate.h>

namespace PimManager::Contacts
{

class FieldReader;
class FieldWriter;

/// \return the date of a line whose parameters were read. VALUE and X-APPLE-OMIT-YEAR are taken into account.
PimContactDate ReadDateField( FieldReader& a_reader );

/// Writes a date in the form of the version: in the basic format for 4.0 (RFC 6350, section 4.3), and in the extended
/// format for the others.
void WriteDate( const PimContactDate& a_date, FieldWriter& a_writer );

} // namespace PimManager::Contacts
