#include "Contact/GroupLabels.h"

#include "Contact/LabelMarks.h"
#include "Contact/PropertyName.h"
#include "Text/Bytes.h"
#include "Values/Buffer.h"

namespace PimManager::Contacts
{

void GroupLabels::Read( const CardView& a_card )
{
    m_labels.clear();
    m_groupRanges.clear();
    m_groups.Clear();
    Empty( m_texts );
    QByteArray buffer;
    for ( LineCursor cursor( a_card ); cursor.Next(); )
    {
        const IndexedLine& line = cursor.Line();
        if ( line.m_entry.m_group.m_length == 0 || PropertyNameOf( cursor.Name() ) != PropertyName::GroupLabel )
            continue;
        m_decoder.Decode( line );
        m_labels.push_back( Add( WithoutLabelMarks( m_decoder.Text() ) ) );
        m_groupRanges.push_back( Add( line.Group( buffer ) ) );
    }
    // Only now the texts do not move any more.
    for ( const ByteRange& group : m_groupRanges )
        m_groups.Add( group.In( ViewOf( m_texts ) ) );
    m_groups.Finish();
}

std::string_view GroupLabels::Of( std::string_view a_group ) const
{
    const size_t index = m_groups.Find( a_group );
    return index == WordGroups::s_kNone ? std::string_view() : m_labels[index].In( ViewOf( m_texts ) );
}

ByteRange GroupLabels::Add( std::string_view a_text )
{
    const ByteRange range = { static_cast<quint32>( m_texts.size() ), static_cast<quint32>( a_text.size() ) };
    Append( m_texts, a_text );
    return range;
}

} // namespace PimManager::Contacts
