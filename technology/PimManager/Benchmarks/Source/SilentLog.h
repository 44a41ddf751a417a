/// \file
/// Discards the messages of the parser.

#pragma once

#include <QMessageLogContext>
#include <QString>
#include <QtGlobal>

namespace PimManager::vCard::Benchmarks
{

/// Discards every message on Qt's log after it was formatted. A program that shows the log needs more time, and one
/// that disables the log needs less.
inline void DropLogMessages()
{
    qInstallMessageHandler(
        []( QtMsgType /*a_type*/, const QMessageLogContext& /*a_context*/, const QString& /*a_text*/ ) {} );
}

} // namespace PimManager::vCard::Benchmarks
