#include <PimManager/Contacts/PimContactOptions.h>

#include <QSharedData>

namespace PimManager::Contacts
{

/// The data of the options.
class PimContactOptionsPrivate : public QSharedData
{
public:
    qint64 m_cardBytes = qint64( 16 ) * 1024 * 1024;
    qint64 m_lineBytes = 0;
    qint64 m_cardLines = 1000000;
    int m_nesting = 8;
    qint64 m_cards = 1000000;
    qint64 m_bookBytes = qint64( 1024 ) * 1024 * 1024;
    int m_diagnostics = 1000;
    QList<QByteArray> m_names;
    bool m_areMediaWanted = true;
    QByteArray m_defaultCharset = QByteArrayLiteral( "windows-1252" );
};

PimContactOptions::PimContactOptions() :
    d( new PimContactOptionsPrivate )
{
}

PimContactOptions::PimContactOptions( const PimContactOptions& a_other ) = default;
PimContactOptions& PimContactOptions::operator=( const PimContactOptions& a_other ) = default;
PimContactOptions::~PimContactOptions() = default;

qint64 PimContactOptions::CardBytes() const
{
    return d->m_cardBytes;
}

void PimContactOptions::SetCardBytes( qint64 a_bytes )
{
    d->m_cardBytes = a_bytes;
}

qint64 PimContactOptions::LineBytes() const
{
    return d->m_lineBytes;
}

void PimContactOptions::SetLineBytes( qint64 a_bytes )
{
    d->m_lineBytes = a_bytes;
}

qint64 PimContactOptions::CardLines() const
{
    return d->m_cardLines;
}

void PimContactOptions::SetCardLines( qint64 a_lines )
{
    d->m_cardLines = a_lines;
}

int PimContactOptions::Nesting() const
{
    return d->m_nesting;
}

void PimContactOptions::SetNesting( int a_depth )
{
    d->m_nesting = a_depth;
}

qint64 PimContactOptions::Cards() const
{
    return d->m_cards;
}

void PimContactOptions::SetCards( qint64 a_cards )
{
    d->m_cards = a_cards;
}

qint64 PimContactOptions::BookBytes() const
{
    return d->m_bookBytes;
}

void PimContactOptions::SetBookBytes( qint64 a_bytes )
{
    d->m_bookBytes = a_bytes;
}

int PimContactOptions::Diagnostics() const
{
    return d->m_diagnostics;
}

void PimContactOptions::SetDiagnostics( int a_count )
{
    d->m_diagnostics = a_count;
}

QList<QByteArray> PimContactOptions::Names() const
{
    return d->m_names;
}

void PimContactOptions::SetNames( const QList<QByteArray>& a_names )
{
    d->m_names = a_names;
}

bool PimContactOptions::AreMediaWanted() const
{
    return d->m_areMediaWanted;
}

void PimContactOptions::SetMediaWanted( bool a_areWanted )
{
    d->m_areMediaWanted = a_areWanted;
}

QByteArray PimContactOptions::DefaultCharset() const
{
    return d->m_defaultCharset;
}

void PimContactOptions::SetDefaultCharset( const QByteArray& a_charset )
{
    d->m_defaultCharset = a_charset;
}

} // namespace PimManager::Contacts
