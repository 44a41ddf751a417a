#include "Values/PropertyKinds.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

Delimiters DelimitersOf( std::string_view a_name, PimContactVersion a_version )
{
    const bool isVersion21 = a_version == PimContactVersion::V21;
    const bool isVersion40 = a_version == PimContactVersion::V40;
    const auto onlyIf = []( bool a_isSo ) { return a_isSo ? Delimiters::Semicolons : Delimiters::None; };
    const auto is = [a_name]( std::string_view a_word ) { return IsSameWord( a_name, a_word ); };
    switch ( a_name.size() )
    {
    case 1:
    case 3:
        if ( is( "N" ) || is( "ADR" ) )
            return isVersion21 ? Delimiters::Semicolons : Delimiters::SemicolonsAndCommas;
        return is( "GEO" ) ? onlyIf( !isVersion21 && !isVersion40 ) : onlyIf( is( "ORG" ) );
    case 6:
        return onlyIf( isVersion40 && is( "GENDER" ) );
    case 8:
        return is( "NICKNAME" ) ? Delimiters::Commas : Delimiters::None;
    case 10:
        return is( "CATEGORIES" ) ? Delimiters::Commas : Delimiters::None;
    case 12:
        return onlyIf( isVersion40 && is( "CLIENTPIDMAP" ) );
    default:
        return Delimiters::None;
    }
}

} // namespace PimManager::Contacts
