#include "Lines/KnownNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

struct StandardNames
{
    const char* m_standard;
    std::vector<const char*> m_names;
};

const std::array<StandardNames, 8>& Standards()
{
    static const std::array<StandardNames, 8> standards = { {
        { "vCard 2.1",
          { "ADR",  "AGENT", "BDAY",  "BEGIN", "EMAIL", "END",   "FN",  "GEO",   "KEY", "LABEL", "LOGO", "MAILER", "N",
            "NOTE", "ORG",   "PHOTO", "REV",   "ROLE",  "SOUND", "TEL", "TITLE", "TZ",  "UID",   "URL",  "VERSION" } },
        { "RFC 2426", { "CATEGORIES", "CLASS", "NAME", "NICKNAME", "PRODID", "PROFILE", "SORT-STRING", "SOURCE" } },
        { "RFC 6350",
          { "ANNIVERSARY", "CALADRURI", "CALURI", "CLIENTPIDMAP", "FBURL", "GENDER", "IMPP", "KIND", "LANG", "MEMBER",
            "RELATED", "XML" } },
        { "RFC 6474", { "BIRTHPLACE", "DEATHDATE", "DEATHPLACE" } },
        { "RFC 6715", { "EXPERTISE", "HOBBY", "INTEREST", "ORG-DIRECTORY" } },
        { "RFC 8605", { "CONTACT-URI" } },
        { "RFC 9554", { "CREATED", "GRAMGENDER", "LANGUAGE", "PRONOUNS", "SOCIALPROFILE" } },
        { "RFC 9555", { "JSPROP" } },
    } };
    return standards;
}

std::vector<std::string> AllNames()
{
    std::vector<std::string> names;
    for ( const StandardNames& standard : Standards() )
        names.insert( names.end(), standard.m_names.begin(), standard.m_names.end() );
    return names;
}

std::string InSmallLetters( std::string a_text )
{
    std::transform( a_text.begin(), a_text.end(), a_text.begin(),
                    []( unsigned char a_byte ) { return static_cast<char>( std::tolower( a_byte ) ); } );
    return a_text;
}

bool IsOneOf( const std::vector<std::string>& a_names, const std::string& a_name )
{
    return std::find( a_names.begin(), a_names.end(), a_name ) != a_names.end();
}

} // namespace

TEST( KnownNamesTest, NamesOfTheStandardsAreKnown )
{
    for ( const StandardNames& standard : Standards() )
    {
        for ( const char* const name : standard.m_names )
            EXPECT_TRUE( IsKnownName( name ) ) << standard.m_standard << ' ' << name;
    }
}

TEST( KnownNamesTest, LetterCaseDoesNotMatter )
{
    for ( const std::string& name : AllNames() )
    {
        const std::string small = InSmallLetters( name );
        EXPECT_TRUE( IsKnownName( small ) ) << small;
        EXPECT_TRUE( IsKnownName( name.substr( 0, 1 ) + small.substr( 1 ) ) ) << name;
    }
}

// Every name with one byte less, more or changed; some of these are other names.
TEST( KnownNamesTest, SimilarWordsAreDistinguished )
{
    const std::vector<std::string> names = AllNames();
    const auto expectRight = [&names]( const std::string& a_word )
    { EXPECT_EQ( IsKnownName( a_word ), IsOneOf( names, a_word ) ) << a_word; };
    for ( const std::string& name : names )
    {
        expectRight( name.substr( 1 ) );
        expectRight( name.substr( 0, name.size() - 1 ) );
        expectRight( name + "S" );
        expectRight( name + '\0' );
        expectRight( " " + name );
        for ( size_t i = 0; i < name.size(); ++i )
        {
            for ( const int change : { 0x01, 0x40, 0x80 } )
            {
                std::string changed = name;
                changed[i] = static_cast<char>( changed[i] ^ change );
                expectRight( changed );
            }
        }
    }
}

TEST( KnownNamesTest, OtherWordsAreUnknown )
{
    using namespace std::string_literals;
    const std::vector<std::string> rows = { "",
                                            "X",
                                            "X-ABC",
                                            "ALTID",
                                            "TYPE",
                                            "PREF",
                                            "ENCODING",
                                            "CHARSET",
                                            "T\xC3\x89L",
                                            "TEL HOME",
                                            "SOCIALPROFILES",
                                            "ORG-DIRECTORY-OF-ALL",
                                            "N\0"s,
                                            std::string( 1000, 'N' ) };
    for ( const std::string& row : rows )
        EXPECT_FALSE( IsKnownName( row ) ) << row;
}

TEST( KnownNamesTest, ExtensionNamesBeginWithXAndHyphen )
{
    for ( const char* const row : { "X-A", "x-a", "X-ABLabel", "X--", "X- ", "X-GOOGLE TALK" } )
        EXPECT_TRUE( IsExtensionName( row ) ) << row;
    for ( const char* const row : { "", "X", "X-", "x-", "XA-", "AX-B", " X-A", "TEL", "X_A" } )
        EXPECT_FALSE( IsExtensionName( row ) ) << row;
}

TEST( KnownNamesTest, ShortValuesHoldNoText )
{
    const std::vector<std::string> shortValues = { "ANNIVERSARY", "BDAY", "CLASS", "EMAIL",  "GENDER", "GEO",    "IMPP",
                                                   "KIND",        "LANG", "LOGO",  "MAILER", "PHOTO",  "PRODID", "REV",
                                                   "TEL",         "TZ",   "UID",   "URL",    "VERSION" };
    for ( const std::string& name : AllNames() )
    {
        EXPECT_EQ( HoldsText( name ), !IsOneOf( shortValues, name ) ) << name;
        EXPECT_EQ( HoldsText( InSmallLetters( name ) ), HoldsText( name ) ) << name;
    }
    for ( const char* const row : { "", "X-TEL", "TELS", "a name that nobody knows" } )
        EXPECT_TRUE( HoldsText( row ) ) << row;
}

TEST( KnownNamesTest, FourNamesAreOfMedia )
{
    const std::vector<std::string> media = { "KEY", "LOGO", "PHOTO", "SOUND" };
    for ( const std::string& name : AllNames() )
    {
        EXPECT_EQ( IsMediaName( name ), IsOneOf( media, name ) ) << name;
        EXPECT_EQ( IsMediaName( InSmallLetters( name ) ), IsMediaName( name ) ) << name;
    }
    for ( const char* const row : { "", "X-PHOTO", "PHOTOS", "KE" } )
        EXPECT_FALSE( IsMediaName( row ) ) << row;
}

TEST( KnownNamesTest, OtherKnownNamesHaveTexts )
{
    const std::vector<std::string> others = { "AGENT", "BEGIN", "END", "KEY", "LOGO", "PHOTO", "SOUND", "VERSION" };
    for ( const std::string& name : AllNames() )
    {
        EXPECT_EQ( IsKnownTextName( name ), !IsOneOf( others, name ) ) << name;
        EXPECT_EQ( IsKnownTextName( InSmallLetters( name ) ), IsKnownTextName( name ) ) << name;
    }
    for ( const char* const row : { "", "X-FN", "FNS", "a name that nobody knows" } )
        EXPECT_FALSE( IsKnownTextName( row ) ) << row;
}

TEST( KnownNamesTest, ThreeNamesAreOfPersons )
{
    for ( const char* const row : { "N", "n", "FN", "Fn", "NICKNAME", "Nickname" } )
        EXPECT_TRUE( IsPersonName( row ) ) << row;
    for ( const char* const row : { "", "NAME", "NF", "F", "NICKNAMES", "ORG", "X-NICKNAME" } )
        EXPECT_FALSE( IsPersonName( row ) ) << row;
}

} // namespace PimManager::Contacts
