#include "Outputs/PhotoFolder.h"

#include "Outputs/Pictures.h"
#include "Outputs/SafeFileName.h"
#include "Terminal/TerminalText.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContact.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace PimManager::Tools
{

using namespace Contacts;

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

void PhotoFolder::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    TakePicturesOf( a_card );
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
    if ( m_links > 0 )
        result += QStringLiteral( " (%1 only linked to, not fetched)" ).arg( Pictures( m_links ) );
    if ( m_unreadable > 0 )
        result += QStringLiteral( " (%1 unreadable)" ).arg( Pictures( m_unreadable ) );
    return result;
}

// The reader limits how deeply cards nest.
void PhotoFolder::TakePicturesOf( const PimContactCard& a_card )
{
    QByteArray stem;
    for ( const PimContactLine& line : a_card )
    {
        if ( m_error != 0 )
            return;
        if ( IsPicture( line ) )
        {
            stem = stem.isEmpty() ? ToSafeFileName( PimContact( a_card ).DisplayName() ) : stem;
            TakePicture( stem, line );
        }
        const PimContactCard nested = line.NestedCard();
        if ( !nested.IsNull() )
            TakePicturesOf( nested );
    }
}

void PhotoFolder::TakePicture( const QByteArray& a_stem, const PimContactLine& a_line )
{
    const PimContactBinary picture = a_line.Binary();
    if ( picture.IsNull() )
        CountText( a_line );
    else if ( picture.IsDamaged() )
        ++m_unreadable;
    else if ( !picture.Bytes().isEmpty() )
        WriteFile( picture.Bytes(), a_stem, FileEndingOf( picture ) );
}

void PhotoFolder::CountText( const PimContactLine& a_line )
{
    if ( a_line.Text().trimmed().isEmpty() )
        return;
    ++( IsLink( a_line ) ? m_links : m_unreadable );
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

} // namespace PimManager::Tools
