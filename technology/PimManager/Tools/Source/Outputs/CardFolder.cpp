#include "Outputs/CardFolder.h"

#include "Outputs/SafeFileName.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContact.h>

#include <QBuffer>

namespace PimManager::Tools
{

using namespace Contacts;

CardFolder::CardFolder( const QByteArray& a_folder, const OutputClaims& a_claims, PimContactFormat a_format,
                        Console& a_console ) :
    m_folder( a_folder, a_claims ),
    m_format( a_format ),
    m_console( a_console )
{
}

void CardFolder::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    if ( m_folder.HasFailed() )
        return;
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, m_format );
    writer.Write( a_card );
    writer.Finish();
    const bool isJson = m_format == PimContactFormat::JCard;
    m_folder.Write( buffer.data(), ToSafeFileName( PimContact( a_card ).DisplayName() ), isJson ? "jcard" : "vcf" );
    if ( !m_folder.HasFailed() )
        m_losses.Add( writer.Report() );
}

void CardFolder::End()
{
    m_folder.Close();
    m_losses.Remark( m_console );
}

QStringList CardFolder::Failures() const
{
    const QString failure = m_folder.Failure( QStringLiteral( "contacts" ) );
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

QString CardFolder::Result() const
{
    return m_losses.Result() + QStringLiteral( " into " ) +
           Counted( m_folder.Written(), QStringLiteral( "file" ), QStringLiteral( "files" ) );
}

} // namespace PimManager::Tools
