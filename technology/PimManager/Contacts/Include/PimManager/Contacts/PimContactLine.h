/// \file
/// A content line of a card as it was found.
///
/// \code
/// for ( const PimContactLine& line : card ) {
///     if ( line.IsNamed( QLatin1String( "TEL" ) ) )
///         qInfo() << line.Types() << line.Text();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactBinary.h>
#include <PimManager/Contacts/PimContactDecoding.h>
#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QFlags>
#include <QLatin1String>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactCard;
class PimContactCardPrivate;

/// The encoding of a value, as declared by the ENCODING parameter or a bare word.
enum class PimContactEncoding
{
    None,
    QuotedPrintable,
    Base64,
};

/// The ways in which a line is unusual. Each has a diagnostic code of the same name.
enum class PimContactOddity
{
    LineJoined = 0x001,
    MissingColon = 0x002,
    SoftLineBreak = 0x004,
    Base64Lines = 0x008,
    ControlCharacters = 0x010,
    NameBlanks = 0x020,
    OddName = 0x040,
    OpenQuote = 0x080,
    OddParameter = 0x100,
    EmptyParameter = 0x200,
    UnknownEscape = 0x400,
};
Q_DECLARE_FLAGS( PimContactOddities, PimContactOddity )
Q_DECLARE_OPERATORS_FOR_FLAGS( PimContactOddities )

/// The ways in which two physical lines of a content line are joined.
enum class PimContactJoin
{
    Fold,              ///< the line ending is removed, and one blank or tab after it unless the card keeps it
    Direct,            ///< the line ending is removed, and empty lines and blanks after it
    LineFeed,          ///< as Direct, but replaced by line feeds: one, and one for each empty line, at most three
    SoftBreak,         ///< the "=", blanks after it and the line ending are removed; a blank that follows is text
    SoftBreakAndBlank, ///< as SoftBreak, but one blank that follows is removed too
};

/// The kind of a value, by the name of its property and the version of its card.
enum class PimContactValueKind
{
    Text,       ///< one text
    List,       ///< texts between commas: NICKNAME and CATEGORIES
    Components, ///< texts between semicolons: N, ADR, ORG, in 3.0 GEO, and in 4.0 GENDER and CLIENTPIDMAP
    Binary,     ///< bytes, see PimContactLine::Binary()
};

/// A property of a card, with functions that return its parts. It shares the memory of its card and remains valid after
/// the card is destroyed.
///
/// Functions that return bytes return them as they were written, in the character set of the line. Continuation lines
/// are joined, but escapes, QUOTED-PRINTABLE, BASE64 and the character set are not decoded. Functions that return a
/// QString or a list of them decode the text, in this order:
///
/// 1. Continuation lines are joined.
/// 2. QUOTED-PRINTABLE is decoded, and so is BASE64 if the value is text; an encoded CR LF becomes a line feed.
/// 3. The character set is decoded. For QUOTED-PRINTABLE text, it is that of the CHARSET parameter, or else UTF-8 if
///    the text is valid UTF-8, or else the caller's default. For BASE64 text, it is that of the CHARSET parameter, or
///    else UTF-8.
/// 4. The value is split at its semicolons or commas.
/// 5. Escapes are removed: `\n` and `\N` become a line feed, and a backslash before a backslash, comma, semicolon,
///    colon, quote or apostrophe is removed. Any other backslash is kept.
///
/// A byte that was written as QUOTED-PRINTABLE or that is a part of another character neither splits a value nor begins
/// an escape. BASE64 encodes a value as a whole, so the delimiters and escapes are those of the decoded text. The rules
/// are the same for all versions. A card without a version is read as 3.0.
///
/// **BASE64 text.** Some phones write names and numbers as BASE64. A value declared as BASE64 is text, not bytes, if
/// all of these are true:
///
/// - The property is defined by a standard, and is not PHOTO, LOGO, SOUND, KEY, AGENT or VERSION.
/// - The BASE64 can be decoded without a fault, and its bytes without a malformed character. Their character set is
///   that of the CHARSET parameter, or else UTF-8. The caller's default is not used, because almost any bytes are valid
///   text in many character sets.
/// - The text has no control characters except tabs and line breaks.
///
/// Any other value declared as BASE64 is Binary, and its text is the BASE64.
///
/// Each function is at most linear in the length of the line. Const functions may run in several threads at once.
class PIMCONTACT_EXPORT PimContactLine
{
public:
    /// Creates a null line: all texts are empty.
    PimContactLine();
    PimContactLine( const PimContactLine& a_other );
    PimContactLine( PimContactLine&& a_other ) noexcept;
    PimContactLine& operator=( const PimContactLine& a_other );
    PimContactLine& operator=( PimContactLine&& a_other ) noexcept;
    ~PimContactLine();

    /// True for a null line.
    bool IsNull() const;

    /// \return the bytes as found, with the line endings. If the line contains a nested card, also the bytes of that
    ///         card.
    QByteArray Bytes() const;

    /// \return the group: the text before the last dot before the name, such as `item1`. Empty if there is none.
    QByteArray Group() const;

    /// \return the name in its original letter case, without blanks around it. Never empty.
    QByteArray Name() const;

    /// \return the parameters: the texts between the semicolons before the colon, such as `TYPE=home,work` and `HOME`.
    ///         Blanks around them are removed and quotes are kept. Empty ones are left out.
    QList<QByteArray> Parameters() const;

    /// \return the value, with continuation lines joined. Empty for a line that has a nested card on the next lines.
    QByteArray Value() const;

    /// How the value is encoded.
    PimContactEncoding Encoding() const;

    /// \return the character set of the bytes of the line: `UTF-8`, `ISO-2022-JP`, or a name from the card or the
    ///         caller. Never empty. The character set of QUOTED-PRINTABLE text is that of the CHARSET parameter and is
    ///         not returned here.
    QByteArray Charset() const;

    /// \return true if the property has this name, in any letter case. Nothing is copied.
    /// \param a_name in ASCII, such as `TEL`.
    bool IsNamed( QLatin1String a_name ) const;

    /// \return the names of the parameters in upper case, each once. A value without a name is listed under one of the
    ///         names that Parameter() describes.
    QStringList ParameterNames() const;

    /// \return the values of a parameter. The values of a list and of repeated parameters follow each other. Empty if
    ///         the line does not have the parameter. Quotes are removed.
    ///
    /// - A bare word such as `HOME` is a TYPE. However, encodings such as `QUOTED-PRINTABLE` are an ENCODING, `INLINE`,
    ///   `URL`, `CID` and `CONTENT-ID` are a VALUE, and a known character set such as `SHIFT_JIS` is a CHARSET.
    /// - An unknown parameter with an empty value, such as `CELL=`, is a TYPE too.
    /// - In a list, the name may be repeated: `TYPE=HOME,TYPE=VOICE` has the values HOME and VOICE.
    /// - A comma in quotes does not delimit, except in TYPE: `TYPE="home,voice"` has two values.
    /// - In versions 3.0 and 4.0, `^n`, `^'` and `^^` become a line feed, a quote and a caret (RFC 6868). In version
    ///   2.1, a caret is text.
    /// - In the parameter LABEL, the escapes of values are removed as well (RFC 6350, section 6.3.1).
    ///
    /// \param a_name in ASCII and in any letter case, such as `TYPE`.
    QStringList Parameter( QLatin1String a_name ) const;

    /// \return the values of all parameters in their order, each with its name. Names and values are those of
    ///         ParameterNames() and Parameter(), but a name is repeated for each of its values. To read all parameters,
    ///         use this function: it reads the line once.
    QList<QPair<QString, QString>> NamedParameters() const;

    /// \return the values of TYPE in their original letter case.
    QStringList Types() const;

    /// The kind of the value.
    PimContactValueKind Kind() const;

    /// \return the parts of the value according to Kind(): the elements of a List, the components of Components, and
    ///         otherwise one text. Never empty.
    QStringList Values() const;

    /// \return the whole value as one text, including its semicolons and commas. If BASE64 is not text, its text is the
    ///         BASE64.
    QString Text() const;

    /// \return the value split at its commas. An empty value has one empty element. Example: `a\,b,c` has two elements.
    QStringList List() const;

    /// \return the value split at its semicolons; commas are text. An empty value has one empty component.
    QStringList Components() const;

    /// \return the components, each split at its commas if the standard defines it as a list. That is the case for N
    ///         and ADR of 3.0 and 4.0 (RFC 2426, sections 3.1.2 and 3.2.1; RFC 6350, sections 6.2.2 and 6.3.1). Any
    ///         other component has one element.
    QList<QStringList> ComponentLists() const;

    /// \return the bytes of a value that is BASE64 or a `data:` URI. Null if the value is neither, and for BASE64 text.
    ///         In PHOTO, LOGO, SOUND and KEY, a value that is not declared as BASE64 is still BASE64 if it begins like
    ///         a picture, sound or key.
    PimContactBinary Binary() const;

    /// \return the problems in the value. Decodes the value.
    PimContactDecoding Decoding() const;

    /// \return the bytes of the value if some of them are read in the caller's default character set. Otherwise empty.
    ///         QUOTED-PRINTABLE is decoded; escapes are kept.
    ///
    /// This function is for programs that guess the default. The default is used for text that is not UTF-8 if the line
    /// names no known character set and, unless the text is QUOTED-PRINTABLE, no other line of the card does. A BASE64
    /// value has no such text. If the default is UTF-8 or unknown, no value has such text.
    /// \note Example: in a card that names no character set, the function returns `caf\xE9\, bar` for
    ///       `NOTE:caf\xE9\, bar`, and nothing for `NOTE:bar`.
    QByteArray UndeclaredText() const;

    /// The ways in which the line is unusual.
    PimContactOddities Oddities() const;

    /// \return the joins between the physical lines, in their order. Empty for a line that is not continued.
    QList<PimContactJoin> Joins() const;

    /// The offset of the first byte in Bytes() of the card that the line belongs to.
    qint64 OffsetInCard() const;

    /// \return the nested card in this line, as in AGENT. Null if there is none.
    PimContactCard NestedCard() const;

    /// \return true if bytes and index are equal. The position in the card is not compared.
    bool operator==( const PimContactLine& a_other ) const;
    bool operator!=( const PimContactLine& a_other ) const;

private:
    friend class PimContactCard;        // steps over the lines
    friend class PimContactCardPrivate; // reads the index

    QExplicitlySharedDataPointer<PimContactCardPrivate> d;
    // The record of the card, and the positions of the line in the index and in the bytes.
    quint32 m_record = 0;
    quint32 m_entry = 0;
    quint32 m_begin = 0;
    // The position of the name in the bytes of the line. The length is 0 if it must be looked up in the index.
    quint16 m_nameBegin = 0;
    quint16 m_nameLength = 0;
};

} // namespace PimManager::Contacts
