#include "Cards/Diagnostic.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;
using Severity = PimContactSeverity;

struct Entry
{
    Code m_code;
    Severity m_severity;
    const char* m_name;
    // "%1" is replaced by the count.
    const char* m_text;
};

// In the order of the codes.
constexpr std::array<Entry, s_kPimContactDiagnosticCodes> s_kEntries = { {
    { Code::Encoding, Severity::Note, "encoding", "the file is in UTF-16" },
    { Code::LineEnd, Severity::Repaired, "line-end", "the line does not end in CR LF, and others may not either" },
    { Code::LastLineEnd, Severity::Repaired, "last-line-end", "the last line has no line ending" },
    { Code::TextOutside, Severity::Note, "text-outside", "text outside cards was ignored: lines: %1" },
    { Code::EndWithoutBegin, Severity::Note, "end-without-begin", "an END line without a card" },
    { Code::StrayByteOrderMark, Severity::Repaired, "stray-byte-order-mark", "byte order marks were ignored: %1" },
    { Code::CompressedFile, Severity::Refused, "compressed-file", "the file is a compressed archive" },
    { Code::DocumentFile, Severity::Refused, "document-file", "the file is a PDF document" },
    { Code::ImageFile, Severity::Refused, "image-file", "the file is an image" },
    { Code::HtmlFile, Severity::Note, "html-file", "no card was found; the file is an HTML page" },
    { Code::UnknownFile, Severity::Note, "unknown-file", "no card was found; the file is not text" },
    { Code::NoCard, Severity::Note, "no-card", "no card was found in the text" },
    { Code::JCard, Severity::Note, "jcard", "the file has jCards, which were converted" },
    { Code::JsonSyntax, Severity::Repaired, "json-syntax", "errors in the JSON were mended: %1" },
    { Code::JsonPart, Severity::Note, "json-part", "a part of the JSON is no card and no property" },
    { Code::Charset, Severity::Repaired, "charset", "the card is not in UTF-8; another character set applies" },
    { Code::BoundaryLine, Severity::Repaired, "boundary-line", "blanks round BEGIN or END were ignored" },
    { Code::BoundaryText, Severity::Dropped, "boundary-text", "other text on a BEGIN or END line" },
    { Code::IndentedCard, Severity::Repaired, "indented-card", "the indentation of the card was ignored" },
    { Code::MissingBegin, Severity::Repaired, "missing-begin", "the card has no BEGIN line" },
    { Code::MissingEnd, Severity::Repaired, "missing-end", "the card has no END line; it ends where the next begins" },
    { Code::EndOfFile, Severity::Repaired, "end-of-file", "the card has no END line; it ends with the file" },
    { Code::FoldsByLength, Severity::Note, "folds-by-length", "lines are folded at one length; the blank was removed" },
    { Code::NestingTooDeep, Severity::Dropped, "nesting-too-deep", "cards inside cards beyond the limit" },
    { Code::CardTooLong, Severity::Refused, "card-too-long", "the card has more bytes than the limit" },
    { Code::CardOfManyLines, Severity::Refused, "card-of-many-lines", "the card has more lines than the limit" },
    { Code::TooManyCards, Severity::Refused, "too-many-cards", "the card is one more than the limit" },
    { Code::BookTooLong, Severity::Refused, "book-too-long", "the cards together have more bytes than the limit" },
    { Code::NotAProperty, Severity::Dropped, "not-a-property", "the line is not a property, and belongs to none" },
    { Code::Comment, Severity::Dropped, "comment", "the line is a comment" },
    { Code::LineTooLong, Severity::Dropped, "line-too-long", "the line is longer than the limit" },
    { Code::LineJoined, Severity::Repaired, "line-joined", "lines without indentation joined with the value before" },
    { Code::MissingColon, Severity::Repaired, "missing-colon", "the colon behind the name is missing" },
    { Code::SoftLineBreak, Severity::Repaired, "soft-line-break", "an unusual soft line break was mended" },
    { Code::Base64Lines, Severity::Repaired, "base64-lines", "lines of BASE64 without indentation were joined" },
    { Code::ControlCharacters, Severity::Note, "control-characters", "control characters in the line: %1" },
    { Code::NameBlanks, Severity::Repaired, "name-blanks", "blanks round a name or a parameter were ignored" },
    { Code::OddName, Severity::Note, "odd-name", "an unusual property name was kept" },
    { Code::OpenQuote, Severity::Repaired, "open-quote", "a quote that is never closed" },
    { Code::OddParameter, Severity::Note, "odd-parameter", "an unusual parameter was kept" },
    { Code::EmptyParameter, Severity::Repaired, "empty-parameter", "an empty parameter was ignored" },
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

PimContactDiagnostic PimContactDiagnosticPrivate::Create( PimContactDiagnosticCode a_code, qint64 a_card,
                                                          const TextPlace& a_place, qint64 a_count )
{
    PimContactDiagnostic diagnostic;
    diagnostic.d->m_code = a_code;
    diagnostic.d->m_card = a_card;
    diagnostic.d->m_place = a_place;
    diagnostic.d->m_count = a_count;
    return diagnostic;
}

PimContactDiagnostic::PimContactDiagnostic() :
    d( new PimContactDiagnosticPrivate )
{
}

PimContactDiagnostic::PimContactDiagnostic( const PimContactDiagnostic& a_other ) = default;
PimContactDiagnostic& PimContactDiagnostic::operator=( const PimContactDiagnostic& a_other ) = default;
PimContactDiagnostic::~PimContactDiagnostic() = default;

PimContactDiagnosticCode PimContactDiagnostic::Code() const
{
    return d->m_code;
}

PimContactSeverity PimContactDiagnostic::Severity() const
{
    return SeverityOf( d->m_code );
}

qint64 PimContactDiagnostic::Card() const
{
    return d->m_card;
}

qint64 PimContactDiagnostic::Line() const
{
    return d->m_place.m_line;
}

qint64 PimContactDiagnostic::Column() const
{
    return d->m_place.m_offset - d->m_place.m_lineOffset + 1;
}

qint64 PimContactDiagnostic::Offset() const
{
    return d->m_place.m_offset;
}

qint64 PimContactDiagnostic::Count() const
{
    return d->m_count;
}

QString PimContactDiagnostic::Text() const
{
    return QString( QLatin1String( EntryOf( d->m_code ).m_text ) )
        .replace( QLatin1String( "%1" ), QString::number( d->m_count ) );
}

bool PimContactDiagnostic::operator==( const PimContactDiagnostic& a_other ) const
{
    return d->m_code == a_other.d->m_code && d->m_card == a_other.d->m_card && d->m_count == a_other.d->m_count &&
           Line() == a_other.Line() && Column() == a_other.Column() && Offset() == a_other.Offset();
}

bool PimContactDiagnostic::operator!=( const PimContactDiagnostic& a_other ) const
{
    return !( *this == a_other );
}

QLatin1String NameOf( PimContactDiagnosticCode a_code )
{
    return QLatin1String( EntryOf( a_code ).m_name );
}

QLatin1String NameOf( PimContactSeverity a_severity )
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

PimContactSeverity SeverityOf( PimContactDiagnosticCode a_code )
{
    return EntryOf( a_code ).m_severity;
}

} // namespace PimManager::Contacts
