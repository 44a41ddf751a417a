/// \file
/// Books in short notation, for tests.

#pragma once

#include <PimManager/Contacts/PimContactBook.h>

#include <QByteArray>
#include <QString>

#include <string_view>

namespace PimManager::PhoneBook
{

/// \param a_lines the lines of cards, such as `FN:Anna|TEL:1`: cards are divided by line feeds, lines by `|`.
inline Contacts::PimContactBook BookOf( const char16_t* a_lines )
{
    QByteArray cards;
    for ( const QString& card : QString::fromUtf16( a_lines ).split( QLatin1Char( '\n' ) ) )
    {
        cards += "BEGIN:VCARD\r\nVERSION:4.0\r\n";
        for ( const QString& line : card.split( QLatin1Char( '|' ) ) )
            cards += line.toUtf8() + "\r\n";
        cards += "END:VCARD\r\n";
    }
    return Contacts::PimContactBook::FromBytes( cards );
}

} // namespace PimManager::PhoneBook
