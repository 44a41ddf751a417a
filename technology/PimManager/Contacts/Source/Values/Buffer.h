/// \file
/// Byte arrays that are used again and again.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Empties a buffer. It keeps its memory, unless it is large.
void Empty( QByteArray& a_buffer );

inline void Append( QByteArray& a_buffer, std::string_view a_text )
{
    if ( !a_text.empty() )
        a_buffer.append( a_text.data(), static_cast<int>( a_text.size() ) );
}

} // namespace PimManager::Contacts
