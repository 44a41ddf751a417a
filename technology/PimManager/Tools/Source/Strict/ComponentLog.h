/// \file
/// What the component says on Qt's log.

#pragma once

#include <QIODevice>
#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace PimManager::Tools
{

/// Takes Qt's log over from its construction to its destruction: counts the cards that the parser could not read, and
/// keeps the log off the screen or shows it. One at a time, on one thread.
class ComponentLog
{
public:
    /// \param a_shown where the log goes, safe for a terminal; null to keep it off. Must outlive the object.
    explicit ComponentLog( QIODevice* a_shown );

    /// Gives the log back to whoever had it.
    ~ComponentLog();
    Q_DISABLE_COPY( ComponentLog )

    /// \return how many cards ParseVCards() has reported as failed so far.
    qint64 FailedCards() const { return m_failedCards; }

private:
    static void Handle( QtMsgType a_type, const QMessageLogContext& a_context, const QString& a_text );
    void Take( QtMsgType a_type, const QString& a_text );
    void Show( const QString& a_text );

    static ComponentLog* sm_current;

    QIODevice* const m_shown;
    QtMessageHandler m_former = nullptr;
    qint64 m_failedCards = 0;
};

} // namespace PimManager::Tools
