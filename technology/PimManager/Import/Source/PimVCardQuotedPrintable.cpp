#include "PimVCardQuotedPrintable.h"

#include "PimVCardBytes.h"
#include "PimVCardCharset.h"
#include "PimVCardUtf8.h"

#include <QByteArray>
#include <QTextCodec>

namespace PimManager::vCardImport
{

namespace
{

constexpr ushort s_kAsciiEnd = 0x80;
constexpr int s_kHexBase = 16;

// What the card names is believed unless it cannot be: then UTF-8, and what is not that either is Windows-1252.
QByteArray Utf8Of( const QByteArray& a_bytes, QTextCodec* a_codec )
{
    const PimVCardUtf8Census census = Utf8CensusOf( ViewOf( a_bytes ) );
    if ( census.IsAscii() && a_codec == nullptr )
        return a_bytes;
    const PimVCardDecodedText text = DecodeCharset( ViewOf( a_bytes ), a_codec );
    if ( text.m_replaced == 0 )
        return text.m_utf8;
    if ( census.IsValid() )
        return a_bytes;
    const bool isCutShort = a_codec == nullptr && census.m_wide > census.m_malformed;
    return a_codec != nullptr || isCutShort ? text.m_utf8
                                            : DecodeCharset( ViewOf( a_bytes ), CodecOf( "windows-1252" ) ).m_utf8;
}

QString TextOfBytes( const QByteArray& a_bytes, QTextCodec* a_codec )
{
    return TextOfUtf8( ViewOf( Utf8Of( a_bytes, a_codec ) ) );
}

// The byte that is encoded at a place, -1 if none is.
int EncodedByteAt( const QString& a_value, int a_place )
{
    if ( a_value.at( a_place ) != QLatin1Char( '=' ) || a_place + 2 >= a_value.size() )
        return -1;
    const char high = a_value.at( a_place + 1 ).toLatin1();
    const char low = a_value.at( a_place + 2 ).toLatin1();
    const QStringView digits = QStringView( a_value ).mid( a_place + 1, 2 );
    return IsHexByte( high ) && IsHexByte( low ) ? digits.toInt( nullptr, s_kHexBase ) : -1;
}

} // namespace

QString DecodeQuotedPrintable( const QString& a_value, QTextCodec* a_codec )
{
    QString text;
    QByteArray bytes;
    for ( int place = 0; place < a_value.size(); ++place )
    {
        const QChar character = a_value.at( place );
        const int encoded = EncodedByteAt( a_value, place );
        if ( encoded >= 0 )
        {
            bytes += static_cast<char>( encoded );
            place += 2;
        }
        else if ( character.unicode() < s_kAsciiEnd )
            bytes += character.toLatin1();
        else
        {
            text += TextOfBytes( bytes, a_codec ) + character;
            bytes.clear();
        }
    }
    return text + TextOfBytes( bytes, a_codec );
}

} // namespace PimManager::vCardImport
