/// \file
/// Decodes the bytes of a line to text in UTF-8.

#pragma once

#include "Cards/LineView.h"
#include "Text/Charset.h"
#include "Values/Findings.h"
#include "Values/PartReader.h"
#include "Values/QuotedPrintable.h"

#include <QByteArray>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Decodes lines one after the other. The order is fixed: continuation lines are joined, QUOTED-PRINTABLE or
/// BASE64 is decoded, then the character set; the text is split at its delimiters, and the escapes of each part are
/// removed.
///
/// A byte that was encoded, or that is a part of another character, neither delimits nor escapes: `=3B` is not a
/// delimiter, and neither is 0x5C in the character `83 5C` of Shift_JIS. BASE64 encodes a value as a whole, so its
/// delimiters and escapes are those of the decoded text.
///
/// A text that needs no decoding is not copied. Any other text is kept in the decoder, which reuses the memory for the
/// next line.
class ValueDecoder
{
public:
    /// Decodes the value of a line up to its escapes. BASE64 is decoded only if DecodeBase64Text() accepts it.
    /// \param a_line must outlive the texts of the value.
    void Decode( const IndexedLine& a_line );

    /// \return true if the value of a line is text in UTF-8 as written, except for its escapes.
    static bool IsPlain( const IndexedLine& a_line )
    {
        return a_line.m_entry.m_encoding == PimContactEncoding::None && !a_line.IsContinued() &&
               a_line.m_entry.m_charset == LineCharset::Utf8 &&
               !a_line.m_card.m_record.Has( CardRecord::IsOtherCharset );
    }

    /// Decodes the value of a line like Decode() if the line declares BASE64, if its property is a known one whose
    /// value is text, and if the value is text (see Base64Value.h). Only this function makes that decision.
    /// \return false for any other line. Then its value is not decoded.
    bool DecodeBase64Text( const IndexedLine& a_line );

    /// The result of DecodeBase64Text() for the last line that was passed to it or to Decode().
    bool IsBase64Text() const { return m_isBase64Text; }

    /// Decodes the character set of a part of a line, and nothing else.
    /// \return the part in UTF-8, continuation lines joined. Valid as long as a value would be.
    std::string_view Written( const IndexedLine& a_line, ByteRange a_range );

    /// \return the parameters of a line with their quotes: the text from the first semicolon up to the colon, in UTF-8.
    ///         Valid as long as a value would be.
    std::string_view Parameters( const IndexedLine& a_line ) { return Written( a_line, a_line.m_entry.m_parameters ); }

    /// \return the bytes of the value if text of it is read in the caller's default character set; otherwise, and for
    ///         BASE64, empty. QUOTED-PRINTABLE is decoded. Valid as long as a value would be.
    std::string_view Undeclared( const IndexedLine& a_line );

    /// \return true if the caller's default character set is used for the value or the parameters, see Undeclared().
    bool UsesDefault( const IndexedLine& a_line );

    /// The value with its escapes, in UTF-8. Valid until the next line.
    const EscapedText& Escaped() const { return m_escaped; }

    /// \return the whole value without its escapes, in UTF-8. Valid until the next part or line.
    std::string_view Text();

    /// \return a reader of the parts of the value. Only one may be used at a time.
    PartReader Parts( Delimiters a_delimiters ) { return PartReader( m_escaped, a_delimiters, m_part, m_findings ); }

    /// \return true if it keeps much memory.
    bool IsLarge() const { return m_isLarge; }

    /// The problems in the value: those found by Decode() and in the parts that were read.
    const Findings& Found() const { return m_findings; }

private:
    void Clear();
    void Unfold( const IndexedLine& a_line, ByteRange a_range );
    void DecodeRaw( const IndexedLine& a_line );
    void DecodeEncoded( const IndexedLine& a_line );
    bool IsEncodedDefault( const IndexedLine& a_line ) const;
    bool Convert( std::string_view a_text, Charset a_encoded, Charset a_raw );
    void ConvertSegment( std::string_view a_text, ByteRange a_segment, Charset a_charset );
    void NoteLiterals( quint32 a_outBegin, quint32 a_segmentBegin );
    void NoteLiteralsOf( std::string_view a_text );

    EscapedText m_escaped;
    Findings m_findings;
    QByteArray m_unfolded;
    QByteArray m_plain;
    QByteArray m_utf8;
    QByteArray m_part;
    std::vector<EncodedRun> m_runs;
    std::vector<quint32> m_literals;
    std::vector<quint32> m_places;
    // The first run that does not end before the position that NoteLiterals() has reached.
    size_t m_run = 0;
    bool m_isBase64Text = false;
    // A value was long, so the memory may be large.
    bool m_isLarge = false;
};

} // namespace PimManager::Contacts
