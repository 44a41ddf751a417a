#include "ContactRows.h"

#include "Contact/Alternatives.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

struct LanguageRow
{
    const char* m_lines;
    const char* m_languages; ///< divided by commas
    const char* m_shown;
};

PimContact ContactIn( const LanguageRow& a_row )
{
    PimContact contact = ContactWith( a_row.m_lines, "4.0" );
    const QString languages = QString::fromUtf8( a_row.m_languages );
    contact.SetLanguages( languages.isEmpty() ? QStringList() : languages.split( QLatin1Char( ',' ) ) );
    return contact;
}

constexpr const char* s_kTitles =
    "TITLE;ALTID=1;LANGUAGE=fr:Patron\r\nTITLE;LANGUAGE=de;ALTID=1:Chef\r\n"
    "TITLE:Diver\r\nTITLE;ALTID=1;LANGUAGE=en-GB:Boss\r\nTITLE;ALTID=2;LANGUAGE=de:Taucher";

constexpr std::array s_kChoices = {
    LanguageRow{ s_kTitles, "", "Patron language=fr / Diver / Taucher language=de" },
    LanguageRow{ s_kTitles, "de", "Chef language=de / Diver / Taucher language=de" },
    LanguageRow{ s_kTitles, "it,EN,fr", "Boss language=en-GB / Diver / Taucher language=de" },
    LanguageRow{ s_kTitles, "en-US,e,de-CH", "Patron language=fr / Diver / Taucher language=de" },
    LanguageRow{ s_kTitles, "xx", "Patron language=fr / Diver / Taucher language=de" },
    LanguageRow{ "TITLE;ALTID=1;LANGUAGE=de-CH:a\r\nTITLE;ALTID=1;LANGUAGE=de:b", "de", "b language=de" },
    LanguageRow{ "TITLE;ALTID=1;LANGUAGE=de-CH:a\r\nTITLE;ALTID=1;LANGUAGE=de-AT:b", "de", "a language=de-CH" },
    LanguageRow{ "TITLE;ALTID=1;LANGUAGE=deu:a\r\nTITLE;ALTID=1;LANGUAGE=de-Latn-CH:b", "de-latn,de",
                 "b language=de-Latn-CH" },
    LanguageRow{ "TITLE;ALTID=1:a\r\nTITLE;ALTID=1:b\r\nTITLE;ALTID=:c", "de", "a / c" },
    LanguageRow{ "TITLE;ALTID=1:\r\nTITLE;ALTID=1;LANGUAGE=fr:b", "de", "b language=fr" },
};

struct RankRow
{
    const char* m_language;
    int m_rank;
};

} // namespace

TEST( PimContactLanguagesTest, WantedLanguageIsChosen )
{
    for ( const LanguageRow& row : s_kChoices )
        EXPECT_EQ( ShownTexts( ContactIn( row ).Titles() ), row.m_shown ) << row.m_languages << '\n' << row.m_lines;
}

TEST( PimContactLanguagesTest, AlternativesAreAllLanguages )
{
    const PimContactList<PimContactText> titles = ContactIn( { s_kTitles, "en", "" } ).Titles();
    ASSERT_EQ( titles.size(), 3 );
    EXPECT_EQ( ShownTexts( titles.at( 0 ).Alternatives() ),
               "Patron language=fr / Chef language=de / Boss language=en-GB" );
    EXPECT_EQ( ShownTexts( titles.at( 1 ).Alternatives() ), "Diver" );
    EXPECT_EQ( titles.at( 0 ).Id(), 5 );
}

TEST( PimContactLanguagesTest, PropertiesHaveAlternativesOfTheirOwn )
{
    const PimContact contact = ContactWith(
        "BDAY;ALTID=1:1985\r\nDEATHDATE;ALTID=1:2020\r\nANNIVERSARY;ALTID=1:2010\r\nBDAY;ALTID=1;VALUE=text:x\r\n"
        "BIRTHPLACE;ALTID=1:a\r\nDEATHPLACE;ALTID=1:b\r\nTITLE;ALTID=1:c\r\nROLE;ALTID=1:d",
        "4.0" );
    ASSERT_EQ( contact.Events().size(), 3 );
    EXPECT_EQ( contact.Events().at( 0 ).Alternatives().size(), 2 );
    EXPECT_EQ( contact.Events().at( 0 ).Place(), QLatin1String( "a" ) );
    EXPECT_EQ( contact.Events().at( 1 ).Place(), QLatin1String( "b" ) );
    EXPECT_EQ( ShownTexts( contact.Titles() ) + ShownTexts( contact.Roles() ), "cd" );
}

TEST( PimContactLanguagesTest, ElementsOfListsCorrespondByPlace )
{
    const char* const lists = "NICKNAME;ALTID=1;LANGUAGE=en:Nell,Nelly,Nel\r\nNICKNAME;ALTID=1;LANGUAGE=de:Nelli,,Nele";
    PimContactList<PimContactText> names = ContactIn( { lists, "de", "" } ).Nicknames();
    EXPECT_EQ( ShownTexts( names ), "Nelli language=de / Nelly language=en / Nele language=de" );
    ASSERT_EQ( names.size(), 3 );
    EXPECT_EQ( ShownTexts( names.at( 2 ).Alternatives() ), "Nel language=en / Nele language=de" );
    names = ContactIn( { lists, "", "" } ).Nicknames();
    EXPECT_EQ( ShownTexts( names ), "Nell language=en / Nelly language=en / Nel language=en" );
}

TEST( PimContactLanguagesTest, NamesAreInTheWantedLanguage )
{
    const char* const lines = "N;ALTID=1;LANGUAGE=en:Marsh;Ada\r\nN;ALTID=1;LANGUAGE=de:Moor;Ada\r\n"
                              "FN;ALTID=2;LANGUAGE=en:Ada Marsh\r\nFN;ALTID=2;LANGUAGE=de-AT:Ada  Moor";
    EXPECT_EQ( ContactIn( { lines, "de", "" } ).DisplayName(), QLatin1String( "Ada Moor" ) );
    EXPECT_EQ( ContactIn( { lines, "de", "" } ).Name().Family(), QLatin1String( "Moor" ) );
    EXPECT_EQ( ContactIn( { lines, "", "" } ).DisplayName(), QLatin1String( "Ada Marsh" ) );
    EXPECT_EQ( ContactIn( { "N:;Ada", "de", "" } ).DisplayName(), QLatin1String( "Ada" ) );
}

TEST( PimContactLanguagesTest, LanguagesAreKept )
{
    EXPECT_EQ( ContactIn( { "", "de,en", "" } ).Languages(),
               QStringList( { QStringLiteral( "de" ), QStringLiteral( "en" ) } ) );
    EXPECT_TRUE( ContactIn( { "", "", "" } ).Languages().isEmpty() );
}

TEST( PimContactLanguagesTest, AddressOfTheAlternativesIsAParameter )
{
    const PimContact contact = ContactWith( "TITLE;ALTREP=\"cid:1\":a", "4.0" );
    const QList<QPair<QString, QString>> expected = { { QStringLiteral( "ALTREP" ), QStringLiteral( "cid:1" ) } };
    EXPECT_EQ( contact.Titles().value( 0 ).Parameters(), expected );
}

TEST( LanguageRanksTest, EarlierAndWholeLanguagesAreWantedMore )
{
    const LanguageRanks ranks( { QStringLiteral( "de" ), QStringLiteral( "en-GB" ), QStringLiteral( "DE" ) } );
    const int none = ranks.Of( QStringLiteral( "fr" ) );
    const std::array rows = { RankRow{ "DE", 0 },
                              RankRow{ "de-CH", 1 },
                              RankRow{ "de-Latn-CH-1996-x-y", 1 },
                              RankRow{ "en-gb", 2 },
                              RankRow{ "en-GB-oed", 3 },
                              RankRow{ "en", none },
                              RankRow{ "deu", none },
                              RankRow{ "", none },
                              RankRow{ "-de", none },
                              RankRow{ "----------------", none } };
    for ( const RankRow& row : rows )
        EXPECT_EQ( ranks.Of( QString::fromUtf8( row.m_language ) ), row.m_rank ) << row.m_language;
    EXPECT_GT( none, 3 );
    EXPECT_EQ( LanguageRanks( QStringList() ).Of( QStringLiteral( "de" ) ), none );
}

} // namespace PimManager::Contacts
