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

/// The components of ADR in the order of the value (RFC 6350, section 6.3.1; from Room on RFC 9554, section 2.1).
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
/// A LABEL of its own (vCard 2.1, RFC 2426) belongs to the address of the same group, or else to the first one with the
/// same types, or else to the next address in order.
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

    /// \return the texts of a component, which is a list; without empty ones.
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

    /// \return the code of the country as written, such as `DE`: that of the parameter CC (RFC 8605), or else of
    ///         X-ABADR in the same group. Empty if it is open.
    QString CountryCode() const;
    void SetCountryCode( const QString& a_code );

    /// \return the address as it is written on a letter (LABEL); empty if it is open.
    QString DeliveryText() const;
    void SetDeliveryText( const QString& a_text );

    /// \return lines for people: the delivery text, or else the components from the post office box to the country.
    QString Text() const;

    /// \return the position: that of the parameter GEO, or else of the property GEO of the same group. Open if there is
    ///         none that can be read.
    std::optional<PimContactPosition> Position() const;

    /// \return the time zone as written: that of the parameter TZ, or else of the property TZ of the same group. Empty
    ///         if it is open.
    QString TimeZone() const;

    /// \return what the address is for. Words of TYPE that are no kind are in Types().
    PimContactAddressKinds Kinds() const;
    void SetKinds( PimContactAddressKinds a_kinds );

    /// True if there are neither components nor a delivery text.
    bool IsEmpty() const;

    /// \return the same address in other languages or scripts (ALTID), this one included.
    PimContactList<PimContactAddress> Alternatives() const;

    /// \return true if all of the above, label, preference and language are equal.
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
