#include <PimManager/Contacts/PimContactCard.h>

#include "Cards/CardRecord.h"
#include "Text/Bytes.h"

namespace PimManager::Contacts
{

PimContactCard::PimContactCard() = default;
PimContactCard::PimContactCard( const PimContactCard& a_other ) = default;
PimContactCard::PimContactCard( PimContactCard&& a_other ) noexcept = default;
PimContactCard& PimContactCard::operator=( const PimContactCard& a_other ) = default;
PimContactCard& PimContactCard::operator=( PimContactCard&& a_other ) noexcept = default;
PimContactCard::~PimContactCard() = default;

PimContactCard::PimContactCard( PimContactCardPrivate* a_private, quint32 a_record ) :
    d( a_private ),
    m_record( a_record )
{
}

bool PimContactCard::IsNull() const
{
    return !d;
}

CardRecord PimContactCardPrivate::RecordOf( const PimContactCard& a_card )
{
    return a_card.d ? CardRecord::At( a_card.d->Index() + a_card.m_record ) : CardRecord();
}

std::string_view PimContactCardPrivate::BytesOf( const PimContactCard& a_card )
{
    const CardRecord record = RecordOf( a_card );
    return a_card.d ? a_card.d->Bytes().substr( record.m_begin, record.m_length ) : std::string_view();
}

QByteArray PimContactCard::Bytes() const
{
    return BytesOf( PimContactCardPrivate::BytesOf( *this ) );
}

int PimContactCard::LineCount() const
{
    return static_cast<int>( PimContactCardPrivate::RecordOf( *this ).m_lines );
}

PimContactVersion PimContactCard::Version() const
{
    return PimContactCardPrivate::RecordOf( *this ).Version();
}

PimContactFoldStyle PimContactCard::FoldStyle() const
{
    return PimContactCardPrivate::RecordOf( *this ).FoldStyle();
}

qint64 PimContactCard::Number() const
{
    return d ? d->m_origin.m_number : 0;
}

qint64 PimContactCard::Offset() const
{
    return d ? d->m_origin.m_offset + PimContactCardPrivate::RecordOf( *this ).m_offset : 0;
}

qint64 PimContactCard::FirstLine() const
{
    return d ? d->m_origin.m_firstLine + PimContactCardPrivate::RecordOf( *this ).m_line : 0;
}

bool PimContactCard::IsWhole() const
{
    return PimContactCardPrivate::RecordOf( *this ).Has( CardRecord::IsWhole );
}

bool PimContactCard::HasBegin() const
{
    return PimContactCardPrivate::RecordOf( *this ).Has( CardRecord::HasBegin );
}

bool PimContactCard::HasEnd() const
{
    return PimContactCardPrivate::RecordOf( *this ).Has( CardRecord::HasEnd );
}

bool PimContactCard::IsFiltered() const
{
    return PimContactCardPrivate::RecordOf( *this ).Has( CardRecord::IsFiltered );
}

bool PimContactCard::IsNested() const
{
    return m_record > 0;
}

bool PimContactCard::IsConverted() const
{
    return d && d->m_origin.m_isConverted;
}

QByteArray PimContactCard::DefaultCharset() const
{
    return d ? d->m_origin.m_defaultCharset : QByteArray();
}

bool PimContactCard::operator==( const PimContactCard& a_other ) const
{
    return PimContactCardPrivate::AreEqual( *this, a_other );
}

bool PimContactCard::operator!=( const PimContactCard& a_other ) const
{
    return !( *this == a_other );
}

// The position of the card in its outermost card may differ, and so may those of nested cards, which follow from it.
bool PimContactCardPrivate::AreEqual( const PimContactCard& a_first, const PimContactCard& a_second )
{
    const CardRecord first = RecordOf( a_first );
    const CardRecord second = RecordOf( a_second );
    if ( first.m_version != second.m_version || first.m_foldStyle != second.m_foldStyle ||
         first.m_flags != second.m_flags || first.m_lines != second.m_lines ||
         BytesOf( a_first ) != BytesOf( a_second ) || a_first.DefaultCharset() != a_second.DefaultCharset() ||
         a_first.IsNull() != a_second.IsNull() )
        return false;
    auto line = a_first.begin();
    for ( const PimContactLine& other : a_second )
    {
        if ( line == a_first.end() || *line != other )
            return false;
        ++line;
    }
    return line == a_first.end();
}

PimContactCard::const_iterator PimContactCard::begin() const
{
    return PimContactCardPrivate::Begin( d.data(), m_record );
}

// A member, as every container has it. NOLINTNEXTLINE(readability-convert-member-functions-to-static)
PimContactCard::const_iterator PimContactCard::end() const
{
    return const_iterator();
}

PimContactCard::const_iterator& PimContactCard::const_iterator::operator++()
{
    PimContactCardPrivate::Step( *this );
    return *this;
}

PimContactCard::const_iterator PimContactCard::const_iterator::operator++( int )
{
    const_iterator before = *this;
    ++*this;
    return before;
}

bool PimContactCard::const_iterator::operator==( const const_iterator& a_other ) const
{
    return PimContactCardPrivate::AreSamePlace( m_line, a_other.m_line );
}

bool PimContactCard::const_iterator::operator!=( const const_iterator& a_other ) const
{
    return !( *this == a_other );
}

} // namespace PimManager::Contacts
