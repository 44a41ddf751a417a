#include "Outputs/Pictures.h"

#include <algorithm>
#include <array>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

struct PictureType
{
    const char* m_mediaType;
    const char* m_fileEnding;
    bool m_isShownByBrowsers;
};

constexpr std::array s_kTypes = {
    PictureType{ "image/jpeg", "jpg", true },   PictureType{ "image/png", "png", true },
    PictureType{ "image/gif", "gif", true },    PictureType{ "image/webp", "webp", true },
    PictureType{ "image/bmp", "bmp", true },    PictureType{ "image/x-icon", "ico", true },
    PictureType{ "image/heic", "heic", false }, PictureType{ "image/heif", "heif", false },
    PictureType{ "image/avif", "avif", false }, PictureType{ "image/tiff", "tiff", false },
};

// Null for all other types.
const PictureType* TypeOf( const PimContactBinary& a_picture )
{
    const QByteArray mediaType = a_picture.DetectedType();
    const auto* const type =
        std::find_if( s_kTypes.begin(), s_kTypes.end(),
                      [&mediaType]( const PictureType& a_type ) { return mediaType == a_type.m_mediaType; } );
    return type == s_kTypes.end() ? nullptr : type;
}

bool IsLetter( QChar a_character )
{
    const QChar lower = a_character.toLower();
    return lower >= QLatin1Char( 'a' ) && lower <= QLatin1Char( 'z' );
}

bool IsOfScheme( QChar a_character )
{
    const bool isDigit = a_character >= QLatin1Char( '0' ) && a_character <= QLatin1Char( '9' );
    return IsLetter( a_character ) || isDigit || a_character == QLatin1Char( '+' ) ||
           a_character == QLatin1Char( '-' ) || a_character == QLatin1Char( '.' );
}

bool HasScheme( const QString& a_text )
{
    const auto* const end = std::find_if_not( a_text.begin(), a_text.end(), IsOfScheme );
    return end != a_text.end() && *end == QLatin1Char( ':' ) && end != a_text.begin() && IsLetter( *a_text.begin() );
}

bool IsValueOfLinks( const QString& a_value )
{
    const QString value = a_value.toLower();
    return value == QLatin1String( "uri" ) || value == QLatin1String( "url" ) || value == QLatin1String( "cid" ) ||
           value == QLatin1String( "content-id" );
}

} // namespace

bool IsPicture( const PimContactLine& a_line )
{
    return a_line.IsNamed( QLatin1String( "PHOTO" ) ) || a_line.IsNamed( QLatin1String( "LOGO" ) );
}

bool IsLink( const PimContactLine& a_line )
{
    const QStringList values = a_line.Parameter( QLatin1String( "VALUE" ) );
    return std::any_of( values.begin(), values.end(), IsValueOfLinks ) || HasScheme( a_line.Text().trimmed() );
}

QByteArray RasterTypeOf( const PimContactBinary& a_picture )
{
    const PictureType* const type = TypeOf( a_picture );
    const bool isShown = type != nullptr && type->m_isShownByBrowsers && !a_picture.IsDamaged();
    return isShown ? QByteArray( type->m_mediaType ) : QByteArray();
}

QByteArray FileEndingOf( const PimContactBinary& a_picture )
{
    const PictureType* const type = TypeOf( a_picture );
    return type == nullptr ? QByteArrayLiteral( "bin" ) : QByteArray( type->m_fileEnding );
}

} // namespace PimManager::Tools
