/// \file
/// Characters that must not reach a terminal.

#pragma once

#include <QtGlobal>

namespace PimManager::Contacts
{

/// \return true for control characters (C0, DEL, C1), line and paragraph separators, noncharacters, surrogates, and
///         format characters such as those that change the text direction (categories Cc, Zl, Zp, Cf and Cs of Unicode
///         16). False for the joiners U+200C and U+200D: Persian, Hindi and many emoji need them.
bool IsUnsafe( char32_t a_character );

} // namespace PimManager::Contacts
