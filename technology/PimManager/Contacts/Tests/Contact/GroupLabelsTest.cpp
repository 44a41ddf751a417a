#include "Contact/GroupLabels.h"

#include "OneLine.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

std::string LabelIn( const QByteArray& a_lines, const char* a_group )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:3.0\r\n" + a_lines + "\r\nEND:VCARD\r\n" );
    const PimContactCard card = book.CardAt( 0 );
    LineCursor cursor( card );
    EXPECT_TRUE( cursor.Next() );
    GroupLabels labels;
    labels.Read( cursor );
    return std::string( labels.Of( a_group ) );
}

struct Row
{
    const char* m_lines;
    const char* m_group;
    const char* m_label;
};

constexpr std::array s_kRows = {
    Row{ "item1.X-ABLabel:boat phone", "item1", "boat phone" },
    Row{ "ITEM1.x-ablabel:boat", "item1", "boat" },
    Row{ "item1.X-ABLabel:_$!<Home>!$_", "item1", "Home" },
    Row{ "item1.X-ABLabel: _$!< Home >!$_ ", "item1", "Home" },
    Row{ "item1.X-ABLabel:_$!<Home", "item1", "_$!<Home" },
    Row{ "item1.X-ABLabel:a\\, b", "item1", "a, b" },
    Row{ "item1.X-ABLabel;CHARSET=UTF-8;QUOTED-PRINTABLE:=C3=A9", "item1", "\xC3\xA9" },
    Row{ "item1.X-ABLabel:first\r\nitem1.X-ABLabel:second", "item1", "first" },
    Row{ "item1.X-ABLabel:\r\nitem1.X-ABLabel:second", "item1", "" },
    Row{ "item1.X-ABLabel:one\r\nitem2.X-ABLabel:two", "item2", "two" },
    Row{ "item1.X-ABLa\r\n bel:folded", "item1", "folded" },
    Row{ "it\r\n em1.X-ABLabel:folded", "item1", "folded" },
    Row{ "X-ABLabel:none", "", "" },
    Row{ "item1.X-ABLabels:other", "item1", "" },
    Row{ "item1.X-ABLabel:one", "item11", "" },
    Row{ "item1.TEL:1", "item1", "" },
};

} // namespace

TEST( GroupLabelsTest, LabelsAreFound )
{
    for ( const Row& row : s_kRows )
        EXPECT_EQ( LabelIn( row.m_lines, row.m_group ), row.m_label ) << row.m_lines;
}

TEST( GroupLabelsTest, EachOfManyGroupsHasItsLabel )
{
    QByteArray lines;
    for ( int i = 0; i < 500; ++i )
        lines += "item" + QByteArray::number( i ) + ".X-ABLabel:label " + QByteArray::number( i ) + "\r\n";
    lines.chop( 2 );
    EXPECT_EQ( LabelIn( lines, "item0" ), "label 0" );
    EXPECT_EQ( LabelIn( lines, "ITEM257" ), "label 257" );
    EXPECT_EQ( LabelIn( lines, "item499" ), "label 499" );
    EXPECT_EQ( LabelIn( lines, "item500" ), "" );
}

} // namespace PimManager::Contacts
