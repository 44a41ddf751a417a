#include "Writing/CleanLine.h"

#include "Contact/ContactLines.h"

#include <PimManager/Contacts/PimContactBook.h>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

const QList<QByteArray> s_kLines = {
    "FN:a",
    "FN:",
    "TEL;TYPE=HOME:1",
    "NOTE:" + QByteArray( 70, 'a' ),
    "NOTE:" + QByteArray( 71, 'a' ),
    "NOTE;X-A=" + QByteArray( 70, 'a' ) + ":b",
    "NOTE:a\r\n b",
    "NOTE:a\r\n  b",
    "NOTE:a\\\r\n ,b",
    "NOTE:a^\r\n nb",
    "NOTE:" + QByteArray( 80, 'a' ) + "\r\n b",
    "NOTE:a\r\n " + QByteArray( 80, 'b' ),
};

struct EncodedRow
{
    const char* m_parameters;
    QByteArray m_value;
    bool m_isClean;
};

std::ostream& operator<<( std::ostream& a_stream, const EncodedRow& a_row )
{
    return a_stream << a_row.m_parameters << ':' << a_row.m_value.constData();
}

constexpr const char* s_kNamed = ";CHARSET=UTF-8";

const std::vector<EncodedRow> s_kEncoded = {
    { "", "a=20b", true },
    { "", "", true },
    { "", "a=C3=A4", false },
    { s_kNamed, "a=C3=A4", true },
    { s_kNamed, "a=C3=\r\n=A4=\r\nb", true },
    { s_kNamed, "a=0D=0Ab", true },
    { s_kNamed, "a=0Ab", true },
    { s_kNamed, "a=0Db", false },
    { s_kNamed, "a=09b", true },
    { s_kNamed, "a=01b", false },
    { s_kNamed, "a=7Fb", false },
    { s_kNamed, "a=c3=a4", false },
    { s_kNamed, "a=C3", false },
    { s_kNamed, "a=E2=80=A8b", false },
    { s_kNamed, "a=C2=85b", false },
    { s_kNamed, "a=2", false },
    { s_kNamed, "a=2=\r\n0", false },
    { s_kNamed, "a\r\n b", false },
};

class CleanEncodedTest : public testing::TestWithParam<EncodedRow>
{
};

INSTANTIATE_TEST_SUITE_P( Values, CleanEncodedTest, testing::ValuesIn( s_kEncoded ) );

PimContactBook BookOf( const QByteArray& a_version, const QByteArray& a_line )
{
    return PimContactBook::FromBytes( "BEGIN:VCARD\r\nVERSION:" + a_version + "\r\n" + a_line + "\r\nEND:VCARD\r\n" );
}

} // namespace

TEST_P( CleanEncodedTest, QuotedPrintableIsCleanIfItIsTextInUtf8 )
{
    const EncodedRow& row = GetParam();
    const PimContactBook book =
        BookOf( "2.1", QByteArray( "NOTE;ENCODING=QUOTED-PRINTABLE" ) + row.m_parameters + ':' + row.m_value );
    ASSERT_EQ( book.Size(), 1 );
    LineCursor cursor( book.CardAt( 0 ) );
    ASSERT_TRUE( cursor.Next() && cursor.Next() );
    EXPECT_EQ( CleanLine().Of( cursor.Line(), PropertyId::Note, PimContactVersion::V21 ),
               row.m_isClean ? Cleanness::Full : Cleanness::None );
}

// The short way is for lines that must not be looked at for characters and parameters.
TEST( CleanLineTest, PlainLineIsAsCleanAsAnyOther )
{
    for ( const char* const version : { "2.1", "3.0", "4.0" } )
    {
        for ( const QByteArray& written : s_kLines )
        {
            const PimContactBook book = BookOf( version, written );
            ASSERT_EQ( book.Size(), 1 );
            const CardView view = LineView::CardOf( book.CardAt( 0 ) );
            LineCursor cursor( view );
            ASSERT_TRUE( cursor.Next() && cursor.Next() );
            const IndexedLine& line = cursor.Line();
            const PropertyId property = PropertyNamed( cursor.Name() );
            const IndexReader::PlainLine plain = { line.m_entry.m_length, line.m_entry.m_name,
                                                   line.m_entry.m_parameters, line.m_entry.m_hasFolds };
            const Cleanness expected = CleanLine().Of( line, property, view.m_record.Version() );
            EXPECT_EQ( CleanLine::OfPlain( line.m_bytes, plain, view.m_record.FoldStyle(), view.m_record.Version() ),
                       expected )
                << version << ' ' << written.constData();
        }
    }
}

} // namespace PimManager::Contacts
