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
/// PimContact reads, and all properties. Nothing is cut, and nothing is left out: a value that cannot be decoded is
/// written as text.
///
/// The JSON is valid UTF-8 (RFC 8259) without line breaks and without blanks between its elements. Control characters,
/// and characters that could drive a terminal or change the direction of writing, are written as `\uXXXX`. Malformed
/// bytes become U+FFFD. The same card always has the same JSON.
///
/// An object keeps the memory that it needs, and allocates none for further cards of the same size. It belongs to one
/// thread; several objects may work at the same time.
class PIMCONTACT_EXPORT PimContactJson
{
public:
    PimContactJson();
    PimContactJson( PimContactJson&& a_other ) noexcept;
    PimContactJson& operator=( PimContactJson&& a_other ) noexcept;
    ~PimContactJson();
    Q_DISABLE_COPY( PimContactJson )

    /// \return the member `file` of the cards that follow.
    QString File() const;
    /// \param a_name the name of the file in which the cards were found; a null string leaves the member out, as it is
    ///               by default.
    void SetFile( const QString& a_name );

    /// Appends the object of a card to a buffer. A null card has no properties. Linear in the length of the card, but
    /// for labels or parameters that were chosen to have the same hash, which are sorted.
    ///
    /// Throws std::bad_alloc if memory runs out, or if the buffer becomes longer than a QByteArray may be. The buffer
    /// then contains what it contained before.
    ///
    /// \param a_out may be used for one card after the other: `a_out.resize( 0 )` empties it and keeps its memory.
    void Append( const PimContactCard& a_card, QByteArray& a_out );

    /// \return the object of a card.
    static QByteArray Of( const PimContactCard& a_card );

private:
    std::unique_ptr<PimContactJsonPrivate> d;
};

} // namespace PimManager::Contacts
