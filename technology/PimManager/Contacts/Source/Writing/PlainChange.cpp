#include "Writing/PlainChange.h"

#include "Text/Buffer.h"
#include "Text/Bytes.h"
#include "Text/PlainAscii.h"
#include "Values/PartReader.h"
#include "Writing/CleanText.h"
#include "Writing/PropertyReader.h"

namespace PimManager::Contacts
{

void PlainChange::BeginCard( const CardRecord& a_record, VersionStep a_step, const PropertySet& a_properties )
{
    const bool is40 = a_step.m_target == PimContactVersion::V40;
    m_foldStyle = a_record.FoldStyle();
    m_isUsual = !a_step.IsNone() && !a_record.Has( CardRecord::IsOtherCharset );
    m_hasSortName = is40 && a_properties[static_cast<size_t>( PropertyId::SortString )];
    m_hasLabels = is40 && a_properties[static_cast<size_t>( PropertyId::Label )];
}

// In 4.0, names and addresses may receive other lines of the card as parameters.
bool PlainChange::MayTake( PropertyId a_property ) const
{
    return m_isUsual && !( m_hasSortName && a_property == PropertyId::N ) &&
           !( m_hasLabels && a_property == PropertyId::Adr );
}

bool PlainChange::Take( std::string_view a_bytes, const IndexReader::PlainLine& a_line, const HeadMeaning& a_meaning )
{
    const PlainChangeRule& rule = a_meaning.m_rule;
    const std::string_view group = a_bytes.substr( 0, a_line.m_name.m_begin );
    const bool isDivided = a_line.m_hasFolds && m_foldStyle == PimContactFoldStyle::BlankKept;
    if ( isDivided || ( !group.empty() && !IsName( group.substr( 0, group.size() - 1 ) ) ) )
        return false;
    const std::string_view value = ValueOf( a_bytes, a_line );
    const LineHeadText head = { group, a_meaning.m_written.Text() };
    const bool isPrintable = IsPrintableAscii( value );
    if ( !isPrintable && !IsCleanText( value ) )
        return false;
    if ( rule.m_isOldTarget )
        return TakeOld( head, value, isPrintable, rule );
    if ( !rule.Keeps( value ) )
        return false;
    m_text.TakeValue( head, value );
    return true;
}

std::string_view PlainChange::ValueOf( std::string_view a_bytes, const IndexReader::PlainLine& a_line )
{
    const std::string_view text = WithoutLineEnd( a_bytes );
    const quint32 begin = a_line.m_parameters.End() + 1;
    if ( !a_line.m_hasFolds )
        return text.substr( begin );
    IndexEntry entry;
    entry.m_hasFolds = true;
    const quint32 length = static_cast<quint32>( text.size() ) - begin;
    Empty( m_unfolded );
    AppendUnfolded( text, entry, m_foldStyle, { begin, length }, m_unfolded );
    return ViewOf( m_unfolded );
}

// A value with escapes is not kept, because 2.1 escapes only semicolons.
bool PlainChange::TakeOld( const LineHeadText& a_head, std::string_view a_value, bool a_isPrintable,
                           const PlainChangeRule& a_rule )
{
    if ( a_isPrintable && VCardText::IsShort( a_head, a_value, a_rule.m_shape ) && a_rule.Keeps( a_value ) )
    {
        m_text.TakeValue( a_head, a_value );
        return true;
    }
    const bool mayBeUri = a_rule.m_mayBeUri && a_value.find( ':' ) != std::string_view::npos;
    if ( mayBeUri || !ReadTexts( a_value, a_rule ) )
        return false;
    m_text.TakeOldTexts( a_head, m_texts, a_rule.m_shape );
    return true;
}

/// \return false if the target cannot contain all texts or requires more components.
bool PlainChange::ReadTexts( std::string_view a_value, const PlainChangeRule& a_rule )
{
    m_texts.clear();
    m_kept.Begin( a_value );
    quint32 component = 0;
    const EscapedText escaped = { a_value, nullptr };
    for ( PartReader parts( escaped, DelimitersOf( a_rule.m_shape ), m_part, m_findings ); parts.Next(); )
    {
        m_texts.push_back( { m_kept.Keep( parts.Text() ), component } );
        if ( parts.Delimiter() == ',' )
            return false;
        component += parts.Delimiter() == ';' ? 1 : 0;
    }
    return a_rule.m_shape == ValueShape::Single || a_rule.MayHave( component + 1 );
}

} // namespace PimManager::Contacts
