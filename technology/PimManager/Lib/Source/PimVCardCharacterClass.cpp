#include "PimVCardCharacterClass.h"

#include "PimVCardVocabulary.h"
#include "PimVCardVocabularyBytes.h"

namespace PimManager::vCard
{

namespace
{

using Class = PimVCardCharacterClass;
using Bytes = std::array<bool, 256>;

constexpr Bytes With( Bytes a_bytes, uchar a_first, uchar a_last )
{
    for ( uint byte = a_first; byte <= a_last; ++byte )
        a_bytes[byte] = true;
    return a_bytes;
}

constexpr Bytes Without( Bytes a_bytes, uchar a_byte )
{
    a_bytes[a_byte] = false;
    return a_bytes;
}

Bytes With( const Bytes& a_bytes, const QString& a_delimiter )
{
    const auto byte = static_cast<uchar>( ByteOf( a_delimiter ) );
    return With( a_bytes, byte, byte );
}

Bytes Without( const Bytes& a_bytes, const QString& a_delimiter )
{
    return Without( a_bytes, static_cast<uchar>( ByteOf( a_delimiter ) ) );
}

constexpr Bytes s_kLettersAndDigits = With( With( With( Bytes{}, '0', '9' ), 'A', 'Z' ), 'a', 'z' );
constexpr Bytes s_kNameBytes = With( s_kLettersAndDigits, '-', '-' );
constexpr Bytes s_kBase64Bytes = With( With( s_kLettersAndDigits, '+', '+' ), '/', '/' );
constexpr Bytes s_kPrintableBytes = Without( With( With( Bytes{}, '\t', '\t' ), 0x20, 0x7E ), '\\' );
// U+FEFF, whose first byte is 0xEF, ends a run.
constexpr Bytes s_kWideBytes = Without( With( s_kPrintableBytes, 0x80, 0xFF ), 0xEF );

Class Delimiter( const QString& a_delimiter )
{
    return { With( Bytes{}, a_delimiter ), Class::Beyond::Nothing, false, false, false, false, &a_delimiter };
}

struct Classes
{
    Class m_semicolon = Delimiter( s_kSemicolon );
    Class m_dot = Delimiter( s_kDot );
    Class m_equals = Delimiter( s_kEquals );
    Class m_comma = Delimiter( s_kComma );
    Class m_colon = Delimiter( s_kColon );
    Class m_dQuote = Delimiter( s_kDQuote );
    Class m_name = { s_kNameBytes, Class::Beyond::Nothing, false, false, true };
    Class m_value = { With( Without( s_kWideBytes, s_kSemicolon ), s_kLf ), Class::Beyond::Everything, false, true };
    Class m_qSafe = { Without( s_kWideBytes, s_kDQuote ), Class::Beyond::Everything, true };
    Class m_crlf = { With( Bytes{}, 0x0A, 0x0D ), Class::Beyond::LineBreaks, false, false, false, true };
    Class m_base64 = { With( s_kBase64Bytes, s_kEquals ) };
};

struct Entry
{
    const QString* m_pattern;
    Class Classes::*m_class;
};

// Those needed most often come first.
constexpr std::array<Entry, 11> s_kEntries = { {
    { &s_kSemicolonPattern, &Classes::m_semicolon },
    { &s_kNamePattern, &Classes::m_name },
    { &s_kValueCharPattern, &Classes::m_value },
    { &s_kDotPattern, &Classes::m_dot },
    { &s_kCrlfPattern, &Classes::m_crlf },
    { &s_kColonPattern, &Classes::m_colon },
    { &s_kEqualsPattern, &Classes::m_equals },
    { &s_kCommaPattern, &Classes::m_comma },
    { &s_kDQuotePattern, &Classes::m_dQuote },
    { &s_kBase64CharPattern, &Classes::m_base64 },
    { &s_kQSafeCharPattern, &Classes::m_qSafe },
} };

// Created by the first scanner, which may be a static object of another source file.
const Classes& AllClasses()
{
    static const Classes s_classes;
    return s_classes;
}

// The vocabulary's texts are never copied, so the address of its text identifies a pattern.
bool AreSameText( const QString& a_first, const QString& a_second )
{
    return a_first.constData() == a_second.constData() && a_first.size() == a_second.size();
}

} // namespace

const PimVCardVocabularyBytes& PimVCardVocabularyBytes::Get()
{
    // The encoded break is the part of the pattern before its line break, where its plain text ends.
    static const PimVCardVocabularyBytes s_bytes = {
        ByteOf( s_kSpace ),       ByteOf( s_kCr ),
        ByteOf( s_kLf ),          ByteOf( s_kColon ),
        ByteOf( s_kEquals ),      PimVCardWord( s_kBegin ),
        PimVCardWord( s_kVCard ), PimVCardWord( s_kQpSoftBreakPattern.section( s_kBackslash, 0, 0 ) ),
    };
    return s_bytes;
}

const Class* Class::Find( const QRegularExpression& a_expression )
{
    const Class* const found = Find( a_expression.pattern() );
    return found != nullptr && a_expression.patternOptions() == QRegularExpression::NoPatternOption ? found : nullptr;
}

const Class* Class::Find( const QString& a_pattern )
{
    for ( const Entry& entry : s_kEntries )
    {
        if ( AreSameText( *entry.m_pattern, a_pattern ) )
            return &( AllClasses().*entry.m_class );
    }
    return nullptr;
}

bool Class::MatchesEscaped( QChar a_character ) const
{
    // A backslash at the end of the text is tested alone.
    if ( a_character.isNull() )
        return m_backslash;
    const auto is = [a_character]( const QString& a_delimiter ) { return a_character == *a_delimiter.constData(); };
    return m_escapePairs && ( a_character == s_kBackslash || is( s_kComma ) || is( s_kSemicolon ) || is( s_kColon ) );
}

bool Class::MatchesBeyondAscii( ushort a_code ) const
{
    switch ( m_beyond )
    {
    case Beyond::Everything:
        return a_code != QChar::ByteOrderMark;
    case Beyond::LineBreaks:
        return a_code == 0x85 || a_code == QChar::LineSeparator || a_code == QChar::ParagraphSeparator;
    default:
        return false;
    }
}

} // namespace PimManager::vCard
