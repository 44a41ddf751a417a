#include <PimManager/Contacts/PimContactMedia.h>

#include "Contact/CropRectangle.h"
#include "Contact/FieldData.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/KindWords.h"
#include "Contact/NamedMediaType.h"
#include "Lines/PropertyTable.h"
#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/MediaType.h"
#include "Text/Uri.h"
#include "Values/BinaryValue.h"

namespace PimManager::Contacts
{

namespace
{

using LineView = PimContactCardPrivate::LineView;

class MediaData : public FieldData<MediaData>
{
public:
    bool IsSame( const MediaData& a_other ) const
    {
        return m_isBinary == a_other.m_isBinary && m_text == a_other.m_text && m_isAddress == a_other.m_isAddress &&
               m_crop == a_other.m_crop && MediaType() == a_other.MediaType() && Bytes() == a_other.Bytes();
    }
    bool IsEmpty() const override { return !m_isBinary && m_text.isEmpty(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return {}; }
    void Write( FieldWriter& a_writer ) const override;
    bool HasTypes() const override { return false; }

    PimContactBinary Binary() const { return m_isOwn ? PimContactBinary() : m_line.Binary(); }
    QByteArray Bytes() const;
    QString MediaType() const;

    // The value is bytes: those of the line, or those that a program has set.
    bool m_isBinary = false;
    bool m_isOwn = false;
    QByteArray m_bytes;
    // An address or a text.
    QString m_text;
    bool m_isAddress = false;
    // The media type from the line or the program.
    QString m_mediaType;
    std::optional<QRect> m_crop;
};

const MediaData& DataOf( const PimContactMedia& a_media )
{
    return PimContactFieldPrivate::DataOf<MediaData>( a_media );
}

QByteArray MediaData::Bytes() const
{
    if ( !m_isBinary )
        return QByteArray();
    return m_isOwn ? m_bytes : m_line.Binary().Bytes();
}

QString MediaData::MediaType() const
{
    if ( !m_isBinary )
        return m_mediaType;
    QByteArray type = m_isOwn ? BytesOf( MediaTypeBySignature( ViewOf( m_bytes ).substr( 0, s_kSignatureBytes ) ) )
                              : DetectedTypeOf( LineView::LineOf( m_line ) );
    // The media type of a `data:` URI.
    if ( type.isEmpty() && !m_isOwn )
        type = MediaTypeNamed( ViewOf( NamedTypeOf( LineView::LineOf( m_line ) ) ) );
    return type.isEmpty() ? m_mediaType : QString::fromLatin1( type );
}

void MediaData::Write( FieldWriter& a_writer ) const
{
    if ( m_crop )
        a_writer.AddParameter( "X-ABCROP-RECTANGLE", m_line.Parameter( QLatin1String( "X-ABCROP-RECTANGLE" ) ) );
    if ( m_isBinary )
    {
        a_writer.SetBytes( Bytes(), MediaType() );
        return;
    }
    a_writer.AddMediaType( m_mediaType );
    if ( m_isAddress )
    {
        const QByteArray text = m_text.toUtf8();
        const bool isOld = a_writer.IsVersion( PimContactVersion::V21 );
        if ( !a_writer.IsVersion( PimContactVersion::V40 ) || !IsUri( ViewOf( text ) ) )
            a_writer.AddParameter( "VALUE", isOld ? QStringLiteral( "URL" ) : QStringLiteral( "uri" ) );
        a_writer.SetPlain( m_text );
        return;
    }
    if ( a_writer.IsVersion( PimContactVersion::V40 ) )
        a_writer.AddParameter( "VALUE", QStringLiteral( "text" ) );
    a_writer.SetText( m_text );
}

// X-OTHER is a media type.
quint32 PlainKindsOf( std::string_view a_word )
{
    return IsExtensionName( a_word ) ? 0 : static_cast<quint32>( KindsOf( a_word ) );
}

} // namespace

PimContactFieldPrivate* ReadMedia( FieldReader& a_reader )
{
    const bool isBinary = IsBinary( a_reader.Line() );
    const std::string_view text = isBinary ? std::string_view() : a_reader.Text();
    if ( isBinary ? a_reader.Line().IsBlankValue() : text.empty() )
        return nullptr;
    auto* const data = new MediaData;
    data->m_isBinary = isBinary;
    data->m_text = StringOf( text );
    // HOME and WORK do not name a media type, and other words are not labels.
    a_reader.ReadParameters( PlainKindsOf );
    a_reader.SetNoTypeLabel();
    const std::string_view value = a_reader.Parameters().First( FieldParameter::Value );
    data->m_isAddress = !isBinary && ( IsUri( text ) || IsSameWord( value, "uri" ) || IsSameWord( value, "url" ) );
    data->m_mediaType = NamedMediaType( a_reader.Property(), a_reader.Parameters() );
    data->m_crop = CropIn( a_reader.Parameters().First( FieldParameter::Crop ) );
    return data;
}

PimContactMedia::PimContactMedia() :
    PimContactMedia( MediaData::Null() )
{
}

PimContactMedia::PimContactMedia( const QByteArray& a_bytes, const QString& a_mediaType ) :
    PimContactMedia()
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<MediaData>( *this );
    data.m_isBinary = !a_bytes.isEmpty();
    data.m_isOwn = true;
    data.m_bytes = a_bytes;
    data.m_mediaType = a_mediaType.toLower();
}

PimContactMedia::PimContactMedia( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QByteArray PimContactMedia::Bytes() const
{
    return DataOf( *this ).Bytes();
}

QString PimContactMedia::MediaType() const
{
    return DataOf( *this ).MediaType();
}

QString PimContactMedia::Address() const
{
    const MediaData& data = DataOf( *this );
    return data.m_isAddress ? data.m_text : QString();
}

QString PimContactMedia::Text() const
{
    const MediaData& data = DataOf( *this );
    return data.m_isAddress ? QString() : data.m_text;
}

std::optional<QRect> PimContactMedia::Crop() const
{
    return DataOf( *this ).m_crop;
}

bool PimContactMedia::IsDamaged() const
{
    return DataOf( *this ).Binary().IsDamaged();
}

PimContactList<PimContactMedia> PimContactMedia::Alternatives() const
{
    return AlternativesOf( *this );
}

QVariant PimContactMedia::CropValue() const
{
    const std::optional<QRect> crop = Crop();
    return crop ? QVariant( *crop ) : QVariant();
}

} // namespace PimManager::Contacts
