/// \file
/// The files that the replay program runs.

#pragma once

#include <QString>
#include <QStringList>

namespace PimManager::vCard::Fuzz
{

/// Files to run, or the reason why there are none.
struct ReplayInputs
{
    QStringList m_files;
    /// Empty if there is no error.
    QString m_error;
};

/// \param a_paths files and folders. A folder stands for all its files except hidden ones, sorted by name. A path that
///                does not exist and a folder without files are errors, because a replay without files would prove
///                nothing.
ReplayInputs FindReplayInputs( const QStringList& a_paths );

} // namespace PimManager::vCard::Fuzz
