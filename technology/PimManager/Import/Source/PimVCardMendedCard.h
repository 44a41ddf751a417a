/// \file
/// A card that is ready for the component.

#pragma once

#include "PimVCardContentLine.h"
#include "PimVCardDiagnostic.h"
#include "PimVCardImportAccount.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace PimManager::vCardImport
{

/// What a card adds to the account when it is delivered.
struct PimVCardCardCounts
{
    qint64 m_nested = 0;
    qint64 m_delivered = 0;
    qint64 m_boundary = 0;
    qint64 m_dropped = 0;
    qint64 m_filtered = 0;
    qint64 m_blank = 0;

    qint64 Lines() const { return m_delivered + m_boundary + m_dropped + m_filtered + m_blank; }
};

/// The text for the component, and what must be put in the place of its stand-ins.
struct PimVCardMendedCard
{
    struct Property
    {
        PimVCardPosition m_position;
        /// Physical lines of the file.
        qint64 m_lines = 0;
        /// Null unless the line of the text is a stand-in.
        std::unique_ptr<PimVCardContentLine> m_real;
    };

    /// BEGIN to END, CR LF.
    QByteArray m_text;
    /// One for each line of the text between BEGIN and END. Of a clean card none is known.
    std::vector<Property> m_properties;
    bool m_arePropertiesKnown = false;
    qint64 m_index = 0;
    PimVCardPosition m_position;
    bool m_isWhole = true;
    PimVCardCardCounts m_counts;
};

} // namespace PimManager::vCardImport
