// Checks that the tables of properties and parameters in docs/vcard-support.md are those of the library.

#include "DocumentFile.h"

#include "Lines/ParameterTable.h"
#include "Lines/PropertyRules.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <vector>

using namespace PimManager::Contacts;
using namespace PimManager::vCard::Documents;

namespace
{

const std::vector<PimContactVersion> s_kVersions = { PimContactVersion::V21, PimContactVersion::V30,
                                                     PimContactVersion::V40 };

using Rows = std::map<std::string, std::vector<std::string>>;

// The rows of a table by their first cell.
Rows RowsOf( const char* a_heading )
{
    Rows rows;
    const std::vector<TableRow> table =
        TableRows( DocumentText( QStringLiteral( "docs/vcard-support.md" ) ),
                   { QString::fromLatin1( a_heading ), QStringLiteral( "2.1" ), QStringLiteral( "3.0" ),
                     QStringLiteral( "4.0" ), QStringLiteral( "in a contact" ) } );
    for ( const TableRow& row : table )
    {
        std::vector<std::string>& cells = rows[row.m_cells.first().toStdString()];
        EXPECT_TRUE( cells.empty() ) << "line " << row.m_line;
        for ( const QString& cell : row.m_cells.mid( 1, static_cast<int>( s_kVersions.size() ) ) )
            cells.push_back( cell.toStdString() );
    }
    return rows;
}

// The standards that the headings of the columns stand for are not named.
std::string SectionText( const StandardSection& a_section )
{
    const bool isNamed = a_section.m_standard != Standard::VCard21 && a_section.m_standard != Standard::Rfc2426 &&
                         a_section.m_standard != Standard::Rfc6350;
    const std::string name = isNamed ? std::string( NameOf( a_section.m_standard ) ) + ", " : std::string();
    return name + std::string( a_section.m_number );
}

std::string OccurrenceText( Occurrence a_occurrence )
{
    switch ( a_occurrence )
    {
    case Occurrence::One:
        return "once";
    case Occurrence::OneOrMore:
        return "at least once";
    case Occurrence::AtMostOne:
        return "at most once";
    default:
        return "any number";
    }
}

// Every value of 2.1 may be in another part of the message. The text above the table says so.
std::string TypesText( const PropertyRule& a_rule )
{
    std::string text( NameOf( a_rule.m_defaultType ) );
    const bool is21 = a_rule.m_section.m_standard == Standard::VCard21;
    for ( int i = 0; i < static_cast<int>( ValueType::Other ); ++i )
    {
        const auto type = static_cast<ValueType>( i );
        const bool isElsewhere =
            is21 && ( type == ValueType::Uri || type == ValueType::Inline || type == ValueType::ContentId );
        if ( a_rule.m_types.Has( type ) && type != a_rule.m_defaultType && !isElsewhere )
            text += " or " + std::string( NameOf( type ) );
    }
    return text;
}

std::string ShapeText( const PropertyRule& a_rule )
{
    const std::string least = std::to_string( a_rule.m_leastComponents );
    const std::string most = std::to_string( a_rule.m_mostComponents );
    if ( a_rule.m_shape == ValueShape::Single )
        return "";
    if ( a_rule.m_shape == ValueShape::List )
        return ", list";
    const std::string components = a_rule.m_mostComponents == s_kAnyNumber ? "any number of components"
                                   : least == most                         ? least + " components"
                                                                           : least + " to " + most + " components";
    return ", " + components + ( a_rule.m_shape == ValueShape::ComponentLists ? " with lists" : "" );
}

std::string PropertyText( PropertyId a_property, PimContactVersion a_version )
{
    const PropertyRule* const rule = FindRule( a_property, a_version );
    if ( rule == nullptr )
        return "no";
    return SectionText( rule->m_section ) + "; " + OccurrenceText( rule->m_occurrence ) + "; " + TypesText( *rule ) +
           ShapeText( *rule );
}

Rows PropertiesOfTheLibrary()
{
    Rows rows;
    for ( size_t i = 0; i < s_kProperties; ++i )
    {
        const auto property = static_cast<PropertyId>( i );
        const std::string name( NameOf( property ) );
        for ( const PimContactVersion version : s_kVersions )
        {
            if ( !name.empty() )
                rows[name].push_back( PropertyText( property, version ) );
        }
    }
    return rows;
}

Rows ParametersOfTheLibrary()
{
    Rows rows;
    for ( size_t i = 0; i < s_kStandardParameters; ++i )
    {
        const auto parameter = static_cast<StandardParameter>( i );
        for ( const PimContactVersion version : s_kVersions )
        {
            const StandardSection section = SectionOf( parameter, version );
            rows[std::string( NameOf( parameter ) )].push_back( section.m_number.empty() ? "no"
                                                                                         : SectionText( section ) );
        }
    }
    return rows;
}

std::string Text( const Rows& a_rows )
{
    std::string text;
    for ( const auto& [name, cells] : a_rows )
    {
        text += "| " + name;
        for ( const std::string& cell : cells )
            text += " | " + cell;
        text += " |\n";
    }
    return text;
}

TEST( StandardTablesTest, PropertiesAreThoseOfTheLibrary )
{
    EXPECT_EQ( Text( RowsOf( "property" ) ), Text( PropertiesOfTheLibrary() ) );
}

TEST( StandardTablesTest, ParametersAreThoseOfTheLibrary )
{
    EXPECT_EQ( Text( RowsOf( "parameter" ) ), Text( ParametersOfTheLibrary() ) );
}

} // namespace
