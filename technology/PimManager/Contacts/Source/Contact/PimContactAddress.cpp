#include <PimManager/Contacts/PimContactAddress.h>

#include "Contact/AddressField.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/GeoValue.h"
#include "Contact/KindWords.h"
#include "Text/Bytes.h"

#include <memory>
#include <type_traits>

namespace PimManager::Contacts
{

namespace
{

// The components of ADR before RFC 9554.
constexpr int s_kOldParts = 7;

const AddressData& DataOf( const PimContactAddress& a_address )
{
    return PimContactFieldPrivate::DataOf<AddressData>( a_address );
}

AddressData& ChangedDataOf( PimContactAddress& a_address )
{
    return PimContactFieldPrivate::ChangedDataOf<AddressData>( a_address );
}

quint32 KindsOfWord( std::string_view a_word )
{
    return static_cast<quint32>( AddressKindsOf( a_word ) );
}

void AppendLine( QString& a_lines, const QString& a_line, const QString& a_between )
{
    if ( a_line.isEmpty() )
        return;
    a_lines.append( a_lines.isEmpty() ? QString() : a_between ).append( a_line );
}

} // namespace

bool AddressData::IsSame( const AddressData& a_other ) const
{
    return m_parts == a_other.m_parts && m_deliveryText == a_other.m_deliveryText &&
           m_countryCode.compare( a_other.m_countryCode, Qt::CaseInsensitive ) == 0 &&
           m_timeZone == a_other.m_timeZone && m_position == a_other.m_position && m_kinds == a_other.m_kinds;
}

QStringList AddressData::KindTypes( PimContactVersion a_version ) const
{
    return TextsOf( AddressWordsOf( m_kinds, a_version ) );
}

bool AddressData::IsKind( std::string_view a_word ) const
{
    return AddressKindsOf( a_word ) != PimContactAddressKinds();
}

bool AddressData::FitsName( std::string_view a_name ) const
{
    return PropertyOf( a_name ) == ( m_parts.IsEmpty() ? PropertyId::Label : PropertyId::Adr );
}

std::string_view AddressData::Name( PimContactVersion a_version ) const
{
    return m_parts.IsEmpty() && a_version != PimContactVersion::V40 ? "LABEL" : "ADR";
}

// The delivery text of 2.1 and 3.0 is a separate line.
void AddressData::Write( FieldWriter& a_writer ) const
{
    a_writer.AddParameter( "CC", m_countryCode );
    a_writer.AddParameter( "TZ", m_timeZone );
    if ( m_position )
        a_writer.AddParameter( "GEO", GeoUriOf( *m_position ) );
    if ( a_writer.Property() == PropertyId::Label )
    {
        a_writer.SetText( m_deliveryText );
        return;
    }
    if ( a_writer.IsVersion( PimContactVersion::V40 ) )
        a_writer.AddParameter( "LABEL", m_deliveryText );
    QVector<QStringList> components;
    int count = s_kOldParts;
    for ( int component = s_kOldParts; component < s_kPimContactAddressParts; ++component )
        count = m_parts.Of( component ).isEmpty() ? count : s_kPimContactAddressParts;
    for ( int component = 0; component < count; ++component )
        components.append( m_parts.Of( component ) );
    a_writer.SetComponents( components );
}

std::string_view AddressData::AdditionName( PimContactVersion a_version ) const
{
    const bool isInLine = a_version == PimContactVersion::V40 || m_parts.IsEmpty() || m_deliveryText.isEmpty();
    return isInLine ? std::string_view() : "LABEL";
}

void AddressData::WriteAddition( FieldWriter& a_writer ) const
{
    a_writer.AddTypes( KindTypes( a_writer.Version() ) );
    a_writer.SetText( m_deliveryText );
}

// A parameter of the line has priority over another line. A LABEL without a group is found by its types.
bool AddressData::TakeAddition( PropertyId a_addition, const PimContactFieldPrivate& a_old )
{
    const auto& old = static_cast<const AddressData&>( a_old );
    const auto take = [&old]( auto& a_value, const auto& a_oldValue, const char* a_parameter )
    {
        if ( a_value != a_oldValue )
            return false;
        if ( old.m_line.Parameter( QLatin1String( a_parameter ) ).isEmpty() )
            a_value = std::decay_t<decltype( a_value )>();
        return true;
    };
    switch ( a_addition )
    {
    case PropertyId::AddressCountry:
        return take( m_countryCode, old.m_countryCode, "CC" );
    case PropertyId::Tz:
        return take( m_timeZone, old.m_timeZone, "TZ" );
    case PropertyId::Geo:
        return take( m_position, old.m_position, "GEO" );
    case PropertyId::Label:
        return m_kinds == old.m_kinds && !m_parts.IsEmpty() && take( m_deliveryText, old.m_deliveryText, "LABEL" );
    default:
        return true;
    }
}

PimContactFieldPrivate* ReadAddress( FieldReader& a_reader )
{
    auto data = std::make_unique<AddressData>();
    data->m_parts.Read( a_reader, s_kPimContactAddressParts );
    a_reader.ReadParameters( KindsOfWord );
    const FieldParameters& parameters = a_reader.Parameters();
    const std::string_view label = parameters.First( FieldParameter::Label );
    if ( data->m_parts.IsEmpty() && label.empty() )
        return nullptr;
    data->m_kinds = a_reader.KindsAs<PimContactAddressKinds>();
    if ( parameters.Values().empty() )
        return data.release();
    data->m_deliveryText = StringOf( label );
    data->m_countryCode = a_reader.ParameterText( FieldParameter::CountryCode );
    data->m_timeZone = a_reader.ParameterText( FieldParameter::TimeZone );
    data->m_position = GeoPositionOf( parameters.First( FieldParameter::Geo ), PimContactVersion::V40 );
    return data.release();
}

PimContactAddress::PimContactAddress() :
    PimContactAddress( AddressData::Null() )
{
}

PimContactAddress::PimContactAddress( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QStringList PimContactAddress::Parts( PimContactAddressPart a_part ) const
{
    return DataOf( *this ).m_parts.Of( static_cast<int>( a_part ) );
}

void PimContactAddress::SetParts( PimContactAddressPart a_part, const QStringList& a_texts )
{
    ChangedDataOf( *this ).m_parts.Set( static_cast<int>( a_part ), a_texts );
}

QString PimContactAddress::Part( PimContactAddressPart a_part ) const
{
    return DataOf( *this ).m_parts.Joined( static_cast<int>( a_part ), QLatin1String( ", " ) );
}

QString PimContactAddress::CountryCode() const
{
    return DataOf( *this ).m_countryCode;
}

void PimContactAddress::SetCountryCode( const QString& a_code )
{
    ChangedDataOf( *this ).m_countryCode = a_code;
}

QString PimContactAddress::DeliveryText() const
{
    return DataOf( *this ).m_deliveryText;
}

void PimContactAddress::SetDeliveryText( const QString& a_text )
{
    ChangedDataOf( *this ).m_deliveryText = a_text;
}

// The order in which most countries write an address, from the most specific part to the country.
QString PimContactAddress::Text() const
{
    if ( !DeliveryText().isEmpty() )
        return DeliveryText();
    const QString lineFeed = QStringLiteral( "\n" );
    QString text;
    for ( const QString& part : { PostOfficeBox(), Extended(), Street(), PostalCode() } )
        AppendLine( text, part, lineFeed );
    AppendLine( text, Locality(), PostalCode().isEmpty() ? lineFeed : QStringLiteral( " " ) );
    for ( const QString& part : { Region(), Country() } )
        AppendLine( text, part, lineFeed );
    return text;
}

std::optional<PimContactPosition> PimContactAddress::Position() const
{
    return DataOf( *this ).m_position;
}

QString PimContactAddress::TimeZone() const
{
    return DataOf( *this ).m_timeZone;
}

PimContactAddressKinds PimContactAddress::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

void PimContactAddress::SetKinds( PimContactAddressKinds a_kinds )
{
    AddressData& data = ChangedDataOf( *this );
    data.DropKindTypes();
    data.m_kinds = a_kinds;
}

bool PimContactAddress::IsEmpty() const
{
    return DataOf( *this ).IsEmpty();
}

PimContactList<PimContactAddress> PimContactAddress::Alternatives() const
{
    return AlternativesOf( *this );
}

QVariant PimContactAddress::LatitudeValue() const
{
    const std::optional<PimContactPosition> position = Position();
    return position ? QVariant( position->m_latitude ) : QVariant();
}

QVariant PimContactAddress::LongitudeValue() const
{
    const std::optional<PimContactPosition> position = Position();
    return position ? QVariant( position->m_longitude ) : QVariant();
}

} // namespace PimManager::Contacts
