#include "WrittenExamples.h"

#include "Numbers/CallingCodes.h"

#include <PimManager/PhoneBook/PimPhoneBookNumber.h>

#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <random>
#include <set>

namespace PimManager::PhoneBook
{

namespace
{

/// How many of some pairs were judged rightly.
struct Count
{
    void Add( bool a_isRight )
    {
        ++m_all;
        m_right += a_isRight ? 1 : 0;
    }
    double Percent() const { return m_all == 0 ? 0 : 100.0 * m_right / m_all; }

    int m_all = 0;
    int m_right = 0;
};

/// A number, and the same or another one, each written in a way.
struct Side
{
    ExampleNumber m_number;
    Way m_way;
    std::string m_extension;
};

PimPhoneBookNumber Read( const Side& a_side, const std::string& a_region )
{
    return PimPhoneBookNumber::FromText( Written( a_side.m_number, a_side.m_way, a_side.m_extension ),
                                         QString::fromStdString( a_region ) );
}

std::string TextOf( const Side& a_side )
{
    return a_side.m_number.m_region + " \"" +
           Written( a_side.m_number, a_side.m_way, a_side.m_extension ).toStdString() + "\" (" +
           NameOf( a_side.m_way ) + ")";
}

const char* TextOf( PimPhoneBookGrade a_grade )
{
    constexpr const char* s_kTexts[] = { "none", "ending", "national", "exact" };
    return s_kTexts[static_cast<size_t>( a_grade )];
}

/// Judges pairs of numbers that are the same or not.
class Trial
{
public:
    /// \param a_step judges every a_step-th pair of ways.
    void Run( int a_step );

    Count m_same;
    Count m_sameWithoutPlus;
    Count m_different;
    Count m_exact;
    std::map<std::string, Count> m_sameOf;
    std::map<std::string, Count> m_differentOf;
    std::vector<std::string> m_wrong;

private:
    void Judge( const Side& a_side, const Side& a_other, bool a_isSame );
    Side Other( const Side& a_side, int a_kind );
    int Random( size_t a_size ) { return static_cast<int>( m_random() % a_size ); }

    std::vector<ExampleNumber> m_numbers = ExampleNumbers();
    std::mt19937 m_random{ 1 };
    int m_kind = 0;
};

void Trial::Run( int a_step )
{
    int pair = 0;
    for ( const ExampleNumber& number : m_numbers )
    {
        for ( int way = 0; way < s_kWays; ++way )
        {
            for ( int other = 0; other < way; ++other )
            {
                if ( ++pair % a_step != 0 )
                    continue;
                const std::string extension = pair / a_step % 4 == 0 ? "12" : "";
                const Side side{ number, static_cast<Way>( way ), extension };
                const Side same{ number, static_cast<Way>( other ), extension };
                Judge( side, same, true );
                Judge( side, Other( same, m_kind++ % 3 ), false );
            }
        }
    }
}

/// \return a number that differs in one digit, in the country or in the extension.
Side Trial::Other( const Side& a_side, int a_kind )
{
    Side other = a_side;
    std::string& national = other.m_number.m_national;
    if ( a_kind == 0 )
    {
        char& digit = national[1 + static_cast<size_t>( Random( national.size() - 1 ) )];
        digit = static_cast<char>( '0' + ( digit - '0' + 1 + Random( 9 ) ) % 10 );
    }
    else if ( a_kind == 1 )
    {
        while ( other.m_number.m_code == a_side.m_number.m_code )
        {
            const ExampleNumber& example = m_numbers[static_cast<size_t>( Random( m_numbers.size() ) )];
            other.m_number.m_code = example.m_code;
            other.m_number.m_region = example.m_region;
        }
        // In the notation of its own country, it would be the same text.
        if ( !HasCountry( other.m_way ) || other.m_way == Way::InternationalPrefix )
            other.m_way = Way::International;
    }
    else
        other.m_extension = a_side.m_extension.empty() ? "7" : "13";
    return other;
}

void Trial::Judge( const Side& a_side, const Side& a_other, bool a_isSame )
{
    const std::string& region = a_side.m_number.m_region;
    const PimPhoneBookGrade grade = Read( a_side, region ).Compare( Read( a_other, region ) );
    const bool isRight = a_isSame ? grade != PimPhoneBookGrade::None : grade < PimPhoneBookGrade::National;
    if ( grade == PimPhoneBookGrade::Exact )
        m_exact.Add( a_isSame );
    if ( !a_isSame )
    {
        m_different.Add( isRight );
        m_differentOf[region].Add( isRight );
    }
    else
    {
        m_sameWithoutPlus.Add( isRight );
        m_sameOf[region].Add( isRight );
        if ( !LacksPlus( a_side.m_way ) && !LacksPlus( a_other.m_way ) )
            m_same.Add( isRight );
    }
    if ( !isRight )
        m_wrong.push_back( TextOf( a_side ) + ( a_isSame ? " is " : " is not " ) + TextOf( a_other ) + ": " +
                           TextOf( grade ) );
}

void ExpectRight( const Trial& a_trial )
{
    for ( const std::string& wrong : a_trial.m_wrong )
        std::cout << wrong << '\n';
    std::cout << a_trial.m_same.m_all << " same " << a_trial.m_same.Percent() << " %, with missing plus "
              << a_trial.m_sameWithoutPlus.m_all << ' ' << a_trial.m_sameWithoutPlus.Percent() << " %, different "
              << a_trial.m_different.m_all << ' ' << a_trial.m_different.Percent() << " %, exact "
              << a_trial.m_exact.m_all << ' ' << a_trial.m_exact.Percent() << " %\n";
    EXPECT_EQ( a_trial.m_exact.m_right, a_trial.m_exact.m_all );
    EXPECT_GE( a_trial.m_same.Percent(), 99.5 );
    EXPECT_GE( a_trial.m_sameWithoutPlus.Percent(), 98.5 );
    EXPECT_GE( a_trial.m_different.Percent(), 99.99 );
    for ( const auto& [region, count] : a_trial.m_sameOf )
        EXPECT_GE( count.Percent(), 97 ) << region;
    for ( const auto& [region, count] : a_trial.m_differentOf )
        EXPECT_GE( count.Percent(), 97 ) << region;
}

} // namespace

TEST( NumberJudgeTest, ExampleHasACodeOfItsRegion )
{
    std::set<std::string> regions;
    for ( const ExampleNumber& number : ExampleNumbers() )
    {
        regions.insert( number.m_region );
        const CallingCode* const code = HomeOf( QString::fromStdString( number.m_region ) ).m_code;
        ASSERT_NE( code, nullptr ) << number.m_region;
        EXPECT_EQ( code->m_code, number.m_code ) << number.m_region;
        // A service of Canada is dialled without an area code, as local numbers are.
        EXPECT_TRUE( code->IsLength( number.m_national.size() ) || number.m_national == "3101234" )
            << number.m_region << ' ' << number.m_national;
        EXPECT_EQ( CallingCodeOf( std::to_string( number.m_code ) + number.m_national ), code ) << number.m_region;
    }
    EXPECT_GE( regions.size(), 240U );
}

TEST( NumberJudgeTest, SampleOfPairsIsJudgedRightly )
{
    Trial trial;
    trial.Run( 19 );
    ExpectRight( trial );
}

TEST( NumberJudgeTest, EveryPairIsJudgedRightly )
{
    Trial trial;
    trial.Run( 1 );
    ExpectRight( trial );
}

} // namespace PimManager::PhoneBook
