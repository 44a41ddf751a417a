/// \file
/// Names for new groups.

#pragma once

#include <QByteArray>
#include <QSet>

namespace PimManager::Contacts
{

/// Names groups that a card does not have: `item1`, `item2` and so on.
class FreeGroups
{
public:
    /// Registers a group of the card. \param a_group the name in any letter case; may be empty.
    void Add( const QByteArray& a_group ) { m_used.insert( a_group.toLower() ); }

    /// \return the next unused name. It is not returned again. All calls together are linear in the number of groups of
    ///         the card and of calls.
    QByteArray Take()
    {
        QByteArray group;
        do
            group = "item" + QByteArray::number( ++m_number );
        while ( m_used.contains( group ) );
        return group;
    }

private:
    QSet<QByteArray> m_used;
    int m_number = 0;
};

} // namespace PimManager::Contacts
