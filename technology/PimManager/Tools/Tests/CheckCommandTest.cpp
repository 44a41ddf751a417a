#include "ProgramRun.h"

#include "ImportTestBooks.h"

#include <vector>

using namespace PimManager::vCard::Tools;

TEST( CheckCommandTest, FindingsComeInCompilerStyleAndASummaryAFile )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_content;
        int m_status;
        // Each line behind the name of the file.
        std::vector<std::string> m_lines;
    };
    const std::vector<Row> rows = {
        { CleanCard(), 0, { ": 1 card: 1 whole; CR LF line ends; UTF-8 (all ASCII); version 3.0; nothing to mend" } },
        { "", 0, { ": is empty" } },
        { QByteArray( CleanCard() ).replace( "\r\n", "\n" ),
          0,
          { ":1:1: repaired: the line does not end in CR LF, and others may not either [line-end]",
            ": 1 card: 1 whole; LF line ends; UTF-8 (all ASCII); version 3.0; 1 × line-end" } },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray file = folder.Write( QByteArray::number( ++number ), row.m_content );
        std::string expected;
        for ( const std::string& line : row.m_lines )
            expected += file.toStdString() + line + "\n";
        const ProgramRun run = RunPimvcard( { "check", file } );
        EXPECT_EQ( run.m_status, row.m_status ) << number;
        EXPECT_EQ( run.m_out, expected );
        EXPECT_EQ( run.m_err, "" ) << number;
    }
}

TEST( CheckCommandTest, WhatIsMissingMakesStatusOne )
{
    const Folder folder;
    struct Row
    {
        QByteArray m_content;
        const char* m_place;
        const char* m_summary;
    };
    const std::vector<Row> rows = {
        { PartCard(), ":4:1: dropped: ", ": 1 card: 1 in part; " },
        { CleanCard() + "FN:x\r\nEND:VCARD\r\n", ":6:1: dropped: ", ": 1 card: 1 whole; " },
        { "hello\r\n", ":1:1: note: ", ": 0 cards; CR LF line ends; UTF-8 (all ASCII); 1 × text-outside" },
    };
    int number = 0;
    for ( const Row& row : rows )
    {
        const QByteArray file = folder.Write( QByteArray::number( ++number ), row.m_content );
        const ProgramRun run = RunPimvcard( { "check", file } );
        EXPECT_EQ( run.m_status, 1 ) << run.m_out;
        EXPECT_NE( run.m_out.find( file.toStdString() + row.m_place ), std::string::npos ) << run.m_out;
        EXPECT_NE( run.m_out.find( "\n" + file.toStdString() + row.m_summary ), std::string::npos ) << run.m_out;
    }
}

TEST( CheckCommandTest, EveryFindingIsListedHoweverMany )
{
    QByteArray lines = "VERSION:3.0\r\nFN:x\r\n";
    for ( int i = 0; i < 3000; ++i )
        lines += "NOTE:a\\qb\r\n";
    const ProgramRun run = ProgramCall( { "check", "-" } ).WithInput( CardText( lines ) ).Run();
    EXPECT_EQ( run.m_status, 0 );
    EXPECT_EQ( QByteArray::fromStdString( run.m_out ).count( '\n' ), 3001 );
    EXPECT_NE( run.m_out.find( "; 3000 × unknown-escape\n" ), std::string::npos );
    EXPECT_EQ( run.m_out.find( "standard input:4:" ), 0U );
}

TEST( CheckCommandTest, OutputHoldsNothingOfTheCards )
{
    const Folder folder;
    const QByteArray book =
        folder.Write( "evil\x1B[2J\n.vcf", CardText( "FN:" + HostileText() + "\r\n" + HostileText() + "\r\nNOTE;" +
                                                     HostileText() + ":x\r\n" ) );
    const ProgramRun run = RunPimvcard( { "check", book } );
    EXPECT_TRUE( IsHarmless( run.m_out ) ) << run.m_out;
    EXPECT_EQ( run.m_out.find( "script" ), std::string::npos );
    EXPECT_NE( run.m_out.find( "evil\\x1b[2J\\n.vcf:" ), std::string::npos ) << run.m_out;
}

TEST( CheckCommandTest, UnreadableFileIsToldBesideTheOthers )
{
    const Folder folder;
    const QByteArray missing = folder.Path( "missing" );
    const ProgramRun run = RunPimvcard( { "check", missing, folder.Write( "book", CleanCard() ) } );
    EXPECT_EQ( run.m_status, 2 );
    EXPECT_EQ( run.m_err, "pimvcard: " + missing.toStdString() + ": No such file or directory\n" );
    EXPECT_NE( run.m_out.find( "nothing to mend\n" ), std::string::npos );
}
