#include "Json/HeadJson.h"

#include "Contact/ContactLines.h"
#include "Contact/CropRectangle.h"
#include "Contact/KindWords.h"
#include "Contact/NamedMediaType.h"
#include "Lines/KnownNames.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/MediaType.h"
#include "Text/WhiteSpace.h"

#include <algorithm>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::array s_kDirections = { "dialed"sv, "received"sv, "missed"sv };

KindSet KindSetOf( FieldWay a_way, PropertyId a_property )
{
    switch ( a_way )
    {
    case FieldWay::Name:
    case FieldWay::Event:
    case FieldWay::OnlyDate:
    case FieldWay::Media:
        return KindSet::None;
    default:
        return PimManager::Contacts::KindSetOf( a_property );
    }
}

bool SaysDate( std::string_view a_value )
{
    return !IsSameWord( Trimmed( a_value ), "text" ) && !IsSameWord( Trimmed( a_value ), "time" );
}

/// \return true if the effect of the parameter is known only to PimContact. Media are never left to it.
bool IsUnusual( FieldWay a_way, FieldParameter a_parameter, std::string_view a_value )
{
    if ( a_way == FieldWay::Media )
        return false;
    switch ( a_parameter )
    {
    case FieldParameter::Value:
        return ( a_way == FieldWay::Event || a_way == FieldWay::OnlyDate ) && !SaysDate( a_value );
    case FieldParameter::SortAs:
    case FieldParameter::Label:
    case FieldParameter::Geo:
    case FieldParameter::TimeZone:
    case FieldParameter::CountryCode:
    case FieldParameter::Calendar:
    case FieldParameter::Level:
    case FieldParameter::OmittedYear:
        return true;
    default:
        return false;
    }
}

/// \return the bytes from a position on, up to eight of them, as a number.
quint64 NumberAt( std::string_view a_text, size_t a_place )
{
    quint64 number = 0;
    std::memcpy( &number, a_text.data() + a_place, std::min( a_text.size() - a_place, sizeof( number ) ) );
    return number;
}

} // namespace

void HeadReader::Read( const IndexedLine& a_line, HeadJson& a_head )
{
    m_json.Clear();
    const std::string_view name = m_decoder.Written( a_line, a_line.m_entry.m_name );
    a_head.m_property = PropertyNamed( name );
    a_head.m_delimiters = DelimitersOf( a_head.m_property, a_line.m_card.m_record.Version() );
    a_head.m_isMedia = IsMediaName( name );
    a_head.m_name = WriteName( name );
    m_parameters.Read( a_line );
    a_head.m_types = WriteTypes( InternetType::Written );
    a_head.m_preference = WritePreference();
    a_head.m_parameters = WriteParameters();
    a_head.m_typesOfEntry = WriteTypes( InternetType::LeftOut );
    ReadField( a_line, a_head );
    a_head.m_mediaType = WriteMediaType();
    a_head.m_direction = Direction();
    Empty( a_head.m_text );
    Append( a_head.m_text, m_json.From( 0 ) );
}

ByteRange HeadReader::From( size_t a_place ) const
{
    return { static_cast<quint32>( a_place ), static_cast<quint32>( m_json.Place() - a_place ) };
}

ByteRange HeadReader::WriteName( std::string_view a_name )
{
    const size_t place = m_json.Place();
    m_json.Raw( R"("name":)" );
    m_json.UpperString( a_name );
    return From( place );
}

ByteRange HeadReader::WriteTypes( InternetType a_internet )
{
    const size_t place = m_json.Place();
    const WordGroups& types = m_parameters.Types();
    m_json.Raw( R"(,"types":[)" );
    std::string_view before;
    for ( size_t i = 0; i < types.Size(); ++i )
    {
        const bool isLeftOut = a_internet == InternetType::LeftOut && IsSameWord( types.Word( i ), "INTERNET" );
        if ( !types.IsFirst( i ) || isLeftOut )
            continue;
        m_json.Raw( before );
        m_json.UpperString( types.Word( i ) );
        before = ",";
    }
    m_json.Raw( "]" );
    return From( place );
}

ByteRange HeadReader::WritePreference()
{
    const size_t place = m_json.Place();
    if ( m_parameters.Preference() > 0 )
    {
        m_json.Raw( R"(,"preference":)" );
        m_json.Number( m_parameters.Preference() );
    }
    return From( place );
}

ByteRange HeadReader::WriteParameters()
{
    const size_t place = m_json.Place();
    const WordGroups& names = m_parameters.Names();
    std::string_view before = R"(,"parameters":[{"name":)";
    for ( size_t first = 0; first < names.Size(); ++first )
    {
        if ( !names.IsFirst( first ) )
            continue;
        m_json.Raw( before );
        m_json.UpperString( names.Word( first ) );
        before = R"(,"values":[)";
        for ( size_t i = first; i != WordGroups::s_kNone; i = names.Next( i ) )
        {
            m_json.Raw( before );
            m_json.String( m_parameters.Value( i ) );
            before = ",";
        }
        before = R"(]},{"name":)";
    }
    if ( names.Size() > 0 )
        m_json.Raw( "]}]" );
    return From( place );
}

ByteRange HeadReader::WriteMediaType()
{
    const size_t place = m_json.Place();
    const WordGroups& names = m_parameters.Names();
    QByteArray type;
    for ( size_t i = names.Find( "MEDIATYPE" ); i != WordGroups::s_kNone && type.isEmpty(); i = names.Next( i ) )
        type = MediaTypeNamed( m_parameters.Value( i ) );
    for ( size_t i = 0; i < m_parameters.Types().Size() && type.isEmpty(); ++i )
        type = MediaTypeNamed( m_parameters.Types().Word( i ) );
    m_json.Raw( ViewOf( type ) );
    return From( place );
}

void HeadReader::ReadField( const IndexedLine& a_line, HeadJson& a_head )
{
    a_head.m_rule = FieldRuleOf( a_head.m_property );
    const FieldWay way = a_head.m_rule.m_way;
    a_head.m_kindSet = KindSetOf( way, a_head.m_property );
    // HOME and WORK do not name the media type of a picture.
    const bool isMedia = way == FieldWay::Media;
    m_fieldParameters.Read( a_line, WordReaderOf( isMedia ? KindSet::Kinds : a_head.m_kindSet ) );
    a_head.m_kinds = m_fieldParameters.Kinds();
    a_head.m_fieldMediaType = isMedia ? NamedMediaType( a_head.m_property, m_fieldParameters ).toUtf8() : QByteArray();
    a_head.m_isDeferred = way == FieldWay::Deferred;
    for ( const auto& [parameter, value] : m_fieldParameters.Values() )
        a_head.m_isDeferred = a_head.m_isDeferred || IsUnusual( way, parameter, value );
    const std::string_view value = m_fieldParameters.First( FieldParameter::Value );
    a_head.m_isUri = IsSameWord( value, "uri" ) || IsSameWord( value, "url" );
    a_head.m_crop = CropIn( m_fieldParameters.First( FieldParameter::Crop ) );
    WriteCommon( a_head );
}

void HeadReader::WriteCommon( HeadJson& a_head )
{
    const size_t place = m_json.Place();
    WriteKinds( a_head.m_kindSet, a_head.m_kinds, m_json );
    std::string_view label = WithoutOuterSpace( m_fieldParameters.First( FieldParameter::Custom ) );
    if ( label.empty() && a_head.m_kindSet != KindSet::None )
        label = CustomLabelOf( m_fieldParameters.CustomType() );
    const size_t labelPlace = m_json.Place();
    WriteText( R"(,"label":)", label );
    a_head.m_ownLabel = From( labelPlace );
    const size_t behindLabel = m_json.Place();
    if ( m_fieldParameters.Preference() > 0 )
    {
        m_json.Raw( R"(,"preference":)" );
        m_json.Number( m_fieldParameters.Preference() );
    }
    WriteText( R"(,"language":)", WithoutOuterSpace( m_fieldParameters.First( FieldParameter::Language ) ) );
    WriteText( R"(,"altId":)", WithoutOuterSpace( m_fieldParameters.First( FieldParameter::AltId ) ) );
    a_head.m_common = From( place );
    a_head.m_behindLabel = From( behindLabel );
}

void HeadReader::WriteText( std::string_view a_name, std::string_view a_text )
{
    if ( a_text.empty() )
        return;
    m_json.Raw( a_name );
    m_json.String( a_text );
}

std::string_view HeadReader::Direction() const
{
    for ( const std::string_view direction : s_kDirections )
    {
        if ( m_parameters.Types().Find( direction ) != WordGroups::s_kNone )
            return direction;
    }
    return "unknown";
}

/// \return false if the head is long or needs decoding.
inline bool HeadCache::FindKey( const IndexedLine& a_line, Key& a_key )
{
    const IndexEntry& entry = a_line.m_entry;
    const quint32 begin = entry.m_name.m_begin;
    const quint32 length = entry.m_parameters.End() - begin;
    if ( entry.m_parameters.m_begin < begin || length > s_kLongestKey || entry.m_charset != LineCharset::Utf8 )
        return false;
    a_key.m_text = a_line.m_text.substr( begin, length );
    a_key.m_nameLength = entry.m_name.m_length;
    a_key.m_parameters = { entry.m_parameters.m_begin - begin, entry.m_parameters.m_length };
    a_key.m_version = a_line.m_card.m_record.Version();
    return !a_line.IsContinued() || std::none_of( a_key.m_text.begin(), a_key.m_text.end(), IsLineEndByte );
}

inline size_t HeadCache::Key::Set() const
{
    constexpr quint64 s_kSpread = 0x9E3779B97F4A7C15U;
    quint64 hash = ( NumberAt( m_text, 0 ) ^ static_cast<quint64>( m_text.size() ) << 56U ) * s_kSpread;
    if ( m_text.size() > sizeof( quint64 ) )
        hash = ( hash ^ hash >> 32U ^ NumberAt( m_text, m_text.size() - sizeof( quint64 ) ) ) * s_kSpread;
    return static_cast<size_t>( hash >> 57U ) % s_kSets;
}

inline bool HeadCache::Entry::Has( const Key& a_key ) const
{
    return m_key.m_nameLength == a_key.m_nameLength && m_key.m_version == a_key.m_version &&
           m_key.m_parameters.m_begin == a_key.m_parameters.m_begin &&
           m_key.m_parameters.m_length == a_key.m_parameters.m_length && m_key.m_text == a_key.m_text;
}

const HeadJson& HeadCache::Of( const IndexedLine& a_line )
{
    Key key;
    if ( !FindKey( a_line, key ) )
    {
        m_reader.Read( a_line, m_other );
        return m_other;
    }
    EntrySet& set = m_sets[key.Set()];
    for ( const Entry& entry : set.m_entries )
    {
        if ( entry.Has( key ) )
            return entry.m_json;
    }
    Entry& entry = set.m_entries[set.m_older];
    set.m_older = 1 - set.m_older;
    entry.m_key = Key();
    m_reader.Read( a_line, entry.m_json );
    entry.SetKey( key );
    return entry.m_json;
}

void HeadCache::Entry::SetKey( const Key& a_key )
{
    m_key = a_key;
    std::memcpy( m_text.data(), a_key.m_text.data(), a_key.m_text.size() );
    m_key.m_text = std::string_view( m_text.data(), a_key.m_text.size() );
}

} // namespace PimManager::Contacts
