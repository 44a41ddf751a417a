/// \file
/// The data of PimContactAddress.

#pragma once

#include "Contact/FieldData.h"
#include "Contact/PartTexts.h"

#include <PimManager/Contacts/PimContactAddress.h>

#include <QString>

#include <optional>

namespace PimManager::Contacts
{

class AddressData : public FieldData<AddressData>
{
public:
    bool IsSame( const AddressData& a_other ) const;
    bool IsEmpty() const override { return m_parts.IsEmpty() && m_deliveryText.isEmpty(); }
    QStringList KindTypes( PimContactVersion a_version ) const override;
    bool IsKind( std::string_view a_word ) const override;
    std::string_view Name( PimContactVersion a_version ) const override;
    bool FitsName( std::string_view a_name ) const override;
    void Write( FieldWriter& a_writer ) const override;
    std::string_view AdditionName( PimContactVersion a_version ) const override;
    void WriteAddition( FieldWriter& a_writer ) const override;
    bool TakeAddition( PropertyId a_addition, const PimContactFieldPrivate& a_old ) override;

    PartTexts m_parts;
    QString m_deliveryText;
    QString m_countryCode;
    QString m_timeZone;
    std::optional<PimContactPosition> m_position;
    PimContactAddressKinds m_kinds;
};

} // namespace PimManager::Contacts
