/// \file
/// Writes cards as JSON.
///
/// \code
/// const PimContactBook book = PimContactBook::ReadFile( QStringLiteral( "contacts.vcf" ) );
/// PimContactJson json;
/// QByteArray text;
/// for ( const PimContactCard& each : book.Cards() )
/// {
///     json.Append( each, text );
///     text += '\n';
/// }
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <memory>

namespace PimManager::Contacts
{

class PimContactJsonPrivate;

/// Writes each card as one JSON object in the format of docs/program.md, with decoded values: the fields that
/// PimContact reads, and all properties. Nothing is shortened or left out. A value that cannot be decoded is written as
/// text.
///
/// The JSON is valid UTF-8 (RFC 8259) without line breaks and without blanks between its elements. Control characters,
/// and characters that could control a terminal or change the text direction, are written as `\uXXXX`. Malformed bytes
/// become U+FFFD. The same card always has the same JSON.
///
/// An object keeps its memory, so it allocates none for further cards of the same size. An object may be used by one
/// thread only. Several objects may be used at the same time.
class PIMCONTACT_EXPORT PimContactJson
{
public:
    PimContactJson();
    PimContactJson( PimContactJson&& a_other ) noexcept;
    PimContactJson& operator=( PimContactJson&& a_other ) noexcept;
    ~PimContactJson();
    Q_DISABLE_COPY( PimContactJson )

    /// \return the value of the member `file` in the objects of the next cards.
    QString File() const;
    /// \param a_name the name of the file in which the cards were found. A null string, the default, leaves the member
    ///               out.
    void SetFile( const QString& a_name );

    /// Appends the object of a card to a buffer. A null card has no properties. Linear in the length of the card,
    /// except that labels or parameters that were chosen to have the same hash are sorted.
    ///
    /// Throws std::bad_alloc if memory runs out or if the buffer becomes longer than a QByteArray can be. The buffer is
    /// then unchanged.
    ///
    /// \param a_out the buffer. It may be reused for other cards: `a_out.resize( 0 )` empties it and keeps its memory.
    void Append( const PimContactCard& a_card, QByteArray& a_out );

    /// \return the object of a card.
    static QByteArray Of( const PimContactCard& a_card );

private:
    std::unique_ptr<PimContactJsonPrivate> d;
};

} // namespace PimManager::Contacts
