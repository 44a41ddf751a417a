/// \file
/// Contacts for programs to read.

#pragma once

#include "ImportOutput.h"
#include "JsonRecords.h"

class QIODevice;

namespace PimManager::vCard::Tools
{

/// Writes each card as one JSON object with decoded values, in the format of docs/json.md. Nothing is cut.
class ContactJson : public ImportOutput
{
public:
    /// \param a_device must be open and outlive the output.
    ContactJson( QIODevice& a_device, JsonRecords::Form a_form );

    void Begin() override;
    void TakeCard( const ImportedBook& a_book, const vCardImport::PimVCardImportedCard& a_card ) override;
    void End() override;

private:
    QIODevice& m_device;
    JsonRecords m_records;
};

} // namespace PimManager::vCard::Tools
