#include "Contact/Messenger.h"

#include "Contact/KindWords.h"
#include "Contact/UriPieces.h"
#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/PercentEncoding.h"
#include "Text/WhiteSpace.h"
#include "Text/WordTable.h"
#include "Values/ParameterReader.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace PimManager::Contacts
{

namespace
{

using namespace std::string_view_literals;

using Service = MessengerService;

constexpr Service s_kAim = { "AIM", "aim:", "X-AIM" };
constexpr Service s_kFacebook = { "Facebook", "", "X-FACEBOOK" };
constexpr Service s_kGaduGadu = { "Gadu-Gadu", "gg:", "X-GADUGADU" };
constexpr Service s_kGoogleTalk = { "Google Talk", "gtalk:", "X-GOOGLE-TALK" };
constexpr Service s_kGroupWise = { "GroupWise", "", "X-GROUPWISE" };
constexpr Service s_kIcq = { "ICQ", "icq:", "X-ICQ" };
constexpr Service s_kInstagram = { "Instagram", "", "" };
constexpr Service s_kLinkedIn = { "LinkedIn", "", "" };
constexpr Service s_kMatrix = { "Matrix", "matrix:", "X-MATRIX" };
constexpr Service s_kMsn = { "MSN", "msnim:", "X-MSN" };
constexpr Service s_kQq = { "QQ", "", "X-QQ" };
constexpr Service s_kSignal = { "Signal", "", "X-SIGNAL" };
constexpr Service s_kSip = { "SIP", "sip:", "X-SIP" };
constexpr Service s_kSkype = { "Skype", "skype:", "X-SKYPE" };
constexpr Service s_kTelegram = { "Telegram", "tg:", "X-TELEGRAM" };
constexpr Service s_kTwitter = { "Twitter", "", "X-TWITTER" };
constexpr Service s_kWhatsApp = { "WhatsApp", "whatsapp:", "X-WHATSAPP" };
constexpr Service s_kXmpp = { "XMPP", "xmpp:", "X-JABBER" };
constexpr Service s_kYahoo = { "Yahoo", "ymsgr:", "X-YAHOO" };

using ServiceRow = WordRow<const Service*>;

// Letters and digits only.
constexpr WordTable s_kServices( std::array{
    ServiceRow{ "AIM", &s_kAim },
    ServiceRow{ "FACEBOOK", &s_kFacebook },
    ServiceRow{ "GADU", &s_kGaduGadu },
    ServiceRow{ "GADUGADU", &s_kGaduGadu },
    ServiceRow{ "GOOGLETALK", &s_kGoogleTalk },
    ServiceRow{ "GTALK", &s_kGoogleTalk },
    ServiceRow{ "GROUPWISE", &s_kGroupWise },
    ServiceRow{ "ICQ", &s_kIcq },
    ServiceRow{ "INSTAGRAM", &s_kInstagram },
    ServiceRow{ "LINKEDIN", &s_kLinkedIn },
    ServiceRow{ "MATRIX", &s_kMatrix },
    ServiceRow{ "MSN", &s_kMsn },
    ServiceRow{ "QQ", &s_kQq },
    ServiceRow{ "SIGNAL", &s_kSignal },
    ServiceRow{ "SIP", &s_kSip },
    ServiceRow{ "SKYPE", &s_kSkype },
    ServiceRow{ "SKYPEUSERNAME", &s_kSkype },
    ServiceRow{ "TELEGRAM", &s_kTelegram },
    ServiceRow{ "TWITTER", &s_kTwitter },
    ServiceRow{ "WHATSAPP", &s_kWhatsApp },
    ServiceRow{ "XMPP", &s_kXmpp },
    ServiceRow{ "JABBER", &s_kXmpp },
    ServiceRow{ "YAHOO", &s_kYahoo },
} );
static_assert( s_kServices.HasAllWords() );

// The position of the user name after a scheme.
enum class Form
{
    Path,   // skype:omega?chat
    Query,  // aim:goim?screenname=omega, ymsgr:sendIM?omega, or as in Path if there is no query
    Call,   // sip:omega@example.com;transport=tcp
    Matrix, // matrix:u/omega:example.com
};

struct SchemeRow
{
    std::string_view m_scheme;
    const Service* m_service;
    Form m_form;
};

constexpr std::array s_kSchemes = {
    SchemeRow{ s_kAim.m_scheme, &s_kAim, Form::Query },
    SchemeRow{ s_kGaduGadu.m_scheme, &s_kGaduGadu, Form::Path },
    SchemeRow{ s_kGoogleTalk.m_scheme, &s_kGoogleTalk, Form::Query },
    SchemeRow{ s_kIcq.m_scheme, &s_kIcq, Form::Query },
    SchemeRow{ s_kMatrix.m_scheme, &s_kMatrix, Form::Matrix },
    SchemeRow{ s_kMsn.m_scheme, &s_kMsn, Form::Query },
    SchemeRow{ s_kSip.m_scheme, &s_kSip, Form::Call },
    SchemeRow{ "sips:", &s_kSip, Form::Call },
    SchemeRow{ s_kSkype.m_scheme, &s_kSkype, Form::Path },
    SchemeRow{ s_kTelegram.m_scheme, &s_kTelegram, Form::Query },
    SchemeRow{ s_kWhatsApp.m_scheme, &s_kWhatsApp, Form::Query },
    SchemeRow{ s_kXmpp.m_scheme, &s_kXmpp, Form::Path },
    SchemeRow{ s_kYahoo.m_scheme, &s_kYahoo, Form::Query },
    SchemeRow{ "im:", nullptr, Form::Path },
    SchemeRow{ "tel:", nullptr, Form::Call },
};

struct ProfileRow
{
    std::string_view m_begin; // of a web address after "www."
    const Service* m_service;
};

constexpr std::array s_kProfiles = {
    ProfileRow{ "facebook.com/", &s_kFacebook },    ProfileRow{ "instagram.com/", &s_kInstagram },
    ProfileRow{ "linkedin.com/in/", &s_kLinkedIn }, ProfileRow{ "t.me/", &s_kTelegram },
    ProfileRow{ "twitter.com/", &s_kTwitter },      ProfileRow{ "wa.me/", &s_kWhatsApp },
};

constexpr std::array s_kUserFields = { "screenname"sv, "contact"sv, "uin"sv, "jid"sv, "domain"sv, "phone"sv };

// Names that do not name a service.
constexpr std::array s_kGeneralNames = { "IMPP"sv,           "SOCIALPROFILE"sv, "X-SOCIALPROFILE"sv,
                                         "X-MS-IMADDRESS"sv, "X-IMPP"sv,        "X-KADDRESSBOOK-X-IMADDRESS"sv };

template <size_t s_kSize>
bool IsOneOf( std::string_view a_word, const std::array<std::string_view, s_kSize>& a_words )
{
    return std::any_of( a_words.begin(), a_words.end(),
                        [a_word]( std::string_view a_other ) { return IsSameWord( a_word, a_other ); } );
}

bool IsSocialProfile( std::string_view a_property )
{
    return IsSameWord( a_property, "X-SOCIALPROFILE" );
}

const Service* ServiceOfProperty( std::string_view a_property )
{
    const std::string_view name = WithoutExtensionMark( a_property );
    if ( name.size() == a_property.size() )
        return nullptr;
    std::string_view service = name;
    if ( RemoveScheme( service, "messaging/" ) )
        service = service.substr( 0, service.rfind( '-' ) );
    return MessengerServiceOf( service );
}

/// \return the value of the first of these parameters that exists, without white space at both ends.
std::string_view ParameterOf( const LineParameters& a_parameters, std::initializer_list<std::string_view> a_names )
{
    for ( const std::string_view name : a_names )
    {
        const size_t index = a_parameters.Names().Find( name );
        if ( index != WordGroups::s_kNone )
            return WithoutOuterSpace( a_parameters.Value( index ) );
    }
    return std::string_view();
}

std::string_view NameOf( const Service* a_service, std::string_view a_written )
{
    return a_service == nullptr ? a_written : a_service->m_name;
}

/// \return the service in the words of TYPE, empty if there is none.
std::string_view ServiceOfTypes( bool a_isSocialProfile, const LineParameters& a_parameters )
{
    for ( size_t i = 0; i < a_parameters.Types().Size(); ++i )
    {
        const std::string_view word = a_parameters.Types().Word( i );
        const Service* const service = MessengerServiceOf( word );
        if ( service != nullptr || ( a_isSocialProfile && !KindsOf( word ) ) )
            return NameOf( service, word );
    }
    return std::string_view();
}

/// \return the service in the part before the value, empty if there is none.
std::string_view ServiceName( std::string_view a_property, const LineParameters& a_parameters )
{
    const std::string_view name = ParameterOf( a_parameters, { "X-SERVICE-TYPE", "SERVICE-TYPE" } );
    if ( !name.empty() )
        return NameOf( MessengerServiceOf( name ), name );
    if ( const Service* const service = ServiceOfProperty( a_property ) )
        return service->m_name;
    return ServiceOfTypes( IsSocialProfile( a_property ), a_parameters );
}

/// The parts of an address. A missing part is empty.
struct Address
{
    const Service* m_service = nullptr;
    std::string_view m_sign; // belongs before the user name
    std::string_view m_user; // percent-encoded
    bool m_isUri = false;
};

std::string_view UserInQuery( std::string_view a_query )
{
    std::string_view rest = a_query;
    while ( !rest.empty() )
    {
        const std::string_view field = TakeUpTo( '&', rest );
        const size_t equals = field.find( '=' );
        if ( equals == std::string_view::npos )
            return field;
        if ( IsOneOf( field.substr( 0, equals ), s_kUserFields ) )
            return field.substr( equals + 1 );
    }
    return std::string_view();
}

// xmpp://account@example.net/omega@example.com begins with the sender (RFC 5122, section 2.4).
std::string_view WithoutAuthority( std::string_view a_text )
{
    if ( a_text.substr( 0, 2 ) != "//" )
        return a_text;
    const size_t slash = a_text.find( '/', 2 );
    return a_text.substr( slash == std::string_view::npos ? 2 : slash + 1 );
}

void ReadUser( std::string_view a_text, Form a_form, Address& a_address )
{
    const std::string_view text = WithoutAuthority( a_text );
    const size_t question = text.find( '?' );
    a_address.m_user = text.substr( 0, question );
    if ( a_form == Form::Query && question != std::string_view::npos )
        a_address.m_user = UserInQuery( text.substr( question + 1 ) );
    else if ( a_form == Form::Call )
        a_address.m_user = a_address.m_user.substr( 0, a_address.m_user.find( ';' ) );
    else if ( a_form == Form::Matrix && RemoveScheme( a_address.m_user, "u/" ) )
        a_address.m_sign = "@";
}

bool IsSchemeByte( char a_byte )
{
    return IsNameByte( a_byte ) || a_byte == '+' || a_byte == '.';
}

/// \return the length of a scheme with its colon; 0 if there is none.
size_t LengthOfScheme( std::string_view a_text )
{
    const auto* const end = std::find_if_not( a_text.begin(), a_text.end(), IsSchemeByte );
    const auto length = static_cast<size_t>( end - a_text.begin() );
    return length > 0 && length < a_text.size() && a_text[length] == ':' ? length + 1 : 0;
}

Address ProfileOf( std::string_view a_text )
{
    Address address;
    address.m_isUri = true;
    std::string_view text = a_text;
    RemoveScheme( text, "www." );
    for ( const ProfileRow& row : s_kProfiles )
    {
        if ( !RemoveScheme( text, row.m_begin ) )
            continue;
        address.m_service = row.m_service;
        if ( !text.empty() && text.back() == '/' )
            text.remove_suffix( 1 );
        if ( text.find_first_of( "/?#" ) == std::string_view::npos )
            address.m_user = text;
    }
    return address;
}

/// \param a_isUri true if the value is a URI even if its scheme is unknown.
Address AddressOf( std::string_view a_value, bool a_isUri )
{
    Address address;
    std::string_view text = a_value;
    address.m_isUri = RemoveScheme( text, "x-apple:" );
    if ( RemoveScheme( text, "https://" ) || RemoveScheme( text, "http://" ) )
        return ProfileOf( text );
    for ( const SchemeRow& row : s_kSchemes )
    {
        if ( !RemoveScheme( text, row.m_scheme ) )
            continue;
        address.m_isUri = true;
        address.m_service = row.m_service;
        ReadUser( text, row.m_form, address );
        return address;
    }
    address.m_user = text;
    const size_t scheme = a_isUri && !address.m_isUri ? LengthOfScheme( text ) : 0;
    address.m_isUri |= scheme > 0;
    if ( scheme > 0 )
        ReadUser( text.substr( scheme ), Form::Path, address );
    return address;
}

std::string_view HandleOf( const Address& a_address, QByteArray& a_buffer )
{
    if ( a_address.m_sign.empty() && ( !a_address.m_isUri || a_address.m_user.find( '%' ) == std::string_view::npos ) )
        return WithoutOuterSpace( a_address.m_user );
    Empty( a_buffer );
    Append( a_buffer, a_address.m_sign );
    AppendPercentDecoded( a_address.m_user, a_buffer );
    return WithoutOuterSpace( ViewOf( a_buffer ) );
}

} // namespace

const MessengerService* MessengerServiceOf( std::string_view a_name )
{
    std::array<char, 16> letters{};
    size_t size = 0;
    for ( const char byte : a_name )
    {
        if ( IsAsciiByte( byte ) && ( !IsNameByte( byte ) || byte == '-' ) )
            continue;
        if ( size == letters.size() )
            return nullptr;
        letters.at( size++ ) = byte;
    }
    return s_kServices.Of( std::string_view( letters.data(), size ), nullptr );
}

bool IsMessengerName( std::string_view a_property )
{
    return IsOneOf( a_property, s_kGeneralNames ) || ServiceOfProperty( a_property ) != nullptr;
}

MessengerParts MessengerPartsOf( std::string_view a_property, std::string_view a_value,
                                 const LineParameters& a_parameters, QByteArray& a_buffer )
{
    const std::string_view value = WithoutOuterSpace( a_value );
    const bool isText = IsSameWord( ParameterOf( a_parameters, { s_kValueParameter } ), "TEXT" );
    Address address;
    if ( isText )
        address.m_user = value;
    else
        address = AddressOf( value, ServiceOfProperty( a_property ) == nullptr );

    MessengerParts parts;
    parts.m_service = ServiceName( a_property, a_parameters );
    if ( parts.m_service.empty() )
        parts.m_service = NameOf( address.m_service, std::string_view() );
    parts.m_handle = ParameterOf( a_parameters, { "X-USER", "USERNAME" } );
    if ( parts.m_handle.empty() )
        parts.m_handle = HandleOf( address, a_buffer );
    if ( parts.m_handle.empty() )
        parts.m_handle = ParameterOf( a_parameters, { "X-USERID" } );
    parts.m_address = address.m_isUri ? value : std::string_view();
    return parts;
}

} // namespace PimManager::Contacts
