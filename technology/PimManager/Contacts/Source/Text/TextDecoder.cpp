#include "Text/TextDecoder.h"

#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/Utf8Encoding.h"

#include <QChar>

#include <utility>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

constexpr size_t s_kDecisiveBytes = 4;
constexpr uint s_kReplacement = QChar::ReplacementCharacter;

std::string_view ViewOf( const std::vector<char>& a_bytes )
{
    return std::string_view( a_bytes.data(), a_bytes.size() );
}

bool HasMark( std::string_view a_start, std::string_view a_mark )
{
    return a_start.substr( 0, a_mark.size() ) == a_mark;
}

// ASCII in UTF-16: one of each two bytes is zero, always the first or always the second.
bool HasNulPattern( std::string_view a_start, size_t a_zero )
{
    const std::string_view start = a_start.substr( 0, s_kDecisiveBytes );
    for ( size_t place = 0; place < start.size(); ++place )
    {
        if ( ( start[place] == '\0' ) != ( place % 2 == a_zero ) )
            return false;
    }
    return start.size() >= 2;
}

} // namespace

void TextDecoder::Reset()
{
    *this = TextDecoder();
}

std::string_view TextDecoder::Decode( std::string_view a_piece )
{
    if ( m_form != Form::Undecided )
    {
        // The text that the last call may have returned.
        m_first = std::vector<char>();
        return Converted( a_piece );
    }
    const bool isPieceEnough = m_first.empty() && a_piece.size() >= s_kSignatureBytes;
    if ( !isPieceEnough )
        m_first.insert( m_first.end(), a_piece.begin(), a_piece.end() );
    const std::string_view start = isPieceEnough ? a_piece : ViewOf( m_first );
    if ( start.size() < s_kSignatureBytes )
        return {};
    Decide( start );
    return Converted( start );
}

std::string_view TextDecoder::Finish()
{
    const bool isUndecided = m_form == Form::Undecided;
    if ( isUndecided )
        Decide( ViewOf( m_first ) );
    const std::string_view text = Converted( isUndecided ? ViewOf( m_first ) : ""sv );
    if ( !IsUtf16() )
        return text;
    EndUnits();
    return ConvertedText();
}

QByteArray TextDecoder::Charset() const
{
    switch ( m_form )
    {
    case Form::LittleEndian:
        return QByteArrayLiteral( "UTF-16LE" );
    case Form::BigEndian:
        return QByteArrayLiteral( "UTF-16BE" );
    default:
        return m_evidence == PimContactEvidence::ByteOrderMark ? QByteArrayLiteral( "UTF-8" ) : QByteArray();
    }
}

void TextDecoder::Decide( std::string_view a_start )
{
    SetForm( Form::Bytes, PimContactEvidence::None );
    m_refusedKind = FileKindBySignature( a_start );
    if ( m_refusedKind != PimContactFileKind::Unknown )
        return;
    if ( HasMark( a_start, s_kByteOrderMark ) )
        SetForm( Form::Bytes, PimContactEvidence::ByteOrderMark );
    else if ( HasMark( a_start, "\xFF\xFE"sv ) )
        SetForm( Form::LittleEndian, PimContactEvidence::ByteOrderMark );
    else if ( HasMark( a_start, "\xFE\xFF"sv ) )
        SetForm( Form::BigEndian, PimContactEvidence::ByteOrderMark );
    else if ( HasNulPattern( a_start, 1 ) )
        SetForm( Form::LittleEndian, PimContactEvidence::NulPattern );
    else if ( HasNulPattern( a_start, 0 ) )
        SetForm( Form::BigEndian, PimContactEvidence::NulPattern );
}

void TextDecoder::SetForm( Form a_form, PimContactEvidence a_evidence )
{
    m_form = a_form;
    m_evidence = a_evidence;
}

std::string_view TextDecoder::Converted( std::string_view a_bytes )
{
    if ( m_form == Form::Bytes )
        return a_bytes;
    MakeRoomFor( a_bytes.size() );
    if ( m_hasHalfUnit && !a_bytes.empty() )
    {
        TakeUnit( m_halfUnit, a_bytes.front() );
        m_hasHalfUnit = false;
        a_bytes.remove_prefix( 1 );
    }
    for ( ; a_bytes.size() >= 2; a_bytes.remove_prefix( 2 ) )
        TakeUnit( a_bytes[0], a_bytes[1] );
    if ( !a_bytes.empty() )
    {
        m_halfUnit = a_bytes.front();
        m_hasHalfUnit = true;
    }
    return ConvertedText();
}

std::string_view TextDecoder::ConvertedText() const
{
    return std::string_view( m_buffer.data(), static_cast<size_t>( m_end - m_buffer.data() ) );
}

// A unit becomes at most three bytes. An unfinished unit and a surrogate of the previous piece may be added to it.
void TextDecoder::MakeRoomFor( size_t a_bytes )
{
    const size_t room = 3 * ( a_bytes / 2 + 2 );
    if ( m_buffer.size() < room )
        m_buffer.resize( room );
    m_end = m_buffer.data();
}

inline void TextDecoder::TakeUnit( char a_first, char a_second )
{
    const auto first = static_cast<uchar>( a_first );
    const auto second = static_cast<uchar>( a_second );
    const auto unit = static_cast<char16_t>( m_form == Form::BigEndian ? first << 8 | second : second << 8 | first );
    if ( unit < 0x80 && m_highSurrogate == 0 )
        *m_end++ = static_cast<char>( unit );
    else
        TakeWideUnit( unit );
}

void TextDecoder::TakeWideUnit( char16_t a_unit )
{
    const char16_t high = std::exchange( m_highSurrogate, u'\0' );
    if ( high != 0 && QChar::isLowSurrogate( a_unit ) )
    {
        Append( QChar::surrogateToUcs4( high, a_unit ) );
        return;
    }
    if ( high != 0 )
        Append( s_kReplacement );
    if ( QChar::isHighSurrogate( a_unit ) )
        m_highSurrogate = a_unit;
    else
        Append( QChar::isLowSurrogate( a_unit ) ? s_kReplacement : a_unit );
}

void TextDecoder::EndUnits()
{
    if ( m_highSurrogate != 0 )
        Append( s_kReplacement );
    if ( m_hasHalfUnit )
        Append( s_kReplacement );
    m_highSurrogate = 0;
    m_hasHalfUnit = false;
}

void TextDecoder::Append( uint a_character )
{
    m_end = WriteUtf8( a_character, m_end );
}

} // namespace PimManager::Contacts
