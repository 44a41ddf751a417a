#include <PimManager/Contacts/PimContactLine.h>

#include "Cards/LineView.h"
#include "Lines/NamedCharset.h"
#include "Text/Bytes.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <algorithm>
#include <limits>

namespace PimManager::Contacts
{

namespace
{

IndexedLine Indexed( const PimContactLine& a_line )
{
    return PimContactCardPrivate::LineView::LineOf( a_line );
}

QByteArray PartOf( const IndexedLine& a_line, ByteRange a_range )
{
    return Unfolded( a_line.m_text, a_line.m_entry, a_line.m_card.m_record.FoldStyle(), a_range );
}

ByteRange AllOf( const IndexedLine& a_line )
{
    return { 0, static_cast<quint32>( a_line.m_text.size() ) };
}

} // namespace

// Stores the position of the name, unless that is unusual.
void PimContactCardPrivate::SetName( PimContactLine& a_line, const IndexReader::Outline& a_outline )
{
    const ByteRange name = a_outline.m_name;
    const auto bytes = std::string_view( a_line.d->Bytes().data() + a_line.m_begin + name.m_begin, name.m_length );
    const bool isBroken = a_outline.m_isContinued && std::any_of( bytes.begin(), bytes.end(), IsLineEndByte );
    const bool doesFit = name.End() <= std::numeric_limits<quint16>::max();
    a_line.m_nameBegin = static_cast<quint16>( doesFit ? name.m_begin : 0 );
    a_line.m_nameLength = static_cast<quint16>( doesFit && !isBroken ? name.m_length : 0 );
}

void PimContactCardPrivate::Step( PimContactCard::const_iterator& a_iterator )
{
    PimContactLine& line = a_iterator.m_line;
    IndexReader reader( line.d->Index(), a_iterator.m_nextEntry, a_iterator.m_indexEnd );
    while ( !reader.AtEnd() )
    {
        line.m_entry = reader.Place();
        line.m_begin = a_iterator.m_nextBegin;
        const IndexReader::Outline outline = reader.Skip();
        a_iterator.m_nextBegin += outline.m_length;
        a_iterator.m_nextEntry = reader.Place();
        if ( outline.m_kind == EntryKind::Line )
        {
            SetName( line, outline );
            return;
        }
    }
    a_iterator = PimContactCard::const_iterator();
}

PimContactCard::const_iterator PimContactCardPrivate::Begin( PimContactCardPrivate* a_private, quint32 a_record )
{
    PimContactCard::const_iterator iterator;
    if ( a_private == nullptr )
        return iterator;
    iterator.m_line.d = a_private;
    iterator.m_line.m_record = a_record;
    const CardRecord record = CardRecord::At( a_private->Index() + a_record );
    iterator.m_nextEntry = EntriesOf( a_private->Index(), a_record ).Place();
    iterator.m_nextBegin = record.m_begin;
    iterator.m_indexEnd = iterator.m_nextEntry + record.m_indexLength;
    Step( iterator );
    return iterator;
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
    const PimContactCard nested = NestedCard();
    if ( nested.IsNull() )
        return BytesOf( Indexed( *this ).m_bytes );
    const CardRecord record = PimContactCardPrivate::RecordOf( nested );
    return BytesOf( d->Bytes().substr( m_begin, record.m_begin + record.m_length - m_begin ) );
}

QByteArray PimContactLine::Group() const
{
    const IndexedLine line = Indexed( *this );
    return PartOf( line, line.m_entry.m_group );
}

QByteArray PimContactLine::Name() const
{
    const IndexedLine line = Indexed( *this );
    return PartOf( line, line.m_entry.m_name );
}

QList<QByteArray> PimContactLine::Parameters() const
{
    const IndexedLine line = Indexed( *this );
    const QByteArray text = PartOf( line, line.m_entry.m_parameters );
    QList<QByteArray> parameters;
    ParameterSplitter splitter( ViewOf( text ) );
    for ( std::string_view parameter; splitter.Next( parameter ); )
    {
        if ( !parameter.empty() )
            parameters.append( BytesOf( parameter ) );
    }
    return parameters;
}

QByteArray PimContactLine::Value() const
{
    const IndexedLine line = Indexed( *this );
    return PartOf( line, line.ValueRange() );
}

PimContactEncoding PimContactLine::Encoding() const
{
    return Indexed( *this ).m_entry.m_encoding;
}

QByteArray PimContactLine::Charset() const
{
    const IndexedLine line = Indexed( *this );
    switch ( line.m_entry.m_charset )
    {
    case LineCharset::Default:
        return d->m_origin.m_defaultCharset;
    case LineCharset::Card:
        return BytesOf( line.m_card.Charset() );
    case LineCharset::Line:
    {
        const QByteArray text = PartOf( line, AllOf( line ) );
        return BytesOf( NamedCharset( LineHead::Of( ViewOf( text ) ), ViewOf( text ) ) );
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
    const IndexedLine line = Indexed( *this );
    PimContactOddities oddities = line.m_entry.m_oddities;
    oddities.setFlag( PimContactOddity::MissingColon, !line.m_entry.m_hasColon );
    return oddities;
}

QList<PimContactJoin> PimContactLine::Joins() const
{
    const IndexedLine line = Indexed( *this );
    QList<PimContactJoin> joins;
    LinePieces pieces = line.Pieces( AllOf( line ) );
    pieces.Next();
    while ( pieces.Next() )
        joins.append( pieces.Join() );
    return joins;
}

qint64 PimContactLine::OffsetInCard() const
{
    return m_begin - Indexed( *this ).m_card.m_record.m_begin;
}

PimContactCard PimContactLine::NestedCard() const
{
    IndexEntry nested;
    if ( !PimContactCardPrivate::LineView::FindNested( *this, nested ) )
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
