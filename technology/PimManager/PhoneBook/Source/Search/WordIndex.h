/// \file
/// The words of all contacts in the order of the alphabet, and in the order of their keys.

#pragma once

#include "Search/WordCollector.h"
#include "Search/WordMatches.h"

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

namespace PimManager::PhoneBook
{

/// Finds the contacts with words that begin with a text or with keys. Eight bytes for each different word, four for
/// each KeyWord of these, four for each word of a contact, and the letters.
class WordIndex
{
public:
    /// \param a_words sorted.
    /// \param a_ranks the rank in the sorted list for each contact.
    void Build( const WordCollector& a_words, const std::vector<quint32>& a_ranks );

    /// Adds the contacts with a word that begins with a text.
    /// \param a_beginning folded; not empty.
    void Find( std::string_view a_beginning, WordMatches& a_matches ) const;

    /// Adds the contacts with a word that begins with keys.
    /// \param a_keys digits from 2 to 9; not empty.
    void FindByKeys( std::string_view a_keys, WordMatches& a_matches ) const;

    /// The memory in bytes.
    size_t Bytes() const;

private:
    // The rank of a contact, and whether the word is of an organisation.
    using Place = quint32;

    std::string_view WordAt( size_t a_word ) const
    {
        return std::string_view( m_text ).substr( m_begins[a_word], m_begins[a_word + 1] - m_begins[a_word] );
    }
    void BuildKeys( int a_contacts );
    void AddFirstKey( quint64 a_keys, size_t a_word );
    quint64 KeysAt( size_t a_keyWord ) const;
    size_t FirstKeyWord( quint64 a_keys, size_t a_from ) const;
    template <class Taker>
    void TakeKeyWords( size_t a_first, size_t a_end, const Taker& a_taker ) const;
    size_t FirstWord( std::string_view a_beginning ) const;
    size_t EndOfWords( std::string_view a_beginning, size_t a_first ) const;

    // The different words in the order of their bytes: their letters, where each begins, and its first place.
    std::string m_text;
    std::vector<quint32> m_begins;
    std::vector<quint32> m_firstPlaces;
    std::vector<Place> m_places;

    // For each key from 2 to 9, the contacts with a name, and those with an organisation, that begins with it.
    std::vector<ContactSet> m_firstKeys;
    // The key words in their order: for each the index of its word, and in the last bits its index in the word.
    std::vector<quint32> m_keyWords;
};

} // namespace PimManager::PhoneBook
