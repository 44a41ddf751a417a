#include "Conformance/ValueCheck.h"

#include "Conformance/DateForms.h"
#include "Conformance/LanguageTag.h"
#include "Conformance/Uri.h"
#include "Conformance/ValueForms.h"
#include "Contact/GeoValue.h"
#include "Contact/UriPieces.h"
#include "Text/Bytes.h"
#include "Values/BinaryValue.h"

#include <algorithm>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactFindingCode;

bool IsDateType( ValueType a_type )
{
    switch ( a_type )
    {
    case ValueType::Date:
    case ValueType::Time:
    case ValueType::DateTime:
    case ValueType::DateAndOrTime:
    case ValueType::Timestamp:
        return true;
    default:
        return false;
    }
}

// The sections that list the types.
StandardSection SectionOfTypes( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return { Standard::VCard21, "2.1.8" };
    case PimContactVersion::V30:
        return { Standard::Rfc2425, "5.8.4" };
    default:
        return { Standard::Rfc6350, "4" };
    }
}

// The types that commas may divide (RFC 6350, section 4).
bool MayBeList( ValueType a_type )
{
    return IsDateType( a_type ) || a_type == ValueType::Integer || a_type == ValueType::Float;
}

bool IsSimpleValue( std::string_view a_text, ValueType a_type, PimContactVersion a_version )
{
    if ( IsDateType( a_type ) )
        return IsDateOfType( a_text, a_type, a_version );
    switch ( a_type )
    {
    case ValueType::Uri:
        return IsConformingUri( a_text );
    case ValueType::Boolean:
        return IsBoolean( a_text );
    case ValueType::Integer:
        return IsInteger( a_text );
    case ValueType::Float:
        return IsFloat( a_text );
    case ValueType::UtcOffset:
        return IsOffset( a_text, a_version );
    case ValueType::LanguageTag:
        return IsLanguageTag( a_text );
    default:
        return true;
    }
}

bool AreSimpleValues( std::string_view a_text, ValueType a_type, PimContactVersion a_version )
{
    size_t begin = 0;
    size_t comma = a_text.find( ',' );
    for ( ; comma != std::string_view::npos; comma = a_text.find( ',', begin ) )
    {
        if ( !IsSimpleValue( a_text.substr( begin, comma - begin ), a_type, a_version ) )
            return false;
        begin = comma + 1;
    }
    return IsSimpleValue( a_text.substr( begin ), a_type, a_version );
}

// Two numbers without blanks, in 2.1 with a comma between them.
bool IsPosition( std::string_view a_text, PimContactVersion a_version )
{
    const char* const bytes = a_version == PimContactVersion::V21 ? "+-.0123456789," : "+-.0123456789;";
    return a_text.find_first_not_of( bytes ) == std::string_view::npos && GeoPositionOf( a_text, a_version );
}

bool IsSex( std::string_view a_text )
{
    return a_text.empty() || ( a_text.size() == 1 &&
                               std::string_view( "MFONU" ).find( Upper( a_text.front() ) ) != std::string_view::npos );
}

bool IsPidMap( std::string_view a_text )
{
    std::string_view uri = a_text;
    return AreDigits( TakeUpTo( ';', uri ) ) && IsConformingUri( uri );
}

bool IsEscape( char a_byte, PimContactVersion a_version )
{
    const bool isColon = a_byte == ':' && a_version == PimContactVersion::V30;
    return isColon || std::string_view( "\\,;nN" ).find( a_byte ) != std::string_view::npos;
}

bool HasUnknownEscape( std::string_view a_text, PimContactVersion a_version )
{
    for ( size_t i = a_text.find( '\\' ); i < a_text.size(); i = a_text.find( '\\', i + 2 ) )
    {
        if ( i + 1 == a_text.size() || !IsEscape( a_text[i + 1], a_version ) )
            return true;
    }
    return false;
}

} // namespace

void ValueCheck::Check( const IndexedLine& a_line, const PropertyRule* a_rule, const std::optional<ValueType>& a_type,
                        bool a_hasNestedCard )
{
    m_line = &a_line;
    m_version = a_line.m_card.m_record.Version();
    m_rule = a_rule;
    m_hasNestedCard = a_hasNestedCard;
    m_decoder.Decode( a_line );
    if ( m_rule == nullptr )
    {
        if ( a_type )
            CheckExtension( *a_type );
        return;
    }
    const bool isDefault = !a_type || a_type == ValueType::Inline;
    CheckProperty( isDefault ? m_rule->m_defaultType : *a_type );
}

void ValueCheck::CheckExtension( ValueType a_type )
{
    const bool isValid =
        MayBeList( a_type ) ? AreSimpleValues( Text(), a_type, m_version ) : IsSimpleValue( Text(), a_type, m_version );
    if ( !isValid )
        m_violations.Add( Code::InvalidValue, SectionOfTypes( m_version ), "the property", NameOf( a_type ) );
}

void ValueCheck::CheckProperty( ValueType a_type )
{
    if ( !IsOfType( a_type ) )
        AddInvalid( a_type );
    if ( a_type == ValueType::Text && m_version != PimContactVersion::V21 )
        CheckEscapes();
    CheckComponents();
    CheckOwnForm();
}

bool ValueCheck::IsOfType( ValueType a_type ) const
{
    switch ( a_type )
    {
    case ValueType::Binary:
        return IsBinary();
    case ValueType::VCard:
        return IsCard();
    case ValueType::Coordinates:
        return IsPosition( Text(), m_version );
    case ValueType::Float:
        return m_rule->m_shape != ValueShape::Components || IsPosition( Text(), m_version );
    default:
        break;
    }
    // The examples of RFC 2426 write a date and time without VALUE.
    const bool isEitherDate = m_version == PimContactVersion::V30 && m_rule->m_types.Has( ValueType::Date );
    return IsSimpleValue( Text(), a_type, m_version ) ||
           ( isEitherDate && ( IsSimpleValue( Text(), ValueType::Date, m_version ) ||
                               IsSimpleValue( Text(), ValueType::DateTime, m_version ) ) );
}

// Version 2.1 allows bytes in other encodings as well.
bool ValueCheck::IsBinary() const
{
    const bool isBase64 = m_line->m_entry.m_encoding == PimContactEncoding::Base64;
    if ( !isBase64 )
        return m_version == PimContactVersion::V21;
    return !DecodedBinary( *m_line ).IsDamaged();
}

bool ValueCheck::IsCard() const
{
    constexpr std::string_view begin = "BEGIN:VCARD";
    return m_hasNestedCard || IsSameWord( Text().substr( 0, begin.size() ), begin );
}

void ValueCheck::CheckEscapes()
{
    if ( !HasUnknownEscape( Text(), m_version ) )
        return;
    const bool is30 = m_version == PimContactVersion::V30;
    m_violations.Add( Code::BadEscape,
                      is30 ? StandardSection{ Standard::Rfc2426, "4" } : StandardSection{ Standard::Rfc6350, "3.4" } );
}

void ValueCheck::CheckComponents()
{
    if ( m_rule->m_shape != ValueShape::Components && m_rule->m_shape != ValueShape::ComponentLists )
        return;
    qint64 components = 0;
    for ( PartReader reader = m_decoder.Parts( Delimiters::Semicolons ); reader.Next(); )
        ++components;
    const bool areTooMany = m_rule->m_mostComponents != s_kAnyNumber && components > m_rule->m_mostComponents;
    if ( components < m_rule->m_leastComponents || areTooMany )
        m_violations.Add( Code::ComponentCount, m_rule->m_section, NameOf( m_rule->m_property ) );
}

// The requirements of a property beyond its type.
void ValueCheck::CheckOwnForm()
{
    std::string_view rest = Text();
    bool isValid = true;
    switch ( m_rule->m_property )
    {
    case PropertyId::Gender:
        isValid = IsSex( TakeUpTo( ';', rest ) );
        break;
    case PropertyId::Kind:
        isValid = IsName( rest );
        break;
    case PropertyId::ClientPidMap:
        isValid = IsPidMap( rest );
        break;
    case PropertyId::Profile:
        isValid = IsSameWord( rest, "VCARD" );
        break;
    default:
        break;
    }
    if ( !isValid )
        m_violations.Add( Code::ForbiddenValue, m_rule->m_section, NameOf( m_rule->m_property ) );
}

void ValueCheck::AddInvalid( ValueType a_type )
{
    m_violations.Add( Code::InvalidValue, m_rule->m_section, NameOf( m_rule->m_property ), NameOf( a_type ) );
}

} // namespace PimManager::Contacts
