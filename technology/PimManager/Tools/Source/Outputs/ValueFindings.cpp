#include "Outputs/ValueFindings.h"

#include <PimManager/Contacts/PimContactDiagnostic.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QByteArray>

#include <array>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

using Problem = PimContactDecodingProblem;

struct Finding
{
    Problem m_problem;
    PimContactSeverity m_severity;
    const char* m_word;
    // %1 is the character set, %2 how often it was found, %3 where it was found first.
    const char* m_text;
};

constexpr std::array s_kFindings = {
    Finding{ Problem::UnknownCharset, PimContactSeverity::Repaired, "unknown-charset",
             "the line names an unknown character set and was read as %1" },
    Finding{ Problem::AssumedCharset, PimContactSeverity::Repaired, "assumed-charset",
             "the line names no character set and was read as %1" },
    Finding{ Problem::MalformedText, PimContactSeverity::Note, "malformed-text",
             "bytes that are not valid in %1 (%2 in all)" },
    Finding{ Problem::MissingCodec, PimContactSeverity::Note, "missing-codec",
             "this system cannot decode %1; install its iconv module" },
    Finding{ Problem::MalformedQuotedPrintable, PimContactSeverity::Note, "malformed-quoted-printable",
             "\"=\" is not followed by two hexadecimal digits (%2 in all)" },
    Finding{ Problem::EscapedQuote, PimContactSeverity::Note, "escaped-quote",
             "a backslash before a quote was removed (%2 in all)" },
    Finding{ Problem::MalformedBinary, PimContactSeverity::Note, "malformed-binary",
             "the value cannot be decoded from character %3 on" },
};

// An unknown name says more than that another character set was used.
bool IsImplied( Problem a_problem, PimContactDecodingProblems a_all )
{
    return a_problem == Problem::AssumedCharset && a_all.testFlag( Problem::UnknownCharset );
}

QString TextOf( const Finding& a_finding, const PimContactDecoding& a_decoding )
{
    QString text = QString::fromLatin1( a_finding.m_text );
    text.replace( QLatin1String( "%1" ), QString::fromLatin1( a_decoding.Charset() ) );
    text.replace( QLatin1String( "%2" ), QString::number( a_decoding.Count( a_finding.m_problem ) ) );
    return text.replace( QLatin1String( "%3" ), QString::number( a_decoding.FirstPlace( a_finding.m_problem ) + 1 ) );
}

// Counts the lines of a card up to places that grow.
class LineCounter
{
public:
    explicit LineCounter( const QByteArray& a_bytes ) :
        m_bytes( a_bytes )
    {
    }

    qint64 LinesBefore( qint64 a_offset )
    {
        for ( ; m_place < a_offset; ++m_place )
            m_lines += IsLastOfLineEnd() ? 1 : 0;
        return m_lines;
    }

private:
    // LF, or the last CR of several that no LF follows.
    bool IsLastOfLineEnd() const
    {
        const char byte = m_bytes.at( static_cast<int>( m_place ) );
        if ( byte != '\r' )
            return byte == '\n';
        const char next = ByteAt( m_place + 1 );
        return next != '\n' && !( next == '\r' && ByteAt( m_place + 2 ) == '\n' );
    }

    char ByteAt( qint64 a_place ) const
    {
        return a_place < m_bytes.size() ? m_bytes.at( static_cast<int>( a_place ) ) : '\0';
    }

    const QByteArray m_bytes;
    qint64 m_place = 0;
    qint64 m_lines = 0;
};

} // namespace

QStringList ValueFindings::Of( const QString& a_source, const PimContactCard& a_card )
{
    QStringList findings;
    Examine( a_source, a_card, findings );
    return findings;
}

void ValueFindings::Examine( const QString& a_source, const PimContactCard& a_card, QStringList& a_findings )
{
    LineCounter counter( a_card.Bytes() );
    for ( const PimContactLine& line : a_card )
    {
        const qint64 number = a_card.FirstLine() + counter.LinesBefore( line.OffsetInCard() );
        const PimContactDecoding decoding = line.Decoding();
        if ( !decoding.IsClean() )
            Describe( QStringLiteral( "%1:%2:1" ).arg( a_source ).arg( number ), decoding, a_findings );
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            Examine( a_source, nested, a_findings );
    }
}

void ValueFindings::Describe( const QString& a_place, const PimContactDecoding& a_decoding, QStringList& a_findings )
{
    for ( const Finding& finding : s_kFindings )
    {
        if ( !a_decoding.Problems().testFlag( finding.m_problem ) ||
             IsImplied( finding.m_problem, a_decoding.Problems() ) )
            continue;
        ++m_counts[finding.m_problem];
        a_findings << a_place + QStringLiteral( ": " ) + QString( NameOf( finding.m_severity ) ) +
                          QStringLiteral( ": " ) + TextOf( finding, a_decoding ) + QStringLiteral( " [" ) +
                          QLatin1String( finding.m_word ) + QLatin1Char( ']' );
    }
}

QList<FindingCount> ValueFindings::Counts() const
{
    QList<FindingCount> counts;
    for ( const Finding& finding : s_kFindings )
    {
        const auto found = m_counts.find( finding.m_problem );
        if ( found != m_counts.end() )
            counts << FindingCount{ static_cast<int>( finding.m_severity ),
                                    { found->second, QString::fromLatin1( finding.m_word ) } };
    }
    return counts;
}

} // namespace PimManager::Tools
