/// \file
/// A line of a card, for tests of its values.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>

namespace PimManager::Contacts
{

/// \param a_lines   lines of a card, of which the first one is wanted.
/// \param a_version the version of the card; without a VERSION line if it is empty.
inline PimContactLine OneLine( const QByteArray& a_lines, const QByteArray& a_version = "3.0",
                               const PimContactOptions& a_options = PimContactOptions() )
{
    const QByteArray version = a_version.isEmpty() ? QByteArray() : "VERSION:" + a_version + "\r\n";
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\n" + version + a_lines + "\r\nEND:VCARD\r\n", a_options );
    EXPECT_EQ( book.Size(), 1 );
    if ( book.IsEmpty() )
        return PimContactLine();
    auto line = book.CardAt( 0 ).begin();
    if ( !a_version.isEmpty() )
        ++line;
    EXPECT_FALSE( line->IsNull() );
    return *line;
}

/// The elements between bars, so that a failing test shows them.
inline std::string Joined( const QStringList& a_list )
{
    return a_list.join( QLatin1Char( '|' ) ).toStdString();
}

inline std::string Joined( const QList<QStringList>& a_lists )
{
    QStringList texts;
    for ( const QStringList& list : a_lists )
        texts.append( QLatin1Char( '[' ) + list.join( QLatin1Char( '|' ) ) + QLatin1Char( ']' ) );
    return texts.join( QString() ).toStdString();
}

} // namespace PimManager::Contacts
