#include "PimVCardDecoding.h"

#include "PimVCardBytes.h"

#include <algorithm>
#include <array>

namespace PimManager::vCardImport
{

using vCard::PimVCardProperty;

namespace
{

struct MediaType
{
    const char* m_type;
    const char* m_ending;
    // The first bytes, and where they stand.
    std::string_view m_signature;
    size_t m_place;
};

using namespace std::string_view_literals;

constexpr std::array<MediaType, 16> s_kTypes = { {
    { "image/jpeg", "jpg", "\xFF\xD8\xFF"sv, 0 },
    { "image/png", "png", "\x89PNG\r\n\x1A\n"sv, 0 },
    { "image/gif", "gif", "GIF8"sv, 0 },
    { "image/bmp", "bmp", "BM"sv, 0 },
    { "image/webp", "webp", "WEBP"sv, 8 },
    { "image/tiff", "tiff", "II*\0"sv, 0 },
    { "image/tiff", "tiff", "MM\0*"sv, 0 },
    { "image/heic", "heic", "ftypheic"sv, 4 },
    { "image/heic", "heic", "ftypheix"sv, 4 },
    { "image/heic", "heic", "ftypmif1"sv, 4 },
    { "image/x-icon", "ico", "\0\0\1\0"sv, 0 },
    { "audio/wav", "wav", "WAVE"sv, 8 },
    { "audio/mpeg", "mp3", "ID3"sv, 0 },
    { "audio/mpeg", "mp3", "\xFF\xFB"sv, 0 },
    { "audio/mpeg", "mp3", "\xFF\xF3"sv, 0 },
    { "audio/ogg", "ogg", "OggS"sv, 0 },
} };

const MediaType* FindType( const QByteArray& a_bytes )
{
    const auto hasSignature = [bytes = ViewOf( a_bytes )]( const MediaType& a_type )
    {
        return bytes.size() >= a_type.m_place &&
               bytes.substr( a_type.m_place, a_type.m_signature.size() ) == a_type.m_signature;
    };
    const auto* const found = std::find_if( s_kTypes.begin(), s_kTypes.end(), hasSignature );
    return found != s_kTypes.end() ? found : nullptr;
}

bool IsTokenCharacter( QChar a_character )
{
    const char byte = a_character.unicode() < 0x80 ? a_character.toLatin1() : ' ';
    return IsNameByte( byte ) || byte == '.' || byte == '+';
}

// `image/jpeg` in lower case; empty if it is not well-formed.
QString WellFormedType( const QString& a_type )
{
    const QStringList halves = a_type.trimmed().toLower().split( QLatin1Char( '/' ) );
    const auto isToken = []( const QString& a_half )
    { return !a_half.isEmpty() && std::all_of( a_half.begin(), a_half.end(), IsTokenCharacter ); };
    return halves.size() == 2 && std::all_of( halves.begin(), halves.end(), isToken )
               ? halves.join( QLatin1Char( '/' ) )
               : QString();
}

QString TypeOfCard( const PimVCardProperty& a_property )
{
    const QStringList words = ParameterValuesOf( a_property, "MEDIATYPE" ) + TypesOf( a_property );
    for ( const QString& word : words )
    {
        QString type = WellFormedType( word.section( QLatin1Char( ';' ), 0, 0 ) );
        if ( !type.isEmpty() )
            return type;
    }
    return QString();
}

bool IsDataUri( const QString& a_text )
{
    return a_text.startsWith( QLatin1String( "data:" ), Qt::CaseInsensitive );
}

// RFC 2397.
void ReadDataUri( const QString& a_text, PimVCardAttachment& a_attachment )
{
    const auto comma = a_text.indexOf( QLatin1Char( ',' ) );
    if ( comma < 0 )
        return;
    const QString head = a_text.mid( 5, comma - 5 );
    const QByteArray data = QByteArray::fromPercentEncoding( QStringView( a_text ).mid( comma + 1 ).toUtf8() );
    const bool isBase64 = head.contains( QLatin1String( ";base64" ), Qt::CaseInsensitive );
    a_attachment.m_bytes = isBase64 ? QByteArray::fromBase64( data ) : data;
    a_attachment.m_mediaType = WellFormedType( head.section( QLatin1Char( ';' ), 0, 0 ) );
}

// An address such as http://… or cid:…
bool IsAddress( const QString& a_text )
{
    const auto colon = a_text.indexOf( QLatin1Char( ':' ) );
    return colon > 1 && std::all_of( a_text.begin(), a_text.begin() + colon, IsTokenCharacter );
}

} // namespace

PimVCardAttachment AttachmentOf( const PimVCardProperty& a_property )
{
    PimVCardAttachment attachment;
    attachment.m_mediaType = TypeOfCard( a_property );
    attachment.m_fileEnding = QStringLiteral( "bin" );
    const QString text = QStringList( a_property.GetValues() ).join( QLatin1Char( ';' ) ).trimmed();
    const bool isBase64 = EncodingOf( a_property ) == PimVCardEncoding::Base64;
    if ( IsDataUri( text ) )
        ReadDataUri( text, attachment );
    else if ( IsAddress( text ) )
        attachment.m_address = text;
    else
    {
        const QByteArray bytes = QByteArray::fromBase64( text.toLatin1() );
        if ( isBase64 || FindType( bytes ) != nullptr )
            attachment.m_bytes = bytes;
    }
    if ( const MediaType* const type = FindType( attachment.m_bytes ) )
    {
        attachment.m_mediaType = QLatin1String( type->m_type );
        attachment.m_fileEnding = QLatin1String( type->m_ending );
    }
    return attachment;
}

} // namespace PimManager::vCardImport
