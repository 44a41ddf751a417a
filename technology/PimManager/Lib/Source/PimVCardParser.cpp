#include "PimVCardParser.h"

#include "PimVCardLexer.h"
#include "PimVCardOwnedList.h"
#include "PimVCardVocabulary.h"

#include <QDebug>
#include <QTime>

#include <memory>

namespace PimManager::vCard
{

namespace
{

constexpr const char* s_kPrintPrefix = "  ";

// A wall clock on purpose: the timing line has always shown its time.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
class Stopwatch
{
public:
    Stopwatch() { m_time.start(); }
    int Milliseconds() const { return m_time.elapsed(); }

private:
    QTime m_time;
};
QT_WARNING_POP

bool IsBlank( QChar a_character )
{
    return a_character == QChar::Tabulation || a_character == QChar::Space;
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

bool AreSameWord( const QString& a_first, const QString& a_second )
{
    return a_first.compare( a_second, Qt::CaseInsensitive ) == 0;
}

bool IsVCardBoundary( const PimVCardProperty* a_property, const QString& a_name )
{
    if ( a_property == nullptr || !AreSameWord( a_property->GetName(), a_name ) )
        return false;
    const QList<QString> values = a_property->GetValues();
    return values.size() == 1 && AreSameWord( values.first(), s_kVCard );
}

} // namespace

PimVCardParser::PimVCardParser( const QByteArray& a_data ) :
    m_data( a_data ),
    m_dotRegex( s_kDotPattern ),
    m_semicolonRegex( s_kSemicolonPattern ),
    m_colonRegex( s_kColonPattern ),
    m_equalsRegex( s_kEqualsPattern ),
    m_commaRegex( s_kCommaPattern ),
    m_dQuoteRegex( s_kDQuotePattern ),
    m_crlfRegex( s_kCrlfPattern ),
    m_nameRegex( s_kNamePattern ),
    m_spareNameRegex( s_kNamePattern ),
    m_valueCharRegex( s_kValueCharPattern ),
    m_paramNameRegex( s_kNamePattern ),
    m_paramValueRegex( s_kNamePattern ),
    m_qSafeCharRegex( s_kQSafeCharPattern ),
    m_base64CharRegex( s_kBase64CharPattern )
{
    PrepareInput();
    m_lexer = new PimVCardLexer( &m_data );
}

PimVCardParser::~PimVCardParser()
{
    delete m_lexer;
}

void PimVCardParser::PrepareInput()
{
    const uint length = qstrnlen( m_data.constData(), static_cast<uint>( m_data.size() ) );
    QString text = QString::fromUtf8( m_data.constData(), static_cast<int>( length ) );
    text.replace( QRegularExpression( s_kQpSoftBreakPattern ), s_kSpace );
    // A CR LF is one line break: where its CR is protected by a "=" before it, its LF begins no fold either.
    const QString notInsideCrlf = QStringLiteral( R"((?!(?<=\r)\n))" );
    text.replace( QRegularExpression( notInsideCrlf + s_kUnfoldPattern ), QString() );
    m_data = text.toUtf8();
}

QList<PimVCard*>* PimVCardParser::ParseVCards()
{
    const Stopwatch stopwatch;
    auto vCards = MakeOwnedList<PimVCard>();
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
    m_lexer->SeekToPattern( QRegularExpression( s_kBeginVCardPattern, QRegularExpression::CaseInsensitiveOption ) );
    m_errorReported = 0;
    const qint64 place = m_lexer->m_stream.pos();
    if ( place > a_lastRecovery )
        return place;
    // Lines that end in a bare LF are rewound one byte too far: the same card would fail at the same place for ever.
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
    const std::unique_ptr<PimVCardProperty> property( ParseProperty() );
    const bool isStart = IsVCardBoundary( property.get(), s_kBegin );
    if ( !isStart )
        ReportError( s_kParseStartLabel, s_kErrCouldNotParseBegin, nullptr, property.get() );
    return isStart;
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
    auto properties = MakeOwnedList<PimVCardProperty>();
    do
    {
        PimVCardProperty* property = ParseProperty();
        if ( property == nullptr )
        {
            ReportError( s_kParsePropertiesLabel, s_kErrCouldNotParseProperty );
            return nullptr;
        }
        properties->append( property );
    } while ( !AreSameWord( properties->last()->GetName(), s_kEnd ) );
    return properties.release();
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
    if ( m_lexer->GetToken( m_colonRegex, true ) != s_kColon )
        return fail( s_kErrExpectedColonToken, &m_colonRegex );
    if ( vCardBoundary )
        SkipWhile( IsBlank );

    std::unique_ptr<QList<QString>> values( ParseValues() );
    if ( values == nullptr )
        return fail( s_kErrExpectedValuesList );
    if ( m_lexer->GetToken( m_crlfRegex, false ).isEmpty() )
        return fail( s_kErrExpectedCrlfToken, &m_crlfRegex );
    return new PimVCardProperty( group, name, parameters.release(), values.release() );
}

QString PimVCardParser::ParseGroup( bool& a_vCardBoundary )
{
    QString group;
    QString name = m_lexer->GetToken( m_nameRegex, false );
    while ( m_lexer->GetToken( m_dotRegex, true ) == s_kDot )
    {
        group += name + s_kDot;
        name = m_lexer->GetToken( m_nameRegex, false );
    }
    if ( AreSameWord( name, s_kBegin ) || AreSameWord( name, s_kEnd ) )
        a_vCardBoundary = true;
    if ( !a_vCardBoundary && !IsOneOf( m_lexer->m_nextChar, s_kColon, s_kSemicolon ) )
    {
        ReportError( s_kParseGroupLabel, s_kErrIllegalCharacter, nullptr, nullptr, true );
        return QString();
    }
    if ( group.endsWith( s_kDot ) )
        group.chop( s_kDot.size() );
    return group;
}

QList<PimVCardParameter*>* PimVCardParser::ParseParameters( bool a_vCardBoundary )
{
    auto parameters = MakeOwnedList<PimVCardParameter>();
    while ( PimVCardParameter* parameter = ParseParameter( a_vCardBoundary ) )
        parameters->append( parameter );
    if ( m_errorReported != 0 )
    {
        ReportError( s_kParseParametersLabel, s_kErrCouldNotParseParameter );
        return nullptr;
    }
    return parameters.release();
}

PimVCardParameter* PimVCardParser::ParseParameter( bool a_vCardBoundary )
{
    if ( m_lexer->GetToken( m_semicolonRegex, true ) != s_kSemicolon )
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
    if ( m_lexer->GetToken( m_equalsRegex, true ) == s_kEquals )
    {
        name = value;
        value = ParseParamValue();
        if ( value.isEmpty() )
        {
            ReportError( s_kParseParameterLabel, s_kErrExpectedParamValue, &m_paramValueRegex );
            return nullptr;
        }
    }
    if ( !ParseParamValueList( value ) || !NoteEncoding( name, value ) )
        return nullptr;
    return new PimVCardParameter( name, value );
}

QString PimVCardParser::ParseParamValue()
{
    if ( m_lexer->GetToken( m_dQuoteRegex, true ) == s_kDQuote )
        return s_kDQuote + ParseQuotedParamValue();
    return m_lexer->GetToken( m_paramValueRegex, false );
}

bool PimVCardParser::ParseParamValueList( QString& a_value )
{
    while ( m_lexer->GetToken( m_commaRegex, true ) == s_kComma )
    {
        const QString element = ParseParamValue();
        if ( element.isEmpty() || !IsOneOf( m_lexer->m_nextChar, s_kComma, s_kColon, s_kSemicolon ) )
        {
            ReportError( s_kParseParameterLabel, s_kErrExpectedParamValue );
            return false;
        }
        a_value += s_kComma + element;
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
    if ( a_value.contains( s_kQuotedPrintable, Qt::CaseInsensitive ) )
        m_quotedPrintable = true;
    if ( a_value.contains( s_kBase64, Qt::CaseInsensitive ) || AreSameWord( a_value, s_kB ) )
        m_base64 = true;
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
    if ( m_lexer->GetToken( m_dQuoteRegex, true ) != s_kDQuote )
    {
        ReportError( s_kParseQuotedParamValueLabel, s_kErrExpectedDQuoteToken );
        return QString();
    }
    return text + s_kDQuote;
}

QList<QString>* PimVCardParser::ParseValues()
{
    auto values = std::make_unique<QList<QString>>();
    QString value;
    bool isContinued = false;
    bool isSeparated = false;
    do
    {
        const bool isBase64 = m_base64 && !isContinued;
        value += m_lexer->GetToken( isBase64 ? m_base64CharRegex : m_valueCharRegex, false );
        isSeparated = m_lexer->GetToken( m_semicolonRegex, true ) == s_kSemicolon;
        isContinued = !isSeparated && m_quotedPrintable && value.endsWith( s_kEquals );
        if ( isContinued )
        {
            if ( !TakeSoftLineBreak( value ) )
                return nullptr;
            continue;
        }
        values->append( value );
        value.clear();
    } while ( isContinued || isSeparated );
    m_quotedPrintable = false;
    m_base64 = false;
    return values.release();
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
