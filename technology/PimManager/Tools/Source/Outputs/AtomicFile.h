/// \file
/// Files that appear only when they are complete.

#pragma once

#include "Outputs/OutputDevice.h"
#include "Outputs/UnfinishedFile.h"

#include <QByteArray>

namespace PimManager::Tools
{

/// What happens to a file that has the name of a new one.
enum class Existing
{
    Keep,
    Replace
};

/// Writes a file under a temporary name and gives it its own name when everything is on the disk. Until then, a file
/// that had this name is unchanged. If the file is destroyed before it is published, nothing is left of it.
class AtomicFile
{
public:
    /// Creates the file with mode 0600, less the umask.
    /// \param a_folder an open folder; stays the caller's and must stay open.
    explicit AtomicFile( int a_folder );

    /// \return the system's number for the first failure, such as `ENOSPC`; 0 if there was none.
    int Error() const;

    /// Where to write. What is written after a failure is dropped.
    OutputDevice& Device() { return m_device; }

    /// Writes the file to the disk and gives it its name. A file that is replaced passes on its permissions and,
    /// if the system permits it, its owner and its group. If the group cannot be kept, the new one gets no permissions.
    ///
    /// \return 0 or the system's number for the failure. After EEXIST (Existing::Keep and the name is taken) and EISDIR
    ///         (Existing::Replace and the name is that of a folder) another name may be tried.
    /// \note   The name itself is on the disk only after SyncFolder().
    int Publish( const QByteArray& a_name, Existing a_existing );

    /// Writes the names in a folder to the disk.
    /// \return 0 or the system's number for the failure.
    static int SyncFolder( int a_folder );

private:
    int Sync();

    const int m_folder;
    UnfinishedFile m_file;
    OutputDevice m_device;
    bool m_isSynced = false;
};

} // namespace PimManager::Tools
