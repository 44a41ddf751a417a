// What QML reads: the properties of the gadgets.

#include "ContactRows.h"

#include <QDebug>
#include <QMetaProperty>

#include <array>

namespace PimManager::Contacts
{

namespace
{

/// After a property: what all fields have. Each property of the card is in a group that has a label.
QByteArray Line( const QByteArray& a_name, const QByteArray& a_parameters, const QByteArray& a_value )
{
    return "a." + a_name + ";TYPE=home;PREF=1;LANGUAGE=de" + a_parameters + ':' + a_value + "\r\n";
}

PimContact FullContact()
{
    return ContactWith(
        "a.X-ABLabel:Secret\r\n" + Line( "FN", "", "Secret Nell" ) + Line( "N", "", "Secret;Nell;Ada;Dr.;MSc" ) +
            "X-PHONETIC-FIRST-NAME:secret\r\nX-PHONETIC-LAST-NAME:secret\r\nX-PHONETIC-MIDDLE-NAME:secret\r\n"
            "X-MAIDENNAME:secret\r\n" +
            Line( "NICKNAME", "", "Secret" ) + Line( "TEL", "", "tel:+1-5550199;ext=277" ) +
            Line( "EMAIL", "", "\"Secret\" <secret@example.com>" ) +
            Line( "ADR", ";GEO=\"geo:1,2\";TZ=secret;CC=DE;LABEL=secret", "1;2;3;4;5;6;secret" ) +
            Line( "BDAY", "", "19850412T102200Z" ) + "BIRTHPLACE:Secret\r\n" + Line( "ANNIVERSARY", "", "20100506" ) +
            Line( "IMPP", "", "xmpp:secret@example.com" ) + Line( "ORG", "", "Secret;Tide" ) +
            Line( "TITLE", "", "Secret" ) + Line( "ROLE", "", "Secret" ) + Line( "RELATED", ";VALUE=text", "Secret" ) +
            Line( "PHOTO", ";X-ABCROP-RECTANGLE=A&0&0&1&1", "data:image/png;base64,Zm9v" ) +
            Line( "NOTE", ";LEVEL=high", "Secret" ) + Line( "URL", "", "http://secret.example.com" ) +
            Line( "CATEGORIES", "", "secret" ) + Line( "GENDER", "", "F;Secret" ) + "KIND:secret\r\nUID:secret",
        "4.0" );
}

bool HasText( const QVariant& a_value, const QByteArray& a_type )
{
    if ( a_type == "QVariantList" )
        return !a_value.toList().isEmpty();
    if ( a_type == "QStringList" )
        return !a_value.toStringList().isEmpty();
    return a_type == "QString" ? !a_value.toString().isEmpty() : a_value.isValid();
}

/// Reads all properties of a gadget that has everything, except for some, and of one that has nothing.
template <class Gadget>
void ExpectGadget( const Gadget& a_full, const QList<QByteArray>& a_without = QList<QByteArray>() )
{
    const QMetaObject& type = Gadget::staticMetaObject;
    const Gadget empty;
    for ( int i = 0; i < type.propertyCount(); ++i )
    {
        const QMetaProperty property = type.property( i );
        const QByteArray name = property.name();
        const QByteArray where = QByteArray( type.className() ) + ' ' + name;
        const QVariant value = property.readOnGadget( &a_full );
        const QVariant emptyValue = property.readOnGadget( &empty );
        EXPECT_EQ( HasText( value, property.typeName() ), !a_without.contains( name ) ) << where.toStdString();
        const QByteArray typeName = property.typeName();
        const bool isText = typeName.startsWith( "QString" ) || typeName == "QVariantList";
        EXPECT_EQ( emptyValue.isValid(), typeName != "QVariant" ) << where.toStdString();
        EXPECT_FALSE( isText && HasText( emptyValue, typeName ) ) << where.toStdString();
    }
}

/// \return the first element of a list as QML reads it.
template <class Field>
Field FirstOf( const PimContact& a_contact, const char* a_property )
{
    const QMetaObject& type = PimContact::staticMetaObject;
    const QVariant list = type.property( type.indexOfProperty( a_property ) ).readOnGadget( &a_contact );
    const QVariant first = list.toList().value( 0 );
    EXPECT_TRUE( first.canConvert<Field>() ) << a_property;
    return first.value<Field>();
}

// A blank follows what is logged.
std::string Logged( const PimContact& a_contact )
{
    QString text;
    QDebug( &text ) << a_contact;
    return text.toStdString();
}

} // namespace

TEST( PimContactQmlTest, EveryPropertyIsReadable )
{
    const PimContact contact = FullContact();
    ExpectGadget( contact );
    ExpectGadget( contact.Name() );
    ExpectGadget( FirstOf<PimContactPhone>( contact, "phones" ) );
    ExpectGadget( FirstOf<PimContactMail>( contact, "mails" ) );
    ExpectGadget( FirstOf<PimContactAddress>( contact, "addresses" ) );
    ExpectGadget( FirstOf<PimContactEvent>( contact, "events" ) );
    ExpectGadget( FirstOf<PimContactMessenger>( contact, "messengers" ) );
    ExpectGadget( FirstOf<PimContactOrganisation>( contact, "organisations" ) );
    ExpectGadget( FirstOf<PimContactRelation>( contact, "relations" ), { "address" } );
    ExpectGadget( FirstOf<PimContactMedia>( contact, "photos" ), { "address", "text" } );
    ExpectGadget( FirstOf<PimContactText>( contact, "notes" ) );
    ExpectGadget( *contact.Gender() );
    ExpectGadget( contact.Birthday(), { "text" } );
}

TEST( PimContactQmlTest, ListsHoldTheFields )
{
    const PimContact contact = FullContact();
    EXPECT_EQ( FirstOf<PimContactPhone>( contact, "phones" ), contact.Phones().constFirst() );
    EXPECT_EQ( FirstOf<PimContactText>( contact, "nicknames" ).Text(), QLatin1String( "Secret" ) );
    EXPECT_EQ( FirstOf<PimContactText>( contact, "categories" ).Text(), QLatin1String( "secret" ) );
    EXPECT_EQ( FirstOf<PimContactEvent>( contact, "events" ).EventKind(), PimContactEvent::Kind::Birth );
}

TEST( PimContactQmlTest, LogShowsNoTexts )
{
    EXPECT_EQ( Logged( FullContact() ), "PimContact(27 lines, 1 phones, 1 mails, 1 addresses, 1 photos) " );
    EXPECT_EQ( Logged( PimContact() ), "PimContact(null) " );
}

} // namespace PimManager::Contacts
