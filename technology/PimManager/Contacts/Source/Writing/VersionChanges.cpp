#include "Writing/VersionChanges.h"

#include "Contact/DateParser.h"
#include "Contact/DateText.h"
#include "Contact/GeoValue.h"
#include "Contact/KindWords.h"
#include "Contact/LineParameters.h"
#include "Contact/Messenger.h"
#include "Contact/NamedMediaType.h"
#include "Contact/NumberAndMail.h"
#include "Contact/RelationWords.h"
#include "Contact/UriPieces.h"
#include "Lines/KnownNames.h"
#include "Text/Bytes.h"
#include "Text/FileSignature.h"
#include "Text/MediaType.h"
#include "Text/Uri.h"
#include "Text/WhiteSpace.h"
#include "Values/ParameterReader.h"
#include "Writing/PropertyReader.h"
#include "Writing/VersionTable.h"

#include <PimManager/Contacts/PimContact.h>

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <set>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactWriteCode;

constexpr std::string_view s_kOmitYear = "X-APPLE-OMIT-YEAR";
constexpr std::string_view s_kOmittedYear = "1604";
constexpr std::string_view s_kServiceType = "X-SERVICE-TYPE";
constexpr std::string_view s_kUser = "X-USER";

bool IsPref( const ParameterText& a_parameter )
{
    return a_parameter.Is( StandardParameter::Type ) && IsSameWord( a_parameter.m_value, "pref" );
}

std::optional<int> NumberIn( std::string_view a_text )
{
    const std::string_view text = WithoutOuterSpace( a_text );
    int number = 0;
    const auto result = std::from_chars( text.data(), text.data() + text.size(), number );
    const bool isNumber = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return isNumber ? std::optional<int>( number ) : std::nullopt;
}

template <class IsUnwanted>
bool RemoveIf( Property& a_property, IsUnwanted a_isUnwanted )
{
    const auto end = std::remove_if( a_property.m_parameters.begin(), a_property.m_parameters.end(), a_isUnwanted );
    const bool isRemoved = end != a_property.m_parameters.end();
    a_property.m_parameters.erase( end, a_property.m_parameters.end() );
    return isRemoved;
}

std::string_view FirstNamed( const Property& a_property, std::string_view a_name )
{
    for ( const ParameterText& parameter : a_property.m_parameters )
    {
        if ( IsSameWord( parameter.m_name, a_name ) )
            return parameter.m_value;
    }
    return std::string_view();
}

void RemoveNamed( Property& a_property, std::string_view a_name )
{
    RemoveIf( a_property,
              [a_name]( const ParameterText& a_parameter ) { return IsSameWord( a_parameter.m_name, a_name ); } );
}

void AddType( Property& a_property, std::string_view a_word )
{
    // The words of one parameter follow each other.
    const auto isType = []( const ParameterText& a_parameter ) { return a_parameter.Is( StandardParameter::Type ); };
    const auto last = std::find_if( a_property.m_parameters.rbegin(), a_property.m_parameters.rend(), isType );
    a_property.m_parameters.insert( last.base() == a_property.m_parameters.begin() ? a_property.m_parameters.end()
                                                                                   : last.base(),
                                    { s_kTypeParameter, a_word, StandardParameter::Type } );
}

bool AreEmpty( const std::vector<ValueText>& a_texts, quint32 a_component )
{
    return std::all_of( a_texts.begin(), a_texts.end(),
                        [a_component]( const ValueText& a_text )
                        { return a_text.m_component != a_component || a_text.m_text.empty(); } );
}

/// Puts texts into a component, after its others.
void AddTexts( std::vector<ValueText>& a_texts, quint32 a_component, const std::vector<std::string_view>& a_added )
{
    if ( a_added.empty() )
        return;
    const auto isBehind = [a_component]( const ValueText& a_other ) { return a_other.m_component > a_component; };
    auto place = std::find_if( a_texts.begin(), a_texts.end(), isBehind );
    const bool isLastEmpty =
        place != a_texts.begin() && ( place - 1 )->m_component == a_component && ( place - 1 )->m_text.empty();
    if ( isLastEmpty )
        place = a_texts.erase( place - 1 );
    std::vector<ValueText> added;
    added.reserve( a_added.size() );
    for ( const std::string_view text : a_added )
        added.push_back( { text, a_component } );
    a_texts.insert( place, added.begin(), added.end() );
}

/// Puts the texts of one component into another one as well, except for those that it has.
void CopyTexts( std::vector<ValueText>& a_texts, quint32 a_from, quint32 a_to )
{
    std::set<std::string_view> known = { std::string_view() };
    for ( const ValueText& text : a_texts )
    {
        if ( text.m_component == a_to )
            known.insert( text.m_text );
    }
    std::vector<std::string_view> added;
    for ( const ValueText& text : a_texts )
    {
        if ( text.m_component == a_from && known.insert( text.m_text ).second )
            added.push_back( text.m_text );
    }
    AddTexts( a_texts, a_to, added );
}

// A user name that is the same in a URI.
bool IsPlainUser( std::string_view a_text )
{
    return !a_text.empty() &&
           std::all_of( a_text.begin(), a_text.end(),
                        []( char a_byte )
                        { return IsNameByte( a_byte ) || a_byte == '.' || a_byte == '_' || a_byte == '@'; } );
}

/// \return true if a TYPE word is a name of a media type, such as JPG for image/jpeg.
bool DoesName( std::string_view a_word, std::string_view a_mediaType )
{
    const size_t slash = a_mediaType.find( '/' );
    if ( slash == std::string_view::npos )
        return false;
    const std::string_view subtype = a_mediaType.substr( slash + 1 );
    return IsSameWord( a_word, subtype ) || IsSameWord( a_word, a_mediaType ) ||
           ( IsSameWord( a_word, "JPG" ) && subtype == "jpeg" ) ||
           ( IsSameWord( a_word, "PGP" ) && subtype == "pgp-keys" ) ||
           ( IsSameWord( a_word, "X509" ) && subtype == "pkix-cert" );
}

bool IsDateProperty( PropertyId a_property )
{
    return a_property == PropertyId::Bday || a_property == PropertyId::Anniversary ||
           a_property == PropertyId::DeathDate;
}

/// \return the type that VALUE names, if the date is of that type.
ValueType DayTypeOf( const DateFields& a_fields, ValueType a_named )
{
    const bool isDate = a_named == ValueType::Date && a_fields.HasDate() && !a_fields.HasTime();
    const bool isBoth = a_named == ValueType::DateTime && a_fields.HasDate() && a_fields.HasTime();
    return isDate || isBoth ? a_named : ValueType::DateAndOrTime;
}

bool IsMediaWord( const ParameterText& a_parameter )
{
    return a_parameter.Is( StandardParameter::Type ) && !IsPref( a_parameter ) &&
           KindsOf( a_parameter.m_value ) == PimContactKinds();
}

} // namespace

std::string_view VersionChanges::Keep( const QByteArray& a_text )
{
    m_texts.push_back( a_text );
    return ViewOf( m_texts.back() );
}

void VersionChanges::Note( PimContactWriteCode a_code, std::string_view a_detail )
{
    m_notes.Add( a_code, m_oldName, a_detail );
}

void VersionChanges::BeginCard( const PimContactCard& a_card, const PropertySet& a_properties )
{
    m_card = a_card;
    m_source = KnownVersion( a_card.Version() );
    m_sortLine = 0;
    m_sortText.clear();
    m_labels.clear();
    m_labelLines.clear();
    m_agents.clear();
    m_hasAgents = false;
    m_groups.reset();
    const bool hasLabel = a_properties[static_cast<size_t>( PropertyId::Label )];
    m_hasSortString = a_properties[static_cast<size_t>( PropertyId::SortString )];
    if ( Is40() && IsOtherVersion() && m_hasSortString )
        FindSortName();
    if ( Is40() && IsOtherVersion() && hasLabel )
        FindLabels();
}

// A reader divides SORT-AS at its commas.
void VersionChanges::FindSortName()
{
    const PimContactName name = PimContact( m_card ).Name();
    if ( name.IsEmpty() || !name.SortAs().isEmpty() )
        return;
    for ( const PimContactLine& line : m_card )
    {
        if ( PropertyOf( ViewOf( line.Name() ) ) == PropertyId::SortString && m_sortText.isEmpty() )
            m_sortText = line.Text().trimmed().toUtf8();
    }
    const bool isPlain = m_sortText == m_sortText.simplified() && !m_sortText.contains( ',' );
    m_sortLine = m_sortText.isEmpty() || !isPlain ? 0 : name.Id();
}

void VersionChanges::FindLabels()
{
    const PimContactList<PimContactAddress> addresses = PimContact( m_card ).Addresses();
    for ( const PimContactAddress& address : addresses )
    {
        if ( address.DeliveryText().isEmpty() )
            continue;
        m_labels.insert( address.Id(), address.DeliveryText().toUtf8() );
        const QList<int> lines = address.LineIds();
        for ( const int line : lines )
            m_labelLines.insert( line, true );
    }
}

void VersionChanges::FindAgents()
{
    if ( m_hasAgents )
        return;
    m_hasAgents = true;
    const PimContactList<PimContactRelation> relations = PimContact( m_card ).Relations();
    for ( const PimContactRelation& relation : relations )
    {
        if ( !relation.Contact().IsNull() )
            m_agents.insert( relation.Id(), relation.Text().toUtf8() );
    }
}

QByteArray VersionChanges::FreeGroup()
{
    if ( !m_groups )
    {
        m_groups.emplace();
        for ( const PimContactLine& line : m_card )
            m_groups->Add( line.Group() );
    }
    return m_groups->Take();
}

void VersionChanges::Take( Property& a_property )
{
    m_texts.clear();
    m_oldName = a_property.m_name;
    m_label = m_position = m_timeZone = m_country = std::string_view();
    if ( !m_sortAs.isEmpty() )
        m_sortAs.clear();
    if ( a_property.m_property == PropertyId::SortString && Is40() && IsOtherVersion() &&
         ChangeSortString( a_property ) )
        return;
    if ( a_property.m_property == PropertyId::Label && Is40() && IsOtherVersion() && ChangeLabel( a_property ) )
        return;
    if ( a_property.m_property == PropertyId::Adr )
        TakeOut( a_property );
    if ( a_property.m_property == PropertyId::N && a_property.m_line == m_sortLine && m_sortLine > 0 )
        a_property.m_parameters.push_back( { "SORT-AS", ViewOf( m_sortText ), StandardParameter::SortAs } );
    ChangeValue( a_property );
    if ( !a_property.m_parameters.empty() )
        ChangeParameters( a_property );
    if ( IsOtherVersion() )
        ChangeName( a_property );
    ChangeType( a_property );
    Emit( a_property );
}

void VersionChanges::Emit( Property& a_property )
{
    const bool hasParts = !m_label.empty() || !m_position.empty() || !m_timeZone.empty() || !m_country.empty();
    if ( hasParts && a_property.m_group.empty() )
        a_property.m_group = Keep( FreeGroup() );
    m_sink.Take( a_property );
    if ( hasParts )
        EmitParts( a_property );
    if ( m_sortAs.isEmpty() )
        return;
    m_part.Clear();
    m_part.m_name = NameIn( "SORT-STRING", PropertyId::SortString, m_target );
    m_part.m_property = PropertyId::SortString;
    m_part.SetText( ViewOf( m_sortAs ) );
    m_sink.Take( m_part );
    m_hasSortString = true;
}

// The lines of the group of an address, before 4.0.
void VersionChanges::EmitParts( const Property& a_address )
{
    EmitPart( "LABEL", PropertyId::Label, m_label, a_address );
    EmitPart( "TZ", PropertyId::Tz, m_timeZone, a_address );
    EmitPart( "X-ABADR", PropertyId::AddressCountry, m_country, a_address );
    if ( m_position.empty() )
        return;
    m_part.Clear();
    m_part.m_group = a_address.m_group;
    m_part.m_name = "GEO";
    m_part.m_property = PropertyId::Geo;
    m_part.m_type = ValueType::Uri;
    m_part.SetText( m_position );
    const PimContactVersion source = m_source;
    m_source = PimContactVersion::V40;
    ChangePosition( m_part );
    m_source = source;
    m_sink.Take( m_part );
}

void VersionChanges::EmitPart( std::string_view a_name, PropertyId a_id, std::string_view a_text,
                               const Property& a_address )
{
    if ( a_text.empty() )
        return;
    m_part.Clear();
    m_part.m_group = a_address.m_group;
    m_part.m_name = a_name;
    m_part.m_property = a_id;
    if ( a_id == PropertyId::Label )
    {
        for ( const ParameterText& parameter : a_address.m_parameters )
        {
            if ( parameter.Is( StandardParameter::Type ) && !IsPref( parameter ) )
                m_part.m_parameters.push_back( parameter );
        }
    }
    m_part.m_type = a_id == PropertyId::AddressCountry ? ValueType::Other : ValueType::Text;
    m_part.SetText( a_text );
    m_sink.Take( m_part );
}

// Takes those parameters of an address that are lines of its group before 4.0.
void VersionChanges::TakeOut( Property& a_address )
{
    if ( Is40() )
    {
        const auto label = m_labels.constFind( a_address.m_line );
        if ( label != m_labels.constEnd() && a_address.First( StandardParameter::Label ).empty() )
            a_address.m_parameters.push_back( { "LABEL", ViewOf( *label ), StandardParameter::Label } );
        return;
    }
    m_label = a_address.First( StandardParameter::Label );
    m_timeZone = a_address.First( StandardParameter::Tz );
    m_country = a_address.First( StandardParameter::Cc );
    m_position = a_address.First( StandardParameter::Geo );
    if ( !m_position.empty() && !GeoPositionOf( m_position, PimContactVersion::V40 ) )
        m_position = std::string_view();
    RemoveIf( a_address,
              [this]( const ParameterText& a_parameter )
              {
                  return a_parameter.Is( StandardParameter::Label ) || a_parameter.Is( StandardParameter::Tz ) ||
                         a_parameter.Is( StandardParameter::Cc ) ||
                         ( a_parameter.Is( StandardParameter::Geo ) && !m_position.empty() );
              } );
    // An address that consists only of its label.
    const bool isEmpty = std::all_of( a_address.m_texts.begin(), a_address.m_texts.end(),
                                      []( const ValueText& a_text ) { return a_text.m_text.empty(); } );
    if ( !isEmpty || m_label.empty() || !m_timeZone.empty() || !m_country.empty() || !m_position.empty() )
        return;
    a_address.m_name = "LABEL";
    a_address.m_property = PropertyId::Label;
    a_address.SetText( m_label );
    m_label = std::string_view();
}

void VersionChanges::ChangeParameters( Property& a_property )
{
    m_hasPref = !a_property.First( StandardParameter::Pref ).empty();
    RemoveIf( a_property, [this, &a_property]( ParameterText& a_parameter )
              { return !KeepsParameter( a_property, a_parameter ); } );
    if ( m_addsPref )
        AddType( a_property, "PREF" );
    m_addsPref = false;
}

bool VersionChanges::KeepsParameter( Property& a_property, ParameterText& a_parameter )
{
    if ( a_parameter.Is( StandardParameter::Pref ) || IsPref( a_parameter ) )
        return KeepsPreference( a_parameter );
    if ( a_parameter.Is( StandardParameter::Value ) )
        return !IsOtherVersion() || IsExtensionName( a_parameter.m_value );
    // RFC 7095, section 7.1.
    const bool isReserved =
        a_parameter.Is( StandardParameter::Other ) && Is40() && IsReservedParameter( a_parameter.m_name );
    if ( isReserved )
    {
        Note( Code::ParameterDropped, a_parameter.m_name );
        return false;
    }
    if ( a_parameter.Is( StandardParameter::Other ) ||
         !SectionOf( a_parameter.m_parameter, m_target ).m_number.empty() )
        return true;
    if ( a_parameter.Is( StandardParameter::SortAs ) && a_property.m_property == PropertyId::N && !m_hasSortString )
    {
        m_sortAs.append( m_sortAs.isEmpty() ? "" : " " );
        m_sortAs.append( BytesOf( a_parameter.m_value ).replace( ',', ' ' ).simplified() );
        return false;
    }
    Note( Code::ParameterDropped, a_parameter.m_name );
    return false;
}

bool VersionChanges::KeepsPreference( ParameterText& a_parameter )
{
    const bool isType = IsPref( a_parameter );
    if ( isType != Is40() )
        return true;
    if ( isType )
    {
        const bool isFirst = !m_hasPref;
        m_hasPref = true;
        a_parameter = { "PREF", "1", StandardParameter::Pref };
        return isFirst;
    }
    if ( NumberIn( a_parameter.m_value ) == 1 )
        m_addsPref = true;
    else
        Note( Code::ParameterDropped, a_parameter.m_name );
    return false;
}

void VersionChanges::ChangeName( Property& a_property )
{
    const std::string_view name = NameIn( a_property.m_name, a_property.m_property, m_target );
    if ( name.data() == a_property.m_name.data() )
        return;
    if ( IsExtensionName( name ) )
        Note( Code::PropertyRenamed, name );
    a_property.m_name = name;
}

void VersionChanges::ChangeValue( Property& a_property )
{
    if ( a_property.m_isBinary || IsMediaProperty( a_property.m_property ) )
        return ChangeMedia( a_property );
    switch ( a_property.m_property )
    {
    case PropertyId::Bday:
    case PropertyId::Anniversary:
    case PropertyId::DeathDate:
        return ChangeDate( a_property );
    case PropertyId::Rev:
    case PropertyId::Created:
        return ChangeTimestamp( a_property );
    case PropertyId::Geo:
        return ChangePosition( a_property );
    case PropertyId::Tz:
        return ChangeOffset( a_property );
    case PropertyId::Tel:
        return ChangeNumber( a_property );
    case PropertyId::Email:
        return ChangeMail( a_property );
    case PropertyId::Messenger:
        return ChangeMessenger( a_property );
    case PropertyId::SocialProfile:
        return ChangeProfile( a_property );
    case PropertyId::Related:
        return ChangeRelation( a_property );
    case PropertyId::Agent:
        return ChangeAgent( a_property );
    case PropertyId::N:
        TrimName( a_property );
        break;
    case PropertyId::Adr:
        TrimAddress( a_property );
        break;
    default:
        break;
    }
    ChangeComponents( a_property );
}

// A type that the version does not allow for the property becomes the usual one.
void VersionChanges::ChangeType( Property& a_property ) const
{
    const PropertyRule* const rule =
        IsExtensionName( a_property.m_name ) ? nullptr : FindRule( a_property.m_property, m_target );
    const bool isMediaText = IsMediaProperty( a_property.m_property ) && a_property.m_type == ValueType::Text;
    if ( rule == nullptr || !a_property.IsText() || isMediaText || rule->m_types.Has( a_property.m_type ) )
        return;
    const bool isUri = IsUri( a_property.Text() );
    const bool isDay = IsDay( a_property.m_type ) && a_property.m_type != ValueType::Timestamp;
    if ( rule->m_defaultType == ValueType::Binary )
        a_property.m_type = isUri ? ValueType::Uri : ValueType::Text;
    else if ( rule->m_defaultType == ValueType::Uri && rule->m_types.Has( ValueType::Text ) && !isUri )
        a_property.m_type = ValueType::Text;
    else if ( !IsDateProperty( a_property.m_property ) ||
              ( a_property.m_type != ValueType::Text && !( Is40() && isDay ) ) )
        a_property.m_type = rule->m_defaultType;
}

void VersionChanges::ChangeComponents( Property& a_property )
{
    const PropertyRule* const rule = FindRule( a_property.m_property, m_target );
    std::vector<ValueText>& texts = a_property.m_texts;
    if ( rule == nullptr || texts.empty() || !IsOtherVersion() ||
         ( rule->m_shape != ValueShape::Components && rule->m_shape != ValueShape::ComponentLists ) )
        return;
    const quint32 count = texts.back().m_component + 1;
    if ( count < rule->m_leastComponents )
        texts.push_back( { std::string_view(), quint32( rule->m_leastComponents ) - 1 } );
    bool isLost = false;
    while ( rule->m_mostComponents != s_kAnyNumber && texts.back().m_component >= rule->m_mostComponents )
    {
        isLost = isLost || !texts.back().m_text.empty();
        texts.pop_back();
    }
    for ( size_t i = 1; m_target == PimContactVersion::V21 && i < texts.size(); ++i )
        isLost = isLost || texts[i].m_component == texts[i - 1].m_component;
    if ( isLost )
        Note( Code::ValueChanged );
}

// RFC 9554, section 2.2: the first family name and the suffixes have these texts, too.
void VersionChanges::TrimName( Property& a_property ) const
{
    constexpr quint32 s_kFamily = 0;
    constexpr quint32 s_kSuffix = 4;
    constexpr quint32 s_kSecondSurname = 5;
    constexpr quint32 s_kGeneration = 6;
    std::vector<ValueText>& texts = a_property.m_texts;
    if ( Is40() || !IsOtherVersion() || texts.empty() || texts.back().m_component < s_kSecondSurname )
        return;
    CopyTexts( texts, s_kSecondSurname, s_kFamily );
    CopyTexts( texts, s_kGeneration, s_kSuffix );
}

// RFC 9554, section 2.1: the street and the extended address have these texts, too.
void VersionChanges::TrimAddress( Property& a_property ) const
{
    constexpr quint32 s_kExtended = 1;
    constexpr quint32 s_kStreet = 2;
    constexpr quint32 s_kFirstExtra = 7;
    constexpr quint32 s_kStreetNumber = 10;
    constexpr quint32 s_kStreetName = 11;
    std::vector<ValueText>& texts = a_property.m_texts;
    if ( Is40() || !IsOtherVersion() || texts.empty() || texts.back().m_component < s_kFirstExtra ||
         !AreEmpty( texts, s_kExtended ) || !AreEmpty( texts, s_kStreet ) )
        return;
    std::vector<std::string_view> extended;
    std::vector<std::string_view> street;
    for ( const ValueText& text : texts )
    {
        if ( text.m_component < s_kFirstExtra || text.m_text.empty() )
            continue;
        const bool isStreet = text.m_component == s_kStreetNumber || text.m_component == s_kStreetName;
        ( isStreet ? street : extended ).push_back( text.m_text );
    }
    AddTexts( texts, s_kExtended, extended );
    AddTexts( texts, s_kStreet, street );
}

// In 4.0, an offset need not have minutes.
void VersionChanges::SetDate( Property& a_property, const DateFields& a_fields )
{
    const DateText text( a_fields, Is40() ? DateFormat::Basic : DateFormat::Extended );
    const std::string_view old = a_property.Text();
    const bool isSame = Is40() && !IsOtherVersion() && text.Text().substr( 0, old.size() ) == old &&
                        text.Text().substr( old.size() ) == "00";
    if ( !isSame )
        a_property.SetText( Keep( BytesOf( text.Text() ) ) );
}

void VersionChanges::ChangeDate( Property& a_property )
{
    const DateHint hint = a_property.m_type == ValueType::Text
                              ? DateHint::Text
                              : ( a_property.m_type == ValueType::Time ? DateHint::Time : DateHint::Any );
    const std::optional<int> omitted = NumberIn( FirstNamed( a_property, s_kOmitYear ) );
    std::optional<DateFields> fields = ReadDate( a_property.Text(), hint, omitted );
    if ( !fields )
    {
        if ( Is40() )
            a_property.m_type = ValueType::Text;
        return;
    }
    RemoveNamed( a_property, s_kOmitYear );
    const bool isYearOpen = !Is40() && !fields->m_year && fields->m_month && fields->m_day && !fields->HasTime();
    if ( isYearOpen )
    {
        a_property.m_parameters.push_back( { s_kOmitYear, s_kOmittedYear, StandardParameter::Other } );
        fields->m_year = NumberIn( s_kOmittedYear );
    }
    SetDate( a_property, *fields );
    if ( Is40() )
        a_property.m_type = IsOtherVersion() ? ValueType::DateAndOrTime : DayTypeOf( *fields, a_property.m_type );
    else if ( !fields->HasDate() )
        a_property.m_type = ValueType::Time;
    else
        a_property.m_type = fields->HasTime() ? ValueType::DateTime : ValueType::Date;
}

void VersionChanges::ChangeTimestamp( Property& a_property )
{
    const std::optional<DateFields> fields = ReadDate( a_property.Text() );
    if ( !fields || !fields->HasDate() )
        return;
    SetDate( a_property, *fields );
    a_property.m_type = Is40() ? ValueType::Timestamp : ( fields->HasTime() ? ValueType::DateTime : ValueType::Date );
}

void VersionChanges::ChangePosition( Property& a_property )
{
    if ( !IsOtherVersion() )
        return;
    std::string_view written = a_property.Text();
    QByteArray joined;
    if ( a_property.m_texts.size() == 2 )
    {
        joined = BytesOf( written ) + ';' + BytesOf( a_property.m_texts[1].m_text );
        written = ViewOf( joined );
    }
    const std::optional<PimContactPosition> position = GeoPositionOf( written, m_source );
    if ( !position )
        return Note( Code::ValueChanged );
    const auto number = []( double a_number )
    { return QString::number( a_number, 'f', QLocale::FloatingPointShortest ).toLatin1(); };
    // An altitude or an uncertainty cannot be written before 4.0.
    const std::string_view uri = WithoutOuterSpace( written );
    if ( !Is40() && ( std::count( uri.begin(), uri.end(), ',' ) > 1 ||
                      ( LengthOfScheme( uri ) > 0 && uri.find( ';' ) != std::string_view::npos ) ) )
        Note( Code::ValueChanged );
    if ( Is40() )
    {
        if ( LengthOfScheme( uri ) > 0 )
            return;
        a_property.SetText( Keep( GeoUriOf( *position ).toLatin1() ) );
        a_property.m_type = ValueType::Uri;
    }
    else if ( m_target == PimContactVersion::V21 )
    {
        a_property.SetText( Keep( number( position->m_longitude ) + ',' + number( position->m_latitude ) ) );
        a_property.m_type = ValueType::Coordinates;
    }
    else
    {
        a_property.m_shape = ValueShape::Components;
        a_property.m_texts.assign( 1, { Keep( number( position->m_latitude ) ), 0 } );
        a_property.m_texts.push_back( { Keep( number( position->m_longitude ) ), 1 } );
        a_property.m_type = ValueType::Float;
    }
}

void VersionChanges::ChangeOffset( Property& a_property )
{
    if ( !IsOtherVersion() )
        return;
    const std::optional<int> offset = ReadOffset( WithoutOuterSpace( a_property.Text() ) );
    const bool isOffset = offset && a_property.m_type != ValueType::Text;
    const bool isOldText = offset && m_source == PimContactVersion::V40;
    if ( !isOffset && !isOldText )
    {
        a_property.m_type = a_property.m_type == ValueType::Uri && Is40() ? ValueType::Uri : ValueType::Text;
        return;
    }
    const int minutes = std::abs( *offset );
    const QString form = Is40() ? QStringLiteral( "%1%2%3" ) : QStringLiteral( "%1%2:%3" );
    const QString text = form.arg( *offset < 0 ? QLatin1Char( '-' ) : QLatin1Char( '+' ) )
                             .arg( minutes / 60, 2, 10, QLatin1Char( '0' ) )
                             .arg( minutes % 60, 2, 10, QLatin1Char( '0' ) );
    a_property.SetText( Keep( text.toLatin1() ) );
    a_property.m_type = ValueType::UtcOffset;
}

void VersionChanges::ChangeNumber( Property& a_property )
{
    QByteArray buffer;
    if ( Is40() || !NumberPartsOf( a_property.Text(), buffer ).m_isUri )
        return;
    const NumberParts parts = NumberPartsOf( a_property.Text(), buffer );
    QByteArray number;
    const std::string_view text = Keep( BytesOf( NumberOf( a_property.Text(), number ) ) );
    QByteArray again;
    const NumberParts written = NumberPartsOf( text, again );
    if ( !parts.m_context.empty() || written.m_number != parts.m_number || written.m_extension != parts.m_extension )
        Note( Code::ValueChanged );
    a_property.SetText( text );
    a_property.m_type = ValueType::PhoneNumber;
}

// An EMAIL is an address in every version.
void VersionChanges::ChangeMail( Property& a_property )
{
    std::string_view rest = a_property.Text();
    QByteArray buffer;
    const MailParts parts = MailPartsOf( rest, buffer );
    if ( !RemoveScheme( rest, "mailto:" ) || !parts.m_name.empty() || parts.m_address.empty() )
        return;
    const std::string_view text = Keep( BytesOf( parts.m_address ) );
    QByteArray again;
    if ( MailOf( text, again ) != text )
        return;
    if ( rest.find( '?' ) != std::string_view::npos )
        Note( Code::ValueChanged );
    a_property.SetText( text );
    a_property.m_type = ValueType::Text;
}

void VersionChanges::ChangeMedia( Property& a_property )
{
    if ( a_property.m_isBinary )
    {
        RemoveAll( a_property, StandardParameter::MediaType );
        const auto word = std::find_if( a_property.m_parameters.begin(), a_property.m_parameters.end(), IsMediaWord );
        if ( word != a_property.m_parameters.end() && DoesName( word->m_value, a_property.m_mediaType ) )
            a_property.m_parameters.erase( word );
        if ( a_property.m_mediaType.empty() && Is40() )
            a_property.m_mediaType = MediaTypeBySignature( a_property.m_bytes.substr( 0, s_kSignatureBytes ) );
        return;
    }
    if ( a_property.m_type != ValueType::Uri || !IsOtherVersion() )
        return;
    const std::string_view mainType = MainTypeOf( a_property.m_property );
    if ( !Is40() )
    {
        const std::string_view type = a_property.First( StandardParameter::MediaType );
        const bool isUsual = IsSameWord( type.substr( 0, mainType.size() ), mainType );
        RemoveAll( a_property, StandardParameter::MediaType );
        if ( !type.empty() )
            a_property.m_parameters.insert(
                a_property.m_parameters.begin(),
                { s_kTypeParameter, isUsual ? Keep( BytesOf( type.substr( mainType.size() ) ).toUpper() ) : type,
                  StandardParameter::Type } );
        return;
    }
    const auto word = std::find_if( a_property.m_parameters.begin(), a_property.m_parameters.end(), IsMediaWord );
    if ( word == a_property.m_parameters.end() || !a_property.First( StandardParameter::MediaType ).empty() )
        return;
    const QByteArray subtype = BytesOf( word->m_value ).toLower();
    const QByteArray type = subtype.contains( '/' ) ? subtype : BytesOf( mainType ) + subtype;
    if ( IsMediaType( ViewOf( type ) ) )
        *word = { "MEDIATYPE", Keep( type ), StandardParameter::MediaType };
}

// A user name such as omega in X-JABBER is xmpp:omega in IMPP.
void VersionChanges::ChangeMessenger( Property& a_property )
{
    if ( !IsOtherVersion() )
        return;
    ChangeProfile( a_property );
    const std::string_view text = a_property.Text();
    if ( Is40() )
    {
        LineParameters none;
        QByteArray buffer;
        if ( !IsExtensionName( a_property.m_name ) || a_property.m_type == ValueType::Uri || !IsPlainUser( text ) )
            return;
        const MessengerService* const service =
            MessengerServiceOf( MessengerPartsOf( a_property.m_name, text, none, buffer ).m_service );
        const bool isUsual = service != nullptr && IsSameWord( service->m_property, a_property.m_name );
        if ( !isUsual || service->m_scheme.empty() )
            return;
        a_property.m_name = "IMPP";
        a_property.SetText( Keep( BytesOf( service->m_scheme ) + BytesOf( text ) ) );
        a_property.m_type = ValueType::Uri;
        return;
    }
    LineParameters none;
    QByteArray buffer;
    const MessengerParts parts = MessengerPartsOf( "IMPP", text, none, buffer );
    const MessengerService* const service = MessengerServiceOf( parts.m_service );
    if ( service == nullptr || service->m_property.empty() || service->m_scheme.empty() ||
         !IsPlainUser( parts.m_handle ) || BytesOf( text ) != BytesOf( service->m_scheme ) + BytesOf( parts.m_handle ) )
        return;
    Note( Code::PropertyRenamed, service->m_property );
    a_property.m_name = service->m_property;
    a_property.SetText( Keep( BytesOf( parts.m_handle ) ) );
    a_property.m_type = ValueType::Text;
}

// The parameters of RFC 9554 have other names before 4.0.
void VersionChanges::ChangeProfile( Property& a_property ) const
{
    for ( ParameterText& parameter : a_property.m_parameters )
    {
        if ( !Is40() && parameter.Is( StandardParameter::ServiceType ) )
            parameter = { s_kServiceType, parameter.m_value, StandardParameter::Other };
        else if ( !Is40() && parameter.Is( StandardParameter::UserName ) )
            parameter = { s_kUser, parameter.m_value, StandardParameter::Other };
        else if ( Is40() && IsSameWord( parameter.m_name, s_kServiceType ) )
            parameter = { "SERVICE-TYPE", parameter.m_value, StandardParameter::ServiceType };
        else if ( Is40() && IsSameWord( parameter.m_name, s_kUser ) )
            parameter = { "USERNAME", parameter.m_value, StandardParameter::UserName };
    }
    if ( !Is40() || a_property.m_property != PropertyId::SocialProfile || !IsOtherVersion() )
        return;
    const auto word = std::find_if( a_property.m_parameters.begin(), a_property.m_parameters.end(), IsMediaWord );
    if ( word != a_property.m_parameters.end() && a_property.First( StandardParameter::ServiceType ).empty() )
        *word = { "SERVICE-TYPE", word->m_value, StandardParameter::ServiceType };
}

void VersionChanges::ChangeRelation( Property& a_property )
{
    if ( !IsOtherVersion() )
        return;
    PimContactRelationKinds kinds;
    for ( const ParameterText& parameter : a_property.m_parameters )
    {
        if ( parameter.Is( StandardParameter::Type ) )
            kinds |= RelationKindsOf( parameter.m_value );
    }
    if ( Is40() )
    {
        const PimContactRelationKinds kind = RelationKindsOfProperty( a_property.m_name );
        const bool isUsual = IsSameWord( a_property.m_name, "X-SPOUSE" ) ||
                             IsSameWord( a_property.m_name, "X-MANAGER" ) ||
                             IsSameWord( a_property.m_name, "X-ASSISTANT" );
        if ( !isUsual )
            return;
        a_property.m_name = "RELATED";
        for ( const std::string_view word : RelationWordsOf( kind, m_target ) )
            AddType( a_property, word );
        return;
    }
    if ( !IsSameWord( a_property.m_name, "RELATED" ) )
        return;
    struct Usual
    {
        PimContactRelationKind m_kind;
        std::string_view m_name;
    };
    constexpr std::array s_kUsual = {
        Usual{ PimContactRelationKind::Spouse, "X-SPOUSE" }, Usual{ PimContactRelationKind::Manager, "X-MANAGER" },
        Usual{ PimContactRelationKind::Assistant, "X-ASSISTANT" }, Usual{ PimContactRelationKind::Agent, "AGENT" } };
    for ( const Usual& usual : s_kUsual )
    {
        // AGENT has no VALUE that a reader needs.
        const bool isOther = usual.m_kind == PimContactRelationKind::Agent &&
                             ( a_property.m_type == ValueType::Uri ) != IsUri( a_property.Text() );
        if ( isOther || kinds != PimContactRelationKinds( usual.m_kind ) )
            continue;
        Note( Code::PropertyRenamed, usual.m_name );
        a_property.m_name = usual.m_name;
        if ( usual.m_kind == PimContactRelationKind::Agent )
            a_property.m_property = PropertyId::Agent;
        RemoveIf( a_property,
                  []( const ParameterText& a_parameter )
                  {
                      return a_parameter.Is( StandardParameter::Type ) &&
                             RelationKindsOf( a_parameter.m_value ) != PimContactRelationKinds();
                  } );
        return;
    }
}

// Version 4.0 has the name of the agent, but not its card.
void VersionChanges::ChangeAgent( Property& a_property )
{
    if ( !Is40() )
        return;
    AddType( a_property, "agent" );
    Note( Code::PropertyRenamed, "RELATED" );
    a_property.m_name = "RELATED";
    a_property.m_property = PropertyId::Related;
    FindAgents();
    const auto agent = m_agents.constFind( a_property.m_line );
    if ( agent != m_agents.constEnd() )
    {
        Note( Code::ValueChanged );
        a_property.m_nested = PimContactCard();
        a_property.SetText( ViewOf( *agent ) );
        a_property.m_type = ValueType::Text;
        return;
    }
    a_property.m_type = IsUri( a_property.Text() ) ? ValueType::Uri : ValueType::Text;
}

/// \return true if the text is a parameter of N.
bool VersionChanges::ChangeSortString( Property& a_property )
{
    return m_sortLine > 0 && WithoutOuterSpace( a_property.Text() ) == ViewOf( m_sortText );
}

/// \return true if the text is a parameter of an address. Otherwise the address has nothing else.
bool VersionChanges::ChangeLabel( Property& a_property )
{
    if ( !m_labels.contains( a_property.m_line ) )
    {
        if ( !m_labelLines.contains( a_property.m_line ) && !WithoutOuterSpace( a_property.Text() ).empty() )
            Note( Code::PropertyDropped );
        return true;
    }
    constexpr quint32 s_kComponents = 7;
    a_property.m_parameters.push_back(
        { "LABEL", ViewOf( *m_labels.constFind( a_property.m_line ) ), StandardParameter::Label } );
    a_property.m_name = "ADR";
    a_property.m_property = PropertyId::Adr;
    a_property.m_shape = ValueShape::ComponentLists;
    a_property.m_type = ValueType::Text;
    a_property.m_texts.assign( 1, { std::string_view(), 0 } );
    a_property.m_texts.push_back( { std::string_view(), s_kComponents - 1 } );
    return false;
}

bool VersionChanges::RemoveAll( Property& a_property, StandardParameter a_parameter )
{
    return RemoveIf( a_property, [a_parameter]( const ParameterText& a_each ) { return a_each.Is( a_parameter ); } );
}

} // namespace PimManager::Contacts
