/// \file
/// The parser's messages, kept off the screen.

#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace PimManager::vCard::Benchmarks
{

/// Drops every message on Qt's log, after it was put together: a program that shows the log pays more, one that turns
/// the log off pays less.
inline void DropLogMessages()
{
    qInstallMessageHandler(
        []( QtMsgType /*a_type*/, const QMessageLogContext& /*a_context*/, const QString& /*a_text*/ ) {} );
}

} // namespace PimManager::vCard::Benchmarks
