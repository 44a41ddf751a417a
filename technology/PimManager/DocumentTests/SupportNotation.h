/// \file
/// How `docs/vcard-support.md` writes texts in one line.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::vCard::Documents
{

/// An example as the document writes it.
struct SupportExample
{
    /// The text that is read.
    QByteArray m_text;
    /// The lines of a card were written, and BEGIN, VERSION and END are not in the document.
    bool m_isWrapped = false;
};

/// \param a_written with signs for what cannot be shown: ⏎ CR LF, ␊ LF, ␍ CR, ⇥ tab, ␀ NUL, ‹E9› the byte of that
///                  hexadecimal number. With a card of its own it is a whole text, else the lines of one card.
/// \param a_version of the card, such as `3.0`.
SupportExample ExampleOf( const QString& a_written, const QString& a_version );

/// \return the text with the same signs, and ‹FEFF› for characters that cannot be shown.
QString Shown( const QString& a_text );

} // namespace PimManager::vCard::Documents
