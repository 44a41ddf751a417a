// docs/import.md: the words of its findings are those of the code.

#include "DocumentFile.h"

#include "PimVCardDiagnostic.h"

#include <gtest/gtest.h>

#include <map>

using namespace PimManager::vCard::Documents;
using namespace PimManager::vCardImport;

namespace
{

std::map<QString, QStringList> WordsOfTheCode()
{
    std::map<QString, QStringList> words;
    for ( int i = 0; i < s_kDiagnosticCodes; ++i )
    {
        const auto code = static_cast<PimVCardDiagnosticCode>( i );
        words[NameOf( SeverityOf( code ) )] << NameOf( code );
    }
    return words;
}

TEST( ImportDocumentTest, WordsOfFindingsAreThoseOfTheCode )
{
    std::map<QString, QStringList> words = WordsOfTheCode();
    const QString document = DocumentText( QStringLiteral( "docs/import.md" ) );
    for ( const TableRow& row : TableRows( document, { QStringLiteral( "severity" ), QStringLiteral( "words" ) } ) )
    {
        QString text = row.m_cells[1];
        QStringList documented = text.remove( QLatin1Char( '`' ) ).split( QLatin1Char( ' ' ) );
        QStringList known = words[row.m_cells[0]];
        words.erase( row.m_cells[0] );
        documented.sort();
        known.sort();
        EXPECT_EQ( documented.join( QLatin1Char( ' ' ) ).toStdString(), known.join( QLatin1Char( ' ' ) ).toStdString() )
            << "line " << row.m_line;
    }
    EXPECT_TRUE( words.empty() ) << words.begin()->first.toStdString();
}

} // namespace
