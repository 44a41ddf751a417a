/// \file
/// A property of a contact whose value is a text, a language or a URI.
///
/// \code
/// for ( const PimContactText& note : contact.Notes() )
///     qInfo().noquote() << note.Text();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// A NOTE, URL, TITLE or another property with one text, or one element of NICKNAME or CATEGORIES. Implicitly shared.
///
/// PimContact::FieldOf() returns any line as one text.
class PIMCONTACT_EXPORT PimContactText : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( PimManager::Contacts::PimContactKinds kinds READ Kinds )
    Q_PROPERTY( QVariant level READ LevelValue )

public:
    /// Creates a field without a text.
    PimContactText();
    explicit PimContactText( const QString& a_text, PimContactKinds a_kinds = PimContactKinds() );

    /// \return the text. White space at both ends is removed.
    QString Text() const;
    void SetText( const QString& a_text );

    /// \return the purposes of the field, such as home or work. TYPE words without a flag are in Types().
    PimContactKinds Kinds() const;
    void SetKinds( PimContactKinds a_kinds );

    /// \return the level of an EXPERTISE, HOBBY or INTEREST, such as `expert` or `high` (RFC 6715, section 3.2). ASCII
    ///         letters are in lower case. Empty if there is none.
    QString Level() const;

    /// \return the same text in other languages (ALTID), this one included.
    PimContactList<PimContactText> Alternatives() const;

    /// \return true if text, kinds, level, label, preference, language and alternatives are equal.
    bool operator==( const PimContactText& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactText& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactText( PimContactFieldPrivate* a_private );
    QVariant LevelValue() const;
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactText, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactText )
