#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array s_kKinds = {
    ContactRow{ "4.0", "KIND:Group", "group+" },
    ContactRow{ "3.0", "X-ADDRESSBOOKSERVER-KIND:group", "group+" },
    ContactRow{ "4.0", "KIND:\r\nKIND:org", "org" },
    ContactRow{ "4.0", "KIND:X-Boat", "x-boat" },
    ContactRow{ "4.0", "FN:x", "" },
};

QByteArray Card( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:3.0\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

std::string MembersIn( const PimContactBook& a_book )
{
    std::string names;
    const QList<PimContact> members = a_book.MembersOf( a_book.At( 0 ) );
    for ( const PimContact& member : members )
        names += member.DisplayName().toStdString() + ' ';
    return names;
}

} // namespace

TEST( PimContactGroupsTest, KindIsRead )
{
    ExpectRows( s_kKinds, []( const PimContact& a_contact )
                { return a_contact.Kind().toStdString() + ( a_contact.IsGroup() ? "+" : "" ); } );
}

TEST( PimContactGroupsTest, MembersAreAddresses )
{
    const PimContact contact = ContactWith(
        "MEMBER:urn:uuid:1\r\nMEMBER: \r\nMEMBER;PREF=1:mailto:a@b\r\nX-ADDRESSBOOKSERVER-MEMBER:urn:uuid:2", "4.0" );
    EXPECT_EQ( ShownTexts( contact.Members() ), "urn:uuid:1 / mailto:a@b pref=1 / urn:uuid:2" );
}

TEST( PimContactGroupsTest, MembersAreFoundByUid )
{
    const QByteArray others = Card( "FN:a\r\nUID:ABC" ) + Card( "FN:b\r\nUID:urn:uuid:d-e" ) + Card( "FN:c\r\nUID:" ) +
                              Card( "FN:d\r\nUID:x" ) + Card( "FN:e\r\nUID:x" ) + Card( "FN:f" );
    const std::array<std::pair<QByteArray, const char*>, 6> rows = { {
        { "X-ADDRESSBOOKSERVER-MEMBER:urn:uuid:abc\r\nMEMBER:URN:UUID:D-E", "a b " },
        { "MEMBER:D-E\r\nMEMBER:ABC\r\nMEMBER:abc", "a b " },
        { "MEMBER:x\r\nMEMBER:unknown", "d e " },
        { "MEMBER:\r\nMEMBER:urn:uuid:", "" },
        { "FN:x", "" },
        { "UID:g\r\nFN:g\r\nMEMBER:g", "g " },
    } };
    for ( const auto& [members, names] : rows )
        EXPECT_EQ( MembersIn( PimContactBook::FromBytes( Card( members ) + others ) ), names ) << members.toStdString();
}

} // namespace PimManager::Contacts
