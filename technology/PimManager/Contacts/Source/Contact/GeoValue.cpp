#include "Contact/GeoValue.h"

#include "Contact/UriPieces.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <QLocale>

#include <charconv>
#include <cmath>

namespace PimManager::Contacts
{

namespace
{

constexpr double s_kGreatestLatitude = 90;
constexpr double s_kGreatestLongitude = 180;

/// Reads a number without an exponent.
std::optional<double> DegreesOf( std::string_view a_text )
{
    std::string_view text = WithoutOuterSpace( a_text );
    if ( text.substr( 0, 1 ) == "+" && text.substr( 0, 2 ) != "+-" )
        text.remove_prefix( 1 );
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars( text.data(), end, number, std::chars_format::fixed );
    if ( result.ec != std::errc() || result.ptr != end || !std::isfinite( number ) )
        return std::nullopt;
    return number;
}

std::optional<PimContactPosition> PositionOf( std::string_view a_latitude, std::string_view a_longitude )
{
    const std::optional<double> latitude = DegreesOf( a_latitude );
    const std::optional<double> longitude = DegreesOf( a_longitude );
    if ( !latitude || !longitude || std::abs( *latitude ) > s_kGreatestLatitude ||
         std::abs( *longitude ) > s_kGreatestLongitude )
        return std::nullopt;
    return PimContactPosition{ *latitude, *longitude };
}

/// \param a_parameters the parameters of a `geo:` URI. \return true if they name no other reference system.
bool IsWgs84( std::string_view a_parameters )
{
    std::string_view rest = a_parameters;
    while ( !rest.empty() )
    {
        std::string_view value = TakeUpTo( ';', rest );
        if ( IsSameWord( TakeUpTo( '=', value ), "crs" ) && !IsSameWord( value, "wgs84" ) )
            return false;
    }
    return true;
}

std::optional<PimContactPosition> PositionOfUri( std::string_view a_uri )
{
    std::string_view parameters = a_uri;
    std::string_view coordinates = TakeUpTo( ';', parameters );
    const std::string_view latitude = TakeUpTo( ',', coordinates );
    const std::string_view longitude = TakeUpTo( ',', coordinates );
    const bool hasAltitude = !coordinates.empty();
    if ( ( hasAltitude && !DegreesOf( coordinates ) ) || !IsWgs84( parameters ) )
        return std::nullopt;
    return PositionOf( latitude, longitude );
}

} // namespace

std::optional<PimContactPosition> GeoPositionOf( std::string_view a_text, PimContactVersion a_version )
{
    std::string_view rest = WithoutOuterSpace( a_text );
    if ( RemoveScheme( rest, "geo:" ) )
        return PositionOfUri( rest );
    const bool isLongitudeFirst = a_version == PimContactVersion::V21 && rest.find( ';' ) == std::string_view::npos;
    const std::string_view first = TakeUpTo( isLongitudeFirst ? ',' : ';', rest );
    return isLongitudeFirst ? PositionOf( rest, first ) : PositionOf( first, rest );
}

// The shortest texts that are read back as the same numbers.
QString GeoUriOf( const PimContactPosition& a_position )
{
    return QStringLiteral( "geo:%1,%2" )
        .arg( QString::number( a_position.m_latitude, 'f', QLocale::FloatingPointShortest ),
              QString::number( a_position.m_longitude, 'f', QLocale::FloatingPointShortest ) );
}

} // namespace PimManager::Contacts
