#include "ContactRows.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array s_kParts = {
    ContactRow{ "3.0", "N:Brackwater;Nell;Imogen,Ada;Dr.,Prof.;MSc", "Brackwater;Nell;Imogen,Ada;Dr.,Prof.;MSc" },
    ContactRow{ "4.0", "N:Brackwater;Nell;Imogen;Dr.;MSc", "Brackwater;Nell;Imogen;Dr.;MSc" },
    ContactRow{ "4.0", "N:Garc\xC3\xAD\x61,Cruz;Ana;;;;Cruz;Jr.", "Garc\xC3\xAD\x61,Cruz;Ana;;;;Cruz;Jr." },
    ContactRow{ "4.0", "N:a;b;c;d;e;f;g;h;i", "a;b;c;d;e;f;g,h,i" },
    ContactRow{ "2.1", "N:Brackwater, Sons;Nell", "Brackwater, Sons;Nell" },
    ContactRow{ "2.1", "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:M=C3=BCller;J=\r\n=C3=B6rg",
                "M\xC3\xBCller;J\xC3\xB6rg" },
    ContactRow{ "2.1", "N;ENCODING=QUOTED-PRINTABLE:Brack=3Bwater;Nell", "Brack;water;Nell" },
    ContactRow{ "2.1", "N;CHARSET=ISO-8859-1:M\xFCller;J\xF6rg", "M\xC3\xBCller;J\xC3\xB6rg" },
    ContactRow{ "3.0", "N:Brack\\;water\\, Sons;Nell\\nB", "Brack;water, Sons;Nell\nB" },
    ContactRow{ "", "N: Brackwater ; , Nell ,", "Brackwater;Nell" },
    ContactRow{ "3.0", "N:;;;;\r\nN:;Nell\r\nN:;Ada", ";Nell" },
    ContactRow{ "3.0", "N:;;;;", "" },
    ContactRow{ "3.0", "N:", "" },
    ContactRow{ "3.0", "FN:Nell", "" },
    ContactRow{ "3.0", "N:;Nell\r\nX-PHONETIC-FIRST-NAME:nel\r\nX-PHONETIC-LAST-NAME:brak\r\nX-PHONETIC-MIDDLE-NAME:im",
                ";Nell family=brak given=nel middle=im" },
    ContactRow{ "3.0", "X-PHONETIC-FIRST-NAME:\r\nX-PHONETIC-FIRST-NAME:nel\r\nX-PHONETIC-FIRST-NAME:ada",
                " given=nel" },
    ContactRow{ "3.0", "X-MAIDENNAME:Marsh\r\nN:Brackwater", "Brackwater maiden=Marsh" },
    ContactRow{ "4.0", "N;SORT-AS=\"Brackwater,Nell\":van Brackwater;Nell",
                "van Brackwater;Nell sort=Brackwater|Nell" },
    ContactRow{ "4.0", "N;SORT-AS=Brackwater;JUNK;X=\"a;b\";LANGUAGE=de:van Brackwater;Nell",
                "van Brackwater;Nell sort=Brackwater language=de" },
};

std::string ShownName( const PimContact& a_contact )
{
    const PimContactName name = a_contact.Name();
    QStringList parts;
    for ( int part = 0; part < s_kPimContactNameParts; ++part )
        parts.append( name.Parts( static_cast<PimContactNamePart>( part ) ).join( QLatin1Char( ',' ) ) );
    while ( !parts.isEmpty() && parts.constLast().isEmpty() )
        parts.removeLast();
    return parts.join( QLatin1Char( ';' ) ).toStdString() + Named( "family", name.PhoneticFamily() ) +
           Named( "given", name.PhoneticGiven() ) + Named( "middle", name.PhoneticMiddle() ) +
           Named( "maiden", name.MaidenName() ) + Named( "sort", name.SortAs() ) + Named( "language", name.Language() );
}

constexpr std::array s_kTexts = {
    ContactRow{ "3.0", "N:Brackwater;Nell;Imogen,Ada;Dr.;MSc", "Dr. Nell Imogen Ada Brackwater MSc" },
    ContactRow{ "4.0", "N:Garc\xC3\xAD\x61;Ana;;;MSc;Cruz;Jr.", "Ana Garc\xC3\xAD\x61 Cruz Jr. MSc" },
    ContactRow{ "3.0", "N:Brackwater", "Brackwater" },
    ContactRow{ "3.0", "FN:Nell", "" },
};

constexpr std::array s_kNicknames = {
    ContactRow{ "3.0", "NICKNAME:Nell,Nelly\r\nNICKNAME;TYPE=work:Boss", "Nell / Nelly / Boss {Work} types=WORK" },
    ContactRow{ "2.1", "NICKNAME:Nell,Nelly", "Nell / Nelly" },
    ContactRow{ "4.0", "NICKNAME;PREF=2;LANGUAGE=en: Nell ,,Nel\\,ly,",
                "Nell pref=2 language=en / Nel,ly pref=2 language=en" },
    ContactRow{ "3.0", "a.NICKNAME;TYPE=Pirate:Nell\r\nA.X-ABLabel:at sea", "Nell label=at sea types=PIRATE" },
    ContactRow{ "2.1", "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Nell;1;;;\r\nNICKNAME:Nelly",
                "Nell / Nelly" },
    ContactRow{
        "2.1",
        "X-ANDROID-CUSTOM;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:vnd.android.cursor.item/nickname;=4E=C3=A9ll;1",
        "N\xC3\xA9ll" },
    ContactRow{ "2.1", "X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;;;;\r\nX-ANDROID-CUSTOM:\r\nNICKNAME:,", "" },
};

constexpr std::array s_kFormattedNames = {
    ContactRow{ "3.0", "FN: Nell\\, B \r\nFN:\r\nFN;LANGUAGE=de:Nelli", "Nell, B / Nelli language=de" },
    ContactRow{ "4.0", "FN;PREF=1:Nell\r\nFN;TYPE=work:Dr. B", "Nell pref=1 / Dr. B {Work} types=WORK" },
};

constexpr std::array s_kSortNames = {
    ContactRow{ "3.0", "N:van Brackwater;Nell\r\nSORT-STRING:Brackwater", "Brackwater" },
    ContactRow{ "4.0", "N;SORT-AS=\"Brackwater,Nell\":van Brackwater;Nell\r\nSORT-STRING:x", "Brackwater Nell" },
    ContactRow{ "3.0", "FN:Nell B\r\nN:Brackwater;Nell;Imogen", "Brackwater Nell" },
    ContactRow{ "3.0", "FN:Nell B\r\nN:;Nell", "Nell" },
    ContactRow{ "4.0", "ORG;SORT-AS=Lanthorn:The Lanthorn;Tide", "Lanthorn" },
    ContactRow{ "3.0", "ORG:The Lanthorn;Tide", "The Lanthorn, Tide" },
    ContactRow{ "3.0", "SORT-STRING: \r\nFN:Nell  B", "Nell B" },
    ContactRow{ "3.0", "NOTE:x", "" },
};

} // namespace

TEST( PimContactNamesTest, PartsAreRead )
{
    ExpectRows( s_kParts, ShownName );
}

TEST( PimContactNamesTest, TextIsInTheOrderOfSpeech )
{
    ExpectRows( s_kTexts, []( const PimContact& a_contact ) { return a_contact.Name().Text().toStdString(); } );
}

TEST( PimContactNamesTest, EachNicknameIsAField )
{
    ExpectRows( s_kNicknames, []( const PimContact& a_contact ) { return ShownTexts( a_contact.Nicknames() ); } );
}

TEST( PimContactNamesTest, FormattedNamesAreRead )
{
    ExpectRows( s_kFormattedNames,
                []( const PimContact& a_contact ) { return ShownTexts( a_contact.FormattedNames() ); } );
}

TEST( PimContactNamesTest, SortNameIsChosen )
{
    ExpectRows( s_kSortNames, []( const PimContact& a_contact ) { return a_contact.SortName().toStdString(); } );
}

TEST( PimContactNamesTest, PartsOutliveTheirContact )
{
    const PimContactName name = ContactWith( "N:Brackwater;Nell;Imogen,Ada", "3.0" ).Name();
    PimContactName changed = name;
    changed.SetParts( PimContactNamePart::Given, { QStringLiteral( "N\u00E9ll" ) } );
    EXPECT_EQ( name.Text(), QStringLiteral( "Nell Imogen Ada Brackwater" ) );
    EXPECT_EQ( changed.Text(), QStringLiteral( "N\u00E9ll Imogen Ada Brackwater" ) );
}

TEST( PimContactNamesTest, PartsAreEqualHoweverTheyAreEncoded )
{
    const PimContactName plain = ContactWith( "N:Brackwater;Nell", "2.1" ).Name();
    const auto nameOf = []( const char* a_lines ) { return ContactWith( a_lines, "2.1" ).Name(); };
    EXPECT_EQ( plain, nameOf( "N;CHARSET=UTF-8:Brackwater;Nell" ) );
    EXPECT_EQ( plain, nameOf( "N;ENCODING=QUOTED-PRINTABLE:=42rackwater;Nell" ) );
    EXPECT_NE( plain, nameOf( "N;ENCODING=QUOTED-PRINTABLE:=42rackwater;Nelx" ) );
    EXPECT_NE( plain, nameOf( "N:Brackwater;Nelx" ) );
    EXPECT_NE( plain, nameOf( "N:Brackwater;Nells" ) );
    EXPECT_NE( plain, nameOf( "N:Brackwater;;Nell" ) );
}

TEST( PimContactNamesTest, LinesOfANameAreKnown )
{
    const PimContact contact = ContactWith( "N:;Nell\r\nFN:Nell\r\nX-MAIDENNAME:Marsh\r\nX-MAIDENNAME:Fenn", "3.0" );
    EXPECT_EQ( contact.Name().LineIds(), ( QList<int>{ 2, 4 } ) );
}

} // namespace PimManager::Contacts
