/// \file
/// Keeps texts whose memory is about to be reused.

#pragma once

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \return true if a part is not empty and lies in the memory of a text.
bool IsInside( std::string_view a_part, std::string_view a_text );

/// Keeps parts of one text. A part that lies inside the text is not copied. Any other part, from which something was
/// removed, is copied. Keeps its memory.
class KeptTexts
{
public:
    /// \param a_text must exist as long as its parts are needed. The parts that were kept before are gone.
    void Begin( std::string_view a_text );

    /// \param a_part a part of the text, or a decoded form of a part that is not longer than it. Each part may be kept
    ///               twice.
    /// \return the same text, which does not change until Begin() is called.
    std::string_view Keep( std::string_view a_part );

private:
    std::string_view m_text;
    QByteArray m_copies;
    bool m_hasCopies = false;
};

} // namespace PimManager::Contacts
