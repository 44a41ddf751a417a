/// \file
/// A value that holds bytes: a picture, a sound or a key.
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

    /// True if the value holds text, such as the address of a picture, and not bytes.
    bool IsNull() const;

    /// \return the bytes; empty for a null value. If the value is damaged, those before the fault.
    QByteArray Bytes() const;

    /// \return the media type of a `data:` URI as written, such as `image/jpeg`; empty if the value names none.
    QByteArray MediaType() const;

    /// \return the media type by the first bytes, such as `image/png`; empty if they are not known. The types are JPEG,
    ///         PNG, GIF, WebP, HEIC, HEIF, AVIF, TIFF, BMP and icons, WAV, MP3, Ogg, AMR, MIDI, FLAC and AU.
    QByteArray DetectedType() const;

    /// \return true if the value could not be decoded to its end.
    bool IsDamaged() const;

    /// \return the place of the first character that could not be decoded, counted in the BASE64 or percent-encoded
    ///         text, its length if the text is too short, and -1 if the value is not damaged.
    qint64 FaultPlace() const;

private:
    friend class PimContactBinaryPrivate; // creates values
    QSharedDataPointer<PimContactBinaryPrivate> d;
};

} // namespace PimManager::Contacts
