// Tests the completion for bash, which bash runs in the same way as its line editor does.

#include "DocumentFile.h"
#include "ShellRun.h"

#include "Commands/BashCompletion.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <string>
#include <vector>

using namespace PimManager::vCard::Documents;
using namespace PimManager::Tools;

namespace
{

const char* const s_kComplete = "source \"$1\"\n"
                                "shift\n"
                                "COMP_WORDS=(pimvcard \"$@\")\n"
                                "COMP_CWORD=$#\n"
                                "_pimvcard pimvcard \"${COMP_WORDS[COMP_CWORD]}\" \"${COMP_WORDS[COMP_CWORD - 1]}\"\n"
                                "printf '%s\\n' \"${COMPREPLY[@]}\"";

OptionInfo Option( const char* a_letter, const char* a_name, const char* a_argument = "",
                   const QStringList& a_words = {} )
{
    return { QString::fromLatin1( a_letter ), QString::fromLatin1( a_name ), QString::fromLatin1( a_argument ),
             QString(), a_words };
}

CommandInfo Command( const char* a_name, const char* a_arguments, const std::vector<OptionInfo>& a_options )
{
    CommandInfo command;
    command.m_name = QString::fromLatin1( a_name );
    command.m_arguments = QString::fromLatin1( a_arguments );
    command.m_options = a_options;
    return command;
}

// A table with all kinds of options and arguments.
QByteArray ExampleCompletion()
{
    const OptionInfo charset =
        Option( "c", "charset", "NAME", { QStringLiteral( "KOI8-R" ), QStringLiteral( "Big5" ) } );
    return BashCompletion( { Command( "look", "BOOK...", { Option( "a", "all" ), charset } ),
                             Command( "make", "BOOK...",
                                      { Option( "o", "output", "FILE" ), Option( "", "into", "DIR" ),
                                        Option( "", "most", "NUMBER" ), charset } ),
                             Command( "tell", "[COMMAND]", {} ) },
                           { Option( "h", "help" ) } );
}

QStringList NamesOf( const std::vector<OptionInfo>& a_options )
{
    QStringList names;
    for ( const OptionInfo& option : a_options )
    {
        names << QStringLiteral( "--" ) + option.m_name;
        if ( !option.m_letter.isEmpty() )
            names << QLatin1Char( '-' ) + option.m_letter;
    }
    return names;
}

std::string JoinedSorted( QStringList a_words )
{
    a_words.sort();
    return a_words.join( QLatin1Char( '|' ) ).toStdString();
}

// A folder with address books and other things.
class BashCompletionTest : public testing::Test
{
protected:
    BashCompletionTest()
    {
        for ( const char* const name : { "ada.vcf", "Bo's book.VCF", "cy.vcard", "notes.txt", "ada.html", "most.txt" } )
            Write( name, QByteArray() );
        EXPECT_TRUE( QDir( m_folder.path() ).mkdir( QStringLiteral( "adas pictures" ) ) );
    }

    void Write( const char* a_name, const QByteArray& a_content ) const
    {
        QFile file( m_folder.filePath( QString::fromLatin1( a_name ) ) );
        EXPECT_TRUE( file.open( QIODevice::WriteOnly ) ) << a_name;
        EXPECT_EQ( file.write( a_content ), a_content.size() ) << a_name;
    }

    // The words that the last word of a line could become, sorted, with "|" between them.
    std::string Completed( const QByteArray& a_script, const QStringList& a_words ) const
    {
        const QTemporaryDir folder;
        QFile script( folder.filePath( QStringLiteral( "completion" ) ) );
        EXPECT_TRUE( script.open( QIODevice::WriteOnly ) );
        script.write( a_script );
        script.close();
        const ShellRun run = RunInShell( QString::fromLatin1( s_kComplete ), m_folder.path(),
                                         QStringList( script.fileName() ) + a_words );
        EXPECT_EQ( run.m_status, 0 );
        EXPECT_EQ( run.m_err.toStdString(), "" );
        return JoinedSorted( run.m_out.split( QLatin1Char( '\n' ), Qt::SkipEmptyParts ) );
    }

    std::string Completed( const QByteArray& a_script, const char* a_words ) const
    {
        return Completed( a_script, QString::fromLatin1( a_words ).split( QLatin1Char( ' ' ) ) );
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
        { "", "Bo's book.VCF|ada.vcf|adas pictures|cy.vcard|look|make|tell" },
        { "l", "look" },
        { "m", "make" },
        { "mo", "most.txt" },
        { "a", "ada.vcf|adas pictures" },
        { "x", "" },
        { "-", "--all|--charset|--help|-a|-c|-h" },
        { "--a", "--all" },
        { "make --a", "" },
        { "make -", "--charset|--help|--into|--most|--output|-c|-h|-o" },
        { "ada.vcf --", "--all|--charset|--help" },
        { "--help make --o", "--output" },
        { "--most 3 make --o", "--output" },
        { "--most = 3 make --o", "--output" },
        { "--most 3 m", "make" },
        { "look ", "Bo's book.VCF|ada.vcf|adas pictures|cy.vcard" },
        { "look n", "notes.txt" },
        { "look make", "" },
        { "make ada.vcf a", "ada.vcf|adas pictures" },
        { "ada.vcf c", "cy.vcard" },
        { "make --into ", "adas pictures" },
        { "make --into x", "" },
        { "make -o ada", "ada.html|ada.vcf|adas pictures" },
        { "make --output = n", "notes.txt" },
        { "make --output =", "Bo's book.VCF|ada.html|ada.vcf|adas pictures|cy.vcard|most.txt|notes.txt" },
        { "make --charset = K", "KOI8-R" },
        { "-c B", "Big5" },
        { "make --most ", "" },
        { "make --most = ", "" },
        { "-- m", "most.txt" },
        { "make -- -", "" },
        { "make -- -o ", "Bo's book.VCF|ada.vcf|adas pictures|cy.vcard" },
        { "tell -- l", "look" },
        { "- m", "most.txt" },
        { "tell ", "look|make|tell" },
        { "tell n", "" },
        { "tell -", "--help|-h" },
    };
    const QByteArray script = ExampleCompletion();
    for ( const Row& row : rows )
        EXPECT_EQ( Completed( script, row.m_words ), row.m_completed ) << row.m_words;
}

TEST_F( BashCompletionTest, CommandsAndOptionsAreThoseOfTheProgram )
{
    const QByteArray script = BashCompletion( Commands(), CommonOptions() );
    QStringList commands;
    for ( const CommandInfo& command : Commands() )
    {
        commands << command.m_name;
        EXPECT_EQ( Completed( script, { command.m_name, QStringLiteral( "-" ) } ),
                   JoinedSorted( NamesOf( command.m_options ) + NamesOf( CommonOptions() ) ) )
            << command.m_name.toStdString();
    }
    EXPECT_EQ( Completed( script, "help " ), JoinedSorted( commands ) );
}

TEST_F( BashCompletionTest, WordsAreThoseOfTheProgram )
{
    const QByteArray script = BashCompletion( Commands(), CommonOptions() );
    int count = 0;
    for ( const CommandInfo& command : Commands() )
    {
        for ( const OptionInfo& option : command.m_options )
        {
            if ( option.m_words.isEmpty() )
                continue;
            const QString name = QStringLiteral( "--" ) + option.m_name;
            EXPECT_EQ( Completed( script, { command.m_name, name, QString() } ), JoinedSorted( option.m_words ) )
                << command.m_name.toStdString() << ' ' << name.toStdString();
            ++count;
        }
    }
    EXPECT_GT( count, 1 );
}

TEST( BashCompletionFileTest, FileIsMadeFromTheTable )
{
    EXPECT_EQ( DocumentText( QStringLiteral( "technology/PimManager/Tools/Completion/pimvcard.bash" ) ).toStdString(),
               BashCompletion( Commands(), CommonOptions() ).toStdString() )
        << "run scripts/update-completion";
}

} // namespace
