#include <PimManager/Contacts/PimContactDecoding.h>

#include "Text/Bytes.h"
#include "Values/Findings.h"

#include <QtAlgorithms>

namespace PimManager::Contacts
{

size_t Findings::IndexOf( PimContactDecodingProblem a_problem )
{
    return qCountTrailingZeroBits( static_cast<quint32>( a_problem ) );
}

void Findings::Add( PimContactDecodingProblem a_problem, qint64 a_place, qint64 a_count )
{
    Finding& finding = m_findings[IndexOf( a_problem )];
    if ( m_problems.testFlag( a_problem ) )
    {
        finding.m_count += a_count;
        return;
    }
    m_problems |= a_problem;
    finding = { a_count, a_place };
}

qint64 Findings::Count( PimContactDecodingProblem a_problem ) const
{
    return m_problems.testFlag( a_problem ) ? m_findings[IndexOf( a_problem )].m_count : 0;
}

qint64 Findings::FirstPlace( PimContactDecodingProblem a_problem ) const
{
    return m_problems.testFlag( a_problem ) ? m_findings[IndexOf( a_problem )].m_place : -1;
}

PimContactDecoding PimContactDecodingPrivate::Create( const Findings& a_findings )
{
    PimContactDecoding decoding;
    decoding.d->m_findings = a_findings;
    return decoding;
}

PimContactDecoding::PimContactDecoding() :
    d( new PimContactDecodingPrivate )
{
    d->m_findings.Clear();
}

PimContactDecoding::PimContactDecoding( const PimContactDecoding& a_other ) = default;
PimContactDecoding& PimContactDecoding::operator=( const PimContactDecoding& a_other ) = default;
PimContactDecoding::~PimContactDecoding() = default;

bool PimContactDecoding::IsClean() const
{
    return d->m_findings.Problems() == PimContactDecodingProblems();
}

PimContactDecodingProblems PimContactDecoding::Problems() const
{
    return d->m_findings.Problems();
}

qint64 PimContactDecoding::Count( PimContactDecodingProblem a_problem ) const
{
    return d->m_findings.Count( a_problem );
}

qint64 PimContactDecoding::FirstPlace( PimContactDecodingProblem a_problem ) const
{
    return d->m_findings.FirstPlace( a_problem );
}

QByteArray PimContactDecoding::Charset() const
{
    return BytesOf( d->m_findings.UsedCharset().Name() );
}

} // namespace PimManager::Contacts
