// Bytes that nobody wrote: the invariants hold, and what the component accepts comes out as the component gives it.

#include "PimVCardImportDump.h"
#include "PimVCardImportInvariants.h"
#include "PimVCardParser.h"

#include <QDebug>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <random>
#include <utility>

namespace PimManager::vCardImport
{

namespace
{

using Random = std::mt19937;

constexpr std::array s_kPieces = {
    "BEGIN:VCARD",
    "END:VCARD",
    "\r\n",
    "\r\n",
    "\r\n",
    "\n",
    "\r",
    " ",
    "\t",
    "=",
    "=0D=0A=",
    ";",
    ":",
    ",",
    "\"",
    "\\",
    "\\n",
    "\\,",
    "\\;",
    "\\\\",
    ".",
    "N",
    "FN",
    "TEL",
    "NOTE",
    "AGENT",
    "X-A",
    "X_B",
    "TYPE",
    "=x",
    "ENCODING",
    "=BASE64",
    "PHOTO",
    "AAAA",
    "ADR",
    "item1",
    "CHARSET",
    "=UTF-8",
    "b",
    "=41",
    "BASE",
    "VCARD",
    "QUOTED-PRINTABLE",
    ";ENCODING=QUOTED-PRINTABLE:",
    "\xC3\xA9",
    "\xE9",
    "\xEF\xBB\xBF",
    "\xE2\x80\xA8",
    "\xF0\x9F\x8C\xBB",
    "\x01",
    "\v",
    "VERSION:3.0\r\n",
    "END:VCARD\r\nBEGIN:VCARD\r\n",
    "\r\n END:VCARD",
    "\r\n BEGIN:VCARD",
    "AGENT:BEGIN:VCARD\r\n",
    "AGENT:\r\nBEGIN:VCARD\r\n",
    "=SHIFT_JIS",
    "\x8A\xBF",
    "\x1B$B",
    "=\r\n",
    "\r\nTEL;CELL:1\r\n",
};

QByteArray RandomText( Random& a_random )
{
    QByteArray text = a_random() % 4 == 0 ? QByteArray() : QByteArray( "BEGIN:VCARD\r\n" );
    for ( auto count = a_random() % 60; count > 0; --count )
        text += s_kPieces[a_random() % s_kPieces.size()];
    return a_random() % 3 == 0 ? text : text + "\r\nEND:VCARD\r\n";
}

// Lines that the component mostly accepts.
QByteArray RandomCleanText( Random& a_random )
{
    static constexpr std::array s_kHeads = { "N",
                                             "FN",
                                             "TEL;TYPE=cell,home",
                                             "a.b.NOTE",
                                             "PHOTO;ENCODING=b",
                                             "X-A; WORK",
                                             "ADR;LABEL=\"a;b:c\"",
                                             "LABEL;ENCODING=QUOTED-PRINTABLE",
                                             "LOGO;BASE64",
                                             ".URL",
                                             "AGENT",
                                             "SOUND;ENCODING=BASE64;TYPE=WAVE",
                                             "END",
                                             "note;quoted-printable" };
    static constexpr std::array s_kValues = { "a",
                                              "B b",
                                              ";",
                                              "\\,",
                                              "\\;",
                                              "\\\\",
                                              "\\:",
                                              "=41",
                                              "=",
                                              ",",
                                              ":",
                                              "\t",
                                              "AA",
                                              "\xC3\xA9",
                                              "\"",
                                              "\r\n ",
                                              "\r\n\t ",
                                              "\xF0\x9F\x8C\xBB",
                                              ".",
                                              "VCARD",
                                              "http://x",
                                              "\r\n END:VCARD",
                                              "\r\n BEGIN:VCARD" };
    QByteArray text;
    for ( auto cards = 1 + a_random() % 3; cards > 0; --cards )
    {
        text += a_random() % 5 == 0 ? "a.Begin;X=Y :\tvcard\r\n" : "BEGIN:VCARD\r\n";
        for ( auto lines = a_random() % 6; lines > 0; --lines )
        {
            text += QByteArray( s_kHeads[a_random() % s_kHeads.size()] ) + ':';
            for ( auto pieces = a_random() % 6; pieces > 0; --pieces )
                text += s_kValues[a_random() % s_kValues.size()];
            text += a_random() % 8 == 0 ? "\r\n\r\n" : "\r\n";
        }
        text += a_random() % 5 == 0 ? "end : VCARD\r\n\r\n" : "END:VCARD\r\n";
    }
    return text;
}

// An "=" at the end of a line of a QUOTED-PRINTABLE value, which import does not always read as the component does.
bool HasSoftBreak( const QByteArray& a_text )
{
    static const QRegularExpression s_kBreak(
        QStringLiteral( "quoted-printable[^\\n]*(\r\n[ \t]+[^\\n]*)*=[ \t]*\r\n" ),
        QRegularExpression::CaseInsensitiveOption );
    return s_kBreak.match( QString::fromUtf8( a_text ) ).hasMatch();
}

bool s_isErrorLogged = false;

void NoteErrors( QtMsgType a_type, const QMessageLogContext&, const QString& )
{
    s_isErrorLogged = s_isErrorLogged || a_type == QtCriticalMsg;
}

// What the component gives for a text that it accepts whole; nothing for another.
bool IsAcceptedWhole( const QByteArray& a_text, QByteArray& a_dump )
{
    s_isErrorLogged = false;
    const QtMessageHandler former = qInstallMessageHandler( NoteErrors );
    vCard::PimVCardParser parser( a_text );
    const std::unique_ptr<QList<vCard::PimVCard*>> cards( parser.ParseVCards() );
    qInstallMessageHandler( former );
    bool hasBegin = false;
    for ( const vCard::PimVCard* card : std::as_const( *cards ) )
    {
        a_dump += "card\n" + DumpOf( *card );
        const QList<vCard::PimVCardProperty*> properties = card->GetProperties();
        for ( const vCard::PimVCardProperty* property : properties )
            hasBegin = hasBegin || property->GetName().compare( QLatin1String( "BEGIN" ), Qt::CaseInsensitive ) == 0;
    }
    qDeleteAll( *cards );
    return !s_isErrorLogged && !hasBegin;
}

TEST( PimVCardImportRandomTest, InvariantsHoldForRandomTexts )
{
    Random random( 7 );
    for ( unsigned round = 0; round < 6000; ++round )
    {
        const QByteArray text = RandomText( random );
        const QByteArray broken = BrokenInvariantOf( text, round );
        ASSERT_TRUE( broken.isEmpty() ) << broken.toStdString() << text.toPercentEncoding().toStdString();
    }
}

TEST( PimVCardImportRandomTest, InvariantsHoldForRandomBytes )
{
    Random random( 11 );
    for ( unsigned round = 0; round < 1000; ++round )
    {
        QByteArray text( static_cast<int>( random() % 200 ), '\0' );
        for ( char& byte : text )
            byte = static_cast<char>( random() % 256 );
        const QByteArray broken = BrokenInvariantOf( text, round );
        ASSERT_TRUE( broken.isEmpty() ) << broken.toStdString() << text.toPercentEncoding().toStdString();
    }
}

TEST( PimVCardImportRandomTest, AcceptedTextsGiveWhatTheComponentGives )
{
    Random random( 13 );
    int accepted = 0;
    for ( unsigned round = 0; round < 20000; ++round )
    {
        const QByteArray text = RandomCleanText( random );
        QByteArray expected;
        if ( !IsAcceptedWhole( text, expected ) || HasSoftBreak( text ) )
            continue;
        ++accepted;
        QByteArray given;
        for ( const PimVCardImportedCard& card : PimVCardImporter().Import( text ).m_cards )
            given += "card\n" + DumpOf( *card.m_card );
        ASSERT_EQ( given.toStdString(), expected.toStdString() ) << text.toStdString();
    }
    EXPECT_GT( accepted, 1000 );
}

} // namespace

} // namespace PimManager::vCardImport
