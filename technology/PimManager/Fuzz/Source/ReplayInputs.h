/// \file
/// The files that the replay program tries.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// Files to try, or the reason why there are none.
struct ReplayInputs
{
    QStringList m_files;
    /// Empty when all is well.
    QString m_error;
};

/// \param a_paths files, and folders of which every file is meant, hidden ones aside, by name. A path that does not
///                exist and a folder without files are errors: a replay that tries nothing shows nothing.
ReplayInputs FindReplayInputs( const QStringList& a_paths );

} // namespace PimManager::vCard::Fuzz
