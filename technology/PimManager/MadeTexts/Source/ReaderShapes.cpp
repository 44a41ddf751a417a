#include "ReaderShapes.h"

#include <QString>
#include <QtEndian>

namespace PimManager::vCard::MadeTexts
{

namespace
{

const QByteArray s_kBegin = QByteArrayLiteral( "BEGIN:VCARD\r\n" );
const QByteArray s_kEnd = QByteArrayLiteral( "END:VCARD\r\n" );
const QByteArray s_kCard = QByteArrayLiteral( "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD\r\n" );
const QByteArray s_kMark = QByteArrayLiteral( "\xEF\xBB\xBF" );

constexpr int s_kFoldedLength = 74;
constexpr int s_kDepth = 12;

// Only the piece.
ReaderShape Only( const char* a_name, const QByteArray& a_piece, ShapeForm a_form = ShapeForm::Repeated )
{
    return { a_name, { "", a_piece, "" }, a_form };
}

// The piece between BEGIN and END.
ReaderShape InCard( const char* a_name, const QByteArray& a_head, const QByteArray& a_piece,
                    const QByteArray& a_tail = QByteArray(), ShapeForm a_form = ShapeForm::Repeated )
{
    return { a_name, { s_kBegin + a_head, a_piece, a_tail + s_kEnd }, a_form };
}

// The piece among the parameters of a line.
ReaderShape InHead( const char* a_name, const QByteArray& a_head, const QByteArray& a_piece,
                    ShapeForm a_form = ShapeForm::Repeated )
{
    return InCard( a_name, a_head, a_piece, ":x\xE9\r\n", a_form );
}

// The piece in a card that has no END.
ReaderShape InOpenCard( const char* a_name, const QByteArray& a_piece )
{
    return { a_name, { s_kBegin, a_piece, "" }, ShapeForm::Repeated };
}

QList<ReaderShape> HeadShapes()
{
    return {
        InHead( "reader-quotes-in-parameter", "TEL;X=a", "\"" ),
        InHead( "reader-quotes-in-parameters", "TEL", ";\"" ),
        InHead( "reader-quoted-colons", "TEL", ";X=\":\"" ),
        InHead( "reader-open-quoted-colons", "TEL", ";X=\":" ),
        InHead( "reader-empty-parameters", "TEL", ";" ),
        InHead( "reader-empty-parameters-utf16", "TEL", ";", ShapeForm::Utf16 ),
        InHead( "reader-numbered-parameters", "TEL", ";X#=1", ShapeForm::Numbered ),
        InHead( "reader-numbered-types", "TEL", ";TYPE=T#", ShapeForm::Numbered ),
        InHead( "reader-numbered-words", "TEL", ";T#", ShapeForm::Numbered ),
        InHead( "reader-numbered-charsets", "NOTE", ";CHARSET=X#", ShapeForm::Numbered ),
        InHead( "reader-charsets", "NOTE", ";CHARSET=ISO-8859-1" ),
        InHead( "reader-contrary-encodings", "NOTE", ";QUOTED-PRINTABLE;BASE64" ),
        InHead( "reader-blank-parameters", "TEL", " ; " ),
        InHead( "reader-equals-signs-in-parameter", "TEL;X", "=" ),
        InHead( "reader-commas-in-parameter", "TEL;TYPE=", "," ),
        InHead( "reader-backslashes-in-parameter", "TEL;TYPE=", "\\" ),
        InHead( "reader-control-parameters", "TEL", ";\x01" ),
        InHead( "reader-malformed-parameters", "TEL", ";\xC3" ),
        InHead( "reader-folds-in-parameters", "TEL", ";\r\n X=1" ),
        InHead( "reader-blanks-before-colon", "TEL", " " ),
        InHead( "reader-dots-before-name", "", "." ),
        InHead( "reader-control-characters-in-name", "X", "\x01" ),
        InHead( "reader-marks-in-name", "X", s_kMark ),
        InCard( "reader-unclosed-quotes", "", "TEL;X=\"a:1\r\n" ),
        InCard( "reader-unclosed-quotes-over-folds", "", "TEL;X=\"a:1\r\n b\r\n" ),
        InCard( "reader-grouped-lines", "", "a.TEL:1\r\n" ),
        InCard( "reader-numbered-groups", "", "g#.TEL:1\r\n", "", ShapeForm::Numbered ),
        InCard( "reader-numbered-names", "", "X-N#:1\r\n", "", ShapeForm::Numbered ),
        InCard( "reader-numbered-charset-lines", "", "NOTE;CHARSET=X#:\xE9\r\n", "", ShapeForm::Numbered ),
        InCard( "reader-odd-groups", "", "my_item.TEL :1\r\n" ),
        InCard( "reader-odd-names", "", "a_b c?:1\r\n" ),
        InCard( "reader-names-without-colon", "", "TEL\r\n" ),
        InCard( "reader-everything-odd", "", "a_b.TEL ;;X Y=\"1;TYPE=a\"b :\x01\\q\r\n" ),
    };
}

QList<ReaderShape> BoundaryShapes()
{
    const QByteArray agent = "AGENT:\r\n" + s_kCard;
    const QByteArray open = "AGENT:\r\n" + s_kBegin;
    return {
        InCard( "reader-nested-behind-long-head", "NOTE:#\r\n", agent, "", ShapeForm::LongHead ),
        InCard( "reader-nested-on-long-line", "AGENT;X=#:\r\n", s_kCard, "", ShapeForm::LongHead ),
        InCard( "reader-agents", "", agent ),
        InCard( "reader-agents-with-encoding", "", "AGENT;ENCODING=QUOTED-PRINTABLE:=\r\n" + s_kCard ),
        InCard( "reader-agents-beyond-depth", "", open.repeated( s_kDepth ) + s_kEnd.repeated( s_kDepth ) ),
        InOpenCard( "reader-open-agents", open ),
        { "reader-closed-agents", { s_kBegin, open, s_kEnd }, ShapeForm::Nested },
        Only( "reader-agent-begins", "AGENT:BEGIN:VCARD\r\n" ),
        InCard( "reader-agent-begins-in-card", "", "AGENT:BEGIN:VCARD\r\n" ),
        InCard( "reader-agent-begins-and-ends", "", "AGENT:BEGIN:VCARD\r\nFN:x\r\nEND:VCARD\r\n" ),
        InOpenCard( "reader-indented-cards-in-open-card", " BEGIN:VCARD\r\n FN:x\r\n END:VCARD\r\n" ),
        InOpenCard( "reader-indented-begins", " BEGIN:VCARD\r\n" ),
        InOpenCard( "reader-indented-ends", " END:VCARD\r\n" ),
        InCard( "reader-indented-ends-in-value", "NOTE:x\r\n", " END:VCARD\r\n" ),
        Only( "reader-indented-cards", " BEGIN:VCARD\r\n FN:x\r\n END:VCARD\r\n" ),
        Only( "reader-cards-with-indented-end", "BEGIN:VCARD\r\nFN:x\r\n END:VCARD\r\n" ),
        Only( "reader-half-indented-cards", " BEGIN:VCARD\r\nFN:x\r\n END:VCARD\r\n" ),
        Only( "reader-ends-behind-properties", "FN:x\r\nEND:VCARD\r\n" ),
        Only( "reader-properties-outside", "FN:x\r\n" ),
        Only( "reader-misspelt-begins", "BEGIN:VCARDx\r\n" ),
        InOpenCard( "reader-misspelt-ends", "END:VCARDx\r\n" ),
        InOpenCard( "reader-ends-and-begins", "END:VCARDBEGIN:VCARD\r\n" ),
        InOpenCard( "reader-ends-and-begins-on-a-line", "END:VCARDBEGIN:VCARD" ),
        Only( "reader-begins-and-ends-on-a-line", "BEGIN:VCARDEND:VCARD" ),
        Only( "reader-begins-on-a-line", "BEGIN:VCARD" ),
        Only( "reader-empty-cards", s_kBegin + s_kEnd ),
        Only( "reader-blanks-round-begin", "\tBEGIN : VCARD \r\n" ),
        InCard( "reader-other-begins", "", "BEGIN:VEVENT\r\nEND:VEVENT\r\n" ),
        Only( "reader-soft-break-before-begin", "BEGIN:VCARD\r\nNOTE;ENCODING=QUOTED-PRINTABLE:=\r\n" ),
        Only( "reader-marks-before-begin", s_kMark + s_kCard ),
    };
}

QList<ReaderShape> LineShapes()
{
    const QByteArray encoded = "NOTE;ENCODING=QUOTED-PRINTABLE:";
    const QByteArray photo = "PHOTO;ENCODING=b:QUJD\r\n";
    const QByteArray base64 = QByteArrayLiteral( "QUJDREVGR0hJSktM" ).repeated( 4 );
    const QByteArray folded( s_kFoldedLength, 'a' );
    return {
        InCard( "reader-lines-n", "", "N\n" ),
        InCard( "reader-lines-a", "", "a\n" ),
        InCard( "reader-lines-question", "", "?\n" ),
        InCard( "reader-lines-colon", "", ":\n" ),
        InCard( "reader-lines-semicolon", "", ";\n" ),
        InCard( "reader-lines-n-semicolon", "", "N;\n" ),
        InCard( "reader-lines-n-colon", "", "N:\n" ),
        InCard( "reader-lines-blank", "", " \n" ),
        InCard( "reader-lines-equals", "", "=\n" ),
        InCard( "reader-lines-number-sign", "", "#\n" ),
        InCard( "reader-lines-nul", "", QByteArray( "\0\n", 2 ) ),
        InCard( "reader-lines-mark", "", s_kMark + "\n" ),
        InCard( "reader-lines-control", "", "\x01\n" ),
        InCard( "reader-equals-at-ends", "NOTE:x", "=\n" ),
        InCard( "reader-text-equals-at-ends", "", "NOTE:x=\n" ),
        InCard( "reader-soft-breaks", encoded, "=\n" ),
        InCard( "reader-soft-breaks-and-blanks", encoded, "= \n " ),
        InCard( "reader-soft-breaks-and-empty-lines", encoded, "=\r\n\r\n" ),
        InCard( "reader-soft-breaks-and-names", encoded, "=\nTEL" ),
        InCard( "reader-malformed-encodings", encoded, "=4==X" ),
        InCard( "reader-base64-lines", photo, base64 + "\r\n" ),
        InCard( "reader-base64-short-lines", photo, "A\n" ),
        InCard( "reader-base64-empty-lines", photo, "\r\nQUJD\r\n" ),
        InCard( "reader-base64-indented-lines", photo, " QUJD\r\n" ),
        InCard( "reader-joined-lines", "NOTE:x\r\n", "and so on\r\n" ),
        InCard( "reader-joined-short-lines", "NOTE:x\r\n", "a\n" ),
        InCard( "reader-joined-empty-lines", "NOTE:x\r\n", "a\r\n\r\n" ),
        InCard( "reader-joined-lines-with-colon", "NOTE:x\r\nand\r\n", "see also: this\r\n" ),
        InCard( "reader-joined-long-lines", "NOTE:" + folded + "\r\n", folded + "\r\n" ),
        InCard( "reader-notes-with-a-line", "", "NOTE:x\r\nand\r\n" ),
        InCard( "reader-folds-of-one-byte", "NOTE:x\n", " a\n" ),
        InCard( "reader-folds-by-length", "VERSION:2.1\r\nNOTE:" + folded + "\r\n", ' ' + folded + "\r\n" ),
        InCard( "reader-folded-notes-by-length", "VERSION:2.1\r\n", "NOTE:" + folded + "\r\n " + folded + "\r\n" ),
        InCard( "reader-folded-escapes", "NOTE:x", "\\\r\n n" ),
        InCard( "reader-unknown-escapes", "NOTE:x", "\\q" ),
        InCard( "reader-comments", "", "# x\r\n" ),
        InCard( "reader-comments-in-value", "NOTE:x\r\n", "# x\r\n y\r\n" ),
        InCard( "reader-blank-lines", "", "   \r\n" ),
        InCard( "reader-carriage-returns", "NOTE:x", "\r" ),
        InCard( "reader-cr-cr-lf", "NOTE:x", "\r\r\n" ),
        InCard( "reader-lf-cr", "NOTE:x", "\n\r" ),
        InCard( "reader-control-characters", "NOTE:x", "\x01\x0B\x0C" ),
        InCard( "reader-photo", "PHOTO;ENCODING=b:QUJD\r\n", ' ' + base64 + "\r\n" ),
        InCard( "reader-data-uris", "", "PHOTO:data:image/jpeg;base64,QUJD\r\n" ),
        InOpenCard( "reader-value-without-end", "a" ),
        { "reader-long-value-without-end", { s_kBegin + "NOTE:", "a", "" }, ShapeForm::Repeated },
    };
}

QList<ReaderShape> CharsetShapes()
{
    return {
        InCard( "reader-charset-lines", "", "NOTE;CHARSET=ISO-8859-1:\xE9\xC3\r\n" ),
        InCard( "reader-contrary-charset-lines", "",
                "NOTE;CHARSET=ISO-8859-1:\xE9\r\nNOTE;CHARSET=SHIFT_JIS:\x83\r\nNOTE:\xC3\xA9\r\n" ),
        InCard( "reader-half-characters", "NOTE:", "\xC3\xA9\xE9" ),
        InCard( "reader-overlong-characters", "NOTE:", "\xE0\x80\xF4\x90" ),
        InCard( "reader-shifts", "NOTE:", "\x1B$B0!\x1B(B" ),
        InCard( "reader-open-shifts", "NOTE:", "\x1B$B" ),
        InCard( "reader-shift-lines", "", "NOTE:\x1B$B0!\x1B(B\r\n" ),
        Only( "reader-latin-cards", "BEGIN:VCARD\r\nFN:\xE9\r\nEND:VCARD\r\n" ),
        Only( "reader-utf16-cards", s_kCard, ShapeForm::Utf16 ),
        Only( "reader-utf16-text", "a", ShapeForm::Utf16 ),
        { "reader-utf16-half-pairs", { "\xFF\xFE", QByteArray( "\x3D\xD8", 2 ), "" }, ShapeForm::Repeated },
        { "reader-utf16-nul-pattern", { "", QByteArray( "\0B\0:\0\n", 6 ), "" }, ShapeForm::Repeated },
    };
}

QList<ReaderShape> OutsideShapes()
{
    return {
        Only( "reader-text-outside", "hello\r\n" ),
        Only( "reader-colons-outside", "hello: x\r\n" ),
        Only( "reader-short-lines-outside", "a\n" ),
        Only( "reader-comments-outside", "# x\r\n" ),
        Only( "reader-marks-outside", s_kMark ),
        Only( "reader-carriage-returns-outside", "\r" ),
        Only( "reader-text-between-cards", "x\r\n" + s_kCard ),
        Only( "reader-notes-outside", "NOTE;ENCODING=QUOTED-PRINTABLE:=\r\n" ),
    };
}

QByteArray InUtf16( const QByteArray& a_text )
{
    QByteArray converted = QByteArrayLiteral( "\xFF\xFE" );
    const QString text = QString::fromLatin1( a_text );
    for ( const QChar character : text )
    {
        const quint16 unit = qToLittleEndian( character.unicode() );
        converted.append( reinterpret_cast<const char*>( &unit ), static_cast<int>( sizeof unit ) );
    }
    return converted;
}

} // namespace

QByteArray ReaderShape::TextOfLength( int a_bytes ) const
{
    const bool isNested = m_form == ShapeForm::Nested;
    const int wanted = m_form == ShapeForm::Utf16 ? a_bytes / 2 : a_bytes;
    QByteArray text = m_text.m_head;
    if ( m_form == ShapeForm::LongHead )
        text.replace( '#', QByteArray( a_bytes / 2, 'a' ) );
    QByteArray tails = isNested ? QByteArray() : m_text.m_tail;
    for ( int number = 0; text.size() + tails.size() < wanted; ++number )
    {
        QByteArray piece = m_text.m_piece;
        text += m_form == ShapeForm::Numbered ? piece.replace( '#', QByteArray::number( number ) ) : piece;
        if ( isNested )
            tails += m_text.m_tail;
    }
    return m_form == ShapeForm::Utf16 ? InUtf16( text + tails ) : text + tails;
}

QList<ReaderShape> ReaderShapes()
{
    return HeadShapes() + BoundaryShapes() + LineShapes() + CharsetShapes() + OutsideShapes();
}

} // namespace PimManager::vCard::MadeTexts
