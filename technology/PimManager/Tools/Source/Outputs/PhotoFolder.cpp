#include "Outputs/PhotoFolder.h"

#include "Outputs/Pictures.h"
#include "Outputs/SafeFileName.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContact.h>

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
    m_folder( a_folder, a_claims )
{
}

void PhotoFolder::TakeCard( const BookInRun& /*a_book*/, const PimContactCard& a_card )
{
    TakePicturesOf( a_card );
}

QStringList PhotoFolder::Failures() const
{
    const QString failure = m_folder.Failure( QStringLiteral( "pictures" ) );
    return failure.isEmpty() ? QStringList() : QStringList( failure );
}

QString PhotoFolder::Result() const
{
    QString result = Pictures( m_folder.Written() ) + QStringLiteral( " written" );
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
        if ( m_folder.HasFailed() )
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
        m_folder.Write( picture.Bytes(), a_stem, FileEndingOf( picture ) );
}

void PhotoFolder::CountText( const PimContactLine& a_line )
{
    if ( a_line.Text().trimmed().isEmpty() )
        return;
    ++( IsLink( a_line ) ? m_links : m_unreadable );
}

} // namespace PimManager::Tools
