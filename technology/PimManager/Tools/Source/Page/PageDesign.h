/// \file
/// What the page of contacts looks like and how its search works. Nothing in here comes from a card.

#pragma once

#include <QByteArray>

namespace PimManager::Tools
{

/// \return the page up to the letters: head, style and search. The page allows nothing but its own style, its own
///         script and pictures that stand in it, both named by their hashes.
QByteArray PageHead();

/// \return what is between the letters and the contacts.
QByteArray PageMiddle();

/// \return the script and the end of the page.
QByteArray PageTail();

} // namespace PimManager::Tools
