#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

constexpr PimContactFormat s_kVCards[] = { PimContactFormat::V21, PimContactFormat::V30, PimContactFormat::V40 };

PimContactCard CardOf( const QByteArray& a_version, const QByteArray& a_lines )
{
    const QByteArray bytes = "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\n" + a_lines + "END:VCARD\r\n";
    return PimContactBook::FromBytes( bytes ).CardAt( 0 );
}

/// \return the lines between VERSION and END.
std::string LinesOf( const QByteArray& a_text )
{
    const auto begin = a_text.indexOf( "VERSION:" );
    QByteArray lines = a_text.mid( a_text.indexOf( '\n', begin ) + 1 );
    lines.chop( static_cast<int>( sizeof( "END:VCARD\r\n" ) ) - 1 );
    return lines.replace( "\r\n", "\n" ).toStdString();
}

/// A device that has room for some bytes, and takes a few at once.
class FullDevice : public QIODevice
{
public:
    explicit FullDevice( qint64 a_room ) :
        m_room( a_room )
    {
        open( QIODevice::WriteOnly );
    }

    QByteArray m_bytes;

protected:
    qint64 readData( char* /*a_data*/, qint64 /*a_most*/ ) override { return -1; }
    qint64 writeData( const char* a_data, qint64 a_size ) override
    {
        const qint64 size = std::min( { a_size, m_room, qint64( 1000 ) } );
        if ( size == 0 )
        {
            setErrorString( QStringLiteral( "no room is left" ) );
            return -1;
        }
        m_bytes.append( a_data, static_cast<int>( size ) );
        m_room -= size;
        return size;
    }

private:
    qint64 m_room;
};

PimContactBook ManyContacts( int a_count )
{
    QByteArray bytes;
    for ( int i = 0; i < a_count; ++i )
        bytes += "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Fenwick;Ada;;;\r\nFN:Ada Fenwick " + QByteArray::number( i ) +
                 "\r\nTEL;TYPE=HOME:+49 30 " + QByteArray::number( i ) + "\r\nEND:VCARD\r\n";
    return PimContactBook::FromBytes( bytes );
}

TEST( PimContactWriterTest, CleanBookIsCopied )
{
    QByteArray bytes;
    QBuffer buffer( &bytes );
    buffer.open( QIODevice::WriteOnly );
    const PimContactBook book = ManyContacts( 3000 );
    const PimContactWriteReport report = book.Save( buffer );
    QByteArray expected;
    for ( const PimContactCard& card : book.Cards() )
        expected += card.Bytes();
    EXPECT_TRUE( bytes == expected );
    EXPECT_EQ( report.Contacts(), 3000 );
    EXPECT_TRUE( report.IsComplete() );
    EXPECT_EQ( report.Summary(), QStringLiteral( "3000 contacts" ) );
}

TEST( PimContactWriterTest, ChangedContactDiffersInItsLinesOnly )
{
    PimContactBook book = ManyContacts( 3 );
    PimContact contact = book.At( 1 );
    PimContactPhone phone = contact.Phones().at( 0 );
    PimContactPhone other = phone;
    other.SetNumber( QStringLiteral( "+1 555 0100" ) );
    ASSERT_TRUE( contact.Replace( phone, other ) );
    QByteArray expected;
    for ( const PimContactCard& card : book.Cards() )
        expected += card.Bytes();
    expected.replace( "TEL;TYPE=HOME:+49 30 1", "TEL;TYPE=HOME:+1 555 0100" );
    book.Replace( 1, contact );
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    EXPECT_TRUE( book.Save( buffer ).IsComplete() );
    EXPECT_EQ( buffer.data().toStdString(), expected.toStdString() );
}

TEST( PimContactWriterTest, FullDeviceIsReportedAndNothingMoreIsWritten )
{
    FullDevice device( 100000 );
    PimContactWriter writer( device );
    const PimContactBook book = ManyContacts( 3000 );
    int written = 0;
    for ( const PimContactCard& card : book.Cards() )
        written += writer.Write( card ) ? 1 : 0;
    EXPECT_LT( written, 3000 );
    EXPECT_FALSE( writer.Finish() );
    EXPECT_EQ( writer.ErrorText(), QStringLiteral( "no room is left" ) );
    EXPECT_FALSE( writer.Report().IsComplete() );
    EXPECT_LT( writer.Report().Contacts(), 3000 );
    EXPECT_EQ( device.m_bytes.size(), 100000 );
}

TEST( PimContactWriterTest, EmptyBookIsAnEmptyText )
{
    for ( const PimContactFormat format : s_kVCards )
    {
        QBuffer buffer;
        buffer.open( QIODevice::WriteOnly );
        EXPECT_TRUE( PimContactBook().Save( buffer, format ).IsComplete() );
        EXPECT_TRUE( buffer.data().isEmpty() );
    }
    EXPECT_TRUE( PimContactWriter::TextOf( PimContactCard() ).isEmpty() );
}

TEST( PimContactWriterTest, EmptyBookIsAnEmptyArrayAsJCard )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    EXPECT_TRUE( PimContactBook().Save( buffer, PimContactFormat::JCard ).IsComplete() );
    EXPECT_EQ( buffer.data(), "[]\n" );
    EXPECT_EQ( PimContactWriter::TextOf( PimContactCard(), PimContactFormat::JCard ), "[]\n" );
}

TEST( PimContactWriterTest, SavedFileIsReplacedOnlyWhenItIsWritten )
{
    const QTemporaryDir folder;
    const QString name = folder.filePath( QStringLiteral( "book.vcf" ) );
    EXPECT_TRUE( ManyContacts( 2 ).Save( name ).IsComplete() );
    EXPECT_EQ( PimContactBook::ReadFile( name ).Size(), 2 );
    EXPECT_FALSE(
        ManyContacts( 2 ).Save( folder.filePath( QStringLiteral( "none/book.vcf" ) ) ).ErrorText().isEmpty() );
}

TEST( PimContactWriterTest, NotesAreCountedButNotAllKept )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer );
    writer.SetMostNotes( 2 );
    for ( int i = 0; i < 5; ++i )
        writer.Write( CardOf( "4.0", "FN:A\r\nGENDER:F\r\n" ) );
    const PimContactWriteReport report = writer.Report();
    EXPECT_EQ( report.Notes().size(), 2 );
    EXPECT_EQ( report.Count( PimContactWriteCode::PropertyRenamed ), 5 );
    EXPECT_EQ( report.Count( PimContactWriteCode::NameAdded ), 5 );
    EXPECT_EQ( report.Notes().at( 0 ).Text(), QStringLiteral( "N was added" ) );
    EXPECT_EQ( report.Notes().at( 1 ).Text(), QStringLiteral( "GENDER was written as X-GENDER" ) );
    EXPECT_EQ( report.Notes().at( 1 ).Line(), 3 );
    EXPECT_EQ( report.Notes().at( 1 ).Contact(), 1 );
    EXPECT_EQ( report.Summary(), QStringLiteral( "5 contacts; 5 names added; 5 properties renamed" ) );
}

TEST( PimContactWriterTest, FilteredCardIsReported )
{
    PimContactOptions options;
    options.SetNames( { "FN" } );
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:3.0\r\nN:a\r\nFN:A\r\nTEL:1\r\nEND:VCARD\r\n", options );
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    EXPECT_EQ( book.Save( buffer ).Count( PimContactWriteCode::CardFiltered ), 1 );
}

TEST( PimContactWriterTest, SortStringIsAParameterOfTheNameIn40 )
{
    const PimContactCard old = CardOf( "3.0", "N:b;a;;;\r\nFN:a b\r\nSORT-STRING:b a\r\n" );
    const QByteArray text = PimContactWriter::TextOf( old, PimContactFormat::V40 );
    EXPECT_EQ( LinesOf( text ), "N;SORT-AS=\"b a\":b;a;;;\nFN:a b\n" );
    const PimContactCard card = PimContactBook::FromBytes( text ).CardAt( 0 );
    EXPECT_EQ( PimContact( card ).SortName(), QStringLiteral( "b a" ) );
    EXPECT_EQ( LinesOf( PimContactWriter::TextOf( card ) ), "N:b;a;;;\nSORT-STRING:b a\nFN:a b\n" );
    EXPECT_EQ( LinesOf( PimContactWriter::TextOf( card, PimContactFormat::V21 ) ),
               "N:b;a;;;\nX-SORT-STRING:b a\nFN:a b\n" );
}

TEST( PimContactWriterTest, LossIsReportedForItsLineOnly )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, PimContactFormat::V40 );
    ASSERT_TRUE( writer.Write( CardOf( "3.0", "N:a;b;;;\r\nFN:a\r\nNOTE:c\x01\r\nSORT-STRING:d\r\n" ) ) );
    const QList<PimContactWriteNote> notes = writer.Report().Notes();
    ASSERT_EQ( notes.size(), 1 );
    EXPECT_EQ( notes.front().Code(), PimContactWriteCode::ValueChanged );
    EXPECT_EQ( notes.front().Line(), 4 );
}

TEST( PimContactWriterTest, ExtraComponentsOfTheNameAreKeptInTheOthers )
{
    const PimContactCard card = CardOf( "4.0", "FN:x\r\nN:b;a;;;;c;jr.\r\n" );
    EXPECT_EQ( LinesOf( PimContactWriter::TextOf( card ) ), "FN:x\nN:b,c;a;;;jr.\n" );
}

TEST( PimContactWriterTest, VersionIsWhereTheStandardWantsIt )
{
    const PimContactCard last =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nN:a\r\nFN:a\r\nVERSION:3.0\r\nEND:VCARD\r\n" ).CardAt( 0 );
    EXPECT_EQ( PimContactWriter::TextOf( last ).toStdString(), last.Bytes().toStdString() );
    EXPECT_EQ( PimContactWriter::TextOf( last, PimContactFormat::V40 ).toStdString(),
               "BEGIN:VCARD\r\nVERSION:4.0\r\nN:a;;;;\r\nFN:a\r\nEND:VCARD\r\n" );
    const PimContactCard none = PimContactBook::FromBytes( "BEGIN:VCARD\r\nFN:a\r\nEND:VCARD\r\n" ).CardAt( 0 );
    EXPECT_EQ( PimContactWriter::TextOf( none ).toStdString(),
               "BEGIN:VCARD\r\nVERSION:3.0\r\nN:;;;;\r\nFN:a\r\nEND:VCARD\r\n" );
}

struct ConversionRow
{
    const char* m_name;
    const char* m_version;
    PimContactFormat m_format;
    const char* m_lines;
    const char* m_expected;
};

std::ostream& operator<<( std::ostream& a_stream, const ConversionRow& a_row )
{
    return a_stream << a_row.m_name;
}

class PimContactWriterConversionTest : public testing::TestWithParam<ConversionRow>
{
};

TEST_P( PimContactWriterConversionTest, LinesAreThoseOfTheTarget )
{
    const ConversionRow& row = GetParam();
    const QByteArray head = "N:b;a;;;\r\nFN:a b\r\n";
    const QByteArray lines = QByteArray( row.m_lines ).replace( "\n", "\r\n" );
    const std::string expected = "N:b;a;;;\nFN:a b\n" + std::string( row.m_expected );
    EXPECT_EQ( LinesOf( PimContactWriter::TextOf( CardOf( row.m_version, head + lines ), row.m_format ) ), expected );
}

constexpr PimContactFormat s_k21 = PimContactFormat::V21;
constexpr PimContactFormat s_k30 = PimContactFormat::V30;
constexpr PimContactFormat s_k40 = PimContactFormat::V40;

const std::vector<ConversionRow> s_kRows = {
    { "PreferredTypeTo40", "3.0", s_k40, "TEL;TYPE=home,pref:1\n", "TEL;TYPE=home;PREF=1:1\n" },
    { "PreferenceTo30", "4.0", s_k30, "TEL;PREF=1;TYPE=home:1\n", "TEL;TYPE=home,PREF:1\n" },
    { "PreferenceTo21", "4.0", s_k21, "TEL;PREF=1;TYPE=home:1\n", "TEL;home;PREF:1\n" },
    { "LowPreferenceTo30", "4.0", s_k30, "TEL;PREF=2:1\n", "TEL:1\n" },
    { "BytesTo40", "2.1", s_k40, "PHOTO;ENCODING=BASE64;JPEG:/9j/4AAQSkZJRg==\n\n",
      "PHOTO;VALUE=uri:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n" },
    { "BytesTo30", "4.0", s_k30, "PHOTO:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n",
      "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRg==\n" },
    { "BytesTo21", "4.0", s_k21, "PHOTO:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n",
      "PHOTO;ENCODING=BASE64;JPEG:/9j/4AAQSkZJRg==\n\n" },
    { "UriTo30", "4.0", s_k30, "PHOTO;MEDIATYPE=image/gif:http://example.com/a.gif\n",
      "PHOTO;TYPE=GIF;VALUE=uri:http://example.com/a.gif\n" },
    { "UriTo21", "3.0", s_k21, "PHOTO;VALUE=uri;TYPE=GIF:http://example.com/a.gif\n",
      "PHOTO;GIF;VALUE=URL:http://example.com/a.gif\n" },
    { "UriTo40", "3.0", s_k40, "PHOTO;VALUE=uri;TYPE=GIF:http://example.com/a.gif\n",
      "PHOTO;MEDIATYPE=image/gif;VALUE=uri:http://example.com/a.gif\n" },
    { "PictureOf40StaysAsItIs", "4.0", s_k40, "PHOTO:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n",
      "PHOTO:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n" },
    { "BytesWithoutEncodingIn30", "3.0", s_k30, "PHOTO;TYPE=JPEG;VALUE=BINARY:/9j/4AAQSkZJRgABAQAAAQABAAD/2w==\n",
      "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRgABAQAAAQABAAD/2w==\n" },
    { "DataUriIn30", "3.0", s_k30, "PHOTO;VALUE=uri:data:image/jpeg;base64,/9j/4AAQSkZJRg==\n",
      "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRg==\n" },
    { "TypeNameOf21In30", "3.0", s_k30, "PHOTO;VALUE=URL;TYPE=GIF:http://example.com/a.gif\n",
      "PHOTO;TYPE=GIF;VALUE=uri:http://example.com/a.gif\n" },
    { "TypeNameOf21In40", "4.0", s_k40, "URL;VALUE=URL:http://example.com/\n", "URL:http://example.com/\n" },
    { "EscapedColonIn30", "3.0", s_k30, "NOTE:a\\:b\\;c\n", "NOTE:a:b\\;c\n" },
    { "EscapedColonIn40", "4.0", s_k40, "NOTE:a\\:b\\;c\n", "NOTE:a:b\\;c\n" },
    { "BackslashBeforeColonIn30", "3.0", s_k30, "NOTE:a\\\\:b\n", "NOTE:a\\\\:b\n" },
    { "SemicolonsIn30", "3.0", s_k30, "NOTE:a;b\nNICKNAME:a;b,c\nX-FOO:a;b\n",
      "NOTE:a\\;b\nNICKNAME:a\\;b,c\nX-FOO:a;b\n" },
    { "SemicolonsIn40", "4.0", s_k40, "NOTE:a;b\n", "NOTE:a;b\n" },
    { "SemicolonsInUris", "3.0", s_k30, "URL:http://example.com/a;b\n", "URL:http://example.com/a;b\n" },
    { "BlankBehindSoftBreak", "2.1", s_k21, "NOTE;ENCODING=QUOTED-PRINTABLE:a=\n\tb=3B\n", "NOTE:a\tb;\n" },
    { "GroupOfTwoNames", "3.0", s_k30, "a.b.TEL:1\n", "a-b.TEL:1\n" },
    { "EmptyGroup", "3.0", s_k30, ".TEL:1\n", "TEL:1\n" },
    { "MailUriTo30", "4.0", s_k30, "EMAIL:mailto:ada%40example.org\n", "EMAIL:ada@example.org\n" },
    { "MailUriIn30", "3.0", s_k30, "EMAIL;TYPE=home:mailto:ada@example.org\n", "EMAIL;TYPE=home:ada@example.org\n" },
    // The second line has the head of the first one, which is remembered.
    { "MailUriBehindMailTo40", "3.0", s_k40, "EMAIL:mara@example.org\nEMAIL:mailto:ada@example.org\n",
      "EMAIL:mara@example.org\nEMAIL:ada@example.org\n" },
    { "MailUriBehindMailTo21", "3.0", s_k21, "EMAIL:mara@example.org\nEMAIL:mailto:ada@example.org\n",
      "EMAIL:mara@example.org\nEMAIL:ada@example.org\n" },
    { "MailUriIn40", "4.0", s_k40, "EMAIL:MailTo:ada@example.org?subject=x\n", "EMAIL:ada@example.org\n" },
    { "LabelTo40", "3.0", s_k40, "ADR;TYPE=home:;;Mill Lane 12;;;;\nLABEL;TYPE=home:Mill Lane 12\\nCorvalia\n",
      "ADR;TYPE=home;LABEL=\"Mill Lane 12^nCorvalia\":;;Mill Lane 12;;;;\n" },
    { "LabelWithoutAddressTo40", "2.1", s_k40, "LABEL;HOME:Mill Lane\n", "ADR;TYPE=HOME;LABEL=\"Mill Lane\":;;;;;;\n" },
    { "LabelTo30", "4.0", s_k30, "ADR;TYPE=home;LABEL=\"a, b^nc\":;;d;;;;\n",
      "item1.ADR;TYPE=home:;;d;;;;\nitem1.LABEL;TYPE=home:a\\, b\\nc\n" },
    { "PartsOfAddressTo30", "4.0", s_k30, "item3.ADR;GEO=\"geo:1.5,-2\";TZ=Europe/Berlin;CC=de:;;d;;;;\n",
      "item3.ADR:;;d;;;;\nitem3.TZ;VALUE=text:Europe/Berlin\nitem3.X-ABADR:de\nitem3.GEO:1.5;-2\n" },
    { "Birthday30", "4.0", s_k30, "BDAY:19850412\n", "BDAY:1985-04-12\n" },
    { "Birthday40", "3.0", s_k40, "BDAY:1985-04-12\n", "BDAY:19850412\n" },
    { "BirthdayAndTime", "4.0", s_k30, "BDAY:19850412T101500Z\n", "BDAY;VALUE=date-time:1985-04-12T10:15:00Z\n" },
    { "BirthdayWithoutYearTo30", "4.0", s_k30, "BDAY:--0412\n", "BDAY;X-APPLE-OMIT-YEAR=1604:1604-04-12\n" },
    { "BirthdayWithoutYearTo40", "3.0", s_k40, "BDAY;X-APPLE-OMIT-YEAR=1604:1604-04-12\n", "BDAY:--0412\n" },
    { "BirthdayAsText", "3.0", s_k40, "BDAY:about 1800\n", "BDAY;VALUE=text:about 1800\n" },
    { "Anniversary30", "4.0", s_k30, "ANNIVERSARY:20010612\n", "X-ANNIVERSARY:2001-06-12\n" },
    { "Anniversary40", "3.0", s_k40, "X-ANNIVERSARY:2001-06-12\n", "ANNIVERSARY:20010612\n" },
    { "Revision40", "3.0", s_k40, "REV:1995-10-31T22:27:10Z\n", "REV:19951031T222710Z\n" },
    { "Revision30", "4.0", s_k30, "REV:19951031T222710Z\n", "REV:1995-10-31T22:27:10Z\n" },
    { "PositionTo40", "3.0", s_k40, "GEO:37.386013;-122.082932\n", "GEO:geo:37.386013,-122.082932\n" },
    { "PositionTo30", "4.0", s_k30, "GEO:geo:37.386013,-122.082932\n", "GEO:37.386013;-122.082932\n" },
    { "PositionTo21", "3.0", s_k21, "GEO:37.386013;-122.082932\n", "GEO:-122.082932,37.386013\n" },
    { "PositionFrom21", "2.1", s_k30, "GEO:-122.082932,37.386013\n", "GEO:37.386013;-122.082932\n" },
    { "OffsetTo40", "3.0", s_k40, "TZ:-05:00\n", "TZ;VALUE=utc-offset:-0500\n" },
    { "OffsetTo30", "4.0", s_k30, "TZ;VALUE=utc-offset:-0500\n", "TZ:-05:00\n" },
    { "ZoneTo30", "4.0", s_k30, "TZ:Europe/Berlin\n", "TZ;VALUE=text:Europe/Berlin\n" },
    { "MessengerTo40", "3.0", s_k40, "X-JABBER;TYPE=HOME:ada@example.com\n", "IMPP;TYPE=HOME:xmpp:ada@example.com\n" },
    { "MessengerTo30", "4.0", s_k30, "IMPP:xmpp:ada@example.com\n", "X-JABBER:ada@example.com\n" },
    { "OddMessengerTo30", "4.0", s_k30, "IMPP:xmpp:ada@example.com?message\n", "IMPP:xmpp:ada@example.com?message\n" },
    { "OddMessengerTo21", "4.0", s_k21, "IMPP:xmpp:a%20b\n", "X-IMPP:xmpp:a%20b\n" },
    { "GroupTo30", "4.0", s_k30, "KIND:group\nMEMBER:urn:uuid:1\n",
      "X-ADDRESSBOOKSERVER-KIND:group\nX-ADDRESSBOOKSERVER-MEMBER:urn:uuid:1\n" },
    { "GroupTo40", "3.0", s_k40, "X-ADDRESSBOOKSERVER-KIND:group\nX-ADDRESSBOOKSERVER-MEMBER:urn:uuid:1\n",
      "KIND:group\nMEMBER:urn:uuid:1\n" },
    { "NestedAgentTo30", "2.1", s_k30, "AGENT:\nBEGIN:VCARD\nVERSION:2.1\nN:c;d\nEND:VCARD\n",
      "AGENT:BEGIN:VCARD\\nVERSION:3.0\\nFN:d c\\nN:c\\;d\\nEND:VCARD\\n\n" },
    { "NestedAgentTo40", "2.1", s_k40, "AGENT:\nBEGIN:VCARD\nVERSION:2.1\nN:c;d\nEND:VCARD\n",
      "RELATED;TYPE=agent;VALUE=text:d c\n" },
    { "AgentTo30", "4.0", s_k30, "RELATED;TYPE=agent:urn:uuid:1\n", "AGENT;VALUE=uri:urn:uuid:1\n" },
    { "RelationTo30", "4.0", s_k30, "RELATED;TYPE=spouse;VALUE=text:Bea\nRELATED;TYPE=friend:urn:uuid:2\n",
      "X-SPOUSE:Bea\nX-ABRELATEDNAMES;TYPE=friend:urn:uuid:2\n" },
    { "RelationTo40", "3.0", s_k40, "X-SPOUSE:Bea\n", "RELATED;TYPE=SPOUSE;VALUE=text:Bea\n" },
    { "NumberTo30", "4.0", s_k30, "TEL;VALUE=uri:tel:+1-555;ext=2\n", "TEL:+1-555\\;ext=2\n" },
    { "GoneIn40", "3.0", s_k40, "MAILER:m\nCLASS:PUBLIC\nNAME:n\nSORT-STRING:a,b\n",
      "X-MAILER:m\nX-CLASS:PUBLIC\nX-NAME:n\nX-SORT-STRING:a\\,b\n" },
    { "New40", "4.0", s_k30, "GENDER:F;girl\nLANG:de\nCALURI:http://example.com\n",
      "X-GENDER:F;girl\nX-LANG:de\nX-CALURI:http://example.com\n" },
    { "NewFrom30", "3.0", s_k40, "X-GENDER:F;girl\nX-LANG:de\nX-CALURI:http://example.com\n",
      "GENDER:F;girl\nLANG:de\nCALURI:http://example.com\n" },
    { "ListsTo21", "3.0", s_k21, "NICKNAME:x,y\nCATEGORIES:a\\,b,c\n",
      "X-NICKNAME:x,y\nX-CATEGORIES;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:a=2Cb,c\n" },
    { "AddressOf9554", "4.0", s_k30, "ADR:;;;Town;;;;;Flat 2;;12;Mill Lane;;;;;;\n",
      "ADR:;Flat 2;12,Mill Lane;Town;;;\n" },
    { "TextTo21", "3.0", s_k21, "NOTE:J\xC3\xB6rg\\, a=b\\nc;d\n",
      "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:J=C3=B6rg, a=3Db=0D=0Ac;d\n" },
    { "LongTextTo21", "3.0", s_k21,
      "NOTE:0123456789 0123456789 0123456789 0123456789 0123456789 0123456789 01234\n 56789\n",
      "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:0123456789 0123456789 0123456=\n"
      "789 0123456789 0123456789 0123456789 0123456789\n" },
    { "EncodedTo30", "2.1", s_k30, "NOTE;ENCODING=QUOTED-PRINTABLE;CHARSET=ISO-8859-1:J=F6rg=0D=0Ax\n",
      "NOTE:J\xC3\xB6rg\\nx\n" },
    { "CaretsTo21", "4.0", s_k21, "TEL;X-A=\"a^nb^'c\":1\n", "TEL;X-A=\"a b'c\":1\n" },
    { "UnknownPropertyKeepsItsDelimiters", "4.0", s_k30, "X-FOO;X-B=^':a;b\\;c,d\\,e\n",
      "X-FOO;X-B=^':a;b\\;c,d\\,e\n" },
    { "Uid", "3.0", s_k40, "UID:abc\n", "UID;VALUE=text:abc\n" },
    { "OddCharacters", "3.0", s_k30, "NOTE:a\x01\x7F\xE2\x80\xA8z\n", "NOTE:a\\nz\n" },
    { "IllegalName", "3.0", s_k30, "X_FOO;a_b=c:d\n", "X-FOO;a-b=c:d\n" },
    { "IllegalParametersOf30", "3.0", s_k30, "TEL;HOME;PREF=1:1\nNOTE;CHARSET=UTF-8:x\n",
      "TEL;TYPE=HOME,PREF:1\nNOTE:x\n" },
};

INSTANTIATE_TEST_SUITE_P( Rows, PimContactWriterConversionTest, testing::ValuesIn( s_kRows ),
                          []( const testing::TestParamInfo<ConversionRow>& a_info )
                          { return std::string( a_info.param.m_name ); } );

} // namespace

} // namespace PimManager::Contacts
