/// \file
/// The plain token scanner: what the component's scanner must do, written so that a reader can see that it is right.
///
/// It matches the caller's expression against one character after another and reads its text through a plain
/// QTextStream. The tests build the parser's sources a second time over it and compare; the benchmarks measure how much
/// faster the component is. It has the name and the members of the component's scanner and stands before it in the
/// include path of that second build. It is never installed.

#pragma once

#include <QChar>
#include <QIODevice>
#include <QRegularExpression>
#include <QString>
#include <QTextStream>

#include <memory>

class QByteArray;

namespace PimManager::vCard
{

class PimVCardWord;

/// Cuts a text into tokens, as its caller's expressions tell it, and knows nothing of the vCard grammar.
///
/// One expression match for each character, and in run mode a way through UTF-8 and back: slow, and the judge of what
/// is faster.
///
/// The scanner holds one character of look-ahead, `m_nextChar`, on which the grammar decides. Its fields are open to
/// the parser, which skips single characters with `m_stream >> m_nextChar` and asks `m_stream.atEnd()`; such reads are
/// not seen by the line count. A scanner reads its text once, from front to back, and belongs to one thread.
///
/// \code
/// QByteArray text( "BEGIN:VCARD\r\n" );
/// PimVCardLexer lexer( &text );
/// lexer.GetToken( QRegularExpression( s_kNamePattern ), false ); // "BEGIN"; m_nextChar is now ':'
/// lexer.GetToken( QRegularExpression( s_kColonPattern ), true ); // ":"; m_nextChar is now 'V'
/// \endcode
class PimVCardLexer
{
public:
    /// Opens the text for reading, without reading any of it.
    /// \param a_data UTF-8 without NUL bytes, whatever the locale; may be empty, not null. It stays the caller's, must
    ///               outlive the scanner and must not change meanwhile. A byte order mark at its start is swallowed.
    ///               Of malformed UTF-8 each piece that cannot be decoded reads as U+FFFD; positions are exact only for
    ///               well-formed text.
    explicit PimVCardLexer( const QByteArray* a_data );
    virtual ~PimVCardLexer();
    Q_DISABLE_COPY( PimVCardLexer )

    /// Takes the next token: the longest run of characters each of which matches by itself, or a single character.
    ///
    /// An expression is searched in one character at a time, never in the token so far, so `[a-z]` and `[a-z]+` take
    /// the same tokens. In run mode a character is tested as it comes back from UTF-8: half of a surrogate pair as "?",
    /// U+FEFF as the empty text. A backslash met inside a run forms an escape pair with the character after it, is
    /// tested together with it and is then left out of the token; when the pair does not match, the run ends, the
    /// backslash is lost and the character after it is the look-ahead. Before a carriage return a backslash stands
    /// alone: where the expression does not match it, it is lost, the carriage return is the look-ahead and is read
    /// once more after that. At the end of the text U+0000 takes the place of that character: the pair is then tested
    /// as the backslash alone, and where it matches, U+0000 ends the token. A backslash that is already the look-ahead
    /// when the call begins is an ordinary character.
    ///
    /// The line number grows by the carriage returns of a run when the run holds as many line feeds, else not at all.
    ///
    /// \param a_pattern the expression; need not be anchored.
    /// \param a_single  true to take one character at most, without escape pairs and line count.
    /// \return the token; empty when the look-ahead does not match, when the text is at its end in run mode, or when
    ///         the expression is invalid, which is told on Qt's debug log and changes nothing. Linear in the characters
    ///         taken.
    QString GetToken( const QRegularExpression& a_pattern, bool a_single );

    /// Goes to the next line in which the expression is found and stands at its start.
    ///
    /// The look-ahead and the two tokens are dropped first, so the search begins behind the look-ahead; when that is in
    /// the middle of a line, the rest of the line counts as a line. Lines end at LF or CR LF. The way back to the start
    /// of the line is its length in characters and 2 for its end, in bytes: exact for lines of one-byte characters
    /// ended by CR LF. Otherwise the text goes on that much before or after the line's start; a way that would lead to
    /// before the start of the text is not gone at all.
    ///
    /// \return the line without its end; empty when no line matches, when the only match is in the last line of the
    ///         text, or when the expression is invalid, which changes nothing. Linear in the bytes passed over.
    QString SeekToPattern( const QRegularExpression& a_pattern );

    /// Writes the scanner's state to Qt's debug log: the expression, the two tokens, the look-ahead, the stream's
    /// status and the line number, a message each.
    /// \param a_pattern the expression that did not match; null leaves its message out. Used during the call only.
    void PrintStatus( const QRegularExpression* a_pattern ) const;

private:
    const std::unique_ptr<QIODevice> m_device;

public:
    /// The token being built; between calls, the last one returned.
    QString m_token;
    /// The token returned by the call before the last.
    QString m_prevToken;
    /// The text, decoded. `pos()` and `seek()` count bytes of the text.
    QTextStream m_stream;
    /// The first character that is in no token yet; U+0000 before the first read and at the end of the text.
    QChar m_nextChar;
    /// The current line, from 1.
    qint32 m_lineNumber = 1;

private:
    friend class PimVCardParser;
    // Nothing to learn: every expression is matched anew.
    void Learn( const QRegularExpression& /*a_pattern*/, const QString& /*a_text*/ ) {}
    bool TakeDelimiter( const QRegularExpression& a_delimiter ) { return !GetToken( a_delimiter, true ).isEmpty(); }
    bool TakeLineEnd( const QRegularExpression& a_lineEnds ) { return !GetToken( a_lineEnds, false ).isEmpty(); }
    // Whatever is only a shorter way to the same tokens is not gone here.
    // NOLINTBEGIN(readability-convert-member-functions-to-static): members, as those of the component's scanner.
    bool TakeLine( const PimVCardWord& /*a_line*/ ) { return false; }
    bool TakeNameList( const QRegularExpression& /*a_names*/, const QString& /*a_list*/ ) { return false; }
    // NOLINTEND(readability-convert-member-functions-to-static)
    void SeekToBeginLine();

    void TakeCharacter( const QRegularExpression& a_pattern );
    void TakeRun( const QRegularExpression& a_pattern );
    bool CompleteEscapePair( QString& a_candidate );
};

} // namespace PimManager::vCard
