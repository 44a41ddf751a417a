#include "Attachment.h"

#include "PimVCard.h"

#include <algorithm>
#include <array>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

struct RasterType
{
    const char* m_fileEnding;
    const char* m_mediaType;
};

constexpr std::array<RasterType, 6> s_kRasterTypes = {
    RasterType{ "jpg", "image/jpeg" },  RasterType{ "png", "image/png" }, RasterType{ "gif", "image/gif" },
    RasterType{ "webp", "image/webp" }, RasterType{ "bmp", "image/bmp" }, RasterType{ "ico", "image/x-icon" } };

bool CarriesBytes( const PimVCardProperty& a_property )
{
    return EncodingOf( a_property ) == PimVCardEncoding::Base64 ||
           a_property.GetValues().value( 0 ).startsWith( QLatin1String( "data:" ), Qt::CaseInsensitive );
}

bool IsUsuallyAttachment( const PimVCardProperty& a_property )
{
    return IsPicture( a_property ) || IsNamed( a_property, "SOUND" ) || IsNamed( a_property, "KEY" );
}

} // namespace

std::optional<PimVCardAttachment> AttachmentIn( const PimVCardProperty& a_property )
{
    if ( !CarriesBytes( a_property ) )
        return std::nullopt;
    const PimVCardAttachment attachment = AttachmentOf( a_property );
    const bool isKnown = attachment.m_fileEnding != QLatin1String( "bin" );
    if ( attachment.m_bytes.isEmpty() || !( isKnown || IsUsuallyAttachment( a_property ) ) )
        return std::nullopt;
    return attachment;
}

bool IsPicture( const PimVCardProperty& a_property )
{
    return IsNamed( a_property, "PHOTO" ) || IsNamed( a_property, "LOGO" );
}

QByteArray RasterTypeOf( const PimVCardAttachment& a_picture )
{
    const auto* const type = std::find_if( s_kRasterTypes.begin(), s_kRasterTypes.end(),
                                           [&a_picture]( const RasterType& a_type )
                                           { return a_picture.m_fileEnding == QLatin1String( a_type.m_fileEnding ); } );
    return type == s_kRasterTypes.end() ? QByteArray() : QByteArray( type->m_mediaType );
}

} // namespace PimManager::vCard::Tools
