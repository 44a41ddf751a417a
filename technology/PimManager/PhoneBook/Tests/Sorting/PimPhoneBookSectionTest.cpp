#include <PimManager/PhoneBook/PimPhoneBook.h>

#include "Search/CardText.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace PimManager::PhoneBook
{

namespace
{

/// \return a book with one contact for each name.
Contacts::PimContactBook Named( const QStringList& a_names )
{
    return BookOf( reinterpret_cast<const char16_t*>(
        ( QStringLiteral( "FN:" ) + a_names.join( QStringLiteral( "\nFN:" ) ) ).utf16() ) );
}

PimPhoneBook Sorted( const Contacts::PimContactBook& a_book, const char* a_locale,
                     PimPhoneBookSorting a_sorting = PimPhoneBookSorting::FamilyName )
{
    PimPhoneBookOptions options;
    options.SetLocale( QLocale( QString::fromLatin1( a_locale ) ) );
    options.SetSorting( a_sorting );
    return PimPhoneBook( a_book, options );
}

/// \return each section and its names, in the order of the sorted list.
QString ListOf( const PimPhoneBook& a_phoneBook )
{
    QString text;
    QString last;
    for ( const int contact : a_phoneBook.Sorted() )
    {
        const QString section = a_phoneBook.Section( contact );
        text += section == last
                    ? QStringLiteral( " " )
                    : ( text.isEmpty() ? QString() : QStringLiteral( " | " ) ) + section + QStringLiteral( ": " );
        text += a_phoneBook.At( contact ).DisplayName();
        last = section;
    }
    return text;
}

struct LocaleRow
{
    const char* m_locale;
    const char16_t* m_names;
    const char16_t* m_list;
};

constexpr std::array s_kLocales = {
    LocaleRow{ "de_DE", u"Zoe \u00C4rger Bert \u00D6hm Otto \u00DCbel Ul \u00DFa Sa Adam",
               u"A: Adam \u00C4rger | B: Bert | O: \u00D6hm Otto | S: Sa \u00DFa | U: \u00DCbel Ul | Z: Zoe" },
    LocaleRow{
        "sv_SE", u"\u00D6hm \u00C4rger \u00C5se Zoe Adam Aase Kj\u00E4ll K\u00F6",
        u"A: Aase Adam | K: Kj\u00E4ll K\u00F6 | Z: Zoe | \u00C5: \u00C5se | \u00C4: \u00C4rger | \u00D6: \u00D6hm" },
    LocaleRow{ "da_DK", u"\u00C5se Aase \u00D8rn \u00C6gir Zoe Adam Azur",
               u"A: Adam Azur | Z: Zoe | \u00C6: \u00C6gir | \u00D8: \u00D8rn | \u00C5: \u00C5se Aase" },
    LocaleRow{ "fi_FI", u"\u00D6hm \u00C4rger \u00C5se Zoe",
               u"Z: Zoe | \u00C5: \u00C5se | \u00C4: \u00C4rger | \u00D6: \u00D6hm" },
    LocaleRow{ "cs_CZ", u"Cyril \u010Capek Chmel Hana Ivan \u0160koda Sova \u0158eh\u00E1k \u00DAlehla Urban",
               u"C: Cyril | \u010C: \u010Capek | H: Hana | Ch: Chmel | I: Ivan | \u0158: \u0158eh\u00E1k | S: Sova | "
               u"\u0160: \u0160koda | U: \u00DAlehla Urban" },
    LocaleRow{ "hu_HU", u"Cukor Csaba Dzs\u00F3 Gy\u00F6rgy G\u00E1bor Nagy Ny\u00EDri Szab\u00F3 Soros Zsolt Zita",
               u"C: Cukor | Cs: Csaba | Dz: Dzs\u00F3 | G: G\u00E1bor | Gy: Gy\u00F6rgy | N: Nagy | Ny: Ny\u00EDri | "
               u"S: Soros | Sz: Szab\u00F3 | Z: Zita | Zs: Zsolt" },
    LocaleRow{ "hr_HR", u"Lovro Ljubo \u010Cola \u0106iro Cvita D\u017Eemal Dario \u0110uro",
               u"C: Cvita | \u010C: \u010Cola | \u0106: \u0106iro | D: Dario | D\u017E: D\u017Eemal | \u0110: "
               u"\u0110uro | L: Lovro | Lj: Ljubo" },
    LocaleRow{ "pl_PL", u"Lech \u0141ucja \u0179r\u00F3d\u0142o \u017Baba Zofia",
               u"L: Lech | \u0141: \u0141ucja | Z: Zofia | \u0179: \u0179r\u00F3d\u0142o | \u017B: \u017Baba" },
    LocaleRow{ "es_ES", u"\u00D1u\u00F1ez Nu\u00F1o Ochoa Ch\u00E1vez Cruz Llosa",
               u"C: Ch\u00E1vez Cruz | L: Llosa | N: Nu\u00F1o | \u00D1: \u00D1u\u00F1ez | O: Ochoa" },
    LocaleRow{
        "tr_TR", u"\u0130nci I\u015F\u0131k Ilgaz ipek \u00C7elik Can \u015Een Sel",
        u"C: Can | \u00C7: \u00C7elik | I: Ilgaz I\u015F\u0131k | \u0130: \u0130nci ipek | S: Sel | \u015E: \u015Een" },
    LocaleRow{ "et_EE", u"Zoja \u017Danna Tiit \u00D5ie \u00C4li Virve",
               u"Z: Zoja | \u017D: \u017Danna | T: Tiit | V: Virve | \u00D5: \u00D5ie | \u00C4: \u00C4li" },
    LocaleRow{ "en_GB", u"\u00C9mile Eve \u00C5se adam Adam", u"A: adam Adam \u00C5se | E: \u00C9mile Eve" },
    LocaleRow{ "ru_RU",
               u"\u042F\u043D\u0430 \u0415\u0432\u0430 \u0401\u043B\u043A\u0438\u043D \u0418\u0432\u0430\u043D "
               u"\u0419\u043E\u0432\u0430 anna",
               u"\u0415: \u0415\u0432\u0430 \u0401\u043B\u043A\u0438\u043D | \u0418: \u0418\u0432\u0430\u043D | "
               u"\u0419: \u0419\u043E\u0432\u0430 | \u042F: \u042F\u043D\u0430 | A: anna" },
    LocaleRow{ "uk_UA",
               u"\u0404\u0432\u0433\u0435\u043D \u0415\u043C\u043C\u0430 \u0407\u0436\u0430\u043A "
               u"\u0406\u0432\u0430\u043D \u0490\u0440\u0435\u0447\u043D\u0430 \u0413\u0430\u043D\u043D\u0430",
               u"\u0413: \u0413\u0430\u043D\u043D\u0430 | \u0490: \u0490\u0440\u0435\u0447\u043D\u0430 | \u0415: "
               u"\u0415\u043C\u043C\u0430 | "
               u"\u0404: \u0404\u0432\u0433\u0435\u043D | \u0406: \u0406\u0432\u0430\u043D | \u0407: "
               u"\u0407\u0436\u0430\u043A" },
    LocaleRow{
        "el_GR", u"\u0391\u03BD\u03BD\u03B1 \u0386\u03B3\u03B9\u03C2 \u0392\u03B9\u03BA\u03C4\u03C9\u03C1",
        u"\u0391: \u0386\u03B3\u03B9\u03C2 \u0391\u03BD\u03BD\u03B1 | \u0392: \u0392\u03B9\u03BA\u03C4\u03C9\u03C1" },
    LocaleRow{ "he_IL", u"\u05D1\u05DF \u05D0\u05D1\u05D9 Adam",
               u"\u05D0: \u05D0\u05D1\u05D9 | \u05D1: \u05D1\u05DF | A: Adam" },
    LocaleRow{ "ar_EG", u"\u0628\u0644\u0627\u0644 \u0623\u062D\u0645\u062F \u0627\u0645\u064A\u0646",
               u"\u0627: \u0623\u062D\u0645\u062F \u0627\u0645\u064A\u0646 | \u0628: \u0628\u0644\u0627\u0644" },
    LocaleRow{ "ja_JP", u"\u30AB\u30CA \u304B\u3044 \u3042\u304D \u304C\u304F \u3055\u304D \u3076\u3093",
               u"\u3042: \u3042\u304D | \u304B: \u304B\u3044 \u304C\u304F \u30AB\u30CA | \u3055: \u3055\u304D | "
               u"\u306F: \u3076\u3093" },
    LocaleRow{ "ko_KR", u"\uAE40 \uAE4C\uCE58 \uB098\uB098 \uC774",
               u"\u3131: \uAE40 \uAE4C\uCE58 | \u3134: \uB098\uB098 | \u3147: \uC774" },
    LocaleRow{ "zh_CN", u"\u5F20\u4E09 \u738B\u4E94 \u674E\u56DB \u9648 Adam",
               u"A: Adam | C: \u9648 | L: \u674E\u56DB | W: \u738B\u4E94 | Z: \u5F20\u4E09" },
    LocaleRow{ "de_DE", u"\u5F20 \u738B \u674E", u"\u6F22: \u5F20 \u674E \u738B" },
    LocaleRow{ "de_DE", u"7up Zoe (x) \u0663 \U0001F600 +49 Adam -",
               u"A: Adam | Z: Zoe | #: - (x) +49 \U0001F600 \u0663 7up" },
    LocaleRow{ "de_DE", u"\u0410\u043D\u043D\u0430 \u0391\u03BD\u03BD\u03B1 Anna \u05D0\u05D1\u05D9 \u0430\u043D\u044F",
               u"A: Anna | \u0391: \u0391\u03BD\u03BD\u03B1 | \u0410: \u0410\u043D\u043D\u0430 \u0430\u043D\u044F | "
               u"\u05D0: \u05D0\u05D1\u05D9" },
    LocaleRow{ "C", u"Zoe adam Bert Adam", u"A: adam Adam | B: Bert | Z: Zoe" },
};

} // namespace

TEST( PimPhoneBookSectionTest, NamesAreInTheOrderAndSectionsOfTheLocale )
{
    for ( const LocaleRow& row : s_kLocales )
    {
        const PimPhoneBook phoneBook =
            Sorted( Named( QString::fromUtf16( row.m_names ).split( QLatin1Char( ' ' ) ) ), row.m_locale );
        EXPECT_EQ( QString::fromUtf16( row.m_list ).toStdString(), ListOf( phoneBook ).toStdString() ) << row.m_locale;
    }
}

TEST( PimPhoneBookSectionTest, FamilyNameOrGivenNameIsFirst )
{
    const Contacts::PimContactBook book =
        BookOf( u"N:Berg;Zoe;;;|FN:Zoe Berg\nN:Zorn;Anna;;;|FN:Anna Zorn\nN:Berg;Anna;;;|FN:Anna Berg" );
    EXPECT_EQ( "B: Anna Berg Zoe Berg | Z: Anna Zorn", ListOf( Sorted( book, "de_DE" ) ).toStdString() );
    EXPECT_EQ( "A: Anna Berg Anna Zorn | Z: Zoe Berg",
               ListOf( Sorted( book, "de_DE", PimPhoneBookSorting::GivenName ) ).toStdString() );
}

struct SortRow
{
    const char16_t* m_card;
    const char* m_family;
    const char* m_given;
};

// What the sections show is the first letter of the text that sorts.
TEST( PimPhoneBookSectionTest, SortTextComesFromTheCard )
{
    constexpr std::array s_kRows = {
        SortRow{ u"N:Berg;Anna;;;|FN:x", "B", "A" },
        SortRow{ u"N:Berg;;;;|FN:x", "B", "B" },
        SortRow{ u"N:;Anna;;;|FN:x", "A", "A" },
        SortRow{ u"N:;;Carl;;|FN:x", "X", "X" },
        SortRow{ u"N:Berg;Anna|FN:x", "B", "A" },
        SortRow{ u"N: Berg ; Anna ;;;|FN:x", "B", "A" },
        SortRow{ u"N;SORT-AS=\"Zorn,Otto\":Berg;Anna;;;|FN:x", "Z", "O" },
        SortRow{ u"N;SORT-AS=Zorn:Berg;Anna;;;|FN:x", "Z", "A" },
        SortRow{ u"N;sort-as=Zorn:Berg;Anna;;;|FN:x", "Z", "A" },
        SortRow{ u"N:Berg;Anna;;;|SORT-STRING:Zorn|FN:x", "Z", "A" },
        SortRow{ u"sort-string:Zorn|N:Berg;Anna;;;|FN:x", "Z", "A" },
        SortRow{ u"N:\\;Berg;Anna;;|FN:x", "#", "A" },
        SortRow{ u"N:x\\;Berg;Anna;;|FN:x", "X", "A" },
        SortRow{ u"N:Berg;Anna;;;|N:Zorn;Otto;;;|FN:x", "B", "A" },
        SortRow{ u"N:;;;;|N:Zorn;Otto;;;|FN:x", "Z", "O" },
        SortRow{ u"FN:Anna Berg", "A", "A" },
        SortRow{ u"ORG:Tern", "T", "T" },
        SortRow{ u"ORG;SORT-AS=Radio:Tern", "R", "R" },
        SortRow{ u"EMAIL:m@example.org", "M", "M" },
        SortRow{ u"TEL:123", "#", "#" },
        SortRow{ u"NOTE:x", "#", "#" },
        SortRow{ u"FN:\u200E\u200BAnna", "A", "A" },
        SortRow{ u"FN:A\u0308rger", "A", "A" },
    };
    for ( const SortRow& row : s_kRows )
    {
        const Contacts::PimContactBook book = BookOf( row.m_card );
        const std::string card = QString::fromUtf16( row.m_card ).toStdString();
        EXPECT_EQ( row.m_family, Sorted( book, "de_DE" ).Section( 0 ).toStdString() ) << card;
        EXPECT_EQ( row.m_given, Sorted( book, "de_DE", PimPhoneBookSorting::GivenName ).Section( 0 ).toStdString() )
            << card;
    }
}

TEST( PimPhoneBookSectionTest, SortTextIsFoundInAFoldedLine )
{
    for ( const char* const line : { "SORT-\r\n STRING:Zorn", "SORT\r\n -STRING:Zorn", "S\r\n ORT-STRING:Zorn" } )
    {
        const QByteArray card =
            QByteArray( "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Berg;Anna;;;\r\nFN:x\r\n" ) + line + "\r\nEND:VCARD\r\n";
        const PimPhoneBook phoneBook = Sorted( Contacts::PimContactBook::FromBytes( card ), "de_DE" );
        EXPECT_EQ( phoneBook.At( 0 ).SortName().left( 1 ), phoneBook.Section( 0 ) ) << line;
    }
}

TEST( PimPhoneBookSectionTest, EqualNamesKeepTheOrderOfTheBook )
{
    QStringList names;
    for ( int i = 0; i < 100; ++i )
        names << QStringLiteral( "Anna" ) << QStringLiteral( "anna" );
    const QVector<int> sorted = Sorted( Named( names ), "de_DE" ).Sorted();
    ASSERT_EQ( 200, sorted.size() );
    for ( int i = 0; i < 100; ++i )
    {
        EXPECT_EQ( 2 * i + 1, sorted.at( i ) );
        EXPECT_EQ( 2 * i, sorted.at( 100 + i ) );
    }
}

// Each section is once in the list, and # is the last one. So a list needs no more than the sections.
TEST( PimPhoneBookSectionTest, SectionIsOneRunOfTheList )
{
    QStringList names;
    for ( char16_t letter = 0x20; letter < 0x600; ++letter )
    {
        if ( QChar( letter ).isPrint() && letter != u';' && letter != u',' && letter != u'\\' )
            names << QChar( letter ) + QStringLiteral( "b" ) << QChar( letter ) + QStringLiteral( "z" );
    }
    for ( const char* const locale :
          { "de_DE", "sv_SE", "da_DK", "cs_CZ", "hu_HU", "tr_TR", "lt_LT", "ru_RU", "en_US" } )
    {
        const PimPhoneBook phoneBook = Sorted( Named( names ), locale );
        std::set<QString> sections;
        QString last;
        for ( const int contact : phoneBook.Sorted() )
        {
            const QString section = phoneBook.Section( contact );
            EXPECT_TRUE( section == last || sections.insert( section ).second )
                << locale << ' ' << phoneBook.At( contact ).DisplayName().toStdString() << " in "
                << section.toStdString();
            last = section;
        }
        EXPECT_EQ( "#", last.toStdString() ) << locale;
        EXPECT_GT( sections.size(), 60U ) << locale;
    }
}

} // namespace PimManager::PhoneBook
