#include "Conformance/ParameterCheck.h"

#include "Conformance/DateForms.h"
#include "Conformance/LanguageTag.h"
#include "Conformance/Uri.h"
#include "Conformance/ValueForms.h"
#include "Lines/KnownTypes.h"
#include "Text/Bytes.h"
#include "Text/MediaType.h"
#include "Values/ParameterReader.h"

#include <algorithm>
#include <array>
#include <limits>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactFindingCode;
using namespace std::string_view_literals;

constexpr std::array s_kEncodings21 = { "7BIT"sv, "8BIT"sv, "QUOTED-PRINTABLE"sv, "BASE64"sv };
constexpr std::array s_kLevels = { "beginner"sv, "average"sv, "expert"sv, "high"sv, "medium"sv, "low"sv };
constexpr int s_kLeastPreference = 100;
constexpr size_t s_kLongestPropId = 255;

// The sections that define the parameters, and that each has a name.
constexpr StandardSection s_kNames21 = { Standard::VCard21, "2.9" };
constexpr StandardSection s_kNames30 = { Standard::Rfc2426, "5" };
constexpr StandardSection s_kNames40 = { Standard::Rfc6350, "5" };

StandardSection SectionOfNames( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return s_kNames21;
    case PimContactVersion::V30:
        return s_kNames30;
    default:
        return s_kNames40;
    }
}

template <size_t s_kSize>
bool IsOneOf( std::string_view a_word, const std::array<std::string_view, s_kSize>& a_words )
{
    return std::any_of( a_words.begin(), a_words.end(),
                        [a_word]( std::string_view a_other ) { return IsSameWord( a_word, a_other ); } );
}

bool IsEncoding( std::string_view a_word, PimContactVersion a_version )
{
    if ( IsExtensionName( a_word ) )
        return true;
    return a_version == PimContactVersion::V21 ? IsOneOf( a_word, s_kEncodings21 ) : IsSameWord( a_word, "b" );
}

bool IsPropIdByte( char a_byte )
{
    return IsNameByte( a_byte ) || a_byte == '_';
}

bool IsPropId( std::string_view a_text )
{
    return !a_text.empty() && a_text.size() <= s_kLongestPropId &&
           std::all_of( a_text.begin(), a_text.end(), IsPropIdByte );
}

// RFC 6350 restricts these two, and allows any other parameter with any property. In 3.0, the grammar of each property
// lists its parameters. The grammar of 2.1 allows all.
bool IsRestricted( StandardParameter a_parameter, PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V30:
        return true;
    case PimContactVersion::V40:
        return a_parameter == StandardParameter::Type || a_parameter == StandardParameter::Pid;
    default:
        return false;
    }
}

} // namespace

void ParameterCheck::Check( const IndexedLine& a_line, const PropertyRule* a_rule )
{
    m_version = a_line.m_card.m_record.Version();
    m_rule = a_rule;
    m_hasValueType = false;
    m_valueType = ValueType::Other;
    m_hasAltId = false;
    if ( a_line.m_entry.m_parameters.m_length == 0 )
        return;
    for ( ParameterReader reader( m_decoder.Parameters( a_line ), m_version ); reader.Next(); )
    {
        if ( reader.IsFirst() )
            CheckName( reader.Name(), reader.IsBare() );
        const StandardParameter parameter = StandardParameterOf( reader.Name() );
        const bool isKnown =
            parameter != StandardParameter::Other && !SectionOf( parameter, m_version ).m_number.empty();
        const bool isNamed = !reader.IsBare() || m_version == PimContactVersion::V21;
        if ( isKnown && isNamed )
            CheckValue( parameter, reader.Value() );
    }
}

void ParameterCheck::CheckName( std::string_view a_name, bool a_isBare )
{
    if ( a_isBare )
        return CheckBare( a_name );
    if ( IsExtensionName( a_name ) )
        return;
    const StandardParameter parameter = StandardParameterOf( a_name );
    if ( parameter == StandardParameter::Other || SectionOf( parameter, m_version ).m_number.empty() )
        m_violations.Add( Code::UnknownParameter, SectionOfNames( m_version ) );
    else
        CheckPlace( parameter );
}

void ParameterCheck::CheckBare( std::string_view a_name )
{
    // Types, encodings and the kinds of VALUE need no name in 2.1.
    if ( m_version != PimContactVersion::V21 || StandardParameterOf( a_name ) == StandardParameter::Charset )
        m_violations.Add( Code::BareParameter, SectionOfNames( m_version ) );
}

void ParameterCheck::CheckPlace( StandardParameter a_parameter )
{
    if ( m_rule == nullptr || !IsRestricted( a_parameter, m_version ) || m_rule->m_parameters.Has( a_parameter ) )
        return;
    const bool is30 = m_version == PimContactVersion::V30;
    m_violations.Add( Code::MisplacedParameter, is30 ? m_rule->m_section : SectionOf( a_parameter, m_version ),
                      NameOf( m_rule->m_property ), NameOf( a_parameter ) );
}

void ParameterCheck::CheckValue( StandardParameter a_parameter, std::string_view a_value )
{
    switch ( a_parameter )
    {
    case StandardParameter::Value:
        CheckValueType( a_value );
        break;
    case StandardParameter::Encoding:
        if ( !IsEncoding( a_value, m_version ) )
            Add( Code::UnknownEncoding, a_parameter );
        break;
    case StandardParameter::Type:
        if ( m_version == PimContactVersion::V21 && m_rule != nullptr && !IsType21( a_value ) )
            m_violations.Add( Code::UnknownType, s_kNames21 );
        break;
    default:
        if ( !IsValid( a_parameter, a_value ) )
            Add( Code::InvalidParameter, a_parameter );
    }
    if ( a_parameter == StandardParameter::AltId && !m_hasAltId )
    {
        m_hasAltId = true;
        m_altId = BytesOf( a_value );
    }
}

void ParameterCheck::CheckValueType( std::string_view a_name )
{
    const ValueType type = ValueTypeOf( a_name, m_version );
    if ( !m_hasValueType )
        m_valueType = type;
    m_hasValueType = m_hasValueType || type != ValueType::Other;
    if ( type == ValueType::Other && !IsExtensionName( a_name ) )
        Add( Code::UnknownValueType, StandardParameter::Value );
    else if ( m_rule != nullptr && type != ValueType::Other && !m_rule->m_types.Has( type ) )
        m_violations.Add( Code::WrongValueType, m_rule->m_section, NameOf( m_rule->m_property ), NameOf( type ) );
}

bool ParameterCheck::IsValid( StandardParameter a_parameter, std::string_view a_value ) const
{
    switch ( a_parameter )
    {
    case StandardParameter::Language:
        return IsLanguageTag( a_value );
    case StandardParameter::Pref:
        return IsBetween( a_value, 1, s_kLeastPreference );
    case StandardParameter::Index:
        return IsBetween( a_value, 1, std::numeric_limits<int>::max() );
    case StandardParameter::Level:
        return IsOneOf( a_value, s_kLevels );
    case StandardParameter::Pid:
        return IsPid( a_value );
    case StandardParameter::MediaType:
        return IsMediaType( a_value.substr( 0, a_value.find( ';' ) ) );
    case StandardParameter::Geo:
    case StandardParameter::Author:
        return IsConformingUri( a_value );
    case StandardParameter::CalScale:
    case StandardParameter::Phonetic:
        return IsName( a_value );
    case StandardParameter::Cc:
        return a_value.size() == 2 && AreLetters( a_value );
    case StandardParameter::Script:
        return a_value.size() == 4 && AreLetters( a_value );
    case StandardParameter::Created:
        return IsDateOfType( a_value, ValueType::Timestamp, m_version );
    case StandardParameter::Derived:
        return IsBoolean( a_value );
    case StandardParameter::PropId:
        return IsPropId( a_value );
    default:
        return true;
    }
}

void ParameterCheck::Add( PimContactFindingCode a_code, StandardParameter a_parameter )
{
    const std::string_view subject = m_rule == nullptr ? std::string_view() : NameOf( m_rule->m_property );
    m_violations.Add( a_code, SectionOf( a_parameter, m_version ), subject, NameOf( a_parameter ) );
}

} // namespace PimManager::Contacts
