#include "ContactFields.h"

#include <PimManager/Contacts/PimContact.h>

#include <QString>
#include <QStringList>

using namespace PimManager::Contacts;

namespace
{

/// Adds up its arguments.
class Counter
{
public:
    qint64 Sum() const { return m_sum; }
    void Add( qint64 a_number ) { m_sum += a_number; }
    void Add( const QString& a_text ) { Add( a_text.size() ); }
    void Add( const QStringList& a_texts ) { Add( a_texts.size() ); }
    template <class Kinds>
    void AddKinds( Kinds a_kinds )
    {
        Add( static_cast<qint64>( a_kinds ) );
    }

private:
    qint64 m_sum = 0;
};

void Take( const PimContactName& a_name, Counter& a_counter )
{
    for ( int part = 0; part < s_kPimContactNameParts; ++part )
        a_counter.Add( a_name.Part( static_cast<PimContactNamePart>( part ) ) );
}

void Take( const PimContactAddress& a_address, Counter& a_counter )
{
    for ( int part = 0; part < s_kPimContactAddressParts; ++part )
        a_counter.Add( a_address.Part( static_cast<PimContactAddressPart>( part ) ) );
    a_counter.Add( a_address.DeliveryText() );
    a_counter.AddKinds( a_address.Kinds() );
    a_counter.Add( a_address.Label() );
    a_counter.Add( a_address.Position() ? 1 : 0 );
}

void Take( const PimContactPhone& a_phone, Counter& a_counter )
{
    a_counter.Add( a_phone.Number() );
    a_counter.Add( a_phone.Extension() );
    a_counter.Add( a_phone.Label() );
    a_counter.AddKinds( a_phone.Kinds() );
}

void Take( const PimContactMail& a_mail, Counter& a_counter )
{
    a_counter.Add( a_mail.Address() );
    a_counter.Add( a_mail.Name() );
    a_counter.AddKinds( a_mail.Kinds() );
}

void Take( const PimContactText& a_text, Counter& a_counter )
{
    a_counter.Add( a_text.Text() );
    a_counter.AddKinds( a_text.Kinds() );
}

void Take( const PimContactEvent& a_event, Counter& a_counter )
{
    const PimContactDate date = a_event.Date();
    a_counter.Add( date.Year().value_or( 0 ) + date.Month().value_or( 0 ) + date.Day().value_or( 0 ) );
    a_counter.Add( a_event.Place() );
}

void Take( const PimContactMessenger& a_messenger, Counter& a_counter )
{
    a_counter.Add( a_messenger.Service() );
    a_counter.Add( a_messenger.Handle() );
    a_counter.Add( a_messenger.Address() );
}

void Take( const PimContactOrganisation& a_organisation, Counter& a_counter )
{
    a_counter.Add( a_organisation.Name() );
    a_counter.Add( a_organisation.Units() );
}

void Take( const PimContactRelation& a_relation, Counter& a_counter )
{
    a_counter.Add( a_relation.Text() );
    a_counter.Add( a_relation.Address() );
    a_counter.AddKinds( a_relation.Kinds() );
}

void Take( const PimContactMedia& a_media, Counter& a_counter )
{
    a_counter.Add( a_media.Bytes().size() );
    a_counter.Add( a_media.MediaType() );
    a_counter.Add( a_media.Address() );
}

template <class Field>
void Take( const PimContactList<Field>& a_fields, Counter& a_counter )
{
    for ( const Field& field : a_fields )
        Take( field, a_counter );
}

void TakeWays( const PimContact& a_contact, Counter& a_counter )
{
    Take( a_contact.Phones(), a_counter );
    Take( a_contact.Mails(), a_counter );
    Take( a_contact.Addresses(), a_counter );
    Take( a_contact.Messengers(), a_counter );
    Take( a_contact.Urls(), a_counter );
    Take( a_contact.ContactUris(), a_counter );
    Take( a_contact.SpokenLanguages(), a_counter );
    a_counter.Add( a_contact.Position() ? 1 : 0 );
    a_counter.Add( a_contact.TimeZone() );
}

void TakeWork( const PimContact& a_contact, Counter& a_counter )
{
    Take( a_contact.Events(), a_counter );
    Take( a_contact.Organisations(), a_counter );
    Take( a_contact.Titles(), a_counter );
    Take( a_contact.Roles(), a_counter );
    Take( a_contact.Expertise(), a_counter );
    Take( a_contact.Hobbies(), a_counter );
    Take( a_contact.Interests(), a_counter );
    Take( a_contact.OrganisationDirectories(), a_counter );
    Take( a_contact.Relations(), a_counter );
    Take( a_contact.Members(), a_counter );
    Take( a_contact.Photos(), a_counter );
    Take( a_contact.Logos(), a_counter );
    Take( a_contact.Sounds(), a_counter );
    Take( a_contact.Keys(), a_counter );
}

void TakeRest( const PimContact& a_contact, Counter& a_counter )
{
    a_counter.Add( a_contact.Kind() );
    a_counter.Add( a_contact.Uid() );
    a_counter.Add( a_contact.Revision().Year().value_or( 0 ) );
    a_counter.Add( a_contact.Created().Year().value_or( 0 ) );
    a_counter.Add( a_contact.CallTime().Year().value_or( 0 ) );
    Take( a_contact.Notes(), a_counter );
    Take( a_contact.Categories(), a_counter );
    a_counter.Add( a_contact.Gender() ? 1 : 0 );
    Take( a_contact.GrammaticalGenders(), a_counter );
    Take( a_contact.Pronouns(), a_counter );
    a_counter.Add( a_contact.DefaultLanguage() );
    Take( a_contact.CalendarUris(), a_counter );
    Take( a_contact.CalendarAddresses(), a_counter );
    Take( a_contact.FreeBusyUris(), a_counter );
    Take( a_contact.Sources(), a_counter );
    Take( a_contact.Xml(), a_counter );
    a_counter.Add( a_contact.ClientPidMap().size() );
    a_counter.Add( a_contact.Classification() );
    a_counter.Add( a_contact.Mailer() );
    a_counter.Add( a_contact.ProductId() );
    a_counter.Add( a_contact.OtherLines().size() );
}

} // namespace

qint64 TakeFields( const PimContact& a_contact )
{
    Counter counter;
    counter.Add( a_contact.DisplayName() );
    Take( a_contact.Name(), counter );
    Take( a_contact.Nicknames(), counter );
    TakeWays( a_contact, counter );
    TakeWork( a_contact, counter );
    TakeRest( a_contact, counter );
    return counter.Sum();
}
