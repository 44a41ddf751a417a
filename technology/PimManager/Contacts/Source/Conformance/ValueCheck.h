/// \file
/// Checks the values of lines.

#pragma once

#include "Conformance/Violations.h"
#include "Lines/PropertyRules.h"
#include "Values/ValueDecoder.h"

#include <optional>
#include <string_view>

namespace PimManager::Contacts
{

/// Checks the values of lines, one line after the other. Keeps its memory.
class ValueCheck
{
public:
    explicit ValueCheck( Violations& a_violations ) :
        m_violations( a_violations )
    {
    }

    /// \param a_rule         the rule of the property; null if the version does not have it.
    /// \param a_type         the type that VALUE names, if it names one.
    /// \param a_hasNestedCard true if the line contains a card.
    void Check( const IndexedLine& a_line, const PropertyRule* a_rule, const std::optional<ValueType>& a_type,
                bool a_hasNestedCard );

    /// The value that was checked, with its escapes. Valid until the next line.
    std::string_view Text() const { return m_decoder.Escaped().m_text; }

private:
    void CheckExtension( ValueType a_type );
    void CheckProperty( ValueType a_type );
    void CheckOwnForm();
    void CheckComponents();
    void CheckEscapes();
    bool IsOfType( ValueType a_type ) const;
    bool IsBinary() const;
    bool IsCard() const;
    void AddInvalid( ValueType a_type );

    Violations& m_violations;
    ValueDecoder m_decoder;

    // For the current line.
    PimContactVersion m_version = PimContactVersion::Unknown;
    const IndexedLine* m_line = nullptr;
    const PropertyRule* m_rule = nullptr;
    bool m_hasNestedCard = false;
};

} // namespace PimManager::Contacts
