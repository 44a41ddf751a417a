/// \file
/// Decodes BASE64.

#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <string_view>

namespace PimManager::Contacts
{

/// Decodes BASE64 that is passed in pieces (RFC 4648, section 4). The result does not depend on how the text is cut.
///
/// White space is ignored, and padding is optional. Any other character that does not belong to the alphabet is a
/// fault, and so are data after the padding and a single character that is left over at the end. Decoding ends at the
/// first fault. The bytes before it are kept.
class Base64Decoder
{
public:
    /// \param a_length the length of all pieces, at most 2 GiB.
    /// \param a_out    receives the bytes after what it contains already. It must outlive the decoder, and is valid
    ///                 after Finish().
    Base64Decoder( size_t a_length, QByteArray& a_out );

    /// Decodes the next piece.
    /// \return false if there was a fault.
    bool Take( std::string_view a_piece );

    /// Ends the text.
    /// \return false if there was a fault.
    bool Finish();

    /// The position of the faulty character in all pieces, or the end of the text. -1 if there was no fault.
    qint64 FaultPlace() const { return m_faultPlace; }

private:
    bool TakeByte( char a_byte );
    bool TakeOther( char a_byte );
    bool TakePadding();
    void WriteGroup();
    void WriteRest();

    QByteArray& m_out;
    char* m_end;
    // The bits of the characters of an unfinished group, and their number.
    quint32 m_bits = 0;
    int m_held = 0;
    bool m_isPadded = false;
    // The length of the previous pieces.
    qint64 m_taken = 0;
    qint64 m_faultPlace = -1;
};

} // namespace PimManager::Contacts
