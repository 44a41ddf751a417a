#include "PimVCardLexer.h"

#include "PimVCardCharacterClass.h"
#include "PimVCardVocabulary.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <utility>

namespace PimManager::vCard
{

namespace
{

constexpr QLatin1Char s_kBackslash( '\\' );
constexpr int s_kLineEndLength = 2;
constexpr int s_kLongestRecurringText = 24;

// Expressions that are members of one object stand side by side, each in a slot of its own.
size_t SlotOf( const QRegularExpression* a_pattern, size_t a_slots )
{
    return reinterpret_cast<quintptr>( a_pattern ) / sizeof( QRegularExpression ) % a_slots;
}

bool IsAscii( const char* a_text, int a_length )
{
    constexpr quint64 highBits = 0x8080808080808080;
    constexpr int wordLength = sizeof( quint64 );
    int place = 0;
    for ( ; a_length - place >= wordLength; place += wordLength )
    {
        if ( ( qFromUnaligned<quint64>( a_text + place ) & highBits ) != 0 )
            return false;
    }
    for ( ; place < a_length; ++place )
    {
        if ( static_cast<uchar>( a_text[place] ) >= 0x80 )
            return false;
    }
    return true;
}

// Names such as TEL and TYPE stand in every card, so each thread keeps the last ones and the cards share them.
QString RecurringText( const char* a_text, int a_length )
{
    const auto byteAt = [a_text]( int a_place ) { return static_cast<uchar>( a_text[a_place] ); };
    const int place = byteAt( 0 ) * 5 + byteAt( a_length / 2 ) + byteAt( a_length - 1 ) * 3 + a_length * 7;
    thread_local std::array<QString, 64> t_texts;
    QString& known = t_texts[static_cast<size_t>( place ) % t_texts.size()];
    const bool isSame = known.size() == a_length && std::equal( a_text, a_text + a_length, known.constData(),
                                                                []( char a_byte, QChar a_character )
                                                                { return QLatin1Char( a_byte ) == a_character; } );
    if ( !isSame )
        known = QLatin1String( a_text, a_length );
    return known;
}

bool IsValid( const QRegularExpression& a_pattern )
{
    if ( a_pattern.isValid() )
        return true;
    qDebug() << a_pattern.errorString();
    qDebug() << a_pattern.patternErrorOffset();
    qDebug() << a_pattern.pattern();
    return false;
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

/// Counts the lines that a run ends: its carriage returns, if it has as many line feeds.
class PimVCardLexer::LineCount
{
public:
    void Add( QChar a_character )
    {
        m_carriageReturns += a_character == QChar::CarriageReturn ? 1 : 0;
        m_lineFeeds += a_character == QChar::LineFeed ? 1 : 0;
    }
    void Add( const char* a_begin, const char* a_end )
    {
        std::for_each( a_begin, a_end, [this]( char a_byte ) { Add( QLatin1Char( a_byte ) ); } );
    }
    qint32 Lines() const { return m_carriageReturns == m_lineFeeds ? m_carriageReturns : 0; }

private:
    qint32 m_carriageReturns = 0;
    qint32 m_lineFeeds = 0;
};

/// Tests each candidate of a run against an expression, as it comes back from UTF-8.
class PimVCardLexer::ExpressionMatcher
{
public:
    explicit ExpressionMatcher( const QRegularExpression& a_expression ) :
        m_expression( a_expression )
    {
    }

    bool Matches( QChar a_character ) const { return MatchesText( QString( a_character ) ); }
    bool MatchesEscaped( QChar a_character ) const { return MatchesText( QString( s_kBackslash ) + a_character ); }

private:
    // The empty text is the end of the input, or U+FEFF: no run goes on over it, not even one that it matches.
    bool MatchesText( const QString& a_candidate ) const
    {
        const QString tested = QString::fromUtf8( a_candidate.toUtf8().constData() );
        return !tested.isEmpty() && m_expression.match( tested ).hasMatch();
    }

    const QRegularExpression& m_expression;
};

PimVCardLexer::PimVCardLexer( const QByteArray* a_data ) :
    m_stream( a_data )
{
}

PimVCardLexer::~PimVCardLexer() = default;

QString PimVCardLexer::GetToken( const QRegularExpression& a_pattern, bool a_single )
{
    const PimVCardCharacterClass* const knownClass = ClassOf( a_pattern );
    if ( knownClass == nullptr && !IsValid( a_pattern ) )
        return QString();
    m_prevToken = std::move( m_token );
    m_token = QString();
    if ( m_nextChar.isNull() )
        m_stream >> m_nextChar;
    if ( knownClass == nullptr )
        a_single ? TakeCharacter( a_pattern ) : TakeRun( ExpressionMatcher( a_pattern ) );
    else if ( !a_single )
        TakeRun( *knownClass );
    else if ( knownClass->m_delimiter == nullptr )
        TakeCharacter( a_pattern );
    else if ( m_nextChar == *knownClass->m_delimiter->constData() )
    {
        m_token = *knownClass->m_delimiter;
        m_stream >> m_nextChar;
    }
    return m_token;
}

void PimVCardLexer::Learn( const QRegularExpression& a_pattern )
{
    m_learnedPatterns[SlotOf( &a_pattern, m_learnedPatterns.size() )] = { &a_pattern,
                                                                          PimVCardCharacterClass::Find( a_pattern ) };
}

const PimVCardCharacterClass* PimVCardLexer::ClassOf( const QRegularExpression& a_pattern ) const
{
    const LearnedPattern& learned = m_learnedPatterns[SlotOf( &a_pattern, m_learnedPatterns.size() )];
    return learned.m_pattern == &a_pattern ? learned.m_class : PimVCardCharacterClass::Find( a_pattern );
}

void PimVCardLexer::TakeCharacter( const QRegularExpression& a_pattern )
{
    const QString candidate( m_nextChar );
    if ( !a_pattern.match( candidate ).hasMatch() )
        return;
    m_token = candidate;
    m_stream >> m_nextChar;
}

template <typename Matcher>
void PimVCardLexer::TakeRun( const Matcher& a_matcher )
{
    LineCount lines;
    bool isEscaped = false;
    QChar candidate = m_nextChar;
    while ( isEscaped ? a_matcher.MatchesEscaped( candidate ) : a_matcher.Matches( candidate ) )
    {
        if ( isEscaped )
            m_token += candidate;
        else
            TakeUnescaped( a_matcher, candidate, lines );
        m_stream >> m_nextChar;
        candidate = m_nextChar;
        isEscaped = m_nextChar == s_kBackslash && CompleteEscapePair( candidate );
    }
    m_lineNumber += lines.Lines();
}

void PimVCardLexer::TakeUnescaped( const ExpressionMatcher& /*a_matcher*/, QChar a_candidate, LineCount& a_lines )
{
    a_lines.Add( a_candidate );
    m_token += a_candidate;
}

// Takes the candidate and all that follows it in the run up to a backslash, straight from the bytes of the text.
void PimVCardLexer::TakeUnescaped( const PimVCardCharacterClass& a_class, QChar a_candidate, LineCount& a_lines )
{
    const bool isInBytes = a_candidate != s_kBackslash && m_stream.IsDirectlyBehind( a_candidate );
    if ( !isInBytes )
    {
        a_lines.Add( a_candidate );
        m_token += a_candidate;
    }
    if ( a_candidate == s_kBackslash || m_stream.IsInsidePair() )
        return;

    const char* const begin = m_stream.Next() - ( isInBytes ? 1 : 0 );
    const char* const end = a_class.EndOfRun( m_stream.Next(), m_stream.End() );
    m_stream.SkipTo( end );
    AppendText( a_class, begin, static_cast<int>( end - begin ) );
    if ( a_class.Matches( QChar::CarriageReturn ) )
        a_lines.Add( begin, end );
}

void PimVCardLexer::AppendText( const PimVCardCharacterClass& a_class, const char* a_text, int a_length )
{
    if ( a_length == 0 )
        return;
    if ( a_class.m_recurs && a_length <= s_kLongestRecurringText && m_token.isNull() )
        m_token = RecurringText( a_text, a_length );
    else if ( a_class.m_beyond == PimVCardCharacterClass::Beyond::Everything && !IsAscii( a_text, a_length ) )
        m_token += QString::fromUtf8( a_text, a_length );
    else if ( m_token.isNull() )
        m_token = QString( QLatin1String( a_text, a_length ) );
    else
        m_token += QLatin1String( a_text, a_length );
}

bool PimVCardLexer::CompleteEscapePair( QChar& a_candidate )
{
    m_stream >> m_nextChar;
    if ( m_nextChar == QChar::CarriageReturn )
    {
        m_stream.seek( m_stream.pos() - 1 );
        return false;
    }
    a_candidate = m_nextChar;
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
