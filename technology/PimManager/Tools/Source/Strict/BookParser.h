/// \file
/// From the bytes of one file to its cards.

#pragma once

#include "PimVCard.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace PimManager::Tools
{

using Cards = std::vector<std::unique_ptr<vCard::PimVCard>>;

/// \param a_bytes moved in, so that they are gone before the cards are used.
/// \return the cards in the order of the file; a card that cannot be read is told on Qt's log.
Cards ParseBook( QByteArray&& a_bytes );

} // namespace PimManager::Tools
