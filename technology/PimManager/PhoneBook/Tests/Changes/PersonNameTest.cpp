#include "Changes/PersonName.h"

#include "BookTexts.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

struct NameRow
{
    const char* m_lines;
    const char* m_key;
};

struct PairRow
{
    const char* m_first;
    const char* m_second;
    NameAgreement m_agreement;
};

PersonName NameIn( const QByteArray& a_lines )
{
    return PersonName( BookOf( a_lines ).At( 0 ) );
}

PersonName Named( const QByteArray& a_name )
{
    return NameIn( "FN:" + a_name );
}

} // namespace

TEST( PersonNameTest, WordsAreFolded )
{
    constexpr std::array s_kRows = {
        NameRow{ "TEL:1", "" },
        NameRow{ "EMAIL:a@b.example", "" },
        NameRow{ "FN: \nTEL:1", "" },
        NameRow{ "FN:Ada Bo", "ada bo" },
        NameRow{ "FN:Bo\\, ADA", "ada bo" },
        NameRow{ "FN:J\xC3\xB6rg \xC3\x89mile", "emile jorg" },
        NameRow{ "N:Bo;Ada;;;", "ada bo" },
        NameRow{ "FN:Ada\nN:Bo;Celia", "ada" },
        NameRow{ "NICKNAME:Adi\nORG:Tern", "adi" },
        NameRow{ "ORG:Tern Radio;Sales\nTEL:1", "radio tern" },
        NameRow{ "FN:a b c d e f g h i j", "a b c d e f g h" },
        NameRow{ "FN:---\nTEL:1", "" },
    };
    for ( const NameRow& row : s_kRows )
        EXPECT_EQ( NameIn( row.m_lines ).Key().toStdString(), row.m_key ) << row.m_lines;
}

TEST( PersonNameTest, NamesAgree )
{
    constexpr std::array s_kRows = {
        PairRow{ "Ada Bo", "Bo Ada", NameAgreement::Same },
        PairRow{ "Ada Bo", "ada B\xC3\xB6", NameAgreement::Same },
        PairRow{ "Ada Ellery", "Ada Elery", NameAgreement::Typo },
        PairRow{ "Ada Ellery", "Elelry Ada", NameAgreement::Typo },
        PairRow{ "Ada Ellery", "Ada Elleryx", NameAgreement::Typo },
        PairRow{ "Ada Ellery", "Ada Ellerx", NameAgreement::Typo },
        PairRow{ "Ada Ellery", "Aba Ellery", NameAgreement::None },
        PairRow{ "Ada Ellery", "Adda Ellerx", NameAgreement::None },
        PairRow{ "Ellery", "Elery", NameAgreement::None },
        PairRow{ "Dunmore", "Dunmre", NameAgreement::Typo },
        PairRow{ "Meyer", "Meier", NameAgreement::None },
        PairRow{ "Ada Meyer", "Ada Meier", NameAgreement::Typo },
        PairRow{ "Jean Luc Bo", "Jeanluc Bo", NameAgreement::Typo },
        PairRow{ "Ada Bo", "Ada Celia Bo", NameAgreement::Part },
        PairRow{ "Dr. Ada Bo", "Bo Ada", NameAgreement::Part },
        PairRow{ "Ada", "Ada Bo", NameAgreement::None },
        PairRow{ "Ada", "---", NameAgreement::None },
        PairRow{ "Ada Bo", "Celia Dunmore", NameAgreement::None },
        PairRow{ "Ada Ada Bo", "Ada Bo", NameAgreement::Part },
        PairRow{ "---", "...", NameAgreement::Same },
    };
    for ( const PairRow& row : s_kRows )
    {
        const PersonName first = Named( row.m_first );
        const PersonName second = Named( row.m_second );
        EXPECT_EQ( first.Compare( second ), row.m_agreement ) << row.m_first << " / " << row.m_second;
        EXPECT_EQ( second.Compare( first ), row.m_agreement ) << row.m_second << " / " << row.m_first;
    }
}

TEST( PersonNameTest, TypoIsOneLetter )
{
    const auto isTypo = []( const char* a_first, const char* a_second )
    { return IsTypo( QString::fromLatin1( a_first ), QString::fromLatin1( a_second ) ); };
    for ( const char* other :
          { "bcd", "acd", "abd", "abc", "xabcd", "abxcd", "abcdx", "xbcd", "abcx", "bacd", "acbd", "abdc" } )
    {
        EXPECT_TRUE( isTypo( "abcd", other ) ) << other;
        EXPECT_TRUE( isTypo( other, "abcd" ) ) << other;
    }
    for ( const char* other : { "", "abcd", "ab", "abcdef", "xbcx", "badc", "dbca", "cd", "xyzw" } )
    {
        EXPECT_FALSE( isTypo( "abcd", other ) ) << other;
        EXPECT_FALSE( isTypo( other, "abcd" ) ) << other;
    }
    EXPECT_FALSE( isTypo( "", "" ) );
    EXPECT_TRUE( isTypo( "", "a" ) );
}

TEST( PersonNameTest, HostileNamesAreShort )
{
    const QByteArray marks = QByteArray( "a\xCC\x81\xCC\xA3" ).repeated( 100000 );
    EXPECT_LE( Named( marks ).Key().size(), 256 );
    EXPECT_LE( Named( QByteArray( "ab " ).repeated( 100000 ) ).Words().size(), 8 );
    EXPECT_EQ( Named( QByteArray( "a" ).repeated( 100000 ) ).Key().size(), 256 );
}

} // namespace PimManager::PhoneBook
