#include "Json/CardJson.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

void CardJson::Write( const PimContactCard& a_card, const QByteArray& a_file, JsonText& a_json )
{
    const CardView view = PimContactCardPrivate::LineView::CardOf( a_card );
    m_card = a_card;
    m_firstLine = a_card.FirstLine() - view.m_record.m_line;
    a_json.Raw( "{" );
    if ( !a_file.isNull() )
    {
        a_json.Raw( R"("file":)" );
        a_json.String( ViewOf( a_file ) );
        a_json.Raw( "," );
    }
    a_json.Raw( R"("card":)" );
    a_json.Number( a_card.Number() );
    a_json.Raw( "," );
    WriteMembers( view, 0, a_json );
    a_json.Raw( "}" );
    m_card = PimContactCard();
}

// The properties are written first, because each of them is decoded only once.
void CardJson::WriteMembers( const CardView& a_card, size_t a_depth, JsonText& a_json )
{
    a_json.Raw( R"("line":)" );
    a_json.Number( m_firstLine + a_card.m_record.m_line );
    a_json.Raw( a_card.m_record.Has( CardRecord::IsWhole ) ? R"(,"whole":true)" : R"(,"whole":false)" );
    const size_t headPlace = a_json.Place();
    a_json.Raw( R"(,"properties":[)" );
    WriteProperties( a_card, a_depth, a_json );
    a_json.Raw( "]" );
    m_head.Clear();
    ContactHead& head = LevelAt( a_depth ).m_head;
    head.WriteTo( head.IsDeferred() ? ContactOf( a_card ) : m_noContact, m_head );
    a_json.Insert( headPlace, m_head.From( 0 ) );
}

PimContact CardJson::ContactOf( const CardView& a_card ) const
{
    return PimContact( PimContactCardPrivate::LineView::CardAt( m_card, a_card ) );
}

void CardJson::WriteProperties( const CardView& a_card, size_t a_depth, JsonText& a_json )
{
    Level& level = LevelAt( a_depth );
    level.m_head.Clear();
    level.m_hasLabels = false;
    std::string_view before;
    size_t place = 0;
    for ( LineCursor cursor( a_card ); cursor.Next(); )
    {
        if ( cursor.Line().m_entry.m_group.m_length > 0 && !level.m_hasLabels )
        {
            level.m_labels.Read( cursor );
            level.m_hasLabels = true;
        }
        CardView nested;
        const bool holdsCard = cursor.FindNested( nested );
        a_json.Raw( before );
        m_property.Write( cursor.Line(), level.m_labels, holdsCard, place, level.m_head, a_json );
        ++place;
        if ( holdsCard )
        {
            a_json.Raw( R"(,"card":{)" );
            WriteMembers( nested, a_depth + 1, a_json );
            a_json.Raw( "}" );
        }
        a_json.Raw( "}" );
        before = ",";
    }
}

CardJson::Level& CardJson::LevelAt( size_t a_depth )
{
    while ( m_levels.size() <= a_depth )
        m_levels.push_back( std::make_unique<Level>() );
    return *m_levels[a_depth];
}

} // namespace PimManager::Contacts
