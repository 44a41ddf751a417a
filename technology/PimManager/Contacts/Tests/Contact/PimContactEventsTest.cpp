#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

std::string Shown( const PimContactEvent& a_event )
{
    const auto kinds = QMetaEnum::fromType<PimContactEvent::Kind>();
    return kinds.valueToKey( static_cast<int>( a_event.EventKind() ) ) + Named( "date", a_event.Date().ToString() ) +
           ( a_event.Date().IsText() ? " text" : "" ) + Named( "place", a_event.Place() ) +
           Named( "calendar", a_event.Calendar() ) + ShownCommon( a_event );
}

std::string ShownEvents( const PimContact& a_contact )
{
    return ShownList( a_contact.Events(), []( const PimContactEvent& a_event ) { return Shown( a_event ); } );
}

constexpr std::array s_kProperties = {
    ContactRow{ "2.1", "BDAY:19850412", "Birth date=1985-04-12" },
    ContactRow{ "3.0", "BDAY:1985-04-12\r\nX-ANNIVERSARY:2010-05-06",
                "Birth date=1985-04-12 / Anniversary date=2010-05-06" },
    ContactRow{ "4.0", "DEATHDATE:20200101\r\nANNIVERSARY:20100506",
                "Death date=2020-01-01 / Anniversary date=2010-05-06" },
    ContactRow{ "3.0", "X-DEATHDATE:20200101", "Death date=2020-01-01" },
    ContactRow{ "3.0", "X-EVOLUTION-ANNIVERSARY:2010-05-06", "Anniversary date=2010-05-06" },
    ContactRow{ "3.0", "X-MS-ANNIVERSARY:20100506", "Anniversary date=2010-05-06" },
    ContactRow{ "3.0", "X-KADDRESSBOOK-X-Anniversary:2010-05-06", "Anniversary date=2010-05-06" },
    ContactRow{ "3.0", "a.X-ABDATE;type=pref:2010-05-06\r\na.X-ABLabel:_$!<Anniversary>!$_",
                "Anniversary date=2010-05-06 label=Anniversary pref=1" },
    ContactRow{ "3.0",
                "a.X-ABDATE:2010-05-06\r\na.X-ABLabel:_$!<Other>!$_\r\nb.X-ABDATE:2011-05-06\r\nb.X-ABLabel:launch",
                "Other date=2010-05-06 label=Other / Other date=2011-05-06 label=launch" },
    ContactRow{ "3.0", "a.X-ABDATE:2010-05-06\r\na.X-ABLabel:Anniversary\r\nX-ABDATE:2011-05-06",
                "Other date=2010-05-06 label=Anniversary / Other date=2011-05-06" },
    ContactRow{ "2.1",
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;2010-05-06;1;;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;--05-06;0;launch;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;1985-04-12;3;;;\r\n"
                "X-ANDROID-CUSTOM:vnd.android.cursor.item/contact_event;;3;;;",
                "Anniversary date=2010-05-06 / Other date=--05-06 label=launch / Birth date=1985-04-12" },
    ContactRow{ "3.0", "BDAY:\r\nBDAY: \r\nX-ABDATE:", "" },
};

constexpr std::array s_kDates = {
    ContactRow{ "4.0", "BDAY:--0412", "Birth date=--04-12" },
    ContactRow{ "4.0", "BDAY:---12", "Birth date=---12" },
    ContactRow{ "4.0", "BDAY:1985-04", "Birth date=1985-04" },
    ContactRow{ "4.0", "BDAY:1985", "Birth date=1985" },
    ContactRow{ "4.0", "BDAY:19850412T102200Z", "Birth date=1985-04-12T10:22:00Z" },
    ContactRow{ "3.0", "BDAY;VALUE=date-time:1985-04-12T10:22:00-08:00", "Birth date=1985-04-12T10:22:00-08:00" },
    ContactRow{ "3.0", "BDAY;VALUE=date:1985-04-12", "Birth date=1985-04-12" },
    ContactRow{ "4.0", "BDAY;VALUE=date-and-or-time:T10", "Birth date=T10" },
    ContactRow{ "4.0", "BDAY;VALUE=text:circa 1800", "Birth date=circa 1800 text" },
    ContactRow{ "4.0", "BDAY;VALUE=text:19850412", "Birth date=19850412 text" },
    ContactRow{ "4.0", "BDAY;VALUE=time:102200", "Birth date=T10:22:00" },
    ContactRow{ "3.0", "BDAY:12.04.1985", "Birth date=12.04.1985 text" },
    ContactRow{ "3.0", "BDAY:1985-02-30", "Birth date=1985-02-30 text" },
    ContactRow{ "3.0", "BDAY;X-APPLE-OMIT-YEAR=1604:1604-04-12", "Birth date=--04-12" },
    ContactRow{ "3.0", "BDAY;X-APPLE-OMIT-YEAR=1604:1985-04-12", "Birth date=1985-04-12" },
    ContactRow{ "3.0", "BDAY;X-APPLE-OMIT-YEAR=x:1604-04-12\r\nBDAY:1604-04-12",
                "Birth date=1604-04-12 / Birth date=1604-04-12" },
    ContactRow{ "3.0", "a.X-ABDATE;X-APPLE-OMIT-YEAR=1604:1604-05-06", "Other date=--05-06" },
    ContactRow{ "4.0", "BDAY;CALSCALE=gregorian;LANGUAGE=de;TYPE=x:19850412",
                "Birth date=1985-04-12 calendar=gregorian types=X language=de" },
    ContactRow{ "2.1", "BDAY;ENCODING=QUOTED-PRINTABLE:1985=2D04-12", "Birth date=1985-04-12" },
    ContactRow{ "3.0", "BDAY;ENCODING=b:MTk4NS0wNC0xMg==", "Birth date=1985-04-12" },
};

constexpr std::array s_kPlaces = {
    ContactRow{ "4.0", "BDAY:19850412\r\nBIRTHPLACE:Ouse Mouth", "Birth date=1985-04-12 place=Ouse Mouth" },
    ContactRow{ "4.0", "DEATHPLACE;VALUE=uri:geo:46.7,7.6\r\nDEATHDATE:2020\r\nBDAY:1985",
                "Death date=2020 place=geo:46.7,7.6 / Birth date=1985" },
    ContactRow{ "4.0", "BIRTHPLACE;LANGUAGE=de:Ouse Mouth\r\nBIRTHPLACE: ", "Birth place=Ouse Mouth language=de" },
    ContactRow{ "4.0", "BDAY:1985\r\nBIRTHPLACE:a\r\nBIRTHPLACE:b", "Birth date=1985 place=a / Birth place=b" },
    ContactRow{ "4.0", "DEATHDATE:2020\r\nBIRTHPLACE:a", "Death date=2020 / Birth place=a" },
};

constexpr std::array s_kFirst = {
    ContactRow{ "3.0", "BDAY:\r\nBDAY:1985-04-12\r\nBDAY:1986-04-12", "1985-04-12;;" },
    ContactRow{ "4.0", "ANNIVERSARY:2010\r\nDEATHDATE:2020\r\nX-ANNIVERSARY:2011", ";2010;2020" },
    ContactRow{ "3.0", "a.X-ABDATE:2010-05-06\r\na.X-ABLabel:_$!<Anniversary>!$_", ";2010-05-06;" },
    ContactRow{ "4.0", "BIRTHPLACE:a\r\nDEATHPLACE:b", ";;" },
    ContactRow{ "3.0", "FN:x", ";;" },
};

} // namespace

TEST( PimContactEventsTest, PropertiesSetTheKind )
{
    ExpectRows( s_kProperties, ShownEvents );
}

TEST( PimContactEventsTest, DatesAreRead )
{
    ExpectRows( s_kDates, ShownEvents );
}

TEST( PimContactEventsTest, PlacesBelongToTheirEvent )
{
    ExpectRows( s_kPlaces, ShownEvents );
}

TEST( PimContactEventsTest, FirstDateOfAKindIsFound )
{
    ExpectRows( s_kFirst,
                []( const PimContact& a_contact )
                {
                    return ( a_contact.Birthday().ToString() + QLatin1Char( ';' ) + a_contact.Anniversary().ToString() +
                             QLatin1Char( ';' ) + a_contact.DeathDate().ToString() )
                        .toStdString();
                } );
}

TEST( PimContactEventsTest, LinesOfThePlaceAreKnown )
{
    const PimContact contact =
        ContactWith( "BIRTHPLACE;ALTID=1:a\r\nBDAY:1985\r\nBIRTHPLACE;ALTID=1;LANGUAGE=de:b", "4.0" );
    ASSERT_EQ( contact.Events().size(), 1 );
    EXPECT_EQ( contact.Events().at( 0 ).LineIds(), ( QList<int>{ 3, 2, 4 } ) );
}

} // namespace PimManager::Contacts
