#include "Outputs/CsvColumns.h"

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

// To which columns a number, a mail address or an address belongs: exactly one.
enum class Place
{
    Mobile,
    Home,
    Work,
    Fax,
    Other,
};

template <typename Kinds, typename Kind>
Place HomeOrWork( Kinds a_kinds, Kind a_home, Kind a_work )
{
    if ( a_kinds.testFlag( a_work ) )
        return Place::Work;
    return a_kinds.testFlag( a_home ) ? Place::Home : Place::Other;
}

Place PlaceOf( const PimContactPhone& a_phone )
{
    if ( a_phone.Kinds().testFlag( PimContactPhoneKind::Fax ) )
        return Place::Fax;
    if ( a_phone.Kinds().testFlag( PimContactPhoneKind::Mobile ) )
        return Place::Mobile;
    return HomeOrWork( a_phone.Kinds(), PimContactPhoneKind::Home, PimContactPhoneKind::Work );
}

Place PlaceOf( const PimContactMail& a_mail )
{
    return HomeOrWork( a_mail.Kinds(), PimContactKind::Home, PimContactKind::Work );
}

Place PlaceOf( const PimContactAddress& a_address )
{
    return HomeOrWork( a_address.Kinds(), PimContactAddressKind::Home, PimContactAddressKind::Work );
}

QString Joined( const QStringList& a_texts )
{
    return a_texts.join( QLatin1String( "; " ) );
}

template <typename List, typename TextOf>
QString Joined( const List& a_fields, TextOf a_textOf )
{
    QStringList texts;
    for ( const auto& field : a_fields )
        texts << a_textOf( field );
    return Joined( texts );
}

template <typename List, typename TextOf>
QString JoinedIn( Place a_place, const List& a_fields, TextOf a_textOf )
{
    QStringList texts;
    for ( const auto& field : a_fields )
    {
        if ( PlaceOf( field ) == a_place )
            texts << a_textOf( field );
    }
    return Joined( texts );
}

QString Texts( const PimContactList<PimContactText>& a_texts )
{
    return Joined( a_texts, []( const PimContactText& a_text ) { return a_text.Text(); } );
}

template <PimContactNamePart Part>
QString NameField( const CsvContact& a_contact )
{
    return a_contact.m_name.Part( Part );
}

template <Place In>
QString PhoneField( const CsvContact& a_contact )
{
    return JoinedIn( In, a_contact.m_phones, []( const PimContactPhone& a_phone ) { return a_phone.Text(); } );
}

template <Place In>
QString MailField( const CsvContact& a_contact )
{
    return JoinedIn( In, a_contact.m_mails, []( const PimContactMail& a_mail ) { return a_mail.Address(); } );
}

// Of several addresses, the parts are in the same order in each column.
template <Place In, PimContactAddressPart Part>
QString AddressField( const CsvContact& a_contact )
{
    return JoinedIn( In, a_contact.m_addresses,
                     []( const PimContactAddress& a_address ) { return a_address.Part( Part ); } );
}

template <Place In>
QString StreetField( const CsvContact& a_contact )
{
    return JoinedIn( In, a_contact.m_addresses,
                     []( const PimContactAddress& a_address )
                     {
                         QStringList parts = { a_address.Part( PimContactAddressPart::PostOfficeBox ),
                                               a_address.Part( PimContactAddressPart::Extended ),
                                               a_address.Part( PimContactAddressPart::Street ) };
                         parts.removeAll( QString() );
                         return parts.join( QLatin1String( ", " ) );
                     } );
}

QString MessengerText( const PimContactMessenger& a_messenger )
{
    const QString name = a_messenger.Handle().isEmpty() ? a_messenger.Address() : a_messenger.Handle();
    return a_messenger.Service().isEmpty() ? name : a_messenger.Service() + QLatin1String( ": " ) + name;
}

using Part = PimContactAddressPart;

constexpr std::array s_kColumns = {
    CsvColumn{ "name", []( const CsvContact& a_contact ) { return a_contact.m_contact.DisplayName(); } },
    CsvColumn{ "prefix", NameField<PimContactNamePart::Prefix> },
    CsvColumn{ "given-name", NameField<PimContactNamePart::Given> },
    CsvColumn{ "middle-name", NameField<PimContactNamePart::Additional> },
    CsvColumn{ "family-name", NameField<PimContactNamePart::Family> },
    CsvColumn{ "suffix", NameField<PimContactNamePart::Suffix> },
    CsvColumn{ "nickname", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Nicknames() ); } },
    CsvColumn{ "organisation",
               []( const CsvContact& a_contact )
               {
                   return Joined( a_contact.m_organisations, []( const PimContactOrganisation& a_organisation )
                                  { return a_organisation.Name(); } );
               } },
    CsvColumn{ "unit",
               []( const CsvContact& a_contact )
               {
                   return Joined( a_contact.m_organisations, []( const PimContactOrganisation& a_organisation )
                                  { return a_organisation.Units().join( QLatin1String( ", " ) ); } );
               } },
    CsvColumn{ "title", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Titles() ); } },
    CsvColumn{ "role", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Roles() ); } },
    CsvColumn{ "mobile", PhoneField<Place::Mobile> },
    CsvColumn{ "home-phone", PhoneField<Place::Home> },
    CsvColumn{ "work-phone", PhoneField<Place::Work> },
    CsvColumn{ "other-phone", PhoneField<Place::Other> },
    CsvColumn{ "fax", PhoneField<Place::Fax> },
    CsvColumn{ "home-mail", MailField<Place::Home> },
    CsvColumn{ "work-mail", MailField<Place::Work> },
    CsvColumn{ "other-mail", MailField<Place::Other> },
    CsvColumn{ "home-street", StreetField<Place::Home> },
    CsvColumn{ "home-locality", AddressField<Place::Home, Part::Locality> },
    CsvColumn{ "home-region", AddressField<Place::Home, Part::Region> },
    CsvColumn{ "home-postal-code", AddressField<Place::Home, Part::PostalCode> },
    CsvColumn{ "home-country", AddressField<Place::Home, Part::Country> },
    CsvColumn{ "work-street", StreetField<Place::Work> },
    CsvColumn{ "work-locality", AddressField<Place::Work, Part::Locality> },
    CsvColumn{ "work-region", AddressField<Place::Work, Part::Region> },
    CsvColumn{ "work-postal-code", AddressField<Place::Work, Part::PostalCode> },
    CsvColumn{ "work-country", AddressField<Place::Work, Part::Country> },
    CsvColumn{ "other-street", StreetField<Place::Other> },
    CsvColumn{ "other-locality", AddressField<Place::Other, Part::Locality> },
    CsvColumn{ "other-region", AddressField<Place::Other, Part::Region> },
    CsvColumn{ "other-postal-code", AddressField<Place::Other, Part::PostalCode> },
    CsvColumn{ "other-country", AddressField<Place::Other, Part::Country> },
    CsvColumn{ "url", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Urls() ); } },
    CsvColumn{ "messenger", []( const CsvContact& a_contact )
               { return Joined( a_contact.m_contact.Messengers(), MessengerText ); } },
    CsvColumn{ "birthday", []( const CsvContact& a_contact ) { return a_contact.m_contact.Birthday().ToString(); } },
    CsvColumn{ "anniversary",
               []( const CsvContact& a_contact ) { return a_contact.m_contact.Anniversary().ToString(); } },
    CsvColumn{ "categories", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Categories() ); } },
    CsvColumn{ "note", []( const CsvContact& a_contact ) { return Texts( a_contact.m_contact.Notes() ); } },
    CsvColumn{ "uid", []( const CsvContact& a_contact ) { return a_contact.m_contact.Uid(); } },
};

} // namespace

CsvContact::CsvContact( const PimContact& a_contact ) :
    m_contact( a_contact ),
    m_name( a_contact.Name() ),
    m_organisations( a_contact.Organisations() ),
    m_phones( a_contact.Phones() ),
    m_mails( a_contact.Mails() ),
    m_addresses( a_contact.Addresses() )
{
}

QStringList CsvColumnNames()
{
    QStringList names;
    for ( const CsvColumn& column : s_kColumns )
        names << QString::fromLatin1( column.m_name );
    return names;
}

const CsvColumn* FindCsvColumn( const QByteArray& a_name )
{
    const auto* const found =
        std::find_if( s_kColumns.begin(), s_kColumns.end(),
                      [&a_name]( const CsvColumn& a_column ) { return a_name == a_column.m_name; } );
    return found == s_kColumns.end() ? nullptr : found;
}

std::vector<const CsvColumn*> AllCsvColumns()
{
    std::vector<const CsvColumn*> columns;
    columns.reserve( s_kColumns.size() );
    for ( const CsvColumn& column : s_kColumns )
        columns.push_back( &column );
    return columns;
}

} // namespace PimManager::Tools
