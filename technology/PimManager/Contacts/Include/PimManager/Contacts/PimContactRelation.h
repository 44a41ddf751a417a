/// \file
/// A relation of a contact to another person.
///
/// \code
/// for ( const PimContactRelation& relation : contact.Relations() )
/// {
///     if ( relation.Kinds().testFlag( PimContactRelationKind::Spouse ) )
///         qInfo() << relation.Text();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

class PimContact;

/// A RELATED (RFC 6350, section 6.6.6), an AGENT (RFC 2426, section 3.5.4), or a property that programs use instead,
/// such as X-SPOUSE. Implicitly shared.
class PIMCONTACT_EXPORT PimContactRelation : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( PimManager::Contacts::PimContactRelationKinds kinds READ Kinds )
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( QString address READ Address )

public:
    /// Creates an empty field.
    PimContactRelation();
    explicit PimContactRelation( const QString& a_text, PimContactRelationKinds a_kinds = PimContactRelationKinds() );

    /// \return the kind of the relation. No flags if the card does not state it or if there is only a Label().
    PimContactRelationKinds Kinds() const;

    /// \return the name of the other person. If an AGENT is a card, its display name. Empty if the card has only an
    ///         address.
    QString Text() const;

    /// \return the URI of the other person, such as `urn:uuid:…` or `mailto:…`. Empty if there is none.
    QString Address() const;

    /// \return the contact in an AGENT. Otherwise a null contact.
    PimContact Contact() const;

    /// \return the same relation in other languages (ALTID), this one included.
    PimContactList<PimContactRelation> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactRelation& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactRelation& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactRelation( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactRelation, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactRelation )
