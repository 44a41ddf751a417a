/// \file
/// Cards for programs to read.

#pragma once

#include "CardWriter.h"

class QIODevice;

namespace PimManager::vCard
{
class PimVCardProperty;
}

namespace PimManager::vCard::Tools
{

/// \return the text as it stands between the quotes of a JSON string. What a terminal must not see is escaped, so JSON
///         can be looked at; half of a surrogate pair, which many readers of JSON refuse, becomes U+FFFD.
QString ToJsonText( QStringView a_text );

/// Writes each card as one JSON object on one line, everything as the card holds it and in its order:
///
///     {"properties":[{"group":"","name":"TEL","parameters":[{"name":"TYPE","value":"CELL"}],"values":["555-0101"]}]}
///
/// Nothing is cut. A bare parameter has an empty name.
class CardJsonWriter : public CardWriter
{
public:
    enum class Form
    {
        Document, ///< One array of all cards.
        Lines     ///< One document for each card.
    };

    /// \param a_device must be open and outlive the writer.
    CardJsonWriter( QIODevice& a_device, Form a_form );

    void Begin() override;
    void Write( const PimVCard& a_card, qint64 a_number, const QString& a_source ) override;
    void End() override;

private:
    void WriteProperty( const PimVCardProperty& a_property );
    void WriteParameters( const PimVCardProperty& a_property );
    void WriteMember( const char* a_name, const QString& a_value );
    void WriteString( const QString& a_text );

    QIODevice& m_device;
    const bool m_isDocument;
    bool m_isFirst = true;
};

} // namespace PimManager::vCard::Tools
