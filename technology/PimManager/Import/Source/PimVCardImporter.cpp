#include "PimVCardImporter.h"

#include "PimVCardImportRun.h"

#include <QIODevice>

#include <utility>

namespace PimManager::vCardImport
{

namespace
{

constexpr qint64 s_kDevicePiece = 0x10000;

} // namespace

PimVCardImporter::PimVCardImporter( const PimVCardImportOptions& a_options ) :
    m_options( a_options )
{
}

PimVCardImporter::~PimVCardImporter() = default;

void PimVCardImporter::SetCardHandler( const CardHandler& a_handler )
{
    m_cardHandler = a_handler;
}

void PimVCardImporter::SetRejectHandler( const RejectHandler& a_handler )
{
    m_rejectHandler = a_handler;
}

void PimVCardImporter::SetDiagnosticHandler( const DiagnosticHandler& a_handler )
{
    m_diagnosticHandler = a_handler;
}

PimVCardImportResult PimVCardImporter::Import( const QByteArray& a_bytes )
{
    PimVCardImportResult result;
    const auto takeCard = [&result]( PimVCardImportedCard a_card )
    {
        result.m_cards.push_back( std::move( a_card ) );
        return true;
    };
    const auto takeReject = [&result]( const PimVCardReject& a_reject ) { result.m_rejects.push_back( a_reject ); };
    m_run = std::make_unique<PimVCardImportRun>(
        m_options, PimVCardImportRun::Handlers{ takeCard, takeReject, m_diagnosticHandler } );
    m_run->Feed( a_bytes );
    result.m_account = Finish();
    return result;
}

PimVCardImportAccount PimVCardImporter::Import( const QByteArray& a_bytes, const CardHandler& a_handler )
{
    BeginRun( a_handler );
    m_run->Feed( a_bytes );
    return Finish();
}

PimVCardImportAccount PimVCardImporter::Import( QIODevice& a_device, const CardHandler& a_handler )
{
    BeginRun( a_handler );
    for ( QByteArray piece = a_device.read( s_kDevicePiece ); !piece.isEmpty();
          piece = a_device.read( s_kDevicePiece ) )
    {
        if ( !m_run->Feed( piece ) )
            break;
    }
    return Finish();
}

bool PimVCardImporter::Feed( const QByteArray& a_piece )
{
    if ( m_run == nullptr )
        BeginRun( m_cardHandler );
    return m_run->Feed( a_piece );
}

PimVCardImportAccount PimVCardImporter::Finish()
{
    if ( m_run == nullptr )
        BeginRun( m_cardHandler );
    const std::unique_ptr<PimVCardImportRun> run = std::move( m_run );
    return run->Finish();
}

const PimVCardImportAccount& PimVCardImporter::Account() const
{
    static const PimVCardImportAccount s_kNothing;
    return m_run != nullptr ? m_run->Account() : s_kNothing;
}

void PimVCardImporter::BeginRun( const CardHandler& a_handler )
{
    m_run = std::make_unique<PimVCardImportRun>(
        m_options, PimVCardImportRun::Handlers{ a_handler, m_rejectHandler, m_diagnosticHandler } );
}

} // namespace PimManager::vCardImport
