/// \file
/// What one parse operation gave on a parser of its own.

#pragma once

#include "ResultVisit.h"
#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>

#include <optional>

namespace PimManager::vCard::Fuzz
{

/// The result, which is deleted by then, and the state of the parser after it.
struct OperationOutcome
{
    PimVCardParserCall m_call = PimVCardParserCall::ParseVCards;
    /// Did the operation say that it succeeded? Nothing for one whose empty result need not be a failure.
    std::optional<bool> m_success;
    /// The objects and texts of the result.
    ResultVisit m_result;
    /// The prepared text before the operation, and after it.
    QByteArray m_prepared;
    QByteArray m_preparedAfter;
    bool m_isMarked = false;
    bool m_hasEncoding = false;
    bool m_isAtEnd = false;
};

/// Makes a parser over the text and calls one operation of it; ParseEnd is given the property that ParseProperty gives.
OperationOutcome TryOperation( const QByteArray& a_text, PimVCardParserCall a_call );

/// Is the result complete, does each of its texts stand in the prepared text, is that text unchanged, and do result and
/// state fit together?
///
/// They fit when a failure is marked and nothing else is, and when a property that was parsed to its end has left no
/// encoding after. ParseVCards has to end with nothing marked, at the end of the text, and with a list.
Violation CheckOutcome( const OperationOutcome& a_outcome );

} // namespace PimManager::vCard::Fuzz
