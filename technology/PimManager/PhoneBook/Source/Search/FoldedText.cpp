#include "Search/FoldedText.h"

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

constexpr char16_t s_kLowerCase = 0x20;
constexpr char16_t s_kAscii = 0x80;

bool IsAsciiLetter( QChar a_character )
{
    const int lower = a_character.unicode() | s_kLowerCase;
    return lower >= 'a' && lower <= 'z';
}

} // namespace

void FoldedText::Clear()
{
    m_text.clear();
    m_starts.clear();
    m_chains.clear();
}

void FoldedText::Append( const QString& a_text )
{
    const QChar* const end = a_text.constData() + a_text.size();
    for ( const QChar* place = a_text.constData(); place != end; )
    {
        if ( IsAsciiLetter( *place ) )
            place = AddAsciiLetters( place, end );
        else if ( place->unicode() < s_kAscii )
            AddOtherAscii( static_cast<char>( ( place++ )->unicode() ) );
        else
            place = AddOther( place, end );
    }
    EndChain();
    m_isPlus = false;
}

const QChar* FoldedText::AddAsciiLetters( const QChar* a_place, const QChar* a_end )
{
    constexpr size_t s_kMost = 32;
    std::array<char, s_kMost> letters;
    size_t count = 0;
    for ( ; a_place != a_end && count < s_kMost && IsAsciiLetter( *a_place ); ++a_place )
        letters[count++] = static_cast<char>( a_place->unicode() | s_kLowerCase );
    const auto text = std::string_view( letters.data(), count );
    AddLetters( text, text, LetterKind::Letter );
    return a_place;
}

void FoldedText::AddOtherAscii( char a_character )
{
    if ( a_character >= '0' && a_character <= '9' )
        return AddLetters( std::string_view( &a_character, 1 ), std::string_view( &a_character, 1 ),
                           LetterKind::Digit );
    const bool isSpace = a_character == ' ' || ( a_character >= '\t' && a_character <= '\r' ) || a_character == ',' ||
                         a_character == ';';
    m_isAfterSpace = m_isAfterSpace || isSpace;
    m_isAfterJoint = true;
    m_isPlus = a_character == '+';
}

const QChar* FoldedText::AddOther( const QChar* a_place, const QChar* a_end )
{
    const bool isPair = a_place->isHighSurrogate() && a_place + 1 != a_end && a_place[1].isLowSurrogate();
    AddOther( isPair ? QChar::surrogateToUcs4( a_place[0], a_place[1] ) : char32_t( a_place->unicode() ) );
    return a_place + ( isPair ? 2 : 1 );
}

void FoldedText::AddOther( char32_t a_character )
{
    const FoldedLetter& letter = m_letters.Of( a_character );
    switch ( letter.m_kind )
    {
    case LetterKind::Ignored:
        return AddMark( a_character );
    case LetterKind::Space:
    case LetterKind::Joint:
        m_isAfterSpace = m_isAfterSpace || letter.m_kind == LetterKind::Space;
        m_isAfterJoint = true;
        m_isPlus = a_character == 0xFF0B;
        return;
    default:
        AddLetters( letter.m_plain, letter.m_spelled, letter.m_kind );
    }
}

void FoldedText::AddLetters( std::string_view a_plain, std::string_view a_spelled, LetterKind a_kind )
{
    if ( !m_isInChain || m_isAfterJoint || a_kind != m_last || a_kind == LetterKind::Ideograph )
        BeginWord( a_kind );
    // Most letters are passed twice, and need not be compared.
    if ( a_plain.data() != a_spelled.data() && a_plain != a_spelled )
        BeginSpelling();
    m_text += a_plain;
    if ( m_hasSpelling )
        m_spelled += a_spelled;
}

void FoldedText::AddMark( char32_t a_mark )
{
    if ( !m_isInChain || m_isAfterJoint )
        return;
    const char* const spelling = SpellingOfMark( m_text.back(), a_mark );
    if ( *spelling == '\0' )
        return;
    BeginSpelling();
    m_spelled += spelling;
}

void FoldedText::BeginSpelling()
{
    if ( m_hasSpelling )
        return;
    m_hasSpelling = true;
    m_spelled.assign( m_text, m_begin, std::string::npos );
}

void FoldedText::BeginWord( LetterKind a_kind )
{
    const bool isSpaceInChain = a_kind == LetterKind::Ideograph && m_last == LetterKind::Ideograph;
    if ( m_isInChain && m_isAfterSpace && !isSpaceInChain )
        EndChain();
    const bool isWord = !m_isInChain || m_isAfterJoint;
    if ( !m_isInChain )
    {
        m_isInChain = true;
        m_isAfterPlus = m_isPlus;
        m_begin = static_cast<quint32>( m_text.size() );
        m_firstStart = static_cast<quint32>( m_starts.size() );
    }
    const size_t spelled = m_hasSpelling ? m_spelled.size() : m_text.size() - m_begin;
    m_starts.push_back( { static_cast<quint32>( m_text.size() ), static_cast<quint32>( spelled ), isWord } );
    m_last = a_kind;
    m_isAfterSpace = false;
    m_isAfterJoint = false;
    m_isPlus = false;
}

void FoldedText::EndChain()
{
    if ( m_isInChain )
    {
        const auto plainEnd = static_cast<quint32>( m_text.size() );
        if ( m_hasSpelling )
        {
            for ( size_t i = m_firstStart; i < m_starts.size(); ++i )
                m_starts[i].m_spelled += plainEnd;
            m_text += m_spelled;
        }
        const auto starts = static_cast<quint32>( m_starts.size() ) - m_firstStart;
        m_chains.push_back( { m_firstStart, starts, plainEnd, static_cast<quint32>( m_text.size() ), m_isAfterPlus } );
    }
    m_isInChain = false;
    m_isAfterSpace = false;
    m_isAfterJoint = false;
    m_hasSpelling = false;
}

FoldedText::Start FoldedText::EndOf( const Chain& a_chain, quint32 a_index ) const
{
    for ( quint32 i = a_index + 1; i < a_chain.m_starts; ++i )
    {
        if ( StartAt( a_chain, i ).m_isWord )
            return StartAt( a_chain, i );
    }
    return { a_chain.m_plainEnd, a_chain.m_spelledEnd, true };
}

} // namespace PimManager::PhoneBook
