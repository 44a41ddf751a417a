#include "Sorting/NameOrder.h"

#include "Search/LetterFolding.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace PimManager::PhoneBook
{

namespace
{

constexpr size_t s_kHead = sizeof( quint64 );
// Names that are equal so far are rare, and are compared by the alphabet anyway.
constexpr size_t s_kMostBytes = 16;
constexpr char16_t s_kAscii = 0x80;
constexpr char16_t s_kLowerCase = 0x20;

/// A name as it is sorted first: without accents, by its bytes.
struct Rough
{
    quint64 m_head = 0;
    int m_name = 0;
    quint32 m_begin = 0;
    quint32 m_size = 0;
};

class RoughNames
{
public:
    void Add( const QString& a_name, int a_index )
    {
        Rough rough;
        rough.m_begin = static_cast<quint32>( m_text.size() );
        AddText( a_name );
        rough.m_size = static_cast<quint32>( m_text.size() - rough.m_begin );
        rough.m_name = a_index;
        for ( size_t i = 0; i < s_kHead; ++i )
            rough.m_head =
                rough.m_head << 8 | ( i < rough.m_size ? static_cast<uchar>( m_text[rough.m_begin + i] ) : 0U );
        m_names.push_back( rough );
    }

    std::vector<int> Sorted()
    {
        std::sort( m_names.begin(), m_names.end(),
                   [this]( const Rough& a_first, const Rough& a_second ) { return IsBefore( a_first, a_second ); } );
        std::vector<int> sorted;
        sorted.reserve( m_names.size() );
        for ( const Rough& rough : m_names )
            sorted.push_back( rough.m_name );
        return sorted;
    }

private:
    void AddText( const QString& a_name )
    {
        const size_t end = m_text.size() + s_kMostBytes;
        for ( const QChar *character = a_name.constData(), *last = character + a_name.size();
              character != last && m_text.size() < end; ++character )
        {
            const char16_t unit = character->unicode();
            if ( unit >= s_kAscii )
                m_text += m_letters.Of( unit ).m_plain;
            else
                m_text.push_back( static_cast<char>( unit >= u'A' && unit <= u'Z' ? unit | s_kLowerCase : unit ) );
        }
    }

    bool IsBefore( const Rough& a_first, const Rough& a_second ) const
    {
        if ( a_first.m_head != a_second.m_head )
            return a_first.m_head < a_second.m_head;
        const int order = TextOf( a_first ).compare( TextOf( a_second ) );
        return order != 0 ? order < 0 : a_first.m_name < a_second.m_name;
    }

    std::string_view TextOf( const Rough& a_name ) const
    {
        return std::string_view( m_text ).substr( a_name.m_begin, a_name.m_size );
    }

    LetterFolding m_letters;
    std::string m_text;
    std::vector<Rough> m_names;
};

/// Sorts what is nearly sorted: keeps what is in order, sorts the rest, and puts it into its places.
class NearlySorted
{
public:
    NearlySorted( const std::vector<QString>& a_names, const NameOrder& a_order ) :
        m_names( a_names ),
        m_order( a_order )
    {
    }

    std::vector<int> Sort( const std::vector<int>& a_names )
    {
        for ( const int name : a_names )
            Take( name );
        const auto isBefore = [this]( int a_first, int a_second ) { return IsBefore( a_first, a_second ); };
        std::sort( m_dropped.begin(), m_dropped.end(), isBefore );
        std::vector<int> sorted;
        sorted.reserve( a_names.size() );
        auto place = m_kept.begin();
        for ( const int name : m_dropped )
        {
            const auto next = std::upper_bound( place, m_kept.end(), name, isBefore );
            sorted.insert( sorted.end(), place, next );
            sorted.push_back( name );
            place = next;
        }
        sorted.insert( sorted.end(), place, m_kept.end() );
        return sorted;
    }

private:
    bool IsBefore( int a_first, int a_second ) const
    {
        const int order =
            m_order.Compare( m_names[static_cast<size_t>( a_first )], m_names[static_cast<size_t>( a_second )] );
        return order != 0 ? order < 0 : a_first < a_second;
    }

    // If only the last name is too late, that one is dropped, and not all that follow.
    void Take( int a_name )
    {
        if ( m_kept.empty() || IsBefore( m_kept.back(), a_name ) )
            return m_kept.push_back( a_name );
        if ( m_kept.size() > 1 && !IsBefore( m_kept[m_kept.size() - 2], a_name ) )
            return m_dropped.push_back( a_name );
        m_dropped.push_back( m_kept.back() );
        m_kept.back() = a_name;
    }

    const std::vector<QString>& m_names;
    const NameOrder& m_order;
    std::vector<int> m_kept;
    std::vector<int> m_dropped;
};

} // namespace

std::vector<int> SortedNames( const std::vector<QString>& a_names, const std::vector<int>& a_sections,
                              const NameOrder& a_order )
{
    const std::vector<int> sections = a_order.SortedSections();
    std::vector<RoughNames> names( sections.size() );
    for ( size_t i = 0; i < a_names.size(); ++i )
        names[static_cast<size_t>( a_sections[i] )].Add( a_names[i], static_cast<int>( i ) );
    std::vector<int> sorted;
    sorted.reserve( a_names.size() );
    for ( const int section : sections )
    {
        const std::vector<int> rough = names[static_cast<size_t>( section )].Sorted();
        const std::vector<int> part = NearlySorted( a_names, a_order ).Sort( rough );
        sorted.insert( sorted.end(), part.begin(), part.end() );
    }
    return sorted;
}

} // namespace PimManager::PhoneBook
