/// \file
/// The words of all contacts.

#pragma once

#include "Search/FoldedText.h"

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

namespace PimManager::PhoneBook
{

/// Collects the words of contacts for a WordIndex.
class WordCollector
{
public:
    /// The length in bytes of the part of a word that is compared: 96 Latin letters, 48 Cyrillic or 32 Chinese ones.
    static constexpr size_t s_kMostBytes = 96;
    /// The number of characters of a text without blanks that may each begin a word.
    static constexpr quint32 s_kMostStarts = 32;

    struct Entry
    {
        quint64 m_head; // the first eight bytes, so that most comparisons need no more
        quint32 m_begin;
        quint32 m_size;
        quint32 m_contact;
        bool m_isOrganisation;
    };

    /// \return the part of a word that is compared.
    static std::string_view Cut( std::string_view a_word );

    /// Adds the words of a contact.
    void Add( quint32 a_contact, const FoldedText& a_text, bool a_isOrganisation );

    /// Sorts the words and removes equal ones of one contact.
    void Sort();

    const std::vector<Entry>& Entries() const { return m_entries; }
    std::string_view WordOf( const Entry& a_entry ) const
    {
        return std::string_view( m_text ).substr( a_entry.m_begin, a_entry.m_size );
    }

private:
    void AddWord( std::string_view a_word );
    void AddChain( const FoldedText& a_text, const FoldedText::Chain& a_chain );
    void AddStart( const FoldedText& a_text, const FoldedText::Chain& a_chain, quint32 a_index );
    void AddBoth( const FoldedText& a_text, const FoldedText::Chain& a_chain, const FoldedText::Start& a_begin,
                  const FoldedText::Start& a_end );
    bool IsBefore( const Entry& a_first, const Entry& a_second ) const;
    bool IsKnown( const Entry& a_entry, std::string_view a_word ) const;

    std::string m_text;
    std::vector<Entry> m_entries;
    size_t m_firstOfContact = 0;
    quint32 m_contact = 0;
    bool m_isOrganisation = false;
};

} // namespace PimManager::PhoneBook
