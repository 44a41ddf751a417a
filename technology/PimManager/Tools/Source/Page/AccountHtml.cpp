#include "Page/AccountHtml.h"

#include "Outputs/ReportText.h"
#include "Page/ContactHtml.h"
#include "Page/HtmlText.h"

#include <QIODevice>
#include <QSet>

#include <algorithm>

namespace PimManager::Tools
{

using namespace Contacts;

namespace
{

QByteArray Html( const QString& a_text )
{
    return ToHtmlText( a_text ).toUtf8();
}

bool IsLoss( const PimContactDiagnostic& a_diagnostic )
{
    return a_diagnostic.Severity() >= PimContactSeverity::Dropped;
}

void WriteFact( QIODevice& a_device, const QString& a_name, const QString& a_text )
{
    a_device.write( "<dt>" + Html( a_name ) + "</dt><dd>" + Html( a_text ) + "</dd>\n" );
}

void WriteFacts( QIODevice& a_device, const PimContactReport& a_report )
{
    a_device.write( "<dl>\n" );
    const QList<ReportFact> facts = FactsOn( a_report );
    for ( const ReportFact& fact : facts )
        WriteFact( a_device, fact.m_name, fact.m_text );
    WriteFact( a_device, QStringLiteral( "Bytes" ), BytesText( a_report ) );
    a_device.write( "</dl>\n" );
}

// A card was delivered, so it has a place on the page, unless it was refused.
bool HasContact( const PimContactDiagnostic& a_diagnostic )
{
    return a_diagnostic.Card() > 0 && a_diagnostic.Severity() != PimContactSeverity::Refused;
}

void WriteFinding( QIODevice& a_device, const PimContactDiagnostic& a_diagnostic, int a_book,
                   const QByteArray& a_anchor )
{
    const QByteArray word = Html( QString( NameOf( a_diagnostic.Severity() ) ) );
    a_device.write( "<li" + a_anchor + "><span class=\"place\">" + QByteArray::number( a_diagnostic.Line() ) + ':' +
                    QByteArray::number( a_diagnostic.Column() ) + "</span><span class=\"word " + word + "\">" + word +
                    "</span><span class=\"said\">" + Html( a_diagnostic.Text() ) + "</span>" );
    if ( HasContact( a_diagnostic ) )
        a_device.write( "<a href=\"#c" + CardAnchor( a_book, a_diagnostic.Card() ) + "\">contact</a>" );
    a_device.write( "</li>\n" );
}

// What is missing comes first, then the rest, both in the order of the file.
QList<PimContactDiagnostic> LossesFirst( QList<PimContactDiagnostic> a_diagnostics )
{
    std::stable_partition( a_diagnostics.begin(), a_diagnostics.end(), IsLoss );
    return a_diagnostics;
}

// The first finding about a card can be linked to.
void WriteFindings( QIODevice& a_device, const BookInRun& a_book )
{
    const QList<PimContactDiagnostic> diagnostics = LossesFirst( a_book.m_report.Diagnostics() );
    QSet<qint64> cards;
    a_device.write( "<ul class=\"findings\">\n" );
    for ( const PimContactDiagnostic& diagnostic : diagnostics )
    {
        const qint64 card = diagnostic.Card();
        const bool isFirst = card > 0 && !cards.contains( card );
        cards.insert( card );
        WriteFinding( a_device, diagnostic, a_book.m_number,
                      isFirst ? " id=\"d" + CardAnchor( a_book.m_number, card ) + "\"" : QByteArray() );
    }
    a_device.write( "</ul>\n" );
}

qint64 AllFindings( const PimContactReport& a_report )
{
    qint64 sum = 0;
    for ( int number = 0; number < s_kPimContactDiagnosticCodes; ++number )
        sum += a_report.Findings( static_cast<PimContactDiagnosticCode>( number ) );
    return sum;
}

void WriteAllFindings( QIODevice& a_device, const BookInRun& a_book, qint64 a_count )
{
    const bool isMissing = StatusOf( a_book.m_report, a_book.m_isReadToEnd ) != ExitStatus::AllGiven;
    a_device.write( QByteArray( "<details" ) + ( isMissing ? " open" : "" ) + "><summary>" +
                    Html( FindingsText( a_book.m_report ) ) + "</summary>\n" );
    WriteFindings( a_device, a_book );
    const qint64 left = a_count - a_book.m_report.Diagnostics().size();
    if ( left > 0 )
        a_device.write( "<p class=\"none\">" + QByteArray::number( left ) + " more are not listed.</p>\n" );
    a_device.write( "</details>\n" );
}

void WriteAccount( QIODevice& a_device, const BookInRun& a_book )
{
    a_device.write( "<section class=\"book\">\n<h3><bdi>" + Html( a_book.m_source ) + "</bdi></h3>\n" );
    if ( !a_book.m_isReadToEnd )
        a_device.write( "<p class=\"bad\">The file was not read to its end; this is what had been read.</p>\n" );
    WriteFacts( a_device, a_book.m_report );
    const qint64 findings = AllFindings( a_book.m_report );
    if ( findings > 0 )
        WriteAllFindings( a_device, a_book, findings );
    a_device.write( "</section>\n" );
}

} // namespace

void WriteVerdict( QIODevice& a_device, const QList<BookInRun>& a_books )
{
    a_device.write( "<div class=\"verdict\">\n" );
    for ( const BookInRun& book : a_books )
    {
        const QString losses = LossesText( book.m_report, book.m_isReadToEnd );
        if ( !losses.isEmpty() )
            a_device.write( "<p class=\"bad\"><bdi>" + Html( book.m_source ) + "</bdi>: " + Html( losses ) +
                            ". <a href=\"#account\">See which</a></p>\n" );
    }
    a_device.write( "</div>\n" );
}

void WriteAccounts( QIODevice& a_device, const QList<BookInRun>& a_books )
{
    a_device.write( "<section class=\"account\" id=\"account\">\n<h2>What was read</h2>\n" );
    for ( const BookInRun& book : a_books )
        WriteAccount( a_device, book );
    a_device.write( "</section>\n" );
}

} // namespace PimManager::Tools
