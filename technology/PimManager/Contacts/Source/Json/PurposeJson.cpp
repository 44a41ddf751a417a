#include "Json/PurposeJson.h"

#include "Text/Bytes.h"

namespace PimManager::Contacts
{

namespace
{

void WriteTypes( const WordGroups& a_types, InternetType a_internet, JsonText& a_json )
{
    std::string_view before;
    for ( size_t i = 0; i < a_types.Size(); ++i )
    {
        const bool isLeftOut = a_internet == InternetType::LeftOut && IsSameWord( a_types.Word( i ), "INTERNET" );
        if ( !a_types.IsFirst( i ) || isLeftOut )
            continue;
        a_json.Raw( before );
        a_json.UpperString( a_types.Word( i ) );
        before = ",";
    }
}

} // namespace

void WritePurpose( const LineParameters& a_parameters, std::string_view a_label, InternetType a_internet,
                   JsonText& a_json )
{
    a_json.Raw( ",\"types\":[" );
    WriteTypes( a_parameters.Types(), a_internet, a_json );
    a_json.Raw( "]" );
    if ( !a_label.empty() )
    {
        a_json.Raw( ",\"label\":" );
        a_json.String( a_label );
    }
    if ( a_parameters.Preference() > 0 )
    {
        a_json.Raw( ",\"preference\":" );
        a_json.Number( a_parameters.Preference() );
    }
}

} // namespace PimManager::Contacts
