#include "Contact/NamedMediaType.h"

#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Text/WordTable.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using SubtypeRow = WordRow<std::string_view>;

// Words of TYPE whose media type has another name.
constexpr WordTable s_kSubtypes( std::array{
    SubtypeRow{ "JPG", "jpeg" },
    SubtypeRow{ "PGP", "pgp-keys" },
    SubtypeRow{ "X509", "pkix-cert" },
} );
static_assert( s_kSubtypes.HasAllWords() );

} // namespace

std::string_view MainTypeOf( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Sound:
        return "audio/";
    case PropertyId::Key:
        return "application/";
    default:
        return "image/";
    }
}

QString NamedMediaType( PropertyId a_property, const FieldParameters& a_parameters )
{
    const std::string_view named = WithoutOuterSpace( a_parameters.First( FieldParameter::MediaType ) );
    if ( !named.empty() )
        return StringOf( named );
    const std::string_view type = a_parameters.CustomType();
    if ( type.empty() )
        return QString();
    if ( type.find( '/' ) != std::string_view::npos )
        return StringOf( type ).toLower();
    return StringOf( MainTypeOf( a_property ) ) + StringOf( s_kSubtypes.Of( type, type ) ).toLower();
}

} // namespace PimManager::Contacts
