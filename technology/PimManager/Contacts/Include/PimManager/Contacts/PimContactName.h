/// \file
/// The parts of a contact's name.
///
/// \code
/// const PimContactName name = contact.Name();
/// qInfo() << name.Given() << name.Family();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>

namespace PimManager::Contacts
{

/// The components of N in the order of the value (RFC 6350, section 6.2.2; RFC 9554, section 2.2).
enum class PimContactNamePart
{
    Family,
    Given,
    Additional,
    Prefix,
    Suffix,
    SecondSurname,
    Generation,
};

/// The number of components of N.
constexpr int s_kPimContactNameParts = static_cast<int>( PimContactNamePart::Generation ) + 1;

/// An N property, with the properties that vendors add to it. Implicitly shared.
class PIMCONTACT_EXPORT PimContactName : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString family READ Family )
    Q_PROPERTY( QString given READ Given )
    Q_PROPERTY( QString additional READ Additional )
    Q_PROPERTY( QString prefix READ Prefix )
    Q_PROPERTY( QString suffix READ Suffix )
    Q_PROPERTY( QString phoneticFamily READ PhoneticFamily )
    Q_PROPERTY( QString phoneticGiven READ PhoneticGiven )
    Q_PROPERTY( QString phoneticMiddle READ PhoneticMiddle )
    Q_PROPERTY( QString maidenName READ MaidenName )
    Q_PROPERTY( QString text READ Text )

public:
    /// Creates an empty name.
    PimContactName();
    PimContactName( const QString& a_given, const QString& a_family );

    /// \return the texts of a component, without empty ones. A component is a list.
    QStringList Parts( PimContactNamePart a_part ) const;
    void SetParts( PimContactNamePart a_part, const QStringList& a_texts );

    /// \return the texts of a component, joined by blanks.
    QString Part( PimContactNamePart a_part ) const;
    QString Family() const { return Part( PimContactNamePart::Family ); }
    QString Given() const { return Part( PimContactNamePart::Given ); }
    QString Additional() const { return Part( PimContactNamePart::Additional ); }
    QString Prefix() const { return Part( PimContactNamePart::Prefix ); }
    QString Suffix() const { return Part( PimContactNamePart::Suffix ); }

    /// \return the pronunciation of the name (X-PHONETIC-LAST-NAME, -FIRST-NAME, -MIDDLE-NAME). Empty if there is none.
    QString PhoneticFamily() const;
    QString PhoneticGiven() const;
    QString PhoneticMiddle() const;

    /// \return X-MAIDENNAME. Empty if there is none.
    QString MaidenName() const;

    /// \return the texts by which the name is sorted (SORT-AS; RFC 6350, section 5.9). The first is for the family
    ///         name, the second, if any, for the given name. Empty if there are none.
    QStringList SortAs() const;

    /// \return the parts in spoken order, joined by blanks: prefix, given, additional, family, second surname,
    ///         generation, suffix.
    QString Text() const;

    /// True if all parts are empty.
    bool IsEmpty() const;

    /// \return the name in other languages or scripts (ALTID), this one included.
    PimContactList<PimContactName> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactName& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactName& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactName( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactName, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactName )
