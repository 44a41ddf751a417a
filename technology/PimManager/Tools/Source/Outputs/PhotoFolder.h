/// \file
/// Pictures of contacts as files.

#pragma once

#include "ImportOutput.h"
#include "Outputs/AtomicFile.h"
#include "Outputs/FileDescriptor.h"
#include "Outputs/OutputClaims.h"

#include <QByteArray>

namespace PimManager::vCard::Tools
{

/// Writes each PHOTO and LOGO into a folder, as `Nell-Brackwater-1.jpg`: the name of the contact without what is no
/// letter or digit, a number, and an ending by the type that the bytes show. Each file appears only when it is
/// complete, see AtomicFile, and no link is followed.
///
/// If a name is taken, the next number is used. With Existing::Replace, only folders and the files that this run reads
/// or writes elsewhere count as taken, and other files and links of that name are replaced.
class PhotoFolder : public ImportOutput
{
public:
    /// \param a_folder made in Open() with mode 0700 when it is missing; the folder round it must be there.
    /// \param a_claims must outlive the output.
    PhotoFolder( const QByteArray& a_folder, const OutputClaims& a_claims );

    void Open() override;
    void TakeCard( const ImportedBook& a_book, const vCardImport::PimVCardImportedCard& a_card ) override;
    void End() override;
    QStringList Failures() const override;
    QString Result() const override;

private:
    void TakePicture( const QString& a_contact, const vCard::PimVCardProperty& a_property );
    void WriteFile( const QByteArray& a_bytes, const QByteArray& a_stem, const QByteArray& a_ending );
    int Publish( AtomicFile& a_file, const QByteArray& a_stem, const QByteArray& a_ending );

    const QByteArray m_path;
    const OutputClaims& m_claims;
    FileDescriptor m_folder;
    int m_error = 0;
    // Of the last file.
    qint64 m_number = 0;
    qint64 m_written = 0;
    qint64 m_addresses = 0;
    qint64 m_unreadable = 0;
};

} // namespace PimManager::vCard::Tools
