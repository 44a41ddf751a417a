/// \file
/// What the tests of the program share to make texts and to look at them.

#pragma once

#include "Strict/BookParser.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace PimManager::Tools
{

/// A text as failed comparisons can show it.
inline std::string Utf8( const QString& a_text )
{
    return a_text.toStdString();
}

/// A card of the lines given, each ended by CR LF.
inline QByteArray CardText( const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\n" + a_lines + "END:VCARD\r\n";
}

/// ASCII text in UTF-16, little endian, with a byte order mark.
inline QByteArray Utf16( const QByteArray& a_text )
{
    QByteArray bytes( "\xFF\xFE" );
    for ( const char letter : a_text )
        bytes.append( letter ).append( '\0' );
    return bytes;
}

/// The only card of a text.
inline std::unique_ptr<vCard::PimVCard> OnlyCard( const QByteArray& a_lines )
{
    Cards cards = ParseBook( CardText( a_lines ) );
    EXPECT_EQ( cards.size(), 1U ) << a_lines.constData();
    return cards.empty() ? std::make_unique<vCard::PimVCard>( nullptr ) : std::move( cards.front() );
}

/// A control character but the line feed, a separator of lines or paragraphs, a byte order mark, or what turns the
/// direction of writing.
inline bool DrivesTerminal( QChar a_character )
{
    const ushort code = a_character.unicode();
    const bool isControl = ( code < 0x20 && code != '\n' ) || ( code >= 0x7F && code <= 0x9F );
    const bool isSeparator = code == 0x2028 || code == 0x2029 || code == 0xFEFF;
    const bool isDirection = code == 0x061C || code == 0x200E || code == 0x200F ||
                             ( code >= 0x202A && code <= 0x202E ) || ( code >= 0x2066 && code <= 0x2069 );
    return isControl || isSeparator || isDirection;
}

/// Tells if bytes are well-formed UTF-8 without a character that drives a terminal.
inline bool IsHarmless( const std::string& a_bytes )
{
    const QByteArray bytes = QByteArray::fromStdString( a_bytes );
    const QString text = QString::fromUtf8( bytes );
    if ( text.toUtf8() != bytes )
        return false;
    return std::none_of( text.begin(), text.end(), DrivesTerminal );
}

} // namespace PimManager::Tools
