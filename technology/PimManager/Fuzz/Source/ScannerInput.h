/// \file
/// What the scanner target does with an input.

#pragma once

#include "PimVCardTranscript.h"

#include <QByteArray>

namespace PimManager::vCard::Fuzz
{

/// An input cut in two: what to do, and with which text.
struct ScannerInput
{
    PimVCardScannerScript m_script;
    QByteArray m_text;
};

/// Reads the script at the head of the input. Every input is one, and a readable one can be written by hand: numbers
/// are single bytes counted from '0', so '0' to '9' are 0 to 9, 'A' is 17 and 'a' is 49.
///
/// The first byte, bit by bit: 1, work with the scanner of a parser; 2, note the position after each step; the rest,
/// one less than the number of steps. Then three bytes a step, all taken modulo the length of the list they point to:
/// the call (PimVCardScannerCall), the expression (ScannerExpressions()), the argument. What is left is the text.
///
/// The argument is a position in the text for GoTo, an expression for Change, one of a few telling characters for
/// SetLookAhead, else 0 or 1. Steps that name the same expression share one.
///
/// \param a_input the text shares its memory.
ScannerInput ReadScannerInput( const QByteArray& a_input );

} // namespace PimManager::vCard::Fuzz
