// The tour in docs/developing-an-app.md: its examples are compiled unchanged and must print the output in the document.

#include "ContactExampleSurroundings.h"
#include "DocumentFile.h"

#include <gtest/gtest.h>

#include <QDir>

#include <string>
#include <vector>

using namespace PimManager::vCard::Documents;

// Each source has one function Example().
namespace Book
{
#include "developing-an-appExample1.cpp"
}
namespace Names
{
#include "developing-an-appExample2.cpp"
}
namespace Phones
{
#include "developing-an-appExample3.cpp"
}
namespace Dates
{
#include "developing-an-appExample4.cpp"
}
namespace Photo
{
#include "developing-an-appExample5.cpp"
}
namespace Editing
{
#include "developing-an-appExample6.cpp"
}
namespace Saving
{
#include "developing-an-appExample7.cpp"
}
namespace Faults
{
#include "developing-an-appExample8.cpp"
}
namespace Languages
{
#include "developing-an-appExample9.cpp"
}

namespace Callers
{
#include "developing-an-appExample10.cpp"
}
namespace Search
{
#include "developing-an-appExample11.cpp"
}
namespace Changes
{
#include "developing-an-appExample12.cpp"
}

// The contact of the examples.
const PimContact contact =
    PimContactBook::ReadFile( QStringLiteral( PIMVCARD_PROJECT "/examples/phonebook.vcf" ) ).At( 0 );

namespace
{

struct Row
{
    const char* m_heading;
    void ( *m_example )();
};

const std::vector<Row> s_kRows = {
    { "A book", Book::Example },
    { "Names", Names::Example },
    { "Phones", Phones::Example },
    { "Dates", Dates::Example },
    { "Photo", Photo::Example },
    { "Editing", Editing::Example },
    { "Saving", Saving::Example },
    { "Faults", Faults::Example },
    { "Languages", Languages::Example },
    { "Who is calling", Callers::Example },
    { "Find as you type", Search::Example },
    { "What changed", Changes::Example },
};

QString g_printed;

// Qt separates printed values by blanks, even after the last word if it is empty.
void KeepMessage( QtMsgType, const QMessageLogContext&, const QString& a_text )
{
    QString line = a_text;
    while ( line.endsWith( QLatin1Char( ' ' ) ) )
        line.chop( 1 );
    g_printed += line + QLatin1Char( '\n' );
}

std::string PrintedBy( const Row& a_row )
{
    g_printed.clear();
    const QtMessageHandler before = qInstallMessageHandler( KeepMessage );
    a_row.m_example();
    qInstallMessageHandler( before );
    return g_printed.toStdString();
}

QString Tour()
{
    const QString document = DocumentText( QStringLiteral( "docs/developing-an-app.md" ) );
    return document.section( QStringLiteral( "\n## " ), 1, 1 );
}

// The first block of text below a heading.
std::string ShownBelow( const char* a_heading )
{
    const QString heading = QStringLiteral( "\n### %1\n" ).arg( QLatin1String( a_heading ) );
    const QString fence = QStringLiteral( "```" );
    const QString block = Tour().section( heading, 1 ).section( QStringLiteral( "```text\n" ), 1, 1 );
    return block.section( fence, 0, 0 ).toStdString();
}

TEST( ContactsTourTest, ExamplesPrintWhatTheDocumentShows )
{
    ASSERT_TRUE( QDir::setCurrent( QStringLiteral( PIMVCARD_PROJECT ) ) );
    for ( const Row& row : s_kRows )
        EXPECT_EQ( PrintedBy( row ), ShownBelow( row.m_heading ) ) << row.m_heading;
}

TEST( ContactsTourTest, EachExampleIsRun )
{
    EXPECT_EQ( static_cast<std::size_t>( Tour().count( QStringLiteral( "```cpp\n" ) ) ), s_kRows.size() );
}

} // namespace
