/// \file
/// Determines whether a card of version 2.1 folds by length.

#pragma once

#include "Lines/LineIndex.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QtGlobal>

#include <array>
#include <string_view>

namespace PimManager::Contacts
{

/// \return true if the version does not require that the blank of a fold is removed.
inline bool MayFoldByLength( PimContactVersion a_version )
{
    return a_version == PimContactVersion::V21 || a_version == PimContactVersion::Unknown;
}

/// Collects the lengths of the folded lines of a card.
///
/// Version 2.1 folds at a blank, and the blank is text. However, programs that fold by length insert the blank in every
/// version. They fold before the first character or escape that would make the line longer than some length N. So N is
/// at least the length of the folded line, and less than its length with the next character or escape. A card folds by
/// length if one N from 70 to 78 fits all its folded lines, counted in bytes or in characters, with or without the
/// blank of continuation lines. A single fold counts only if N is 75 or 76.
class FoldEvidence
{
public:
    /// Takes a line. Only folds of text are used.
    /// \param a_line    without its last line ending.
    /// \param a_isAscii true if every character is one byte, so that characters need not be counted.
    void Take( std::string_view a_line, const IndexEntry& a_entry, bool a_isAscii );

    /// Takes one fold of a line of text.
    /// \param a_before         the text of the physical line before it, without the blank of its own fold.
    /// \param a_isContinuation true if that line is a continuation line itself.
    /// \param a_behind         the text after the fold, without the blank; not empty.
    void TakeFold( std::string_view a_before, bool a_isContinuation, std::string_view a_behind, bool a_isAscii );

    bool IsByLength() const;

private:
    // The N that fit all folds so far.
    struct Lengths
    {
        qint64 m_least = 0;
        qint64 m_most = 1000;

        void Narrow( qint64 a_least, qint64 a_most );
        bool Has( qint64 a_least, qint64 a_most ) const;
    };

    // In bytes and in characters, each with the blank of continuation lines and without it.
    std::array<Lengths, 4> m_lengths;
    qint64 m_folds = 0;
};

} // namespace PimManager::Contacts
