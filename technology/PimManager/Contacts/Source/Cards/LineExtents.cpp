#include "Cards/LineExtents.h"

namespace PimManager::Contacts
{

void AddLine( Ledger& a_ledger, LineScanner& a_scanner, PimContactExtentKind a_kind, const PhysicalLine& a_line,
              qint64 a_longest, qint64 a_card )
{
    qint64 place = a_line.m_offset;
    if ( a_line.m_isLong || a_line.m_length > a_longest )
    {
        for ( ; a_line.TextEnd() - place > s_kExtentPiece; place += s_kExtentPiece )
            a_ledger.Add( a_kind, a_scanner.View( place, s_kExtentPiece ), a_card );
    }
    a_ledger.Add( a_kind, a_scanner.View( place, a_line.End() - place ), a_card );
    a_scanner.Release( a_line.End() );
}

} // namespace PimManager::Contacts
