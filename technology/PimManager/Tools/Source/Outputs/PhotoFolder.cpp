#include "Outputs/PhotoFolder.h"

#include "Attachment.h"
#include "Outputs/SafeFileName.h"
#include "TerminalText.h"
#include "Wording.h"

#include "PimVCard.h"
#include "PimVCardDecoding.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

QString Pictures( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "picture" ), QStringLiteral( "pictures" ) );
}

} // namespace

PhotoFolder::PhotoFolder( const QByteArray& a_folder, const OutputClaims& a_claims ) :
    m_path( a_folder ),
    m_claims( a_claims )
{
}

void PhotoFolder::Open()
{
    if ( ::mkdir( m_path.constData(), S_IRWXU ) != 0 && errno != EEXIST )
        m_error = errno;
    m_folder = FileDescriptor( ::open( m_path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC ) );
    if ( !m_folder.IsOpen() && m_error == 0 )
        m_error = errno;
}

void PhotoFolder::TakeCard( const ImportedBook& /*a_book*/, const PimVCardImportedCard& a_card )
{
    const QList<PimVCardProperty*> properties = a_card.m_card->GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( m_error == 0 && property != nullptr && IsPicture( *property ) )
            TakePicture( DisplayNameOf( *a_card.m_card ), *property );
    }
}

void PhotoFolder::End()
{
    if ( m_error == 0 )
        m_error = AtomicFile::SyncFolder( m_folder.Number() );
}

QStringList PhotoFolder::Failures() const
{
    QStringList failures;
    if ( m_error != 0 )
        failures << ToShownFileName( m_path ) + QStringLiteral( ": pictures cannot be written: " ) +
                        qt_error_string( m_error );
    return failures;
}

QString PhotoFolder::Result() const
{
    QString result = Pictures( m_written ) + QStringLiteral( " written" );
    if ( m_addresses > 0 )
        result += QStringLiteral( " (%1 only linked to, not fetched)" ).arg( Pictures( m_addresses ) );
    if ( m_unreadable > 0 )
        result += QStringLiteral( " (%1 unreadable)" ).arg( Pictures( m_unreadable ) );
    return result;
}

void PhotoFolder::TakePicture( const QString& a_contact, const PimVCardProperty& a_property )
{
    const PimVCardAttachment picture = AttachmentOf( a_property );
    if ( picture.m_bytes.isEmpty() )
    {
        const bool isEmpty = TextOf( a_property ).trimmed().isEmpty();
        m_addresses += picture.m_address.isEmpty() ? 0 : 1;
        m_unreadable += picture.m_address.isEmpty() && !isEmpty ? 1 : 0;
        return;
    }
    WriteFile( picture.m_bytes, ToSafeFileName( a_contact ), picture.m_fileEnding.toUtf8() );
}

void PhotoFolder::WriteFile( const QByteArray& a_bytes, const QByteArray& a_stem, const QByteArray& a_ending )
{
    AtomicFile file( m_folder.Number() );
    file.Device().write( a_bytes );
    m_error = Publish( file, a_stem, a_ending );
    m_written += m_error == 0 ? 1 : 0;
}

int PhotoFolder::Publish( AtomicFile& a_file, const QByteArray& a_stem, const QByteArray& a_ending )
{
    for ( ;; )
    {
        const QByteArray name = a_stem + '-' + QByteArray::number( ++m_number ) + '.' + a_ending;
        if ( m_claims.IsUsed( FileIdentity::At( m_folder.Number(), name ) ) )
            continue;
        const int error = a_file.Publish( name, m_claims.GetExisting() );
        if ( error != EEXIST && error != EISDIR )
            return error;
    }
}

} // namespace PimManager::vCard::Tools
