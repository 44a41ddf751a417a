// The functions of PimContact that edit.

#include "Contact/ContactCard.h"
#include "Contact/ContactData.h"
#include "Contact/ContactEditor.h"
#include "Contact/DateField.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContact.h>

#include <QSet>

#include <vector>

namespace PimManager::Contacts
{

namespace
{

void SetText( ContactEditor& a_editor, PropertyId a_property, std::string_view a_name, const QString& a_text )
{
    FieldWriter writer = a_editor.Writer( a_name );
    writer.SetSingle( a_text );
    a_editor.SetOnly( a_property, writer );
}

void SetDate( ContactEditor& a_editor, PropertyId a_property, std::string_view a_name, const PimContactDate& a_date )
{
    FieldWriter writer = a_editor.Writer( a_name );
    if ( !a_date.IsNull() )
        WriteDate( a_date, writer );
    a_editor.SetOnly( a_property, writer );
}

/// Removes all properties and adds one field.
void SetField( ContactEditor& a_editor, PropertyId a_property, std::string_view a_name, const PimContactField& a_field )
{
    a_editor.SetAll( a_property, {} );
    a_editor.Add( a_field, a_name );
}

/// \return the lines in which phones keep events of a kind.
QSet<int> AndroidEvents( const PimContact& a_contact, PimContactEvent::Kind a_kind )
{
    QSet<int> ids;
    const PimContactList<PimContactEvent> events = a_contact.Events();
    for ( const PimContactEvent& event : events )
    {
        const QByteArray name = PimContactFieldPrivate::Of( event ).m_line.Name();
        if ( event.EventKind() == a_kind && PropertyOf( ViewOf( name ) ) == PropertyId::AndroidCustom )
            ids.insert( event.Id() );
    }
    return ids;
}

std::string_view KindName( PimContactVersion a_version )
{
    return a_version == PimContactVersion::V40 ? "KIND" : "X-ADDRESSBOOKSERVER-KIND";
}

std::string_view MemberName( PimContactVersion a_version )
{
    return a_version == PimContactVersion::V40 ? "MEMBER" : "X-ADDRESSBOOKSERVER-MEMBER";
}

} // namespace

void PimContact::SetDisplayName( const QString& a_name )
{
    ContactEditor editor( *d );
    SetText( editor, PropertyId::Fn, "FN", a_name );
}

void PimContact::SetName( const PimContactName& a_name )
{
    ContactEditor editor( *d );
    const PimContactName old = Name();
    if ( old.Id() == 0 )
        editor.Add( a_name );
    else if ( a_name.IsEmpty() )
        editor.SetAll( PropertyId::N, {} );
    else
        editor.Replace( old, a_name );
    SetText( editor, PropertyId::PhoneticFamily, "X-PHONETIC-LAST-NAME", a_name.PhoneticFamily() );
    SetText( editor, PropertyId::PhoneticGiven, "X-PHONETIC-FIRST-NAME", a_name.PhoneticGiven() );
    SetText( editor, PropertyId::PhoneticMiddle, "X-PHONETIC-MIDDLE-NAME", a_name.PhoneticMiddle() );
    SetText( editor, PropertyId::MaidenName, "X-MAIDENNAME", a_name.MaidenName() );
}

int PimContact::AddPhone( const PimContactPhone& a_phone )
{
    return ContactEditor( *d ).Add( a_phone );
}

int PimContact::AddMail( const PimContactMail& a_mail )
{
    return ContactEditor( *d ).Add( a_mail );
}

int PimContact::AddAddress( const PimContactAddress& a_address )
{
    return ContactEditor( *d ).Add( a_address );
}

int PimContact::AddMessenger( const PimContactMessenger& a_messenger )
{
    return ContactEditor( *d ).Add( a_messenger );
}

int PimContact::AddEvent( const PimContactEvent& a_event )
{
    return ContactEditor( *d ).Add( a_event );
}

int PimContact::AddOrganisation( const PimContactOrganisation& a_organisation )
{
    return ContactEditor( *d ).Add( a_organisation );
}

int PimContact::AddRelation( const PimContactRelation& a_relation )
{
    return ContactEditor( *d ).Add( a_relation );
}

int PimContact::AddUrl( const PimContactText& a_url )
{
    return ContactEditor( *d ).Add( a_url, "URL" );
}

int PimContact::AddNote( const PimContactText& a_note )
{
    return ContactEditor( *d ).Add( a_note, "NOTE" );
}

int PimContact::AddTitle( const PimContactText& a_title )
{
    return ContactEditor( *d ).Add( a_title, "TITLE" );
}

int PimContact::AddRole( const PimContactText& a_role )
{
    return ContactEditor( *d ).Add( a_role, "ROLE" );
}

int PimContact::AddNickname( const PimContactText& a_nickname )
{
    return ContactEditor( *d ).Add( a_nickname, "NICKNAME" );
}

int PimContact::AddPhoto( const PimContactMedia& a_photo )
{
    return ContactEditor( *d ).Add( a_photo, "PHOTO" );
}

int PimContact::AddLogo( const PimContactMedia& a_logo )
{
    return ContactEditor( *d ).Add( a_logo, "LOGO" );
}

void PimContact::SetBirthday( const PimContactDate& a_date )
{
    const QSet<int> others = AndroidEvents( *this, PimContactEvent::Kind::Birth );
    ContactEditor editor( *d );
    editor.RemoveLines( others );
    SetDate( editor, PropertyId::Bday, "BDAY", a_date );
}

void PimContact::SetAnniversary( const PimContactDate& a_date )
{
    const QSet<int> others = AndroidEvents( *this, PimContactEvent::Kind::Anniversary );
    ContactEditor editor( *d );
    editor.RemoveLines( others );
    const std::string_view name = Version() == PimContactVersion::V40 ? "ANNIVERSARY" : "X-ANNIVERSARY";
    SetDate( editor, PropertyId::Anniversary, name, a_date );
}

void PimContact::SetPhoto( const PimContactMedia& a_photo )
{
    ContactEditor editor( *d );
    SetField( editor, PropertyId::Photo, "PHOTO", a_photo );
}

void PimContact::SetGender( const PimContactGender& a_gender )
{
    ContactEditor editor( *d );
    SetField( editor, PropertyId::Gender, "GENDER", a_gender );
}

void PimContact::SetCategories( const QStringList& a_categories )
{
    ContactEditor editor( *d );
    FieldWriter writer = editor.Writer( "CATEGORIES" );
    writer.SetList( a_categories );
    editor.SetOnly( PropertyId::Categories, writer );
}

void PimContact::SetUid( const QString& a_uid )
{
    ContactEditor editor( *d );
    SetText( editor, PropertyId::Uid, "UID", a_uid );
}

void PimContact::SetKind( const QString& a_kind )
{
    ContactEditor editor( *d );
    SetText( editor, PropertyId::Kind, KindName( Version() ), a_kind );
}

void PimContact::SetRevision( const PimContactDate& a_date )
{
    ContactEditor editor( *d );
    SetDate( editor, PropertyId::Rev, "REV", a_date );
}

void PimContact::SetMembers( const QStringList& a_addresses )
{
    ContactEditor editor( *d );
    std::vector<FieldWriter> writers;
    for ( const QString& address : a_addresses )
    {
        FieldWriter writer = editor.Writer( MemberName( Version() ) );
        writer.SetSingle( address );
        if ( writer.HasValue() )
            writers.push_back( writer );
    }
    editor.SetAll( PropertyId::Member, writers );
}

bool PimContact::Replace( const PimContactField& a_field, const PimContactField& a_by )
{
    return ContactEditor( *d ).Replace( a_field, a_by );
}

bool PimContact::Remove( const PimContactField& a_field )
{
    return ContactEditor( *d ).Remove( a_field );
}

int PimContact::AddLine( const QByteArray& a_line )
{
    return ContactEditor( *d ).AddLine( a_line );
}

bool PimContact::RemoveLine( int a_id )
{
    return ContactEditor( *d ).RemoveLine( a_id );
}

PimContact PimContact::Compacted() const
{
    PimContact compacted = *this;
    if ( d->m_lines.IsEdited() )
        compacted.d->m_lines.MoveTo( Card() );
    return compacted;
}

} // namespace PimManager::Contacts
