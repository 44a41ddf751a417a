#include "Values/BinaryValue.h"

#include "Lines/KnownNames.h"
#include "Text/Base64.h"
#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/MediaType.h"
#include "Text/PercentEncoding.h"
#include "Values/Base64Value.h"
#include "Values/ValueDecoder.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr std::string_view s_kDataScheme = "data:";
constexpr std::string_view s_kBase64 = "base64";
// Enough for the longest signature, in BASE64.
constexpr size_t s_kStart = 24;

constexpr std::array s_kSounds = { "RIFF"sv, "OggS"sv, "ID3"sv, "#!AMR"sv, "MThd"sv, "fLaC"sv, ".snd"sv };
// Armoured keys, certificates in DER, and public keys of OpenPGP.
constexpr std::array s_kKeys = { "-----BEGIN "sv, "\x30\x82"sv, "\x99\x01"sv, "\x99\x02"sv };

template <size_t s_kSize>
bool StartsWithOneOf( std::string_view a_bytes, const std::array<std::string_view, s_kSize>& a_starts )
{
    return std::any_of( a_starts.begin(), a_starts.end(),
                        [a_bytes]( std::string_view a_start )
                        { return a_bytes.substr( 0, a_start.size() ) == a_start; } );
}

/// The first characters of a value, without blanks and backslashes.
class ValueStart
{
public:
    explicit ValueStart( const IndexedLine& a_line );
    std::string_view Text() const { return std::string_view( m_text.data(), m_size ); }

private:
    void Take( std::string_view a_piece );

    std::array<char, s_kStart> m_text;
    size_t m_size = 0;
};

ValueStart::ValueStart( const IndexedLine& a_line )
{
    LinePieces pieces = a_line.Pieces( a_line.ValueRange() );
    while ( m_size < s_kStart && pieces.Next() )
        Take( pieces.Text().substr( 0, 2 * s_kStart ) );
}

void ValueStart::Take( std::string_view a_piece )
{
    for ( size_t place = 0; place < a_piece.size() && m_size < s_kStart; ++place )
    {
        if ( !IsBlank( a_piece[place] ) && a_piece[place] != '\\' )
            m_text.at( m_size++ ) = a_piece[place];
    }
}

bool IsDataUri( std::string_view a_text )
{
    return IsSameWord( a_text.substr( 0, s_kDataScheme.size() ), s_kDataScheme );
}

/// \return the bytes that the first characters of BASE64 encode; empty if they are too few, or not BASE64.
QByteArray SignatureOf( std::string_view a_base64 )
{
    QByteArray start;
    Base64Decoder decoder( a_base64.size(), start );
    decoder.Take( a_base64 );
    if ( !decoder.Finish() || static_cast<size_t>( start.size() ) < s_kSignatureBytes )
        return QByteArray();
    return start.left( static_cast<int>( s_kSignatureBytes ) );
}

bool HasKnownSignature( std::string_view a_base64 )
{
    const QByteArray start = SignatureOf( a_base64 );
    const std::string_view bytes = ViewOf( start );
    return !start.isEmpty() && ( FileKindBySignature( bytes ) == PimContactFileKind::Image ||
                                 StartsWithOneOf( bytes, s_kSounds ) || StartsWithOneOf( bytes, s_kKeys ) );
}

void DecodeBase64( std::string_view a_text, BinaryData& a_data )
{
    Base64Decoder decoder( a_text.size(), a_data.m_bytes );
    decoder.Take( a_text );
    decoder.Finish();
    a_data.m_faultPlace = decoder.FaultPlace();
}

void DecodePercents( std::string_view a_text, BinaryData& a_data )
{
    size_t fault = a_text.find( '%' );
    while ( fault != std::string_view::npos && PercentByte( a_text, fault ) >= 0 )
        fault = a_text.find( '%', fault + 1 );
    if ( fault != std::string_view::npos )
        a_data.m_faultPlace = static_cast<qint64>( fault );
    AppendPercentDecoded( a_text.substr( 0, fault ), a_data.m_bytes );
}

void DecodePercentsAndBase64( std::string_view a_text, BinaryData& a_data )
{
    BinaryData plain;
    DecodePercents( a_text, plain );
    DecodeBase64( plain.m_faultPlace < 0 ? ViewOf( plain.m_bytes ) : a_text, a_data );
}

void DecodeDataUri( std::string_view a_uri, BinaryData& a_data )
{
    const std::string_view rest = a_uri.substr( s_kDataScheme.size() );
    const size_t comma = rest.find( ',' );
    if ( comma == std::string_view::npos )
    {
        a_data.m_faultPlace = 0;
        return;
    }
    const std::string_view header = rest.substr( 0, comma );
    const std::string_view data = rest.substr( comma + 1 );
    const size_t lastPart = header.rfind( ';' );
    const std::string_view last =
        Trimmed( lastPart == std::string_view::npos ? header : header.substr( lastPart + 1 ) );
    const bool isBase64 = IsSameWord( last, s_kBase64 );
    const std::string_view mediaType = Trimmed( header.substr( 0, header.find( ';' ) ) );
    if ( !IsSameWord( mediaType, s_kBase64 ) )
        a_data.m_mediaType = BytesOf( mediaType );
    if ( !isBase64 )
        DecodePercents( data, a_data );
    else if ( data.find( '%' ) == std::string_view::npos )
        DecodeBase64( data, a_data );
    else
        DecodePercentsAndBase64( data, a_data );
}

} // namespace

PimContactBinary PimContactBinaryPrivate::Create( const BinaryData& a_data )
{
    PimContactBinary binary;
    static_cast<BinaryData&>( *binary.d ) = a_data;
    return binary;
}

bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder, bool a_isMedia )
{
    if ( a_line.m_entry.m_encoding == PimContactEncoding::Base64 )
        return !a_decoder.IsBase64Text();
    if ( !MayBeBinary( a_line, a_isMedia ) )
        return false;
    const ValueStart start( a_line );
    return IsDataUri( start.Text() ) || ( a_isMedia && HasKnownSignature( start.Text() ) );
}

bool IsBinary( const IndexedLine& a_line, const ValueDecoder& a_decoder )
{
    QByteArray buffer;
    return IsBinary( a_line, a_decoder, IsMediaName( a_line.Name( buffer ) ) );
}

bool IsBinary( const IndexedLine& a_line )
{
    ValueDecoder decoder;
    decoder.DecodeBase64Text( a_line );
    return IsBinary( a_line, decoder );
}

QByteArray DetectedTypeOf( const IndexedLine& a_line )
{
    const ValueStart start( a_line );
    const QByteArray signature = IsDataUri( start.Text() ) ? QByteArray() : SignatureOf( start.Text() );
    return signature.isEmpty() ? DecodedBinary( a_line ).DetectedType()
                               : BytesOf( MediaTypeBySignature( ViewOf( signature ) ) );
}

QByteArray NamedTypeOf( const IndexedLine& a_line )
{
    return IsDataUri( ValueStart( a_line ).Text() ) ? DecodedBinary( a_line ).MediaType() : QByteArray();
}

PimContactBinary DecodedBinary( const IndexedLine& a_line )
{
    BinaryData data;
    data.m_isNull = false;
    const bool isDataUri = IsDataUri( ValueStart( a_line ).Text() );
    if ( !isDataUri && a_line.m_entry.m_encoding == PimContactEncoding::Base64 )
        data.m_faultPlace = DecodeBase64Value( a_line, data.m_bytes );
    else
    {
        ValueDecoder decoder;
        decoder.Decode( a_line );
        const std::string_view text = TrimmedLeft( decoder.Text() );
        if ( isDataUri )
            DecodeDataUri( text, data );
        else
            DecodeBase64( text, data );
    }
    return PimContactBinaryPrivate::Create( data );
}

PimContactBinary BinaryOf( const IndexedLine& a_line )
{
    return IsBinary( a_line ) ? DecodedBinary( a_line ) : PimContactBinary();
}

} // namespace PimManager::Contacts
