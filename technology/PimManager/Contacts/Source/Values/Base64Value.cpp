#include "Values/Base64Value.h"

#include "Text/Base64.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/Codec.h"
#include "Text/EncodedCharset.h"

namespace PimManager::Contacts
{

namespace
{

// Of UTF-8.
bool HasControlCharacters( std::string_view a_text )
{
    constexpr char s_kDelete = '\x7F';
    constexpr char s_kLeadOfC1 = '\xC2';
    constexpr uchar s_kBehindC1 = 0xA0;
    for ( size_t place = 0; place < a_text.size(); ++place )
    {
        const char byte = a_text[place];
        const bool isC1 =
            byte == s_kLeadOfC1 && place + 1 < a_text.size() && static_cast<uchar>( a_text[place + 1] ) < s_kBehindC1;
        if ( isC1 || byte == s_kDelete || ( IsControlByte( byte ) && !IsLineEndByte( byte ) ) )
            return true;
    }
    return false;
}

/// \return false if a byte belongs to no character.
bool ConvertToUtf8( Charset a_charset, QByteArray& a_bytes, QByteArray& a_text )
{
    if ( !a_charset.IsUtf8() )
        return DecodeTo( a_charset, ViewOf( a_bytes ), a_text ).m_malformed == 0;
    a_text.swap( a_bytes );
    return IsValidUtf8( ViewOf( a_text ) );
}

} // namespace

// A picture has thousands of lines. Folds are white space, which the decoder ignores; the position of a fault does not
// count them.
qint64 DecodeBase64Value( const IndexedLine& a_line, QByteArray& a_bytes )
{
    const ByteRange value = a_line.ValueRange();
    const auto before = a_bytes.size();
    if ( a_line.m_entry.m_joins.m_size == 0 )
    {
        Base64Decoder decoder( value.m_length, a_bytes );
        decoder.Take( value.In( a_line.m_text ) );
        if ( decoder.Finish() )
            return decoder.FaultPlace();
        a_bytes.resize( before );
    }
    Base64Decoder decoder( value.m_length, a_bytes );
    LinePieces pieces = a_line.Pieces( value );
    bool isSound = true;
    while ( isSound && pieces.Next() )
        isSound = decoder.Take( pieces.Text() );
    decoder.Finish();
    return decoder.FaultPlace();
}

bool DecodeBase64Text( const IndexedLine& a_line, std::string_view a_named, QByteArray& a_bytes, QByteArray& a_text,
                       Findings& a_findings )
{
    Empty( a_bytes );
    Empty( a_text );
    if ( DecodeBase64Value( a_line, a_bytes ) >= 0 )
        return false;
    const EncodedCharset choice = EncodedCharsetOf( ViewOf( a_bytes ), a_named, std::string_view() );
    if ( choice.m_isAssumed || !ConvertToUtf8( choice.m_charset, a_bytes, a_text ) ||
         HasControlCharacters( ViewOf( a_text ) ) )
        return false;
    a_text.replace( "\r\n", "\n" );
    a_findings.SetCharset( choice.m_charset );
    if ( choice.m_isNameUnknown )
        a_findings.Add( PimContactDecodingProblem::UnknownCharset, -1 );
    return true;
}

} // namespace PimManager::Contacts
