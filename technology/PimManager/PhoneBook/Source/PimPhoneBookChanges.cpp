#include <PimManager/PhoneBook/PimPhoneBookChanges.h>

#include <QSharedData>

namespace PimManager::PhoneBook
{

class PimPhoneBookChangesPrivate : public QSharedData
{
public:
    QVector<int> m_newOf;
    QVector<int> m_oldOf;
    QVector<int> m_added;
    QVector<int> m_removed;
    QVector<PimPhoneBookPair> m_changed;
    QVector<PimPhoneBookPair> m_moved;
};

PimPhoneBookChanges::PimPhoneBookChanges() :
    d( new PimPhoneBookChangesPrivate )
{
}

PimPhoneBookChanges::PimPhoneBookChanges( const PimPhoneBookChanges& a_other ) = default;
PimPhoneBookChanges::PimPhoneBookChanges( PimPhoneBookChanges&& a_other ) noexcept = default;
PimPhoneBookChanges& PimPhoneBookChanges::operator=( const PimPhoneBookChanges& a_other ) = default;
PimPhoneBookChanges& PimPhoneBookChanges::operator=( PimPhoneBookChanges&& a_other ) noexcept = default;
PimPhoneBookChanges::~PimPhoneBookChanges() = default;

PimPhoneBookChanges PimPhoneBookChanges::Compare( const Contacts::PimContactBook& a_old,
                                                  const Contacts::PimContactBook& a_new )
{
    PimPhoneBookChanges changes;
    changes.d->m_newOf.fill( -1, a_old.Size() );
    changes.d->m_oldOf.fill( -1, a_new.Size() );
    for ( int newIndex = 0; newIndex < a_new.Size(); ++newIndex )
    {
        for ( int oldIndex = 0; oldIndex < a_old.Size() && changes.d->m_oldOf[newIndex] < 0; ++oldIndex )
        {
            if ( changes.d->m_newOf[oldIndex] >= 0 ||
                 a_old.At( oldIndex ).DisplayName() != a_new.At( newIndex ).DisplayName() )
                continue;
            changes.d->m_newOf[oldIndex] = newIndex;
            changes.d->m_oldOf[newIndex] = oldIndex;
            if ( a_old.At( oldIndex ) != a_new.At( newIndex ) )
                changes.d->m_changed.append( { oldIndex, newIndex } );
        }
        if ( changes.d->m_oldOf[newIndex] < 0 )
            changes.d->m_added.append( newIndex );
    }
    for ( int oldIndex = 0; oldIndex < a_old.Size(); ++oldIndex )
    {
        if ( changes.d->m_newOf[oldIndex] < 0 )
            changes.d->m_removed.append( oldIndex );
    }
    return changes;
}

bool PimPhoneBookChanges::IsEmpty() const
{
    return d->m_added.isEmpty() && d->m_removed.isEmpty() && d->m_changed.isEmpty();
}

QVector<int> PimPhoneBookChanges::Added() const
{
    return d->m_added;
}

QVector<int> PimPhoneBookChanges::Removed() const
{
    return d->m_removed;
}

QVector<PimPhoneBookPair> PimPhoneBookChanges::Changed() const
{
    return d->m_changed;
}

QVector<PimPhoneBookPair> PimPhoneBookChanges::Moved() const
{
    return d->m_moved;
}

int PimPhoneBookChanges::NewOf( int a_old ) const
{
    return d->m_newOf.at( a_old );
}

int PimPhoneBookChanges::OldOf( int a_new ) const
{
    return d->m_oldOf.at( a_new );
}

} // namespace PimManager::PhoneBook
