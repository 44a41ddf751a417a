/// \file
/// Adds, replaces and removes the lines of a contact.

#pragma once

#include "Contact/ContactData.h"
#include "Contact/FieldData.h"
#include "Contact/FieldWriter.h"

#include <QByteArray>
#include <QSet>
#include <QStringList>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Edits one contact. Each function is linear in the number of its lines and in the length of the written text.
class ContactEditor
{
public:
    explicit ContactEditor( PimContactPrivate& a_contact ) :
        m_contact( a_contact )
    {
    }

    FieldWriter Writer( std::string_view a_name ) const { return FieldWriter( m_contact.m_lines.Version(), a_name ); }

    /// Adds a field, with further lines for its label and for data that its own line cannot contain.
    /// \param a_name the name of the property; if empty, that of the field.
    /// \return the id of its line; 0 if it is empty.
    int Add( const PimContactField& a_field, std::string_view a_name = std::string_view() );

    bool Replace( const PimContactField& a_field, const PimContactField& a_by );
    bool Remove( const PimContactField& a_field );

    /// Replaces all properties with an id by one line, or removes them if the writer has no value.
    void SetOnly( PropertyId a_property, const FieldWriter& a_writer );
    /// Replaces all properties with an id by lines.
    void SetAll( PropertyId a_property, const std::vector<FieldWriter>& a_writers );

    /// \return the id of the line; 0 if it is not exactly one property.
    int AddLine( const QByteArray& a_line );
    bool RemoveLine( int a_id );
    void RemoveLines( const QSet<int>& a_ids );

private:
    size_t FindLineOf( const PimContactFieldPrivate& a_data ) const;
    std::string_view NameToReplace( const PimContactFieldPrivate& a_data, const QByteArray& a_oldName ) const;
    QByteArray LineFor( const PimContactFieldPrivate& a_data, const QByteArray& a_group, std::string_view a_name,
                        const PimContactLine& a_old, const QString& a_altId ) const;
    void AddLinesOf( const PimContactFieldPrivate& a_data, size_t a_index, const QByteArray& a_group,
                     bool a_isLabelWanted );

    bool HasOtherElements( size_t a_index, const PimContactFieldPrivate& a_data ) const;
    bool ReplaceElement( size_t a_index, const PimContactFieldPrivate& a_data, const QString& a_text );

    PimContactCard CardFor( const FieldWriter& a_writer, const QByteArray& a_group ) const;
    int Insert( size_t a_index, const QByteArray& a_line );
    bool ReplaceAt( size_t a_index, const QByteArray& a_line );
    size_t PlaceFor( PropertyId a_property ) const;

    QByteArray GroupAt( size_t a_index ) const;
    QByteArray FreeGroup() const;
    bool IsGroupShared( const QByteArray& a_group, const QSet<int>& a_ids ) const;
    QSet<int> LabelsOf( const QByteArray& a_group ) const;
    QSet<int> TakeAdditions( const PimContactFieldPrivate& a_old, bool a_isGroupLeft,
                             PimContactFieldPrivate& a_by ) const;
    QSet<int> AdditionsOf( const PimContactFieldPrivate& a_data, const QByteArray& a_group ) const;

    PimContactPrivate& m_contact;
};

} // namespace PimManager::Contacts
