// Which files a replay tries, and when it refuses to.

#include "ReplayInputs.h"

#include "PimVCardTestText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace PimManager::vCard::Fuzz
{

namespace
{

class ReplayInputsTest : public testing::Test
{
protected:
    void Write( const char* a_name )
    {
        QFile file( Path( a_name ) );
        ASSERT_TRUE( file.open( QIODevice::WriteOnly ) );
    }

    QString Path( const char* a_name ) const { return m_folder.filePath( Text( a_name ) ); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F( ReplayInputsTest, FolderGivesItsFilesByName )
{
    Write( "b" );
    Write( "a" );
    Write( ".hidden" );
    const ReplayInputs inputs = FindReplayInputs( { m_folder.path() } );
    EXPECT_EQ( inputs.m_files, QStringList( { Path( "a" ), Path( "b" ) } ) );
    EXPECT_EQ( inputs.m_error, QString() );
}

TEST_F( ReplayInputsTest, FileGivesItself )
{
    Write( "a" );
    Write( "b" );
    EXPECT_EQ( FindReplayInputs( { Path( "b" ) } ).m_files, QStringList( Path( "b" ) ) );
}

TEST_F( ReplayInputsTest, EmptyFolderIsAnError )
{
    EXPECT_FALSE( FindReplayInputs( { m_folder.path() } ).m_error.isEmpty() );
}

TEST_F( ReplayInputsTest, EmptyFolderNextToAnotherIsAnError )
{
    Write( "a" );
    ASSERT_TRUE( QDir( m_folder.path() ).mkdir( Text( "empty" ) ) );
    EXPECT_FALSE( FindReplayInputs( { Path( "empty" ), m_folder.path() } ).m_error.isEmpty() );
}

TEST_F( ReplayInputsTest, MissingPathIsAnError )
{
    EXPECT_FALSE( FindReplayInputs( { Path( "nothing" ) } ).m_error.isEmpty() );
}

TEST_F( ReplayInputsTest, NoPathIsAnError )
{
    EXPECT_FALSE( FindReplayInputs( {} ).m_error.isEmpty() );
}

} // namespace PimManager::vCard::Fuzz
