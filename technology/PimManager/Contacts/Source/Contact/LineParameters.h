/// \file
/// The parameters of a line, as a contact shows them.

#pragma once

#include "Text/KeptTexts.h"
#include "Text/WordGroups.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Reads the parameters of lines, one line after the other. Each parameter is read once. Keeps its memory.
class LineParameters
{
public:
    /// \param a_line must exist as long as its parameters are needed.
    void Read( const IndexedLine& a_line );

    /// \return the words of TYPE and the bare words as written, but without quotes, backslashes, a second "=", and the
    ///         marks of labels. PREF is left out.
    const WordGroups& Types() const { return m_types; }

    /// \return from 1 (most preferred) to 100: the value of PREF, or 1 if a type is PREF; 0 for none.
    int Preference() const;

    /// \return the names of the other parameters, one for each value. TYPE, PREF, ENCODING and CHARSET are left out.
    const WordGroups& Names() const { return m_names; }
    /// \return the value that has this position in Names().
    std::string_view Value( size_t a_index ) const { return m_values[a_index]; }

    /// \return the label in the first X-CUSTOM, as some phones write it. Empty if there is none.
    std::string_view CustomLabel() const;

private:
    void Take( std::string_view a_name, std::string_view a_value );
    void TakeType( std::string_view a_type );
    void TakePreference( std::string_view a_value );

    ValueDecoder m_decoder;
    KeptTexts m_texts;
    QByteArray m_buffer;
    WordGroups m_types;
    WordGroups m_names;
    std::vector<std::string_view> m_values;
    bool m_hasPreference = false;
    int m_preference = 0;
    bool m_isPreferred = false;
};

} // namespace PimManager::Contacts
