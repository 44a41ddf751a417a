/// \file
/// A content line of a card as it was found.
///
/// \code
/// for ( const PimContactLine& line : card ) {
///     if ( line.Name().compare( "NOTE", Qt::CaseInsensitive ) == 0 && line.Encoding() == PimContactEncoding::None )
///         qInfo() << line.Charset() << line.Value();
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QFlags>
#include <QList>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactCard;
class PimContactCardPrivate;

/// How the value of a line is encoded, by its ENCODING parameter or a bare word.
enum class PimContactEncoding
{
    None,
    QuotedPrintable,
    Base64,
};

/// What is unusual about a line. Each has a diagnostic code of the same name.
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

/// How two physical lines of a content line are joined.
enum class PimContactJoin
{
    Fold,      ///< the line ending goes, and one blank or tab with it, unless the card keeps it
    Direct,    ///< the line ending goes, and empty lines and blanks behind it
    LineFeed,  ///< the same, and line feeds take their place: one, and one more for each empty line, at most three
    SoftBreak, ///< the "=", blanks behind it and the line ending go; a blank that follows is text
    SoftBreakAndBlank, ///< the same, and one blank that follows goes too
};

/// A property of a card: where its parts are, and how to read them. It shares the memory of its card and stays valid
/// when the card is gone. All texts are bytes in the character set of the line, as they were written: continuation
/// lines are joined, but no escape, no QUOTED-PRINTABLE or BASE64 text and no character is decoded.
///
/// Each function is linear in the length of the line at most. Const functions may run in several threads at once.
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

    /// \return the bytes as found, with the line endings; with a nested card also those of the card.
    QByteArray Bytes() const;

    /// \return what precedes the last dot before the name, such as `item1`; empty without a group.
    QByteArray Group() const;

    /// \return the name in the letter case in which it was written, without blanks round it; never empty.
    QByteArray Name() const;

    /// \return what is between the semicolons before the colon, one element for each parameter, such as
    /// `TYPE=home,work`
    ///         or `HOME`. Blanks round it are removed; quotes are kept.
    QList<QByteArray> Parameters() const;

    /// \return the value, continuation lines joined. Empty for a line that holds a nested card on the next lines.
    QByteArray Value() const;

    /// How the value is encoded.
    PimContactEncoding Encoding() const;

    /// \return the character set in which the bytes of the line are to be read: `UTF-8`, `ISO-2022-JP`, or a name that
    ///         the card or the caller gave. Never empty. The character set of QUOTED-PRINTABLE text is that of the
    ///         CHARSET parameter and is not returned here.
    QByteArray Charset() const;

    /// What is unusual about the line.
    PimContactOddities Oddities() const;

    /// \return how the physical lines are joined, in their order; empty for a line that is not continued.
    QList<PimContactJoin> Joins() const;

    /// The place of the first byte in Bytes() of the card that the line belongs to.
    qint64 OffsetInCard() const;

    /// \return the card that the line holds, as AGENT does; null if it holds none.
    PimContactCard NestedCard() const;

    /// \return true if bytes and index are equal. The place in the card is not compared.
    bool operator==( const PimContactLine& a_other ) const;
    bool operator!=( const PimContactLine& a_other ) const;

private:
    friend class PimContactCard;        // steps over the lines
    friend class PimContactCardPrivate; // reads the index

    QExplicitlySharedDataPointer<PimContactCardPrivate> d;
    // The record of the card, and the places of the line in the index and in the bytes.
    quint32 m_record = 0;
    quint32 m_entry = 0;
    quint32 m_begin = 0;
};

} // namespace PimManager::Contacts
