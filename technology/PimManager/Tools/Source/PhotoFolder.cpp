#include "PhotoFolder.h"

#include "Attachment.h"
#include "OutputDevice.h"
#include "SafeFileName.h"
#include "TerminalText.h"
#include "Wording.h"

#include "PimVCard.h"
#include "PimVCardDecoding.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

constexpr mode_t s_kFolderMode = 0777;
constexpr mode_t s_kFileMode = 0666;

QString Pictures( qint64 a_count )
{
    return Counted( a_count, QStringLiteral( "picture" ), QStringLiteral( "pictures" ) );
}

} // namespace

PhotoFolder::PhotoFolder( const QByteArray& a_folder ) :
    m_path( a_folder )
{
}

PhotoFolder::~PhotoFolder()
{
    if ( m_folder >= 0 )
        ::close( m_folder );
}

void PhotoFolder::Begin()
{
    if ( ::mkdir( m_path.constData(), s_kFolderMode ) != 0 && errno != EEXIST )
        m_error = errno;
    m_folder = ::open( m_path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC );
    if ( m_folder < 0 && m_error == 0 )
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
    const int file = CreateFile( ToSafeFileName( a_contact ), picture.m_fileEnding.toUtf8() );
    if ( file < 0 )
        return;
    {
        OutputDevice device( file );
        device.write( picture.m_bytes );
        device.Flush();
        m_error = device.Error();
    }
    if ( ::close( file ) != 0 && m_error == 0 )
        m_error = errno;
    if ( m_error != 0 )
        ::unlinkat( m_folder, m_fileName.constData(), 0 );
    else
        ++m_written;
}

int PhotoFolder::CreateFile( const QByteArray& a_stem, const QByteArray& a_ending )
{
    for ( ;; )
    {
        m_fileName = a_stem + '-' + QByteArray::number( ++m_number ) + '.' + a_ending;
        const int file = ::openat( m_folder, m_fileName.constData(),
                                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, s_kFileMode );
        if ( file >= 0 )
            return file;
        if ( errno != EEXIST )
        {
            m_error = errno;
            return -1;
        }
    }
}

} // namespace PimManager::vCard::Tools
