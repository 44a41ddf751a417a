// Texts made to hang or crash the parser or to use up the memory, at real sizes. The time they take is limited only by
// the time-out of the process. The benchmarks measure how the work grows.

#include "HostileShapes.h"
#include "PimVCardParser.h"
#include "PimVCardTestLogBlocks.h"
#include "PimVCardTestText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>

namespace PimManager::vCard
{

namespace MadeTexts
{

// googletest finds this function. Otherwise it would show the bytes of a shape.
static void PrintTo( const HostileShape& a_shape, std::ostream* a_stream )
{
    *a_stream << a_shape.m_name.constData();
}

} // namespace MadeTexts

namespace
{

using MadeTexts::HostileShape;

constexpr int s_kSmallDivisor = 10;
constexpr int s_kShown = 200;

using Cards = std::unique_ptr<QList<PimVCard*>, void ( * )( QList<PimVCard*>* )>;

Cards CardsOf( const QByteArray& a_text )
{
    const auto deleteCards = []( QList<PimVCard*>* a_cards )
    {
        qDeleteAll( *a_cards );
        delete a_cards;
    };
    return Cards( PimVCardParser( a_text ).ParseVCards(), deleteCards );
}

QByteArray LineOf( const PimVCardProperty& a_property )
{
    const QString group = a_property.GetGroupID();
    QByteArray line = group.isEmpty() ? QByteArray() : group.toUtf8() + '.';
    line += a_property.GetName().toUtf8();
    for ( const PimVCardParameter* parameter : a_property.GetParameters() )
        line += '{' + parameter->GetName().toUtf8() + '=' + parameter->GetValue().toUtf8() + '}';
    for ( const QString& value : a_property.GetValues() )
        line += '[' + value.toUtf8() + ']';
    return line;
}

QByteArray LinesOf( const QList<PimVCard*>& a_cards )
{
    QByteArray lines;
    for ( const PimVCard* card : a_cards )
    {
        for ( const PimVCardProperty* property : card->GetProperties() )
            lines += LineOf( *property );
        lines += '\n';
    }
    return lines;
}

// Compares texts of several megabytes, and shows where they differ.
testing::AssertionResult AreSame( const QByteArray& a_expected, const QByteArray& a_given )
{
    if ( a_expected == a_given )
        return testing::AssertionSuccess();
    const auto place = std::mismatch( a_expected.begin(), a_expected.end(), a_given.begin(), a_given.end() );
    const auto offset = static_cast<int>( place.first - a_expected.begin() );
    return testing::AssertionFailure() << a_expected.size() << " bytes expected, " << a_given.size() << " given; at "
                                       << offset << ' ' << Escaped( a_expected.mid( offset, s_kShown ) )
                                       << " expected, " << Escaped( a_given.mid( offset, s_kShown ) ) << " given";
}

void ExpectOutcome( const HostileShape& a_shape, int a_repetitions )
{
    SCOPED_TRACE( a_repetitions );
    const LogBlockCount blocks;
    const Cards cards = CardsOf( a_shape.Text( a_repetitions ) );
    EXPECT_EQ( a_shape.m_cards.For( a_repetitions ), cards->size() );
    EXPECT_TRUE( AreSame( a_shape.m_cardLines.Text( a_repetitions ), LinesOf( *cards ) ) );
    EXPECT_EQ( a_shape.m_blocks.For( a_repetitions ), blocks.Begun() );
    EXPECT_EQ( a_shape.m_blocks.For( a_repetitions ), blocks.Ended() );
}

std::string NameOfShape( const testing::TestParamInfo<HostileShape>& a_info )
{
    return QByteArray( a_info.param.m_name ).replace( '-', '_' ).toStdString();
}

} // namespace

class HostileInputTest : public testing::TestWithParam<HostileShape>
{
};

TEST_P( HostileInputTest, SmallTextYieldsItsCards )
{
    ExpectOutcome( GetParam(), GetParam().m_repetitions / PIMVCARD_TEST_SIZE_DIVISOR / s_kSmallDivisor );
}

TEST_P( HostileInputTest, LargeTextYieldsItsCards )
{
    ExpectOutcome( GetParam(), GetParam().m_repetitions / PIMVCARD_TEST_SIZE_DIVISOR );
}

INSTANTIATE_TEST_SUITE_P( Shapes, HostileInputTest, testing::ValuesIn( MadeTexts::HostileShapes() ), NameOfShape );

} // namespace PimManager::vCard
