/// \file
/// Collects the problems that are found while a value is decoded.

#pragma once

#include "Text/Charset.h"

#include <PimManager/Contacts/PimContactDecoding.h>

#include <QSharedData>
#include <QtGlobal>

#include <array>

namespace PimManager::Contacts
{

/// The data that PimContactDecoding returns. Clearing it is cheap, because a count is valid only if its problem is set.
class Findings
{
public:
    void Clear()
    {
        m_problems = {};
        m_charset = Charset( Charset::Id::Utf8 );
    }
    /// \param a_place the position; -1 if there is none.
    void Add( PimContactDecodingProblem a_problem, qint64 a_place, qint64 a_count = 1 );
    void SetCharset( Charset a_charset ) { m_charset = a_charset; }

    PimContactDecodingProblems Problems() const { return m_problems; }
    qint64 Count( PimContactDecodingProblem a_problem ) const;
    qint64 FirstPlace( PimContactDecodingProblem a_problem ) const;
    Charset UsedCharset() const { return m_charset; }

private:
    struct Finding
    {
        qint64 m_count;
        qint64 m_place;
    };

    static size_t IndexOf( PimContactDecodingProblem a_problem );

    PimContactDecodingProblems m_problems;
    Charset m_charset = Charset( Charset::Id::Utf8 );
    std::array<Finding, 8> m_findings;
};

/// The data of PimContactDecoding.
class PimContactDecodingPrivate : public QSharedData
{
public:
    static PimContactDecoding Create( const Findings& a_findings );

    Findings m_findings;
};

} // namespace PimManager::Contacts
