/// \file
/// A telephone number of a contact.
///
/// \code
/// for ( const PimContactPhone& phone : contact.Phones() )
/// {
///     if ( phone.Kinds().testFlag( PimContactPhoneKind::Mobile ) )
///         qInfo() << phone.Number() << phone.Label();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// A TEL property (RFC 2426, section 3.3.1; RFC 6350, section 6.4.1). Implicitly shared.
class PIMCONTACT_EXPORT PimContactPhone : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString number READ Number )
    Q_PROPERTY( QString extension READ Extension )
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( PimManager::Contacts::PimContactPhoneKinds kinds READ Kinds )

public:
    /// Creates a field without a number.
    PimContactPhone();
    /// \param a_number in any notation.
    explicit PimContactPhone( const QString& a_number, PimContactPhoneKinds a_kinds = PimContactPhoneKinds() );

    /// \return the number as written, without the extension and without `tel:`. White space at both ends is removed.
    QString Number() const;
    void SetNumber( const QString& a_number );

    /// \return the extension: the digits after `;ext=` (RFC 3966) or after a word such as `ext.` or `x`. Empty if there
    ///         is none.
    QString Extension() const;
    void SetExtension( const QString& a_extension );

    /// \return the number and the extension for people, such as `+1-555 ext. 12`.
    QString Text() const;

    /// \return the phone-context of a `tel:` URI (RFC 3966, section 5.1.5). Empty if there is none.
    QString Context() const;

    /// \return the purposes of the number. TYPE words without a flag are in Types().
    PimContactPhoneKinds Kinds() const;
    void SetKinds( PimContactPhoneKinds a_kinds );

    /// \return the same number in other languages or scripts (ALTID), this one included.
    PimContactList<PimContactPhone> Alternatives() const;

    /// \return true if number, extension, context, kinds, label, preference, language and alternatives are equal.
    bool operator==( const PimContactPhone& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactPhone& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactPhone( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactPhone, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactPhone )
