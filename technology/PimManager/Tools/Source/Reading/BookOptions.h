/// \file
/// How the program reads address books.

#pragma once

#include <PimManager/Contacts/PimContactOptions.h>

namespace PimManager::Tools
{

/// The options of a reading command.
struct BookOptions
{
    Contacts::PimContactOptions m_reader;
    /// True if the default character set is to be guessed for each file.
    bool m_isCharsetGuessed = true;
};

} // namespace PimManager::Tools
