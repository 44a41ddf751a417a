#include "Lines/PropertyTable.h"

#include "Text/Bytes.h"
#include "Text/EightBytes.h"

#include <algorithm>
#include <array>
#include <limits>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    std::string_view m_name;
    PropertyId m_property;
};

constexpr std::array s_kRows = {
    Row{ "ADR", PropertyId::Adr },
    Row{ "AGENT", PropertyId::Agent },
    Row{ "ANNIVERSARY", PropertyId::Anniversary },
    Row{ "BDAY", PropertyId::Bday },
    Row{ "BEGIN", PropertyId::Begin },
    Row{ "BIRTHPLACE", PropertyId::BirthPlace },
    Row{ "CALADRURI", PropertyId::CalAdrUri },
    Row{ "CALURI", PropertyId::CalUri },
    Row{ "CATEGORIES", PropertyId::Categories },
    Row{ "CLASS", PropertyId::Class },
    Row{ "CLIENTPIDMAP", PropertyId::ClientPidMap },
    Row{ "CONTACT-URI", PropertyId::ContactUri },
    Row{ "CREATED", PropertyId::Created },
    Row{ "DEATHDATE", PropertyId::DeathDate },
    Row{ "DEATHPLACE", PropertyId::DeathPlace },
    Row{ "EMAIL", PropertyId::Email },
    Row{ "END", PropertyId::End },
    Row{ "EXPERTISE", PropertyId::Expertise },
    Row{ "FBURL", PropertyId::FbUrl },
    Row{ "FN", PropertyId::Fn },
    Row{ "GENDER", PropertyId::Gender },
    Row{ "GEO", PropertyId::Geo },
    Row{ "GRAMGENDER", PropertyId::GramGender },
    Row{ "HOBBY", PropertyId::Hobby },
    Row{ "IMPP", PropertyId::Messenger },
    Row{ "INTEREST", PropertyId::Interest },
    Row{ "JSPROP", PropertyId::JsProp },
    Row{ "KEY", PropertyId::Key },
    Row{ "KIND", PropertyId::Kind },
    Row{ "LABEL", PropertyId::Label },
    Row{ "LANG", PropertyId::Lang },
    Row{ "LANGUAGE", PropertyId::Language },
    Row{ "LOGO", PropertyId::Logo },
    Row{ "MAILER", PropertyId::Mailer },
    Row{ "MEMBER", PropertyId::Member },
    Row{ "N", PropertyId::N },
    Row{ "NAME", PropertyId::Name },
    Row{ "NICKNAME", PropertyId::Nickname },
    Row{ "NOTE", PropertyId::Note },
    Row{ "ORG", PropertyId::Org },
    Row{ "ORG-DIRECTORY", PropertyId::OrgDirectory },
    Row{ "PHOTO", PropertyId::Photo },
    Row{ "PRODID", PropertyId::ProdId },
    Row{ "PROFILE", PropertyId::Profile },
    Row{ "PRONOUNS", PropertyId::Pronouns },
    Row{ "RELATED", PropertyId::Related },
    Row{ "REV", PropertyId::Rev },
    Row{ "ROLE", PropertyId::Role },
    Row{ "SOCIALPROFILE", PropertyId::SocialProfile },
    Row{ "SORT-STRING", PropertyId::SortString },
    Row{ "SOUND", PropertyId::Sound },
    Row{ "SOURCE", PropertyId::Source },
    Row{ "TEL", PropertyId::Tel },
    Row{ "TITLE", PropertyId::Title },
    Row{ "TZ", PropertyId::Tz },
    Row{ "UID", PropertyId::Uid },
    Row{ "URL", PropertyId::Url },
    Row{ "VERSION", PropertyId::Version },
    Row{ "X-ABADR", PropertyId::AddressCountry },
    Row{ "X-ABDATE", PropertyId::GroupDate },
    Row{ "X-ABLABEL", PropertyId::GroupLabel },
    Row{ "X-ABRELATEDNAMES", PropertyId::Related },
    Row{ "X-ADDRESSBOOKSERVER-KIND", PropertyId::Kind },
    Row{ "X-ADDRESSBOOKSERVER-MEMBER", PropertyId::Member },
    Row{ "X-AIM", PropertyId::Messenger },
    Row{ "X-ANDROID-CUSTOM", PropertyId::AndroidCustom },
    Row{ "X-ANNIVERSARY", PropertyId::Anniversary },
    Row{ "X-ASSISTANT", PropertyId::Related },
    Row{ "X-EVOLUTION-AIM", PropertyId::Messenger },
    Row{ "X-EVOLUTION-ANNIVERSARY", PropertyId::Anniversary },
    Row{ "X-EVOLUTION-ASSISTANT", PropertyId::Related },
    Row{ "X-EVOLUTION-GADUGADU", PropertyId::Messenger },
    Row{ "X-EVOLUTION-GOOGLE-TALK", PropertyId::Messenger },
    Row{ "X-EVOLUTION-GROUPWISE", PropertyId::Messenger },
    Row{ "X-EVOLUTION-ICQ", PropertyId::Messenger },
    Row{ "X-EVOLUTION-JABBER", PropertyId::Messenger },
    Row{ "X-EVOLUTION-MANAGER", PropertyId::Related },
    Row{ "X-EVOLUTION-MSN", PropertyId::Messenger },
    Row{ "X-EVOLUTION-QQ", PropertyId::Messenger },
    Row{ "X-EVOLUTION-SKYPE", PropertyId::Messenger },
    Row{ "X-EVOLUTION-SPOUSE", PropertyId::Related },
    Row{ "X-EVOLUTION-TWITTER", PropertyId::SocialProfile },
    Row{ "X-EVOLUTION-YAHOO", PropertyId::Messenger },
    Row{ "X-GADUGADU", PropertyId::Messenger },
    Row{ "X-GOOGLE-TALK", PropertyId::Messenger },
    Row{ "X-GROUPWISE", PropertyId::Messenger },
    Row{ "X-GTALK", PropertyId::Messenger },
    Row{ "X-ICQ", PropertyId::Messenger },
    Row{ "X-IRMC-CALL-DATETIME", PropertyId::CallTime },
    Row{ "X-JABBER", PropertyId::Messenger },
    Row{ "X-KADDRESSBOOK-X-ANNIVERSARY", PropertyId::Anniversary },
    Row{ "X-KADDRESSBOOK-X-ASSISTANTSNAME", PropertyId::Related },
    Row{ "X-KADDRESSBOOK-X-MANAGERSNAME", PropertyId::Related },
    Row{ "X-KADDRESSBOOK-X-SPOUSESNAME", PropertyId::Related },
    Row{ "X-MAIDENNAME", PropertyId::MaidenName },
    Row{ "X-MANAGER", PropertyId::Related },
    Row{ "X-MS-ANNIVERSARY", PropertyId::Anniversary },
    Row{ "X-MS-ASSISTANT", PropertyId::Related },
    Row{ "X-MS-CHILD", PropertyId::Related },
    Row{ "X-MS-IMADDRESS", PropertyId::Messenger },
    Row{ "X-MS-MANAGER", PropertyId::Related },
    Row{ "X-MS-SPOUSE", PropertyId::Related },
    Row{ "X-MSN", PropertyId::Messenger },
    Row{ "X-PHONETIC-FIRST-NAME", PropertyId::PhoneticGiven },
    Row{ "X-PHONETIC-LAST-NAME", PropertyId::PhoneticFamily },
    Row{ "X-PHONETIC-MIDDLE-NAME", PropertyId::PhoneticMiddle },
    Row{ "X-QQ", PropertyId::Messenger },
    Row{ "X-SKYPE", PropertyId::Messenger },
    Row{ "X-SKYPE-USERNAME", PropertyId::Messenger },
    Row{ "X-SOCIALPROFILE", PropertyId::SocialProfile },
    Row{ "X-SPOUSE", PropertyId::Related },
    Row{ "X-TWITTER", PropertyId::SocialProfile },
    Row{ "X-YAHOO", PropertyId::Messenger },
    Row{ "XML", PropertyId::Xml },
    Row{ "X-TELEGRAM", PropertyId::Messenger },
    Row{ "X-WHATSAPP", PropertyId::Messenger },
    Row{ "X-SIGNAL", PropertyId::Messenger },
    Row{ "X-MATRIX", PropertyId::Messenger },
    Row{ "X-SIP", PropertyId::Messenger },
    Row{ "X-KADDRESSBOOK-X-IMADDRESS", PropertyId::Messenger },
    Row{ "X-GOOGLETALK", PropertyId::Messenger },
    Row{ "X-DEATHDATE", PropertyId::DeathDate },
    Row{ "X-FACEBOOK", PropertyId::SocialProfile },
    Row{ "X-INSTAGRAM", PropertyId::SocialProfile },
    Row{ "X-LINKEDIN", PropertyId::SocialProfile },
    Row{ "X-BIRTHPLACE", PropertyId::BirthPlace },
    Row{ "X-CALADRURI", PropertyId::CalAdrUri },
    Row{ "X-CALURI", PropertyId::CalUri },
    Row{ "X-CATEGORIES", PropertyId::Categories },
    Row{ "X-CLASS", PropertyId::Class },
    Row{ "X-CLIENTPIDMAP", PropertyId::ClientPidMap },
    Row{ "X-CONTACT-URI", PropertyId::ContactUri },
    Row{ "X-CREATED", PropertyId::Created },
    Row{ "X-DEATHPLACE", PropertyId::DeathPlace },
    Row{ "X-EXPERTISE", PropertyId::Expertise },
    Row{ "X-FBURL", PropertyId::FbUrl },
    Row{ "X-GENDER", PropertyId::Gender },
    Row{ "X-GRAMGENDER", PropertyId::GramGender },
    Row{ "X-HOBBY", PropertyId::Hobby },
    Row{ "X-IMPP", PropertyId::Messenger },
    Row{ "X-INTEREST", PropertyId::Interest },
    Row{ "X-JSPROP", PropertyId::JsProp },
    Row{ "X-LANG", PropertyId::Lang },
    Row{ "X-LANGUAGE", PropertyId::Language },
    Row{ "X-MAILER", PropertyId::Mailer },
    Row{ "X-NAME", PropertyId::Name },
    Row{ "X-NICKNAME", PropertyId::Nickname },
    Row{ "X-ORG-DIRECTORY", PropertyId::OrgDirectory },
    Row{ "X-PRODID", PropertyId::ProdId },
    Row{ "X-PROFILE", PropertyId::Profile },
    Row{ "X-PRONOUNS", PropertyId::Pronouns },
    Row{ "X-SORT-STRING", PropertyId::SortString },
    Row{ "X-SOURCE", PropertyId::Source },
    Row{ "X-XML", PropertyId::Xml },
};

constexpr size_t s_kSlots = 512;
static_assert( s_kRows.size() <= std::numeric_limits<quint8>::max() );

// The first eight bytes of a name in upper case, and its length.
struct Key
{
    quint64 m_bytes = 0;
    size_t m_length = 0;

    constexpr Key() = default;
    constexpr explicit Key( std::string_view a_name ) :
        m_length( a_name.size() )
    {
        for ( size_t i = 0; i < a_name.size() && i < sizeof( m_bytes ); ++i )
            m_bytes |= quint64( static_cast<uchar>( a_name[i] ) ) << ( 8 * i );
        m_bytes = UpperOfEight( m_bytes );
    }

    // Many vendor names begin alike, so the length is a part of the hash.
    constexpr size_t Slot() const
    {
        const quint64 mixed = ( m_bytes + m_length * 0x9E3779B97F4A7C15ULL ) * 0xD6E8FEB86659FD93ULL;
        return static_cast<size_t>( mixed >> 55U );
    }
};

// A row as it is searched for. Most names have no more bytes than the key, so their rows are not read.
struct Slot
{
    quint64 m_bytes = 0;
    quint8 m_length = 0; // 0 if there is no row
    quint8 m_row = 0;
    PropertyId m_property = PropertyId::Other;

    bool IsFree() const { return m_length == 0; }
};

constexpr std::array<Slot, s_kSlots> FilledSlots()
{
    std::array<Slot, s_kSlots> filled = {};
    for ( size_t row = 0; row < s_kRows.size(); ++row )
    {
        const Key key( s_kRows[row].m_name );
        size_t slot = key.Slot();
        while ( filled[slot].m_length != 0 )
            slot = ( slot + 1 ) % s_kSlots;
        filled[slot] = { key.m_bytes, static_cast<quint8>( key.m_length ), static_cast<quint8>( row ),
                         s_kRows[row].m_property };
    }
    return filled;
}

constexpr std::array<Slot, s_kSlots> s_kFilledSlots = FilledSlots();

// The same as the constructor, which must work at compile time.
Key KeyOf( std::string_view a_text, size_t a_length )
{
    Key key;
    key.m_length = a_length;
    key.m_bytes = UpperOfEight( FirstEightOf( a_text, a_length ) );
    return key;
}

bool IsNameOf( const Slot& a_slot, const Key& a_key, std::string_view a_text )
{
    constexpr size_t length = sizeof( a_key.m_bytes );
    return a_slot.m_bytes == a_key.m_bytes && a_slot.m_length == a_key.m_length &&
           ( a_key.m_length <= length || IsSameWord( s_kRows[a_slot.m_row].m_name.substr( length ),
                                                     a_text.substr( length, a_key.m_length - length ) ) );
}

} // namespace

PropertyId PropertyOf( std::string_view a_name )
{
    return a_name.empty() ? PropertyId::Other : PropertyAt( a_name, a_name.size() );
}

PropertyId PropertyAt( std::string_view a_text, size_t a_length )
{
    const Key key = KeyOf( a_text, a_length );
    for ( size_t slot = key.Slot(); !s_kFilledSlots[slot].IsFree(); slot = ( slot + 1 ) % s_kSlots )
    {
        if ( IsNameOf( s_kFilledSlots[slot], key, a_text ) )
            return s_kFilledSlots[slot].m_property;
    }
    return PropertyId::Other;
}

PropertyId StandardPropertyOf( std::string_view a_name )
{
    return IsExtensionName( a_name ) ? PropertyId::Other : PropertyOf( a_name );
}

bool IsExtensionName( std::string_view a_name )
{
    return a_name.size() > 2 && Upper( a_name[0] ) == 'X' && a_name[1] == '-';
}

std::string_view NameOf( PropertyId a_property )
{
    const auto* const row = std::find_if( s_kRows.begin(), s_kRows.end(),
                                          [a_property]( const Row& a_row ) {
                                              return a_row.m_property == a_property && !IsExtensionName( a_row.m_name );
                                          } );
    return row == s_kRows.end() ? std::string_view() : row->m_name;
}

} // namespace PimManager::Contacts
