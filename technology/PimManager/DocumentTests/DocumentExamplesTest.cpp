// Runs the commands in the documents unchanged and compares their output with that in the documents.

#include "DocumentFile.h"
#include "ShellRun.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

#include <vector>

using namespace PimManager::vCard::Documents;

namespace
{

// A book with a line that is not a property.
const char* const s_kBook = "BEGIN:VCARD\nVERSION:3.0\nFN:J\u00F6rg Maulwurf\nEND:VCARD\n"
                            "BEGIN:VCARD\nVERSION:3.0\nFN:Ada Fenwick\nTEL:+1-555-0102\n~~~\nEND:VCARD\n";
const char* const s_kWholeBook = "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:Bo Hollow\r\nEND:VCARD\r\n";

// The folder in which the commands run: the examples of the project under their names, and the other files that the
// commands name.
class ExampleFolder
{
public:
    ExampleFolder()
    {
        QDir folder( m_folder.path() );
        EXPECT_TRUE( QFile::link( QStringLiteral( PIMVCARD_PROJECT "/examples" ), Path( "examples" ) ) );
        EXPECT_TRUE( folder.mkpath( QStringLiteral( "books/of a phone" ) ) );
        Write( "book.vcf", s_kBook );
        for ( const char* const name : { "other.vcf", "books/ada.vcf", "books/of a phone/bo.vcf" } )
            Write( name, s_kWholeBook );
    }

    QString Path( const char* a_name ) const { return m_folder.filePath( QString::fromLatin1( a_name ) ); }

    void Write( const char* a_name, const char* a_content ) const
    {
        QFile file( Path( a_name ) );
        EXPECT_TRUE( file.open( QIODevice::WriteOnly ) ) << a_name;
        file.write( a_content );
    }

    ShellRun Run( const QString& a_command ) const { return RunInShell( a_command, m_folder.path() ); }

private:
    QTemporaryDir m_folder;
};

QStringList Documents()
{
    QStringList names = { QStringLiteral( "README.md" ), QStringLiteral( "SECURITY.md" ) };
    const QDir folder( QStringLiteral( PIMVCARD_PROJECT "/docs" ) );
    for ( const QString& name : folder.entryList( { QStringLiteral( "*.md" ) } ) )
        names << QStringLiteral( "docs/" ) + name;
    return names;
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

// The expression for blocks of a Markdown document in a language.
QString Fenced( const char* a_language )
{
    return QStringLiteral( "^```%1\\n((?:.*\\n)*?)```$" ).arg( QLatin1String( a_language ) );
}

// Indented lines of a Markdown document that begin with the program, except for those that stand for many commands.
QStringList CommandsIn( const QString& a_document )
{
    static const QRegularExpression s_kPlaceholder(
        QStringLiteral( "\\b(BOOK|FILE|DIR|OUT|NAME|COMMAND|OLD|TEXT|PHONE)\\b" ) );
    QStringList commands = AllMatches( a_document, QStringLiteral( "^    (?:\\$ )?((?:pimvcard|find) .*)$" ) );
    for ( auto i = commands.size() - 1; i >= 0; --i )
    {
        if ( commands[i].contains( s_kPlaceholder ) )
            commands.removeAt( i );
    }
    return commands;
}

QStringList ScriptsIn( const QString& a_document )
{
    return AllMatches( a_document, Fenced( "sh" ) );
}

QStringList CommandsOfTheManual()
{
    const QString page = DocumentText( QStringLiteral( "docs/man/pimvcard.1" ) );
    QStringList commands = AllMatches( page, QStringLiteral( "^\\.EX\\n(.*)\\n\\.EE$" ) );
    for ( QString& command : commands )
        command.replace( QLatin1String( "\\-" ), QLatin1String( "-" ) )
            .replace( QLatin1String( "\\(aq" ), QLatin1String( "'" ) );
    return commands;
}

void ExpectRuns( const QString& a_command )
{
    const ExampleFolder folder;
    const ShellRun run = folder.Run( a_command );
    // 1 means that something in a book is missing, which is the case for these books.
    EXPECT_TRUE( run.m_status == 0 || run.m_status == 1 ) << a_command.toStdString() << '\n'
                                                          << run.m_status << '\n'
                                                          << run.m_err.toStdString();
    EXPECT_FALSE( run.m_err.contains( QLatin1String( "command not found" ) ) ) << run.m_err.toStdString();
}

// JSON without the white space between its parts.
QString Packed( const QString& a_json )
{
    QString packed;
    bool isInText = false;
    for ( int i = 0; i < a_json.size(); ++i )
    {
        const bool isEscaped = i > 0 && a_json[i - 1] == QLatin1Char( '\\' );
        if ( a_json[i] == QLatin1Char( '"' ) && !isEscaped )
            isInText = !isInText;
        if ( isInText || !a_json[i].isSpace() )
            packed += a_json[i];
    }
    return packed;
}

// The names of the members of the objects that a schema defines.
QSet<QString> MembersIn( const QString& a_schema )
{
    const QJsonObject schema = QJsonDocument::fromJson( a_schema.toUtf8() ).object();
    const QJsonObject definitions = schema.value( QStringLiteral( "$defs" ) ).toObject();
    QSet<QString> members;
    for ( const QString& name : definitions.keys() )
    {
        const QJsonObject definition = definitions.value( name ).toObject();
        for ( const QString& member : definition.value( QStringLiteral( "properties" ) ).toObject().keys() )
            members.insert( member );
    }
    return members;
}

TEST( DocumentExamplesTest, CommandsOfDocumentsRun )
{
    int commands = 0;
    for ( const QString& document : Documents() )
    {
        const QString text = DocumentText( document );
        for ( const QString& command : CommandsIn( text ) + ScriptsIn( text ) )
        {
            SCOPED_TRACE( document.toStdString() );
            ExpectRuns( command );
            ++commands;
        }
    }
    EXPECT_GT( commands, 3 );
}

TEST( DocumentExamplesTest, CommandsOfTheManualRun )
{
    const QStringList commands = CommandsOfTheManual();
    EXPECT_GT( commands.size(), 3 );
    for ( const QString& command : commands )
        ExpectRuns( command );
}

TEST( DocumentExamplesTest, ReadmeShowsTheProgramOfTheExamples )
{
    const QString shown = AllMatches( DocumentText( QStringLiteral( "README.md" ) ), Fenced( "cpp" ) ).value( 0 );
    EXPECT_EQ( shown.toStdString(), DocumentText( QStringLiteral( "examples/contacts/contacts.cpp" ) ).toStdString() );
}

TEST( DocumentExamplesTest, ReadmeShowsWhatItsProgramPrints )
{
    const ExampleFolder folder;
    const ShellRun run =
        folder.Run( QStringLiteral( "'%1' examples/messy-phonebook.vcf" ).arg( QStringLiteral( PIMCONTACT_EXAMPLE ) ) );
    EXPECT_EQ( run.m_status, 0 ) << run.m_err.toStdString();
    const QString shown = AllMatches( DocumentText( QStringLiteral( "README.md" ) ), Fenced( "text" ) ).value( 0 );
    EXPECT_EQ( shown.toStdString(), run.m_out.toStdString() );
}

TEST( DocumentExamplesTest, PagesShowWhatCommandsPrint )
{
    static const QRegularExpression s_kIndentation( QStringLiteral( "^    " ), QRegularExpression::MultilineOption );
    const ExampleFolder folder;
    const QStringList shown =
        AllMatches( DocumentText( QStringLiteral( "README.md" ) ) + DocumentText( QStringLiteral( "docs/program.md" ) ),
                    QStringLiteral( "^    \\$ (.*\\n(?:    [^$].*\\n)+)" ) );
    EXPECT_EQ( shown.size(), 6 );
    for ( const QString& each : shown )
    {
        const QString command = each.section( QLatin1Char( '\n' ), 0, 0 );
        const QString printed = each.section( QLatin1Char( '\n' ), 1 ).remove( s_kIndentation );
        EXPECT_EQ( printed.toStdString(), folder.Run( command ).m_out.toStdString() ) << command.toStdString();
    }
}

TEST( DocumentExamplesTest, ProgramPageShowsHowTheFirstContactBegins )
{
    const QString document = DocumentText( QStringLiteral( "docs/program.md" ) );
    const QString shown = AllMatches( document, Fenced( "json" ) ).value( 0 );
    const ExampleFolder folder;
    const ShellRun run = folder.Run(
        QStringLiteral( "pimvcard convert --to json-lines examples/messy-phonebook.vcf 2>errors | head -1" ) );
    EXPECT_GT( shown.size(), 100 );
    EXPECT_TRUE( Packed( run.m_out ).startsWith( Packed( shown ) ) ) << run.m_out.toStdString();
}

TEST( DocumentExamplesTest, ProgramPageHasTheMembersOfTheSchema )
{
    const QSet<QString> members = MembersIn( DocumentText( QStringLiteral( "docs/contact.schema.json" ) ) );
    EXPECT_GT( members.size(), 100 );
    const QString page = DocumentText( QStringLiteral( "docs/program.md" ) );
    for ( const QString& member : members )
        EXPECT_TRUE( page.contains( QLatin1Char( '`' ) + member + QLatin1Char( '`' ) ) ) << member.toStdString();

    const QString heading = QStringLiteral( "member" );
    const QString value = QStringLiteral( "value" );
    std::vector<TableRow> rows = TableRows( page, { heading, value } );
    const std::vector<TableRow> ofProperties = TableRows( page, { heading, QStringLiteral( "when" ), value } );
    rows.insert( rows.end(), ofProperties.begin(), ofProperties.end() );
    for ( const TableRow& row : rows )
    {
        for ( const QString& member : AllMatches( row.m_cells.first(), QStringLiteral( "`([^`]*)`" ) ) )
            EXPECT_TRUE( members.contains( member ) ) << "line " << row.m_line << ": " << member.toStdString();
    }
}

TEST( DocumentExamplesTest, ScriptOfTheProgramPageGivesEveryContact )
{
    const QStringList scripts = ScriptsIn( DocumentText( QStringLiteral( "docs/program.md" ) ) );
    ASSERT_EQ( scripts.size(), 1 );
    const ExampleFolder folder;
    const ShellRun run = folder.Run( scripts[0] + QStringLiteral( "\nwc -l < contacts.jsonl" ) );
    EXPECT_EQ( run.m_out.toStdString(), "2\n" ) << run.m_err.toStdString();
}

} // namespace
