/// \file
/// A binary value: a picture, a sound or a key.
///
/// \code
/// const PimContactBinary photo = line.Binary();
/// if ( photo.IsDamaged() )
///     qWarning() << "not decodable from" << photo.FaultPlace();
/// else if ( !photo.IsNull() )
///     Show( photo.Bytes() );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QSharedDataPointer>
#include <QtGlobal>

namespace PimManager::Contacts
{

class PimContactBinaryPrivate;

/// The bytes of a value. Implicitly shared and immutable.
class PIMCONTACT_EXPORT PimContactBinary
{
public:
    /// Creates a null value.
    PimContactBinary();
    PimContactBinary( const PimContactBinary& a_other );
    PimContactBinary& operator=( const PimContactBinary& a_other );
    ~PimContactBinary();

    /// True if the value is text, such as the address of a picture, and not bytes.
    bool IsNull() const;

    /// \return the bytes. Empty for a null value. If the value is damaged, only the bytes before the fault.
    QByteArray Bytes() const;

    /// \return the media type of a `data:` URI as written, such as `image/jpeg`. Empty if the value names none.
    QByteArray MediaType() const;

    /// \return the media type according to the first bytes, such as `image/png`. Empty if it is unknown. The known
    ///         types are JPEG, PNG, GIF, WebP, HEIC, HEIF, AVIF, TIFF, BMP and icons, WAV, MP3, Ogg, AMR, MIDI, FLAC
    ///         and AU.
    QByteArray DetectedType() const;

    /// \return true if the value could not be decoded to its end.
    bool IsDamaged() const;

    /// \return the position of the first character that could not be decoded in the BASE64 or percent-encoded text. The
    ///         length of that text if it is too short. -1 if the value is not damaged.
    qint64 FaultPlace() const;

private:
    friend class PimContactBinaryPrivate; // creates values
    QSharedDataPointer<PimContactBinaryPrivate> d;
};

} // namespace PimManager::Contacts
