/// \file
/// An output that the user named.

#pragma once

#include "Outputs/AtomicFile.h"
#include "Outputs/FileDescriptor.h"
#include "Outputs/OutputClaims.h"
#include "Outputs/OutputTarget.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace PimManager::Tools
{

/// Writes to what a name means. Files appear under their names only when they are complete, see AtomicFile; a link to a
/// file is kept, and its target is replaced. Named pipes, character devices and standard output are written at once.
class OutputFile
{
public:
    /// Opens the output. For a named pipe this waits for its reader.
    /// \param a_fileName the name as the system takes it; `-` is standard output.
    /// \param a_claims   must outlive the output.
    OutputFile( const QByteArray& a_fileName, OutputClaims& a_claims );

    /// If Close() was not called, a file is left as it was before.
    ~OutputFile() = default;
    Q_DISABLE_COPY( OutputFile )

    /// Where to write. What is written after a failure is dropped.
    QIODevice& Device() { return *m_device; }

    /// Declares the output broken: Close() does not publish it. The first reason counts.
    void Fail( const QString& a_reason );

    /// Nothing could be read: a file is not published. What was written to anything else stays written.
    void Abandon();

    /// Sends what is left. A file is published, unless something has failed. Call it once.
    void Close();

    /// \return why the output is not complete, as a sentence with its name, safe for a terminal; empty if all is well,
    ///         or if the reader of a pipe has gone away.
    QString Failure() const;

private:
    void Open();
    void OpenStream( int a_descriptor );
    void CloseStream();
    void Publish();
    void FailFor( int a_error );

    const QByteArray m_fileName;
    OutputClaims& m_claims;
    const OutputTarget m_target;
    QString m_reason;
    FileDescriptor m_stream;
    std::unique_ptr<AtomicFile> m_file;
    std::unique_ptr<OutputDevice> m_ownDevice;
    OutputDevice* m_device = nullptr;
};

} // namespace PimManager::Tools
