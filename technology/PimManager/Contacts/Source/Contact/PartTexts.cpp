#include "Contact/PartTexts.h"

#include "Contact/FieldReader.h"
#include "Text/Bytes.h"
#include "Text/DelimiterSearch.h"
#include "Text/WhiteSpace.h"

#include <algorithm>

namespace PimManager::Contacts
{

inline void PartTexts::AddRange( int a_component, int a_begin, int a_length )
{
    m_parts.append( { a_component, a_begin, a_length } );
    m_components |= BitOf( a_component );
}

void PartTexts::Read( FieldReader& a_reader, int a_mostParts )
{
    const EscapedText& value = a_reader.Value().Escaped();
    const Delimiters delimiters = a_reader.ValueDelimiters();
    if ( !value.m_literals->empty() || value.m_text.find( '\\' ) != std::string_view::npos )
    {
        ReadEscaped( a_reader.Parts( delimiters ), a_mostParts );
        return;
    }
    if ( !ValueDecoder::IsPlain( a_reader.Line() ) )
        m_decoded = BytesOf( value.m_text );
    m_bytes = m_decoded.isEmpty() ? value.m_text.data() : m_decoded.constData();
    m_isAscii = AreAllAscii( value.m_text );
    ReadPlain( std::string_view( m_bytes, value.m_text.size() ), delimiters, a_mostParts );
}

// Each semicolon and each comma delimits.
void PartTexts::ReadPlain( std::string_view a_value, Delimiters a_delimiters, int a_mostParts )
{
    const bool hasLists = a_delimiters == Delimiters::SemicolonsAndCommas;
    DelimiterSearch search( a_value, ';', hasLists ? ',' : ';' );
    int component = 0;
    for ( size_t begin = 0; begin <= a_value.size(); begin = search.Place() + 1 )
    {
        search.Next();
        const size_t size = search.Place() - begin;
        const std::string_view text = WithoutOuterSpace( std::string_view( a_value.data() + begin, size ) );
        if ( !text.empty() )
            AddRange( component, static_cast<int>( text.data() - a_value.data() ), static_cast<int>( text.size() ) );
        if ( search.Place() < a_value.size() && a_value[search.Place()] == ';' && component + 1 < a_mostParts )
            ++component;
    }
}

void PartTexts::ReadEscaped( PartReader a_parts, int a_mostParts )
{
    int component = 0;
    while ( a_parts.Next() )
    {
        Add( component, StringOf( WithoutOuterSpace( a_parts.Text() ) ) );
        if ( a_parts.Delimiter() == ';' && component + 1 < a_mostParts )
            ++component;
    }
}

QStringList PartTexts::Of( int a_component ) const
{
    QStringList texts;
    if ( !Has( a_component ) )
        return texts;
    for ( const Part& part : m_parts )
    {
        if ( part.m_component == a_component )
            texts.append( TextOf( part ) );
    }
    return texts;
}

// There is a text.
QString PartTexts::JoinedTexts( int a_component, QLatin1String a_between ) const
{
    const Part* part = m_parts.data();
    while ( part->m_component != a_component )
        ++part;
    const Part* const end = m_parts.data() + m_parts.size();
    const Part* const next = part + 1;
    if ( next == end || next->m_component != a_component )
        return TextOf( *part );
    QString joined = TextOf( *part );
    for ( ++part; part != end && part->m_component == a_component; ++part )
        joined.append( a_between ).append( TextOf( *part ) );
    return joined;
}

void PartTexts::Set( int a_component, const QStringList& a_texts )
{
    PartTexts changed;
    const auto addIf = [this, &changed]( auto a_isWanted )
    {
        for ( const Part& part : m_parts )
        {
            if ( a_isWanted( part.m_component ) )
                changed.Add( part.m_component, TextOf( part ) );
        }
    };
    addIf( [a_component]( int a_other ) { return a_other < a_component; } );
    for ( const QString& text : a_texts )
        changed.Add( a_component, text );
    addIf( [a_component]( int a_other ) { return a_other > a_component; } );
    *this = changed;
}

bool PartTexts::operator==( const PartTexts& a_other ) const
{
    const auto areSame = [this, &a_other]( const Part& a_first, const Part& a_second )
    { return IsSamePart( a_first, a_other, a_second ); };
    return std::equal( m_parts.begin(), m_parts.end(), a_other.m_parts.begin(), a_other.m_parts.end(), areSame );
}

bool PartTexts::IsSamePart( const Part& a_part, const PartTexts& a_other, const Part& a_otherPart ) const
{
    if ( a_part.m_component != a_otherPart.m_component )
        return false;
    if ( m_bytes != nullptr && a_other.m_bytes != nullptr )
        return BytesOfPart( a_part ) == a_other.BytesOfPart( a_otherPart );
    return TextOf( a_part ) == a_other.TextOf( a_otherPart );
}

void PartTexts::Add( int a_component, const QString& a_text )
{
    if ( a_text.isEmpty() )
        return;
    AddRange( a_component, static_cast<int>( m_texts.size() ), static_cast<int>( a_text.size() ) );
    m_texts.append( a_text );
}

} // namespace PimManager::Contacts
