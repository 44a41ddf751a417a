#include "Conformance/CardCheck.h"

#include "Text/Bytes.h"
#include "Text/Utf8Census.h"

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactFindingCode;

constexpr StandardSection s_kVersion40 = { Standard::Rfc6350, "6.7.9" };
constexpr std::string_view s_kVendorMark = "VND-";

// The sections that define the form of a line.
StandardSection SectionOfForm( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return { Standard::VCard21, "2.9" };
    case PimContactVersion::V30:
        return { Standard::Rfc2426, "4" };
    default:
        return { Standard::Rfc6350, "3.3" };
    }
}

// The sections that define the names of other properties.
StandardSection SectionOfExtensions( PimContactVersion a_version )
{
    switch ( a_version )
    {
    case PimContactVersion::V21:
        return { Standard::VCard21, "2.8.1" };
    case PimContactVersion::V30:
        return { Standard::Rfc2426, "3.8" };
    default:
        return { Standard::Rfc6350, "6.10" };
    }
}

bool IsExtension( std::string_view a_name, PimContactVersion a_version )
{
    const bool isVendor = a_version == PimContactVersion::V40 && a_name.size() > s_kVendorMark.size() &&
                          IsSameWord( a_name.substr( 0, s_kVendorMark.size() ), s_kVendorMark );
    return isVendor || IsExtensionName( a_name );
}

// Version 2.1 allows blanks around names and parameters.
bool IsMalformed( PimContactOddities a_oddities, PimContactVersion a_version )
{
    a_oddities.setFlag( PimContactOddity::UnknownEscape, false );
    if ( a_version == PimContactVersion::V21 )
        a_oddities.setFlag( PimContactOddity::NameBlanks, false );
    return a_oddities != PimContactOddities();
}

bool IsUtf8( const IndexedLine& a_line )
{
    Utf8Census census;
    LinePieces pieces = a_line.Pieces( { 0, static_cast<quint32>( a_line.m_text.size() ) } );
    while ( pieces.Next() )
        census.Take( pieces.Text() );
    census.EndText();
    return census.IsValid();
}

} // namespace

CardCheck::CardCheck( const PimContactCard& a_card ) :
    m_version( a_card.Version() ),
    m_firstLine( a_card.FirstLine() ),
    m_layout( m_version, m_firstLine, m_violations ),
    m_parameters( m_violations ),
    m_value( m_violations )
{
    const CardView card = PimContactCardPrivate::LineView::CardOf( a_card );
    if ( card.m_index == nullptr )
        return;
    if ( m_version == PimContactVersion::Unknown )
        CheckVersion( card );
    else
        CheckAll( a_card, card.m_record );
}

void CardCheck::CheckAll( const PimContactCard& a_card, const CardRecord& a_record )
{
    CheckBoundaries( a_record );
    CheckParts( a_card );
    CheckMissing();
    CheckMembers();
}

// Without a version no standard applies.
void CardCheck::CheckVersion( const CardView& a_card )
{
    bool hasVersion = false;
    for ( LineCursor cursor( a_card ); !hasVersion && cursor.Next(); )
        hasVersion = StandardPropertyOf( cursor.Name() ) == PropertyId::Version;
    m_violations.AddOfCard( hasVersion ? Code::UnknownVersion : Code::MissingVersion, m_firstLine, s_kVersion40 );
}

void CardCheck::CheckParts( const PimContactCard& a_card )
{
    for ( LineCursor cursor( a_card ); cursor.NextPart(); )
    {
        m_violations.SetLine( m_layout.Line() );
        if ( cursor.Line().m_entry.m_kind == EntryKind::Line )
            CheckLine( cursor );
        m_layout.Check( cursor.Line() );
    }
}

void CardCheck::CheckLine( LineCursor& a_cursor )
{
    const IndexedLine& line = a_cursor.Line();
    const std::string_view name = a_cursor.Name();
    const PropertyId property = StandardPropertyOf( name );
    const PropertyRule* const rule = FindRule( property, m_version );
    CheckForm( line );
    if ( rule == nullptr && !IsExtension( name, m_version ) )
        m_violations.Add( Code::UnknownProperty, SectionOfExtensions( m_version ) );
    CheckPlaceOfVersion( property );
    m_parameters.Check( line, rule );
    CardView nested;
    const auto type =
        m_parameters.HasValueType() ? std::optional<ValueType>( m_parameters.NamedValueType() ) : std::nullopt;
    m_value.Check( line, rule, type, a_cursor.FindNested( nested ) );
    if ( rule != nullptr )
        CountProperty( *rule );
    TakeValue( property );
}

void CardCheck::CheckForm( const IndexedLine& a_line )
{
    if ( IsMalformed( a_line.m_entry.AllOddities(), m_version ) )
        m_violations.Add( Code::MalformedLine, SectionOfForm( m_version ) );
    const bool mayBeOther =
        m_version == PimContactVersion::V40 && a_line.m_card.m_record.Has( CardRecord::IsOtherCharset );
    if ( mayBeOther && !IsUtf8( a_line ) )
        m_violations.Add( Code::NotUtf8, { Standard::Rfc6350, "3.1" } );
}

void CardCheck::CheckPlaceOfVersion( PropertyId a_property )
{
    if ( m_version == PimContactVersion::V40 && a_property == PropertyId::Version && !m_isFirstLine )
        m_violations.AddOfCard( Code::MisplacedVersion, m_layout.Line(), s_kVersion40 );
    m_isFirstLine = false;
}

void CardCheck::CountProperty( const PropertyRule& a_rule )
{
    bool& isFound = m_isFound[static_cast<size_t>( a_rule.m_property )];
    const bool isLimited = a_rule.m_occurrence == Occurrence::One || a_rule.m_occurrence == Occurrence::AtMostOne;
    if ( isLimited && IsCounted( a_rule ) && isFound )
        m_violations.AddOfCard( Code::RepeatedProperty, m_layout.Line(), a_rule.m_section,
                                NameOf( a_rule.m_property ) );
    isFound = true;
}

/// \return false if another line has the same ALTID.
bool CardCheck::IsCounted( const PropertyRule& a_rule )
{
    if ( m_version != PimContactVersion::V40 || !m_parameters.HasAltId() )
        return true;
    const QByteArray key = static_cast<char>( a_rule.m_property ) + m_parameters.AltId();
    const bool isNew = !m_altIds.contains( key );
    m_altIds.insert( key );
    return isNew;
}

void CardCheck::TakeValue( PropertyId a_property )
{
    if ( a_property == PropertyId::Kind )
        m_isGroup = IsSameWord( m_value.Text(), "group" );
    if ( a_property == PropertyId::Member && m_memberLine == 0 )
        m_memberLine = m_layout.Line();
}

void CardCheck::CheckBoundaries( const CardRecord& a_record )
{
    if ( !a_record.Has( CardRecord::HasBegin ) )
        m_violations.AddOfCard( Code::MissingBoundary, m_firstLine, FindRule( PropertyId::Begin, m_version )->m_section,
                                NameOf( PropertyId::Begin ) );
    if ( !a_record.Has( CardRecord::HasEnd ) )
        m_violations.AddOfCard( Code::MissingBoundary, m_firstLine, FindRule( PropertyId::End, m_version )->m_section,
                                NameOf( PropertyId::End ) );
}

// BEGIN and END are not among the lines of the card.
void CardCheck::CheckMissing()
{
    for ( const PropertyRule& rule : RulesOf( m_version ) )
    {
        const bool isBoundary = rule.m_property == PropertyId::Begin || rule.m_property == PropertyId::End;
        const bool isRequired = rule.m_occurrence == Occurrence::One || rule.m_occurrence == Occurrence::OneOrMore;
        if ( isRequired && !isBoundary && !m_isFound[static_cast<size_t>( rule.m_property )] )
            m_violations.AddOfCard( Code::MissingProperty, m_firstLine, rule.m_section, NameOf( rule.m_property ) );
    }
}

void CardCheck::CheckMembers()
{
    if ( m_memberLine != 0 && m_version == PimContactVersion::V40 && !m_isGroup )
        m_violations.AddOfCard( Code::MemberOfNoGroup, m_memberLine, { Standard::Rfc6350, "6.6.5" } );
}

} // namespace PimManager::Contacts
