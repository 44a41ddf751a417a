/// \file
/// Fields that say the same in several languages.

#pragma once

#include "Contact/FieldData.h"

#include <PimManager/Contacts/PimContactField.h>

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include <utility>
#include <vector>

namespace PimManager::Contacts
{

/// How much each language is wanted.
class LanguageRanks
{
public:
    /// \param a_wanted languages (RFC 5646), the best one first.
    explicit LanguageRanks( const QStringList& a_wanted );

    /// \return a number that is lower for a language that is wanted more: for the language itself, and then for one of
    ///         its variants, such as `de-CH` for `de` (RFC 4647, section 3.3.1). Linear in the length of the longest
    ///         wanted language, not in their number.
    int Of( const QString& a_language ) const;

private:
    QHash<QString, int> m_ranks;
    int m_longest = 0;
};

/// Determines which fields are alternatives of each other: those of one property with the same ALTID (RFC 6350, section
/// 5.4). The elements of a list are alternatives of those with the same position in other lists.
class AlternativeGroups
{
public:
    AlternativeGroups( const std::vector<const PimContactField*>& a_fields, const QStringList& a_languages );

    /// A field that remains.
    struct Group
    {
        /// The chosen one: that of the first wanted language that is there, or else the first one.
        size_t m_chosen = 0;
        /// How much it is wanted, see LanguageRanks.
        int m_rank = 0;
        /// All of them in their order.
        std::vector<size_t> m_all;
    };

    /// In the order of their first fields.
    const std::vector<Group>& Groups() const { return m_groups; }

private:
    std::vector<Group> m_groups;
};

/// Replaces the fields of each group by the chosen one, which knows the others.
template <class Field>
void MergeAlternatives( PimContactList<Field>& a_fields, const QStringList& a_languages )
{
    std::vector<const PimContactField*> pointers;
    for ( const Field& field : std::as_const( a_fields ) )
        pointers.push_back( &field );
    const AlternativeGroups groups( pointers, a_languages );
    PimContactList<Field> merged;
    for ( const AlternativeGroups::Group& group : groups.Groups() )
    {
        std::vector<PimContactField> all;
        for ( const size_t index : group.m_all )
            all.push_back( *pointers[index] );
        Field chosen = a_fields.at( static_cast<int>( group.m_chosen ) );
        if ( all.size() > 1 )
            PimContactFieldPrivate::ChangedDataOf<PimContactFieldPrivate>( chosen ).ChangedExtras().m_alternatives =
                std::move( all );
        merged.append( chosen );
    }
    a_fields = std::move( merged );
}

} // namespace PimManager::Contacts
