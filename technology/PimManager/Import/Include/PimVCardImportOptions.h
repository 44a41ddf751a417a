/// \file
/// What the caller of import may choose: limits, a filter, and the character set of last resort.
///
/// \code
/// PimVCardImportOptions options;
/// options.m_filter.m_names = QStringList{ QStringLiteral( "N" ), QStringLiteral( "FN" ), QStringLiteral( "TEL" ) };
/// options.m_limits.m_cards = 2000;
/// PimVCardImporter importer( options );
/// \endcode

#pragma once

#include <QByteArray>
#include <QStringList>
#include <QtGlobal>

namespace PimManager::vCardImport
{

/// Going over a limit costs that line, value or card, with a diagnostic, and never the file. A limit of 0 or less is no
/// limit.
struct PimVCardImportLimits
{
    /// Bytes of one content line with its continuation lines, line ends not counted.
    qint64 m_lineBytes = qint64( 16 ) * 1024 * 1024;
    /// Bytes of what stands behind the colon of one content line.
    qint64 m_valueBytes = qint64( 16 ) * 1024 * 1024;
    /// Bytes of one card with its line ends. While a longer card is skipped, none of it is held in memory.
    qint64 m_cardBytes = qint64( 32 ) * 1024 * 1024;
    /// How deep a card may lie in another one: 1 is an AGENT in a card.
    int m_nesting = 8;
    /// Diagnostics kept in the account; the rest is only counted there, and told to the handler.
    int m_diagnostics = 1000;
    /// Cards delivered.
    qint64 m_cards = 1000000;
};

/// What is wanted of each card. Lines that are not wanted are not parsed.
struct PimVCardImportFilter
{
    /// Only properties of these names, in any letter case and whatever their group; empty: all of them. VERSION is
    /// always delivered.
    QStringList m_names;
    /// False: no PHOTO, LOGO, SOUND and KEY, nor another property whose value is BASE64 or a `data:` URI.
    bool m_arePhotosWanted = true;
};

/// All that can be chosen. The defaults suit a desktop.
struct PimVCardImportOptions
{
    /// How much is taken.
    PimVCardImportLimits m_limits;
    /// What is taken.
    PimVCardImportFilter m_filter;
    /// The character set of a card that is not in UTF-8 and names none, by a name that QTextCodec knows. With `UTF-8`,
    /// and with a name that it does not know, what is malformed becomes U+FFFD, as in the component.
    QByteArray m_defaultCharset = QByteArrayLiteral( "windows-1252" );
};

} // namespace PimManager::vCardImport
