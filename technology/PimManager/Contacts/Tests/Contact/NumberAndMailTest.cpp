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
    Row{ "tel:+1;phone-context=example.com;Ext=12;x=y", "+1;ext=12" },
    Row{ "tel:+1;ext=", "+1" },
    Row{ "555 ext. 12", "555 ext. 12" },
    Row{ "tel:+1;phone-context=+44", "+1" },
    Row{ "tel:%2B1%20555;ext=%31", "+1 555;ext=1" },
    Row{ "tel: +1 ", "+1" },
    Row{ "tel:", "" },
    Row{ "telephone", "telephone" },
    Row{ "", "" },
};

struct PartsRow
{
    const char* m_text;
    const char* m_first;
    const char* m_second;
    const char* m_third;
};

// The number, the extension and the context.
constexpr std::array s_kUris = {
    PartsRow{ "tel:+1-201-555-0123;ext=102;phone-context=+1", "+1-201-555-0123", "102", "+1" },
    PartsRow{ "TEL:7042;Phone-Context=example.com;EXT=5;isub=9", "7042", "5", "example.com" },
    PartsRow{ "tel:%2B1%20555;ext=%31%32;phone-context=%2B44", "+1 555", "12", "+44" },
    PartsRow{ "tel:+1;isub=ext=3", "+1", "", "" },
    PartsRow{ "tel:+1;next=3", "+1", "", "" },
    PartsRow{ "tel:+1;ext;phone-context", "+1", "", "" },
    PartsRow{ "tel:+1;ext=1;ext=2;phone-context=a;phone-context=b", "+1", "1", "a" },
    PartsRow{ "tel:+1;ext=;ext=2", "+1", "", "" },
    PartsRow{ "tel:+1 ext 12", "+1 ext 12", "", "" },
    PartsRow{ "tel:;ext=3", "", "3", "" },
    PartsRow{ "tel:;;;", "", "", "" },
    PartsRow{ "tel:%", "%", "", "" },
};

// The number and the extension.
constexpr std::array s_kTexts = {
    PartsRow{ "+1-555 ext. 12", "+1-555", "12", "" },
    PartsRow{ "555 x12", "555", "12", "" },
    PartsRow{ "555x12", "555", "12", "" },
    PartsRow{ "555 X. 12", "555", "12", "" },
    PartsRow{ "555;ext=12", "555", "12", "" },
    PartsRow{ "555 ext 12", "555", "12", "" },
    PartsRow{ "555 Ext: 12", "555", "12", "" },
    PartsRow{ "555 extn 12", "555", "12", "" },
    PartsRow{ "555, Extension 12\n", "555", "12", "" },
    PartsRow{ "(555)ext12", "(555)", "12", "" },
    PartsRow{ "555p1 x2", "555p1", "2", "" },
    PartsRow{ "555,12", "555,12", "", "" },
    PartsRow{ "555p12", "555p12", "", "" },
    PartsRow{ "555w12", "555w12", "", "" },
    PartsRow{ "555 12", "555 12", "", "" },
    PartsRow{ "555 #12", "555 #12", "", "" },
    PartsRow{ "555,,ext 12", "555,,ext 12", "", "" },
    PartsRow{ "555 next 12", "555 next 12", "", "" },
    PartsRow{ "555 ext", "555 ext", "", "" },
    PartsRow{ "555 ext 1a", "555 ext 1a", "", "" },
    PartsRow{ "555 x1 x2", "555 x1 x2", "", "" },
    PartsRow{ "555x1x2", "555x1x2", "", "" },
    PartsRow{ "1-800-OMEGA ext 12", "1-800-OMEGA ext 12", "", "" },
    PartsRow{ "Ext: 12", "Ext: 12", "", "" },
    PartsRow{ "x12", "x12", "", "" },
    PartsRow{ "() x12", "() x12", "", "" },
    PartsRow{ "12", "12", "", "" },
    PartsRow{ "sip:omega@example.com", "sip:omega@example.com", "", "" },
    PartsRow{ " ", "", "", "" },
    PartsRow{ "", "", "", "" },
};

// The address and the name.
constexpr std::array s_kMailParts = {
    PartsRow{ "omega@example.com", "omega@example.com", "", "" },
    PartsRow{ "mailto:omega@example.com?subject=x", "omega@example.com", "", "" },
    PartsRow{ "\"Omega Iota\" <omega@example.com>", "omega@example.com", "Omega Iota", "" },
    PartsRow{ "Omega  Iota<omega@example.com>", "omega@example.com", "Omega  Iota", "" },
    PartsRow{ "\"Iota, \\\"O\\\" \\\\\" <omega@example.com>", "omega@example.com", "Iota, \"O\" \\", "" },
    PartsRow{ "\"Omega\" \"Iota\" <omega@example.com>", "omega@example.com", "\"Omega\" \"Iota\"", "" },
    PartsRow{ "\"Omega\\\" <omega@example.com>", "omega@example.com", "\"Omega\\\"", "" },
    PartsRow{ "\"Omega <omega@example.com>", "omega@example.com", "\"Omega", "" },
    PartsRow{ "\" <omega@example.com>", "omega@example.com", "\"", "" },
    PartsRow{ "\"\" <omega@example.com>", "omega@example.com", "", "" },
    PartsRow{ "<omega@example.com>", "omega@example.com", "", "" },
    PartsRow{ "=?utf-8?Q?=CE=A9?= <omega@example.com>", "omega@example.com", "=?utf-8?Q?=CE=A9?=", "" },
    PartsRow{ "mailto:%22O%5C%5C%22%20%3Comega@example.com%3E", "omega@example.com", "O\\", "" },
    PartsRow{ "Omega <nobody>", "Omega <nobody>", "", "" },
    PartsRow{ "", "", "", "" },
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

TEST( NumberAndMailTest, UrisAreSplit )
{
    QByteArray buffer;
    for ( const PartsRow& row : s_kUris )
    {
        const NumberParts parts = NumberPartsOf( row.m_text, buffer );
        EXPECT_EQ( parts.m_number, row.m_first ) << row.m_text;
        EXPECT_EQ( parts.m_extension, row.m_second ) << row.m_text;
        EXPECT_EQ( parts.m_context, row.m_third ) << row.m_text;
        EXPECT_TRUE( parts.m_isUri ) << row.m_text;
    }
}

TEST( NumberAndMailTest, PlainExtensionsAreTakenFromTexts )
{
    QByteArray buffer;
    for ( const PartsRow& row : s_kTexts )
    {
        const NumberParts parts = NumberPartsOf( row.m_text, buffer );
        EXPECT_EQ( parts.m_number, row.m_first ) << row.m_text;
        EXPECT_EQ( parts.m_extension, row.m_second ) << row.m_text;
        EXPECT_EQ( parts.m_context, row.m_third ) << row.m_text;
        EXPECT_FALSE( parts.m_isUri ) << row.m_text;
    }
}

TEST( NumberAndMailTest, MailsAreSplit )
{
    QByteArray buffer;
    for ( const PartsRow& row : s_kMailParts )
    {
        const MailParts parts = MailPartsOf( row.m_text, buffer );
        EXPECT_EQ( parts.m_address, row.m_first ) << row.m_text;
        EXPECT_EQ( parts.m_name, row.m_second ) << row.m_text;
    }
}

TEST( NumberAndMailTest, MailsAreRead )
{
    QByteArray buffer;
    for ( const Row& row : s_kMails )
        EXPECT_EQ( MailOf( row.m_text, buffer ), row.m_result ) << row.m_text;
}

} // namespace PimManager::Contacts
