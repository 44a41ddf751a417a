// Checks that each link between the documents leads to a file, and to a heading if it names one.

#include "DocumentFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace PimManager::vCard::Documents;

namespace
{

const QString s_kProject = QStringLiteral( PIMVCARD_PROJECT "/" );

QStringList Documents()
{
    QStringList names = QDir( s_kProject ).entryList( { QStringLiteral( "*.md" ) } );
    for ( const QString& name :
          QDir( s_kProject + QStringLiteral( "docs" ) ).entryList( { QStringLiteral( "*.md" ) } ) )
        names << QStringLiteral( "docs/" ) + name;
    return names;
}

QString WithoutExamples( QString a_document )
{
    static const QRegularExpression s_kExample( QStringLiteral( "^ *```.*?^ *```" ),
                                                QRegularExpression::MultilineOption |
                                                    QRegularExpression::DotMatchesEverythingOption );
    return a_document.remove( s_kExample );
}

QStringList AllMatches( const QString& a_text, const QString& a_expression )
{
    const QRegularExpression expression( a_expression, QRegularExpression::MultilineOption );
    QStringList matches;
    QRegularExpressionMatchIterator all = expression.globalMatch( a_text );
    while ( all.hasNext() )
        matches << all.next().captured( 1 );
    return matches;
}

// The anchors of headings on repository pages: lower case, hyphens for blanks, and a number for each repetition.
QSet<QString> AnchorsIn( const QString& a_document )
{
    static const QRegularExpression s_kOther( QStringLiteral( "[^\\w\\- ]" ),
                                              QRegularExpression::UseUnicodePropertiesOption );
    QSet<QString> anchors;
    for ( QString heading : AllMatches( WithoutExamples( a_document ), QStringLiteral( "^#{1,6} (.*)$" ) ) )
    {
        const QString anchor = heading.toLower().remove( s_kOther ).replace( QLatin1Char( ' ' ), QLatin1Char( '-' ) );
        int repetition = 0;
        QString numbered = anchor;
        while ( anchors.contains( numbered ) )
            numbered = anchor + QLatin1Char( '-' ) + QString::number( ++repetition );
        anchors.insert( numbered );
    }
    return anchors;
}

void ExpectLeads( const QString& a_document, const QString& a_link )
{
    SCOPED_TRACE( a_document.toStdString() + ": " + a_link.toStdString() );
    const QString name = a_link.section( QLatin1Char( '#' ), 0, 0 );
    const QString anchor = a_link.section( QLatin1Char( '#' ), 1 );
    const QString folder = QFileInfo( a_document ).path() + QLatin1Char( '/' );
    const QString target = name.isEmpty() ? a_document : QDir::cleanPath( folder + name );
    EXPECT_TRUE( QFileInfo::exists( s_kProject + target ) );
    if ( !anchor.isEmpty() )
    {
        EXPECT_TRUE( AnchorsIn( DocumentText( target ) ).contains( anchor ) );
    }
}

TEST( DocumentLinksTest, LinksLeadToFilesAndHeadings )
{
    int links = 0;
    for ( const QString& document : Documents() )
    {
        const QString text = WithoutExamples( DocumentText( document ) );
        for ( const QString& link : AllMatches( text, QStringLiteral( "\\]\\((?!https?:)([^)\\s]+)\\)" ) ) )
        {
            ExpectLeads( document, link );
            ++links;
        }
    }
    EXPECT_GT( links, 30 );
}

} // namespace
