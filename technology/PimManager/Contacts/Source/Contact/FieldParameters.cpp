#include "Contact/FieldParameters.h"

#include "Contact/ParameterValues.h"
#include "Lines/ParameterTable.h"
#include "Lines/PropertyTable.h"
#include "Text/Bytes.h"
#include "Text/WordTable.h"
#include "Values/ParameterMemory.h"
#include "Values/ParameterReader.h"
#include "Values/PlainParameters.h"

#include <algorithm>
#include <array>

namespace PimManager::Contacts
{

namespace
{

using Row = WordRow<FieldParameter>;

constexpr WordTable s_kVendorParameters( std::array{
    Row{ "X-ABCROP-RECTANGLE", FieldParameter::Crop },
    Row{ "X-APPLE-OMIT-YEAR", FieldParameter::OmittedYear },
    Row{ "X-CUSTOM", FieldParameter::Custom },
    Row{ "X-SERVICE-TYPE", FieldParameter::ServiceType },
    Row{ "X-USER", FieldParameter::UserName },
    Row{ "X-USERID", FieldParameter::UserName },
} );
static_assert( s_kVendorParameters.HasAllWords() );

FieldParameter FieldParameterOf( StandardParameter a_parameter )
{
    switch ( a_parameter )
    {
    case StandardParameter::AltId:
        return FieldParameter::AltId;
    case StandardParameter::CalScale:
        return FieldParameter::Calendar;
    case StandardParameter::Cc:
        return FieldParameter::CountryCode;
    case StandardParameter::Geo:
        return FieldParameter::Geo;
    case StandardParameter::Label:
        return FieldParameter::Label;
    case StandardParameter::Language:
        return FieldParameter::Language;
    case StandardParameter::Level:
        return FieldParameter::Level;
    case StandardParameter::MediaType:
        return FieldParameter::MediaType;
    case StandardParameter::Pref:
        return FieldParameter::Preference;
    case StandardParameter::ServiceType:
        return FieldParameter::ServiceType;
    case StandardParameter::SortAs:
        return FieldParameter::SortAs;
    case StandardParameter::Type:
        return FieldParameter::Type;
    case StandardParameter::Tz:
        return FieldParameter::TimeZone;
    case StandardParameter::UserName:
        return FieldParameter::UserName;
    case StandardParameter::Value:
        return FieldParameter::Value;
    default:
        return FieldParameter::Other;
    }
}

// Words of TYPE that are neither kinds nor labels.
constexpr std::array<std::string_view, 3> s_kStandardWords = { "INTERNET", "VOICE", "X400" };

bool IsStandardWord( std::string_view a_word )
{
    return std::any_of( s_kStandardWords.begin(), s_kStandardWords.end(),
                        [a_word]( std::string_view a_standard ) { return IsSameWord( a_word, a_standard ); } );
}

} // namespace

FieldParameter FieldParameterOf( std::string_view a_name )
{
    return IsExtensionName( a_name ) ? s_kVendorParameters.Of( a_name, FieldParameter::Other )
                                     : FieldParameterOf( StandardParameterOf( a_name ) );
}

void FieldParameters::Read( const IndexedLine& a_line, KindsOf a_kindsOf )
{
    Clear();
    if ( a_line.m_entry.m_parameters.m_length == 0 )
        return;
    constexpr quint32 s_kLong = 512;
    m_isLarge = m_isLarge || a_line.m_entry.m_parameters.m_length > s_kLong;
    QByteArray buffer;
    const std::string_view written = a_line.Parameters( buffer );
    thread_local ParameterMemory<Meaning> t_memory;
    const Meaning* const known = t_memory.Find( written, a_kindsOf );
    if ( known != nullptr )
        m_meaning = *known;
    else if ( buffer.isEmpty() && PlainParameters::AreIn( written ) )
    {
        ReadPlain( written, a_kindsOf );
        if ( m_values.empty() && m_customType.empty() )
            t_memory.Remember( written, a_kindsOf, m_meaning );
    }
    else
        ReadAny( m_decoder.emplace().Parameters( a_line ), a_line.m_card.m_record.Version(), a_kindsOf );
}

void FieldParameters::ReadPlain( std::string_view a_parameters, KindsOf a_kindsOf )
{
    m_texts.Begin( a_parameters );
    for ( PlainParameters reader( a_parameters ); reader.Next(); )
    {
        // Most bare words are kinds.
        const bool isBareKind = reader.Name().empty() && a_kindsOf( reader.Value() ) != 0;
        if ( isBareKind || IsSameWord( reader.Name(), s_kTypeParameter ) )
            TakeType( reader.Value(), a_kindsOf );
        else
            Take( reader.Name().empty() ? NameOfBare( reader.Value() ) : reader.Name(), reader.Value(), a_kindsOf );
    }
}

void FieldParameters::ReadAny( std::string_view a_parameters, PimContactVersion a_version, KindsOf a_kindsOf )
{
    m_texts.Begin( a_parameters );
    for ( ParameterReader reader( a_parameters, a_version ); reader.Next(); )
        Take( reader.Name(), reader.Value(), a_kindsOf );
}

void FieldParameters::Take( std::string_view a_name, std::string_view a_value, KindsOf a_kindsOf )
{
    const FieldParameter parameter = FieldParameterOf( a_name );
    QByteArray buffer;
    if ( parameter == FieldParameter::Type )
        TakeType( TypeWordIn( a_value, buffer ), a_kindsOf );
    else if ( parameter == FieldParameter::Preference )
        TakePreference( a_value );
    else if ( parameter != FieldParameter::Other )
        m_values.emplace_back( parameter, m_texts.Keep( a_value ) );
}

std::string_view FieldParameters::First( FieldParameter a_parameter ) const
{
    for ( const auto& [parameter, value] : m_values )
    {
        if ( parameter == a_parameter )
            return value;
    }
    return std::string_view();
}

void FieldParameters::TakeType( std::string_view a_word, KindsOf a_kindsOf )
{
    if ( a_word.empty() )
        return;
    if ( IsPreferredType( a_word ) )
    {
        m_meaning.m_isPreferred = true;
        return;
    }
    const quint32 kinds = a_kindsOf( a_word );
    m_meaning.m_kinds |= kinds;
    if ( kinds == 0 && m_customType.empty() && !IsStandardWord( a_word ) )
        m_customType = m_texts.Keep( a_word );
}

// The first one is used, even if it is not a preference.
void FieldParameters::TakePreference( std::string_view a_value )
{
    if ( !m_meaning.m_hasPreference )
        m_meaning.m_preference = PreferenceIn( a_value );
    m_meaning.m_hasPreference = true;
}

} // namespace PimManager::Contacts
