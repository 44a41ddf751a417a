#include "PimVCardCharacterClass.h"

#include "PimVCardVocabulary.h"

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

constexpr Bytes With( Bytes a_bytes, const char* a_characters )
{
    for ( ; *a_characters != 0; ++a_characters )
        a_bytes[static_cast<uchar>( *a_characters )] = true;
    return a_bytes;
}

constexpr Bytes Without( Bytes a_bytes, uchar a_byte )
{
    a_bytes[a_byte] = false;
    return a_bytes;
}

constexpr Bytes s_kLettersAndDigits = With( With( With( Bytes{}, '0', '9' ), 'A', 'Z' ), 'a', 'z' );
// U+FEFF, whose first byte is 0xEF, ends a run.
constexpr Bytes s_kWide = Without( With( With( Bytes{}, " \t" ), 0x80, 0xFF ), 0xEF );
constexpr Bytes s_kQSafe = Without( Without( With( s_kWide, 0x21, 0x7E ), '"' ), '\\' );
constexpr Bytes s_kValues = Without( Without( With( s_kWide, 0x21, 0x7E ), ';' ), '\\' );

constexpr Class Delimiter( const QString& a_delimiter, const char* a_character )
{
    return { With( Bytes{}, a_character ), Class::Beyond::Nothing, false, false, false, false, &a_delimiter };
}

constexpr Class s_kSemicolonClass = Delimiter( s_kSemicolon, ";" );
constexpr Class s_kDotClass = Delimiter( s_kDot, "." );
constexpr Class s_kEqualsClass = Delimiter( s_kEquals, "=" );
constexpr Class s_kCommaClass = Delimiter( s_kComma, "," );
constexpr Class s_kColonClass = Delimiter( s_kColon, ":" );
constexpr Class s_kDQuoteClass = Delimiter( s_kDQuote, "\"" );
constexpr Class s_kNameClass = { With( s_kLettersAndDigits, "-" ), Class::Beyond::Nothing, false, false, true };
constexpr Class s_kValueClass = { With( s_kValues, "\n" ), Class::Beyond::Everything, false, true };
constexpr Class s_kQSafeClass = { s_kQSafe, Class::Beyond::Everything, true };
constexpr Class s_kCrlfClass = { With( Bytes{}, 0x0A, 0x0D ), Class::Beyond::LineBreaks, false, false, false, true };
constexpr Class s_kBase64Class = { With( s_kLettersAndDigits, "+/=" ) };

struct Entry
{
    const QString* m_pattern;
    const Class* m_class;
};

// The most wanted come first.
constexpr std::array<Entry, 11> s_kEntries = { {
    { &s_kSemicolonPattern, &s_kSemicolonClass },
    { &s_kNamePattern, &s_kNameClass },
    { &s_kValueCharPattern, &s_kValueClass },
    { &s_kDotPattern, &s_kDotClass },
    { &s_kCrlfPattern, &s_kCrlfClass },
    { &s_kColonPattern, &s_kColonClass },
    { &s_kEqualsPattern, &s_kEqualsClass },
    { &s_kCommaPattern, &s_kCommaClass },
    { &s_kDQuotePattern, &s_kDQuoteClass },
    { &s_kBase64CharPattern, &s_kBase64Class },
    { &s_kQSafeCharPattern, &s_kQSafeClass },
} };

// The vocabulary's texts are never copied, so a pattern is known by where it stands.
bool AreSameText( const QString& a_first, const QString& a_second )
{
    return a_first.constData() == a_second.constData() && a_first.size() == a_second.size();
}

} // namespace

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
            return entry.m_class;
    }
    return nullptr;
}

bool Class::MatchesEscaped( QChar a_character ) const
{
    switch ( a_character.unicode() )
    {
    case '\\':
    case ',':
    case ';':
    case ':':
        return m_escapePairs;
    case 0: // the text ends behind the backslash, which is then tested alone
        return m_backslash;
    default:
        return false;
    }
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
