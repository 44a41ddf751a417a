// No value, parameter, name or group ends its line or its card, whatever is in it.

#include "Checks/WriteChecks.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QSet>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;

struct Row
{
    const char* m_name;
    /// Lines between BEGIN, VERSION and FN, and END. `@` is one of the texts below.
    QByteArray m_lines;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

// What may be taken for the end of a line, a parameter or a card.
const QList<QByteArray> s_kTexts = {
    QByteArray( "\0", 1 ),
    "\x01\x02\x1B[31m\x7F",
    "\x0B\x0C\x1C\x1D\x1E\x1F",
    "\xC2\x85 next line",
    "\xE2\x80\xA8 line separator",
    "\xE2\x80\xA9 paragraph separator",
    "\\nEND:VCARD\\nBEGIN:VCARD\\n",
    "\\\\nEND:VCARD",
    "\\N\\r\\n",
    "^nEND:VCARD^^n",
    "\" : ; , = \"",
    "\":END:VCARD",
    ";;;;;;;;",
    ",,,,,,,,",
    "\\",
    "\\\\\\",
    "=0D=0AEND:VCARD=0D=0A",
    "=",
    "====",
    "a\rb",
    "\xC3",
    "\xF0\x9F\x98",
    "\xFF\xFE",
    "\xED\xA0\x80",
    "\xE2\x80",
    " ",
    "  leading and trailing  ",
    "\t\t",
    "data:,x",
    "data:text/vcard,BEGIN:VCARD%0D%0AEND:VCARD",
    "END:VCARD",
    "BEGIN:VCARD",
    "#comment",
};

QByteArray CardOf( const QByteArray& a_version, const QByteArray& a_lines )
{
    return "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\nFN:A\r\n" + a_lines + "\r\nEND:VCARD\r\n";
}

class WriterHostileTest : public testing::TestWithParam<Row>
{
};

TEST_P( WriterHostileTest, EveryTextStaysInItsPlace )
{
    for ( const QByteArray& text : s_kTexts )
    {
        for ( const QByteArray& repeated : { text, text.repeated( 40 ), "x" + text + "y" } )
        {
            for ( const char* const version : { "2.1", "3.0", "4.0", "5" } )
            {
                const QByteArray bytes = CardOf( version, QByteArray( GetParam().m_lines ).replace( '@', repeated ) );
                EXPECT_EQ( BrokenWriting( Subject( bytes, PimContactOptions(), 0 ) ).toStdString(), "" )
                    << version << ' ' << bytes.toPercentEncoding().constData();
            }
        }
    }
}

/// Distinct texts: `1,2,3`.
QByteArray ListOf( int a_count, const QByteArray& a_before = {} )
{
    QByteArray list;
    for ( int i = 1; i <= a_count; ++i )
        list += ( i > 1 ? "," : "" ) + a_before + QByteArray::number( i );
    return list;
}

PimContact WrittenIn30( const QByteArray& a_lines )
{
    const PimContactBook book = PimContactBook::FromBytes( CardOf( "4.0", a_lines ) );
    return PimContact( PimContactBook::FromBytes( PimContactWriter::TextOf( book.At( 0 ) ) ).CardAt( 0 ) );
}

// A look through the texts for each of them takes minutes here.
TEST( WriterListsTest, ManyExtraTextsOfAnAddressMoveInTheirOrder )
{
    constexpr int s_kCount = 150000;
    const PimContact contact = WrittenIn30( "ADR:;;;a;;;;" + ListOf( s_kCount ) + ";;;" + ListOf( s_kCount, "s" ) );
    const PimContactAddress address = contact.Addresses().constFirst();
    ASSERT_EQ( address.Parts( PimContactAddressPart::Extended ).size(), s_kCount );
    ASSERT_EQ( address.Parts( PimContactAddressPart::Street ).size(), s_kCount );
    EXPECT_EQ( address.Parts( PimContactAddressPart::Extended ).constFirst(), QStringLiteral( "1" ) );
    EXPECT_EQ( address.Parts( PimContactAddressPart::Extended ).constLast(), QString::number( s_kCount ) );
    EXPECT_EQ( address.Parts( PimContactAddressPart::Street ).constLast(), QStringLiteral( "s%1" ).arg( s_kCount ) );
    EXPECT_EQ( address.Part( PimContactAddressPart::Locality ), QStringLiteral( "a" ) );
}

TEST( WriterListsTest, ManyExtraTextsOfANameMoveOnce )
{
    constexpr int s_kCount = 150000;
    const PimContact contact = WrittenIn30( "N:7;b;;;x;" + ListOf( s_kCount ) + ";" + ListOf( s_kCount, "g" ) );
    const QStringList families = contact.Name().Parts( PimContactNamePart::Family );
    ASSERT_EQ( families.size(), s_kCount );
    EXPECT_EQ( families.mid( 0, 3 ),
               QStringList( { QStringLiteral( "7" ), QStringLiteral( "1" ), QStringLiteral( "2" ) } ) );
    EXPECT_EQ( families.count( QStringLiteral( "7" ) ), 1 );
    ASSERT_EQ( contact.Name().Parts( PimContactNamePart::Suffix ).size(), s_kCount + 1 );
    EXPECT_EQ( contact.Name().Parts( PimContactNamePart::Suffix ).constFirst(), QStringLiteral( "x" ) );
}

TEST( WriterListsTest, ManyPreferencesBecomeOne )
{
    constexpr int s_kCount = 60000;
    const QByteArray types = QByteArray( "home," ).repeated( s_kCount ) + QByteArray( "pref," ).repeated( s_kCount );
    const QByteArray card =
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:A\r\nN:A\r\nTEL;TYPE=" + types + "work:1\r\nEND:VCARD\r\n";
    const PimContact contact = PimContactBook::FromBytes( card ).At( 0 );
    const PimContactBook book = PimContactBook::FromBytes( PimContactWriter::TextOf( contact, PimContactFormat::V40 ) );
    const PimContactPhone phone = PimContact( book.CardAt( 0 ) ).Phones().constFirst();
    EXPECT_EQ( phone.Types(), QStringList( { QStringLiteral( "HOME" ), QStringLiteral( "WORK" ) } ) );
    EXPECT_EQ( phone.Preference(), 1 );
    for ( const PimContactLine& line : book.CardAt( 0 ) )
    {
        if ( line.IsNamed( QLatin1String( "TEL" ) ) )
        {
            EXPECT_EQ( line.Parameter( QLatin1String( "PREF" ) ), QStringList( QStringLiteral( "1" ) ) );
        }
    }
}

TEST( WriterListsTest, NewGroupIsUnusedNextToTheLargestNumber )
{
    const PimContact contact =
        WrittenIn30( "item1.TEL:1\r\nitem2147483647.TEL:2\r\nADR;LABEL=x:;;a;b;;;\r\nADR;LABEL=y:;;c;d;;;" );
    QSet<QByteArray> groups;
    for ( const PimContactLine& line : contact.Card() )
        groups.insert( line.Group() );
    EXPECT_EQ( groups, QSet<QByteArray>( { "", "item1", "item2147483647", "item2", "item3" } ) );
}

const std::vector<Row> s_kRows = {
    { "Note", "NOTE:@" },
    { "NoteInTheMiddle", "NOTE:some text before it, which is rather long; @ and more behind it\r\nTEL:1" },
    { "QuotedPrintable", "NOTE;ENCODING=QUOTED-PRINTABLE:@" },
    { "Base64", "NOTE;ENCODING=b:@" },
    { "Name", "N:@;@;@,@" },
    { "Address", "ADR;TYPE=home:;;@;@;;;@\r\nLABEL;TYPE=home:@" },
    { "Types", "TEL;TYPE=@:1\r\nTEL;@:2\r\nTEL;TYPE=\"@\":3" },
    { "Parameter", "TEL;X-A=@:1\r\nTEL;X-A=\"@\";LABEL=\"@\":2" },
    { "ParameterName", "TEL;X@=a:1\r\nTEL;@=a,b,c:2" },
    { "LabelParameter", "ADR;LABEL=\"@\";GEO=\"@\";TZ=\"@\";CC=\"@\":;;a;;;;" },
    { "PropertyName", "X@:1\r\n@X:2" },
    { "Group", "@.TEL:1\r\na@.X-ABLabel:@" },
    { "Uri", "URL:http://example.com/@\r\nPHOTO;VALUE=uri:http://@" },
    { "Messengers", "IMPP:xmpp:@\r\nX-JABBER:@\r\nX-SOCIALPROFILE;TYPE=@:@" },
    { "Dates", "BDAY:@\r\nBDAY;VALUE=text:@\r\nREV:@" },
    { "Position", "GEO:@\r\nTZ:@" },
    { "Media", "PHOTO:@\r\nPHOTO;TYPE=@;ENCODING=b:/9j/4AAQSkZJRg\r\nKEY:data:@;base64,AAAA" },
    { "Agent", "AGENT:@\r\nAGENT:BEGIN:VCARD\\nFN:@\\nEND:VCARD" },
    { "NestedCard", "AGENT:\r\nBEGIN:VCARD\r\nVERSION:2.1\r\nN:@\r\nNOTE:@\r\nEND:VCARD" },
    { "Relations", "RELATED;TYPE=spouse;VALUE=text:@\r\nX-SPOUSE:@" },
    { "SortString", "N:a;b\r\nSORT-STRING:@\r\nN;SORT-AS=\"@\":c" },
    { "Unknown", "X-FOO:@;@,@\\;@" },
    { "Components", "ORG:@;@\r\nGENDER:@;@\r\nCATEGORIES:@,@" },
    { "Version", "VERSION:@" },
};

INSTANTIATE_TEST_SUITE_P( Rows, WriterHostileTest, testing::ValuesIn( s_kRows ),
                          []( const testing::TestParamInfo<Row>& a_info )
                          { return std::string( a_info.param.m_name ); } );

} // namespace

} // namespace PimManager::Contacts
