/// \file
/// Texts that try to make a tolerant reader slow or large, because it must search, join, repair, remember or decide
/// repeatedly. The only expectation is that reading them is linear.

#pragma once

#include "HostileShapes.h"

#include <QByteArray>
#include <QList>

namespace PimManager::vCard::MadeTexts
{

/// The ways to build a shape from its piece.
enum class ShapeForm
{
    Repeated, ///< head, pieces, tail
    Numbered, ///< as Repeated, with the number of the piece in place of each "#"
    Nested,   ///< head, pieces, and as many tails
    LongHead, ///< as Repeated, with so many "a" in place of the "#" in the head that the head is half of the text
    Utf16,    ///< as Repeated, converted to UTF-16LE with a byte order mark
};

/// A row.
struct ReaderShape
{
    QByteArray m_name;
    RepeatedText m_text;
    ShapeForm m_form = ShapeForm::Repeated;

    /// \return the text with as many pieces as needed for at least this length.
    QByteArray TextOfLength( int a_bytes ) const;
};

/// All rows. Their names are different words of ASCII letters, digits and "-", and none of them is a name in
/// HostileShapes().
QList<ReaderShape> ReaderShapes();

} // namespace PimManager::vCard::MadeTexts
