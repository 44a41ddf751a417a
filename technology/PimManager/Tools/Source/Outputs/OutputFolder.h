/// \file
/// A folder for files that are named after contacts.

#pragma once

#include "Outputs/AtomicFile.h"
#include "Outputs/FileDescriptor.h"
#include "Outputs/OutputClaims.h"

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// Writes files such as `Nell-Brackwater-1.jpg`. Each file appears only when it is complete, see AtomicFile, and no
/// link is followed.
///
/// If a name is taken, the next number is used. With Existing::Replace, only folders and the files that this run reads
/// or writes elsewhere count as taken, and other files and links of that name are replaced.
class OutputFolder
{
public:
    /// \param a_folder made in Open() with mode 0700 when it is missing; the folder round it must be there.
    /// \param a_claims must outlive the folder.
    OutputFolder( const QByteArray& a_folder, const OutputClaims& a_claims );

    void Open();

    /// \param a_stem   from ToSafeFileName().
    /// \param a_ending without the dot.
    void Write( const QByteArray& a_bytes, const QByteArray& a_stem, const QByteArray& a_ending );

    /// Writes the names to the disk.
    void Close();

    /// The number of files that were written.
    qint64 Written() const { return m_written; }
    bool HasFailed() const { return m_error != 0; }
    /// \param a_what what cannot be written, such as `pictures`.
    /// \return why the folder is not complete, safe for a terminal; empty if all is well.
    QString Failure( const QString& a_what ) const;

private:
    int Publish( AtomicFile& a_file, const QByteArray& a_stem, const QByteArray& a_ending );

    const QByteArray m_path;
    const OutputClaims& m_claims;
    FileDescriptor m_folder;
    int m_error = 0;
    // Of the last file.
    qint64 m_number = 0;
    qint64 m_written = 0;
};

} // namespace PimManager::Tools
