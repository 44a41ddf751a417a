/// \file
/// The lengths of folded lines.

#pragma once

#include <QtGlobal>

namespace PimManager::Contacts
{

/// Programs fold lines at 70 to 78 bytes or characters, most of them at 75 or 76 (RFC 2426, section 2.6).
constexpr qint64 s_kLeastFold = 70;
constexpr qint64 s_kMostFold = 78;
constexpr qint64 s_kUsualFold = 75;
constexpr qint64 s_kUsualFoldWithBlank = 76;

/// \return true for the length of a line that was probably folded.
constexpr bool IsFoldLength( qint64 a_length )
{
    return a_length >= s_kLeastFold && a_length <= s_kMostFold;
}

} // namespace PimManager::Contacts
