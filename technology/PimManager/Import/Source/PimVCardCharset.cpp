#include "PimVCardCharset.h"

#include "PimVCardBytes.h"
#include "PimVCardUtf8.h"

#include <QString>
#include <QTextCodec>

namespace PimManager::vCardImport
{

namespace
{

constexpr size_t s_kLongestName = 40;

bool IsUnicodeOrAscii( std::string_view a_name )
{
    return IsSameWord( a_name, "UTF-8" ) || IsSameWord( a_name, "UTF8" ) || IsSameWord( a_name, "US-ASCII" ) ||
           IsSameWord( a_name, "ASCII" ) || IsSameWord( a_name.substr( 0, 6 ), "UTF-16" ) ||
           IsSameWord( a_name.substr( 0, 6 ), "UTF-32" );
}

// Bytes that are no character become one U+FFFD each.
PimVCardDecodedText DecodeUtf8( std::string_view a_bytes )
{
    PimVCardDecodedText text;
    while ( !a_bytes.empty() )
    {
        const auto length = static_cast<size_t>( Utf8LengthOfFirst( a_bytes ) );
        if ( length > 0 )
            Append( text.m_utf8, a_bytes.substr( 0, length ) );
        else
            text.m_utf8 += "\xEF\xBF\xBD";
        text.m_replaced += length > 0 ? 0 : 1;
        a_bytes.remove_prefix( length > 0 ? length : 1 );
    }
    return text;
}

} // namespace

QTextCodec* CodecOf( std::string_view a_charset )
{
    const std::string_view name = Trimmed( a_charset );
    if ( name.empty() || name.size() > s_kLongestName || IsUnicodeOrAscii( name ) )
        return nullptr;
    return QTextCodec::codecForName( BytesOf( name ) );
}

PimVCardDecodedText DecodeCharset( std::string_view a_bytes, QTextCodec* a_codec )
{
    if ( a_codec == nullptr )
        return DecodeUtf8( a_bytes );
    QTextCodec::ConverterState state( QTextCodec::IgnoreHeader );
    const QString text = a_codec->toUnicode( a_bytes.data(), static_cast<int>( a_bytes.size() ), &state );
    PimVCardDecodedText decoded;
    decoded.m_utf8 = text.toUtf8();
    decoded.m_replaced = static_cast<int>( text.count( QChar( QChar::ReplacementCharacter ) ) );
    return decoded;
}

} // namespace PimManager::vCardImport
