/// \file
/// Determines which lines can be copied.

#pragma once

#include "Cards/LineView.h"
#include "Lines/PropertyTable.h"
#include "Values/ValueDecoder.h"
#include "Writing/Folding.h"

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// The result for a line: whether its bytes are valid in its version.
enum class Cleanness : quint8
{
    None,
    /// Clean only with all lines of its card, because they determine how its folds are undone (vCard 2.1).
    WithCard,
    /// Clean except that it is too long and must be folded. Only in 3.0 and 4.0.
    Long,
    Full,
};

/// Checks lines, one after the other. A line is clean if all of these are true:
///
/// - It has no oddities in the index, and it has a name, a colon and a value.
/// - Its physical lines have 75 octets at most and end in CR LF. No fold is inside a character or an escape. In 2.1,
///   the value of a QUOTED-PRINTABLE line may be divided by soft line breaks.
/// - It is ASCII or, in 3.0 and 4.0, UTF-8. It has no character that other programs treat as a line break.
/// - Its version has its parameters, and its encoding is that of the version: in 2.1 QUOTED-PRINTABLE in UTF-8 or
///   BASE64, in 3.0 `ENCODING=b`, and in 4.0 none. BASE64 values are binary, and binary values are BASE64.
/// - Its group is one name. No blank follows a soft line break.
/// - In 3.0 and 4.0, its value has no `\:`, and an EMAIL is not a `mailto:` URI. In 3.0, semicolons in texts are
///   escaped.
class CleanLine
{
public:
    /// \param a_property the property of its name.
    /// \param a_version  the known version of the card.
    Cleanness Of( const IndexedLine& a_line, PropertyId a_property, PimContactVersion a_version );

    /// The same for a line that IndexReader::IsPlain() accepts, whose group, parameters and value are clean, and that
    /// has only ASCII without DEL. It must not be a picture, a sound or a key.
    /// \param a_bytes the line with its line endings.
    static Cleanness OfPlain( std::string_view a_bytes, const IndexReader::PlainLine& a_line,
                              PimContactFoldStyle a_style, PimContactVersion a_version )
    {
        // Most lines are of this kind. A line has at least one byte.
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

/// \return true if a version has all of these parameters and they are written in its form.
/// \param a_parameters from the first semicolon up to the colon; may be empty.
bool AreLegalParameters( std::string_view a_parameters, PimContactVersion a_version );

/// \return true if a version requires escaped semicolons in the value although they do not delimit, as in texts of 3.0.
/// \param a_parameters as above.
bool HasEscapedSemicolons( PropertyId a_property, std::string_view a_parameters, PimContactVersion a_version );

} // namespace PimManager::Contacts
