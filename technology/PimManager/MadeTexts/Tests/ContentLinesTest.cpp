#include "ContentLines.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

namespace PimManager::vCard::MadeTexts
{

TEST( FoldedLineTest, LineOf75BytesStaysWhole )
{
    const QByteArray line( 75, 'x' );
    EXPECT_EQ( line + "\r\n", FoldedLine( line ) );
}

TEST( FoldedLineTest, LongerLineIsFoldedAt75WithTheBlankCounted )
{
    EXPECT_EQ( QByteArray( 75, 'x' ) + "\r\n " + QByteArray( 74, 'x' ) + "\r\n x\r\n",
               FoldedLine( QByteArray( 150, 'x' ) ) );
}

TEST( FoldedLineTest, FoldIsBeforeACharacterAndNotInsideIt )
{
    EXPECT_EQ( QByteArray( 74, 'x' ) + "\r\n \xC3\xA9\r\n", FoldedLine( QByteArray( 74, 'x' ) + "\xC3\xA9" ) );
}

TEST( FoldedLineTest, FoldDoesNotStandBeforeABlank )
{
    EXPECT_EQ( QByteArray( 74, 'x' ) + "\r\n x y\r\n", FoldedLine( QByteArray( 75, 'x' ) + " y" ) );
}

TEST( QuotedPrintableLineTest, EveryByteIsEncodedButTheSemicolonsBetweenValues )
{
    EXPECT_EQ( QByteArray( "N:=61=20=3B=C3=A9;=62\r\n" ), QuotedPrintableLine( "N:", { "a ;\xC3\xA9", "b" } ) );
}

TEST( QuotedPrintableLineTest, SoftBreakIsBeforeAPieceThatWouldLeaveNoRoomForIt )
{
    const QByteArray start( 72, 'x' );
    EXPECT_EQ( start + "=61=\r\n=62\r\n", QuotedPrintableLine( start, { "ab" } ) );
    EXPECT_EQ( start + "y=\r\n=61\r\n", QuotedPrintableLine( start + 'y', { "a" } ) );
}

} // namespace PimManager::vCard::MadeTexts
