#include "Contact/EntryReader.h"

#include "Contact/DateParser.h"
#include "Contact/DateText.h"
#include "Contact/NumberAndMail.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/PropertyKinds.h"

#include <algorithm>
#include <optional>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kBetweenParts = ", ";
constexpr std::string_view s_kBetweenLines = "\n";

QString UpperAscii( std::string_view a_text )
{
    std::string upper( a_text );
    std::transform( upper.begin(), upper.end(), upper.begin(), Upper );
    return StringOf( upper );
}

} // namespace

void EntryReader::Read( const IndexedLine& a_line )
{
    m_line = &a_line;
    const std::string_view name = a_line.Name( m_name );
    m_property = PropertyOf( name );
    m_delimiters = DelimitersOf( m_property, a_line.m_card.m_record.Version() );
    m_isDecoded = false;
}

ValueDecoder& EntryReader::Value()
{
    if ( !m_isDecoded )
        m_decoder.Decode( *m_line );
    m_isDecoded = true;
    return m_decoder;
}

std::string_view EntryReader::Text()
{
    switch ( m_property )
    {
    case PropertyId::Tel:
        return NumberOf( Value().Text(), m_text );
    case PropertyId::Email:
        return MailOf( Value().Text(), m_text );
    case PropertyId::Adr:
        return AddressText();
    case PropertyId::CallTime:
        return TimeText();
    default:
        return m_delimiters == Delimiters::None ? WithoutOuterSpace( Value().Text() ) : JoinedParts();
    }
}

const NamedParts& EntryReader::Parts()
{
    m_parts = {};
    m_texts.Begin( Value().Escaped().m_text );
    PartReader reader = Value().Parts( Delimiters::Semicolons );
    for ( std::string_view& part : m_parts )
    {
        if ( reader.Next() )
            part = WithoutOuterSpace( m_texts.Keep( reader.Text() ) );
    }
    return m_parts;
}

const LineParameters& EntryReader::Parameters()
{
    m_parameters.Read( *m_line );
    return m_parameters;
}

// The order in which most countries write an address, from the most specific part to the country.
std::string_view EntryReader::AddressText()
{
    const NamedParts& parts = Parts();
    Empty( m_text );
    for ( const size_t part : { 0U, 1U, 2U } )
        AppendPart( parts.at( part ), s_kBetweenLines );
    const std::string_view postalCode = parts[5];
    AppendPart( postalCode, s_kBetweenLines );
    AppendPart( parts[3], postalCode.empty() ? s_kBetweenLines : " " );
    for ( const size_t part : { 4U, 6U } )
        AppendPart( parts.at( part ), s_kBetweenLines );
    return ViewOf( m_text );
}

std::string_view EntryReader::TimeText()
{
    const std::string_view value = WithoutOuterSpace( Value().Text() );
    const std::optional<DateFields> time = ReadCallTime( value );
    if ( !time )
        return value;
    Empty( m_text );
    Append( m_text, DateText( *time, DateFormat::Extended ).Text() );
    m_text.replace( 'T', ' ' ).replace( 'Z', " UTC" );
    return ViewOf( m_text );
}

std::string_view EntryReader::JoinedParts()
{
    const Delimiters delimiters = m_delimiters == Delimiters::Commas ? Delimiters::Commas : Delimiters::Semicolons;
    Empty( m_text );
    for ( PartReader reader = Value().Parts( delimiters ); reader.Next(); )
        AppendPart( WithoutOuterSpace( reader.Text() ), s_kBetweenParts );
    return ViewOf( m_text );
}

void EntryReader::AppendPart( std::string_view a_part, std::string_view a_between )
{
    if ( a_part.empty() )
        return;
    if ( !m_text.isEmpty() )
        Append( m_text, a_between );
    Append( m_text, a_part );
}

QStringList EntryTypes( PropertyId a_property, const LineParameters& a_parameters )
{
    QStringList texts;
    const WordGroups& types = a_parameters.Types();
    for ( size_t i = 0; i < types.Size(); ++i )
    {
        const bool isOfEveryMail = a_property == PropertyId::Email && IsSameWord( types.Word( i ), "INTERNET" );
        if ( types.IsFirst( i ) && !isOfEveryMail )
            texts.append( UpperAscii( types.Word( i ) ) );
    }
    return texts;
}

} // namespace PimManager::Contacts
