#include "HostileShapes.h"

namespace PimManager::vCard::Benchmarks
{

namespace
{

const char* const s_kBegin = "BEGIN:VCARD\r\n";
const char* const s_kEnd = "\r\nEND:VCARD\r\n";

HostileShape Shape( const char* a_name, const QByteArray& a_head, const QByteArray& a_piece, const QByteArray& a_tail,
                    CardsGiven a_cards )
{
    return { a_name, a_head, a_piece, a_tail, a_cards };
}

HostileShape InValue( const char* a_name, const QByteArray& a_piece, CardsGiven a_cards )
{
    return Shape( a_name, s_kBegin + QByteArrayLiteral( "NOTE:x" ), a_piece, s_kEnd, a_cards );
}

HostileShape InEncodedValue( const char* a_name, const QByteArray& a_piece )
{
    const QByteArray head = s_kBegin + QByteArrayLiteral( "NOTE;ENCODING=QUOTED-PRINTABLE:" );
    return Shape( a_name, head, a_piece, QByteArrayLiteral( "x" ) + s_kEnd, CardsGiven::One );
}

HostileShape Whole( const char* a_name, const QByteArray& a_piece, CardsGiven a_cards = CardsGiven::None )
{
    return Shape( a_name, QByteArray(), a_piece, QByteArray(), a_cards );
}

QByteArray CardWith( const char* a_line, const char* a_lineEnd = "\r\n" )
{
    return QByteArrayLiteral( "BEGIN:VCARD" ) + a_lineEnd + a_line + a_lineEnd + "END:VCARD" + a_lineEnd;
}

QList<HostileShape> BrokenCards()
{
    return {
        Whole( "begin-lines", s_kBegin ),
        Whole( "begin-lines-and-broken-lines", "BEGIN:VCARD\r\n?\r\n" ),
        Whole( "cards-without-end", "BEGIN:VCARD\r\nFN:x\r\n" ),
        Whole( "end-without-begin", "END:VCARD\r\n" ),
        Whole( "wrong-end-lines", "BEGIN:VCARD\r\nEND:x\r\n" ),
        Whole( "lf-only-broken-cards", CardWith( "?", "\n" ) ),
        Whole( "cr-only-broken-cards", CardWith( "?", "\r" ) ),
        Whole( "quotes-that-never-close", CardWith( "TEL;X=\"abc:1" ) ),
        Whole( "encodings-on-failing-lines", CardWith( "TEL;ENCODING=QUOTED-PRINTABLE 1" ) ),
        Whole( "both-encodings", CardWith( "TEL;ENCODING=QUOTED-PRINTABLE;ENCODING=b:1" ) ),
        Whole( "recoveries-on-one-line", "\x01"
                                         "BEGIN:VCARD" ),
        Shape( "long-line-before-begin", "", "_", s_kBegin, CardsGiven::None ),
        Whole( "good-cards", CardWith( "FN:x" ), CardsGiven::Each ),
    };
}

QList<HostileShape> LongLines()
{
    return {
        InValue( "letters", "a", CardsGiven::One ),
        InValue( "semicolons", ";", CardsGiven::One ),
        Shape( "backslashes", s_kBegin + QByteArrayLiteral( "NOTE:" ), "\\", s_kEnd, CardsGiven::None ),
        InValue( "escape-pairs", "\\\\", CardsGiven::One ),
        InValue( "backslash-and-cr", "\\\r", CardsGiven::None ),
        InValue( "equals-signs", "=", CardsGiven::One ),
        InValue( "folds", "\r\n a", CardsGiven::One ),
        InValue( "folds-lf", "\n a", CardsGiven::One ),
        InValue( "blanks", " ", CardsGiven::One ),
        InValue( "blank-folds", "\r\n  ", CardsGiven::One ),
        InValue( "line-feeds", "\n", CardsGiven::One ),
        InValue( "empty-lines", "\r\n", CardsGiven::One ),
        InValue( "malformed-utf8", "\xC3", CardsGiven::One ),
        InValue( "four-byte-characters", "\xF0\x9F\x94\xAD", CardsGiven::One ),
        InValue( "byte-order-marks", "\xEF\xBB\xBF", CardsGiven::None ),
        InValue( "nul-bytes", QByteArray( 1, '\0' ), CardsGiven::None ),
        InEncodedValue( "soft-breaks", "=\r\n" ),
        InEncodedValue( "soft-breaks-in-text", "ab=\r\n" ),
        InEncodedValue( "encoded-line-breaks", "=0D=0A=\r\n" ),
        Shape( "groups", s_kBegin, "a.", QByteArrayLiteral( "FN:x" ) + s_kEnd, CardsGiven::One ),
        Shape( "parameters", s_kBegin + QByteArrayLiteral( "FN" ), ";X=1", QByteArrayLiteral( ":x" ) + s_kEnd,
               CardsGiven::One ),
        Shape( "parameter-list", s_kBegin + QByteArrayLiteral( "FN;X=1" ), ",2", QByteArrayLiteral( ":x" ) + s_kEnd,
               CardsGiven::One ),
        Shape( "quoted-parameter-list", s_kBegin + QByteArrayLiteral( "FN;X=1" ), ",\"2\"",
               QByteArrayLiteral( ":x" ) + s_kEnd, CardsGiven::One ),
        Shape( "encoding-parameters", s_kBegin + QByteArrayLiteral( "FN" ), ";ENCODING=b",
               QByteArrayLiteral( ":x" ) + s_kEnd, CardsGiven::One ),
    };
}

QList<HostileShape> NoCards()
{
    return {
        Whole( "only-letters", "a" ),
        Whole( "only-semicolons", ";" ),
        Whole( "only-backslashes", "\\" ),
        Whole( "only-backslash-and-cr", "\\\r" ),
        Whole( "only-equals-signs", "=" ),
        Whole( "only-soft-breaks", "=\r\n" ),
        Whole( "only-folds", "\r\n a" ),
        Whole( "only-blanks", " " ),
        Whole( "only-line-feeds", "\n" ),
        Whole( "only-malformed-utf8", "\xC3" ),
        Whole( "only-four-byte-characters", "\xF0\x9F\x94\xAD" ),
        Whole( "only-groups", "a." ),
        Whole( "only-parameters", ";X=1" ),
        Whole( "only-quotes", "\"" ),
    };
}

} // namespace

QList<HostileShape> HostileShapes()
{
    return BrokenCards() + LongLines() + NoCards();
}

} // namespace PimManager::vCard::Benchmarks
