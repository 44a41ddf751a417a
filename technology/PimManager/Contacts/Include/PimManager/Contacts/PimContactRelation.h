/// \file
/// Somebody else who has to do with a contact.
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

/// A RELATED (RFC 6350, section 6.6.6), an AGENT (RFC 2426, section 3.5.4), or one of the properties that programs use
/// for them, such as X-SPOUSE. Implicitly shared.
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

    /// \return what the other person is to the contact; without flags if it is open or has only a Label().
    PimContactRelationKinds Kinds() const;

    /// \return the name of the other person: of an AGENT that is a card its display name. Empty if the card has only an
    ///         address.
    QString Text() const;

    /// \return the URI of the other person, such as `urn:uuid:…` or `mailto:…`; empty if the card has none.
    QString Address() const;

    /// \return the contact that an AGENT holds; a null contact otherwise.
    PimContact Contact() const;

    /// \return the same relation in other languages (ALTID), this one included.
    PimContactList<PimContactRelation> Alternatives() const;

    /// \return true if all of the above, label, preference and language are equal.
    bool operator==( const PimContactRelation& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactRelation& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactRelation( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactRelation, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactRelation )
