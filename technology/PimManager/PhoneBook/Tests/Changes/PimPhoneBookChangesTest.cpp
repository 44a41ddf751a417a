#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include "BookTexts.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

struct Row
{
    const char* m_name;
    const char* m_old;
    const char* m_new;
    const char* m_changes;
};

constexpr std::array s_kRows = {
    Row{ "Empty", "", "", "" },
    Row{ "OldEmpty", "", "FN:Ada|FN:Bo", "+0, +1" },
    Row{ "NewEmpty", "FN:Ada|FN:Bo", "", "-0, -1" },
    Row{ "Same", "FN:Ada\nTEL:1", "FN:Ada\nTEL:1", "0-0 content" },
    Row{ "Folds", "FN:Ada\nNOTE:one two", "FN:Ada\nNOTE:one\n  two", "0-0 content" },
    Row{ "LinesInAnotherOrder", "FN:Ada\nTEL:123", "TEL:123\nFN:Ada", "0-0 content" },
    Row{ "LetterCase", "FN:Ada\nTEL;TYPE=home;X-A=b:123", "fn:Ada\ntel;x-a=B;type=HOME:123", "0-0 content" },
    Row{ "Groups", "FN:Ada\na.TEL:123\na.X-ABLABEL:boat", "FN:Ada\nb.TEL:123\nb.X-ABLABEL:boat", "0-0 content" },
    Row{ "Versions", "VERSION:2.1\nFN:Ada\nTEL;HOME:123", "VERSION:4.0\nFN:Ada\nTEL;TYPE=home:123", "0-0 content" },
    Row{ "PhonesInAnotherOrder", "FN:Ada\nTEL:123\nTEL:456", "FN:Ada\nTEL:456\nTEL:123", "0-0 number changed" },
    Row{ "Revision", "FN:Ada\nTEL:123\nREV:2020-01-01", "FN:Ada\nTEL:123\nREV:2021-01-01", "0-0 number changed" },
    Row{ "Program", "FN:Ada\nTEL:123\nPRODID:a", "FN:Ada\nTEL:123\nPRODID:b", "0-0 number changed" },

    Row{ "Added", "FN:Ada", "FN:Bo|FN:Ada", "0-1 content, +0" },
    Row{ "Removed", "FN:Ada|FN:Bo", "FN:Bo", "1-0 content, -0" },
    Row{ "Moved", "FN:A|FN:B|FN:C|FN:D", "FN:D|FN:A|FN:B|FN:C",
         "3-0 content moved, 0-1 content, 1-2 content, 2-3 content" },
    Row{ "Exchanged", "FN:A|FN:B", "FN:B|FN:A", "1-0 content moved, 0-1 content" },
    Row{ "MovedAmongOthers", "FN:A|FN:B|FN:C", "FN:X|FN:C|FN:A|FN:Y", "2-1 content moved, 0-2 content, +0, +3, -1" },
    Row{ "ChangedAndMoved", "UID:1\nFN:A|FN:B|FN:C", "FN:B|FN:C|UID:1\nFN:X",
         "1-0 content, 2-1 content, 0-2 uid changed moved" },

    Row{ "Uid", "UID:1\nFN:Ada", "UID:1\nFN:Bo", "0-0 uid changed" },
    Row{ "UidBeforeName", "UID:1\nFN:Ada\nTEL:123|UID:2\nFN:Bo", "UID:2\nFN:Ada\nTEL:123|UID:1\nFN:Bo",
         "1-0 uid changed moved, 0-1 uid changed" },
    Row{ "UidForms", "UID:urn:uuid:AB-1\nFN:Ada", "UID:ab-1\nFN:Bo", "0-0 uid changed" },
    Row{ "UidMissingInNew", "UID:1\nFN:Ada", "FN:Ada", "0-0 content" },
    Row{ "UidMissingInOld", "FN:Ada", "UID:1\nFN:Ada", "0-0 content" },
    Row{ "UidEmpty", "UID:\nFN:Ada", "UID:1\nFN:Ada", "0-0 content" },
    Row{ "UidMissingAndChanged", "UID:1\nFN:Ada\nTEL:123", "FN:Ada\nTEL:123\nNOTE:x", "0-0 number changed" },
    Row{ "UidDiffers", "UID:1\nFN:Ada", "UID:2\nFN:Ada", "0-0 content changed" },
    Row{ "UidMissingInOtherVersion", "VERSION:2.1\nUID:1\nFN:Ada\nTEL;CELL:123", "FN:Ada\nTEL;TYPE=CELL:123",
         "0-0 content" },
    Row{ "UidOfOneOfEqualContacts", "FN:A|UID:1\nFN:A|UID:2\nFN:A", "UID:3\nFN:A|VERSION:4.0\nFN:A|VERSION:4.0\nFN:A",
         "0-0 content, 1-1 content, 2-2 content" },
    Row{ "UidTwice", "UID:1\nUID:2\nFN:Ada", "FN:Ada", "0-0 content" },
    Row{ "UidDuplicated", "UID:1\nFN:A|UID:1\nFN:B", "UID:1\nFN:B|UID:1\nFN:A", "1-0 content moved, 0-1 content" },
    Row{ "UidDuplicatedAndChanged", "UID:1\nFN:A|UID:1\nFN:B", "UID:1\nFN:B\nNOTE:x|UID:1\nFN:A",
         "1-0 uid changed moved, 0-1 content" },
    Row{ "UidDuplicatedInOtherVersions", "UID:1\nFN:A|UID:1\nFN:A\nNOTE:x", "VERSION:4.0\nUID:1\nFN:A\nNOTE:x",
         "1-0 uid, -0" },
    Row{ "UidDuplicatedAndRenamed", "UID:1\nFN:A|UID:1\nFN:B", "UID:1\nFN:C|UID:1\nFN:B",
         "0-0 uid changed, 1-1 content" },
    Row{ "UidDuplicatedInNew", "UID:1\nFN:A", "UID:1\nFN:B|UID:1\nFN:A\nNOTE:x", "0-1 uid changed, +0" },
    Row{ "UidOfAll", "UID:1\nFN:A|UID:1\nFN:B|UID:1\nFN:C", "UID:1\nFN:X|UID:1\nFN:A|UID:1\nFN:B\nNOTE:x|UID:1\nFN:C",
         "0-1 content, 1-2 uid changed, 2-3 content, +0" },

    Row{ "Bluetooth", "X-BT-UID:1\nFN:Ada", "X-BT-UID:1\nFN:Bo", "0-0 bluetooth changed" },
    Row{ "UidBeforeBluetooth", "UID:1\nX-BT-UID:1\nFN:A|UID:2\nX-BT-UID:2\nFN:B", "UID:1\nX-BT-UID:2\nFN:C",
         "0-0 uid changed, -1" },
    Row{ "BluetoothMissing", "X-BT-UID:1\nUID:2\nFN:Ada", "FN:Ada", "0-0 content" },
    Row{ "BluetoothMissingWithUid", "X-BT-UID:1\nUID:2\nFN:Ada", "UID:2\nFN:Ada", "0-0 uid" },
    Row{ "BluetoothBeforeContent", "X-BT-UID:1\nFN:Ada", "FN:Ada|X-BT-UID:1\nFN:Bo", "0-1 bluetooth changed, +0" },

    Row{ "EqualContactsInOrder", "FN:A|FN:A|FN:A", "FN:A|FN:A", "0-0 content, 1-1 content, -2" },
    Row{ "EqualContactsAdded", "FN:A", "FN:A|FN:A|FN:A", "0-0 content, +1, +2" },
    Row{ "EqualContentBeforeName", "FN:A\nTEL:123\nNOTE:x|FN:A\nTEL:123\nNOTE:y", "FN:A\nTEL:123\nNOTE:y",
         "1-0 content, -0" },
    Row{ "EmptyNames", "TEL:123\nNOTE:x|TEL:456", "TEL:456|TEL:123\nNOTE:y", "1-0 content moved, 0-1 number changed" },

    Row{ "NameAndNumber", "FN:Ada Bo\nTEL:030 1234567", "FN:Ada Bo\nTEL:+49 30 1234567", "0-0 number changed" },
    Row{ "NameAndMail", "FN:Ada Bo\nEMAIL:a@b.example\nTEL:123", "FN:Ada Bo\nEMAIL:A@B.example\nTEL:456",
         "0-0 number changed" },
    Row{ "NameExchanged", "FN:Ada Bo\nTEL:123", "FN:Bo\\, Ada\nTEL:123", "0-0 number changed" },
    Row{ "NameAccent", "FN:J\xC3\xB6rg M\nTEL:123", "FN:Jorg M.\nTEL:123", "0-0 number changed" },
    Row{ "NameTypo", "FN:Ada Lindqvist\nTEL:123", "FN:Ada Lindqvsit\nTEL:123", "0-0 number changed" },
    Row{ "NameOfOneWordTypo", "FN:Lindqvist\nTEL:123", "FN:Lindquist\nTEL:123", "0-0 number changed" },
    Row{ "NameShortTypo", "FN:Jan Bo\nTEL:123", "FN:Jana Bo\nTEL:123", "+0, -0" },
    Row{ "NameBlank", "FN:Jean Luc Bo\nTEL:123", "FN:Jeanluc Bo\nTEL:123", "0-0 number changed" },
    Row{ "NamePart", "FN:Ada Bo\nTEL:123", "FN:Ada Celia Bo\nTEL:123", "0-0 number changed" },
    Row{ "NameOnlyFamily", "FN:Bo\nTEL:123", "FN:Ada Bo\nTEL:123", "+0, -0" },
    Row{ "NameFromN", "N:Bo;Ada\nTEL:123", "N:Bo;Ada\nFN:Ada Bo\nTEL:123\nNOTE:x", "0-0 number changed" },
    Row{ "NameOfOrganisation", "ORG:Tern Radio\nTEL:123", "ORG:Tern Radio\nTEL:123\nNOTE:x", "0-0 number changed" },
    Row{ "OtherName", "FN:Ada Bo\nTEL:123", "FN:Celia Dunmore\nTEL:123", "+0, -0" },
    Row{ "OtherNumber", "FN:Ada Bo\nTEL:1234567", "FN:Ada Bo\nTEL:1234568", "+0, -0" },
    Row{ "OtherExtension", "FN:Ada Bo\nTEL:1234567 ext. 1", "FN:Ada Bo\nTEL:1234567 ext. 2", "+0, -0" },
    Row{ "NumberAdded", "FN:Ada Bo", "FN:Ada Bo\nTEL:123", "0-0 name changed" },
    Row{ "NumberRemoved", "FN:Ada Bo\nTEL:123", "FN:Ada Bo", "0-0 name changed" },
    Row{ "NoNumber", "FN:Ada Bo\nNOTE:x", "FN:Ada Bo\nNOTE:y", "0-0 name changed" },
    Row{ "NoNumberAndSeveral", "FN:Ada Bo\nNOTE:x", "FN:Ada Bo\nNOTE:y|FN:Ada Bo\nNOTE:z", "+0, +1, -0" },
    Row{ "NoNameNoNumber", "NOTE:x", "NOTE:y", "+0, -0" },

    Row{ "OtherUidAmongKept", "UID:1\nFN:A B\nTEL:123|UID:2\nFN:C", "UID:3\nFN:A B\nTEL:123\nNOTE:x|UID:2\nFN:C",
         "1-1 content, +0, -0" },
    Row{ "OtherUidAndNameAlone", "UID:1\nFN:A B|UID:2\nFN:C", "UID:3\nFN:A B\nNOTE:x|UID:2\nFN:C",
         "1-1 content, +0, -0" },
    Row{ "AllUidsAreOther", "UID:1\nFN:A B\nTEL:123|UID:2\nFN:C", "UID:3\nFN:A B\nTEL:123\nNOTE:x|UID:4\nFN:C",
         "0-0 number changed, 1-1 content changed" },
    Row{ "TypoOfFatherBeforeSon", "FN:Ada Lindqvist\nTEL:123\nTEL:456",
         "FN:Ada Lindqvist\nTEL:123\nTEL:789|FN:Ada Lindqvits\nTEL:123\nTEL:456", "0-1 number changed, +0" },
    Row{ "NumbersOfBothSpeakAgainst", "FN:Ada Lindqvist\nTEL:123\nTEL:456",
         "FN:Ada Lindqvist\nTEL:123\nTEL:789|FN:Ada Lindqvits\nTEL:123", "0-1 number changed, +0" },
    Row{ "AmbiguousTypoIsNoWorseOne", "FN:Ada Lindqvist\nTEL:123\nTEL:456",
         "FN:Ada Lindqvisd\nTEL:123\nTEL:456|FN:Ada Lindqvisr\nTEL:123\nTEL:456|FN:Ada Lindqvis\nTEL:123",
         "+0, +1, +2, -0" },
    Row{ "IdentifiersOfEqualContacts", "FN:A\nUID:1|FN:A\nX-BT-UID:1", "X-BT-UID:2\nFN:A|VERSION:4.0\nFN:A",
         "0-0 content, 1-1 content" },
    Row{ "FatherAndSon", "FN:A B\nTEL:123\nTEL:456\nNOTE:x|FN:A B\nTEL:123\nTEL:789\nNOTE:x",
         "FN:A B\nTEL:123\nTEL:789\nNOTE:y|FN:A B\nTEL:123\nTEL:456\nNOTE:y",
         "1-0 number changed moved, 0-1 number changed" },
    Row{ "LinesInCommonDecide", "FN:A B\nTEL:123\nBDAY:1950-01-01|FN:A B\nTEL:123\nBDAY:1980-01-01",
         "FN:A B\nTEL:123\nBDAY:1980-01-01\nNOTE:y|FN:A B\nTEL:123\nBDAY:1950-01-01\nNOTE:y",
         "1-0 number changed moved, 0-1 number changed" },
    Row{ "OrderDecides", "FN:A B\nTEL:123\nNOTE:a|FN:A B\nTEL:123\nNOTE:b",
         "FN:A B\nTEL:123\nNOTE:c|FN:A B\nTEL:123\nNOTE:d", "0-0 number changed, 1-1 number changed" },
    Row{ "AmbiguousTypo", "FN:Ada Lindqvist\nTEL:123", "FN:Ada Lindqvisd\nTEL:123|FN:Ada Lindqvisr\nTEL:123",
         "+0, +1, -0" },
    Row{ "TypoWithTwoNumbersInCommon", "FN:Ada Lindqvist\nTEL:123\nTEL:456",
         "FN:Ada Lindqvisd\nTEL:123|FN:Ada Lindqvisr\nTEL:123\nTEL:456", "0-1 number changed, +0" },
    Row{ "SameNameBeforeTypo", "FN:Ada Lindqvist\nTEL:123\nTEL:456|FN:Ada Lindqvits\nTEL:123\nTEL:456",
         "FN:Ada Lindqvits\nTEL:123", "1-0 number changed, -0" },
};

} // namespace

TEST( PimPhoneBookChangesTest, BooksArePaired )
{
    for ( const Row& row : s_kRows )
    {
        const auto changes = PimPhoneBookChanges::Compare( BookOf( row.m_old ), BookOf( row.m_new ) );
        EXPECT_EQ( TextOf( changes ), row.m_changes ) << row.m_name;
    }
}

TEST( PimPhoneBookChangesTest, DefaultHasNoChanges )
{
    const PimPhoneBookChanges changes;
    EXPECT_TRUE( changes.IsEmpty() );
    EXPECT_EQ( TextOf( changes ), "" );
    EXPECT_EQ( changes.NewOf( 0 ), -1 );
    EXPECT_EQ( changes.OldOf( -1 ), -1 );
}

TEST( PimPhoneBookChangesTest, OnlyMovedContactsAreNoDifference )
{
    const auto moved = PimPhoneBookChanges::Compare( BookOf( "FN:A|FN:B" ), BookOf( "FN:B|FN:A" ) );
    EXPECT_TRUE( moved.IsEmpty() );
    EXPECT_EQ( moved.Moved().size(), 1 );
    EXPECT_FALSE( PimPhoneBookChanges::Compare( BookOf( "FN:A" ), BookOf( "" ) ).IsEmpty() );
    EXPECT_FALSE( PimPhoneBookChanges::Compare( BookOf( "" ), BookOf( "FN:A" ) ).IsEmpty() );
    EXPECT_FALSE( PimPhoneBookChanges::Compare( BookOf( "UID:1\nFN:A" ), BookOf( "UID:1\nFN:B" ) ).IsEmpty() );
}

TEST( PimPhoneBookChangesTest, PartnersAreFoundInBothDirections )
{
    const auto changes = PimPhoneBookChanges::Compare( BookOf( "FN:A|FN:B|FN:C" ), BookOf( "FN:C|FN:A" ) );
    EXPECT_EQ( changes.NewOf( 0 ), 1 );
    EXPECT_EQ( changes.NewOf( 1 ), -1 );
    EXPECT_EQ( changes.NewOf( 2 ), 0 );
    EXPECT_EQ( changes.NewOf( 3 ), -1 );
    EXPECT_EQ( changes.OldOf( 0 ), 2 );
    EXPECT_EQ( changes.OldOf( 1 ), 0 );
    EXPECT_EQ( changes.OldOf( 2 ), -1 );
}

TEST( PimPhoneBookChangesTest, EndingDigitsAreThoseOfTheOptions )
{
    PimPhoneBookOptions options;
    options.SetEndingDigits( 4 );
    const auto changes =
        PimPhoneBookChanges::Compare( BookOf( "FN:A B\nTEL:1234567" ), BookOf( "FN:A B\nTEL:7774567" ), options );
    EXPECT_EQ( TextOf( changes ), "0-0 number changed" );
}

TEST( PimPhoneBookChangesTest, RegionIsThatOfTheOptions )
{
    const auto old = BookOf( "FN:A B\nTEL:+49 30 1234" );
    const auto other = BookOf( "FN:A B\nTEL:030 1234" );
    PimPhoneBookOptions options;
    EXPECT_EQ( TextOf( PimPhoneBookChanges::Compare( old, other, options ) ), "+0, -0" );
    options.SetRegion( QStringLiteral( "DE" ) );
    EXPECT_EQ( TextOf( PimPhoneBookChanges::Compare( old, other, options ) ), "0-0 number changed" );
}

TEST( PimPhoneBookChangesTest, CopyKeepsItsChanges )
{
    PimPhoneBookChanges changes = PimPhoneBookChanges::Compare( BookOf( "FN:A" ), BookOf( "FN:B" ) );
    const PimPhoneBookChanges copy = changes;
    changes = PimPhoneBookChanges();
    EXPECT_EQ( TextOf( copy ), "+0, -0" );
    EXPECT_EQ( TextOf( changes ), "" );
}

} // namespace PimManager::PhoneBook
