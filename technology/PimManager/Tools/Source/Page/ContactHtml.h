/// \file
/// One contact of the page.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>

class QIODevice;

namespace PimManager::Tools
{

/// \return the part that the anchors of a card have in common, such as `1-3` for the third card of the first file. The
///         contact itself has the anchor `c1-3`, the first finding about it `d1-3`.
/// \param a_book from 1.
/// \param a_card from 1.
QByteArray CardAnchor( int a_book, qint64 a_card );

/// Writes one contact: a line with the picture and the name, and an element with everything else. The element is not
/// closed.
/// \param a_device must be open.
/// \param a_anchor that of the card.
void WriteContact( QIODevice& a_device, const Contacts::PimContact& a_contact, const QByteArray& a_anchor );

} // namespace PimManager::Tools
