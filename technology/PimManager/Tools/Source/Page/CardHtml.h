/// \file
/// What a card says, for the page.

#pragma once

#include "Page/ShownTexts.h"

#include <PimManager/Contacts/PimContact.h>

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class QIODevice;

namespace PimManager::Tools
{

struct ContactFact;

/// Writes everything that a card says, as people say it: name, work, numbers, addresses, dates, notes, pictures, nested
/// cards. Nothing is cut, and no name of a property is shown.
///
/// What is not said in these places is in a list that opens on a click, see ShownTexts: other properties, technical
/// ones such as UID, and properties of which a part is not shown. There is no list if there is nothing to list.
class CardHtml
{
public:
    /// \param a_device must be open and outlive the object.
    /// \param a_face   the picture that has been written already; null if there is none.
    CardHtml( QIODevice& a_device, const Contacts::PimContact& a_contact, const Contacts::PimContactLine& a_face );
    Q_DISABLE_COPY( CardHtml )

    /// Writes name and work. Call it first, and once.
    /// \param a_heading the element for the name, such as `h3`.
    void WriteHead( const QByteArray& a_heading );

    /// Writes everything else. Call it once.
    void WriteBody();

private:
    struct Line
    {
        int m_id = 0;
        Contacts::PimContactLine m_line;
    };

    /// A way to reach the contact.
    struct Way
    {
        QString m_text;
        QByteArray m_link;
        QStringList m_uses;
        // Shown by the link, not by the text.
        QString m_alsoSaid;
    };

    void ReadLines();
    void ReadLine( int a_id, const Contacts::PimContactLine& a_line );
    void WriteWork();
    void WriteWorkOf( const Contacts::PimContactField& a_field, const QString& a_text );
    void WriteWays();
    void WriteMessengers();
    void WriteAddresses();
    void WriteWay( const Contacts::PimContactField& a_field, const Way& a_way );
    void WriteFacts();
    void WriteFact( const ContactFact& a_fact );
    void WriteRow( const QString& a_label, const QString& a_text, const QStringList& a_uses );
    void WriteUsesOf( const Contacts::PimContactField& a_field );
    void WriteUses( const QStringList& a_uses );
    void WriteNotes();
    void WriteExtraPictures();
    void WriteNestedCards();
    void WriteNestedCard( const Line& a_line );
    void WriteRest();
    void WriteRestOf( const Contacts::PimContactLine& a_line );

    QIODevice& m_device;
    const Contacts::PimContact m_contact;
    const Contacts::PimContactLine m_face;
    const QString m_name;
    QList<Line> m_lines;
    QSet<int> m_nested;
    int m_lastWithUses = 0;
    ShownTexts m_shown;
};

/// \return ` dir="rtl"` for a contact whose name is written from right to left; otherwise empty. The whole contact is
///         then mirrored.
QByteArray DirectionOf( const Contacts::PimContact& a_contact );

/// Writes a picture if a browser can show it, see RasterTypeOf().
/// \param a_class the class of the element.
/// \param a_text  stands for the picture if the browser cannot show it after all; not empty, safe for HTML.
/// \return false if nothing was written.
bool WritePicture( QIODevice& a_device, const Contacts::PimContactLine& a_line, const QByteArray& a_class,
                   const QByteArray& a_text );

} // namespace PimManager::Tools
