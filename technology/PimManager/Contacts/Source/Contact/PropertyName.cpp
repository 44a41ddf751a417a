#include "Contact/PropertyName.h"

#include "Text/Bytes.h"

#include <initializer_list>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    std::string_view m_name;
    PropertyName m_property;
};

PropertyName FindIn( std::initializer_list<Row> a_rows, std::string_view a_name )
{
    for ( const Row& row : a_rows )
    {
        if ( IsSameWord( row.m_name, a_name ) )
            return row.m_property;
    }
    return PropertyName::Other;
}

} // namespace

PropertyName PropertyNameOf( std::string_view a_name )
{
    switch ( a_name.size() )
    {
    case 1:
        return FindIn( { { "N", PropertyName::N } }, a_name );
    case 2:
        return FindIn( { { "FN", PropertyName::Fn } }, a_name );
    case 3:
        return FindIn( { { "TEL", PropertyName::Tel }, { "ADR", PropertyName::Adr }, { "ORG", PropertyName::Org } },
                       a_name );
    case 5:
        return FindIn( { { "EMAIL", PropertyName::Email } }, a_name );
    case 7:
        return FindIn( { { "VERSION", PropertyName::Version } }, a_name );
    case 8:
        return FindIn( { { "NICKNAME", PropertyName::Nickname } }, a_name );
    case 20:
        return FindIn( { { "X-IRMC-CALL-DATETIME", PropertyName::CallTime } }, a_name );
    default:
        return PropertyName::Other;
    }
}

} // namespace PimManager::Contacts
