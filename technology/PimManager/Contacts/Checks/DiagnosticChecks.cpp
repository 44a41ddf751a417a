#include "Checks/DiagnosticChecks.h"

#include "Checks/Transcript.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts::Checks
{

namespace
{

Broken Of( const Broken& a_broken, const PimContactDiagnostic& a_diagnostic )
{
    return a_broken.isEmpty() ? a_broken : a_broken + " of " + TranscriptOf( a_diagnostic );
}

// The card of the extent that contains a position; -1 after the last one.
qint64 CardAt( const std::vector<PimContactExtent>& a_extents, qint64 a_offset )
{
    const auto extent = std::lower_bound( a_extents.begin(), a_extents.end(), a_offset,
                                          []( const PimContactExtent& a_extent, qint64 a_place )
                                          { return a_extent.Offset() + a_extent.Length() <= a_place; } );
    return extent == a_extents.end() ? -1 : extent->Card();
}

// A diagnostic that is reported once for a file belongs to no card. A card without END is reported at its end.
Broken BrokenCardNumber( const PimContactDiagnostic& a_diagnostic, const std::vector<PimContactExtent>& a_extents )
{
    const PimContactDiagnosticCode code = a_diagnostic.Code();
    if ( code == PimContactDiagnosticCode::Encoding || code == PimContactDiagnosticCode::LineEnd ||
         code == PimContactDiagnosticCode::LastLineEnd || code == PimContactDiagnosticCode::JCard )
        return Same( "card", a_diagnostic.Card(), 0 );
    const bool isAtEnd = code == PimContactDiagnosticCode::MissingEnd || code == PimContactDiagnosticCode::EndOfFile;
    const qint64 card = CardAt( a_extents, a_diagnostic.Offset() - ( isAtEnd ? 1 : 0 ) );
    return card == -1 ? Broken() : Same( "card", a_diagnostic.Card(), card );
}

// Its position is in the JSON before the conversion.
bool IsInJson( const PimContactDiagnostic& a_diagnostic )
{
    return a_diagnostic.Code() == PimContactDiagnosticCode::JsonSyntax ||
           a_diagnostic.Code() == PimContactDiagnosticCode::JsonPart;
}

Broken BrokenPlace( const PimContactDiagnostic& a_diagnostic, const Subject& a_subject )
{
    if ( IsInJson( a_diagnostic ) )
        return Holds( a_diagnostic.Offset() >= 0 && a_diagnostic.Offset() <= a_subject.m_bytes.size(),
                      "offset beyond the JSON" );
    const qint64 offset = a_diagnostic.Offset();
    if ( offset < 0 || offset > a_subject.m_text.size() )
        return "offset beyond the text";
    const size_t line = LineAt( a_subject.m_lines, offset );
    const qint64 begin =
        line < a_subject.m_lines.size() ? a_subject.m_lines[line].m_begin : qint64{ a_subject.m_text.size() };
    return FirstBroken( [&] { return Same( "line", a_diagnostic.Line(), static_cast<qint64>( line ) + 1 ); },
                        [&] { return Same( "column", a_diagnostic.Column(), offset - begin + 1 ); },
                        [&] { return BrokenCardNumber( a_diagnostic, a_subject.m_reading.m_extents ); } );
}

Broken BrokenDiagnostic( const PimContactDiagnostic& a_diagnostic, const Subject& a_subject )
{
    return FirstBroken( [&] { return BrokenPlace( a_diagnostic, a_subject ); },
                        [&] { return Holds( a_diagnostic.Count() >= 1, "count below 1" ); },
                        [&] { return Holds( !a_diagnostic.Text().isEmpty(), "no text" ); },
                        [&] {
                            return Holds( a_diagnostic.Severity() == SeverityOf( a_diagnostic.Code() ),
                                          "severity is not that of the code" );
                        } );
}

Broken BrokenOrder( const std::vector<PimContactDiagnostic>& a_diagnostics )
{
    qint64 offset = 0;
    return FirstBrokenOf( a_diagnostics,
                          [&offset]( const PimContactDiagnostic& a_diagnostic )
                          {
                              if ( IsInJson( a_diagnostic ) )
                                  return Broken();
                              const bool isBack = a_diagnostic.Offset() < offset;
                              offset = a_diagnostic.Offset();
                              return isBack ? Of( "order", a_diagnostic ) : Broken();
                          } );
}

Broken BrokenFindings( const Subject& a_subject )
{
    std::array<qint64, s_kPimContactDiagnosticCodes> codes{};
    std::array<qint64, static_cast<size_t>( PimContactSeverity::Refused ) + 1> severities{};
    for ( const PimContactDiagnostic& diagnostic : a_subject.m_reading.m_diagnostics )
    {
        ++codes[static_cast<size_t>( diagnostic.Code() )];
        ++severities[static_cast<size_t>( diagnostic.Severity() )];
    }
    const PimContactReport& report = a_subject.m_reading.m_report;
    for ( size_t i = 0; i < codes.size(); ++i )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( i );
        if ( report.Findings( code ) != codes[i] )
            return Same( NameOf( code ).latin1(), report.Findings( code ), codes[i] );
    }
    for ( size_t i = 0; i < severities.size(); ++i )
    {
        const auto severity = static_cast<PimContactSeverity>( i );
        if ( report.Findings( severity ) != severities[i] )
            return Same( NameOf( severity ).latin1(), report.Findings( severity ), severities[i] );
    }
    return Broken();
}

Broken BrokenKept( const Subject& a_subject )
{
    const std::vector<PimContactDiagnostic>& all = a_subject.m_reading.m_diagnostics;
    const QList<PimContactDiagnostic> kept = a_subject.m_reading.m_report.Diagnostics();
    const int limit = a_subject.m_options.Diagnostics();
    const auto count = static_cast<qint64>( all.size() );
    const qint64 expected = limit < 0 ? count : std::min<qint64>( limit, count );
    return FirstBroken( [&] { return Same( "kept diagnostics", kept.size(), expected ); },
                        [&]
                        {
                            return Holds( std::equal( kept.begin(), kept.end(), all.begin() ),
                                          "the kept diagnostics are not the first ones" );
                        } );
}

} // namespace

Broken BrokenDiagnostics( const Subject& a_subject )
{
    const std::vector<PimContactDiagnostic>& diagnostics = a_subject.m_reading.m_diagnostics;
    return FirstBroken( [&] { return BrokenOrder( diagnostics ); },
                        [&]
                        {
                            return FirstBrokenOf( diagnostics, [&a_subject]( const PimContactDiagnostic& a_found )
                                                  { return Of( BrokenDiagnostic( a_found, a_subject ), a_found ); } );
                        },
                        [&] { return BrokenFindings( a_subject ); }, [&] { return BrokenKept( a_subject ); } );
}

} // namespace PimManager::Contacts::Checks
