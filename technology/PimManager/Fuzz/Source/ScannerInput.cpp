#include "ScannerInput.h"

#include "PimVCardReferenceTexts.h"

#include <array>

namespace PimManager::vCard::Fuzz
{

namespace
{

constexpr int s_kCalls = static_cast<int>( PimVCardScannerCall::SetLookAhead ) + 1;
constexpr int s_kMostSteps = 16;
constexpr std::array<ushort, 12> s_kLookAheads = { 0,    'B',  'a',  ';',    '\\',   '\r',
                                                   '\n', 0x85, 0xE9, 0xD83D, 0xDE00, 0xFEFF };

class ScriptReader
{
public:
    explicit ScriptReader( const QByteArray& a_input ) :
        m_input( a_input )
    {
    }

    ScannerInput Read()
    {
        const int head = NextByte();
        m_script.m_isOfParser = ( head & 1 ) != 0;
        m_script.m_watchesPosition = ( head & 2 ) != 0;
        for ( int steps = head / 4 % s_kMostSteps; steps >= 0 && m_place < m_input.size(); --steps )
            ReadStep();
        const QByteArray text = QByteArray::fromRawData( m_input.constData() + m_place, m_input.size() - m_place );
        PutPlacesInto( m_script.m_isOfParser ? vCard::Prepared( text ) : text );
        return { m_script, text };
    }

private:
    int NextByte() { return m_place < m_input.size() ? static_cast<uchar>( m_input.at( m_place++ ) - '0' ) : 0; }

    void ReadStep()
    {
        PimVCardScannerStep step = { static_cast<PimVCardScannerCall>( NextByte() % s_kCalls ) };
        step.m_expression = Expression( NextByte() );
        const int argument = NextByte();
        switch ( step.m_call )
        {
        case PimVCardScannerCall::GoTo:
            step.m_argument = argument;
            break;
        case PimVCardScannerCall::Change:
            step.m_argument = Expression( argument );
            break;
        case PimVCardScannerCall::SetLookAhead:
            step.m_argument = s_kLookAheads[static_cast<size_t>( argument ) % s_kLookAheads.size()];
            break;
        default:
            step.m_argument = argument % 2;
        }
        m_script.m_steps.append( step );
    }

    int Expression( int a_number )
    {
        static const QList<PimVCardScannerExpression> s_expressions = ScannerExpressions();
        const int number = a_number % static_cast<int>( s_expressions.size() );
        int place = static_cast<int>( m_numbers.indexOf( number ) );
        if ( place < 0 )
        {
            place = static_cast<int>( m_numbers.size() );
            m_numbers.append( number );
            m_script.m_expressions.append( s_expressions.at( number ) );
        }
        return place;
    }

    void PutPlacesInto( const QByteArray& a_text )
    {
        for ( PimVCardScannerStep& step : m_script.m_steps )
        {
            if ( step.m_call == PimVCardScannerCall::GoTo )
                step.m_argument %= static_cast<int>( a_text.size() ) + 1;
        }
    }

    const QByteArray& m_input;
    int m_place = 0;
    PimVCardScannerScript m_script;
    QList<int> m_numbers;
};

} // namespace

ScannerInput ReadScannerInput( const QByteArray& a_input )
{
    return ScriptReader( a_input ).Read();
}

} // namespace PimManager::vCard::Fuzz
