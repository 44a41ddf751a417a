/// \file
/// Phone books for the tests of the model and the loader.

#pragma once

#include <PimManager/PhoneBook/PimPhoneBook.h>

#include <QByteArray>

#include <string>
#include <vector>

namespace PimManager::PhoneBook
{

/// What the card of a contact says.
struct TestContact
{
    std::string m_name;
    std::string m_number;
};

inline QByteArray CardOf( const TestContact& a_contact )
{
    return QByteArray::fromStdString( "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + a_contact.m_name +
                                      "\r\nN:" + a_contact.m_name + ";;;;\r\nTEL:" + a_contact.m_number +
                                      "\r\nUID:uid-" + a_contact.m_name + "\r\nEND:VCARD\r\n" );
}

inline QByteArray TextOf( const std::vector<TestContact>& a_contacts )
{
    QByteArray text;
    for ( const TestContact& contact : a_contacts )
        text += CardOf( contact );
    return text;
}

inline PimPhoneBook PhoneBookOf( const std::vector<TestContact>& a_contacts )
{
    return PimPhoneBook( Contacts::PimContactBook::FromBytes( TextOf( a_contacts ) ) );
}

/// Contacts with different names and numbers. The names are sorted.
inline std::vector<TestContact> ManyContacts( int a_count )
{
    std::vector<TestContact> contacts;
    for ( int i = 0; i < a_count; ++i )
        contacts.push_back( { "Name" + std::to_string( 100000 + i ), "+49 30 " + std::to_string( 500000 + i ) } );
    return contacts;
}

} // namespace PimManager::PhoneBook
