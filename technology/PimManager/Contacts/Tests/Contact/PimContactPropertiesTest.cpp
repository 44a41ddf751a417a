// The properties with one text, one date or one position.

#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Text = QString ( PimContact::* )() const;
using Date = PimContactDate ( PimContact::* )() const;
using Texts = PimContactList<PimContactText> ( PimContact::* )() const;

template <class Function>
struct Property
{
    const char* m_name;
    Function m_function;
};

const std::array s_kSingleTexts = {
    Property<Text>{ "UID", &PimContact::Uid },
    Property<Text>{ "CLASS", &PimContact::Classification },
    Property<Text>{ "MAILER", &PimContact::Mailer },
    Property<Text>{ "PRODID", &PimContact::ProductId },
    Property<Text>{ "LANGUAGE", &PimContact::DefaultLanguage },
    Property<Text>{ "TZ", &PimContact::TimeZone },
};

const std::array s_kDates = {
    Property<Date>{ "REV", &PimContact::Revision },
    Property<Date>{ "CREATED", &PimContact::Created },
    Property<Date>{ "X-IRMC-CALL-DATETIME", &PimContact::CallTime },
};

const std::array s_kTexts = {
    Property<Texts>{ "NOTE", &PimContact::Notes },
    Property<Texts>{ "URL", &PimContact::Urls },
    Property<Texts>{ "CONTACT-URI", &PimContact::ContactUris },
    Property<Texts>{ "LANG", &PimContact::SpokenLanguages },
    Property<Texts>{ "GRAMGENDER", &PimContact::GrammaticalGenders },
    Property<Texts>{ "PRONOUNS", &PimContact::Pronouns },
    Property<Texts>{ "CALURI", &PimContact::CalendarUris },
    Property<Texts>{ "CALADRURI", &PimContact::CalendarAddresses },
    Property<Texts>{ "FBURL", &PimContact::FreeBusyUris },
    Property<Texts>{ "SOURCE", &PimContact::Sources },
    Property<Texts>{ "XML", &PimContact::Xml },
};

constexpr std::array s_kUrls = {
    ContactRow{ "3.0", "item1.URL;type=pref:http\\://example.com/a\r\nitem1.X-ABLabel:_$!<HomePage>!$_",
                "http://example.com/a label=HomePage pref=1" },
    ContactRow{ "2.1", "URL;WORK;QUOTED-PRINTABLE:http://example.com/?a=3Db",
                "http://example.com/?a=b {Work} types=WORK" },
    ContactRow{ "4.0", "URL;TYPE=home;PREF=2;X=y:http://example.com/a,b;c",
                "http://example.com/a,b;c {Home} types=HOME pref=2" },
};

constexpr std::array s_kNotes = {
    ContactRow{ "3.0", "NOTE;LANGUAGE=de:eins\\nzwei\\, drei; vier", "eins\nzwei, drei; vier language=de" },
    ContactRow{ "2.1", "NOTE;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:caf=E9=0D=0Ab", "caf\xC3\xA9\nb" },
    ContactRow{ "3.0", "NOTE;ENCODING=b:Zm9v", "foo" },
    ContactRow{ "2.1", "NOTE;ENCODING=QUOTED-PRINTABLE:a=ZZb=", "a=ZZb" },
};

constexpr std::array s_kCategories = {
    ContactRow{ "3.0", "CATEGORIES:boats, pumps ,,\r\nCATEGORIES;TYPE=work:a\\,b",
                "boats / pumps / a,b {Work} types=WORK" },
    ContactRow{ "2.1", "CATEGORIES;ENCODING=QUOTED-PRINTABLE:caf=C3=A9,b=2Cc", "caf\xC3\xA9 / b,c" },
    ContactRow{ "4.0", "CATEGORIES:,,", "" },
};

constexpr std::array s_kGenders = {
    ContactRow{ "4.0", "GENDER:M", "Male" },
    ContactRow{ "4.0", "GENDER:f;a diver", "Female text=a diver" },
    ContactRow{ "4.0", "GENDER:O;both", "Other text=both" },
    ContactRow{ "4.0", "GENDER:N", "NotApplicable" },
    ContactRow{ "4.0", "GENDER:U", "Unknown" },
    ContactRow{ "4.0", "GENDER:;it depends", "Open text=it depends" },
    ContactRow{ "3.0", "GENDER:Female", "Open text=Female" },
    ContactRow{ "4.0", "GENDER:\r\nGENDER:;\r\nGENDER:M\r\nGENDER:F", "Male" },
    ContactRow{ "4.0", "GENDER:;", "none" },
};

std::string ShownGender( const PimContact& a_contact )
{
    const std::optional<PimContactGender> gender = a_contact.Gender();
    if ( !gender )
        return "none";
    return QMetaEnum::fromType<PimContactGender::Sex>().valueToKey( static_cast<int>( gender->SexOf() ) ) +
           Named( "text", gender->Text() );
}

constexpr std::array s_kPositions = {
    ContactRow{ "4.0", "GEO:geo:46.5,-7.25;u=1", "46.5,-7.25" },
    ContactRow{ "3.0", "GEO:46.5;-7.25", "46.5,-7.25" },
    ContactRow{ "2.1", "GEO:-7.25,46.5", "46.5,-7.25" },
    ContactRow{ "3.0", "GEO:north\r\nGEO:91;0\r\na.GEO:1;2\r\nGEO:3;4", "1,2" },
    ContactRow{ "3.0", "GEO:", "none" },
};

std::string ShownPosition( const PimContact& a_contact )
{
    const std::optional<PimContactPosition> position = a_contact.Position();
    return position ? QStringLiteral( "%1,%2" ).arg( position->m_latitude ).arg( position->m_longitude ).toStdString()
                    : "none";
}

constexpr std::array s_kPidMaps = {
    ContactRow{ "4.0", "CLIENTPIDMAP:1;urn:uuid:a\r\nCLIENTPIDMAP:22; b;c ", "1=urn:uuid:a 22=b;c " },
    ContactRow{ "3.0", "CLIENTPIDMAP:1;urn:uuid:a", "1=urn:uuid:a " },
    ContactRow{ "2.1", "CLIENTPIDMAP:1;urn:uuid:a", "1=urn:uuid:a " },
    ContactRow{ "4.0",
                "CLIENTPIDMAP:0;a\r\nCLIENTPIDMAP:-1;a\r\nCLIENTPIDMAP:a;1\r\nCLIENTPIDMAP:1\r\nCLIENTPIDMAP:", "" },
    ContactRow{ "4.0", "CLIENTPIDMAP:99999999999;a\r\nCLIENTPIDMAP:3;", "3= " },
};

std::string ShownPidMap( const PimContact& a_contact )
{
    std::string shown;
    const QList<QPair<int, QString>> map = a_contact.ClientPidMap();
    for ( const QPair<int, QString>& entry : map )
        shown += std::to_string( entry.first ) + '=' + entry.second.toStdString() + ' ';
    return shown;
}

} // namespace

TEST( PimContactPropertiesTest, FirstTextIsReturned )
{
    for ( const auto& [property, text] : s_kSingleTexts )
    {
        const QByteArray name = property;
        const PimContact contact =
            ContactWith( name + ": \r\na." + name + ";X=y: one\\, two ;\r\n" + name + ":b", "3.0" );
        EXPECT_EQ( ( contact.*text )(), QLatin1String( "one, two ;" ) ) << property;
        EXPECT_EQ( ( ContactWith( "FN:x", "3.0" ).*text )(), QString() ) << property;
    }
}

TEST( PimContactPropertiesTest, FirstDateIsReturned )
{
    for ( const auto& [property, date] : s_kDates )
    {
        const QByteArray name = property;
        const PimContact contact =
            ContactWith( name + ":\r\n" + name + ":20240311T084512Z\r\n" + name + ":2025", "4.0" );
        EXPECT_EQ( ( contact.*date )().ToString(), QLatin1String( "2024-03-11T08:45:12Z" ) ) << property;
        EXPECT_TRUE( ( ContactWith( name + ":yesterday", "4.0" ).*date )().IsText() ) << property;
        EXPECT_TRUE( ( ContactWith( "FN:x", "4.0" ).*date )().IsNull() ) << property;
    }
}

TEST( PimContactPropertiesTest, EachPropertyHasItsList )
{
    for ( const auto& [property, texts] : s_kTexts )
    {
        const QByteArray name = property;
        const PimContact contact =
            ContactWith( name + ": a:b/c \r\n" + name + ":\r\n" + name + ";TYPE=home;PREF=3;PID=1.1:d\r\n", "4.0" );
        EXPECT_EQ( ShownTexts( ( contact.*texts )() ), "a:b/c / d {Home} types=HOME pref=3" ) << property;
        EXPECT_EQ( ( contact.*texts )().value( 1 ).Parameters().size(), 3 ) << property;
    }
}

TEST( PimContactPropertiesTest, UrlsAreRead )
{
    ExpectRows( s_kUrls, []( const PimContact& a_contact ) { return ShownTexts( a_contact.Urls() ); } );
}

TEST( PimContactPropertiesTest, NotesAreDecoded )
{
    ExpectRows( s_kNotes, []( const PimContact& a_contact ) { return ShownTexts( a_contact.Notes() ); } );
}

TEST( PimContactPropertiesTest, EachCategoryIsAField )
{
    ExpectRows( s_kCategories, []( const PimContact& a_contact ) { return ShownTexts( a_contact.Categories() ); } );
}

TEST( PimContactPropertiesTest, GenderIsRead )
{
    ExpectRows( s_kGenders, ShownGender );
}

TEST( PimContactPropertiesTest, FirstPositionThatCanBeReadIsReturned )
{
    ExpectRows( s_kPositions, ShownPosition );
}

TEST( PimContactPropertiesTest, ClientPidMapIsReadInEveryVersion )
{
    ExpectRows( s_kPidMaps, ShownPidMap );
}

} // namespace PimManager::Contacts
