/// \file
/// Pictures of contacts as files.

#pragma once

#include "Outputs/AtomicFile.h"
#include "Outputs/BookOutput.h"
#include "Outputs/FileDescriptor.h"
#include "Outputs/OutputClaims.h"

#include <QByteArray>

namespace PimManager::Tools
{

/// Writes each PHOTO and LOGO into a folder, as `Nell-Brackwater-1.jpg`: the name of the contact without what is no
/// letter or digit, a number, and an ending by the type that the bytes show. Each file appears only when it is
/// complete, see AtomicFile, and no link is followed. Pictures of nested cards are written too, under their own names.
/// Damaged pictures are not written.
///
/// If a name is taken, the next number is used. With Existing::Replace, only folders and the files that this run reads
/// or writes elsewhere count as taken, and other files and links of that name are replaced.
class PhotoFolder : public BookOutput
{
public:
    /// \param a_folder made in Open() with mode 0700 when it is missing; the folder round it must be there.
    /// \param a_claims must outlive the output.
    PhotoFolder( const QByteArray& a_folder, const OutputClaims& a_claims );

    void Open() override;
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override;
    QStringList Failures() const override;
    QString Result() const override;

private:
    void TakePicturesOf( const Contacts::PimContactCard& a_card );
    void TakePicture( const QByteArray& a_stem, const Contacts::PimContactLine& a_line );
    void CountText( const Contacts::PimContactLine& a_line );
    void WriteFile( const QByteArray& a_bytes, const QByteArray& a_stem, const QByteArray& a_ending );
    int Publish( AtomicFile& a_file, const QByteArray& a_stem, const QByteArray& a_ending );

    const QByteArray m_path;
    const OutputClaims& m_claims;
    FileDescriptor m_folder;
    int m_error = 0;
    // Of the last file.
    qint64 m_number = 0;
    qint64 m_written = 0;
    qint64 m_links = 0;
    qint64 m_unreadable = 0;
};

} // namespace PimManager::Tools
