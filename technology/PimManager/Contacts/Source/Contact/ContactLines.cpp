#include "Contact/ContactLines.h"

#include "Contact/Messenger.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <utility>

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

// Some programs have a name for each service, such as `X-messaging/xmpp-All`.
bool IsManyNamed( std::string_view a_name )
{
    return a_name.find( '/' ) != std::string_view::npos && IsMessengerName( a_name );
}

// The text begins with the name.
PropertyId PropertyNamedAt( std::string_view a_text, size_t a_length )
{
    const PropertyId property = PropertyAt( a_text, a_length );
    return property == PropertyId::Other && IsManyNamed( a_text.substr( 0, a_length ) ) ? PropertyId::Messenger
                                                                                        : property;
}

// The name of a property with a meaning needs no second look.
bool IsFamiliar( std::optional<PropertyId> a_property )
{
    return a_property && *a_property != PropertyId::Other;
}

ByteRange PlainValueOf( const IndexReader::Outline& a_outline, quint32 a_begin )
{
    const quint32 value = a_outline.m_plainValue;
    return value > 0 ? ByteRange{ a_begin + value, a_outline.m_length - value } : ByteRange();
}

PropertyId PropertyOfLine( const PimContactLine& a_line )
{
    QByteArray buffer;
    return PropertyNamed( LineView::LineOf( a_line ).Name( buffer ) );
}

} // namespace

PropertyId PropertyNamed( std::string_view a_name )
{
    return a_name.empty() ? PropertyId::Other : PropertyNamedAt( a_name, a_name.size() );
}

ContactLines::ContactLines( const PimContactCard& a_card ) :
    m_card( a_card ),
    m_view( LineView::CardOf( a_card ) )
{
    if ( m_view.m_index == nullptr )
        return;
    m_lines.reserve( m_view.m_record.m_lines );
    quint32 begin = m_view.m_record.m_begin;
    for ( IndexReader reader = EntriesOf( m_view.m_index, m_view.m_place ); !reader.AtEnd(); )
    {
        const LinePlace place = { reader.Place(), begin };
        const IndexReader::Outline outline = reader.Skip();
        if ( outline.m_kind == EntryKind::Line )
        {
            const PropertyId property =
                IsFamiliar( outline.m_property ) ? *outline.m_property : PropertyIn( outline, place );
            m_lines.emplace_back( m_nextId++, 0U, place, property, PlainValueOf( outline, begin ) );
            Note( property );
        }
        begin += outline.m_length;
    }
}

// An unusual name must be searched.
inline PropertyId ContactLines::PropertyIn( const IndexReader::Outline& a_outline, LinePlace a_place ) const
{
    const std::string_view rest = m_view.m_bytes.substr( a_place.m_begin + a_outline.m_name.m_begin );
    const std::string_view name = rest.substr( 0, a_outline.m_name.m_length );
    const bool isPlain =
        !name.empty() && ( !a_outline.m_isContinued || std::none_of( name.begin(), name.end(), IsLineEndByte ) );
    return isPlain ? PropertyNamedAt( rest, name.size() ) : PropertyOfLine( LineView::LineAt( m_card, a_place ) );
}

PimContactVersion ContactLines::Version() const
{
    return m_card.IsNull() ? PimContactVersion::V30 : m_card.Version();
}

QByteArray ContactLines::Indentation() const
{
    const CardRecord& record = m_view.m_record;
    if ( !record.Has( CardRecord::IsIndented ) )
        return QByteArray();
    const std::string_view text = m_view.m_bytes.substr( record.m_begin, record.m_length );
    const std::string_view begin = text.substr( LengthOfMarks( text ) );
    return BytesOf( begin.substr( 0, begin.size() - TrimmedLeft( begin ).size() ) );
}

size_t ContactLines::Find( int a_id ) const
{
    const auto line = std::find_if( m_lines.begin(), m_lines.end(),
                                    [a_id]( const ContactLine& a_line ) { return a_line.m_id == a_id; } );
    return static_cast<size_t>( line - m_lines.begin() );
}

size_t ContactLines::EndOf( PropertyId a_property ) const
{
    const auto last =
        std::find_if( m_lines.rbegin(), m_lines.rend(),
                      [a_property]( const ContactLine& a_line ) { return a_line.m_property == a_property; } );
    return last == m_lines.rend() ? m_lines.size() : static_cast<size_t>( m_lines.rend() - last );
}

int ContactLines::Insert( size_t a_index, const PimContactCard& a_line )
{
    const ContactLine line = Added( a_line );
    m_lines.insert( m_lines.begin() + static_cast<ptrdiff_t>( a_index ), line );
    Note( line.m_property );
    return line.m_id;
}

void ContactLines::Replace( size_t a_index, const PimContactCard& a_line )
{
    ContactLine line = Added( a_line );
    line.m_id = m_lines[a_index].m_id;
    m_lines[a_index] = line;
    NoteAll();
}

void ContactLines::Remove( size_t a_index )
{
    m_lines.erase( m_lines.begin() + static_cast<ptrdiff_t>( a_index ) );
    m_isEdited = true;
    NoteAll();
}

void ContactLines::ReplaceAll( PropertyId a_property, size_t a_place, const std::vector<PimContactCard>& a_by )
{
    std::vector<ContactLine> lines;
    lines.reserve( m_lines.size() + a_by.size() );
    auto by = a_by.begin();
    size_t place = a_place;
    for ( const ContactLine& line : m_lines )
    {
        if ( line.m_property != a_property )
        {
            lines.push_back( line );
            continue;
        }
        m_isEdited = true;
        if ( by == a_by.end() )
            continue;
        lines.push_back( Added( *by++ ) );
        lines.back().m_id = line.m_id;
        place = lines.size();
    }
    std::vector<ContactLine> more;
    for ( ; by != a_by.end(); ++by )
        more.push_back( Added( *by ) );
    lines.insert( lines.begin() + static_cast<ptrdiff_t>( place ), more.begin(), more.end() );
    m_lines = std::move( lines );
    NoteAll();
}

void ContactLines::MoveTo( const PimContactCard& a_card )
{
    ContactLines moved( a_card );
    for ( size_t i = 0; i < moved.m_lines.size(); ++i )
        moved.m_lines[i].m_id = m_lines[i].m_id;
    moved.m_nextId = m_nextId;
    *this = std::move( moved );
}

ContactLine ContactLines::Added( const PimContactCard& a_line )
{
    m_added.push_back( a_line );
    m_isEdited = true;
    PimContactLine line;
    for ( const PimContactLine& each : a_line )
        line = each;
    return { m_nextId++, static_cast<quint32>( m_added.size() ), LineView::PlaceOf( line ), PropertyOfLine( line ),
             ByteRange() };
}

void ContactLines::NoteAll()
{
    m_properties.reset();
    for ( const ContactLine& line : m_lines )
        Note( line.m_property );
}

} // namespace PimManager::Contacts
