#include "Contact/RelationWords.h"

#include "Contact/LabelMarks.h"

#include <QMetaEnum>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using Relation = PimContactRelationKind;

struct Row
{
    const char* m_word;
    PimContactRelationKinds m_kinds;
};

const std::array s_kWords = {
    Row{ "contact", Relation::Contact },
    Row{ "Friend", Relation::Friend },
    Row{ "co-worker", Relation::CoWorker },
    Row{ "COWORKER", Relation::CoWorker },
    Row{ "co-resident", Relation::CoResident },
    Row{ "neighbour", Relation::Neighbor },
    Row{ "spouse", Relation::Spouse },
    Row{ "me", Relation::Me },
    Row{ "emergency", Relation::Emergency },
    Row{ "X-Manager", Relation::Manager },
    Row{ "ReferredBy", Relation::ReferredBy },
    Row{ "referred-by", Relation::ReferredBy },
    Row{ "Domestic-Partner", Relation::DomesticPartner },
    Row{ "domesticpartner", Relation::DomesticPartner },
    Row{ "Relative", Relation::Relative },
    Row{ "son", {} },
    Row{ "home", {} },
    Row{ "mothers", {} },
    Row{ "", {} },
};

const std::array s_kLabels = {
    Row{ "_$!<Father>!$_", Relation::Father },
    Row{ "_$!<Mother>!$_", Relation::Mother },
    Row{ "_$!<Brother>!$_", Relation::Brother },
    Row{ "_$!<Sister>!$_", Relation::Sister },
    Row{ "_$!<Parent>!$_", Relation::Parent },
    Row{ "_$!<Child>!$_", Relation::Child },
    Row{ "_$!<Spouse>!$_", Relation::Spouse },
    Row{ "_$!<Partner>!$_", Relation::Partner },
    Row{ "_$!<Assistant>!$_", Relation::Assistant },
    Row{ "_$!<Other>!$_", {} },
    Row{ "Father", {} },
};

const std::array s_kPropertyRows = {
    Row{ "X-SPOUSE", Relation::Spouse },
    Row{ "X-EVOLUTION-SPOUSE", Relation::Spouse },
    Row{ "X-KADDRESSBOOK-X-SpousesName", Relation::Spouse },
    Row{ "x-ms-spouse", Relation::Spouse },
    Row{ "X-MANAGER", Relation::Manager },
    Row{ "X-Evolution-Manager", Relation::Manager },
    Row{ "X-KADDRESSBOOK-X-ManagersName", Relation::Manager },
    Row{ "X-MS-MANAGER", Relation::Manager },
    Row{ "X-ASSISTANT", Relation::Assistant },
    Row{ "X-EVOLUTION-ASSISTANT", Relation::Assistant },
    Row{ "X-KADDRESSBOOK-X-AssistantsName", Relation::Assistant },
    Row{ "X-MS-ASSISTANT", Relation::Assistant },
    Row{ "X-MS-CHILD", Relation::Child },
    Row{ "RELATED", {} },
    Row{ "SPOUSE", {} },
    Row{ "X-FRIEND", {} },
    Row{ "X-KADDRESSBOOK-X-AssistantsNames", {} },
    Row{ "", {} },
};

std::string Joined( const KindWords& a_words )
{
    std::string text;
    for ( const std::string_view word : a_words )
        text += ( text.empty() ? "" : "," ) + std::string( word );
    return text;
}

} // namespace

TEST( RelationWordsTest, WordsAreRead )
{
    for ( const Row& row : s_kWords )
        EXPECT_EQ( RelationKindsOf( row.m_word ), row.m_kinds ) << row.m_word;
}

TEST( RelationWordsTest, BuiltInLabelsAreRead )
{
    for ( const Row& row : s_kLabels )
        EXPECT_EQ( RelationKindsOf( BuiltInLabel( row.m_word ) ), row.m_kinds ) << row.m_word;
}

TEST( RelationWordsTest, PropertiesAreRead )
{
    for ( const Row& row : s_kPropertyRows )
        EXPECT_EQ( RelationKindsOfProperty( row.m_word ), row.m_kinds ) << row.m_word;
}

TEST( RelationWordsTest, EveryKindHasAWord )
{
    const QMetaEnum kinds = QMetaEnum::fromType<PimContactRelationKinds>();
    EXPECT_EQ( kinds.keyCount(), 30 );
    for ( int i = 0; i < kinds.keyCount(); ++i )
    {
        const PimContactRelationKinds kind( static_cast<Relation>( kinds.value( i ) ) );
        const KindWords words = RelationWordsOf( kind, PimContactVersion::V40 );
        ASSERT_EQ( words.Size(), 1U ) << kinds.key( i );
        EXPECT_EQ( RelationKindsOf( *words.begin() ), kind ) << kinds.key( i );
    }
}

TEST( RelationWordsTest, WordsOfVendorsAreExtensions )
{
    const PimContactRelationKinds kinds = Relation::CoWorker | Relation::Emergency | Relation::DomesticPartner;
    EXPECT_EQ( Joined( RelationWordsOf( kinds, PimContactVersion::V40 ) ), "CO-WORKER,EMERGENCY,X-DOMESTIC-PARTNER" );
    EXPECT_EQ( Joined( RelationWordsOf( kinds, PimContactVersion::V30 ) ),
               "X-CO-WORKER,X-EMERGENCY,X-DOMESTIC-PARTNER" );
}

} // namespace PimManager::Contacts
