#include "Contact/AndroidCustom.h"

#include "OneLine.h"
#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Item = AndroidCustom::Item;
using Event = AndroidCustom::Event;
using Relation = PimContactRelationKind;

struct Row
{
    // After "vnd.android.cursor.item/".
    const char* m_value;
    Item m_item;
    const char* m_text;
    Event m_event;
    PimContactRelationKinds m_relation;
    const char* m_label;
};

const std::array s_kRows = {
    Row{ "nickname;Bob;1;;;;;;;;;;;;;", Item::Nickname, "Bob", Event::Other, {}, "" },
    Row{ "nickname;Bob;0;x;;;;;;;;;;;;", Item::Nickname, "Bob", Event::Other, {}, "" },
    Row{ "nickname; Bob\\; Ann ", Item::Nickname, "Bob; Ann", Event::Other, {}, "" },
    Row{ "Nickname", Item::Nickname, "", Event::Other, {}, "" },
    Row{ "contact_event;2000-01-02;1;;;", Item::Event, "2000-01-02", Event::Anniversary, {}, "" },
    Row{ "contact_event;--01-02;2;;;", Item::Event, "--01-02", Event::Other, {}, "" },
    Row{ "contact_event;2000-01-02;3;;;", Item::Event, "2000-01-02", Event::Birthday, {}, "" },
    Row{ "contact_event;2000-01-02;0;Name day;;", Item::Event, "2000-01-02", Event::Custom, {}, "Name day" },
    Row{ "contact_event;2000-01-02;1;Name day;;", Item::Event, "2000-01-02", Event::Anniversary, {}, "" },
    Row{ "contact_event;2000-01-02;9;;;", Item::Event, "2000-01-02", Event::Other, {}, "" },
    Row{ "contact_event;2000-01-02", Item::Event, "2000-01-02", Event::Other, {}, "" },
    Row{ "relation;Sue;0;Neighbour;;", Item::Relation, "Sue", Event::Other, {}, "Neighbour" },
    Row{ "relation;Sue;1;;", Item::Relation, "Sue", Event::Other, Relation::Assistant, "" },
    Row{ "relation;Sue;2;;", Item::Relation, "Sue", Event::Other, Relation::Brother, "" },
    Row{ "relation;Sue;3;;", Item::Relation, "Sue", Event::Other, Relation::Child, "" },
    Row{ "relation;Sue;4;;", Item::Relation, "Sue", Event::Other, Relation::DomesticPartner, "" },
    Row{ "relation;Sue;5;;", Item::Relation, "Sue", Event::Other, Relation::Father, "" },
    Row{ "relation;Sue;6;;", Item::Relation, "Sue", Event::Other, Relation::Friend, "" },
    Row{ "relation;Sue;7;;", Item::Relation, "Sue", Event::Other, Relation::Manager, "" },
    Row{ "relation;Sue;8;;", Item::Relation, "Sue", Event::Other, Relation::Mother, "" },
    Row{ "relation;Sue;9;;", Item::Relation, "Sue", Event::Other, Relation::Parent, "" },
    Row{ "relation;Sue;10;;", Item::Relation, "Sue", Event::Other, Relation::Partner, "" },
    Row{ "relation;Sue;11;;", Item::Relation, "Sue", Event::Other, Relation::ReferredBy, "" },
    Row{ "relation;Sue;12;;", Item::Relation, "Sue", Event::Other, Relation::Relative, "" },
    Row{ "relation;Sue;13;;", Item::Relation, "Sue", Event::Other, Relation::Sister, "" },
    Row{ "relation;Sue; 14 ;;", Item::Relation, "Sue", Event::Other, Relation::Spouse, "" },
    Row{ "relation;Sue;15;x;", Item::Relation, "Sue", Event::Other, {}, "" },
    Row{ "other;Sue;1;;", Item::Unknown, "", Event::Other, {}, "" },
    Row{ ";Sue;1;;", Item::Unknown, "", Event::Other, {}, "" },
};

// Of a line, up to the number of parts that are read.
AndroidCustomParts PartsOf( ValueDecoder& a_decoder, KeptTexts& a_texts )
{
    AndroidCustomParts parts;
    a_texts.Begin( a_decoder.Escaped().m_text );
    PartReader reader = a_decoder.Parts( Delimiters::Semicolons );
    for ( std::string_view& part : parts )
    {
        if ( reader.Next() )
            part = a_texts.Keep( reader.Text() );
    }
    return parts;
}

} // namespace

TEST( AndroidCustomTest, ItemsAreRead )
{
    for ( const Row& row : s_kRows )
    {
        const PimContactLine line =
            OneLine( QByteArray( "X-ANDROID-CUSTOM:vnd.android.cursor.item/" ) + row.m_value, "2.1" );
        ValueDecoder decoder;
        KeptTexts texts;
        decoder.Decode( PimContactCardPrivate::LineView::LineOf( line ) );
        const AndroidCustom custom = AndroidCustomOf( PartsOf( decoder, texts ) );
        EXPECT_EQ( custom.m_item, row.m_item ) << row.m_value;
        EXPECT_EQ( custom.m_text, row.m_text ) << row.m_value;
        EXPECT_EQ( custom.m_event, row.m_event ) << row.m_value;
        EXPECT_EQ( custom.m_relation, row.m_relation ) << row.m_value;
        EXPECT_EQ( custom.m_label, row.m_label ) << row.m_value;
    }
}

TEST( AndroidCustomTest, OtherValuesAreNoItems )
{
    for ( const char* const item : { "nickname", "vnd.android.cursor.item", "vnd.android.cursor.dir/nickname", "" } )
        EXPECT_EQ( AndroidCustomOf( { item, "Bob", "1", "" } ).m_item, Item::Unknown ) << item;
    EXPECT_EQ( AndroidCustomOf( { " VND.android.cursor.item/Nickname ", "Bob", "", "" } ).m_text, "Bob" );
}

} // namespace PimManager::Contacts
