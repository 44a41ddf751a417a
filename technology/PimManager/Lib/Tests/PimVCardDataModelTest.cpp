#include "PimVCard.h"

#include "PimVCardTestLog.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace PimManager::vCard
{

namespace
{

static_assert( std::has_virtual_destructor_v<PimVCardParameter> );
static_assert( std::has_virtual_destructor_v<PimVCardProperty> );
static_assert( std::has_virtual_destructor_v<PimVCard> );
static_assert( !std::is_copy_constructible_v<PimVCardParameter> && !std::is_copy_assignable_v<PimVCardParameter> );
static_assert( !std::is_copy_constructible_v<PimVCardProperty> && !std::is_copy_assignable_v<PimVCardProperty> );
static_assert( !std::is_copy_constructible_v<PimVCard> && !std::is_copy_assignable_v<PimVCard> );

/// The objects below record their deletion here: their name, and how many elements their list still has.
struct Deletions
{
    QList<QString> m_names;
    QList<int> m_remaining;
};

class WatchedParameter : public PimVCardParameter
{
public:
    WatchedParameter( const QString& a_name, const QList<PimVCardParameter*>& a_list, Deletions& a_deletions ) :
        PimVCardParameter( a_name, QString() ),
        m_list( a_list ),
        m_deletions( a_deletions )
    {
    }
    ~WatchedParameter() override
    {
        m_deletions.m_names.append( GetName() );
        m_deletions.m_remaining.append( static_cast<int>( m_list.size() ) );
    }

private:
    const QList<PimVCardParameter*>& m_list;
    Deletions& m_deletions;
};

class WatchedProperty : public PimVCardProperty
{
public:
    WatchedProperty( const QString& a_name, QList<PimVCardParameter*>* a_parameters,
                     const QList<PimVCardProperty*>& a_list, Deletions& a_deletions ) :
        PimVCardProperty( QString(), a_name, a_parameters, nullptr ),
        m_list( a_list ),
        m_deletions( a_deletions )
    {
    }
    ~WatchedProperty() override
    {
        m_deletions.m_names.append( GetName() );
        m_deletions.m_remaining.append( static_cast<int>( m_list.size() ) );
    }

private:
    const QList<PimVCardProperty*>& m_list;
    Deletions& m_deletions;
};

QList<PimVCardParameter*>* NoParameters()
{
    return new QList<PimVCardParameter*>;
}

QList<QString>* Values( const QList<QString>& a_values )
{
    return new QList<QString>( a_values );
}

} // namespace

TEST( DataModelParameterTest, AccessorsReturnTheMatchingText )
{
    const PimVCardParameter parameter( Text( "TYPE" ), Text( "\"a, quoted; one\"" ) );
    EXPECT_EQ( parameter.GetName(), Text( "TYPE" ) );
    EXPECT_EQ( parameter.GetValue(), Text( "\"a, quoted; one\"" ) );
}

TEST( DataModelParameterTest, BareParameterHasAnEmptyName )
{
    const PimVCardParameter parameter( QString(), Text( "HOME" ) );
    EXPECT_EQ( parameter.GetName(), Text( "" ) );
    EXPECT_EQ( parameter.GetValue(), Text( "HOME" ) );
}

TEST( DataModelParameterTest, TextsShareTheirMemory )
{
    const QString name = Text( "TYPE" );
    const QString value = Text( "HOME" );
    const PimVCardParameter parameter( name, value );
    EXPECT_TRUE( parameter.GetName().isSharedWith( name ) );
    EXPECT_TRUE( parameter.GetValue().isSharedWith( value ) );
}

TEST( DataModelPropertyTest, AccessorsReturnTheMatchingText )
{
    const PimVCardProperty property( Text( "item1" ), Text( "TEL" ), NoParameters(), Values( { Text( "1" ) } ) );
    EXPECT_EQ( property.GetGroupID(), Text( "item1" ) );
    EXPECT_EQ( property.GetName(), Text( "TEL" ) );
    EXPECT_TRUE( property.GetParameters().isEmpty() );
    EXPECT_EQ( property.GetValues(), QList<QString>{ Text( "1" ) } );
}

TEST( DataModelPropertyTest, ListsKeepTheirOrderAndElements )
{
    auto* const first = new PimVCardParameter( QString(), Text( "HOME" ) );
    auto* const second = new PimVCardParameter( QString(), Text( "HOME" ) );
    const QList<QString> values = { Text( "b" ), Text( "" ), Text( "a" ) };
    const PimVCardProperty property( QString(), Text( "ADR" ), new QList<PimVCardParameter*>{ first, nullptr, second },
                                     Values( values ) );
    EXPECT_EQ( property.GetParameters(), ( QList<PimVCardParameter*>{ first, nullptr, second } ) );
    EXPECT_EQ( property.GetValues(), values );
}

TEST( DataModelPropertyTest, NullListsReadAsEmpty )
{
    const PimVCardProperty property( Text( "g" ), Text( "N" ), nullptr, nullptr );
    EXPECT_TRUE( property.GetParameters().isEmpty() );
    EXPECT_TRUE( property.GetValues().isEmpty() );
    EXPECT_EQ( property.GetGroupID(), Text( "g" ) );
    EXPECT_EQ( property.GetName(), Text( "N" ) );
}

TEST( DataModelPropertyTest, CopiesShareUntilTheyAreChanged )
{
    auto* const parameters = new QList<PimVCardParameter*>{ new PimVCardParameter( QString(), Text( "HOME" ) ) };
    const PimVCardProperty property( Text( "g" ), Text( "N" ), parameters, Values( { Text( "a" ) } ) );
    EXPECT_TRUE( property.GetGroupID().isSharedWith( property.GetGroupID() ) );
    EXPECT_TRUE( property.GetName().isSharedWith( property.GetName() ) );
    EXPECT_TRUE( property.GetParameters().isSharedWith( property.GetParameters() ) );

    QList<QString> copy = property.GetValues();
    EXPECT_TRUE( copy.isSharedWith( property.GetValues() ) );
    copy.append( Text( "b" ) );
    EXPECT_EQ( property.GetValues(), QList<QString>{ Text( "a" ) } );
}

TEST( DataModelPropertyTest, ParametersAreTakenOutAndDeletedFirstToLast )
{
    Deletions deletions;
    auto* const list = NoParameters();
    for ( const char* name : { "a", "b", "c" } )
        list->append( new WatchedParameter( Text( name ), *list, deletions ) );
    delete new PimVCardProperty( QString(), Text( "N" ), list, Values( {} ) );
    EXPECT_EQ( deletions.m_names, ( QList<QString>{ Text( "a" ), Text( "b" ), Text( "c" ) } ) );
    EXPECT_EQ( deletions.m_remaining, ( QList<int>{ 2, 1, 0 } ) );
}

TEST( DataModelPropertyTest, NullParametersAreSkipped )
{
    Deletions deletions;
    auto* const list = NoParameters();
    list->append( nullptr );
    list->append( new WatchedParameter( Text( "a" ), *list, deletions ) );
    list->append( nullptr );
    list->append( new WatchedParameter( Text( "b" ), *list, deletions ) );
    list->append( nullptr );
    delete new PimVCardProperty( QString(), Text( "N" ), list, nullptr );
    EXPECT_EQ( deletions.m_names, ( QList<QString>{ Text( "a" ), Text( "b" ) } ) );
}

TEST( DataModelPropertyTest, CopiedListsDoNotOwn )
{
    Deletions deletions;
    auto* const list = NoParameters();
    list->append( new WatchedParameter( Text( "a" ), *list, deletions ) );
    auto property = std::make_unique<PimVCardProperty>( QString(), Text( "N" ), list, Values( { Text( "v" ) } ) );
    const QList<QString> values = property->GetValues();
    property->GetParameters().clear();
    EXPECT_TRUE( deletions.m_names.isEmpty() );
    property.reset();
    EXPECT_EQ( deletions.m_names, QList<QString>{ Text( "a" ) } );
    EXPECT_EQ( values, QList<QString>{ Text( "v" ) } );
}

TEST( DataModelCardTest, PropertiesKeepTheirOrder )
{
    auto* const first = new PimVCardProperty( QString(), Text( "N" ), nullptr, nullptr );
    auto* const second = new PimVCardProperty( QString(), Text( "FN" ), nullptr, nullptr );
    const PimVCard card( new QList<PimVCardProperty*>{ first, nullptr, second } );
    EXPECT_EQ( card.GetProperties(), ( QList<PimVCardProperty*>{ first, nullptr, second } ) );
}

TEST( DataModelCardTest, NullListReadsAsEmpty )
{
    const PimVCard card( nullptr );
    EXPECT_TRUE( card.GetProperties().isEmpty() );
}

TEST( DataModelCardTest, CopiesShareUntilTheyAreChanged )
{
    const PimVCard card( new QList<PimVCardProperty*>{ nullptr } );
    QList<PimVCardProperty*> copy = card.GetProperties();
    EXPECT_TRUE( copy.isSharedWith( card.GetProperties() ) );
    copy.clear();
    EXPECT_EQ( card.GetProperties().size(), 1 );
}

TEST( DataModelCardTest, PropertiesAreTakenOutAndDeletedFirstToLast )
{
    Deletions deletions;
    auto* const list = new QList<PimVCardProperty*>;
    list->append( new WatchedProperty( Text( "a" ), nullptr, *list, deletions ) );
    list->append( nullptr );
    list->append( new WatchedProperty( Text( "b" ), nullptr, *list, deletions ) );
    delete new PimVCard( list );
    EXPECT_EQ( deletions.m_names, ( QList<QString>{ Text( "a" ), Text( "b" ) } ) );
    EXPECT_EQ( deletions.m_remaining, ( QList<int>{ 2, 0 } ) );
}

TEST( DataModelCardTest, DeletingACardDeletesTheWholeTree )
{
    Deletions deletions;
    auto* const properties = new QList<PimVCardProperty*>;
    for ( const char* name : { "1", "2" } )
    {
        auto* const parameters = NoParameters();
        parameters->append( new WatchedParameter( Text( "of " ) + Text( name ), *parameters, deletions ) );
        properties->append( new WatchedProperty( Text( name ), parameters, *properties, deletions ) );
    }
    delete new PimVCard( properties );
    EXPECT_EQ( deletions.m_names, ( QList<QString>{ Text( "1" ), Text( "of 1" ), Text( "2" ), Text( "of 2" ) } ) );
}

TEST( DataModelPrintTest, ParameterIsThreeMessages )
{
    const PimVCardParameter parameter( Text( "TYPE" ), Text( "HOME" ) );
    const LogCapture log;
    parameter.Print( "  " );
    EXPECT_EQ( log.Messages(),
               ( QList<LogMessage>{ Debug( Text( "   PimVCardParameter:" ) ), Debug( Text( "   Name:   \"TYPE\"" ) ),
                                    Debug( Text( "   Value:  \"HOME\"" ) ) } ) );
}

TEST( DataModelPrintTest, PropertyPrintsItsPartsInOrder )
{
    auto* const parameters = new QList<PimVCardParameter*>{ new PimVCardParameter( Text( "TYPE" ), Text( "HOME" ) ),
                                                            new PimVCardParameter( QString(), Text( "pref" ) ) };
    const PimVCardProperty property( Text( "item1" ), Text( "ADR" ), parameters,
                                     Values( { Text( "Main Street" ), Text( "" ) } ) );
    const LogCapture log;
    property.Print( "  " );
    EXPECT_EQ( log.Messages(),
               ( QList<LogMessage>{ Debug( Text( "   PimVCardProperty:" ) ), Debug( Text( "   Group:  \"item1\"" ) ),
                                    Debug( Text( "   Name:   \"ADR\"" ) ), Debug( Text( "   PimVCardParameter:" ) ),
                                    Debug( Text( "   Name:   \"TYPE\"" ) ), Debug( Text( "   Value:  \"HOME\"" ) ),
                                    Debug( Text( "   PimVCardParameter:" ) ), Debug( Text( "   Name:   \"\"" ) ),
                                    Debug( Text( "   Value:  \"pref\"" ) ), Debug( Text( "   Values:" ) ),
                                    Debug( Text( "      \"Main Street\"" ) ), Debug( Text( "      \"\"" ) ) } ) );
}

TEST( DataModelPrintTest, UngroupedPropertyPrintsAnEmptyGroup )
{
    const PimVCardProperty property( QString(), Text( "N" ), NoParameters(), Values( {} ) );
    const LogCapture log;
    property.Print( "  " );
    EXPECT_EQ( log.Messages(),
               ( QList<LogMessage>{ Debug( Text( "   PimVCardProperty:" ) ), Debug( Text( "   Group:  \"\"" ) ),
                                    Debug( Text( "   Name:   \"N\"" ) ), Debug( Text( "   Values:" ) ) } ) );
}

TEST( DataModelPrintTest, PrefixBeginsEachMessageAndPrecedesValuesTwice )
{
    auto* const parameters = new QList<PimVCardParameter*>{ new PimVCardParameter( Text( "X" ), Text( "y" ) ) };
    const PimVCardProperty property( QString(), Text( "N" ), parameters, Values( { Text( "v" ) } ) );
    const LogCapture log;
    property.Print( "\xC3\xA9>" );
    EXPECT_EQ( log.Texts( QtDebugMsg ),
               ( QList<QString>{ Text( "\xC3\xA9> PimVCardProperty:" ), Text( "\xC3\xA9> Group:  \"\"" ),
                                 Text( "\xC3\xA9> Name:   \"N\"" ), Text( "\xC3\xA9> PimVCardParameter:" ),
                                 Text( "\xC3\xA9> Name:   \"X\"" ), Text( "\xC3\xA9> Value:  \"y\"" ),
                                 Text( "\xC3\xA9> Values:" ), Text( "\xC3\xA9> \xC3\xA9> \"v\"" ) } ) );
}

TEST( DataModelPrintTest, EmptyPrefixKeepsTheBlankAfterIt )
{
    const PimVCardParameter parameter( Text( "A" ), Text( "b" ) );
    const LogCapture log;
    parameter.Print( "" );
    EXPECT_EQ( log.Texts( QtDebugMsg ), ( QList<QString>{ Text( " PimVCardParameter:" ), Text( " Name:   \"A\"" ),
                                                          Text( " Value:  \"b\"" ) } ) );
}

TEST( DataModelPrintTest, TextsAreQuotedWithEscapes )
{
    const PimVCardParameter parameter( Text( "\"q\"" ), Text( "a\\b\r\n\t\x01\xC3\xA9" ) );
    const LogCapture log;
    parameter.Print( "  " );
    EXPECT_EQ( log.Texts( QtDebugMsg ),
               ( QList<QString>{ Text( "   PimVCardParameter:" ), Text( R"(   Name:   "\"q\"")" ),
                                 Text( "   Value:  \"a\\\\b\\r\\n\\t\\u0001\xC3\xA9\"" ) } ) );
}

} // namespace PimManager::vCard
