/// \file
/// A property of a contact in words.

#pragma once

#include "Terminal/Screen.h"
#include "Terminal/ShortText.h"

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QString>
#include <QStringList>

namespace PimManager::Tools
{

/// All that a line of a card says, decoded and safe for a terminal. Its parts are isolated from each other, see Screen.
struct PropertyText
{
    /// The name as written, such as `TEL`. The group precedes it, as in `item1.TEL`, unless the label of the group is
    /// in m_remarks.
    QString m_name;
    /// What the property is for, and other parameters, such as `cell [PREF; LANGUAGE=de]`. Types are in small letters.
    /// If there is a label, they are shown as a parameter: `boat phone [TYPE=CELL]`. May be empty.
    QString m_remarks;
    /// The lines of the value; empty without a value.
    ///
    /// - The elements of a list are joined by commas, and components by semicolons. An address has a line for each
    ///   component.
    /// - Bytes are described by their media type and size. If they are damaged, the text that should contain them
    ///   follows.
    /// - A nested card is described by its name.
    QStringList m_lines;
};

/// \param a_contact has the line.
/// \param a_length  if it is Short, long texts and lists are cut, and the parameters ENCODING and CHARSET are left out.
/// \param a_screen  what the text is shown on.
PropertyText PropertyTextOf( const Contacts::PimContact& a_contact, const Contacts::PimContactLine& a_line,
                             TextLength a_length, const Screen& a_screen = Screen() );

/// \return what to call a contact, in a line that is cut; `(no name)` without a name. Says so if the card is not whole.
/// \param a_source where the card is from, safe for a terminal; may be empty.
/// \param a_screen what the heading is shown on.
QString ContactHeading( const Contacts::PimContact& a_contact, const QString& a_source,
                        const Screen& a_screen = Screen() );

} // namespace PimManager::Tools
