/// \file
/// A mail address of a contact.
///
/// \code
/// Write( contact.Mails().Preferred().Address() );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// An EMAIL property (RFC 2426, section 3.3.2; RFC 6350, section 6.4.2). Implicitly shared.
class PIMCONTACT_EXPORT PimContactMail : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString address READ Address )
    Q_PROPERTY( QString name READ Name )
    Q_PROPERTY( PimManager::Contacts::PimContactKinds kinds READ Kinds )

public:
    /// Creates a field without an address.
    PimContactMail();
    explicit PimContactMail( const QString& a_address, PimContactKinds a_kinds = PimContactKinds() );

    /// \return the address, such as `omega@example.com`, without `mailto:` and the name of the person. Text that is not
    ///         an address is returned unchanged.
    QString Address() const;
    void SetAddress( const QString& a_address );

    /// \return the name `Omega` in `"Omega" <omega@example.com>`. Empty if there is none.
    QString Name() const;

    /// \return the purposes of the address. TYPE words without a flag are in Types().
    PimContactKinds Kinds() const;
    void SetKinds( PimContactKinds a_kinds );

    /// \return the same address in other languages (ALTID), this one included.
    PimContactList<PimContactMail> Alternatives() const;

    /// \return true if address, name, kinds, label, preference, language and alternatives are equal.
    bool operator==( const PimContactMail& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactMail& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactMail( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactMail, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactMail )
