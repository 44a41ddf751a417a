#include "Contact/FieldReader.h"

#include "Contact/KindWords.h"
#include "Contact/LabelMarks.h"
#include "Contact/UriPieces.h"
#include "Text/Bytes.h"
#include "Text/WhiteSpace.h"
#include "Values/PropertyKinds.h"

namespace PimManager::Contacts
{

std::string_view FieldReader::Text()
{
    // Most values need no decoding.
    const std::string_view written = Line().ValueRange().In( Line().m_text );
    const bool isPlain = ValueDecoder::IsPlain( Line() ) && written.find( '\\' ) == std::string_view::npos;
    return WithoutOuterSpace( isPlain ? written : Value().Text() );
}

ValueDecoder& FieldReader::Value()
{
    if ( !m_isDecoded )
        m_memory->m_decoder.Decode( Line() );
    m_isDecoded = true;
    return m_memory->m_decoder;
}

Delimiters FieldReader::ValueDelimiters() const
{
    return DelimitersOf( Property(), Version() );
}

void FieldReader::ReadParameters( FieldParameters::KindsOf a_kindsOf )
{
    m_memory->m_parameters.Read( Line(), a_kindsOf );
    m_isTypeLabel = a_kindsOf != NoKinds;
    m_kinds = Parameters().Kinds();
    m_label = GroupLabels::Label();
    if ( Line().m_entry.m_group.m_length == 0 || !m_contact.m_lines.Has( PropertyId::GroupLabel ) )
        return;
    m_label = m_contact.Labels().LabelOf( Group() );
    const std::string_view builtIn = BuiltInLabel( m_label.m_text );
    if ( !builtIn.empty() )
        m_kinds |= a_kindsOf( builtIn );
}

QString FieldReader::ParameterText( FieldParameter a_parameter ) const
{
    return StringOf( WithoutOuterSpace( Parameters().First( a_parameter ) ) );
}

// Commas divide the list even in quotes (RFC 6350, section 5.9).
QStringList FieldReader::SortAs() const
{
    QStringList texts;
    for ( const auto& [parameter, value] : Parameters().Values() )
    {
        if ( parameter != FieldParameter::SortAs )
            continue;
        std::string_view rest = value;
        do
            texts.append( StringOf( WithoutOuterSpace( TakeUpTo( ',', rest ) ) ) );
        while ( !rest.empty() );
    }
    return texts;
}

void FieldReader::SetCommon( PimContactFieldPrivate& a_data )
{
    const ContactLine& line = m_contact.m_lines.At( m_index );
    m_contact.m_lines.SetLine( m_index, a_data.m_line );
    a_data.m_property = line.m_property;
    a_data.m_id = line.m_id;
    a_data.m_preference = Parameters().Preference();
    if ( m_label.m_id > 0 || !Parameters().Values().empty() )
        SetRare( a_data );
    if ( a_data.m_label.isEmpty() && m_isTypeLabel )
    {
        a_data.m_isLabelOfType = true;
        if ( !Parameters().CustomType().empty() )
            a_data.m_label = StringOf( CustomLabelOf( Parameters().CustomType() ) );
    }
}

// The data that come from a labelled group or from parameters other than TYPE and PREF.
void FieldReader::SetRare( PimContactFieldPrivate& a_data ) const
{
    std::string_view label = WithoutLabelMarks( m_label.m_text );
    if ( label.empty() )
        label = WithoutOuterSpace( Parameters().First( FieldParameter::Custom ) );
    a_data.m_label = StringOf( label );
    a_data.m_hasGroupLabel = m_label.m_id > 0;
    if ( a_data.m_hasGroupLabel )
        a_data.ChangedExtras().m_moreIds.append( m_label.m_id );
    const QString language = ParameterText( FieldParameter::Language );
    const QString altId = ParameterText( FieldParameter::AltId );
    if ( language.isEmpty() && altId.isEmpty() )
        return;
    a_data.ChangedExtras().m_language = language;
    a_data.ChangedExtras().m_altId = altId;
}

quint32 NoKinds( std::string_view /*a_word*/ )
{
    return 0;
}

} // namespace PimManager::Contacts
