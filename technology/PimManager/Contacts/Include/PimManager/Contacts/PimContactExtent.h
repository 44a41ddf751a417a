/// \file
/// The extents of a file: what happened to each byte.
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

/// What happened to a byte.
enum class PimContactExtentKind
{
    Line,     ///< of a property of a delivered card, including line endings and continuation lines
    Boundary, ///< of a BEGIN or END line of a delivered card
    Blank,    ///< of empty lines and lines of white space, inside and outside cards
    Dropped,  ///< left out of a delivered card
    Refused,  ///< of a card or a file that was left out
    Filtered, ///< of a property that the filter left out
    Mark,     ///< of a byte order mark
    Outside,  ///< outside cards
};

/// The number of kinds. Their values run from 0 to this number - 1.
constexpr int s_kPimContactExtentKinds = static_cast<int>( PimContactExtentKind::Outside ) + 1;

/// A run of bytes of one kind. The extents of a file follow each other without a gap, from byte 0 to the end of the
/// file or to the position where reading stopped. They do not depend on how the file was cut into pieces. Implicitly
/// shared and immutable.
class PIMCONTACT_EXPORT PimContactExtent
{
public:
    /// Creates an empty extent at offset 0.
    PimContactExtent();
    PimContactExtent( const PimContactExtent& a_other );
    PimContactExtent& operator=( const PimContactExtent& a_other );
    ~PimContactExtent();

    /// The offset of the first byte in the file, from 0. If the file was converted, the offset in the converted text.
    qint64 Offset() const;

    /// The number of bytes; at least 1.
    qint64 Length() const;

    /// What happened to the bytes.
    PimContactExtentKind Kind() const;

    /// The number of the outermost card, from 1; 0 outside cards.
    qint64 Card() const;

    /// The bytes as found. If the file was converted, the converted bytes. A run longer than the limit of a card is
    /// delivered as several extents, each of at most that limit or 64 KiB, whichever is larger.
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
