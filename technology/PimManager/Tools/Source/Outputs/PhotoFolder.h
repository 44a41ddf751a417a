/// \file
/// Pictures of contacts as files.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFolder.h"

#include <QByteArray>

namespace PimManager::Tools
{

/// Writes each PHOTO and LOGO into a folder, see OutputFolder, with an ending by the type that the bytes show. Pictures
/// of nested cards are written too, under their own names. Damaged pictures are not written.
class PhotoFolder : public BookOutput
{
public:
    /// The parameters are those of OutputFolder.
    PhotoFolder( const QByteArray& a_folder, const OutputClaims& a_claims );

    void Open() override { m_folder.Open(); }
    void TakeCard( const BookInRun& a_book, const Contacts::PimContactCard& a_card ) override;
    void End() override { m_folder.Close(); }
    QStringList Failures() const override;
    QString Result() const override;

private:
    void TakePicturesOf( const Contacts::PimContactCard& a_card );
    void TakePicture( const QByteArray& a_stem, const Contacts::PimContactLine& a_line );
    void CountText( const Contacts::PimContactLine& a_line );

    OutputFolder m_folder;
    qint64 m_links = 0;
    qint64 m_unreadable = 0;
};

} // namespace PimManager::Tools
