/// \file
/// The notation of `docs/vcard-support.md` for texts in one line.

#pragma once

#include <QByteArray>
#include <QString>

namespace PimManager::vCard::Documents
{

/// An example in the notation of the document.
struct SupportExample
{
    /// The text to read.
    QByteArray m_text;
    /// True if the document has only the lines of a card, without BEGIN, VERSION and END.
    bool m_isWrapped = false;
};

/// \param a_written a text with signs for what cannot be shown: ⏎ CR LF, ␊ LF, ␍ CR, ⇥ tab, ␀ NUL, ‹E9› the byte of
///                  that hexadecimal number. If it contains a card it is a whole text, otherwise the lines of one card.
/// \param a_version the version of the card, such as `3.0`.
SupportExample ExampleOf( const QString& a_written, const QString& a_version );

/// \return the text with the same signs, and ‹FEFF› for characters that cannot be shown.
QString Shown( const QString& a_text );

} // namespace PimManager::vCard::Documents
