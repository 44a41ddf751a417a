#include "PimVCardLexer.h"

#include "PimVCardBeginSearch.h"
#include "PimVCardCharacterClass.h"
#include "PimVCardRecurringText.h"
#include "PimVCardVocabulary.h"
#include "PimVCardVocabularyBytes.h"

#include <QDebug>
#include <QtEndian>

#include <algorithm>
#include <utility>

namespace PimManager::vCard
{

namespace
{

constexpr int s_kLineEndLength = 2;

bool IsLetterOrDigit( char a_byte )
{
    const auto isFrom = [a_byte]( char a_first, char a_last ) { return a_byte >= a_first && a_byte <= a_last; };
    return isFrom( 'A', 'Z' ) || isFrom( 'a', 'z' ) || isFrom( '0', '9' );
}

bool IsAscii( const char* a_text, int a_length )
{
    constexpr quint64 highBits = 0x8080808080808080;
    constexpr int wordLength = sizeof( quint64 );
    const auto isAscii = []( char a_byte ) { return static_cast<uchar>( a_byte ) < 0x80; };
    if ( a_length < wordLength )
        return std::all_of( a_text, a_text + a_length, isAscii );
    const char* const lastWord = a_text + a_length - wordLength;
    for ( const char* place = a_text; place < lastWord; place += wordLength )
    {
        if ( ( qFromUnaligned<quint64>( place ) & highBits ) != 0 )
            return false;
    }
    return ( qFromUnaligned<quint64>( lastWord ) & highBits ) == 0;
}

QString TextOf( const PimVCardCharacterClass& a_class, const char* a_text, int a_length )
{
    if ( a_class.m_recurs )
        return PimVCardRecurringText( a_text, a_length );
    if ( a_class.MayTakeBeyondAscii() && !IsAscii( a_text, a_length ) )
        return QString::fromUtf8( a_text, a_length );
    return QLatin1String( a_text, a_length );
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

/// Counts the lines that a run ends: its carriage returns if it has as many line feeds, otherwise 0.
class PimVCardLexer::LineCount
{
public:
    void Add( QChar a_character )
    {
        m_carriageReturns += a_character == *s_kCr.constData() ? 1 : 0;
        m_lineFeeds += a_character == *s_kLf.constData() ? 1 : 0;
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

/// Tests each candidate of a run against an expression, after conversion to UTF-8 and back.
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
    // The empty text is the end of the input, or U+FEFF. It ends every run, even if the expression matches it.
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

bool PimVCardLexer::TakeLineEnd( const QRegularExpression& a_lineEnds )
{
    const char* const next = m_stream.Next();
    const bool isOneCrlf = m_nextChar == *s_kCr.constData() && m_stream.End() - next > 1 &&
                           next[0] == ByteOf( s_kLf ) && IsLetterOrDigit( next[1] );
    if ( !isOneCrlf )
        return !GetToken( a_lineEnds, false ).isEmpty();
    StartToken();
    EndLineBefore( next + 1 );
    return true;
}

bool PimVCardLexer::TakeLine( const PimVCardWord& a_line )
{
    if ( m_nextChar.isNull() )
        m_stream >> m_nextChar;
    if ( m_nextChar != QLatin1Char( *a_line.Bytes() ) || !m_stream.IsDirectlyBehind( m_nextChar ) )
        return false;
    const char* const begin = m_stream.Next() - 1;
    const char* const nextLine = begin + a_line.Length();
    const bool isNext =
        m_stream.End() - begin > a_line.Length() && a_line.IsAt( begin ) && IsLetterOrDigit( *nextLine );
    if ( !isNext )
        return false;
    m_prevToken = QString();
    EndLineBefore( nextLine );
    return true;
}

void PimVCardLexer::EndLineBefore( const char* a_nextLine )
{
    m_token = QString( s_kCrlf );
    m_nextChar = QLatin1Char( *a_nextLine );
    m_stream.SkipTo( a_nextLine + 1 );
    ++m_lineNumber;
}

bool PimVCardLexer::TakeNameList( const QRegularExpression& a_names, QString& a_list )
{
    if ( !m_stream.IsDirectlyBehind( m_nextChar ) )
        return false;
    const char comma = ByteOf( s_kComma );
    const PimVCardCharacterClass& names = *ClassOf( a_names );
    const char* const begin = m_stream.Next() - 1;
    const char* lastName = begin;
    const char* end = names.EndOfRun( begin, m_stream.End() );
    while ( end != lastName && end != m_stream.End() && *end == comma )
    {
        lastName = end + 1;
        end = names.EndOfRun( lastName, m_stream.End() );
    }
    if ( end == lastName || end == m_stream.End() || ( *end != ByteOf( s_kColon ) && *end != ByteOf( s_kSemicolon ) ) )
        return false;
    a_list = PimVCardRecurringText( begin, static_cast<int>( end - begin ) );
    m_prevToken = lastName == begin ? a_list : PimVCardRecurringText( lastName, static_cast<int>( end - lastName ) );
    m_token = QString();
    m_nextChar = QLatin1Char( *end );
    m_stream.SkipTo( end + 1 );
    return true;
}

void PimVCardLexer::Learn( const QRegularExpression& a_pattern, const QString& a_text )
{
    const PimVCardCharacterClass* const knownClass = PimVCardCharacterClass::Find( a_text );
    m_learnedPatterns[SlotOf( a_pattern )] = { &a_pattern, knownClass, knownClass->m_delimiter };
}

inline const PimVCardCharacterClass* PimVCardLexer::ClassOf( const QRegularExpression& a_pattern ) const
{
    const LearnedPattern& learned = m_learnedPatterns[SlotOf( a_pattern )];
    return learned.m_pattern == &a_pattern ? learned.m_class : PimVCardCharacterClass::Find( a_pattern );
}

bool PimVCardLexer::IsNext( const QRegularExpression& a_pattern, const PimVCardCharacterClass* a_class ) const
{
    if ( a_class != nullptr && a_class->m_delimiter != nullptr )
        return a_class->Matches( m_nextChar );
    return a_pattern.match( QString( m_nextChar ) ).hasMatch();
}

// Most runs are complete in the bytes, have no backslash and end at an ASCII character.
inline bool PimVCardLexer::TakeWholeRun( const PimVCardCharacterClass& a_class )
{
    if ( !m_stream.IsDirectlyBehind( m_nextChar ) || !a_class.m_bytes[m_nextChar.unicode()] )
        return false;
    const char* const begin = m_stream.Next() - 1;
    const char* const end = a_class.EndOfRun( m_stream.Next(), m_stream.End() );
    if ( end == m_stream.End() || *end == s_kBackslash.toLatin1() || static_cast<uchar>( *end ) >= 0x80 )
        return false;
    m_stream.SkipTo( end + 1 );
    m_nextChar = QLatin1Char( *end );
    m_token = TextOf( a_class, begin, static_cast<int>( end - begin ) );
    if ( a_class.m_endsLines )
    {
        LineCount lines;
        lines.Add( begin, end );
        m_lineNumber += lines.Lines();
    }
    return true;
}

QString PimVCardLexer::GetToken( const QRegularExpression& a_pattern, bool a_single )
{
    const PimVCardCharacterClass* const knownClass = ClassOf( a_pattern );
    if ( knownClass != nullptr && !a_single )
    {
        StartToken();
        if ( !TakeWholeRun( *knownClass ) )
            TakeRun( *knownClass );
    }
    else if ( knownClass != nullptr || IsValid( a_pattern ) )
    {
        StartToken();
        if ( !a_single )
            TakeRun( ExpressionMatcher( a_pattern ) );
        else if ( IsNext( a_pattern, knownClass ) )
        {
            m_token = QString( m_nextChar );
            m_stream >> m_nextChar;
        }
    }
    else
        return QString();
    return m_token;
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

// Reads the candidate and the rest of the run up to a backslash, directly from the bytes of the text.
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
    if ( a_class.m_endsLines )
        a_lines.Add( begin, end );
}

void PimVCardLexer::AppendText( const PimVCardCharacterClass& a_class, const char* a_text, int a_length )
{
    if ( a_length == 0 )
        return;
    if ( m_token.isNull() )
        m_token = TextOf( a_class, a_text, a_length );
    else if ( a_class.MayTakeBeyondAscii() && !IsAscii( a_text, a_length ) )
        m_token += QString::fromUtf8( a_text, a_length );
    else
        m_token += QLatin1String( a_text, a_length );
}

bool PimVCardLexer::CompleteEscapePair( QChar& a_candidate )
{
    m_stream >> m_nextChar;
    if ( m_nextChar == *s_kCr.constData() )
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
    GoBackOver( static_cast<int>( line.size() ) );
    return line;
}

void PimVCardLexer::GoBackOver( int a_lineLength )
{
    const qint64 lineStart = m_stream.pos() - a_lineLength - s_kLineEndLength;
    if ( lineStart >= 0 )
        m_stream.seek( lineStart );
    --m_lineNumber;
}

void PimVCardLexer::SeekToBeginLine()
{
    m_token.clear();
    m_prevToken.clear();
    m_nextChar = QChar();
    if ( m_beginSearch == nullptr )
        m_beginSearch = std::make_unique<PimVCardBeginSearch>();
    PimVCardBeginSearch::Line line = {};
    do
    {
        const bool beginsWithHalf = m_stream.PassMarkOrHalf();
        line = m_beginSearch->LineFrom( m_stream.Next(), m_stream.End() );
        // No expression matches a text that contains half of a surrogate pair.
        line.m_hasBegin = line.m_hasBegin && !beginsWithHalf;
        m_stream.SkipTo( line.m_next );
        ++m_lineNumber;
    } while ( !line.m_hasBegin && !m_stream.atEnd() );
    if ( !m_stream.atEnd() )
        GoBackOver( line.m_length );
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
