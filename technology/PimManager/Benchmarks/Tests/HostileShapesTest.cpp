#include "HostileShapes.h"
#include "MadeTextParse.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

#include <QSet>

namespace PimManager::vCard::Benchmarks
{

namespace
{

constexpr int s_kRepetitions = 60;

int ExpectedCards( const HostileShape& a_shape )
{
    if ( a_shape.m_cards == CardsGiven::Each )
        return s_kRepetitions;
    return a_shape.m_cards == CardsGiven::One ? 1 : 0;
}

} // namespace

TEST( HostileShapesTest, EachShapeGivesItsCards )
{
    const QList<HostileShape> shapes = HostileShapes();
    for ( const HostileShape& shape : shapes )
    {
        SCOPED_TRACE( shape.m_name.constData() );
        EXPECT_EQ( ExpectedCards( shape ), MadeTextParse( shape.Text( s_kRepetitions ) ).Cards().size() );
    }
}

TEST( HostileShapesTest, NamesAreDifferent )
{
    QSet<QByteArray> names;
    const QList<HostileShape> shapes = HostileShapes();
    for ( const HostileShape& shape : shapes )
        names.insert( shape.m_name );
    EXPECT_EQ( shapes.size(), names.size() );
}

TEST( HostileShapesTest, TextOfLengthIsAboutThatLong )
{
    const QList<HostileShape> shapes = HostileShapes();
    for ( const HostileShape& shape : shapes )
        EXPECT_NEAR( 10000.0, shape.TextOfLength( 10000 ).size(), 120.0 ) << shape.m_name.constData();
}

} // namespace PimManager::vCard::Benchmarks
