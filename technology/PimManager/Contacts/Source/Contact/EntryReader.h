/// \file
/// Reads properties as text for people.

#pragma once

#include "Cards/LineView.h"
#include "Contact/LineParameters.h"
#include "Contact/NamedParts.h"
#include "Lines/PropertyTable.h"
#include "Text/KeptTexts.h"
#include "Values/ValueDecoder.h"

#include <QByteArray>
#include <QStringList>

#include <string_view>

namespace PimManager::Contacts
{

/// Reads lines, one after the other, as text for people. Keeps its memory.
class EntryReader
{
public:
    /// Reads the name of a line. Its value is decoded when it is needed.
    /// \param a_line must exist as long as any part of it is needed.
    void Read( const IndexedLine& a_line );

    PropertyId Property() const { return m_property; }

    /// \return the text of PimContactEntry, in UTF-8. Valid until the next call.
    std::string_view Text();

    /// \return the parts of an N or ADR. Valid until the next call.
    const NamedParts& Parts();

    /// Reads the parameters of the line that was read last.
    const LineParameters& Parameters();

private:
    ValueDecoder& Value();
    std::string_view AddressText();
    std::string_view TimeText();
    std::string_view JoinedParts();
    void AppendPart( std::string_view a_part, std::string_view a_between );

    const IndexedLine* m_line = nullptr;
    PropertyId m_property = PropertyId::Other;
    Delimiters m_delimiters = Delimiters::None;
    ValueDecoder m_decoder;
    bool m_isDecoded = false;
    LineParameters m_parameters;
    KeptTexts m_texts;
    NamedParts m_parts;
    QByteArray m_name;
    QByteArray m_text;
};

/// \return the types of PimContactEntry.
QStringList EntryTypes( PropertyId a_property, const LineParameters& a_parameters );

} // namespace PimManager::Contacts
