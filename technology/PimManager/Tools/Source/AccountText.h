/// \file
/// The account of an import in words. None of them comes from the file.

#pragma once

#include "ExitStatus.h"

#include "PimVCardImportAccount.h"

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Tools
{

/// \return the cards, such as `12 cards: 11 whole, 1 in part, 2 refused`.
QString CardsText( const vCardImport::PimVCardImportAccount& a_account );

/// \return how the lines end, such as `LF line endings` or `mixed line endings (10 CR LF, 2 LF)`.
QString LineEndsText( const vCardImport::PimVCardImportAccount& a_account );

/// \return the encoding and what speaks for it, such as `windows-1252 (assumed)`.
QString EncodingText( const vCardImport::PimVCardImportAccount& a_account );

/// \return the versions, such as `version 3.0` or `versions 2.1 (4 cards), 3.0 (1 card)`.
QString VersionsText( const vCardImport::PimVCardImportAccount& a_account );

/// \return a phrase for each kind of finding with its number, the worst kinds first, such as `3 × unknown-escape`;
///         empty when nothing was found.
QStringList FindingsTexts( const vCardImport::PimVCardImportAccount& a_account );

/// \return what is missing, such as `1 card refused, 2 lines dropped`; empty when nothing is.
QString LossesText( const vCardImport::PimVCardImportAccount& a_account );

/// \return SomeRefused when something was dropped or refused, or when bytes hold no vCard; else AllGiven.
ExitStatus StatusOf( const vCardImport::PimVCardImportAccount& a_account );

} // namespace PimManager::vCard::Tools
