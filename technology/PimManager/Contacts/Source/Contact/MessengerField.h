/// \file
/// The data of PimContactMessenger.

#pragma once

#include "Contact/WithKinds.h"

#include <QString>

namespace PimManager::Contacts
{

class MessengerData : public WithKinds<MessengerData>
{
public:
    bool IsSame( const MessengerData& a_other ) const;
    bool IsEmpty() const override { return m_handle.isEmpty() && m_address.isEmpty(); }
    std::string_view Name( PimContactVersion a_version ) const override;
    void Write( FieldWriter& a_writer ) const override;

    bool FitsName( std::string_view a_name ) const override;
    /// Words of TYPE that name a service are written with it.
    bool IsKind( std::string_view a_word ) const override;

    QString m_service;
    QString m_handle;
    QString m_address;
    bool m_isSocialProfile = false;

private:
    void WriteService( FieldWriter& a_writer ) const;
    void WriteHandle( FieldWriter& a_writer ) const;
    bool IsServiceType() const;
};

} // namespace PimManager::Contacts
