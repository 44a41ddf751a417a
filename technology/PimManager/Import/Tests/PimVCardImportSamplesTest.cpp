// Every sample file gives its reference result, whole and cut in two at every byte.

#include "PimVCardImportDump.h"
#include "PimVCardImportInvariants.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::vCardImport
{

namespace
{

QByteArray ContentOf( const std::string& a_name )
{
    QFile file( QDir( QStringLiteral( PIMVCARD_IMPORT_DATA ) ).filePath( QString::fromStdString( a_name ) ) );
    EXPECT_TRUE( file.open( QIODevice::ReadOnly ) ) << a_name;
    return file.readAll();
}

std::vector<std::string> SampleNames()
{
    std::vector<std::string> names;
    const QStringList files = QDir( QStringLiteral( PIMVCARD_IMPORT_DATA ) )
                                  .entryList( { QStringLiteral( "*.vcf" ) }, QDir::Files, QDir::Name );
    for ( const QString& file : files )
        names.push_back( file.chopped( 4 ).toStdString() );
    return names;
}

class PimVCardImportSamplesTest : public testing::TestWithParam<std::string>
{
};

TEST_P( PimVCardImportSamplesTest, WholeFileGivesItsReferenceResult )
{
    const QByteArray expected = ContentOf( GetParam() + ".expected" );
    EXPECT_EQ( DumpOf( PimVCardImporter().Import( ContentOf( GetParam() + ".vcf" ) ) ).toStdString(),
               expected.toStdString() );
}

TEST_P( PimVCardImportSamplesTest, TwoPiecesGiveTheSameWhereverTheCutIs )
{
    const QByteArray bytes = ContentOf( GetParam() + ".vcf" );
    const QByteArray whole = DumpOf( PimVCardImporter().Import( bytes ) );
    for ( int place = 0; place <= bytes.size(); ++place )
        ASSERT_EQ( DumpOf( ImportInPieces( bytes, { place } ) ).toStdString(), whole.toStdString() ) << place;
}

TEST_P( PimVCardImportSamplesTest, SingleBytesGiveTheSame )
{
    const QByteArray bytes = ContentOf( GetParam() + ".vcf" );
    QList<int> places;
    for ( int place = 0; place < bytes.size(); ++place )
        places.append( place );
    EXPECT_EQ( DumpOf( ImportInPieces( bytes, places ) ).toStdString(),
               DumpOf( PimVCardImporter().Import( bytes ) ).toStdString() );
}

TEST_P( PimVCardImportSamplesTest, InvariantsHoldForEveryStartOfTheFile )
{
    const QByteArray bytes = ContentOf( GetParam() + ".vcf" );
    for ( int length = 0; length <= bytes.size(); ++length )
    {
        const QByteArray broken = BrokenInvariantOf( bytes.left( length ), static_cast<unsigned>( length ) );
        ASSERT_TRUE( broken.isEmpty() ) << length << ": " << broken.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P( Samples, PimVCardImportSamplesTest, testing::ValuesIn( SampleNames() ),
                          []( const testing::TestParamInfo<std::string>& a_info )
                          {
                              std::string name;
                              bool isUpper = true;
                              for ( const char character : a_info.param )
                              {
                                  const bool isDash = character == '-';
                                  if ( !isDash )
                                      name += isUpper ? static_cast<char>( std::toupper( character ) ) : character;
                                  isUpper = isDash;
                              }
                              return name;
                          } );

} // namespace

} // namespace PimManager::vCardImport
