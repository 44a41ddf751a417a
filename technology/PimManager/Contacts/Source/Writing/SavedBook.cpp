// Saves books as files.

#include "Writing/WriteNotes.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QSaveFile>

namespace PimManager::Contacts
{

PimContactWriteReport PimContactBook::Save( QIODevice& a_device, PimContactFormat a_format ) const
{
    PimContactWriter writer( a_device, a_format );
    for ( const PimContactCard& card : Cards() )
    {
        if ( !writer.Write( card ) )
            break;
    }
    writer.Finish();
    return writer.Report();
}

PimContactWriteReport PimContactBook::Save( const QString& a_name, PimContactFormat a_format ) const
{
    QSaveFile file( a_name );
    PimContactWriteReport report;
    const bool isOpen = file.open( QIODevice::WriteOnly );
    if ( isOpen )
        report = Save( file, a_format );
    if ( report.ErrorText().isEmpty() && ( !isOpen || !file.commit() ) )
        PimContactWriteReportPrivate::DataOf( report ).m_error = file.errorString();
    return report;
}

} // namespace PimManager::Contacts
