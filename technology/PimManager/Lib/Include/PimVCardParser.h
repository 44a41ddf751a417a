/// \file
/// The parser, which turns the bytes of an address book into a list of cards.
///
/// \code
/// QFile file( QStringLiteral( "contacts.vcf" ) );
/// if ( !file.open( QIODevice::ReadOnly ) )
///     return;
/// PimVCardParser parser( file.readAll() );
/// const std::unique_ptr<QList<PimVCard*>> cards( parser.ParseVCards() );
/// for ( const PimVCard* card : *cards )
///     qDebug() << card->GetProperties().size() << "properties";
/// qDeleteAll( *cards );
/// \endcode

#pragma once

#include "PimVCard.h"
#include "PimVCardExport.h"

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QString>

namespace PimManager::vCard
{

class PimVCardLexer;
class PimVCardWord;

/// A recursive-descent parser for vCard 2.1 and 3.0.
///
/// A parser reads one text, once, from front to back. Most programs create it and call ParseVCards(). Each of the other
/// operations parses one construct of the grammar at the current position, for callers that know what comes next.
///
/// **Results.** An operation returns a new object. The caller owns it and deletes it. Texts are returned as written
/// (see PimVCard.h). A null pointer, an empty text or `false` means that the operation failed.
///
/// **Errors.** A failure is reported only on Qt's log. Each operation that fails writes its own block, the innermost
/// first: critical messages with the operation and the reason, and debug messages with the state of the scanner. A
/// failure also marks the parser. Only ParseVCards() removes the mark, after each search for the next card, whether or
/// not it found one. On a marked parser, ParseProperty(), ParseParameters() and the operations that call them fail,
/// whatever the text is. If a line fails after its ENCODING parameter, the encoding also applies to the next property
/// that is parsed. Nothing throws.
///
/// **Threads.** Use a parser in one thread only. Any number of parsers may work at the same time.
///
/// **Cost.** The parser keeps the prepared text until it is destroyed. If lines had to be joined, this is a second copy
/// in UTF-8. Otherwise the text is shared with the caller. Time is linear in the length of the text.
class PIMVCARD_EXPORT PimVCardParser
{
public:
    /// Prepares the text. Folded lines are unfolded (RFC 2426, section 2.6), and all white space at the start of the
    /// continuation line is removed. An encoded line break `=0D=0A` before a soft line break becomes one blank.
    ///
    /// \param a_data UTF-8. May be empty. Nothing after a NUL byte is read. Each byte that is not part of a UTF-8
    ///               sequence is read as one U+FFFD. A byte order mark at the start is skipped. The data is implicitly
    ///               shared; you may change or drop it at once. The bytes of an array made with
    ///               QByteArray::fromRawData() must live until the constructor returns.
    /// \pre The text has at most 700,000,000 bytes with 64-bit addresses, 100,000,000 bytes with 32-bit ones. Qt's
    ///      texts are limited to 2 GB, and the process must have room for both the text and the cards. The parser does
    ///      not check this.
    explicit PimVCardParser( const QByteArray& a_data );
    virtual ~PimVCardParser();
    Q_DISABLE_COPY( PimVCardParser )

    /// Parses the whole text. Terminates on every input. At the end, the number of cards and the time in milliseconds
    /// are written to Qt's debug log.
    ///
    /// A card that fails is reported and left out. Parsing continues at the next line that contains BEGIN:VCARD. The
    /// search begins after the look-ahead, so it does not find a BEGIN line whose first character was already read. For
    /// this reason, the card directly after a wrong END line is skipped too. The search does not find a BEGIN line that
    /// is the last line either. White space between cards is skipped. Before the first card and after a recovery it is
    /// not skipped, and counts as a card that failed.
    ///
    /// A card ends at its END line, whatever precedes it. A BEGIN line inside a card is an ordinary property, so a card
    /// without END absorbs the lines of the next card, up to that card's END.
    ///
    /// \return a new list of new cards in the order of the text. Empty if there are none, never null. The caller
    ///         deletes the cards and the list.
    QList<PimVCard*>* ParseVCards();

    /// Parses one card, from BEGIN line to END line. The current position must be the BEGIN line. White space before it
    /// is not skipped.
    /// \return a new card. Null if any of its lines failed; the error has been reported.
    PimVCard* ParseVCard();

    /// Parses one line and checks whether it is a BEGIN line: the name is BEGIN and the only value is VCARD, in any
    /// letter case. Blanks and tabs around the colon, a group and parameters are allowed.
    /// \return false for any other line, for a line that does not parse, and at the end of the text. The error has been
    ///         reported.
    bool ParseStart();

    /// Checks whether a property is an END line: the name is END and the only value is VCARD, in any letter case.
    /// \param a_property the property. The caller keeps ownership. May be null, which is not an END line.
    /// \return false if it is not an END line; the error has been reported.
    bool ParseEnd( PimVCardProperty* a_property );

    /// Parses content lines up to the first one named END, in any letter case. That line is the last element.
    /// \return a new list of new properties, never empty. Null if a line failed or if the text ended without an END
    ///         line; the error has been reported.
    QList<PimVCardProperty*>* ParseProperties();

    /// Parses one content line, its line ending and the empty lines after it. A content line has groups and a name,
    /// parameters that follow semicolons, and values that follow a colon.
    /// \return a new property with at least one value. Null if the line failed; the error has been reported.
    PimVCardProperty* ParseProperty();

    /// Parses the groups and the name of a content line. The name itself is not returned.
    /// \param[in,out] a_vCardBoundary
    ///         the caller sets it to false. Afterwards it is true if the name is BEGIN or END in any letter case.
    ///         Blanks may then precede the colon.
    /// \return the groups as written, without the last dot: `item1` for `item1.ADR;`, `a.b` for `a.b.ADR:`. Empty if
    ///         there is none. Also empty if neither a colon nor a semicolon follows the name of a line other than BEGIN
    ///         and END; this error is reported.
    QString ParseGroup( bool& a_vCardBoundary );

    /// Parses all parameters of a content line. The current position must be the first semicolon, or the colon if there
    /// are no parameters.
    /// \param a_vCardBoundary true on a BEGIN or END line. The list then ends at any character other than a semicolon.
    /// \return a new list of new parameters in the order of the line. It may be empty. Null on failure; the error has
    ///         been reported.
    QList<PimVCardParameter*>* ParseParameters( bool a_vCardBoundary );

    /// Parses one parameter and the semicolon before it. One blank or tab may separate the two. A list of values
    /// separated by commas is one value, with its commas. `ENCODING` determines how ParseValues() reads the line.
    /// \param a_vCardBoundary as for ParseParameters().
    /// \return a new parameter, whose name is empty for a bare parameter such as `;HOME`. Null at the end of the list,
    ///         and also on failure, which is reported.
    PimVCardParameter* ParseParameter( bool a_vCardBoundary );

    /// Parses a quoted parameter value, from after its opening quote to its closing quote. A control character inside
    /// the quotes is an error, except for the tab. A backslash is kept if it is the first character. Anywhere else it
    /// is lost, and the closing quote must follow it directly.
    ///
    /// \return the text and the closing quote, without the opening quote. Empty on failure; the error has been
    ///         reported. An empty pair of quotes is an error.
    QString ParseQuotedParamValue();

    /// Parses the value part of a content line, from after the colon to the line ending. The line ending is not read.
    ///
    /// Inside a component, a backslash before a backslash, comma, semicolon or colon is removed (RFC 2426, section 4).
    /// Before any other character, and at the start of a component, a backslash ends the value. In a QUOTED-PRINTABLE
    /// value, soft line breaks are removed. Commas do not split a value. A line feed without a carriage return is part
    /// of the value.
    ///
    /// \return a new list with one text for each component between semicolons. It is never empty: `;;Main Street`
    ///         yields three. Null if a soft line break is not followed by exactly one CR LF. The error has been
    ///         reported, and the encoding stays set.
    QList<QString>* ParseValues();

private:
    // The self-check reads the prepared text.
    friend class PimVCardParserTestBase;
    // The unit tests read the encoding flags and the error mark, which no operation returns.
    friend class PimVCardParserInspector;

    void PrepareInput();
    qint64 Recover( qint64 a_lastRecovery );
    bool TakeBoundary( const PimVCardWord& a_line );
    bool ParseParamValues( QString& a_values );
    QString ParseParamValue();
    bool ParseParamValueList( QString& a_value );
    bool NoteEncoding( const QString& a_name, const QString& a_value );
    bool TakeSoftLineBreak( QString& a_value );
    bool TakeDelimiter( const QRegularExpression& a_delimiter );
    void SkipWhile( bool ( *a_isSkipped )( QChar ) );
    void ReportError( const QString& a_label, const QString& a_message, const QRegularExpression* a_pattern = nullptr,
                      PimVCardProperty* a_property = nullptr, bool a_illegalCharacter = false );

    PimVCardLexer* m_lexer = nullptr;
    QByteArray m_data;
    bool m_quotedPrintable = false;
    bool m_base64 = false;
    qint32 m_errorReported = 0;

    QRegularExpression m_dotRegex;
    QRegularExpression m_semicolonRegex;
    QRegularExpression m_colonRegex;
    QRegularExpression m_equalsRegex;
    QRegularExpression m_commaRegex;
    QRegularExpression m_dQuoteRegex;
    QRegularExpression m_crlfRegex;
    QRegularExpression m_nameRegex;
    QRegularExpression m_spareNameRegex;
    QRegularExpression m_valueCharRegex;
    QRegularExpression m_paramNameRegex;
    QRegularExpression m_paramValueRegex;
    QRegularExpression m_qSafeCharRegex;
    QRegularExpression m_base64CharRegex;
};

} // namespace PimManager::vCard
