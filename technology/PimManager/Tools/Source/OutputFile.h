/// \file
/// A file that the user named to be written.

#pragma once

#include "OutputDevice.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

namespace PimManager::vCard::Tools
{

/// Writes a file anew, or whatever stands at that name: a pipe or a device. A file that is read in the same run is left
/// alone.
class OutputFile
{
public:
    /// \param a_fileName the name as the system takes it.
    /// \param a_inputs   the names of the files that are read.
    OutputFile( const QByteArray& a_fileName, const QList<QByteArray>& a_inputs );

    /// Closes the file, if Close() has not.
    ~OutputFile();
    Q_DISABLE_COPY( OutputFile )

    /// Where to write. What is written after a failure is dropped.
    QIODevice& Device() { return *m_device; }

    /// Sends what is left and closes the file.
    void Close();

    /// \return why the file is not complete, as a sentence with its name, safe for a terminal; empty while all is well.
    QString Failure() const;

private:
    void Open( const QList<QByteArray>& a_inputs );

    const QByteArray m_fileName;
    int m_descriptor = -1;
    QString m_reason;
    std::unique_ptr<OutputDevice> m_device;
};

} // namespace PimManager::vCard::Tools
