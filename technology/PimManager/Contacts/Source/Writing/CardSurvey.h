/// \file
/// Examines a card before it is written.

#pragma once

#include "Cards/LineView.h"
#include "Contact/ContactLines.h"
#include "Text/ByteFlags.h"
#include "Writing/CleanLine.h"
#include "Writing/HeadMemory.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// A line of a card, or a part that was dropped.
struct SurveyedPart
{
    LinePlace m_place;
    quint32 m_length = 0;
    PropertyId m_property = PropertyId::Other;
    Cleanness m_cleanness = Cleanness::None;
    bool m_isDropped = false;
    bool m_isBase64 = false;
    /// IndexReader::IsPlain() accepts the line, its head is not folded, and no card follows it.
    bool m_isPlain = false;
};

/// The results of examining all parts of a card. Keeps its memory.
class CardSurvey
{
public:
    /// \param a_card      not null; must exist as long as the survey is used.
    /// \param a_target    the version to write.
    /// \param a_isCopying true if lines of the card may be copied, because it has this version.
    void Read( const PimContactCard& a_card, PimContactVersion a_target, bool a_isCopying );

    /// The lines and the parts that were dropped, in their order.
    const std::vector<SurveyedPart>& Parts() const { return m_parts; }
    std::string_view BytesOf( const SurveyedPart& a_part ) const
    {
        return std::string_view( m_card.m_bytes.data() + a_part.m_place.m_begin, a_part.m_length );
    }

    /// Reads the entry of a plain line again.
    IndexReader::PlainLine PlainLineOf( const SurveyedPart& a_part ) const
    {
        return IndexReader( m_card.m_index, a_part.m_place.m_entry, a_part.m_place.m_entry ).SkipPlain();
    }
    /// \return the meaning of the head of a plain line. Valid until the next call.
    HeadMeaning& MeaningOf( std::string_view a_bytes, const IndexReader::PlainLine& a_line ) const
    {
        const std::string_view head = HeadOf( a_bytes, a_line );
        return m_heads->Of( std::string_view( head.data(), a_line.m_name.m_length ), head, m_step );
    }
    const CardRecord& Record() const { return m_card.m_record; }
    VersionStep Step() const { return m_step; }

    const PropertySet& Properties() const { return m_properties; }
    bool Has( PropertyId a_property ) const { return m_properties[static_cast<size_t>( a_property )]; }
    /// \return true if the card has the names that the target requires.
    bool HasNames() const;
    bool HasVersion() const { return m_versions > 0; }
    /// \return true if the first line is VERSION.
    bool IsVersionFirst() const { return m_isVersionFirst; }
    /// \return true if the whole card may be copied.
    bool IsCopy() const;

private:
    static std::string_view HeadOf( std::string_view a_bytes, const IndexReader::PlainLine& a_line )
    {
        return std::string_view( a_bytes.data() + a_line.m_name.m_begin,
                                 a_line.m_parameters.End() - a_line.m_name.m_begin );
    }
    void Begin( const PimContactCard& a_card, PimContactVersion a_target, bool a_isCopying );
    bool HasCleanText( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                       const HeadMeaning& a_meaning ) const;
    Q_ALWAYS_INLINE bool TakePlainLine( const IndexReader& a_reader, LinePlace a_place,
                                        const IndexReader::PlainLine& a_line );
    void TakeOtherLine( LinePlace a_place );
    void TakeOther( LinePlace a_place, const IndexReader::Outline& a_part );
    void TakeBoundary( std::string_view a_bytes );
    Q_ALWAYS_INLINE void Note( const SurveyedPart& a_line );

    HeadMemory* m_heads = nullptr;
    CleanLine m_clean;
    CardView m_card;
    VersionStep m_step;
    bool m_isCopying = false;
    // For the whole card.
    ByteFlags m_bytes;
    // Each part may be copied unchanged.
    bool m_isClean = true;
    std::vector<SurveyedPart> m_parts;
    PropertySet m_properties;
    int m_lines = 0;
    int m_versions = 0;
    bool m_isVersionFirst = false;
    int m_boundaries = 0;
    bool m_isBehindBase64 = false;
};

} // namespace PimManager::Contacts
