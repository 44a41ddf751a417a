/// \file
/// A set of contacts, by their ranks in the sorted list.

#pragma once

#include <QtAlgorithms>
#include <QtGlobal>

#include <vector>

namespace PimManager::PhoneBook
{

/// One bit for each contact. All sets of a phone book have the same size.
class ContactSet
{
public:
    static constexpr size_t s_kBits = 64;

    explicit ContactSet( int a_contacts ) :
        m_words( WordsFor( static_cast<size_t>( a_contacts ) ) )
    {
    }

    /// The number of words of a set.
    static size_t WordsFor( size_t a_contacts ) { return ( a_contacts + s_kBits - 1 ) / s_kBits; }

    /// The bits.
    quint64* Words() { return m_words.data(); }

    void Add( quint32 a_rank ) { m_words[a_rank / s_kBits] |= BitOf( a_rank ); }
    void Remove( quint32 a_rank ) { m_words[a_rank / s_kBits] &= ~BitOf( a_rank ); }
    bool Has( quint32 a_rank ) const { return ( m_words[a_rank / s_kBits] & BitOf( a_rank ) ) != 0; }

    ContactSet& operator|=( const ContactSet& a_other )
    {
        Add( a_other.m_words.data() );
        return *this;
    }
    ContactSet& operator&=( const ContactSet& a_other )
    {
        Keep( a_other.m_words.data() );
        return *this;
    }

    /// Adds the contacts of a set that is given by its words.
    void Add( const quint64* a_words )
    {
        for ( size_t i = 0; i < m_words.size(); ++i )
            m_words[i] |= a_words[i];
    }

    /// Removes all contacts but those of a set that is given by its words.
    void Keep( const quint64* a_words )
    {
        for ( size_t i = 0; i < m_words.size(); ++i )
            m_words[i] &= a_words[i];
    }

    /// Removes the contacts of another set.
    void Remove( const ContactSet& a_other )
    {
        for ( size_t i = 0; i < m_words.size(); ++i )
            m_words[i] &= ~a_other.m_words[i];
    }

    /// The memory in bytes.
    size_t Bytes() const { return m_words.capacity() * sizeof( quint64 ); }

    bool IsEmpty() const;
    int Size() const;

    /// Calls a function with each rank, ascending.
    template <class Take>
    void ForEach( Take a_take ) const
    {
        for ( size_t i = 0; i < m_words.size(); ++i )
        {
            const auto base = static_cast<quint32>( i * s_kBits );
            for ( quint64 word = m_words[i]; word != 0; word &= word - 1 )
                a_take( base + qCountTrailingZeroBits( word ) );
        }
    }

private:
    static quint64 BitOf( quint32 a_rank ) { return quint64( 1 ) << ( a_rank % s_kBits ); }

    std::vector<quint64> m_words;
};

} // namespace PimManager::PhoneBook
