/// \file
/// Determines which lines can be written as they were found.

#pragma once

#include "Cards/LineView.h"
#include "Lines/PropertyTable.h"
#include "Values/ValueDecoder.h"
#include "Writing/Folding.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// Whether the bytes of a line are what a writer of its version would accept.
enum class Cleanness : quint8
{
    None,
    /// Only with all lines of its card: how its folds are undone depends on them (vCard 2.1).
    WithCard,
    /// But for its length: it must be folded. Only in 3.0 and 4.0.
    Long,
    Full,
};

/// Checks one line after the other. A line is clean if all of these are true:
///
/// - The index notes nothing odd, and the line has a name, a colon and a value.
/// - Its physical lines have 75 octets at most and end in CR LF. No fold is inside a character or an escape. In 2.1,
///   the value of a QUOTED-PRINTABLE line may be divided by soft line breaks.
/// - It is ASCII or, in 3.0 and 4.0, UTF-8. It has no character that other programs take for a line break.
/// - Its version has its parameters, and it is encoded as the version says: in 2.1 as QUOTED-PRINTABLE in UTF-8 or
///   BASE64, in 3.0 as `ENCODING=b`, and in 4.0 not at all. BASE64 is bytes, and bytes are BASE64.
/// - Its group is one name. No blank follows a soft line break.
/// - In 3.0 and 4.0, its value has no `\:`, and an EMAIL is no `mailto:` URI. In 3.0, semicolons in texts are escaped.
class CleanLine
{
public:
    /// \param a_property of its name.
    /// \param a_version  the known version of the card.
    Cleanness Of( const IndexedLine& a_line, PropertyId a_property, PimContactVersion a_version );

    /// The same for a line that IndexReader::IsPlain() accepts, whose group, parameters and value are clean, and that
    /// has only ASCII without DEL. It is none of a picture, a sound or a key.
    /// \param a_bytes with the line endings.
    static Cleanness OfPlain( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                              PimContactFoldStyle a_style, PimContactVersion a_version )
    {
        // Most lines are of this kind. A line has one byte at least.
        const size_t size = a_bytes.size();
        const bool isUsual = !a_line.m_hasFolds && size > 2 && size <= s_kLineLength + 2 && a_bytes.front() > ' ' &&
                             a_bytes[size - 3] != '\r' && a_bytes[size - 2] == '\r' && a_bytes[size - 1] == '\n';
        return isUsual ? Cleanness::Full : OfOther( a_bytes, a_line, a_style, a_version );
    }

private:
    static Cleanness OfOther( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                              PimContactFoldStyle a_style, PimContactVersion a_version );
    Cleanness OfOldText( const IndexedLine& a_line );
    bool IsCleanQuotedPrintable( const IndexedLine& a_line );
    bool IsSurelyClean( const IndexedLine& a_line, std::string_view a_value, bool a_isNamed );

    ValueDecoder m_decoder;
    QByteArray m_decoded;
};

/// \return true if a version has all of these parameters, and they are written as it wants them.
/// \param a_parameters from the first semicolon up to the colon; may be empty.
bool AreLegalParameters( std::string_view a_parameters, PimContactVersion a_version );

/// \return true if a version wants semicolons of the value escaped although they divide nothing: in texts of 3.0.
/// \param a_parameters the same.
bool HasEscapedSemicolons( PropertyId a_property, std::string_view a_parameters, PimContactVersion a_version );

} // namespace PimManager::Contacts
