#include "ProgramRun.h"

#include "ImportTestBooks.h"

#include <unistd.h>
#include <vector>

using namespace PimManager::vCard::Tools;

namespace
{

ProgramRun Import( const QByteArray& a_book, const QByteArray& a_rejects )
{
    return ProgramCall( { "import", "--rejects", a_rejects, "-" } ).WithInput( a_book ).Run();
}

} // namespace

TEST( ImportRejectsTest, WhatWasLeftOutIsWrittenAsItCame )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_book;
        QByteArray m_rejects;
    };
    const std::vector<Row> rows = {
        { CleanCard(), "" },
        { PartCard(), "\x01\x02 %%%\r\n" },
        { CleanCard() + PartCard() + PartCard(), "\x01\x02 %%%\r\n\x01\x02 %%%\r\n" },
        { QByteArray( PartCard() ).replace( "\r\n", "\n" ), "\x01\x02 %%%\n" },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray rejects = folder.Path( QByteArray::number( ++number ) );
        const ProgramRun run = Import( row.m_book, rejects );
        EXPECT_EQ( run.m_status, row.m_rejects.isEmpty() ? 0 : 1 ) << number;
        EXPECT_EQ( FileContent( rejects ), row.m_rejects ) << number;
    }
}

TEST( ImportRejectsTest, FileIsWrittenAnew )
{
    const Folder folder;
    const QByteArray rejects = folder.Write( "rejects", QByteArray( 1000, 'x' ) );
    Import( PartCard(), rejects );
    EXPECT_EQ( FileContent( rejects ), "\x01\x02 %%%\r\n" );
}

TEST( ImportRejectsTest, FileThatIsReadIsLeftAlone )
{
    const Folder folder;
    const QByteArray book = folder.Write( "book.vcf", PartCard() );
    const QByteArray other = folder.Path( "other.vcf" );
    ASSERT_EQ( symlink( "book.vcf", other.constData() ), 0 );
    for ( const char* option : { "--rejects", "--html" } )
    {
        for ( const QByteArray& name : { book, other } )
        {
            const ProgramRun run = RunPimvcard( { "import", option, name, book } );
            EXPECT_EQ( run.m_status, 2 ) << option;
            EXPECT_EQ( run.m_err.find( "pimvcard: " + name.toStdString() +
                                       ": cannot be written: it is one of the files to read\n" ),
                       0U )
                << run.m_err;
            EXPECT_EQ( FileContent( book ), PartCard() ) << option;
        }
    }
}

TEST( ImportRejectsTest, PathThatCannotBeWrittenEndsTheRun )
{
    const Folder folder;
    for ( const char* option : { "--rejects", "--html" } )
    {
        for ( const QByteArray& name : { folder.Path( "a/b" ), folder.Path( "" ), QByteArray( "" ) } )
        {
            const ProgramRun run = ProgramCall( { "import", option, name, "-" } ).WithInput( CleanCard() ).Run();
            EXPECT_EQ( run.m_status, 2 ) << option << name.constData();
            EXPECT_EQ( run.m_out, "" ) << option << name.constData();
            EXPECT_NE( run.m_err.find( ": cannot be written: " ), std::string::npos ) << run.m_err;
        }
    }
}

TEST( ImportRejectsTest, FullDiskIsToldWithStatusTwoAndTheContactsCome )
{
    for ( const char* option : { "--rejects", "--html" } )
    {
        const ProgramRun run = ProgramCall( { "import", option, "/dev/full", "-" } ).WithInput( PartCard() ).Run();
        EXPECT_EQ( run.m_status, 2 ) << option;
        EXPECT_NE( run.m_out.find( "Tobias" ), std::string::npos ) << option;
        EXPECT_NE( run.m_err.find( "pimvcard: /dev/full: cannot be written: No space left on device\n" ),
                   std::string::npos )
            << run.m_err;
    }
}
