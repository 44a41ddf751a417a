#include "Contact/NumberAndMail.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_text;
    const char* m_result;
};

constexpr std::array s_kNumbers = {
    Row{ "+1-555-0101", "+1-555-0101" },
    Row{ " 555 0101\n", "555 0101" },
    Row{ "555;ext=2", "555;ext=2" },
    Row{ "tel:+1-555-0101", "+1-555-0101" },
    Row{ "TEL:+1;ext=2", "+1;ext=2" },
    Row{ "tel:+1;phone-context=example.com;Ext=12;x=y", "+1;Ext=12" },
    Row{ "tel:+1;phone-context=+44", "+1" },
    Row{ "tel:%2B1%20555;ext=%31", "+1 555;ext=1" },
    Row{ "tel: +1 ", "+1" },
    Row{ "tel:", "" },
    Row{ "telephone", "telephone" },
    Row{ "", "" },
};

constexpr std::array s_kMails = {
    Row{ "nell@example.com", "nell@example.com" },
    Row{ " nell@example.com\t", "nell@example.com" },
    Row{ "mailto:nell@example.com", "nell@example.com" },
    Row{ "MAILTO:nell%2Bx@example.com?subject=a%20b", "nell+x@example.com" },
    Row{ "\"Omega\" <omega@example.com>", "omega@example.com" },
    Row{ "Omega < omega@example.com > ", "omega@example.com" },
    Row{ "<omega@example.com>", "omega@example.com" },
    Row{ "mailto:Omega%20%3Comega@example.com%3E", "omega@example.com" },
    Row{ "a < b", "a < b" },
    Row{ "Omega <nobody>", "Omega <nobody>" },
    Row{ "<>", "<>" },
    Row{ ">", ">" },
    Row{ "", "" },
};

} // namespace

TEST( NumberAndMailTest, NumbersAreRead )
{
    QByteArray buffer;
    for ( const Row& row : s_kNumbers )
        EXPECT_EQ( NumberOf( row.m_text, buffer ), row.m_result ) << row.m_text;
}

TEST( NumberAndMailTest, MailsAreRead )
{
    QByteArray buffer;
    for ( const Row& row : s_kMails )
        EXPECT_EQ( MailOf( row.m_text, buffer ), row.m_result ) << row.m_text;
}

} // namespace PimManager::Contacts
