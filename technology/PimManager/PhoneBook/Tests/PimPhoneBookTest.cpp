#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <gtest/gtest.h>

using namespace PimManager::Contacts;
using namespace PimManager::PhoneBook;

TEST( PimPhoneBookTest, EmptyBookHasNoContacts )
{
    const PimPhoneBook phoneBook;
    EXPECT_EQ( phoneBook.Size(), 0 );
    EXPECT_TRUE( phoneBook.Sorted().isEmpty() );
}
