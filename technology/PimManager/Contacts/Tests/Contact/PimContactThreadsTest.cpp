// Contacts of one book, read by several threads at once.

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kThreads = 4;
constexpr int s_kCards = 20;

QByteArray CardText( int a_number )
{
    const QByteArray number = QByteArray::number( a_number );
    return "BEGIN:VCARD\r\nVERSION:4.0\r\nFN;ALTID=1;LANGUAGE=de:J\xC3\xB6rg " + number +
           "\r\nFN;ALTID=1;LANGUAGE=en:George " + number + "\r\nN:Marsh;J\xC3\xB6rg\r\na.TEL;TYPE=cell:" + number +
           "\r\na.X-ABLabel:boat\r\nEMAIL:a@example.com\r\na.ADR;LABEL=x:;;Weir\r\na.GEO:geo:1,2\r\nBDAY:--0412\r\n"
           "BIRTHPLACE:Ouse\r\nIMPP:xmpp:a@b\r\nORG:Lanthorn;Tide\r\nRELATED;TYPE=friend:urn:uuid:1\r\n"
           "PHOTO:data:image/png;base64,Zm9v\r\nCATEGORIES:a,b\r\nUID:" +
           number + "\r\nX-COLOR:red\r\nEND:VCARD\r\n";
}

QByteArray BookText()
{
    QByteArray text;
    for ( int i = 0; i < s_kCards; ++i )
        text += CardText( i );
    return text;
}

/// Reads everything by comparing with another contact, which shares nothing.
int EqualContacts( const std::vector<PimContact>& a_contacts, const PimContactBook& a_own )
{
    int equal = 0;
    for ( size_t i = 0; i < a_contacts.size(); ++i )
        equal += a_contacts[i] == a_own.At( static_cast<int>( i ) ) ? 1 : 0;
    return equal;
}

} // namespace

TEST( PimContactThreadsTest, ContactsAreReadByFourThreadsAtOnce )
{
    const PimContactBook book = PimContactBook::FromBytes( BookText() );
    const std::vector<PimContact> contacts( book.begin(), book.end() );
    std::atomic<int> equal = 0;
    std::vector<std::thread> threads;
    for ( int i = 0; i < s_kThreads; ++i )
        threads.emplace_back( [&] { equal += EqualContacts( contacts, PimContactBook::FromBytes( BookText() ) ); } );
    for ( std::thread& thread : threads )
        thread.join();
    EXPECT_EQ( equal, s_kThreads * s_kCards );
}

TEST( PimContactThreadsTest, FieldsAndBooksAreReadByFourThreadsAtOnce )
{
    const PimContactBook book = PimContactBook::FromBytes( BookText() );
    const PimContact contact = book.At( 0 );
    const PimContactPhone phone = contact.Phones().constFirst();
    const PimContactMedia photo = contact.Photos().constFirst();
    std::atomic<int> right = 0;
    const auto read = [&]
    {
        int members = 0;
        for ( const PimContact& each : book )
            members += each.Phones().value( 0 ).Label() == QLatin1String( "boat" ) ? 1 : 0;
        const bool isRight = members == s_kCards && phone.Types() == QStringList( QStringLiteral( "CELL" ) ) &&
                             phone.Purpose() == QLatin1String( "boat" ) && photo.Bytes() == "foo" &&
                             contact.FormattedNames().constFirst().Alternatives().size() == 2;
        right += isRight ? 1 : 0;
    };
    std::vector<std::thread> threads;
    for ( int i = 0; i < s_kThreads; ++i )
        threads.emplace_back( read );
    for ( std::thread& thread : threads )
        thread.join();
    EXPECT_EQ( right, s_kThreads );
}

} // namespace PimManager::Contacts
