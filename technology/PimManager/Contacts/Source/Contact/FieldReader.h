/// \file
/// Reads the lines of a contact for typed fields.

#pragma once

#include "Contact/Alternatives.h"
#include "Contact/Borrowed.h"
#include "Contact/ContactData.h"
#include "Contact/FieldData.h"
#include "Contact/FieldMemory.h"
#include "Contact/FieldParameters.h"
#include "Contact/GroupLabels.h"
#include "Values/PartReader.h"
#include "Values/ValueDecoder.h"

#include <QString>

#include <string_view>

namespace PimManager::Contacts
{

/// Iterates over the lines with certain properties. Nothing is decoded before it is needed.
class FieldReader
{
public:
    /// \param a_contact must outlive the reader.
    explicit FieldReader( const PimContactPrivate& a_contact ) :
        m_contact( a_contact )
    {
    }

    /// \param a_properties a PropertyId or a PropertySet.
    /// \return false after the last line.
    template <class Properties>
    bool Next( const Properties& a_properties )
    {
        m_index = m_contact.m_lines.Next( a_properties, m_next );
        if ( m_index == m_contact.m_lines.Size() )
            return false;
        m_next = m_index + 1;
        m_contact.m_lines.Read( m_index, m_memory->m_line );
        m_isDecoded = false;
        return true;
    }

    const PimContactPrivate& Contact() const { return m_contact; }
    PropertyId Property() const { return m_contact.m_lines.At( m_index ).m_property; }
    int Id() const { return m_contact.m_lines.At( m_index ).m_id; }
    const IndexedLine& Line() const { return m_memory->m_line; }
    PimContactLine PublicLine() const { return m_contact.m_lines.LineOf( m_index ); }
    PimContactVersion Version() const { return Line().m_card.m_record.Version(); }
    std::string_view Name() { return Line().Name( m_memory->m_name ); }
    /// The group. Empty if there is none.
    std::string_view Group() { return Line().Group( m_memory->m_group ); }

    /// \return the value as one text, without white space at both ends. Valid until the next line or part.
    std::string_view Text();
    /// \return the value with its escapes.
    ValueDecoder& Value();
    PartReader Parts( Delimiters a_delimiters ) { return Value().Parts( a_delimiters ); }
    /// The delimiters of the value, by the property and the version.
    Delimiters ValueDelimiters() const;

    /// Reads the parameters and the label. Call this once for each line. Without kinds, no TYPE word is a label.
    void ReadParameters( FieldParameters::KindsOf a_kindsOf );
    const FieldParameters& Parameters() const { return m_memory->m_parameters; }
    /// \return the kinds of all words of TYPE and of a built-in label.
    template <class Kinds>
    Kinds KindsAs() const
    {
        return Kinds( QFlag( static_cast<int>( m_kinds ) ) );
    }
    /// \return the value of a parameter as text.
    QString ParameterText( FieldParameter a_parameter ) const;
    /// \return the texts of SORT-AS.
    QStringList SortAs() const;

    /// The words of TYPE have another meaning in this line.
    void SetNoTypeLabel() { m_isTypeLabel = false; }

    /// Sets the data that all fields have. The parameters must have been read.
    void SetCommon( PimContactFieldPrivate& a_data );

private:
    void SetRare( PimContactFieldPrivate& a_data ) const;

    const PimContactPrivate& m_contact;
    // The positions of the line and of the next one.
    size_t m_index = 0;
    size_t m_next = 0;
    Borrowed<FieldMemory> m_memory;
    bool m_isDecoded = false;
    quint32 m_kinds = 0;
    // A TYPE word that is not a kind is a label.
    bool m_isTypeLabel = false;
    GroupLabels::Label m_label;
};

/// No TYPE word is a kind.
quint32 NoKinds( std::string_view a_word );

/// Creates the fields of a class.
///
/// \param a_properties a PropertyId or a PropertySet.
/// \param a_read creates the data of a field from the line of the reader. It returns null if there is no value.
template <class Field, class Properties>
PimContactList<Field> ReadFields( const PimContactPrivate& a_contact, const Properties& a_properties,
                                  PimContactFieldPrivate* ( *a_read )( FieldReader& a_reader ) )
{
    PimContactList<Field> fields;
    if ( !a_contact.m_lines.Has( a_properties ) )
        return fields;
    FieldReader reader( a_contact );
    bool hasAlternatives = false;
    while ( reader.Next( a_properties ) )
    {
        PimContactFieldPrivate* const data = a_read( reader );
        if ( data == nullptr )
            continue;
        reader.SetCommon( *data );
        hasAlternatives = hasAlternatives || !data->Extras().m_altId.isEmpty();
        fields.append( PimContactFieldPrivate::FieldOf<Field>( data ) );
    }
    if ( hasAlternatives )
        MergeAlternatives( fields, a_contact.m_languages );
    return fields;
}

} // namespace PimManager::Contacts
