#include "Terminal/Wording.h"

#include "Terminal/TerminalText.h"

namespace PimManager::Tools
{

QString Counted( qint64 a_count, const QString& a_one, const QString& a_many )
{
    return QString::number( a_count ) + QLatin1Char( ' ' ) + ( a_count == 1 ? a_one : a_many );
}

QString ShownName( const Contacts::PimContact& a_contact )
{
    const QString name = a_contact.DisplayName();
    return name.isEmpty() ? QStringLiteral( "(no name)" ) : name;
}

QString SourceName( const QByteArray& a_fileName )
{
    return a_fileName == "-" ? QStringLiteral( "standard input" ) : ToShownFileName( a_fileName );
}

} // namespace PimManager::Tools
