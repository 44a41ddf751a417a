#include "JCard/JCardText.h"

#include "Text/Bytes.h"

#include <algorithm>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;
using Code = PimContactDiagnosticCode;

constexpr std::string_view s_kHead = R"(["vcard")"sv;
constexpr std::string_view s_kCardName = R"("vcard")"sv;

JsonPlace Advanced( JsonPlace a_place, std::string_view a_text )
{
    for ( size_t end = a_text.find( '\n' ); end != std::string_view::npos; end = a_text.find( '\n', end + 1 ) )
    {
        ++a_place.m_line;
        a_place.m_lineOffset = a_place.m_offset + static_cast<qint64>( end ) + 1;
    }
    a_place.m_offset += static_cast<qint64>( a_text.size() );
    return a_place;
}

enum class Look
{
    JCard,
    Other,
    Undecided,
};

Look LookAt( std::string_view a_text )
{
    if ( a_text.size() < s_kByteOrderMark.size() && a_text == s_kByteOrderMark.substr( 0, a_text.size() ) )
        return Look::Undecided;
    const size_t begin = LengthOfMarks( a_text );
    const auto isBefore = []( char a_byte ) { return IsJsonSpace( a_byte ) || a_byte == '['; };
    const std::string_view behindMarks = a_text.substr( begin );
    const auto before =
        begin + static_cast<size_t>( std::find_if_not( behindMarks.begin(), behindMarks.end(), isBefore ) -
                                     behindMarks.begin() );
    const std::string_view rest = a_text.substr( before ).substr( 0, s_kCardName.size() );
    if ( before > JCardText::s_kLookedAt || !IsSameWord( rest, s_kCardName.substr( 0, rest.size() ) ) )
        return Look::Other;
    const bool hasBracket = a_text.substr( 0, before ).find( '[' ) != std::string_view::npos;
    if ( !rest.empty() && !hasBracket )
        return Look::Other;
    return rest.size() == s_kCardName.size() ? Look::JCard : Look::Undecided;
}

} // namespace

void JCardText::Reset()
{
    m_form = Form::Undecided;
    m_first.clear();
    m_counted = JsonPlace();
    m_state = State::Outside;
    m_comma = Comma::None;
    m_depth = 0;
    m_cards = 0;
    m_isInValue = false;
    m_out.clear();
    m_outOffset = 0;
    m_findings.clear();
}

std::string_view JCardText::Convert( std::string_view a_piece )
{
    m_outOffset += static_cast<qint64>( m_out.size() );
    m_out.clear();
    m_findings.clear();
    switch ( m_form )
    {
    case Form::Undecided:
        return Decide( a_piece );
    case Form::JCard:
        m_first = std::string();
        Take( a_piece );
        return m_out;
    default:
        m_first = std::string();
        return a_piece;
    }
}

std::string_view JCardText::Decide( std::string_view a_piece )
{
    const bool isFirst = m_first.empty();
    if ( !isFirst )
        m_first += a_piece;
    const std::string_view text = isFirst ? a_piece : std::string_view( m_first );
    switch ( LookAt( text ) )
    {
    case Look::Undecided:
        if ( isFirst )
            m_first = a_piece;
        return {};
    case Look::Other:
        m_form = Form::Other;
        return text;
    default:
        m_form = Form::JCard;
        Take( text );
        return m_out;
    }
}

std::string_view JCardText::Finish()
{
    if ( m_form == Form::Undecided )
    {
        m_form = Form::Other;
        return m_first;
    }
    const std::string_view none = Convert( ""sv );
    if ( m_form == Form::Other )
        return none;
    const bool isOpen = m_isInValue || m_state != State::Outside || m_depth > 0;
    if ( m_isInValue )
        EndValue();
    if ( isOpen )
        Report( Code::JsonSyntax, m_counted );
    return m_out;
}

void JCardText::Take( std::string_view a_piece )
{
    m_place = m_countedTo = a_piece.data();
    m_end = m_place + a_piece.size();
    if ( m_counted.m_offset == 0 )
    {
        const size_t marks = LengthOfMarks( a_piece );
        m_out.append( a_piece, 0, marks );
        m_place += marks;
    }
    while ( m_place < m_end )
        m_isInValue ? ContinueValue() : TakeNext();
    static_cast<void>( PlaceOf( m_end ) );
}

void JCardText::PassSpace()
{
    while ( m_place < m_end && IsJsonSpace( *m_place ) )
        ++m_place;
}

void JCardText::TakeNext()
{
    PassSpace();
    if ( m_place == m_end )
        return;
    if ( m_state == State::Opened )
    {
        TakeInOpened();
        return;
    }
    switch ( *m_place )
    {
    case '[':
        TakeBracket();
        break;
    case ']':
        TakeClosing();
        break;
    case ',':
        TakeComma();
        break;
    default:
        BeforeValue();
        m_valuePlace = PlaceOf( m_place );
        BeginValue( *m_place++ );
    }
}

// An array of cards, a card, or something else.
void JCardText::TakeInOpened()
{
    switch ( *m_place )
    {
    case '[':
        ++m_depth;
        m_valuePlace = PlaceOf( m_place++ );
        break;
    case ']':
        ++m_place;
        LeaveArray();
        break;
    case '"':
        BeginValue( '[' );
        break;
    default:
        BeginValue( '[' );
        LeaveArray();
    }
}

// The array is empty or not a card.
void JCardText::LeaveArray()
{
    m_state = State::Outside;
    m_comma = Comma::Wanted;
}

void JCardText::TakeBracket()
{
    BeforeValue();
    if ( m_state == State::Properties && TakeProperty() )
        return;
    if ( m_state == State::Properties || m_state == State::Tail )
    {
        m_valuePlace = PlaceOf( m_place );
        BeginValue( *m_place++ );
        return;
    }
    if ( m_state == State::Outside )
        m_valuePlace = PlaceOf( m_place );
    m_state = m_state == State::Outside ? State::Opened : State::Properties;
    m_comma = Comma::None;
    ++m_place;
}

void JCardText::TakeClosing()
{
    const bool isStray = m_state == State::Outside && m_depth == 0;
    if ( m_comma == Comma::Behind || m_state == State::Head || isStray )
        ReportSyntax();
    m_comma = Comma::Wanted;
    if ( m_state == State::Properties )
        m_state = State::Tail;
    else if ( IsInCard() )
        EndCard();
    else if ( !isStray )
        --m_depth;
    ++m_place;
}

void JCardText::TakeComma()
{
    if ( m_comma != Comma::Wanted || ( m_state == State::Outside && m_depth == 0 ) )
        ReportSyntax();
    m_comma = Comma::Behind;
    ++m_place;
}

// One document may follow the other.
void JCardText::BeforeValue()
{
    if ( m_comma == Comma::Wanted && ( m_state != State::Outside || m_depth > 0 ) )
        ReportSyntax();
    m_comma = Comma::Wanted;
}

// Most properties are complete in one piece.
bool JCardText::TakeProperty()
{
    const std::string_view rest( m_place, static_cast<size_t>( m_end - m_place ) );
    if ( !AppendProperty( rest ) )
        return false;
    if ( m_converter.Errors() > 0 )
        ReportErrors( PlaceOf( m_place ), rest );
    m_place += m_converter.Length();
    return true;
}

bool JCardText::AppendProperty( std::string_view a_json )
{
    const size_t begin = m_out.size();
    const bool hadVersion = m_hasVersion;
    WantVersion();
    const size_t line = m_out.size();
    if ( !m_converter.Convert( a_json, m_out ) || m_converter.Length() > m_longestProperty )
    {
        m_out.resize( begin );
        m_hasVersion = hadVersion;
        return false;
    }
    if ( m_converter.IsVersion() )
        m_out.erase( begin, line - begin );
    return true;
}

// \param a_first its first byte, which has already been read.
void JCardText::BeginValue( char a_first )
{
    m_isInValue = true;
    m_isLongValue = false;
    m_value.assign( 1, a_first );
    m_search.Begin( a_first );
}

void JCardText::ContinueValue()
{
    if ( m_state == State::Opened )
    {
        ContinueHead();
        return;
    }
    const char* const end = m_search.Find( m_place, m_end );
    const char* const stop = end != nullptr ? end : m_end;
    ContinueText( std::string_view( m_place, static_cast<size_t>( stop - m_place ) ) );
    m_place = stop;
    if ( end != nullptr )
        EndValue();
}

void JCardText::ContinueText( std::string_view a_text )
{
    if ( !m_isLongValue && m_value.size() + a_text.size() > m_longestProperty )
    {
        m_isLongValue = true;
        AppendOther();
        m_value = std::string();
    }
    if ( m_isLongValue )
        AppendOneLine( a_text );
    else
        m_value += a_text;
}

// The first string of an array.
void JCardText::ContinueHead()
{
    const char* const end = m_search.FindString( m_place, m_end );
    const char* const stop = end != nullptr ? end : m_end;
    m_value.append( m_place, static_cast<size_t>( stop - m_place ) );
    m_place = stop;
    if ( end != nullptr && IsSameWord( m_value, s_kHead ) )
        BeginCard();
    else if ( end != nullptr || m_value.size() > s_kHead.size() )
        LeaveArray();
}

void JCardText::EndValue()
{
    m_isInValue = false;
    const bool isProperty = !m_isLongValue && m_state == State::Properties && AppendProperty( m_value );
    if ( isProperty && m_converter.Errors() > 0 )
        ReportErrors( m_valuePlace, m_value );
    if ( isProperty )
        return;
    if ( !m_isLongValue )
        AppendOther();
    m_out += "\r\n"sv;
}

// Without its line ending. In a card a comment might be joined with the text before it.
void JCardText::AppendOther()
{
    if ( IsInCard() )
        WantVersion();
    Report( Code::JsonPart, m_valuePlace );
    m_out += IsInCard() ? "X-JCARD:"sv : "# "sv;
    AppendOneLine( m_value );
}

void JCardText::AppendOneLine( std::string_view a_json )
{
    for ( const char byte : a_json )
    {
        if ( IsLineEndByte( byte ) )
            m_out += IsInCard() && byte == '\n' ? R"(\n)"sv : " "sv;
        else if ( IsInCard() && ( byte == '\\' || byte == ',' || byte == ';' ) )
            ( m_out += '\\' ) += byte;
        else
            m_out += byte;
    }
}

void JCardText::BeginCard()
{
    m_isInValue = false;
    m_state = State::Head;
    m_comma = Comma::Wanted;
    ++m_cards;
    m_hasVersion = false;
    m_out += "BEGIN:VCARD\r\n"sv;
}

void JCardText::EndCard()
{
    WantVersion();
    m_state = State::Outside;
    m_out += "END:VCARD\r\n"sv;
}

void JCardText::WantVersion()
{
    if ( !m_hasVersion )
        m_out += "VERSION:4.0\r\n"sv;
    m_hasVersion = true;
}

JsonPlace JCardText::PlaceOf( const char* a_place )
{
    m_counted = Advanced( m_counted, std::string_view( m_countedTo, static_cast<size_t>( a_place - m_countedTo ) ) );
    m_countedTo = a_place;
    return m_counted;
}

void JCardText::Report( PimContactDiagnosticCode a_code, const JsonPlace& a_place, qint64 a_count )
{
    JsonFinding finding;
    finding.m_code = a_code;
    finding.m_card = IsInCard() ? m_cards : 0;
    finding.m_place = a_place;
    finding.m_count = a_count;
    finding.m_offset = m_outOffset + static_cast<qint64>( m_out.size() );
    m_findings.push_back( finding );
}

// Reports the errors in the strings of a property.
void JCardText::ReportErrors( const JsonPlace& a_place, std::string_view a_json )
{
    const JsonPlace first = Advanced( a_place, a_json.substr( 0, m_converter.FirstError() ) );
    Report( Code::JsonSyntax, first, m_converter.Errors() );
}

} // namespace PimManager::Contacts
