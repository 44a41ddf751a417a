#include "Text/UnsafeCharacters.h"

#include <QChar>

#include <gtest/gtest.h>

namespace PimManager::Contacts
{

namespace
{

bool IsUnsafeCategory( uint a_character )
{
    switch ( QChar::category( a_character ) )
    {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return a_character != 0x200C && a_character != 0x200D;
    default:
        return QChar::isNonCharacter( a_character );
    }
}

} // namespace

// A Qt of an older Unicode does not know the latest characters.
TEST( UnsafeCharactersTest, CharactersAreThoseOfTheCategories )
{
    for ( uint character = 0; character <= 0x10FFFF; ++character )
    {
        const bool isNew = QChar::category( character ) == QChar::Other_NotAssigned && IsUnsafe( character );
        ASSERT_EQ( IsUnsafe( character ), IsUnsafeCategory( character ) || isNew ) << std::hex << character;
    }
}

TEST( UnsafeCharactersTest, JoinersAreSafe )
{
    EXPECT_FALSE( IsUnsafe( 0x200C ) );
    EXPECT_FALSE( IsUnsafe( 0x200D ) );
    EXPECT_TRUE( IsUnsafe( 0x202E ) );
    EXPECT_TRUE( IsUnsafe( 0x2066 ) );
    EXPECT_TRUE( IsUnsafe( 0xFEFF ) );
    EXPECT_TRUE( IsUnsafe( 0xE0041 ) );
}

} // namespace PimManager::Contacts
