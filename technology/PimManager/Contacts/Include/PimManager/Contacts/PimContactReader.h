/// \file
/// The reader: any bytes in, cards out, and a report on every byte.
///
/// A file that fits into memory is easier to read with PimContactBook. The reader holds one card at a time:
///
/// \code
/// PimContactReader reader;
/// reader.SetCardHandler( []( const PimContactCard& a_card ) { return Store( a_card ); } );
/// while ( connection.Read( piece ) && reader.Feed( piece ) ) {}
/// reader.Finish();
/// const PimContactReport report = reader.Report();
/// \endcode

#pragma once

#include <PimManager/Contacts/PimContactCard.h>
#include <PimManager/Contacts/PimContactExport.h>
#include <PimManager/Contacts/PimContactOptions.h>
#include <PimManager/Contacts/PimContactReport.h>

#include <QByteArray>

#include <functional>
#include <memory>

class QIODevice;

namespace PimManager::Contacts
{

class PimContactReaderPrivate;

/// What PimContactReader::Next() found.
enum class PimContactNext
{
    Card,    ///< the next card
    Waiting, ///< the device has no data at the moment and is not at its end: call again after readyRead()
    End,     ///< no further card; the report is complete
    Failed,  ///< the device failed, as the report's ErrorText() says, or the reader must be reset first
};

/// Reads address books as they are found: vCard 2.1, 3.0 and 4.0, in any encoding and with any line endings, clean or
/// damaged. docs/vcard-support.md lists the rules.
///
/// **Push or pull.** Feed() and Finish() take pieces of any size and call the handlers. Next() reads a device and
/// returns one card at a time. Both give the same cards, diagnostics and extents, however the text is cut into pieces.
///
/// **Handlers** are called from inside Feed(), Finish() and Next(), on the caller's thread, in the order of the file. A
/// call of Feed(), Finish(), Next() or Reset() from inside a handler does nothing and returns false or Failed.
///
/// **Exceptions.** If a handler throws, or memory runs out (std::bad_alloc), the exception leaves the function that was
/// called. No card is delivered twice, and the report counts exactly the cards that were passed to the handler. After
/// that the reader accepts nothing until Reset().
///
/// **Memory** is at most six times PimContactOptions::CardBytes(), whatever the size of the file.
///
/// **Threads.** A reader belongs to the thread that uses it. Several readers may work at the same time.
class PIMCONTACT_EXPORT PimContactReader
{
public:
    /// Receives a card, which it may keep.
    /// \return false to stop: no further card comes, and the rest of the file is not read.
    using CardHandler = std::function<bool( PimContactCard a_card )>;
    /// Receives each finding, including those beyond the limit of the report.
    using DiagnosticHandler = std::function<void( const PimContactDiagnostic& a_diagnostic )>;
    /// Receives each extent. Extents of a card come before the card.
    using ExtentHandler = std::function<void( const PimContactExtent& a_extent )>;

    /// \param a_options apply to every file that this reader reads.
    explicit PimContactReader( const PimContactOptions& a_options = PimContactOptions() );
    ~PimContactReader();
    Q_DISABLE_COPY( PimContactReader )

    /// Sets who receives the cards of Feed() and Finish(). Without a handler they are counted. Next() does not call it.
    void SetCardHandler( const CardHandler& a_handler );
    /// Sets who receives the diagnostics.
    void SetDiagnosticHandler( const DiagnosticHandler& a_handler );
    /// Sets who receives the extents. Without a handler they are only counted, which is faster.
    void SetExtentHandler( const ExtentHandler& a_handler );

    /// Takes the next piece of a file.
    /// \param a_piece any bytes; may be empty. Not referred to after the call.
    /// \return true if more is wanted. False if a handler has stopped the reading, if the file is of a kind that is
    ///         refused (the rest may be left out; it would be counted as refused), after Finish(), and if the reader
    ///         must be reset first.
    bool Feed( const QByteArray& a_piece );

    /// The same for bytes at an address.
    /// \param a_bytes may be null if the size is 0.
    /// \param a_size  0 or more.
    bool Feed( const char* a_bytes, qint64 a_size );

    /// Ends the file and delivers its last cards. Call Reset() before the next file.
    /// \return true if the file was read to its end; false if a handler stopped it or the reader must be reset first.
    ///         Calling it again does nothing and returns the same.
    bool Finish();

    /// Reads a device from its current position up to the end of the next card.
    ///
    /// The reader reads in pieces, so the position of the device is then beyond the end of the card. Use the same
    /// device until End. A file or buffer is at its end when nothing more can be read from it. A socket or another
    /// sequential device that has no data returns Waiting. It is at its end when nothing is left and it has been
    /// closed, or has emitted readChannelFinished() since the first call. If read() returns -1 otherwise, the device
    /// has failed; so call Next() for the first time while the connection is open. Next() never blocks, unless reading
    /// from the device itself blocks.
    ///
    /// \param a_device    open for reading; remains the caller's. A device that is not open fails.
    /// \param[out] a_card the card; null unless Card is returned.
    /// \return Card as long as there are cards, also those that were complete before the device failed. Then End or
    ///         Failed, every time it is called.
    PimContactNext Next( QIODevice& a_device, PimContactCard& a_card );

    /// \return the report so far; after Finish(), or after Next() has returned End, on the whole file. Takes constant
    ///         time. Called from inside a card handler, it counts that card.
    PimContactReport Report() const;

    /// \return true if an exception left a call, so that the reader accepts nothing until Reset().
    bool NeedsReset() const;

    /// Forgets the file and gets ready for another one. Handlers and options are kept.
    /// \return false if called from inside a handler, which does nothing.
    bool Reset();

private:
    std::unique_ptr<PimContactReaderPrivate> d;
};

} // namespace PimManager::Contacts
