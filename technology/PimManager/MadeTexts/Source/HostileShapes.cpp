#include "HostileShapes.h"

namespace PimManager::vCard::MadeTexts
{

namespace
{

const char* const s_kBegin = "BEGIN:VCARD\r\n";
const char* const s_kEnd = "\r\nEND:VCARD\r\n";
const char* const s_kGoodCard = "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD\r\n";
const char* const s_kGoodLine = "FN[x]\n";

constexpr int s_kLines = 100000;
constexpr int s_kMillion = 1000000;
constexpr int s_kBytes = 10000000;
constexpr int s_kBytesOfLongestLine = 50000000;
constexpr int s_kFailures = 20000;

// Each operation around a failing line reports it, from the innermost outwards.
constexpr int s_kNotTheBeginLine = 3;      // ParseStart, ParseVCard, ParseVCards
constexpr int s_kNotTheEndLine = 3;        // ParseEnd, ParseVCard, ParseVCards
constexpr int s_kFirstLineFails = 4;       // ParseProperty and the three of a wrong BEGIN line
constexpr int s_kFirstGroupFails = 5;      // ParseGroup before those
constexpr int s_kLineFails = 4;            // ParseProperty, ParseProperties, ParseVCard, ParseVCards
constexpr int s_kGroupFails = 5;           // ParseGroup before those
constexpr int s_kParameterFails = 6;       // ParseParameter and ParseParameters before those
constexpr int s_kQuotedParameterFails = 7; // ParseQuotedParamValue before those

QByteArray CardWith( const QByteArray& a_line, const char* a_lineEnd = "\r\n" )
{
    return QByteArrayLiteral( "BEGIN:VCARD" ) + a_lineEnd + a_line + a_lineEnd + "END:VCARD" + a_lineEnd;
}

// The text results in no card.
HostileShape Lost( const char* a_name, const RepeatedText& a_text, const GrowingCount& a_blocks,
                   int a_bytes = s_kBytes )
{
    return { a_name, a_text, {}, {}, a_blocks, a_text.RepetitionsIn( a_bytes ) };
}

// Only one piece, repeated.
HostileShape Only( const char* a_name, const QByteArray& a_piece, const GrowingCount& a_blocks )
{
    return Lost( a_name, { "", a_piece, "" }, a_blocks );
}

HostileShape OnlyLines( const char* a_name, const QByteArray& a_piece, const GrowingCount& a_blocks )
{
    return { a_name, { "", a_piece, "" }, {}, {}, a_blocks, s_kLines };
}

// Failures, followed by a card that is returned.
HostileShape BeforeGoodCard( const char* a_name, const QByteArray& a_piece, const GrowingCount& a_blocks,
                             int a_repetitions = s_kLines, const QByteArray& a_tail = QByteArray() )
{
    return { a_name,       { "", a_piece, a_tail + s_kGoodCard }, { "", "", s_kGoodLine }, { 1, 0 }, a_blocks,
             a_repetitions };
}

// A card that is returned without a message on the log.
HostileShape OneCard( const char* a_name, const RepeatedText& a_text, const RepeatedText& a_cardLine,
                      int a_bytes = s_kBytes )
{
    return { a_name, a_text, a_cardLine, { 1, 0 }, {}, a_text.RepetitionsIn( a_bytes ) };
}

HostileShape InValue( const char* a_name, const QByteArray& a_piece, const QByteArray& a_given, int a_bytes = s_kBytes )
{
    return OneCard( a_name, { s_kBegin + QByteArrayLiteral( "NOTE:x" ), a_piece, s_kEnd }, { "NOTE[x", a_given, "]\n" },
                    a_bytes );
}

HostileShape InLostValue( const char* a_name, const QByteArray& a_piece, int a_blocks )
{
    return Lost( a_name, { s_kBegin + QByteArrayLiteral( "NOTE:x" ), a_piece, s_kEnd }, { a_blocks, 0 } );
}

HostileShape InEncodedValue( const char* a_name, const QByteArray& a_piece, const QByteArray& a_given )
{
    return OneCard( a_name,
                    { s_kBegin + QByteArrayLiteral( "NOTE;ENCODING=QUOTED-PRINTABLE:" ), a_piece,
                      QByteArrayLiteral( "x" ) + s_kEnd },
                    { "NOTE{ENCODING=QUOTED-PRINTABLE}[", a_given, "x]\n" } );
}

HostileShape InParameters( const char* a_name, const QByteArray& a_start, const QByteArray& a_piece,
                           const RepeatedText& a_cardLine )
{
    HostileShape shape =
        OneCard( a_name, { s_kBegin + a_start, a_piece, QByteArrayLiteral( ":x" ) + s_kEnd }, a_cardLine );
    shape.m_repetitions = s_kMillion;
    return shape;
}

QList<HostileShape> UnfinishedCards()
{
    const QByteArray unfinished = "BEGIN:VCARD\r\nFN:x\r\n";
    return {
        OnlyLines( "begin-lines", s_kBegin, { s_kGroupFails, 0 } ),
        OnlyLines( "cards-without-end", unfinished, { s_kGroupFails, 0 } ),
        OnlyLines( "end-without-begin", "END:VCARD\r\n", { s_kNotTheBeginLine, 0 } ),
        { "begin-lines-and-one-end",
          { s_kBegin, s_kBegin, "END:VCARD\r\n" },
          { "", "BEGIN[VCARD]", "\n" },
          { 1, 0 },
          {},
          s_kLines },
        { "cards-with-one-end",
          { unfinished, unfinished, "END:VCARD\r\n" },
          { "FN[x]", "BEGIN[VCARD]FN[x]", "\n" },
          { 1, 0 },
          {},
          s_kLines },
        // No other text results in more objects for its bytes.
        { "shortest-lines", { "BEGIN:VCARD\r", "a:\r", "END:VCARD\r" }, { "", "a[]", "\n" }, { 1, 0 }, {}, s_kMillion },
        { "good-cards", { "", s_kGoodCard, "" }, { "", s_kGoodLine, "" }, { 0, 1 }, {}, s_kLines },
    };
}

QList<HostileShape> BrokenCards()
{
    const QByteArray wrongEnd = "BEGIN:VCARD\r\nEND:x\r\n";
    return {
        BeforeGoodCard( "begin-lines-and-broken-lines", "BEGIN:VCARD\r\n?\r\n", { 0, s_kGroupFails } ),
        // The card after a wrong END line is skipped with it, so only every second one is reported.
        { "wrong-end-lines", { "", wrongEnd + wrongEnd, "" }, {}, {}, { 0, s_kNotTheEndLine }, s_kFailures },
        BeforeGoodCard( "quotes-that-never-close", CardWith( "TEL;X=\"abc:1" ), { 0, s_kQuotedParameterFails },
                        s_kFailures ),
        Lost( "quote-that-never-closes", { s_kBegin + QByteArrayLiteral( "TEL;X=\"" ), "a", s_kEnd },
              { s_kQuotedParameterFails, 0 } ),
        BeforeGoodCard( "encodings-on-failing-lines", CardWith( "TEL;ENCODING=QUOTED-PRINTABLE;:1" ),
                        { 0, s_kParameterFails }, s_kFailures ),
        BeforeGoodCard( "both-encodings", CardWith( "TEL;ENCODING=QUOTED-PRINTABLE;ENCODING=b:1" ),
                        { 0, s_kParameterFails }, s_kFailures ),
        // One value that runs to the end of the text.
        OnlyLines( "lf-only-broken-cards", CardWith( "?", "\n" ), { s_kFirstLineFails, 0 } ),
        // The value ends at U+0001. Each recovery after the first ends one byte before the BEGIN line, and then at it.
        { "lf-only-control-characters",
          { "", CardWith( "FN:\x01", "\n" ), "" },
          {},
          {},
          { -s_kFirstGroupFails, s_kFirstGroupFails + s_kFirstLineFails },
          s_kFailures },
        // Without any line feed, one search reads the whole text.
        OnlyLines( "cr-only-broken-cards", CardWith( "?", "\r" ), { s_kGroupFails, 0 } ),
    };
}

// Texts of one line that is searched repeatedly, each time from a slightly later position.
QList<HostileShape> RecoveriesOnOneLine()
{
    return {
        Lost( "long-line-before-begin", { "", "_", s_kBegin }, { s_kFirstGroupFails, 0 } ),
        BeforeGoodCard( "recoveries-before-begin", "_", { 0, s_kFirstGroupFails } ),
        BeforeGoodCard( "colons-before-begin", ":", { 0, s_kFirstLineFails }, s_kFailures ),
        // The last BEGIN is correct.
        { "begins-behind-control-characters",
          { "",
            "\x01"
            "BEGIN:VCARD",
            "\r\nFN:x\r\nEND:VCARD\r\n" },
          { "", "", s_kGoodLine },
          { 1, 0 },
          { s_kFirstGroupFails - s_kFirstLineFails, s_kFirstLineFails },
          s_kLines },
        Only( "begins-on-last-line",
              "\x01"
              "BEGIN:VCARD",
              { s_kFirstGroupFails, 0 } ),
        // The "?" fails, then the carriage return after it; the END line is not a BEGIN line, and the "B" after it is
        // lost, so "EGIN" is not one either. The second-last card is the last one that contains a further BEGIN to
        // recover at.
        BeforeGoodCard( "cr-only-broken-cards-on-a-line", CardWith( "?", "\r" ),
                        { s_kGroupFails - s_kFirstGroupFails - 3 * s_kNotTheBeginLine,
                          s_kFirstGroupFails + 2 * s_kNotTheBeginLine },
                        s_kFailures, "\n" ),
    };
}

QList<HostileShape> LongValues()
{
    return {
        InValue( "letters", "a", "a", s_kBytesOfLongestLine ),
        InValue( "semicolons", ";", "][" ),
        Lost( "backslashes", { s_kBegin + QByteArrayLiteral( "NOTE:" ), "\\", s_kEnd }, { s_kLineFails, 0 } ),
        InValue( "escape-pairs", "\\\\", "\\" ),
        // The line ends at the first carriage return, and the next line begins with the second.
        InLostValue( "backslash-and-cr", "\\\r", s_kGroupFails ),
        InValue( "equals-signs", "=", "=" ),
        InValue( "folds", "\r\n a", "a" ),
        InValue( "folds-lf", "\n a", "a" ),
        InValue( "blanks", " ", " " ),
        InValue( "blank-folds", "\r\n  ", "" ),
        InValue( "line-feeds", "\n", "\n" ),
        InValue( "empty-lines", "\r\n", "" ),
        InValue( "malformed-utf8", "\xC3", "\xEF\xBF\xBD" ),
        InValue( "four-byte-characters", "\xF0\x9F\x94\xAD", "\xF0\x9F\x94\xAD" ),
        InLostValue( "byte-order-marks", "\xEF\xBB\xBF", s_kLineFails ),
        InLostValue( "nul-bytes", QByteArray( 1, '\0' ), s_kLineFails ),
        InEncodedValue( "soft-breaks", "=\r\n", "" ),
        InEncodedValue( "soft-breaks-in-text", "ab=\r\n", "ab" ),
        InEncodedValue( "encoded-line-breaks", "=0D=0A=\r\n", " " ),
        OneCard( "groups", { s_kBegin, "a.", QByteArrayLiteral( "FN:x" ) + s_kEnd }, { "", "a.", s_kGoodLine } ),
        InParameters( "parameters", "FN", ";X=1", { "FN", "{X=1}", "[x]\n" } ),
        InParameters( "parameter-list", "FN;X=1", ",2", { "FN{X=1", ",2", "}[x]\n" } ),
        InParameters( "quoted-parameter-list", "FN;X=1", ",\"2\"", { "FN{X=1", ",\"2\"", "}[x]\n" } ),
        InParameters( "encoding-parameters", "FN", ";ENCODING=b", { "FN", "{ENCODING=b}", "[x]\n" } ),
    };
}

QList<HostileShape> NoCards()
{
    return {
        Only( "only-letters", "a", { s_kFirstGroupFails, 0 } ),
        Only( "only-semicolons", ";", { s_kFirstLineFails, 0 } ),
        Only( "only-backslashes", "\\", { s_kFirstGroupFails, 0 } ),
        Only( "only-backslash-and-cr", "\\\r", { s_kFirstGroupFails, 0 } ),
        Only( "only-equals-signs", "=", { s_kFirstGroupFails, 0 } ),
        Only( "only-soft-breaks", "=\r\n", { s_kFirstGroupFails, 0 } ),
        Only( "only-folds", "\r\n a", { s_kFirstGroupFails, 0 } ),
        Only( "only-blanks", " ", { s_kFirstGroupFails, 0 } ),
        Only( "only-line-feeds", "\n", { s_kFirstGroupFails, 0 } ),
        Only( "only-nul-bytes", QByteArray( 1, '\0' ), {} ),
        Only( "only-malformed-utf8", "\xC3", { s_kFirstGroupFails, 0 } ),
        Only( "only-four-byte-characters", "\xF0\x9F\x94\xAD", { s_kFirstGroupFails, 0 } ),
        Only( "only-groups", "a.", { s_kFirstGroupFails, 0 } ),
        Only( "only-parameters", ";X=1", { s_kFirstLineFails, 0 } ),
        Only( "only-quotes", "\"", { s_kFirstGroupFails, 0 } ),
    };
}

} // namespace

QList<HostileShape> HostileShapes()
{
    return UnfinishedCards() + BrokenCards() + RecoveriesOnOneLine() + LongValues() + NoCards();
}

} // namespace PimManager::vCard::MadeTexts
