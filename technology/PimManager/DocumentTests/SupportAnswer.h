/// \file
/// The results of the component and of Contacts for an example in `docs/vcard-support.md`, in the notation of that
/// document.

#pragma once

#include "SupportNotation.h"

#include <QString>

namespace PimManager::vCard::Documents
{

/// The last two cells of a row.
struct SupportAnswer
{
    QString m_component;
    QString m_contacts;
};

/// Reads the example with both.
SupportAnswer AnswerTo( const SupportExample& a_example );

} // namespace PimManager::vCard::Documents
