/// \file
/// Unfolds content lines.

#pragma once

#include "Lines/LineIndex.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Iterates over the pieces of a content line, which are the texts between the breaks of its physical lines. This is
/// the only class that undoes folds and soft line breaks.
///
/// The index describes how breaks are undone. A break that is not in the index is a plain fold: the line ending is
/// removed, and one blank or tab after it unless the fold style of the card keeps it.
class LinePieces
{
public:
    /// \param a_line  the bytes of the line without its last line ending; must outlive the pieces.
    /// \param a_entry its entry in the index, of which only the joins are read.
    /// \param a_range the part of the line to iterate over. If it begins inside a join, the first piece begins after
    ///                the join.
    LinePieces( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style, ByteRange a_range );

    /// \return false after the last piece.
    bool Next();

    std::string_view Text() const { return m_text; }
    /// The position of the piece in the line.
    quint32 Begin() const { return static_cast<quint32>( m_text.data() - m_line.data() ); }
    /// The number of line feeds before the piece.
    int LineFeeds() const { return m_lineFeeds; }
    /// How the break before the piece is undone; not for the first piece.
    PimContactJoin Join() const { return m_join; }

    /// \return the position after a plain fold: the line ending, and a blank if the style removes it.
    static const char* AfterFold( const char* a_break, const char* a_lineEnd, PimContactFoldStyle a_style );

private:
    quint32 FindBreak() const;
    void StepOver( quint32 a_break );
    void ReadJoin();

    std::string_view m_line;
    JoinReader m_joins;
    PimContactFoldStyle m_style;
    ByteRange m_range;
    LineJoin m_next;
    bool m_hasNext = false;
    // The position of the next piece.
    quint32 m_place = 0;
    bool m_isAtEnd = false;
    int m_lineFeedsBefore = 0;
    PimContactJoin m_joinBefore = PimContactJoin::Fold;

    std::string_view m_text;
    int m_lineFeeds = 0;
    PimContactJoin m_join = PimContactJoin::Fold;
};

/// \param a_entry its joins, and m_hasFolds, are read.
/// \return a part of a line without its breaks, see LinePieces.
QByteArray Unfolded( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style,
                     ByteRange a_range );

/// Appends the same to a text.
void AppendUnfolded( std::string_view a_line, const IndexEntry& a_entry, PimContactFoldStyle a_style, ByteRange a_range,
                     QByteArray& a_out );

/// \return the line without its line ending.
inline std::string_view WithoutLineEnd( std::string_view a_line )
{
    size_t size = a_line.size();
    const auto endsIn = [&]( char a_byte ) { return size > 0 && a_line[size - 1] == a_byte; };
    if ( endsIn( '\n' ) )
    {
        --size;
        for ( int i = 0; i < 2; ++i )
            size -= endsIn( '\r' ) ? 1 : 0;
    }
    else if ( endsIn( '\r' ) )
        --size;
    return std::string_view( a_line.data(), size );
}

} // namespace PimManager::Contacts
