/// \file
/// What is done to a text before it is scanned. Private to the component.

#pragma once

#include <QByteArray>

namespace PimManager::vCard
{

/// Joins the folded lines of a text, and the lines that an encoded and a soft line break part.
///
/// In this order: the text ends at its first NUL byte; a byte order mark at its start goes; each sequence that is not
/// UTF-8 becomes U+FFFD. An encoded line break before a soft one, that line break and the blanks and tabs after it,
/// `s_kQpSoftBreakPattern`, become one blank. Any other line break with blanks or tabs after it, and no "=" before it,
/// goes with them, `s_kUnfoldPattern`; CR LF is one line break.
///
/// \return the new text, in UTF-8, never longer than the old one if that is UTF-8. If there was nothing to do, it
///         shares the memory of the old one, unless that belongs to somebody else (QByteArray::fromRawData()).
QByteArray PreparedText( const QByteArray& a_data );

} // namespace PimManager::vCard
