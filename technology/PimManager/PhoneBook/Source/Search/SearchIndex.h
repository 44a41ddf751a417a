/// \file
/// Find as you type.

#pragma once

#include "Search/NumberParts.h"
#include "Search/SearchedText.h"
#include "Search/WordIndex.h"

#include <PimManager/PhoneBook/PimPhoneBookMatch.h>

#include <QString>
#include <QVector>

#include <vector>

namespace PimManager::PhoneBook
{

/// The sorted list of the contacts, and where it contains which words and digits. Const functions may run in several
/// threads at once.
class SearchIndex
{
public:
    /// The indices of the contacts in the sorted list.
    const QVector<int>& Sorted() const { return m_sorted; }

    /// \param a_contact an index in the book.
    QString Section( int a_contact ) const;

    /// Finds the contacts that contain each word of any way. All contacts if there is no way.
    /// \param a_recent contacts, the latest call first.
    QVector<PimPhoneBookMatch> Find( const std::vector<SearchedWords>& a_ways, const QVector<int>& a_recent ) const;

    /// The memory in bytes.
    size_t Bytes() const;

private:
    friend class SearchIndexBuilder;

    struct SectionBegin
    {
        quint32 m_firstRank;
        QString m_label;
    };

    PlaceMatches MatchesOf( const SearchedWord& a_word ) const;
    PlaceMatches MatchesOf( const SearchedWords& a_words ) const;
    /// \return the place after the last match that was written.
    PimPhoneBookMatch* WritePlace( const PlaceMatches& a_matches, size_t a_place, const QVector<int>& a_recent,
                                   PimPhoneBookMatch* a_next ) const;
    int Contacts() const { return static_cast<int>( m_sorted.size() ); }

    QVector<int> m_sorted;
    std::vector<quint32> m_ranks;
    std::vector<SectionBegin> m_sections;
    WordIndex m_words;
    NumberParts m_numbers;
};

} // namespace PimManager::PhoneBook
