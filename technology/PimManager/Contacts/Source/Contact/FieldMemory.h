/// \file
/// The memory in which fields are read.

#pragma once

#include "Cards/LineView.h"
#include "Contact/FieldParameters.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>

namespace PimManager::Contacts
{

/// The buffers of a FieldReader. They are borrowed, because most cards have only a few lines of each property.
struct FieldMemory
{
    void Reset()
    {
        m_line.m_card = CardView();
        m_parameters.Clear();
    }
    /// \return true if it has more memory than a usual line needs.
    bool IsLarge() const { return m_decoder.IsLarge() || m_parameters.IsLarge(); }

    IndexedLine m_line;
    ValueDecoder m_decoder;
    FieldParameters m_parameters;
    QByteArray m_name;
    QByteArray m_group;
};

} // namespace PimManager::Contacts
