#include "SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <cstdlib>

namespace PimManager::Contacts
{

std::vector<std::string> SampleNames()
{
    const QStringList files = QDir( QStringLiteral( PIMCONTACT_SAMPLES ) )
                                  .entryList( { QStringLiteral( "*.vcf" ) }, QDir::Files, QDir::Name );
    std::vector<std::string> names;
    for ( const QString& file : files )
        names.push_back( file.chopped( 4 ).toStdString() );
    if ( names.empty() )
        std::abort();
    return names;
}

QByteArray SampleFile( const std::string& a_name )
{
    QFile file( QDir( QStringLiteral( PIMCONTACT_SAMPLES ) ).filePath( QString::fromStdString( a_name ) ) );
    EXPECT_TRUE( file.open( QIODevice::ReadOnly ) ) << a_name;
    return file.readAll();
}

} // namespace PimManager::Contacts
