#include "PimVCardTranscript.h"

#include "PimVCardParserInspector.h"
#include "PimVCardTestLogBound.h"

#include <QMessageLogContext>

#include <memory>
#include <utility>

namespace PimManager::vCard
{

namespace
{

QString Number( qint64 a_number )
{
    return QString::number( a_number );
}

QString YesOrNo( bool a_flag )
{
    return a_flag ? QStringLiteral( "yes" ) : QStringLiteral( "no" );
}

QString WithoutMilliseconds( const QString& a_message )
{
    static const QRegularExpression timing( QStringLiteral( R"(\A(\[PVCP\] : \d+ vCards parsed in:) \d+ (ms)\z)" ) );
    return QString( a_message ).replace( timing, QStringLiteral( R"(\1 \2)" ) );
}

/// The lines so far. Also records every message on Qt's log as a line.
class Transcript
{
public:
    Transcript() :
        m_former( qInstallMessageHandler( AddMessage ) )
    {
        sm_lines.clear();
    }
    ~Transcript() { qInstallMessageHandler( m_former ); }
    Q_DISABLE_COPY( Transcript )

    static void Add( QLatin1String a_heading, const QString& a_text = QString() )
    {
        sm_lines.append( a_heading + QLatin1String( ": " ) + a_text );
    }

    static QStringList Lines() { return sm_lines; }

private:
    static void AddMessage( QtMsgType a_type, const QMessageLogContext& a_context, const QString& a_text )
    {
        EndIfEndless( sm_lines.size() );
        sm_lines.append( QStringLiteral( "log " ) + Number( a_type ) + QLatin1Char( ' ' ) +
                         QLatin1String( a_context.category ) + QLatin1String( ": " ) + WithoutMilliseconds( a_text ) );
    }

    inline static QStringList sm_lines;
    QtMessageHandler m_former;
};

void AddScanner( const PimVCardLexer& a_lexer, bool a_hasPosition )
{
    Transcript::Add( QLatin1String( "token" ), a_lexer.m_token );
    Transcript::Add( QLatin1String( "token before" ), a_lexer.m_prevToken );
    Transcript::Add( QLatin1String( "look-ahead" ), QString::number( a_lexer.m_nextChar.unicode(), 16 ) );
    Transcript::Add( QLatin1String( "line number" ), Number( a_lexer.m_lineNumber ) );
    Transcript::Add( QLatin1String( "status" ), Number( a_lexer.m_stream.status() ) );
    Transcript::Add( QLatin1String( "at end" ), YesOrNo( a_lexer.m_stream.atEnd() ) );
    if ( a_hasPosition )
        Transcript::Add( QLatin1String( "position" ), Number( a_lexer.m_stream.pos() ) );
}

// Results of the parser, deleted once they are recorded.

void Add( bool a_result )
{
    Transcript::Add( QLatin1String( "result" ), YesOrNo( a_result ) );
}

void Add( const QString& a_result )
{
    Transcript::Add( QLatin1String( "text" ), a_result );
}

void Add( const PimVCardParameter& a_parameter )
{
    Transcript::Add( QLatin1String( "parameter name" ), a_parameter.GetName() );
    Transcript::Add( QLatin1String( "parameter value" ), a_parameter.GetValue() );
}

void Add( const PimVCardProperty& a_property )
{
    Transcript::Add( QLatin1String( "property" ), a_property.GetName() );
    Transcript::Add( QLatin1String( "group" ), a_property.GetGroupID() );
    for ( const PimVCardParameter* parameter : a_property.GetParameters() )
        Add( *parameter );
    for ( const QString& value : a_property.GetValues() )
        Transcript::Add( QLatin1String( "value" ), value );
}

void Add( const PimVCard& a_vCard )
{
    Transcript::Add( QLatin1String( "card" ) );
    for ( const PimVCardProperty* property : a_vCard.GetProperties() )
        Add( *property );
}

void AddElement( const QString& a_element )
{
    Add( a_element );
}

template <typename T>
void AddElement( const T* a_element )
{
    const std::unique_ptr<const T> owner( a_element );
    Add( *owner );
}

template <typename T>
void Add( std::unique_ptr<T> a_result )
{
    if ( a_result == nullptr )
        Transcript::Add( QLatin1String( "null" ) );
    else
        Add( *a_result );
}

template <typename T>
void Add( std::unique_ptr<QList<T>> a_result )
{
    if ( a_result == nullptr )
    {
        Transcript::Add( QLatin1String( "null" ) );
        return;
    }
    Transcript::Add( QLatin1String( "elements" ), Number( a_result->size() ) );
    for ( const T& element : std::as_const( *a_result ) )
        AddElement( element );
}

template <typename T>
void AddOwned( T* a_result )
{
    Add( std::unique_ptr<T>( a_result ) );
}

/// A parser and the last property that it returned.
class ParserSession
{
public:
    explicit ParserSession( const QByteArray& a_text ) :
        m_parser( a_text )
    {
    }

    void AddState() const
    {
        const PimVCardParserInspector inspector( m_parser );
        AddScanner( inspector.Lexer(), true );
        Transcript::Add( QLatin1String( "quoted-printable" ), YesOrNo( inspector.IsQuotedPrintable() ) );
        Transcript::Add( QLatin1String( "base64" ), YesOrNo( inspector.IsBase64() ) );
        Transcript::Add( QLatin1String( "error mark" ), Number( inspector.ErrorReported() ) );
    }

    void AddData() const
    {
        Transcript::Add( QLatin1String( "data" ), QString::fromLatin1( PimVCardParserInspector( m_parser ).Data() ) );
    }

    void Make( PimVCardParserCall a_call )
    {
        Transcript::Add( QLatin1String( "call" ), Number( static_cast<int>( a_call ) ) );
        switch ( a_call )
        {
        case PimVCardParserCall::ParseVCards:
            return AddOwned( m_parser.ParseVCards() );
        case PimVCardParserCall::ParseVCard:
            return AddOwned( m_parser.ParseVCard() );
        case PimVCardParserCall::ParseStart:
            return Add( m_parser.ParseStart() );
        case PimVCardParserCall::ParseEnd:
            return Add( m_parser.ParseEnd( m_property.get() ) );
        case PimVCardParserCall::ParseProperties:
            return AddOwned( m_parser.ParseProperties() );
        case PimVCardParserCall::ParseProperty:
            return ParseProperty();
        case PimVCardParserCall::ParseGroup:
            return ParseGroup( false );
        case PimVCardParserCall::ParseGroupOfBoundary:
            return ParseGroup( true );
        case PimVCardParserCall::ParseParameters:
            return AddOwned( m_parser.ParseParameters( false ) );
        case PimVCardParserCall::ParseParametersOfBoundary:
            return AddOwned( m_parser.ParseParameters( true ) );
        case PimVCardParserCall::ParseParameter:
            return AddOwned( m_parser.ParseParameter( false ) );
        case PimVCardParserCall::ParseParameterOfBoundary:
            return AddOwned( m_parser.ParseParameter( true ) );
        case PimVCardParserCall::ParseQuotedParamValue:
            return Add( m_parser.ParseQuotedParamValue() );
        case PimVCardParserCall::ParseValues:
            return AddOwned( m_parser.ParseValues() );
        }
    }

private:
    void ParseProperty()
    {
        m_property.reset( m_parser.ParseProperty() );
        if ( m_property == nullptr )
            Transcript::Add( QLatin1String( "null" ) );
        else
            Add( *m_property );
    }

    void ParseGroup( bool a_vCardBoundary )
    {
        bool vCardBoundary = a_vCardBoundary;
        Add( m_parser.ParseGroup( vCardBoundary ) );
        Add( vCardBoundary );
    }

    PimVCardParser m_parser;
    std::unique_ptr<PimVCardProperty> m_property;
};

/// A scanner and the expressions of its script.
class ScannerSession
{
public:
    ScannerSession( PimVCardLexer& a_lexer, const PimVCardScannerScript& a_script ) :
        m_lexer( a_lexer ),
        m_watchesPosition( a_script.m_watchesPosition )
    {
        for ( const PimVCardScannerExpression& expression : a_script.m_expressions )
            m_expressions.append( QRegularExpression( expression.m_pattern, expression.m_options ) );
    }

    void AddState() const { AddScanner( m_lexer, m_watchesPosition ); }

    void Take( const PimVCardScannerStep& a_step )
    {
        Transcript::Add( QLatin1String( "step" ), Number( static_cast<int>( a_step.m_call ) ) );
        QRegularExpression& expression = m_expressions[a_step.m_expression];
        switch ( a_step.m_call )
        {
        case PimVCardScannerCall::Run:
            return GetToken( expression, false, a_step.m_argument != 0 );
        case PimVCardScannerCall::Single:
            return GetToken( expression, true, a_step.m_argument != 0 );
        case PimVCardScannerCall::Seek:
            return Add( m_lexer.SeekToPattern( expression ) );
        case PimVCardScannerCall::Status:
            return m_lexer.PrintStatus( a_step.m_argument != 0 ? nullptr : &expression );
        case PimVCardScannerCall::Change:
            return expression.setPattern( m_expressions.at( a_step.m_argument ).pattern() );
        default:
            TakeFromStream( a_step );
        }
    }

private:
    void GetToken( const QRegularExpression& a_expression, bool a_single, bool a_isCopied )
    {
        if ( a_isCopied )
            Add( m_lexer.GetToken( QRegularExpression( a_expression ), a_single ) );
        else
            Add( m_lexer.GetToken( a_expression, a_single ) );
    }

    void TakeFromStream( const PimVCardScannerStep& a_step )
    {
        switch ( a_step.m_call )
        {
        case PimVCardScannerCall::ReadLine:
            return Add( m_lexer.m_stream.readLine() );
        case PimVCardScannerCall::Position:
            return Transcript::Add( QLatin1String( "position" ), Number( m_lexer.m_stream.pos() ) );
        case PimVCardScannerCall::GoTo:
            return Add( m_lexer.m_stream.seek( a_step.m_argument ) );
        case PimVCardScannerCall::SetLookAhead:
            m_lexer.m_nextChar = QChar( a_step.m_argument );
            return;
        default:
            m_lexer.m_stream >> m_lexer.m_nextChar;
        }
    }

    PimVCardLexer& m_lexer;
    QList<QRegularExpression> m_expressions;
    const bool m_watchesPosition;
};

void TakeSteps( PimVCardLexer& a_lexer, const PimVCardScannerScript& a_script )
{
    ScannerSession session( a_lexer, a_script );
    for ( const PimVCardScannerStep& step : a_script.m_steps )
    {
        session.Take( step );
        session.AddState();
    }
}

} // namespace

QStringList TranscriptOf( const QByteArray& a_text, const QList<PimVCardParserCall>& a_calls )
{
    const Transcript transcript;
    ParserSession session( a_text );
    session.AddData();
    for ( const PimVCardParserCall call : a_calls )
    {
        session.Make( call );
        session.AddState();
    }
    return Transcript::Lines();
}

QStringList TranscriptOf( const QByteArray& a_text, const PimVCardScannerScript& a_script )
{
    const Transcript transcript;
    if ( a_script.m_isOfParser )
    {
        const PimVCardParser parser( a_text );
        TakeSteps( PimVCardParserInspector( parser ).Lexer(), a_script );
        return Transcript::Lines();
    }
    PimVCardLexer lexer( &a_text );
    TakeSteps( lexer, a_script );
    return Transcript::Lines();
}

QByteArray Prepared( const QByteArray& a_text )
{
    const PimVCardParser parser( a_text );
    return PimVCardParserInspector( parser ).Data();
}

PimVCardHeldCards ParsedCards( const QByteArray& a_text )
{
    const auto deleteAll = []( const QList<PimVCard*>* a_vCards )
    {
        qDeleteAll( *a_vCards );
        delete a_vCards;
    };
    PimVCardParser parser( a_text );
    const std::shared_ptr<const QList<PimVCard*>> vCards( parser.ParseVCards(), deleteAll );
    return { static_cast<int>( vCards->size() ), vCards };
}

} // namespace PimManager::vCard
