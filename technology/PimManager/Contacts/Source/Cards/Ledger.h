/// \file
/// The ledger, with all counters of a report.

#pragma once

#include "Cards/Diagnostic.h"

#include <PimManager/Contacts/PimContactReader.h>

#include <QList>
#include <QSharedData>

#include <array>
#include <deque>
#include <string_view>

namespace PimManager::Contacts
{

/// The counters.
struct ReportData
{
    std::array<qint64, s_kPimContactExtentKinds> m_bytes = {};
    std::array<qint64, s_kPimContactExtentKinds> m_extents = {};
    qint64 m_cards = 0;
    qint64 m_cardsWhole = 0;
    qint64 m_cardsInPart = 0;
    qint64 m_cardsRefused = 0;
    qint64 m_cardsNested = 0;
    std::array<qint64, s_kPimContactVersions> m_versions = {};
    std::array<qint64, 4> m_lineEnds = {};
    QByteArray m_charset = QByteArrayLiteral( "UTF-8" );
    PimContactEvidence m_evidence = PimContactEvidence::None;
    bool m_isConverted = false;
    PimContactFileKind m_fileKind = PimContactFileKind::Empty;
    bool m_isStopped = false;
    bool m_isFinished = false;
    QString m_errorText;
    QList<PimContactDiagnostic> m_diagnostics;
    std::array<qint64, s_kPimContactDiagnosticCodes> m_findings = {};
};

/// The data of a report.
class PimContactReportPrivate : public QSharedData, public ReportData
{
public:
    static PimContactReport Create( const ReportData& a_data );
    static void SetError( PimContactReport& a_report, const QString& a_text ) { a_report.d->m_errorText = a_text; }
};

/// Counts what happens to each byte and each card, and passes extents and diagnostics to the handlers. Extents are
/// added in the order of the text and without gaps, so together they cover the text.
class Ledger
{
public:
    void Reset( int a_mostDiagnostics );
    void SetExtentHandler( const PimContactReader::ExtentHandler& a_handler ) { m_extentHandler = a_handler; }
    void SetDiagnosticHandler( const PimContactReader::DiagnosticHandler& a_handler )
    {
        m_diagnosticHandler = a_handler;
    }

    /// Adds an extent. \param a_bytes if empty, nothing is added.
    void Add( PimContactExtentKind a_kind, std::string_view a_bytes, qint64 a_card )
    {
        if ( a_bytes.empty() )
            return;
        m_data.m_bytes[static_cast<size_t>( a_kind )] += static_cast<qint64>( a_bytes.size() );
        ++m_data.m_extents[static_cast<size_t>( a_kind )];
        if ( m_extentHandler )
            Pass( a_kind, a_bytes, a_card );
        m_offset += static_cast<qint64>( a_bytes.size() );
    }

    /// True if extents must be added one by one, because there is a handler.
    bool HasExtentHandler() const { return static_cast<bool>( m_extentHandler ); }
    /// Adds several extents of a kind at once, if the order of kinds does not matter.
    void AddMany( PimContactExtentKind a_kind, qint64 a_extents, qint64 a_bytes )
    {
        m_data.m_bytes[static_cast<size_t>( a_kind )] += a_bytes;
        m_data.m_extents[static_cast<size_t>( a_kind )] += a_extents;
        m_offset += a_bytes;
    }

    /// The end of the last extent.
    qint64 Offset() const { return m_offset; }

    /// True if findings are only counted: there is no handler, and the report keeps no more.
    bool IsOnlyCounting() const
    {
        return !m_diagnosticHandler && m_mostDiagnostics >= 0 && m_data.m_diagnostics.size() >= m_mostDiagnostics;
    }
    void CountFindings( PimContactDiagnosticCode a_code, qint64 a_count )
    {
        m_data.m_findings[static_cast<size_t>( a_code )] += a_count;
    }
    /// Reports a finding. Except for announced ones, findings must be reported in the order of the text.
    void Report( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place, qint64 a_count = 1 );
    /// Reports a finding as soon as no earlier one can follow.
    void Announce( PimContactDiagnosticCode a_code, const TextPlace& a_place )
    {
        m_announced.push_back( { a_code, 0, a_place, 1, a_place.m_offset } );
    }
    /// The same for a finding whose position is not in this text.
    /// \param a_offset the position in this text that determines its order.
    void Announce( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place, qint64 a_count,
                   qint64 a_offset )
    {
        m_announced.push_back( { a_code, a_card, a_place, a_count, a_offset } );
    }
    /// No finding before this position follows.
    void FlushUpTo( qint64 a_offset )
    {
        if ( !m_announced.empty() )
            Flush( a_offset );
    }

    ReportData& Data() { return m_data; }
    const ReportData& Data() const { return m_data; }
    PimContactReport Report() const { return PimContactReportPrivate::Create( m_data ); }

private:
    struct Announced
    {
        PimContactDiagnosticCode m_code;
        qint64 m_card;
        TextPlace m_place;
        qint64 m_count;
        qint64 m_offset;
    };

    void Flush( qint64 a_offset );
    void Pass( PimContactExtentKind a_kind, std::string_view a_bytes, qint64 a_card ) const;
    void Keep( PimContactDiagnosticCode a_code, qint64 a_card, const TextPlace& a_place, qint64 a_count );

    ReportData m_data;
    qint64 m_offset = 0;
    qint64 m_mostDiagnostics = 0;
    std::deque<Announced> m_announced;
    PimContactReader::ExtentHandler m_extentHandler;
    PimContactReader::DiagnosticHandler m_diagnosticHandler;
};

} // namespace PimManager::Contacts
