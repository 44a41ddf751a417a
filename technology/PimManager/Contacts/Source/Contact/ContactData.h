/// \file
/// The data of a contact.

#pragma once

#include "Contact/ContactLines.h"
#include "Contact/GroupLabels.h"
#include "Contact/Lazy.h"

#include <PimManager/Contacts/PimContact.h>

#include <QSharedData>
#include <QStringList>

namespace PimManager::Contacts
{

/// The data of PimContact.
class PimContactPrivate : public QSharedData
{
public:
    PimContactPrivate() = default;
    explicit PimContactPrivate( const PimContactCard& a_card ) :
        m_lines( a_card )
    {
    }

    ContactLines m_lines;
    QStringList m_languages;

    /// The labels of the groups. They are read at their first use.
    const GroupLabels& Labels() const;
    /// Call this after the lines have changed.
    void ForgetLabels() { m_labels.Clear(); }

private:
    Lazy<GroupLabels> m_labels;
};

} // namespace PimManager::Contacts
