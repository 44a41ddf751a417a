#include "PimVCardKnownNames.h"

#include "PimVCardBytes.h"
#include "PimVCardLineHead.h"

#include <algorithm>
#include <array>

namespace PimManager::vCardImport
{

namespace
{

// RFC 6350, RFC 2426, vCard 2.1, and the extensions of RFC 6474, 6715 and 8605.
constexpr std::array<std::string_view, 58> s_kNames = {
    "ADR",       "AGENT",      "ALTID",      "ANNIVERSARY", "BDAY",         "BEGIN",         "BIRTHPLACE",
    "CALADRURI", "CALURI",     "CATEGORIES", "CLASS",       "CLIENTPIDMAP", "CONTACT-URI",   "CREATED",
    "DEATHDATE", "DEATHPLACE", "EMAIL",      "END",         "EXPERTISE",    "FBURL",         "FN",
    "GENDER",    "GEO",        "GRAMGENDER", "HOBBY",       "IMPP",         "INTEREST",      "KEY",
    "KIND",      "LABEL",      "LANG",       "LANGUAGE",    "LOGO",         "MAILER",        "MEMBER",
    "N",         "NAME",       "NICKNAME",   "NOTE",        "ORG",          "ORG-DIRECTORY", "PHOTO",
    "PRODID",    "PROFILE",    "PRONOUNS",   "RELATED",     "REV",          "ROLE",          "SORT-STRING",
    "SOUND",     "SOURCE",     "TEL",        "TITLE",       "TZ",           "UID",           "URL",
    "VERSION",   "XML",
};

bool IsLower( char a_byte )
{
    return a_byte >= 'a' && a_byte <= 'z';
}

bool IsUpper( char a_byte )
{
    return a_byte >= 'A' && a_byte <= 'Z';
}

// Names are written in capitals, or all small; "Tel: 555" is a line of a note.
bool IsInOneCase( std::string_view a_name )
{
    return std::none_of( a_name.begin(), a_name.end(), IsLower ) ||
           std::none_of( a_name.begin(), a_name.end(), IsUpper );
}

// Words in front of a colon: `TEL HOME` and `X-GOOGLE TALK` are names, `see you` is not.
bool MayBeOddName( std::string_view a_name )
{
    if ( a_name.empty() || std::any_of( a_name.begin(), a_name.end(), []( char a_byte ) { return a_byte == '"'; } ) )
        return false;
    if ( IsExtensionName( a_name ) || IsKnownName( a_name ) )
        return true;
    const size_t blank = a_name.find_first_of( " \t" );
    if ( blank == std::string_view::npos )
        return IsNameByte( a_name.front() );
    const std::string_view first = a_name.substr( 0, blank );
    return IsKnownName( first ) && std::none_of( first.begin(), first.end(), IsLower );
}

} // namespace

bool IsKnownName( std::string_view a_name )
{
    return std::any_of( s_kNames.begin(), s_kNames.end(),
                        [a_name]( std::string_view a_known ) { return IsSameWord( a_name, a_known ); } );
}

// `Third; with blanks: and so on` is no property, though its first word could be a name.
bool HasWordsForParameters( const PimVCardLineHead& a_head )
{
    const auto hasBlank = []( const PimVCardLineHead::Parameter& a_parameter )
    { return a_parameter.IsBare() && a_parameter.m_value.find( ' ' ) != std::string_view::npos; };
    return std::any_of( a_head.m_parameters.begin(), a_head.m_parameters.end(), hasBlank );
}

bool IsExtensionName( std::string_view a_name )
{
    return a_name.size() > 2 && IsSameWord( a_name.substr( 0, 2 ), "X-" );
}

PimVCardLooks LooksOf( std::string_view a_line )
{
    const PimVCardLineHead head = PimVCardLineHead::Of( a_line );
    const std::string_view name = head.Name();
    if ( !head.m_hasColon )
    {
        const bool isName = IsKnownName( name ) || ( IsExtensionName( name ) && IsName( name ) );
        const bool isNameOnly = isName && std::none_of( name.begin(), name.end(), IsLower );
        return isNameOnly ? PimVCardLooks::NameOnly : PimVCardLooks::Text;
    }
    if ( IsName( name ) )
    {
        const bool isStandard = IsKnownName( name ) || IsExtensionName( name );
        if ( isStandard && IsInOneCase( IsExtensionName( name ) ? name.substr( 0, 1 ) : name ) )
            return PimVCardLooks::ClearlyProperty;
        return !isStandard && HasWordsForParameters( head ) ? PimVCardLooks::Text : PimVCardLooks::Property;
    }
    return MayBeOddName( name ) ? PimVCardLooks::Property : PimVCardLooks::Text;
}

} // namespace PimManager::vCardImport
