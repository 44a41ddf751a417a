#include "PimVCardContentLine.h"

#include "PimVCardBytes.h"
#include "PimVCardCleanLines.h"
#include "PimVCardLineHead.h"
#include "PimVCardUtf8.h"

#include <QByteArray>

#include <algorithm>
#include <memory>

namespace PimManager::vCardImport
{

namespace
{

using Code = PimVCardDiagnosticCode;
using Findings = std::vector<PimVCardContentLine::Finding>;

int PlaceIn( std::string_view a_line, std::string_view a_part )
{
    return static_cast<int>( a_part.data() - a_line.data() );
}

// What may stand between quotes, and is delivered as it is.
bool IsQuotable( std::string_view a_text )
{
    const auto isBad = []( char a_byte ) { return a_byte == '"' || a_byte == '\\' || IsControlByte( a_byte ); };
    return !a_text.empty() && std::none_of( a_text.begin(), a_text.end(), isBad ) &&
           a_text.find( "\xEF\xBB\xBF" ) == std::string_view::npos;
}

enum class ElementKind
{
    Clean,
    ToQuote,
    Odd,
};

ElementKind KindOf( std::string_view a_element )
{
    if ( IsName( a_element ) )
        return ElementKind::Clean;
    const std::string_view inner = Unquoted( a_element );
    if ( inner.size() != a_element.size() )
        return IsQuotable( inner ) ? ElementKind::Clean : ElementKind::Odd;
    return IsQuotable( a_element ) ? ElementKind::ToQuote : ElementKind::Odd;
}

/// Reads the parameters of one line.
class ParameterReader
{
public:
    ParameterReader( std::string_view a_line, Findings& a_findings ) :
        m_line( a_line ),
        m_findings( a_findings )
    {
    }

    void Read( const PimVCardLineHead::Parameter& a_parameter, std::vector<PimVCardContentLine::Parameter>& a_to )
    {
        if ( Trimmed( a_parameter.m_text ).empty() )
        {
            Add( Code::EmptyParameter, a_parameter.m_text );
            return;
        }
        const QString value = ReadValue( a_parameter );
        if ( a_parameter.IsBare() && value.isEmpty() )
        {
            Add( Code::EmptyParameter, a_parameter.m_text );
            return;
        }
        if ( m_isMended )
            Add( Code::ParameterQuoted, a_parameter.m_text );
        if ( m_isOdd )
            Add( Code::OddParameter, a_parameter.m_text );
        else if ( !m_isMended && HasBlanks( a_parameter ) )
            Add( Code::NameBlanks, a_parameter.m_text );
        a_to.push_back( { TextOfUtf8( a_parameter.m_name ), value } );
    }

private:
    // One blank behind the semicolon is part of the grammar.
    static bool HasBlanks( const PimVCardLineHead::Parameter& a_parameter )
    {
        std::string_view text = a_parameter.m_text;
        if ( IsBlank( text.front() ) )
            text.remove_prefix( 1 );
        const size_t length = a_parameter.m_value.size() + ( a_parameter.IsBare() ? 0 : a_parameter.m_name.size() + 1 );
        return text.size() != length;
    }

    // Where one element is odd, the others are kept as they are.
    QString ReadValue( const PimVCardLineHead::Parameter& a_parameter )
    {
        std::vector<std::string_view> elements = ElementsOf( a_parameter.m_value );
        m_isMended = Trimmed( a_parameter.m_text ) != WithoutOpenQuotes( Trimmed( a_parameter.m_text ) );
        for ( std::string_view& element : elements )
        {
            const std::string_view text = WithoutOpenQuotes( element );
            m_isMended = m_isMended || text != element;
            element = text;
        }
        const bool isFirstOdd = !IsName( a_parameter.IsBare() ? elements.front() : a_parameter.m_name );
        m_isOdd = isFirstOdd ||
                  std::any_of( elements.begin(), elements.end(),
                               []( std::string_view a_element ) { return KindOf( a_element ) == ElementKind::Odd; } );
        QStringList texts;
        for ( const std::string_view element : elements )
            texts.append( ReadElement( element ) );
        return texts.join( QLatin1Char( ',' ) );
    }

    QString ReadElement( std::string_view a_element )
    {
        QString text = TextOfUtf8( a_element );
        if ( m_isOdd || KindOf( a_element ) == ElementKind::Clean )
            return text;
        m_isMended = true;
        return QLatin1Char( '"' ) + text + QLatin1Char( '"' );
    }

    void Add( Code a_code, std::string_view a_part )
    {
        m_findings.push_back( { a_code, PlaceIn( m_line, a_part ), 1 } );
    }

    std::string_view m_line;
    Findings& m_findings;
    bool m_isOdd = false;
    bool m_isMended = false;
};

/// Splits a value at its semicolons and takes the escapes away.
class ValueReader
{
public:
    explicit ValueReader( std::string_view a_value ) :
        m_value( a_value )
    {
    }

    QStringList Read()
    {
        size_t copied = 0;
        size_t place = 0;
        while ( place < m_value.size() )
        {
            const char byte = m_value[place];
            if ( byte != '\\' && byte != ';' )
            {
                ++place;
                continue;
            }
            Append( m_text, m_value.substr( copied, place - copied ) );
            if ( byte == ';' )
                EndValue();
            place += byte == ';' ? 1 : ReadEscape( place );
            copied = place;
        }
        Append( m_text, m_value.substr( copied ) );
        EndValue();
        return m_values;
    }

    int UnknownEscapes() const { return m_unknownEscapes; }
    size_t FirstUnknownEscape() const { return m_firstUnknownEscape; }

private:
    void EndValue()
    {
        m_values.append( TextOfUtf8( ViewOf( m_text ) ) );
        m_text.resize( 0 );
    }

    size_t ReadEscape( size_t a_place )
    {
        const char next = a_place + 1 < m_value.size() ? m_value[a_place + 1] : '\0';
        switch ( next )
        {
        case '\\':
        case ',':
        case ';':
        case ':':
            m_text += next;
            return 2;
        case 'n':
        case 'N':
            m_text += '\n';
            return 2;
        default:
            if ( m_unknownEscapes++ == 0 )
                m_firstUnknownEscape = a_place;
            m_text += '\\';
            return 1;
        }
    }

    std::string_view m_value;
    QByteArray m_text;
    QStringList m_values;
    int m_unknownEscapes = 0;
    size_t m_firstUnknownEscape = 0;
};

bool IsLineBreakToComponent( QChar a_character )
{
    const ushort code = a_character.unicode();
    return code == '\n' || code == 0x85 || code == QChar::LineSeparator || code == QChar::ParagraphSeparator;
}

// The component would take blanks behind a line break for a fold, and an encoded line break before one for a soft one.
bool KeepsLineBreaks( const QString& a_value )
{
    for ( int i = 0; i < a_value.size(); ++i )
    {
        if ( !IsLineBreakToComponent( a_value.at( i ) ) )
            continue;
        const QChar next = i + 1 < a_value.size() ? a_value.at( i + 1 ) : QChar();
        if ( next == QLatin1Char( ' ' ) || next == QLatin1Char( '\t' ) ||
             ( i > 0 && a_value.at( i - 1 ) == QLatin1Char( '=' ) ) )
            return false;
    }
    return true;
}

bool CanCarryValue( const QString& a_value )
{
    const bool beginsEscaped = a_value.startsWith( QLatin1Char( '\\' ) ) || a_value.startsWith( QLatin1Char( ';' ) );
    const auto isBad = []( QChar a_character )
    {
        const ushort code = a_character.unicode();
        return ( code < 0x20 && code != '\n' && code != '\t' ) || code == 0x7F || code == QChar::ByteOrderMark;
    };
    return !beginsEscaped && std::none_of( a_value.begin(), a_value.end(), isBad ) && KeepsLineBreaks( a_value );
}

QString Escaped( QString a_value )
{
    a_value.replace( QLatin1Char( '\\' ), QLatin1String( "\\\\" ) );
    return a_value.replace( QLatin1Char( ';' ), QLatin1String( "\\;" ) );
}

bool IsBase64Text( const QString& a_value )
{
    return std::all_of( a_value.begin(), a_value.end(),
                        []( QChar a_character )
                        { return a_character.unicode() < 0x80 && IsBase64Byte( a_character.toLatin1() ); } );
}

QByteArray Without( std::string_view a_text, std::string_view a_bytes )
{
    QByteArray text;
    text.reserve( static_cast<int>( a_text.size() ) );
    for ( const char byte : a_text )
    {
        if ( a_bytes.find( byte ) == std::string_view::npos )
            text += byte;
    }
    return text;
}

// BASE64 knows no blanks, and no escapes. False if something else is in it.
bool ReadBase64( std::string_view a_value, QStringList& a_values )
{
    QStringList values;
    const QList<QByteArray> parts = Without( a_value, " \t\n\\" ).split( ';' );
    for ( const QByteArray& part : parts )
    {
        if ( !part.isEmpty() && !IsBase64( ViewOf( part ) ) )
            return false;
        values.append( QString::fromLatin1( part ) );
    }
    a_values = values;
    return true;
}

} // namespace

PimVCardContentLine PimVCardContentLine::Of( std::string_view a_line, std::string_view a_nested, Findings& a_findings )
{
    const PimVCardLineHead head = PimVCardLineHead::Of( a_line );
    PimVCardContentLine line;
    const QByteArray groups = Without( head.Groups(), " \t" );
    line.m_group = TextOfUtf8( ViewOf( groups ) ).chopped( groups.isEmpty() ? 0 : 1 );
    line.m_name = TextOfUtf8( head.Name() );
    if ( !IsName( head.Name() ) || !IsPlainGroup( head.Groups() ) || IsSameWord( head.Name(), "BEGIN" ) ||
         IsSameWord( head.Name(), "END" ) )
        a_findings.push_back( { Code::OddName, 0, 1 } );
    if ( static_cast<size_t>( groups.size() ) + head.Name().size() != head.m_fullName.size() )
        a_findings.push_back( { Code::NameBlanks, 0, 1 } );
    ParameterReader parameters( a_line, a_findings );
    for ( const PimVCardLineHead::Parameter& parameter : head.m_parameters )
        parameters.Read( parameter, line.m_parameters );
    if ( head.HasTwoEncodings() )
        a_findings.push_back( { Code::OddParameter, 0, 1 } );
    if ( !head.m_hasColon )
        a_findings.push_back( { Code::MissingColon, 0, 1 } );

    if ( !a_nested.empty() )
    {
        line.m_values.append( TextOfUtf8( a_nested ) );
        return line;
    }
    const bool isBase64 = head.Encoding() == PimVCardEncoding::Base64 && head.IsEncodingNamed();
    if ( isBase64 && ReadBase64( head.m_value, line.m_values ) )
    {
        if ( BytesOf( head.m_value ) != line.m_values.join( QLatin1Char( ';' ) ).toLatin1() )
            a_findings.push_back( { Code::Base64Lines, PlaceIn( a_line, head.m_value ), 1 } );
        return line;
    }
    ValueReader values( head.m_value );
    line.m_values = values.Read();
    if ( values.UnknownEscapes() > 0 )
        a_findings.push_back( { Code::UnknownEscape,
                                PlaceIn( a_line, head.m_value ) + static_cast<int>( values.FirstUnknownEscape() ),
                                values.UnknownEscapes() } );
    return line;
}

QByteArray PimVCardContentLine::CarriedText() const
{
    QString text = m_group.isEmpty() ? m_name : m_group + QLatin1Char( '.' ) + m_name;
    for ( const Parameter& parameter : m_parameters )
    {
        text += QLatin1Char( ';' ) + parameter.m_name;
        text += parameter.m_name.isEmpty() ? parameter.m_value : QLatin1Char( '=' ) + parameter.m_value;
    }
    // The left side, with a value that is surely read.
    const QByteArray head = text.toUtf8() + ':';
    const PimVCardLineHead parts = PimVCardLineHead::Of( ViewOf( head ) );
    if ( parts.HasTwoEncodings() || !parts.m_value.empty() || !PimVCardCleanLines::IsCleanLine( ViewOf( head ) ) )
        return QByteArray();
    if ( !std::all_of( m_values.begin(), m_values.end(), CanCarryValue ) )
        return QByteArray();
    const PimVCardEncoding encoding = parts.Encoding();
    if ( encoding == PimVCardEncoding::Base64 && parts.IsEncodingNamed() &&
         !std::all_of( m_values.begin(), m_values.end(), IsBase64Text ) )
        return QByteArray();
    if ( encoding == PimVCardEncoding::QuotedPrintable && m_values.last().endsWith( QLatin1Char( '=' ) ) )
        return QByteArray();
    // The component would take it for a soft line break.
    if ( m_values.last().endsWith( QLatin1String( "=0D=0A=" ) ) )
        return QByteArray();
    QStringList values;
    for ( const QString& value : m_values )
        values.append( Escaped( value ) );
    return head + values.join( QLatin1Char( ';' ) ).toUtf8() + "\r\n";
}

vCard::PimVCardProperty* PimVCardContentLine::NewProperty() const
{
    auto parameters = std::make_unique<QList<vCard::PimVCardParameter*>>();
    for ( const Parameter& parameter : m_parameters )
        parameters->append( new vCard::PimVCardParameter( parameter.m_name, parameter.m_value ) );
    auto values = std::make_unique<QList<QString>>( m_values );
    return new vCard::PimVCardProperty( m_group, m_name, parameters.release(), values.release() );
}

QByteArray PimVCardContentLine::StandIn()
{
    return QByteArrayLiteral( "X-STAND-IN:\r\n" );
}

} // namespace PimManager::vCardImport
