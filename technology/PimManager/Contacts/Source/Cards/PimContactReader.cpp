#include <PimManager/Contacts/PimContactReader.h>

#include "Cards/CardCutter.h"
#include "Cards/Ledger.h"
#include "JCard/JCardText.h"
#include "Lines/LineScanner.h"
#include "Text/Bytes.h"
#include "Text/TextDecoder.h"

#include <QFileDevice>
#include <QIODevice>

#include <algorithm>
#include <utility>
#include <vector>

namespace PimManager::Contacts
{

namespace
{

using Code = PimContactDiagnosticCode;

// The length of the pieces, which are in memory in addition to the card. A card that is complete in one piece is read
// faster.
constexpr qint64 s_kLeastPiece = qint64( 4 ) * 1024;
constexpr qint64 s_kMostPiece = qint64( 256 ) * 1024;
constexpr qint64 s_kPieceOfLimit = 8;
constexpr qint64 s_kRefusedPiece = qint64( 64 ) * 1024;
// The limit of a card if the options do not limit it.
constexpr qint64 s_kMostBytes = qint64( 1024 ) * 1024 * 1024;

qint64 PieceFor( qint64 a_mostCardBytes )
{
    const qint64 piece = a_mostCardBytes / s_kPieceOfLimit;
    return a_mostCardBytes > 0 ? std::clamp( piece, s_kLeastPiece, s_kMostPiece ) : s_kMostPiece;
}

Code CodeOf( PimContactFileKind a_refusedKind )
{
    switch ( a_refusedKind )
    {
    case PimContactFileKind::Compressed:
        return Code::CompressedFile;
    case PimContactFileKind::Document:
        return Code::DocumentFile;
    default:
        return Code::ImageFile;
    }
}

// The diagnostic if no card was found.
Code CodeOfText( PimContactFileKind a_kind )
{
    switch ( a_kind )
    {
    case PimContactFileKind::Html:
        return Code::HtmlFile;
    case PimContactFileKind::Unknown:
        return Code::UnknownFile;
    default:
        return Code::NoCard;
    }
}

} // namespace

/// The steps from bytes to cards.
class PimContactReaderPrivate
{
public:
    explicit PimContactReaderPrivate( const PimContactOptions& a_options ) :
        m_options( a_options ),
        m_piece( PieceFor( a_options.CardBytes() ) ),
        m_jcards( a_options.CardBytes() > 0 ? std::min( a_options.CardBytes(), s_kMostBytes ) : s_kMostBytes ),
        m_cutter( m_scanner, m_ledger, m_options, [this]( PimContactCard a_card ) { TakeCard( std::move( a_card ) ); } )
    {
        Reset();
    }

    ~PimContactReaderPrivate() { LeaveDevice(); }
    Q_DISABLE_COPY( PimContactReaderPrivate )

    void Reset();
    bool MayRead() const { return !m_isInCall && !m_isBroken && !m_isFinished && !m_ledger.Data().m_isStopped; }
    bool Feed( const char* a_bytes, qint64 a_size );
    bool Finish();
    PimContactNext Next( QIODevice& a_device, PimContactCard& a_card );

    const PimContactOptions m_options;
    const qint64 m_piece;
    LineScanner m_scanner;
    Ledger m_ledger;
    TextDecoder m_decoder;
    JCardText m_jcards;
    PimContactReader::CardHandler m_cardHandler;
    bool m_isInCall = false;
    bool m_isBroken = false;
    bool m_isFinished = false;
    // The text is being read, and more of it is accepted.
    bool m_mayTakeBytes = false;

private:
    // A call of the reader. If an exception ends it, the reader must be reset.
    class Call
    {
    public:
        explicit Call( PimContactReaderPrivate& a_reader ) :
            m_reader( a_reader )
        {
            m_reader.m_isInCall = true;
            m_reader.m_isBroken = true;
            m_reader.m_mayTakeBytes = false;
        }
        ~Call() { m_reader.m_isInCall = false; }
        Q_DISABLE_COPY( Call )
        void Succeed() { m_reader.m_isBroken = false; }

    private:
        PimContactReaderPrivate& m_reader;
    };

    void Begin();
    void TakeDecoded( std::string_view a_text );
    void TakeConverted( std::string_view a_text );
    void TakeText( std::string_view a_text );
    void TakeLines();
    void CountLineEnd( const PhysicalLine& a_line );
    void TakeRefused( bool a_isAll );
    void TakeCard( PimContactCard a_card );
    // The bytes of the file are the text without conversion.
    bool IsUnchanged() const { return m_isBegun && m_decoder.IsUnchanged() && m_jcards.IsUnchanged(); }
    bool IsRefused() const { return m_decoder.RefusedKind() != PimContactFileKind::Unknown; }
    void LeaveDevice();
    void PassPulled();
    void EndText();
    void Close();
    bool ReadFrom( QIODevice& a_device );
    qint64 TakeFrom( QIODevice& a_device );
    void Fail( const QString& a_text );

    CardCutter m_cutter;
    bool m_isBegun = false;
    // The cards for Next(), which takes lines until there is a card. One line can complete several cards.
    bool m_isPulling = false;
    std::vector<PimContactCard> m_pulled;
    size_t m_nextPulled = 0;
    bool m_isTextEnded = false;
    PhysicalLine m_lastLine;
    // True if the device of Next() has signalled that nothing follows.
    QMetaObject::Connection m_connection;
    bool m_isDeviceFinished = false;
};

void PimContactReaderPrivate::Reset()
{
    m_scanner.Reset();
    m_ledger.Reset( m_options.Diagnostics() );
    m_decoder.Reset();
    m_jcards.Reset();
    m_cutter.Reset( false );
    m_isBroken = false;
    m_isFinished = false;
    m_mayTakeBytes = false;
    m_isBegun = false;
    m_isTextEnded = false;
    m_pulled.clear();
    m_nextPulled = 0;
    m_lastLine = PhysicalLine();
    LeaveDevice();
}

void PimContactReaderPrivate::LeaveDevice()
{
    QObject::disconnect( m_connection );
    m_connection = QMetaObject::Connection();
    m_isDeviceFinished = false;
}

// Called as soon as the first bytes have determined the kind of the file.
void PimContactReaderPrivate::Begin()
{
    m_isBegun = true;
    ReportData& data = m_ledger.Data();
    data.m_isConverted = m_decoder.IsUtf16() || m_jcards.IsJCard();
    data.m_evidence = m_decoder.Evidence();
    if ( !m_decoder.Charset().isEmpty() )
        data.m_charset = m_decoder.Charset();
    m_cutter.Reset( m_decoder.IsUtf16() );
    if ( m_decoder.IsUtf16() )
        m_ledger.Report( Code::Encoding, 0, TextPlace() );
    if ( m_jcards.IsJCard() )
        m_ledger.Report( Code::JCard, 0, TextPlace() );
    if ( !IsRefused() )
        return;
    data.m_fileKind = m_decoder.RefusedKind();
    m_ledger.Report( CodeOf( data.m_fileKind ), 0, TextPlace() );
}

// Converts jCards to vCards.
void PimContactReaderPrivate::TakeDecoded( std::string_view a_text )
{
    if ( m_jcards.IsUnchanged() )
        TakeText( a_text );
    else
        TakeConverted( m_jcards.Convert( a_text ) );
}

void PimContactReaderPrivate::TakeConverted( std::string_view a_text )
{
    if ( m_jcards.IsJCard() && !m_isBegun )
        Begin();
    for ( const JsonFinding& finding : m_jcards.Findings() )
    {
        const TextPlace place = { finding.m_place.m_offset, finding.m_place.m_line, finding.m_place.m_lineOffset };
        m_ledger.Announce( finding.m_code, finding.m_card, place, finding.m_count, finding.m_offset );
    }
    TakeText( a_text );
}

void PimContactReaderPrivate::TakeText( std::string_view a_text )
{
    if ( a_text.empty() )
        return;
    const bool isFirst = m_scanner.NextOffset() == 0 && m_scanner.OpenLength() == 0;
    if ( !m_isBegun )
        Begin();
    m_scanner.Append( a_text );
    if ( IsRefused() )
    {
        TakeRefused( false );
        return;
    }
    if ( isFirst && a_text.substr( 0, s_kByteOrderMark.size() ) == s_kByteOrderMark )
    {
        m_scanner.Pass( static_cast<qint64>( s_kByteOrderMark.size() ) );
        m_ledger.Add( PimContactExtentKind::Mark, s_kByteOrderMark, 0 );
    }
    TakeLines();
}

void PimContactReaderPrivate::TakeLines()
{
    if ( IsRefused() )
        return;
    PhysicalLine line;
    while ( !m_ledger.Data().m_isStopped && m_pulled.empty() )
    {
        const CardCutter::PlainStep step = m_cutter.TakePlainCard();
        if ( step == CardCutter::PlainStep::Taken )
            continue;
        if ( step == CardCutter::PlainStep::Waiting || !m_scanner.Next( line ) )
            break;
        CountLineEnd( line );
        m_cutter.Take( line );
    }
    if ( !m_ledger.Data().m_isStopped && m_pulled.empty() )
        m_cutter.TakeOpenLine();
}

void PimContactReaderPrivate::CountLineEnd( const PhysicalLine& a_line )
{
    m_lastLine = a_line;
    const TextPlace end = { a_line.TextEnd(), a_line.m_number, a_line.m_lineOffset };
    if ( a_line.m_endLength == 0 )
        m_ledger.Announce( Code::LastLineEnd, end );
    else if ( m_ledger.Data().m_lineEnds[static_cast<size_t>( a_line.m_endKind )]++ == 0 &&
              a_line.m_endKind != PimContactLineEnd::CrLf )
        m_ledger.Announce( Code::LineEnd, end );
}

// Adds the bytes of a refused file in extents of equal length.
void PimContactReaderPrivate::TakeRefused( bool a_isAll )
{
    for ( ;; )
    {
        const qint64 length = std::min( m_scanner.OpenLength(), s_kRefusedPiece );
        if ( length == 0 || ( length < s_kRefusedPiece && !a_isAll ) )
            return;
        m_ledger.Add( PimContactExtentKind::Refused, m_scanner.View( m_scanner.NextOffset(), length ), 0 );
        m_scanner.Pass( length );
        m_scanner.Release( m_scanner.NextOffset() );
    }
}

void PimContactReaderPrivate::TakeCard( PimContactCard a_card )
{
    m_ledger.Data().m_fileKind = PimContactFileKind::AddressBook;
    if ( m_isPulling )
        m_pulled.push_back( std::move( a_card ) );
    else if ( m_cardHandler && !m_cardHandler( std::move( a_card ) ) )
        m_ledger.Data().m_isStopped = true;
}

bool PimContactReaderPrivate::Feed( const char* a_bytes, qint64 a_size )
{
    if ( !MayRead() )
        return false;
    Call call( *this );
    PassPulled();
    for ( qint64 place = 0; place < a_size && !m_ledger.Data().m_isStopped; place += m_piece )
    {
        const qint64 length = std::min( a_size - place, m_piece );
        const std::string_view piece( a_bytes + place, static_cast<size_t>( length ) );
        TakeDecoded( m_decoder.IsUnchanged() ? piece : m_decoder.Decode( piece ) );
    }
    call.Succeed();
    const bool isMoreWanted = !m_ledger.Data().m_isStopped && !IsRefused();
    m_mayTakeBytes = isMoreWanted && IsUnchanged();
    return isMoreWanted;
}

// Cards that Next() has not returned yet go to the handler if the caller continues with Feed() or Finish().
void PimContactReaderPrivate::PassPulled()
{
    m_isPulling = false;
    if ( m_pulled.empty() )
        return;
    const std::vector<PimContactCard> cards = std::exchange( m_pulled, {} );
    for ( size_t i = std::exchange( m_nextPulled, 0 ); i < cards.size() && !m_ledger.Data().m_isStopped; ++i )
        TakeCard( cards[i] );
}

void PimContactReaderPrivate::EndText()
{
    m_isTextEnded = true;
    TakeDecoded( m_decoder.Finish() );
    TakeConverted( m_jcards.Finish() );
    m_scanner.Finish();
    if ( IsRefused() )
        TakeRefused( true );
}

// All lines have been taken.
void PimContactReaderPrivate::Close()
{
    m_isFinished = true;
    m_cutter.Finish();
    ReportData& data = m_ledger.Data();
    if ( data.m_isStopped )
        return;
    data.m_isFinished = true;
    if ( data.m_cards > 0 )
        data.m_fileKind = PimContactFileKind::AddressBook;
    if ( m_ledger.Offset() == 0 || data.m_fileKind != PimContactFileKind::Empty )
        return;
    data.m_fileKind = m_cutter.KindOfText();
    const TextPlace end = { m_lastLine.TextEnd(), m_lastLine.m_number, m_lastLine.m_lineOffset };
    m_ledger.Report( CodeOfText( data.m_fileKind ), 0, end );
}

bool PimContactReaderPrivate::Finish()
{
    const ReportData& data = m_ledger.Data();
    if ( m_isInCall || m_isBroken )
        return false;
    if ( m_isFinished || data.m_isStopped )
        return !data.m_isStopped;
    Call call( *this );
    PassPulled();
    if ( !m_isTextEnded )
        EndText();
    TakeLines();
    if ( !data.m_isStopped )
        Close();
    call.Succeed();
    return !data.m_isStopped;
}

PimContactNext PimContactReaderPrivate::Next( QIODevice& a_device, PimContactCard& a_card )
{
    const ReportData& data = m_ledger.Data();
    a_card = PimContactCard();
    if ( m_isInCall || m_isBroken )
        return PimContactNext::Failed;
    Call call( *this );
    m_isPulling = true;
    while ( m_pulled.empty() && !m_isFinished && !data.m_isStopped )
    {
        TakeLines();
        if ( !m_pulled.empty() )
            break;
        if ( m_isTextEnded )
            Close();
        else if ( !ReadFrom( a_device ) )
        {
            call.Succeed();
            return PimContactNext::Waiting;
        }
    }
    call.Succeed();
    if ( m_pulled.empty() )
        return data.m_errorText.isEmpty() ? PimContactNext::End : PimContactNext::Failed;
    a_card = std::move( m_pulled[m_nextPulled++] );
    if ( m_nextPulled == m_pulled.size() )
    {
        m_pulled.clear();
        m_nextPulled = 0;
    }
    return PimContactNext::Card;
}

// A text that is not converted is read directly into the buffer of the scanner, without a copy.
qint64 PimContactReaderPrivate::TakeFrom( QIODevice& a_device )
{
    if ( IsUnchanged() && !IsRefused() )
    {
        const qint64 length = a_device.read( m_scanner.Room( static_cast<size_t>( m_piece ) ), m_piece );
        m_scanner.Grow( static_cast<size_t>( std::max<qint64>( length, 0 ) ) );
        return length;
    }
    QByteArray piece( static_cast<int>( m_piece ), Qt::Uninitialized );
    const qint64 length = a_device.read( piece.data(), m_piece );
    if ( length > 0 )
        TakeDecoded( m_decoder.Decode( ViewOf( piece ).substr( 0, static_cast<size_t>( length ) ) ) );
    return length;
}

// \return false if there is nothing to read at the moment.
bool PimContactReaderPrivate::ReadFrom( QIODevice& a_device )
{
    if ( !static_cast<bool>( m_connection ) && a_device.isSequential() )
        m_connection =
            QObject::connect( &a_device, &QIODevice::readChannelFinished, [this] { m_isDeviceFinished = true; } );
    if ( !a_device.isReadable() )
    {
        if ( m_isBegun && a_device.isSequential() )
            EndText();
        else
            Fail( QStringLiteral( "the device is not open for reading" ) );
        return true;
    }
    const qint64 length = TakeFrom( a_device );
    if ( length > 0 )
        return true;
    const auto* const file = qobject_cast<QFileDevice*>( &a_device );
    const bool isStream = file == nullptr && a_device.isSequential();
    const bool isEnd = isStream ? m_isDeviceFinished : length == 0;
    if ( length == 0 && !isEnd )
        return false;
    if ( isEnd && ( file == nullptr || file->error() == QFileDevice::NoError ) )
        EndText();
    else
        Fail( a_device.errorString() );
    return true;
}

// The cards before the error are delivered.
void PimContactReaderPrivate::Fail( const QString& a_text )
{
    m_ledger.Data().m_errorText = a_text;
    EndText();
}

PimContactReader::PimContactReader( const PimContactOptions& a_options ) :
    d( std::make_unique<PimContactReaderPrivate>( a_options ) )
{
}

PimContactReader::~PimContactReader() = default;

void PimContactReader::SetCardHandler( const CardHandler& a_handler )
{
    d->m_cardHandler = a_handler;
}

void PimContactReader::SetDiagnosticHandler( const DiagnosticHandler& a_handler )
{
    d->m_ledger.SetDiagnosticHandler( a_handler );
}

void PimContactReader::SetExtentHandler( const ExtentHandler& a_handler )
{
    d->m_ledger.SetExtentHandler( a_handler );
}

bool PimContactReader::Feed( const QByteArray& a_piece )
{
    return Feed( a_piece.constData(), a_piece.size() );
}

// A single byte in the middle of a line costs little.
bool PimContactReader::Feed( const char* a_bytes, qint64 a_size )
{
    if ( a_size == 1 && d->m_mayTakeBytes && d->m_scanner.TakeByte( *a_bytes ) )
        return true;
    return d->Feed( a_bytes, a_size );
}

bool PimContactReader::Finish()
{
    return d->Finish();
}

PimContactNext PimContactReader::Next( QIODevice& a_device, PimContactCard& a_card )
{
    return d->Next( a_device, a_card );
}

PimContactReport PimContactReader::Report() const
{
    return d->m_ledger.Report();
}

bool PimContactReader::NeedsReset() const
{
    return d->m_isBroken && !d->m_isInCall;
}

bool PimContactReader::Reset()
{
    if ( d->m_isInCall )
        return false;
    d->Reset();
    return true;
}

} // namespace PimManager::Contacts
