#include "Conformance/Violations.h"

namespace PimManager::Contacts
{

void Violations::Add( PimContactFindingCode a_code, const StandardSection& a_section, std::string_view a_subject,
                      std::string_view a_detail )
{
    m_ofLines.push_back( { a_code, m_line, a_section, a_subject, a_detail } );
}

void Violations::AddOfCard( PimContactFindingCode a_code, qint64 a_line, const StandardSection& a_section,
                            std::string_view a_subject )
{
    m_ofCard.push_back( { a_code, a_line, a_section, a_subject, {} } );
}

QList<PimContactFinding> Violations::Findings() const
{
    QList<PimContactFinding> findings;
    for ( const std::vector<Violation>* const list : { &m_ofCard, &m_ofLines } )
    {
        for ( const Violation& violation : *list )
            findings.append( PimContactFindingPrivate::Create( violation ) );
    }
    return findings;
}

} // namespace PimManager::Contacts
