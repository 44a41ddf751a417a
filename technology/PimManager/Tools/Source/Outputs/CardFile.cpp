#include "Outputs/CardFile.h"

namespace PimManager::Tools
{

using namespace Contacts;

CardFile::CardFile( const QByteArray& a_fileName, OutputClaims& a_claims, PimContactFormat a_format,
                    Console& a_console ) :
    m_file( a_fileName, a_claims ),
    m_writer( m_file.Device(), a_format ),
    m_console( a_console )
{
}

void CardFile::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    m_writer.Write( a_card );
}

void CardFile::End()
{
    m_writer.Finish();
    m_file.Close();
    m_losses.Add( m_writer.Report() );
    m_losses.Remark( m_console );
}

QStringList CardFile::Failures() const
{
    const QString failure = m_file.Failure();
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

} // namespace PimManager::Tools
