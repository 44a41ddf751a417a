/// \file
/// Cards for programs to read.

#pragma once

#include "CardWriter.h"
#include "JsonRecords.h"

class QIODevice;

namespace PimManager::vCard::Tools
{

/// Writes each card as one JSON object on one line, everything as the card holds it and in its order:
///
///     {"properties":[{"group":"","name":"TEL","parameters":[{"name":"TYPE","value":"CELL"}],"values":["555-0101"]}]}
///
/// Nothing is cut. A bare parameter has an empty name.
class CardJsonWriter : public CardWriter
{
public:
    /// \param a_device must be open and outlive the writer.
    CardJsonWriter( QIODevice& a_device, JsonRecords::Form a_form );

    void Begin() override;
    void Write( const PimVCard& a_card, qint64 a_number, const QString& a_source ) override;
    void End() override;

private:
    QIODevice& m_device;
    JsonRecords m_records;
};

} // namespace PimManager::vCard::Tools
