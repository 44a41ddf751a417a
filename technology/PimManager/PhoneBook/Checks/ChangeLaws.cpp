#include "Checks/ChangeLaws.h"

#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <algorithm>

namespace PimManager::PhoneBook::Checks
{

namespace
{

using Contacts::PimContact;
using Contacts::PimContactBook;
using Contacts::PimContactCard;
using Contacts::PimContactLine;

bool AreSame( const PimPhoneBookPair& a_first, const PimPhoneBookPair& a_second )
{
    return a_first.m_old == a_second.m_old && a_first.m_new == a_second.m_new && a_first.m_basis == a_second.m_basis;
}

/// \return true if all pairs of one list are in the other, in the same order.
bool IsPart( const QVector<PimPhoneBookPair>& a_part, const QVector<PimPhoneBookPair>& a_pairs )
{
    auto place = a_pairs.begin();
    return std::all_of( a_part.begin(), a_part.end(),
                        [&]( const PimPhoneBookPair& a_pair )
                        {
                            place = std::find_if( place, a_pairs.end(),
                                                  [&a_pair]( const PimPhoneBookPair& a_other )
                                                  { return AreSame( a_pair, a_other ); } );
                            return place != a_pairs.end();
                        } );
}

bool Has( const PimContactCard& a_card, const char* a_name )
{
    return std::any_of( a_card.begin(), a_card.end(),
                        [a_name]( const PimContactLine& a_line )
                        { return a_line.IsNamed( QLatin1String( a_name ) ) && !a_line.Text().trimmed().isEmpty(); } );
}

/// \return true if both or none have a UID, and X-BT-UID likewise. Then all lines count.
bool DoAllLinesCount( const PimContactCard& a_old, const PimContactCard& a_new )
{
    return Has( a_old, "UID" ) == Has( a_new, "UID" ) && Has( a_old, "X-BT-UID" ) == Has( a_new, "X-BT-UID" );
}

/// The changes between two books, and the laws.
class Changes
{
public:
    Changes( const PimContactBook& a_old, const PimContactBook& a_new ) :
        m_old( a_old ),
        m_new( a_new ),
        m_changes( PimPhoneBookChanges::Compare( a_old, a_new ) )
    {
    }

    std::string BrokenLaw() const
    {
        if ( !IsEachOldOnce() || !IsEachNewOnce() )
            return "each contact is in one pair, or added or removed";
        if ( !ArePairsThePartners() )
            return "the pairs are the partners, in the order of the new book";
        if ( !IsPart( m_changes.Changed(), m_changes.Pairs() ) || !IsPart( m_changes.Moved(), m_changes.Pairs() ) )
            return "changed and moved contacts are in both books";
        if ( !DoesOrderFollow() )
            return "without the moved ones, contacts are in the same order";
        if ( m_changes.IsEmpty() !=
             ( m_changes.Added().isEmpty() && m_changes.Removed().isEmpty() && m_changes.Changed().isEmpty() ) )
            return "nothing was added, removed or changed if there are no changes";
        if ( !AreChangedOnesDifferent() )
            return "a pair has changed if its contacts differ, and then it has lines that differ";
        if ( !IsReverseTheSame() )
            return "in the other direction, the pairs are the same";
        return IsAppliedTheSame() ? std::string() : "after the changes are applied, there are none";
    }

private:
    bool IsEachOldOnce() const
    {
        QVector<int> removed;
        for ( int i = 0; i < m_old.Size(); ++i )
        {
            const int partner = m_changes.NewOf( i );
            if ( partner < 0 )
                removed.append( i );
            else if ( m_changes.OldOf( partner ) != i )
                return false;
        }
        return removed == m_changes.Removed();
    }

    bool IsEachNewOnce() const
    {
        QVector<int> added;
        for ( int i = 0; i < m_new.Size(); ++i )
        {
            const int partner = m_changes.OldOf( i );
            if ( partner < 0 )
                added.append( i );
            else if ( m_changes.NewOf( partner ) != i )
                return false;
        }
        return added == m_changes.Added();
    }

    bool ArePairsThePartners() const
    {
        int last = -1;
        for ( const PimPhoneBookPair& pair : m_changes.Pairs() )
        {
            if ( pair.m_new <= last || m_changes.OldOf( pair.m_new ) != pair.m_old )
                return false;
            last = pair.m_new;
        }
        return m_changes.Pairs().size() + m_changes.Added().size() == m_new.Size();
    }

    bool DoesOrderFollow() const
    {
        QVector<PimPhoneBookPair> moved = m_changes.Moved();
        int last = -1;
        for ( const PimPhoneBookPair& pair : m_changes.Pairs() )
        {
            if ( !moved.isEmpty() && moved.constFirst().m_new == pair.m_new )
            {
                moved.removeFirst();
                continue;
            }
            if ( pair.m_old <= last )
                return false;
            last = pair.m_old;
        }
        return true;
    }

    bool AreChangedOnesDifferent() const
    {
        QVector<PimPhoneBookPair> changed = m_changes.Changed();
        for ( const PimPhoneBookPair& pair : m_changes.Pairs() )
        {
            const bool isChanged = !changed.isEmpty() && changed.constFirst().m_new == pair.m_new;
            if ( isChanged )
                changed.removeFirst();
            const PimContact old = m_old.At( pair.m_old );
            const PimContact other = m_new.At( pair.m_new );
            const PimPhoneBookLines lines = PimPhoneBookChanges::LinesOf( old, other );
            if ( ( lines.m_old.isEmpty() && lines.m_new.isEmpty() ) == isChanged )
                return false;
            if ( !isChanged && old != other && DoAllLinesCount( old.Card(), other.Card() ) )
                return false;
            if ( isChanged && old == other )
                return false;
        }
        return true;
    }

    bool IsReverseTheSame() const
    {
        const auto reverse = PimPhoneBookChanges::Compare( m_new, m_old );
        for ( int i = 0; i < m_new.Size(); ++i )
        {
            if ( reverse.NewOf( i ) != m_changes.OldOf( i ) )
                return false;
        }
        return reverse.Changed().size() == m_changes.Changed().size() &&
               reverse.Moved().size() == m_changes.Moved().size();
    }

    bool IsAppliedTheSame() const
    {
        PimContactBook applied;
        for ( int i = 0; i < m_new.Size(); ++i )
            applied.Append( m_new.CardAt( i ) );
        for ( const PimPhoneBookPair& pair : m_changes.Pairs() )
            applied.Replace( pair.m_new, m_old.At( pair.m_old ) );
        for ( const PimPhoneBookPair& pair : m_changes.Changed() )
            applied.Replace( pair.m_new, m_new.At( pair.m_new ) );
        return PimPhoneBookChanges::Compare( applied, m_new ).IsEmpty();
    }

    const PimContactBook& m_old;
    const PimContactBook& m_new;
    const PimPhoneBookChanges m_changes;
};

} // namespace

std::string BrokenChangeLaw( const PimContactBook& a_old, const PimContactBook& a_new )
{
    return Changes( a_old, a_new ).BrokenLaw();
}

} // namespace PimManager::PhoneBook::Checks
