// The completion for zsh, read as a text: zsh need not be there to build and test.

#include "DocumentFile.h"
#include "ProgramOptions.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

using namespace PimManager::vCard::Documents;

namespace
{

QString Completion()
{
    return DocumentText( QStringLiteral( "technology/PimManager/Tools/Completion/_pimvcard" ) );
}

QStringList OptionsNamedIn( const QString& a_text )
{
    static const QRegularExpression s_kOption( QStringLiteral( "(?:\\{(-[a-zA-Z])\\+?,|')(--[a-z-]+)=?[\\[}]" ) );
    QStringList options;
    QRegularExpressionMatchIterator matches = s_kOption.globalMatch( a_text );
    while ( matches.hasNext() )
        options += matches.next().capturedTexts().mid( 1 );
    options.removeAll( QString() );
    return options;
}

// What completes the arguments of a command: its branch, and the lists that the branch names.
QString BranchOf( const QString& a_command )
{
    const QString text = Completion();
    const auto begin = text.indexOf(
        QRegularExpression( QStringLiteral( "^ +%1\\)" ).arg( a_command ), QRegularExpression::MultilineOption ) );
    EXPECT_GE( begin, 0 ) << a_command.toStdString();
    QString branch = text.mid( begin, text.indexOf( QLatin1String( ";;" ), begin ) - begin );
    for ( const QString& list : { QStringLiteral( "common" ), QStringLiteral( "charset" ) } )
    {
        const QRegularExpression definition( QStringLiteral( "^  %1=\\(\\n(.*?)^  \\)" ).arg( list ),
                                             QRegularExpression::MultilineOption |
                                                 QRegularExpression::DotMatchesEverythingOption );
        if ( branch.contains( QLatin1Char( '$' ) + list + QLatin1Char( ' ' ) ) )
            branch += definition.match( text ).captured( 1 );
    }
    return branch;
}

TEST( ZshCompletionTest, OptionsAreThoseOfTheProgram )
{
    for ( const QString& command : ProgramCommands() )
    {
        QStringList options = OptionsNamedIn( BranchOf( command ) );
        options.sort();
        EXPECT_EQ( options.join( QLatin1Char( ' ' ) ).toStdString(),
                   ProgramOptions( command ).join( QLatin1Char( ' ' ) ).toStdString() )
            << command.toStdString();
    }
}

TEST( ZshCompletionTest, FileBeginsAsZshWantsIt )
{
    EXPECT_TRUE( Completion().startsWith( QLatin1String( "#compdef pimvcard\n" ) ) );
}

} // namespace
