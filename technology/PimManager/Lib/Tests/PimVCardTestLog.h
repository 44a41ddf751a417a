/// \file
/// Captures Qt's log for the unit tests.

#pragma once

#include "PimVCardTestLogBound.h"

#include <QByteArray>
#include <QList>
#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

#include <ostream>

namespace PimManager::vCard
{

/// One message as Qt's log received it.
struct LogMessage
{
    QtMsgType m_type;
    QByteArray m_category;
    QString m_text;

    bool operator==( const LogMessage& a_other ) const
    {
        return m_type == a_other.m_type && m_category == a_other.m_category && m_text == a_other.m_text;
    }
};

inline LogMessage Debug( const QString& a_text )
{
    return { QtDebugMsg, QByteArrayLiteral( "default" ), a_text };
}

inline LogMessage Critical( const QString& a_text )
{
    return { QtCriticalMsg, QByteArrayLiteral( "default" ), a_text };
}

/// Makes a failed comparison show the message instead of its bytes.
inline std::ostream& operator<<( std::ostream& a_stream, const LogMessage& a_message )
{
    return a_stream << '\n'
                    << ( a_message.m_type == QtCriticalMsg ? "critical" : "type " ) << int( a_message.m_type ) << " ["
                    << a_message.m_category.constData() << "] " << a_message.m_text.toStdString();
}

/// Collects all messages between its construction and its destruction, and does not show them on the screen. Only one
/// may exist at a time, on one thread.
class LogCapture
{
public:
    LogCapture()
    {
        sm_messages.clear();
        m_former = qInstallMessageHandler( Collect );
    }
    ~LogCapture() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( LogCapture )

    /// All messages so far, in order.
    QList<LogMessage> Messages() const { return sm_messages; }

    /// The texts of the messages of one type so far.
    QList<QString> Texts( QtMsgType a_type ) const
    {
        QList<QString> texts;
        for ( const LogMessage& message : sm_messages )
        {
            if ( message.m_type == a_type )
                texts.append( message.m_text );
        }
        return texts;
    }

    void Clear() { sm_messages.clear(); }

private:
    static void Collect( QtMsgType a_type, const QMessageLogContext& a_context, const QString& a_text )
    {
        EndIfEndless( sm_messages.size() );
        sm_messages.append( { a_type, QByteArray( a_context.category ), a_text } );
    }

    inline static QList<LogMessage> sm_messages;
    QtMessageHandler m_former;
};

} // namespace PimManager::vCard
