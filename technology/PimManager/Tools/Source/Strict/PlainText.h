/// \file
/// What the strict check asks of bytes and words. It reads lines as the component does, not as Contacts.

#pragma once

#include <QString>

namespace PimManager::Tools
{

inline bool IsBlank( char a_byte )
{
    return a_byte == ' ' || a_byte == '\t';
}

/// In any letter case.
inline bool IsSameWord( const QString& a_first, const QString& a_second )
{
    return a_first.compare( a_second, Qt::CaseInsensitive ) == 0;
}

} // namespace PimManager::Tools
