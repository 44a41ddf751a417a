/// \file
/// The functions of PimContact and of its fields, by name.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QStringList>

#include <vector>

namespace PimManager::Contacts
{

/// \return the functions of the contact that return a result, such as `Phones()`, in the order of the header.
QStringList FunctionsWithResult( const PimContact& a_contact );

/// \return the functions of a field whose results differ, such as `Label()`: first those of PimContactField, and then
///         those of the class, in the order of the headers. Alternatives() differs if the number of alternatives does.
QStringList DifferingFunctions( const PimContactPhone& a_field, const PimContactPhone& a_other );
QStringList DifferingFunctions( const PimContactAddress& a_field, const PimContactAddress& a_other );
QStringList DifferingFunctions( const PimContactMessenger& a_field, const PimContactMessenger& a_other );
QStringList DifferingFunctions( const PimContactEvent& a_field, const PimContactEvent& a_other );
QStringList DifferingFunctions( const PimContactText& a_field, const PimContactText& a_other );
QStringList DifferingFunctions( const PimContactMedia& a_field, const PimContactMedia& a_other );
QStringList DifferingFunctions( const PimContactName& a_field, const PimContactName& a_other );
QStringList DifferingFunctions( const PimContactOrganisation& a_field, const PimContactOrganisation& a_other );

/// The functions above that belong to one class.
struct ClassFunctions
{
    QString m_class;
    QStringList m_functions;
};

/// \return the functions that are called above, for each class.
std::vector<ClassFunctions> CalledFunctions();

} // namespace PimManager::Contacts
