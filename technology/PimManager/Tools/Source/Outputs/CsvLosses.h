/// \file
/// What the columns of a table do not hold.

#pragma once

#include "Terminal/Console.h"

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QMap>
#include <QString>

namespace PimManager::Tools
{

/// Counts the properties that none of the columns of CsvColumns is made of, by their names. What the user leaves out by
/// choosing columns does not count.
class CsvLosses
{
public:
    void Add( const Contacts::PimContact& a_contact );

    /// Writes a remark such as `no column for 12 × PHOTO, 3 × GEO; --to json has them`, unless there is nothing to say.
    void Remark( Console& a_console ) const;

    /// \return a few words for the totals, such as ` (15 properties left out)`; empty if there are none.
    QString Result() const;

private:
    void AddName( const QByteArray& a_name );

    qint64 m_properties = 0;
    QMap<QByteArray, qint64> m_counts;
};

} // namespace PimManager::Tools
