#include <PimManager/Contacts/PimContactCharset.h>

#include "Text/Bytes.h"
#include "Text/Charset.h"
#include "Text/Codec.h"

namespace PimManager::Contacts
{

static_assert( static_cast<quint8>( Charset::Id::Unknown ) == 0 );

PimContactCharset PimContactCharset::Of( const QByteArray& a_label )
{
    return PimContactCharset( static_cast<quint8>( Charset::Of( ViewOf( a_label ) ).Value() ) );
}

QList<QByteArray> PimContactCharset::Names()
{
    QList<QByteArray> names;
    for ( const std::string_view name : Charset::Names() )
        names.append( BytesOf( name ) );
    return names;
}

QByteArray PimContactCharset::Name() const
{
    return BytesOf( Charset( static_cast<Charset::Id>( m_number ) ).Name() );
}

QString PimContactCharset::Decode( const QByteArray& a_bytes, qint64* a_malformed ) const
{
    QByteArray text;
    const DecodeResult result = DecodeTo( Charset( static_cast<Charset::Id>( m_number ) ), ViewOf( a_bytes ), text );
    if ( a_malformed != nullptr )
        *a_malformed = result.m_malformed;
    return QString::fromUtf8( text );
}

} // namespace PimManager::Contacts
