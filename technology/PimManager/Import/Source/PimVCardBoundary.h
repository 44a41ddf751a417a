/// \file
/// The lines at which cards begin and end.

#pragma once

#include <string_view>

namespace PimManager::vCardImport
{

/// What a physical line has to do with the bounds of cards.
struct PimVCardBoundary
{
    enum class Kind
    {
        None,
        Begin,
        End,
        /// END and BEGIN on one line: two files put together, the first without a last line end.
        EndAndBegin,
        /// `AGENT:BEGIN:VCARD`, which opens a card inside the card.
        AgentBegin,
    };

    Kind m_kind = Kind::None;
    /// The component reads the line as what it is: nothing stands round it but what the grammar allows.
    bool m_isClean = false;
    /// Where the second word of EndAndBegin stands.
    size_t m_beginPlace = 0;

    /// A group, parameters, and blanks round the colon are free, as in the component. Blanks, control characters and
    /// byte order marks at both ends of the line are passed over. Lines of more than 1,024 bytes are no boundary.
    static PimVCardBoundary Of( std::string_view a_line );
    static constexpr size_t s_kLongest = 1024;

    /// An AGENT property without a value, behind which a BEGIN line begins a card inside the card.
    static bool IsOpenAgent( std::string_view a_line );
};

} // namespace PimManager::vCardImport
