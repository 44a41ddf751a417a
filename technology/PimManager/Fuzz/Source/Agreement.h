/// \file
/// Do two runs give the same? The component with itself, and with the plain scanner.

#pragma once

#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// The longest text that the plain scanner also reads: it needs some 3000 instructions a byte.
inline constexpr int s_kLongestCompared = 1024;

/// The longest transcript of the component that is compared with that of the plain scanner. A short text can make a
/// recovery at each of its bytes, and each puts some forty lines on the log.
inline constexpr int s_kMostComparedLines = 2000;

/// \param a_property says what the two should have in common.
/// \return the property and the first line that differs, with the lines before it; empty when the transcripts are
/// equal.
Violation CheckSame( const char* a_property, const QStringList& a_first, const QStringList& a_second );

/// Are results, states and log of these calls the same a second time, and those of the plain implementation? The latter
/// is asked within the limits above only, and not where it does not know its position.
Violation CheckAgreement( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls );

/// As above, for a scanner. The plain scanner is asked about well-formed UTF-8 without NUL: its positions are exact for
/// nothing else.
Violation CheckAgreement( const QByteArray& a_text, const PimVCardScannerScript& a_script );

} // namespace PimManager::vCard::Fuzz
