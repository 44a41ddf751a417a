/// \file
/// The preparation of a text before it is scanned. Private to the component.

#pragma once

#include <QByteArray>

namespace PimManager::vCard
{

/// Unfolds lines, and joins lines that are separated by an encoded and a soft line break.
///
/// The steps are, in this order:
///
/// - The text ends at its first NUL byte.
/// - A byte order mark at its start is removed.
/// - Each sequence that is not UTF-8 becomes U+FFFD.
/// - An encoded line break, the soft line break after it and the blanks and tabs after that become one blank
///   (`s_kQpSoftBreakPattern`).
/// - Any other line break that is followed by blanks or tabs, and not preceded by "=", is removed together with them
///   (`s_kUnfoldPattern`). CR LF is one line break.
///
/// \return the new text, in UTF-8. It is never longer than the old one if that is UTF-8. If nothing had to be changed,
///         it shares the memory of the old one, unless the old one does not own its memory (QByteArray::fromRawData()).
QByteArray PreparedText( const QByteArray& a_data );

} // namespace PimManager::vCard
