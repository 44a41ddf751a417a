/// \file
/// What the unit tests share to let millions of messages go by.

#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace PimManager::vCard
{

/// Drops all messages between its construction and its destruction and counts the blocks of the error reports among
/// them. One at a time, on one thread.
class LogBlockCount
{
public:
    LogBlockCount() :
        m_former( qInstallMessageHandler( Count ) )
    {
        sm_begun = 0;
        sm_ended = 0;
    }
    ~LogBlockCount() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( LogBlockCount )

    /// The blocks of which the heading was written.
    int Begun() const { return sm_begun; }
    /// The blocks of which the empty last line was written.
    int Ended() const { return sm_ended; }

private:
    static void Count( QtMsgType a_type, const QMessageLogContext& /*a_context*/, const QString& a_text )
    {
        if ( a_type != QtCriticalMsg )
            return;
        sm_begun += a_text.startsWith( QLatin1String( "Error in" ) ) ? 1 : 0;
        sm_ended += a_text.isEmpty() ? 1 : 0;
    }

    inline static int sm_begun = 0;
    inline static int sm_ended = 0;
    QtMessageHandler m_former;
};

} // namespace PimManager::vCard
