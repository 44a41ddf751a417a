#include "CardTextWriter.h"

#include "CardName.h"
#include "PimVCard.h"
#include "PimVCardVocabulary.h"
#include "ShortText.h"
#include "TerminalText.h"
#include "TextPieces.h"

#include <QIODevice>
#include <QStringList>

#include <algorithm>

namespace PimManager::vCard::Tools
{

namespace
{

// A few very long property names do not push everything else off the screen.
constexpr int s_kWidestLabel = 24;
const QString s_kIndent = QStringLiteral( "    " );

QString ParameterText( const PimVCardParameter& a_parameter )
{
    if ( a_parameter.GetName().isEmpty() )
        return a_parameter.GetValue();
    return a_parameter.GetName() + s_kEquals + a_parameter.GetValue();
}

QStringList ParameterTexts( const PimVCardProperty& a_property )
{
    QStringList texts;
    const QList<PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const PimVCardParameter* parameter : parameters )
    {
        if ( parameter != nullptr )
            texts.append( ParameterText( *parameter ) );
    }
    return texts;
}

} // namespace

CardTextWriter::CardTextWriter( QIODevice& a_device, Length a_length ) :
    m_device( a_device ),
    m_isFull( a_length == Length::Full )
{
}

void CardTextWriter::Write( const PimVCard& a_card, qint64 a_number, const QString& a_source )
{
    if ( !m_isFirst )
        WritePlain( QStringLiteral( "\n" ) );
    m_isFirst = false;
    const QString name = ToTerminalText( Shortened( CardName( a_card ) ) );
    WritePlain( QString::number( a_number ) + QStringLiteral( ". " ) + name + QStringLiteral( " (" ) + a_source +
                QStringLiteral( ")\n\n" ) );
    const int width = LabelWidth( a_card );
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property != nullptr )
            WriteProperty( *property, width );
    }
}

void CardTextWriter::WriteProperty( const PimVCardProperty& a_property, int a_width )
{
    const QStringList parameters = ParameterTexts( a_property );
    const QStringList values( a_property.GetValues() );
    const bool hasValue = values.size() > 1 || !values.value( 0 ).isEmpty();
    const QString label = Label( a_property );
    WritePlain( s_kIndent + ( hasValue || !parameters.isEmpty() ? label.leftJustified( a_width ) : label ) );
    if ( !parameters.isEmpty() )
    {
        WritePlain( QStringLiteral( "  [" ) );
        WriteList( parameters, QStringLiteral( "; " ), ToTerminalText );
        WritePlain( QStringLiteral( "]" ) );
    }
    if ( hasValue )
    {
        WritePlain( parameters.isEmpty() ? QStringLiteral( "  " ) : QStringLiteral( " " ) );
        WriteList( values, s_kSemicolon, ToTerminalValue );
    }
    WritePlain( QStringLiteral( "\n" ) );
}

void CardTextWriter::WriteList( const QStringList& a_texts, const QString& a_separator,
                                QString ( *a_escape )( QStringView ) )
{
    bool isFirst = true;
    const QStringList shown = m_isFull ? a_texts : ShortenedList( a_texts );
    for ( const QString& text : shown )
    {
        if ( !isFirst )
            WritePlain( a_separator );
        isFirst = false;
        WriteEscaped( m_device, Cut( text ), a_escape );
    }
}

QString CardTextWriter::Label( const PimVCardProperty& a_property ) const
{
    const QString group = a_property.GetGroupID();
    const QString label = group.isEmpty() ? a_property.GetName() : group + s_kDot + a_property.GetName();
    return ToTerminalText( Cut( label ) );
}

int CardTextWriter::LabelWidth( const PimVCard& a_card ) const
{
    int width = 0;
    const QList<PimVCardProperty*> properties = a_card.GetProperties();
    for ( const PimVCardProperty* property : properties )
    {
        if ( property != nullptr )
            width = std::max( width, static_cast<int>( Label( *property ).size() ) );
    }
    return std::min( width, s_kWidestLabel );
}

QString CardTextWriter::Cut( const QString& a_text ) const
{
    return m_isFull ? a_text : Shortened( a_text );
}

void CardTextWriter::WritePlain( const QString& a_text )
{
    m_device.write( a_text.toUtf8() );
}

} // namespace PimManager::vCard::Tools
