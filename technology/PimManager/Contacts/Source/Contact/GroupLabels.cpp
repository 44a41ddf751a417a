#include "Contact/GroupLabels.h"

#include "Contact/LabelMarks.h"
#include "Text/Bytes.h"
#include "Values/Buffer.h"

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kLabelName = "X-ABLABEL";

} // namespace

void GroupLabels::Read( const LineCursor& a_first )
{
    m_labels.clear();
    m_groupRanges.clear();
    m_groups.Clear();
    Empty( m_texts );
    LineCursor cursor = a_first;
    do
    {
        const IndexedLine& line = cursor.Line();
        if ( line.m_entry.m_group.m_length > 0 && line.m_entry.m_name.m_length >= s_kLabelName.size() &&
             IsSameWord( cursor.Name(), s_kLabelName ) )
            Add( line );
    } while ( cursor.Next() );
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

void GroupLabels::Add( const IndexedLine& a_line )
{
    QByteArray buffer;
    m_decoder.Decode( a_line );
    m_labels.push_back( Add( WithoutLabelMarks( m_decoder.Text() ) ) );
    m_groupRanges.push_back( Add( a_line.Group( buffer ) ) );
}

ByteRange GroupLabels::Add( std::string_view a_text )
{
    const ByteRange range = { static_cast<quint32>( m_texts.size() ), static_cast<quint32>( a_text.size() ) };
    Append( m_texts, a_text );
    return range;
}

} // namespace PimManager::Contacts
