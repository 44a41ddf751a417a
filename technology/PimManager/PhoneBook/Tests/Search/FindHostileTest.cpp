#include "PhoneBookGenerator.h"
#include "Search/CardText.h"

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace PimManager::PhoneBook
{

namespace
{

constexpr int s_kMany = 100000;

/// \return a book of one card with the lines.
PimPhoneBook Of( const QByteArray& a_lines )
{
    return PimPhoneBook(
        Contacts::PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:3.0\r\n" + a_lines + "\r\nEND:VCARD\r\n" ) );
}

QByteArray Repeated( const QByteArray& a_text, int a_times )
{
    return a_text.repeated( a_times );
}

bool Finds( const PimPhoneBook& a_phoneBook, const QString& a_text )
{
    return a_phoneBook.Find( a_text ).size() == 1;
}

} // namespace

TEST( FindHostileTest, ContactWithManyWordsIsFoundByTheLast )
{
    QByteArray nicknames;
    for ( int i = 0; i < s_kMany; ++i )
        nicknames += "n" + QByteArray::number( i ) + ',';
    const PimPhoneBook phoneBook = Of( "FN:x\r\nNICKNAME:" + nicknames + "zuletzt" );
    EXPECT_TRUE( Finds( phoneBook, QStringLiteral( "zuletzt x n99999" ) ) );
    EXPECT_FALSE( Finds( phoneBook, QStringLiteral( "n100000" ) ) );
    EXPECT_EQ( 1, phoneBook.FindByKeys( QStringLiteral( "9853898" ) ).size() );
}

TEST( FindHostileTest, ContactWithManyNumbersIsFoundByTheLast )
{
    QByteArray lines = "FN:x";
    for ( int i = 0; i < s_kMany; ++i )
        lines += "\r\nTEL:1" + QByteArray::number( i ).rightJustified( 6, '0' );
    const PimPhoneBook phoneBook = Of( lines + "\r\nTEL:98765432" );
    EXPECT_TRUE( Finds( phoneBook, QStringLiteral( "8765432" ) ) );
    EXPECT_TRUE( Finds( phoneBook, QStringLiteral( "1099999" ) ) );
    EXPECT_FALSE( Finds( phoneBook, QStringLiteral( "87654321" ) ) );
}

TEST( FindHostileTest, LongWordIsFoundByItsBeginning )
{
    const PimPhoneBook phoneBook = Of( "FN:" + Repeated( "ab", s_kMany ) );
    const QString all = QStringLiteral( "ab" ).repeated( s_kMany );
    EXPECT_TRUE( Finds( phoneBook, all.left( 90 ) ) );
    EXPECT_TRUE( Finds( phoneBook, all ) );
    EXPECT_FALSE( Finds( phoneBook, QStringLiteral( "b" ) + all ) );
}

TEST( FindHostileTest, LongChainsAndRunsAreIndexedInTime )
{
    const std::vector<QByteArray> names = {
        Repeated( "a-", s_kMany ),
        Repeated( "a1", s_kMany ),
        Repeated( "\xE5\xB1\xB1", s_kMany ),
        Repeated( "\xEA\xB9\x80", s_kMany ),
        Repeated( "\xC3\xBC", s_kMany ),
        Repeated( "\xCC\x81", s_kMany ),
        "a" + Repeated( "\xCC\x88", s_kMany ),
        Repeated( "\xEF\xB7\xBA", s_kMany ),
        Repeated( "\xF0\x9F\x98\x80", s_kMany ),
        Repeated( "- ", s_kMany ),
        Repeated( "\x01", s_kMany ),
        Repeated( "\xED\xA0\x80", s_kMany ),
        Repeated( "101", s_kMany ),
        Repeated( "z", 3 * s_kMany ),
        Repeated( "\xE0\xB8\x81", s_kMany ),
    };
    for ( const QByteArray& name : names )
    {
        const PimPhoneBook phoneBook = Of( "FN:" + name + " ende" );
        EXPECT_TRUE( Finds( phoneBook, QStringLiteral( "ende" ) ) ) << name.left( 20 ).constData();
        EXPECT_TRUE( Finds( phoneBook, QString::fromUtf8( name ) ) ) << name.left( 20 ).constData();
        EXPECT_FALSE( phoneBook.Section( 0 ).isEmpty() );
    }
}

TEST( FindHostileTest, LongTextIsSearchedInTime )
{
    const PimPhoneBook phoneBook(
        Contacts::PimContactBook::FromBytes( vCard::MadeTexts::PhoneBookGenerator().Book( 500 ) ) );
    for ( const QString& piece :
          { QStringLiteral( "a" ), QStringLiteral( "a " ), QStringLiteral( "1 " ), QStringLiteral( "0" ),
            QStringLiteral( "+1 " ), QStringLiteral( "-a" ), QStringLiteral( "\u00FC'" ), QStringLiteral( "\u5C71 " ),
            QString( QChar( 0xD800 ) ), QString( QChar( 0 ) ), QStringLiteral( "\u0308" ) } )
    {
        constexpr int s_kTimes = 10000;
        const QString text = piece.repeated( s_kTimes );
        EXPECT_EQ( phoneBook.Find( text ).size(), phoneBook.Find( text + piece ).size() ) << piece.toStdString();
        EXPECT_EQ( phoneBook.FindByKeys( text ).size(), phoneBook.FindByKeys( text + piece ).size() )
            << piece.toStdString();
    }
    QString different;
    for ( int i = 0; i < s_kMany / 10; ++i )
        different += QStringLiteral( "w%1 " ).arg( i );
    EXPECT_TRUE( phoneBook.Find( different ).isEmpty() );
    EXPECT_EQ( phoneBook.FindByKeys( QStringLiteral( "230" ).repeated( 5 ) ).size(),
               phoneBook.FindByKeys( QStringLiteral( "230" ).repeated( s_kMany ) ).size() );
}

TEST( FindHostileTest, ManyContactsOfOneNameAreAllFoundInTheOrderOfTheBook )
{
    const PimPhoneBook phoneBook( Contacts::PimContactBook::FromBytes( Repeated(
        "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Berg;Anna;;;\r\nFN:Anna Berg\r\nTEL:030 1\r\nEND:VCARD\r\n", 20000 ) ) );
    const auto matches = phoneBook.Find( QStringLiteral( "an be 0301" ) );
    ASSERT_EQ( 20000, matches.size() );
    for ( int i = 0; i < matches.size(); ++i )
        ASSERT_EQ( i, matches.at( i ).m_contact );
}

TEST( FindHostileTest, UnusualBookIsSearched )
{
    const PimPhoneBook phoneBook(
        BookOf( u"NOTE:no name\nFN:\nFN:\uFFFD\nTEL:\nTEL:abc\nTEL:*100#\nTEL:+\nN:;;;;\nORG:;" ) );
    EXPECT_EQ( 9, phoneBook.Find( QString() ).size() );
    EXPECT_EQ( 1, phoneBook.Find( QStringLiteral( "100" ) ).size() );
    EXPECT_EQ( 1, phoneBook.FindByKeys( QStringLiteral( "10" ) ).size() );
    for ( int contact = 0; contact < phoneBook.Size(); ++contact )
        EXPECT_FALSE( phoneBook.Section( contact ).isEmpty() ) << contact;
}

TEST( FindHostileTest, ManyDifferentContactsAreSearched )
{
    constexpr int s_kContacts = 20000;
    const PimPhoneBook phoneBook(
        Contacts::PimContactBook::FromBytes( vCard::MadeTexts::PhoneBookGenerator().Book( s_kContacts ) ) );
    QVector<bool> isSorted( s_kContacts );
    for ( const int contact : phoneBook.Sorted() )
    {
        EXPECT_FALSE( isSorted.at( contact ) );
        isSorted[contact] = true;
    }
    EXPECT_EQ( s_kContacts, isSorted.count( true ) );
    for ( int contact = 0; contact < s_kContacts; contact += 97 )
    {
        const auto matches = phoneBook.Find( phoneBook.At( contact ).DisplayName() );
        EXPECT_TRUE( std::any_of( matches.begin(), matches.end(),
                                  [contact]( const PimPhoneBookMatch& a_match )
                                  { return a_match.m_contact == contact; } ) )
            << contact;
    }
}

} // namespace PimManager::PhoneBook
