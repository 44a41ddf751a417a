#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include "BookTexts.h"

#include <gtest/gtest.h>

#include <array>

namespace PimManager::PhoneBook
{

namespace
{

using Contacts::PimContactLine;

struct Row
{
    const char* m_name;
    const char* m_old;
    const char* m_new;
    /// The values of the lines that only one of the cards has, such as `-TEL:1 +TEL:2`.
    const char* m_lines;
};

std::string TextOf( const PimPhoneBookLines& a_lines )
{
    QStringList texts;
    const auto add = [&texts]( const QList<PimContactLine>& a_list, const char* a_sign )
    {
        for ( const PimContactLine& line : a_list )
            texts.append( QString::fromLatin1( a_sign ) + QString::fromLatin1( line.Name() ) + QLatin1Char( ':' ) +
                          line.Text().left( 20 ) );
    };
    add( a_lines.m_old, "-" );
    add( a_lines.m_new, "+" );
    return texts.join( QLatin1Char( ' ' ) ).toStdString();
}

constexpr std::array s_kRows = {
    Row{ "Same", "FN:a\nTEL:1", "FN:a\nTEL:1", "" },
    Row{ "Value", "FN:a\nTEL:1", "FN:a\nTEL:2", "-TEL:1 +TEL:2" },
    Row{ "Added", "FN:a", "FN:a\nTEL:1\nTEL:2", "+TEL:1 +TEL:2" },
    Row{ "Removed", "FN:a\nNOTE:x\nTEL:1", "FN:a", "-NOTE:x -TEL:1" },
    Row{ "AddedTwice", "FN:a\nTEL:1", "FN:a\nTEL:1\nTEL:1", "+TEL:1" },
    Row{ "Parameter", "FN:a\nTEL;TYPE=home:1", "FN:a\nTEL;TYPE=work:1", "-TEL:1 +TEL:1" },
    Row{ "Label", "FN:a\na.TEL:1\na.X-ABLabel:boat", "FN:a\na.TEL:1\na.X-ABLabel:car",
         "-X-ABLabel:boat +X-ABLabel:car" },
    Row{ "OrderAndValue", "FN:a\nNOTE:x\nTEL:1\nTEL:2", "TEL:2\nNOTE:y\nTEL:1\nFN:a", "-NOTE:x +NOTE:y" },
    Row{ "Order", "FN:a\nTEL:1\nTEL:2", "FN:a\nTEL:2\nTEL:1", "-TEL:2 +TEL:2" },
    Row{ "OrderOfKinds", "FN:a\nTEL:1", "TEL:1\nFN:a", "" },
    Row{ "LabelsExchanged", "FN:a\na.TEL:1\nb.TEL:2\na.X-ABLabel:boat\nb.X-ABLabel:car",
         "FN:a\nb.TEL:1\na.TEL:2\na.X-ABLabel:boat\nb.X-ABLabel:car", "-TEL:1 -TEL:2 +TEL:1 +TEL:2" },
    Row{ "Writing", "VERSION:2.1\nFN:a\nTEL;HOME:1\nNOTE;ENCODING=QUOTED-PRINTABLE:x=C3=B6\nX-A:b",
         "VERSION:4.0\nFN:a\nTEL;TYPE=home:1\nNOTE:x\xC3\xB6\nX-A:c", "-X-A:b +X-A:c" },
    Row{ "Forms", "VERSION:3.0\nFN:a\nTEL;TYPE=home:+1\nPHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQ\nBDAY:1996-04-15\nX-A:b",
         "VERSION:4.0\nFN:a\nTEL;TYPE=home;VALUE=uri:tel:+1\nPHOTO:data:image/jpeg;base64,/9j/"
         "4AAQ\nBDAY:19960415\nX-A:c",
         "-X-A:b +X-A:c" },
    Row{ "FormsOfValues", "N:a;b\nGEO:1;2\nKIND:Group\nREV:2000-01-01\nX-A:b",
         "VERSION:4.0\nN:a;b;;;\nGEO:geo:1,2\nKIND:group\nREV:20000101\nX-A:c", "-X-A:b +X-A:c" },
    Row{ "TwoRevisions", "FN:a\nREV:2000-01-01\nREV:2001-01-01", "FN:a\nREV:20000101\nREV:2002-01-01",
         "-REV:2000-01-01 -REV:2001-01-01 +REV:20000101 +REV:2002-01-01" },
    Row{ "Nicknames", "NICKNAME:a,b\nFN:x\nNOTE:x", "NICKNAME:a,b\nFN:x\nNOTE:y", "-NOTE:x +NOTE:y" },
    Row{ "EmptyLines", "FN:a\nTEL:\nADR:;;;;;;\nNOTE:x", "FN:a\nNOTE:y", "-NOTE:x +NOTE:y" },
    Row{ "OnlyEmptyLines", "FN:a", "FN:a\nX-A:", "+X-A:" },
    Row{ "SecondVersion", "VERSION:3.0\nFN:a", "VERSION:a\nVERSION:3.0\nFN:a", "+VERSION:a" },
    Row{ "UidMissing", "UID:1\nFN:a\nX-BT-UID:2", "FN:a\nNOTE:y", "+NOTE:y" },
    Row{ "UidDiffers", "UID:1\nFN:a", "UID:2\nFN:a", "-UID:1 +UID:2" },
    Row{ "Agent", "FN:a\nAGENT:\nBEGIN:VCARD\nFN:b\nEND:VCARD\nNOTE:x",
         "FN:a\nAGENT:\nBEGIN:VCARD\nFN:c\nEND:VCARD\nNOTE:x", "-AGENT: +AGENT:" },
    Row{ "AgentFolded", "FN:a\nAGENT:\nBEGIN:VCARD\nFN:b c\nEND:VCARD\nNOTE:x",
         "FN:a\nAGENT:\nBEGIN:VCARD\nFN:b\n  c\nEND:VCARD\nNOTE:y", "-NOTE:x +NOTE:y" },
    Row{ "Everything", "FN:a\nTEL:1", "ORG:b\nEMAIL:c@d", "-FN:a -TEL:1 +ORG:b +EMAIL:c@d" },
    Row{ "Binary", "FN:a\nX-B;ENCODING=b:AAAA", "FN:a\nX-B;ENCODING=b:AAAB", "-X-B:AAAA +X-B:AAAB" },
};

constexpr int s_kLines = 20000;

Contacts::PimContact ContactOf( const QByteArray& a_lines )
{
    return BookOf( a_lines ).At( 0 );
}

} // namespace

TEST( LineDifferencesTest, DifferentLinesAreFound )
{
    for ( const Row& row : s_kRows )
    {
        const PimPhoneBookLines lines = PimPhoneBookChanges::LinesOf( ContactOf( row.m_old ), ContactOf( row.m_new ) );
        EXPECT_EQ( TextOf( lines ), row.m_lines ) << row.m_name;
        const PimPhoneBookLines back = PimPhoneBookChanges::LinesOf( ContactOf( row.m_new ), ContactOf( row.m_old ) );
        EXPECT_EQ( back.m_old.size(), lines.m_new.size() ) << row.m_name;
        EXPECT_EQ( back.m_new.size(), lines.m_old.size() ) << row.m_name;
    }
}

TEST( LineDifferencesTest, EditedContactsAreCompared )
{
    const Contacts::PimContact old = ContactOf( "FN:a\nTEL:1" );
    Contacts::PimContact edited = old;
    edited.SetDisplayName( QStringLiteral( "b" ) );
    EXPECT_EQ( TextOf( PimPhoneBookChanges::LinesOf( old, edited ) ), "-FN:a +FN:b" );
}

TEST( LineDifferencesTest, NullContactHasNoLines )
{
    EXPECT_EQ( TextOf( PimPhoneBookChanges::LinesOf( {}, {} ) ), "" );
    EXPECT_EQ( TextOf( PimPhoneBookChanges::LinesOf( {}, ContactOf( "FN:a" ) ) ), "+FN:a" );
}

TEST( LineDifferencesTest, ManyLinesAreCompared )
{
    QByteArray numbers;
    for ( int i = 0; i < s_kLines; ++i )
        numbers += "TEL:" + QByteArray::number( i ) + '\n';
    const QByteArray same = QByteArray( "TEL:1\n" ).repeated( s_kLines );
    for ( const QByteArray& lines : { numbers, same } )
    {
        EXPECT_EQ(
            TextOf( PimPhoneBookChanges::LinesOf( ContactOf( lines + "NOTE:x" ), ContactOf( lines + "NOTE:y" ) ) ),
            "-NOTE:x +NOTE:y" );
        const QByteArray other = "VERSION:4.0\n" + QByteArray( lines ).replace( "TEL:", "TEL;VALUE=uri:tel:" );
        EXPECT_EQ(
            TextOf( PimPhoneBookChanges::LinesOf( ContactOf( lines + "NOTE:x" ), ContactOf( other + "NOTE:y" ) ) ),
            "-NOTE:x +NOTE:y" );
    }
}

TEST( LineDifferencesTest, ManyIdentifiersAreCompared )
{
    const QByteArray identifiers = QByteArray( "X-BT-UID:1\nUID:1\n" ).repeated( s_kLines );
    EXPECT_EQ( TextOf( PimPhoneBookChanges::LinesOf( ContactOf( identifiers + "FN:a\nNOTE:x" ),
                                                     ContactOf( "FN:a\nNOTE:y" ) ) ),
               "-NOTE:x +NOTE:y" );
}

} // namespace PimManager::PhoneBook
