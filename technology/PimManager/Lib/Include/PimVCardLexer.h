/// \file
/// The token scanner under the parser. Programs that want contacts use PimVCardParser instead.

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

/// Cuts a text into tokens with the expressions that its caller passes in. It knows nothing of the vCard grammar.
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
class PIMVCARD_EXPORT PimVCardLexer
{
public:
    /// Opens the text for reading, without reading any of it.
    /// \param a_data UTF-8 without NUL bytes, whatever the locale; may be empty, not null. It stays the caller's, must
    ///               outlive the scanner and must not change meanwhile. A byte order mark at its start is skipped.
    ///               Each byte that belongs to no UTF-8 sequence reads as one U+FFFD.
    explicit PimVCardLexer( const QByteArray* a_data );
    virtual ~PimVCardLexer();
    Q_DISABLE_COPY( PimVCardLexer )

    /// Takes the next token: the longest run of characters each of which matches by itself, or a single character.
    ///
    /// An expression is searched in one character at a time, never in the token so far, so `[a-z]` and `[a-z]+` take
    /// the same tokens. In run mode a character is tested as it comes back from UTF-8: half of a surrogate pair is
    /// tested as "?". U+FEFF and the end of the text end a run, whatever the expression.
    ///
    /// A backslash met inside a run forms an escape pair with the character after it, is tested together with it and is
    /// then left out of the token. If the pair does not match, the run ends, the backslash is lost and the character
    /// after it is the look-ahead. Two places differ:
    ///
    /// - Before a carriage return, the backslash is tested alone. If it does not match, it is lost; the carriage return
    ///   is the look-ahead and is read once more after that.
    /// - At the end of the text, U+0000 takes the place of the character after the backslash, and the backslash is
    ///   tested alone. If it matches, U+0000 becomes the last character of the token.
    ///
    /// A backslash that is already the look-ahead when the call begins is an ordinary character.
    ///
    /// The line number grows by the carriage returns of a run when the run holds as many line feeds, else not at all.
    ///
    /// \param a_pattern the expression; need not be anchored.
    /// \param a_single  true to take one character at most, without escape pairs and line count.
    /// \return the token; empty when the look-ahead does not match, when the text is at its end in run mode, or when
    ///         the expression is invalid, which is reported on Qt's debug log and changes nothing. Linear in the
    ///         characters taken.
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

    /// The token being built; between calls, the last one returned.
    QString m_token;
    /// The token returned by the call before the last.
    QString m_prevToken;
    /// The text, decoded. `pos()` and `seek()` count bytes of the text.
    PimVCardTextStream m_stream;
    /// The first character that is in no token yet; U+0000 before the first read and at the end of the text.
    QChar m_nextChar;
    /// The current line, from 1.
    qint32 m_lineNumber = 1;

private:
    friend class PimVCardParser;
    // The parser's expressions stay as they are while the scanner lives, so it tells them beforehand, each with the
    // vocabulary's pattern from which it was made.
    void Learn( const QRegularExpression& a_pattern, const QString& a_text );
    // GetToken() for a single delimiter that was learned; tells only if there is a token. Asked ten times a line,
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
    // GetToken() for line ends, the same way.
    bool TakeLineEnd( const QRegularExpression& a_lineEnds );
    // Takes a whole line, a_line with its CR LF, as its tokens would be taken one after another; nothing, when other
    // bytes stand there or no letter or digit follows.
    bool TakeLine( const PimVCardWord& a_line );
    // Takes one or more tokens with a comma between each two, as they would be taken one after another; nothing, when
    // what follows them is no colon and no semicolon.
    bool TakeNameList( const QRegularExpression& a_names, QString& a_list );
    // SeekToPattern() for a BEGIN line, without the text of the line. Linear also when one long line is searched from
    // each of its characters.
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

    // Expressions that are members of one object stand side by side, each in a slot of its own.
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
