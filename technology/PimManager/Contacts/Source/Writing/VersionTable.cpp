#include "Writing/VersionTable.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kDayAndMonth = "an open year is `X-APPLE-OMIT-YEAR=1604`";
constexpr std::string_view s_kMedia = "bytes or URI";

// The same name in 2.1 and 3.0, and another one in 4.0.
constexpr VersionRow Row( PropertyId a_property, std::string_view a_before, std::string_view a_now )
{
    return { a_property, { { { a_before, {} }, { a_before, {} }, { a_now, {} } } } };
}

constexpr VersionRow Row( PropertyId a_property, VersionCell a_21, VersionCell a_30, VersionCell a_40 )
{
    return { a_property, { { a_21, a_30, a_40 } } };
}

// A property that only 3.0 has.
constexpr VersionRow Row30( PropertyId a_property, std::string_view a_extension, std::string_view a_name )
{
    return Row( a_property, { a_extension, {} }, { a_name, {} }, { a_extension, {} } );
}

// A property that 2.1 does not have.
constexpr VersionRow RowFrom30( PropertyId a_property, std::string_view a_extension, std::string_view a_name )
{
    return Row( a_property, { a_extension, {} }, { a_name, {} }, { a_name, {} } );
}

// In the order of the names.
constexpr std::array s_kRows = {
    Row( PropertyId::Adr,
         { "ADR",
           "seven components; lists in a component become one text; LABEL, GEO, TZ and CC are lines of its group" },
         { "ADR", "seven components; LABEL, GEO, TZ and CC are lines of its group" }, { "ADR", {} } ),
    Row( PropertyId::Agent, { "AGENT", {} }, { "AGENT", "a card as text; cards in it up to two deep" },
         { "RELATED", "`TYPE=agent` with the URI, the text, or the name in the card" } ),
    Row( PropertyId::Anniversary, { "X-ANNIVERSARY", s_kDayAndMonth }, { "X-ANNIVERSARY", s_kDayAndMonth },
         { "ANNIVERSARY", {} } ),
    Row( PropertyId::Bday, { "BDAY", s_kDayAndMonth }, { "BDAY", s_kDayAndMonth }, { "BDAY", {} } ),
    Row( PropertyId::BirthPlace, "X-BIRTHPLACE", "BIRTHPLACE" ),
    Row( PropertyId::CalAdrUri, "X-CALADRURI", "CALADRURI" ),
    Row( PropertyId::CalUri, "X-CALURI", "CALURI" ),
    RowFrom30( PropertyId::Categories, "X-CATEGORIES", "CATEGORIES" ),
    Row30( PropertyId::Class, "X-CLASS", "CLASS" ),
    Row( PropertyId::ClientPidMap, "X-CLIENTPIDMAP", "CLIENTPIDMAP" ),
    Row( PropertyId::ContactUri, "X-CONTACT-URI", "CONTACT-URI" ),
    Row( PropertyId::Created, "X-CREATED", "CREATED" ),
    Row( PropertyId::DeathDate, { "X-DEATHDATE", s_kDayAndMonth }, { "X-DEATHDATE", s_kDayAndMonth },
         { "DEATHDATE", {} } ),
    Row( PropertyId::DeathPlace, "X-DEATHPLACE", "DEATHPLACE" ),
    Row( PropertyId::Email, { "EMAIL", "the address of a `mailto:` URI" },
         { "EMAIL", "the address of a `mailto:` URI" }, { "EMAIL", "the address of a `mailto:` URI" } ),
    Row( PropertyId::Expertise, "X-EXPERTISE", "EXPERTISE" ),
    Row( PropertyId::FbUrl, "X-FBURL", "FBURL" ),
    Row( PropertyId::Fn, "FN", "FN" ),
    Row( PropertyId::Gender, "X-GENDER", "GENDER" ),
    Row( PropertyId::Geo, { "GEO", "longitude and latitude" }, { "GEO", "latitude and longitude" },
         { "GEO", "a `geo:` URI" } ),
    Row( PropertyId::GramGender, "X-GRAMGENDER", "GRAMGENDER" ),
    Row( PropertyId::Hobby, "X-HOBBY", "HOBBY" ),
    Row( PropertyId::Messenger, { "X-IMPP", "a URI that is a scheme and a user name is `X-JABBER` and the like" },
         { "IMPP", "a URI that is a scheme and a user name is `X-JABBER` and the like" },
         { "IMPP", "a URI; `X-JABBER` and the like stay if the user name fits in none" } ),
    Row( PropertyId::Interest, "X-INTEREST", "INTEREST" ),
    Row( PropertyId::JsProp, "X-JSPROP", "JSPROP" ),
    Row( PropertyId::Key, { "KEY", s_kMedia }, { "KEY", s_kMedia }, { "KEY", s_kMedia } ),
    Row( PropertyId::Kind, "X-ADDRESSBOOKSERVER-KIND", "KIND" ),
    Row( PropertyId::Label, { "LABEL", {} }, { "LABEL", {} }, { "ADR", "the parameter LABEL of its address" } ),
    Row( PropertyId::Lang, "X-LANG", "LANG" ),
    Row( PropertyId::Language, "X-LANGUAGE", "LANGUAGE" ),
    Row( PropertyId::Logo, { "LOGO", s_kMedia }, { "LOGO", s_kMedia }, { "LOGO", s_kMedia } ),
    Row( PropertyId::Mailer, "MAILER", "X-MAILER" ),
    Row( PropertyId::Member, "X-ADDRESSBOOKSERVER-MEMBER", "MEMBER" ),
    Row( PropertyId::N, { "N", "five components; lists in a component become one text; SORT-AS is X-SORT-STRING" },
         { "N", "five components; SORT-AS is SORT-STRING" }, { "N", {} } ),
    Row30( PropertyId::Name, "X-NAME", "NAME" ),
    RowFrom30( PropertyId::Nickname, "X-NICKNAME", "NICKNAME" ),
    Row( PropertyId::Note, "NOTE", "NOTE" ),
    Row( PropertyId::Org, "ORG", "ORG" ),
    Row( PropertyId::OrgDirectory, "X-ORG-DIRECTORY", "ORG-DIRECTORY" ),
    Row( PropertyId::Photo, { "PHOTO", s_kMedia }, { "PHOTO", s_kMedia }, { "PHOTO", s_kMedia } ),
    RowFrom30( PropertyId::ProdId, "X-PRODID", "PRODID" ),
    Row30( PropertyId::Profile, "X-PROFILE", "PROFILE" ),
    Row( PropertyId::Pronouns, "X-PRONOUNS", "PRONOUNS" ),
    Row( PropertyId::Related,
         { "X-ABRELATEDNAMES", "`X-SPOUSE`, `X-MANAGER`, `X-ASSISTANT` or `AGENT` if that is the only type" },
         { "X-ABRELATEDNAMES", "`X-SPOUSE`, `X-MANAGER`, `X-ASSISTANT` or `AGENT` if that is the only type" },
         { "RELATED", {} } ),
    Row( PropertyId::Rev, "REV", "REV" ),
    Row( PropertyId::Role, "ROLE", "ROLE" ),
    Row( PropertyId::SocialProfile, "X-SOCIALPROFILE", "SOCIALPROFILE" ),
    Row( PropertyId::SortString, { "X-SORT-STRING", {} }, { "SORT-STRING", {} },
         { "X-SORT-STRING", "the parameter SORT-AS of N, if there is one and the text has no comma" } ),
    Row( PropertyId::Sound, { "SOUND", s_kMedia }, { "SOUND", s_kMedia }, { "SOUND", s_kMedia } ),
    RowFrom30( PropertyId::Source, "X-SOURCE", "SOURCE" ),
    Row( PropertyId::Tel, { "TEL", "the number of a `tel:` URI, with its extension" },
         { "TEL", "the number of a `tel:` URI, with its extension" }, { "TEL", {} } ),
    Row( PropertyId::Title, "TITLE", "TITLE" ),
    Row( PropertyId::Tz, { "TZ", "an offset as `-05:00`" }, { "TZ", "an offset as `-05:00`" },
         { "TZ", "an offset as `-0500`" } ),
    Row( PropertyId::Uid, "UID", "UID" ),
    Row( PropertyId::Url, "URL", "URL" ),
    Row( PropertyId::Xml, "X-XML", "XML" ),
};

constexpr quint8 s_kNoRow = 0xFF;

constexpr std::array<quint8, s_kProperties> Places()
{
    std::array<quint8, s_kProperties> places = {};
    for ( quint8& place : places )
        place = s_kNoRow;
    for ( size_t i = 0; i < s_kRows.size(); ++i )
        places[static_cast<size_t>( s_kRows[i].m_property )] = static_cast<quint8>( i );
    return places;
}

constexpr std::array<quint8, s_kProperties> s_kPlaces = Places();
constexpr VersionRow s_kUnchanged = {};

// Only few rows have several names, and comparing names takes longer than checking this.
constexpr std::array<bool, s_kRows.size()> FindRowsOfOneName()
{
    std::array<bool, s_kRows.size()> are = {};
    for ( size_t i = 0; i < s_kRows.size(); ++i )
    {
        const auto& cells = s_kRows[i].m_cells;
        are[i] = cells[0].m_name == cells[1].m_name && cells[1].m_name == cells[2].m_name;
    }
    return are;
}

constexpr std::array<bool, s_kRows.size()> s_kAreOfOneName = FindRowsOfOneName();

void AppendCell( const VersionCell& a_cell, QByteArray& a_text )
{
    Append( a_text, " | " );
    Append( a_text, a_cell.m_name );
    if ( a_cell.m_kept.empty() )
        return;
    Append( a_text, ": " );
    Append( a_text, a_cell.m_kept );
}

} // namespace

const VersionRow& VersionRowOf( PropertyId a_property )
{
    const quint8 place = s_kPlaces[static_cast<size_t>( a_property )];
    return place == s_kNoRow ? s_kUnchanged : s_kRows[place];
}

std::string_view NameIn( std::string_view a_name, PropertyId a_property, PimContactVersion a_version )
{
    const quint8 place = s_kPlaces[static_cast<size_t>( a_property )];
    if ( place == s_kNoRow || s_kAreOfOneName[place] )
        return a_name;
    const VersionRow& row = s_kRows[place];
    const std::string_view name = row.In( a_version ).m_name;
    if ( name.empty() || IsSameWord( name, a_name ) )
        return a_name;
    const bool isInRow =
        std::any_of( row.m_cells.begin(), row.m_cells.end(),
                     [a_name]( const VersionCell& a_cell ) { return IsSameWord( a_cell.m_name, a_name ); } );
    return isInRow ? name : a_name;
}

QByteArray VersionTableText()
{
    QByteArray text( "| property | 2.1 | 3.0 | 4.0 and jCard |\n|---|---|---|---|\n" );
    for ( const VersionRow& row : s_kRows )
    {
        Append( text, "| " );
        Append( text, NameOf( row.m_property ) );
        for ( const VersionCell& cell : row.m_cells )
            AppendCell( cell, text );
        Append( text, " |\n" );
    }
    return text;
}

} // namespace PimManager::Contacts
