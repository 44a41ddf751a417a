#include "Writing/PlainChangeRule.h"

#include "Lines/ParameterTable.h"
#include "Text/DelimiterSearch.h"
#include "Values/ParameterReader.h"
#include "Values/PlainParameters.h"
#include "Writing/PropertyReader.h"
#include "Writing/VersionTable.h"

namespace PimManager::Contacts
{

namespace
{

// VersionChanges changes no value of these, except for numbers and numbers of components.
bool IsPlainProperty( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Adr:
    case PropertyId::Categories:
    case PropertyId::Email:
    case PropertyId::Fn:
    case PropertyId::N:
    case PropertyId::Nickname:
    case PropertyId::Note:
    case PropertyId::Org:
    case PropertyId::Role:
    case PropertyId::Tel:
    case PropertyId::Title:
    case PropertyId::Url:
        return true;
    default:
        return false;
    }
}

bool AreTypes( std::string_view a_parameters )
{
    if ( a_parameters.empty() )
        return true;
    if ( !PlainParameters::AreIn( a_parameters ) )
        return false;
    for ( PlainParameters parameters( a_parameters ); parameters.Next(); )
    {
        const std::string_view name = parameters.Name().empty() ? NameOfBare( parameters.Value() ) : parameters.Name();
        if ( StandardParameterOf( name ) != StandardParameter::Type )
            return false;
    }
    return true;
}

bool HasComponents( const PropertyRule& a_rule )
{
    return a_rule.m_shape == ValueShape::Components || a_rule.m_shape == ValueShape::ComponentLists;
}

// The usual escapes of a text: `\\n`, `\\,` and `\\;`. Others are left to the slow path.
bool HasUsualEscapes( std::string_view a_value )
{
    for ( size_t place = a_value.find( '\\' ); place != std::string_view::npos;
          place = a_value.find( '\\', place + 1 ) )
    {
        const char escaped = place + 1 < a_value.size() ? a_value[place + 1] : '\0';
        if ( escaped != 'n' && escaped != ',' && escaped != ';' )
            return false;
    }
    return true;
}

struct DelimiterCounts
{
    quint32 m_semicolons = 0;
    quint32 m_commas = 0;
};

// For a value with the usual escapes.
DelimiterCounts CountsOf( std::string_view a_value )
{
    DelimiterCounts counts;
    for ( DelimiterSearch search( a_value, ';', ',' ); search.Next(); )
    {
        if ( search.Place() > 0 && a_value[search.Place() - 1] == '\\' )
            continue;
        ++( a_value[search.Place()] == ';' ? counts.m_semicolons : counts.m_commas );
    }
    return counts;
}

} // namespace

PlainChangeRule PlainChangeRule::Of( PropertyId a_property, std::string_view a_name, std::string_view a_parameters,
                                     VersionStep a_step )
{
    PlainChangeRule rule;
    const PropertyRule* const source = ShapeRuleOf( a_property, a_step.m_source );
    const PropertyRule* const target = FindRule( a_property, a_step.m_target );
    if ( a_step.IsNone() || !IsPlainProperty( a_property ) || source == nullptr || target == nullptr ||
         HasComponents( *source ) != HasComponents( *target ) || !AreTypes( a_parameters ) ||
         NameIn( a_name, a_property, a_step.m_target ).data() != a_name.data() )
        return rule;
    rule.m_isAllowed = true;
    rule.m_shape = source->m_shape;
    rule.m_least = target->m_leastComponents;
    rule.m_most = target->m_mostComponents == s_kAnyNumber ? ~quint32( 0 ) : target->m_mostComponents;
    rule.m_isOldTarget = a_step.m_target == PimContactVersion::V21;
    rule.m_isText = target->m_defaultType != ValueType::Uri;
    rule.m_mayBeUri = a_property == PropertyId::Email ||
                      ( a_property == PropertyId::Tel && a_step.m_target != PimContactVersion::V40 );
    return rule;
}

bool PlainChangeRule::Keeps( std::string_view a_value ) const
{
    if ( m_mayBeUri && a_value.find( ':' ) != std::string_view::npos )
        return false;
    const bool hasBackslash = a_value.find( '\\' ) != std::string_view::npos;
    if ( hasBackslash && ( m_isOldTarget || !m_isText || !HasUsualEscapes( a_value ) ) )
        return false;
    if ( m_shape == ValueShape::Single && ( m_isOldTarget || !m_isText ) )
        return true;
    const DelimiterCounts counts = CountsOf( a_value );
    switch ( m_shape )
    {
    case ValueShape::Single:
        return counts.m_semicolons + counts.m_commas == 0;
    case ValueShape::List:
        return counts.m_semicolons == 0;
    case ValueShape::Components:
        return ( m_isOldTarget || counts.m_commas == 0 ) && MayHave( counts.m_semicolons + 1 );
    default:
        return ( !m_isOldTarget || counts.m_commas == 0 ) && MayHave( counts.m_semicolons + 1 );
    }
}

} // namespace PimManager::Contacts
