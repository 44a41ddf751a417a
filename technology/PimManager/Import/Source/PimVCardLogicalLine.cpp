#include "PimVCardLogicalLine.h"

#include "PimVCardBoundary.h"
#include "PimVCardBytes.h"
#include "PimVCardLineHead.h"

#include <algorithm>
#include <array>

namespace PimManager::vCardImport
{

namespace
{

constexpr std::string_view s_kEncodedBreak = "=0D=0A";
constexpr std::string_view s_kByteOrderMark = "\xEF\xBB\xBF";
constexpr size_t s_kBase64Group = 4;
// Where programs fold lines. A line of such a length whose successor is no property lost the indentation of the fold.
constexpr int s_kLeastFold = 70;
constexpr int s_kMostFold = 80;
constexpr int s_kMostEmptyLines = 2;

// Values that are one word, a number or a date: a line of text does not belong to them.
constexpr std::array<std::string_view, 19> s_kShortValues = {
    "VERSION", "REV",    "UID",   "BDAY", "ANNIVERSARY", "TEL",  "EMAIL", "TZ",     "GEO",  "CLASS",
    "MAILER",  "PRODID", "PHOTO", "LOGO", "URL",         "IMPP", "KIND",  "GENDER", "LANG",
};

bool HoldsText( std::string_view a_name )
{
    return std::none_of( s_kShortValues.begin(), s_kShortValues.end(),
                         [a_name]( std::string_view a_short ) { return IsSameWord( a_name, a_short ); } );
}

bool IsPicture( std::string_view a_name )
{
    return IsSameWord( a_name, "PHOTO" ) || IsSameWord( a_name, "LOGO" );
}

std::string_view TrimmedRight( std::string_view a_text )
{
    while ( !a_text.empty() && IsBlank( a_text.back() ) )
        a_text.remove_suffix( 1 );
    return a_text;
}

bool EndsWith( std::string_view a_text, std::string_view a_end )
{
    return a_text.size() >= a_end.size() && a_text.substr( a_text.size() - a_end.size() ) == a_end;
}

std::string_view WithoutMarks( std::string_view a_text, int& a_marks )
{
    for ( ; a_text.substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark; ++a_marks )
        a_text.remove_prefix( s_kByteOrderMark.size() );
    return a_text;
}

// A line of dashes or a comment may be part of a note, but not of a name.
bool BeginsWithWord( std::string_view a_text )
{
    const char first = a_text.front();
    return ( first != '-' && IsNameByte( first ) ) || static_cast<uchar>( first ) >= 0x80;
}

std::string_view NameOf( std::string_view a_line )
{
    return PimVCardLineHead::Of( a_line ).Name();
}

bool IsPersonName( std::string_view a_name )
{
    return IsSameWord( a_name, "N" ) || IsSameWord( a_name, "FN" ) || IsSameWord( a_name, "NICKNAME" );
}

bool BeginsEncoded( std::string_view a_text )
{
    return a_text.size() >= 3 && a_text[0] == '=' && IsHexByte( a_text[1] ) && IsHexByte( a_text[2] );
}

/// Puts the lines of one card together, one after the other.
class Joiner
{
public:
    explicit Joiner( const PimVCardRawCard& a_card ) :
        m_card( a_card )
    {
    }

    PimVCardLogicalLines Join();

private:
    struct Head
    {
        bool m_isKnown = false;
        PimVCardEncoding m_encoding = PimVCardEncoding::None;
        bool m_holdsText = true;
        bool m_isPicture = false;
        bool m_isPersonName = false;
        int m_nextSize = 0;
        int m_nextForcedSize = 0;
        bool m_isQuoteOpen = false;
        // Of soft line breaks: how many, how many before an indented line, and blanks that may be indentation.
        int m_breaks = 0;
        int m_indentedBreaks = 0;
        std::vector<int> m_keptBlanks;
    };

    PimVCardLogicalLine& Current() { return m_result.m_lines.back(); }
    bool HasCurrent() const { return !m_result.m_lines.empty() && m_result.m_lines.back().m_isProperty; }

    bool HasCurrentText() const
    {
        return HasCurrent() && !m_isTentative && m_result.m_lines.back().m_isJoined && m_head.m_isKnown &&
               m_head.m_holdsText;
    }

    void FindIndentation();
    std::string_view TextAt( int a_index ) const;
    void TakeLine( int a_index );
    void TakeNested( int a_index );
    void TakeText( int a_index, std::string_view a_line );
    void Start( int a_index, std::string_view a_line );
    PimVCardLooks LooksBehindText( std::string_view a_text ) const;
    void StartLine( int a_index, std::string_view a_line, int a_placeInLine );
    void Judge();
    void GoOnWithText( int a_index, std::string_view a_text, int a_placeInLine, bool a_isIndented );
    void AddColon();
    bool MayGoOnWithText( std::string_view a_text ) const;
    bool HoldsBase64() const { return m_head.m_encoding == PimVCardEncoding::Base64 || m_head.m_isPicture; }
    int PlaceInLine( int a_index, std::string_view a_text ) const;
    bool IsLostFold() const;
    void Append( int a_index, std::string_view a_text );
    void AppendPiece( int a_index, std::string_view a_text, int a_placeInLine );
    void AppendBehindSoftBreak( int a_index, std::string_view a_line );
    bool IsSoftBreakOpen();
    bool GoesOnBehindSoftBreak( std::string_view a_line );
    bool IsFoldedNext( int a_index ) const;
    void LearnHead( bool a_isForced );
    void CloseSoftBreaks();

    const PimVCardRawCard& m_card;
    PimVCardLogicalLines m_result;
    std::string_view m_indentation;
    Head m_head;
    // Of the property before a tentative one.
    Head m_headBefore;
    // A content line that does not look like one so far is at the end of the list.
    bool m_isTentative = false;
    int m_emptyLines = 0;
};

PimVCardLogicalLines Joiner::Join()
{
    const int lines = static_cast<int>( m_card.m_lines.size() );
    m_result.m_owners.assign( m_card.m_lines.size(), PimVCardLogicalLines::s_kBlank );
    FindIndentation();
    for ( int index = 0; index < lines; ++index )
    {
        if ( index == 0 || index == m_card.m_endLine )
            m_result.m_owners[static_cast<size_t>( index )] = PimVCardLogicalLines::s_kBoundary;
        else
            TakeLine( index );
    }
    Judge();
    CloseSoftBreaks();
    return std::move( m_result );
}

// All lines of an indented card have the indentation of its BEGIN line; the second one tells.
void Joiner::FindIndentation()
{
    const std::string_view begin = m_card.TextOf( m_card.m_lines.front() );
    const std::string_view indentation = begin.substr( 0, begin.size() - TrimmedLeft( begin ).size() );
    if ( indentation.empty() || m_card.m_lines.size() < 2 )
        return;
    const std::string_view second = m_card.TextOf( m_card.m_lines[1] );
    m_result.m_isIndented = second.size() > indentation.size() &&
                            second.substr( 0, indentation.size() ) == indentation &&
                            !IsBlank( second[indentation.size()] );
    if ( m_result.m_isIndented )
        m_indentation = indentation;
}

std::string_view Joiner::TextAt( int a_index ) const
{
    const std::string_view text = m_card.TextOf( m_card.m_lines[static_cast<size_t>( a_index )] );
    const bool isIndented = text.substr( 0, m_indentation.size() ) == m_indentation;
    return isIndented ? text.substr( m_indentation.size() ) : text;
}

void Joiner::TakeLine( int a_index )
{
    if ( m_card.m_lines[static_cast<size_t>( a_index )].m_isNested )
    {
        TakeNested( a_index );
        return;
    }
    const std::string_view line = TextAt( a_index );
    if ( line.empty() )
        ++m_emptyLines;
    else if ( !TrimmedLeft( line ).empty() )
    {
        TakeText( a_index, line );
        m_emptyLines = 0;
    }
}

void Joiner::TakeNested( int a_index )
{
    Judge();
    if ( !HasCurrent() )
        return;
    PimVCardLogicalLine& agent = Current();
    const std::string_view value = Trimmed( PimVCardLineHead::Of( ViewOf( agent.m_text ) ).m_value );
    if ( agent.m_nested.isEmpty() && !value.empty() )
        agent.m_nested = BytesOf( value ) + '\n';
    vCardImport::Append( agent.m_nested, TextAt( a_index ) );
    agent.m_nested += '\n';
    m_result.m_owners[static_cast<size_t>( a_index )] = static_cast<int>( m_result.m_lines.size() ) - 1;
}

void Joiner::TakeText( int a_index, std::string_view a_line )
{
    const std::string_view text = TrimmedLeft( a_line );
    const bool isIndented = text.size() != a_line.size();
    if ( HasCurrent() && GoesOnBehindSoftBreak( a_line ) )
        AppendBehindSoftBreak( a_index, a_line );
    else if ( HasCurrent() && isIndented && m_emptyLines == 0 )
    {
        Append( a_index, text );
        Current().m_isFolded = true;
    }
    else
        Start( a_index, a_line );
}

bool Joiner::GoesOnBehindSoftBreak( std::string_view a_line )
{
    if ( !IsSoftBreakOpen() )
        return false;
    if ( IsBlank( a_line.front() ) && m_emptyLines == 0 )
        return true;
    const PimVCardLooks looks = LooksOf( a_line );
    const bool isEncoded = m_head.m_encoding == PimVCardEncoding::QuotedPrintable && m_emptyLines == 0;
    return isEncoded ? looks != PimVCardLooks::ClearlyProperty : looks == PimVCardLooks::Text;
}

// Also without the parameter nothing else ends in an encoded line break and "=".
bool Joiner::IsSoftBreakOpen()
{
    const std::string_view text = TrimmedRight( ViewOf( Current().m_text ) );
    if ( text.empty() || text.back() != '=' || m_isTentative )
        return false;
    LearnHead( true );
    return m_head.m_encoding == PimVCardEncoding::QuotedPrintable ||
           ( m_head.m_encoding == PimVCardEncoding::None &&
             EndsWith( text.substr( 0, text.size() - 1 ), s_kEncodedBreak ) );
}

void Joiner::AppendBehindSoftBreak( int a_index, std::string_view a_line )
{
    PimVCardLogicalLine& line = Current();
    const auto length = static_cast<int>( TrimmedRight( ViewOf( line.m_text ) ).size() );
    line.m_isSoftBreakMended = line.m_isSoftBreakMended || length != line.m_text.size() || m_emptyLines > 0;
    line.m_text.truncate( length - 1 );
    const bool isEncodedBreak = EndsWith( ViewOf( line.m_text ), s_kEncodedBreak );
    line.m_isEncodedBreakKept = line.m_isEncodedBreakKept || isEncodedBreak;

    const std::string_view text = TrimmedLeft( a_line );
    const size_t blanks = a_line.size() - text.size();
    ++m_head.m_breaks;
    m_head.m_indentedBreaks += blanks > 0 ? 1 : 0;
    const bool isOneBlank = blanks == 1 && a_line.front() == ' ' && !isEncodedBreak && !BeginsEncoded( text );
    if ( isOneBlank )
        m_head.m_keptBlanks.push_back( static_cast<int>( line.m_text.size() ) );
    line.m_isSoftBreakMended = line.m_isSoftBreakMended || ( blanks > 0 && !isOneBlank && !isEncodedBreak );
    Append( a_index, isOneBlank ? a_line : text );
}

// A program that indents one continuation of a value indents them all; blanks that belong to the text are rarer.
void Joiner::CloseSoftBreaks()
{
    if ( HasCurrent() && m_head.m_breaks > 1 && m_head.m_breaks == m_head.m_indentedBreaks &&
         !m_head.m_keptBlanks.empty() )
    {
        PimVCardLogicalLine& line = Current();
        QByteArray text;
        int copied = 0;
        for ( const int place : m_head.m_keptBlanks )
        {
            text.append( line.m_text.constData() + copied, place - copied );
            copied = place + 1;
        }
        text.append( line.m_text.constData() + copied, line.m_text.size() - copied );
        line.m_text = text;
        line.m_isSoftBreakMended = true;
    }
    m_head.m_breaks = 0;
    m_head.m_indentedBreaks = 0;
    m_head.m_keptBlanks.clear();
}

int Joiner::PlaceInLine( int a_index, std::string_view a_text ) const
{
    return static_cast<int>( a_text.data() - m_card.TextOf( m_card.m_lines[static_cast<size_t>( a_index )] ).data() );
}

void Joiner::Append( int a_index, std::string_view a_text )
{
    AppendPiece( a_index, a_text, PlaceInLine( a_index, a_text ) );
}

void Joiner::AppendPiece( int a_index, std::string_view a_text, int a_placeInLine )
{
    PimVCardLogicalLine& line = Current();
    line.m_pieces.push_back( { static_cast<int>( line.m_text.size() ), a_index, a_placeInLine } );
    vCardImport::Append( line.m_text, a_text );
    const auto quotes = std::count( a_text.begin(), a_text.end(), '"' );
    m_head.m_isQuoteOpen = !m_head.m_isKnown && m_head.m_isQuoteOpen != ( quotes % 2 != 0 );
    m_result.m_owners[static_cast<size_t>( a_index )] = static_cast<int>( m_result.m_lines.size() ) - 1;
    LearnHead( false );
}

// While no colon has come the search is repeated when the line is twice as long, so its cost stays linear.
void Joiner::LearnHead( bool a_isForced )
{
    const QByteArray& text = Current().m_text;
    int& nextSize = a_isForced ? m_head.m_nextForcedSize : m_head.m_nextSize;
    if ( m_head.m_isKnown || text.size() < nextSize || ( !a_isForced && m_head.m_isQuoteOpen ) )
        return;
    const PimVCardLineHead head = PimVCardLineHead::Of( ViewOf( text ) );
    nextSize = static_cast<int>( text.size() ) * 2;
    m_head.m_isKnown = head.m_hasColon;
    m_head.m_encoding = head.Encoding();
    m_head.m_holdsText = HoldsText( head.Name() );
    m_head.m_isPicture = IsPicture( head.Name() );
    m_head.m_isPersonName = IsPersonName( head.Name() );
}

bool Joiner::IsFoldedNext( int a_index ) const
{
    const auto next = static_cast<size_t>( a_index ) + 1;
    if ( next >= m_card.m_lines.size() || static_cast<int>( next ) == m_card.m_endLine ||
         m_card.m_lines[next].m_isNested )
        return false;
    const std::string_view line = TextAt( a_index + 1 );
    return !line.empty() && IsBlank( line.front() );
}

void Joiner::Start( int a_index, std::string_view a_line )
{
    Judge();
    int marks = 0;
    const std::string_view text = TrimmedLeft( WithoutMarks( a_line, marks ) );
    const PimVCardLooks looks = LooksBehindText( text );
    const bool isData = looks == PimVCardLooks::NameOnly && HasCurrent() && HoldsBase64() && IsBase64( text ) &&
                        text.size() % s_kBase64Group == 0;
    const bool isText = looks == PimVCardLooks::Text || isData;
    m_isTentative = ( isText || looks == PimVCardLooks::NameOnly ) && IsFoldedNext( a_index );
    if ( m_isTentative )
        m_headBefore = m_head;
    if ( !isText || m_isTentative )
        StartLine( a_index, text, PlaceInLine( a_index, text ) );
    else
        GoOnWithText( a_index, text, PlaceInLine( a_index, text ), IsBlank( a_line.front() ) );
    Current().m_marks += marks;
}

// In text that already went on over lines without indentation, a name that nobody knows is a word of the text.
PimVCardLooks Joiner::LooksBehindText( std::string_view a_text ) const
{
    const PimVCardLooks looks = LooksOf( a_text );
    const bool isInText = HasCurrentText() && looks == PimVCardLooks::Property && !IsKnownName( NameOf( a_text ) );
    return isInText ? PimVCardLooks::Text : looks;
}

void Joiner::StartLine( int a_index, std::string_view a_line, int a_placeInLine )
{
    CloseSoftBreaks();
    m_head = Head();
    m_result.m_lines.emplace_back();
    AppendPiece( a_index, a_line, a_placeInLine );
}

// What began as text and went on over folds: is it a property now?
void Joiner::Judge()
{
    if ( !m_isTentative )
        return;
    m_isTentative = false;
    if ( LooksOf( ViewOf( Current().m_text ) ) != PimVCardLooks::Text )
        return;
    const PimVCardLogicalLine text = std::move( Current() );
    m_result.m_lines.pop_back();
    m_head = m_headBefore;
    m_head.m_breaks = 0;
    m_head.m_indentedBreaks = 0;
    m_head.m_keptBlanks.clear();
    const PimVCardLogicalLine::Piece first = text.m_pieces.front();
    GoOnWithText( first.m_line, ViewOf( text.m_text ), first.m_placeInLine, false );
    for ( const PimVCardLogicalLine::Piece& piece : text.m_pieces )
        m_result.m_owners[static_cast<size_t>( piece.m_line )] = static_cast<int>( m_result.m_lines.size() ) - 1;
}

void Joiner::GoOnWithText( int a_index, std::string_view a_text, int a_placeInLine, bool a_isIndented )
{
    if ( HasCurrent() )
        LearnHead( true );
    if ( !HasCurrent() || !MayGoOnWithText( a_text ) )
    {
        StartLine( a_index, a_text, a_placeInLine );
        Current().m_isProperty = false;
        return;
    }
    const bool isValueEmpty = !m_head.m_isKnown;
    if ( isValueEmpty )
        AddColon();
    PimVCardLogicalLine& line = Current();
    const bool isData = HoldsBase64() && IsBase64( Trimmed( a_text ) );
    const bool isDirect = isValueEmpty || isData || IsLostFold() || ( a_isIndented && m_emptyLines == 1 );
    ( isData ? line.m_areBase64LinesJoined : line.m_isJoined ) = true;
    if ( !isDirect )
        line.m_text += QByteArray( std::min( m_emptyLines, s_kMostEmptyLines ) + 1, '\n' );
    AppendPiece( a_index, isData ? Trimmed( a_text ) : a_text, a_placeInLine );
}

// Behind a name alone text is the value.
void Joiner::AddColon()
{
    Current().m_text += ':';
    Current().m_isColonAdded = true;
    m_head.m_nextForcedSize = 0;
    LearnHead( true );
}

bool Joiner::MayGoOnWithText( std::string_view a_text ) const
{
    if ( HoldsBase64() && IsBase64( Trimmed( a_text ) ) )
        return true;
    if ( m_head.m_encoding == PimVCardEncoding::Base64 )
        return false;
    const bool isWelcome = m_head.m_holdsText && ( !m_head.m_isPersonName || BeginsWithWord( a_text ) );
    return isWelcome || IsLostFold();
}

bool Joiner::IsLostFold() const
{
    const PimVCardLogicalLine& line = m_result.m_lines.back();
    const int length = m_card.m_lines[static_cast<size_t>( line.m_pieces.back().m_line )].m_length;
    return m_emptyLines == 0 && !line.m_isFolded && length >= s_kLeastFold && length <= s_kMostFold;
}

} // namespace

PimVCardPosition PimVCardLogicalLine::PositionOf( const PimVCardRawCard& a_card, int a_place ) const
{
    const auto isBehind = []( int a_value, const Piece& a_piece ) { return a_value < a_piece.m_place; };
    auto piece = std::upper_bound( m_pieces.begin(), m_pieces.end(), a_place, isBehind );
    if ( piece != m_pieces.begin() )
        --piece;
    const PimVCardRawCard::Line& line = a_card.m_lines[static_cast<size_t>( piece->m_line )];
    const int place = std::min( piece->m_placeInLine + std::max( a_place - piece->m_place, 0 ), line.m_length );
    return a_card.PositionIn( line, static_cast<size_t>( place ) );
}

PimVCardLogicalLines PimVCardLogicalLines::Of( const PimVCardRawCard& a_card )
{
    return Joiner( a_card ).Join();
}

} // namespace PimManager::vCardImport
