/// \file
/// Converts the bytes of a file to a text in which ASCII characters are single bytes.

#pragma once

#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>
#include <QtGlobal>

#include <string_view>
#include <vector>

namespace PimManager::Contacts
{

/// Decodes the bytes of a file, which are passed in pieces. UTF-16 is converted to UTF-8. Everything else is returned
/// unchanged; its character set is decided card by card.
///
/// The first s_kSignatureBytes bytes decide. A file of a kind that cannot be an address book is reported as such and
/// returned unchanged. A file is UTF-16 if it begins with a byte order mark of UTF-16, or if every second one of its
/// first four bytes is zero and the others are not. The byte order mark is converted like any other character, to
/// `EF BB BF`. A surrogate without its other half becomes U+FFFD; so does a single byte at the end.
///
/// The text does not depend on how the file is cut into pieces.
class TextDecoder
{
public:
    /// Prepares for another file.
    void Reset();

    /// Decodes the next bytes of the file.
    ///
    /// \return the text that is complete so far. Empty until s_kSignatureBytes bytes have been passed. Valid until the
    ///         next call of a function that is not const, and while the piece exists: the piece itself is returned,
    ///         without copying it, if the file is not UTF-16. A converted text has up to 1.5 times the bytes of its
    ///         piece, so pass large files in small pieces.
    std::string_view Decode( std::string_view a_piece );

    /// Ends the file.
    ///
    /// \return the rest of the text; valid until the next call of a function that is not const. Empty if called again.
    std::string_view Finish();

    /// True if the kind of file is known and Decode() returns its pieces unchanged.
    bool IsUnchanged() const { return m_form == Form::Bytes; }

    /// Compressed, Document or Image if the file is of that kind; otherwise Unknown. Valid as soon as Decode() has
    /// returned text, and after Finish().
    PimContactFileKind RefusedKind() const { return m_refusedKind; }
    bool IsUtf16() const { return m_form == Form::LittleEndian || m_form == Form::BigEndian; }
    /// `UTF-16LE`, `UTF-16BE`, `UTF-8` if the file begins with its byte order mark, or empty.
    QByteArray Charset() const;
    /// ByteOrderMark, NulPattern or None.
    PimContactEvidence Evidence() const { return m_evidence; }

private:
    enum class Form
    {
        Undecided,
        Bytes,
        LittleEndian,
        BigEndian,
    };

    void Decide( std::string_view a_start );
    void SetForm( Form a_form, PimContactEvidence a_evidence );
    std::string_view Converted( std::string_view a_bytes );
    std::string_view ConvertedText() const;
    void MakeRoomFor( size_t a_bytes );
    void TakeUnit( char a_first, char a_second );
    void TakeWideUnit( char16_t a_unit );
    void EndUnits();
    void Append( uint a_character );

    Form m_form = Form::Undecided;
    PimContactFileKind m_refusedKind = PimContactFileKind::Unknown;
    PimContactEvidence m_evidence = PimContactEvidence::None;
    // The first bytes, as long as there are too few of them.
    std::vector<char> m_first;
    // The converted text is in m_buffer, up to m_end. The buffer only grows.
    std::vector<char> m_buffer;
    char* m_end = nullptr;
    // The first halves whose second half is in the next piece: the first byte of a unit, and a high surrogate.
    bool m_hasHalfUnit = false;
    char m_halfUnit = '\0';
    char16_t m_highSurrogate = 0;
};

} // namespace PimManager::Contacts
