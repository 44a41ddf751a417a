/// \file
/// An account of a contact with a messenger or a social network.
///
/// \code
/// for ( const PimContactMessenger& account : contact.Messengers() )
///     qInfo() << account.Service() << account.Handle();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// An IMPP (RFC 4770; RFC 6350, section 6.4.3), a SOCIALPROFILE (RFC 9554, section 2.5), or a property that programs
/// use instead, such as X-JABBER. Implicitly shared.
class PIMCONTACT_EXPORT PimContactMessenger : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString service READ Service )
    Q_PROPERTY( QString handle READ Handle )
    Q_PROPERTY( QString address READ Address )
    Q_PROPERTY( PimManager::Contacts::PimContactKinds kinds READ Kinds )

public:
    /// Creates an empty field.
    PimContactMessenger();
    /// \param a_service as Service() returns it.
    PimContactMessenger( const QString& a_service, const QString& a_handle );

    /// \return the name of the service, such as `Skype`. A known service always has the same name, whatever name the
    ///         card uses. The name of any other service is returned as written. Empty if there is none.
    QString Service() const;

    /// \return the user's name in that service. Empty if the card has only an address from which it cannot be read.
    QString Handle() const;

    /// \return the URI, such as `xmpp:omega@example.com`. Empty if there is none.
    QString Address() const;

    /// \return the purposes of the account, such as home or work. TYPE words without a flag are in Types().
    PimContactKinds Kinds() const;
    void SetKinds( PimContactKinds a_kinds );

    /// True for a SOCIALPROFILE and the properties that programs use instead.
    bool IsSocialProfile() const;

    /// \return the same account in other languages (ALTID), this one included.
    PimContactList<PimContactMessenger> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactMessenger& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactMessenger& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactMessenger( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactMessenger, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactMessenger )
