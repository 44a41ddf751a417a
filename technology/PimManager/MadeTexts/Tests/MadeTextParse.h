/// \file
/// What the tests of the made texts share: a text parsed whole.

#pragma once

#include "PimVCard.h"
#include "PimVCardParser.h"
#include "PimVCardTestLog.h"

#include <QByteArray>
#include <QList>

#include <memory>

namespace PimManager::vCard
{

/// The cards of a text, and what the parser said of them.
class MadeTextParse
{
public:
    explicit MadeTextParse( const QByteArray& a_text )
    {
        const LogCapture log;
        m_cards.reset( PimVCardParser( a_text ).ParseVCards() );
        m_failures = static_cast<int>( log.Texts( QtCriticalMsg ).size() );
    }
    ~MadeTextParse() { qDeleteAll( *m_cards ); }
    Q_DISABLE_COPY( MadeTextParse )

    const QList<PimVCard*>& Cards() const { return *m_cards; }

    /// \return the number of critical messages.
    int Failures() const { return m_failures; }

private:
    std::unique_ptr<QList<PimVCard*>> m_cards;
    int m_failures = 0;
};

} // namespace PimManager::vCard
