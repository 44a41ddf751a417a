#include "PimVCardPreparation.h"

#include "PimVCardVocabulary.h"

#include <QRegularExpression>
#include <QString>

namespace PimManager::vCard
{

// Two expressions over the whole text, each written as its rule. The component's preparation is compared with them.
QByteArray PreparedText( const QByteArray& a_data )
{
    const auto nul = a_data.indexOf( '\0' );
    QString text = QString::fromUtf8( nul >= 0 ? a_data.left( nul ) : a_data );
    text.replace( QRegularExpression( s_kQpSoftBreakPattern ), s_kSpace );
    // A CR LF is one line break. If a "=" before its CR protects it, its LF does not begin a fold either.
    const QString notInsideCrlf = QStringLiteral( R"((?!(?<=\r)\n))" );
    text.replace( QRegularExpression( notInsideCrlf + s_kUnfoldPattern ), QString() );
    return text.toUtf8();
}

} // namespace PimManager::vCard
