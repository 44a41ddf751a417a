/// \file
/// Appends an object whose members are all optional.

#pragma once

#include "Text/JsonText.h"

#include <string_view>

namespace PimManager::Contacts
{

/// A JSON object: a brace, members with commas between them, and a closing brace in the destructor.
class JsonObject
{
public:
    explicit JsonObject( JsonText& a_json ) :
        m_json( a_json )
    {
    }
    ~JsonObject() { m_json.Raw( m_isEmpty ? "{}" : "}" ); }
    Q_DISABLE_COPY( JsonObject )

    /// Appends the name of a member. The caller must append its value next.
    /// \param a_name with quotes and a colon.
    JsonText& Key( std::string_view a_name )
    {
        m_json.Raw( m_isEmpty ? "{" : "," );
        m_json.Raw( a_name );
        m_isEmpty = false;
        return m_json;
    }
    /// Appends a member whose value is a text, unless it is empty.
    void Text( std::string_view a_name, std::string_view a_text )
    {
        if ( !a_text.empty() )
            Key( a_name ).String( a_text );
    }
    /// Appends members, each with a comma before it.
    void Members( std::string_view a_members )
    {
        if ( m_isEmpty && !a_members.empty() )
            m_json.Raw( "{" );
        m_json.Raw( m_isEmpty && !a_members.empty() ? a_members.substr( 1 ) : a_members );
        m_isEmpty = m_isEmpty && a_members.empty();
    }

private:
    JsonText& m_json;
    bool m_isEmpty = true;
};

} // namespace PimManager::Contacts
