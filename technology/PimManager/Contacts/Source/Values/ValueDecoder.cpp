#include "Values/ValueDecoder.h"

#include "Lines/KnownNames.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/CharsetChoice.h"
#include "Text/Codec.h"
#include "Text/EncodedCharset.h"
#include "Values/Base64Value.h"
#include "Values/ParameterMemory.h"
#include "Values/ParameterReader.h"
#include "Values/PlainParameters.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr Charset s_kUtf8( Charset::Id::Utf8 );

// The memory that a value needs is a few times its length.
constexpr size_t s_kLongValue = 2048;

bool IsWide( char a_byte )
{
    return static_cast<uchar>( a_byte ) >= 0x80;
}

bool IsSpecial( char a_byte )
{
    return a_byte == ';' || a_byte == ',' || a_byte == '\\';
}

quint32 FindWide( std::string_view a_text, quint32 a_begin, quint32 a_end )
{
    const auto* const end = a_text.data() + a_end;
    return static_cast<quint32>( std::find_if( a_text.data() + a_begin, end, IsWide ) - a_text.data() );
}

/// \return the position of the value of the first CHARSET in plain parameters. Empty if there is none.
ByteRange PlaceOfCharset( std::string_view a_parameters )
{
    for ( PlainParameters parameters( a_parameters ); parameters.Next(); )
    {
        const std::string_view name = parameters.Name().empty() ? NameOfBare( parameters.Value() ) : parameters.Name();
        if ( IsSameWord( name, s_kCharsetParameter ) )
        {
            const std::string_view value = parameters.Value();
            return { static_cast<quint32>( value.data() - a_parameters.data() ), static_cast<quint32>( value.size() ) };
        }
    }
    return ByteRange();
}

/// \return false if the parameters are not plain.
bool FindPlainCharset( std::string_view a_parameters, std::string_view& a_charset )
{
    thread_local ParameterMemory<ByteRange> t_places;
    const ByteRange* const known = t_places.Find( a_parameters, nullptr );
    if ( known == nullptr && !PlainParameters::AreIn( a_parameters ) )
        return false;
    const ByteRange place = known != nullptr ? *known : PlaceOfCharset( a_parameters );
    if ( known == nullptr )
        t_places.Remember( a_parameters, nullptr, place );
    a_charset = place.In( a_parameters );
    return true;
}

// The value of the first CHARSET parameter.
std::string_view NamedCharset( const IndexedLine& a_line, QByteArray& a_buffer )
{
    QByteArray unfolded;
    const std::string_view written = a_line.Parameters( unfolded );
    std::string_view charset;
    if ( unfolded.isEmpty() && ( written.empty() || FindPlainCharset( written, charset ) ) )
        return charset;
    ParameterReader parameters( written, a_line.m_card.m_record.Version() );
    Empty( a_buffer );
    bool isFound = false;
    while ( !isFound && parameters.Next() )
        isFound = IsSameWord( parameters.Name(), s_kCharsetParameter );
    if ( isFound )
        Append( a_buffer, parameters.Value() );
    return ViewOf( a_buffer );
}

// The character set in the index, for the bytes that are not QUOTED-PRINTABLE.
Charset RawCharset( const IndexedLine& a_line )
{
    const auto knownOr = []( Charset a_charset ) { return a_charset.IsKnown() ? a_charset : s_kUtf8; };
    switch ( a_line.m_entry.m_charset )
    {
    case LineCharset::Default:
        return knownOr( Charset::Of( a_line.m_card.m_defaultCharset ) );
    case LineCharset::Card:
        return knownOr( Charset::Of( a_line.m_card.Charset() ) );
    case LineCharset::Line:
    {
        QByteArray buffer;
        return knownOr( Charset::Of( NamedCharset( a_line, buffer ) ) );
    }
    case LineCharset::Iso2022Jp:
        return Charset( Charset::Id::Iso2022Jp );
    default:
        return s_kUtf8;
    }
}

// The card was found to be UTF-8 without the blanks of its folds. A blank that is kept may divide a character.
bool IsSurelyUtf8( const IndexedLine& a_line )
{
    const CardRecord& card = a_line.m_card.m_record;
    const bool mayBeDivided = a_line.IsContinued() && card.FoldStyle() == PimContactFoldStyle::BlankKept;
    return a_line.m_entry.m_charset == LineCharset::Utf8 && !card.Has( CardRecord::IsOtherCharset ) && !mayBeDivided;
}

bool IsAssumed( LineCharset a_charset )
{
    return a_charset == LineCharset::Default || a_charset == LineCharset::Card;
}

} // namespace

void ValueDecoder::Decode( const IndexedLine& a_line )
{
    if ( IsPlain( a_line ) )
    {
        m_isBase64Text = false;
        Clear();
        m_escaped = { a_line.ValueRange().In( a_line.m_text ), &m_literals };
        return;
    }
    if ( DecodeBase64Text( a_line ) )
        return;
    Clear();
    Unfold( a_line, a_line.ValueRange() );
    if ( a_line.m_entry.m_encoding == PimContactEncoding::QuotedPrintable )
        DecodeEncoded( a_line );
    else if ( !IsSurelyUtf8( a_line ) )
        DecodeRaw( a_line );
}

bool ValueDecoder::DecodeBase64Text( const IndexedLine& a_line )
{
    m_isBase64Text = false;
    if ( a_line.m_entry.m_encoding != PimContactEncoding::Base64 )
        return false;
    QByteArray buffer;
    if ( !IsKnownTextName( a_line.Name( buffer ) ) )
        return false;
    Clear();
    m_isLarge = m_isLarge || a_line.m_text.size() > s_kLongValue;
    const std::string_view named = NamedCharset( a_line, buffer );
    m_isBase64Text = Contacts::DecodeBase64Text( a_line, named, m_plain, m_utf8, m_findings );
    if ( m_isBase64Text )
        m_escaped = { ViewOf( m_utf8 ), &m_literals };
    return m_isBase64Text;
}

std::string_view ValueDecoder::Written( const IndexedLine& a_line, ByteRange a_range )
{
    Clear();
    Unfold( a_line, a_range );
    if ( !IsSurelyUtf8( a_line ) )
        DecodeRaw( a_line );
    return m_escaped.m_text;
}

std::string_view ValueDecoder::Undeclared( const IndexedLine& a_line )
{
    const bool isDefault = a_line.m_entry.m_charset == LineCharset::Default;
    const bool isEncoded = a_line.m_entry.m_encoding == PimContactEncoding::QuotedPrintable;
    if ( ( !isDefault && !isEncoded ) || a_line.m_entry.m_encoding == PimContactEncoding::Base64 )
        return std::string_view();
    m_runs.clear();
    m_literals.clear();
    Unfold( a_line, a_line.ValueRange() );
    bool isUndeclared = isDefault && !AreAllAscii( m_escaped.m_text );
    if ( isEncoded )
    {
        Empty( m_plain );
        DecodeQuotedPrintable( m_escaped.m_text, m_plain, m_runs );
        m_escaped.m_text = ViewOf( m_plain );
        isUndeclared = isUndeclared || IsEncodedDefault( a_line );
    }
    return isUndeclared ? m_escaped.m_text : std::string_view();
}

bool ValueDecoder::UsesDefault( const IndexedLine& a_line )
{
    const IndexEntry& entry = a_line.m_entry;
    const bool isRaw = entry.m_charset == LineCharset::Default && entry.m_encoding != PimContactEncoding::Base64;
    return isRaw || !Undeclared( a_line ).empty();
}

// Determines the character set of the bytes that were QUOTED-PRINTABLE.
bool ValueDecoder::IsEncodedDefault( const IndexedLine& a_line ) const
{
    if ( m_runs.empty() || !RawCharset( a_line ).ContainsAscii() || !IsKnownCharset( a_line.m_card.m_defaultCharset ) )
        return false;
    QByteArray buffer;
    const std::string_view named = NamedCharset( a_line, buffer );
    return EncodedCharsetOf( ViewOf( m_plain ), named, a_line.m_card.m_defaultCharset ).m_isAssumed;
}

std::string_view ValueDecoder::Text()
{
    if ( m_escaped.m_text.find( '\\' ) == std::string_view::npos )
        return m_escaped.m_text;
    PartReader reader = Parts( Delimiters::None );
    reader.Next();
    return reader.Text();
}

void ValueDecoder::Clear()
{
    m_findings.Clear();
    m_runs.clear();
    m_literals.clear();
}

void ValueDecoder::Unfold( const IndexedLine& a_line, ByteRange a_range )
{
    m_escaped.m_literals = &m_literals;
    m_escaped.m_text = a_range.In( a_line.m_text );
    m_isLarge = m_isLarge || a_range.m_length > s_kLongValue;
    if ( !a_line.IsContinued() )
        return;
    Empty( m_unfolded );
    a_line.AppendUnfolded( a_range, m_unfolded );
    m_escaped.m_text = ViewOf( m_unfolded );
}

void ValueDecoder::DecodeRaw( const IndexedLine& a_line )
{
    const std::string_view text = m_escaped.m_text;
    const Charset charset = RawCharset( a_line );
    m_findings.SetCharset( charset );
    if ( IsAssumed( a_line.m_entry.m_charset ) && !AreAllAscii( text ) )
    {
        m_findings.Add( PimContactDecodingProblem::AssumedCharset, -1 );
        if ( !IsWhiteSpace( NamedCharset( a_line, m_plain ) ) )
            m_findings.Add( PimContactDecodingProblem::UnknownCharset, -1 );
    }
    Convert( text, charset, charset );
}

void ValueDecoder::DecodeEncoded( const IndexedLine& a_line )
{
    Empty( m_plain );
    const QuotedPrintableFaults faults = DecodeQuotedPrintable( m_escaped.m_text, m_plain, m_runs );
    if ( faults.m_count > 0 )
        m_findings.Add( PimContactDecodingProblem::MalformedQuotedPrintable, faults.m_first, faults.m_count );
    if ( m_runs.empty() )
    {
        if ( !IsSurelyUtf8( a_line ) )
            DecodeRaw( a_line );
        return;
    }
    const std::string_view text = ViewOf( m_plain );
    const Charset raw = RawCharset( a_line );
    QByteArray buffer;
    const EncodedCharset choice =
        EncodedCharsetOf( text, NamedCharset( a_line, buffer ), a_line.m_card.m_defaultCharset );
    // An escape sequence changes the meaning of all bytes that follow.
    const Charset encoded = raw.ContainsAscii() ? choice.m_charset : raw;
    m_findings.SetCharset( encoded );
    if ( choice.m_isNameUnknown )
        m_findings.Add( PimContactDecodingProblem::UnknownCharset, -1 );
    const bool isRawUsed = Convert( text, encoded, raw );
    if ( choice.m_isAssumed || ( isRawUsed && IsAssumed( a_line.m_entry.m_charset ) ) )
        m_findings.Add( PimContactDecodingProblem::AssumedCharset, -1 );
}

/// Bytes beyond ASCII that were not encoded are in the character set of the line, with all that follows them up to the
/// next encoded byte. All other bytes are in that of the encoded ones: a character may consist of both, as `=83\` does
/// in Shift_JIS.
///
/// \return true if there were bytes of the first kind, in another character set than the second.
bool ValueDecoder::Convert( std::string_view a_text, Charset a_encoded, Charset a_raw )
{
    if ( a_encoded.IsUtf8() && IsValidUtf8( a_text ) )
    {
        NoteLiteralsOf( a_text );
        return false;
    }
    Empty( m_utf8 );
    m_run = 0;
    const auto size = static_cast<quint32>( a_text.size() );
    quint32 place = 0;
    bool isRawUsed = false;
    for ( size_t run = 0; a_encoded != a_raw && run <= m_runs.size(); ++run )
    {
        const quint32 rawEnd = run < m_runs.size() ? m_runs[run].m_begin : size;
        const quint32 wide = FindWide( a_text, run > 0 ? m_runs[run - 1].m_end : 0, rawEnd );
        if ( wide == rawEnd )
            continue;
        ConvertSegment( a_text, { place, wide - place }, a_encoded );
        ConvertSegment( a_text, { wide, rawEnd - wide }, a_raw );
        place = rawEnd;
        isRawUsed = true;
    }
    ConvertSegment( a_text, { place, size - place }, a_encoded );
    m_escaped.m_text = ViewOf( m_utf8 );
    return isRawUsed;
}

void ValueDecoder::ConvertSegment( std::string_view a_text, ByteRange a_segment, Charset a_charset )
{
    if ( a_segment.m_length == 0 )
        return;
    const auto outBegin = static_cast<quint32>( m_utf8.size() );
    m_places.clear();
    const DecodeResult result =
        DecodeTo( a_charset, a_segment.In( a_text ), m_utf8, m_runs.empty() ? nullptr : &m_places );
    if ( result.m_malformed > 0 )
        m_findings.Add( PimContactDecodingProblem::MalformedText, a_segment.m_begin + result.m_firstMalformed,
                        result.m_malformed );
    if ( result.m_isUnavailable && !m_findings.Problems().testFlag( PimContactDecodingProblem::MissingCodec ) )
        m_findings.Add( PimContactDecodingProblem::MissingCodec, -1 );
    if ( !m_runs.empty() )
        NoteLiterals( outBegin, a_segment.m_begin );
}

// For the text that was added to m_utf8 from a position on. m_places has the positions of its bytes in the segment.
void ValueDecoder::NoteLiterals( quint32 a_outBegin, quint32 a_segmentBegin )
{
    for ( size_t i = 0; i < m_places.size(); ++i )
    {
        const quint32 out = a_outBegin + static_cast<quint32>( i );
        if ( !IsSpecial( m_utf8.at( static_cast<int>( out ) ) ) )
            continue;
        const quint32 source = a_segmentBegin + m_places[i];
        while ( m_run < m_runs.size() && m_runs[m_run].m_end <= source )
            ++m_run;
        if ( m_run < m_runs.size() && m_runs[m_run].m_begin <= source )
            m_literals.push_back( out );
    }
}

// For a text that is already UTF-8.
void ValueDecoder::NoteLiteralsOf( std::string_view a_text )
{
    m_escaped.m_text = a_text;
    for ( const EncodedRun& run : m_runs )
    {
        for ( quint32 place = run.m_begin; place < run.m_end; ++place )
        {
            if ( IsSpecial( a_text[place] ) )
                m_literals.push_back( place );
        }
    }
}

} // namespace PimManager::Contacts
