#include "Checks/Transcript.h"

#include <QCryptographicHash>
#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::Contacts::Checks
{

namespace
{

constexpr int s_kLongest = 160;

template <typename Value>
using Word = std::pair<Value, const char*>;

constexpr std::array s_kVersions = {
    Word<PimContactVersion>{ PimContactVersion::Unknown, "version unknown" },
    Word<PimContactVersion>{ PimContactVersion::V21, "version 2.1" },
    Word<PimContactVersion>{ PimContactVersion::V30, "version 3.0" },
    Word<PimContactVersion>{ PimContactVersion::V40, "version 4.0" },
};

constexpr std::array s_kOddities = {
    Word<PimContactOddity>{ PimContactOddity::LineJoined, "line-joined" },
    Word<PimContactOddity>{ PimContactOddity::MissingColon, "missing-colon" },
    Word<PimContactOddity>{ PimContactOddity::SoftLineBreak, "soft-line-break" },
    Word<PimContactOddity>{ PimContactOddity::Base64Lines, "base64-lines" },
    Word<PimContactOddity>{ PimContactOddity::ControlCharacters, "control-characters" },
    Word<PimContactOddity>{ PimContactOddity::NameBlanks, "name-blanks" },
    Word<PimContactOddity>{ PimContactOddity::OddName, "odd-name" },
    Word<PimContactOddity>{ PimContactOddity::OpenQuote, "open-quote" },
    Word<PimContactOddity>{ PimContactOddity::OddParameter, "odd-parameter" },
    Word<PimContactOddity>{ PimContactOddity::EmptyParameter, "empty-parameter" },
    Word<PimContactOddity>{ PimContactOddity::UnknownEscape, "unknown-escape" },
};

constexpr std::array s_kJoins = {
    Word<PimContactJoin>{ PimContactJoin::Fold, "fold" },
    Word<PimContactJoin>{ PimContactJoin::Direct, "direct" },
    Word<PimContactJoin>{ PimContactJoin::LineFeed, "line-feed" },
    Word<PimContactJoin>{ PimContactJoin::SoftBreak, "soft-break" },
    Word<PimContactJoin>{ PimContactJoin::SoftBreakAndBlank, "soft-break-and-blank" },
};

constexpr std::array s_kEncodings = {
    Word<PimContactEncoding>{ PimContactEncoding::None, "" },
    Word<PimContactEncoding>{ PimContactEncoding::QuotedPrintable, " quoted-printable" },
    Word<PimContactEncoding>{ PimContactEncoding::Base64, " base64" },
};

constexpr std::array s_kLineEnds = {
    Word<PimContactLineEnd>{ PimContactLineEnd::CrLf, "crlf" },
    Word<PimContactLineEnd>{ PimContactLineEnd::Lf, "lf" },
    Word<PimContactLineEnd>{ PimContactLineEnd::Cr, "cr" },
    Word<PimContactLineEnd>{ PimContactLineEnd::CrCrLf, "crcrlf" },
};

constexpr std::array s_kEvidences = {
    Word<PimContactEvidence>{ PimContactEvidence::None, "none" },
    Word<PimContactEvidence>{ PimContactEvidence::ByteOrderMark, "byte-order-mark" },
    Word<PimContactEvidence>{ PimContactEvidence::NulPattern, "nul-pattern" },
    Word<PimContactEvidence>{ PimContactEvidence::ValidUtf8, "valid-utf-8" },
    Word<PimContactEvidence>{ PimContactEvidence::CharsetNamed, "charset-named" },
    Word<PimContactEvidence>{ PimContactEvidence::Default, "default" },
};

constexpr std::array s_kFileKinds = {
    Word<PimContactFileKind>{ PimContactFileKind::Empty, "empty" },
    Word<PimContactFileKind>{ PimContactFileKind::AddressBook, "address-book" },
    Word<PimContactFileKind>{ PimContactFileKind::Compressed, "compressed" },
    Word<PimContactFileKind>{ PimContactFileKind::Document, "document" },
    Word<PimContactFileKind>{ PimContactFileKind::Image, "image" },
    Word<PimContactFileKind>{ PimContactFileKind::Html, "html" },
    Word<PimContactFileKind>{ PimContactFileKind::Text, "text" },
    Word<PimContactFileKind>{ PimContactFileKind::Unknown, "unknown" },
};

template <typename Value, size_t Size>
QByteArray WordOf( const std::array<Word<Value>, Size>& a_words, Value a_value )
{
    const auto isIt = [a_value]( const Word<Value>& a_word ) { return a_word.first == a_value; };
    const auto word = std::find_if( a_words.begin(), a_words.end(), isIt );
    return word != a_words.end() ? QByteArray( word->second )
                                 : "invalid " + QByteArray::number( static_cast<int>( a_value ) );
}

bool IsShown( QChar a_character )
{
    const ushort code = a_character.unicode();
    return code >= 0x20 && code != 0x7F && !( code >= 0x80 && code < 0xA0 ) && code != QChar::LineSeparator &&
           code != QChar::ParagraphSeparator && code != QChar::ByteOrderMark;
}

QByteArray EscapedBytes( const QByteArray& a_bytes )
{
    QByteArray text;
    for ( const char byte : a_bytes )
        text += "\\x" + QByteArray( 1, byte ).toHex().toUpper();
    return text;
}

QByteArray Escaped( const QString& a_text )
{
    QString text;
    for ( const QChar character : a_text )
    {
        if ( character == QLatin1Char( '\\' ) )
            text += QLatin1String( "\\\\" );
        else if ( IsShown( character ) )
            text += character;
        else
            text += QString::fromLatin1( EscapedBytes( QString( character ).toUtf8() ) );
    }
    return text.toUtf8();
}

// Not UTF-8.
QByteArray EscapedBeyondAscii( const QByteArray& a_bytes )
{
    QByteArray text;
    for ( const char byte : a_bytes )
    {
        const bool isAscii = static_cast<uchar>( byte ) < 0x80;
        text += isAscii ? Escaped( QString( QLatin1Char( byte ) ) ) : EscapedBytes( QByteArray( 1, byte ) );
    }
    return text;
}

QByteArray Number( qint64 a_number )
{
    return QByteArray::number( a_number );
}

QByteArray OdditiesOf( const PimContactLine& a_line )
{
    QByteArray text;
    for ( const auto& [oddity, word] : s_kOddities )
    {
        if ( a_line.Oddities().testFlag( oddity ) )
            text += QByteArray( " " ) + word;
    }
    return text;
}

// Equal joins in a row are written once, with their number.
QByteArray JoinsOf( const PimContactLine& a_line )
{
    QByteArray text;
    const QList<PimContactJoin> joins = a_line.Joins();
    for ( auto join = joins.begin(); join != joins.end(); )
    {
        const auto next =
            std::find_if( join, joins.end(), [join]( PimContactJoin a_join ) { return a_join != *join; } );
        text += ( text.isEmpty() ? " joins=" : "," ) + WordOf( s_kJoins, *join );
        if ( next - join > 1 )
            text += '*' + Number( next - join );
        join = next;
    }
    return text;
}

QByteArray HeadOf( const PimContactLine& a_line )
{
    QByteArray text = Shown( a_line.Group() ) + '|' + Shown( a_line.Name() ) + '|';
    const QList<QByteArray> parameters = a_line.Parameters();
    for ( const QByteArray& parameter : parameters )
        text += '[' + Shown( parameter ) + ']';
    return text;
}

QByteArray StyleOf( const PimContactCard& a_card )
{
    return WordOf( s_kVersions, a_card.Version() ) +
           ( a_card.FoldStyle() == PimContactFoldStyle::BlankKept ? ", blank kept" : ", blank removed" );
}

QByteArray RecordOf( const PimContactCard& a_card )
{
    QByteArray text = Number( a_card.Number() ) + " at line " + Number( a_card.FirstLine() ) + " @" +
                      Number( a_card.Offset() ) + ": " + StyleOf( a_card );
    text += a_card.IsWhole() ? ", whole" : ", in part";
    text += a_card.HasBegin() ? "" : ", no begin";
    text += a_card.HasEnd() ? "" : ", no end";
    text += a_card.IsFiltered() ? ", filtered" : "";
    text += a_card.IsNested() ? ", nested" : "";
    text += a_card.IsConverted() ? ", converted" : "";
    return text + ", default " + a_card.DefaultCharset();
}

using Describe = QByteArray ( * )( const PimContactCard& );

// Recursive, but the reader limits the nesting of cards.
QByteArray CardRows( const PimContactCard& a_card, Describe a_describe, const QByteArray& a_indentation )
{
    QByteArray text = a_indentation + "card " + a_describe( a_card ) + '\n';
    for ( const PimContactLine& line : a_card )
    {
        text += a_indentation + "  " + TranscriptOf( line );
        if ( const PimContactCard nested = line.NestedCard(); !nested.IsNull() )
            text += CardRows( nested, a_describe, a_indentation + "    " );
    }
    return text;
}

QByteArray Counter( const QByteArray& a_name, qint64 a_count )
{
    return a_count == 0 ? QByteArray() : ", " + a_name + ' ' + Number( a_count );
}

QByteArray ExtentCounters( const PimContactReport& a_report )
{
    QByteArray text;
    for ( int i = 0; i < s_kPimContactExtentKinds; ++i )
    {
        const auto kind = static_cast<PimContactExtentKind>( i );
        if ( a_report.Bytes( kind ) != 0 || a_report.Extents( kind ) != 0 )
            text += ", " + QByteArray( NameOf( kind ).latin1() ) + ' ' + Number( a_report.Bytes( kind ) ) + " in " +
                    Number( a_report.Extents( kind ) );
    }
    return text;
}

QByteArray CardCounters( const PimContactReport& a_report )
{
    QByteArray text = Counter( "whole", a_report.CardsWhole() ) + Counter( "in part", a_report.CardsInPart() ) +
                      Counter( "refused", a_report.CardsRefused() ) + Counter( "nested", a_report.CardsNested() );
    for ( const auto& [version, word] : s_kVersions )
        text += Counter( word, a_report.CardsOf( version ) );
    return text;
}

QByteArray LineEndCounters( const PimContactReport& a_report )
{
    QByteArray text;
    for ( const auto& [kind, word] : s_kLineEnds )
        text += Counter( word, a_report.LineEnds( kind ) );
    return text;
}

QByteArray FindingCounters( const PimContactReport& a_report )
{
    QByteArray text;
    for ( int i = 0; i < s_kPimContactDiagnosticCodes; ++i )
    {
        const auto code = static_cast<PimContactDiagnosticCode>( i );
        text += Counter( NameOf( code ).latin1(), a_report.Findings( code ) );
    }
    for ( int i = 0; i <= static_cast<int>( PimContactSeverity::Refused ); ++i )
    {
        const auto severity = static_cast<PimContactSeverity>( i );
        text += Counter( QByteArray( "all " ) + NameOf( severity ).latin1(), a_report.Findings( severity ) );
    }
    return text.isEmpty() ? text : "findings" + text.mid( 1 ) + '\n';
}

template <typename Element>
QByteArray Rows( const std::vector<Element>& a_elements )
{
    QByteArray text;
    for ( const Element& element : a_elements )
        text += TranscriptOf( element );
    return text;
}

} // namespace

QByteArray Shown( const QByteArray& a_bytes )
{
    const QByteArray bytes = a_bytes.left( s_kLongest );
    const QString text = QString::fromUtf8( bytes );
    QByteArray shown = text.toUtf8() == bytes ? Escaped( text ) : EscapedBeyondAscii( bytes );
    if ( a_bytes.size() > s_kLongest )
        shown += "... (" + Number( a_bytes.size() ) + ", " +
                 QCryptographicHash::hash( a_bytes, QCryptographicHash::Md5 ).toHex().left( 8 ) + ')';
    return shown;
}

QByteArray TranscriptOf( const PimContactCard& a_card )
{
    return CardRows( a_card, RecordOf, QByteArray() );
}

QByteArray TranscriptOf( const PimContactLine& a_line )
{
    QByteArray text = HeadOf( a_line ) + '<' + Shown( a_line.Value() ) + '>';
    text += WordOf( s_kEncodings, a_line.Encoding() );
    if ( a_line.Charset() != "UTF-8" )
        text += " charset=" + Shown( a_line.Charset() );
    return text + OdditiesOf( a_line ) + JoinsOf( a_line ) + '\n';
}

QByteArray ContentOf( const PimContactCard& a_card )
{
    return CardRows( a_card, StyleOf, QByteArray() );
}

QByteArray TranscriptOf( const std::vector<PimContactCard>& a_cards )
{
    return Rows( a_cards );
}

QByteArray TranscriptOf( const PimContactDiagnostic& a_diagnostic )
{
    return Number( a_diagnostic.Line() ) + ':' + Number( a_diagnostic.Column() ) + '@' +
           Number( a_diagnostic.Offset() ) + " card " + Number( a_diagnostic.Card() ) + ' ' +
           NameOf( a_diagnostic.Severity() ).latin1() + ' ' + NameOf( a_diagnostic.Code() ).latin1() + ' ' +
           Number( a_diagnostic.Count() ) + '\n';
}

QByteArray TranscriptOf( const PimContactReport& a_report )
{
    QByteArray text = WordOf( s_kFileKinds, a_report.FileKind() ) + " in " + a_report.Charset() + " by " +
                      WordOf( s_kEvidences, a_report.Evidence() );
    text += a_report.IsConverted() ? ", converted" : "";
    text += a_report.IsStopped() ? ", stopped" : "";
    text += a_report.IsComplete() ? ", complete" : ", incomplete";
    if ( !a_report.ErrorText().isEmpty() )
        text += ", error " + a_report.ErrorText().toUtf8();
    text += "\nbytes " + Number( a_report.Bytes() ) + ExtentCounters( a_report );
    text += "\ncards " + Number( a_report.Cards() ) + CardCounters( a_report ) + LineEndCounters( a_report ) + '\n';
    return text + FindingCounters( a_report ) + a_report.Summary().toUtf8() + '\n';
}

QByteArray TranscriptOf( const PimContactExtent& a_extent )
{
    return Number( a_extent.Offset() ) + '+' + Number( a_extent.Length() ) + ' ' + NameOf( a_extent.Kind() ).latin1() +
           ' ' + Number( a_extent.Card() ) + ' ' + Shown( a_extent.Bytes() ) + '\n';
}

QByteArray TranscriptOf( const Reading& a_reading )
{
    return Rows( a_reading.m_cards ) + Rows( a_reading.m_diagnostics ) + Rows( a_reading.m_extents ) +
           TranscriptOf( a_reading.m_report );
}

} // namespace PimManager::Contacts::Checks
