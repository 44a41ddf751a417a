/// \file
/// What the name of an output means.

#pragma once

#include "Outputs/FileDescriptor.h"
#include "Outputs/FileIdentity.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace PimManager::Tools
{

/// Finds out where an output goes, without writing anything.
class OutputTarget
{
public:
    enum class Kind
    {
        Unusable,       ///< see Reason()
        StandardOutput, ///< `-` or `/dev/stdout`
        Descriptor,     ///< a descriptor that the caller of the program has opened, such as `/dev/fd/3`
        Stream,         ///< a named pipe or a character device
        File            ///< a file, or a name that is free
    };

    /// Follows links to their end, also if no file is there yet.
    /// \param a_fileName the name as the system takes it; `-` is standard output.
    explicit OutputTarget( const QByteArray& a_fileName );

    Kind GetKind() const { return m_kind; }

    /// \return why nothing can be written there; empty unless the kind is Unusable.
    QString Reason() const { return m_reason; }

    /// Of a Descriptor: its number.
    int Number() const { return m_number; }

    /// Of a File: its open folder, its name there, and whether it exists.
    int Folder() const { return m_folder.Number(); }
    QByteArray Name() const { return m_name; }
    bool IsExisting() const { return m_isExisting; }

    /// Two targets that have an identity in common are the same. Character devices have none: several outputs may go to
    /// `/dev/null`.
    const std::vector<FileIdentity>& Identities() const { return m_identities; }

private:
    void Examine( const QByteArray& a_path );
    bool FollowLinks( QByteArray a_path );
    void TakeDescriptor( int a_number );
    void TakeFile( const struct stat& a_status );
    void OpenFolder();
    void Refuse( const QString& a_reason );

    Kind m_kind = Kind::Unusable;
    QString m_reason;
    int m_number = -1;
    QByteArray m_folderName;
    QByteArray m_name;
    FileDescriptor m_folder;
    bool m_isExisting = false;
    std::vector<FileIdentity> m_identities;
};

/// \return true for regular files and pipes. A terminal and `/dev/null` may have several uses at once.
bool HasOneUse( const struct stat& a_status );

} // namespace PimManager::Tools
