/// \file
/// The data of PimContactExtent.

#pragma once

#include <PimManager/Contacts/PimContactExtent.h>

#include <QByteArray>
#include <QSharedData>

namespace PimManager::Contacts
{

/// The data of an extent.
class PimContactExtentPrivate : public QSharedData
{
public:
    static PimContactExtent Create( PimContactExtentKind a_kind, qint64 a_offset, const QByteArray& a_bytes,
                                    qint64 a_card );

    PimContactExtentKind m_kind = PimContactExtentKind::Outside;
    qint64 m_offset = 0;
    qint64 m_card = 0;
    QByteArray m_bytes;
};

} // namespace PimManager::Contacts
