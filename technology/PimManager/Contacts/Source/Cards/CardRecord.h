/// \file
/// The data of PimContactCard: one block of memory.
///
///     PimContactCardPrivate | record | entries, with those of nested cards | character set | bytes

#pragma once

#include "Lines/LineIndex.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>
#include <QSharedData>

#include <cstring>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// The decisions about a card, outermost or nested, that were made at its END. Records are stored in the index without
/// alignment, so they are copied in and out.
struct CardRecord
{
    enum Flag : quint8
    {
        HasBegin = 0x01,
        HasEnd = 0x02,
        IsWhole = 0x04,
        IsFiltered = 0x08,
        IsIndented = 0x10,
        FoldsByLength = 0x20,
        IsOtherCharset = 0x40, ///< the card is not valid UTF-8
    };

    /// The position of the card in the bytes of the outermost card.
    quint32 m_begin = 0;
    quint32 m_length = 0;
    /// The start of the card in the outermost card as it was found: its offset, and the number of lines before it.
    quint32 m_offset = 0;
    quint32 m_line = 0;
    /// The length and number of its entries, which follow the record.
    quint32 m_indexLength = 0;
    quint32 m_lines = 0;
    /// The length of the name of the character set for lines that name none. The name follows the entries.
    quint16 m_charsetLength = 0;
    quint8 m_version = 0;
    quint8 m_foldStyle = 0;
    quint8 m_flags = 0;

    bool Has( Flag a_flag ) const { return ( m_flags & a_flag ) != 0; }
    void Set( Flag a_flag, bool a_isSet )
    {
        m_flags = static_cast<quint8>( a_isSet ? m_flags | a_flag : m_flags & ~a_flag );
    }
    PimContactVersion Version() const { return static_cast<PimContactVersion>( m_version ); }
    PimContactFoldStyle FoldStyle() const { return static_cast<PimContactFoldStyle>( m_foldStyle ); }

    static CardRecord At( const uchar* a_place )
    {
        CardRecord record;
        std::memcpy( &record, a_place, sizeof( CardRecord ) );
        return record;
    }
    void WriteTo( uchar* a_place ) const { std::memcpy( a_place, this, sizeof( CardRecord ) ); }
};

/// A record and its index, in a vector.
class CardIndex
{
public:
    /// \param a_charset the name of the character set for lines that name none; may be empty.
    void Set( const CardRecord& a_record, IndexBytes a_entries, std::string_view a_charset );

    IndexBytes Bytes() const { return { m_bytes.data(), static_cast<quint32>( m_bytes.size() ) }; }
    const uchar* Base() const { return m_bytes.data(); }
    CardRecord Record() const { return CardRecord::At( m_bytes.data() ); }

private:
    std::vector<uchar> m_bytes;
};

/// \return a reader of the entries of a card.
/// \param a_base   the index of the outermost card, including its record.
/// \param a_record the position of the card's record in it.
IndexReader EntriesOf( const uchar* a_base, quint32 a_record );

/// \return the name of the character set of lines that name none themselves.
std::string_view CharsetOf( const uchar* a_base, quint32 a_record );

/// The memory block of a card.
class PimContactCardPrivate : public QSharedData
{
public:
    /// Facts about the card in its file.
    struct Origin
    {
        qint64 m_number = 0;
        qint64 m_offset = 0;
        qint64 m_firstLine = 1;
        bool m_isConverted = false;
        QByteArray m_defaultCharset;
    };

    /// Allocates the block with one allocation. Throws std::bad_alloc.
    static PimContactCard Create( const Origin& a_origin, IndexBytes a_index, std::string_view a_bytes );

    // Gives access to the data of PimContactCard and PimContactLine.
    class LineView;
    static CardRecord RecordOf( const PimContactCard& a_card );
    static std::string_view BytesOf( const PimContactCard& a_card );
    static PimContactCard CardAt( PimContactCardPrivate* a_private, quint32 a_record );
    /// \return an iterator at the first property.
    static PimContactCard::const_iterator Begin( PimContactCardPrivate* a_private, quint32 a_record );
    /// Steps to the next property, or to the end.
    static void Step( PimContactCard::const_iterator& a_iterator );
    static bool AreSamePlace( const PimContactLine& a_first, const PimContactLine& a_second );
    static bool AreEqual( const PimContactCard& a_first, const PimContactCard& a_second );

    // Only Create() makes blocks, with the operator below. NOLINTNEXTLINE(misc-new-delete-overloads)
    void operator delete( void* a_block ) { ::operator delete( a_block ); }

    const uchar* Index() const { return reinterpret_cast<const uchar*>( this + 1 ); }
    std::string_view Bytes() const
    {
        return std::string_view( reinterpret_cast<const char*>( Index() + m_indexLength ), m_bytesLength );
    }

    const Origin m_origin;
    const quint32 m_indexLength;
    const quint32 m_bytesLength;

private:
    static void SetName( PimContactLine& a_line, const IndexReader::Outline& a_outline );
    PimContactCardPrivate( const Origin& a_origin, quint32 a_indexLength, quint32 a_bytesLength );
    void* operator new( size_t /*a_size*/, void* a_block ) { return a_block; }
    void operator delete( void* /*a_block*/, void* /*a_place*/ ) {}
};

} // namespace PimManager::Contacts
