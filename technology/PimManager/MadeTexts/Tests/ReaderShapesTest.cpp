#include "ReaderShapes.h"

#include <gtest/gtest.h>

#include <QSet>

#include <algorithm>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kBytes = 10000;

// The shape of that form with these parts.
QByteArray TextOf( ShapeForm a_form, const RepeatedText& a_text, int a_bytes )
{
    return ReaderShape{ "name", a_text, a_form }.TextOfLength( a_bytes );
}

} // namespace

TEST( ReaderShapesTest, NamesAreDifferentFromEachOtherAndFromThoseOfHostileShapes )
{
    QSet<QByteArray> names;
    const QList<HostileShape> hostile = HostileShapes();
    for ( const HostileShape& shape : hostile )
        names.insert( shape.m_name );
    const QList<ReaderShape> shapes = ReaderShapes();
    for ( const ReaderShape& shape : shapes )
        names.insert( shape.m_name );
    EXPECT_EQ( hostile.size() + shapes.size(), names.size() );
}

TEST( ReaderShapesTest, TextIsAsLongAsWantedOrOnePieceLonger )
{
    const QList<ReaderShape> shapes = ReaderShapes();
    for ( const ReaderShape& shape : shapes )
    {
        SCOPED_TRACE( shape.m_name.constData() );
        const RepeatedText& parts = shape.m_text;
        const auto fixed = static_cast<int>( parts.m_head.size() + parts.m_tail.size() );
        const int wanted = std::max( s_kBytes, 2 * fixed );
        const auto length = static_cast<int>( shape.TextOfLength( wanted ).size() );
        EXPECT_GE( length, wanted );
        EXPECT_LE( length, wanted + 2 * static_cast<int>( parts.m_piece.size() + parts.m_tail.size() ) + 2 );
    }
}

TEST( ReaderShapesTest, RepeatedPiecesAreBetweenHeadAndTail )
{
    EXPECT_EQ( QByteArray( "h:pp;t" ), TextOf( ShapeForm::Repeated, { "h:", "p", ";t" }, 6 ) );
}

TEST( ReaderShapesTest, NumberedPiecesAreDifferent )
{
    EXPECT_EQ( QByteArray( "h;X0=0;X1=1;X2=2t" ), TextOf( ShapeForm::Numbered, { "h", ";X#=#", "t" }, 17 ) );
}

TEST( ReaderShapesTest, NestedPiecesHaveAsManyTails )
{
    EXPECT_EQ( QByteArray( "h((()))" ), TextOf( ShapeForm::Nested, { "h", "(", ")" }, 7 ) );
}

TEST( ReaderShapesTest, LongHeadIsHalfOfTheText )
{
    EXPECT_EQ( QByteArray( "haaaaa:ppt" ), TextOf( ShapeForm::LongHead, { "h#:", "p", "t" }, 10 ) );
}

TEST( ReaderShapesTest, Utf16TextBeginsWithItsByteOrderMark )
{
    EXPECT_EQ( QByteArray( "\xFF\xFEh\0p\0\xE9\0", 8 ), TextOf( ShapeForm::Utf16, { "h", "p", "\xE9" }, 6 ) );
}

} // namespace PimManager::vCard::MadeTexts
