#include "PimVCardTextDecoder.h"

#include <QString>
#include <QTextCodec>

namespace PimManager::vCardImport
{

namespace
{

constexpr int s_kDecisiveBytes = 4;

bool IsZeroAt( const QByteArray& a_bytes, int a_place )
{
    return a_place < a_bytes.size() && a_bytes.at( a_place ) == '\0';
}

// ASCII in UTF-16: every other byte is zero, and these only.
bool HasNulsAt( const QByteArray& a_bytes, int a_first )
{
    const int other = 1 - a_first;
    if ( a_bytes.size() < 2 || !IsZeroAt( a_bytes, a_first ) || IsZeroAt( a_bytes, other ) )
        return false;
    return a_bytes.size() < s_kDecisiveBytes || ( IsZeroAt( a_bytes, a_first + 2 ) && !IsZeroAt( a_bytes, other + 2 ) );
}

// Makes each half of a pair that stands alone the replacement character.
qint64 ReplaceLoneSurrogates( QString& a_text )
{
    qint64 replaced = 0;
    for ( int i = 0; i < a_text.size(); ++i )
    {
        if ( !a_text.at( i ).isSurrogate() )
            continue;
        const bool isPair =
            a_text.at( i ).isHighSurrogate() && i + 1 < a_text.size() && a_text.at( i + 1 ).isLowSurrogate();
        if ( isPair )
        {
            ++i;
            continue;
        }
        a_text[i] = QChar( QChar::ReplacementCharacter );
        ++replaced;
    }
    return replaced;
}

} // namespace

PimVCardTextDecoder::PimVCardTextDecoder() = default;
PimVCardTextDecoder::~PimVCardTextDecoder() = default;

QByteArray PimVCardTextDecoder::Decode( const QByteArray& a_piece )
{
    if ( m_isDecided )
        return IsUtf16() ? DecodeUtf16( a_piece ) : a_piece;
    m_first += a_piece;
    if ( m_first.size() < s_kDecisiveBytes )
        return QByteArray();
    Decide();
    const QByteArray rest = m_first.mid( m_markLength );
    m_first.clear();
    return IsUtf16() ? DecodeUtf16( rest ) : rest;
}

void PimVCardTextDecoder::Decide()
{
    m_isDecided = true;
    if ( m_first.startsWith( "\xEF\xBB\xBF" ) )
    {
        m_charset = QByteArrayLiteral( "UTF-8" );
        m_evidence = PimVCardEvidence::ByteOrderMark;
        m_markLength = 3;
    }
    else if ( m_first.startsWith( "\xFF\xFE" ) )
        BeginUtf16( "UTF-16LE", 2 );
    else if ( m_first.startsWith( "\xFE\xFF" ) )
        BeginUtf16( "UTF-16BE", 2 );
    else if ( HasNulsAt( m_first, 1 ) )
        BeginUtf16( "UTF-16LE", 0 );
    else if ( HasNulsAt( m_first, 0 ) )
        BeginUtf16( "UTF-16BE", 0 );
}

void PimVCardTextDecoder::BeginUtf16( const char* a_charset, int a_markLength )
{
    QTextCodec* const codec = QTextCodec::codecForName( a_charset );
    m_decoder.reset( codec->makeDecoder( QTextCodec::IgnoreHeader ) );
    m_charset = a_charset;
    m_markLength = a_markLength;
    m_evidence = a_markLength > 0 ? PimVCardEvidence::ByteOrderMark : PimVCardEvidence::NulPattern;
}

QByteArray PimVCardTextDecoder::DecodeUtf16( const QByteArray& a_bytes )
{
    QString text = m_pendingUnit + m_decoder->toUnicode( a_bytes );
    m_isHalfUnit = m_isHalfUnit != ( a_bytes.size() % 2 != 0 );
    m_pendingUnit.clear();
    if ( !text.isEmpty() && text.at( text.size() - 1 ).isHighSurrogate() )
    {
        m_pendingUnit = text.right( 1 );
        text.chop( 1 );
    }
    m_replaced += ReplaceLoneSurrogates( text );
    return text.toUtf8();
}

QByteArray PimVCardTextDecoder::Finish()
{
    QByteArray rest;
    if ( !m_isDecided )
    {
        Decide();
        rest = m_first.mid( m_markLength );
        m_first.clear();
        if ( IsUtf16() )
            rest = DecodeUtf16( rest );
    }
    const int replaced = ( m_pendingUnit.isEmpty() ? 0 : 1 ) + ( m_isHalfUnit ? 1 : 0 );
    m_replaced += replaced;
    m_pendingUnit.clear();
    m_isHalfUnit = false;
    return rest + QString( replaced, QChar( QChar::ReplacementCharacter ) ).toUtf8();
}

} // namespace PimManager::vCardImport
