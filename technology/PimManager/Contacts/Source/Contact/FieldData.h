/// \file
/// The data of the fields of a contact.

#pragma once

#include "Contact/FieldWriter.h"
#include "Contact/VersionWords.h"
#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QList>
#include <QSharedData>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Data that few fields have.
struct FieldExtras
{
    /// Lines of its label and other additions.
    QVector<int> m_moreIds;
    QString m_language;
    QString m_altId;
    /// The words of TYPE that are not kinds, if a program has set the kinds.
    QStringList m_ownTypes;
    bool m_areTypesOwn = false;
    /// The fields in all languages; empty if there is only one.
    std::vector<PimContactField> m_alternatives;
};

/// The data of PimContactField. Derived classes add the typed value.
class PimContactFieldPrivate : public QSharedData
{
public:
    PimContactFieldPrivate() = default;
    PimContactFieldPrivate( const PimContactFieldPrivate& a_other );
    PimContactFieldPrivate& operator=( const PimContactFieldPrivate& a_other ) = delete;
    virtual ~PimContactFieldPrivate() = default;

    virtual PimContactFieldPrivate* Clone() const = 0;

    /// \return true if the typed values are equal. \param a_other must have the same class.
    virtual bool IsSameValue( const PimContactFieldPrivate& a_other ) const = 0;
    /// \return true if there is nothing to write.
    virtual bool IsEmpty() const = 0;
    /// \return the name of the property to write. For texts and media, that of their line, or an empty name.
    virtual std::string_view Name( PimContactVersion a_version ) const = 0;
    /// \return true if a line with another name can contain the field as well.
    virtual bool FitsName( std::string_view a_name ) const { return PropertyOf( a_name ) != PropertyId::AndroidCustom; }
    /// Writes the value in the form for the writer's name, and the parameters of the class.
    virtual void Write( FieldWriter& a_writer ) const = 0;
    /// \return the name of another property that contains a part of the field, such as LABEL of an address; empty if
    ///         all of it is in one line.
    virtual std::string_view AdditionName( PimContactVersion /*a_version*/ ) const { return {}; }
    /// Writes that part.
    virtual void WriteAddition( FieldWriter& /*a_writer*/ ) const {}
    /// Removes data that another line of the field already contains, so that it is not written twice.
    /// \param a_old the field that is replaced, with its lines.
    /// \return false if the line contains something else.
    virtual bool TakeAddition( PropertyId /*a_addition*/, const PimContactFieldPrivate& /*a_old*/ ) { return true; }
    /// \return true if the words of TYPE are those of the field, and not a part of its value.
    virtual bool HasTypes() const { return true; }

    /// Compares the common data of fields, and the typed values.
    bool IsEqual( const PimContactFieldPrivate& a_other ) const;

    /// \return the words of TYPE, see PimContactField::Types().
    QStringList Types() const;
    /// \return the words of TYPE that are not kinds of the class.
    QStringList OtherTypes() const;
    /// Removes the TYPE word that is the label.
    void DropLabelType();
    /// Keeps only the words of TYPE that are not kinds, because the kinds are about to change.
    void DropKindTypes();
    /// \return the words to write for the kinds of the field.
    virtual QStringList KindTypes( PimContactVersion /*a_version*/ ) const { return {}; }
    /// \return true if a word of TYPE is a kind of the class.
    virtual bool IsKind( std::string_view /*a_word*/ ) const { return false; }

    // Opens and creates fields.
    template <class Field>
    static Field FieldOf( PimContactFieldPrivate* a_data )
    {
        return Field( a_data );
    }
    static const PimContactFieldPrivate& Of( const PimContactField& a_field ) { return *a_field.d; }
    /// \return the ids of all lines that a field was read from.
    static QVector<int> LineIdsOf( const PimContactField& a_field );
    template <class Data>
    static const Data& DataOf( const PimContactField& a_field )
    {
        return static_cast<const Data&>( *a_field.d );
    }
    template <class Data>
    static Data& ChangedDataOf( PimContactField& a_field )
    {
        return static_cast<Data&>( *a_field.d );
    }

    const FieldExtras& Extras() const { return m_extras ? *m_extras : NoExtras(); }
    FieldExtras& ChangedExtras()
    {
        if ( !m_extras )
            m_extras = std::make_unique<FieldExtras>();
        return *m_extras;
    }

    /// Null for a field that a program created.
    PimContactLine m_line;
    /// The id of the line.
    PropertyId m_property = PropertyId::Other;
    int m_id = 0;
    QString m_label;
    /// 0 for none.
    int m_preference = 0;
    /// For a nickname or category: the index of the element in the line.
    int m_element = -1;
    /// True if the label is that of a group or a TYPE word.
    bool m_hasGroupLabel = false;
    bool m_isLabelOfType = false;

private:
    static const FieldExtras& NoExtras();

    std::unique_ptr<FieldExtras> m_extras;
};

/// Implements the functions that are the same for all classes.
template <class Derived>
class FieldData : public PimContactFieldPrivate
{
public:
    PimContactFieldPrivate* Clone() const override { return new Derived( static_cast<const Derived&>( *this ) ); }
    bool IsSameValue( const PimContactFieldPrivate& a_other ) const override
    {
        return static_cast<const Derived&>( *this ).IsSame( static_cast<const Derived&>( a_other ) );
    }

    /// The shared data of all fields without a value.
    static PimContactFieldPrivate* Null()
    {
        static const QSharedDataPointer<PimContactFieldPrivate> s_null( new Derived );
        return const_cast<PimContactFieldPrivate*>( s_null.constData() );
    }
};

/// \return true if a TYPE word is the label of its field, in any letter case. The label is without `X-`.
bool IsLabelType( const QString& a_type, const QString& a_label );

/// \return the words as texts.
QStringList TextsOf( const KindWords& a_words );

template <class Field>
PimContactList<Field> AlternativesOf( const Field& a_field )
{
    PimContactList<Field> fields;
    for ( const PimContactField& field : PimContactFieldPrivate::Of( a_field ).Extras().m_alternatives )
        fields.append( static_cast<const Field&>( field ) );
    if ( fields.isEmpty() )
        fields.append( a_field );
    return fields;
}

} // namespace PimManager::Contacts

template <>
inline PimManager::Contacts::PimContactFieldPrivate*
QSharedDataPointer<PimManager::Contacts::PimContactFieldPrivate>::clone()
{
    return d->Clone();
}
