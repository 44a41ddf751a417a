#include "Contact/LineParameters.h"

#include "Contact/ParameterValues.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/EncodedLabel.h"
#include "Values/ParameterReader.h"

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kPreference = "PREF";

} // namespace

void LineParameters::Read( const IndexedLine& a_line )
{
    m_types.Clear();
    m_names.Clear();
    m_values.clear();
    m_hasPreference = false;
    m_preference = 0;
    m_isPreferred = false;
    if ( a_line.m_entry.m_parameters.m_length == 0 )
        return;
    const std::string_view text = m_decoder.Parameters( a_line );
    m_texts.Begin( text );
    for ( ParameterReader reader( text, a_line.m_card.m_record.Version() ); reader.Next(); )
        Take( reader.Name(), reader.Value() );
    m_types.Finish();
    m_names.Finish();
}

int LineParameters::Preference() const
{
    return m_preference == 0 && m_isPreferred ? 1 : m_preference;
}

std::string_view LineParameters::CustomLabel() const
{
    const size_t index = m_names.Find( s_kCustomParameter );
    return index == WordGroups::s_kNone ? std::string_view() : WithoutOuterSpace( m_values[index] );
}

void LineParameters::Take( std::string_view a_name, std::string_view a_value )
{
    if ( IsSameWord( a_name, s_kTypeParameter ) )
        TakeType( a_value );
    else if ( IsSameWord( a_name, s_kPreference ) )
        TakePreference( a_value );
    else if ( !IsSameWord( a_name, s_kEncodingParameter ) && !IsSameWord( a_name, s_kCharsetParameter ) )
    {
        m_names.Add( m_texts.Keep( a_name ) );
        m_values.push_back( m_texts.Keep( a_value ) );
    }
}

void LineParameters::TakeType( std::string_view a_type )
{
    const std::string_view type = TypeWordIn( a_type, m_buffer );
    if ( IsPreferredType( type ) )
        m_isPreferred = true;
    else if ( !type.empty() )
        m_types.Add( m_texts.Keep( type ) );
}

// The first one is used, even if it is not a preference.
void LineParameters::TakePreference( std::string_view a_value )
{
    if ( !m_hasPreference )
        m_preference = PreferenceIn( a_value );
    m_hasPreference = true;
}

} // namespace PimManager::Contacts
