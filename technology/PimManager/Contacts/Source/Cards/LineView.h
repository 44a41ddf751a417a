/// \file
/// A line of a card with its entry in the index, for the code that reads it.

#pragma once

#include "Cards/CardRecord.h"
#include "Lines/LinePieces.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <algorithm>
#include <string_view>

namespace PimManager::Contacts
{

/// The data that all lines of a card share. Refers to the memory of the card.
struct CardView
{
    CardRecord m_record;
    const uchar* m_index = nullptr;
    quint32 m_place = 0;
    /// The bytes of the outermost card.
    std::string_view m_bytes;
    std::string_view m_defaultCharset;

    /// The character set of lines that name none.
    std::string_view Charset() const { return CharsetOf( m_index, m_place ); }
};

/// The position of a line in its card: its entry in the index, and its first byte.
struct LinePlace
{
    quint32 m_entry = 0;
    quint32 m_begin = 0;
};

/// A line, its entry in the index, and its card.
struct IndexedLine
{
    CardView m_card;
    IndexEntry m_entry;
    /// The line with all its line endings, and without the last one.
    std::string_view m_bytes;
    std::string_view m_text;

    /// \return true if the line has breaks that must be undone, see LinePieces.
    bool IsContinued() const { return m_entry.m_hasFolds || m_entry.m_joins.m_size > 0; }

    ByteRange ValueRange() const
    {
        const auto length = static_cast<quint32>( m_text.size() );
        const quint32 begin = std::min( m_entry.m_valueBegin, length );
        return { begin, length - begin };
    }

    /// \return true if the value has nothing but blanks and line endings.
    bool IsBlankValue() const
    {
        return m_text.find_first_not_of( " \t\r\n", ValueRange().m_begin ) == std::string_view::npos;
    }

    LinePieces Pieces( ByteRange a_range ) const
    {
        return LinePieces( m_text, m_entry, m_card.m_record.FoldStyle(), a_range );
    }

    /// Appends a part of the line without its breaks.
    void AppendUnfolded( ByteRange a_range, QByteArray& a_out ) const
    {
        PimManager::Contacts::AppendUnfolded( m_text, m_entry, m_card.m_record.FoldStyle(), a_range, a_out );
    }

    /// \return the name, without breaks. Refers to the card, or to a_buffer if a break is inside.
    std::string_view Name( QByteArray& a_buffer ) const { return HeadPart( m_entry.m_name, a_buffer ); }
    /// The same for the group.
    std::string_view Group( QByteArray& a_buffer ) const { return HeadPart( m_entry.m_group, a_buffer ); }
    /// The same for the parameters.
    std::string_view Parameters( QByteArray& a_buffer ) const { return HeadPart( m_entry.m_parameters, a_buffer ); }

private:
    std::string_view HeadPart( ByteRange a_range, QByteArray& a_buffer ) const
    {
        const std::string_view part( m_text.data() + a_range.m_begin, a_range.m_length );
        const bool mayBeBroken = !part.empty() && m_entry.MayHaveBreakBefore( a_range.End() );
        return mayBeBroken ? Unfolded( part, a_range, a_buffer ) : part;
    }
    std::string_view Unfolded( std::string_view a_part, ByteRange a_range, QByteArray& a_buffer ) const;
};

/// Gives access to the data of cards and lines.
class PimContactCardPrivate::LineView
{
public:
    static CardView CardOf( const PimContactCard& a_card );
    /// \param a_card the view of this card or of a card nested in it.
    static PimContactCard CardAt( const PimContactCard& a_outermost, const CardView& a_card );
    /// \param a_line may be null; then the result is empty.
    static IndexedLine LineOf( const PimContactLine& a_line );
    /// Reads the entry of a line of a card.
    /// \param a_line its m_card is set.
    static void Read( LinePlace a_place, IndexedLine& a_line );
    /// \return where a line is in its card.
    static LinePlace PlaceOf( const PimContactLine& a_line ) { return { a_line.m_entry, a_line.m_begin }; }
    static PimContactLine LineAt( const PimContactCard& a_card, LinePlace a_place )
    {
        PimContactLine line;
        SetLine( a_card, a_place, line );
        return line;
    }
    /// Sets a line to a line of a card.
    static void SetLine( const PimContactCard& a_card, LinePlace a_place, PimContactLine& a_line )
    {
        a_line.d = a_card.d;
        a_line.m_record = a_card.m_record;
        a_line.m_entry = a_place.m_entry;
        a_line.m_begin = a_place.m_begin;
        a_line.m_nameLength = 0;
    }
    /// \return true for a line of this card.
    static bool IsOf( const PimContactLine& a_line, const CardView& a_card )
    {
        return a_line.d->Index() == a_card.m_index && a_line.m_record == a_card.m_place;
    }
    /// \param a_card is not null.
    static const Origin& OriginOf( const PimContactCard& a_card ) { return a_card.d->m_origin; }
    /// Finds a value that is UTF-8 text as written, except for its escapes.
    /// \param a_line is not null.
    /// \return false for any other value.
    static bool FindPlainValue( const PimContactLine& a_line, std::string_view& a_value );
    /// Finds the entry of the nested card after the line. Blank lines may be in between.
    static bool FindNested( const PimContactLine& a_line, IndexEntry& a_nested );

private:
    static CardView ViewOf( const PimContactCardPrivate* a_private, quint32 a_record );
};

/// Iterates over the lines of a card and reads the entry of each line once.
class LineCursor
{
public:
    /// \param a_card must outlive the cursor.
    explicit LineCursor( const PimContactCard& a_card );
    explicit LineCursor( const CardView& a_card );

    /// \return false after the last line.
    bool Next();
    /// Steps to the next part of any kind. Line() is then that part.
    /// \return false after the last part.
    bool NextPart();
    /// Moves to the position before a part of the card. NextPart() then steps to that part.
    void StepTo( LinePlace a_place )
    {
        m_reader.StepTo( a_place.m_entry );
        m_begin = a_place.m_begin;
    }

    /// \return true if the line contains a card, as AGENT does.
    bool FindNested( CardView& a_nested ) const
    {
        return !m_reader.AtEnd() && m_reader.NextKind() != EntryKind::Line && FindAnyNested( a_nested );
    }

    const IndexedLine& Line() const { return m_line; }
    /// The name of the line. Valid until the next call of Next().
    std::string_view Name();

private:
    bool FindAnyNested( CardView& a_nested ) const;

    IndexedLine m_line;
    IndexReader m_reader;
    // The position of the next entry in the bytes.
    quint32 m_begin = 0;
    QByteArray m_name;
};

} // namespace PimManager::Contacts
