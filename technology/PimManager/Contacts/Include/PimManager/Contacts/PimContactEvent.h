/// \file
/// A day in the life of a contact.
///
/// \code
/// for ( const PimContactEvent& event : contact.Events() )
///     qInfo() << event.Purpose() << event.Date().ToString();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactDate.h>
#include <PimManager/Contacts/PimContactField.h>

namespace PimManager::Contacts
{

/// A BDAY, ANNIVERSARY or DEATHDATE, a property that programs use instead of ANNIVERSARY, or X-ABDATE with its label.
/// The built-in labels `_$!<Anniversary>!$_` and `_$!<Birthday>!$_` also set the kind. Implicitly shared.
class PIMCONTACT_EXPORT PimContactEvent : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( PimManager::Contacts::PimContactEvent::Kind kind READ EventKind )
    Q_PROPERTY( PimManager::Contacts::PimContactDate date READ Date )
    Q_PROPERTY( QString place READ Place )

public:
    enum class Kind
    {
        Birth,
        Anniversary,
        Death,
        Other, ///< named by Label()
    };
    Q_ENUM( Kind )

    /// Creates an event without a date.
    PimContactEvent();
    PimContactEvent( Kind a_kind, const PimContactDate& a_date );

    Kind EventKind() const;

    /// \return the date of the event. It may be a text, and its year may be unknown.
    PimContactDate Date() const;
    void SetDate( const PimContactDate& a_date );

    /// \return the place of the event (BIRTHPLACE and DEATHPLACE, RFC 6474): a text, or a URI such as `geo:46.77,7.63`.
    ///         Empty if there is none.
    QString Place() const;

    /// \return the calendar (CALSCALE), such as `gregorian`. Empty if there is none.
    QString Calendar() const;

    /// \return the same event in other languages (ALTID), this one included.
    PimContactList<PimContactEvent> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal.
    bool operator==( const PimContactEvent& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactEvent& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactEvent( PimContactFieldPrivate* a_private );
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactEvent, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactEvent )
