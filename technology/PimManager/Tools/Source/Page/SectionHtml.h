/// \file
/// The contacts of the page, in sections.

#pragma once

#include "Page/SortedPieces.h"

#include <QString>

#include <vector>

class QIODevice;

namespace PimManager::Tools
{

/// Contacts whose names begin with the same letter.
struct PageSection
{
    QString m_letter;
    std::vector<SortedPieces::Piece>::const_iterator m_begin;
    std::vector<SortedPieces::Piece>::const_iterator m_end;
};

/// \param a_pieces sorted; must outlive the result.
std::vector<PageSection> SectionsOf( const std::vector<SortedPieces::Piece>& a_pieces );

/// Writes a link to each section.
void WriteLetters( QIODevice& a_device, const std::vector<PageSection>& a_sections );

/// Writes the contacts. A few are shown in full, many as a line each, and very many only when their section is opened.
/// A link to a contact or section opens it.
/// \param a_isSourceShown says which file each contact is from.
void WriteSections( QIODevice& a_device, const std::vector<PageSection>& a_sections, SortedPieces& a_pieces,
                    bool a_isSourceShown );

} // namespace PimManager::Tools
