// ebook-judge: prints what libebook-contacts reads in vCards. The library reads one card at a time, so each block must
// be one card.

#include "Blocks.h"

// This header includes that of libsecret, which has a member named "signals".
#undef signals
#include <libebook-contacts/libebook-contacts.h>

#include <memory>

namespace
{

struct Unref
{
    void operator()( EContact* a_contact ) const { g_object_unref( a_contact ); }
};

// Qt removes a byte order mark at the start of a text.
QString Text( const GString* a_text )
{
    return QString::fromUtf8( QByteArray( "." ).append( a_text->str, static_cast<int>( a_text->len ) ) ).mid( 1 );
}

QStringList Values( EVCardAttribute* a_attribute )
{
    QStringList values;
    for ( const GList* value = e_vcard_attribute_get_values_decoded( a_attribute ); value != nullptr;
          value = value->next )
        values.append( Text( static_cast<const GString*>( value->data ) ) );
    return values;
}

template <class Take>
void ForEach( EContact* a_contact, const char* a_name, Take a_take )
{
    for ( GList* one = e_vcard_get_attributes( E_VCARD( a_contact ) ); one != nullptr; one = one->next )
    {
        auto* attribute = static_cast<EVCardAttribute*>( one->data );
        if ( qstricmp( e_vcard_attribute_get_name( attribute ), a_name ) == 0 )
            a_take( attribute );
    }
}

QJsonArray Texts( EContact* a_contact, const char* a_name )
{
    QJsonArray texts;
    ForEach( a_contact, a_name,
             [&]( EVCardAttribute* a_attribute ) { texts.append( Values( a_attribute ).value( 0 ) ); } );
    return texts;
}

QJsonObject Parts( const QStringList& a_names, const QStringList& a_values )
{
    QJsonObject parts;
    for ( int at = 0; at < a_names.size(); ++at )
        parts.insert( a_names.at( at ), a_values.value( at ) );
    return parts;
}

QJsonObject Name( EContact* a_contact )
{
    const QStringList parts = { QStringLiteral( "family" ), QStringLiteral( "given" ), QStringLiteral( "additional" ),
                                QStringLiteral( "prefix" ), QStringLiteral( "suffix" ) };
    EVCardAttribute* attribute = e_vcard_get_attribute( E_VCARD( a_contact ), EVC_N );
    return Parts( parts, attribute == nullptr ? QStringList() : Values( attribute ) );
}

QJsonArray Addresses( EContact* a_contact )
{
    const QStringList parts = { QStringLiteral( "postOfficeBox" ), QStringLiteral( "extended" ),
                                QStringLiteral( "street" ),        QStringLiteral( "locality" ),
                                QStringLiteral( "region" ),        QStringLiteral( "postalCode" ),
                                QStringLiteral( "country" ) };
    QJsonArray addresses;
    ForEach( a_contact, EVC_ADR,
             [&]( EVCardAttribute* a_attribute ) { addresses.append( Parts( parts, Values( a_attribute ) ) ); } );
    return addresses;
}

QJsonArray Date( EContact* a_contact, EContactField a_field )
{
    QJsonArray dates;
    auto* date = static_cast<EContactDate*>( e_contact_get( a_contact, a_field ) );
    if ( date != nullptr )
        dates.append( QStringLiteral( "%1-%2-%3" )
                          .arg( date->year, 4, 10, QLatin1Char( '0' ) )
                          .arg( date->month, 2, 10, QLatin1Char( '0' ) )
                          .arg( date->day, 2, 10, QLatin1Char( '0' ) ) );
    e_contact_date_free( date );
    return dates;
}

QJsonArray Pictures( EContact* a_contact )
{
    QJsonArray pictures;
    auto* photo = static_cast<EContactPhoto*>( e_contact_get( a_contact, E_CONTACT_PHOTO ) );
    if ( photo == nullptr )
        return pictures;
    if ( photo->type == E_CONTACT_PHOTO_TYPE_INLINED )
    {
        gsize size = 0;
        const guchar* bytes = e_contact_photo_get_inlined( photo, &size );
        pictures.append( PimManager::Judges::Picture(
            QByteArray( reinterpret_cast<const char*>( bytes ), static_cast<int>( size ) ) ) );
    }
    else
        pictures.append(
            QJsonObject( { { QStringLiteral( "address" ), QString::fromUtf8( e_contact_photo_get_uri( photo ) ) } } ) );
    e_contact_photo_free( photo );
    return pictures;
}

QJsonObject Card( EContact* a_contact )
{
    return { { QStringLiteral( "formattedNames" ), Texts( a_contact, EVC_FN ) },
             { QStringLiteral( "name" ), Name( a_contact ) },
             { QStringLiteral( "numbers" ), Texts( a_contact, EVC_TEL ) },
             { QStringLiteral( "mails" ), Texts( a_contact, EVC_EMAIL ) },
             { QStringLiteral( "addresses" ), Addresses( a_contact ) },
             { QStringLiteral( "notes" ), Texts( a_contact, EVC_NOTE ) },
             { QStringLiteral( "birthdays" ), Date( a_contact, E_CONTACT_BIRTH_DATE ) },
             { QStringLiteral( "anniversaries" ), Date( a_contact, E_CONTACT_ANNIVERSARY ) },
             { QStringLiteral( "photos" ), Pictures( a_contact ) } };
}

} // namespace

int main()
{
    return PimManager::Judges::Run(
        []( const QByteArray& a_text )
        {
            const std::unique_ptr<EContact, Unref> contact( e_contact_new_from_vcard( a_text.constData() ) );
            return QJsonArray( { Card( contact.get() ) } );
        } );
}
