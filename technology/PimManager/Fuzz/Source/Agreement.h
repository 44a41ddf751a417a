/// \file
/// Compares two runs of the component, and the component with the plain scanner.

#pragma once

#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// The longest text for the plain scanner, which needs about 3000 instructions for each byte.
inline constexpr int s_kLongestCompared = 1024;

/// The longest transcript of the component that is compared with that of the plain scanner. A short text can cause a
/// recovery at each of its bytes, and each recovery writes about forty lines to the log.
inline constexpr int s_kMostComparedLines = 2000;

/// \param a_property the property that should hold.
/// \return the property and the first line that differs, with the lines before it. Empty if the transcripts are equal.
Violation CheckSame( const char* a_property, const QStringList& a_first, const QStringList& a_second );

/// Checks that results, states and log of these calls are the same a second time and in the plain implementation. The
/// plain implementation is compared only within the limits above, and only where it knows its position.
Violation CheckAgreement( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls );

/// As above, for a scanner. The plain scanner is compared only for well-formed UTF-8 without NUL, because its positions
/// are not exact for other texts.
Violation CheckAgreement( const QByteArray& a_text, const PimVCardScannerScript& a_script );

} // namespace PimManager::vCard::Fuzz
