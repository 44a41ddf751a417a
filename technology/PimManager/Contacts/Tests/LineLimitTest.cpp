#include <PimManager/Contacts/PimContactReader.h>

#include <gtest/gtest.h>

#include <array>

namespace PimManager::Contacts
{

namespace
{

constexpr std::array s_kLines = { "NOTE:abc\r\n",
                                  "NOTE:abc\n",
                                  "NOTE:abc\r\n def\r\n",
                                  "NOTE:abc\n\tdef\n ghi\n",
                                  "NOTE;QUOTED-PRINTABLE:a=\r\nb\r\n",
                                  "NOTE:\xC3\xA4\r\n \xC3\xB6\r\n" };

// The lines that are delivered of a card with three, the line in question in the middle.
int DeliveredLines( const QByteArray& a_line, qint64 a_limit, int a_pieceBytes )
{
    const QByteArray card = "BEGIN:VCARD\r\nFN:a\r\n" + a_line + "N:b\r\nEND:VCARD\r\n";
    PimContactOptions options;
    options.SetLineBytes( a_limit );
    PimContactReader reader( options );
    int lines = -1;
    reader.SetCardHandler(
        [&lines]( const PimContactCard& a_card )
        {
            lines = a_card.LineCount();
            return true;
        } );
    for ( int place = 0; place < card.size(); place += a_pieceBytes )
        reader.Feed( card.mid( place, a_pieceBytes ) );
    reader.Finish();
    EXPECT_EQ( reader.Report().Findings( PimContactDiagnosticCode::LineTooLong ), lines == 3 ? 0 : 1 );
    return lines;
}

} // namespace

TEST( LineLimitTest, LineOneByteLongerThanTheLimitIsDropped )
{
    for ( const QByteArray line : s_kLines )
    {
        for ( const int piece : { 1, 7, 1000 } )
        {
            EXPECT_EQ( DeliveredLines( line, line.size(), piece ), 3 ) << line.constData() << piece;
            EXPECT_EQ( DeliveredLines( line, line.size() - 1, piece ), 2 ) << line.constData() << piece;
        }
    }
}

} // namespace PimManager::Contacts
