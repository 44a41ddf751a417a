#include <PimManager/Contacts/PimContactMessenger.h>

#include "Contact/ContactFields.h"
#include "Contact/FieldReader.h"
#include "Contact/LineParameters.h"
#include "Contact/Messenger.h"
#include "Contact/MessengerField.h"
#include "Text/Bytes.h"

#include <QUrl>

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

const MessengerData& DataOf( const PimContactMessenger& a_messenger )
{
    return PimContactFieldPrivate::DataOf<MessengerData>( a_messenger );
}

// Between the values of properties such as `X-messaging/xmpp-All`: the character U+E000.
constexpr std::string_view s_kBetweenValues = "\xEE\x80\x80";

/// Removes the text up to and including the next mark.
std::string_view TakeValue( std::string_view& a_rest )
{
    const size_t place = std::min( a_rest.find( s_kBetweenValues ), a_rest.size() );
    const std::string_view value = a_rest.substr( 0, place );
    a_rest.remove_prefix( std::min( place + s_kBetweenValues.size(), a_rest.size() ) );
    return value;
}

/// The accounts in the line of a reader: one, except in properties that contain all accounts of a service.
class MessengerLine
{
public:
    explicit MessengerLine( FieldReader& a_reader ) :
        m_reader( a_reader )
    {
        m_parameters.Read( a_reader.Line() );
        m_common.ReadKinds( a_reader );
        m_common.m_isSocialProfile = a_reader.Property() == PropertyId::SocialProfile;
        if ( m_common.m_isSocialProfile || MessengerServiceOf( a_reader.Parameters().CustomType() ) != nullptr )
            a_reader.SetNoTypeLabel();
        a_reader.SetCommon( m_common );
    }

    void AddTo( PimContactList<PimContactMessenger>& a_fields )
    {
        const bool isList = m_reader.Name().find( '/' ) != std::string_view::npos;
        std::string_view rest = m_reader.Text();
        if ( !isList )
            Add( rest, a_fields );
        while ( isList && !rest.empty() )
            Add( TakeValue( rest ), a_fields );
    }

private:
    void Add( std::string_view a_value, PimContactList<PimContactMessenger>& a_fields )
    {
        const MessengerParts parts = MessengerPartsOf( m_reader.Name(), a_value, m_parameters, m_buffer );
        if ( parts.m_handle.empty() && parts.m_address.empty() )
            return;
        auto* const data = new MessengerData( m_common );
        data->m_service = StringOf( parts.m_service );
        data->m_handle = StringOf( parts.m_handle );
        data->m_address = StringOf( parts.m_address );
        a_fields.append( PimContactFieldPrivate::FieldOf<PimContactMessenger>( data ) );
    }

    FieldReader& m_reader;
    LineParameters m_parameters;
    MessengerData m_common;
    QByteArray m_buffer;
};

struct Account
{
    QString m_service;
    QString m_handle;
};

/// \return the account in a line without parameters.
Account AccountIn( std::string_view a_name, const QString& a_value )
{
    const QByteArray value = a_value.toUtf8();
    QByteArray buffer;
    const MessengerParts parts = MessengerPartsOf( a_name, ViewOf( value ), LineParameters(), buffer );
    return { StringOf( parts.m_service ), StringOf( parts.m_handle ) };
}

const MessengerService* ServiceOf( const QString& a_name )
{
    const QByteArray name = a_name.toUtf8();
    return MessengerServiceOf( ViewOf( name ) );
}

/// \return the address of a user; empty if the service has no scheme.
QString UriOf( const QString& a_service, const QString& a_handle )
{
    const MessengerService* const service = ServiceOf( a_service );
    if ( service == nullptr || service->m_scheme.empty() )
        return QString();
    const bool isMatrixUser = service->m_scheme == "matrix:" && a_handle.startsWith( QLatin1Char( '@' ) );
    const QString user = isMatrixUser ? QStringLiteral( "u/" ) : QString();
    return StringOf( service->m_scheme ) + user +
           QString::fromLatin1( QUrl::toPercentEncoding( a_handle.mid( isMatrixUser ? 1 : 0 ), "@:+" ) );
}

} // namespace

bool MessengerData::IsSame( const MessengerData& a_other ) const
{
    return m_service == a_other.m_service && m_handle == a_other.m_handle && m_address == a_other.m_address &&
           m_isSocialProfile == a_other.m_isSocialProfile && m_kinds == a_other.m_kinds;
}

std::string_view MessengerData::Name( PimContactVersion a_version ) const
{
    const bool isNew = a_version == PimContactVersion::V40;
    if ( m_isSocialProfile )
        return isNew ? "SOCIALPROFILE" : "X-SOCIALPROFILE";
    const MessengerService* const service = ServiceOf( m_service );
    const bool isOld = service != nullptr && m_address.isEmpty() &&
                       ( service->m_scheme.empty() || a_version == PimContactVersion::V21 ) &&
                       PropertyOf( service->m_property ) == PropertyId::Messenger;
    return isOld ? service->m_property : "IMPP";
}

// The name of a property may be that of a service.
bool MessengerData::FitsName( std::string_view a_name ) const
{
    const PropertyId property = m_isSocialProfile ? PropertyId::SocialProfile : PropertyId::Messenger;
    const QString service = AccountIn( a_name, QStringLiteral( "user" ) ).m_service;
    return ( PropertyOf( a_name ) == property || ( !m_isSocialProfile && IsMessengerName( a_name ) ) ) &&
           ( service.isEmpty() || service == m_service );
}

bool MessengerData::IsKind( std::string_view a_word ) const
{
    return WithKinds::IsKind( a_word ) || MessengerServiceOf( a_word ) != nullptr ||
           ( m_isSocialProfile && StringOf( a_word ).compare( m_service, Qt::CaseInsensitive ) == 0 );
}

// The scheme of the address names the service. A service that has no scheme is named in a parameter.
void MessengerData::Write( FieldWriter& a_writer ) const
{
    const bool isGeneral = AccountIn( a_writer.Name(), QStringLiteral( "user" ) ).m_service.isEmpty();
    const QString uri =
        m_address.isEmpty() && isGeneral && !m_isSocialProfile ? UriOf( m_service, m_handle ) : m_address;
    const Account account = AccountIn( a_writer.Name(), uri );
    if ( m_isSocialProfile ? isGeneral : account.m_service != m_service && ( isGeneral || !uri.isEmpty() ) )
        WriteService( a_writer );
    if ( uri.isEmpty() )
        WriteHandle( a_writer );
    else
    {
        const bool isProfile = m_isSocialProfile && a_writer.IsVersion( PimContactVersion::V40 );
        if ( m_isSocialProfile || account.m_handle != m_handle )
            a_writer.AddParameter( isProfile ? "USERNAME" : "X-USER", m_handle );
        a_writer.SetPlain( uri );
    }
}

// In a SOCIALPROFILE before 4.0, the service is the first word of TYPE that is not a kind.
bool MessengerData::IsServiceType() const
{
    const QByteArray word = m_service.toUtf8();
    return m_isSocialProfile && IsName( ViewOf( word ) ) && KindsOf( ViewOf( word ) ) == PimContactKinds() &&
           OtherTypes().isEmpty();
}

void MessengerData::WriteService( FieldWriter& a_writer ) const
{
    if ( m_isSocialProfile && a_writer.IsVersion( PimContactVersion::V40 ) )
        a_writer.AddParameter( "SERVICE-TYPE", m_service );
    else
        a_writer.AddParameter( IsServiceType() ? "TYPE" : "X-SERVICE-TYPE", m_service );
}

// Without VALUE, a colon could be the end of a scheme.
void MessengerData::WriteHandle( FieldWriter& a_writer ) const
{
    const bool isNewProfile = m_isSocialProfile && a_writer.IsVersion( PimContactVersion::V40 );
    if ( isNewProfile || m_handle.contains( QLatin1Char( ':' ) ) )
        a_writer.AddParameter( "VALUE", QStringLiteral( "text" ) );
    a_writer.SetText( m_handle );
}

PimContactList<PimContactMessenger> ReadMessengers( const PimContactPrivate& a_contact )
{
    static const PropertySet s_messengers = SetOf( { PropertyId::Messenger, PropertyId::SocialProfile } );
    PimContactList<PimContactMessenger> fields;
    if ( !a_contact.m_lines.Has( s_messengers ) )
        return fields;
    for ( FieldReader reader( a_contact ); reader.Next( s_messengers ); )
        MessengerLine( reader ).AddTo( fields );
    MergeAlternatives( fields, a_contact.m_languages );
    return fields;
}

PimContactMessenger::PimContactMessenger() :
    PimContactMessenger( MessengerData::Null() )
{
}

PimContactMessenger::PimContactMessenger( const QString& a_service, const QString& a_handle ) :
    PimContactMessenger()
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<MessengerData>( *this );
    data.m_service = a_service;
    data.m_handle = a_handle;
}

PimContactMessenger::PimContactMessenger( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

QString PimContactMessenger::Service() const
{
    return DataOf( *this ).m_service;
}

QString PimContactMessenger::Handle() const
{
    return DataOf( *this ).m_handle;
}

QString PimContactMessenger::Address() const
{
    return DataOf( *this ).m_address;
}

PimContactKinds PimContactMessenger::Kinds() const
{
    return DataOf( *this ).m_kinds;
}

void PimContactMessenger::SetKinds( PimContactKinds a_kinds )
{
    PimContactFieldPrivate::ChangedDataOf<MessengerData>( *this ).SetKinds( a_kinds );
}

bool PimContactMessenger::IsSocialProfile() const
{
    return DataOf( *this ).m_isSocialProfile;
}

PimContactList<PimContactMessenger> PimContactMessenger::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
