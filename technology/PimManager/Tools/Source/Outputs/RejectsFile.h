/// \file
/// What was refused or dropped, as it came.

#pragma once

#include "ImportOutput.h"
#include "Outputs/OutputFile.h"

namespace PimManager::vCard::Tools
{

/// Writes the bytes of each card and line that was left out, one after the other, so that they can be mended by hand
/// and imported again. Nothing is added but a line end behind a reject that has none when another follows.
class RejectsFile : public ImportOutput
{
public:
    /// The parameters are those of OutputFile.
    RejectsFile( const QByteArray& a_fileName, OutputClaims& a_claims );

    void TakeReject( const vCardImport::PimVCardReject& a_reject ) override;
    void End() override;
    void Fail( const QString& a_reason ) override { m_file.Fail( a_reason ); }
    QStringList Failures() const override;

private:
    OutputFile m_file;
    bool m_isLineOpen = false;
    qint64 m_longCard = -1;
};

} // namespace PimManager::vCard::Tools
