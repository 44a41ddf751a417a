/// \file
/// The formats of `pimvcard convert`.

#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace PimManager::Tools
{

enum class OutputFormat
{
    Json,      ///< one array of all contacts
    JsonLines, ///< one object a line
    Html,      ///< a page for a browser
};

/// \return the names for the option `--to`.
QStringList FormatNames();

/// \return the format of this name; nothing if there is none.
std::optional<OutputFormat> FormatNamed( const QByteArray& a_name );

/// \return the format by the ending of a file name in any letter case: `.json`, `.jsonl` and `.ndjson`, `.html` and
///         `.htm`; nothing for any other.
std::optional<OutputFormat> FormatByEnding( const QByteArray& a_fileName );

} // namespace PimManager::Tools
