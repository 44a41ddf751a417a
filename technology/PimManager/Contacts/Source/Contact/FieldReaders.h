/// \file
/// Reads typed fields from one line each.

#pragma once

namespace PimManager::Contacts
{

class FieldReader;
class PimContactFieldPrivate;

// Each function creates the data of a field from the line of the reader and reads its parameters. It returns null if
// the line has no value.
PimContactFieldPrivate* ReadAddress( FieldReader& a_reader );
PimContactFieldPrivate* ReadEvent( FieldReader& a_reader );
PimContactFieldPrivate* ReadGender( FieldReader& a_reader );
PimContactFieldPrivate* ReadMail( FieldReader& a_reader );
PimContactFieldPrivate* ReadMedia( FieldReader& a_reader );
PimContactFieldPrivate* ReadName( FieldReader& a_reader );
PimContactFieldPrivate* ReadOrganisation( FieldReader& a_reader );
PimContactFieldPrivate* ReadPhone( FieldReader& a_reader );
PimContactFieldPrivate* ReadRelation( FieldReader& a_reader );
PimContactFieldPrivate* ReadText( FieldReader& a_reader );

} // namespace PimManager::Contacts
