/// \file
/// Texts that try to make a tolerant reader slow or large: what it must search, join, mend, remember or decide again
/// and again. Nothing is expected of them here but that reading them is linear.

#pragma once

#include "HostileShapes.h"

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// How a shape is made of its piece.
enum class ShapeForm
{
    Repeated, ///< head, pieces, tail
    Numbered, ///< the same, with the number of the piece for each "#" in it
    Nested,   ///< head, pieces, and as many tails
    LongHead, ///< as Repeated, with "a" for the "#" in the head, so often that the head is half of the text
    Utf16,    ///< as Repeated, converted to UTF-16LE with a byte order mark
};

/// A row.
struct ReaderShape
{
    QByteArray m_name;
    RepeatedText m_text;
    ShapeForm m_form = ShapeForm::Repeated;

    /// \return the text with as many pieces as make it at least that long.
    QByteArray TextOfLength( int a_bytes ) const;
};

/// All rows. Their names are different words of ASCII letters, digits and "-", and none is a name of HostileShapes().
QList<ReaderShape> ReaderShapes();

} // namespace PimManager::vCard::MadeTexts
