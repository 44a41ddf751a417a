/// \file
/// The data of PimContactText.

#pragma once

#include "Contact/WithKinds.h"

#include <QString>

namespace PimManager::Contacts
{

class TextData : public WithKinds<TextData>
{
public:
    bool IsSame( const TextData& a_other ) const;
    bool IsEmpty() const override { return m_text.isEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return {}; }
    void Write( FieldWriter& a_writer ) const override;

    QString m_text;
    QString m_level;
};

} // namespace PimManager::Contacts
