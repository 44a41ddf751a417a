#include "Cards/CardSeal.h"

#include "Cards/CardCopy.h"
#include "Lines/LinePieces.h"
#include "Lines/NamedCharset.h"
#include "Text/Bytes.h"
#include "Text/Charset.h"
#include "Text/CharsetChoice.h"

namespace PimManager::Contacts
{

namespace
{

/// The entries of one card, each with its bytes.
class CardEntries
{
public:
    CardEntries( IndexBytes a_entries, std::string_view a_bytes, quint32 a_begin ) :
        m_entries( a_entries ),
        m_reader( a_entries.m_data, 0, a_entries.m_size ),
        m_bytes( a_bytes ),
        m_next( a_begin )
    {
    }

    bool Next( bool a_isBrief )
    {
        if ( m_reader.AtEnd() )
            return false;
        m_begin = m_next;
        m_from = m_reader.Place();
        m_reader.Next( m_entry, a_isBrief );
        m_next += m_entry.m_length;
        return true;
    }

    IndexEntry& Entry() { return m_entry; }
    quint32 Begin() const { return m_begin; }
    std::string_view Line() const { return WithoutLineEnd( m_bytes.substr( m_begin, m_entry.m_length ) ); }
    bool IsLine() const { return m_entry.m_kind == EntryKind::Line; }
    // The entries as stored.
    IndexBytes Raw() const { return { m_entries.m_data + m_from, m_reader.Place() - m_from }; }

private:
    IndexBytes m_entries;
    IndexReader m_reader;
    std::string_view m_bytes;
    IndexEntry m_entry;
    quint32 m_begin = 0;
    quint32 m_from = 0;
    quint32 m_next;
};

/// Chooses the character sets of the lines of a card.
class LineCharsets
{
public:
    LineCharsets( IndexBytes a_entries, std::string_view a_bytes, const CardRecord& a_record ) :
        m_entries( a_entries ),
        m_bytes( a_bytes ),
        m_record( a_record )
    {
    }

    void Decide( bool a_isCardUtf8, bool a_isDefaultKnown, CardIndex& a_index ) const
    {
        const std::string_view cardCharset = CardCharset();
        const CharsetChoice choice( a_isCardUtf8, !cardCharset.empty(), a_isDefaultKnown );
        IndexWriter writer;
        for ( CardEntries entries( m_entries, m_bytes, m_record.m_begin ); entries.Next( false ); )
        {
            if ( entries.IsLine() )
            {
                const QByteArray text = TextOf( entries );
                const LineHead head = LineHead::Of( ViewOf( text ) );
                entries.Entry().m_charset = choice.Of( ViewOf( text ), NamedCharset( head, ViewOf( text ) ) );
                writer.Add( entries.Entry() );
            }
            else
                writer.AddRaw( entries.Raw() );
        }
        a_index.Set( m_record, writer.Bytes(), cardCharset );
    }

private:
    QByteArray TextOf( CardEntries& a_entries ) const
    {
        const std::string_view line = a_entries.Line();
        return Unfolded( line, a_entries.Entry(), m_record.FoldStyle(), { 0, static_cast<quint32>( line.size() ) } );
    }

    // The first one that is known and is not folded; also that of a filtered line. One without ASCII needs escape
    // sequences, and a line that has them is decided about without it.
    std::string_view CardCharset() const
    {
        for ( CardEntries entries( m_entries, m_bytes, m_record.m_begin ); entries.Next( false ); )
        {
            if ( !entries.IsLine() && entries.Entry().m_kind != EntryKind::Filtered )
                continue;
            const std::string_view charset = NamedCharset( LineHead::Of( entries.Line() ), entries.Line() );
            if ( IsKnownCharset( charset ) && Charset::Of( charset ).ContainsAscii() )
                return charset;
        }
        return std::string_view();
    }

    IndexBytes m_entries;
    std::string_view m_bytes;
    const CardRecord& m_record;
};

} // namespace

void SealCard( const CardFacts& a_facts, IndexBytes a_entries, CardRecord a_record, std::string_view a_bytes,
               bool a_isDefaultKnown, CardIndex& a_index )
{
    a_record.m_lines = a_facts.m_parts[static_cast<size_t>( EntryKind::Line )];
    a_record.m_version = static_cast<quint8>( a_facts.m_version );
    const bool isVersion21 = a_facts.m_version == PimContactVersion::V21;
    const bool foldsByLength = isVersion21 && a_facts.m_folds.IsByLength();
    a_record.m_foldStyle = static_cast<quint8>( isVersion21 && !foldsByLength ? PimContactFoldStyle::BlankKept
                                                                              : PimContactFoldStyle::BlankRemoved );
    a_record.Set( CardRecord::FoldsByLength, foldsByLength );
    a_record.Set( CardRecord::IsFiltered, a_facts.m_isFiltered );
    a_record.Set( CardRecord::IsOtherCharset, !a_facts.m_isValidUtf8 );
    a_record.Set( CardRecord::IsWhole,
                  !a_facts.m_isDropped && a_record.Has( CardRecord::HasBegin ) && a_record.Has( CardRecord::HasEnd ) );
    if ( a_facts.m_isValidUtf8 && !a_facts.m_mayBeShifted )
        a_index.Set( a_record, a_entries, std::string_view() );
    else
        LineCharsets( a_entries, a_bytes, a_record ).Decide( a_facts.m_isValidUtf8, a_isDefaultKnown, a_index );
}

FilteredCard WithoutFilteredLines( const CardIndex& a_index, std::string_view a_bytes )
{
    CardCopy copy( a_index.Base(), a_bytes, 0 );
    FilteredCard card;
    card.m_index = copy.Copy( 0 );
    card.m_bytes = copy.Bytes();
    return card;
}

} // namespace PimManager::Contacts
