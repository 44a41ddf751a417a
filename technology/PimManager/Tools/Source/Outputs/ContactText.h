/// \file
/// Contacts for people to read.

#pragma once

#include "Outputs/BookOutput.h"
#include "Terminal/Screen.h"
#include "Terminal/ShortText.h"

#include <PimManager/Contacts/PimContact.h>

#include <QString>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

struct PropertyText;

/// Writes a heading for each contact and below it all properties of its card, see PropertyText:
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
/// A name with remarks that is too wide for its columns is on a line of its own. The properties of a nested card are
/// indented below its line. On a terminal, everything is wrapped into its width. Linear in the length of the card.
class ContactText : public BookOutput
{
public:
    using Length = TextLength;

    /// \param a_device must be open and exist as long as the output.
    ContactText( QIODevice& a_device, Length a_length, const Screen& a_screen );

    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;

private:
    struct Columns
    {
        int m_indent = 0;
        int m_remarks = 0;
        int m_value = 0;
    };

    void WriteHeading( const QString& a_number, const QString& a_text );
    void WriteProperties( const Contacts::PimContact& a_contact, int a_depth );
    Columns ColumnsOf( const std::vector<PropertyText>& a_texts, int a_depth ) const;
    void WriteProperty( const PropertyText& a_text, const Columns& a_columns );
    void WriteHead( const QString& a_text, int a_indent );
    QStringList Wrap( const QStringList& a_lines, int a_column ) const;
    void WriteLine( const QString& a_text );

    QIODevice& m_device;
    const Length m_length;
    const Screen m_screen;
    bool m_isFirst = true;
};

} // namespace PimManager::Tools
