/// \file
/// What was refused or dropped, as it came.

#pragma once

#include "Outputs/BookOutput.h"
#include "Outputs/OutputFile.h"

namespace PimManager::Tools
{

/// Writes the bytes of all extents that were dropped or refused, one after the other, so that they can be mended by
/// hand and read again. Nothing is added but CR LF behind a text without a line ending, if another follows that did not
/// follow it in the file.
class RejectsFile : public BookOutput
{
public:
    /// The parameters are those of OutputFile.
    RejectsFile( const QByteArray& a_fileName, OutputClaims& a_claims );

    void BeginBook( const BookInRun& a_book, const Contacts::PimContactReader& a_reader ) override;
    void TakeExtent( const BookInRun& a_book, const Contacts::PimContactExtent& a_extent ) override;
    void End() override;
    void Abandon() override { m_file.Abandon(); }
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    bool WantsExtents() const override { return true; }
    QStringList Failures() const override;

private:
    OutputFile m_file;
    bool m_isLineOpen = false;
    // Where the last reject ends in its file; -1 before there is one.
    qint64 m_end = -1;
};

} // namespace PimManager::Tools
