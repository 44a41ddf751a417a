// Long lines as other programs fold them: the value is the text, or what the documentation says of that writer.

#include "WriterFolding.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

/// The text that is folded.
enum class Script
{
    Latin,
    Cyrillic,
    /// Without a blank.
    Dense,
    Base64,
    /// QUOTED-PRINTABLE with blanks that are not encoded.
    Encoded,
    /// QUOTED-PRINTABLE with encoded blanks.
    FullyEncoded,
};

/// What becomes of the blank after a line ending.
enum class Blank
{
    Removed,
    Kept,
};

struct Row
{
    const char* m_name;
    const char* m_version;
    const char* m_head;
    Script m_script;
    Folding m_folding;
    Blank m_blank;
    /// False where the writer's folds cannot be known from those of another version, so that blanks are lost or won.
    bool m_isExact = true;
    PimContactFoldStyle m_style = PimContactFoldStyle::BlankRemoved;
};

std::ostream& operator<<( std::ostream& a_stream, const Row& a_row )
{
    return a_stream << a_row.m_name;
}

QByteArray Words( const char* a_first, const char* a_second, const char* a_third )
{
    QByteArray text;
    for ( int i = 0; i < 12; ++i )
        text += QByteArray( a_first ) + ' ' + a_second + "\\, " + a_third + ' ' + QByteArray::number( i * i ) + "\\n";
    return text;
}

QByteArray TextOf( Script a_script )
{
    switch ( a_script )
    {
    case Script::Latin:
        return Words( "the second floor on the left", "ring twice and wait", "before noon or after three" );
    case Script::Cyrillic:
        return Words( "второй этаж налево", "звонить дважды", "до полудня или после трёх" );
    case Script::Dense:
        return QByteArray( "0123456789abcdefghijklmnopqrstuvwxyz-" ).repeated( 12 );
    case Script::Base64:
        return QByteArray( "R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7" ).repeated( 9 ) + "QQ==";
    case Script::Encoded:
        return QByteArray( "=D0=92=D1=82 on the left  and =E2=82=AC or=20" ).repeated( 14 ) + "end";
    case Script::FullyEncoded:
        return QByteArray( "=D0=92=D1=82=20on=20the=20left=20and=20=E2=82=AC" ).repeated( 14 ) + "end";
    }
    return QByteArray();
}

QByteArray CardOf( const Row& a_row )
{
    const QByteArray line = QByteArray( a_row.m_head ) + ':' + TextOf( a_row.m_script );
    return QByteArray( "BEGIN:VCARD\r\nVERSION:" ) + a_row.m_version + "\r\nN:Fenwick;Ada\r\n" +
           Folded( line, a_row.m_folding ) + "\r\nTEL:1\r\nEND:VCARD\r\n";
}

// Joins the physical lines again as the row says.
QByteArray ExpectedValueOf( const Row& a_row )
{
    const Folding& folding = a_row.m_folding;
    QByteArray joined = Folded( QByteArray( a_row.m_head ) + ':' + TextOf( a_row.m_script ), folding );
    if ( folding.m_break.startsWith( '=' ) )
        joined.replace( "=\r\n", "\r\n" );
    if ( a_row.m_blank == Blank::Removed )
        joined.replace( "\r\n ", "\r\n" ).replace( "\r\n\t", "\r\n" );
    joined.replace( "\r\n", "" );
    return joined.mid( joined.indexOf( ':' ) + 1 );
}

class WriterFoldsTest : public testing::TestWithParam<Row>
{
};

TEST_P( WriterFoldsTest, ValueIsTheTextOrTheDocumentedReading )
{
    const Row& row = GetParam();
    const PimContactBook book = PimContactBook::FromBytes( CardOf( row ) );
    ASSERT_EQ( book.Size(), 1 );
    const PimContactCard& card = book.CardAt( 0 );
    ASSERT_EQ( card.LineCount(), 4 );
    const PimContactLine line = *std::next( card.begin(), 2 );
    EXPECT_EQ( line.Value().toStdString(), ExpectedValueOf( row ).toStdString() );
    EXPECT_EQ( line.Value() == TextOf( row.m_script ), row.m_isExact );
    EXPECT_EQ( line.Charset().toStdString(), "UTF-8" );
    EXPECT_TRUE( card.IsWhole() );
    EXPECT_EQ( card.FoldStyle(), row.m_style );
}

constexpr auto s_kRemoved = PimContactFoldStyle::BlankRemoved;
constexpr auto s_kKept = PimContactFoldStyle::BlankKept;

const QByteArray s_kBlank = "\r\n ";
const QByteArray s_kTab = "\r\n\t";
const QByteArray s_kNone = "\r\n";
const QByteArray s_kSoft = "=\r\n";
const QByteArray s_kSoftBlank = "=\r\n ";

// The rules of 3.0 and 4.0 remove one blank, so a writer that inserts one is read exactly, wherever it breaks.
const std::vector<Row> s_kByTheRules = {
    { "Octets75", "3.0", "NOTE", Script::Latin, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "Octets76", "3.0", "NOTE", Script::Latin, { FoldAt::Octets, 76, s_kBlank }, Blank::Removed },
    { "OctetsVersion4", "4.0", "NOTE", Script::Latin, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "OctetsNoBlankAtTheBreak", "3.0", "NOTE", Script::Dense, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "OctetsInCharacters", "3.0", "NOTE", Script::Cyrillic, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "OctetsInCharactersVersion4", "4.0", "NOTE", Script::Cyrillic, { FoldAt::Octets, 76, s_kBlank }, Blank::Removed },
    { "WholeOctets", "4.0", "NOTE", Script::Cyrillic, { FoldAt::WholeOctets, 75, s_kBlank }, Blank::Removed },
    { "Characters", "3.0", "NOTE", Script::Cyrillic, { FoldAt::Characters, 75, s_kBlank }, Blank::Removed },
    { "Narrow", "3.0", "NOTE", Script::Latin, { FoldAt::Octets, 3, s_kBlank }, Blank::Removed },
    { "WordsAndABlank", "3.0", "NOTE", Script::Latin, { FoldAt::Words, 75, s_kBlank }, Blank::Removed },
    { "WordsAndABlankCyrillic", "4.0", "NOTE", Script::Cyrillic, { FoldAt::Words, 60, s_kBlank }, Blank::Removed },
    { "Base64", "3.0", "PHOTO;ENCODING=b", Script::Base64, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    // A writer of 2.1 that calls it 3.0.
    { "WordsVersion3", "3.0", "NOTE", Script::Latin, { FoldAt::Words, 75, s_kNone }, Blank::Removed, false },
    { "WordsVersion4Cyrillic", "4.0", "NOTE", Script::Cyrillic, { FoldAt::Words, 75, s_kNone }, Blank::Removed, false },
};

// In 2.1 a fold is a line ending before a blank of the text. Writers that insert a blank are known by the equal length
// of their lines.
const std::vector<Row> s_kVersion21 = {
    { "Words75", "2.1", "NOTE", Script::Latin, { FoldAt::Words, 75, s_kNone }, Blank::Kept, true, s_kKept },
    { "Words60", "2.1", "NOTE", Script::Latin, { FoldAt::Words, 60, s_kNone }, Blank::Kept, true, s_kKept },
    { "WordsCyrillic75", "2.1", "NOTE", Script::Cyrillic, { FoldAt::Words, 75, s_kNone }, Blank::Kept, true, s_kKept },
    { "WordsCyrillic60", "2.1", "NOTE", Script::Cyrillic, { FoldAt::Words, 60, s_kNone }, Blank::Kept, true, s_kKept },
    { "Octets75", "2.1", "NOTE", Script::Latin, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "Octets76", "2.1", "NOTE", Script::Latin, { FoldAt::Octets, 76, s_kBlank }, Blank::Removed },
    { "OctetsNoBlankAtTheBreak", "2.1", "NOTE", Script::Dense, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "OctetsInCharacters75", "2.1", "NOTE", Script::Cyrillic, { FoldAt::Octets, 75, s_kBlank }, Blank::Removed },
    { "OctetsInCharacters76", "2.1", "NOTE", Script::Cyrillic, { FoldAt::Octets, 76, s_kBlank }, Blank::Removed },
    { "WholeOctets", "2.1", "NOTE", Script::Cyrillic, { FoldAt::WholeOctets, 75, s_kBlank }, Blank::Removed },
    { "Characters", "2.1", "NOTE", Script::Cyrillic, { FoldAt::Characters, 75, s_kBlank }, Blank::Removed },
    // Not one of the usual lengths, so the rule of 2.1 applies and a blank is won at each fold.
    { "Octets60", "2.1", "NOTE", Script::Dense, { FoldAt::Octets, 60, s_kBlank }, Blank::Kept, false, s_kKept },
};

const std::vector<Row> s_kEncodings = {
    { "Base64Tab", "3.0", "PHOTO;ENCODING=b", Script::Base64, { FoldAt::Octets, 76, s_kTab }, Blank::Removed },
    { "Base64Unindented", "3.0", "PHOTO;ENCODING=b", Script::Base64, { FoldAt::Octets, 72, s_kNone }, Blank::Kept },
    { "SoftBreaks",
      "2.1",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::Encoded,
      { FoldAt::Octets, 76, s_kSoft },
      Blank::Kept,
      true,
      s_kKept },
    { "SoftBreaksVersion3",
      "3.0",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::Encoded,
      { FoldAt::Octets, 73, s_kSoft },
      Blank::Kept },
    { "SoftBreaksAndABlank",
      "2.1",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::FullyEncoded,
      { FoldAt::Octets, 76, s_kSoftBlank },
      Blank::Removed,
      true,
      s_kKept },
    { "SoftBreaksAndABlankVersion3",
      "3.0",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::FullyEncoded,
      { FoldAt::Octets, 70, s_kSoftBlank },
      Blank::Removed },
    // Some continuations begin with two blanks, so those of the others are text as well.
    { "SoftBreaksAndABlankBeforeBlanks",
      "2.1",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::Encoded,
      { FoldAt::Octets, 76, s_kSoftBlank },
      Blank::Kept,
      false,
      s_kKept },
    // Neither is a break of a usual length; RFC 2045, section 6.7 counts the blank as text.
    { "ShortSoftBreaksAndABlank",
      "2.1",
      "NOTE;ENCODING=QUOTED-PRINTABLE",
      Script::Encoded,
      { FoldAt::Octets, 50, s_kSoftBlank },
      Blank::Kept,
      false,
      s_kKept },
};

std::string NameOfRow( const testing::TestParamInfo<Row>& a_info )
{
    return a_info.param.m_name;
}

INSTANTIATE_TEST_SUITE_P( ByTheRules, WriterFoldsTest, testing::ValuesIn( s_kByTheRules ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Version21, WriterFoldsTest, testing::ValuesIn( s_kVersion21 ), NameOfRow );
INSTANTIATE_TEST_SUITE_P( Encodings, WriterFoldsTest, testing::ValuesIn( s_kEncodings ), NameOfRow );

// A single fold of 2.1 proves little, so it must be at one of the two usual lengths.
struct SingleFoldRow
{
    const char* m_name;
    int m_width;
    PimContactFoldStyle m_style;
};

std::ostream& operator<<( std::ostream& a_stream, const SingleFoldRow& a_row )
{
    return a_stream << a_row.m_name;
}

class WriterSingleFoldTest : public testing::TestWithParam<SingleFoldRow>
{
};

TEST_P( WriterSingleFoldTest, OnlyTheUsualLengthsCount )
{
    const QByteArray line =
        Folded( "NOTE:" + TextOf( Script::Dense ).left( 100 ), { FoldAt::Octets, GetParam().m_width } );
    const PimContactBook book =
        PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:2.1\r\n" + line + "\r\nEND:VCARD\r\n" );
    ASSERT_EQ( book.Size(), 1 );
    const bool isRemoved = GetParam().m_style == s_kRemoved;
    EXPECT_EQ( book.CardAt( 0 ).FoldStyle(), GetParam().m_style );
    EXPECT_EQ( book.Report().Findings( PimContactDiagnosticCode::FoldsByLength ), isRemoved ? 1 : 0 );
    const PimContactLine note = *std::next( book.CardAt( 0 ).begin() );
    EXPECT_EQ( note.Value().contains( ' ' ), !isRemoved );
}

constexpr SingleFoldRow s_kSingleFolds[] = {
    { "At70", 70, s_kKept },    { "At73", 73, s_kKept }, { "At75", 75, s_kRemoved },
    { "At76", 76, s_kRemoved }, { "At78", 78, s_kKept },
};

INSTANTIATE_TEST_SUITE_P( Widths, WriterSingleFoldTest, testing::ValuesIn( s_kSingleFolds ),
                          []( const testing::TestParamInfo<SingleFoldRow>& a_info )
                          { return std::string( a_info.param.m_name ); } );

} // namespace

} // namespace PimManager::Contacts
