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
    V21,       ///< vCard 2.1
    V30,       ///< vCard 3.0
    V40,       ///< vCard 4.0
    JCard,     ///< jCard
    Csv,       ///< a table with a row for each contact
    Json,      ///< one array of all contacts
    JsonLines, ///< one object a line
    Html,      ///< a page for a browser
};

/// \return the names for the option `--to`.
QStringList FormatNames();

/// \return the format of this name; nothing if there is none.
std::optional<OutputFormat> FormatNamed( const QByteArray& a_name );

/// \return the format by the ending of a file name in any letter case: `.vcf` and `.vcard` (vCard 3.0), `.jcard` and
///         `.jcf`, `.csv`, `.json`, `.jsonl` and `.ndjson`, `.html` and
///         `.htm`; nothing for any other.
std::optional<OutputFormat> FormatByEnding( const QByteArray& a_fileName );

} // namespace PimManager::Tools
