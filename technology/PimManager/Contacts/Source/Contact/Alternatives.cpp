#include "Contact/Alternatives.h"

#include "Contact/FieldData.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kUnwanted = std::numeric_limits<int>::max();

// The data that alternatives have in common.
using Key = QPair<QString, QPair<int, int>>;

Key KeyOf( const PimContactFieldPrivate& a_field )
{
    return { a_field.Extras().m_altId, { static_cast<int>( a_field.m_property ), a_field.m_element } };
}

} // namespace

LanguageRanks::LanguageRanks( const QStringList& a_wanted )
{
    for ( const QString& wanted : a_wanted )
    {
        const QString language = wanted.toLower();
        if ( !m_ranks.contains( language ) )
            m_ranks.insert( language, 2 * static_cast<int>( m_ranks.size() ) );
        m_longest = std::max( m_longest, static_cast<int>( language.size() ) );
    }
}

int LanguageRanks::Of( const QString& a_language ) const
{
    const QString language = a_language.left( m_longest + 1 ).toLower();
    int best = a_language.size() <= m_longest ? m_ranks.value( language, s_kUnwanted ) : s_kUnwanted;
    for ( auto end = language.indexOf( QLatin1Char( '-' ) ); end > 0;
          end = language.indexOf( QLatin1Char( '-' ), end + 1 ) )
    {
        const auto wanted = m_ranks.constFind( language.left( end ) );
        if ( wanted != m_ranks.constEnd() )
            best = std::min( best, *wanted + 1 );
    }
    return best;
}

AlternativeGroups::AlternativeGroups( const std::vector<const PimContactField*>& a_fields,
                                      const QStringList& a_languages )
{
    const LanguageRanks ranks( a_languages );
    QHash<Key, size_t> groups;
    for ( size_t i = 0; i < a_fields.size(); ++i )
    {
        const PimContactFieldPrivate& field = PimContactFieldPrivate::Of( *a_fields[i] );
        const int rank = field.Extras().m_altId.isEmpty() ? s_kUnwanted : ranks.Of( field.Extras().m_language );
        const auto known = field.Extras().m_altId.isEmpty() ? groups.constEnd() : groups.constFind( KeyOf( field ) );
        if ( known == groups.constEnd() )
        {
            if ( !field.Extras().m_altId.isEmpty() )
                groups.insert( KeyOf( field ), m_groups.size() );
            m_groups.push_back( { i, rank, { i } } );
            continue;
        }
        Group& group = m_groups[*known];
        group.m_all.push_back( i );
        if ( rank < group.m_rank )
            std::tie( group.m_chosen, group.m_rank ) = std::make_tuple( i, rank );
    }
}

} // namespace PimManager::Contacts
