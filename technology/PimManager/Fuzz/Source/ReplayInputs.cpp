#include "ReplayInputs.h"

#include <QDir>
#include <QFileInfo>

namespace PimManager::vCard::Fuzz
{

namespace
{

QStringList FilesOf( const QString& a_path )
{
    if ( QFileInfo( a_path ).isFile() )
        return { a_path };
    const QDir folder( a_path );
    QStringList files;
    for ( const QString& name : folder.entryList( QDir::Files, QDir::Name ) )
        files.append( folder.filePath( name ) );
    return files;
}

} // namespace

ReplayInputs FindReplayInputs( const QStringList& a_paths )
{
    ReplayInputs inputs;
    if ( a_paths.isEmpty() )
        inputs.m_error = QStringLiteral( "no file or folder was named" );
    for ( const QString& path : a_paths )
    {
        const QStringList files = FilesOf( path );
        if ( files.isEmpty() )
            inputs.m_error = QStringLiteral( "there is no input in " ) + path;
        inputs.m_files += files;
    }
    return inputs;
}

} // namespace PimManager::vCard::Fuzz
