/// \file
/// The data of PimContactEvent.

#pragma once

#include "Contact/FieldData.h"

#include <PimManager/Contacts/PimContactEvent.h>

#include <QString>

namespace PimManager::Contacts
{

class EventData : public FieldData<EventData>
{
public:
    bool IsSame( const EventData& a_other ) const;
    bool IsEmpty() const override { return m_date.IsNull() && PlaceName().empty(); }
    std::string_view Name( PimContactVersion a_version ) const override;
    bool FitsName( std::string_view a_name ) const override;
    void Write( FieldWriter& a_writer ) const override;
    std::string_view AdditionName( PimContactVersion a_version ) const override;
    void WriteAddition( FieldWriter& a_writer ) const override;
    bool TakeAddition( PropertyId a_addition, const PimContactFieldPrivate& a_old ) override;
    /// \return the name of the property that holds the place; empty without one.
    std::string_view PlaceName() const;

    PimContactEvent::Kind m_kind = PimContactEvent::Kind::Other;
    PimContactDate m_date;
    QString m_place;
    QString m_calendar;
};

} // namespace PimManager::Contacts
