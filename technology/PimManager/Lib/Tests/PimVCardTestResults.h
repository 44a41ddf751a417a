/// \file
/// Parse results as plain values, which the unit tests can write in one line, compare and print.

#pragma once

#include "PimVCard.h"
#include "PimVCardParserInspector.h"
#include "PimVCardTestText.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace PimManager::vCard
{

struct ParameterData
{
    std::string m_name;
    std::string m_value;

    bool operator==( const ParameterData& a_other ) const
    {
        return m_name == a_other.m_name && m_value == a_other.m_value;
    }
};

struct PropertyData
{
    std::string m_group;
    std::string m_name;
    std::vector<ParameterData> m_parameters;
    std::vector<std::string> m_values;

    bool operator==( const PropertyData& a_other ) const
    {
        return m_group == a_other.m_group && m_name == a_other.m_name && m_parameters == a_other.m_parameters &&
               m_values == a_other.m_values;
    }
};

using CardData = std::vector<PropertyData>;

inline std::string Shown( const std::string& a_text )
{
    return Escaped( QString::fromStdString( a_text ) );
}

inline std::ostream& operator<<( std::ostream& a_stream, const ParameterData& a_parameter )
{
    return a_stream << "{ " << Shown( a_parameter.m_name ) << ", " << Shown( a_parameter.m_value ) << " }";
}

inline std::ostream& operator<<( std::ostream& a_stream, const PropertyData& a_property )
{
    a_stream << "\n{ " << Shown( a_property.m_group ) << ", " << Shown( a_property.m_name ) << ", { ";
    for ( const ParameterData& parameter : a_property.m_parameters )
        a_stream << parameter << ' ';
    a_stream << "}, { ";
    for ( const std::string& value : a_property.m_values )
        a_stream << Shown( value ) << ' ';
    return a_stream << "} }";
}

inline std::vector<std::string> DataOf( const QList<QString>& a_values )
{
    std::vector<std::string> data;
    for ( const QString& value : a_values )
        data.push_back( value.toStdString() );
    return data;
}

inline ParameterData DataOf( const PimVCardParameter& a_parameter )
{
    return { a_parameter.GetName().toStdString(), a_parameter.GetValue().toStdString() };
}

inline PropertyData DataOf( const PimVCardProperty& a_property )
{
    PropertyData data{ a_property.GetGroupID().toStdString(), a_property.GetName().toStdString(), {}, {} };
    for ( const PimVCardParameter* parameter : a_property.GetParameters() )
        data.m_parameters.push_back( DataOf( *parameter ) );
    data.m_values = DataOf( a_property.GetValues() );
    return data;
}

inline CardData DataOf( const PimVCard& a_vCard )
{
    CardData data;
    for ( const PimVCardProperty* property : a_vCard.GetProperties() )
        data.push_back( DataOf( *property ) );
    return data;
}

/// Takes ownership of the result of a parse operation. Returns its data, or nothing for null, and deletes it.
template <typename T>
auto Take( T* a_result ) -> std::optional<decltype( DataOf( *a_result ) )>
{
    const std::unique_ptr<T> owner( a_result );
    if ( owner == nullptr )
        return std::nullopt;
    return DataOf( *owner );
}

/// The same for a list of objects, which are deleted too.
template <typename T>
auto Take( QList<T*>* a_results ) -> std::optional<std::vector<decltype( DataOf( *a_results->first() ) )>>
{
    const std::unique_ptr<QList<T*>> owner( a_results );
    if ( owner == nullptr )
        return std::nullopt;
    std::vector<decltype( DataOf( *a_results->first() ) )> data;
    for ( const T* result : std::as_const( *owner ) )
        data.push_back( DataOf( *result ) );
    qDeleteAll( *owner );
    return data;
}

/// The first character that the parser has not consumed yet. 0 at the end of the text.
inline char16_t NextChar( const PimVCardParser& a_parser )
{
    return PimVCardParserInspector( a_parser ).Lexer().m_nextChar.unicode();
}

} // namespace PimManager::vCard
