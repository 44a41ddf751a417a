#include "Json/BinaryJson.h"

#include "Text/Base64.h"
#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/MediaType.h"
#include "Values/BinaryValue.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kGroup = 4;
constexpr size_t s_kBytesOfGroup = 3;

/// 0 for the letters, digits and signs of BASE64, and 1 for all other bytes, including padding.
constexpr std::array<uchar, 256> FindOthers()
{
    std::array<uchar, 256> others = {};
    for ( size_t byte = 0; byte < others.size(); ++byte )
    {
        const bool isLetter = ( byte >= 'A' && byte <= 'Z' ) || ( byte >= 'a' && byte <= 'z' );
        const bool isDigit = byte >= '0' && byte <= '9';
        others[byte] = isLetter || isDigit || byte == '+' || byte == '/' ? 0 : 1;
    }
    return others;
}

constexpr std::array<uchar, 256> s_kOthers = FindOthers();

bool AreAllLetters( std::string_view a_text )
{
    constexpr size_t s_kRun = 8;
    const auto other = []( char a_byte ) { return static_cast<uint>( s_kOthers[static_cast<uchar>( a_byte )] ); };
    const char* place = a_text.data();
    const char* const end = place + a_text.size();
    uint others = 0;
    for ( ; static_cast<size_t>( end - place ) >= s_kRun; place += s_kRun )
        others |= other( place[0] ) | other( place[1] ) | other( place[2] ) | other( place[3] ) | other( place[4] ) |
                  other( place[5] ) | other( place[6] ) | other( place[7] );
    for ( ; place != end; ++place )
        others |= other( *place );
    return others == 0;
}

/// Removes the padding at the end. \return its length.
size_t RemovePadding( std::string_view& a_text )
{
    const size_t before = a_text.size();
    while ( !a_text.empty() && a_text.back() == '=' )
        a_text.remove_suffix( 1 );
    return before - a_text.size();
}

/// Copies BASE64 as long as it consists of complete groups, with padding only at the end. Line endings, and blanks at
/// both ends of a line, are left out.
/// \return false for any other text.
bool CopyBase64( const IndexedLine& a_line, JsonText& a_json )
{
    size_t length = 0;
    size_t padding = 0;
    for ( LinePieces pieces = a_line.Pieces( a_line.ValueRange() ); pieces.Next(); )
    {
        const std::string_view piece = Trimmed( pieces.Text() );
        std::string_view letters = piece;
        const bool isBehindPadding = padding > 0 && !piece.empty();
        padding += RemovePadding( letters );
        if ( isBehindPadding || !AreAllLetters( letters ) )
            return false;
        length += piece.size();
        a_json.Raw( piece );
    }
    return length % s_kGroup == 0 && padding < s_kBytesOfGroup && padding <= length;
}

/// \return the first bytes of BASE64.
QByteArray StartOf( std::string_view a_base64 )
{
    const std::string_view start = a_base64.substr( 0, s_kGroup * ( s_kSignatureBytes / s_kBytesOfGroup + 1 ) );
    QByteArray bytes;
    Base64Decoder decoder( start.size(), bytes );
    decoder.Take( start );
    decoder.Finish();
    return bytes.left( static_cast<int>( s_kSignatureBytes ) );
}

/// \return true if the excess bits of the last letter are zero, so that other readers accept them.
bool IsCanonical( std::string_view a_base64 )
{
    const std::string_view last = a_base64.substr( a_base64.size() - std::min( a_base64.size(), s_kGroup ) );
    QByteArray bytes;
    Base64Decoder decoder( last.size(), bytes );
    decoder.Take( last );
    decoder.Finish();
    return bytes.toBase64() == BytesOf( last );
}

size_t SizeOf( std::string_view a_base64 )
{
    std::string_view letters = a_base64;
    return a_base64.size() / s_kGroup * s_kBytesOfGroup - RemovePadding( letters );
}

/// Writes the members before the BASE64, which begins at a position.
/// \return the length of `mediaType` and `size`.
size_t WriteHead( size_t a_place, const QByteArray& a_mediaType, JsonText& a_json )
{
    QByteArray head;
    JsonText json( head );
    json.Raw( R"(,"mediaType":)" );
    json.String( ViewOf( a_mediaType ) );
    json.Raw( R"(,"size":)" );
    json.Number( static_cast<qint64>( SizeOf( a_json.From( a_place ) ) ) );
    const size_t length = json.Place();
    json.Raw( R"(,"data":")" );
    json.Finish();
    a_json.Insert( a_place, ViewOf( head ) );
    a_json.Raw( R"(")" );
    return length;
}

} // namespace

BinaryJson WriteBinary( const IndexedLine& a_line, const HeadJson& a_head, const ValueDecoder& a_decoder,
                        JsonText& a_json )
{
    if ( !IsBinary( a_line, a_decoder, a_head.IsMedia() ) )
        return {};
    const size_t place = a_json.Place();
    QByteArray mediaType;
    if ( !CopyBase64( a_line, a_json ) || !IsCanonical( a_json.From( place ) ) )
    {
        a_json.Remove( place );
        const PimContactBinary binary = DecodedBinary( a_line );
        if ( binary.IsDamaged() )
            return { false, binary.FaultPlace(), 0, 0 };
        mediaType = MediaTypeNamed( ViewOf( binary.MediaType() ) );
        a_json.Raw( ViewOf( binary.Bytes().toBase64() ) );
    }
    const std::string_view known = MediaTypeBySignature( ViewOf( StartOf( a_json.From( place ) ) ) );
    if ( !known.empty() )
        mediaType = BytesOf( known );
    else if ( mediaType.isEmpty() )
        mediaType = BytesOf( a_head.MediaType() );
    const size_t length = WriteHead( place, mediaType, a_json );
    return { true, -1, place, length };
}

} // namespace PimManager::Contacts
