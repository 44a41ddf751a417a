/// \file
/// A sealed card, for tests of the classes that use its index.

#pragma once

#include "CardLines.h"
#include "Cards/CardRecord.h"
#include "Cards/CardSeal.h"
#include "Lines/LineFilter.h"
#include "Lines/LinePieces.h"
#include "Lines/LineScanner.h"
#include "Lines/LogicalLines.h"
#include "Text/Bytes.h"

#include <string>
#include <string_view>

namespace PimManager::Contacts
{

/// The index of a card with its nested cards. Unlike the cutter, it decides nothing: each line that is `BEGIN:VCARD` or
/// `END:VCARD` begins or ends a card, and an END that is missing is missing at the end of the text.
class SealedText
{
public:
    /// \param a_text  from the first byte of the card to its last one. It may begin without a BEGIN line.
    /// \param a_flags of the outermost card, in addition to those that follow from the text.
    explicit SealedText( const std::string& a_text, const PimContactOptions& a_options = PimContactOptions(),
                         bool a_isDefaultKnown = true, int a_flags = 0 ) :
        m_text( a_text ),
        m_filter( a_options ),
        m_mostLineBytes( a_options.LineBytes() ),
        m_isDefaultKnown( a_isDefaultKnown ),
        m_flags( static_cast<quint8>( a_flags ) )
    {
        Seal( 0, m_index );
    }
    Q_DISABLE_COPY( SealedText )

    const CardIndex& Index() const { return m_index; }
    std::string_view Bytes() const { return m_text; }

private:
    quint32 EndOfLine( quint32 a_begin ) const
    {
        const char* const end = m_text.data() + m_text.size();
        const char* const place = LineEndSearch().Find( m_text.data() + a_begin, end );
        const int length = place == end ? 0 : LineEndSearch::LengthOfEnd( place, end, true );
        return static_cast<quint32>( place - m_text.data() + length );
    }

    std::string_view Line( quint32 a_begin ) const
    {
        return WithoutLineEnd( Bytes().substr( a_begin, EndOfLine( a_begin ) - a_begin ) );
    }

    bool Is( quint32 a_place, std::string_view a_boundary ) const { return Trimmed( Line( a_place ) ) == a_boundary; }

    quint32 NextBoundary( quint32 a_place ) const
    {
        while ( a_place < m_text.size() && !Is( a_place, s_kBegin ) && !Is( a_place, s_kEnd ) )
            a_place = EndOfLine( a_place );
        return a_place;
    }

    quint32 WriteBoundary( LogicalLines& a_lines, quint32 a_begin ) const
    {
        const quint32 end = EndOfLine( a_begin );
        a_lines.WriteBoundary( end - a_begin, Trimmed( Line( a_begin ) ) != Line( a_begin ) );
        return end;
    }

    // Returns the position after the card.
    quint32 Seal( quint32 a_begin, CardIndex& a_index ) const
    {
        LogicalLines lines( m_filter, m_mostLineBytes );
        lines.Begin( a_begin, 0 );
        CardRecord record;
        record.m_begin = a_begin;
        record.m_offset = a_begin;
        record.m_flags = a_begin == 0 ? m_flags : quint8( 0 );
        record.Set( CardRecord::HasBegin, Is( a_begin, s_kBegin ) );
        quint32 place = Is( a_begin, s_kBegin ) ? WriteBoundary( lines, a_begin ) : a_begin;
        while ( place < m_text.size() && !record.Has( CardRecord::HasEnd ) )
        {
            const quint32 next = NextBoundary( place );
            TakeAllLines( lines, Bytes().substr( 0, next ), place );
            lines.WriteBlankUpTo( next );
            place = next;
            if ( place < m_text.size() && Is( place, s_kEnd ) )
            {
                record.Set( CardRecord::HasEnd, true );
                place = WriteBoundary( lines, place );
            }
            else if ( place < m_text.size() )
                place = SealNested( lines, place );
        }
        record.m_length = place - a_begin;
        SealCard( lines.Facts(), lines.Index().Bytes(), record, m_text, m_isDefaultKnown, a_index );
        return place;
    }

    quint32 SealNested( LogicalLines& a_lines, quint32 a_begin ) const
    {
        CardIndex nested;
        const quint32 end = Seal( a_begin, nested );
        a_lines.Facts().m_isFiltered = a_lines.Facts().m_isFiltered || nested.Record().Has( CardRecord::IsFiltered );
        a_lines.WriteNested( end - a_begin, nested.Bytes() );
        return end;
    }

    static constexpr std::string_view s_kBegin = "BEGIN:VCARD";
    static constexpr std::string_view s_kEnd = "END:VCARD";

    std::string m_text;
    LineFilter m_filter;
    qint64 m_mostLineBytes;
    bool m_isDefaultKnown;
    quint8 m_flags;
    CardIndex m_index;
};

} // namespace PimManager::Contacts
