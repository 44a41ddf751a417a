/// \file
/// Writes texts of any length with little memory.

#pragma once

#include <QIODevice>
#include <QString>
#include <QStringView>

namespace PimManager::vCard::Tools
{

/// Writes a text in UTF-8, escaped piece by piece: a photo of many megabytes needs no second copy of itself.
/// \param a_escape is given pieces that cut no character in two.
void WriteEscaped( QIODevice& a_device, const QString& a_text, QString ( *a_escape )( QStringView ) );

} // namespace PimManager::vCard::Tools
