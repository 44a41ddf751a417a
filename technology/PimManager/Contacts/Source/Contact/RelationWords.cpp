#include "Contact/RelationWords.h"

#include "Text/WordTable.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Relation = PimContactRelationKind;
using RelationRow = WordRow<PimContactRelationKinds>;

constexpr WordTable s_kWordTable( std::array{
    RelationRow{ "CONTACT", Relation::Contact },
    RelationRow{ "ACQUAINTANCE", Relation::Acquaintance },
    RelationRow{ "FRIEND", Relation::Friend },
    RelationRow{ "MET", Relation::Met },
    RelationRow{ "CO-WORKER", Relation::CoWorker },
    RelationRow{ "COWORKER", Relation::CoWorker },
    RelationRow{ "COLLEAGUE", Relation::Colleague },
    RelationRow{ "CO-RESIDENT", Relation::CoResident },
    RelationRow{ "CORESIDENT", Relation::CoResident },
    RelationRow{ "NEIGHBOR", Relation::Neighbor },
    RelationRow{ "NEIGHBOUR", Relation::Neighbor },
    RelationRow{ "CHILD", Relation::Child },
    RelationRow{ "PARENT", Relation::Parent },
    RelationRow{ "SIBLING", Relation::Sibling },
    RelationRow{ "SPOUSE", Relation::Spouse },
    RelationRow{ "KIN", Relation::Kin },
    RelationRow{ "MUSE", Relation::Muse },
    RelationRow{ "CRUSH", Relation::Crush },
    RelationRow{ "DATE", Relation::Date },
    RelationRow{ "SWEETHEART", Relation::Sweetheart },
    RelationRow{ "ME", Relation::Me },
    RelationRow{ "AGENT", Relation::Agent },
    RelationRow{ "EMERGENCY", Relation::Emergency },
    RelationRow{ "ASSISTANT", Relation::Assistant },
    RelationRow{ "MANAGER", Relation::Manager },
    RelationRow{ "REFERRED-BY", Relation::ReferredBy },
    RelationRow{ "REFERREDBY", Relation::ReferredBy },
    RelationRow{ "PARTNER", Relation::Partner },
    RelationRow{ "DOMESTIC-PARTNER", Relation::DomesticPartner },
    RelationRow{ "DOMESTICPARTNER", Relation::DomesticPartner },
    RelationRow{ "MOTHER", Relation::Mother },
    RelationRow{ "FATHER", Relation::Father },
    RelationRow{ "BROTHER", Relation::Brother },
    RelationRow{ "SISTER", Relation::Sister },
    RelationRow{ "RELATIVE", Relation::Relative },
} );
static_assert( s_kWordTable.HasAllWords() );

constexpr WordTable s_kPropertyTable( std::array{
    RelationRow{ "X-SPOUSE", Relation::Spouse },
    RelationRow{ "X-EVOLUTION-SPOUSE", Relation::Spouse },
    RelationRow{ "X-MS-SPOUSE", Relation::Spouse },
    RelationRow{ "X-KADDRESSBOOK-X-SPOUSESNAME", Relation::Spouse },
    RelationRow{ "X-MANAGER", Relation::Manager },
    RelationRow{ "X-EVOLUTION-MANAGER", Relation::Manager },
    RelationRow{ "X-MS-MANAGER", Relation::Manager },
    RelationRow{ "X-KADDRESSBOOK-X-MANAGERSNAME", Relation::Manager },
    RelationRow{ "X-ASSISTANT", Relation::Assistant },
    RelationRow{ "X-EVOLUTION-ASSISTANT", Relation::Assistant },
    RelationRow{ "X-MS-ASSISTANT", Relation::Assistant },
    RelationRow{ "X-KADDRESSBOOK-X-ASSISTANTSNAME", Relation::Assistant },
    RelationRow{ "X-MS-CHILD", Relation::Child },
} );
static_assert( s_kPropertyTable.HasAllWords() );

constexpr std::array s_kWords = {
    VersionWord<Relation>{ Relation::Contact, "X-CONTACT", s_kVersion40 },
    VersionWord<Relation>{ Relation::Acquaintance, "X-ACQUAINTANCE", s_kVersion40 },
    VersionWord<Relation>{ Relation::Friend, "X-FRIEND", s_kVersion40 },
    VersionWord<Relation>{ Relation::Met, "X-MET", s_kVersion40 },
    VersionWord<Relation>{ Relation::CoWorker, "X-CO-WORKER", s_kVersion40 },
    VersionWord<Relation>{ Relation::Colleague, "X-COLLEAGUE", s_kVersion40 },
    VersionWord<Relation>{ Relation::CoResident, "X-CO-RESIDENT", s_kVersion40 },
    VersionWord<Relation>{ Relation::Neighbor, "X-NEIGHBOR", s_kVersion40 },
    VersionWord<Relation>{ Relation::Child, "X-CHILD", s_kVersion40 },
    VersionWord<Relation>{ Relation::Parent, "X-PARENT", s_kVersion40 },
    VersionWord<Relation>{ Relation::Sibling, "X-SIBLING", s_kVersion40 },
    VersionWord<Relation>{ Relation::Spouse, "X-SPOUSE", s_kVersion40 },
    VersionWord<Relation>{ Relation::Kin, "X-KIN", s_kVersion40 },
    VersionWord<Relation>{ Relation::Muse, "X-MUSE", s_kVersion40 },
    VersionWord<Relation>{ Relation::Crush, "X-CRUSH", s_kVersion40 },
    VersionWord<Relation>{ Relation::Date, "X-DATE", s_kVersion40 },
    VersionWord<Relation>{ Relation::Sweetheart, "X-SWEETHEART", s_kVersion40 },
    VersionWord<Relation>{ Relation::Me, "X-ME", s_kVersion40 },
    VersionWord<Relation>{ Relation::Agent, "X-AGENT", s_kVersion40 },
    VersionWord<Relation>{ Relation::Emergency, "X-EMERGENCY", s_kVersion40 },
    VersionWord<Relation>{ Relation::Assistant, "X-ASSISTANT", s_kNoVersion },
    VersionWord<Relation>{ Relation::Manager, "X-MANAGER", s_kNoVersion },
    VersionWord<Relation>{ Relation::ReferredBy, "X-REFERRED-BY", s_kNoVersion },
    VersionWord<Relation>{ Relation::Partner, "X-PARTNER", s_kNoVersion },
    VersionWord<Relation>{ Relation::DomesticPartner, "X-DOMESTIC-PARTNER", s_kNoVersion },
    VersionWord<Relation>{ Relation::Mother, "X-MOTHER", s_kNoVersion },
    VersionWord<Relation>{ Relation::Father, "X-FATHER", s_kNoVersion },
    VersionWord<Relation>{ Relation::Brother, "X-BROTHER", s_kNoVersion },
    VersionWord<Relation>{ Relation::Sister, "X-SISTER", s_kNoVersion },
    VersionWord<Relation>{ Relation::Relative, "X-RELATIVE", s_kNoVersion },
};

} // namespace

PimContactRelationKinds RelationKindsOf( std::string_view a_word )
{
    return s_kWordTable.Of( WithoutExtensionMark( a_word ), PimContactRelationKinds() );
}

PimContactRelationKinds RelationKindsOfProperty( std::string_view a_property )
{
    return s_kPropertyTable.Of( a_property, PimContactRelationKinds() );
}

KindWords RelationWordsOf( PimContactRelationKinds a_kinds, PimContactVersion a_version )
{
    return WordsIn( s_kWords, a_kinds, a_version );
}

} // namespace PimManager::Contacts
