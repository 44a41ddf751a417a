#include "Lines/ParameterTable.h"

#include "Text/Bytes.h"
#include "Text/WordTable.h"

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    StandardParameter m_parameter = StandardParameter::Other;
    std::string_view m_name;
    // Of vCard 2.1, version 3.0 and version 4.0.
    StandardSection m_v21;
    StandardSection m_v30;
    StandardSection m_v40;
};

constexpr StandardSection s_kNone;

constexpr StandardSection V21( std::string_view a_number )
{
    return { Standard::VCard21, a_number };
}

constexpr StandardSection Rfc2425( std::string_view a_number )
{
    return { Standard::Rfc2425, a_number };
}

constexpr StandardSection Rfc2426( std::string_view a_number )
{
    return { Standard::Rfc2426, a_number };
}

constexpr StandardSection Rfc6350( std::string_view a_number )
{
    return { Standard::Rfc6350, a_number };
}

constexpr StandardSection Rfc9554( std::string_view a_number )
{
    return { Standard::Rfc9554, a_number };
}

// In the order of StandardParameter.
constexpr std::array<Row, s_kStandardParameters> s_kRows = { {
    { StandardParameter::AltId, "ALTID", s_kNone, s_kNone, Rfc6350( "5.4" ) },
    { StandardParameter::Author, "AUTHOR", s_kNone, s_kNone, Rfc9554( "4.1" ) },
    { StandardParameter::AuthorName, "AUTHOR-NAME", s_kNone, s_kNone, Rfc9554( "4.2" ) },
    { StandardParameter::CalScale, "CALSCALE", s_kNone, s_kNone, Rfc6350( "5.8" ) },
    { StandardParameter::Cc, "CC", s_kNone, s_kNone, { Standard::Rfc8605, "3.1" } },
    { StandardParameter::Charset, "CHARSET", V21( "2.1.6" ), s_kNone, s_kNone },
    { StandardParameter::Context, "CONTEXT", s_kNone, Rfc2426( "2.1.4" ), s_kNone },
    { StandardParameter::Created, "CREATED", s_kNone, s_kNone, Rfc9554( "4.3" ) },
    { StandardParameter::Derived, "DERIVED", s_kNone, s_kNone, Rfc9554( "4.4" ) },
    { StandardParameter::Encoding, "ENCODING", V21( "2.1.5" ), Rfc2426( "2.2" ), s_kNone },
    { StandardParameter::Geo, "GEO", s_kNone, s_kNone, Rfc6350( "5.10" ) },
    { StandardParameter::Index, "INDEX", s_kNone, s_kNone, { Standard::Rfc6715, "3.1" } },
    { StandardParameter::JsComps, "JSCOMPS", s_kNone, s_kNone, { Standard::Rfc9555, "3.3.1" } },
    { StandardParameter::JsPtr, "JSPTR", s_kNone, s_kNone, { Standard::Rfc9555, "3.3.2" } },
    { StandardParameter::Label, "LABEL", s_kNone, s_kNone, Rfc6350( "6.3.1" ) },
    { StandardParameter::Language, "LANGUAGE", V21( "2.1.7" ), Rfc2425( "5.8.3" ), Rfc6350( "5.1" ) },
    { StandardParameter::Level, "LEVEL", s_kNone, s_kNone, { Standard::Rfc6715, "3.2" } },
    { StandardParameter::MediaType, "MEDIATYPE", s_kNone, s_kNone, Rfc6350( "5.7" ) },
    { StandardParameter::Phonetic, "PHONETIC", s_kNone, s_kNone, Rfc9554( "4.6" ) },
    { StandardParameter::Pid, "PID", s_kNone, s_kNone, Rfc6350( "5.5" ) },
    { StandardParameter::Pref, "PREF", s_kNone, s_kNone, Rfc6350( "5.3" ) },
    { StandardParameter::PropId, "PROP-ID", s_kNone, s_kNone, Rfc9554( "4.7" ) },
    { StandardParameter::Script, "SCRIPT", s_kNone, s_kNone, Rfc9554( "4.8" ) },
    { StandardParameter::ServiceType, "SERVICE-TYPE", s_kNone, s_kNone, Rfc9554( "4.9" ) },
    { StandardParameter::SortAs, "SORT-AS", s_kNone, s_kNone, Rfc6350( "5.9" ) },
    { StandardParameter::Type, "TYPE", V21( "2.1.2" ), Rfc2426( "4" ), Rfc6350( "5.6" ) },
    { StandardParameter::Tz, "TZ", s_kNone, s_kNone, Rfc6350( "5.11" ) },
    { StandardParameter::UserName, "USERNAME", s_kNone, s_kNone, Rfc9554( "4.10" ) },
    { StandardParameter::Value, "VALUE", V21( "2.1.8" ), Rfc2426( "2.3" ), Rfc6350( "5.2" ) },
} };

constexpr bool AreRowsInOrder()
{
    for ( size_t i = 0; i < s_kRows.size(); ++i )
    {
        if ( s_kRows[i].m_parameter != static_cast<StandardParameter>( i ) )
            return false;
    }
    return true;
}

static_assert( AreRowsInOrder() );

constexpr std::array<WordRow<StandardParameter>, s_kStandardParameters> Names()
{
    std::array<WordRow<StandardParameter>, s_kStandardParameters> names = {};
    for ( size_t i = 0; i < names.size(); ++i )
        names[i] = { s_kRows[i].m_name, s_kRows[i].m_parameter };
    return names;
}

constexpr WordTable s_kNames( Names() );
static_assert( s_kNames.HasAllWords() );

const Row& RowOf( StandardParameter a_parameter )
{
    return s_kRows[static_cast<size_t>( a_parameter )];
}

} // namespace

StandardParameter StandardParameterOf( std::string_view a_name )
{
    return s_kNames.Of( a_name, StandardParameter::Other );
}

bool NeedsQuotes( std::string_view a_value )
{
    return a_value.find_first_of( ";:,= \t\n" ) != std::string_view::npos;
}

bool IsReservedParameter( std::string_view a_name )
{
    return IsSameWord( a_name, "GROUP" );
}

std::string_view NameOf( StandardParameter a_parameter )
{
    return RowOf( a_parameter ).m_name;
}

StandardSection SectionOf( StandardParameter a_parameter, PimContactVersion a_version )
{
    const Row& row = RowOf( a_parameter );
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return row.m_v21;
    case PimContactVersion::V30:
        return row.m_v30;
    case PimContactVersion::V40:
        return row.m_v40;
    default:
        return s_kNone;
    }
}

} // namespace PimManager::Contacts
