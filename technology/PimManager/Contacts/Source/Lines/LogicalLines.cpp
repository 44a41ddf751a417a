#include "Lines/LogicalLines.h"

#include "Lines/FoldLength.h"
#include "Lines/KnownNames.h"
#include "Lines/LinePieces.h"
#include "Lines/ValueEscapes.h"
#include "Text/Bytes.h"
#include "Text/Utf8Census.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kEncodedBreak = "=0D=0A";
constexpr std::string_view s_kVersion = "VERSION";
constexpr size_t s_kBase64Group = 4;
constexpr int s_kMostEmptyLines = 2;

bool IsPicture( std::string_view a_name )
{
    return IsSameWord( a_name, "PHOTO" ) || IsSameWord( a_name, "LOGO" );
}

// A line of dashes or a comment may be part of a note, but not of a name.
bool BeginsWithWord( std::string_view a_text )
{
    const char first = a_text.front();
    return ( first != '-' && IsNameByte( first ) ) || static_cast<uchar>( first ) >= 0x80;
}

LineLooks LooksOf( std::string_view a_text )
{
    return LooksOf( LineHead::Of( a_text ), a_text );
}

// From positions in an unfolded text to positions in the text with its folds.
class PlaceMap
{
public:
    void Add( quint32 a_unfolded, quint32 a_folded ) { m_places.emplace_back( a_unfolded, a_folded ); }

    quint32 Folded( quint32 a_unfolded ) const
    {
        const auto isBehind = []( quint32 a_place, const std::pair<quint32, quint32>& a_pair )
        { return a_place < a_pair.first; };
        const auto next = std::upper_bound( m_places.begin(), m_places.end(), a_unfolded, isBehind );
        const auto& [unfolded, folded] = *std::prev( next );
        return folded + ( a_unfolded - unfolded );
    }

    ByteRange Folded( ByteRange a_range ) const
    {
        const quint32 begin = Folded( a_range.m_begin );
        const quint32 end = a_range.m_length == 0 ? begin : Folded( a_range.End() - 1 ) + 1;
        return { begin, end - begin };
    }

private:
    std::vector<std::pair<quint32, quint32>> m_places;
};

} // namespace

PimContactVersion VersionOf( std::string_view a_name, std::string_view a_value )
{
    if ( a_name != s_kVersion && !IsSameWord( a_name, s_kVersion ) )
        return PimContactVersion::Unknown;
    const std::string_view value = a_value.size() == 3 ? a_value : Trimmed( a_value );
    if ( value.size() != 3 || value[1] != '.' )
        return PimContactVersion::Unknown;
    if ( value[0] == '2' && value[2] == '1' )
        return PimContactVersion::V21;
    if ( value[0] == '3' && value[2] == '0' )
        return PimContactVersion::V30;
    return value[0] == '4' && value[2] == '0' ? PimContactVersion::V40 : PimContactVersion::Unknown;
}

void LogicalLines::OpenLine::Begin( const CardLine& a_line, quint32 a_marks, int a_emptyLinesBefore )
{
    m_isOpen = true;
    m_begin = a_line.m_begin + a_marks;
    m_marks = a_marks;
    m_firstTextEnd = a_line.m_textEnd;
    m_hasFolds = false;
    m_isWide = false;
    m_hasControls = false;
    m_isJoined = false;
    m_emptyLinesBefore = a_emptyLinesBefore;
    m_isHeadRead = false;
    m_isHeadFolded = false;
    m_nextLook = 0;
    m_oddities = {};
    m_joins.Clear();
    m_softBreaks = 0;
    m_blankBreaks = 0;
    m_areBreaksAtFoldLength = true;
    Extend( a_line );
}

void LogicalLines::OpenLine::Extend( const CardLine& a_line )
{
    m_lastBegin = a_line.m_begin;
    m_lastTextEnd = a_line.m_textEnd;
    m_end = a_line.m_end;
    m_isWide = m_isWide || a_line.m_isWide;
    m_hasControls = m_hasControls || a_line.m_hasControls;
}

LogicalLines::LogicalLines( const LineFilter& a_filter, qint64 a_mostLineBytes ) :
    m_filter( a_filter ),
    m_mostLineBytes( a_mostLineBytes ),
    m_isEveryLineWanted( a_filter.IsEmpty() && a_mostLineBytes <= 0 )
{
}

void LogicalLines::Begin( quint32 a_begin, quint32 a_indentation )
{
    m_indentation = a_indentation;
    m_written = a_begin;
    m_emptyLines = 0;
    m_current->m_isOpen = false;
    m_candidate->m_isOpen = false;
    m_facts = CardFacts();
    m_index.Clear();
}

void LogicalLines::Continue( IndexWriter& a_index, const CardFacts& a_facts, quint32 a_written )
{
    std::swap( m_index, a_index );
    m_facts = a_facts;
    m_written = a_written;
}

// After the indentation of the card.
quint32 LogicalLines::ContentBegin( const CardLine& a_line ) const
{
    quint32 begin = a_line.m_begin;
    const quint32 most = std::min( a_line.m_begin + m_indentation, a_line.m_textEnd );
    while ( begin < most && IsBlank( m_bytes[begin] ) )
        ++begin;
    return begin;
}

std::string_view LogicalLines::NameOf( const OpenLine& a_line ) const
{
    return a_line.m_isHeadFolded ? ViewOf( a_line.m_foldedName ) : a_line.m_head.m_name.In( TextOf( a_line ) );
}

void LogicalLines::Take( const CardLine& a_line )
{
    const std::string_view text = View( ContentBegin( a_line ), a_line.m_textEnd );
    if ( text.empty() )
    {
        ++m_emptyLines;
        return;
    }
    const bool isIndented = IsBlank( text.front() );
    if ( TakeBehindEquals( a_line, isIndented && MayFold() ) )
        return;
    if ( isIndented && MayFold() )
    {
        if ( m_candidate->m_isOpen && IsFoldOfData( text ) )
            Settle();
        TakeFold( m_candidate->m_isOpen ? *m_candidate : *m_current, a_line );
    }
    else if ( !IsWhiteSpace( text ) )
    {
        Settle();
        Start( a_line );
    }
}

void LogicalLines::Start( const CardLine& a_line )
{
    const size_t marks = a_line.m_isWide ? LengthOfMarks( View( a_line.m_begin, a_line.m_textEnd ) ) : 0;
    m_candidate->Begin( a_line, static_cast<quint32>( marks ), m_emptyLines );
    m_emptyLines = 0;
}

void LogicalLines::TakeFold( OpenLine& a_line, const CardLine& a_by ) const
{
    if ( m_indentation > 0 )
        a_line.m_joins.Add( { a_line.m_lastTextEnd - a_line.m_begin, ContentBegin( a_by ) + 1 - a_line.m_lastTextEnd,
                              PimContactJoin::Fold } );
    a_line.m_hasFolds = true;
    a_line.Extend( a_by );
}

void LogicalLines::ReadHead( OpenLine& a_line ) const
{
    const std::string_view first = View( a_line.m_begin, a_line.m_firstTextEnd );
    a_line.m_head = LineHead::Of( first );
    a_line.m_isHeadRead = true;
    if ( m_indentation > 0 )
        a_line.m_head.m_oddities &= ~PimContactOddities( PimContactOddity::NameBlanks );
    if ( a_line.m_lastTextEnd == a_line.m_firstTextEnd )
        return;
    const bool hasQuote = first.substr( 0, a_line.m_head.m_valueBegin ).find( '"' ) != std::string_view::npos;
    if ( hasQuote || !a_line.m_head.m_hasColon )
        ReadFoldedHead( a_line );
}

void LogicalLines::ReadFoldedHead( OpenLine& a_line ) const
{
    const IndexEntry entry = EntryOf( a_line );
    std::string unfolded;
    PlaceMap places;
    const std::string_view text = TextOf( a_line );
    LinePieces pieces( text, entry, PimContactFoldStyle::BlankRemoved, { 0, static_cast<quint32>( text.size() ) } );
    while ( pieces.Next() )
    {
        places.Add( static_cast<quint32>( unfolded.size() ), pieces.Begin() );
        unfolded += pieces.Text();
    }
    const LineHead head = LineHead::Of( unfolded );
    a_line.m_looks = LooksOf( head, unfolded );
    a_line.m_foldedName = BytesOf( head.m_name.In( unfolded ) );
    a_line.m_isHeadFolded = true;
    const PimContactOddities oddities = a_line.m_head.m_oddities;
    a_line.m_head = head;
    a_line.m_head.m_oddities = m_indentation > 0 ? head.m_oddities & oddities : head.m_oddities;
    a_line.m_head.m_group = places.Folded( head.m_group );
    a_line.m_head.m_name = places.Folded( head.m_name );
    a_line.m_head.m_parameters = places.Folded( head.m_parameters );
    a_line.m_head.m_charset = places.Folded( head.m_charset );
    a_line.m_head.m_valueBegin =
        head.m_hasColon ? places.Folded( head.m_valueBegin - 1 ) + 1 : static_cast<quint32>( text.size() );
}

bool LogicalLines::HasColonSoFar( OpenLine& a_line ) const
{
    const quint32 length = a_line.m_lastTextEnd - a_line.m_begin;
    if ( a_line.m_isHeadRead || length < a_line.m_nextLook )
        return a_line.m_isHeadRead;
    a_line.m_nextLook = 2 * length;
    ReadHead( a_line );
    a_line.m_isHeadRead = a_line.m_head.m_hasColon;
    return a_line.m_isHeadRead;
}

// In a head, the blank of a fold is always removed, whatever the style of the card.
void LogicalLines::JoinFoldsOfHead( OpenLine& a_line ) const
{
    if ( !a_line.m_isHeadFolded || m_indentation > 0 || !a_line.m_head.m_hasColon )
        return;
    JoinWriter joins;
    const IndexEntry entry = EntryOf( a_line );
    LinePieces pieces( TextOf( a_line ), entry, PimContactFoldStyle::BlankRemoved, { 0, a_line.m_head.m_valueBegin } );
    pieces.Next();
    auto end = static_cast<quint32>( pieces.Text().size() );
    for ( ; pieces.Next(); end = pieces.Begin() + static_cast<quint32>( pieces.Text().size() ) )
        joins.Add( { end, pieces.Begin() - end, PimContactJoin::Fold } );
    a_line.m_joins = joins;
}

bool LogicalLines::EndsInEquals( const OpenLine& a_line ) const
{
    const char last = m_bytes[a_line.m_lastTextEnd - 1];
    if ( last == '=' || !IsBlank( last ) )
        return last == '=';
    const std::string_view text = TrimmedRight( View( a_line.m_lastBegin, a_line.m_lastTextEnd ) );
    return !text.empty() && text.back() == '=';
}

// `NOTE;ENCODING=` may be folded after its "=", so a candidate without a colon is not settled before a fold.
bool LogicalLines::TakeBehindEquals( const CardLine& a_line, bool a_isFold )
{
    OpenLine* const last = m_candidate->m_isOpen ? m_candidate : m_current;
    if ( !last->m_isOpen || !EndsInEquals( *last ) )
        return false;
    if ( m_candidate->m_isOpen )
    {
        if ( a_isFold && !HasColonSoFar( *m_candidate ) )
            return false;
        Settle();
    }
    if ( !IsSoftBreakOpen() || !ContinuesSoftBreak( View( ContentBegin( a_line ), a_line.m_textEnd ) ) )
        return false;
    TakeBehindSoftBreak( a_line );
    return true;
}

// Even without the parameter, only QUOTED-PRINTABLE ends in an encoded line break and "=".
bool LogicalLines::IsSoftBreakOpen() const
{
    if ( !m_current->m_isOpen || !EndsInEquals( *m_current ) )
        return false;
    if ( m_current->m_head.m_encoding != PimContactEncoding::None )
        return m_current->m_head.m_encoding == PimContactEncoding::QuotedPrintable;
    std::string_view text = TrimmedRight( View( m_current->m_lastBegin, m_current->m_lastTextEnd ) );
    text.remove_suffix( 1 );
    return EndsWith( text, s_kEncodedBreak );
}

bool LogicalLines::ContinuesSoftBreak( std::string_view a_text ) const
{
    if ( IsBlank( a_text.front() ) && m_emptyLines == 0 )
        return true;
    const LineLooks looks = LooksOf( a_text );
    const bool isEncoded = m_current->m_head.m_encoding == PimContactEncoding::QuotedPrintable && m_emptyLines == 0;
    return isEncoded ? looks != LineLooks::ClearlyProperty : looks == LineLooks::Text;
}

void LogicalLines::TakeBehindSoftBreak( const CardLine& a_line )
{
    OpenLine& line = *m_current;
    const std::string_view last = View( line.m_lastBegin, line.m_lastTextEnd );
    const std::string_view trimmed = TrimmedRight( last );
    if ( trimmed.size() != last.size() || m_emptyLines > 0 )
        line.m_oddities |= PimContactOddity::SoftLineBreak;
    const quint32 equals = line.m_lastBegin + static_cast<quint32>( trimmed.size() ) - 1;
    const quint32 begin = ContentBegin( a_line );
    line.m_joins.Add( { equals - line.m_begin, begin - equals, PimContactJoin::SoftBreak } );

    const std::string_view text = View( begin, a_line.m_textEnd );
    const bool isOneBlank = IsBlank( text.front() ) && ( text.size() == 1 || !IsBlank( text[1] ) );
    ++line.m_softBreaks;
    line.m_blankBreaks += isOneBlank ? 1 : 0;
    line.m_areBreaksAtFoldLength = line.m_areBreaksAtFoldLength && IsFoldLength( static_cast<qint64>( last.size() ) );
    line.Extend( a_line );
    m_emptyLines = 0;
}

void LogicalLines::Settle()
{
    if ( !m_candidate->m_isOpen )
        return;
    if ( !m_candidate->m_isHeadRead )
        ReadHead( *m_candidate );
    if ( IsCandidateProperty() )
    {
        WriteCurrent();
        std::swap( m_current, m_candidate );
        JoinFoldsOfHead( *m_current );
        return;
    }
    if ( MayJoin() )
        JoinCandidate();
    else
        DropCandidate();
    m_candidate->m_isOpen = false;
}

bool LogicalLines::IsCandidateProperty() const
{
    const LineHead& head = m_candidate->m_head;
    const bool isSurely = head.m_hasColon && !m_candidate->m_isHeadFolded && !head.m_hasWordsForParameters &&
                          !( head.m_oddities & PimContactOddity::OddName ) && !m_current->m_isJoined;
    if ( isSurely )
        return true;
    const LineLooks looks = LooksOfCandidate();
    return looks != LineLooks::Text && !( looks == LineLooks::NameOnly && IsCandidateData() );
}

// In joined text, an unknown name is a word of the text.
LineLooks LogicalLines::LooksOfCandidate() const
{
    const OpenLine& line = *m_candidate;
    const LineLooks looks = line.m_isHeadFolded ? line.m_looks : Contacts::LooksOf( line.m_head, TextOf( line ) );
    const bool isInText = m_current->m_isOpen && m_current->m_isJoined && HoldsText( NameOf( *m_current ) );
    return isInText && looks == LineLooks::Property && !IsKnownName( NameOf( line ) ) ? LineLooks::Text : looks;
}

bool LogicalLines::HoldsBase64() const
{
    return m_current->m_head.m_encoding == PimContactEncoding::Base64 || IsPicture( NameOf( *m_current ) );
}

bool LogicalLines::IsCandidateData() const
{
    const std::string_view text = Trimmed( TextOf( *m_candidate ) );
    return m_current->m_isOpen && HoldsBase64() && IsBase64( text ) && text.size() % s_kBase64Group == 0;
}

// BASE64 may continue first without indentation and then with it.
bool LogicalLines::IsFoldOfData( std::string_view a_text )
{
    OpenLine& line = *m_candidate;
    if ( !m_current->m_isOpen || line.m_hasFolds || !HoldsBase64() || !IsBase64( Trimmed( TextOf( line ) ) ) ||
         !( IsWhiteSpace( a_text ) || IsBase64( Trimmed( a_text ) ) ) )
        return false;
    if ( !line.m_isHeadRead )
        ReadHead( line );
    return !IsCandidateProperty();
}

// The line before has the length of a folded line, but the blank of the fold is missing.
bool LogicalLines::IsLostFold() const
{
    return m_candidate->m_emptyLinesBefore == 0 && !m_current->m_hasFolds &&
           IsFoldLength( m_current->m_lastTextEnd - m_current->m_lastBegin );
}

bool LogicalLines::MayJoin() const
{
    const std::string_view text = TrimmedLeft( TextOf( *m_candidate ) );
    if ( !m_current->m_isOpen )
        return false;
    if ( HoldsBase64() && IsBase64( Trimmed( text ) ) )
        return true;
    if ( m_current->m_head.m_encoding == PimContactEncoding::Base64 )
        return false;
    if ( !text.empty() && text.front() == '#' && !MayJoinComment() )
        return false;
    const std::string_view name = NameOf( *m_current );
    const bool isWelcome =
        HoldsText( name ) && ( !IsPersonName( name ) || ( !text.empty() && BeginsWithWord( text ) ) );
    return isWelcome || IsLostFold();
}

bool LogicalLines::MayJoinComment() const
{
    const std::string_view name = NameOf( *m_current );
    return m_current->m_isJoined || IsExtensionName( name ) || IsSameWord( name, "NOTE" ) ||
           IsSameWord( name, "LABEL" ) || IsSameWord( name, "ADR" );
}

// Some programs write an empty line after each line, folded lines included.
bool LogicalLines::IsFoldBehindEmptyLine( quint32 a_blanks ) const
{
    return a_blanks > 0 && m_candidate->m_emptyLinesBefore == 1 && !m_current->m_isJoined && m_indentation == 0;
}

LineJoin LogicalLines::JoinOfCandidate( bool a_isData ) const
{
    const OpenLine& line = *m_candidate;
    const std::string_view text = TextOf( line );
    // A byte order mark is then a character of the text.
    const quint32 blanks = line.m_marks > 0 ? 0 : static_cast<quint32>( text.size() - TrimmedLeft( text ).size() );
    const bool isValueEmpty = !m_current->m_head.m_hasColon && !m_current->m_isJoined;
    const bool isDirect = isValueEmpty || a_isData || IsLostFold() || IsFoldBehindEmptyLine( blanks );
    LineJoin join;
    join.m_begin = m_current->m_lastTextEnd - m_current->m_begin;
    join.m_length = line.m_begin - line.m_marks + blanks - m_current->m_lastTextEnd;
    join.m_kind = isDirect ? PimContactJoin::Direct : PimContactJoin::LineFeed;
    join.m_lineFeeds =
        isDirect ? quint8( 0 ) : static_cast<quint8>( std::min( line.m_emptyLinesBefore, s_kMostEmptyLines ) + 1 );
    return join;
}

void LogicalLines::JoinCandidate()
{
    const bool isData = HoldsBase64() && IsBase64( Trimmed( TextOf( *m_candidate ) ) );
    m_current->m_joins.Add( JoinOfCandidate( isData ) );
    JoinReader joins( EntryOf( *m_candidate ) );
    for ( LineJoin join; joins.Next( join ); )
    {
        join.m_begin += m_candidate->m_begin - m_current->m_begin;
        m_current->m_joins.Add( join );
    }
    m_current->m_oddities |= isData ? PimContactOddity::Base64Lines : PimContactOddity::LineJoined;
    m_current->m_isJoined = m_current->m_isJoined || !isData;
    m_current->m_hasFolds = m_current->m_hasFolds || m_candidate->m_hasFolds;
    m_current->m_isWide = m_current->m_isWide || m_candidate->m_isWide;
    m_current->m_hasControls = m_current->m_hasControls || m_candidate->m_hasControls;
    m_current->m_lastBegin = m_candidate->m_lastBegin;
    m_current->m_lastTextEnd = m_candidate->m_lastTextEnd;
    m_current->m_end = m_candidate->m_end;
}

void LogicalLines::DropCandidate()
{
    WriteCurrent();
    WriteBlankUpTo( m_candidate->m_begin - m_candidate->m_marks );
    const std::string_view text = TrimmedLeft( TextOf( *m_candidate ) );
    const bool isComment = !text.empty() && text.front() == '#';
    WriteDropped( isComment ? DropReason::Comment : DropReason::NotAProperty, m_candidate->m_end - m_written );
}

void LogicalLines::Close()
{
    Settle();
    WriteCurrent();
}

bool LogicalLines::IsBehindOpenAgent()
{
    Settle();
    if ( !m_current->m_isOpen || !m_current->m_head.m_hasColon || m_current->m_isJoined ||
         !IsSameWord( NameOf( *m_current ), "AGENT" ) )
        return false;
    const std::string_view value = TextOf( *m_current ).substr( m_current->m_head.m_valueBegin );
    return std::all_of( value.begin(), value.end(),
                        []( char a_byte ) { return IsBlank( a_byte ) || IsLineEndByte( a_byte ); } );
}

void LogicalLines::LeaveCurrent()
{
    m_current->m_isOpen = false;
    WriteBlankUpTo( m_current->m_begin - m_current->m_marks );
    m_facts.m_isFiltered = m_facts.m_isFiltered || FateOfCurrent() == EntryKind::Filtered;
}

EntryKind LogicalLines::FateOf( const OpenLine& a_line ) const
{
    const std::string_view text = TextOf( a_line );
    const std::string_view value = text.substr( ValueBegin( a_line ) );
    if ( !m_filter.IsWanted( a_line.m_head, NameOf( a_line ), value ) )
        return EntryKind::Filtered;
    const qint64 length = a_line.m_end - a_line.m_begin;
    return m_mostLineBytes > 0 && length > m_mostLineBytes ? EntryKind::Dropped : EntryKind::Line;
}

void LogicalLines::Wrote( EntryKind a_kind, quint32 a_length )
{
    m_written += a_length;
    m_facts.Count( a_kind, a_length );
}

void LogicalLines::WritePart( EntryKind a_kind, quint32 a_length )
{
    m_index.AddPart( a_kind, a_length );
    Wrote( a_kind, a_length );
    m_facts.m_isFiltered = m_facts.m_isFiltered || a_kind == EntryKind::Filtered;
}

void LogicalLines::WriteBlankUpTo( quint32 a_place )
{
    if ( a_place > m_written )
        WritePart( EntryKind::Blank, a_place - m_written );
}

void LogicalLines::WriteBoundary( quint32 a_length, bool a_isMended )
{
    if ( a_length == 0 )
        return;
    m_index.AddBoundary( a_length, a_isMended );
    Wrote( EntryKind::Boundary, a_length );
    m_facts.m_mendedBoundaries += a_isMended ? 1U : 0U;
}

void LogicalLines::WriteDropped( DropReason a_reason, quint32 a_length )
{
    m_index.AddDropped( a_reason, a_length );
    Wrote( EntryKind::Dropped, a_length );
    m_facts.m_isDropped = true;
}

void LogicalLines::WriteNested( quint32 a_length, IndexBytes a_index )
{
    m_index.AddNested( a_length, a_index );
    Wrote( EntryKind::Nested, a_length );
}

void LogicalLines::WriteCurrent()
{
    OpenLine& line = *m_current;
    if ( !line.m_isOpen )
        return;
    line.m_isOpen = false;
    WriteBlankUpTo( line.m_begin - line.m_marks );
    if ( line.m_marks > 0 )
        WritePart( EntryKind::Mark, line.m_marks );
    if ( line.m_head.m_encoding == PimContactEncoding::QuotedPrintable )
        CloseSoftBreaks( line );
    IndexEntry entry = EntryOf( line );
    if ( line.m_isWide || line.m_hasControls )
        InspectCharacters( line, entry );
    if ( m_facts.m_version == PimContactVersion::Unknown )
        m_facts.m_version = VersionOf( NameOf( line ), TextOf( line ).substr( ValueBegin( line ) ) );
    if ( line.m_hasFolds && MayFoldByLength( m_facts.m_version ) )
        m_facts.m_folds.Take( TextOf( line ), entry, !line.m_isWide );
    const EntryKind fate = FateOfCurrent();
    if ( fate == EntryKind::Line )
        WriteLine( line, entry );
    else if ( fate == EntryKind::Filtered )
        WritePart( fate, entry.m_length );
    else
        WriteDropped( DropReason::LineTooLong, entry.m_length );
}

void LogicalLines::WriteLine( const OpenLine& a_line, IndexEntry& a_entry )
{
    if ( HasUnknownEscape( a_line, a_entry ) )
        a_entry.m_oddities |= PimContactOddity::UnknownEscape;
    // How the folds of a name are undone depends on the rest of the card.
    if ( !a_line.m_isHeadFolded )
        a_entry.m_property = PropertyOf( NameOf( a_line ) );
    m_index.Add( a_entry );
    Wrote( EntryKind::Line, a_entry.m_length );
    m_facts.CountOddities( a_entry.AllOddities() );
}

IndexEntry LogicalLines::EntryOf( const OpenLine& a_line )
{
    IndexEntry entry;
    entry.m_length = a_line.m_end - a_line.m_begin;
    entry.SetHead( a_line.m_head );
    // Blanks after a name without a colon are not the value.
    if ( !entry.m_hasColon && !a_line.m_isHeadFolded )
        entry.m_valueBegin = a_line.m_firstTextEnd - a_line.m_begin;
    entry.m_hasFolds = a_line.m_hasFolds;
    entry.m_oddities |= a_line.m_oddities;
    entry.m_joins = a_line.m_joins.Bytes();
    const bool takesBlanks = a_line.m_softBreaks > 1 && a_line.m_blankBreaks == a_line.m_softBreaks;
    entry.m_doSoftBreaksTakeBlank = takesBlanks && a_line.m_areBreaksAtFoldLength;
    return entry;
}

// The last "=" of a value is a soft line break with nothing to join.
void LogicalLines::CloseSoftBreaks( OpenLine& a_line ) const
{
    if ( !EndsInEquals( a_line ) )
        return;
    const std::string_view last = TrimmedRight( View( a_line.m_lastBegin, a_line.m_lastTextEnd ) );
    const quint32 equals = a_line.m_lastBegin + static_cast<quint32>( last.size() ) - 1;
    if ( equals < a_line.m_begin + a_line.m_head.m_valueBegin )
        return;
    a_line.m_joins.Add( { equals - a_line.m_begin, a_line.m_lastTextEnd - equals, PimContactJoin::Direct } );
    a_line.m_oddities |= PimContactOddity::SoftLineBreak;
}

void LogicalLines::InspectCharacters( const OpenLine& a_line, IndexEntry& a_entry )
{
    const std::string_view text = TextOf( a_line );
    if ( a_line.m_hasControls )
    {
        a_entry.m_oddities |= PimContactOddity::ControlCharacters;
        m_facts.m_mayBeShifted = m_facts.m_mayBeShifted || MayBeShifted( text );
    }
    if ( !a_line.m_isWide )
        return;
    m_facts.m_isWide = true;
    Utf8Census census;
    LinePieces pieces( text, a_entry, PimContactFoldStyle::BlankRemoved, { 0, static_cast<quint32>( text.size() ) } );
    while ( pieces.Next() )
    {
        if ( pieces.LineFeeds() > 0 )
            census.EndText();
        census.Take( pieces.Text() );
    }
    census.EndText();
    m_facts.m_isValidUtf8 = m_facts.m_isValidUtf8 && census.IsValid();
}

// Version 2.1 defines only the escaped semicolon. Any other backslash is text (vCard 2.1, section 2.1.2).
bool LogicalLines::HasUnknownEscape( const OpenLine& a_line, const IndexEntry& a_entry ) const
{
    const std::string_view text = TextOf( a_line );
    const quint32 begin = a_entry.m_valueBegin;
    if ( begin >= text.size() || std::memchr( text.data() + begin, '\\', text.size() - begin ) == nullptr ||
         a_entry.m_encoding == PimContactEncoding::Base64 || m_facts.m_version == PimContactVersion::V21 )
        return false;
    return HasUnknownEscapes( text, a_entry );
}

} // namespace PimManager::Contacts
