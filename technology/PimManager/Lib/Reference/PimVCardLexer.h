/// \file
/// The plain token scanner. It defines what the component's scanner must do, and is simple enough to verify by reading.
///
/// It matches the caller's expression against one character after another and reads its text through a plain
/// QTextStream. The tests build the parser's sources a second time over it and compare the results. The benchmarks
/// measure how much faster the component is. It has the name and the members of the component's scanner and precedes it
/// in the include path of that second build. It is never installed.

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

/// Splits a text into tokens by the expressions that its caller passes in. It does not know the vCard grammar.
///
/// Each character costs one expression match and, in run mode, a conversion to UTF-8 and back. This is slow. The
/// scanner is the reference for the faster one.
///
/// The scanner keeps one character of look-ahead, `m_nextChar`, on which the grammar decides. Its fields are public for
/// the parser, which skips single characters with `m_stream >> m_nextChar` and calls `m_stream.atEnd()`. The line count
/// does not include such reads. A scanner reads its text once, from front to back, and belongs to one thread.
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
    /// \param a_data UTF-8 without NUL bytes, whatever the locale. May be empty, not null. The caller keeps ownership.
    ///               The array must outlive the scanner and must not change meanwhile. A byte order mark at its start
    ///               is skipped. In malformed UTF-8, each piece that cannot be decoded is read as U+FFFD. Positions are
    ///               exact only for well-formed text.
    explicit PimVCardLexer( const QByteArray* a_data );
    virtual ~PimVCardLexer();
    Q_DISABLE_COPY( PimVCardLexer )

    /// Reads the next token: a single character, or the longest run of characters that each match on their own.
    ///
    /// An expression is searched for in one character at a time, never in the token so far, so `[a-z]` and `[a-z]+`
    /// read the same tokens. In run mode, a character is tested after conversion to UTF-8 and back: half of a surrogate
    /// pair as "?", U+FEFF as the empty text.
    ///
    /// A backslash inside a run forms an escape pair with the character after it. The pair is tested as a whole, and
    /// the backslash is then left out of the token. If the pair does not match, the run ends, the backslash is lost and
    /// the character after it is the look-ahead. There are two exceptions:
    ///
    /// - Before a carriage return, the backslash is tested alone. If it does not match, it is lost. The carriage return
    ///   is then the look-ahead, and is read once more after that.
    /// - At the end of the text, U+0000 replaces the character after the backslash, and the backslash is tested alone.
    ///   If it matches, U+0000 becomes the last character of the token.
    ///
    /// A backslash that is already the look-ahead when the call begins is an ordinary character.
    ///
    /// If a run has as many carriage returns as line feeds, the line number increases by that number. Otherwise it does
    /// not change.
    ///
    /// \param a_pattern the expression. It need not be anchored.
    /// \param a_single  true to read at most one character, without escape pairs and line count.
    /// \return the token. Empty if the look-ahead does not match, at the end of the text in run mode, and for an
    ///         invalid expression, which is reported on Qt's debug log and changes nothing. Linear in the number of
    ///         characters read.
    QString GetToken( const QRegularExpression& a_pattern, bool a_single );

    /// Searches for the next line in which the expression is found, and moves to its start.
    ///
    /// The look-ahead and the two tokens are dropped first, so the search begins after the look-ahead. If that is in
    /// the middle of a line, the rest of the line counts as a line. Lines end at LF or CR LF.
    ///
    /// To return to the start of the line, the scanner goes back by the length of the line in UTF-16 units plus 2 for
    /// the line ending, counted in bytes. This is exact for a line of one-byte characters that ends with CR LF. For any
    /// other line, the scanner stops before or after the start of the line by the difference. It does not go back at
    /// all if that would lead to a position before the start of the text.
    ///
    /// \return the line without its line ending. Empty if no line matches, if only the last line of the text matches,
    ///         and for an invalid expression, which changes nothing. Linear in the number of bytes passed.
    QString SeekToPattern( const QRegularExpression& a_pattern );

    /// Writes the state of the scanner to Qt's debug log: the expression, the two tokens, the look-ahead, the status of
    /// the stream and the line number. Each is a message of its own.
    /// \param a_pattern the expression that did not match. Null omits its message. Used during the call only.
    void PrintStatus( const QRegularExpression* a_pattern ) const;

private:
    const std::unique_ptr<QIODevice> m_device;

public:
    /// The current token. Between calls, the last one returned.
    QString m_token;
    /// The token returned by the call before the last.
    QString m_prevToken;
    /// The decoded text. `pos()` and `seek()` count bytes of the text.
    QTextStream m_stream;
    /// The first character that is not part of a token yet. U+0000 before the first read and at the end of the text.
    QChar m_nextChar;
    /// The current line, from 1.
    qint32 m_lineNumber = 1;

private:
    friend class PimVCardParser;
    // Nothing to learn: every expression is matched each time.
    void Learn( const QRegularExpression& /*a_pattern*/, const QString& /*a_text*/ ) {}
    bool TakeDelimiter( const QRegularExpression& a_delimiter ) { return !GetToken( a_delimiter, true ).isEmpty(); }
    bool TakeLineEnd( const QRegularExpression& a_lineEnds ) { return !GetToken( a_lineEnds, false ).isEmpty(); }
    // The plain scanner has no shortcuts.
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
