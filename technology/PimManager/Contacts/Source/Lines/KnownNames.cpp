#include "Lines/KnownNames.h"

namespace PimManager::Contacts
{

bool IsMediaProperty( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Key:
    case PropertyId::Logo:
    case PropertyId::Photo:
    case PropertyId::Sound:
        return true;
    default:
        return false;
    }
}

bool IsKnownName( std::string_view a_name )
{
    return StandardPropertyOf( a_name ) != PropertyId::Other;
}

bool HoldsText( std::string_view a_name )
{
    switch ( StandardPropertyOf( a_name ) )
    {
    case PropertyId::Anniversary:
    case PropertyId::Bday:
    case PropertyId::Class:
    case PropertyId::Email:
    case PropertyId::Gender:
    case PropertyId::Geo:
    case PropertyId::Kind:
    case PropertyId::Lang:
    case PropertyId::Logo:
    case PropertyId::Mailer:
    case PropertyId::Messenger:
    case PropertyId::Photo:
    case PropertyId::ProdId:
    case PropertyId::Rev:
    case PropertyId::Tel:
    case PropertyId::Tz:
    case PropertyId::Uid:
    case PropertyId::Url:
    case PropertyId::Version:
        return false;
    default:
        return true;
    }
}

bool IsMediaName( std::string_view a_name )
{
    return IsMediaProperty( StandardPropertyOf( a_name ) );
}

bool IsKnownTextName( std::string_view a_name )
{
    const PropertyId property = StandardPropertyOf( a_name );
    switch ( property )
    {
    case PropertyId::Agent:
    case PropertyId::Begin:
    case PropertyId::End:
    case PropertyId::Other:
    case PropertyId::Version:
        return false;
    default:
        return !IsMediaProperty( property );
    }
}

bool IsPersonName( std::string_view a_name )
{
    const PropertyId property = StandardPropertyOf( a_name );
    return property == PropertyId::N || property == PropertyId::Fn || property == PropertyId::Nickname;
}

} // namespace PimManager::Contacts
