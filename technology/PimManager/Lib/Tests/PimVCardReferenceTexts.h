/// \file
/// The texts, calls and scripts with which the component and the plain implementation are compared: samples of each
/// construct, and random ones that are the same in every run.

#pragma once

#include "PimVCardTranscript.h"

#include "PimVCardVocabulary.h"

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QString>

#include <random>

namespace PimManager
{

/// A whole card for each construct of the grammar, and a card for each way to fail.
inline QList<QByteArray> SampleTexts()
{
    const QByteArray begin( "BEGIN:VCARD\r\n" );
    const QByteArray end( "END:VCARD\r\n" );
    const QList<QByteArray> lines = {
        "VERSION:3.0\r\nN:Brackwater;Nell;Imogen;;\r\nFN:Nell Imogen Brackwater\r\n",
        "item1.TEL;TYPE=CELL,VOICE,pref:+1-555-0101\r\nitem1.X-ABLabel:boat phone\r\na.b.ADR;HOME:;;3 Ferry Steps\r\n",
        "TEL;CELL;PREF:5550110\r\nTEL; WORK;\tFAX;TYPE=\"a, b; c\":5550112\r\nX;P=\"\xC3\xA9\",b:1\r\n",
        "NOTE:one\\, two\\; three\\: four\\\\five\r\nNOTE:six\\nseven\r\n",
        "NOTE:a\\\r\nNOTE:b\\\\\r\nNOTE:\\,c;\\;d\r\n",
        "PHOTO;ENCODING=b;TYPE=JPEG:/9j/4AAQSkZJRgABAQAAAQ\r\n BwYIChAKCgkJChQODwwQFxQYGBcUFhYaHSUf\r\n  Gh+/sj=\r\n",
        "PHOTO;JPEG;ENCODING=BASE64:/9j/4AAQ\r\n BwYIChA=\r\n\r\nTEL:1\r\n",
        "N;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=D0=9E=D0=\r\n=BA=D0;=BE=\r\n;=3D=\r\n\r\nFN:x\r\n",
        "LABEL;ENCODING=QUOTED-PRINTABLE:12 Lane=0D=0A=\r\n  Upper=0D=0A=\r\nDrizzle=0D=0A\r\n x=\r\n\r\n",
        "X;ENCODING=QUOTED-PRINTABLE;ENCODING=BASE64:a\r\n",
        "X;ENCODING=Quoted-Printable,base64:a\r\nX;ENCODING=8BIT:b\r\n",
        "N:\xCE\x91\xCE\xBD;\xE6\x9C\x88\xE8\xA6\x8B;\xF0\x9F\x98\x80\xF0\x9F\x98\x81\r\n",
        "FN:\xC2\x85\xE2\x80\xA8\xE2\x80\xA9\r\n",
        "FN:a\xEF\xBB\xBFzb\r\n",
        "FN:a\nTEL:b\n c\n\n",
        "FN:a\rTEL:b\r c\r",
        "FN:a\vb\fc\r\n\v\f\xC2\x85TEL:\r\n",
        "BEGIN:VCARD\r\nFN:inner\r\n",
        "TEL\r\n",
        "TEL;:\r\n",
        "TEL;A B:1\r\n",
        "TEL;TYPE=:1\r\n",
        "TEL;TYPE=\"open\r\n",
        "TEL;TYPE=HOME,:1\r\n",
        "TEL;TYPE=,HOME:1\r\n",
        "TEL;TYPE=HOME,,WORK:1\r\n",
        "TEL;TYPE=HOME,WORK=x:1\r\n",
        "TEL;TYPE=HOME,\"WORK\",CELL:1\r\nTEL;TYPE=PREFERRED-NUMBER,HOME,X-LONG-NAME:2\r\n",
        "TEL;TYPE=HOME,WORK\\,x:1\r\n",
        "X;ENCODING=8BIT,BASE64;ENCODING=8BIT,QUOTED-PRINTABLE:a\r\n",
        "X;ENCODING=BASE64;:a\r\nBEGIN:VCARD\r\nNOTE:a b\r\n",
        "TEL;TYPE=\"a\\\"b\":1\r\n",
        ".TEL:1\r\nTEL :2\r\n: x\r\n",
        "A:1\r\nEND:OTHER\r\nB:2\r\n",
        "\x01:\x7F\r\n",
    };
    QList<QByteArray> texts = { "",
                                "\xEF\xBB\xBF",
                                begin + end,
                                "\xEF\xBB\xBF" + begin + end,
                                " \t\r\n" + begin + end + "\r\n \t" + begin + end,
                                "begin\t:\tvCard\r\nFN : x\r\nend : vcard \r\nEnd:VCARD\r\n",
                                begin + "FN:a\r\n" + begin + "FN:b\r\n" + end + begin + end,
                                begin + "FN:a\r\nx y\r\n" + begin + "FN:b\r\n" + end + begin + "FN:c\r\n" + end };
    for ( const QByteArray& line : lines )
        texts.append( begin + line + end + begin + "FN:next\r\n" + end );
    return texts;
}

/// The pieces of which random texts consist.
inline QList<QByteArray> TextPieces()
{
    return { "BEGIN:VCARD\r\n",
             "BEGIN:VCARD\n",
             "begin \t: VCARD\r\n",
             "END:VCARD\r\n",
             "END:VCARD\n",
             "end:vcard\r\n",
             "END:VCARD",
             "VERSION:3.0\r\n",
             "N:a;b\r\n",
             "TEL",
             "item1.",
             "\r\n",
             "\r\n",
             "\r\n",
             "\n",
             "\r",
             "\v",
             "\f",
             "\xC2\x85",
             "\xE2\x80\xA8",
             "\xE2\x80\xA9",
             "\r\n ",
             "\r\n\t ",
             "\n ",
             "\r ",
             "\xC2\x85 ",
             "\xE2\x80\xA8\t",
             " ",
             "\t",
             ":",
             ":",
             ";",
             ";",
             ",",
             ".",
             "=",
             "\"",
             "\"x\"",
             ";TYPE=",
             ";HOME",
             ";ENCODING=QUOTED-PRINTABLE:",
             ";ENCODING=quoted-printable;",
             ";ENCODING=BASE64:",
             ";ENCODING=b:",
             ";encoding=B;",
             ";ENCODING=\"base64\"",
             "=\r\n",
             "=\n",
             "=\r",
             "=0D=0A",
             "=0D=0A=",
             "=0D=0A=\r\n",
             "=0D=0A=\n\t ",
             "=0D=0A=\xC2\x85 ",
             "=C3=A9",
             "\\",
             "\\\\",
             "\\,",
             "\\;",
             "\\:",
             "\\n",
             "\\\r",
             "\\\r\n",
             "\\\n",
             "\\\xC3\xA9",
             "\\\xF0\x9F\x98\x80",
             "a",
             "B",
             "b",
             "Z-9",
             "+/",
             "ab",
             "\x01",
             "\x1F",
             "\x7F",
             "\xC2\x80",
             "\xC3\xA9",
             "\xDF\xBF",
             "\xE0\xA0\x80",
             "\xE2\x82\xAC",
             "\xEF\xBF\xBD",
             "\xEF\xBF\xBF",
             "\xF0\x9F\x98\x80",
             "\xF4\x8F\xAF\xBF",
             "\xF4\x8F\xB0\x80",
             "\xEF\xBB\xBF",
             "\xEF\xBB\xBF\xEF\xBB\xBF" };
}

/// Pieces that are not valid in UTF-8, and the NUL, which ends the parser's text.
inline QList<QByteArray> MalformedPieces()
{
    return { QByteArray( 1, '\0' ),
             "\x80",
             "\xBF",
             "\xC3",
             "\xC0\x80",
             "\xC1\xBF",
             "\xE2\x82",
             "\xE2",
             "\xE0\x80\x80",
             "\xE0\x9F\xBF",
             "\xED\xA0\x80",
             "\xED\xBF\xBF",
             "\xEF\xBB",
             "\xEF",
             "\xF0\x9F\x98",
             "\xF0\x9F",
             "\xF0\x8F\xBF\xBF",
             "\xF4\x90\x80\x80",
             "\xF5\x80\x80\x80",
             "\xF8\x88\x80\x80\x80",
             "\xFE",
             "\xFF\xFE",
             "\xFF" };
}

/// The vocabulary's patterns, original and copied, variations of them, and some that are entirely different.
inline QList<PimVCardScannerExpression> ScannerExpressions()
{
    using namespace vCard;
    const QRegularExpression::PatternOptions anyCase = QRegularExpression::CaseInsensitiveOption;
    const QList<QString> patterns = { s_kColonPattern,     s_kSemicolonPattern, s_kDotPattern,
                                      s_kCommaPattern,     s_kDQuotePattern,    s_kEqualsPattern,
                                      s_kCrlfPattern,      s_kNamePattern,      s_kNamePattern,
                                      s_kValueCharPattern, s_kQSafeCharPattern, s_kBase64CharPattern };
    QList<PimVCardScannerExpression> expressions;
    for ( const QString& pattern : patterns )
    {
        expressions.append( { pattern } );
        expressions.append( { QString( pattern.constData(), pattern.size() ) } );
        expressions.append( { pattern, anyCase } );
        // Shares its memory with the vocabulary, and matches everything.
        expressions.append( { QString::fromRawData( pattern.constData(), 2 ) } );
        expressions.append( { pattern, QRegularExpression::InvertedGreedinessOption } );
    }
    for ( const char* pattern : { "",          "a*",        ".",      "[^;]",  "\\s",      "(?i)b",  "\\A\\z",
                                  "ab",        "\\\\.",     "(",      "[a-z]", "[^a]",     "\\\\",   "^\\?$",
                                  "\\x{FEFF}", "\\x{FFFD}", "\\x{0}", ".\\z",  "\\A..\\z", "(?!a).", "[;:,]|\\\\[;:,]",
                                  "\\R",       "BEGIN",     "VCARD$", "[",     "*",        "(?s).",  "=|\\r|\\n" } )
        expressions.append( { QString::fromLatin1( pattern ) } );
    expressions.append( { s_kBeginVCardPattern } );
    expressions.append( { s_kBeginVCardPattern, anyCase } );
    expressions.append( { QStringLiteral( "." ), QRegularExpression::DotMatchesEverythingOption } );
    return expressions;
}

/// Makes the same random choices in every run.
class PimVCardReferenceTexts
{
public:
    explicit PimVCardReferenceTexts( uint a_seed ) :
        m_random( a_seed )
    {
    }

    /// \return a number from 0 to a_end - 1.
    int Number( int a_end ) { return static_cast<int>( m_random() % static_cast<uint>( a_end ) ); }

    /// A text of random pieces in UTF-8, without NUL.
    QByteArray Text( int a_pieces ) { return Joined( m_pieces, a_pieces ); }

    /// The same, with malformed pieces and NULs.
    QByteArray MalformedText( int a_pieces )
    {
        QByteArray text;
        for ( int i = 0; i < a_pieces; ++i )
            text += Number( 4 ) == 0 ? Pick( m_malformed ) : Pick( m_pieces );
        return text;
    }

    /// Some samples, one after another, with random pieces inserted and with bytes and sections removed.
    QByteArray ChangedSamples()
    {
        QByteArray text;
        for ( int i = Number( 3 ); i >= 0; --i )
            text += Pick( m_samples );
        for ( int i = Number( 6 ); i > 0; --i )
            Change( text );
        return text;
    }

    /// One to four calls.
    QList<PimVCardParserCall> Calls()
    {
        QList<PimVCardParserCall> calls;
        for ( int i = Number( 4 ); i >= 0; --i )
            calls.append( static_cast<PimVCardParserCall>( Number( static_cast<int>( s_kLastParserCall ) + 1 ) ) );
        return calls;
    }

    /// A script for this text.
    PimVCardScannerScript Script( const QByteArray& a_text )
    {
        PimVCardScannerScript script;
        script.m_watchesPosition = Number( 2 ) == 0;
        script.m_isOfParser = Number( 4 ) == 0;
        const auto length = script.m_isOfParser ? vCardReference::Prepared( a_text ).size() : a_text.size();
        for ( int i = 0; i < s_kExpressions; ++i )
            script.m_expressions.append( Pick( m_expressions ) );
        for ( int i = Number( 20 ); i >= 0; --i )
            script.m_steps.append( Step( static_cast<int>( length ) ) );
        return script;
    }

private:
    static constexpr int s_kExpressions = 5;

    template <typename T>
    const T& Pick( const QList<T>& a_list )
    {
        return a_list.at( Number( static_cast<int>( a_list.size() ) ) );
    }

    QByteArray Joined( const QList<QByteArray>& a_list, int a_count )
    {
        QByteArray text;
        for ( int i = 0; i < a_count; ++i )
            text += Pick( a_list );
        return text;
    }

    void Change( QByteArray& a_text )
    {
        const int place = Number( static_cast<int>( a_text.size() ) + 1 );
        switch ( Number( 5 ) )
        {
        case 0:
            a_text.remove( place, 1 );
            break;
        case 1:
            a_text.remove( place, Number( 20 ) );
            break;
        case 2:
            a_text.insert( place, Pick( m_malformed ) );
            break;
        default:
            a_text.insert( place, Pick( m_pieces ) );
        }
    }

    PimVCardScannerStep Step( int a_length )
    {
        using Call = PimVCardScannerCall;
        static const QList<Call> s_kCalls = { Call::Run,    Call::Run,      Call::Run,         Call::Run,
                                              Call::Single, Call::Single,   Call::Seek,        Call::Status,
                                              Call::Change, Call::ReadLine, Call::Position,    Call::Read,
                                              Call::Read,   Call::GoTo,     Call::SetLookAhead };
        PimVCardScannerStep step = { Pick( s_kCalls ), Number( s_kExpressions ), Number( 4 ) == 0 ? 1 : 0 };
        if ( step.m_call == Call::GoTo )
            step.m_argument = Number( a_length + 1 );
        else if ( step.m_call == Call::SetLookAhead )
            step.m_argument = Pick( m_lookAheads );
        else if ( step.m_call == Call::Change )
            step.m_argument = Number( s_kExpressions );
        return step;
    }

    std::mt19937 m_random;
    const QList<QByteArray> m_samples = SampleTexts();
    const QList<QByteArray> m_pieces = TextPieces();
    const QList<QByteArray> m_malformed = MalformedPieces();
    const QList<PimVCardScannerExpression> m_expressions = ScannerExpressions();
    const QList<int> m_lookAheads = { 0, 0, 'B', 'a', ';', '\\', '\r', '\n', 0xE9, 0xD83D, 0xDE00, 0xFEFF };
};

} // namespace PimManager
