/// \file
/// How a program that writes address books breaks its lines.

#pragma once

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// Ends a line, after folding it (RFC 2426, section 2.6). No fold is inside a UTF-8 sequence or before a blank, which
/// unfolding would remove.
/// \param a_column the most bytes of a physical line, without its line ending.
QByteArray FoldedLine( const QByteArray& a_line, int a_column = 75 );

/// A line with QUOTED-PRINTABLE values, line end included: every byte as "=XX", which is what phones write, with a soft
/// line break wherever the line would grow beyond 76 bytes (RFC 2045, section 6.7).
/// \param a_start  name, parameters and colon.
/// \param a_values the components that semicolons stand between.
QByteArray QuotedPrintableLine( const QByteArray& a_start, const QList<QByteArray>& a_values );

} // namespace PimManager::vCard::MadeTexts
