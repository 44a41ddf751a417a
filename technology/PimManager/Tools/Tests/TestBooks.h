/// \file
/// Books for the tests of the commands.

#pragma once

#include "ToolsTestText.h"

#include <QByteArray>

namespace PimManager::Tools
{

/// A picture of one pixel in each of the types that a page shows first.
inline QByteArray PngPicture()
{
    return QByteArray::fromBase64(
        "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVR4nGP4//8/AAX+Av4N70a4AAAAAElFTkSuQmCC" );
}

inline QByteArray GifPicture()
{
    return QByteArray::fromBase64( "R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs=" );
}

/// A line with a picture.
inline QByteArray PhotoLine( const QByteArray& a_picture, const QByteArray& a_head = "PHOTO;ENCODING=b;TYPE=JPEG" )
{
    return a_head + ':' + a_picture.toBase64() + "\r\n";
}

/// A card that is delivered without a finding.
inline QByteArray CleanCard()
{
    return CardText( "VERSION:3.0\r\nFN:Nell\r\nTEL;TYPE=CELL:555-0100\r\n" );
}

/// A card that is delivered without one line, which is no property.
inline QByteArray PartCard()
{
    return CardText( "VERSION:3.0\r\nFN:Tobias\r\n\x01\x02 %%%\r\n" );
}

/// Text that drives terminals and browsers, where it is let, and fits into one line of a card.
inline QByteArray HostileText()
{
    return "\x1B[2J\x07\xC2\x9B[31m\xE2\x80\xAE<script>document.title='run'</script><img src=x "
           "onerror=\"document.title='run'\">\"'&lt;../../x";
}

} // namespace PimManager::Tools
