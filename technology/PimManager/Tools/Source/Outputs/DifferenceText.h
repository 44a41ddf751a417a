/// \file
/// Differences between address books, for people to read.

#pragma once

#include "Outputs/DifferenceWriter.h"
#include "Terminal/Screen.h"
#include "Terminal/ShortText.h"

#include <PimManager/Contacts/PimContact.h>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

struct PropertyText;

/// Writes a line for each contact, and below a changed one the properties that differ, see PropertyLines:
///
///     removed: Barnaby Ashdrake (card 6)
///     added: Tobias Fenwick (card 2)
///     changed: Nell Brackwater (card 3, by UID)
///       - TEL  cell        +1-555-0101
///       + TEL  boat phone  +1-555-0102
///
/// A card is named by its number in the book that has it, a changed one by that in the new book, with the reason why
/// the versions are one contact. In the order of n log n for cards of n bytes.
class DifferenceText : public DifferenceWriter
{
public:
    /// \param a_device must be open and exist as long as the writer.
    DifferenceText( QIODevice& a_device, TextLength a_length, const Screen& a_screen );

    void WriteRemoved( const Contacts::PimContactCard& a_card ) override;
    void WriteAdded( const Contacts::PimContactCard& a_card ) override;
    void WriteChanged( const ChangedContact& a_contact ) override;

private:
    void WriteHeading( const QString& a_change, const Contacts::PimContact& a_contact, const QString& a_remark );
    std::vector<PropertyText> TextsOf( const Contacts::PimContact& a_contact,
                                       const QList<Contacts::PimContactLine>& a_lines ) const;

    QIODevice& m_device;
    const TextLength m_length;
    const Screen m_screen;
};

} // namespace PimManager::Tools
