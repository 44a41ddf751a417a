#include "Outputs/RejectsFile.h"

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

RejectsFile::RejectsFile( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_file( a_fileName, a_claims )
{
}

void RejectsFile::TakeReject( const PimVCardReject& a_reject )
{
    // A card that is too long comes in pieces.
    const bool isTooLong = a_reject.m_reason == PimVCardDiagnosticCode::CardTooLong;
    const bool isNextPiece = isTooLong && a_reject.m_card == m_longCard;
    m_longCard = isTooLong ? a_reject.m_card : -1;
    if ( m_isLineOpen && !isNextPiece )
        m_file.Device().write( "\r\n" );
    m_file.Device().write( a_reject.m_bytes );
    m_isLineOpen = !a_reject.m_bytes.endsWith( '\n' ) && !a_reject.m_bytes.endsWith( '\r' );
}

void RejectsFile::End()
{
    m_file.Close();
}

QStringList RejectsFile::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

} // namespace PimManager::vCard::Tools
