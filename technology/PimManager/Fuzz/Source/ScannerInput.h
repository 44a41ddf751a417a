/// \file
/// The input of the scanner target.

#pragma once

#include "PimVCardTranscript.h"

#include <QByteArray>

namespace PimManager::vCard::Fuzz
{

/// An input, divided into a script and a text.
struct ScannerInput
{
    PimVCardScannerScript m_script;
    QByteArray m_text;
};

/// Reads the script at the start of the input. Every input is valid, and a readable one can be written by hand. Numbers
/// are single bytes counted from '0', so '0' to '9' are 0 to 9, 'A' is 17 and 'a' is 49.
///
/// The bits of the first byte: 1, use the scanner of a parser; 2, record the position after each step; the rest, the
/// number of steps minus one. Each step has three bytes, each modulo the length of its list: the call
/// (PimVCardScannerCall), the expression (ScannerExpressions()), the argument. The rest of the input is the text.
///
/// The argument is a position in the text for GoTo, an expression for Change, one of a few interesting characters for
/// SetLookAhead, else 0 or 1. Steps that name the same expression share one.
///
/// \param a_input the input. The text shares its memory.
ScannerInput ReadScannerInput( const QByteArray& a_input );

} // namespace PimManager::vCard::Fuzz
