/// \file
/// The index of a card: a run of entries, one for each part of the card's bytes.
///
/// The entries are in the order of the parts, and their lengths add up to the length of the card, so every byte belongs
/// to an entry. In a clean card, an entry has two to six bytes:
///
///     header byte | length
///     header byte | property byte | lengths of line, name, group, parameters | extras: encoding, joins, oddities ...
///
/// The second form is for lines. All numbers except the first two bytes are varints: seven bits in each byte, the
/// lowest first. The high bit is set if more bytes follow.

#pragma once

#include "Lines/IndexBuffer.h"
#include "Lines/LineHead.h"
#include "Text/CharsetChoice.h"

#include <QtGlobal>

#include <array>
#include <optional>

namespace PimManager::Contacts
{

/// The kind of a part of a card.
enum class EntryKind : quint8
{
    Line,     ///< a property
    Boundary, ///< of a BEGIN or END line
    Blank,    ///< blank lines
    Dropped,  ///< left out, see DropReason
    Filtered, ///< left out by the caller's filter
    Mark,     ///< byte order marks
    Nested,   ///< a nested card; it belongs to the property before it
};

/// The number of kinds.
constexpr int s_kEntryKinds = static_cast<int>( EntryKind::Nested ) + 1;

/// The reason why a part was left out.
enum class DropReason : quint8
{
    NotAProperty,
    Comment,
    LineTooLong,
    NestingTooDeep,
    BoundaryText,
};

/// How a break between two physical lines is undone if it is not a plain fold.
struct LineJoin
{
    /// The range in the line that the join covers.
    quint32 m_begin = 0;
    quint32 m_length = 0;
    PimContactJoin m_kind = PimContactJoin::Direct;
    /// For LineFeed: the number of line feeds that replace the break.
    quint8 m_lineFeeds = 0;

    quint32 End() const { return m_begin + m_length; }
};

/// A decoded entry.
struct IndexEntry
{
    EntryKind m_kind = EntryKind::Line;
    /// The length of the part in the bytes of the card. For Nested, the length of the nested card.
    quint32 m_length = 0;

    DropReason m_reason = DropReason::NotAProperty; // for Dropped
    bool m_isMended = false;                        // for Boundary: blanks or control characters around it

    // For Line.
    ByteRange m_group;
    ByteRange m_name;
    /// The property with that name, if it was looked up while the card was read.
    std::optional<PropertyId> m_property;
    ByteRange m_parameters;
    quint32 m_valueBegin = 0;
    bool m_hasColon = false;
    bool m_hasFolds = false;
    PimContactEncoding m_encoding = PimContactEncoding::None;
    LineCharset m_charset = LineCharset::Utf8;
    PimContactOddities m_oddities;
    /// As written by JoinWriter. Not owned.
    IndexBytes m_joins;
    bool m_doSoftBreaksTakeBlank = false;

    /// Copies the data from the head of the line.
    void SetHead( const LineHead& a_head );

    /// Includes MissingColon, which is not stored as an oddity.
    PimContactOddities AllOddities() const
    {
        return m_hasColon ? m_oddities : m_oddities | PimContactOddity::MissingColon;
    }

    /// \return true if there may be a break in the first a_length bytes of the line.
    bool MayHaveBreakBefore( quint32 a_length ) const
    {
        const uchar* firstJoin = m_joins.m_data;
        return m_hasFolds || ( m_joins.m_size > 0 && ReadNumber( firstJoin ) < a_length );
    }

    /// For Nested: the position and length of the record and the index of the nested card.
    quint32 m_indexBegin = 0;
    quint32 m_indexLength = 0;
};

/// Writes the joins of a line, two bytes or a little more for each.
class JoinWriter
{
public:
    void Clear()
    {
        m_buffer.Clear();
        m_place = 0;
    }
    void Add( const LineJoin& a_join );
    IndexBytes Bytes() const { return m_buffer.Bytes(); }

private:
    IndexBuffer m_buffer;
    quint32 m_place = 0;
};

/// Reads the joins of a line one after the other.
class JoinReader
{
public:
    /// \param a_entry the entry of a line. Its index must outlive the reader.
    explicit JoinReader( const IndexEntry& a_entry );

    /// \return false after the last one.
    bool Next( LineJoin& a_join );

private:
    const uchar* m_bytes;
    quint32 m_left;
    bool m_doSoftBreaksTakeBlank;
    // The end of the last join as stored.
    quint32 m_begin = 0;
};

/// The first byte of an entry. It has the kind in the lowest three bits, and in the others five flags for a line and a
/// number for other parts.
struct IndexHeader
{
    static constexpr uint s_kKindMask = 0x07;
    static constexpr uint s_kDetailShift = 3;
    static constexpr uint s_kHasGroup = 0x08;
    static constexpr uint s_kHasParameters = 0x10;
    static constexpr uint s_kHasColon = 0x20;
    static constexpr uint s_kHasFolds = 0x40;
    static constexpr uint s_kHasExtras = 0x80;
    // The flags for the extras of a line.
    static constexpr uint s_kExtraJoins = 0x20;
    static constexpr uint s_kExtraPlaces = 0x40;
};

/// The bytes that all entries of plain lines with the same short head have in common.
struct HeadEntry
{
    HeadEntry() = default;
    /// \param a_head LineHead::Read() has returned true for it. Its lengths must be less than 0x80.
    explicit HeadEntry( const LineHead& a_head );

    bool IsNull() const { return m_lengthBytes == 0; }

    uchar m_header = 0;
    uchar m_property = 0;
    /// The lengths of name, group and parameters, and the number of bytes in use.
    std::array<uchar, 4> m_lengths = {};
    uchar m_lengthBytes = 0;
    PimContactEncoding m_encoding = PimContactEncoding::None;
};

/// Writes entries.
class IndexWriter
{
public:
    void Clear() { m_buffer.Clear(); }
    void Release() { m_buffer.Release(); }
    void Add( const IndexEntry& a_entry );
    /// Adds a line without oddities whose head is known.
    void AddPlain( const HeadEntry& a_head, quint32 a_length, bool a_hasFolds, IndexBytes a_joins );
    void AddPart( EntryKind a_kind, quint32 a_length ) { AddPart( a_kind, a_length, 0 ); }
    void AddDropped( DropReason a_reason, quint32 a_length );
    void AddBoundary( quint32 a_length, bool a_isMended )
    {
        AddPart( EntryKind::Boundary, a_length, a_isMended ? 1 : 0 );
    }
    /// \param a_index record and index of a nested card of this length.
    void AddNested( quint32 a_length, IndexBytes a_index );
    /// Adds entries that were written elsewhere.
    void AddRaw( IndexBytes a_entries ) { m_buffer.Add( a_entries ); }

    IndexBytes Bytes() const { return m_buffer.Bytes(); }

private:
    void AddPart( EntryKind a_kind, quint32 a_length, uint a_detail );
    static uchar* WriteExtras( uchar* a_place, const IndexEntry& a_entry, uint a_extras );

    IndexBuffer m_buffer;
};

/// Reads entries one after the other.
class IndexReader
{
public:
    /// \param a_index the entries of one card; must outlive the reader. The positions of nested indexes count from
    ///                a_base.
    IndexReader( const uchar* a_base, quint32 a_begin, quint32 a_end ) :
        m_base( a_base ),
        m_place( a_begin ),
        m_end( a_end )
    {
    }

    bool AtEnd() const { return m_place >= m_end; }
    /// The kind of the next entry. Not at the end.
    EntryKind NextKind() const { return static_cast<EntryKind>( m_base[m_place] & IndexHeader::s_kKindMask ); }
    /// The position of the next entry.
    quint32 Place() const { return m_place; }
    /// Continues at the start of another entry.
    void StepTo( quint32 a_place ) { m_place = a_place; }

    /// Reads the next entry and steps after it. If a_isBrief is set, the positions and the character set of a line are
    /// not read.
    void Next( IndexEntry& a_entry, bool a_isBrief = false );

    /// Reads the next entry, which must be a line, and steps after it.
    void ReadLine( IndexEntry& a_entry ) { SetPlace( ReadLine( m_base + m_place, a_entry ) ); }

    /// Reads an entry, which must be a line.
    /// \return the position after it.
    static const uchar* ReadLine( const uchar* a_place, IndexEntry& a_entry );

    /// The data that Skip() reads from an entry.
    struct Outline
    {
        EntryKind m_kind = EntryKind::Line;
        quint32 m_length = 0;
        /// The name of a line. Empty if its positions are unusual, so that only Next() finds the name.
        ByteRange m_name;
        /// See IndexEntry.
        std::optional<PropertyId> m_property;
        /// For a line: there may be line endings in the name.
        bool m_isContinued = false;
        /// The position of a value that is UTF-8 text as written, except for its escapes; 0 for any other line.
        quint32 m_plainValue = 0;
    };

    /// Steps after the next entry and reads only these data.
    Q_ALWAYS_INLINE Outline Skip()
    {
        const uchar* place = m_base + m_place;
        const uint header = *place;
        Outline outline;
        outline.m_kind = static_cast<EntryKind>( header & IndexHeader::s_kKindMask );
        if ( outline.m_kind == EntryKind::Line )
        {
            const LineLengths lengths = ReadLengths( place );
            const NumberEnd extras =
                ( header & IndexHeader::s_kHasExtras ) != 0 ? SkipExtras( place ) : NumberEnd{ place, 0 };
            place = extras.m_end;
            outline.m_length = lengths.m_line;
            outline.m_property = lengths.Property();
            if ( ( extras.m_number & IndexHeader::s_kExtraPlaces ) == 0 )
                outline.m_name = { lengths.NameBegin(), lengths.m_name };
            if ( HasPlainValue( header ) )
                outline.m_plainValue = lengths.ValueBegin();
            outline.m_isContinued =
                ( header & IndexHeader::s_kHasFolds ) != 0 || ( extras.m_number & IndexHeader::s_kExtraJoins ) != 0;
        }
        else
        {
            outline.m_length = ReadNumber( ++place );
            const quint32 nested = outline.m_kind == EntryKind::Nested ? ReadNumber( place ) : 0;
            place += nested;
        }
        SetPlace( place );
        return outline;
    }

    /// The data that SkipPlain() reads from a line.
    struct PlainLine
    {
        quint32 m_length = 0;
        ByteRange m_name;
        /// The parameters are between the name and the colon.
        ByteRange m_parameters;
        bool m_hasFolds = false;
    };

    /// \return true if the next entry is a line in UTF-8 with a colon, and without an encoding, an oddity, or breaks
    ///         other than plain folds. Not at the end.
    bool IsPlain() const
    {
        return ( m_base[m_place] &
                 ( IndexHeader::s_kKindMask | IndexHeader::s_kHasExtras | IndexHeader::s_kHasColon ) ) ==
               ( static_cast<uint>( EntryKind::Line ) | IndexHeader::s_kHasColon );
    }

    /// Steps after the next entry, which must be plain.
    PlainLine SkipPlain()
    {
        const uchar* place = m_base + m_place;
        const bool hasFolds = ( *place & IndexHeader::s_kHasFolds ) != 0;
        const LineLengths lengths = ReadLengths( place );
        SetPlace( place );
        const ByteRange name = { lengths.NameBegin(), lengths.m_name };
        return { lengths.m_line, name, { name.End(), lengths.m_parameters }, hasFolds };
    }

    /// Finds the value of the next entry, which must be a line, without reading the rest of the entry.
    /// \param a_line       the bytes of the line and all bytes after it.
    /// \param[out] a_value the value, with the line ending.
    /// \return false if the line is unusual, is continued, or is not in UTF-8.
    bool FindValue( const char* a_line, std::string_view& a_value ) const
    {
        const uchar* place = m_base + m_place;
        if ( !HasPlainValue( *place ) )
            return false;
        const LineLengths lengths = ReadLengths( place );
        const quint32 begin = lengths.ValueBegin();
        a_value = std::string_view( a_line + begin, lengths.m_line - begin );
        return true;
    }

private:
    // The lengths that follow the header of a line.
    struct LineLengths
    {
        quint32 m_line = 0;
        quint32 m_name = 0;
        quint32 m_group = 0;
        quint32 m_parameters = 0;
        // 0, or the number of the property and one.
        uint m_property = 0;

        std::optional<PropertyId> Property() const
        {
            return m_property == 0 ? std::nullopt : std::optional( static_cast<PropertyId>( m_property - 1 ) );
        }
        quint32 NameBegin() const { return m_group == 0 ? 0 : m_group + 1; }
        // If there is a colon.
        quint32 ValueBegin() const { return NameBegin() + m_name + m_parameters + 1; }
    };
    static bool HasPlainValue( uint a_header )
    {
        return ( a_header & ( IndexHeader::s_kHasFolds | IndexHeader::s_kHasExtras | IndexHeader::s_kHasColon ) ) ==
               IndexHeader::s_kHasColon;
    }
    static LineLengths ReadLengths( const uchar*& a_place )
    {
        const uint header = *a_place++;
        LineLengths lengths;
        lengths.m_property = *a_place++;
        lengths.m_line = ReadNumber( a_place );
        lengths.m_name = ReadNumber( a_place );
        if ( ( header & IndexHeader::s_kHasGroup ) != 0 )
            lengths.m_group = ReadNumber( a_place );
        if ( ( header & IndexHeader::s_kHasParameters ) != 0 )
            lengths.m_parameters = ReadNumber( a_place );
        return lengths;
    }
    /// \return the flags of the extras, and the position after the extras.
    static NumberEnd SkipExtras( const uchar* a_place );

    void ReadBrief( IndexEntry& a_entry );
    void ReadPart( IndexEntry& a_entry );
    static const uchar* ReadExtras( const uchar* a_place, IndexEntry& a_entry );
    void SetPlace( const uchar* a_end ) { m_place = static_cast<quint32>( a_end - m_base ); }
    quint32 Number();

    const uchar* m_base;
    quint32 m_place;
    quint32 m_end;
};

inline const uchar* IndexReader::ReadLine( const uchar* a_place, IndexEntry& a_entry )
{
    const uchar* place = a_place;
    const uint header = *place;
    const LineLengths lengths = ReadLengths( place );
    a_entry.m_kind = EntryKind::Line;
    a_entry.m_length = lengths.m_line;
    a_entry.m_hasColon = ( header & IndexHeader::s_kHasColon ) != 0;
    a_entry.m_hasFolds = ( header & IndexHeader::s_kHasFolds ) != 0;
    a_entry.m_group = { 0, lengths.m_group };
    a_entry.m_name = { lengths.NameBegin(), lengths.m_name };
    a_entry.m_property = lengths.Property();
    a_entry.m_parameters = { a_entry.m_name.End(), lengths.m_parameters };
    a_entry.m_valueBegin = a_entry.m_parameters.End() + ( a_entry.m_hasColon ? 1 : 0 );
    a_entry.m_encoding = PimContactEncoding::None;
    a_entry.m_charset = LineCharset::Utf8;
    a_entry.m_oddities = {};
    a_entry.m_joins = {};
    a_entry.m_doSoftBreaksTakeBlank = false;
    return ( header & IndexHeader::s_kHasExtras ) != 0 ? ReadExtras( place, a_entry ) : place;
}

} // namespace PimManager::Contacts
