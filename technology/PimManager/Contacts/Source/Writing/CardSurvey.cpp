#include "Writing/CardSurvey.h"

#include "Lines/KnownNames.h"
#include "Text/Bytes.h"
#include "Writing/PropertyReader.h"

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

constexpr std::string_view s_kBegin = "BEGIN:VCARD\r\n";
constexpr std::string_view s_kEnd = "END:VCARD\r\n";
constexpr std::string_view s_kLineEnd = "\r\n";

// Blank lines may precede the card.
bool MayHoldCard( const IndexReader& a_reader )
{
    return !a_reader.AtEnd() && ( a_reader.NextKind() == EntryKind::Nested || a_reader.NextKind() == EntryKind::Blank );
}

} // namespace

void CardSurvey::Begin( const PimContactCard& a_card, PimContactVersion a_target, bool a_isCopying )
{
    m_card = LineView::CardOf( a_card );
    m_step = { KnownVersion( m_card.m_record.Version() ), a_target };
    m_isCopying = a_isCopying;
    m_isClean = a_isCopying && m_card.m_record.Has( CardRecord::HasBegin ) &&
                m_card.m_record.Has( CardRecord::HasEnd ) && !a_card.IsNested();
    m_bytes = a_isCopying ? ByteFlagsOf( PimContactCardPrivate::BytesOf( a_card ) ) : ByteFlags();
    m_heads = &HeadMemory::OfThread();
    m_parts.clear();
    m_properties.reset();
    m_lines = 0;
    m_versions = 0;
    m_isVersionFirst = false;
    m_boundaries = 0;
    m_isBehindBase64 = false;
}

void CardSurvey::Note( const SurveyedPart& a_line )
{
    if ( a_line.m_property == PropertyId::Version )
    {
        m_isVersionFirst = m_isVersionFirst || m_lines == 0;
        ++m_versions;
    }
    ++m_lines;
    m_properties[static_cast<size_t>( a_line.m_property )] = true;
    m_isBehindBase64 = a_line.m_isBase64 && m_step.m_target == PimContactVersion::V21;
    m_isClean = m_isClean && ( a_line.m_cleanness == Cleanness::Full || a_line.m_cleanness == Cleanness::WithCard );
}

/// \return false if the group or the value of a line may not be clean.
bool CardSurvey::HasCleanText( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                               const HeadMeaning& a_meaning ) const
{
    const auto has = []( std::string_view a_text, char a_byte )
    { return a_text.find( a_byte ) != std::string_view::npos; };
    if ( !m_bytes.IsAsciiWithoutDelete() && !ByteFlagsOf( a_bytes ).IsAsciiWithoutDelete() )
        return false;
    if ( a_line.m_name.m_begin > 0 && has( a_bytes.substr( 0, a_line.m_name.m_begin - 1 ), '.' ) )
        return false;
    if ( m_step.m_target == PimContactVersion::V21 )
        return true;
    const std::string_view value = a_bytes.substr( a_line.m_parameters.End() + 1 );
    // It may be a URI.
    const bool isOddMail = a_meaning.m_property == PropertyId::Email && has( value, ':' );
    return !isOddMail && !( a_meaning.m_hasEscapedSemicolons && has( value, ';' ) ) &&
           !( m_bytes.m_hasBackslash && value.find( "\\:" ) != std::string_view::npos );
}

/// \param a_reader a reader at the part after the line.
/// \return false if the line must be examined further.
bool CardSurvey::TakePlainLine( const IndexReader& a_reader, LinePlace a_place, const IndexReader::PlainLine& a_line )
{
    const std::string_view bytes( m_card.m_bytes.data() + a_place.m_begin, a_line.m_length );
    const bool isHeadFolded = a_line.m_hasFolds && HeadOf( bytes, a_line ).find( '\n' ) != std::string_view::npos;
    if ( isHeadFolded || MayHoldCard( a_reader ) )
        return false;
    const HeadMeaning& meaning = MeaningOf( bytes, a_line );
    if ( m_isCopying && ( meaning.m_isMedia || !HasCleanText( bytes, a_line, meaning ) ) )
        return false;
    SurveyedPart& part = m_parts.emplace_back();
    part.m_place = a_place;
    part.m_length = a_line.m_length;
    part.m_property = meaning.m_property;
    part.m_isPlain = true;
    if ( m_isCopying && meaning.m_isLegal )
        part.m_cleanness = CleanLine::OfPlain( bytes, a_line, m_card.m_record.FoldStyle(), m_step.m_target );
    Note( part );
    return true;
}

void CardSurvey::Read( const PimContactCard& a_card, PimContactVersion a_target, bool a_isCopying )
{
    Begin( a_card, a_target, a_isCopying );
    quint32 begin = m_card.m_record.m_begin;
    for ( IndexReader reader = EntriesOf( m_card.m_index, m_card.m_place ); !reader.AtEnd(); )
    {
        const LinePlace place = { reader.Place(), begin };
        if ( reader.IsPlain() )
        {
            const IndexReader::PlainLine line = reader.SkipPlain();
            begin += line.m_length;
            if ( !TakePlainLine( reader, place, line ) )
                TakeOtherLine( place );
            continue;
        }
        const IndexReader::Outline part = reader.Skip();
        begin += part.m_length;
        TakeOther( place, part );
    }
}

void CardSurvey::TakeOther( LinePlace a_place, const IndexReader::Outline& a_part )
{
    const std::string_view bytes( m_card.m_bytes.data() + a_place.m_begin, a_part.m_length );
    switch ( a_part.m_kind )
    {
    case EntryKind::Line:
        return TakeOtherLine( a_place );
    case EntryKind::Boundary:
        return TakeBoundary( bytes );
    case EntryKind::Blank:
        m_isClean = m_isClean && m_isBehindBase64 && bytes == s_kLineEnd;
        m_isBehindBase64 = false;
        return;
    case EntryKind::Dropped:
        m_parts.push_back( { a_place, a_part.m_length } );
        m_parts.back().m_isDropped = true;
        [[fallthrough]];
    default:
        m_isClean = false;
    }
}

void CardSurvey::TakeOtherLine( LinePlace a_place )
{
    LineCursor cursor( m_card );
    cursor.StepTo( a_place );
    cursor.NextPart();
    const IndexEntry& entry = cursor.Line().m_entry;
    SurveyedPart& part = m_parts.emplace_back();
    part.m_place = a_place;
    part.m_length = entry.m_length;
    part.m_property = PropertyNamed( cursor.Name() );
    part.m_isBase64 = entry.m_encoding == PimContactEncoding::Base64;
    CardView nested;
    if ( m_isCopying && !cursor.FindNested( nested ) )
        part.m_cleanness = m_clean.Of( cursor.Line(), part.m_property, m_step.m_target );
    Note( part );
}

void CardSurvey::TakeBoundary( std::string_view a_bytes )
{
    const std::string_view usual = m_boundaries == 0 ? s_kBegin : s_kEnd;
    m_isClean = m_isClean && ( a_bytes == usual || IsSameWord( a_bytes, usual ) );
    ++m_boundaries;
}

bool CardSurvey::IsCopy() const
{
    const bool isVersionInPlace = m_versions == 1 && ( m_isVersionFirst || m_step.m_target != PimContactVersion::V40 );
    return m_isClean && isVersionInPlace && m_card.m_record.Version() != PimContactVersion::Unknown && HasNames();
}

bool CardSurvey::HasNames() const
{
    const bool needsFn = m_step.m_target != PimContactVersion::V21;
    const bool needsN = m_step.m_target != PimContactVersion::V40;
    return ( !needsFn || Has( PropertyId::Fn ) ) && ( !needsN || Has( PropertyId::N ) );
}

} // namespace PimManager::Contacts
