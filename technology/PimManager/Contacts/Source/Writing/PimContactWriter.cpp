#include <PimManager/Contacts/PimContactWriter.h>

#include "Writing/CardWriter.h"
#include "Writing/JCardSink.h"
#include "Writing/VCardText.h"
#include "Writing/WriteNotes.h"

#include <QBuffer>
#include <QIODevice>

namespace PimManager::Contacts
{

namespace
{

constexpr int s_kMostNotes = 1000;
// Large enough to write to the device rarely.
constexpr int s_kFullBuffer = 64 * 1024;

PimContactVersion VersionOf( PimContactFormat a_format )
{
    switch ( a_format )
    {
    case PimContactFormat::V21:
        return PimContactVersion::V21;
    case PimContactFormat::V30:
        return PimContactVersion::V30;
    default:
        return PimContactVersion::V40;
    }
}

} // namespace

/// The data of a writer.
class PimContactWriterPrivate
{
public:
    PimContactWriterPrivate( QIODevice& a_device, PimContactFormat a_format ) :
        m_device( a_device ),
        m_format( a_format ),
        m_notes( s_kMostNotes ),
        m_text( VersionOf( a_format ), m_buffer ),
        m_jcards( m_buffer ),
        m_writer( IsJson() ? CardWriter( m_jcards, m_notes ) : CardWriter( m_text, m_notes ) )
    {
    }

    bool IsJson() const { return m_format == PimContactFormat::JCard; }

    // A single jCard is not in an array, so the bracket is added with the second one.
    void Write( const PimContactCard& a_card )
    {
        ++m_cards;
        if ( IsJson() && m_cards == 2 )
            m_buffer.prepend( "[\n" );
        if ( IsJson() && m_cards > 1 )
            m_buffer.append( ",\n" );
        m_writer.Write( a_card );
    }

    void End()
    {
        if ( !IsJson() )
            return;
        if ( m_cards == 0 )
            m_buffer.append( "[]" );
        m_buffer.append( m_cards > 1 ? "\n]\n" : "\n" );
    }

    bool MayFlush() const { return m_buffer.size() >= s_kFullBuffer && !( IsJson() && m_cards == 1 ); }

    // A device may write less than requested.
    bool Flush()
    {
        qint64 place = 0;
        const auto size = static_cast<qint64>( m_buffer.size() );
        while ( m_error.isEmpty() && place < size )
        {
            const qint64 written = m_device.write( m_buffer.constData() + place, size - place );
            if ( written > 0 )
                place += written;
            else
                m_error = m_device.errorString().isEmpty() ? QStringLiteral( "the device takes no more data" )
                                                           : m_device.errorString();
        }
        m_buffer.resize( 0 );
        if ( !m_error.isEmpty() )
            m_notes.SetError( m_error );
        return m_error.isEmpty();
    }

    QIODevice& m_device;
    const PimContactFormat m_format;
    WriteNotes m_notes;
    QByteArray m_buffer;
    VCardText m_text;
    JCardSink m_jcards;
    CardWriter m_writer;
    qint64 m_cards = 0;
    QString m_error;
};

PimContactWriter::PimContactWriter( QIODevice& a_device, PimContactFormat a_format ) :
    d( std::make_unique<PimContactWriterPrivate>( a_device, a_format ) )
{
}

PimContactWriter::PimContactWriter( PimContactWriter&& a_other ) noexcept = default;
PimContactWriter& PimContactWriter::operator=( PimContactWriter&& a_other ) noexcept = default;
PimContactWriter::~PimContactWriter() = default;

PimContactFormat PimContactWriter::Format() const
{
    return d->m_format;
}

int PimContactWriter::MostNotes() const
{
    return d->m_notes.Most();
}

void PimContactWriter::SetMostNotes( int a_most )
{
    d->m_notes.SetMost( a_most );
}

bool PimContactWriter::Write( const PimContactCard& a_card )
{
    if ( !d->m_error.isEmpty() )
        return false;
    if ( !a_card.IsNull() )
        d->Write( a_card );
    return !d->MayFlush() || d->Flush();
}

bool PimContactWriter::Finish()
{
    d->End();
    return d->Flush();
}

QString PimContactWriter::ErrorText() const
{
    return d->m_error;
}

PimContactWriteReport PimContactWriter::Report() const
{
    return d->m_notes.Report();
}

QByteArray PimContactWriter::TextOf( const PimContactCard& a_card, PimContactFormat a_format )
{
    QBuffer buffer;
    buffer.open( QIODevice::WriteOnly );
    PimContactWriter writer( buffer, a_format );
    writer.Write( a_card );
    writer.Finish();
    return buffer.data();
}

} // namespace PimManager::Contacts
