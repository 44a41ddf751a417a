/// \file
/// The parser: from the bytes of an address book to a list of cards.
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
/// One parser reads one text, from front to back and once. Most programs build it, call ParseVCards() and are done; the
/// other operations parse one construct of the grammar each, from where the text stands, for callers that know what
/// comes next.
///
/// **Results.** What an operation returns is new and belongs to the caller, who deletes it. Texts come as written (see
/// PimVCard.h). A null pointer, an empty text or `false` says that the operation failed.
///
/// **Errors.** A failure is told on Qt's log and nowhere else. Each operation on the way out writes a block of its own,
/// innermost first: critical messages with the operation and the reason, debug messages with the state of the scanner.
/// A failure also marks the parser. Only ParseVCards() removes the mark, after each search for the next card, whether
/// the search found one or not. On a marked parser, ParseProperty(), ParseParameters() and the operations built on them
/// fail, whatever the text. A line that fails after an ENCODING parameter leaves the encoding set for the next property
/// that is parsed. Nothing throws.
///
/// **Threads.** A parser belongs to the thread that uses it; any number of parsers can work side by side.
///
/// **Cost.** The parser keeps the prepared text until it is destroyed. Where lines had to be joined, that is a second
/// copy in UTF-8; any other text is shared with the caller. Time is linear in the length of the text.
class PIMVCARD_EXPORT PimVCardParser
{
public:
    /// Takes the text in and prepares it: folded lines are joined (RFC 2426, section 2.6), with all white space that
    /// begins the continuation line; an encoded line break `=0D=0A` before a soft line break becomes one blank.
    ///
    /// \param a_data UTF-8; may be empty. What follows a NUL byte is not read. Each byte that belongs to no UTF-8
    ///               sequence reads as one U+FFFD. A byte order mark at the start is skipped. The data is implicitly
    ///               shared; you may change or drop it at once. The bytes of an array made with
    ///               QByteArray::fromRawData() must live until the constructor returns.
    /// \pre the text has at most 700,000,000 bytes where addresses have 64 bits, 100,000,000 where they have 32. Qt's
    ///      texts end at 2 GB, and text and cards must fit in the process together. Nothing checks it here.
    explicit PimVCardParser( const QByteArray& a_data );
    virtual ~PimVCardParser();
    Q_DISABLE_COPY( PimVCardParser )

    /// Parses the whole text. Ends on every input, and tells Qt's debug log at the end how many cards came in how many
    /// milliseconds.
    ///
    /// A card that fails is reported and left out, and parsing goes on at the next line that holds BEGIN:VCARD. The
    /// search begins behind the look-ahead, so it does not find a BEGIN line whose first character was already read:
    /// the card directly behind one with a wrong END line is passed over too. It does not find one in the last line
    /// either. White space between cards is skipped, but not before the first card or after a recovery, where it counts
    /// as a card that failed.
    ///
    /// A card ends at its END line, whatever stands before it: a BEGIN line inside a card is an ordinary property, so
    /// a card without END takes the next card's lines in, up to that card's END.
    ///
    /// \return a new list of new cards in the order of the text; empty when there are none, never null. The caller
    ///         deletes the cards and the list.
    QList<PimVCard*>* ParseVCards();

    /// Parses one card, BEGIN line to END line. The text must stand at the BEGIN line; white space before is not
    /// skipped.
    /// \return a new card; null when any of its lines failed, as reported.
    PimVCard* ParseVCard();

    /// Parses one line and tells if it is a BEGIN line: the name is BEGIN and the only value is VCARD, in any letter
    /// case. Blanks and tabs round the colon, a group and parameters are allowed.
    /// \return false, reported, for any other line, for one that does not parse, and at the end of the text.
    bool ParseStart();

    /// Tells if a property is an END line: the name is END and the only value is VCARD, in any letter case.
    /// \param a_property stays the caller's; may be null, which is not an END line.
    /// \return false, reported, if it is not.
    bool ParseEnd( PimVCardProperty* a_property );

    /// Parses content lines up to the first one named END, in any letter case, which is the last element.
    /// \return a new list of new properties, never empty; null when a line failed, as reported, or when the text ended
    ///         without an END line.
    QList<PimVCardProperty*>* ParseProperties();

    /// Parses one content line with its line end and the empty lines after it: groups and a name, parameters behind
    /// semicolons, values behind a colon.
    /// \return a new property, with at least one value; null when the line failed, as reported.
    PimVCardProperty* ParseProperty();

    /// Parses the groups and the name of a content line. The name itself is not returned.
    /// \param[in,out] a_vCardBoundary
    ///         the caller sets it to false. True afterwards when the name is BEGIN or END in any letter case; blanks
    ///         may then precede the colon.
    /// \return the groups as written, without the last dot: `item1` for `item1.ADR;`, `a.b` for `a.b.ADR:`. Empty when
    ///         there is none, and also when the name of a line other than BEGIN and END is not followed by a colon or a
    ///         semicolon, which is reported.
    QString ParseGroup( bool& a_vCardBoundary );

    /// Parses all parameters of a content line. The text must stand at the first semicolon, or at the colon when there
    /// is no parameter.
    /// \param a_vCardBoundary true on a BEGIN or END line: the list then ends at anything that is not a semicolon.
    /// \return a new list of new parameters in the order of the line, possibly empty; null on failure, as reported.
    QList<PimVCardParameter*>* ParseParameters( bool a_vCardBoundary );

    /// Parses one parameter with the semicolon before it; one blank or tab may stand between the two. A list of values
    /// between commas is one value, with its commas. `ENCODING` sets how ParseValues() reads the line.
    /// \param a_vCardBoundary as for ParseParameters().
    /// \return a new parameter, with an empty name for a bare one such as `;HOME`; null at the end of the list, and
    ///         also on failure, as reported.
    PimVCardParameter* ParseParameter( bool a_vCardBoundary );

    /// Parses a quoted parameter value from behind its opening quote to its closing quote. A control character other
    /// than the tab inside the quotes is a failure. A backslash is kept as the first character; elsewhere it is lost,
    /// and the quote must then close right behind it.
    ///
    /// \return the text and the closing quote, without the opening one. Empty on failure, as reported; a pair of quotes
    ///         with nothing between them is a failure.
    QString ParseQuotedParamValue();

    /// Parses the right side of a content line, from behind the colon up to the line end, which it leaves.
    ///
    /// Inside a component a backslash before a backslash, comma, semicolon or colon is taken away and the character
    /// kept (RFC 2426, section 4); before any other character, and at the start of a component, it ends the value. In a
    /// QUOTED-PRINTABLE value soft line breaks are joined. Commas do not split a value, and a line feed without a
    /// carriage return belongs to it.
    ///
    /// \return a new list with one text for each component between semicolons, so never empty: `;;Main Street` gives
    ///         three. Null when a soft line break is not followed by exactly one CR LF, as reported; the encoding stays
    ///         set then.
    QList<QString>* ParseValues();

private:
    // The self-check shows the prepared text.
    friend class PimVCardParserTestBase;
    // The unit tests watch the encoding flags and the error mark, which no operation tells.
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
