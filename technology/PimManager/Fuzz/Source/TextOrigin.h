/// \file
/// Where the texts of a result come from.

#pragma once

#include "Violation.h"

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// How a text of a result may differ from the text that it was read from.
enum class TextChange
{
    /// As the scanner changes tokens: a backslash is left out before any character.
    Tokens,
    /// As the parser changes results: a backslash is left out before a character that can be escaped or that delimits,
    /// and soft line breaks are joined. A backslash directly after a soft line break is lost whatever follows it.
    Results
};

/// Does each of these texts stand in the source, one after the other, the changes aside?
/// \param a_source what was read, after its preparation.
/// \param a_texts  in the order in which they were read; none is empty.
/// \return the first text that does not; empty when all do. Linear in the source for texts that differ early.
Violation CheckOrigin( const QString& a_source, const QStringList& a_texts, TextChange a_change );

} // namespace PimManager::vCard::Fuzz
