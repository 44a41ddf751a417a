/// \file
/// The default character set of a book for which the user has chosen none.
///
/// \code
/// GuessedCharset charset( input );
/// options.SetDefaultCharset( charset.Name() );
/// PimContactReader reader( options );
/// while ( reader.Next( charset.Device(), card ) == PimContactNext::Card )
///     charset.Count( card );
/// const QString note = charset.Note( SourceName( fileName ) );
/// if ( !note.isEmpty() )
///     console.Tell( note );
/// \endcode

#pragma once

#include "Reading/ReplayedDevice.h"

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactCharset.h>

#include <QByteArray>
#include <QString>

namespace PimManager::Tools
{

/// Guesses the default character set from the start of the book, and tells the user which cards depend on the guess.
/// Use one object for each book.
class GuessedCharset
{
public:
    /// Reads the first s_kGuessedStart bytes of the input and guesses, see GuessCharset(). Waits until they have
    /// arrived, or the input ends or fails.
    ///
    /// \param a_input open for reading; must outlive this object, and must not be read otherwise.
    explicit GuessedCharset( QIODevice& a_input );

    /// \return the device to read the book from: all bytes of the input, from the first one.
    QIODevice& Device() { return m_device; }

    /// \return the name for PimContactOptions::SetDefaultCharset(): the guess, or else the usual default.
    QByteArray Name() const;

    /// Counts a card of the book if text of it was read in the default, see PimContactCard::UsesDefaultCharset().
    /// Linear in the length of the card.
    void Count( const Contacts::PimContactCard& a_card );

    /// \return an English sentence on how the counted cards were read and what to do if that is wrong; empty if there
    ///         are none.
    /// \param a_source how to call the book, safe for a terminal; see SourceName().
    /// \note Example: `contacts.vcf: 18 cards name no character set and were read as KOI8-R, which was guessed from
    ///       their letters. Use --charset NAME if names look wrong.`
    QString Note( const QString& a_source ) const;

private:
    ReplayedDevice m_device;
    Contacts::PimContactCharset m_guess;
    qint64 m_cards = 0;
};

} // namespace PimManager::Tools
