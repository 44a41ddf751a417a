/// \file
/// A picture, a sound or a key of a contact.
///
/// \code
/// const PimContactMedia photo = contact.Photos().Preferred();
/// if ( !photo.Bytes().isEmpty() )
///     image.loadFromData( photo.Bytes() );
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactField.h>
#include <PimManager/Contacts/PimContactKinds.h>

#include <QByteArray>
#include <QRect>

namespace PimManager::Contacts
{

/// A PHOTO, LOGO, SOUND or KEY: bytes, an address, or (SOUND and KEY) a text. Implicitly shared. The bytes are decoded
/// at each call of Bytes() and are not kept.
class PIMCONTACT_EXPORT PimContactMedia : public PimContactField
{
    Q_GADGET
    Q_PROPERTY( QByteArray bytes READ Bytes )
    Q_PROPERTY( QString mediaType READ MediaType )
    Q_PROPERTY( QString address READ Address )
    Q_PROPERTY( QString text READ Text )
    Q_PROPERTY( QVariant crop READ CropValue )
    Q_PROPERTY( bool isDamaged READ IsDamaged )

public:
    /// Creates an empty field.
    PimContactMedia();
    /// \param a_bytes     a picture, sound or key. It is shared, not copied.
    /// \param a_mediaType such as `image/jpeg`; if it is empty, it is detected.
    explicit PimContactMedia( const QByteArray& a_bytes, const QString& a_mediaType = QString() );

    /// \return the bytes. Empty if the value is an address or a text. If the value is damaged, only the bytes before
    ///         the fault.
    QByteArray Bytes() const;

    /// \return the media type, such as `image/jpeg`: that detected from the bytes, else that of the `data:` URI, of
    ///         MEDIATYPE or of TYPE. Empty if it is unknown.
    QString MediaType() const;

    /// \return the URI of the picture, sound or key. Empty if the value is not an address.
    QString Address() const;

    /// \return the text of a SOUND or KEY that is neither bytes nor an address, such as a pronunciation or the armoured
    ///         text of a key.
    QString Text() const;

    /// \return the visible part of the picture (X-ABCROP-RECTANGLE), in pixels of the picture. Not set if all of it is
    ///         visible.
    std::optional<QRect> Crop() const;

    /// \return true if the value could not be decoded to its end.
    bool IsDamaged() const;

    /// \return the same picture in other forms (ALTID), this one included.
    PimContactList<PimContactMedia> Alternatives() const;

    /// \return true if all of the above, and label, preference and language are equal. Decodes the bytes.
    bool operator==( const PimContactMedia& a_other ) const { return IsEqual( a_other ); }
    bool operator!=( const PimContactMedia& a_other ) const { return !IsEqual( a_other ); }

private:
    friend class PimContactFieldPrivate; // creates fields
    explicit PimContactMedia( PimContactFieldPrivate* a_private );
    QVariant CropValue() const;
};

} // namespace PimManager::Contacts

Q_DECLARE_TYPEINFO( PimManager::Contacts::PimContactMedia, Q_MOVABLE_TYPE );
Q_DECLARE_METATYPE( PimManager::Contacts::PimContactMedia )
