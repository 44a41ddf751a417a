#include "Writing/PropertyReader.h"

#include "Contact/ContactLines.h"
#include "Contact/FieldParameters.h"
#include "Contact/NamedMediaType.h"
#include "Contact/UriPieces.h"
#include "Lines/KnownNames.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/DelimiterSearch.h"
#include "Text/MediaType.h"
#include "Text/Uri.h"
#include "Values/BinaryValue.h"
#include "Values/ParameterMemory.h"
#include "Values/ParameterReader.h"
#include "Values/PlainParameters.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kExtensionMark = "X-";

// The position of a plain parameter. A bare one has no name.
struct PlainPlace
{
    ByteRange m_name;
    ByteRange m_value;
    StandardParameter m_parameter = StandardParameter::Other;
};

struct PlainPlaces
{
    std::array<PlainPlace, 6> m_places;
    size_t m_count = 0;
};

bool IsOfCard( PropertyId a_property )
{
    return a_property == PropertyId::Begin || a_property == PropertyId::End;
}

/// Replaces all bytes that a name cannot have.
void Mend( std::string_view a_text, bool a_isProperty, QByteArray& a_out )
{
    QByteArray mended = BytesOf( a_text );
    for ( char& byte : mended )
        byte = IsNameByte( byte ) ? byte : '-';
    if ( a_isProperty && !IsExtensionName( ViewOf( mended ) ) )
        mended.prepend( BytesOf( s_kExtensionMark ) );
    a_out = mended;
}

// Names of types that another version has are understood as well.
ValueType AnyValueTypeOf( std::string_view a_name, PimContactVersion a_version )
{
    for ( const PimContactVersion version :
          { a_version, PimContactVersion::V40, PimContactVersion::V30, PimContactVersion::V21 } )
    {
        const ValueType type = ValueTypeOf( a_name, version );
        if ( type != ValueType::Other )
            return type;
    }
    return ValueType::Other;
}

} // namespace

Delimiters DelimitersOf( ValueShape a_shape )
{
    constexpr std::array s_kDelimiters = { Delimiters::None, Delimiters::Commas, Delimiters::Semicolons,
                                           Delimiters::SemicolonsAndCommas };
    return s_kDelimiters.at( static_cast<size_t>( a_shape ) );
}

const PropertyRule* ShapeRuleOf( PropertyId a_property, PimContactVersion a_version )
{
    const PropertyRule* rule = FindRule( a_property, a_version );
    if ( rule == nullptr && a_version != PimContactVersion::V40 )
        rule = FindRule( a_property, PimContactVersion::V30 );
    if ( rule == nullptr )
        rule = FindRule( a_property, PimContactVersion::V40 );
    return rule == nullptr ? FindRule( a_property, PimContactVersion::V30 ) : rule;
}

ValueType DefaultTypeOf( std::string_view a_name, PropertyId a_property, PimContactVersion a_version )
{
    return DefaultTypeOf( a_name, a_property, ShapeRuleOf( a_property, a_version ) );
}

ValueType DefaultTypeOf( std::string_view a_name, PropertyId a_property, const PropertyRule* a_rule )
{
    if ( a_rule == nullptr )
        return ValueType::Other;
    const bool isUserName =
        a_property == PropertyId::Messenger && IsExtensionName( a_name ) && !IsSameWord( a_name, "X-IMPP" );
    return isUserName ? ValueType::Text : a_rule->m_defaultType;
}

Property& PropertyReader::Read( const IndexedLine& a_line, PropertyId a_property, int a_number )
{
    m_property.Clear();
    m_property.m_property = a_property;
    m_property.m_line = a_number;
    m_isDamaged = false;
    m_isNameMended = false;
    ReadName( a_line );
    ReadParameters( a_line );
    ReadValue( a_line );
    return m_property;
}

void PropertyReader::ReadName( const IndexedLine& a_line )
{
    m_property.m_name = a_line.Name( m_name );
    // The names of the other properties are known.
    const bool mayBeOdd = m_property.m_property == PropertyId::Other || m_property.m_property == PropertyId::Messenger;
    if ( ( mayBeOdd && !IsName( m_property.m_name ) ) || IsOfCard( m_property.m_property ) )
    {
        Mend( m_property.m_name, true, m_name );
        m_property.m_name = ViewOf( m_name );
        m_isNameMended = true;
        m_property.m_property = PropertyNamed( m_property.m_name );
    }
    m_isMedia = IsMediaProperty( m_property.m_property ) && !IsExtensionName( m_property.m_name );
    m_rule = ShapeRuleOf( m_property.m_property, KnownVersion( a_line.m_card.m_record.Version() ) );
    if ( a_line.m_entry.m_group.m_length == 0 )
        return;
    m_property.m_group = a_line.Group( m_group );
    if ( IsName( m_property.m_group ) )
        return;
    Mend( m_property.m_group, false, m_group );
    m_property.m_group = ViewOf( m_group );
    m_isNameMended = true;
}

void PropertyReader::ReadParameters( const IndexedLine& a_line )
{
    m_valueName = std::string_view();
    m_emptyParameter = std::string_view();
    if ( a_line.m_entry.m_parameters.m_length == 0 )
        return;
    const std::string_view written = a_line.m_entry.m_parameters.In( a_line.m_text );
    if ( !a_line.IsContinued() && ReadPlainParameters( written ) )
        return;
    const std::string_view text = m_head.Parameters( a_line );
    m_headTexts.Begin( text );
    std::string_view name;
    for ( ParameterReader reader( text, KnownVersion( a_line.m_card.m_record.Version() ) ); reader.Next(); )
    {
        if ( reader.IsFirst() || name.empty() )
            name = ParameterName( reader.Name() );
        if ( reader.Value().empty() )
            m_emptyParameter = name;
        else
            AddParameter( name, m_headTexts.Keep( reader.Value() ) );
    }
}

// Most lines have one of a few lists of parameters.
bool PropertyReader::ReadPlainParameters( std::string_view a_written )
{
    thread_local ParameterMemory<PlainPlaces> t_places;
    if ( const PlainPlaces* const known = t_places.Find( a_written, nullptr ) )
    {
        for ( size_t i = 0; i < known->m_count; ++i )
        {
            const PlainPlace& place = known->m_places[i];
            const bool isStandard = place.m_parameter != StandardParameter::Other;
            AddParameter( { isStandard ? NameOf( place.m_parameter ) : place.m_name.In( a_written ),
                            place.m_value.In( a_written ), place.m_parameter } );
        }
        return true;
    }
    if ( !PlainParameters::AreIn( a_written ) )
        return false;
    PlainPlaces places;
    const auto rangeOf = [a_written]( std::string_view a_part )
    {
        return ByteRange{ static_cast<quint32>( a_part.data() - a_written.data() ),
                          static_cast<quint32>( a_part.size() ) };
    };
    size_t count = 0;
    for ( PlainParameters parameters( a_written ); parameters.Next(); ++count )
    {
        const bool isBare = parameters.Name().empty();
        const std::string_view name = isBare ? NameOfBare( parameters.Value() ) : parameters.Name();
        const StandardParameter parameter = StandardParameterOf( name );
        if ( count < places.m_places.size() )
            places.m_places[count] = { isBare ? ByteRange() : rangeOf( name ), rangeOf( parameters.Value() ),
                                       parameter };
        AddParameter( name, parameters.Value() );
    }
    places.m_count = count;
    if ( count <= places.m_places.size() )
        t_places.Remember( a_written, nullptr, places );
    return true;
}

std::string_view PropertyReader::ParameterName( std::string_view a_name )
{
    const StandardParameter parameter = StandardParameterOf( a_name );
    if ( parameter != StandardParameter::Other )
        return NameOf( parameter );
    if ( IsName( a_name ) )
        return m_headTexts.Keep( a_name );
    QByteArray mended;
    Mend( a_name, false, mended );
    m_isNameMended = true;
    return m_headTexts.Keep( ViewOf( mended ) );
}

void PropertyReader::AddParameter( std::string_view a_name, std::string_view a_value )
{
    const StandardParameter parameter = StandardParameterOf( a_name );
    AddParameter( { parameter == StandardParameter::Other ? a_name : NameOf( parameter ), a_value, parameter } );
}

void PropertyReader::AddParameter( const ParameterText& a_parameter )
{
    switch ( a_parameter.m_parameter )
    {
    case StandardParameter::Encoding:
    case StandardParameter::Charset:
        return;
    case StandardParameter::Value:
        if ( m_valueName.empty() )
            m_valueName = a_parameter.m_value;
        return;
    default:
        m_property.m_parameters.push_back( a_parameter );
    }
}

void PropertyReader::SetType( PimContactVersion a_version )
{
    const ValueType standard = DefaultTypeOf( m_property.m_name, m_property.m_property, m_rule );
    m_property.m_type = standard;
    if ( m_valueName.empty() )
        return;
    const ValueType named = AnyValueTypeOf( m_valueName, a_version );
    const bool isOther =
        named == ValueType::Other || ( named == ValueType::Binary && m_property.m_property == PropertyId::Other );
    if ( isOther )
        m_property.m_parameters.push_back( { "VALUE", m_valueName, StandardParameter::Value } );
    else if ( named != ValueType::Inline && named != ValueType::Binary )
        m_property.m_type = named;
}

void PropertyReader::ReadValue( const IndexedLine& a_line )
{
    SetType( KnownVersion( a_line.m_card.m_record.Version() ) );
    // A binary value in a text property becomes its BASE64, and a URI in any other property remains a URI.
    const bool mayBeBytes = m_isMedia || ( m_property.m_property == PropertyId::Other &&
                                           a_line.m_entry.m_encoding == PimContactEncoding::Base64 );
    bool isDecoded = false;
    if ( mayBeBytes && MayBeBinary( a_line, m_isMedia ) && !a_line.IsBlankValue() )
    {
        isDecoded = m_value.DecodeBase64Text( a_line );
        if ( IsBinary( a_line, m_value, m_isMedia ) )
            return ReadBytes( a_line );
    }
    if ( !isDecoded )
        m_value.Decode( a_line );
    ReadTexts();
}

void PropertyReader::ReadBytes( const IndexedLine& a_line )
{
    const PimContactBinary binary = DecodedBinary( a_line );
    m_isDamaged = binary.FaultPlace() >= 0;
    m_bytes = binary.Bytes();
    if ( m_bytes.isEmpty() )
        return ReadNoBytes( a_line );
    m_mediaType = binary.MediaType().toLower();
    // Any other property keeps its words of TYPE.
    if ( !IsMediaType( ViewOf( m_mediaType ) ) && m_isMedia )
    {
        FieldParameters parameters;
        parameters.Read( a_line, []( std::string_view /*a_word*/ ) { return quint32( 0 ); } );
        m_mediaType = NamedMediaType( m_property.m_property, parameters ).toLower().toUtf8();
    }
    if ( !IsMediaType( ViewOf( m_mediaType ) ) )
        m_mediaType.clear();
    m_property.m_isBinary = true;
    m_property.m_type = ValueType::Binary;
    m_property.m_bytes = ViewOf( m_bytes );
    m_property.m_mediaType = ViewOf( m_mediaType );
}

// A `data:` URI without data still names a media type.
void PropertyReader::ReadNoBytes( const IndexedLine& a_line )
{
    m_value.Decode( a_line );
    std::string_view value = m_value.Text();
    const std::string_view text = value;
    const bool isUri = RemoveScheme( value, "data:" );
    m_property.m_type = isUri ? ValueType::Uri : ValueType::Text;
    m_property.SetText( isUri ? text : std::string_view() );
}

// An element of a list may be anything that is read as one.
void PropertyReader::ReadTexts()
{
    m_property.m_shape = m_rule == nullptr ? ValueShape::ComponentLists : m_rule->m_shape;
    if ( m_property.m_shape == ValueShape::Single )
        m_property.m_texts.push_back( { m_value.Text(), 0 } );
    else
        ReadParts( DelimitersOf( m_property.m_shape ) );
    const PimContactDecodingProblems problems = m_value.Found().Problems();
    m_isDamaged = problems.testFlag( PimContactDecodingProblem::MalformedText ) ||
                  problems.testFlag( PimContactDecodingProblem::MalformedQuotedPrintable );
    if ( m_property.m_type == ValueType::ContentId && m_property.m_shape == ValueShape::Single )
        SetContentIdType();
    // The value should be binary or a URI, but is neither.
    const bool isUnnamed = m_valueName.empty();
    if ( m_property.m_type == ValueType::Binary || ( m_isMedia && isUnnamed && m_property.m_type == ValueType::Uri ) )
        m_property.m_type = IsUri( m_property.Text() ) ? ValueType::Uri : ValueType::Text;
    // A text in a property that allows a URI or a text.
    if ( m_property.m_type == ValueType::Uri && isUnnamed && m_rule != nullptr &&
         m_rule->m_types.Has( ValueType::Text ) && !IsUri( m_property.Text() ) )
        m_property.m_type = ValueType::Text;
}

void PropertyReader::ReadParts( Delimiters a_delimiters )
{
    const EscapedText& value = m_value.Escaped();
    const bool isPlain = value.m_literals->empty() && value.m_text.find( '\\' ) == std::string_view::npos;
    if ( isPlain )
        return ReadPlainParts( value.m_text, a_delimiters );
    m_valueTexts.Begin( value.m_text );
    quint32 component = 0;
    for ( PartReader parts = m_value.Parts( a_delimiters ); parts.Next(); )
    {
        m_property.m_texts.push_back( { m_valueTexts.Keep( parts.Text() ), component } );
        component += parts.Delimiter() == ';' ? 1 : 0;
    }
}

// Without escapes, each delimiter divides.
void PropertyReader::ReadPlainParts( std::string_view a_value, Delimiters a_delimiters )
{
    const char first = a_delimiters == Delimiters::Commas ? ',' : ';';
    const char second = a_delimiters == Delimiters::Semicolons ? ';' : ',';
    quint32 component = 0;
    DelimiterSearch search( a_value, first, second );
    for ( size_t begin = 0; begin <= a_value.size(); begin = search.Place() + 1 )
    {
        const bool isDelimiter = search.Next();
        m_property.m_texts.push_back(
            { std::string_view( a_value.data() + begin, search.Place() - begin ), component } );
        component += isDelimiter && a_value[search.Place()] == ';' ? 1 : 0;
    }
}

// A content id is a URI without its scheme.
void PropertyReader::SetContentIdType()
{
    constexpr std::string_view s_kContentId = "cid:";
    const std::string_view text = m_property.Text();
    Empty( m_uri );
    if ( !IsUri( text ) )
        Append( m_uri, s_kContentId );
    Append( m_uri, text );
    m_property.m_texts.front().m_text = ViewOf( m_uri );
    m_property.m_type = ValueType::Uri;
}

} // namespace PimManager::Contacts
