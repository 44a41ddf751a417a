/// \file
/// Pictures of contacts as files.

#pragma once

#include "ImportOutput.h"

#include <QByteArray>

namespace PimManager::vCard::Tools
{

/// Writes each PHOTO and LOGO into a folder, as `Nell-Brackwater-1.jpg`: the name of the contact without what is no
/// letter or digit, a number, and an ending by the type that the bytes show. No file is overwritten, and no link is
/// followed: when a name is taken, the next number that is free is used.
class PhotoFolder : public ImportOutput
{
public:
    /// \param a_folder made in Begin() when it is missing; the folder round it must be there.
    explicit PhotoFolder( const QByteArray& a_folder );
    ~PhotoFolder() override;

    void Begin() override;
    void TakeCard( const ImportedBook& a_book, const vCardImport::PimVCardImportedCard& a_card ) override;
    QStringList Failures() const override;
    QString Result() const override;

private:
    void TakePicture( const QString& a_contact, const vCard::PimVCardProperty& a_property );
    int CreateFile( const QByteArray& a_stem, const QByteArray& a_ending );

    const QByteArray m_path;
    int m_folder = -1;
    int m_error = 0;
    // The name and the number of the last file.
    QByteArray m_fileName;
    qint64 m_number = 0;
    qint64 m_written = 0;
    qint64 m_addresses = 0;
    qint64 m_unreadable = 0;
};

} // namespace PimManager::vCard::Tools
