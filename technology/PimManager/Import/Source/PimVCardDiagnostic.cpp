#include "PimVCardDiagnostic.h"

#include <array>

namespace PimManager::vCardImport
{

namespace
{

using Code = PimVCardDiagnosticCode;
using Severity = PimVCardSeverity;

struct Entry
{
    Code m_code;
    Severity m_severity;
    const char* m_name;
    // "%1" stands for the count.
    const char* m_text;
};

// In the order of the codes.
constexpr std::array<Entry, s_kDiagnosticCodes> s_kEntries = { {
    { Code::Encoding, Severity::Note, "encoding", "the file begins with a byte order mark, or is in UTF-16" },
    { Code::LineEnd, Severity::Repaired, "line-end", "the line does not end in CR LF, and others may not either" },
    { Code::LastLineEnd, Severity::Repaired, "last-line-end", "the last line has no line end" },
    { Code::TextOutside, Severity::Note, "text-outside", "text outside cards was passed over: lines: %1" },
    { Code::EndWithoutBegin, Severity::Note, "end-without-begin", "an END line without a card" },
    { Code::LostCard, Severity::Dropped, "lost-card", "what looks like a card has no BEGIN line: lines: %1" },
    { Code::StrayByteOrderMark, Severity::Repaired, "stray-byte-order-mark", "byte order marks taken away: %1" },
    { Code::Charset, Severity::Repaired, "charset", "the card is not in UTF-8; another character set was used" },
    { Code::CharactersReplaced, Severity::Repaired, "characters-replaced", "characters that could not be read: %1" },
    { Code::BoundaryLine, Severity::Repaired, "boundary-line", "blanks or other things round BEGIN or END taken away" },
    { Code::IndentedCard, Severity::Repaired, "indented-card", "the indentation of the card taken away" },
    { Code::MissingEnd, Severity::Repaired, "missing-end", "the card has no END line; it ends where the next begins" },
    { Code::NestedCard, Severity::Note, "nested-card", "a card inside the card, kept as text" },
    { Code::NestingTooDeep, Severity::Dropped, "nesting-too-deep", "cards inside cards beyond the limit" },
    { Code::CardTooLong, Severity::Refused, "card-too-long", "the card is longer than the limit" },
    { Code::TooManyCards, Severity::Refused, "too-many-cards", "the card is one more than the limit" },
    { Code::CardUnreadable, Severity::Refused, "card-unreadable", "no line of the card could be read" },
    { Code::NotAProperty, Severity::Dropped, "not-a-property", "the line is no property, and belongs to none" },
    { Code::LineTooLong, Severity::Dropped, "line-too-long", "the line is longer than the limit" },
    { Code::ValueTooLong, Severity::Dropped, "value-too-long", "the value is longer than the limit" },
    { Code::LineUnreadable, Severity::Dropped, "line-unreadable", "the line could not be read" },
    { Code::LineJoined, Severity::Repaired, "line-joined", "lines without indentation joined with the value before" },
    { Code::MissingColon, Severity::Repaired, "missing-colon", "a colon added behind the name" },
    { Code::SoftLineBreak, Severity::Repaired, "soft-line-break", "an odd soft line break mended" },
    { Code::EncodedLineBreak, Severity::Note, "encoded-line-break", "an encoded line break kept" },
    { Code::Base64Lines, Severity::Repaired, "base64-lines", "odd lines or blanks of BASE64 joined" },
    { Code::ControlCharacters, Severity::Repaired, "control-characters", "control characters taken away: %1" },
    { Code::NameBlanks, Severity::Repaired, "name-blanks", "blanks round a name taken away" },
    { Code::OddName, Severity::Note, "odd-name", "an unusual property name kept" },
    { Code::ParameterQuoted, Severity::Repaired, "parameter-quoted", "quotes round a parameter value mended" },
    { Code::OddParameter, Severity::Note, "odd-parameter", "an unusual parameter kept as written" },
    { Code::EmptyParameter, Severity::Repaired, "empty-parameter", "an empty parameter taken away" },
    { Code::UnknownEscape, Severity::Note, "unknown-escape", "backslashes kept as written: %1" },
} };

constexpr bool IsInOrder()
{
    int code = 0;
    for ( const Entry& entry : s_kEntries )
    {
        if ( static_cast<int>( entry.m_code ) != code++ )
            return false;
    }
    return true;
}
static_assert( IsInOrder() );

const Entry& EntryOf( Code a_code )
{
    return s_kEntries[static_cast<size_t>( a_code )];
}

} // namespace

bool operator==( const PimVCardPosition& a_first, const PimVCardPosition& a_second )
{
    return a_first.m_line == a_second.m_line && a_first.m_column == a_second.m_column &&
           a_first.m_offset == a_second.m_offset;
}

bool operator==( const PimVCardDiagnostic& a_first, const PimVCardDiagnostic& a_second )
{
    return a_first.m_code == a_second.m_code && a_first.m_severity == a_second.m_severity &&
           a_first.m_card == a_second.m_card && a_first.m_position == a_second.m_position &&
           a_first.m_count == a_second.m_count;
}

QString TextOf( const PimVCardDiagnostic& a_diagnostic )
{
    return QString( QLatin1String( EntryOf( a_diagnostic.m_code ).m_text ) )
        .replace( QLatin1String( "%1" ), QString::number( a_diagnostic.m_count ) );
}

QLatin1String NameOf( PimVCardDiagnosticCode a_code )
{
    return QLatin1String( EntryOf( a_code ).m_name );
}

QLatin1String NameOf( PimVCardSeverity a_severity )
{
    switch ( a_severity )
    {
    case Severity::Repaired:
        return QLatin1String( "repaired" );
    case Severity::Dropped:
        return QLatin1String( "dropped" );
    case Severity::Refused:
        return QLatin1String( "refused" );
    default:
        return QLatin1String( "note" );
    }
}

PimVCardSeverity SeverityOf( PimVCardDiagnosticCode a_code )
{
    return EntryOf( a_code ).m_severity;
}

} // namespace PimManager::vCardImport
