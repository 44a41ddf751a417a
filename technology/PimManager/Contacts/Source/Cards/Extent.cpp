#include "Cards/Extent.h"

#include <array>

namespace PimManager::Contacts
{

namespace
{

// In the order of the kinds.
constexpr std::array<const char*, s_kPimContactExtentKinds> s_kNames = { "line",    "boundary", "blank", "dropped",
                                                                         "refused", "filtered", "mark",  "outside" };

} // namespace

PimContactExtent PimContactExtentPrivate::Create( PimContactExtentKind a_kind, qint64 a_offset,
                                                  const QByteArray& a_bytes, qint64 a_card )
{
    PimContactExtent extent;
    extent.d->m_kind = a_kind;
    extent.d->m_offset = a_offset;
    extent.d->m_bytes = a_bytes;
    extent.d->m_card = a_card;
    return extent;
}

PimContactExtent::PimContactExtent() :
    d( new PimContactExtentPrivate )
{
}

PimContactExtent::PimContactExtent( const PimContactExtent& a_other ) = default;
PimContactExtent& PimContactExtent::operator=( const PimContactExtent& a_other ) = default;
PimContactExtent::~PimContactExtent() = default;

qint64 PimContactExtent::Offset() const
{
    return d->m_offset;
}

qint64 PimContactExtent::Length() const
{
    return d->m_bytes.size();
}

PimContactExtentKind PimContactExtent::Kind() const
{
    return d->m_kind;
}

qint64 PimContactExtent::Card() const
{
    return d->m_card;
}

QByteArray PimContactExtent::Bytes() const
{
    return d->m_bytes;
}

bool PimContactExtent::operator==( const PimContactExtent& a_other ) const
{
    return d->m_offset == a_other.d->m_offset && d->m_kind == a_other.d->m_kind && d->m_card == a_other.d->m_card &&
           d->m_bytes == a_other.d->m_bytes;
}

bool PimContactExtent::operator!=( const PimContactExtent& a_other ) const
{
    return !( *this == a_other );
}

QLatin1String NameOf( PimContactExtentKind a_kind )
{
    return QLatin1String( s_kNames[static_cast<size_t>( a_kind )] );
}

} // namespace PimManager::Contacts
