/// \file
/// Reads cards from any bytes and reports what happened to every byte.
///
/// For a file that fits into memory, use PimContactBook instead. The reader keeps only one card in memory:
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

/// The result of PimContactReader::Next().
enum class PimContactNext
{
    Card,    ///< the next card
    Waiting, ///< the device has no data now but is not at its end: call again after readyRead()
    End,     ///< there are no further cards; the report is complete
    Failed,  ///< the device failed (see the report's ErrorText()), or the reader must be reset first
};

/// Reads vCard 2.1, 3.0 and 4.0 in any encoding and with any line endings, clean or damaged. docs/vcard-support.md
/// lists the rules.
///
/// **Push or pull.** Feed() and Finish() accept pieces of any size and call the handlers. Next() reads a device and
/// returns one card at a time. The cards, diagnostics and extents are the same in both cases, and do not depend on the
/// size of the pieces.
///
/// **Handlers** are called from inside Feed(), Finish() and Next(), in the caller's thread and in the order of the
/// file. If a handler calls Feed(), Finish(), Next() or Reset(), the call does nothing and returns false or Failed.
///
/// **Exceptions.** If a handler throws or memory runs out (std::bad_alloc), the exception is passed on to the caller.
/// No card is delivered twice, and the report counts exactly the cards that were passed to the handler. After that, the
/// reader accepts nothing until Reset().
///
/// **Memory** is at most six times PimContactOptions::CardBytes(). It does not depend on the size of the file.
///
/// **Threads.** A reader may be used by one thread only. Several readers may be used at the same time.
class PIMCONTACT_EXPORT PimContactReader
{
public:
    /// Receives a card. The handler may keep it.
    /// \return false to stop. Then no further card is delivered and the rest of the file is not read.
    using CardHandler = std::function<bool( PimContactCard a_card )>;
    /// Receives each diagnostic, including those beyond the limit of the report.
    using DiagnosticHandler = std::function<void( const PimContactDiagnostic& a_diagnostic )>;
    /// Receives each extent. The extents of a card are delivered before the card.
    using ExtentHandler = std::function<void( const PimContactExtent& a_extent )>;

    /// \param a_options the options for all files that this reader reads.
    explicit PimContactReader( const PimContactOptions& a_options = PimContactOptions() );
    ~PimContactReader();
    Q_DISABLE_COPY( PimContactReader )

    /// Sets the handler for the cards of Feed() and Finish(). Without a handler they are only counted. Next() does not
    /// call it.
    void SetCardHandler( const CardHandler& a_handler );
    /// Sets the handler for the diagnostics.
    void SetDiagnosticHandler( const DiagnosticHandler& a_handler );
    /// Sets the handler for the extents. Without a handler they are only counted, which is faster.
    void SetExtentHandler( const ExtentHandler& a_handler );

    /// Reads the next piece of a file.
    /// \param a_piece any bytes; may be empty. The reader does not refer to them after the call.
    /// \return true if the reader accepts more. False if a handler stopped the reading, after Finish(), if the reader
    ///         must be reset first, and if files of this kind are refused. In the last case the rest need not be
    ///         passed; it would only be counted as refused.
    bool Feed( const QByteArray& a_piece );

    /// The same for bytes at an address.
    /// \param a_bytes may be null if the size is 0.
    /// \param a_size  0 or more.
    bool Feed( const char* a_bytes, qint64 a_size );

    /// Ends the file and delivers the remaining cards. Call Reset() before the next file.
    /// \return true if the file was read to its end. False if a handler stopped the reading or the reader must be reset
    ///         first. A second call does nothing and returns the same.
    bool Finish();

    /// Reads a device from its current position up to the end of the next card.
    ///
    /// The reader reads in pieces, so afterwards the position of the device is beyond the end of the card. Pass the
    /// same device until Next() returns End. A file or buffer is at its end when nothing more can be read from it. For
    /// a socket or another sequential device that has no data, Next() returns Waiting. Such a device is at its end when
    /// it has no data left and has been closed, or has emitted readChannelFinished() since the first call. If read()
    /// returns -1 in any other case, the device has failed. Therefore call Next() for the first time while the
    /// connection is open. Next() does not block unless reading from the device blocks.
    ///
    /// \param a_device    open for reading; remains the caller's. If it is not open, Failed is returned.
    /// \param[out] a_card the card; null unless Card is returned.
    /// \return Card as long as there are cards, including those that were complete before the device failed. After
    ///         that, End or Failed at every call.
    PimContactNext Next( QIODevice& a_device, PimContactCard& a_card );

    /// \return the report so far. After Finish(), or after Next() has returned End, it covers the whole file. If called
    ///         from inside a card handler, it counts that card. Constant time.
    PimContactReport Report() const;

    /// \return true if a call ended in an exception, so that the reader accepts nothing until Reset().
    bool NeedsReset() const;

    /// Forgets the file and gets ready for another one. Handlers and options are kept.
    /// \return false if called from inside a handler. Then nothing is done.
    bool Reset();

private:
    std::unique_ptr<PimContactReaderPrivate> d;
};

} // namespace PimManager::Contacts
