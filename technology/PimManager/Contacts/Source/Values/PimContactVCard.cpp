#include <PimManager/Contacts/PimContactVCard.h>

#include "Cards/LineView.h"
#include "PimVCardParser.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Values/ComponentGrammar.h"
#include "Values/ParameterReader.h"
#include "Values/ValueDecoder.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <utility>

namespace PimManager::Contacts
{

class PimContactVCardPrivate
{
public:
    std::unique_ptr<vCard::PimVCard> m_card;
    bool m_isParsed = false;
};

namespace
{

using vCard::PimVCard;
using vCard::PimVCardParameter;
using vCard::PimVCardProperty;

// The component takes over lists that were made with `new`. Until then they belong to these.
struct ElementsDeleter
{
    template <typename T>
    void operator()( QList<T*>* a_list ) const
    {
        qDeleteAll( *a_list );
        delete a_list;
    }
};

template <typename T>
using OwnedList = std::unique_ptr<QList<T*>, ElementsDeleter>;

template <typename T>
OwnedList<T> NewList()
{
    return OwnedList<T>( new QList<T*> );
}

template <typename T>
void Append( OwnedList<T>& a_list, std::unique_ptr<T> a_element )
{
    a_list->append( a_element.get() );
    static_cast<void>( a_element.release() );
}

/// Makes the parameters of a line.
class ParameterMaker
{
public:
    /// \param a_kept the encoding that the values still have.
    ParameterMaker( const IndexedLine& a_line, PimContactEncoding a_kept ) :
        m_line( a_line ),
        m_kept( a_kept )
    {
    }

    OwnedList<PimVCardParameter> Make()
    {
        ValueDecoder decoder;
        const PimContactVersion version = m_line.m_card.m_record.Version();
        for ( ParameterReader reader( decoder.Parameters( m_line ), version ); reader.Next(); )
            Take( reader );
        Close();
        return std::move( m_parameters );
    }

private:
    void Take( const ParameterReader& a_reader )
    {
        if ( a_reader.IsFirst() )
            Close();
        if ( !IsWanted( a_reader.Name(), a_reader.Value() ) )
            return;
        if ( m_isOpen )
            m_value += QLatin1Char( ',' );
        else if ( !a_reader.IsBare() )
            m_name = StringOf( a_reader.Name() );
        m_isOpen = true;
        m_value += Written( a_reader.Value() );
    }

    void Close()
    {
        if ( m_isOpen )
            Append( m_parameters, std::make_unique<PimVCardParameter>( m_name, m_value ) );
        m_isOpen = false;
        m_name = QString();
        m_value = QString();
    }

    bool IsWanted( std::string_view a_name, std::string_view a_value ) const
    {
        if ( IsSameWord( a_name, s_kCharsetParameter ) )
            return false;
        const PimContactEncoding encoding = EncodingOf( a_value );
        return !IsSameWord( a_name, s_kEncodingParameter ) || encoding == PimContactEncoding::None ||
               encoding == m_kept;
    }

    QString Written( std::string_view a_value ) const
    {
        QString value = StringOf( a_value );
        if ( m_line.m_card.m_record.Version() != PimContactVersion::V21 )
        {
            value.replace( QLatin1Char( '^' ), QLatin1String( "^^" ) );
            value.replace( QLatin1Char( '\n' ), QLatin1String( "^n" ) );
            value.replace( QLatin1Char( '"' ), QLatin1String( "^'" ) );
        }
        return IsName( a_value ) ? value : QLatin1Char( '"' ) + value + QLatin1Char( '"' );
    }

    const IndexedLine& m_line;
    PimContactEncoding m_kept;
    OwnedList<PimVCardParameter> m_parameters = NewList<PimVCardParameter>();
    bool m_isOpen = false;
    QString m_name;
    QString m_value;
};

void AppendPart( const IndexedLine& a_line, ByteRange a_range, QByteArray& a_text )
{
    ValueDecoder decoder;
    for ( const char byte : decoder.Written( a_line, a_range ) )
    {
        if ( byte == '\n' )
            a_text += "\\n";
        else
            a_text += byte;
    }
}

// As it was written, in UTF-8 and on one physical line.
void AppendLine( const IndexedLine& a_line, QByteArray& a_text )
{
    const IndexEntry& entry = a_line.m_entry;
    AppendPart( a_line, { 0, std::max( entry.m_name.End(), entry.m_parameters.End() ) }, a_text );
    a_text += ':';
    AppendPart( a_line, a_line.ValueRange(), a_text );
    a_text += "\r\n";
}

// Recursive for nested cards, at most 64 deep, see PimContactOptions.
void AppendCard( const PimContactCard& a_card, QByteArray& a_text )
{
    a_text += "BEGIN:VCARD\r\n";
    for ( const PimContactLine& line : a_card )
    {
        AppendLine( PimContactCardPrivate::LineView::LineOf( line ), a_text );
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            AppendCard( nested, a_text );
    }
    a_text += "END:VCARD\r\n";
}

QList<QString> ComponentsOf( ValueDecoder& a_decoder )
{
    QList<QString> values;
    for ( PartReader reader = a_decoder.Parts( Delimiters::Semicolons ); reader.Next(); )
        values.append( StringOf( reader.Text() ) );
    return values;
}

QString Base64Of( std::string_view a_written )
{
    QByteArray text;
    text.reserve( static_cast<int>( a_written.size() ) );
    std::copy_if( a_written.begin(), a_written.end(), std::back_inserter( text ),
                  []( char a_byte ) { return !IsBlank( a_byte ) && !IsLineEndByte( a_byte ); } );
    return QString::fromUtf8( text );
}

/// BASE64 is the only encoding that made values have, if they are not text.
PimContactEncoding KeptEncoding( const IndexedLine& a_line, const ValueDecoder& a_decoder )
{
    const bool isKept = a_line.m_entry.m_encoding == PimContactEncoding::Base64 && !a_decoder.IsBase64Text();
    return isKept ? PimContactEncoding::Base64 : PimContactEncoding::None;
}

/// \param a_decoder must have decoded the line.
QList<QString> ValuesOf( const PimContactLine& a_line, PimContactEncoding a_kept, ValueDecoder& a_decoder )
{
    const PimContactCard nested = a_line.NestedCard();
    if ( !nested.IsNull() )
    {
        QByteArray text;
        AppendCard( nested, text );
        return { QString::fromUtf8( text ) };
    }
    if ( a_kept == PimContactEncoding::Base64 )
        return { Base64Of( a_decoder.Escaped().m_text ) };
    return ComponentsOf( a_decoder );
}

std::unique_ptr<PimVCardProperty> MadeProperty( const PimContactLine& a_line )
{
    const IndexedLine line = PimContactCardPrivate::LineView::LineOf( a_line );
    ValueDecoder decoder;
    const QString group = StringOf( decoder.Written( line, line.m_entry.m_group ) );
    const QString name = StringOf( decoder.Written( line, line.m_entry.m_name ) );
    decoder.Decode( line );
    const PimContactEncoding kept = KeptEncoding( line, decoder );
    OwnedList<PimVCardParameter> parameters = ParameterMaker( line, kept ).Make();
    auto values = std::make_unique<QList<QString>>( ValuesOf( a_line, kept, decoder ) );
    auto property = std::make_unique<PimVCardProperty>( group, name, parameters.get(), values.get() );
    static_cast<void>( parameters.release() );
    static_cast<void>( values.release() );
    return property;
}

std::unique_ptr<PimVCard> MadeCard( const PimContactCard& a_card )
{
    OwnedList<PimVCardProperty> properties = NewList<PimVCardProperty>();
    for ( const PimContactLine& line : a_card )
        Append( properties, MadeProperty( line ) );
    auto card = std::make_unique<PimVCard>( properties.get() );
    static_cast<void>( properties.release() );
    return card;
}

/// \return null if the component does not read the card, or reads another number of properties.
std::unique_ptr<PimVCard> ParsedCard( const PimContactCard& a_card )
{
    if ( !IsReadByComponent( a_card ) )
        return nullptr;
    vCard::PimVCardParser parser( a_card.Bytes() );
    std::unique_ptr<PimVCard> card( parser.ParseVCard() );
    const bool isComplete = card != nullptr && card->GetProperties().size() == a_card.LineCount();
    return isComplete ? std::move( card ) : nullptr;
}

} // namespace

PimContactVCard::PimContactVCard() = default;
PimContactVCard::PimContactVCard( PimContactVCard&& a_other ) noexcept = default;
PimContactVCard& PimContactVCard::operator=( PimContactVCard&& a_other ) noexcept = default;
PimContactVCard::~PimContactVCard() = default;

PimContactVCard PimContactVCard::FromCard( const PimContactCard& a_card )
{
    PimContactVCard result;
    if ( a_card.IsNull() )
        return result;
    result.d = std::make_unique<PimContactVCardPrivate>();
    result.d->m_card = ParsedCard( a_card );
    result.d->m_isParsed = result.d->m_card != nullptr;
    if ( !result.d->m_isParsed )
        result.d->m_card = MadeCard( a_card );
    return result;
}

bool PimContactVCard::IsNull() const
{
    return d == nullptr;
}

bool PimContactVCard::IsParsed() const
{
    return d != nullptr && d->m_isParsed;
}

const vCard::PimVCard* PimContactVCard::Get() const
{
    return d != nullptr ? d->m_card.get() : nullptr;
}

std::unique_ptr<vCard::PimVCard> PimContactVCard::Take()
{
    const std::unique_ptr<PimContactVCardPrivate> taken = std::move( d );
    return taken != nullptr ? std::move( taken->m_card ) : nullptr;
}

} // namespace PimManager::Contacts
