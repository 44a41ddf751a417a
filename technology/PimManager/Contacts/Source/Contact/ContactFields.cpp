#include "Contact/ContactFields.h"

#include "Contact/AndroidLine.h"
#include "Contact/DateField.h"
#include "Contact/FieldReader.h"
#include "Contact/FieldReaders.h"
#include "Contact/NameField.h"
#include "Contact/TextField.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"

#include <charconv>

namespace PimManager::Contacts
{

namespace
{

/// Adds a phonetic name or the maiden name. Vendors write them as properties of their own.
void AddToName( FieldReader& a_reader, NameData& a_data )
{
    const auto set = [&a_reader, &a_data]( QString& a_text )
    {
        if ( !a_text.isEmpty() || a_reader.Text().empty() )
            return;
        a_text = StringOf( a_reader.Text() );
        a_data.ChangedExtras().m_moreIds.append( a_reader.Id() );
    };
    switch ( a_reader.Property() )
    {
    case PropertyId::PhoneticFamily:
        return set( a_data.m_phoneticFamily );
    case PropertyId::PhoneticGiven:
        return set( a_data.m_phoneticGiven );
    case PropertyId::PhoneticMiddle:
        return set( a_data.m_phoneticMiddle );
    default:
        return set( a_data.m_maidenName );
    }
}

/// \return the first N with a text, or its alternative in the caller's language.
PimContactName FirstName( const PimContactPrivate& a_contact )
{
    PimContactFieldPrivate* data = nullptr;
    FieldReader reader( a_contact );
    while ( data == nullptr && reader.Next( PropertyId::N ) )
        data = ReadName( reader );
    if ( data == nullptr )
        return PimContactName();
    reader.SetCommon( *data );
    const bool isOneOfSeveral = !data->Extras().m_altId.isEmpty();
    const auto name = PimContactFieldPrivate::FieldOf<PimContactName>( data );
    return isOneOfSeveral ? ReadFields<PimContactName>( a_contact, PropertyId::N, ReadName ).constFirst() : name;
}

/// Adds one field for each element of the line.
void AddElements( FieldReader& a_reader, PimContactList<PimContactText>& a_fields )
{
    TextData common;
    common.ReadKinds( a_reader );
    a_reader.SetCommon( common );
    PartReader parts = a_reader.Parts( Delimiters::Commas );
    for ( int element = 0; parts.Next(); ++element )
    {
        const std::string_view text = WithoutOuterSpace( parts.Text() );
        if ( text.empty() )
            continue;
        auto* const data = new TextData( common );
        data->m_text = StringOf( text );
        data->m_element = element;
        a_fields.append( PimContactFieldPrivate::FieldOf<PimContactText>( data ) );
    }
}

/// Adds the nickname of an X-ANDROID-CUSTOM.
void AddAndroidNickname( FieldReader& a_reader, PimContactList<PimContactText>& a_fields )
{
    const AndroidLine line( a_reader );
    a_reader.ReadParameters( NoKinds );
    if ( !line.Is( AndroidCustom::Item::Nickname ) )
        return;
    auto* const data = new TextData;
    data->m_text = StringOf( line.Custom().m_text );
    a_reader.SetCommon( *data );
    a_fields.append( PimContactFieldPrivate::FieldOf<PimContactText>( data ) );
}

} // namespace

PimContactName ReadNames( const PimContactPrivate& a_contact )
{
    static const PropertySet s_additions = SetOf(
        { PropertyId::PhoneticFamily, PropertyId::PhoneticGiven, PropertyId::PhoneticMiddle, PropertyId::MaidenName } );
    PimContactName name = FirstName( a_contact );
    if ( !a_contact.m_lines.Has( s_additions ) )
        return name;
    auto& data = PimContactFieldPrivate::ChangedDataOf<NameData>( name );
    for ( FieldReader reader( a_contact ); reader.Next( s_additions ); )
        AddToName( reader, data );
    return name;
}

PimContactList<PimContactText> ReadElements( const PimContactPrivate& a_contact, PropertyId a_property )
{
    PropertySet properties = SetOf( { a_property } );
    properties.set( static_cast<size_t>( PropertyId::AndroidCustom ), a_property == PropertyId::Nickname );
    PimContactList<PimContactText> fields;
    if ( !a_contact.m_lines.Has( properties ) )
        return fields;
    bool hasAlternatives = false;
    for ( FieldReader reader( a_contact ); reader.Next( properties ); )
    {
        if ( reader.Property() == PropertyId::AndroidCustom )
            AddAndroidNickname( reader, fields );
        else
            AddElements( reader, fields );
        hasAlternatives = hasAlternatives || !reader.Parameters().First( FieldParameter::AltId ).empty();
    }
    if ( hasAlternatives )
        MergeAlternatives( fields, a_contact.m_languages );
    return fields;
}

PimContactList<PimContactText> ReadTexts( const PimContactPrivate& a_contact, PropertyId a_property )
{
    return ReadFields<PimContactText>( a_contact, a_property, ReadText );
}

std::optional<QPair<int, QString>> PidEntryOf( std::string_view a_text )
{
    int number = 0;
    const auto result = std::from_chars( a_text.data(), a_text.data() + a_text.size(), number );
    const auto place = static_cast<size_t>( result.ptr - a_text.data() );
    if ( result.ec != std::errc() || number <= 0 || place == a_text.size() || a_text[place] != ';' )
        return std::nullopt;
    return QPair<int, QString>( number, StringOf( WithoutOuterSpace( a_text.substr( place + 1 ) ) ) );
}

QString FirstText( const PimContactPrivate& a_contact, PropertyId a_property )
{
    for ( FieldReader reader( a_contact ); reader.Next( a_property ); )
    {
        if ( !reader.Text().empty() )
            return StringOf( reader.Text() );
    }
    return QString();
}

PimContactDate FirstDate( const PimContactPrivate& a_contact, PropertyId a_property )
{
    for ( FieldReader reader( a_contact ); reader.Next( a_property ); )
    {
        reader.ReadParameters( NoKinds );
        const PimContactDate date = ReadDateField( reader );
        if ( !date.IsNull() )
            return date;
    }
    return PimContactDate();
}

} // namespace PimManager::Contacts
