/// \file
/// The gender of a contact.
///
/// \code
/// if ( contact.Gender() )
///     qInfo() << contact.Gender()->Text();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>

namespace PimManager::Contacts
{

/// A GENDER property (RFC 6350, section 6.2.7). Implicitly shared.
class PIMCONTACT_EXPORT PimContactGender : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( PimManager::Contacts::PimContactGender::Sex sex READ SexOf )
    Q_PROPERTY( QString text READ Text )

public:
    enum class Sex
    {
        Open, ///< the property does not state the sex, or has another letter
        Male,
        Female,
        Other,
        NotApplicable, ///< `N`: none or not applicable
        Unknown,       ///< `U`
    };
    Q_ENUM( Sex )

    /// Creates an empty field.
    PimContactGender();
    explicit PimContactGender( Sex a_sex, const QString& a_text = QString() );

    Sex SexOf() const;

    /// \return the gender identity in words. Empty if there is none.
    QString Text() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactGender& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactGender& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactGender( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactGender, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactGender )
