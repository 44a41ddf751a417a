#include "OperationOutcome.h"

#include "TextOrigin.h"

#include "PimVCardParserInspector.h"

#include <memory>

namespace PimManager::vCard::Fuzz
{

namespace
{

using Call = PimVCardParserCall;

/// One parser, one call, and the outcome of the call.
class Trial
{
public:
    explicit Trial( const QByteArray& a_text, Call a_call ) :
        m_parser( a_text )
    {
        m_outcome.m_call = a_call;
        m_outcome.m_prepared = PimVCardParserInspector( m_parser ).Data();
    }

    void Make()
    {
        switch ( m_outcome.m_call )
        {
        case Call::ParseVCards:
            return TakeList( m_parser.ParseVCards() );
        case Call::ParseVCard:
            return Take( m_parser.ParseVCard() );
        case Call::ParseStart:
            m_outcome.m_success = m_parser.ParseStart();
            return;
        case Call::ParseEnd:
            return ParseEnd();
        case Call::ParseProperties:
            return TakeList( m_parser.ParseProperties() );
        case Call::ParseProperty:
            return Take( m_parser.ParseProperty() );
        case Call::ParseGroup:
            return ParseGroup( false );
        case Call::ParseGroupOfBoundary:
            return ParseGroup( true );
        default:
            MakeBehindName();
        }
    }

    OperationOutcome Outcome()
    {
        const PimVCardParserInspector inspector( m_parser );
        m_outcome.m_preparedAfter = inspector.Data();
        m_outcome.m_isMarked = IsMarked();
        m_outcome.m_hasEncoding = inspector.IsQuotedPrintable() || inspector.IsBase64();
        m_outcome.m_isAtEnd = inspector.Lexer().m_stream.atEnd();
        return m_outcome;
    }

private:
    void MakeBehindName()
    {
        switch ( m_outcome.m_call )
        {
        case Call::ParseParameters:
            return TakeList( m_parser.ParseParameters( false ) );
        case Call::ParseParametersOfBoundary:
            return TakeList( m_parser.ParseParameters( true ) );
        case Call::ParseParameter:
            return ParseParameter( false );
        case Call::ParseParameterOfBoundary:
            return ParseParameter( true );
        case Call::ParseQuotedParamValue:
            return ParseQuotedParamValue();
        default:
            ParseValues();
        }
    }

    bool IsMarked() const { return PimVCardParserInspector( m_parser ).ErrorReported() != 0; }

    template <typename T>
    void Take( T* a_result )
    {
        const std::unique_ptr<T> result( a_result );
        m_outcome.m_success = result != nullptr;
        if ( result != nullptr )
            m_outcome.m_result.Visit( result.get() );
    }

    template <typename T>
    void TakeList( QList<T*>* a_result )
    {
        const std::unique_ptr<QList<T*>> result( a_result );
        m_outcome.m_success = result != nullptr;
        if ( result == nullptr )
            return;
        m_outcome.m_result.VisitAll( *result );
        qDeleteAll( *result );
    }

    void ParseEnd()
    {
        const std::unique_ptr<PimVCardProperty> property( m_parser.ParseProperty() );
        m_outcome.m_success = m_parser.ParseEnd( property.get() );
    }

    void ParseGroup( bool a_vCardBoundary )
    {
        bool vCardBoundary = a_vCardBoundary;
        const QString group = m_parser.ParseGroup( vCardBoundary );
        m_outcome.m_result.VisitGroup( group );
        if ( !group.isEmpty() )
            m_outcome.m_success = true;
    }

    void ParseParameter( bool a_vCardBoundary )
    {
        const std::unique_ptr<PimVCardParameter> parameter( m_parser.ParseParameter( a_vCardBoundary ) );
        // A quoted text that fails leaves its opening quote in the parameter, which is marked as failed.
        if ( parameter != nullptr && !IsMarked() )
            m_outcome.m_result.Visit( parameter.get() );
    }

    void ParseQuotedParamValue()
    {
        const QString text = m_parser.ParseQuotedParamValue();
        m_outcome.m_success = !text.isEmpty();
        if ( !text.isEmpty() )
            m_outcome.m_result.VisitQuotedRest( text );
    }

    void ParseValues()
    {
        const std::unique_ptr<QList<QString>> values( m_parser.ParseValues() );
        m_outcome.m_success = values != nullptr;
        if ( values != nullptr )
            m_outcome.m_result.VisitValues( *values );
    }

    PimVCardParser m_parser;
    OperationOutcome m_outcome;
};

bool ParsesWholeLines( Call a_call )
{
    return a_call == Call::ParseVCard || a_call == Call::ParseStart || a_call == Call::ParseEnd ||
           a_call == Call::ParseProperties || a_call == Call::ParseProperty || a_call == Call::ParseValues;
}

Violation CheckState( const OperationOutcome& a_outcome )
{
    if ( a_outcome.m_preparedAfter != a_outcome.m_prepared )
        return QStringLiteral( "parsing leaves the prepared text as it is" );
    if ( a_outcome.m_call == Call::ParseVCards )
    {
        if ( !*a_outcome.m_success )
            return QStringLiteral( "ParseVCards gives a list" );
        if ( a_outcome.m_isMarked )
            return QStringLiteral( "ParseVCards leaves no mark" );
        return a_outcome.m_isAtEnd ? Violation() : QStringLiteral( "ParseVCards reads to the end of the text" );
    }
    if ( a_outcome.m_success == a_outcome.m_isMarked )
        return QStringLiteral( "a failure is marked, and nothing else is" );
    if ( ParsesWholeLines( a_outcome.m_call ) && !a_outcome.m_isMarked && a_outcome.m_hasEncoding )
        return QStringLiteral( "a parsed line leaves no encoding" );
    return Violation();
}

} // namespace

OperationOutcome TryOperation( const QByteArray& a_text, PimVCardParserCall a_call )
{
    Trial trial( a_text, a_call );
    trial.Make();
    return trial.Outcome();
}

Violation CheckOutcome( const OperationOutcome& a_outcome )
{
    Violation violation = a_outcome.m_result.FirstViolation();
    if ( violation.isEmpty() )
        violation =
            CheckOrigin( QString::fromUtf8( a_outcome.m_prepared ), a_outcome.m_result.Texts(), TextChange::Results );
    return violation.isEmpty() ? CheckState( a_outcome ) : violation;
}

} // namespace PimManager::vCard::Fuzz
