/// \file
/// The parser gives a long text back while it reads: does that change anything?

#pragma once

#include "Violation.h"

#include <QByteArray>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// What a parser does with the bytes that it has read. It gives them back unless somebody else shares the text.
enum class ReadBytes
{
    GivenBack,
    Kept
};

/// What ParseVCards gave for a text behind a broken line and a card so long that its bytes can be given back.
struct LateOutcome
{
    /// The number of cards, their texts in order without those of the long one, where the scanner stands, and the
    /// number of blocks on the log.
    QStringList m_told;
    /// How many bytes of all that was parsed the parser still holds.
    int m_bytesLeft = 0;
};

/// \param a_text what follows the long card; at most 32,768 bytes, so that half of all bytes was read when it begins.
LateOutcome ParseBehindLongCard( const QByteArray& a_text, ReadBytes a_readBytes );

/// Does the text give the same behind a long card, whether its bytes are given back or kept?
Violation CheckGivingBack( const QByteArray& a_text );

} // namespace PimManager::vCard::Fuzz
