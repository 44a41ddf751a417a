#include <PimManager/PhoneBook/PimPhoneBook.h>

#include "Search/CardText.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

struct Row
{
    /// The lines of the card.
    const char16_t* m_card;
    const char16_t* m_text;
    /// The place where it is found; `-` for nowhere.
    char m_place;
};

constexpr char s_kNowhere = '-';

char PlaceOf( PimPhoneBookPlace a_place )
{
    switch ( a_place )
    {
    case PimPhoneBookPlace::WholeName:
        return 'N';
    case PimPhoneBookPlace::Name:
        return 'n';
    case PimPhoneBookPlace::WholeOrganisation:
        return 'O';
    case PimPhoneBookPlace::Organisation:
        return 'o';
    case PimPhoneBookPlace::Number:
        return '#';
    }
    return '?';
}

PimPhoneBookOptions OptionsOf( const char* a_region = "" )
{
    PimPhoneBookOptions options;
    options.SetRegion( QString::fromLatin1( a_region ) );
    options.SetLocale( QLocale( QStringLiteral( "en_GB" ) ) );
    return options;
}

char PlaceIn( const QVector<PimPhoneBookMatch>& a_matches )
{
    EXPECT_LE( a_matches.size(), 1 );
    return a_matches.isEmpty() ? s_kNowhere : PlaceOf( a_matches.constFirst().m_place );
}

QString Named( const Row& a_row )
{
    return QString::fromUtf16( a_row.m_card ) + QStringLiteral( " <- " ) + QString::fromUtf16( a_row.m_text );
}

/// \return the names of the contacts that are found, with the places.
std::string Found( const PimPhoneBook& a_phoneBook, const QVector<PimPhoneBookMatch>& a_matches )
{
    QStringList names;
    for ( const PimPhoneBookMatch& match : a_matches )
        names += a_phoneBook.At( match.m_contact ).DisplayName() + QLatin1Char( ':' ) +
                 QLatin1Char( PlaceOf( match.m_place ) );
    return names.join( QLatin1Char( ' ' ) ).toStdString();
}

constexpr std::array s_kTexts = {
    // Beginnings and whole words, in any order.
    Row{ u"FN:Anna Berg", u"anna", 'N' },
    Row{ u"FN:Anna Berg", u"ANN", 'n' },
    Row{ u"FN:Anna Berg", u"berg an", 'n' },
    Row{ u"FN:Anna Berg", u"  berg,anna ", 'N' },
    Row{ u"FN:Anna Berg", u"nna", '-' },
    Row{ u"FN:Anna Berg", u"annab", '-' },
    Row{ u"FN:Anna Berg", u"anna x", '-' },
    Row{ u"FN:Anna Berg", u"x", '-' },
    Row{ u"FN:Anna Berg", u"annas", '-' },
    // Two words may begin the same one.
    Row{ u"FN:Anna Berg", u"a an", 'n' },
    Row{ u"FN:Anna Berg", u"anna anna", 'N' },
    // Names.
    Row{ u"N:Berg;Anna;Maria;Dr.;MdB", u"maria", 'N' },
    Row{ u"N:Berg;Anna;Maria;Dr.;MdB", u"dr anna mdb berg", 'N' },
    Row{ u"N:Berg;Anna;Maria,Lena;;|FN:x", u"lena", 'N' },
    Row{ u"N:Berg;Anna;;;|FN:Frau Berg", u"frau anna", 'N' },
    Row{ u"N:Berg;Anna;;;|FN:Anna Berg", u"be an", 'n' },
    Row{ u"N:Berg;Anna;Maria;;|FN:Anna Maria Berg", u"maria anna berg", 'N' },
    Row{ u"N:Garc\u00EDa;Ana;;;;L\u00F3pez;|FN:Ana", u"lopez", 'N' },
    Row{ u"NICKNAME:Mausi,Der Chef|FN:Anna", u"chef ann", 'n' },
    Row{ u"X-MAIDENNAME:Schulz|N:Berg;Anna;;;", u"schulz", 'N' },
    Row{ u"X-PHONETIC-LAST-NAME:Yamada|N:\u5C71\u7530;x;;;", u"yama", 'n' },
    Row{ u"X-ANDROID-CUSTOM:vnd.android.cursor.item/nickname;Robin;1;;;;;;;;;;;;;|FN:Anna", u"robin", 'N' },
    Row{ u"FN;ALTID=1;LANGUAGE=ru:\u0410\u043D\u043D\u0430|FN;ALTID=1;LANGUAGE=de:Anna", u"\u0430\u043D", 'n' },
    Row{ u"FN;ALTID=1;LANGUAGE=ru:\u0410\u043D\u043D\u0430|FN;ALTID=1;LANGUAGE=de:Anna", u"anna", 'N' },
    Row{ u"N;ALTID=1;LANGUAGE=de:Berg;Anna|N;ALTID=1;LANGUAGE=fr:Mont;Anne", u"mont", 'N' },
    Row{ u"FN:Escaped\\, Comma\\nLine", u"line comma", 'N' },
    Row{ u"item1.FN:Anna", u"anna", 'N' },
    Row{ u"NOTE:Anna|FN:x", u"anna", '-' },
    // Organisations.
    Row{ u"FN:Anna|ORG:Tern Radio;Sales", u"radio", 'O' },
    Row{ u"FN:Anna|ORG:Tern Radio;Sales", u"sal", 'o' },
    Row{ u"FN:Anna|ORG:Tern Radio;Sales", u"anna radio", 'O' },
    Row{ u"FN:Anna|ORG:Tern Radio;Sales", u"ann radio", 'o' },
    Row{ u"FN:Anna|ORG:Anna", u"anna", 'N' },
    Row{ u"FN:Annabell|ORG:Anna", u"anna", 'n' },
    Row{ u"ORG:Tern Radio", u"tern", 'O' },
    // Without any of these, the name that is shown.
    Row{ u"EMAIL:anna@example.org", u"example", 'N' },
    Row{ u"FN:x|EMAIL:anna@example.org", u"example", '-' },
    // German and other letters with two spellings.
    Row{ u"FN:M\u00FCller", u"muller", 'N' },
    Row{ u"FN:M\u00FCller", u"m\u00FCller", 'N' },
    Row{ u"FN:M\u00FCller", u"mueller", 'N' },
    Row{ u"FN:M\u00FCller", u"mue", 'n' },
    Row{ u"FN:M\u00FCller", u"mu\u0308", 'n' },
    Row{ u"FN:Mueller", u"mueller", 'N' },
    Row{ u"FN:Mueller", u"m\u00FCller", 'N' },
    Row{ u"FN:Mueller", u"muller", '-' },
    Row{ u"FN:Muller", u"m\u00FCller", 'N' },
    Row{ u"FN:Muller", u"mueller", '-' },
    Row{ u"FN:Wei\u00DF", u"weiss", 'N' },
    Row{ u"FN:Weiss", u"wei\u00DF", 'N' },
    Row{ u"FN:S\u00F8ren", u"soren", 'N' },
    Row{ u"FN:S\u00F8ren", u"soeren", 'N' },
    Row{ u"FN:\u00C5se", u"aase", 'N' },
    Row{ u"FN:\u00C5se", u"ase", 'N' },
    Row{ u"FN:\u00C6gir", u"aegir", 'N' },
    Row{ u"FN:\u0110or\u0111e", u"djordje", 'N' },
    Row{ u"FN:Zo\u00EB", u"zoe", 'N' },
    Row{ u"FN:Zoe", u"zo\u00EB", 'N' },
    Row{ u"FN:\u0130brahim", u"ibrahim", 'N' },
    Row{ u"FN:I\u015F\u0131k", u"isik", 'N' },
    // Words without white space between them.
    Row{ u"FN:Sinead O'Neil", u"oneil", 'N' },
    Row{ u"FN:Sinead O'Neil", u"neil", 'N' },
    Row{ u"FN:Sinead O'Neil", u"o'neil", 'N' },
    Row{ u"FN:Sinead O'Neil", u"o\u2019n", 'n' },
    Row{ u"FN:Sinead ONeil", u"o'neil", 'N' },
    Row{ u"FN:Jean-Luc", u"luc", 'N' },
    Row{ u"FN:Jean-Luc", u"jeanluc", 'N' },
    Row{ u"FN:Jean-Luc", u"jeanl", 'n' },
    Row{ u"FN:Jean-Luc", u"jean", 'N' },
    Row{ u"FN:Jean-Luc", u"luc-jean", 'N' },
    Row{ u"FN:J.R.R. Tolkien", u"jrr", 'N' },
    Row{ u"FN:agent007", u"007", 'N' },
    Row{ u"FN:agent007", u"agent", 'n' },
    // Scripts without blanks.
    Row{ u"FN:\u5C71\u7530\u592A\u90CE", u"\u592A\u90CE", 'N' },
    Row{ u"FN:\u5C71\u7530\u592A\u90CE", u"\u5C71", 'n' },
    Row{ u"FN:\u5C71\u7530\u592A\u90CE", u"\u5C71\u7530 \u592A", 'n' },
    Row{ u"FN:\u5C71\u7530\u592A\u90CE", u"\u90CE\u5C71", '-' },
    Row{ u"N:\u5C71\u7530;\u592A\u90CE;;;", u"\u5C71\u7530\u592A\u90CE", 'N' },
    Row{ u"FN:\u5C71\u7530 \u592A\u90CE", u"\u5C71\u7530", 'N' },
    Row{ u"FN:\uAE40\uCCA0\uC218", u"\uCCA0\uC218", 'N' },
    Row{ u"FN:\uAE40\uCCA0\uC218", u"\u3131", 'n' },
    Row{ u"FN:\u30BF\u30ED\u30A6", u"\u305F\u308D", 'n' },
    // Other scripts.
    Row{ u"FN:\u0391\u03BB\u03AD\u03BE\u03B7\u03C2", u"\u03B1\u03BB\u03B5\u03BE\u03B7\u03C3", 'N' },
    Row{ u"FN:\u0410\u043B\u0451\u043D\u0430", u"\u0430\u043B\u0435\u043D", 'n' },
    Row{ u"FN:\u05E9\u05B8\u05DC\u05D5\u05DD", u"\u05E9\u05DC\u05D5\u05DE", 'N' },
    Row{ u"FN:\u0645\u064F\u062D\u0645\u062F", u"\u0645\u0640\u062D\u0645\u062F", 'N' },
    // Numbers.
    Row{ u"FN:Anna|TEL:(030) 901-820", u"0309", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"901820", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"030 901 820", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"(030)9", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"8", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"7", '-' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"20", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"208", '-' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"03090182", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"030901821", '-' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"0309018200", '-' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"anna 901", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"901 ann", '#' },
    Row{ u"FN:Anna|TEL:(030) 901-820", u"901 berta", '-' },
    Row{ u"FN:Anna|TEL:123|TEL:456", u"1 4", '#' },
    Row{ u"FN:Anna|TEL:123|TEL:456", u"34", '-' },
    Row{ u"FN:Anna|TEL:123|TEL:456", u"1234", '-' },
    Row{ u"FN:Anna|TEL:5", u"5", '#' },
    Row{ u"FN:Anna|TEL:\u0663\u0664\u0665\u0666", u"3456", '#' },
    Row{ u"FN:Anna|TEL:3456", u"\u0663\u0664\u0665\u0666", '#' },
    Row{ u"FN:4you|TEL:44", u"4", 'n' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"+49", '#' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"+49 30", '#' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"+49(30)9", '#' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"004930", '#' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"030", '-' },
    Row{ u"FN:Anna|TEL:030 901820", u"+4930", '-' },
};

struct RegionRow
{
    const char* m_region;
    const char16_t* m_number;
    const char16_t* m_text;
    bool m_isFound;
};

constexpr std::array s_kRegions = {
    RegionRow{ "DE", u"+49 30 901820", u"030", true },
    RegionRow{ "DE", u"+49 30 901820", u"030 9018", true },
    RegionRow{ "DE", u"+49 30 901820", u"0", true },
    RegionRow{ "DE", u"+49 30 901820", u"040", false },
    RegionRow{ "DE", u"+49 30 901820", u"0049 30", true },
    RegionRow{ "DE", u"030 901820", u"+49 30 90", true },
    RegionRow{ "DE", u"030 901820", u"+49309", true },
    RegionRow{ "DE", u"030 901820", u"+49", false },
    RegionRow{ "DE", u"030 901820", u"+493", false },
    RegionRow{ "DE", u"5030 901820", u"+49 30", false },
    RegionRow{ "DE", u"0049 30 901820", u"030", true },
    RegionRow{ "DE", u"+49 40 149309", u"0309", false },
    RegionRow{ "", u"+49 30 901820", u"00493", true },
    RegionRow{ "", u"+43 1 49309", u"00493", false },
    RegionRow{ "", u"110", u"00110", true },
    RegionRow{ "", u"110|TEL:5", u"00110", true },
    RegionRow{ "", u"1100", u"00110", true },
    RegionRow{ "", u"*4930#", u"004930", false },
    RegionRow{ "", u"*4930#", u"4930", true },
    RegionRow{ "DE", u"030 901820", u"0049309", true },
    RegionRow{ "DE", u"030 901820", u"+49 40", false },
    RegionRow{ "DE", u"030 901820", u"+43 30", false },
    RegionRow{ "DE", u"+43 1 23456", u"01", false },
    RegionRow{ "AT", u"+43 1 23456", u"01", true },
    RegionRow{ "US", u"+1 212 555 0123", u"212", true },
    RegionRow{ "US", u"(212) 555-0123", u"+1 212", true },
    RegionRow{ "US", u"1 212 555 0123", u"+1 212", true },
    RegionRow{ "ES", u"912 345 678", u"+34 912", true },
    RegionRow{ "", u"+49 30 901820", u"030", false },
};

constexpr std::array s_kKeys = {
    Row{ u"FN:Anna Berg", u"2662", 'N' },
    Row{ u"FN:Anna Berg", u"266", 'n' },
    Row{ u"FN:Anna Berg", u"2374", 'N' },
    Row{ u"FN:Anna Berg", u"266202", 'n' },
    Row{ u"FN:Anna Berg", u"237412662", 'N' },
    Row{ u"FN:Anna Berg", u"2374026620", 'N' },
    Row{ u"FN:Anna Berg", u"662", '-' },
    Row{ u"FN:Anna Berg", u"2-6 6", 'n' },
    Row{ u"FN:Anna|ORG:Tern", u"8376", 'O' },
    Row{ u"FN:Anna|ORG:Tern", u"837602662", 'O' },
    Row{ u"FN:M\u00FCller", u"685537", 'N' },
    Row{ u"FN:M\u00FCller", u"6835537", 'N' },
    Row{ u"FN:Sinead O'Neil", u"6345", 'N' },
    Row{ u"FN:Sinead O'Neil", u"66345", 'N' },
    Row{ u"FN:agent007", u"24368007", 'N' },
    Row{ u"FN:abcdefghijklmnopqrstuvwxyz", u"22233344455566677778889999", 'N' },
    Row{ u"FN:abcdefghijklmnopqrstuvwxyz", u"2223334445556667", 'N' },
    // Numbers.
    Row{ u"FN:Anna|TEL:030 901820", u"030", '#' },
    Row{ u"FN:Anna|TEL:030 901820", u"0309018", '#' },
    Row{ u"FN:Anna|TEL:030 901820", u"309", '#' },
    Row{ u"FN:Anna|TEL:030 901820", u"0", '#' },
    Row{ u"FN:Anna|TEL:030 901820", u"03010", '-' },
    Row{ u"FN:Anna|TEL:030 901820", u"308", '-' },
    Row{ u"FN:Anna|TEL:555", u"26620555", '#' },
    Row{ u"FN:Anna|TEL:555", u"5550555", '-' },
    Row{ u"FN:Dora|TEL:030 901820", u"030", 'n' },
    Row{ u"FN:Anna|TEL:+49 30 901820", u"+4930", '#' },
    // A word of a script that is on no key.
    Row{ u"FN:\u5C71\u7530", u"2", '-' },
    Row{ u"FN:\u0E01\u0E02", u"2", '-' },
};

} // namespace

TEST( PimPhoneBookFindTest, TextIsFoundAtItsBestPlace )
{
    for ( const Row& row : s_kTexts )
    {
        const PimPhoneBook phoneBook( BookOf( row.m_card ), OptionsOf() );
        const auto matches = phoneBook.Find( QString::fromUtf16( row.m_text ) );
        EXPECT_EQ( row.m_place, PlaceIn( matches ) ) << Named( row ).toStdString();
    }
}

TEST( PimPhoneBookFindTest, KeysAreFoundAtTheirBestPlace )
{
    for ( const Row& row : s_kKeys )
    {
        const PimPhoneBook phoneBook( BookOf( row.m_card ), OptionsOf() );
        const auto matches = phoneBook.FindByKeys( QString::fromUtf16( row.m_text ) );
        EXPECT_EQ( row.m_place, PlaceIn( matches ) ) << Named( row ).toStdString();
    }
}

TEST( PimPhoneBookFindTest, NumberIsFoundInTheNotationsOfTheRegion )
{
    for ( const RegionRow& row : s_kRegions )
    {
        const QString card = QStringLiteral( "FN:x|TEL:" ) + QString::fromUtf16( row.m_number );
        const PimPhoneBook phoneBook( BookOf( reinterpret_cast<const char16_t*>( card.utf16() ) ),
                                      OptionsOf( row.m_region ) );
        const QString text = QString::fromUtf16( row.m_text );
        EXPECT_EQ( row.m_isFound, !phoneBook.Find( text ).isEmpty() )
            << row.m_region << ' ' << card.toStdString() << " <- " << text.toStdString();
    }
}

TEST( PimPhoneBookFindTest, TextWithoutAWordFindsAllContacts )
{
    const PimPhoneBook phoneBook( BookOf( u"FN:Berta\nFN:Anna\nTEL:1" ), OptionsOf() );
    for ( const char16_t* const text : { u"", u" ", u"-", u"+", u"\U0001F600", u"\u0301" } )
    {
        EXPECT_EQ( "Anna:N Berta:N 1:N", Found( phoneBook, phoneBook.Find( QString::fromUtf16( text ) ) ) )
            << QString::fromUtf16( text ).toStdString();
    }
    for ( const char16_t* const keys : { u"", u"*", u"abc" } )
    {
        EXPECT_EQ( 3, phoneBook.FindByKeys( QString::fromUtf16( keys ) ).size() )
            << QString::fromUtf16( keys ).toStdString();
    }
}

TEST( PimPhoneBookFindTest, EmptyBookFindsNothing )
{
    for ( const PimPhoneBook& phoneBook : { PimPhoneBook(), PimPhoneBook( Contacts::PimContactBook() ) } )
    {
        EXPECT_TRUE( phoneBook.Find( QString() ).isEmpty() );
        EXPECT_TRUE( phoneBook.Find( QStringLiteral( "anna 1" ) ).isEmpty() );
        EXPECT_TRUE( phoneBook.FindByKeys( QStringLiteral( "2662" ) ).isEmpty() );
        EXPECT_TRUE( phoneBook.Sorted().isEmpty() );
    }
}

TEST( PimPhoneBookFindTest, BestPlaceIsFirstAndThenTheSortedOrder )
{
    const PimPhoneBook phoneBook(
        BookOf( u"FN:Xaver 5|TEL:66\nFN:Zoe|ORG:Bergwerk\nFN:Yvo|ORG:Berg\nFN:Bergmann\nFN:Zeno Berg\nFN:Carl Berg" ),
        OptionsOf() );
    EXPECT_EQ( "Carl Berg:N Zeno Berg:N Bergmann:n Yvo:O Zoe:o",
               Found( phoneBook, phoneBook.Find( QStringLiteral( "berg" ) ) ) );
    EXPECT_EQ( "Xaver 5:#", Found( phoneBook, phoneBook.Find( QStringLiteral( "66 xav" ) ) ) );
}

TEST( PimPhoneBookFindTest, RecentCallsAreFirstWithinAPlace )
{
    PimPhoneBook phoneBook( BookOf( u"FN:Anna|TEL:030 1111111\nFN:Anne|TEL:030 2222222\nFN:Anni|TEL:+49 30 3333333\n"
                                    u"FN:Ann|TEL:030 4444444\nFN:x|ORG:Anno|TEL:030 5555555" ),
                            OptionsOf( "DE" ) );
    const PimPhoneBook copy = phoneBook;
    phoneBook.SetRecentCalls( { QStringLiteral( "+49 30 5555555" ), QStringLiteral( "nonsense" ),
                                QStringLiteral( "0303333333" ), QString(), QStringLiteral( "+49302222222" ),
                                QStringLiteral( "030 3333333" ) } );
    EXPECT_EQ( "Ann:N Anni:n Anne:n Anna:n x:o", Found( phoneBook, phoneBook.Find( QStringLiteral( "ann" ) ) ) );
    EXPECT_EQ( "Ann:N Anni:n Anne:n Anna:n x:o", Found( phoneBook, phoneBook.FindByKeys( QStringLiteral( "266" ) ) ) );
    EXPECT_EQ( "x:N Anni:N Anne:N Ann:N Anna:N", Found( phoneBook, phoneBook.Find( QString() ) ) );
    EXPECT_EQ( "Ann:N Anna:n Anne:n Anni:n x:o", Found( copy, copy.Find( QStringLiteral( "ann" ) ) ) );
    phoneBook.SetRecentCalls( {} );
    EXPECT_EQ( "Ann:N Anna:n Anne:n Anni:n x:o", Found( phoneBook, phoneBook.Find( QStringLiteral( "ann" ) ) ) );
}

// The same last digits are not enough.
TEST( PimPhoneBookFindTest, RecentCallWithAnotherCodeIsNotPreferred )
{
    PimPhoneBook phoneBook( BookOf( u"FN:Anna|TEL:030 1111111\nFN:Anne|TEL:030 2222222" ), OptionsOf( "DE" ) );
    phoneBook.SetRecentCalls( { QStringLiteral( "+43 1 2222222" ) } );
    EXPECT_EQ( "Anna:n Anne:n", Found( phoneBook, phoneBook.Find( QStringLiteral( "ann" ) ) ) );
}

TEST( PimPhoneBookFindTest, LetterOfEachScriptIsOnItsKey )
{
    struct KeyRow
    {
        char m_key;
        const char16_t* m_letters;
    };
    constexpr std::array s_kRows = {
        KeyRow{ '2', u"abc\u00E0\u00E7" },
        KeyRow{ '3', u"def\u00E9" },
        KeyRow{ '4', u"ghi\u0131" },
        KeyRow{ '5', u"jkl\u0142" },
        KeyRow{ '6', u"mno\u00F1\u00F8" },
        KeyRow{ '7', u"pqrs\u00DF" },
        KeyRow{ '8', u"tuv\u00FC" },
        KeyRow{ '9', u"wxyz\u017E" },
        KeyRow{ '2', u"\u03B1\u03B2\u03B3\u03AC" },
        KeyRow{ '3', u"\u03B4\u03B5\u03B6" },
        KeyRow{ '4', u"\u03B7\u03B8\u03B9" },
        KeyRow{ '5', u"\u03BA\u03BB\u03BC" },
        KeyRow{ '6', u"\u03BD\u03BE\u03BF" },
        KeyRow{ '7', u"\u03C0\u03C1\u03C3\u03C2" },
        KeyRow{ '8', u"\u03C4\u03C5\u03C6" },
        KeyRow{ '9', u"\u03C7\u03C8\u03C9\u03CE" },
        KeyRow{ '2', u"\u0430\u0431\u0432\u0433\u0491" },
        KeyRow{ '3', u"\u0434\u0435\u0436\u0437\u0451\u0454" },
        KeyRow{ '4', u"\u0438\u0439\u043A\u043B\u0456\u0457" },
        KeyRow{ '5', u"\u043C\u043D\u043E\u043F" },
        KeyRow{ '6', u"\u0440\u0441\u0442\u0443\u045E" },
        KeyRow{ '7', u"\u0444\u0445\u0446\u0447" },
        KeyRow{ '8', u"\u0448\u0449\u044A\u044B" },
        KeyRow{ '9', u"\u044C\u044D\u044E\u044F" },
        KeyRow{ '2', u"\u05D3\u05D4\u05D5" },
        KeyRow{ '3', u"\u05D0\u05D1\u05D2" },
        KeyRow{ '4', u"\u05DE\u05DD\u05E0\u05DF" },
        KeyRow{ '5', u"\u05D9\u05DB\u05DA\u05DC" },
        KeyRow{ '6', u"\u05D6\u05D7\u05D8" },
        KeyRow{ '7', u"\u05E8\u05E9\u05EA" },
        KeyRow{ '8', u"\u05E6\u05E5\u05E7" },
        KeyRow{ '9', u"\u05E1\u05E2\u05E4\u05E3" },
        KeyRow{ '2', u"\u0628\u062A\u0629\u062B\u067E" },
        KeyRow{ '3', u"\u0621\u0627\u0623\u0622\u0625" },
        KeyRow{ '4', u"\u0633\u0634\u0635\u0636" },
        KeyRow{ '5', u"\u062F\u0630\u0631\u0632\u0698" },
        KeyRow{ '6', u"\u062C\u062D\u062E\u0686" },
        KeyRow{ '7', u"\u0646\u0647\u0648\u064A\u0649\u06CC" },
        KeyRow{ '8', u"\u0641\u0642\u0643\u0644\u0645\u06A9\u06AF" },
        KeyRow{ '9', u"\u0637\u0638\u0639\u063A" },
    };
    for ( const KeyRow& row : s_kRows )
    {
        for ( const QChar letter : QString::fromUtf16( row.m_letters ) )
        {
            const QString card = QStringLiteral( "FN:" ) + letter;
            const PimPhoneBook phoneBook( BookOf( reinterpret_cast<const char16_t*>( card.utf16() ) ), OptionsOf() );
            for ( char key = '2'; key <= '9'; ++key )
            {
                const bool isFound = !phoneBook.FindByKeys( QString( QLatin1Char( key ) ) ).isEmpty();
                const bool isSecond = letter == QChar( 0x0629 ) && key == '7';
                EXPECT_EQ( key == row.m_key || isSecond, isFound ) << QString( letter ).toStdString() << ' ' << key;
            }
        }
    }
}

} // namespace PimManager::PhoneBook
