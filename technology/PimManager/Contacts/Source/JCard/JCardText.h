/// \file
/// Converts a file of jCards to a text of vCards.

#pragma once

#include "JCard/JsonValue.h"
#include "JCard/PropertyConverter.h"

#include <PimManager/Contacts/PimContactDiagnostic.h>

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// A position in the JSON.
struct JsonPlace
{
    qint64 m_offset = 0;
    /// From 1; lines end in LF.
    qint64 m_line = 1;
    /// The position of the first byte of the line.
    qint64 m_lineOffset = 0;
};

/// A finding in the JSON.
struct JsonFinding
{
    PimContactDiagnosticCode m_code = PimContactDiagnosticCode::JsonSyntax;
    /// The number of the card, from 1; 0 outside cards.
    qint64 m_card = 0;
    JsonPlace m_place;
    qint64 m_count = 1;
    /// The position in the converted text that determines its order.
    qint64 m_offset = 0;
};

/// Converts jCards (RFC 7095) to vCards of version 4.0, card by card and property by property. A text that is not a
/// jCard is returned unchanged.
///
/// A text is a jCard if it begins with `[`, further brackets, and the string `vcard`; white space and a byte order mark
/// may precede it, together at most s_kLookedAt bytes. It may contain any number of cards: in an array, in nested
/// arrays, or one after the other.
///
/// Nothing is lost. A part of a card that is not a property becomes the value of a property `X-JCARD`. A part outside
/// cards that is not a card becomes a line that begins with `#`, with blanks for its line breaks, so it is text outside
/// cards.
///
/// Syntax errors outside values are reported: missing or superfluous commas, and brackets that are not closed. A card
/// that is not closed has no END.
///
/// Only one property is kept in memory. A property longer than the limit becomes X-JCARD, and its card is then longer
/// than the limit.
///
/// The converted text and the findings do not depend on how the text is cut into pieces.
class JCardText
{
public:
    /// The largest number of bytes before the first card.
    static constexpr size_t s_kLookedAt = 4096;

    /// \param a_longestProperty the limit in bytes of JSON.
    explicit JCardText( qint64 a_longestProperty ) :
        m_longestProperty( static_cast<size_t>( a_longestProperty ) )
    {
    }
    Q_DISABLE_COPY( JCardText )

    /// Prepares for another text.
    void Reset();

    /// \return the converted text that is complete so far. Valid until the next call, and only while the piece exists.
    std::string_view Convert( std::string_view a_piece );
    /// Ends the text. \return the rest of it.
    std::string_view Finish();

    /// The findings of the last call, in the order of the text.
    const std::vector<JsonFinding>& Findings() const { return m_findings; }

    /// True if the text is not a jCard and is returned unchanged.
    bool IsUnchanged() const { return m_form == Form::Other; }
    bool IsJCard() const { return m_form == Form::JCard; }

private:
    enum class Form
    {
        Undecided,
        JCard,
        Other,
    };
    // The position of the next byte in the text. Example:
    //
    //     [ [ "vcard",                 Opened, and Head after the string
    //     [ ["tel", {}, "text", "1"]   Properties
    //     ]                            Tail
    //     ]                            Outside; m_depth is 1 until the array of cards is closed
    enum class State
    {
        Outside,    // in no card
        Opened,     // after the bracket of an array that may be a card
        Head,       // after "vcard"
        Properties, // in the list of properties
        Tail,       // after that list
    };
    // What is expected next.
    enum class Comma
    {
        None,   // a value
        Wanted, // a comma, because a value came before
        Behind, // a value, because a comma came before
    };

    std::string_view Decide( std::string_view a_piece );
    void Take( std::string_view a_piece );
    void TakeNext();
    void TakeInOpened();
    void LeaveArray();
    void TakeBracket();
    void TakeClosing();
    void TakeComma();
    void BeforeValue();
    bool TakeProperty();
    bool AppendProperty( std::string_view a_json );

    void BeginValue( char a_first );
    void ContinueValue();
    void ContinueHead();
    void ContinueText( std::string_view a_text );
    void EndValue();
    void AppendOther();
    void AppendOneLine( std::string_view a_json );

    void BeginCard();
    void EndCard();
    void WantVersion();

    void PassSpace();
    JsonPlace PlaceOf( const char* a_place );
    void Report( PimContactDiagnosticCode a_code, const JsonPlace& a_place, qint64 a_count = 1 );
    void ReportSyntax() { Report( PimContactDiagnosticCode::JsonSyntax, PlaceOf( m_place ) ); }
    void ReportErrors( const JsonPlace& a_place, std::string_view a_json );
    bool IsInCard() const { return m_state != State::Outside && m_state != State::Opened; }

    const size_t m_longestProperty;
    Form m_form = Form::Undecided;
    std::string m_first;

    // The next byte of the piece, and its end.
    const char* m_place = nullptr;
    const char* m_end = nullptr;
    // The position up to which the lines were counted.
    const char* m_countedTo = nullptr;
    JsonPlace m_counted;

    State m_state = State::Outside;
    Comma m_comma = Comma::None;
    // The arrays around a card.
    qint64 m_depth = 0;
    qint64 m_cards = 0;
    bool m_hasVersion = false;

    // The value whose end is being searched, and its part in the previous pieces.
    bool m_isInValue = false;
    bool m_isLongValue = false;
    JsonValueSearch m_search;
    std::string m_value;
    JsonPlace m_valuePlace;
    PropertyConverter m_converter;

    std::string m_out;
    // The length of the converted text of previous calls.
    qint64 m_outOffset = 0;
    std::vector<JsonFinding> m_findings;
};

} // namespace PimManager::Contacts
