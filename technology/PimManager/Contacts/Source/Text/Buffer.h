/// \file
/// Reusable byte arrays.

#pragma once

#include <QByteArray>

#include <initializer_list>
#include <string_view>

namespace PimManager::Contacts
{

/// Empties a buffer. It keeps its memory, unless it is large.
void Empty( QByteArray& a_buffer );

/// Sets the length of a buffer whose contents are not needed. It keeps its memory, unless it is large.
void Resize( QByteArray& a_buffer, int a_size );

inline void Append( QByteArray& a_buffer, std::string_view a_text )
{
    if ( !a_text.empty() )
        a_buffer.append( a_text.data(), static_cast<int>( a_text.size() ) );
}

/// Appends several texts, with one allocation at most.
void AppendAll( QByteArray& a_buffer, std::initializer_list<std::string_view> a_texts );

} // namespace PimManager::Contacts
