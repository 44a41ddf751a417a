/// \file
/// Reads the parameters of a line.

#pragma once

#include "Lines/LineHead.h"
#include "Values/ParameterNames.h"

#include <PimManager/Contacts/PimContactCard.h>

#include <QByteArray>

#include <string_view>

namespace PimManager::Contacts
{

/// \return the name of the parameter that a bare word belongs to: `TYPE` for HOME, `ENCODING` for BASE64.
std::string_view NameOfBare( std::string_view a_word );

/// Reads the values of all parameters one after the other. Each element of a list is a value.
///
/// - A bare word such as `HOME` is a TYPE. Encodings (`QUOTED-PRINTABLE`, `BASE64`, `8BIT` ...) are an ENCODING,
///   `INLINE`, `URL`, `CID` and `CONTENT-ID` a VALUE, and a known character set such as `SHIFT_JIS` a CHARSET.
/// - An unknown parameter with an empty value, such as `CELL=`, is a TYPE too.
/// - In a list, the name of the parameter may be repeated: `TYPE=HOME,TYPE=VOICE` has the values HOME and VOICE.
/// - Quotes are removed. A comma in quotes does not delimit, except in TYPE: `TYPE="home,voice"` has two values.
/// - In versions 3.0 and 4.0, and without a version, `^n`, `^'` and `^^` become a line feed, a quote and a caret
///   (RFC 6868). In version 2.1 a caret is text.
/// - `X-CUSTOM(CHARSET=UTF-8,ENCODING=QUOTED-PRINTABLE,=42=6F)` is an X-CUSTOM with the decoded value; see
/// EncodedLabel.h.
/// - In LABEL, the escapes of values are removed as well (RFC 6350, section 6.3.1).
class ParameterReader
{
public:
    /// \param a_parameters as LineHead::m_parameters; must outlive the reader.
    ParameterReader( std::string_view a_parameters, PimContactVersion a_version );

    /// \return false after the last value.
    bool Next();

    /// True if the value is the first one of its parameter.
    bool IsFirst() const { return m_isFirst; }
    /// True if the value was written without a name.
    bool IsBare() const { return m_parameterName.empty(); }
    /// The name as written, or a name from above for values without one.
    std::string_view Name() const { return m_name; }
    /// The value. Valid until the next call of Next().
    std::string_view Value() const { return m_value; }

private:
    void BeginParameter( std::string_view a_parameter );
    bool TakeValue();
    bool TakeLabel();
    std::string_view TakeElement();
    bool TakeQuoted();
    std::string_view Decoded( std::string_view a_element );

    ParameterSplitter m_splitter;
    bool m_areCaretsText;

    // The name of the parameter, empty if it is bare, and its remaining elements.
    std::string_view m_parameterName;
    bool m_isType = false;
    bool m_isLabel = false;
    bool m_isFirst = false;
    std::string_view m_rest;
    bool m_hasRest = false;
    bool m_hasElement = false;
    bool m_isNoQuoteClosed = false;
    // The remaining elements of a quoted TYPE.
    std::string_view m_quoted;
    bool m_isInQuotes = false;

    std::string_view m_name;
    std::string_view m_value;
    QByteArray m_buffer;
    QByteArray m_text;
};

} // namespace PimManager::Contacts
