#include "PimVCardLexer.h"

#include "PimVCardUtf8Device.h"
#include "PimVCardVocabulary.h"

#include <QDebug>

namespace PimManager::vCard
{

namespace
{

constexpr QLatin1Char s_kBackslash( '\\' );
constexpr int s_kEscapeLength = 1;
constexpr int s_kLineEndLength = 2;

QString ThroughUtf8( const QString& a_text )
{
    return QString::fromUtf8( a_text.toUtf8().constData() );
}

// The empty text is the end of the input, or U+FEFF. It ends every run, even if the expression matches it.
bool IsInRun( const QRegularExpression& a_pattern, const QString& a_candidate )
{
    const QString tested = ThroughUtf8( a_candidate );
    return !tested.isEmpty() && a_pattern.match( tested ).hasMatch();
}

void PrintStreamStatus( QTextStream::Status a_status )
{
    switch ( a_status )
    {
    case QTextStream::Ok:
        qDebug() << "Text Stream Status: Ok";
        break;
    case QTextStream::ReadPastEnd:
        qDebug() << "Text Stream Status: ReadPastEnd";
        break;
    case QTextStream::ReadCorruptData:
        qDebug() << "Text Stream Status: ReadCorruptData";
        break;
    default:
        qDebug() << "Text Stream Status:" << static_cast<int>( a_status );
    }
}

} // namespace

PimVCardLexer::PimVCardLexer( const QByteArray* a_data ) :
    m_device( std::make_unique<PimVCardUtf8Device>( a_data ) ),
    m_stream( m_device.get() )
{
    m_stream.setAutoDetectUnicode( false );
#if QT_VERSION < QT_VERSION_CHECK( 6, 0, 0 )
    m_stream.setCodec( "UTF-8" ); // the default of Qt 6
#endif
}

PimVCardLexer::~PimVCardLexer() = default;

QString PimVCardLexer::GetToken( const QRegularExpression& a_pattern, bool a_single )
{
    if ( !a_pattern.isValid() )
    {
        qDebug() << a_pattern.errorString();
        qDebug() << a_pattern.patternErrorOffset();
        qDebug() << a_pattern.pattern();
        return QString();
    }
    m_prevToken = m_token;
    m_token.clear();
    if ( m_nextChar.isNull() )
        m_stream >> m_nextChar;
    if ( a_single )
        TakeCharacter( a_pattern );
    else
        TakeRun( a_pattern );
    return m_token;
}

void PimVCardLexer::TakeCharacter( const QRegularExpression& a_pattern )
{
    const QString candidate( m_nextChar );
    if ( !a_pattern.match( candidate ).hasMatch() )
        return;
    m_token = candidate;
    m_stream >> m_nextChar;
}

void PimVCardLexer::TakeRun( const QRegularExpression& a_pattern )
{
    qint32 carriageReturns = 0;
    qint32 lineFeeds = 0;
    bool isEscapePair = false;
    for ( QString candidate( m_nextChar ); IsInRun( a_pattern, candidate ); )
    {
        if ( candidate == s_kCr )
            ++carriageReturns;
        else if ( candidate == s_kLf )
            ++lineFeeds;
        m_token += isEscapePair ? candidate.mid( s_kEscapeLength ) : candidate;
        m_stream >> m_nextChar;
        candidate = m_nextChar;
        isEscapePair = m_nextChar == s_kBackslash && CompleteEscapePair( candidate );
    }
    if ( carriageReturns == lineFeeds )
        m_lineNumber += carriageReturns;
}

bool PimVCardLexer::CompleteEscapePair( QString& a_candidate )
{
    m_stream >> m_nextChar;
    if ( m_nextChar == QChar::CarriageReturn )
    {
        m_stream.seek( m_stream.pos() - 1 );
        return false;
    }
    a_candidate += m_nextChar;
    return true;
}

QString PimVCardLexer::SeekToPattern( const QRegularExpression& a_pattern )
{
    if ( !a_pattern.isValid() )
        return QString();
    m_token.clear();
    m_prevToken.clear();
    m_nextChar = QChar();
    QString line;
    do
    {
        line = m_stream.readLine();
        ++m_lineNumber;
    } while ( !a_pattern.match( line ).hasMatch() && !m_stream.atEnd() );

    if ( m_stream.atEnd() )
        return QString();
    const qint64 lineStart = m_stream.pos() - line.size() - s_kLineEndLength;
    if ( lineStart >= 0 )
        m_stream.seek( lineStart );
    --m_lineNumber;
    return line;
}

void PimVCardLexer::SeekToBeginLine()
{
    SeekToPattern( QRegularExpression( s_kBeginVCardPattern, QRegularExpression::CaseInsensitiveOption ) );
}

void PimVCardLexer::PrintStatus( const QRegularExpression* a_pattern ) const
{
    qDebug() << "---------------------------- PimVCardLexer Status:";
    if ( a_pattern != nullptr )
        qDebug() << "Regex:             " << a_pattern->pattern();
    qDebug() << "Token:             " << m_token;
    qDebug() << "Next Char:         " << m_nextChar;
    qDebug() << "Prev Token:        " << m_prevToken;
    PrintStreamStatus( m_stream.status() );
    qDebug() << "Line Number:        " << m_lineNumber;
}

} // namespace PimManager::vCard
