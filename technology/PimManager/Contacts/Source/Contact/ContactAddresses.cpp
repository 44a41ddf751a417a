// Addresses, with the lines that belong to them.

#include "Contact/AddressField.h"
#include "Contact/ContactFields.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/GeoValue.h"
#include "Contact/KindWords.h"
#include "Text/Bytes.h"

#include <QHash>

#include <deque>

namespace PimManager::Contacts
{

namespace
{

const PropertySet& Additions()
{
    static const PropertySet s_additions =
        SetOf( { PropertyId::Label, PropertyId::AddressCountry, PropertyId::Geo, PropertyId::Tz } );
    return s_additions;
}

/// Joins the lines of an address: first those of the same group, and then LABEL with the same types, and in order.
class AddressJoin
{
public:
    AddressJoin( const PimContactPrivate& a_contact, PimContactList<PimContactAddress>& a_addresses ) :
        m_contact( a_contact ),
        m_addresses( a_addresses )
    {
        for ( int i = 0; i < a_addresses.size(); ++i )
        {
            const QByteArray group = a_addresses.at( i ).IsEmpty() ? QByteArray() : GroupOf( a_addresses.at( i ) );
            if ( !group.isEmpty() && !m_groups.contains( group ) )
                m_groups.insert( group, i );
        }
    }

    void Join()
    {
        for ( FieldReader reader( m_contact ); reader.Next( Additions() ); )
            Take( reader );
        std::vector<Label> rest;
        FillQueues();
        for ( Label& label : m_labels )
        {
            std::deque<int>& queue = m_ofTypes[label.m_kinds];
            DropLabelled( queue );
            if ( queue.empty() )
                rest.push_back( label );
            else
                SetLabel( queue.front(), label );
        }
        for ( const Label& label : rest )
        {
            DropLabelled( m_all );
            if ( m_all.empty() )
                m_addresses.append( label.m_field );
            else
                SetLabel( m_all.front(), label );
        }
    }

private:
    struct Label
    {
        PimContactAddress m_field;
        quint32 m_kinds;
    };

    static QByteArray GroupOf( const PimContactAddress& a_address )
    {
        return PimContactFieldPrivate::Of( a_address ).m_line.Group().toUpper();
    }

    AddressData& DataAt( int a_index )
    {
        return PimContactFieldPrivate::ChangedDataOf<AddressData>( m_addresses[a_index] );
    }

    void Take( FieldReader& a_reader )
    {
        const int address = m_groups.value( BytesOf( a_reader.Group() ).toUpper(), -1 );
        if ( a_reader.Property() == PropertyId::Label )
            TakeLabel( a_reader, address );
        else if ( address >= 0 )
            TakeAddition( a_reader, DataAt( address ) );
    }

    static void TakeAddition( FieldReader& a_reader, AddressData& a_address )
    {
        bool isTaken = false;
        switch ( a_reader.Property() )
        {
        case PropertyId::AddressCountry:
            isTaken = TakeText( a_reader, a_address.m_countryCode );
            break;
        case PropertyId::Tz:
            isTaken = TakeText( a_reader, a_address.m_timeZone );
            break;
        default:
            isTaken = TakePosition( a_reader, a_address.m_position );
            break;
        }
        if ( isTaken )
            a_address.ChangedExtras().m_moreIds.append( a_reader.Id() );
    }

    static bool TakeText( FieldReader& a_reader, QString& a_text )
    {
        if ( !a_text.isEmpty() || a_reader.Text().empty() )
            return false;
        a_text = StringOf( a_reader.Text() );
        return true;
    }

    static bool TakePosition( FieldReader& a_reader, std::optional<PimContactPosition>& a_position )
    {
        if ( a_position )
            return false;
        a_position = GeoPositionOf( a_reader.Text(), a_reader.Version() );
        return a_position.has_value();
    }

    void TakeLabel( FieldReader& a_reader, int a_address )
    {
        if ( a_reader.Text().empty() )
            return;
        auto* const data = new AddressData;
        data->m_deliveryText = StringOf( a_reader.Text() );
        a_reader.ReadParameters( []( std::string_view a_word )
                                 { return static_cast<quint32>( AddressKindsOf( a_word ) ); } );
        data->m_kinds = a_reader.KindsAs<PimContactAddressKinds>();
        a_reader.SetCommon( *data );
        const Label label = { PimContactFieldPrivate::FieldOf<PimContactAddress>( data ),
                              static_cast<quint32>( data->m_kinds ) };
        if ( a_address >= 0 && DataAt( a_address ).m_deliveryText.isEmpty() )
            SetLabel( a_address, label );
        else
            m_labels.push_back( label );
    }

    void FillQueues()
    {
        for ( int i = 0; i < m_addresses.size(); ++i )
        {
            m_all.push_back( i );
            m_ofTypes[static_cast<quint32>( m_addresses.at( i ).Kinds() )].push_back( i );
        }
    }

    void DropLabelled( std::deque<int>& a_queue ) const
    {
        while ( !a_queue.empty() && !m_addresses.at( a_queue.front() ).DeliveryText().isEmpty() )
            a_queue.pop_front();
    }

    void SetLabel( int a_address, const Label& a_label )
    {
        AddressData& address = DataAt( a_address );
        address.m_deliveryText = a_label.m_field.DeliveryText();
        address.ChangedExtras().m_moreIds.append( a_label.m_field.Id() );
    }

    const PimContactPrivate& m_contact;
    PimContactList<PimContactAddress>& m_addresses;
    QHash<QByteArray, int> m_groups;
    std::vector<Label> m_labels;
    std::deque<int> m_all;
    QHash<quint32, std::deque<int>> m_ofTypes;
};

} // namespace

PimContactList<PimContactAddress> ReadAddresses( const PimContactPrivate& a_contact )
{
    auto addresses = ReadFields<PimContactAddress>( a_contact, PropertyId::Adr, ReadAddress );
    const bool hasMore =
        a_contact.m_lines.Has( PropertyId::Label ) || ( !addresses.isEmpty() && a_contact.m_lines.Has( Additions() ) );
    if ( hasMore )
        AddressJoin( a_contact, addresses ).Join();
    return addresses;
}

} // namespace PimManager::Contacts
