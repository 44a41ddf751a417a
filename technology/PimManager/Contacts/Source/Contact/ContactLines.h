/// \file
/// The lines of a contact: those of its card, and those that edits have added.

#pragma once

#include "Cards/LineView.h"
#include "Lines/PropertyTable.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <algorithm>
#include <bitset>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// A set of properties.
using PropertySet = std::bitset<s_kProperties>;

inline PropertySet SetOf( std::initializer_list<PropertyId> a_properties )
{
    PropertySet properties;
    for ( const PropertyId property : a_properties )
        properties[static_cast<size_t>( property )] = true;
    return properties;
}

/// \return the property with a name, as a contact reads it: in addition to PropertyOf(), names such as
///         `X-messaging/xmpp-All` are messengers.
PropertyId PropertyNamed( std::string_view a_name );

/// A line of a contact.
struct ContactLine
{
    ContactLine( int a_id, quint32 a_card, LinePlace a_place, PropertyId a_property, ByteRange a_value ) :
        m_id( a_id ),
        m_card( a_card ),
        m_place( a_place ),
        m_property( a_property ),
        m_plainValue( a_value )
    {
    }

    /// The id, from 1. Edits do not change it.
    int m_id;
    /// The card that contains it: 0 for the card of the contact, else the index of an added card plus one.
    quint32 m_card;
    LinePlace m_place;
    PropertyId m_property;
    /// The value in the bytes of the card, with the line ending, if it is UTF-8 text as written, except for its
    /// escapes. At 0 for any other value, and in an added card.
    ByteRange m_plainValue;
};

/// The lines in their order. Each added line is in its own card, so that all lines are read in the same way.
class ContactLines
{
public:
    ContactLines() = default;
    explicit ContactLines( const PimContactCard& a_card );

    const PimContactCard& Card() const { return m_card; }
    bool IsEdited() const { return m_isEdited; }
    /// The version by which lines are read and added. It is 3.0 if there is no card.
    PimContactVersion Version() const;

    /// \return the blanks before each line of an indented card; empty for other cards.
    QByteArray Indentation() const;

    size_t Size() const { return m_lines.size(); }
    const ContactLine& At( size_t a_index ) const { return m_lines[a_index]; }
    bool Has( PropertyId a_property ) const { return m_properties[static_cast<size_t>( a_property )]; }
    bool Has( const PropertySet& a_properties ) const { return ( m_properties & a_properties ).any(); }

    /// \return the index of the first line with a property, from a_from on; Size() if there is none.
    size_t Next( PropertyId a_property, size_t a_from ) const
    {
        size_t index = a_from;
        while ( index < m_lines.size() && m_lines[index].m_property != a_property )
            ++index;
        return index;
    }
    /// The same for any of several properties.
    size_t Next( const PropertySet& a_properties, size_t a_from ) const
    {
        size_t index = a_from;
        while ( index < m_lines.size() && !a_properties[static_cast<size_t>( m_lines[index].m_property )] )
            ++index;
        return index;
    }
    /// \return the index of the line with an id; Size() if there is none. Linear.
    size_t Find( int a_id ) const;
    /// \return the index after the last line with a property; Size() if there is none. Linear.
    size_t EndOf( PropertyId a_property ) const;

    /// Reads the entry of a line.
    /// \param a_line keeps the data of the card for the next line.
    void Read( size_t a_index, IndexedLine& a_line ) const
    {
        const ContactLine& line = m_lines[a_index];
        if ( a_line.m_card.m_index == nullptr || !m_added.empty() )
            a_line.m_card = ViewOf( line );
        PimContactCardPrivate::LineView::Read( line.m_place, a_line );
    }
    /// Finds a value that is UTF-8 text as written, except for its escapes.
    /// \param[out] a_value the value, with the line ending.
    /// \return false for any other value.
    bool FindPlainValue( size_t a_index, std::string_view& a_value ) const
    {
        const ByteRange value = m_lines[a_index].m_plainValue;
        a_value = std::string_view( m_view.m_bytes.data() + value.m_begin, value.m_length );
        return value.m_begin > 0 && !m_view.m_record.Has( CardRecord::IsOtherCharset );
    }
    PimContactLine LineOf( size_t a_index ) const
    {
        PimContactLine line;
        SetLine( a_index, line );
        return line;
    }
    /// Sets a line to one of these lines.
    void SetLine( size_t a_index, PimContactLine& a_line ) const
    {
        const ContactLine& line = m_lines[a_index];
        PimContactCardPrivate::LineView::SetLine( CardOf( line ), line.m_place, a_line );
    }

    /// Inserts a line. There must be a card.
    /// \param a_line a card with the line as its last one.
    /// \return its id.
    int Insert( size_t a_index, const PimContactCard& a_line );
    void Replace( size_t a_index, const PimContactCard& a_line );
    void Remove( size_t a_index );
    /// Removes all lines that a function selects, in one pass.
    template <class IsUnwanted>
    void RemoveIf( IsUnwanted a_isUnwanted )
    {
        const auto end = std::remove_if( m_lines.begin(), m_lines.end(), a_isUnwanted );
        m_isEdited = m_isEdited || end != m_lines.end();
        m_lines.erase( end, m_lines.end() );
        NoteAll();
    }
    /// Replaces the lines with a property, in one pass: the first ones keep their ids, and the others are removed.
    /// \param a_place the position where lines are inserted if there is none with the property.
    /// \param a_by    cards with the new lines as their last ones.
    void ReplaceAll( PropertyId a_property, size_t a_place, const std::vector<PimContactCard>& a_by );

    /// Moves all lines to one card. Their ids do not change.
    /// \param a_card a card with the same lines.
    void MoveTo( const PimContactCard& a_card );

private:
    const PimContactCard& CardOf( const ContactLine& a_line ) const
    {
        return a_line.m_card == 0 ? m_card : m_added[a_line.m_card - 1];
    }
    CardView ViewOf( const ContactLine& a_line ) const
    {
        return a_line.m_card == 0 ? m_view : PimContactCardPrivate::LineView::CardOf( m_added[a_line.m_card - 1] );
    }
    PropertyId PropertyIn( const IndexReader::Outline& a_outline, LinePlace a_place ) const;
    ContactLine Added( const PimContactCard& a_line );
    void Note( PropertyId a_property ) { m_properties[static_cast<size_t>( a_property )] = true; }
    void NoteAll();

    PimContactCard m_card;
    CardView m_view;
    std::vector<PimContactCard> m_added;
    std::vector<ContactLine> m_lines;
    // The properties that the lines have.
    PropertySet m_properties;
    int m_nextId = 1;
    bool m_isEdited = false;
};

} // namespace PimManager::Contacts
