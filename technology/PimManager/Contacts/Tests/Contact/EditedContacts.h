/// \file
/// Contacts that are edited and read again, for tests of edits.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

inline constexpr std::array s_kVersions = { "2.1", "3.0", "4.0" };

/// \param a_version the version of the card; without a VERSION line if it is empty.
/// \param a_lines   each with its line ending.
inline PimContact ContactIn( const QByteArray& a_version, const QByteArray& a_lines )
{
    const QByteArray version = a_version.isEmpty() ? QByteArray() : "VERSION:" + a_version + "\r\n";
    const PimContactBook book = PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + version + a_lines + "END:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 ) << a_lines.toStdString();
    return book.IsEmpty() ? PimContact() : book.At( 0 );
}

/// The bytes of the lines that a contact has after VERSION.
inline std::string LinesOf( const PimContact& a_contact )
{
    QByteArray lines;
    for ( const int id : a_contact.LineIds() )
    {
        const PimContactLine line = a_contact.Line( id );
        if ( !line.IsNamed( QLatin1String( "VERSION" ) ) )
            lines += line.Bytes();
    }
    return lines.toStdString();
}

/// Expects that the card of a contact says the same as the contact, in memory and when its bytes are read again.
inline void ExpectWritten( const PimContact& a_contact, const std::string& a_row )
{
    const PimContactCard card = a_contact.Card();
    const QByteArray bytes = card.Bytes();
    EXPECT_TRUE( PimContact( card ) == a_contact ) << a_row << '\n' << bytes.toStdString();
    EXPECT_EQ( PimContact( card ).LineIds().size(), a_contact.LineIds().size() ) << a_row;
    const PimContactBook book = PimContactBook::FromBytes( bytes );
    ASSERT_EQ( book.Size(), 1 ) << a_row << '\n' << bytes.toStdString();
    EXPECT_EQ( book.CardAt( 0 ).Version(), card.Version() ) << a_row;
    EXPECT_EQ( book.CardAt( 0 ).LineCount(), card.LineCount() ) << a_row << '\n' << bytes.toStdString();
    EXPECT_TRUE( book.At( 0 ) == a_contact ) << a_row << '\n' << bytes.toStdString();
    const PimContact compacted = a_contact.Compacted();
    EXPECT_TRUE( compacted == a_contact ) << a_row;
    EXPECT_EQ( compacted.LineIds(), a_contact.LineIds() ) << a_row;
}

} // namespace PimManager::Contacts
