#include "Callers/CallerIndex.h"

#include "Numbers/DialledNumber.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>

namespace PimManager::PhoneBook
{

namespace
{

WrittenNumber Read( const std::string& a_text )
{
    return ReadWrittenNumber( QString::fromStdString( a_text ) );
}

void Append( NumberStore& a_numbers, int a_contact, int a_line, const WrittenNumber& a_number )
{
    a_numbers.Append( a_contact, a_line, a_number.Digits(), a_number.m_form, a_number.m_extension.View() );
}

NumberStore StoreOf( const std::vector<std::vector<std::string>>& a_contacts )
{
    NumberStore numbers;
    for ( size_t contact = 0; contact < a_contacts.size(); ++contact )
    {
        for ( size_t line = 0; line < a_contacts[contact].size(); ++line )
            Append( numbers, static_cast<int>( contact ), static_cast<int>( line ) + 3,
                    Read( a_contacts[contact][line] ) );
    }
    return numbers;
}

std::string TextOf( const QVector<PimPhoneBookCaller>& a_callers )
{
    constexpr std::array s_kGrades = { "none", "ending", "national", "exact" };
    std::string text;
    for ( const PimPhoneBookCaller& caller : a_callers )
        text += ( text.empty() ? "" : " " ) + std::to_string( caller.m_contact ) + ':' +
                std::to_string( caller.m_line ) + ':' + s_kGrades[static_cast<size_t>( caller.m_grade )];
    return text;
}

/// Compares with all numbers, one after the other.
QVector<PimPhoneBookCaller> CallersOf( const NumberStore& a_numbers, const WrittenNumber& a_number, const Home& a_home,
                                       size_t a_endingDigits )
{
    QVector<PimPhoneBookCaller> callers;
    for ( const auto grade : { PimPhoneBookGrade::Exact, PimPhoneBookGrade::National, PimPhoneBookGrade::Ending } )
    {
        for ( int number = 0; number < a_numbers.Size(); ++number )
        {
            const DialledNumber other( a_numbers.Digits( number ), a_numbers.Form( number ), a_home );
            const int contact = a_numbers.ContactOf( number );
            const bool isNew = std::none_of( callers.begin(), callers.end(),
                                             [contact]( const PimPhoneBookCaller& a_caller )
                                             { return a_caller.m_contact == contact; } );
            const PimPhoneBookGrade found =
                GradeWithExtensions( GradeOf( DialledNumber( a_number, a_home ), other, a_endingDigits ),
                                     a_number.m_extension.View(), a_numbers.Extension( number ) );
            if ( found == grade && isNew )
                callers.append( { contact, a_numbers.LineOf( number ), grade } );
        }
    }
    return callers;
}

/// \return a number with few different digits, so that many are the same.
std::string RandomNumber( std::mt19937& a_random )
{
    constexpr std::array s_kStarts = { "+49 ", "0049 ", "49 ", "0", "", "+43 ", "+1 ", "*31#0", "*", "+49 0" };
    constexpr std::array s_kEnds = { "", "", "", "x1", ",2", "#" };
    std::string number = s_kStarts[a_random() % s_kStarts.size()];
    for ( size_t size = 1 + a_random() % 9; size > 0; --size )
        number += static_cast<char>( '0' + a_random() % 2 );
    return number + s_kEnds[a_random() % s_kEnds.size()];
}

} // namespace

TEST( CallerIndexTest, BestGradeIsFirst )
{
    const NumberStore numbers = StoreOf( { { "+43 30 901820" },
                                           { "040 1", "030 901820" },
                                           {},
                                           { "+49 30 901820", "030 901820" },
                                           { "030 901820", "+49 30 901820" },
                                           { "+49 30 901820 x5" },
                                           { "040 901820" } } );
    const CallerIndex index( numbers, HomeOf( QStringLiteral( "DE" ) ), 7 );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "+49 30 901820" ) ) ),
               "3:3:exact 4:4:exact 1:4:national 0:3:ending 5:3:ending 6:3:ending" );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "030 901820" ) ) ),
               "1:4:national 3:3:national 4:3:national 0:3:ending 5:3:ending 6:3:ending" );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "0401" ) ) ), "1:3:national" );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "1" ) ) ), "" );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "" ) ) ), "" );
}

TEST( CallerIndexTest, EmptyIndexFindsNothing )
{
    const NumberStore numbers;
    EXPECT_TRUE( CallerIndex().Find( numbers, Read( "1" ) ).isEmpty() );
    EXPECT_TRUE( CallerIndex( numbers, Home(), 7 ).Find( numbers, Read( "1" ) ).isEmpty() );
}

TEST( CallerIndexTest, NumberWithoutDigitsIsNotFound )
{
    const NumberStore numbers = StoreOf( { { "" }, { "phone" } } );
    const CallerIndex index( numbers, Home(), 7 );
    EXPECT_TRUE( index.Find( numbers, Read( "" ) ).isEmpty() );
    EXPECT_TRUE( index.Find( numbers, Read( "1" ) ).isEmpty() );
}

TEST( CallerIndexTest, RandomNumbersAreFoundAsByComparingAll )
{
    std::mt19937 random( 1 );
    int found = 0;
    for ( const char* const region : { "", "DE", "US", "IT", "AR" } )
    {
        for ( const int endingDigits : { 3, 7, 10 } )
        {
            std::vector<std::vector<std::string>> contacts( 100 );
            for ( size_t number = 0; number < 200; ++number )
                contacts[random() % contacts.size()].push_back( RandomNumber( random ) );
            const NumberStore numbers = StoreOf( contacts );
            const Home home = HomeOf( QString::fromLatin1( region ) );
            const CallerIndex index( numbers, home, endingDigits );
            for ( int round = 0; round < 100; ++round )
            {
                const std::string text = RandomNumber( random );
                const auto callers = CallersOf( numbers, Read( text ), home, static_cast<size_t>( endingDigits ) );
                found += static_cast<int>( callers.size() );
                EXPECT_EQ( TextOf( index.Find( numbers, Read( text ) ) ), TextOf( callers ) )
                    << text << " in " << region << ", " << endingDigits << " digits";
            }
        }
    }
    EXPECT_GT( found, 500 );
}

TEST( CallerIndexTest, OneNumberOfManyContactsHasAllCallers )
{
    NumberStore numbers;
    const WrittenNumber number = Read( "+49 30 901820" );
    for ( int contact = 0; contact < 100000; ++contact )
        Append( numbers, contact, contact, number );
    const auto callers = CallerIndex( numbers, Home(), 7 ).Find( numbers, number );
    ASSERT_EQ( callers.size(), 100000 );
    for ( int contact = 0; contact < 100000; ++contact )
        ASSERT_EQ( callers[contact].m_contact, contact );
}

TEST( CallerIndexTest, ManyNumbersOfOneContactAreOneCaller )
{
    NumberStore numbers;
    for ( int line = 0; line < 100000; ++line )
        Append( numbers, 0, line, Read( line == 70000 ? "+49 30 901820" : "+43 30 901820" ) );
    const CallerIndex index( numbers, Home(), 7 );
    EXPECT_EQ( TextOf( index.Find( numbers, Read( "+49 30 901820" ) ) ), "0:70000:exact" );
}

TEST( CallerIndexTest, MillionNumbersAreFound )
{
    constexpr int s_kNumbers = 1000000;
    NumberStore numbers;
    for ( int contact = 0; contact < s_kNumbers; ++contact )
        numbers.Append( contact, 1, "4930" + std::to_string( 2000000 + contact ), WrittenNumber::International );
    const CallerIndex index( numbers, HomeOf( QStringLiteral( "DE" ) ), 7 );
    for ( int contact = 0; contact < s_kNumbers; contact += 9999 )
        EXPECT_EQ( TextOf( index.Find( numbers, Read( "030" + std::to_string( 2000000 + contact ) ) ) ),
                   std::to_string( contact ) + ":1:national" );
}

TEST( CallerIndexTest, TwentyThousandNumbersFitIntoTheirMemory )
{
    NumberStore numbers;
    for ( int number = 0; number < 20000; ++number )
        Append( numbers, number / 4, 7 + number % 4, Read( "+49 30 " + std::to_string( 10000000 + number * 7 ) ) );
    numbers.Squeeze();
    const CallerIndex index( numbers, Home(), 7 );
    EXPECT_LE( numbers.Bytes() + index.Bytes(), 20000U * 25U );
}

} // namespace PimManager::PhoneBook
