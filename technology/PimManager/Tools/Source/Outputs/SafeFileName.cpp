#include "Outputs/SafeFileName.h"

#include "Terminal/CodePoints.h"

namespace PimManager::Tools
{

namespace
{

constexpr int s_kLongest = 100;
// More can only be cut away; a mark or two belongs to most letters of some scripts.
constexpr int s_kExamined = 1000;

bool IsSafe( uint a_codePoint )
{
    return QChar::isLetterOrNumber( a_codePoint ) || QChar::isMark( a_codePoint );
}

} // namespace

QByteArray ToSafeFileName( const QString& a_text )
{
    QByteArray name;
    bool isApart = false;
    ForEachCodePoint( QStringView( a_text ).left( s_kExamined ),
                      [&name, &isApart]( uint a_codePoint, QStringView a_units )
                      {
                          const QByteArray bytes = a_units.toUtf8();
                          if ( !IsSafe( a_codePoint ) || name.size() + bytes.size() >= s_kLongest )
                          {
                              isApart = !name.isEmpty();
                              return;
                          }
                          name += ( isApart ? QByteArray( "-" ) : QByteArray() ) + bytes;
                          isApart = false;
                      } );
    return name.isEmpty() ? QByteArrayLiteral( "contact" ) : name;
}

} // namespace PimManager::Tools
