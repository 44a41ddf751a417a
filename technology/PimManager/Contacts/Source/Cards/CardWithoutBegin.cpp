#include "Cards/CardWithoutBegin.h"

#include "Lines/KnownNames.h"
#include "Lines/LineHead.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

bool IsNameOfContact( std::string_view a_name )
{
    static constexpr std::array<std::string_view, 5> s_kNames = { "FN", "N", "TEL", "EMAIL", "ORG" };
    return std::any_of( s_kNames.begin(), s_kNames.end(),
                        [a_name]( std::string_view a_known ) { return IsSameWord( a_name, a_known ); } );
}

} // namespace

bool IsKnownProperty( std::string_view a_line )
{
    const LineHead head = LineHead::Of( a_line );
    return head.m_hasColon && IsKnownName( head.m_name.In( a_line ) ) &&
           !( head.m_oddities & PimContactOddity::OddName ) && LooksOf( head, a_line ) == LineLooks::ClearlyProperty;
}

bool IsContact( const CardIndex& a_index, std::string_view a_bytes )
{
    IndexReader reader = EntriesOf( a_index.Base(), 0 );
    IndexEntry entry;
    for ( quint32 place = 0; !reader.AtEnd(); place += entry.m_length )
    {
        reader.Next( entry );
        if ( entry.m_kind != EntryKind::Line && entry.m_kind != EntryKind::Filtered )
            continue;
        const std::string_view line = WithoutLineEnd( a_bytes.substr( place, entry.m_length ) );
        if ( IsNameOfContact( LineHead::Of( line ).m_name.In( line ) ) )
            return true;
    }
    return false;
}

} // namespace PimManager::Contacts
