// kcontacts-judge: prints what KContacts reads in vCards.

#include "Blocks.h"

#include <KContacts/Addressee>
#include <KContacts/VCardConverter>

#include <QDateTime>
#include <QStringList>

using KContacts::Address;
using KContacts::Addressee;
using KContacts::PhoneNumber;
using KContacts::Picture;

namespace
{

QJsonArray List( const QString& a_text )
{
    return a_text.isEmpty() ? QJsonArray() : QJsonArray( { a_text } );
}

QJsonObject Name( const Addressee& a_person )
{
    return { { QStringLiteral( "family" ), a_person.familyName() },
             { QStringLiteral( "given" ), a_person.givenName() },
             { QStringLiteral( "additional" ), a_person.additionalName() },
             { QStringLiteral( "prefix" ), a_person.prefix() },
             { QStringLiteral( "suffix" ), a_person.suffix() } };
}

QJsonArray Numbers( const Addressee& a_person )
{
    QJsonArray numbers;
    for ( const PhoneNumber& phone : a_person.phoneNumbers() )
        numbers.append( phone.number() );
    return numbers;
}

QJsonArray Addresses( const Addressee& a_person )
{
    QJsonArray addresses;
    for ( const Address& address : a_person.addresses() )
        addresses.append( QJsonObject( { { QStringLiteral( "postOfficeBox" ), address.postOfficeBox() },
                                         { QStringLiteral( "extended" ), address.extended() },
                                         { QStringLiteral( "street" ), address.street() },
                                         { QStringLiteral( "locality" ), address.locality() },
                                         { QStringLiteral( "region" ), address.region() },
                                         { QStringLiteral( "postalCode" ), address.postalCode() },
                                         { QStringLiteral( "country" ), address.country() } } ) );
    return addresses;
}

void AppendPicture( const Picture& a_picture, QJsonArray& a_pictures )
{
    if ( a_picture.isIntern() && !a_picture.rawData().isEmpty() )
        a_pictures.append( PimManager::Judges::Picture( a_picture.rawData() ) );
    else if ( !a_picture.url().isEmpty() )
        a_pictures.append( QJsonObject( { { QStringLiteral( "address" ), a_picture.url() } } ) );
}

QJsonArray Pictures( const Addressee& a_person )
{
    QJsonArray pictures;
    AppendPicture( a_person.photo(), pictures );
    for ( const Picture& picture : a_person.extraPhotoList() )
        AppendPicture( picture, pictures );
    return pictures;
}

QString Birthday( const Addressee& a_person )
{
    return a_person.birthdayHasTime() ? a_person.birthday().toString( Qt::ISODate )
                                      : a_person.birthday().date().toString( Qt::ISODate );
}

QJsonObject Card( const Addressee& a_person )
{
    return { { QStringLiteral( "formattedNames" ), List( a_person.formattedName() ) },
             { QStringLiteral( "name" ), Name( a_person ) },
             { QStringLiteral( "numbers" ), Numbers( a_person ) },
             { QStringLiteral( "mails" ), QJsonArray::fromStringList( a_person.emails() ) },
             { QStringLiteral( "addresses" ), Addresses( a_person ) },
             { QStringLiteral( "notes" ), List( a_person.note() ) },
             { QStringLiteral( "birthdays" ), List( Birthday( a_person ) ) },
             { QStringLiteral( "anniversaries" ), List( a_person.anniversary().toString( Qt::ISODate ) ) },
             { QStringLiteral( "photos" ), Pictures( a_person ) } };
}

} // namespace

int main()
{
    return PimManager::Judges::Run(
        []( const QByteArray& a_text )
        {
            QJsonArray cards;
            for ( const Addressee& person : KContacts::VCardConverter().parseVCards( a_text ) )
                cards.append( Card( person ) );
            return cards;
        } );
}
