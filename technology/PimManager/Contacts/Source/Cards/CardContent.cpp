// The lines of a card without their folds, as a number and in comparisons.

#include "Cards/ContentHasher.h"
#include "Cards/LineView.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kShortValue = 512;
// A break at the end of a value may have more line feeds than bytes.
constexpr size_t s_kMostLineFeeds = 3;

std::string_view ViewOf( QLatin1String a_name )
{
    return std::string_view( a_name.data(), static_cast<size_t>( a_name.size() ) );
}

bool IsOneOf( std::string_view a_name, const QList<QLatin1String>& a_names )
{
    return std::any_of( a_names.begin(), a_names.end(),
                        [a_name]( QLatin1String a_other ) { return IsSameWord( a_name, ViewOf( a_other ) ); } );
}

/// A plain line without folds: a property in UTF-8 that needs no decisions. Most lines are.
struct Piece
{
    /// The line with its line ending and all bytes after it.
    const char* m_begin;
    IndexReader::PlainLine m_line;

    bool operator==( const Piece& a_other ) const
    {
        const IndexReader::PlainLine& other = a_other.m_line;
        return m_line.m_length == other.m_length && m_line.m_name.m_begin == other.m_name.m_begin &&
               m_line.m_name.m_length == other.m_name.m_length &&
               m_line.m_parameters.m_length == other.m_parameters.m_length &&
               std::memcmp( m_begin, a_other.m_begin, m_line.m_length ) == 0;
    }
    std::string_view Part( ByteRange a_range ) const { return { m_begin + a_range.m_begin, a_range.m_length }; }
    std::string_view Name() const { return Part( m_line.m_name ); }
    std::string_view Value() const
    {
        const quint32 begin = m_line.m_parameters.End() + 1;
        return WithoutLineEnd( Part( { begin, m_line.m_length - begin } ) );
    }
};

/// The position of a reader in a card.
class ContentPlace
{
public:
    explicit ContentPlace( const CardView& a_card ) :
        m_reader( EntriesOf( a_card.m_index, a_card.m_place ) ),
        m_bytes( a_card.m_bytes.data() + a_card.m_record.m_begin )
    {
    }

    /// Reads a piece and steps after it.
    /// \return false if something else follows. Then the place is unchanged, except that it is after BEGIN and END.
    bool Next( Piece& a_piece )
    {
        while ( Is( EntryKind::Boundary ) )
            Skip();
        const quint32 before = m_reader.Place();
        if ( m_reader.AtEnd() || !m_reader.IsPlain() )
            return false;
        a_piece.m_begin = m_bytes;
        a_piece.m_line = m_reader.SkipPlain();
        if ( a_piece.m_line.m_hasFolds || Is( EntryKind::Nested ) || Is( EntryKind::Blank ) )
        {
            m_reader.StepTo( before );
            return false;
        }
        m_bytes += a_piece.m_line.m_length;
        return true;
    }

    /// Reads a line of any kind and steps after it, and after blank lines.
    /// \return false after the last one.
    bool NextLine( IndexedLine& a_line )
    {
        while ( !m_reader.AtEnd() && !Is( EntryKind::Line ) )
            Skip();
        if ( m_reader.AtEnd() )
            return false;
        m_reader.ReadLine( a_line.m_entry );
        a_line.m_bytes = std::string_view( m_bytes, a_line.m_entry.m_length );
        a_line.m_text = WithoutLineEnd( a_line.m_bytes );
        m_bytes += a_line.m_entry.m_length;
        while ( Is( EntryKind::Blank ) )
            Skip();
        return true;
    }

    /// The bytes of the card that follows. Empty if something else does.
    std::string_view Nested() const
    {
        IndexReader reader = m_reader;
        return Is( EntryKind::Nested ) ? std::string_view( m_bytes, reader.Skip().m_length ) : std::string_view();
    }

private:
    bool Is( EntryKind a_kind ) const { return !m_reader.AtEnd() && m_reader.NextKind() == a_kind; }
    void Skip() { m_bytes += m_reader.Skip().m_length; }

    IndexReader m_reader;
    const char* m_bytes;
};

/// Steps over the lines of a card, except those with some names.
class ContentCursor
{
public:
    ContentCursor( const CardView& a_card, const QList<QLatin1String>& a_except ) :
        m_place( a_card ),
        m_except( a_except )
    {
        m_line.m_card = a_card;
    }

    /// Where the next line is looked for.
    ContentPlace& Place() { return m_place; }
    bool IsException( std::string_view a_name ) const { return !m_except.isEmpty() && IsOneOf( a_name, m_except ); }

    bool Next()
    {
        while ( m_place.NextLine( m_line ) )
        {
            if ( !IsException( Name() ) )
                return true;
        }
        return false;
    }

    const IndexEntry& Entry() const { return m_line.m_entry; }
    std::string_view Name() { return m_line.Name( m_nameBuffer ); }
    std::string_view Group() { return m_line.Group( m_groupBuffer ); }
    std::string_view Parameters() { return m_line.Parameters( m_parameterBuffer ); }
    std::string_view Nested() const { return m_place.Nested(); }

    std::string_view Value()
    {
        const ByteRange range = m_line.ValueRange();
        if ( !m_line.IsContinued() )
            return range.In( m_line.m_text );
        if ( range.m_length + s_kMostLineFeeds > m_shortValue.size() )
        {
            m_longValue = Unfolded( m_line.m_text, m_line.m_entry, m_line.m_card.m_record.FoldStyle(), range );
            return Contacts::ViewOf( m_longValue );
        }
        char* end = m_shortValue.data();
        for ( LinePieces pieces = m_line.Pieces( range ); pieces.Next(); )
        {
            end = std::fill_n( end, pieces.LineFeeds(), '\n' );
            end = std::copy( pieces.Text().begin(), pieces.Text().end(), end );
        }
        return std::string_view( m_shortValue.data(), static_cast<size_t>( end - m_shortValue.data() ) );
    }

private:
    ContentPlace m_place;
    const QList<QLatin1String>& m_except;
    IndexedLine m_line;
    QByteArray m_nameBuffer;
    QByteArray m_groupBuffer;
    QByteArray m_parameterBuffer;
    // The last value without folds. The memory of most values need not be allocated.
    std::array<char, s_kShortValue> m_shortValue;
    QByteArray m_longValue;
};

quint64 HashOfLine( std::string_view a_name, std::string_view a_value, std::string_view a_nested,
                    ContentHasher& a_hasher )
{
    if ( a_value.empty() && a_nested.empty() )
        return 0;
    a_hasher.Clear();
    a_hasher.AddUpper( a_name );
    a_hasher.Add( a_value );
    if ( !a_nested.empty() )
        a_hasher.Add( a_nested );
    return a_hasher.Result();
}

// The place is copied, so that it can be in registers.
quint64 HashOfPieces( ContentCursor& a_cursor, ContentHasher& a_hasher )
{
    quint64 sum = 0;
    ContentPlace place = a_cursor.Place();
    for ( Piece piece; place.Next( piece ); )
    {
        if ( !a_cursor.IsException( piece.Name() ) )
            sum += HashOfLine( piece.Name(), piece.Value(), std::string_view(), a_hasher );
    }
    a_cursor.Place() = place;
    return sum;
}

bool IsReadAlike( const CardView& a_first, const CardView& a_second )
{
    return a_first.m_record.m_version == a_second.m_record.m_version &&
           a_first.m_defaultCharset == a_second.m_defaultCharset && a_first.Charset() == a_second.Charset();
}

// Equal pieces are both exceptions, or neither of them.
void SkipSamePieces( ContentCursor& a_first, ContentCursor& a_second )
{
    ContentPlace first = a_first.Place();
    ContentPlace second = a_second.Place();
    Piece firstPiece;
    Piece secondPiece;
    do
    {
        a_first.Place() = first;
        a_second.Place() = second;
    } while ( first.Next( firstPiece ) && second.Next( secondPiece ) && firstPiece == secondPiece );
}

bool IsSameLine( ContentCursor& a_first, ContentCursor& a_second )
{
    const IndexEntry& first = a_first.Entry();
    const IndexEntry& second = a_second.Entry();
    return first.m_encoding == second.m_encoding && first.m_charset == second.m_charset &&
           first.m_hasColon == second.m_hasColon && IsSameWord( a_first.Name(), a_second.Name() ) &&
           IsSameWord( a_first.Group(), a_second.Group() ) && a_first.Parameters() == a_second.Parameters() &&
           a_first.Value() == a_second.Value() && a_first.Nested() == a_second.Nested();
}

using View = PimContactCardPrivate::LineView;

} // namespace

quint64 PimContactCard::ContentHash( quint64 a_seed, const QList<QLatin1String>& a_except ) const
{
    if ( IsNull() )
        return 0;
    ContentHasher hasher( a_seed );
    ContentCursor cursor( View::CardOf( *this ), a_except );
    quint64 sum = HashOfPieces( cursor, hasher );
    while ( cursor.Next() )
    {
        sum += HashOfLine( cursor.Name(), cursor.Value(), cursor.Nested(), hasher );
        sum += HashOfPieces( cursor, hasher );
    }
    return sum;
}

bool PimContactCard::HasSameLines( const PimContactCard& a_other, const QList<QLatin1String>& a_except ) const
{
    if ( IsNull() || a_other.IsNull() )
        return IsNull() == a_other.IsNull();
    const CardView firstCard = View::CardOf( *this );
    const CardView secondCard = View::CardOf( a_other );
    if ( !IsReadAlike( firstCard, secondCard ) )
        return false;
    ContentCursor first( firstCard, a_except );
    ContentCursor second( secondCard, a_except );
    SkipSamePieces( first, second );
    while ( first.Next() )
    {
        if ( !second.Next() || !IsSameLine( first, second ) )
            return false;
        SkipSamePieces( first, second );
    }
    return !second.Next();
}

} // namespace PimManager::Contacts
