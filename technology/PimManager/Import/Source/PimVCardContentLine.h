/// \file
/// A content line as it is meant.

#pragma once

#include "PimVCard.h"
#include "PimVCardDiagnostic.h"

#include <QString>
#include <QStringList>

#include <string_view>
#include <vector>

namespace PimManager::vCardImport
{

/// What a content line says, whether the component's grammar can carry it or not.
struct PimVCardContentLine
{
    struct Parameter
    {
        /// Empty for a bare word.
        QString m_name;
        QString m_value;
    };

    struct Finding
    {
        PimVCardDiagnosticCode m_code;
        /// In the text.
        int m_place;
        int m_count;
    };

    QString m_group;
    QString m_name;
    std::vector<Parameter> m_parameters;
    QStringList m_values;

    /// Reads a content line and mends it.
    /// \param a_line     in UTF-8, without folds, soft line breaks and control characters but the tab and the line
    /// feed. \param a_nested   not empty: the text of the card inside, which is the value; in UTF-8. \param a_findings
    /// what was mended is appended.
    static PimVCardContentLine Of( std::string_view a_line, std::string_view a_nested,
                                   std::vector<Finding>& a_findings );

    /// \return the line for the component, in UTF-8 with CR LF; empty if the grammar cannot carry it, and then a
    /// stand-in
    ///         goes in its place.
    QByteArray CarriedText() const;

    /// \return a new property that says the same.
    vCard::PimVCardProperty* NewProperty() const;

    /// What goes to the component in the place of a line that it cannot read.
    static QByteArray StandIn();
};

} // namespace PimManager::vCardImport
