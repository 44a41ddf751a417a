/// \file
/// What a reader takes for one character.

#pragma once

#include <QStringView>

namespace PimManager::Tools
{

/// A grapheme cluster (UAX #29): a letter with its marks, a syllable of Hangul, a flag, or a picture that is made of
/// several characters.
struct Cluster
{
    QStringView m_text;
    /// The columns that it takes on a terminal: none, one or two.
    int m_columns = 0;
};

/// \param a_text not empty.
/// \return the cluster that the text begins with. Linear in its length.
Cluster FirstCluster( QStringView a_text );

} // namespace PimManager::Tools
