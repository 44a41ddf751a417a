/// \file
/// What the tables of contacts have in common.

#pragma once

#include "Terminal/Screen.h"
#include "Terminal/TextTable.h"

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

namespace PimManager::Tools
{

/// \param a_fileNames all files of a command line.
/// \return what a table calls each file, by its name for messages: without its folder if the names differ all the same.
///         Empty if there is one file.
QMap<QString, QString> BookNames( const QList<QByteArray>& a_fileNames );

/// \return a text of a card for one entry of a cell: cut as in ShortText.h, and safe for a terminal.
QString CellText( const QString& a_text, const Screen& a_screen );

/// \return the text of a field and its purpose, such as `+1-555-0101 boat phone`.
QString EntryText( const QString& a_text, const Contacts::PimContactField& a_field, const Screen& a_screen );

/// The name of a contact.
TextTable::Cell NameCell( const Contacts::PimContact& a_contact, const Screen& a_screen );

/// The first organisation of a contact. May be empty.
TextTable::Cell OrganisationCell( const Contacts::PimContact& a_contact, const Screen& a_screen );

/// \name The columns with these cells
/// \{
TextTable::Column NameColumn();
TextTable::Column NumberColumn();
TextTable::Column OrganisationColumn();
/// The last column.
TextTable::Column BookColumn();
/// \}

} // namespace PimManager::Tools
