#include "ProgramRun.h"

#include "TestBooks.h"

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
