#include "Contact/GroupLabels.h"

#include "Contact/ContactLines.h"
#include "Contact/LabelMarks.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Values/ValueDecoder.h"

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kLabelName = "X-ABLABEL";

} // namespace

void GroupLabels::Read( const LineCursor& a_first )
{
    Clear();
    LineCursor cursor = a_first;
    do
    {
        const IndexedLine& line = cursor.Line();
        if ( line.m_entry.m_group.m_length > 0 && line.m_entry.m_name.m_length >= s_kLabelName.size() &&
             IsSameWord( cursor.Name(), s_kLabelName ) )
            Add( line, 0 );
    } while ( cursor.Next() );
    Finish();
}

void GroupLabels::Read( const ContactLines& a_lines )
{
    Clear();
    IndexedLine line;
    for ( size_t i = 0; i < a_lines.Size(); ++i )
    {
        if ( a_lines.At( i ).m_property != PropertyId::GroupLabel )
            continue;
        a_lines.Read( i, line );
        if ( line.m_entry.m_group.m_length > 0 )
            Add( line, a_lines.At( i ).m_id );
    }
    Finish();
}

std::string_view GroupLabels::Of( std::string_view a_group ) const
{
    return WithoutLabelMarks( LabelOf( a_group ).m_text );
}

GroupLabels::Label GroupLabels::LabelOf( std::string_view a_group ) const
{
    const size_t index = m_groups.Find( a_group );
    if ( index == WordGroups::s_kNone )
        return Label();
    return { m_entries[index].m_label.In( ViewOf( m_texts ) ), m_entries[index].m_id };
}

void GroupLabels::Clear()
{
    m_entries.clear();
    m_groups.Clear();
    Empty( m_texts );
}

void GroupLabels::Add( const IndexedLine& a_line, int a_id )
{
    QByteArray buffer;
    ValueDecoder decoder;
    decoder.Decode( a_line );
    const ByteRange label = Add( decoder.Text() );
    m_entries.push_back( { label, Add( a_line.Group( buffer ) ), a_id } );
}

// From here on the texts do not move.
void GroupLabels::Finish()
{
    for ( const Entry& entry : m_entries )
        m_groups.Add( entry.m_group.In( ViewOf( m_texts ) ) );
    m_groups.Finish();
}

ByteRange GroupLabels::Add( std::string_view a_text )
{
    const ByteRange range = { static_cast<quint32>( m_texts.size() ), static_cast<quint32>( a_text.size() ) };
    Append( m_texts, a_text );
    return range;
}

} // namespace PimManager::Contacts
