#include "PimVCardParser.h"

#include "PimVCardLexer.h"
#include "PimVCardOwnedList.h"
#include "PimVCardPreparation.h"
#include "PimVCardVocabulary.h"
#include "PimVCardVocabularyBytes.h"

#include <QDebug>
#include <QTime>
#include <QVarLengthArray>

#include <memory>
#include <utility>

namespace PimManager::vCard
{

namespace
{

constexpr const char* s_kPrintPrefix = "  ";
constexpr int s_kUsualProperties = 16;
constexpr int s_kUsualParameters = 4;
constexpr int s_kUsualComponents = 8;

// A wall clock on purpose: the timing line has always shown wall-clock time.
class Stopwatch
{
public:
    int Milliseconds() const
    {
        const int time = m_start.msecsTo( QTime::currentTime() );
        return time < 0 ? time + s_kMillisecondsOfDay : time;
    }

private:
    static constexpr int s_kMillisecondsOfDay = 24 * 60 * 60 * 1000;
    const QTime m_start = QTime::currentTime();
};

// Shared by the parsers of one thread, because creating an expression costs more than parsing a line.
struct TokenExpressions
{
    const QRegularExpression m_dot{ s_kDotPattern };
    const QRegularExpression m_semicolon{ s_kSemicolonPattern };
    const QRegularExpression m_colon{ s_kColonPattern };
    const QRegularExpression m_equals{ s_kEqualsPattern };
    const QRegularExpression m_comma{ s_kCommaPattern };
    const QRegularExpression m_dQuote{ s_kDQuotePattern };
    const QRegularExpression m_crlf{ s_kCrlfPattern };
    const QRegularExpression m_name{ s_kNamePattern };
    const QRegularExpression m_valueChar{ s_kValueCharPattern };
    const QRegularExpression m_qSafeChar{ s_kQSafeCharPattern };
    const QRegularExpression m_base64Char{ s_kBase64CharPattern };
};

const TokenExpressions& ThreadExpressions()
{
    thread_local const TokenExpressions t_expressions;
    return t_expressions;
}

bool IsBlank( QChar a_character )
{
    return a_character == *s_kSpace.constData() || a_character == QChar::Tabulation;
}

// The boundaries of a card, as written in nearly every card.
struct PlainLines
{
    const PimVCardWord m_begin{ s_kBegin + s_kColon + s_kVCard + s_kCrlf };
    const PimVCardWord m_end{ s_kEnd + s_kColon + s_kVCard + s_kCrlf };
};

const PlainLines& Plain()
{
    static const PlainLines s_lines;
    return s_lines;
}

bool IsBlankOrLineBreak( QChar a_character )
{
    return IsBlank( a_character ) || a_character == QChar::LineFeed || a_character == QChar::CarriageReturn;
}

template <typename... Delimiters>
bool IsOneOf( QChar a_character, const Delimiters&... a_delimiters )
{
    return ( ( a_character == a_delimiters.at( 0 ) ) || ... );
}

// Called for every line. Most words differ from the vocabulary's in their first letter. The first letters of the
// vocabulary's words have no case variants above ASCII, and case folding does not change the length of a text.
bool AreSameWord( const QString& a_first, const QString& a_second )
{
    if ( a_first.size() != a_second.size() )
        return false;
    if ( a_first.isEmpty() )
        return true;
    constexpr ushort s_kCaseBit = 0x20;
    if ( ( a_first.at( 0 ).unicode() | s_kCaseBit ) != ( a_second.at( 0 ).unicode() | s_kCaseBit ) )
        return false;
    return a_first == a_second || a_first.compare( a_second, Qt::CaseInsensitive ) == 0;
}

void AppendTo( QString& a_text, QString&& a_piece )
{
    if ( a_text.isNull() )
        a_text = std::move( a_piece );
    else
        a_text += a_piece;
}

// Moves the texts. A copy would change a reference count, which is slow across threads.
template <typename Texts>
QList<QString>* NewListOf( Texts& a_texts )
{
    auto list = std::make_unique<QList<QString>>();
    list->reserve( a_texts.size() );
    for ( QString& text : a_texts )
    {
        list->append( QString() );
        list->last().swap( text );
    }
    return list.release();
}

bool IsVCardBoundary( const PimVCardProperty* a_property, const QString& a_name )
{
    if ( a_property == nullptr || !AreSameWord( a_property->GetName(), a_name ) )
        return false;
    const QList<QString> values = a_property->GetValues();
    return values.size() == 1 && AreSameWord( values.first(), s_kVCard );
}

std::unique_ptr<PimVCardProperty> NewPlainEnd()
{
    auto parameters = std::make_unique<QList<PimVCardParameter*>>();
    auto values = std::make_unique<QList<QString>>();
    values->append( s_kVCard );
    return std::make_unique<PimVCardProperty>( QString(), s_kEnd, parameters.release(), values.release() );
}

} // namespace

PimVCardParser::PimVCardParser( const QByteArray& a_data ) :
    m_data( a_data ),
    m_dotRegex( ThreadExpressions().m_dot ),
    m_semicolonRegex( ThreadExpressions().m_semicolon ),
    m_colonRegex( ThreadExpressions().m_colon ),
    m_equalsRegex( ThreadExpressions().m_equals ),
    m_commaRegex( ThreadExpressions().m_comma ),
    m_dQuoteRegex( ThreadExpressions().m_dQuote ),
    m_crlfRegex( ThreadExpressions().m_crlf ),
    m_nameRegex( ThreadExpressions().m_name ),
    m_spareNameRegex( ThreadExpressions().m_name ),
    m_valueCharRegex( ThreadExpressions().m_valueChar ),
    m_paramNameRegex( ThreadExpressions().m_name ),
    m_paramValueRegex( ThreadExpressions().m_name ),
    m_qSafeCharRegex( ThreadExpressions().m_qSafeChar ),
    m_base64CharRegex( ThreadExpressions().m_base64Char )
{
    PrepareInput();
    m_lexer = new PimVCardLexer( &m_data );
    m_lexer->Learn( m_dotRegex, s_kDotPattern );
    m_lexer->Learn( m_semicolonRegex, s_kSemicolonPattern );
    m_lexer->Learn( m_colonRegex, s_kColonPattern );
    m_lexer->Learn( m_equalsRegex, s_kEqualsPattern );
    m_lexer->Learn( m_commaRegex, s_kCommaPattern );
    m_lexer->Learn( m_dQuoteRegex, s_kDQuotePattern );
    m_lexer->Learn( m_crlfRegex, s_kCrlfPattern );
    m_lexer->Learn( m_nameRegex, s_kNamePattern );
    m_lexer->Learn( m_valueCharRegex, s_kValueCharPattern );
    m_lexer->Learn( m_paramNameRegex, s_kNamePattern );
    m_lexer->Learn( m_paramValueRegex, s_kNamePattern );
    m_lexer->Learn( m_qSafeCharRegex, s_kQSafeCharPattern );
    m_lexer->Learn( m_base64CharRegex, s_kBase64CharPattern );
}

PimVCardParser::~PimVCardParser()
{
    delete m_lexer;
}

void PimVCardParser::PrepareInput()
{
    m_data = PreparedText( m_data );
}

QList<PimVCard*>* PimVCardParser::ParseVCards()
{
    const Stopwatch stopwatch;
    OwnedList<PimVCard> vCards( new QList<PimVCard*> );
    qint64 lastRecovery = -1;
    while ( !m_lexer->m_stream.atEnd() )
    {
        SkipWhile( IsBlankOrLineBreak );
        if ( m_lexer->m_stream.atEnd() )
            break;
        if ( PimVCard* vCard = ParseVCard() )
        {
            vCards->append( vCard );
            continue;
        }
        ReportError( s_kParseVCardsLabel, s_kErrCouldNotParseVCard );
        lastRecovery = Recover( lastRecovery );
    }
    qDebug() << "[PVCP] :" << vCards->size() << "vCards parsed in:" << stopwatch.Milliseconds() << "ms";
    return vCards.release();
}

qint64 PimVCardParser::Recover( qint64 a_lastRecovery )
{
    m_lexer->SeekToBeginLine();
    m_errorReported = 0;
    const qint64 place = m_lexer->m_stream.pos();
    if ( place > a_lastRecovery )
        return place;
    // For lines that end with a bare LF, the scanner goes back one byte too far. The same card would fail at the same
    // place forever.
    m_lexer->m_stream.seek( a_lastRecovery + 1 );
    return a_lastRecovery + 1;
}

PimVCard* PimVCardParser::ParseVCard()
{
    if ( !ParseStart() )
    {
        ReportError( s_kParseVCardLabel, s_kErrCouldNotParseBegin );
        return nullptr;
    }
    OwnedList<PimVCardProperty> properties( ParseProperties() );
    if ( properties == nullptr )
    {
        ReportError( s_kParseVCardLabel, s_kErrCouldNotParseProperties );
        return nullptr;
    }
    if ( !ParseEnd( properties->last() ) )
    {
        ReportError( s_kParseVCardLabel, s_kErrCouldNotParseEnd );
        return nullptr;
    }
    delete properties->takeLast();
    return new PimVCard( properties.release() );
}

bool PimVCardParser::ParseStart()
{
    if ( TakeBoundary( Plain().m_begin ) )
        return true;
    const std::unique_ptr<PimVCardProperty> property( ParseProperty() );
    const bool isStart = IsVCardBoundary( property.get(), s_kBegin );
    if ( !isStart )
        ReportError( s_kParseStartLabel, s_kErrCouldNotParseBegin, nullptr, property.get() );
    return isStart;
}

// Has the same effect as ParseProperty() on this line.
bool PimVCardParser::TakeBoundary( const PimVCardWord& a_line )
{
    if ( m_errorReported != 0 || !m_lexer->TakeLine( a_line ) )
        return false;
    m_quotedPrintable = false;
    m_base64 = false;
    return true;
}

bool PimVCardParser::ParseEnd( PimVCardProperty* a_property )
{
    const bool isEnd = IsVCardBoundary( a_property, s_kEnd );
    if ( !isEnd )
        ReportError( s_kParseEndLabel, s_kErrCouldNotParseEnd, nullptr, a_property );
    return isEnd;
}

QList<PimVCardProperty*>* PimVCardParser::ParseProperties()
{
    OwnedElements<PimVCardProperty, s_kUsualProperties> properties;
    do
    {
        if ( TakeBoundary( Plain().m_end ) )
        {
            properties.Append( NewPlainEnd() );
            break;
        }
        std::unique_ptr<PimVCardProperty> property( ParseProperty() );
        if ( property == nullptr )
        {
            ReportError( s_kParsePropertiesLabel, s_kErrCouldNotParseProperty );
            return nullptr;
        }
        properties.Append( std::move( property ) );
    } while ( !AreSameWord( properties.Last().GetName(), s_kEnd ) );
    return properties.TakeAsList();
}

PimVCardProperty* PimVCardParser::ParseProperty()
{
    const auto fail = [this]( const QString& a_message, const QRegularExpression* a_pattern = nullptr )
    {
        ReportError( s_kParsePropertyLabel, a_message, a_pattern );
        return nullptr;
    };

    bool vCardBoundary = false;
    const QString group = ParseGroup( vCardBoundary );
    if ( m_errorReported != 0 )
        return fail( s_kErrExpectedGroupOrName );
    const QString name = m_lexer->m_prevToken;
    if ( name.isEmpty() )
        return fail( s_kErrExpectedName );

    OwnedList<PimVCardParameter> parameters( ParseParameters( vCardBoundary ) );
    if ( parameters == nullptr )
        return fail( s_kErrExpectedParametersList );

    if ( vCardBoundary )
        SkipWhile( IsBlank );
    if ( !TakeDelimiter( m_colonRegex ) )
        return fail( s_kErrExpectedColonToken, &m_colonRegex );
    if ( vCardBoundary )
        SkipWhile( IsBlank );

    std::unique_ptr<QList<QString>> values( ParseValues() );
    if ( values == nullptr )
        return fail( s_kErrExpectedValuesList );
    if ( !m_lexer->TakeLineEnd( m_crlfRegex ) )
        return fail( s_kErrExpectedCrlfToken, &m_crlfRegex );
    return new PimVCardProperty( group, name, parameters.release(), values.release() );
}

QString PimVCardParser::ParseGroup( bool& a_vCardBoundary )
{
    QString group;
    QString name = m_lexer->GetToken( m_nameRegex, false );
    for ( bool isFirst = true; TakeDelimiter( m_dotRegex ); isFirst = false )
    {
        if ( isFirst )
            group = name;
        else
            group += s_kDot + name;
        name = m_lexer->GetToken( m_nameRegex, false );
    }
    if ( AreSameWord( name, s_kBegin ) || AreSameWord( name, s_kEnd ) )
        a_vCardBoundary = true;
    if ( !a_vCardBoundary && !IsOneOf( m_lexer->m_nextChar, s_kColon, s_kSemicolon ) )
    {
        ReportError( s_kParseGroupLabel, s_kErrIllegalCharacter, nullptr, nullptr, true );
        return QString();
    }
    return group;
}

QList<PimVCardParameter*>* PimVCardParser::ParseParameters( bool a_vCardBoundary )
{
    OwnedElements<PimVCardParameter, s_kUsualParameters> parameters;
    while ( PimVCardParameter* parameter = ParseParameter( a_vCardBoundary ) )
        parameters.Append( std::unique_ptr<PimVCardParameter>( parameter ) );
    if ( m_errorReported != 0 )
    {
        ReportError( s_kParseParametersLabel, s_kErrCouldNotParseParameter );
        return nullptr;
    }
    return parameters.TakeAsList();
}

PimVCardParameter* PimVCardParser::ParseParameter( bool a_vCardBoundary )
{
    if ( !TakeDelimiter( m_semicolonRegex ) )
    {
        if ( !a_vCardBoundary && !IsOneOf( m_lexer->m_nextChar, s_kColon ) )
            ReportError( s_kParseParameterLabel, s_kErrExpectedColonChar, nullptr, nullptr, true );
        return nullptr;
    }
    if ( IsBlank( m_lexer->m_nextChar ) )
        m_lexer->m_stream >> m_lexer->m_nextChar;

    QString name;
    QString value = m_lexer->GetToken( m_paramNameRegex, false );
    if ( value.isEmpty() || !IsOneOf( m_lexer->m_nextChar, s_kComma, s_kColon, s_kSemicolon, s_kEquals ) )
    {
        ReportError( s_kParseParameterLabel, s_kErrExpectedParamNameOrValue, &m_paramNameRegex );
        return nullptr;
    }
    if ( TakeDelimiter( m_equalsRegex ) )
    {
        name = std::move( value );
        if ( !ParseParamValues( value ) )
            return nullptr;
    }
    else if ( !ParseParamValueList( value ) )
        return nullptr;
    if ( !NoteEncoding( name, value ) )
        return nullptr;
    return new PimVCardParameter( name, value );
}

bool PimVCardParser::ParseParamValues( QString& a_values )
{
    if ( m_lexer->TakeNameList( m_paramValueRegex, a_values ) )
        return true;
    a_values = ParseParamValue();
    if ( a_values.isEmpty() )
    {
        ReportError( s_kParseParameterLabel, s_kErrExpectedParamValue, &m_paramValueRegex );
        return false;
    }
    return ParseParamValueList( a_values );
}

QString PimVCardParser::ParseParamValue()
{
    if ( TakeDelimiter( m_dQuoteRegex ) )
        return s_kDQuote + ParseQuotedParamValue();
    return m_lexer->GetToken( m_paramValueRegex, false );
}

bool PimVCardParser::ParseParamValueList( QString& a_value )
{
    while ( TakeDelimiter( m_commaRegex ) )
    {
        const QString element = ParseParamValue();
        if ( element.isEmpty() || !IsOneOf( m_lexer->m_nextChar, s_kComma, s_kColon, s_kSemicolon ) )
        {
            ReportError( s_kParseParameterLabel, s_kErrExpectedParamValue );
            return false;
        }
        a_value += s_kComma;
        a_value += element;
    }
    if ( !IsOneOf( m_lexer->m_nextChar, s_kColon, s_kSemicolon ) )
    {
        ReportError( s_kParseParameterLabel, s_kErrExpectedColonOrSemicolonChar, nullptr, nullptr, true );
        return false;
    }
    return true;
}

bool PimVCardParser::NoteEncoding( const QString& a_name, const QString& a_value )
{
    if ( !AreSameWord( a_name, s_kEncoding ) )
        return true;
    if ( a_value == s_kQuotedPrintable ) // as in nearly every card
        m_quotedPrintable = true;
    else
    {
        m_quotedPrintable = m_quotedPrintable || a_value.contains( s_kQuotedPrintable, Qt::CaseInsensitive );
        m_base64 = m_base64 || a_value.contains( s_kBase64, Qt::CaseInsensitive ) || AreSameWord( a_value, s_kB );
    }
    if ( m_quotedPrintable && m_base64 )
    {
        ReportError( s_kParseParameterLabel, s_kErrQpAndBase64 );
        return false;
    }
    return true;
}

QString PimVCardParser::ParseQuotedParamValue()
{
    const QString text = m_lexer->GetToken( m_qSafeCharRegex, false );
    if ( text.isEmpty() )
    {
        ReportError( s_kParseQuotedParamValueLabel, s_kErrExpectedQuotedParamValue );
        return QString();
    }
    if ( !TakeDelimiter( m_dQuoteRegex ) )
    {
        ReportError( s_kParseQuotedParamValueLabel, s_kErrExpectedDQuoteToken );
        return QString();
    }
    return text + s_kDQuote;
}

QList<QString>* PimVCardParser::ParseValues()
{
    QVarLengthArray<QString, s_kUsualComponents> values;
    QString value;
    bool isContinued = false;
    bool isSeparated = false;
    do
    {
        const bool isBase64 = m_base64 && !isContinued;
        AppendTo( value, m_lexer->GetToken( isBase64 ? m_base64CharRegex : m_valueCharRegex, false ) );
        isSeparated = TakeDelimiter( m_semicolonRegex );
        isContinued = !isSeparated && m_quotedPrintable && value.endsWith( s_kEquals );
        if ( isContinued )
        {
            if ( !TakeSoftLineBreak( value ) )
                return nullptr;
            continue;
        }
        values.append( std::move( value ) );
        value = QString();
    } while ( isContinued || isSeparated );
    m_quotedPrintable = false;
    m_base64 = false;
    return NewListOf( values );
}

bool PimVCardParser::TakeSoftLineBreak( QString& a_value )
{
    if ( m_lexer->GetToken( m_crlfRegex, false ) != s_kCrlf )
    {
        ReportError( s_kParseValuesLabel, s_kErrExpectedCrlfToken, &m_crlfRegex );
        return false;
    }
    a_value.chop( s_kEquals.size() );
    return true;
}

bool PimVCardParser::TakeDelimiter( const QRegularExpression& a_delimiter )
{
    return m_lexer->TakeDelimiter( a_delimiter );
}

void PimVCardParser::SkipWhile( bool ( *a_isSkipped )( QChar ) )
{
    while ( a_isSkipped( m_lexer->m_nextChar ) )
        m_lexer->m_stream >> m_lexer->m_nextChar;
}

void PimVCardParser::ReportError( const QString& a_label, const QString& a_message, const QRegularExpression* a_pattern,
                                  PimVCardProperty* a_property, bool a_illegalCharacter )
{
    qCritical() << "Error in" << a_label << "->\n " << a_message;
    if ( a_illegalCharacter )
        qCritical() << "   Illegal Character:" << m_lexer->m_nextChar;
    m_lexer->PrintStatus( a_pattern );
    if ( a_property != nullptr )
        a_property->Print( s_kPrintPrefix );
    qCritical() << "";
    m_errorReported = 1;
}

} // namespace PimManager::vCard
