// Bytes that nobody wrote: the invariants hold.

#include "Checks/Invariants.h"
#include "Checks/RandomOptions.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string_view>

namespace PimManager::Contacts
{

namespace
{

using namespace Checks;
using namespace std::string_view_literals;

using Random = std::mt19937;

constexpr int s_kLongest = 64 * 1024;

constexpr std::array s_kPieces = {
    "BEGIN:VCARD"sv,
    "END:VCARD"sv,
    "\r\n"sv,
    "\r\n"sv,
    "\r\n"sv,
    "\r\n"sv,
    "\n"sv,
    "\n"sv,
    "\r"sv,
    "\r\r\n"sv,
    " "sv,
    "\t"sv,
    "\r\n "sv,
    "="sv,
    "=0D=0A="sv,
    "=\r\n"sv,
    "=\r\n "sv,
    ";"sv,
    ":"sv,
    ","sv,
    "\""sv,
    "\\"sv,
    "\\n"sv,
    "\\;"sv,
    "."sv,
    "#"sv,
    "# a\r\n"sv,
    "N"sv,
    "FN"sv,
    "TEL"sv,
    "NOTE"sv,
    "NOTE:"sv,
    "AGENT"sv,
    "X-A"sv,
    "X_B"sv,
    "TYPE"sv,
    "=x"sv,
    "ENCODING"sv,
    "=BASE64"sv,
    "PHOTO"sv,
    "AAAA"sv,
    "ADR"sv,
    "LABEL:"sv,
    "item1"sv,
    "CHARSET"sv,
    "=UTF-8"sv,
    "=SHIFT_JIS"sv,
    "b"sv,
    "=41"sv,
    "VCARD"sv,
    "QUOTED-PRINTABLE"sv,
    ";ENCODING=QUOTED-PRINTABLE:"sv,
    ";BASE64:"sv,
    "\xC3\xA9"sv,
    "\xE9"sv,
    "\x8A\xBF"sv,
    "\x1B$B"sv,
    "\x1B(B"sv,
    "\xEF\xBB\xBF"sv,
    "\r\n\xEF\xBB\xBF"sv,
    "\xE2\x80\xA8"sv,
    "\xF0\x9F\x8C\xBB"sv,
    "\x01"sv,
    "\0"sv,
    "\v"sv,
    "VERSION:2.1\r\n"sv,
    "VERSION:3.0\r\n"sv,
    "VERSION:4.0\r\n"sv,
    "END:VCARD\r\nBEGIN:VCARD\r\n"sv,
    "END:VCARDBEGIN:VCARD\r\n"sv,
    "BEGIN:VCARDx\r\n"sv,
    "\r\n END:VCARD"sv,
    "\r\n BEGIN:VCARD"sv,
    "\r\nEND:VCARD \x01 x\r\n"sv,
    "AGENT:BEGIN:VCARD\r\n"sv,
    "AGENT:\r\nBEGIN:VCARD\r\n"sv,
    "\r\nTEL;CELL:1\r\n"sv,
    "data:image/png;base64,AAAA"sv,
    "abcdefghijklmnopqrstuvwxyz0123456789 abcdefghijklmnopqrstuvwxyz abcdefghijk"sv,
};

QByteArray BytesOf( std::string_view a_text )
{
    return QByteArray( a_text.data(), static_cast<int>( a_text.size() ) );
}

QByteArray RandomText( Random& a_random, unsigned a_pieces )
{
    QByteArray text = a_random() % 4 == 0 ? QByteArray() : QByteArray( "BEGIN:VCARD\r\n" );
    for ( auto count = a_random() % a_pieces; count > 0; --count )
        text += BytesOf( s_kPieces[a_random() % s_kPieces.size()] );
    return ( a_random() % 3 == 0 ? text : text + "\r\nEND:VCARD\r\n" ).left( s_kLongest );
}

// One piece or two over and over: hostile texts.
QByteArray RandomRepetition( Random& a_random )
{
    QByteArray piece;
    for ( auto count = 1 + a_random() % 2; count > 0; --count )
        piece += BytesOf( s_kPieces[a_random() % s_kPieces.size()] );
    return ( "BEGIN:VCARD\r\n" + piece.repeated( static_cast<int>( a_random() % 800 ) ) + "\r\nEND:VCARD\r\n" )
        .left( s_kLongest );
}

// A value that no reader has to mend, except for one in sixteen.
QByteArray RandomValue( Random& a_random, const QByteArray& a_lineEnd )
{
    static constexpr std::array s_kParts = {
        "Ada"sv,
        " "sv,
        ";"sv,
        ","sv,
        "\\,"sv,
        "\\n"sv,
        "\xC3\xA9"sv,
        "\xE2\x82\xAC"sv,
        "=3D"sv,
        "=C3=A9"sv,
        "+44 20 5550"sv,
        "AAAA"sv,
        "Q0JB/+"sv,
        "a@b.example"sv,
        "abcdefghijklmnopqrstuvwxyz 0123456789"sv,
    };
    static constexpr std::array s_kOdd = { "\xE9"sv, "\x01"sv,         "\\q"sv, "="sv,
                                           "\""sv,   "\xEF\xBB\xBF"sv, "\r"sv,  "\n"sv };
    QByteArray value;
    for ( auto count = a_random() % 12; count > 0; --count )
        value += a_random() % 7 == 0 ? a_lineEnd + ' ' : BytesOf( s_kParts[a_random() % s_kParts.size()] );
    return a_random() % 16 == 0 ? value + BytesOf( s_kOdd[a_random() % s_kOdd.size()] ) : value;
}

// Folds anywhere, even inside a character of UTF-8.
QByteArray Folded( Random& a_random, QByteArray a_line, const QByteArray& a_lineEnd )
{
    const int width = 5 + static_cast<int>( a_random() % 80 );
    for ( int place = width; place < a_line.size(); place += width + static_cast<int>( a_lineEnd.size() ) + 1 )
        a_line.insert( place, a_lineEnd + ' ' );
    return a_line;
}

QByteArray RandomLine( Random& a_random, const QByteArray& a_lineEnd )
{
    static constexpr std::array s_kHeads = {
        "N:"sv,
        "FN;CHARSET=UTF-8:"sv,
        "TEL;CELL;HOME:"sv,
        "tel;type=home,work:"sv,
        "item1.ADR;TYPE=\"a:b;c\":"sv,
        "NOTE;ENCODING=QUOTED-PRINTABLE:"sv,
        "NOTE;QUOTED-PRINTABLE;CHARSET=ISO-8859-1:"sv,
        "PHOTO;ENCODING=BASE64:"sv,
        "PHOTO;ENCODING=b;TYPE=JPEG:"sv,
        "X-A:"sv,
        ".N:"sv,
        "a..b.TEL;:"sv,
        "X_B;=a:"sv,
        "TEL;TYPE=\"a:"sv,
        "N ; a :"sv,
        "EMAIL"sv,
        "AGENT:"sv,
    };
    const QByteArray head = BytesOf( s_kHeads[a_random() % s_kHeads.size()] );
    QByteArray value = RandomValue( a_random, a_lineEnd );
    if ( head.contains( "QUOTED" ) && a_random() % 2 == 0 )
        value += '=' + a_lineEnd + RandomValue( a_random, a_lineEnd );
    const QByteArray line = head + value;
    const QByteArray end = head.startsWith( "PHOTO" ) && a_random() % 2 == 0 ? a_lineEnd + a_lineEnd : a_lineEnd;
    return ( a_random() % 4 == 0 ? Folded( a_random, line, a_lineEnd ) : line ) + end;
}

QByteArray RandomCard( Random& a_random, const QByteArray& a_lineEnd )
{
    static constexpr std::array s_kVersions = { "2.1"sv, "3.0"sv, "4.0"sv };
    const QByteArray version = "VERSION:" + BytesOf( s_kVersions[a_random() % s_kVersions.size()] ) + a_lineEnd;
    const bool isLast = a_random() % 5 == 0;
    QByteArray card = "BEGIN:VCARD" + a_lineEnd + ( isLast ? QByteArray() : version );
    for ( auto count = a_random() % 6; count > 0; --count )
    {
        card += RandomLine( a_random, a_lineEnd );
        if ( a_random() % 24 == 0 )
            card += a_lineEnd;
        if ( a_random() % 24 == 0 )
            card += "AGENT:" + a_lineEnd + "BEGIN:VCARD" + a_lineEnd + "N:a" + a_lineEnd + "END:VCARD" + a_lineEnd;
    }
    return card + ( isLast ? version : QByteArray() ) + "END:VCARD" + a_lineEnd;
}

// Whole cards with few faults. Now and then the line ending changes from one card to the next, or a byte is lost.
QByteArray RandomBook( Random& a_random )
{
    static constexpr std::array s_kLineEnds = { "\r\n"sv, "\n"sv, "\r"sv, "\r\r\n"sv };
    QByteArray lineEnd = BytesOf( s_kLineEnds[a_random() % s_kLineEnds.size()] );
    QByteArray book;
    for ( auto count = 1 + a_random() % 5; count > 0; --count )
    {
        if ( a_random() % 6 == 0 )
            lineEnd = BytesOf( s_kLineEnds[a_random() % s_kLineEnds.size()] );
        book += RandomCard( a_random, lineEnd );
        if ( a_random() % 8 == 0 )
            book += lineEnd;
    }
    if ( a_random() % 4 == 0 )
        book.remove( static_cast<int>( a_random() % static_cast<unsigned>( book.size() ) ), 1 );
    return book;
}

QByteArray RandomBytes( Random& a_random )
{
    QByteArray text( static_cast<int>( a_random() % 200 ), '\0' );
    for ( char& byte : text )
        byte = static_cast<char>( a_random() % 256 );
    return text;
}

QByteArray InUtf16( const QByteArray& a_text, bool a_isMarked )
{
    QByteArray bytes = a_isMarked ? QByteArray( "\xFF\xFE" ) : QByteArray();
    const QString text = QString::fromUtf8( a_text );
    for ( const QChar character : text )
        bytes += QByteArray( 1, static_cast<char>( character.cell() ) ) + static_cast<char>( character.row() );
    return bytes;
}

void ExpectInvariants( const QByteArray& a_text, const PimContactOptions& a_options, unsigned a_round )
{
    ASSERT_EQ( BrokenInvariantOf( a_text, a_options, a_round ).toStdString(), "" )
        << "round " << a_round << ": " << a_text.toPercentEncoding().toStdString();
}

TEST( ReaderRandomTest, InvariantsHoldForRandomTexts )
{
    Random random( 7 );
    for ( unsigned round = 0; round < 4000 && !HasFatalFailure(); ++round )
        ExpectInvariants( RandomText( random, 60 ), PimContactOptions(), round );
}

TEST( ReaderRandomTest, InvariantsHoldForRandomTextsAndOptions )
{
    Random random( 19 );
    for ( unsigned round = 0; round < 6000 && !HasFatalFailure(); ++round )
        ExpectInvariants( RandomText( random, 100 ), RandomOptions( round ), round );
}

TEST( ReaderRandomTest, InvariantsHoldForLongRandomTexts )
{
    Random random( 23 );
    for ( unsigned round = 0; round < 12 && !HasFatalFailure(); ++round )
        ExpectInvariants( RandomText( random, 16000 ), RandomOptions( round ), round );
}

TEST( ReaderRandomTest, InvariantsHoldForRepeatedPieces )
{
    Random random( 29 );
    for ( unsigned round = 0; round < 200 && !HasFatalFailure(); ++round )
        ExpectInvariants( RandomRepetition( random ), RandomOptions( round ), round );
}

TEST( ReaderRandomTest, InvariantsHoldForRandomTextsInUtf16 )
{
    Random random( 31 );
    for ( unsigned round = 0; round < 600 && !HasFatalFailure(); ++round )
        ExpectInvariants( InUtf16( RandomText( random, 60 ), round % 2 == 0 ), RandomOptions( round ), round );
}

TEST( ReaderRandomTest, InvariantsHoldForBooksWithFewFaults )
{
    Random random( 37 );
    for ( unsigned round = 0; round < 4000 && !HasFatalFailure(); ++round )
    {
        const PimContactOptions options = round % 3 == 0 ? RandomOptions( round ) : PimContactOptions();
        ExpectInvariants( RandomBook( random ), options, round );
    }
}

TEST( ReaderRandomTest, InvariantsHoldForRandomBytes )
{
    Random random( 11 );
    for ( unsigned round = 0; round < 1000 && !HasFatalFailure(); ++round )
        ExpectInvariants( RandomBytes( random ), RandomOptions( round ), round );
}

} // namespace

} // namespace PimManager::Contacts
