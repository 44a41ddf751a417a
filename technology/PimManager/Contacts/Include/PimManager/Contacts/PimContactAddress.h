/// \file
/// A postal address of a contact.
///
/// \code
/// const PimContactAddress address = contact.Addresses().Preferred();
/// qInfo() << address.Street() << address.PostalCode() << address.Locality();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>
#include <PimManager/Contacts/PimContactPosition.h>

namespace PimManager::Contacts
{

/// The components of ADR in the order of the value (RFC 6350, section 6.3.1; Room and later: RFC 9554, section 2.1).
enum class PimContactAddressPart
{
    PostOfficeBox,
    Extended,
    Street,
    Locality,
    Region,
    PostalCode,
    Country,
    Room,
    Apartment,
    Floor,
    StreetNumber,
    StreetName,
    Building,
    Block,
    Subdistrict,
    District,
    Landmark,
    Direction,
};

/// The number of components of ADR.
constexpr int s_kPimContactAddressParts = static_cast<int>( PimContactAddressPart::Direction ) + 1;

/// An ADR property with its label, position and time zone, or a LABEL property without an ADR. Implicitly shared.
///
/// A separate LABEL property (vCard 2.1, RFC 2426) belongs to the address of the same group, or else to the first
/// address with the same types, or else to the next address in order.
class PIMCONTACT_EXPORT PimContactAddress : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString postOfficeBox READ PostOfficeBox )
    Q_PROPERTY( QString extended READ Extended )
    Q_PROPERTY( QString street READ Street )
    Q_PROPERTY( QString locality READ Locality )
    Q_PROPERTY( QString region READ Region )
    Q_PROPERTY( QString postalCode READ PostalCode )
    Q_PROPERTY( QString country READ Country )
    Q_PROPERTY( QString countryCode READ CountryCode )
    Q_PROPERTY( QString deliveryText READ DeliveryText )
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( QVariant latitude READ LatitudeValue )
    Q_PROPERTY( QVariant longitude READ LongitudeValue )
    Q_PROPERTY( QString timeZone READ TimeZone )
    Q_PROPERTY( PimManager::Contacts::PimContactAddressKinds kinds READ Kinds )

public:
    /// Creates an empty address.
    PimContactAddress();

    /// \return the texts of a component, without empty ones. A component is a list.
    QStringList Parts( PimContactAddressPart a_part ) const;
    void SetParts( PimContactAddressPart a_part, const QStringList& a_texts );

    /// \return the texts of a component, joined by commas and blanks.
    QString Part( PimContactAddressPart a_part ) const;
    QString PostOfficeBox() const { return Part( PimContactAddressPart::PostOfficeBox ); }
    QString Extended() const { return Part( PimContactAddressPart::Extended ); }
    QString Street() const { return Part( PimContactAddressPart::Street ); }
    QString Locality() const { return Part( PimContactAddressPart::Locality ); }
    QString Region() const { return Part( PimContactAddressPart::Region ); }
    QString PostalCode() const { return Part( PimContactAddressPart::PostalCode ); }
    QString Country() const { return Part( PimContactAddressPart::Country ); }

    /// \return the country code as written, such as `DE`, from the parameter CC (RFC 8605) or else from X-ABADR in the
    ///         same group. Empty if there is none.
    QString CountryCode() const;
    void SetCountryCode( const QString& a_code );

    /// \return the address as it is written on a letter (LABEL). Empty if there is none.
    QString DeliveryText() const;
    void SetDeliveryText( const QString& a_text );

    /// \return lines for people: the delivery text, or else the components from the post office box up to the country.
    QString Text() const;

    /// \return the position from the parameter GEO, or else from the property GEO of the same group. Not set if there
    ///         is none that can be read.
    std::optional<PimContactPosition> Position() const;

    /// \return the time zone as written, from the parameter TZ or else from the property TZ of the same group. Empty if
    ///         there is none.
    QString TimeZone() const;

    /// \return the purposes of the address. TYPE words without a flag are in Types().
    PimContactAddressKinds Kinds() const;
    void SetKinds( PimContactAddressKinds a_kinds );

    /// True if there are neither components nor a delivery text.
    bool IsEmpty() const;

    /// \return the same address in other languages or scripts (ALTID), this one included.
    PimContactList<PimContactAddress> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactAddress& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactAddress& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactAddress( PimContactFieldPrivate* a_private );
    QVariant LatitudeValue() const;
    QVariant LongitudeValue() const;
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactAddress, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactAddress )
