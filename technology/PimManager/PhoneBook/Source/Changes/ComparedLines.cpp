#include "Changes/ComparedLines.h"

#include <algorithm>

namespace PimManager::PhoneBook
{

using Contacts::PimContactBinary;
using Contacts::PimContactCard;
using Contacts::PimContactLine;

namespace
{

using Parameter = QPair<QString, QString>;

bool IsNamedOneOf( const PimContactLine& a_line, const QList<QLatin1String>& a_names )
{
    return std::any_of( a_names.begin(), a_names.end(),
                        [&a_line]( QLatin1String a_name ) { return a_line.IsNamed( a_name ); } );
}

bool IsAboutWriting( const Parameter& a_parameter )
{
    return a_parameter.first == QLatin1String( "ENCODING" ) || a_parameter.first == QLatin1String( "CHARSET" );
}

QString ParametersOf( const PimContactLine& a_line )
{
    QStringList texts;
    for ( const Parameter& parameter : a_line.NamedParameters() )
    {
        if ( !IsAboutWriting( parameter ) )
            texts.append( parameter.first + QLatin1Char( '=' ) + parameter.second.toLower() );
    }
    texts.sort();
    return texts.join( QLatin1Char( ';' ) );
}

// All of them: other functions stop at a null byte.
QString CharactersOf( const QByteArray& a_bytes )
{
    return QString::fromLatin1( a_bytes.constData(), a_bytes.size() );
}

QString ValueOf( const PimContactLine& a_line )
{
    const PimContactCard nested = a_line.NestedCard();
    if ( !nested.IsNull() )
        return CharactersOf( nested.Bytes() );
    const PimContactBinary binary = a_line.Binary();
    return binary.IsNull() ? a_line.Text() : CharactersOf( binary.Bytes() );
}

bool IsOfText( QChar a_character )
{
    return !a_character.isSpace() && a_character != QLatin1Char( ';' ) && a_character != QLatin1Char( ',' );
}

bool IsEmpty( const QString& a_value )
{
    return std::none_of( a_value.begin(), a_value.end(), IsOfText );
}

bool IsMinor( const PimContactLine& a_line, const QString& a_value )
{
    return a_line.IsNamed( QLatin1String( "VERSION" ) ) || IsEmpty( a_value );
}

} // namespace

ComparedLines::ComparedLines( const PimContactCard& a_card, const QList<QLatin1String>& a_except, bool a_doAllCount ) :
    m_contact( a_card )
{
    const QList<int> ids = m_contact.LineIds();
    int next = 0;
    for ( const PimContactLine& line : a_card )
    {
        const int id = ids.at( next++ );
        const QString value = ValueOf( line );
        if ( IsNamedOneOf( line, a_except ) || ( !a_doAllCount && IsMinor( line, value ) ) )
            continue;
        const QString name = QString::fromLatin1( line.Name().toUpper() );
        m_places.insert( id, Size() );
        m_lines.push_back(
            { line, id, name + QLatin1Char( ';' ) + ParametersOf( line ) + QLatin1Char( ':' ) + value } );
    }
}

int ComparedLines::PlaceOf( int a_id ) const
{
    const int place = m_places.value( a_id, -1 );
    return place >= 0 && At( place ).m_partner < 0 ? place : -1;
}

QList<PimContactLine> ComparedLines::Alone() const
{
    QList<PimContactLine> lines;
    for ( const ComparedLine& line : m_lines )
    {
        if ( line.m_partner < 0 )
            lines.append( line.m_line );
    }
    return lines;
}

QList<PimContactLine> ComparedLines::All() const
{
    QList<PimContactLine> lines;
    for ( const ComparedLine& line : m_lines )
        lines.append( line.m_line );
    return lines;
}

QList<PimContactLine> ComparedLines::LinesAt( const QVector<int>& a_places ) const
{
    QList<PimContactLine> lines;
    for ( const int place : a_places )
        lines.append( At( place ).m_line );
    return lines;
}

} // namespace PimManager::PhoneBook
