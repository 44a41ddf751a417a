// pimvcard-peer-kcontacts-fields: KContacts, and every field of each person that TakeFields() in ContactFields.h also
// reads.

#include "PeerRun.h"

#include <KContacts/Addressee>
#include <KContacts/VCardConverter>

#include <QByteArray>
#include <QDateTime>
#include <QStringList>
#include <QUrl>

#include <algorithm>

using namespace KContacts;

namespace
{

/// Adds up its arguments.
class Counter
{
public:
    qint64 Sum() const { return m_sum; }
    void Add( qint64 a_number ) { m_sum += a_number; }
    void Add( const QString& a_text ) { Add( static_cast<qint64>( a_text.size() ) ); }
    void Add( const QStringList& a_texts ) { Add( static_cast<qint64>( a_texts.size() ) ); }
    void Add( const QUrl& a_address ) { Add( a_address.toString() ); }

private:
    qint64 m_sum = 0;
};

void Take( const PhoneNumber& a_phone, Counter& a_counter )
{
    a_counter.Add( a_phone.number() );
    a_counter.Add( static_cast<qint64>( a_phone.type() ) );
}

void Take( const Email& a_mail, Counter& a_counter )
{
    a_counter.Add( a_mail.mail() );
    a_counter.Add( static_cast<qint64>( a_mail.type() ) );
    a_counter.Add( a_mail.isPreferred() ? 1 : 0 );
}

void Take( const Address& a_address, Counter& a_counter )
{
    for ( const QString& part :
          { a_address.postOfficeBox(), a_address.extended(), a_address.street(), a_address.locality(),
            a_address.region(), a_address.postalCode(), a_address.country(), a_address.label() } )
        a_counter.Add( part );
    a_counter.Add( static_cast<qint64>( a_address.type() ) );
    a_counter.Add( a_address.geo().isValid() ? 1 : 0 );
}

void Take( const Impp& a_messenger, Counter& a_counter )
{
    a_counter.Add( a_messenger.serviceType() );
    a_counter.Add( a_messenger.address() );
}

void Take( const ResourceLocatorUrl& a_url, Counter& a_counter )
{
    a_counter.Add( a_url.url() );
    a_counter.Add( static_cast<qint64>( a_url.type() ) );
}

void Take( const CalendarUrl& a_url, Counter& a_counter )
{
    a_counter.Add( a_url.url() );
}

void Take( const Picture& a_picture, Counter& a_counter )
{
    a_counter.Add( static_cast<qint64>( a_picture.rawData().size() ) );
    a_counter.Add( a_picture.type() );
    a_counter.Add( a_picture.url() );
}

void Take( const Sound& a_sound, Counter& a_counter )
{
    a_counter.Add( static_cast<qint64>( a_sound.data().size() ) );
    a_counter.Add( a_sound.url() );
}

void Take( const Key& a_key, Counter& a_counter )
{
    a_counter.Add( static_cast<qint64>( a_key.binaryData().size() ) );
    a_counter.Add( a_key.textData() );
}

void Take( const NickName& a_name, Counter& a_counter )
{
    a_counter.Add( a_name.nickname() );
}

void Take( const Title& a_title, Counter& a_counter )
{
    a_counter.Add( a_title.title() );
}

void Take( const Role& a_role, Counter& a_counter )
{
    a_counter.Add( a_role.role() );
}

void Take( const Org& a_organisation, Counter& a_counter )
{
    a_counter.Add( a_organisation.organization() );
}

void Take( const Lang& a_language, Counter& a_counter )
{
    a_counter.Add( a_language.language() );
}

void Take( const Related& a_relation, Counter& a_counter )
{
    a_counter.Add( a_relation.related() );
}

template <class Fields>
void TakeAll( const Fields& a_fields, Counter& a_counter )
{
    for ( const auto& field : a_fields )
        Take( field, a_counter );
}

void TakeNames( const Addressee& a_person, Counter& a_counter )
{
    for ( const QString& part :
          { a_person.formattedName(), a_person.familyName(), a_person.givenName(), a_person.additionalName(),
            a_person.prefix(), a_person.suffix(), a_person.sortString(), a_person.nickName() } )
        a_counter.Add( part );
    TakeAll( a_person.extraNickNameList(), a_counter );
}

void TakeWays( const Addressee& a_person, Counter& a_counter )
{
    TakeAll( a_person.phoneNumbers(), a_counter );
    TakeAll( a_person.emailList(), a_counter );
    TakeAll( a_person.addresses(), a_counter );
    TakeAll( a_person.imppList(), a_counter );
    Take( a_person.url(), a_counter );
    TakeAll( a_person.extraUrlList(), a_counter );
    TakeAll( a_person.langs(), a_counter );
    TakeAll( a_person.calendarUrlList(), a_counter );
    a_counter.Add( a_person.geo().isValid() ? 1 : 0 );
    a_counter.Add( a_person.timeZone().offset() );
}

void TakeWork( const Addressee& a_person, Counter& a_counter )
{
    a_counter.Add( a_person.birthday().date().year() );
    a_counter.Add( a_person.anniversary().year() );
    a_counter.Add( a_person.organization() );
    a_counter.Add( a_person.department() );
    TakeAll( a_person.extraOrganizationList(), a_counter );
    a_counter.Add( a_person.title() );
    TakeAll( a_person.extraTitleList(), a_counter );
    a_counter.Add( a_person.role() );
    TakeAll( a_person.extraRoleList(), a_counter );
    TakeAll( a_person.relationships(), a_counter );
    a_counter.Add( a_person.members() );
    Take( a_person.photo(), a_counter );
    TakeAll( a_person.extraPhotoList(), a_counter );
    Take( a_person.logo(), a_counter );
    TakeAll( a_person.extraLogoList(), a_counter );
    Take( a_person.sound(), a_counter );
    TakeAll( a_person.extraSoundList(), a_counter );
    TakeAll( a_person.keys(), a_counter );
}

void TakeRest( const Addressee& a_person, Counter& a_counter )
{
    a_counter.Add( a_person.kind() );
    a_counter.Add( a_person.uid() );
    a_counter.Add( a_person.revision().date().year() );
    a_counter.Add( a_person.note() );
    a_counter.Add( a_person.categories() );
    a_counter.Add( a_person.gender().gender() );
    a_counter.Add( static_cast<qint64>( a_person.secrecy().type() ) );
    a_counter.Add( a_person.mailer() );
    a_counter.Add( a_person.productId() );
    a_counter.Add( a_person.sourcesUrlList().size() );
    a_counter.Add( a_person.clientPidMapList().size() );
    a_counter.Add( a_person.fieldGroupList().size() );
    a_counter.Add( a_person.customs() );
}

Addressee::List Read( const QByteArray& a_text )
{
    const Addressee::List people = VCardConverter().parseVCards( a_text );
    Counter counter;
    for ( const Addressee& person : people )
    {
        TakeNames( person, counter );
        TakeWays( person, counter );
        TakeWork( person, counter );
        TakeRest( person, counter );
    }
    volatile qint64 sum = 0; // written, so that the compiler leaves nothing out
    sum = sum + counter.Sum();
    return people;
}

} // namespace

int main( int argc, char* argv[] )
{
    return PimManager::Peers::Run<QByteArray>(
        argc, argv, Read,
        []( const Addressee::List& a_people )
        {
            return static_cast<int>( std::count_if( a_people.begin(), a_people.end(),
                                                    []( const Addressee& a_person )
                                                    { return !a_person.formattedName().isEmpty(); } ) );
        } );
}
