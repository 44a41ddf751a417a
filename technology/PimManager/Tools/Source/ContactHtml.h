/// \file
/// One contact of the page.

#pragma once

#include "Contact.h"

#include <QByteArray>
#include <QString>

class QIODevice;

namespace PimManager::vCard::Tools
{

/// \return what the places of the page that speak of a card are called by, such as `1-3` for the third card of the
///         first file: the contact behind `c`, the first thing said about it behind `d`.
QByteArray CardAnchor( int a_book, qint64 a_index );

/// Writes one contact: picture, name, work, numbers, addresses and notes, and behind a click everything else that the
/// card holds. Texts of more than 2000 characters are cut, and so is what goes beyond 200 lines of any kind.
class ContactHtml
{
public:
    /// \param a_device must be open; it and the card must outlive the object.
    ContactHtml( QIODevice& a_device, const PimVCard& a_card );
    Q_DISABLE_COPY( ContactHtml )

    /// Writes the contact once.
    void Write( const QByteArray& a_anchor, bool a_isWhole );

private:
    void WriteFace( const QString& a_name );
    void WriteWork( const QString& a_name );
    void WriteWays();
    void WriteWay( const PimVCardProperty& a_property );
    void WriteNotes();
    void WriteExtraPictures();
    void WriteRest();
    void WriteRestOf( const PimVCardProperty& a_property );
    void WriteText( const QString& a_text );
    bool WritePicture( const PimVCardProperty& a_property, const char* a_class );

    QIODevice& m_device;
    const PimVCard& m_card;
    // The picture that stands beside the name.
    const PimVCardProperty* m_facePicture = nullptr;
};

} // namespace PimManager::vCard::Tools
