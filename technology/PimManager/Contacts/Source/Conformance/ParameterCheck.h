/// \file
/// Checks the parameters of lines.

#pragma once

#include "Conformance/Violations.h"
#include "Lines/PropertyRules.h"
#include "Values/ValueDecoder.h"

#include <string_view>

namespace PimManager::Contacts
{

/// Checks the parameters of lines, one line after the other. Keeps its memory.
class ParameterCheck
{
public:
    explicit ParameterCheck( Violations& a_violations ) :
        m_violations( a_violations )
    {
    }

    /// \param a_rule the rule of the property; null if the version does not have it.
    void Check( const IndexedLine& a_line, const PropertyRule* a_rule );

    /// \return true if VALUE names a type of the version.
    bool HasValueType() const { return m_hasValueType; }
    /// The type that the first VALUE names.
    ValueType NamedValueType() const { return m_valueType; }

    bool HasAltId() const { return m_hasAltId; }
    /// The value of the first ALTID. Valid until the next line.
    const QByteArray& AltId() const { return m_altId; }

private:
    void CheckName( std::string_view a_name, bool a_isBare );
    void CheckPlace( StandardParameter a_parameter );
    void CheckBare( std::string_view a_name );
    void CheckValue( StandardParameter a_parameter, std::string_view a_value );
    void CheckValueType( std::string_view a_name );
    bool IsValid( StandardParameter a_parameter, std::string_view a_value ) const;
    void Add( PimContactFindingCode a_code, StandardParameter a_parameter );

    Violations& m_violations;
    ValueDecoder m_decoder;

    // For the current line.
    PimContactVersion m_version = PimContactVersion::Unknown;
    const PropertyRule* m_rule = nullptr;
    bool m_hasValueType = false;
    ValueType m_valueType = ValueType::Other;
    bool m_hasAltId = false;
    QByteArray m_altId;
};

} // namespace PimManager::Contacts
