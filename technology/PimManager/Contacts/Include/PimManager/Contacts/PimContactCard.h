/// \file
/// A card as it was found: its bytes, and an index of its lines.
///
/// \code
/// for ( const PimContactLine& line : card )
///     qInfo() << line.Group() << line.Name() << line.Parameters() << line.Value();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactLine.h>

#include <QByteArray>
#include <QExplicitlySharedDataPointer>
#include <QLatin1String>
#include <QList>
#include <QtGlobal>

#include <iterator>

namespace PimManager::Contacts
{

class PimContactCardPrivate;

/// The version that a card names in its VERSION line.
enum class PimContactVersion
{
    Unknown, ///< none, or another one
    V21,
    V30,
    V40,
};

/// The number of versions. Their values run from 0 to this number - 1.
constexpr int s_kPimContactVersions = static_cast<int>( PimContactVersion::V40 ) + 1;

/// How the folds of a card are undone.
enum class PimContactFoldStyle
{
    /// The line ending and one blank or tab are removed (RFC 2426, section 2.6; RFC 6350, section 3.2).
    BlankRemoved,
    /// The line ending is removed and the blank is kept (vCard 2.1, section 2.1.3).
    BlankKept,
};

/// A card of a file. It has a copy of its bytes, from BEGIN to the end of the END line, and an index of its lines. The
/// reader made the index and stored every decision in it that depends on other lines. Nothing is decoded.
///
/// A card is implicitly shared and immutable. Copying costs no memory, and const functions may run in several threads
/// at once. A card does not refer to the file or to the reader. A nested card shares the memory of its outer card.
///
/// A card uses its own bytes, about five bytes for each line, and about 120 bytes more.
class PIMCONTACT_EXPORT PimContactCard
{
public:
    class const_iterator;

    /// Creates a null card: no bytes and no lines.
    PimContactCard();
    PimContactCard( const PimContactCard& a_other );
    PimContactCard( PimContactCard&& a_other ) noexcept;
    PimContactCard& operator=( const PimContactCard& a_other );
    PimContactCard& operator=( PimContactCard&& a_other ) noexcept;
    ~PimContactCard();

    /// True for a null card.
    bool IsNull() const;

    /// \return the bytes as found, with dropped and blank lines, but without filtered lines. A byte order mark before a
    ///         nested card is included. If the file was in UTF-16, the bytes are those converted to UTF-8. Copies the
    ///         bytes.
    QByteArray Bytes() const;

    /// The number of properties of the card, without those of nested cards.
    int LineCount() const;

    /// The properties in their order. A step takes constant time, except at a line with oddities. There it is linear in
    /// the number of continuation lines.
    const_iterator begin() const;
    const_iterator end() const;

    /// The version that the card names.
    PimContactVersion Version() const;
    /// How the folds of the card are undone.
    PimContactFoldStyle FoldStyle() const;

    /// The number of the card in its file, from 1. A nested card has the number of its outermost card.
    qint64 Number() const;

    /// The offset of the first byte in the file, from 0. If the file was converted from UTF-16, the offset in the
    /// converted text.
    qint64 Offset() const;

    /// The line number of the first byte in the file, from 1.
    qint64 FirstLine() const;

    /// True if the card has BEGIN and END, and no line of it or of its nested cards was dropped.
    bool IsWhole() const;
    /// True if the card has a BEGIN line.
    bool HasBegin() const;
    /// True if the card has an END line.
    bool HasEnd() const;

    /// True if lines were left out by the filter.
    bool IsFiltered() const;

    /// True if the card is inside another one.
    bool IsNested() const;

    /// True if the file was converted from UTF-16.
    bool IsConverted() const;

    /// The default character set that applied when the card was read.
    QByteArray DefaultCharset() const;

    /// \return true if any text of the card or of a nested card is read in DefaultCharset(). That is text that is not
    ///         UTF-8 and to which no known character set named in the card applies. BASE64 values do not count. False
    ///         if the default is UTF-8 or unknown, and for a null card.
    ///
    /// Such text is correct only if the default is right, so inform the user. At most linear in the length of the card,
    /// and much faster if no line is QUOTED-PRINTABLE.
    /// \note Example: a card with `N:J\xF6rg` and no CHARSET uses the default. With `N;CHARSET=KOI8-R:J\xF6rg` it does
    ///       not, and neither does a card in UTF-8.
    bool UsesDefaultCharset() const;

    /// Compares the lines with their folds undone, in their order. It is much faster than the comparison of contacts.
    /// \param a_except the names of properties that do not count, in ASCII and in any letter case.
    /// \return true if the lines have the same groups and names in any letter case, and the same parameters, encodings,
    ///         character sets, values and nested cards, and if both cards have the same version.
    ///         PimContact::operator==() is then true as well, unless the lines that do not count differ. It may also be
    ///         true if this is false. Two null cards are equal. Linear in the length of both.
    bool HasSameLines( const PimContactCard& a_other,
                       const QList<QLatin1String>& a_except = QList<QLatin1String>() ) const;

    /// A number to find cards with the same lines among many. Linear in the length of the card.
    /// \param a_seed   any number. A random one protects from cards that were made to have equal numbers.
    /// \param a_except as for HasSameLines().
    /// \return a number that depends on the names and values of the lines, and not on groups, parameters, empty lines
    ///         and the order of lines. It is the same if HasSameLines() is true, and rarely if not. 0 if no lines
    ///         count.
    quint64 ContentHash( quint64 a_seed, const QList<QLatin1String>& a_except = QList<QLatin1String>() ) const;

    /// \return true if bytes, index and record are equal. The position in the file is not compared.
    bool operator==( const PimContactCard& a_other ) const;
    bool operator!=( const PimContactCard& a_other ) const;

private:
    friend class PimContactCardPrivate; // creates cards
    explicit PimContactCard( PimContactCardPrivate* a_private, quint32 a_record );

    QExplicitlySharedDataPointer<PimContactCardPrivate> d;
    // The record in the shared memory: that of the outermost card or of a nested one.
    quint32 m_record = 0;
};

/// Iterates over the lines of a card. It keeps the memory of the card alive.
class PIMCONTACT_EXPORT PimContactCard::const_iterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = PimContactLine;
    using difference_type = qptrdiff;
    using pointer = const PimContactLine*;
    using reference = const PimContactLine&;

    reference operator*() const { return m_line; }
    pointer operator->() const { return &m_line; }
    const_iterator& operator++();
    const_iterator operator++( int );
    bool operator==( const const_iterator& a_other ) const;
    bool operator!=( const const_iterator& a_other ) const;

private:
    friend class PimContactCard;        // creates iterators
    friend class PimContactCardPrivate; // steps over the lines

    PimContactLine m_line;
    // The positions of the next line in the index and in the bytes, and the end of the index.
    quint32 m_nextEntry = 0;
    quint32 m_nextBegin = 0;
    quint32 m_indexEnd = 0;
};

} // namespace PimManager::Contacts
