#include "HostileShapes.h"
#include "MadeTextParse.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

#include <QSet>

namespace PimManager::vCard::MadeTexts
{

namespace
{

constexpr int s_kFewest = 3;
constexpr int s_kMost = 60;

} // namespace

// What the cards hold, and what becomes of large texts, is seen by the tests of the component.
TEST( HostileShapesTest, ExpectationHoldsFromThreeRepetitionsOn )
{
    const QList<HostileShape> shapes = HostileShapes();
    for ( const HostileShape& shape : shapes )
    {
        for ( const int repetitions : { s_kFewest, s_kFewest + 1, s_kMost } )
        {
            SCOPED_TRACE( shape.m_name.toStdString() + ' ' + std::to_string( repetitions ) );
            const MadeTextParse text( shape.Text( repetitions ) );
            EXPECT_EQ( shape.m_cards.For( repetitions ), text.Cards().size() );
            EXPECT_EQ( shape.m_blocks.For( repetitions ) == 0, text.Failures() == 0 );
        }
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
        EXPECT_NEAR( 10000.0, static_cast<int>( shape.TextOfLength( 10000 ).size() ), 120.0 )
            << shape.m_name.constData();
}

} // namespace PimManager::vCard::MadeTexts
