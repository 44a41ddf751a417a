/// \file
/// The outcome of one parse operation on a new parser.

#pragma once

#include "ResultVisit.h"
#include "Violation.h"

#include "PimVCardTranscript.h"

#include <QByteArray>

#include <optional>

namespace PimManager::vCard::Fuzz
{

/// A description of the result, which has been deleted, and the state of the parser after the operation.
struct OperationOutcome
{
    PimVCardParserCall m_call = PimVCardParserCall::ParseVCards;
    /// True if the operation reported success. Not set if an empty result of the operation need not be a failure.
    std::optional<bool> m_success;
    /// The objects and texts of the result.
    ResultVisit m_result;
    /// The prepared text before and after the operation.
    QByteArray m_prepared;
    QByteArray m_preparedAfter;
    bool m_isMarked = false;
    bool m_hasEncoding = false;
    bool m_isAtEnd = false;
};

/// Creates a parser for the text and calls one operation. ParseEnd receives the property that ParseProperty returns.
OperationOutcome TryOperation( const QByteArray& a_text, PimVCardParserCall a_call );

/// Checks that the result is complete, that each of its texts is in the prepared text, that this text is unchanged, and
/// that result and state are consistent.
///
/// They are consistent if failures and nothing else are marked as failed, and if a property that was parsed to its end
/// leaves no encoding set. ParseVCards must end at the end of the text with a list and without a mark.
Violation CheckOutcome( const OperationOutcome& a_outcome );

} // namespace PimManager::vCard::Fuzz
