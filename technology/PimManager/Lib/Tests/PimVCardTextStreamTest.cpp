// The stream alone: malformed bytes, which the parser never passes to it, and positions outside the text.

#include "PimVCardTextStream.h"
#include "PimVCardTestLog.h"

#include <gtest/gtest.h>

#include <ostream>

namespace PimManager::vCard
{

namespace
{

struct MalformedRow
{
    const char* m_name;
    const char* m_bytes;
    const char* m_units; // '?' for U+FFFD
};

// googletest finds this function.
void PrintTo( const MalformedRow& a_row, std::ostream* a_stream )
{
    *a_stream << a_row.m_name;
}

QByteArray UnitsOf( const QByteArray& a_bytes )
{
    PimVCardTextStream stream( &a_bytes );
    QByteArray units;
    while ( !stream.atEnd() )
    {
        QChar unit;
        stream >> unit;
        units += unit == QChar( QChar::ReplacementCharacter ) ? '?' : unit.toLatin1();
    }
    return units;
}

} // namespace

class TextStreamTest : public testing::TestWithParam<MalformedRow>
{
};

TEST_P( TextStreamTest, MalformedByteIsReadAsReplacement )
{
    EXPECT_EQ( UnitsOf( GetParam().m_bytes ).toStdString(), GetParam().m_units );
}

INSTANTIATE_TEST_SUITE_P( Malformed, TextStreamTest,
                          testing::Values( MalformedRow{ "LoneContinuation", "a\x80z", "a?z" },
                                           MalformedRow{ "LeadBeforeAscii", "a\xC3z", "a?z" },
                                           MalformedRow{ "SecondByteIsAscii", "a\xE2(\x82z", "a?(?z" },
                                           MalformedRow{ "LastByteIsAscii", "a\xF0\x9F\x98zz", "a???zz" },
                                           MalformedRow{ "LeadBeforeLead", "a\xE2\xC3\xA9z", "a?\xE9z" },
                                           MalformedRow{ "TooLongOfTwo", "a\xC0\xAFz", "a??z" },
                                           MalformedRow{ "TooLongOfThree", "a\xE0\x80\xAFz", "a???z" },
                                           MalformedRow{ "Surrogate", "a\xED\xA0\x80z", "a???z" },
                                           MalformedRow{ "BeyondUnicode", "a\xF4\x90\x80\x80z", "a????z" },
                                           MalformedRow{ "NoLead", "a\xFFz", "a?z" } ),
                          []( const auto& a_info ) { return a_info.param.m_name; } );

TEST( TextStreamSeekTest, PositionsFromStartToEndAreReached )
{
    const QByteArray text( "abc" );
    PimVCardTextStream stream( &text );
    for ( const qint64 place : { 3, 1, 0 } )
    {
        EXPECT_TRUE( stream.seek( place ) ) << place;
        EXPECT_EQ( stream.pos(), place );
    }
}

TEST( TextStreamSeekTest, PositionOutsideTheTextIsRefusedAndNothingChanges )
{
    const QByteArray text( "abc" );
    PimVCardTextStream stream( &text );
    QChar unit;
    stream >> unit;
    for ( const qint64 place : { qint64{ -1 }, qint64{ 4 }, qint64{ 1 } << 32, ( qint64{ 1 } << 32 ) + 2 } )
    {
        EXPECT_FALSE( stream.seek( place ) ) << place;
        EXPECT_EQ( stream.pos(), 1 ) << place;
    }
    stream >> unit;
    EXPECT_EQ( unit, QLatin1Char( 'b' ) );
}

TEST( TextStreamBaseTest, OperationsOfTheBaseClassReadNothingAndMoveNothing )
{
    const QByteArray text( " 12 words" );
    PimVCardTextStream stream( &text );
    const LogCapture log;
    QString line;
    int number = -1;
    EXPECT_EQ( stream.read( 3 ), QString() );
    EXPECT_FALSE( stream.readLineInto( &line ) );
    stream.skipWhiteSpace();
    static_cast<QTextStream&>( stream ) >> number >> line;
    EXPECT_EQ( number, -1 );
    EXPECT_EQ( line, QString() );
    EXPECT_EQ( stream.pos(), 0 );
    EXPECT_EQ( stream.status(), QTextStream::Ok );
    EXPECT_EQ( stream.readAll(), QString::fromLatin1( text ) );
}

} // namespace PimManager::vCard
