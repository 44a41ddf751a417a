#include "Contact/AndroidCustom.h"

#include "Contact/UriPieces.h"
#include "Text/WhiteSpace.h"
#include "Text/WordTable.h"

namespace PimManager::Contacts
{

namespace
{

using Item = AndroidCustom::Item;
using Event = AndroidCustom::Event;
using Relation = PimContactRelationKind;

constexpr std::string_view s_kItemBegin = "vnd.android.cursor.item/";
constexpr std::string_view s_kCustomType = "0";

using ItemRow = WordRow<Item>;
using EventRow = WordRow<Event>;
using RelationRow = WordRow<PimContactRelationKinds>;

constexpr WordTable s_kItems( std::array{
    ItemRow{ "NICKNAME", Item::Nickname },
    ItemRow{ "CONTACT_EVENT", Item::Event },
    ItemRow{ "RELATION", Item::Relation },
} );
static_assert( s_kItems.HasAllWords() );

constexpr WordTable s_kEvents( std::array{
    EventRow{ s_kCustomType, Event::Custom },
    EventRow{ "1", Event::Anniversary },
    EventRow{ "2", Event::Other },
    EventRow{ "3", Event::Birthday },
} );
static_assert( s_kEvents.HasAllWords() );

constexpr WordTable s_kRelations( std::array{
    RelationRow{ "1", Relation::Assistant },
    RelationRow{ "2", Relation::Brother },
    RelationRow{ "3", Relation::Child },
    RelationRow{ "4", Relation::DomesticPartner },
    RelationRow{ "5", Relation::Father },
    RelationRow{ "6", Relation::Friend },
    RelationRow{ "7", Relation::Manager },
    RelationRow{ "8", Relation::Mother },
    RelationRow{ "9", Relation::Parent },
    RelationRow{ "10", Relation::Partner },
    RelationRow{ "11", Relation::ReferredBy },
    RelationRow{ "12", Relation::Relative },
    RelationRow{ "13", Relation::Sister },
    RelationRow{ "14", Relation::Spouse },
} );
static_assert( s_kRelations.HasAllWords() );

Item ItemOf( std::string_view a_text )
{
    std::string_view item = WithoutOuterSpace( a_text );
    return RemoveScheme( item, s_kItemBegin ) ? s_kItems.Of( item, Item::Unknown ) : Item::Unknown;
}

} // namespace

AndroidCustom AndroidCustomOf( const AndroidCustomParts& a_parts )
{
    AndroidCustom custom;
    custom.m_item = ItemOf( a_parts[0] );
    if ( custom.m_item == Item::Unknown )
        return custom;
    custom.m_text = WithoutOuterSpace( a_parts[1] );
    const std::string_view type = WithoutOuterSpace( a_parts[2] );
    if ( custom.m_item == Item::Event )
        custom.m_event = s_kEvents.Of( type, Event::Other );
    else if ( custom.m_item == Item::Relation )
        custom.m_relation = s_kRelations.Of( type, PimContactRelationKinds() );
    if ( custom.m_item != Item::Nickname && type == s_kCustomType )
        custom.m_label = WithoutOuterSpace( a_parts[3] );
    return custom;
}

} // namespace PimManager::Contacts
