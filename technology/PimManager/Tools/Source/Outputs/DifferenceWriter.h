/// \file
/// How the differences between two address books are written.

#pragma once

#include <PimManager/Contacts/PimContact.h>
#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <QString>
#include <QtGlobal>

namespace PimManager::Tools
{

/// Two versions of a contact.
struct ChangedContact
{
    Contacts::PimContact m_old;
    Contacts::PimContact m_new;
    PhoneBook::PimPhoneBookBasis m_basis;
};

/// Writes differences, one after the other.
class DifferenceWriter
{
public:
    DifferenceWriter() = default;
    virtual ~DifferenceWriter() = default;
    Q_DISABLE_COPY( DifferenceWriter )

    /// Called once, before the others.
    /// \param a_oldSource, a_newSource the names of the books, safe for a terminal.
    virtual void Begin( const QString& /*a_oldSource*/, const QString& /*a_newSource*/ ) {}
    virtual void WriteRemoved( const Contacts::PimContactCard& a_card ) = 0;
    virtual void WriteAdded( const Contacts::PimContactCard& a_card ) = 0;
    virtual void WriteChanged( const ChangedContact& a_contact ) = 0;
};

} // namespace PimManager::Tools
