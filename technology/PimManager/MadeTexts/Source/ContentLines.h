/// \file
/// Breaks lines like a program that writes address books.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// Folds a line (RFC 2426, section 2.6) and adds its line ending. No fold is inside a UTF-8 sequence or before a blank,
/// which unfolding would remove.
/// \param a_column the largest number of bytes in a physical line, without its line ending.
QByteArray FoldedLine( const QByteArray& a_line, int a_column = 75 );

/// Returns a line with QUOTED-PRINTABLE values, including its line ending. Every byte is written as "=XX", as phones
/// do, with a soft line break before the line would exceed 76 bytes (RFC 2045, section 6.7).
/// \param a_start  name, parameters and colon.
/// \param a_values the components to join with semicolons.
QByteArray QuotedPrintableLine( const QByteArray& a_start, const QList<QByteArray>& a_values );

} // namespace PimManager::vCard::MadeTexts
