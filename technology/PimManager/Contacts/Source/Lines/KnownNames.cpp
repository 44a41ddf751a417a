#include "Lines/KnownNames.h"

#include "Text/Bytes.h"

#include <array>
#include <cstring>

namespace PimManager::Contacts
{

namespace
{

constexpr size_t s_kLongestName = 13;

/// A name in capitals, or an empty one if it is longer than every known name.
class UpperName
{
public:
    explicit UpperName( std::string_view a_name ) :
        m_size( a_name.size() <= s_kLongestName ? a_name.size() : 0 )
    {
        for ( size_t i = 0; i < m_size; ++i )
            m_bytes[i] = Upper( a_name[i] );
    }

    size_t Size() const { return m_size; }

    // Literals are arrays. NOLINTBEGIN(modernize-avoid-c-arrays)
    template <size_t... s_kSizes>
    bool IsOneOf( const char ( &... a_words )[s_kSizes] ) const
    {
        return ( Is( a_words ) || ... );
    }

private:
    // A comparison of a length that the compiler knows is one or two instructions.
    template <size_t s_kSize>
    bool Is( const char ( &a_word )[s_kSize] ) const
    {
        return m_size == s_kSize - 1 && std::memcmp( m_bytes.data(), a_word, s_kSize - 1 ) == 0;
    }
    // NOLINTEND(modernize-avoid-c-arrays)

    std::array<char, s_kLongestName> m_bytes;
    size_t m_size;
};

} // namespace

bool IsKnownName( std::string_view a_name )
{
    const UpperName name( a_name );
    switch ( name.Size() )
    {
    case 1:
        return name.IsOneOf( "N" );
    case 2:
        return name.IsOneOf( "FN", "TZ" );
    case 3:
        return name.IsOneOf( "ADR", "END", "GEO", "KEY", "ORG", "REV", "TEL", "UID", "URL", "XML" );
    case 4:
        return name.IsOneOf( "BDAY", "IMPP", "KIND", "LANG", "LOGO", "NAME", "NOTE", "ROLE" );
    case 5:
        return name.IsOneOf( "AGENT", "BEGIN", "CLASS", "EMAIL", "FBURL", "HOBBY", "LABEL", "PHOTO", "SOUND", "TITLE" );
    case 6:
        return name.IsOneOf( "CALURI", "GENDER", "JSPROP", "MAILER", "MEMBER", "PRODID", "SOURCE" );
    case 7:
        return name.IsOneOf( "CREATED", "PROFILE", "RELATED", "VERSION" );
    case 8:
        return name.IsOneOf( "INTEREST", "LANGUAGE", "NICKNAME", "PRONOUNS" );
    case 9:
        return name.IsOneOf( "CALADRURI", "DEATHDATE", "EXPERTISE" );
    case 10:
        return name.IsOneOf( "BIRTHPLACE", "CATEGORIES", "DEATHPLACE", "GRAMGENDER" );
    case 11:
        return name.IsOneOf( "ANNIVERSARY", "CONTACT-URI", "SORT-STRING" );
    case 12:
        return name.IsOneOf( "CLIENTPIDMAP" );
    case 13:
        return name.IsOneOf( "ORG-DIRECTORY", "SOCIALPROFILE" );
    default:
        return false;
    }
}

bool IsExtensionName( std::string_view a_name )
{
    return a_name.size() > 2 && Upper( a_name[0] ) == 'X' && a_name[1] == '-';
}

bool HoldsText( std::string_view a_name )
{
    const UpperName name( a_name );
    switch ( name.Size() )
    {
    case 2:
        return !name.IsOneOf( "TZ" );
    case 3:
        return !name.IsOneOf( "GEO", "REV", "TEL", "UID", "URL" );
    case 4:
        return !name.IsOneOf( "BDAY", "IMPP", "KIND", "LANG", "LOGO" );
    case 5:
        return !name.IsOneOf( "CLASS", "EMAIL", "PHOTO" );
    case 6:
        return !name.IsOneOf( "GENDER", "MAILER", "PRODID" );
    case 7:
        return !name.IsOneOf( "VERSION" );
    case 11:
        return !name.IsOneOf( "ANNIVERSARY" );
    default:
        return true;
    }
}

bool IsMediaName( std::string_view a_name )
{
    const UpperName name( a_name );
    return name.IsOneOf( "PHOTO", "LOGO", "SOUND", "KEY" );
}

bool IsKnownTextName( std::string_view a_name )
{
    const UpperName name( a_name );
    return IsKnownName( a_name ) && !IsMediaName( a_name ) && !name.IsOneOf( "AGENT", "BEGIN", "END", "VERSION" );
}

bool IsPersonName( std::string_view a_name )
{
    const UpperName name( a_name );
    return name.IsOneOf( "N", "FN", "NICKNAME" );
}

} // namespace PimManager::Contacts
