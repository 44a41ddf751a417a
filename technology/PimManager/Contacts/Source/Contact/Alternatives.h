/// \file
/// Fields that are the same in several languages.

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

/// The ranks of languages by preference.
class LanguageRanks
{
public:
    /// \param a_wanted languages (RFC 5646), the preferred one first.
    explicit LanguageRanks( const QStringList& a_wanted );

    /// \return a number that is lower for a preferred language. A language ranks before its variants, such as `de`
    ///         before `de-CH` (RFC 4647, section 3.3.1). Linear in the length of the longest language in the list, not
    ///         in their number.
    int Of( const QString& a_language ) const;

private:
    QHash<QString, int> m_ranks;
    int m_longest = 0;
};

/// Determines which fields are alternatives of each other: those of one property with the same ALTID (RFC 6350, section
/// 5.4). The elements of a list are alternatives of the elements with the same position in other lists.
class AlternativeGroups
{
public:
    AlternativeGroups( const std::vector<const PimContactField*>& a_fields, const QStringList& a_languages );

    /// A field that remains.
    struct Group
    {
        /// The chosen field: the one in the most preferred language, or else the first one.
        size_t m_chosen = 0;
        /// Its rank, see LanguageRanks.
        int m_rank = 0;
        /// All fields in their order.
        std::vector<size_t> m_all;
    };

    /// In the order of their first fields.
    const std::vector<Group>& Groups() const { return m_groups; }

private:
    std::vector<Group> m_groups;
};

/// Replaces the fields of each group by the chosen one, which refers to the others.
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
