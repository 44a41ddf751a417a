// The fast path to another version writes what the slow path writes.

#include "Writing/PlainChange.h"

#include "Writing/CardSurvey.h"

#include <PimManager/Contacts/PimContactBook.h>
#include <PimManager/Contacts/PimContactWriter.h>

#include <QBuffer>

#include <gtest/gtest.h>

#include <ostream>
#include <random>
#include <string>

namespace PimManager::Contacts
{

namespace
{

struct Row
{
    QByteArray m_version;
    PimContactVersion m_target;
    /// The head is `NOTE` and the like, and what is written for it the same in lower case.
    QByteArray m_line;
    /// Empty if the line takes the slow path.
    std::string m_written;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_line.constData() << " to " << static_cast<int>( a_row.m_target );
}

constexpr PimContactVersion s_k21 = PimContactVersion::V21;
constexpr PimContactVersion s_k30 = PimContactVersion::V30;
constexpr PimContactVersion s_k40 = PimContactVersion::V40;

const std::vector<Row> s_kRows = {
    { "3.0", s_k40, "FN:a b", "fn:a b\r\n" },
    { "3.0", s_k40, "item1.FN:a b", "item1.fn:a b\r\n" },
    { "3.0", s_k40, "a.b.FN:a b", "" },
    { "3.0", s_k40, "FN:a\\, b\\n", "fn:a\\, b\\n\r\n" },
    { "3.0", s_k40, "FN:a, b", "" },
    { "3.0", s_k40, "FN:\xC3\xA4", "fn:\xC3\xA4\r\n" },
    { "3.0", s_k40, "FN:a\xE2\x80\xA8", "" },
    { "3.0", s_k40, "FN:a\r\n b", "fn:ab\r\n" },
    { "3.0", s_k21, "FN:a, b", "fn:a, b\r\n" },
    { "3.0", s_k21, "FN:a\\, b", "fn:a, b\r\n" },
    { "3.0", s_k21, "FN:a\\nb", "fn;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:a=0D=0Ab\r\n" },
    { "3.0", s_k21, "FN:\xC3\xA4", "fn;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:=C3=A4\r\n" },
    { "3.0", s_k21, "N:a\\;b;c", "n:a\\;b;c\r\n" },
    { "3.0", s_k21, "N:a;b,c", "" },
    { "3.0", s_k21, "TEL:tel:1", "" },
    { "3.0", s_k21, "N:a;b;c;d;e;f", "" },
    { "2.1", s_k30, "FN:a b", "fn:a b\r\n" },
    { "2.1", s_k30, "FN:a\r\n b", "" },
};

class PlainChangeRowTest : public testing::TestWithParam<Row>
{
};

INSTANTIATE_TEST_SUITE_P( Lines, PlainChangeRowTest, testing::ValuesIn( s_kRows ) );

PimContactCard CardOf( const QByteArray& a_version, const QByteArray& a_lines )
{
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\n" + a_lines + "\r\nEND:VCARD\r\n" );
    EXPECT_EQ( book.Size(), 1 );
    return book.IsEmpty() ? PimContactCard() : book.CardAt( 0 );
}

bool MayTake( const QByteArray& a_lines, PimContactVersion a_target, PropertyId a_property )
{
    const PimContactCard card = CardOf( "3.0", a_lines );
    CardSurvey survey;
    survey.Read( card, a_target, false );
    QByteArray out;
    VCardText text( a_target, out );
    PlainChange change( text );
    change.BeginCard( survey.Record(), survey.Step(), survey.Properties() );
    return change.MayTake( a_property );
}

/// The notes of each line, one after the other.
QStringList NotesOf( const PimContactWriteReport& a_report, int a_line )
{
    QStringList texts;
    for ( const PimContactWriteNote& note : a_report.Notes() )
    {
        if ( note.Line() == a_line )
            texts.append( NameOf( note.Code() ) + QLatin1Char( ' ' ) + note.Property() + QLatin1Char( ' ' ) +
                          note.Detail() );
    }
    return texts;
}

template <class List>
const auto& OneOf( const List& a_list, std::mt19937& a_random )
{
    return a_list[static_cast<int>( a_random() % static_cast<uint>( a_list.size() ) )];
}

QByteArray RandomValue( const QByteArray& a_name, std::mt19937& a_random )
{
    static const QList<QByteArray> s_kPlain = { "a", "Bo", "street 12", " " };
    static const QList<QByteArray> s_kAny = { "a",
                                              "  ",
                                              "\t",
                                              ";",
                                              ",",
                                              "\\,",
                                              "\\;",
                                              "\\n",
                                              "\\N",
                                              "\\\\",
                                              "\\:",
                                              "\\x",
                                              "\\",
                                              ":",
                                              "=",
                                              "\"",
                                              "tel:+1",
                                              "^",
                                              "\x7F",
                                              "\xC3\xA4",
                                              "\r\n ",
                                              "\xE2\x80\xA8",
                                              "word word word word " };
    QByteArray value;
    const bool hasComponents = a_name == "N" || a_name == "ADR" || a_name == "ORG";
    const uint texts = hasComponents ? OneOf( QList<uint>{ 1, 2, 5, 5, 7, 7, 8 }, a_random ) : 1U;
    for ( uint i = 0; i < texts; ++i )
    {
        value += i > 0 ? ";" : "";
        for ( auto count = a_random() % 5; count > 0; --count )
            value += OneOf( a_random() % 4 == 0 ? s_kAny : s_kPlain, a_random );
    }
    return value;
}

// The first line of a head takes the slow path, and the second one the fast path.
void CheckBothRoads( const QByteArray& a_version, PimContactFormat a_target, const QByteArray& a_line )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, a_target );
    const QByteArray names = "N:a;b;;;\r\nFN:a\r\n";
    ASSERT_TRUE( writer.Write( CardOf( a_version, names + a_line + "\r\nX-MIDDLE:1\r\n" + a_line ) ) );
    ASSERT_TRUE( writer.Finish() );
    const QByteArray written = buffer.data();
    const int middle = static_cast<int>( written.indexOf( "X-MIDDLE" ) );
    const int begin = static_cast<int>( written.indexOf( "\r\n", written.indexOf( "\r\nFN" ) + 2 ) ) + 2;
    const int second = static_cast<int>( written.indexOf( "\r\n", middle ) ) + 2;
    const int end = static_cast<int>( written.lastIndexOf( "END:VCARD" ) );
    ASSERT_LT( 2, begin );
    ASSERT_LT( begin, middle );
    EXPECT_EQ( written.mid( begin, middle - begin ).toStdString(), written.mid( second, end - second ).toStdString() )
        << a_version.constData() << ' ' << a_line.constData();
    EXPECT_EQ( NotesOf( writer.Report(), 4 ), NotesOf( writer.Report(), 6 ) ) << a_line.constData();
}

} // namespace

TEST_P( PlainChangeRowTest, LineIsWrittenOrLeft )
{
    const Row& row = GetParam();
    const PimContactCard card = CardOf( row.m_version, row.m_line );
    CardSurvey survey;
    survey.Read( card, row.m_target, false );
    const SurveyedPart& part = survey.Parts().back();
    ASSERT_EQ( survey.Parts().size(), 2U );
    ASSERT_TRUE( part.m_isPlain );
    const IndexReader::PlainLine line = survey.PlainLineOf( part );
    HeadMeaning meaning = survey.MeaningOf( survey.BytesOf( part ), line );
    ASSERT_TRUE( meaning.m_rule.m_isAllowed );
    const std::string name( line.m_name.In( survey.BytesOf( part ) ) );
    meaning.m_written.Set( QByteArray::fromStdString( name ).toLower().toStdString() );

    QByteArray out;
    VCardText text( row.m_target, out );
    PlainChange change( text );
    change.BeginCard( survey.Record(), survey.Step(), survey.Properties() );
    EXPECT_TRUE( change.MayTake( part.m_property ) );
    EXPECT_EQ( change.Take( survey.BytesOf( part ), line, meaning ), !row.m_written.empty() );
    EXPECT_EQ( out.toStdString(), row.m_written );
}

// An address may get a LABEL in 4.0, and a name a SORT-AS.
TEST( PlainChangeTest, LinesThatOthersBecomeAPartOfAreLeft )
{
    EXPECT_TRUE( MayTake( "N:a\r\nADR:b", s_k40, PropertyId::Adr ) );
    EXPECT_FALSE( MayTake( "N:a\r\nADR:b\r\nLABEL:c", s_k40, PropertyId::Adr ) );
    EXPECT_TRUE( MayTake( "N:a\r\nADR:b\r\nLABEL:c", s_k40, PropertyId::N ) );
    EXPECT_TRUE( MayTake( "N:a\r\nADR:b\r\nLABEL:c", s_k21, PropertyId::Adr ) );
    EXPECT_FALSE( MayTake( "N:a\r\nSORT-STRING:b", s_k40, PropertyId::N ) );
    EXPECT_TRUE( MayTake( "N:a\r\nSORT-STRING:b", s_k21, PropertyId::N ) );
}

TEST( PlainChangeTest, CardInAnotherCharacterSetIsLeft )
{
    EXPECT_FALSE( MayTake( "N:a\r\nNOTE:\xE4", s_k40, PropertyId::N ) );
    EXPECT_FALSE( MayTake( "N:a", s_k30, PropertyId::N ) );
}

TEST( PlainChangeTest, BothRoadsWriteTheSame )
{
    static const QList<QByteArray> s_kNames = { "FN",  "N",    "ORG",   "EMAIL",    "TEL",
                                                "ADR", "NOTE", "TITLE", "NICKNAME", "URL" };
    static const QList<QByteArray> s_kVersions = { "2.1", "3.0", "4.0" };
    static const QList<PimContactFormat> s_kTargets = { PimContactFormat::V21, PimContactFormat::V30,
                                                        PimContactFormat::V40 };
    static const QList<QByteArray> s_kWords = { "HOME", "pref", "foo", "X-SJIS", "INTERNET" };
    std::mt19937 random( 16 );
    for ( int i = 0; i < 3000; ++i )
    {
        const QByteArray& name = OneOf( s_kNames, random );
        const QByteArray& version = OneOf( s_kVersions, random );
        // A head that no line had before.
        const QByteArray types = ";TYPE=x-" + QByteArray::number( i ) + ";TYPE=" + OneOf( s_kWords, random );
        CheckBothRoads( version, OneOf( s_kTargets, random ), name + types + ':' + RandomValue( name, random ) );
    }
}

} // namespace PimManager::Contacts
