/// \file
/// Fields with kinds such as home and work.

#pragma once

#include "Contact/FieldData.h"
#include "Contact/FieldReader.h"
#include "Contact/KindWords.h"

#include <PimManager/Contacts/PimContactKinds.h>

namespace PimManager::Contacts
{

/// The data of a field with PimContactKinds.
template <class Derived>
class WithKinds : public FieldData<Derived>
{
public:
    QStringList KindTypes( PimContactVersion a_version ) const override
    {
        return TextsOf( WordsOf( m_kinds, a_version ) );
    }
    bool IsKind( std::string_view a_word ) const override { return KindsOf( a_word ) != PimContactKinds(); }

    void ReadKinds( FieldReader& a_reader )
    {
        a_reader.ReadParameters( []( std::string_view a_word ) { return static_cast<quint32>( KindsOf( a_word ) ); } );
        m_kinds = a_reader.template KindsAs<PimContactKinds>();
    }
    void SetKinds( PimContactKinds a_kinds )
    {
        this->DropKindTypes();
        m_kinds = a_kinds;
    }

    PimContactKinds m_kinds;
};

} // namespace PimManager::Contacts
