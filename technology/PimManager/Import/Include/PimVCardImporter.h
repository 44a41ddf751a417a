/// \file
/// Import: address books as they are found, with nothing lost in silence.
///
/// \code
/// PimVCardImporter importer;
/// const PimVCardImportResult result = importer.Import( file.readAll() );
/// for ( const PimVCardImportedCard& card : result.m_cards )
///     qInfo() << DisplayNameOf( *card.m_card );
/// qInfo() << result.m_account.m_cardsRefused << "cards could not be read";
/// \endcode
///
/// A book that is too large to hold goes through the form with a handler, or in pieces:
///
/// \code
/// PimVCardImporter importer;
/// importer.SetCardHandler( []( PimVCardImportedCard a_card ) { return Store( *a_card.m_card ); } );
/// while ( connection.Read( piece ) && importer.Feed( piece ) ) {}
/// const PimVCardImportAccount account = importer.Finish();
/// \endcode

#pragma once

#include "PimVCard.h"
#include "PimVCardExport.h"
#include "PimVCardImportAccount.h"
#include "PimVCardImportOptions.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <vector>

class QIODevice;

namespace PimManager::vCardImport
{

class PimVCardImportRun;

/// A card as it is handed over.
struct PimVCardImportedCard
{
    /// Never null. Names, parameters and values are as the component delivers them: decoded by nobody yet, see
    /// PimVCardDecoding.h.
    std::unique_ptr<vCard::PimVCard> m_card;
    /// The index that diagnostics use: counted from 0 over the BEGIN lines of the file that are not nested.
    qint64 m_index = 0;
    /// Where the BEGIN line stands.
    PimVCardPosition m_position;
    /// Nothing of it was dropped and its END was there.
    bool m_isWhole = true;
};

/// What came of a whole file.
struct PimVCardImportResult
{
    /// In the order of the file.
    std::vector<PimVCardImportedCard> m_cards;
    /// In the order of the file.
    std::vector<PimVCardReject> m_rejects;
    /// Of everything that was done.
    PimVCardImportAccount m_account;
};

/// Takes any bytes and gives every card that can be had, with an account of everything that was done.
///
/// **Forms.** Import() takes a whole text or a device. Feed() and Finish() take pieces of any size. All forms give the
/// same cards, rejects, diagnostics and counts, however the text is cut. One importer can do one import after the
/// other; each begins from nothing. Calling Import() in the middle of a push ends that push and forgets it.
///
/// **Handlers** are called from inside Import(), Feed() and Finish(), on the caller's thread, in the order of the file.
/// They must not use the importer.
///
/// **Memory** grows with the largest card, not with the file: about six times the bytes of a card with a picture, and
/// up to fifty times those of a card of very short lines. The form that returns all cards holds all cards.
///
/// **Log.** Import writes nothing of a card to Qt's log.
///
/// **Threads.** An importer belongs to the thread that uses it; any number can work side by side. Nothing throws but
/// what a handler or the lack of memory throws.
class PIMVCARD_EXPORT PimVCardImporter
{
public:
    /// Takes the card over. \return false to stop: no further card comes, the rest is not read.
    using CardHandler = std::function<bool( PimVCardImportedCard a_card )>;
    /// Takes what was left out, as it came.
    using RejectHandler = std::function<void( const PimVCardReject& a_reject )>;
    /// Takes each finding as it is made, those beyond the limit of the account included.
    using DiagnosticHandler = std::function<void( const PimVCardDiagnostic& a_diagnostic )>;

    /// \param a_options hold for every import of this importer.
    explicit PimVCardImporter( const PimVCardImportOptions& a_options = PimVCardImportOptions() );
    ~PimVCardImporter();
    Q_DISABLE_COPY( PimVCardImporter )

    /// Who takes the cards of Feed() and Finish(), and of Import() from a device. Without one they are counted and
    /// deleted.
    void SetCardHandler( const CardHandler& a_handler );

    /// Who takes what was left out, in every form. Without one it is only counted.
    void SetRejectHandler( const RejectHandler& a_handler );

    /// Who takes the diagnostics, in every form. The account holds them all the same.
    void SetDiagnosticHandler( const DiagnosticHandler& a_handler );

    /// Imports a whole text. Neither the card handler nor the reject handler is called; the result holds everything.
    /// \param a_bytes any bytes in any encoding; may be empty.
    PimVCardImportResult Import( const QByteArray& a_bytes );

    /// Imports a whole text and hands over each card as it is ready.
    PimVCardImportAccount Import( const QByteArray& a_bytes, const CardHandler& a_handler );

    /// Reads a device from where it stands to its end and hands over each card as it is ready.
    /// \param a_device open for reading; stays the caller's. A device that fails ends the text, as its errorString()
    ///                 says; what came before is delivered.
    PimVCardImportAccount Import( QIODevice& a_device, const CardHandler& a_handler );

    /// Takes the next piece of a text and hands over the cards that are ready. Cards come in runs, so one may come some
    /// pieces after its last byte.
    /// \param a_piece any bytes; may be empty. Not kept beyond the call.
    /// \return false when the handler has said stop; the piece is then not wanted, and no other.
    bool Feed( const QByteArray& a_piece );

    /// Ends the text and hands over the last cards. The importer is then ready for another text.
    /// \return the account of the whole text.
    PimVCardImportAccount Finish();

    /// \return the account of the text so far, for progress; of cards in the making nothing is counted but their BEGIN
    ///         lines and lines. Valid until the next call.
    const PimVCardImportAccount& Account() const;

private:
    void BeginRun( const CardHandler& a_handler );

    PimVCardImportOptions m_options;
    CardHandler m_cardHandler;
    RejectHandler m_rejectHandler;
    DiagnosticHandler m_diagnosticHandler;
    std::unique_ptr<PimVCardImportRun> m_run;
};

/// Writes a card as text that import reads without mending anything, and that gives the same card again: UTF-8, CR LF,
/// no folding, line feeds of a value as `\n`. It is also the way to write a card that the component would not read.
/// \return the text from BEGIN to END. Linear in the length of the card.
PIMVCARD_EXPORT QByteArray MendedTextOf( const vCard::PimVCard& a_card );

} // namespace PimManager::vCardImport
