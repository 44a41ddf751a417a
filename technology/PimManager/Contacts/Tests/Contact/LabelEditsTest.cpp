// Labels, and the groups that they need.

#include "EditedContacts.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

PimContactPhone FirstPhone( const PimContact& a_contact )
{
    return a_contact.Phones().value( 0 );
}

enum class Change
{
    Label,   // becomes "new"
    NoLabel, // is removed
    Number,  // becomes 9
    Kinds,   // become Work
    Remove,  // the whole field
};

struct Row
{
    const char* m_name;
    const char* m_lines;
    Change m_change;
    const char* m_changed;
};

constexpr std::array s_kRows = {
    Row{ "NewLabelTakesFreeGroup", "item1.EMAIL:e\r\nITEM2.NOTE:n\r\nTEL:1\r\nFN:x\r\n", Change::Label,
         "item1.EMAIL:e\r\nITEM2.NOTE:n\r\nitem3.TEL:1\r\nitem3.X-ABLabel:new\r\nFN:x\r\n" },
    Row{ "NewLabelTakesOwnGroup", "a.TEL:1\r\nFN:x\r\n", Change::Label, "a.TEL:1\r\na.X-ABLabel:new\r\nFN:x\r\n" },
    Row{ "LabelIsReplaced", "a.TEL:1\r\nFN:x\r\na.X-ABLabel:old\r\n", Change::Label,
         "a.TEL:1\r\na.X-ABLabel:new\r\nFN:x\r\n" },
    Row{ "AllLabelsAreReplaced", "a.TEL:1\r\na.X-ABLabel:old\r\nA.X-ABLABEL:older\r\n", Change::Label,
         "a.TEL:1\r\na.X-ABLabel:new\r\n" },
    Row{ "SharedLabelStays", "a.TEL:1\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n", Change::Label,
         "item1.TEL:1\r\nitem1.X-ABLabel:new\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n" },
    Row{ "LabelIsRemoved", "a.TEL:1\r\na.X-ABLabel:old\r\na.X-ABLabel:older\r\n", Change::NoLabel, "a.TEL:1\r\n" },
    Row{ "SharedLabelIsLeft", "a.TEL:1\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n", Change::NoLabel,
         "TEL:1\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n" },
    Row{ "LabelIsKept", "a.TEL:1\r\nFN:x\r\na.X-ABLabel;X-A=b:old\r\n", Change::Number,
         "a.TEL:9\r\nFN:x\r\na.X-ABLabel;X-A=b:old\r\n" },
    Row{ "SharedLabelIsKept", "a.TEL:1\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n", Change::Number,
         "a.TEL:9\r\na.EMAIL:e\r\na.X-ABLabel:old\r\n" },
    Row{ "BuiltInLabelIsKept", "a.TEL:1\r\na.X-ABLabel:_$!<Home>!$_\r\n", Change::Number,
         "a.TEL;TYPE=HOME:9\r\na.X-ABLabel:_$!<Home>!$_\r\n" },
    Row{ "BuiltInLabelIsNoKindAnyMore", "a.TEL:1\r\na.X-ABLabel:_$!<Home>!$_\r\n", Change::Kinds,
         "a.TEL;TYPE=WORK:1\r\na.X-ABLabel:Home\r\n" },
    Row{ "TypeLabelIsKept", "TEL;TYPE=X-Boat,home,Ship:1\r\n", Change::Number, "TEL;TYPE=HOME,X-Boat,SHIP:9\r\n" },
    Row{ "TypeLabelIsReplaced", "TEL;TYPE=X-Boat,home:1\r\n", Change::Label,
         "item1.TEL;TYPE=HOME:1\r\nitem1.X-ABLabel:new\r\n" },
    Row{ "TypeLabelIsRemoved", "TEL;TYPE=Boat,home:1\r\n", Change::NoLabel, "TEL;TYPE=HOME:1\r\n" },
    Row{ "ParameterLabelIsKept", "TEL;X-CUSTOM=Boat:1\r\n", Change::Number, "item1.TEL:9\r\nitem1.X-ABLabel:Boat\r\n" },
    Row{ "LabelGoesWithItsLine", "a.TEL:1\r\nFN:x\r\nA.X-ABLabel:old\r\n", Change::Remove, "FN:x\r\n" },
    Row{ "SharedLabelDoesNotGo", "a.TEL:1\r\na.X-ABLabel:old\r\na.X-ANY:e\r\n", Change::Remove,
         "a.X-ABLabel:old\r\na.X-ANY:e\r\n" },
    Row{ "LabelOfOtherGroupDoesNotGo", "a.TEL:1\r\nb.X-ABLabel:old\r\nX-ABLabel:none\r\n", Change::Remove,
         "b.X-ABLabel:old\r\nX-ABLabel:none\r\n" },
};

void Apply( Change a_change, PimContact& a_contact )
{
    const PimContactPhone old = FirstPhone( a_contact );
    PimContactPhone by = old;
    switch ( a_change )
    {
    case Change::Label:
        by.SetLabel( QStringLiteral( "new" ) );
        break;
    case Change::NoLabel:
        by.SetLabel( QString() );
        break;
    case Change::Number:
        by.SetNumber( QStringLiteral( "9" ) );
        break;
    case Change::Kinds:
        by.SetKinds( PimContactPhoneKind::Work );
        break;
    case Change::Remove:
        EXPECT_TRUE( a_contact.Remove( old ) );
        return;
    }
    EXPECT_TRUE( a_contact.Replace( old, by ) );
    EXPECT_EQ( FirstPhone( a_contact ), by );
    EXPECT_EQ( FirstPhone( a_contact ).Id(), old.Id() );
}

} // namespace

TEST( LabelEditsTest, LinesAreThoseOfTheRow )
{
    for ( const Row& row : s_kRows )
    {
        SCOPED_TRACE( row.m_name );
        PimContact contact = ContactIn( "3.0", row.m_lines );
        Apply( row.m_change, contact );
        EXPECT_EQ( LinesOf( contact ), row.m_changed );
        ExpectWritten( contact, row.m_name );
    }
}

TEST( LabelEditsTest, EachAddedLabelHasItsGroup )
{
    for ( const char* const version : s_kVersions )
    {
        PimContact contact = ContactIn( version, "FN:x\r\n" );
        for ( int i = 0; i < 3; ++i )
        {
            PimContactPhone phone( QString::number( i ) );
            phone.SetLabel( QStringLiteral( "label %1" ).arg( i ) );
            contact.AddPhone( phone );
        }
        EXPECT_EQ( LinesOf( contact ), "FN:x\r\nitem1.TEL:0\r\nitem1.X-ABLabel:label 0\r\nitem2.TEL:1\r\n"
                                       "item2.X-ABLabel:label 1\r\nitem3.TEL:2\r\nitem3.X-ABLabel:label 2\r\n" )
            << version;
        ExpectWritten( contact, version );
    }
}

} // namespace PimManager::Contacts
