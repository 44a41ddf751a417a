/// \file
/// The search for the next card after one that failed. Private to the component.

#pragma once

namespace PimManager::vCard
{

/// Finds the BEGIN lines of a text, `s_kBeginVCardPattern` in any letter case, without decoding it.
///
/// A card may fail at each character of a long line, and the next search then begins after that character. What is
/// known about the line is kept, so all searches together are linear in its length.
class PimVCardBeginSearch
{
public:
    struct Line
    {
        const char* m_next; ///< after the line's LF, or the end of the text
        int m_length;       ///< in UTF-16 units, without the line ending
        bool m_hasBegin;
    };

    /// \param a_place the start of the line, or a position in the line. It may be inside a character.
    /// \param a_end   the end of the text. The text is UTF-8 and must not move between the calls.
    Line LineFrom( const char* a_place, const char* a_end );

private:
    void Read( const char* a_place, const char* a_end );

    // The line that was read last. From m_place to m_lineEnd it has m_units, not counting an incomplete character at
    // its start.
    const char* m_place = nullptr;
    const char* m_lineEnd = nullptr;
    const char* m_lastBegin = nullptr;
    int m_units = 0;
};

} // namespace PimManager::vCard
