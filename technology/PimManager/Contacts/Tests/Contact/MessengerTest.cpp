#include "Contact/Messenger.h"

#include "OneLine.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    const char* m_line;
    const char* m_service;
    const char* m_handle;
    const char* m_address;
};

constexpr std::array s_kUris = {
    Row{ "IMPP:xmpp:omega@example.com", "XMPP", "omega@example.com", "xmpp:omega@example.com" },
    Row{ "IMPP:XMPP:omega@example.com?message", "XMPP", "omega@example.com", "XMPP:omega@example.com?message" },
    Row{ "IMPP:xmpp://me@example.net/omega@example.com", "XMPP", "omega@example.com",
         "xmpp://me@example.net/omega@example.com" },
    Row{ "IMPP:xmpp://omega@example.com", "XMPP", "omega@example.com", "xmpp://omega@example.com" },
    Row{ "IMPP:aim:goim?screenname=omega&message=hi", "AIM", "omega", "aim:goim?screenname=omega&message=hi" },
    Row{ "IMPP:aim:goim?message=hi&screenname=omega", "AIM", "omega", "aim:goim?message=hi&screenname=omega" },
    Row{ "IMPP:aim:goim?message=hi", "AIM", "", "aim:goim?message=hi" },
    Row{ "IMPP:aim:omega%20iota", "AIM", "omega iota", "aim:omega%20iota" },
    Row{ "IMPP:ymsgr:sendIM?omega", "Yahoo", "omega", "ymsgr:sendIM?omega" },
    Row{ "IMPP:skype:omega?chat", "Skype", "omega", "skype:omega?chat" },
    Row{ "IMPP:msnim:chat?contact=omega@example.com", "MSN", "omega@example.com",
         "msnim:chat?contact=omega@example.com" },
    Row{ "IMPP:icq:goim?uin=5550", "ICQ", "5550", "icq:goim?uin=5550" },
    Row{ "IMPP:icq:5550", "ICQ", "5550", "icq:5550" },
    Row{ "IMPP:gg:5550", "Gadu-Gadu", "5550", "gg:5550" },
    Row{ "IMPP:gtalk:chat?jid=omega@example.com", "Google Talk", "omega@example.com",
         "gtalk:chat?jid=omega@example.com" },
    Row{ "IMPP:tg://resolve?domain=omega", "Telegram", "omega", "tg://resolve?domain=omega" },
    Row{ "IMPP:whatsapp://send?text=hi&phone=5550", "WhatsApp", "5550", "whatsapp://send?text=hi&phone=5550" },
    Row{ "IMPP:sip:omega@example.com;transport=tcp?x", "SIP", "omega@example.com",
         "sip:omega@example.com;transport=tcp?x" },
    Row{ "IMPP:sips:omega@example.com", "SIP", "omega@example.com", "sips:omega@example.com" },
    Row{ "IMPP:tel:+1-555;ext=2", "", "+1-555", "tel:+1-555;ext=2" },
    Row{ "IMPP:im:omega@example.com", "", "omega@example.com", "im:omega@example.com" },
    Row{ "IMPP:matrix:u/omega:example.com?action=chat", "Matrix", "@omega:example.com",
         "matrix:u/omega:example.com?action=chat" },
    Row{ "IMPP:matrix:@omega:example.com", "Matrix", "@omega:example.com", "matrix:@omega:example.com" },
    Row{ "IMPP:x-apple:aim:omega", "AIM", "omega", "x-apple:aim:omega" },
    Row{ "IMPP:x-apple:omega", "", "omega", "x-apple:omega" },
    Row{ "IMPP:other:omega?x", "", "omega", "other:omega?x" },
    Row{ "IMPP:omega", "", "omega", "" },
    Row{ "IMPP:@omega:example.com", "", "@omega:example.com", "" },
    Row{ "IMPP:omega%20iota", "", "omega%20iota", "" },
    Row{ "IMPP;VALUE=text:skype:omega", "", "skype:omega", "" },
    Row{ "IMPP;X-SERVICE-TYPE=Facebook;TYPE=HOME:xmpp:omega", "Facebook", "omega", "xmpp:omega" },
    Row{ "IMPP;x-service-type=googletalk:xmpp:omega@example.com", "Google Talk", "omega@example.com",
         "xmpp:omega@example.com" },
    Row{ "IMPP;X-SERVICE-TYPE=Jabber:x-apple:omega", "XMPP", "omega", "x-apple:omega" },
    Row{ "IMPP;SERVICE-TYPE=Teatime:im:omega@example.com", "Teatime", "omega@example.com", "im:omega@example.com" },
    Row{ "IMPP;SERVICE-TYPE=\"a service whose name is long\":omega", "a service whose name is long", "omega", "" },
    Row{ "IMPP;TYPE=home,skype:omega", "Skype", "omega", "" },
    Row{ "IMPP;X-TEAMIDENTIFIER=1;X-DISPLAYNAME=x:skype:omega", "Skype", "omega", "skype:omega" },
    Row{ "IMPP:aim:", "AIM", "", "aim:" },
    Row{ "IMPP:xmpp://", "XMPP", "", "xmpp://" },
    Row{ "IMPP:", "", "", "" },
};

constexpr std::array s_kVendorLines = {
    Row{ "X-AIM:omega", "AIM", "omega", "" },
    Row{ "X-ICQ;TYPE=WORK:5550", "ICQ", "5550", "" },
    Row{ "X-MSN:omega@example.com", "MSN", "omega@example.com", "" },
    Row{ "X-JABBER:omega@example.com", "XMPP", "omega@example.com", "" },
    Row{ "X-JABBER:xmpp:omega@example.com", "XMPP", "omega@example.com", "xmpp:omega@example.com" },
    Row{ "X-SKYPE:live:omega", "Skype", "live:omega", "" },
    Row{ "x-skype-username: omega ", "Skype", "omega", "" },
    Row{ "X-QQ:5550", "QQ", "5550", "" },
    Row{ "X-YAHOO:omega%20", "Yahoo", "omega%20", "" },
    Row{ "X-GOOGLE-TALK:omega@example.com", "Google Talk", "omega@example.com", "" },
    Row{ "X-GTALK:omega@example.com", "Google Talk", "omega@example.com", "" },
    Row{ "X-GADUGADU:5550", "Gadu-Gadu", "5550", "" },
    Row{ "X-GROUPWISE:omega", "GroupWise", "omega", "" },
    Row{ "X-EVOLUTION-GROUPWISE:omega", "GroupWise", "omega", "" },
    Row{ "X-TWITTER:omega", "Twitter", "omega", "" },
    Row{ "X-EVOLUTION-TWITTER:omega", "Twitter", "omega", "" },
    Row{ "X-TELEGRAM:omega", "Telegram", "omega", "" },
    Row{ "X-MS-IMADDRESS:omega@example.com", "", "omega@example.com", "" },
    Row{ "X-KADDRESSBOOK-X-IMAddress:omega", "", "omega", "" },
    Row{ "X-messaging/aim-All:omega", "AIM", "omega", "" },
    Row{ "X-messaging/xmpp-All:omega@example.com", "XMPP", "omega@example.com", "" },
};

constexpr std::array s_kProfileRows = {
    Row{ "X-SOCIALPROFILE;type=twitter;x-user=omega:http://twitter.com/iota", "Twitter", "omega",
         "http://twitter.com/iota" },
    Row{ "X-SOCIALPROFILE;TYPE=HOME,Flickr:http://www.example.com/photos/omega/", "Flickr", "",
         "http://www.example.com/photos/omega/" },
    Row{ "X-SOCIALPROFILE;type=facebook;x-userid=5550:https://www.facebook.com/profile.php?id=5550", "Facebook", "5550",
         "https://www.facebook.com/profile.php?id=5550" },
    Row{ "X-SOCIALPROFILE;type=work:https://Twitter.com/omega/", "Twitter", "omega", "https://Twitter.com/omega/" },
    Row{ "X-SOCIALPROFILE;type=gamecenter;x-user=omega:x-apple:omega", "gamecenter", "omega", "x-apple:omega" },
    Row{ "SOCIALPROFILE;SERVICE-TYPE=Mastodon:https://example.com/@omega", "Mastodon", "",
         "https://example.com/@omega" },
    Row{ "SOCIALPROFILE;SERVICE-TYPE=Teatime;USERNAME=\"omega iota\":https://example.com/omega", "Teatime",
         "omega iota", "https://example.com/omega" },
    Row{ "SOCIALPROFILE;VALUE=text;SERVICE-TYPE=Teatime:omega:iota", "Teatime", "omega:iota", "" },
    Row{ "SOCIALPROFILE;TYPE=boat:https://www.linkedin.com/in/omega-iota", "LinkedIn", "omega-iota",
         "https://www.linkedin.com/in/omega-iota" },
    Row{ "SOCIALPROFILE:https://t.me/omega", "Telegram", "omega", "https://t.me/omega" },
    Row{ "SOCIALPROFILE:https://twitter.com/omega/status/1", "Twitter", "", "https://twitter.com/omega/status/1" },
    Row{ "SOCIALPROFILE:https://twitter.com/", "Twitter", "", "https://twitter.com/" },
    Row{ "SOCIALPROFILE:https://twitter.com.example.com/omega", "", "", "https://twitter.com.example.com/omega" },
    Row{ "X-TWITTER:https://twitter.com/omega", "Twitter", "omega", "https://twitter.com/omega" },
    Row{ "SOCIALPROFILE;USERNAME=omega:", "", "omega", "" },
};

template <size_t s_kSize>
void ExpectParts( const std::array<Row, s_kSize>& a_rows )
{
    ValueDecoder decoder;
    LineParameters parameters;
    QByteArray name;
    QByteArray buffer;
    for ( const Row& row : a_rows )
    {
        const PimContactLine line = OneLine( row.m_line );
        const IndexedLine indexed = PimContactCardPrivate::LineView::LineOf( line );
        parameters.Read( indexed );
        decoder.Decode( indexed );
        const std::string_view property = indexed.Name( name );
        EXPECT_TRUE( IsMessengerName( property ) ) << row.m_line;
        const MessengerParts parts = MessengerPartsOf( property, decoder.Text(), parameters, buffer );
        EXPECT_EQ( parts.m_service, row.m_service ) << row.m_line;
        EXPECT_EQ( parts.m_handle, row.m_handle ) << row.m_line;
        EXPECT_EQ( parts.m_address, row.m_address ) << row.m_line;
    }
}

struct ServiceRow
{
    const char* m_name;
    const char* m_service;
    const char* m_scheme;
    const char* m_property;
};

constexpr std::array s_kServiceRows = {
    ServiceRow{ "aim", "AIM", "aim:", "X-AIM" },
    ServiceRow{ "GoogleTalk", "Google Talk", "gtalk:", "X-GOOGLE-TALK" },
    ServiceRow{ "GOOGLE-TALK", "Google Talk", "gtalk:", "X-GOOGLE-TALK" },
    ServiceRow{ "Gadu-Gadu", "Gadu-Gadu", "gg:", "X-GADUGADU" },
    ServiceRow{ "Jabber", "XMPP", "xmpp:", "X-JABBER" },
    ServiceRow{ "Yahoo!", "Yahoo", "ymsgr:", "X-YAHOO" },
    ServiceRow{ "LinkedIn", "LinkedIn", "", "" },
    ServiceRow{ "QQ", "QQ", "", "X-QQ" },
};

} // namespace

TEST( MessengerTest, UrisAreRead )
{
    ExpectParts( s_kUris );
}

TEST( MessengerTest, PropertiesOfServicesAreRead )
{
    ExpectParts( s_kVendorLines );
}

TEST( MessengerTest, ProfilesAreRead )
{
    ExpectParts( s_kProfileRows );
}

TEST( MessengerTest, OtherPropertiesAreNone )
{
    for ( const char* const name :
          { "TEL", "URL", "AIM", "X-", "X-EVOLUTION-", "X-AIMS", "X-messaging/", "X-messaging/-",
            "X-messaging/other-All", "messaging/aim-All", "X-EVOLUTION-BLOG-URL", "" } )
        EXPECT_FALSE( IsMessengerName( name ) ) << name;
}

TEST( MessengerTest, ServicesAreFoundByName )
{
    for ( const ServiceRow& row : s_kServiceRows )
    {
        const MessengerService* const service = MessengerServiceOf( row.m_name );
        ASSERT_NE( service, nullptr ) << row.m_name;
        EXPECT_EQ( service->m_name, row.m_service ) << row.m_name;
        EXPECT_EQ( service->m_scheme, row.m_scheme ) << row.m_name;
        EXPECT_EQ( service->m_property, row.m_property ) << row.m_name;
    }
    for ( const char* const name : { "", "-", "Mastodon", "AIMS", "a name of more than sixteen letters",
                                     "\xCE\xA9"
                                     "AIM" } )
        EXPECT_EQ( MessengerServiceOf( name ), nullptr ) << name;
}

} // namespace PimManager::Contacts
