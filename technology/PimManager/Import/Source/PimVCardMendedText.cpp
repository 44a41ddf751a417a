#include "PimVCardDecoding.h"
#include "PimVCardImporter.h"

#include <QString>
#include <QStringList>

namespace PimManager::vCardImport
{

namespace
{

QString Escaped( QString a_value )
{
    a_value.replace( QLatin1Char( '\\' ), QLatin1String( "\\\\" ) );
    a_value.replace( QLatin1Char( ';' ), QLatin1String( "\\;" ) );
    return a_value.replace( QLatin1Char( '\n' ), QLatin1String( "\\n" ) );
}

QString TextOfLine( const vCard::PimVCardProperty& a_property )
{
    QString line;
    if ( !a_property.GetGroupID().isEmpty() )
        line = a_property.GetGroupID() + QLatin1Char( '.' );
    line += a_property.GetName();
    const QList<vCard::PimVCardParameter*> parameters = a_property.GetParameters();
    for ( const vCard::PimVCardParameter* parameter : parameters )
    {
        line += QLatin1Char( ';' );
        if ( !parameter->GetName().isEmpty() )
            line += parameter->GetName() + QLatin1Char( '=' );
        line += parameter->GetValue();
    }
    QStringList values;
    const QList<QString> originals = a_property.GetValues();
    for ( const QString& value : originals )
        values.append( Escaped( value ) );
    return line + QLatin1Char( ':' ) + values.join( QLatin1Char( ';' ) ) + QLatin1String( "\r\n" );
}

} // namespace

QByteArray MendedTextOf( const vCard::PimVCard& a_card )
{
    QByteArray text = QByteArrayLiteral( "BEGIN:VCARD\r\n" );
    const QList<vCard::PimVCardProperty*> properties = a_card.GetProperties();
    for ( const vCard::PimVCardProperty* property : properties )
        text += TextOfLine( *property ).toUtf8();
    return text + QByteArrayLiteral( "END:VCARD\r\n" );
}

} // namespace PimManager::vCardImport
