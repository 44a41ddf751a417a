#include "Strict/LineEnds.h"

namespace PimManager::Tools
{

LineEnds CountLineEnds( const QByteArray& a_bytes )
{
    LineEnds ends;
    char previous = '\0';
    for ( const char byte : a_bytes )
    {
        if ( byte == '\n' )
            ++( previous == '\r' ? ends.m_crLfs : ends.m_bareLfs );
        else if ( previous == '\r' )
            ++ends.m_bareCrs;
        previous = byte;
    }
    if ( previous == '\r' )
        ++ends.m_bareCrs;
    ends.m_isLastLineOpen = !a_bytes.isEmpty() && previous != '\r' && previous != '\n';
    return ends;
}

} // namespace PimManager::Tools
