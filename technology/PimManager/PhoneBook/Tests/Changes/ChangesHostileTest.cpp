// Books that try to make a comparison slow or large.

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include "BookTexts.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

/// The lines of each contact, with the number of the contact in place of each `#`.
struct Row
{
    const char* m_name;
    const char* m_old;
    const char* m_new;
    bool m_arePaired;
};

constexpr std::array s_kRows = {
    Row{ "Equal", "FN:a", "FN:a", true },
    Row{ "OnlyFoldsDiffer", "FN:a\nNOTE:b c", "FN:a\nNOTE:b\n  c", true },
    Row{ "OneName", "FN:Ada Bo\nTEL:123\nNOTE:#", "FN:Ada Bo\nTEL:123\nNOTE:#x", true },
    Row{ "OneNameOtherNumbers", "FN:Ada Bo\nTEL:1#23", "FN:Ada Bo\nTEL:1#23\nNOTE:x", true },
    Row{ "OneNameNoNumber", "FN:Ada Bo\nNOTE:#", "FN:Ada Bo\nNOTE:#x", false },
    Row{ "OneNumber", "FN:Ada #\nTEL:123", "FN:Ada #\nTEL:123\nNOTE:x", true },
    Row{ "OneNumberAndWord", "FN:Ada #abcdef\nTEL:123", "FN:Ada #abcdfe\nTEL:123\nNOTE:x", false },
    Row{ "NoName", "TEL:123\nNOTE:#", "TEL:123\nNOTE:#x", true },
    Row{ "OneUid", "UID:1\nFN:#", "UID:1\nFN:#\nNOTE:x", true },
    Row{ "OneUidOtherNames", "UID:1\nFN:#", "UID:1\nFN:x#", true },
    Row{ "OneBluetoothUid", "X-BT-UID:1\nFN:#", "X-BT-UID:1\nFN:x#", true },
    Row{ "UidsGone", "UID:#\nFN:#", "FN:#", true },
    Row{ "OrderOfLines", "TEL:#\nTEL:123\nFN:a", "TEL:123\nTEL:#\nFN:a", true },
    Row{ "Nothing", "", "NOTE:", true },
};

QByteArray Cards( const char* a_lines, int a_count )
{
    QByteArray cards;
    for ( int i = 0; i < a_count; ++i )
        cards += "BEGIN:VCARD\nVERSION:3.0\n" + QByteArray( a_lines ).replace( "#", QByteArray::number( i ) ) +
                 "\nEND:VCARD\n";
    return cards;
}

void ExpectResults( int a_contacts )
{
    for ( const Row& row : s_kRows )
    {
        const auto old = Contacts::PimContactBook::FromBytes( Cards( row.m_old, a_contacts ) );
        const auto other = Contacts::PimContactBook::FromBytes( Cards( row.m_new, a_contacts ) );
        ASSERT_EQ( old.Size(), a_contacts ) << row.m_name;
        const auto changes = PimPhoneBookChanges::Compare( old, other );
        EXPECT_EQ( changes.Pairs().size(), row.m_arePaired ? a_contacts : 0 ) << row.m_name;
        EXPECT_EQ( changes.Moved().size(), 0 ) << row.m_name;
    }
}

QByteArray Numbered( const char* a_line, int a_count )
{
    QByteArray lines;
    for ( int i = 0; i < a_count; ++i )
        lines += QByteArray( a_line ).replace( "#", QByteArray::number( i ) ) + '\n';
    return lines;
}

} // namespace

TEST( ChangesHostileTest, ContactsAreAlike )
{
    ExpectResults( 2000 );
}

TEST( ChangesHostileTest, ManyContactsAreAlike )
{
    ExpectResults( 100000 );
}

TEST( ChangesHostileTest, OneContactHasManyLines )
{
    for ( const char* line :
          { "TEL:#", "TEL:123", "EMAIL:#@b.example", "UID:#", "X-BT-UID:#", "NICKNAME:#", "FN:#", "NOTE:#" } )
    {
        const QByteArray lines = Numbered( line, 20000 );
        const auto changes = PimPhoneBookChanges::Compare( BookOf( "FN:Ada Bo\nTEL:555\n" + lines + "X-A:a" ),
                                                           BookOf( "FN:Ada Bo\nTEL:555\n" + lines + "X-A:b" ) );
        EXPECT_EQ( changes.Changed().size(), 1 ) << line;
    }
}

// Each contact has a number in common with each of the other book.
TEST( ChangesHostileTest, ContactsShareNumbersWithEachOther )
{
    constexpr int s_kContacts = 150;
    QByteArray old;
    QByteArray other;
    for ( int i = 0; i < s_kContacts; ++i )
    {
        QByteArray oldNumbers;
        QByteArray newNumbers;
        for ( int j = 0; j < s_kContacts; ++j )
        {
            oldNumbers += "TEL:" + QByteArray::number( 1000000 + i * s_kContacts + j ) + '\n';
            newNumbers += "TEL:" + QByteArray::number( 1000000 + j * s_kContacts + i ) + '\n';
        }
        old += ( i == 0 ? "" : "|" ) + oldNumbers + "FN:Ada Bo\nX-A:" + QByteArray::number( i );
        other += ( i == 0 ? "" : "|" ) + newNumbers + "FN:Ada Bo\nX-A:" + QByteArray::number( i );
    }
    const auto changes = PimPhoneBookChanges::Compare( BookOf( old ), BookOf( other ) );
    EXPECT_EQ( changes.Pairs().size(), s_kContacts );
    for ( int i = 0; i < s_kContacts; ++i )
        EXPECT_EQ( changes.NewOf( i ), i );
}

TEST( ChangesHostileTest, TextsAreOdd )
{
    struct TextRow
    {
        QByteArray m_lines;
        const char* m_changes;
    };
    const std::array rows = {
        TextRow{ "FN:\xED\xA0\x80\nTEL:123", "0-0 number changed" },
        TextRow{ "FN:\x01\x02\nTEL:\x01", "+0, -0" },
        TextRow{ "FN:\xCC\x81\xCC\x81\nTEL:+", "+0, -0" },
        TextRow{ "FN:\xF0\x9D\x9F\x98\nTEL:\xD9\xA1\xD9\xA2\xD9\xA3", "0-0 number changed" },
        TextRow{ "FN:" + QByteArray( 300000, 'a' ) + "\nTEL:" + QByteArray( 300000, '1' ), "0-0 number changed" },
        TextRow{ "FN:a\nUID:" + QByteArray( 300000, 'u' ), "0-0 uid changed" },
    };
    for ( size_t i = 0; i < rows.size(); ++i )
    {
        const QByteArray& lines = rows[i].m_lines;
        const auto changes = PimPhoneBookChanges::Compare( BookOf( lines + "\nNOTE:a" ), BookOf( lines + "\nNOTE:b" ) );
        EXPECT_EQ( TextOf( changes ), rows[i].m_changes ) << "row " << i;
    }
}

} // namespace PimManager::PhoneBook
