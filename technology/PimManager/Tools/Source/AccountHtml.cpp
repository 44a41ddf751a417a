#include "AccountHtml.h"

#include "AccountText.h"
#include "ContactHtml.h"
#include "HtmlText.h"

#include <QIODevice>
#include <QSet>

#include <algorithm>

namespace PimManager::vCard::Tools
{

using namespace vCardImport;

namespace
{

QByteArray Html( const QString& a_text )
{
    return ToHtmlText( a_text ).toUtf8();
}

bool IsLoss( const PimVCardDiagnostic& a_diagnostic )
{
    return a_diagnostic.m_severity >= PimVCardSeverity::Dropped;
}

void WriteFact( QIODevice& a_device, const char* a_name, const QString& a_fact )
{
    a_device.write( QByteArray( "<dt>" ) + a_name + "</dt><dd>" + Html( a_fact ) + "</dd>\n" );
}

QString LinesText( const PimVCardImportAccount& a_account )
{
    return QStringLiteral( "%1: %2 delivered, %3 BEGIN and END, %4 blank, %5 outside cards, %6 dropped, %7 refused" )
        .arg( a_account.m_lines )
        .arg( a_account.m_linesDelivered )
        .arg( a_account.m_linesBoundary )
        .arg( a_account.m_linesBlank )
        .arg( a_account.m_linesOutside )
        .arg( a_account.m_linesDropped )
        .arg( a_account.m_linesRefused );
}

void WriteFacts( QIODevice& a_device, const PimVCardImportAccount& a_account )
{
    a_device.write( "<dl>\n" );
    WriteFact( a_device, "Cards", CardsText( a_account ) );
    WriteFact( a_device, "Lines", LinesText( a_account ) );
    WriteFact( a_device, "Line endings", LineEndsText( a_account ) );
    WriteFact( a_device, "Encoding", EncodingText( a_account ) );
    WriteFact( a_device, "Versions", VersionsText( a_account ) );
    a_device.write( "</dl>\n" );
}

// A card was delivered, so it has a place on the page, unless it was refused.
bool HasContact( const PimVCardDiagnostic& a_diagnostic )
{
    return a_diagnostic.m_card >= 0 && a_diagnostic.m_severity != PimVCardSeverity::Refused;
}

void WriteFinding( QIODevice& a_device, const PimVCardDiagnostic& a_diagnostic, int a_book, const QByteArray& a_anchor )
{
    const QByteArray word = Html( QString( NameOf( a_diagnostic.m_severity ) ) );
    a_device.write( "<li" + a_anchor + "><span class=\"place\">" +
                    QByteArray::number( a_diagnostic.m_position.m_line ) + ':' +
                    QByteArray::number( a_diagnostic.m_position.m_column ) + "</span><span class=\"word " + word +
                    "\">" + word + "</span><span class=\"said\">" + Html( TextOf( a_diagnostic ) ) + "</span>" );
    if ( HasContact( a_diagnostic ) )
        a_device.write( "<a href=\"#c" + CardAnchor( a_book, a_diagnostic.m_card ) + "\">contact</a>" );
    a_device.write( "</li>\n" );
}

// What is missing comes first, then the rest, both in the order of the file. The first thing said about a card can be
// linked to.
void WriteFindings( QIODevice& a_device, const ImportedBook& a_book )
{
    QList<PimVCardDiagnostic> diagnostics = a_book.m_account.m_diagnostics;
    std::stable_partition( diagnostics.begin(), diagnostics.end(), IsLoss );
    QSet<qint64> cards;
    a_device.write( "<ul class=\"findings\">\n" );
    for ( const PimVCardDiagnostic& diagnostic : diagnostics )
    {
        const bool isFirst = diagnostic.m_card >= 0 && !cards.contains( diagnostic.m_card );
        cards.insert( diagnostic.m_card );
        WriteFinding( a_device, diagnostic, a_book.m_number,
                      isFirst ? " id=\"d" + CardAnchor( a_book.m_number, diagnostic.m_card ) + "\"" : QByteArray() );
    }
    a_device.write( "</ul>\n" );
}

qint64 AllFindings( const PimVCardImportAccount& a_account )
{
    qint64 sum = 0;
    for ( const qint64 count : a_account.m_findings )
        sum += count;
    return sum;
}

void WriteAccount( QIODevice& a_device, const ImportedBook& a_book )
{
    const PimVCardImportAccount& account = a_book.m_account;
    a_device.write( "<section class=\"book\">\n<h3><bdi>" + Html( a_book.m_source ) + "</bdi></h3>\n" );
    if ( account.m_isStopped )
        a_device.write( "<p class=\"bad\">Reading was stopped; this is what had been read.</p>\n" );
    WriteFacts( a_device, account );
    const qint64 findings = AllFindings( account );
    if ( findings > 0 )
    {
        const bool isMissing = StatusOf( account ) != ExitStatus::AllGiven;
        a_device.write( QByteArray( "<details" ) + ( isMissing ? " open" : "" ) + "><summary>" +
                        Html( FindingsTexts( account ).join( QStringLiteral( ", " ) ) ) + "</summary>\n" );
        WriteFindings( a_device, a_book );
        const qint64 left = findings - account.m_diagnostics.size();
        if ( left > 0 )
            a_device.write( "<p class=\"none\">" + QByteArray::number( left ) + " more are not listed.</p>\n" );
        a_device.write( "</details>\n" );
    }
    a_device.write( "</section>\n" );
}

} // namespace

void WriteVerdict( QIODevice& a_device, const QList<ImportedBook>& a_books )
{
    a_device.write( "<div class=\"verdict\">\n" );
    for ( const ImportedBook& book : a_books )
    {
        const QString losses = LossesText( book.m_account );
        if ( !losses.isEmpty() )
            a_device.write( "<p class=\"bad\"><bdi>" + Html( book.m_source ) + "</bdi>: " + Html( losses ) +
                            ". <a href=\"#account\">See which</a></p>\n" );
    }
    a_device.write( "</div>\n" );
}

void WriteAccounts( QIODevice& a_device, const QList<ImportedBook>& a_books )
{
    a_device.write( "<section class=\"account\" id=\"account\">\n<h2>What was read</h2>\n" );
    for ( const ImportedBook& book : a_books )
        WriteAccount( a_device, book );
    a_device.write( "</section>\n" );
}

} // namespace PimManager::vCard::Tools
