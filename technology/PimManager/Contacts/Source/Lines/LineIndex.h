/// \file
/// The index of a card: a run of entries, one for each part of the card's bytes.
///
/// The entries follow each other as the parts do, and their lengths add up to the length of the card, so no byte is
/// without an entry. An entry has two to five bytes in a clean card:
///
///     header byte | length | [reason] | [lengths of name, group, parameters | extras: encoding, joins, oddities ...]
///
/// All numbers but the header are varints: seven bits a byte, the lowest first, the high bit says that more follow.

#pragma once

#include "Lines/IndexBuffer.h"
#include "Lines/LineHead.h"
#include "Text/CharsetChoice.h"

#include <QtGlobal>

namespace PimManager::Contacts
{

/// What a part of a card is.
enum class EntryKind : quint8
{
    Line,     ///< a property
    Boundary, ///< of a BEGIN or END line
    Blank,    ///< blank lines
    Dropped,  ///< left out, see DropReason
    Filtered, ///< left out by the caller's filter
    Mark,     ///< byte order marks
    Nested,   ///< a card inside the card; it belongs to the property before it
};

/// The number of kinds.
constexpr int s_kEntryKinds = static_cast<int>( EntryKind::Nested ) + 1;

/// Why a part was left out.
enum class DropReason : quint8
{
    NotAProperty,
    Comment,
    LineTooLong,
    NestingTooDeep,
    BoundaryText,
};

/// How a break between two physical lines is undone, where it is no plain fold.
struct LineJoin
{
    /// Of what the join covers, in the line.
    quint32 m_begin = 0;
    quint32 m_length = 0;
    PimContactJoin m_kind = PimContactJoin::Direct;
    /// Of LineFeed: how many line feeds the break becomes.
    quint8 m_lineFeeds = 0;

    quint32 End() const { return m_begin + m_length; }
};

/// An entry, decoded.
struct IndexEntry
{
    EntryKind m_kind = EntryKind::Line;
    /// Of the part in the bytes of the card; of Nested that of the nested card.
    quint32 m_length = 0;

    DropReason m_reason = DropReason::NotAProperty; // of Dropped
    bool m_isMended = false;                        // of Boundary: blanks or control characters round it

    // Of Line.
    ByteRange m_group;
    ByteRange m_name;
    ByteRange m_parameters;
    quint32 m_valueBegin = 0;
    bool m_hasColon = false;
    bool m_hasFolds = false;
    PimContactEncoding m_encoding = PimContactEncoding::None;
    LineCharset m_charset = LineCharset::Utf8;
    PimContactOddities m_oddities;
    /// As JoinWriter writes them. Not owned.
    IndexBytes m_joins;
    bool m_doSoftBreaksTakeBlank = false;

    /// Sets what the head of the line says.
    void SetHead( const LineHead& a_head );

    /// With MissingColon, which is not stored as an oddity.
    PimContactOddities AllOddities() const
    {
        return m_hasColon ? m_oddities : m_oddities | PimContactOddity::MissingColon;
    }

    /// Of Nested: where the record and the index of the nested card are, and how long they are.
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
    /// \param a_entry a line; its index must outlive the reader.
    explicit JoinReader( const IndexEntry& a_entry );

    /// \return false behind the last one.
    bool Next( LineJoin& a_join );

private:
    const uchar* m_bytes;
    quint32 m_left;
    bool m_doSoftBreaksTakeBlank;
    // The end of the last join, as it was written.
    quint32 m_begin = 0;
};

/// The first byte of an entry: the kind in the lowest three bits. Of a line five flags, of other parts a number.
struct IndexHeader
{
    static constexpr uint s_kKindMask = 0x07;
    static constexpr uint s_kDetailShift = 3;
    static constexpr uint s_kHasGroup = 0x08;
    static constexpr uint s_kHasParameters = 0x10;
    static constexpr uint s_kHasColon = 0x20;
    static constexpr uint s_kHasFolds = 0x40;
    static constexpr uint s_kHasExtras = 0x80;
    // Of the extras of a line.
    static constexpr uint s_kExtraJoins = 0x20;
    static constexpr uint s_kExtraPlaces = 0x40;
};

/// Writes entries.
class IndexWriter
{
public:
    void Clear() { m_buffer.Clear(); }
    void Release() { m_buffer.Release(); }
    void Add( const IndexEntry& a_entry );
    /// Adds a line whose head LineHead::Read() has called plain, and which has no oddity.
    void AddPlain( const LineHead& a_head, quint32 a_length, bool a_hasFolds, IndexBytes a_joins );
    void AddPart( EntryKind a_kind, quint32 a_length ) { AddPart( a_kind, a_length, 0 ); }
    void AddDropped( DropReason a_reason, quint32 a_length );
    void AddBoundary( quint32 a_length, bool a_isMended )
    {
        AddPart( EntryKind::Boundary, a_length, a_isMended ? 1 : 0 );
    }
    /// \param a_index record and index of a nested card of that length.
    void AddNested( quint32 a_length, IndexBytes a_index );
    /// Entries as they are written elsewhere.
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
    /// \param a_index the entries of one card; must outlive the reader. The places of nested indexes count from a_base.
    IndexReader( const uchar* a_base, quint32 a_begin, quint32 a_end ) :
        m_base( a_base ),
        m_place( a_begin ),
        m_end( a_end )
    {
    }

    bool AtEnd() const { return m_place >= m_end; }
    /// The kind of the next entry. Not at the end.
    EntryKind NextKind() const { return static_cast<EntryKind>( m_base[m_place] & IndexHeader::s_kKindMask ); }
    /// Where the next entry begins.
    quint32 Place() const { return m_place; }
    /// Goes on at the beginning of another entry.
    void StepTo( quint32 a_place ) { m_place = a_place; }

    /// Reads the next entry and steps behind it. If a_isBrief is set, the places and the character set of a line are
    /// not read.
    void Next( IndexEntry& a_entry, bool a_isBrief = false );

    /// Reads the next entry, which is a line, and steps behind it.
    void ReadLine( IndexEntry& a_entry );

    /// What Skip() reads of an entry.
    struct Outline
    {
        EntryKind m_kind = EntryKind::Line;
        quint32 m_length = 0;
        /// Of a line; empty if its places are unusual, so that only Next() finds the name.
        ByteRange m_name;
        /// Of a line: there may be line endings in the name.
        bool m_isContinued = false;
    };

    /// Steps behind the next entry and reads no more than this.
    Outline Skip()
    {
        const uchar* place = m_base + m_place;
        const uint header = *place;
        Outline outline;
        outline.m_kind = static_cast<EntryKind>( header & IndexHeader::s_kKindMask );
        if ( outline.m_kind == EntryKind::Line )
        {
            const LineLengths lengths = ReadLengths( place );
            const uint extras = ( header & IndexHeader::s_kHasExtras ) != 0 ? SkipExtras( place ) : 0;
            outline.m_length = lengths.m_line;
            if ( ( extras & IndexHeader::s_kExtraPlaces ) == 0 )
                outline.m_name = { lengths.NameBegin(), lengths.m_name };
            outline.m_isContinued =
                ( header & IndexHeader::s_kHasFolds ) != 0 || ( extras & IndexHeader::s_kExtraJoins ) != 0;
        }
        else
        {
            outline.m_length = ReadNumber( ++place );
            const quint32 nested = outline.m_kind == EntryKind::Nested ? ReadNumber( place ) : 0;
            place += nested;
        }
        m_place = static_cast<quint32>( place - m_base );
        return outline;
    }

    /// What SkipPlain() reads of a line.
    struct PlainLine
    {
        quint32 m_length = 0;
        ByteRange m_name;
        /// They follow the name, and the colon follows them.
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

    /// Steps behind the next entry, which is plain.
    PlainLine SkipPlain()
    {
        const uchar* place = m_base + m_place;
        const bool hasFolds = ( *place & IndexHeader::s_kHasFolds ) != 0;
        const LineLengths lengths = ReadLengths( place );
        m_place = static_cast<quint32>( place - m_base );
        const ByteRange name = { lengths.NameBegin(), lengths.m_name };
        return { lengths.m_line, name, { name.End(), lengths.m_parameters }, hasFolds };
    }

    /// Finds the value of the next entry, which is a line, without reading the rest of the entry.
    /// \param a_line       the bytes of the line and what follows it.
    /// \param[out] a_value the value, with the line ending.
    /// \return false if there is anything unusual about the line, or if it is continued or not in UTF-8.
    bool FindValue( const char* a_line, std::string_view& a_value ) const
    {
        const uchar* place = m_base + m_place;
        if ( ( *place & ( IndexHeader::s_kHasFolds | IndexHeader::s_kHasExtras | IndexHeader::s_kHasColon ) ) !=
             IndexHeader::s_kHasColon )
            return false;
        const LineLengths lengths = ReadLengths( place );
        const quint32 begin = lengths.NameBegin() + lengths.m_name + lengths.m_parameters + 1;
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

        quint32 NameBegin() const { return m_group == 0 ? 0 : m_group + 1; }
    };
    static LineLengths ReadLengths( const uchar*& a_place )
    {
        const uint header = *a_place++;
        LineLengths lengths;
        lengths.m_line = ReadNumber( a_place );
        lengths.m_name = ReadNumber( a_place );
        if ( ( header & IndexHeader::s_kHasGroup ) != 0 )
            lengths.m_group = ReadNumber( a_place );
        if ( ( header & IndexHeader::s_kHasParameters ) != 0 )
            lengths.m_parameters = ReadNumber( a_place );
        return lengths;
    }
    static uint SkipExtras( const uchar*& a_place );

    void ReadBrief( IndexEntry& a_entry );
    void ReadPart( IndexEntry& a_entry );
    void ReadExtras( IndexEntry& a_entry );
    quint32 Number();

    const uchar* m_base;
    quint32 m_place;
    quint32 m_end;
};

} // namespace PimManager::Contacts
