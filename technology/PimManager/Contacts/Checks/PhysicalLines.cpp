#include "Checks/PhysicalLines.h"

#include <algorithm>

namespace PimManager::Contacts::Checks
{

namespace
{

bool IsAt( const QByteArray& a_text, qint64 a_place, char a_byte )
{
    return a_place < a_text.size() && a_text.constData()[a_place] == a_byte;
}

PimContactLineEnd LineEndAt( const QByteArray& a_text, qint64 a_place )
{
    if ( IsAt( a_text, a_place, '\n' ) )
        return PimContactLineEnd::Lf;
    if ( IsAt( a_text, a_place + 1, '\n' ) )
        return PimContactLineEnd::CrLf;
    if ( IsAt( a_text, a_place + 1, '\r' ) && IsAt( a_text, a_place + 2, '\n' ) )
        return PimContactLineEnd::CrCrLf;
    return PimContactLineEnd::Cr;
}

int LengthOf( PimContactLineEnd a_lineEnd )
{
    switch ( a_lineEnd )
    {
    case PimContactLineEnd::CrLf:
        return 2;
    case PimContactLineEnd::CrCrLf:
        return 3;
    default:
        return 1;
    }
}

} // namespace

std::vector<PhysicalLine> PhysicalLinesOf( const QByteArray& a_text )
{
    std::vector<PhysicalLine> lines;
    qint64 begin = 0;
    for ( qint64 place = 0; place < a_text.size(); )
    {
        if ( !IsAt( a_text, place, '\r' ) && !IsAt( a_text, place, '\n' ) )
        {
            ++place;
            continue;
        }
        const PimContactLineEnd lineEnd = LineEndAt( a_text, place );
        const qint64 end = place + LengthOf( lineEnd );
        lines.push_back( { begin, place, end, static_cast<int>( lineEnd ) } );
        begin = place = end;
    }
    if ( begin < a_text.size() )
        lines.push_back( { begin, a_text.size(), a_text.size(), s_kNoLineEnd } );
    return lines;
}

std::array<qint64, s_kNoLineEnd> LineEndsOf( const std::vector<PhysicalLine>& a_lines )
{
    std::array<qint64, s_kNoLineEnd + 1> counts{};
    for ( const PhysicalLine& line : a_lines )
        ++counts[static_cast<size_t>( line.m_lineEnd )];
    std::array<qint64, s_kNoLineEnd> lineEnds{};
    std::copy_n( counts.begin(), s_kNoLineEnd, lineEnds.begin() );
    return lineEnds;
}

size_t LineAt( const std::vector<PhysicalLine>& a_lines, qint64 a_offset )
{
    const auto isBefore = []( const PhysicalLine& a_line, qint64 a_place )
    { return a_line.m_end <= a_place && a_line.m_lineEnd != s_kNoLineEnd; };
    const auto line = std::lower_bound( a_lines.begin(), a_lines.end(), a_offset, isBefore );
    return static_cast<size_t>( line - a_lines.begin() );
}

} // namespace PimManager::Contacts::Checks
