// The days in the life of a contact.

#include "Contact/AndroidLine.h"
#include "Contact/ContactFields.h"
#include "Contact/DatePrivate.h"
#include "Contact/EventField.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Text/Bytes.h"

#include <utility>

namespace PimManager::Contacts
{

namespace
{

using Kind = PimContactEvent::Kind;

Kind KindOf( AndroidCustom::Event a_event )
{
    switch ( a_event )
    {
    case AndroidCustom::Event::Birthday:
        return Kind::Birth;
    case AndroidCustom::Event::Anniversary:
        return Kind::Anniversary;
    default:
        return Kind::Other;
    }
}

PimContactFieldPrivate* ReadAndroidEvent( FieldReader& a_reader )
{
    const AndroidLine line( a_reader );
    if ( !line.Is( AndroidCustom::Item::Event ) )
        return nullptr;
    auto* const data = new EventData;
    data->m_kind = KindOf( line.Custom().m_event );
    data->m_date = PimContactDatePrivate::Read( line.Custom().m_text );
    data->m_label = StringOf( line.Custom().m_label );
    a_reader.ReadParameters( NoKinds );
    return data;
}

PimContactFieldPrivate* ReadAnyEvent( FieldReader& a_reader )
{
    return a_reader.Property() == PropertyId::AndroidCustom ? ReadAndroidEvent( a_reader ) : ReadEvent( a_reader );
}

PimContactFieldPrivate* ReadPlace( FieldReader& a_reader )
{
    if ( a_reader.Text().empty() )
        return nullptr;
    auto* const data = new EventData;
    data->m_kind = a_reader.Property() == PropertyId::BirthPlace ? Kind::Birth : Kind::Death;
    data->m_place = StringOf( a_reader.Text() );
    a_reader.ReadParameters( NoKinds );
    return data;
}

/// \return the index of the first event of a kind; -1 if there is none.
int FirstOf( Kind a_kind, const PimContactList<PimContactEvent>& a_events )
{
    const auto count = static_cast<int>( a_events.size() );
    for ( int i = 0; i < count; ++i )
    {
        if ( a_events.at( i ).EventKind() == a_kind )
            return i;
    }
    return -1;
}

void SetPlace( const PimContactEvent& a_place, PimContactEvent& a_event )
{
    auto& data = PimContactFieldPrivate::ChangedDataOf<EventData>( a_event );
    data.m_place = a_place.Place();
    const PimContactList<PimContactEvent> places = a_place.Alternatives();
    for ( const PimContactEvent& place : places )
        data.ChangedExtras().m_moreIds += PimContactFieldPrivate::LineIdsOf( place );
}

/// Adds a place to the first event of its kind. Any other place is an event without a date.
void AddPlaces( const PimContactList<PimContactEvent>& a_places, PimContactList<PimContactEvent>& a_events )
{
    int birth = FirstOf( Kind::Birth, a_events );
    int death = FirstOf( Kind::Death, a_events );
    for ( const PimContactEvent& place : a_places )
    {
        int& event = place.EventKind() == Kind::Birth ? birth : death;
        if ( event < 0 )
            a_events.append( place );
        else
            SetPlace( place, a_events[std::exchange( event, -1 )] );
    }
}

} // namespace

PimContactList<PimContactEvent> ReadEvents( const PimContactPrivate& a_contact )
{
    static const PropertySet s_events = SetOf( { PropertyId::Bday, PropertyId::Anniversary, PropertyId::DeathDate,
                                                 PropertyId::GroupDate, PropertyId::AndroidCustom } );
    static const PropertySet s_places = SetOf( { PropertyId::BirthPlace, PropertyId::DeathPlace } );
    auto events = ReadFields<PimContactEvent>( a_contact, s_events, ReadAnyEvent );
    AddPlaces( ReadFields<PimContactEvent>( a_contact, s_places, ReadPlace ), events );
    return events;
}

} // namespace PimManager::Contacts
