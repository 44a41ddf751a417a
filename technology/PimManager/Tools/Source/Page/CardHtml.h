/// \file
/// What a card says, for the page.

#pragma once

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QString>

class QIODevice;

namespace PimManager::Tools
{

struct PropertyText;

/// Writes everything that a card says: name, work, numbers, addresses, notes, pictures, nested cards, and everything
/// else in a list that opens on a click. Nothing is cut.
///
/// A property that is shown above the list is in it as well if it has a group without a label or parameters that are
/// not shown there, or if only a part of its value is shown. The texts of the list are those of PropertyText.
class CardHtml
{
public:
    /// \param a_device must be open and outlive the object.
    /// \param a_face   the picture that has been written already; null if there is none.
    CardHtml( QIODevice& a_device, const Contacts::PimContact& a_contact, const Contacts::PimContactLine& a_face );
    Q_DISABLE_COPY( CardHtml )

    /// Writes the card once.
    /// \param a_heading the element for the name, such as `h3`.
    void Write( const QByteArray& a_heading );

private:
    void WriteName( const QByteArray& a_heading );
    void WriteWork();
    void WriteWays();
    void WriteWay( const Contacts::PimContactLine& a_line );
    void WriteUses( const Contacts::PimContactText& a_entry );
    void WriteNotes();
    void WriteExtraPictures();
    void WriteNestedCards();
    void WriteNestedCard( const Contacts::PimContactLine& a_line, const Contacts::PimContactCard& a_card );
    void WriteRest();
    void WriteRestOf( const PropertyText& a_property );
    void WriteHead( const PropertyText& a_property );
    bool IsShown( const Contacts::PimContactLine& a_line, const PropertyText& a_property ) const;

    QIODevice& m_device;
    const Contacts::PimContact m_contact;
    const Contacts::PimContactCard m_card;
    const Contacts::PimContactLine m_face;
    const QString m_name;
};

/// Writes a picture if a browser can show it, see RasterTypeOf().
/// \param a_class the class of the element.
/// \return false if nothing was written.
bool WritePicture( QIODevice& a_device, const Contacts::PimContactLine& a_line, const QByteArray& a_class );

} // namespace PimManager::Tools
