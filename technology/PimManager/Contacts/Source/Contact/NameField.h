/// \file
/// The data of PimContactName.

#pragma once

#include "Contact/FieldData.h"
#include "Contact/PartTexts.h"

#include <QString>
#include <QStringList>

namespace PimManager::Contacts
{

class NameData : public FieldData<NameData>
{
public:
    bool IsSame( const NameData& a_other ) const;
    bool IsEmpty() const override { return m_parts.IsEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return "N"; }
    void Write( FieldWriter& a_writer ) const override;
    bool HasTypes() const override { return false; }

    PartTexts m_parts;
    QString m_phoneticFamily;
    QString m_phoneticGiven;
    QString m_phoneticMiddle;
    QString m_maidenName;
    QStringList m_sortAs;
};

} // namespace PimManager::Contacts
