#include <PimManager/Contacts/PimContactBinary.h>

#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/MediaType.h"
#include "Values/BinaryValue.h"

namespace PimManager::Contacts
{

PimContactBinary::PimContactBinary() :
    d( new PimContactBinaryPrivate )
{
}

PimContactBinary::PimContactBinary( const PimContactBinary& a_other ) = default;
PimContactBinary& PimContactBinary::operator=( const PimContactBinary& a_other ) = default;
PimContactBinary::~PimContactBinary() = default;

bool PimContactBinary::IsNull() const
{
    return d->m_isNull;
}

QByteArray PimContactBinary::Bytes() const
{
    return d->m_bytes;
}

QByteArray PimContactBinary::MediaType() const
{
    return d->m_mediaType;
}

QByteArray PimContactBinary::DetectedType() const
{
    return BytesOf( MediaTypeBySignature( ViewOf( d->m_bytes ).substr( 0, s_kSignatureBytes ) ) );
}

bool PimContactBinary::IsDamaged() const
{
    return d->m_faultPlace >= 0;
}

qint64 PimContactBinary::FaultPlace() const
{
    return d->m_faultPlace;
}

} // namespace PimManager::Contacts
