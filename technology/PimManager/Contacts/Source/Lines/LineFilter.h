/// \file
/// The filter for properties.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

struct LineHead;

/// The filter of PimContactOptions.
class LineFilter
{
public:
    explicit LineFilter( const PimContactOptions& a_options );

    /// \return true if every line is wanted.
    bool IsEmpty() const { return m_names.empty() && m_areMediaWanted; }

    /// \param a_name  the name of the property.
    /// \param a_value the start of its value.
    bool IsWanted( const LineHead& a_head, std::string_view a_name, std::string_view a_value ) const;

private:
    // In upper case, sorted.
    std::vector<QByteArray> m_names;
    bool m_areMediaWanted;
};

} // namespace PimManager::Contacts
