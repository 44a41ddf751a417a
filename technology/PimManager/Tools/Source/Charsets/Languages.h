/// \file
/// The character sets of old address books, and the languages that were written in them.

#pragma once

#include "Charsets/Language.h"

#include <PimManager/Contacts/PimContactCharset.h>

#include <vector>

namespace PimManager::Tools
{

/// A character set that may be guessed.
struct UsedCharset
{
    Contacts::PimContactCharset m_charset;
    /// What a text in it costs more, because the character set is rarely found in address books.
    int m_rarity;
    /// At least one.
    std::vector<Language> m_languages;
};

/// \return all of them. Of those that explain a text equally well, the first one is preferred.
const std::vector<UsedCharset>& UsedCharsets();

} // namespace PimManager::Tools
