/// \file
/// The fast path to another version.

#pragma once

#include "Cards/LineView.h"
#include "Contact/ContactLines.h"
#include "Text/KeptTexts.h"
#include "Values/Findings.h"
#include "Writing/HeadMemory.h"
#include "Writing/PlainChangeRule.h"
#include "Writing/VCardText.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Writes lines of one version in another one without making properties of them. The head is copied from an earlier
/// line, and the value is copied unchanged. The output is what PropertyReader, VersionChanges and VCardText would write
/// together. Any other line is left to them.
class PlainChange
{
public:
    /// \param a_text must outlive the object.
    explicit PlainChange( VCardText& a_text ) :
        m_text( a_text )
    {
    }

    void BeginCard( const CardRecord& a_record, VersionStep a_step, const PropertySet& a_properties );

    /// \return false if the lines of a property must take the slow path in this card.
    bool MayTake( PropertyId a_property ) const;

    /// Writes a line of such a property. Its head must be known, and its rule must allow it.
    /// \param a_bytes the line with its line endings.
    /// \return false if the line must take the slow path. Then nothing is written.
    bool Take( std::string_view a_bytes, const IndexReader::PlainLine& a_line, const HeadMeaning& a_meaning );

private:
    std::string_view ValueOf( std::string_view a_bytes, const IndexReader::PlainLine& a_line );
    bool TakeOld( const LineHeadText& a_head, std::string_view a_value, bool a_isPrintable,
                  const PlainChangeRule& a_rule );
    bool ReadTexts( std::string_view a_value, const PlainChangeRule& a_rule );

    VCardText& m_text;
    PimContactFoldStyle m_foldStyle = PimContactFoldStyle::BlankRemoved;
    bool m_isUsual = false;
    bool m_hasSortName = false;
    bool m_hasLabels = false;

    QByteArray m_unfolded;
    QByteArray m_part;
    KeptTexts m_kept;
    Findings m_findings;
    std::vector<ValueText> m_texts;
};

} // namespace PimManager::Contacts
