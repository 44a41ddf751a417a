/// \file
/// The memory in which fields are read.

#pragma once

#include "Cards/LineView.h"
#include "Contact/FieldParameters.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>

namespace PimManager::Contacts
{

/// What a FieldReader works in. It is borrowed, because most cards have a few lines of each property only.
struct FieldMemory
{
    void Reset()
    {
        m_line.m_card = CardView();
        m_parameters.Clear();
    }
    /// \return true if it contains more than any usual line needs.
    bool IsLarge() const { return m_decoder.IsLarge() || m_parameters.IsLarge(); }

    IndexedLine m_line;
    ValueDecoder m_decoder;
    FieldParameters m_parameters;
    QByteArray m_name;
    QByteArray m_group;
};

} // namespace PimManager::Contacts
