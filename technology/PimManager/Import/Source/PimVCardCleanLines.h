/// \file
/// The short road of import: lines that the component reads as they are.

#pragma once

#include "PimVCardDecoding.h"

#include <string_view>

namespace PimManager::vCardImport
{

/// Watches the lines of one card and tells if import would give the component anything but these bytes. It may say no
/// where yes was right, which costs time; where it says yes, the component reads the lines, and reads them as import
/// does. It looks at each byte once.
///
/// A folded line is clean when only its value is folded. So is a QUOTED-PRINTABLE value whose soft line breaks have
/// nothing odd, and BASE64 with nothing else in it.
class PimVCardCleanLines
{
public:
    /// Forgets what came: another card begins.
    void Begin();

    /// \param a_line the next physical line behind the BEGIN line, which ends in CR LF; without the line end.
    /// \return true if it is clean so far.
    bool Take( std::string_view a_line );

    /// \return true if the card may end here.
    bool MayEnd() const { return !m_isEscaped && !m_isSoftBreakOpen; }

    /// \return true if a value held a character beyond ASCII.
    bool IsWide() const { return m_isWide; }

    /// \param a_line a BEGIN or END line.
    /// \return true if the component reads it as one.
    static bool IsCleanBoundary( std::string_view a_line );

    /// \param a_line a content line on one physical line, without folds.
    static bool IsCleanLine( std::string_view a_line );

private:
    bool TakeContinuation( std::string_view a_line );
    bool TakeNewLine( std::string_view a_line );
    bool TakeValue( std::string_view a_text );
    bool MayEndIn( std::string_view a_text );

    // A value is open, and an indented line goes on with it.
    bool m_isOpen = false;
    // Nothing of the component between semicolons has come.
    bool m_isAtStart = false;
    bool m_isEscaped = false;
    bool m_isSoftBreakOpen = false;
    bool m_endsInEquals = false;
    PimVCardEncoding m_encoding = PimVCardEncoding::None;
    bool m_isEncodingNamed = false;
    bool m_isWide = false;
};

} // namespace PimManager::vCardImport
