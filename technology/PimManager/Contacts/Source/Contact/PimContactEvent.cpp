#include <PimManager/Contacts/PimContactEvent.h>

#include "Contact/DateField.h"
#include "Contact/EventField.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Text/WordTable.h"

#include <QFlags>

#include <array>

namespace PimManager::Contacts
{

namespace
{

using Kind = PimContactEvent::Kind;

const EventData& DataOf( const PimContactEvent& a_event )
{
    return PimContactFieldPrivate::DataOf<EventData>( a_event );
}

EventData& ChangedDataOf( PimContactEvent& a_event )
{
    return PimContactFieldPrivate::ChangedDataOf<EventData>( a_event );
}

bool IsEvent( PropertyId a_property )
{
    return a_property == PropertyId::Bday || a_property == PropertyId::Anniversary ||
           a_property == PropertyId::DeathDate || a_property == PropertyId::GroupDate;
}

Kind KindOf( PropertyId a_property )
{
    switch ( a_property )
    {
    case PropertyId::Bday:
        return Kind::Birth;
    case PropertyId::Anniversary:
        return Kind::Anniversary;
    case PropertyId::DeathDate:
        return Kind::Death;
    default:
        return Kind::Other;
    }
}

// The kind of an X-ABDATE, from its label or a word of its TYPE.
enum class LabelKind : quint32
{
    Birth = 1U << 0U,
    Anniversary = 1U << 1U,
};

using LabelKinds = QFlags<LabelKind>;
using LabelRow = WordRow<LabelKinds>;

constexpr WordTable s_kLabels( std::array{
    LabelRow{ "BIRTHDAY", LabelKind::Birth },
    LabelRow{ "ANNIVERSARY", LabelKind::Anniversary },
} );
static_assert( s_kLabels.HasAllWords() );

quint32 KindsOfLabel( std::string_view a_word )
{
    return static_cast<quint32>( s_kLabels.Of( a_word, LabelKinds() ) );
}

Kind KindOf( LabelKinds a_kinds )
{
    if ( a_kinds.testFlag( LabelKind::Birth ) )
        return Kind::Birth;
    return a_kinds.testFlag( LabelKind::Anniversary ) ? Kind::Anniversary : Kind::Other;
}

} // namespace

bool EventData::IsSame( const EventData& a_other ) const
{
    return m_kind == a_other.m_kind && m_date == a_other.m_date && m_place == a_other.m_place &&
           m_calendar == a_other.m_calendar;
}

std::string_view EventData::Name( PimContactVersion a_version ) const
{
    if ( m_date.IsNull() )
        return PlaceName();
    switch ( m_kind )
    {
    case Kind::Birth:
        return "BDAY";
    case Kind::Anniversary:
        return a_version == PimContactVersion::V40 ? "ANNIVERSARY" : "X-ANNIVERSARY";
    case Kind::Death:
        return "DEATHDATE";
    default:
        return "X-ABDATE";
    }
}

bool EventData::FitsName( std::string_view a_name ) const
{
    const PropertyId property = PropertyOf( a_name );
    if ( m_date.IsNull() )
        return property == PropertyOf( PlaceName() );
    return IsEvent( property ) && KindOf( property ) == m_kind;
}

std::string_view EventData::PlaceName() const
{
    if ( m_place.isEmpty() || ( m_kind != Kind::Birth && m_kind != Kind::Death ) )
        return std::string_view();
    return m_kind == Kind::Birth ? "BIRTHPLACE" : "DEATHPLACE";
}

std::string_view EventData::AdditionName( PimContactVersion /*a_version*/ ) const
{
    return m_date.IsNull() ? std::string_view() : PlaceName();
}

void EventData::WriteAddition( FieldWriter& a_writer ) const
{
    a_writer.SetText( m_place );
}

bool EventData::TakeAddition( PropertyId a_addition, const PimContactFieldPrivate& a_old )
{
    const auto& old = static_cast<const EventData&>( a_old );
    const bool isPlace = a_addition == PropertyId::BirthPlace || a_addition == PropertyId::DeathPlace;
    if ( !isPlace )
        return true;
    if ( m_place != old.m_place || m_kind != old.m_kind || m_date.IsNull() )
        return false;
    m_place.clear();
    return true;
}

void EventData::Write( FieldWriter& a_writer ) const
{
    if ( m_date.IsNull() )
    {
        a_writer.SetText( m_place );
        return;
    }
    a_writer.AddParameter( "CALSCALE", m_calendar );
    WriteDate( m_date, a_writer );
}

PimContactFieldPrivate* ReadEvent( FieldReader& a_reader )
{
    const bool isLabelled = a_reader.Property() == PropertyId::GroupDate;
    a_reader.ReadParameters( isLabelled ? KindsOfLabel : NoKinds );
    const PimContactDate date = ReadDateField( a_reader );
    if ( date.IsNull() )
        return nullptr;
    auto* const data = new EventData;
    data->m_kind = isLabelled ? KindOf( a_reader.KindsAs<LabelKinds>() ) : KindOf( a_reader.Property() );
    data->m_date = date;
    data->m_calendar = a_reader.ParameterText( FieldParameter::Calendar );
    return data;
}

PimContactEvent::PimContactEvent() :
    PimContactEvent( EventData::Null() )
{
}

PimContactEvent::PimContactEvent( Kind a_kind, const PimContactDate& a_date ) :
    PimContactEvent()
{
    EventData& data = ChangedDataOf( *this );
    data.m_kind = a_kind;
    data.m_date = a_date;
}

PimContactEvent::PimContactEvent( PimContactFieldPrivate* a_private ) :
    PimContactField( a_private )
{
}

PimContactEvent::Kind PimContactEvent::EventKind() const
{
    return DataOf( *this ).m_kind;
}

PimContactDate PimContactEvent::Date() const
{
    return DataOf( *this ).m_date;
}

void PimContactEvent::SetDate( const PimContactDate& a_date )
{
    ChangedDataOf( *this ).m_date = a_date;
}

QString PimContactEvent::Place() const
{
    return DataOf( *this ).m_place;
}

QString PimContactEvent::Calendar() const
{
    return DataOf( *this ).m_calendar;
}

PimContactList<PimContactEvent> PimContactEvent::Alternatives() const
{
    return AlternativesOf( *this );
}

} // namespace PimManager::Contacts
