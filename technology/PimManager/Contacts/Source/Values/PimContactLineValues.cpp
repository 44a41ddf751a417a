// The functions of PimContactLine that decode.

#include <PimManager/Contacts/PimContactLine.h>

#include "Cards/LineView.h"
#include "Text/Bytes.h"
#include "Values/BinaryValue.h"
#include "Values/Findings.h"
#include "Values/ParameterReader.h"
#include "Values/PropertyKinds.h"
#include "Values/ValueDecoder.h"

#include <QSet>

namespace PimManager::Contacts
{

namespace
{

std::string_view ViewOf( QLatin1String a_text )
{
    return std::string_view( a_text.data(), static_cast<size_t>( a_text.size() ) );
}

IndexedLine Indexed( const PimContactLine& a_line )
{
    return PimContactCardPrivate::LineView::LineOf( a_line );
}

Delimiters DelimitersOf( const IndexedLine& a_line )
{
    QByteArray buffer;
    return DelimitersOf( PropertyOf( a_line.Name( buffer ) ), a_line.m_card.m_record.Version() );
}

QStringList PartsOf( ValueDecoder& a_decoder, Delimiters a_delimiters )
{
    QStringList parts;
    for ( PartReader reader = a_decoder.Parts( a_delimiters ); reader.Next(); )
        parts.append( StringOf( reader.Text() ) );
    return parts;
}

QStringList PartsOf( const IndexedLine& a_line, Delimiters a_delimiters )
{
    ValueDecoder decoder;
    decoder.Decode( a_line );
    return PartsOf( decoder, a_delimiters );
}

PimContactValueKind KindOf( Delimiters a_delimiters )
{
    switch ( a_delimiters )
    {
    case Delimiters::None:
        return PimContactValueKind::Text;
    case Delimiters::Commas:
        return PimContactValueKind::List;
    default:
        return PimContactValueKind::Components;
    }
}

} // namespace

// Programs ask this of each line several times.
bool PimContactLine::IsNamed( QLatin1String a_name ) const
{
    if ( m_nameLength > 0 )
        return m_nameLength == a_name.size() &&
               IsSameWord( std::string_view( d->Bytes().data() + m_begin + m_nameBegin, m_nameLength ),
                           ViewOf( a_name ) );
    QByteArray buffer;
    return !IsNull() && IsSameWord( Indexed( *this ).Name( buffer ), ViewOf( a_name ) );
}

QStringList PimContactLine::ParameterNames() const
{
    QStringList names;
    QSet<QString> known;
    const QList<QPair<QString, QString>> parameters = NamedParameters();
    for ( const QPair<QString, QString>& parameter : parameters )
    {
        if ( known.contains( parameter.first ) )
            continue;
        known.insert( parameter.first );
        names.append( parameter.first );
    }
    return names;
}

QStringList PimContactLine::Parameter( QLatin1String a_name ) const
{
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    QStringList values;
    for ( ParameterReader reader( decoder.Parameters( line ), line.m_card.m_record.Version() ); reader.Next(); )
    {
        if ( IsSameWord( reader.Name(), ViewOf( a_name ) ) )
            values.append( StringOf( reader.Value() ) );
    }
    return values;
}

QList<QPair<QString, QString>> PimContactLine::NamedParameters() const
{
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    QList<QPair<QString, QString>> parameters;
    for ( ParameterReader reader( decoder.Parameters( line ), line.m_card.m_record.Version() ); reader.Next(); )
        parameters.append( { StringOf( reader.Name() ).toUpper(), StringOf( reader.Value() ) } );
    return parameters;
}

QStringList PimContactLine::Types() const
{
    return Parameter( QLatin1String( s_kTypeParameter.data(), static_cast<int>( s_kTypeParameter.size() ) ) );
}

PimContactValueKind PimContactLine::Kind() const
{
    const IndexedLine line = Indexed( *this );
    return IsBinary( line ) ? PimContactValueKind::Binary : KindOf( DelimitersOf( line ) );
}

QStringList PimContactLine::Values() const
{
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    decoder.Decode( line );
    const Delimiters delimiters = IsBinary( line, decoder ) ? Delimiters::None : DelimitersOf( line );
    return PartsOf( decoder, delimiters == Delimiters::SemicolonsAndCommas ? Delimiters::Semicolons : delimiters );
}

// Most values have nothing to decode.
QString PimContactLine::Text() const
{
    std::string_view value;
    const bool isPlain = !IsNull() && PimContactCardPrivate::LineView::FindPlainValue( *this, value );
    if ( isPlain && value.find( '\\' ) == std::string_view::npos )
        return StringOf( value );
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    decoder.Decode( line );
    return StringOf( decoder.Text() );
}

QStringList PimContactLine::List() const
{
    return PartsOf( Indexed( *this ), Delimiters::Commas );
}

QStringList PimContactLine::Components() const
{
    return PartsOf( Indexed( *this ), Delimiters::Semicolons );
}

QList<QStringList> PimContactLine::ComponentLists() const
{
    const IndexedLine line = Indexed( *this );
    const bool hasLists = DelimitersOf( line ) == Delimiters::SemicolonsAndCommas;
    QList<QStringList> lists = { QStringList() };
    ValueDecoder decoder;
    decoder.Decode( line );
    PartReader reader = decoder.Parts( hasLists ? Delimiters::SemicolonsAndCommas : Delimiters::Semicolons );
    while ( reader.Next() )
    {
        lists.last().append( StringOf( reader.Text() ) );
        if ( reader.Delimiter() == ';' )
            lists.append( QStringList() );
    }
    return lists;
}

PimContactBinary PimContactLine::Binary() const
{
    return BinaryOf( Indexed( *this ) );
}

PimContactDecoding PimContactLine::Decoding() const
{
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    decoder.Decode( line );
    decoder.Text();
    Findings findings = decoder.Found();
    const PimContactBinary binary = IsBinary( line, decoder ) ? DecodedBinary( line ) : PimContactBinary();
    if ( binary.IsDamaged() )
        findings.Add( PimContactDecodingProblem::MalformedBinary, binary.FaultPlace() );
    return PimContactDecodingPrivate::Create( findings );
}

QByteArray PimContactLine::UndeclaredText() const
{
    const IndexedLine line = Indexed( *this );
    ValueDecoder decoder;
    return BytesOf( decoder.Undeclared( line ) );
}

} // namespace PimManager::Contacts
