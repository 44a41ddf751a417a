/// \file
/// The token scanner that the parser uses. Programs that read contacts use PimVCardParser instead.

#pragma once

#include "PimVCardExport.h"
#include "PimVCardTextStream.h"

#include <QChar>
#include <QRegularExpression>
#include <QString>

#include <array>
#include <memory>
#include <tuple>
#include <utility>

class QByteArray;

namespace PimManager::vCard
{

class PimVCardBeginSearch;
class PimVCardWord;
struct PimVCardCharacterClass;

/// Splits a text into tokens by the expressions that its caller passes in. It does not know the vCard grammar.
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
class PIMVCARD_EXPORT PimVCardLexer
{
public:
    /// Opens the text for reading, without reading any of it.
    /// \param a_data UTF-8 without NUL bytes, whatever the locale. May be empty, not null. The caller keeps ownership.
    ///               The array must outlive the scanner and must not change meanwhile. A byte order mark at its start
    ///               is skipped. Each byte that is not part of a UTF-8 sequence is read as one U+FFFD.
    explicit PimVCardLexer( const QByteArray* a_data );
    virtual ~PimVCardLexer();
    Q_DISABLE_COPY( PimVCardLexer )

    /// Reads the next token: a single character, or the longest run of characters that each match on their own.
    ///
    /// An expression is searched for in one character at a time, never in the token so far, so `[a-z]` and `[a-z]+`
    /// read the same tokens. In run mode, a character is tested after conversion to UTF-8 and back, so half of a
    /// surrogate pair is tested as "?". U+FEFF and the end of the text end a run, whatever the expression.
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

    /// The current token. Between calls, the last one returned.
    QString m_token;
    /// The token returned by the call before the last.
    QString m_prevToken;
    /// The decoded text. `pos()` and `seek()` count bytes of the text.
    PimVCardTextStream m_stream;
    /// The first character that is not part of a token yet. U+0000 before the first read and at the end of the text.
    QChar m_nextChar;
    /// The current line, from 1.
    qint32 m_lineNumber = 1;

private:
    friend class PimVCardParser;
    // Registers an expression of the parser and the vocabulary's pattern from which it was made. The expression must
    // not change while the scanner lives.
    void Learn( const QRegularExpression& a_pattern, const QString& a_text );
    // GetToken() for a single delimiter that was learned. Returns whether there is a token. Called ten times per line,
    // mostly for a delimiter that is not there.
    bool TakeDelimiter( const QRegularExpression& a_delimiter )
    {
        StartToken();
        const QString& delimiter = *m_learnedPatterns[SlotOf( a_delimiter )].m_delimiter;
        if ( m_nextChar != *delimiter.constData() )
            return false;
        m_token = QString( delimiter );
        m_stream >> m_nextChar;
        return true;
    }
    // The same for line endings.
    bool TakeLineEnd( const QRegularExpression& a_lineEnds );
    // Reads the whole line a_line, including its CR LF, with the same effect as reading its tokens one after another.
    // Reads nothing if the text has other bytes here, or if no letter or digit follows.
    bool TakeLine( const PimVCardWord& a_line );
    // Reads one or more tokens separated by commas, with the same effect as reading them one after another. Reads
    // nothing if neither a colon nor a semicolon follows.
    bool TakeNameList( const QRegularExpression& a_names, QString& a_list );
    // SeekToPattern() for a BEGIN line, without returning the line. Linear even if a search starts at each character of
    // one long line.
    void SeekToBeginLine();

    struct LearnedPattern
    {
        const QRegularExpression* m_pattern = nullptr;
        const PimVCardCharacterClass* m_class = nullptr;
        const QString* m_delimiter = nullptr;
    };
    using LearnedPatterns = std::array<LearnedPattern, 16>;

    class LineCount;
    class ExpressionMatcher;

    const PimVCardCharacterClass* ClassOf( const QRegularExpression& a_pattern ) const;
    bool IsNext( const QRegularExpression& a_pattern, const PimVCardCharacterClass* a_class ) const;
    bool TakeWholeRun( const PimVCardCharacterClass& a_class );
    template <typename Matcher>
    void TakeRun( const Matcher& a_matcher );
    void TakeUnescaped( const ExpressionMatcher& a_matcher, QChar a_candidate, LineCount& a_lines );
    void TakeUnescaped( const PimVCardCharacterClass& a_class, QChar a_candidate, LineCount& a_lines );
    void AppendText( const PimVCardCharacterClass& a_class, const char* a_text, int a_length );
    bool CompleteEscapePair( QChar& a_candidate );
    void GoBackOver( int a_lineLength );
    void EndLineBefore( const char* a_nextLine );

    // Expressions that are members of the same object are adjacent in memory. Each has a slot of its own.
    static size_t SlotOf( const QRegularExpression& a_pattern )
    {
        return reinterpret_cast<quintptr>( &a_pattern ) / sizeof( QRegularExpression ) %
               std::tuple_size_v<LearnedPatterns>;
    }

    void StartToken()
    {
        m_prevToken = std::move( m_token );
        m_token = QString();
        if ( m_nextChar.isNull() )
            m_stream >> m_nextChar;
    }

    LearnedPatterns m_learnedPatterns;
    std::unique_ptr<PimVCardBeginSearch> m_beginSearch;
};

} // namespace PimManager::vCard
