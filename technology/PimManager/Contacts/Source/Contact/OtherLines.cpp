// The lines of a contact that no typed field is read from.

#include "Contact/ContactData.h"
#include "Contact/ContactFields.h"
#include "Contact/EntryReader.h"
#include "Contact/FieldReader.h"
#include "Contact/GeoValue.h"
#include "Text/Bytes.h"

#include <algorithm>
#include <array>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

/// Marks the lines that have been read.
class ReadLines
{
public:
    explicit ReadLines( const PimContactPrivate& a_contact ) :
        m_contact( a_contact )
    {
        const ContactLines& lines = a_contact.m_lines;
        for ( size_t i = 0; i < lines.Size(); ++i )
            Mark( lines.At( i ).m_id, false );
    }

    bool Has( int a_id ) const { return m_isRead[static_cast<size_t>( a_id )]; }

    /// Marks the lines of fields.
    template <class Field, class... Fields>
    void Take( const PimContactList<Field>& a_fields, const Fields&... a_others )
    {
        for ( const Field& field : a_fields )
            Take( field );
        if constexpr ( sizeof...( Fields ) > 0 )
            Take( a_others... );
    }

    void Take( const PimContactField& a_field )
    {
        TakeIds( a_field );
        for ( const PimContactField& field : PimContactFieldPrivate::Of( a_field ).Extras().m_alternatives )
            TakeIds( field );
    }

    /// Marks the lines of the functions that return one value.
    void TakeSingle()
    {
        static const PropertySet s_single =
            SetOf( { PropertyId::Class, PropertyId::ClientPidMap, PropertyId::Created, PropertyId::CallTime,
                     PropertyId::Geo, PropertyId::Kind, PropertyId::Language, PropertyId::Mailer, PropertyId::ProdId,
                     PropertyId::Rev, PropertyId::SortString, PropertyId::Tz, PropertyId::Uid, PropertyId::Version } );
        if ( !m_contact.m_lines.Has( s_single ) )
            return;
        PropertySet found;
        for ( FieldReader reader( m_contact ); reader.Next( s_single ); )
        {
            const auto property = static_cast<size_t>( reader.Property() );
            if ( found.test( property ) || !HasValue( reader ) )
                continue;
            found.set( property, reader.Property() != PropertyId::ClientPidMap );
            Mark( reader.Id(), true );
        }
    }

private:
    static bool HasValue( FieldReader& a_reader )
    {
        switch ( a_reader.Property() )
        {
        case PropertyId::ClientPidMap:
            return PidEntryOf( a_reader.Text() ).has_value();
        case PropertyId::Geo:
            return GeoPositionOf( a_reader.Text(), a_reader.Version() ).has_value();
        default:
            return !a_reader.Text().empty();
        }
    }

    void TakeIds( const PimContactField& a_field )
    {
        const QVector<int> ids = PimContactFieldPrivate::LineIdsOf( a_field );
        for ( const int id : ids )
            Mark( id, true );
    }

    void Mark( int a_id, bool a_isRead )
    {
        const auto id = static_cast<size_t>( a_id );
        if ( id >= m_isRead.size() )
            m_isRead.resize( id + 1 );
        m_isRead[id] = a_isRead;
    }

    const PimContactPrivate& m_contact;
    std::vector<bool> m_isRead;
};

/// \return true if a contact reads the property, but the line is empty.
bool IsEmptyLine( PropertyId a_property, const IndexedLine& a_line, EntryReader& a_reader )
{
    if ( a_property == PropertyId::Other )
        return false;
    a_reader.Read( a_line );
    return a_reader.Text().empty();
}

/// The conditions under which a line is read, by its property.
enum class Reading : quint8
{
    Unknown,
    Always, ///< each value makes a field, or the property is one that no contact reads
    NoUri,  ///< each value but an empty URI
    List,   ///< each value but one of delimiters only
    Once,   ///< the first value
    OnceAsList,
};

constexpr auto ReadingsOfProperties()
{
    std::array<Reading, s_kProperties> readings = {};
    const auto set = [&readings]( Reading a_reading, auto... a_properties )
    { ( ( readings[static_cast<size_t>( a_properties )] = a_reading ), ... ); };
    set( Reading::Always, PropertyId::Anniversary, PropertyId::Bday, PropertyId::Categories, PropertyId::Fn,
         PropertyId::Logo, PropertyId::Nickname, PropertyId::Note, PropertyId::Org, PropertyId::Other,
         PropertyId::Photo, PropertyId::Role, PropertyId::Title, PropertyId::Url );
    set( Reading::NoUri, PropertyId::Email, PropertyId::Tel );
    set( Reading::List, PropertyId::Adr );
    set( Reading::Once, PropertyId::Kind, PropertyId::ProdId, PropertyId::Rev, PropertyId::Uid, PropertyId::Version );
    set( Reading::OnceAsList, PropertyId::N );
    return readings;
}

/// Determines which lines are read without reading them, if that is plain: in most cards, each line either makes a
/// field or has a property that no contact reads.
class PlainLines
{
public:
    explicit PlainLines( const ContactLines& a_lines ) :
        m_lines( a_lines )
    {
    }

    /// \return false if the values must be read.
    bool Are()
    {
        for ( size_t i = 0; i < m_lines.Size(); ++i )
        {
            if ( !IsPlain( i ) )
                return false;
        }
        return true;
    }

private:
    bool IsPlain( size_t a_index )
    {
        static constexpr auto s_kReadings = ReadingsOfProperties();
        const PropertyId property = m_lines.At( a_index ).m_property;
        switch ( s_kReadings[static_cast<size_t>( property )] )
        {
        case Reading::Always:
            return true;
        case Reading::NoUri:
            return !MayBeUri( a_index );
        case Reading::List:
            return HasNameByte( a_index );
        case Reading::Once:
            return IsFirst( property );
        case Reading::OnceAsList:
            return IsFirst( property ) && HasNameByte( a_index );
        default:
            return false;
        }
    }

    bool IsFirst( PropertyId a_property )
    {
        const auto property = static_cast<size_t>( a_property );
        const bool isFirst = !m_found[property];
        m_found[property] = true;
        return isFirst;
    }

    bool MayBeUri( size_t a_index )
    {
        return WrittenValue( a_index ).find( ':' ) != std::string_view::npos ||
               m_line.m_entry.m_encoding != PimContactEncoding::None;
    }

    bool HasNameByte( size_t a_index )
    {
        const std::string_view value = WrittenValue( a_index );
        return std::any_of( value.begin(), value.end(), IsNameByte );
    }

    // The entry of a plain value is not read; it has no encoding.
    std::string_view WrittenValue( size_t a_index )
    {
        std::string_view value;
        m_line.m_entry.m_encoding = PimContactEncoding::None;
        if ( m_lines.FindPlainValue( a_index, value ) )
            return value;
        m_lines.Read( a_index, m_line );
        return m_line.ValueRange().In( m_line.m_text );
    }

    const ContactLines& m_lines;
    IndexedLine m_line;
    PropertySet m_found;
};

QList<PimContactLine> LinesOf( const ContactLines& a_lines, PropertyId a_property )
{
    QList<PimContactLine> lines;
    for ( size_t i = 0; a_lines.Has( a_property ) && i < a_lines.Size(); ++i )
    {
        if ( a_lines.At( i ).m_property == a_property )
            lines.append( a_lines.LineOf( i ) );
    }
    return lines;
}

} // namespace

QList<PimContactLine> PimContact::OtherLines() const
{
    if ( PlainLines( d->m_lines ).Are() )
        return LinesOf( d->m_lines, PropertyId::Other );
    ReadLines read( *d );
    read.Take( Name() );
    read.Take( FormattedNames(), Nicknames(), Phones(), Mails(), Addresses(), Messengers(), Urls(), ContactUris(),
               SpokenLanguages(), Events(), Organisations(), Titles(), Roles(), Expertise(), Hobbies(), Interests(),
               OrganisationDirectories(), Relations(), Members(), Photos(), Logos(), Sounds(), Keys(), Notes(),
               Categories(), GrammaticalGenders(), Pronouns(), CalendarUris(), CalendarAddresses(), FreeBusyUris(),
               Sources(), Xml() );
    if ( const std::optional<PimContactGender> gender = Gender() )
        read.Take( *gender );
    read.TakeSingle();

    QList<PimContactLine> others;
    EntryReader reader;
    IndexedLine line;
    for ( size_t i = 0; i < d->m_lines.Size(); ++i )
    {
        const ContactLine& place = d->m_lines.At( i );
        if ( read.Has( place.m_id ) )
            continue;
        d->m_lines.Read( i, line );
        if ( !IsEmptyLine( place.m_property, line, reader ) )
            others.append( d->m_lines.LineOf( i ) );
    }
    return others;
}

} // namespace PimManager::Contacts
