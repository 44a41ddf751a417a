// The completion for bash, run by bash as its line editor runs it.

#include "ProgramOptions.h"
#include "ShellRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>
#include <vector>

using namespace PimManager::vCard::Documents;

namespace
{

const char* const s_kComplete = "source \"" PIMVCARD_PROJECT "/technology/PimManager/Tools/Completion/pimvcard.bash\"\n"
                                "COMP_WORDS=(pimvcard \"$@\")\n"
                                "COMP_CWORD=$#\n"
                                "_pimvcard pimvcard \"${COMP_WORDS[COMP_CWORD]}\" \"${COMP_WORDS[COMP_CWORD - 1]}\"\n"
                                "printf '%s\\n' \"${COMPREPLY[@]}\"";

// A folder with address books and other things.
class BashCompletionTest : public testing::Test
{
protected:
    BashCompletionTest()
    {
        for ( const char* const name : { "ada.vcf", "Bo's book.VCF", "cy.vcard", "notes.txt", "ada.html" } )
        {
            QFile file( m_folder.filePath( QString::fromLatin1( name ) ) );
            EXPECT_TRUE( file.open( QIODevice::WriteOnly ) ) << name;
        }
        EXPECT_TRUE( QDir( m_folder.path() ).mkdir( QStringLiteral( "adas pictures" ) ) );
    }

    // The words that the last word of a line could become, sorted, parted by "|".
    std::string Completed( const QStringList& a_words ) const
    {
        const ShellRun run = RunInShell( QString::fromLatin1( s_kComplete ), m_folder.path(), a_words );
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_EQ( run.m_err.toStdString(), "" );
        QStringList words = run.m_out.split( QLatin1Char( '\n' ), Qt::SkipEmptyParts );
        words.sort();
        return words.join( QLatin1Char( '|' ) ).toStdString();
    }

    std::string Completed( const char* a_words ) const
    {
        return Completed( QString::fromLatin1( a_words ).split( QLatin1Char( ' ' ) ) );
    }

    QTemporaryDir m_folder;
};

TEST_F( BashCompletionTest, WordBecomesWhatFits )
{
    struct Row
    {
        const char* m_words;
        const char* m_completed;
    };
    const std::vector<Row> rows = {
        { "", "check|import|print" },
        { "i", "import" },
        { "x", "" },
        { "--v", "--version" },
        { "import --json", "--json|--json-lines" },
        { "--quiet import --h", "--help|--html" },
        { "check --j", "" },
        { "import ", "Bo's book.VCF|ada.vcf|adas pictures|cy.vcard" },
        { "check a", "ada.vcf|adas pictures" },
        { "print c", "cy.vcard" },
        { "import x.vcf a", "ada.vcf|adas pictures" },
        { "import --photos ", "adas pictures" },
        { "import --photos x", "" },
        { "import -o ada", "ada.html|ada.vcf|adas pictures" },
        { "import --rejects = n", "notes.txt" },
        { "import --charset = windows-125", "windows-1250|windows-1251|windows-1252" },
        { "check -c KO", "KOI8-R" },
        { "check --max-c", "--max-card-bytes|--max-card-lines|--max-cards" },
        { "check --max-cards ", "" },
        { "print -l c", "cy.vcard" },
    };
    for ( const Row& row : rows )
        EXPECT_EQ( Completed( row.m_words ), row.m_completed ) << row.m_words;
}

TEST_F( BashCompletionTest, EqualsSignAloneGivesEveryWord )
{
    EXPECT_EQ( Completed( "import --photos =" ), "adas pictures" );
}

TEST_F( BashCompletionTest, OptionsAreThoseOfTheProgram )
{
    for ( const QString& command : ProgramCommands() + QStringList( QString() ) )
    {
        QStringList options = ProgramOptions( command );
        std::string completed = Completed( command.isEmpty() ? QStringList( QStringLiteral( "-" ) )
                                                             : QStringList{ command, QStringLiteral( "-" ) } );
        EXPECT_EQ( completed, options.join( QLatin1Char( '|' ) ).toStdString() ) << command.toStdString();
        EXPECT_GE( options.size(), 4 );
    }
}

TEST_F( BashCompletionTest, CommandsAreThoseOfTheProgram )
{
    QStringList commands = ProgramCommands();
    commands.sort();
    EXPECT_EQ( Completed( "" ), commands.join( QLatin1Char( '|' ) ).toStdString() );
}

TEST_F( BashCompletionTest, CharacterSetsAreKnownToTheProgram )
{
    const QStringList names = QString::fromStdString( Completed( "import --charset " ) ).split( QLatin1Char( '|' ) );
    EXPECT_GT( names.size(), 5 );
    for ( const QString& name : names )
    {
        const ShellRun run =
            RunInShell( QStringLiteral( "pimvcard check --charset \"$1\" ada.vcf" ), m_folder.path(), { name } );
        EXPECT_NE( run.m_status, 2 ) << run.m_err.toStdString();
    }
}

} // namespace
