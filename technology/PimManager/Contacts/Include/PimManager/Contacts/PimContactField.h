/// \file
/// The common base of all parts of a contact: the position in the card, label, types, preference and language.
///
/// \code
/// const PimContactPhone phone = contact.Phones().Preferred();
/// qInfo() << phone.Label() << phone.Types() << contact.Line( phone.Id() ).Value();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QList>
#include <QPair>
#include <QSharedDataPointer>
#include <QString>
#include <QStringList>
#include <QVarLengthArray>
#include <QVariant>
#include <QVector>
#include <QtCore/qobjectdefs.h>

#include <optional>

namespace PimManager::Contacts
{

class PimContactFieldPrivate;

/// A part of a contact, such as a number, a mail address or a date. It is the base of PimContactPhone and other
/// classes, which add the typed value. Implicitly shared. Const functions may run in several threads at once.
///
/// A field that was read shares the memory of its card and remains valid without the contact. A field that a program
/// creates belongs to no contact until it is passed to a function such as PimContact::AddPhone().
///
/// All texts are decoded but otherwise unchanged. They may be long and may contain any character. Escape them before
/// you write them to a terminal or into HTML.
///
/// QML reads the properties. A property is undefined if it is not set in the card.
class PIMCONTACT_EXPORT PimContactField
{
    Q_GADGET
    Q_PROPERTY( int id READ Id )
    Q_PROPERTY( QString label READ Label )
    Q_PROPERTY( QString purpose READ Purpose )
    Q_PROPERTY( QStringList types READ Types )
    Q_PROPERTY( QVariant preference READ PreferenceValue )
    Q_PROPERTY( QString language READ Language )

public:
    PimContactField( const PimContactField& a_other );
    PimContactField( PimContactField&& a_other ) noexcept;
    ~PimContactField();

    /// \return the id of the line that the field was read from, see PimContact::Line(). 0 for a field that a program
    ///         created. Edits of the contact do not change the ids of its lines.
    int Id() const;

    /// \return the ids of all lines that the field was read from: its own, and those of its label, position and other
    ///         additions. Empty for a field that a program created.
    QList<int> LineIds() const;

    /// \return the user's name for the field: X-ABLabel of the same group, else X-CUSTOM, else the first TYPE word that
    ///         is not a standard one. `Home` for `_$!<Home>!$_` and `Boat` for `X-Boat`. Empty if there is no label.
    QString Label() const;
    /// Sets the label. An empty one removes it.
    void SetLabel( const QString& a_label );

    /// \return the words of TYPE, such as `CELL`, each once. ASCII letters are in upper case. PREF is left out.
    ///         INTERNET is left out for a mail address, because it applies to every address. PimContactLine::Types()
    ///         returns the words as written.
    QStringList Types() const;

    /// \return the purpose of the field in a few words such as `boat phone` or `cell, work`: the label, or else the
    ///         types in lower case. Empty if there are neither.
    QString Purpose() const;

    /// \return a number from 1 (most preferred) to 100: the value of PREF, or 1 if a type is PREF. Not set if there is
    ///         neither.
    std::optional<int> Preference() const;
    /// \param a_preference from 1 to 100. Other numbers are changed to the nearest of these.
    void SetPreference( std::optional<int> a_preference );

    /// \return the language of the text (LANGUAGE), such as `de` or `ja-Latn`. Empty if there is none.
    QString Language() const;
    void SetLanguage( const QString& a_language );

    /// \return the parameters as PimContactLine::NamedParameters() returns them. Empty for a field that a program
    ///         created.
    QList<QPair<QString, QString>> Parameters() const;

protected:
    explicit PimContactField( PimContactFieldPrivate* a_private );
    PimContactField& operator=( const PimContactField& a_other );
    PimContactField& operator=( PimContactField&& a_other ) noexcept;
    bool IsEqual( const PimContactField& a_other ) const;

    friend class PimContactFieldPrivate; // creates fields, and opens them
    QSharedDataPointer<PimContactFieldPrivate> d;

private:
    QVariant PreferenceValue() const;
};

/// The fields of one kind, in the order of the card. A QVarLengthArray with a few more functions. Most cards have one
/// or two fields of a kind, and a list of these allocates no memory. The fields are implicitly shared, but the list is
/// not.
template <class Field>
class PimContactList : public QVarLengthArray<Field, 2>
{
public:
    using QVarLengthArray<Field, 2>::QVarLengthArray;

    PimContactList() = default;
    PimContactList( const PimContactList& a_other ) = default;
    PimContactList( PimContactList&& a_other ) noexcept = default;
    ~PimContactList() = default;
    // There is no move assignment, because that of Qt 6.4 loses memory. A list is copied instead.
    PimContactList& operator=( const PimContactList& a_other ) = default;

    /// \return the first field. The list must not be empty.
    const Field& constFirst() const { return this->first(); }
    /// \return the last field. The list must not be empty.
    const Field& constLast() const { return this->last(); }

    /// \return the preferred field: the one with the lowest Preference(), or else the first one. An empty field if
    ///         there is none. Linear.
    Field Preferred() const
    {
        const Field* preferred = nullptr;
        for ( const Field& field : *this )
        {
            if ( preferred == nullptr || IsRather( field, *preferred ) )
                preferred = &field;
        }
        return preferred == nullptr ? Field() : *preferred;
    }

    /// \return the fields for QML.
    QVariantList Values() const
    {
        QVariantList values;
        values.reserve( this->size() );
        for ( const Field& field : *this )
            values.append( QVariant::fromValue( field ) );
        return values;
    }

private:
    static bool IsRather( const Field& a_field, const Field& a_than )
    {
        const std::optional<int> preference = a_field.Preference();
        const std::optional<int> other = a_than.Preference();
        return preference && ( !other || *preference < *other );
    }
};

} // namespace PimManager::Contacts
