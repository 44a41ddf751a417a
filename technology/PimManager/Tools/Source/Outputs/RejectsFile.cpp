#include "Outputs/RejectsFile.h"

namespace PimManager::Tools
{

using namespace Contacts;

RejectsFile::RejectsFile( const QByteArray& a_fileName, OutputClaims& a_claims ) :
    m_file( a_fileName, a_claims )
{
}

void RejectsFile::BeginBook( const BookInRun& /*a_book*/, const PimContactReader& /*a_reader*/ )
{
    m_end = -1;
}

void RejectsFile::TakeExtent( const BookInRun& /*a_book*/, const PimContactExtent& a_extent )
{
    if ( a_extent.Kind() != PimContactExtentKind::Dropped && a_extent.Kind() != PimContactExtentKind::Refused )
        return;
    if ( m_isLineOpen && a_extent.Offset() != m_end )
        m_file.Device().write( "\r\n" );
    const QByteArray bytes = a_extent.Bytes();
    m_file.Device().write( bytes );
    m_isLineOpen = !bytes.endsWith( '\n' ) && !bytes.endsWith( '\r' );
    m_end = a_extent.Offset() + a_extent.Length();
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

} // namespace PimManager::Tools
