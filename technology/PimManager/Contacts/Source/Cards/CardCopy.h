/// \file
/// Copies cards into new ones.

#pragma once

#include "Cards/CardRecord.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Copies entries and bytes of cards, one after the other, without filtered lines. The positions of nested cards are
/// adapted.
class CardCopy
{
public:
    /// \param a_index of the outermost card; \param a_bytes its bytes. Both must outlive the copy.
    /// \param a_begin the position in the bytes where copying begins.
    CardCopy( const uchar* a_index, std::string_view a_bytes, quint32 a_begin ) :
        m_index( a_index ),
        m_bytes( a_bytes ),
        m_place( a_begin )
    {
    }

    /// Copies a card and its nested cards. The current position must be its first byte, and is its end afterwards.
    /// \param a_record the position of its record in the index.
    CardIndex Copy( quint32 a_record );

    /// Copies the next part, which must not be a nested card.
    /// \param a_raw the bytes of the entry.
    void CopyPart( quint32 a_length, IndexBytes a_raw, IndexWriter& a_writer );
    /// Copies the next part, which must be a nested card.
    void CopyNested( const IndexEntry& a_entry, IndexWriter& a_writer );
    /// Leaves out the next bytes.
    void Skip( quint32 a_length ) { m_place += a_length; }
    /// Adds bytes that are not in the card.
    void Add( std::string_view a_bytes ) { m_copied.append( a_bytes.data(), static_cast<int>( a_bytes.size() ) ); }

    /// The copied bytes.
    const QByteArray& Bytes() const { return m_copied; }

private:
    const uchar* m_index;
    std::string_view m_bytes;
    quint32 m_place;
    QByteArray m_copied;
};

} // namespace PimManager::Contacts
