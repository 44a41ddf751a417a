#include "Outputs/ChangedLines.h"

#include <PimManager/Contacts/PimContactLine.h>

#include <QHash>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QByteArray KeyOf( const PimContactLine& a_line )
{
    return a_line.Name().toUpper() + ';' + a_line.Parameters().join( ';' ).toUpper() + ':' + a_line.Text().toUtf8();
}

QList<int> LinesWithout( const PimContactCard& a_card, const PimContactCard& a_other )
{
    QHash<QByteArray, int> counts;
    for ( const PimContactLine& line : a_other )
        ++counts[KeyOf( line )];
    QList<int> ids;
    int id = 0;
    for ( const PimContactLine& line : a_card )
    {
        ++id;
        if ( --counts[KeyOf( line )] < 0 )
            ids << id;
    }
    return ids;
}

} // namespace

ChangedContact ChangedContactOf( const PimContactCard& a_old, const PimContactCard& a_new )
{
    return { a_old, a_new, LinesWithout( a_old, a_new ), LinesWithout( a_new, a_old ) };
}

} // namespace PimManager::Tools
