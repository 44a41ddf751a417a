/// \file
/// The columns of contacts in a table.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace PimManager::Tools
{

/// A contact, and the fields of it that several columns are made of, so that they are read once.
struct CsvContact
{
    explicit CsvContact( const Contacts::PimContact& a_contact );

    Contacts::PimContact m_contact;
    Contacts::PimContactName m_name;
    Contacts::PimContactList<Contacts::PimContactOrganisation> m_organisations;
    Contacts::PimContactList<Contacts::PimContactPhone> m_phones;
    Contacts::PimContactList<Contacts::PimContactMail> m_mails;
    Contacts::PimContactList<Contacts::PimContactAddress> m_addresses;
};

/// A column of the table.
struct CsvColumn
{
    const char* m_name;
    /// \return the field of a contact. Several values are separated by `; `.
    QString ( *m_field )( const CsvContact& a_contact );
};

/// \return the names of all columns in their usual order, such as `given-name`.
QStringList CsvColumnNames();

/// \return the column with a name; null if there is none.
const CsvColumn* FindCsvColumn( const QByteArray& a_name );

/// \return all columns in their usual order.
std::vector<const CsvColumn*> AllCsvColumns();

} // namespace PimManager::Tools
