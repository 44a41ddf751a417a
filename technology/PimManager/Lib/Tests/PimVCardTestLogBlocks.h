/// \file
/// Lets unit tests write millions of messages to Qt's log.

#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace PimManager::vCard
{

/// Drops all messages between its construction and its destruction, and counts the blocks of error reports among them.
/// Only one may exist at a time, on one thread.
class LogBlockCount
{
public:
    LogBlockCount() :
        m_former( qInstallMessageHandler( Count ) )
    {
        sm_current = this;
    }
    ~LogBlockCount() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( LogBlockCount )

    /// The number of blocks whose heading was written.
    int Begun() const { return m_begun; }
    /// The number of blocks whose empty last line was written.
    int Ended() const { return m_ended; }

private:
    static void Count( QtMsgType a_type, const QMessageLogContext& /*a_context*/, const QString& a_text )
    {
        if ( a_type != QtCriticalMsg )
            return;
        sm_current->m_begun += a_text.startsWith( QLatin1String( "Error in" ) ) ? 1 : 0;
        sm_current->m_ended += a_text.isEmpty() ? 1 : 0;
    }

    inline static LogBlockCount* sm_current = nullptr;
    const QtMessageHandler m_former;
    int m_begun = 0;
    int m_ended = 0;
};

} // namespace PimManager::vCard
