#include "Outputs/PropertyText.h"

#include "Terminal/TerminalText.h"
#include "Terminal/Wording.h"

#include <PimManager/Contacts/PimContactBinary.h>
#include <PimManager/Contacts/PimContactCard.h>

#include <QHash>
#include <QPair>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

const QString s_kType = QStringLiteral( "TYPE" );
const QString s_kPreference = QStringLiteral( "PREF" );
const QString s_kComma = QStringLiteral( ", " );
const QString s_kSemicolon = QStringLiteral( "; " );
constexpr int s_kAddressParts = 7;

/// Parameters as texts such as `X-A=1,2`, one for each name.
class ParameterTexts
{
public:
    void Add( const QString& a_name, const QString& a_value );
    bool Has( const QString& a_name ) const { return m_places.contains( a_name ); }
    const QStringList& Texts() const { return m_texts; }

private:
    QStringList m_texts;
    QHash<QString, int> m_places;
};

void ParameterTexts::Add( const QString& a_name, const QString& a_value )
{
    const auto place = m_places.constFind( a_name );
    if ( place != m_places.constEnd() )
    {
        m_texts[*place] += QLatin1Char( ',' ) + a_value;
        return;
    }
    m_places.insert( a_name, static_cast<int>( m_texts.size() ) );
    m_texts << a_name + QLatin1Char( '=' ) + a_value;
}

bool IsAboutEncoding( const QString& a_parameter )
{
    return a_parameter == QLatin1String( "ENCODING" ) || a_parameter == QLatin1String( "CHARSET" );
}

// The label of a group is the label of its other lines.
QString LabelOf( const PimContactLine& a_line, const PimContactText& a_entry )
{
    return a_line.IsNamed( QLatin1String( "X-ABLABEL" ) ) ? QString() : a_entry.Label();
}

QString NameOf( const PimContactLine& a_line, bool a_hasLabel )
{
    const QByteArray group = a_hasLabel ? QByteArray() : a_line.Group();
    return QString::fromUtf8( group.isEmpty() ? a_line.Name() : group + '.' + a_line.Name() );
}

QStringList ParametersOf( const PimContactLine& a_line, const PimContactText& a_entry, TextLength a_length )
{
    ParameterTexts texts;
    const QList<QPair<QString, QString>> parameters = a_line.NamedParameters();
    for ( const QPair<QString, QString>& parameter : parameters )
    {
        const bool isLeftOut = a_length == TextLength::Short && IsAboutEncoding( parameter.first );
        if ( !isLeftOut && parameter.first != s_kType )
            texts.Add( parameter.first, parameter.second );
    }
    // A type may be the preference as well.
    const bool isPreferredType = a_entry.Preference() && !texts.Has( s_kPreference );
    return isPreferredType ? QStringList( s_kPreference ) + texts.Texts() : texts.Texts();
}

QString RemarksOf( const PimContactLine& a_line, const PimContactText& a_entry, TextLength a_length )
{
    const QString label = LabelOf( a_line, a_entry );
    const QStringList types = a_entry.Types();
    QStringList parameters = ParametersOf( a_line, a_entry, a_length );
    if ( !label.isEmpty() && !types.isEmpty() )
        parameters.prepend( s_kType + QLatin1Char( '=' ) + types.join( QLatin1Char( ',' ) ) );
    QStringList remarks;
    if ( !label.isEmpty() || !types.isEmpty() )
        remarks << Shortened( label.isEmpty() ? types.join( s_kComma ).toLower() : label, a_length );
    if ( !parameters.isEmpty() )
        remarks << QLatin1Char( '[' ) + ShortenedList( parameters, a_length ).join( s_kSemicolon ) + QLatin1Char( ']' );
    return remarks.join( QLatin1Char( ' ' ) );
}

QStringList LinesOf( const QString& a_text, TextLength a_length )
{
    return a_text.isEmpty() ? QStringList() : ShortenedList( a_text.split( QLatin1Char( '\n' ) ), a_length );
}

// Empty parts behind the last one that is not empty are left out.
QStringList Joined( QStringList a_parts, const QString& a_delimiter, TextLength a_length )
{
    while ( !a_parts.isEmpty() && a_parts.last().isEmpty() )
        a_parts.removeLast();
    const QString text = ShortenedList( a_parts, a_length ).join( a_delimiter );
    return text.isEmpty() ? QStringList() : text.split( QLatin1Char( '\n' ) );
}

QStringList ComponentLines( const PimContactLine& a_line, const PimContactText& a_entry, TextLength a_length )
{
    const QStringList components = a_line.Components();
    const bool isAddress = a_line.IsNamed( QLatin1String( "ADR" ) ) && components.size() <= s_kAddressParts;
    return isAddress ? LinesOf( a_entry.Text(), a_length ) : Joined( components, s_kSemicolon, a_length );
}

QStringList BinaryLines( const PimContactLine& a_line, TextLength a_length )
{
    const PimContactBinary binary = a_line.Binary();
    const QByteArray detected = binary.DetectedType();
    const QString type = QString::fromUtf8( detected.isEmpty() ? binary.MediaType() : detected );
    QStringList facts;
    if ( !type.isEmpty() )
        facts << Shortened( type, a_length );
    facts << Counted( binary.Bytes().size(), QStringLiteral( "byte" ), QStringLiteral( "bytes" ) );
    if ( !binary.IsDamaged() )
        return { facts.join( s_kComma ) };
    facts << QStringLiteral( "damaged at character %1:" ).arg( binary.FaultPlace() + 1 );
    return QStringList( facts.join( s_kComma ) ) + LinesOf( a_line.Text(), a_length );
}

QStringList ValueLines( const PimContactLine& a_line, const PimContactText& a_entry, TextLength a_length )
{
    switch ( a_line.Kind() )
    {
    case PimContactValueKind::Binary:
        return BinaryLines( a_line, a_length );
    case PimContactValueKind::List:
        return Joined( a_line.List(), s_kComma, a_length );
    case PimContactValueKind::Components:
        return ComponentLines( a_line, a_entry, a_length );
    case PimContactValueKind::Text:
        break;
    }
    // The entry leaves out a part of these values.
    const bool isWhole = !a_line.IsNamed( QLatin1String( "TEL" ) ) && !a_line.IsNamed( QLatin1String( "EMAIL" ) );
    return LinesOf( isWhole ? a_entry.Text() : a_line.Text(), a_length );
}

} // namespace

PropertyText PropertyTextOf( const PimContact& a_contact, const PimContactLine& a_line, TextLength a_length,
                             const Screen& a_screen )
{
    const auto shown = [&a_screen]( const QString& a_text ) { return a_screen.Isolated( ToTerminalText( a_text ) ); };
    const PimContactText entry = a_contact.FieldOf( a_line );
    const bool hasLabel = !LabelOf( a_line, entry ).isEmpty();
    PropertyText text;
    text.m_name = shown( Shortened( NameOf( a_line, hasLabel ), a_length ) );
    text.m_remarks = shown( RemarksOf( a_line, entry, a_length ) );
    text.m_lines = ValueLines( a_line, entry, a_length );
    for ( QString& line : text.m_lines )
        line = shown( line );
    const PimContactCard nested = a_line.NestedCard();
    if ( !nested.IsNull() )
        text.m_lines << ContactHeading( PimContact( nested ), QString(), a_screen );
    return text;
}

QString ContactHeading( const PimContact& a_contact, const QString& a_source, const Screen& a_screen )
{
    QStringList remarks;
    if ( !a_source.isEmpty() )
        remarks << a_screen.Isolated( a_source );
    if ( !a_contact.Card().IsWhole() )
        remarks << QStringLiteral( "in part" );
    const QString heading = a_screen.Isolated( ToTerminalText( Shortened( ShownName( a_contact ) ) ) );
    return remarks.isEmpty() ? heading
                             : heading + QStringLiteral( " (" ) + remarks.join( s_kComma ) + QLatin1Char( ')' );
}

} // namespace PimManager::Tools
