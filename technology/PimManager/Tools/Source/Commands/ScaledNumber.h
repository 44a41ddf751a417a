/// \file
/// Numbers of the command line, such as `16M`.

#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace PimManager::Tools
{

/// \param a_text decimal digits, and behind them at most one suffix: `K` (1024), `M` (1024 K) or `G` (1024 M).
/// \return the number; nothing if the text has another form or the number is larger than a qint64.
std::optional<qint64> ScaledNumberFrom( const QByteArray& a_text );

/// \param a_number 0 or more.
/// \return the number with the largest suffix that fits it exactly, such as `16M` or `1000`.
QString ScaledNumberText( qint64 a_number );

} // namespace PimManager::Tools
