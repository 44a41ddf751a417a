#include "Strict/BeginLine.h"

#include "PimVCard.h"
#include "PimVCardVocabulary.h"
#include "Strict/PlainText.h"

#include <QRegularExpression>
#include <QRegularExpressionMatch>
#include <QString>

namespace PimManager::Tools
{

using namespace vCard;

namespace
{

// The quick look that almost every line of an address book fails.
bool EndsInVCard( const QByteArray& a_line )
{
    static const QByteArray s_kWord = s_kVCard.toUtf8();
    auto end = a_line.size();
    while ( end > 0 && IsBlank( a_line.at( end - 1 ) ) )
        --end;
    const auto start = end - s_kWord.size();
    return start >= 0 && qstrnicmp( a_line.constData() + start, s_kWord.constData(), uint( s_kWord.size() ) ) == 0;
}

QRegularExpression MakeBeginLineExpression()
{
    const QString name = QStringLiteral( "[a-z0-9-]++" );
    const QString value = QStringLiteral( R"((?:%1|"[^"\\\x00-\x08\x0A-\x1F\x7F]++"))" ).arg( name );
    const QString parameter = QStringLiteral( ";[ \t]?(?:%1=%2|%1)(?:,%2)*+" ).arg( name, value );
    const QString line = QStringLiteral( R"(\A(?:[a-z0-9-]*+\.)*+%1(?:[ \t]*+|(?:%2)++):[ \t]*+%3[ \t]*+\z)" )
                             .arg( s_kBegin, parameter, s_kVCard );
    return QRegularExpression( line, QRegularExpression::CaseInsensitiveOption );
}

} // namespace

bool IsBeginLine( const QByteArray& a_line )
{
    static const QRegularExpression s_kExpression = MakeBeginLineExpression();
    return EndsInVCard( a_line ) && s_kExpression.match( QString::fromUtf8( a_line ) ).hasMatch();
}

bool IsBeginLine( const PimVCardProperty& a_property )
{
    const QList<QString> values = a_property.GetValues();
    return IsSameWord( a_property.GetName(), s_kBegin ) && values.size() == 1 &&
           IsSameWord( values.first().trimmed(), s_kVCard );
}

} // namespace PimManager::Tools
