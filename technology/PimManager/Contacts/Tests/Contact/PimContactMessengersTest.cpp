#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

std::string ShownMessengers( const PimContact& a_contact )
{
    return ShownList( a_contact.Messengers(),
                      []( const PimContactMessenger& a_account )
                      {
                          return a_account.Service().toStdString() + ':' + a_account.Handle().toStdString() +
                                 Named( "uri", a_account.Address() ) + ShownKinds( a_account.Kinds() ) +
                                 ShownCommon( a_account ) + ( a_account.IsSocialProfile() ? " social" : "" );
                      } );
}

// Services, users and addresses in all their forms are rows of MessengerTest.
constexpr std::array s_kRows = {
    ContactRow{ "4.0", "IMPP;TYPE=work;PREF=1:xmpp:omega@example.com",
                "XMPP:omega@example.com uri=xmpp:omega@example.com {Work} types=WORK pref=1" },
    ContactRow{ "3.0", "IMPP;X-SERVICE-TYPE=Skype;type=HOME;type=pref:skype:omega",
                "Skype:omega uri=skype:omega {Home} types=HOME pref=1" },
    ContactRow{ "3.0", "a.IMPP;X-SERVICE-TYPE=Teatime:x-apple:omega\r\na.X-ABLabel:club",
                "Teatime:omega uri=x-apple:omega label=club" },
    ContactRow{ "3.0", "IMPP;TYPE=home,skype:omega", "Skype:omega {Home} types=HOME|SKYPE" },
    ContactRow{ "3.0", "IMPP;TYPE=Club:xmpp:a@b", "XMPP:a@b uri=xmpp:a@b label=Club types=CLUB" },
    ContactRow{ "3.0", "IMPP:\r\nX-AIM: \r\nSOCIALPROFILE:", "" },
    ContactRow{ "4.0", "SOCIALPROFILE;SERVICE-TYPE=Mastodon;USERNAME=omega:https://example.com/@omega",
                "Mastodon:omega uri=https://example.com/@omega social" },
    ContactRow{ "4.0", "SOCIALPROFILE;SERVICE-TYPE=Teatime;VALUE=text:omega", "Teatime:omega social" },
    ContactRow{ "3.0", "X-SOCIALPROFILE;type=twitter;x-user=omega:http://twitter.com/omega",
                "Twitter:omega uri=http://twitter.com/omega types=TWITTER social" },
    ContactRow{ "3.0", "X-SOCIALPROFILE;type=Flickr;type=work:http://example.com/omega",
                "Flickr: uri=http://example.com/omega {Work} types=FLICKR|WORK social" },
    ContactRow{ "3.0",
                "X-messaging/xmpp-All:a@b\xEE\x80\x80"
                "c@d\r\nX-messaging/aim-All:e\xEE\x80\x80\xEE\x80\x80",
                "XMPP:a@b / XMPP:c@d / AIM:e" },
    ContactRow{ "3.0",
                "X-messaging/skype-All:a\xEE\x80\x80"
                "a\r\nX-AIM:a\xEE\x80\x80"
                "b",
                "Skype:a / Skype:a / AIM:a\xEE\x80\x80"
                "b" },
    ContactRow{ "2.1", "X-QQ;HOME;ENCODING=QUOTED-PRINTABLE:55=35=30", "QQ:5550 {Home} types=HOME" },
};

struct PropertyRow
{
    const char* m_property;
    const char* m_service;
};

constexpr std::array s_kMessengers = {
    PropertyRow{ "X-AIM", "AIM" },
    PropertyRow{ "X-EVOLUTION-AIM", "AIM" },
    PropertyRow{ "X-EVOLUTION-GADUGADU", "Gadu-Gadu" },
    PropertyRow{ "X-EVOLUTION-GOOGLE-TALK", "Google Talk" },
    PropertyRow{ "X-EVOLUTION-GROUPWISE", "GroupWise" },
    PropertyRow{ "X-EVOLUTION-ICQ", "ICQ" },
    PropertyRow{ "X-EVOLUTION-JABBER", "XMPP" },
    PropertyRow{ "X-EVOLUTION-MSN", "MSN" },
    PropertyRow{ "X-EVOLUTION-QQ", "QQ" },
    PropertyRow{ "X-EVOLUTION-SKYPE", "Skype" },
    PropertyRow{ "X-EVOLUTION-YAHOO", "Yahoo" },
    PropertyRow{ "X-GADUGADU", "Gadu-Gadu" },
    PropertyRow{ "X-GOOGLE-TALK", "Google Talk" },
    PropertyRow{ "X-GOOGLETALK", "Google Talk" },
    PropertyRow{ "X-GROUPWISE", "GroupWise" },
    PropertyRow{ "X-GTALK", "Google Talk" },
    PropertyRow{ "X-ICQ", "ICQ" },
    PropertyRow{ "X-JABBER", "XMPP" },
    PropertyRow{ "X-KADDRESSBOOK-X-IMAddress", "" },
    PropertyRow{ "X-MATRIX", "Matrix" },
    PropertyRow{ "X-MS-IMADDRESS", "" },
    PropertyRow{ "X-MSN", "MSN" },
    PropertyRow{ "X-QQ", "QQ" },
    PropertyRow{ "X-SIGNAL", "Signal" },
    PropertyRow{ "X-SIP", "SIP" },
    PropertyRow{ "X-SKYPE", "Skype" },
    PropertyRow{ "X-SKYPE-USERNAME", "Skype" },
    PropertyRow{ "X-TELEGRAM", "Telegram" },
    PropertyRow{ "X-WHATSAPP", "WhatsApp" },
    PropertyRow{ "X-YAHOO", "Yahoo" },
    PropertyRow{ "x-messaging/gadu-All", "Gadu-Gadu" },
};

constexpr std::array s_kSocialProfiles = {
    PropertyRow{ "X-EVOLUTION-TWITTER", "Twitter" }, PropertyRow{ "X-FACEBOOK", "Facebook" },
    PropertyRow{ "X-INSTAGRAM", "Instagram" },       PropertyRow{ "X-LINKEDIN", "LinkedIn" },
    PropertyRow{ "X-TWITTER", "Twitter" },
};

template <size_t s_kSize>
void ExpectProperties( const std::array<PropertyRow, s_kSize>& a_rows, const char* a_behind )
{
    for ( const PropertyRow& row : a_rows )
    {
        const PimContact contact = ContactWith( QByteArray( row.m_property ) + ";TYPE=WORK:omega", "3.0" );
        EXPECT_EQ( ShownMessengers( contact ),
                   row.m_service + ( ":omega {Work} types=WORK" + std::string( a_behind ) ) )
            << row.m_property;
    }
}

} // namespace

TEST( PimContactMessengersTest, AccountsAreRead )
{
    ExpectRows( s_kRows, ShownMessengers );
}

TEST( PimContactMessengersTest, PropertiesOfVendorsNameTheService )
{
    ExpectProperties( s_kMessengers, "" );
    ExpectProperties( s_kSocialProfiles, " social" );
}

TEST( PimContactMessengersTest, OtherPropertiesAreNoMessengers )
{
    const PimContact contact =
        ContactWith( "X-messaging/unknown-All:a\r\nX-messaging:a\r\nX-OTHER/aim-All:a\r\nAIM:a\r\nX-AIMS:a", "3.0" );
    EXPECT_TRUE( contact.Messengers().isEmpty() );
    EXPECT_EQ( contact.OtherLines().size(), 5 );
}

} // namespace PimManager::Contacts
