#include <PimManager/Contacts/PimContactLine.h>

#include "Cards/CardRecord.h"
#include "Lines/LinePieces.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactCard.h>

namespace PimManager::Contacts
{

/// A line of a card, decoded.
class PimContactCardPrivate::LineView
{
public:
    explicit LineView( const PimContactLine& a_line ) :
        m_line( a_line )
    {
        if ( a_line.IsNull() )
            return;
        m_record = CardRecord::At( a_line.d->Index() + a_line.m_record );
        Reader().Next( m_entry );
        m_bytes = a_line.d->Bytes().substr( a_line.m_begin, m_entry.m_length );
        m_text = WithoutLineEnd( m_bytes );
    }

    const IndexEntry& Entry() const { return m_entry; }
    const CardRecord& Record() const { return m_record; }
    std::string_view Bytes() const { return m_bytes; }
    std::string_view Text() const { return m_text; }

    QByteArray Part( ByteRange a_range ) const { return Unfolded( m_text, m_entry, m_record.FoldStyle(), a_range ); }

    ByteRange ValueRange() const
    {
        const auto length = static_cast<quint32>( m_text.size() );
        const quint32 begin = std::min( m_entry.m_valueBegin, length );
        return { begin, length - begin };
    }

    // The entry of the card that follows the line; blank lines may be in between.
    bool FindNested( IndexEntry& a_nested ) const
    {
        IndexEntry skipped;
        IndexReader reader = Reader();
        reader.Next( skipped, true );
        do
        {
            if ( reader.AtEnd() )
                return false;
            reader.Next( a_nested, true );
        } while ( a_nested.m_kind == EntryKind::Blank );
        return a_nested.m_kind == EntryKind::Nested;
    }

private:
    IndexReader Reader() const
    {
        IndexReader reader = EntriesOf( m_line.d->Index(), m_line.m_record );
        reader.StepTo( m_line.m_entry );
        return reader;
    }

    const PimContactLine& m_line;
    CardRecord m_record;
    IndexEntry m_entry;
    std::string_view m_bytes;
    std::string_view m_text;
};

// Goes to the first property at or behind a place.
void PimContactCardPrivate::FindLine( PimContactLine& a_line )
{
    IndexReader reader = EntriesOf( a_line.d->Index(), a_line.m_record );
    reader.StepTo( a_line.m_entry );
    IndexEntry entry;
    while ( !reader.AtEnd() )
    {
        a_line.m_entry = reader.Place();
        reader.Next( entry, true );
        if ( entry.m_kind == EntryKind::Line )
            return;
        a_line.m_begin += entry.m_length;
    }
    a_line = PimContactLine();
}

PimContactLine PimContactCardPrivate::FirstLineOf( PimContactCardPrivate* a_private, quint32 a_record )
{
    PimContactLine line;
    if ( a_private == nullptr )
        return line;
    line.d = a_private;
    line.m_record = a_record;
    line.m_entry = EntriesOf( a_private->Index(), a_record ).Place();
    line.m_begin = CardRecord::At( a_private->Index() + a_record ).m_begin;
    FindLine( line );
    return line;
}

void PimContactCardPrivate::StepOver( PimContactLine& a_line )
{
    IndexReader reader = EntriesOf( a_line.d->Index(), a_line.m_record );
    reader.StepTo( a_line.m_entry );
    IndexEntry entry;
    reader.Next( entry, true );
    a_line.m_entry = reader.Place();
    a_line.m_begin += entry.m_length;
    FindLine( a_line );
}

bool PimContactCardPrivate::AreSamePlace( const PimContactLine& a_first, const PimContactLine& a_second )
{
    return a_first.d == a_second.d && a_first.m_entry == a_second.m_entry;
}

PimContactLine::PimContactLine() = default;
PimContactLine::PimContactLine( const PimContactLine& a_other ) = default;
PimContactLine::PimContactLine( PimContactLine&& a_other ) noexcept = default;
PimContactLine& PimContactLine::operator=( const PimContactLine& a_other ) = default;
PimContactLine& PimContactLine::operator=( PimContactLine&& a_other ) noexcept = default;
PimContactLine::~PimContactLine() = default;

bool PimContactLine::IsNull() const
{
    return !d;
}

QByteArray PimContactLine::Bytes() const
{
    const PimContactCardPrivate::LineView view( *this );
    const PimContactCard nested = NestedCard();
    if ( nested.IsNull() )
        return BytesOf( view.Bytes() );
    const CardRecord record = PimContactCardPrivate::RecordOf( nested );
    return BytesOf( d->Bytes().substr( m_begin, record.m_begin + record.m_length - m_begin ) );
}

QByteArray PimContactLine::Group() const
{
    const PimContactCardPrivate::LineView view( *this );
    return view.Part( view.Entry().m_group );
}

QByteArray PimContactLine::Name() const
{
    const PimContactCardPrivate::LineView view( *this );
    return view.Part( view.Entry().m_name );
}

QList<QByteArray> PimContactLine::Parameters() const
{
    const PimContactCardPrivate::LineView view( *this );
    const QByteArray text = view.Part( view.Entry().m_parameters );
    QList<QByteArray> parameters;
    ParameterSplitter splitter( ViewOf( text ) );
    for ( std::string_view parameter; splitter.Next( parameter ); )
        parameters.append( BytesOf( parameter ) );
    return parameters;
}

QByteArray PimContactLine::Value() const
{
    const PimContactCardPrivate::LineView view( *this );
    return view.Part( view.ValueRange() );
}

PimContactEncoding PimContactLine::Encoding() const
{
    return PimContactCardPrivate::LineView( *this ).Entry().m_encoding;
}

QByteArray PimContactLine::Charset() const
{
    const PimContactCardPrivate::LineView view( *this );
    switch ( view.Entry().m_charset )
    {
    case LineCharset::Default:
        return d->m_origin.m_defaultCharset;
    case LineCharset::Card:
        return BytesOf( CharsetOf( d->Index(), m_record ) );
    case LineCharset::Line:
    {
        const QByteArray text = view.Part( { 0, static_cast<quint32>( view.Text().size() ) } );
        return BytesOf( LineHead::Of( ViewOf( text ) ).m_charset.In( ViewOf( text ) ) );
    }
    case LineCharset::Iso2022Jp:
        return QByteArrayLiteral( "ISO-2022-JP" );
    default:
        return QByteArrayLiteral( "UTF-8" );
    }
}

PimContactOddities PimContactLine::Oddities() const
{
    if ( IsNull() )
        return {};
    const PimContactCardPrivate::LineView view( *this );
    PimContactOddities oddities = view.Entry().m_oddities;
    oddities.setFlag( PimContactOddity::MissingColon, !view.Entry().m_hasColon );
    return oddities;
}

QList<PimContactJoin> PimContactLine::Joins() const
{
    const PimContactCardPrivate::LineView view( *this );
    QList<PimContactJoin> joins;
    LinePieces pieces( view.Text(), view.Entry(), view.Record().FoldStyle(),
                       { 0, static_cast<quint32>( view.Text().size() ) } );
    pieces.Next();
    while ( pieces.Next() )
        joins.append( pieces.Join() );
    return joins;
}

qint64 PimContactLine::OffsetInCard() const
{
    return m_begin - PimContactCardPrivate::LineView( *this ).Record().m_begin;
}

PimContactCard PimContactLine::NestedCard() const
{
    IndexEntry nested;
    if ( IsNull() || !PimContactCardPrivate::LineView( *this ).FindNested( nested ) )
        return PimContactCard();
    return PimContactCardPrivate::CardAt( d.data(), nested.m_indexBegin );
}

PimContactCard PimContactCardPrivate::CardAt( PimContactCardPrivate* a_private, quint32 a_record )
{
    return PimContactCard( a_private, a_record );
}

bool PimContactLine::operator==( const PimContactLine& a_other ) const
{
    return Bytes() == a_other.Bytes() && Group() == a_other.Group() && Name() == a_other.Name() &&
           Parameters() == a_other.Parameters() && Value() == a_other.Value() && Encoding() == a_other.Encoding() &&
           Charset() == a_other.Charset() && Oddities() == a_other.Oddities() && Joins() == a_other.Joins() &&
           NestedCard() == a_other.NestedCard();
}

bool PimContactLine::operator!=( const PimContactLine& a_other ) const
{
    return !( *this == a_other );
}

} // namespace PimManager::Contacts
