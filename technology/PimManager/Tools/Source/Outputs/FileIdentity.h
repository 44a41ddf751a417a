/// \file
/// Whether two names mean the same file.

#pragma once

#include <QByteArray>

#include <sys/stat.h>
#include <tuple>

namespace PimManager::Tools
{

/// An existing file: its device and inode. A file that does not exist yet: those of its folder, and its name.
struct FileIdentity
{
    dev_t m_device = 0;
    ino_t m_inode = 0;
    QByteArray m_name;

    static FileIdentity Of( const struct stat& a_status ) { return { a_status.st_dev, a_status.st_ino, QByteArray() }; }

    /// \return the identity of what has this name in a folder. A link is not followed.
    /// \param a_folder the descriptor of an open folder.
    static FileIdentity At( int a_folder, const QByteArray& a_name );

    bool operator<( const FileIdentity& a_other ) const
    {
        return std::tie( m_device, m_inode, m_name ) < std::tie( a_other.m_device, a_other.m_inode, a_other.m_name );
    }
};

} // namespace PimManager::Tools
