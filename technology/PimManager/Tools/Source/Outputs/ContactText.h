/// \file
/// Contacts for people to read.

#pragma once

#include "Outputs/BookOutput.h"
#include "Terminal/Screen.h"
#include "Terminal/ShortText.h"

#include <PimManager/Contacts/PimContact.h>

#include <QString>

class QIODevice;

namespace PimManager::Tools
{

/// Writes a heading for each contact and below it all properties of its card, see PropertyLines:
///
///     1. Nell Brackwater (book.vcf)
///
///         VERSION              3.0
///         FN                   Nell Brackwater
///         N                    Brackwater; Nell
///         TEL      cell        +1-555-0101
///         TEL      boat phone  +1-555-0102
///         ADR      home        3 Weir Lane
///                              FN1 2AB Ouse Mouth
///         NOTE     [LANGUAGE=de]
///                              Kommt nach der letzten Fähre.
///         PHOTO    jpeg        image/jpeg, 2451 bytes
///
/// The properties of a nested card are indented below its line. On a terminal, everything is wrapped into its width.
/// Linear in the length of the card.
class ContactText : public BookOutput
{
public:
    using Length = TextLength;

    /// \param a_device must be open and exist as long as the output.
    ContactText( QIODevice& a_device, Length a_length, const Screen& a_screen );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;

private:
    void WriteHeading( const QString& a_number, const QString& a_text );
    void WriteProperties( const Contacts::PimContact& a_contact, int a_depth );
    void WriteLine( const QString& a_text );

    QIODevice& m_device;
    const Length m_length;
    const Screen m_screen;
    bool m_isFirst = true;
};

} // namespace PimManager::Tools
