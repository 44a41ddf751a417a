// The lines of a card without their folds, as a number and in comparisons.

#include "Cards/ContentHasher.h"
#include "Cards/LineView.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

/// Steps over the lines of a card, except those with some names.
class ContentCursor
{
public:
    ContentCursor( const PimContactCard& a_card, const QList<QLatin1String>& a_except ) :
        m_cursor( a_card ),
        m_except( a_except )
    {
    }

    bool Next()
    {
        while ( m_cursor.Next() )
        {
            m_name = m_cursor.Line().Name( m_nameBuffer );
            if ( !IsException() )
                return true;
        }
        return false;
    }

    const IndexedLine& Line() const { return m_cursor.Line(); }
    std::string_view Name() const { return m_name; }
    std::string_view Group() { return Line().Group( m_groupBuffer ); }
    std::string_view Parameters() { return Line().Parameters( m_parameterBuffer ); }

    std::string_view Value()
    {
        const IndexedLine& line = Line();
        const ByteRange range = line.ValueRange();
        if ( !line.IsContinued() )
            return range.In( line.m_text );
        m_valueBuffer.resize( 0 );
        AppendUnfolded( line.Pieces( range ), range.m_length, m_valueBuffer );
        return ViewOf( m_valueBuffer );
    }

    /// The bytes of the card in the line. Empty if there is none.
    std::string_view Nested() const
    {
        CardView nested;
        if ( !m_cursor.FindNested( nested ) )
            return std::string_view();
        return nested.m_bytes.substr( nested.m_record.m_begin, nested.m_record.m_length );
    }

private:
    bool IsException() const
    {
        return std::any_of(
            m_except.begin(), m_except.end(),
            [this]( QLatin1String a_name )
            { return IsSameWord( m_name, std::string_view( a_name.data(), static_cast<size_t>( a_name.size() ) ) ); } );
    }

    LineCursor m_cursor;
    const QList<QLatin1String>& m_except;
    std::string_view m_name;
    QByteArray m_nameBuffer;
    QByteArray m_groupBuffer;
    QByteArray m_parameterBuffer;
    QByteArray m_valueBuffer;
};

// The same for each order of the parameters.
quint64 HashOfParameters( std::string_view a_parameters, ContentHasher& a_hash )
{
    quint64 sum = 0;
    ParameterSplitter splitter( a_parameters );
    for ( std::string_view parameter; splitter.Next( parameter ); )
    {
        a_hash.Clear();
        a_hash.AddUpper( parameter );
        sum += a_hash.Result();
    }
    return sum;
}

quint64 HashOfLine( ContentCursor& a_cursor, ContentHasher& a_hash )
{
    const std::string_view parameters = a_cursor.Parameters();
    const quint64 ofParameters = parameters.empty() ? 0 : HashOfParameters( parameters, a_hash );
    a_hash.Clear();
    a_hash.Add( ofParameters );
    a_hash.AddUpper( a_cursor.Name() );
    a_hash.Add( a_cursor.Value() );
    a_hash.Add( a_cursor.Nested() );
    return a_hash.Result();
}

bool IsReadAlike( const CardView& a_first, const CardView& a_second )
{
    return a_first.m_record.m_version == a_second.m_record.m_version &&
           a_first.m_defaultCharset == a_second.m_defaultCharset && a_first.Charset() == a_second.Charset();
}

bool IsSameLine( ContentCursor& a_first, ContentCursor& a_second )
{
    const IndexEntry& first = a_first.Line().m_entry;
    const IndexEntry& second = a_second.Line().m_entry;
    return first.m_encoding == second.m_encoding && first.m_charset == second.m_charset &&
           first.m_hasColon == second.m_hasColon && IsSameWord( a_first.Name(), a_second.Name() ) &&
           IsSameWord( a_first.Group(), a_second.Group() ) && a_first.Parameters() == a_second.Parameters() &&
           a_first.Value() == a_second.Value() && a_first.Nested() == a_second.Nested();
}

} // namespace

quint64 PimContactCard::ContentHash( quint64 a_seed, const QList<QLatin1String>& a_except ) const
{
    quint64 sum = 0;
    ContentHasher hash( a_seed );
    for ( ContentCursor cursor( *this, a_except ); cursor.Next(); )
        sum += HashOfLine( cursor, hash );
    return sum;
}

bool PimContactCard::HasSameLines( const PimContactCard& a_other, const QList<QLatin1String>& a_except ) const
{
    if ( IsNull() || a_other.IsNull() )
        return IsNull() == a_other.IsNull();
    using View = PimContactCardPrivate::LineView;
    if ( !IsReadAlike( View::CardOf( *this ), View::CardOf( a_other ) ) )
        return false;
    ContentCursor first( *this, a_except );
    ContentCursor second( a_other, a_except );
    while ( first.Next() )
    {
        if ( !second.Next() || !IsSameLine( first, second ) )
            return false;
    }
    return !second.Next();
}

} // namespace PimManager::Contacts
