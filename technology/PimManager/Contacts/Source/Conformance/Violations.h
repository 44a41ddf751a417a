/// \file
/// Collects violations of the standards.

#pragma once

#include "Lines/StandardSection.h"

#include <PimManager/Contacts/PimContactConformance.h>

#include <QSharedData>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// A violation of a standard.
struct Violation
{
    PimContactFindingCode m_code = PimContactFindingCode::MissingVersion;
    qint64 m_line = 1;
    StandardSection m_section;
    /// The name of a property, and that of a parameter or a type; may be empty. They refer to static tables.
    std::string_view m_subject;
    std::string_view m_detail;
};

/// The data of PimContactFinding.
class PimContactFindingPrivate : public QSharedData
{
public:
    static PimContactFinding Create( const Violation& a_violation );

    Violation m_violation;
};

/// The violations of a card in two lists. Those of the whole card are returned before those of its lines.
class Violations
{
public:
    /// Sets the line of the next violations.
    void SetLine( qint64 a_line ) { m_line = a_line; }

    /// Adds a violation in the current line.
    void Add( PimContactFindingCode a_code, const StandardSection& a_section, std::string_view a_subject = {},
              std::string_view a_detail = {} );
    /// Adds a violation of the whole card.
    /// \param a_line the line number to report.
    void AddOfCard( PimContactFindingCode a_code, qint64 a_line, const StandardSection& a_section,
                    std::string_view a_subject = {} );

    QList<PimContactFinding> Findings() const;

private:
    qint64 m_line = 1;
    std::vector<Violation> m_ofCard;
    std::vector<Violation> m_ofLines;
};

} // namespace PimManager::Contacts
