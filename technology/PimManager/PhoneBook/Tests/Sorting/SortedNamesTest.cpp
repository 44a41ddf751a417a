#include "Sorting/NameOrder.h"

#include "PhoneBookGenerator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace PimManager::PhoneBook
{

namespace
{

std::vector<QString> RandomNames( quint32 a_seed, int a_count )
{
    vCard::MadeTexts::PhoneBookGenerator generator( a_seed );
    std::vector<QString> names;
    for ( int i = 0; i < a_count; ++i )
    {
        names.push_back( QString::fromUtf8( generator.Word() ) );
        if ( generator.Below( 3 ) == 0 )
            names.back() += QLatin1Char( ' ' ) + QString::fromUtf8( generator.Word() );
        if ( generator.Below( 8 ) == 0 )
            names.back() = QChar( 0x410 + static_cast<int>( generator.Below( 0x40 ) ) ) + names.back();
        if ( generator.Below( 10 ) == 0 )
            names.back() = names.back().toUpper();
    }
    return names;
}

} // namespace

TEST( SortedNamesTest, OrderIsThatOfTheCollator )
{
    for ( const char* const locale : { "de_DE", "sv_SE", "cs_CZ", "da_DK", "lt_LT", "tr_TR", "C" } )
    {
        NameOrder order{ QLocale( QString::fromLatin1( locale ) ) };
        for ( quint32 seed = 1; seed <= 5; ++seed )
        {
            const std::vector<QString> names = RandomNames( seed, static_cast<int>( seed * seed * 20 ) );
            std::vector<int> expected( names.size() );
            std::iota( expected.begin(), expected.end(), 0 );
            std::stable_sort( expected.begin(), expected.end(),
                              [&]( int a_first, int a_second ) {
                                  return order.Compare( names[static_cast<size_t>( a_first )],
                                                        names[static_cast<size_t>( a_second )] ) < 0;
                              } );
            const std::vector<int> sections( names.size(), NameOrder::s_kOtherSection );
            EXPECT_EQ( expected, SortedNames( names, sections, order ) ) << locale << ' ' << seed;
        }
    }
}

TEST( SortedNamesTest, OtherSectionIsLast )
{
    NameOrder order{ QLocale( QStringLiteral( "de_DE" ) ) };
    const std::vector<QString> names = { QStringLiteral( "1" ), QStringLiteral( "b" ), QStringLiteral( "0" ),
                                         QStringLiteral( "a" ), QString() };
    std::vector<int> sections;
    for ( const QString& name : names )
        sections.push_back( order.SectionOf( name ) );
    EXPECT_EQ( ( std::vector<int>{ 3, 1, 4, 2, 0 } ), SortedNames( names, sections, order ) );
    EXPECT_EQ( "#", order.Label( sections.front() ).toStdString() );
}

} // namespace PimManager::PhoneBook
