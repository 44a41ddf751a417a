/// \file
/// The extents of a file: what became of each byte.
///
/// \code
/// reader.SetExtentHandler( []( const PimContactExtent& a_extent ) {
///     qInfo() << a_extent.Offset() << a_extent.Length() << NameOf( a_extent.Kind() ) << a_extent.Card();
/// } );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QLatin1String>
#include <QSharedDataPointer>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactExtentPrivate;

/// What became of a byte.
enum class PimContactExtentKind
{
    Line,     ///< of a property of a delivered card, line endings and continuation lines included
    Boundary, ///< of a BEGIN or END line of a delivered card
    Blank,    ///< of empty lines and lines of white space, inside cards and outside
    Dropped,  ///< left out of a delivered card
    Refused,  ///< of a card or a file that was left out
    Filtered, ///< of a property that the filter left out
    Mark,     ///< of a byte order mark
    Outside,  ///< outside cards
};

/// The number of kinds. Their values run from 0 to this number less 1.
constexpr int s_kPimContactExtentKinds = static_cast<int>( PimContactExtentKind::Outside ) + 1;

/// A run of bytes with one fate. The extents of a file follow each other without a gap, from byte 0 to the end of the
/// file, or to the place where the reading stopped. They are the same however the file was cut into pieces. Implicitly
/// shared and immutable.
class PIMCONTACT_EXPORT PimContactExtent
{
public:
    /// Creates an empty extent at offset 0.
    PimContactExtent();
    PimContactExtent( const PimContactExtent& a_other );
    PimContactExtent& operator=( const PimContactExtent& a_other );
    ~PimContactExtent();

    /// The first byte in the file, from 0. In a file that was converted, bytes of the converted text.
    qint64 Offset() const;

    /// The number of bytes; at least 1.
    qint64 Length() const;

    /// What became of the bytes.
    PimContactExtentKind Kind() const;

    /// The number of the outermost card, from 1; 0 outside cards.
    qint64 Card() const;

    /// The bytes as found; of a file that was converted the converted ones. What is longer than the limit of a card
    /// comes in several extents of at most that limit or 64 KiB, whichever is larger.
    QByteArray Bytes() const;

    bool operator==( const PimContactExtent& a_other ) const;
    bool operator!=( const PimContactExtent& a_other ) const;

private:
    friend class PimContactExtentPrivate; // creates extents
    QSharedDataPointer<PimContactExtentPrivate> d;
};

/// \return a word in ASCII, such as `boundary`. It never changes, so programs can rely on it.
PIMCONTACT_EXPORT QLatin1String NameOf( PimContactExtentKind a_kind );

} // namespace PimManager::Contacts
