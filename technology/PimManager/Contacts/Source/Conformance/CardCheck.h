/// \file
/// Checks cards.

#pragma once

#include "Conformance/LayoutCheck.h"
#include "Conformance/ParameterCheck.h"
#include "Conformance/ValueCheck.h"
#include "Conformance/Violations.h"
#include "Lines/PropertyRules.h"

#include <PimManager/Contacts/PimContactConformance.h>

#include <QByteArray>
#include <QSet>

#include <array>

namespace PimManager::Contacts
{

/// Checks one card.
class CardCheck
{
public:
    explicit CardCheck( const PimContactCard& a_card );

    QList<PimContactFinding> Findings() const { return m_violations.Findings(); }

private:
    void CheckAll( const PimContactCard& a_card, const CardRecord& a_record );
    void CheckVersion( const CardView& a_card );
    void CheckParts( const PimContactCard& a_card );
    void CheckLine( LineCursor& a_cursor );
    void CheckForm( const IndexedLine& a_line );
    void CheckPlaceOfVersion( PropertyId a_property );
    void CountProperty( const PropertyRule& a_rule );
    bool IsCounted( const PropertyRule& a_rule );
    void TakeValue( PropertyId a_property );
    void CheckBoundaries( const CardRecord& a_record );
    void CheckMissing();
    void CheckMembers();

    const PimContactVersion m_version;
    const qint64 m_firstLine;
    Violations m_violations;
    LayoutCheck m_layout;
    ParameterCheck m_parameters;
    ValueCheck m_value;

    std::array<bool, s_kProperties> m_isFound = {};
    // For properties that may occur once: the number of the property, and its ALTID.
    QSet<QByteArray> m_altIds;
    bool m_isFirstLine = true;
    bool m_isGroup = false;
    // The line of the first MEMBER; 0 if there is none.
    qint64 m_memberLine = 0;
};

} // namespace PimManager::Contacts
