#include <PimManager/Contacts/PimContactPhone.h>

#include "Contact/FieldData.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/KindWords.h"
#include "Contact/NumberAndMail.h"
#include "Text/Bytes.h"

#include <QUrl>

namespace PimManager::Contacts
{

namespace
{

class PhoneData : public FieldData<PhoneData>
{
public:
    bool IsSame( const PhoneData& a_other ) const
    {
        return m_number == a_other.m_number && m_extension == a_other.m_extension && m_context == a_other.m_context &&
               m_kinds == a_other.m_kinds;
    }
    bool IsEmpty() const override { return m_number.isEmpty() && m_extension.isEmpty(); }
    QStringList KindTypes( PimContactVersion a_version ) const override
    {
        return TextsOf( PhoneWordsOf( m_kinds, a_version ) );
    }
    bool IsKind( std::string_view a_word ) const override { return PhoneKindsOf( a_word ) != PimContactPhoneKinds(); }
    std::string_view Name( PimContactVersion /*a_version*/ ) const override { return "TEL"; }
    void Write( FieldWriter& a_writer ) const override;

    QString m_number;
    QString m_extension;
    QString m_context;
    PimContactPhoneKinds m_kinds;
};

const PhoneData& DataOf( const PimContactPhone& a_phone )
{
    return PimContactFieldPrivate::DataOf<PhoneData>( a_phone );
}

PhoneData& ChangedDataOf( PimContactPhone& a_phone )
{
    return PimContactFieldPrivate::ChangedDataOf<PhoneData>( a_phone );
}

quint32 KindsOfWord( std::string_view a_word )
{
    return static_cast<quint32>( PhoneKindsOf( a_word ) );
}

QString PercentEncoded( const QString& a_text )
{
    return QString::fromLatin1( QUrl::toPercentEncoding( a_text, QByteArrayLiteral( "+*#()" ) ) );
}

/// \return true if a text is read as this number and extension.
bool IsReadAs( const QString& a_text, const QString& a_number, const QString& a_extension )
{
    const QByteArray text = a_text.toUtf8();
    QByteArray buffer;
    const NumberParts parts = NumberPartsOf( ViewOf( text ), buffer );
    return StringOf( parts.m_number ) == a_number && StringOf( parts.m_extension ) == a_extension;
}

// In 4.0, an extension needs a URI. In a text it is written in the form of phones, if it can be read back from that.
void PhoneData::Write( FieldWriter& a_writer ) const
{
    const bool isNew = a_writer.IsVersion( PimContactVersion::V40 );
    const QString text = m_extension.isEmpty() ? m_number : m_number + QStringLiteral( ";ext=" ) + m_extension;
    const bool isText =
        m_context.isEmpty() && ( m_extension.isEmpty() || ( !isNew && IsReadAs( text, m_number, m_extension ) ) );
    if ( isText )
    {
        a_writer.SetText( text );
        return;
    }
    if ( isNew )
        a_writer.AddParameter( "VALUE", QStringLiteral( "uri" ) );
    QString uri = QStringLiteral( "tel:" ) + PercentEncoded( m_number );
    if ( !m_extension.isEmpty() )
        uri += QStringLiteral( ";ext=" ) + PercentEncoded( m_extension );
    if ( !m_context.isEmpty() )
        uri += QStringLiteral( ";phone-context=" ) + PercentEncoded( m_context );
    a_writer.SetPlain( uri );
}

} // namespace

PimContactFieldPrivate* ReadPhone( FieldReader& a_reader )
{
    QByteArray buffer;
    const NumberParts parts = NumberPartsOf( a_reader.Text(), buffer );
    if ( parts.m_number.empty() && parts.m_extension.empty() )
        return nullptr;
    auto* const data = new PhoneData;
    data->m_number = StringOf( parts.m_number );
    data->m_extension = StringOf( parts.m_extension );
    data->m_context = StringOf( parts.m_context );
    a_reader.ReadParameters( KindsOfWord );
    data->m_kinds = a_reader.KindsAs<PimContactPhoneKinds>();
    return data;
}

PimContactPhone::PimContactPhone() :
    PimContactPhone( PhoneData::Null() )
{
}

PimContactPhone::PimContactPhone( const QString& a_number, PimContactPhoneKinds a_kinds ) :
    PimContactPhone()
{
    PhoneData& data = ChangedDataOf( *this );
    data.m_number = a_number;
    data.m_kinds = a_kinds;
}

PimContactPhone::PimContactPhone( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QString PimContactPhone::Number() const
{
    return DataOf( *this ).m_number;
}

void PimContactPhone::SetNumber( const QString& a_number )
{
    ChangedDataOf( *this ).m_number = a_number;
}

QString PimContactPhone::Extension() const
{
    return DataOf( *this ).m_extension;
}

void PimContactPhone::SetExtension( const QString& a_extension )
{
    ChangedDataOf( *this ).m_extension = a_extension;
}

QString PimContactPhone::Text() const
{
    const PhoneData& data = DataOf( *this );
    return data.m_extension.isEmpty() ? data.m_number
                                      : QStringLiteral( "%1 ext. %2" ).arg( data.m_number, data.m_extension );
}

QString PimContactPhone::Context() const
{
    return DataOf( *this ).m_context;
}

PimContactPhoneKinds PimContactPhone::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

void PimContactPhone::SetKinds( PimContactPhoneKinds a_kinds )
{
    PhoneData& data = ChangedDataOf( *this );
    data.DropKindTypes();
    data.m_kinds = a_kinds;
}

PimContactList<PimContactPhone> PimContactPhone::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
