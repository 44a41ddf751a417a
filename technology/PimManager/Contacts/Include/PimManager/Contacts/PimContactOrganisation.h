/// \file
/// An organisation of a contact.
///
/// \code
/// qInfo() << contact.Organisations().Preferred().Name() << contact.Titles().Preferred().Text();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// An ORG property (RFC 6350, section 6.6.4). Implicitly shared.
class PIMCONTACT_EXPORT PimContactOrganisation : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString name READ Name )
    Q_PROPERTY( QStringList units READ Units )
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( PimManager::Contacts::PimContactKinds kinds READ Kinds )

public:
    /// Creates an empty field.
    PimContactOrganisation();
    explicit PimContactOrganisation( const QString& a_name, const QStringList& a_units = QStringList() );

    /// \return the name of the organisation. Empty if the card names only units.
    QString Name() const;

    /// \return the units, the largest first, without empty ones.
    QStringList Units() const;

    /// \return name and units, joined by commas and blanks.
    QString Text() const;

    /// \return the texts by which name and units are sorted (SORT-AS). Empty if there are none.
    QStringList SortAs() const;

    PimContactKinds Kinds() const;

    /// \return the same organisation in other languages (ALTID), this one included.
    PimContactList<PimContactOrganisation> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactOrganisation& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactOrganisation& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactOrganisation( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactOrganisation, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactOrganisation )
