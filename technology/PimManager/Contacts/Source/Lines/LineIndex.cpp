#include "Lines/LineIndex.h"

#include <cstring>

namespace PimManager::Contacts
{

namespace
{

// The extras of a line: encoding and character set, three flags, and the oddities.
constexpr uint s_kEncodingMask = 0x03;
constexpr uint s_kCharsetShift = 2;
constexpr uint s_kCharsetMask = 0x07;
constexpr uint s_kHasJoins = IndexHeader::s_kExtraJoins;
constexpr uint s_kHasPlaces = IndexHeader::s_kExtraPlaces;
constexpr uint s_kDoSoftBreaksTakeBlank = 0x80;
constexpr uint s_kOdditiesShift = 8;

// A join: its length, and its replacement in the lowest three bits. 1 to 3 are line feeds.
constexpr uint s_kJoinMask = 0x07;
constexpr uint s_kJoinShift = 3;
constexpr uint s_kDirect = 0;
constexpr uint s_kSoftBreak = 4;
constexpr uint s_kFold = 5;

// More than the numbers of a line.
constexpr size_t s_kMostOfLine = 64;

// The usual case: group, dot, name, parameters and colon follow each other without a gap.
bool HasPlainPlaces( const IndexEntry& a_entry )
{
    const quint32 nameBegin = a_entry.m_group.m_length == 0 ? 0 : a_entry.m_group.m_length + 1;
    return a_entry.m_group.m_begin == 0 && a_entry.m_name.m_begin == nameBegin &&
           a_entry.m_parameters.m_begin == a_entry.m_name.End() &&
           a_entry.m_valueBegin == a_entry.m_parameters.End() + ( a_entry.m_hasColon ? 1 : 0 );
}

uint CodeOf( const LineJoin& a_join )
{
    switch ( a_join.m_kind )
    {
    case PimContactJoin::Fold:
        return s_kFold;
    case PimContactJoin::LineFeed:
        return a_join.m_lineFeeds;
    case PimContactJoin::Direct:
        return s_kDirect;
    default:
        return s_kSoftBreak;
    }
}

void SetCode( LineJoin& a_join, uint a_code )
{
    a_join.m_lineFeeds = 0;
    switch ( a_code )
    {
    case s_kDirect:
        a_join.m_kind = PimContactJoin::Direct;
        break;
    case s_kFold:
        a_join.m_kind = PimContactJoin::Fold;
        break;
    case s_kSoftBreak:
        a_join.m_kind = PimContactJoin::SoftBreak;
        break;
    default:
        a_join.m_kind = PimContactJoin::LineFeed;
        a_join.m_lineFeeds = static_cast<quint8>( a_code );
        break;
    }
}

template <typename Parts>
inline uint HeaderOf( const Parts& a_parts, bool a_hasFolds, uint a_extras )
{
    uint header = static_cast<uint>( EntryKind::Line );
    header |= a_parts.m_group.m_length > 0 ? IndexHeader::s_kHasGroup : 0;
    header |= a_parts.m_parameters.m_length > 0 ? IndexHeader::s_kHasParameters : 0;
    header |= a_parts.m_hasColon ? IndexHeader::s_kHasColon : 0;
    header |= a_hasFolds ? IndexHeader::s_kHasFolds : 0;
    return header | ( a_extras != 0 ? IndexHeader::s_kHasExtras : 0 );
}

// 0 if the property was not looked up.
inline uchar PropertyByte( std::optional<PropertyId> a_property )
{
    return a_property ? static_cast<uchar>( static_cast<uint>( *a_property ) + 1 ) : uchar( 0 );
}

template <typename Parts>
inline uchar* WriteLengths( uchar* a_place, const Parts& a_parts )
{
    uchar* place = WriteNumber( a_place, a_parts.m_name.m_length );
    if ( a_parts.m_group.m_length > 0 )
        place = WriteNumber( place, a_parts.m_group.m_length );
    return a_parts.m_parameters.m_length > 0 ? WriteNumber( place, a_parts.m_parameters.m_length ) : place;
}

// 0 for most lines.
uint ExtrasOf( const IndexEntry& a_entry, bool a_isPlain )
{
    uint extras = static_cast<uint>( a_entry.m_encoding );
    extras |= static_cast<uint>( a_entry.m_charset ) << s_kCharsetShift;
    extras |= a_entry.m_joins.m_size > 0 ? s_kHasJoins : 0;
    extras |= a_isPlain ? 0 : s_kHasPlaces;
    extras |= a_entry.m_doSoftBreaksTakeBlank ? s_kDoSoftBreaksTakeBlank : 0;
    return extras | static_cast<uint>( a_entry.m_oddities ) << s_kOdditiesShift;
}

} // namespace

void IndexEntry::SetHead( const LineHead& a_head )
{
    m_group = a_head.m_group;
    m_name = a_head.m_name;
    m_property = a_head.m_property;
    m_parameters = a_head.m_parameters;
    m_valueBegin = a_head.m_valueBegin;
    m_hasColon = a_head.m_hasColon;
    m_encoding = a_head.m_encoding;
    m_oddities = a_head.m_oddities;
    if ( m_parameters.m_length == 0 )
        m_parameters.m_begin = m_name.End();
    if ( !m_hasColon )
        m_valueBegin = m_parameters.End();
}

void JoinWriter::Add( const LineJoin& a_join )
{
    uchar* place = m_buffer.Begin( 2 * s_kLongestNumber );
    place = WriteNumber( place, a_join.m_begin - m_place );
    place = WriteNumber( place, ( a_join.m_length << s_kJoinShift ) | CodeOf( a_join ) );
    m_buffer.End( place );
    m_place = a_join.End();
}

JoinReader::JoinReader( const IndexEntry& a_entry ) :
    m_bytes( a_entry.m_joins.m_data ),
    m_left( a_entry.m_joins.m_size ),
    m_doSoftBreaksTakeBlank( a_entry.m_doSoftBreaksTakeBlank )
{
}

bool JoinReader::Next( LineJoin& a_join )
{
    if ( m_left == 0 )
        return false;
    const uchar* const begin = m_bytes;
    a_join.m_begin = m_begin + ReadNumber( m_bytes );
    const uint code = ReadNumber( m_bytes );
    a_join.m_length = code >> s_kJoinShift;
    SetCode( a_join, code & s_kJoinMask );
    m_begin = a_join.End();
    m_left -= static_cast<quint32>( m_bytes - begin );
    if ( m_doSoftBreaksTakeBlank && a_join.m_kind == PimContactJoin::SoftBreak )
    {
        a_join.m_kind = PimContactJoin::SoftBreakAndBlank;
        ++a_join.m_length;
    }
    return true;
}

void IndexWriter::AddPart( EntryKind a_kind, quint32 a_length, uint a_detail )
{
    if ( a_length == 0 )
        return;
    uchar* const place = m_buffer.Begin( s_kMostOfLine );
    *place = static_cast<uchar>( static_cast<uint>( a_kind ) | ( a_detail << IndexHeader::s_kDetailShift ) );
    m_buffer.End( WriteNumber( place + 1, a_length ) );
}

void IndexWriter::AddDropped( DropReason a_reason, quint32 a_length )
{
    AddPart( EntryKind::Dropped, a_length, static_cast<uint>( a_reason ) );
}

void IndexWriter::AddNested( quint32 a_length, IndexBytes a_index )
{
    AddPart( EntryKind::Nested, a_length, 0 );
    m_buffer.End( WriteNumber( m_buffer.Begin( s_kLongestNumber ), a_index.m_size ) );
    m_buffer.Add( a_index );
}

void IndexWriter::Add( const IndexEntry& a_entry )
{
    if ( a_entry.m_kind != EntryKind::Line )
    {
        const uint detail = a_entry.m_kind == EntryKind::Dropped ? static_cast<uint>( a_entry.m_reason )
                                                                 : ( a_entry.m_isMended ? 1U : 0U );
        AddPart( a_entry.m_kind, a_entry.m_length, detail );
        return;
    }
    const uint extras = ExtrasOf( a_entry, HasPlainPlaces( a_entry ) );
    uchar* place = m_buffer.Begin( s_kMostOfLine );
    *place++ = static_cast<uchar>( HeaderOf( a_entry, a_entry.m_hasFolds, extras ) );
    *place++ = PropertyByte( a_entry.m_property );
    place = WriteNumber( place, a_entry.m_length );
    place = WriteLengths( place, a_entry );
    if ( extras != 0 )
        place = WriteExtras( place, a_entry, extras );
    m_buffer.End( place );
    m_buffer.Add( a_entry.m_joins );
}

HeadEntry::HeadEntry( const LineHead& a_head ) :
    m_header( static_cast<uchar>( HeaderOf( a_head, false, 0 ) ) ),
    m_property( PropertyByte( a_head.m_property ) ),
    m_encoding( a_head.m_encoding )
{
    const uchar* const begin = m_lengths.data();
    m_lengthBytes = static_cast<uchar>( WriteLengths( m_lengths.data(), a_head ) - begin );
}

void IndexWriter::AddPlain( const HeadEntry& a_head, quint32 a_length, bool a_hasFolds, IndexBytes a_joins )
{
    const uint extras = static_cast<uint>( a_head.m_encoding ) | ( a_joins.m_size > 0 ? s_kHasJoins : 0 );
    const uint flags = ( a_hasFolds ? IndexHeader::s_kHasFolds : 0 ) | ( extras != 0 ? IndexHeader::s_kHasExtras : 0 );
    uchar* place = m_buffer.Begin( s_kMostOfLine );
    *place++ = static_cast<uchar>( a_head.m_header | flags );
    *place++ = a_head.m_property;
    place = WriteNumber( place, a_length );
    std::memcpy( place, a_head.m_lengths.data(), a_head.m_lengths.size() );
    place += a_head.m_lengthBytes;
    if ( extras != 0 )
        place = WriteNumber( place, extras );
    if ( a_joins.m_size == 0 )
    {
        m_buffer.End( place );
        return;
    }
    m_buffer.End( WriteNumber( place, a_joins.m_size ) );
    m_buffer.Add( a_joins );
}

uchar* IndexWriter::WriteExtras( uchar* a_place, const IndexEntry& a_entry, uint a_extras )
{
    uchar* place = WriteNumber( a_place, a_extras );
    if ( ( a_extras & s_kHasPlaces ) != 0 )
    {
        place = WriteNumber( place, a_entry.m_group.m_begin );
        place = WriteNumber( place, a_entry.m_name.m_begin );
        place = WriteNumber( place, a_entry.m_parameters.m_begin );
        place = WriteNumber( place, a_entry.m_valueBegin );
    }
    return a_entry.m_joins.m_size > 0 ? WriteNumber( place, a_entry.m_joins.m_size ) : place;
}

inline quint32 IndexReader::Number()
{
    const uchar* place = m_base + m_place;
    const quint32 number = ReadNumber( place );
    SetPlace( place );
    return number;
}

// For a header with the flag for extras.
NumberEnd IndexReader::SkipExtras( const uchar* a_place )
{
    constexpr int s_kPlaces = 4;
    const uchar* place = a_place;
    const uint extras = ReadNumber( place );
    for ( int i = 0; i < s_kPlaces && ( extras & s_kHasPlaces ) != 0; ++i )
        ReadNumber( place );
    const quint32 joins = ( extras & s_kHasJoins ) != 0 ? ReadNumber( place ) : 0;
    return { place + joins, extras };
}

void IndexReader::Next( IndexEntry& a_entry, bool a_isBrief )
{
    const uint header = m_base[m_place];
    if ( ( header & IndexHeader::s_kKindMask ) != static_cast<uint>( EntryKind::Line ) )
        ReadPart( a_entry );
    else if ( a_isBrief && ( header & IndexHeader::s_kHasExtras ) == 0 )
        ReadBrief( a_entry );
    else
        ReadLine( a_entry );
}

void IndexReader::ReadPart( IndexEntry& a_entry )
{
    const uint header = m_base[m_place++];
    a_entry.m_kind = static_cast<EntryKind>( header & IndexHeader::s_kKindMask );
    a_entry.m_length = Number();
    switch ( a_entry.m_kind )
    {
    case EntryKind::Dropped:
        a_entry.m_reason = static_cast<DropReason>( header >> IndexHeader::s_kDetailShift );
        break;
    case EntryKind::Boundary:
        a_entry.m_isMended = ( header >> IndexHeader::s_kDetailShift ) != 0;
        break;
    case EntryKind::Nested:
        a_entry.m_indexLength = Number();
        a_entry.m_indexBegin = m_place;
        m_place += a_entry.m_indexLength;
        break;
    default:
        break;
    }
}

inline void IndexReader::ReadBrief( IndexEntry& a_entry )
{
    const uchar* place = m_base + m_place;
    const uint header = *place;
    a_entry.m_kind = EntryKind::Line;
    a_entry.m_length = ReadLengths( place ).m_line;
    SetPlace( place );
    a_entry.m_oddities = {};
    a_entry.m_encoding = PimContactEncoding::None;
    a_entry.m_hasColon = ( header & IndexHeader::s_kHasColon ) != 0;
    a_entry.m_hasFolds = ( header & IndexHeader::s_kHasFolds ) != 0;
    a_entry.m_joins = {};
}

const uchar* IndexReader::ReadExtras( const uchar* a_place, IndexEntry& a_entry )
{
    const uchar* place = a_place;
    const uint extras = ReadNumber( place );
    a_entry.m_encoding = static_cast<PimContactEncoding>( extras & s_kEncodingMask );
    a_entry.m_charset = static_cast<LineCharset>( ( extras >> s_kCharsetShift ) & s_kCharsetMask );
    a_entry.m_doSoftBreaksTakeBlank = ( extras & s_kDoSoftBreaksTakeBlank ) != 0;
    a_entry.m_oddities = PimContactOddities( static_cast<int>( extras >> s_kOdditiesShift ) );
    if ( ( extras & s_kHasPlaces ) != 0 )
    {
        a_entry.m_group.m_begin = ReadNumber( place );
        a_entry.m_name.m_begin = ReadNumber( place );
        a_entry.m_parameters.m_begin = ReadNumber( place );
        a_entry.m_valueBegin = ReadNumber( place );
    }
    if ( ( extras & s_kHasJoins ) == 0 )
        return place;
    const quint32 length = ReadNumber( place );
    a_entry.m_joins = { place, length };
    return place + length;
}

} // namespace PimManager::Contacts
