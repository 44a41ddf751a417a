#include "Contact/LineParameters.h"

#include "Contact/LabelMarks.h"
#include "Text/Bytes.h"
#include "Values/Buffer.h"
#include "Values/ParameterReader.h"

#include <algorithm>
#include <charconv>

namespace PimManager::Contacts
{

namespace
{

constexpr std::string_view s_kPreference = "PREF";
constexpr int s_kLeastPreference = 100;

bool IsQuoteOrBackslash( char a_byte )
{
    return a_byte == '"' || a_byte == '\\';
}

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
    std::string_view type = a_type;
    if ( std::any_of( type.begin(), type.end(), IsQuoteOrBackslash ) )
    {
        Empty( m_buffer );
        std::copy_if( type.begin(), type.end(), std::back_inserter( m_buffer ),
                      []( char a_byte ) { return !IsQuoteOrBackslash( a_byte ); } );
        type = ViewOf( m_buffer );
    }
    type.remove_prefix( std::min( type.find_first_not_of( '=' ), type.size() ) );
    type = WithoutLabelMarks( Unwrapped( Trimmed( type ), "'", "'" ) );
    if ( IsSameWord( type, s_kPreference ) )
        m_isPreferred = true;
    else if ( !type.empty() )
        m_types.Add( m_texts.Keep( type ) );
}

// The first one counts, also if it is no preference.
void LineParameters::TakePreference( std::string_view a_value )
{
    const std::string_view value = Trimmed( a_value );
    int preference = 0;
    const auto result = std::from_chars( value.data(), value.data() + value.size(), preference );
    const bool isNumber = result.ec == std::errc() && result.ptr == value.data() + value.size();
    if ( !m_hasPreference && isNumber && preference >= 1 && preference <= s_kLeastPreference )
        m_preference = preference;
    m_hasPreference = true;
}

} // namespace PimManager::Contacts
