// Cards that are cut off at each byte, and cards in which each byte is replaced by others with a special meaning. One
// card precedes the damaged one, and two follow it. The results are compared with those of an independent reader, and
// with what is promised for such texts.

#include "PimVCardParser.h"
#include "PimVCardPlainReading.h"
#include "PimVCardTestCards.h"
#include "PimVCardTestLogBlocks.h"
#include "PimVCardTestResults.h"

#include <gtest/gtest.h>

#include <QFile>

#include <string>
#include <vector>

namespace PimManager::vCard
{

namespace
{

struct Sample
{
    std::string m_name;
    QByteArray m_text;
};

// googletest finds this function. Otherwise it would show the bytes of a sample.
void PrintTo( const Sample& a_sample, std::ostream* a_stream )
{
    *a_stream << a_sample.m_name;
}

struct Replacement
{
    const char* m_name;
    char m_byte;
};

const Replacement s_kReplacements[] = {
    { "CR", '\r' },       { "LF", '\n' },        { "NUL", '\0' },       { "backslash", '\\' },
    { "semicolon", ';' }, { "colon", ':' },      { "equals", '=' },     { "quote", '"' },
    { "blank", ' ' },     { "byte 80", '\x80' }, { "byte C3", '\xC3' }, { "byte FF", '\xFF' },
};

const char* const s_kShortPhoto = "/9j/4AAQSkZJRg==";
const char* const s_kShortDesign = R"(<card at="https://example.invalid/a;b"/>)";
const char* const s_kFoldedPhoto = "\r\n /9j/4AAQ\r\n SkZJRg==";

QByteArray CardText( const QByteArray& a_name )
{
    return "BEGIN:VCARD\r\nFN:" + a_name + "\r\nEND:VCARD\r\n";
}

CardData Card( const std::string& a_name )
{
    return { { "", "FN", {}, { a_name } } };
}

const CardData s_kBefore = Card( "before" );
const CardData s_kBehind = Card( "behind" );
const CardData s_kLast = Card( "last" );

QByteArray TextWith( const QByteArray& a_damaged )
{
    return CardText( "before" ) + a_damaged + CardText( "behind" ) + CardText( "last" );
}

std::vector<CardData> CardsOf( const QByteArray& a_text )
{
    const LogBlockCount silence;
    return Take( PimVCardParser( a_text ).ParseVCards() ).value();
}

// The example address book, card by card. Only the first two physical lines of a photo are kept.
std::vector<Sample> PhonebookCards()
{
    QFile file( QStringLiteral( PIMVCARD_PHONEBOOK ) );
    file.open( QIODevice::ReadOnly );
    const QList<QByteArray> lines = file.readAll().split( '\n' );
    std::vector<Sample> samples;
    int folds = 0;
    for ( const QByteArray& line : lines )
    {
        if ( line.startsWith( "BEGIN" ) )
            samples.push_back( { "Phonebook" + std::to_string( samples.size() + 1 ), QByteArray() } );
        folds = line.startsWith( ' ' ) ? folds + 1 : 0;
        if ( !line.isEmpty() && folds < 2 )
            samples.back().m_text += line + '\n';
    }
    return samples;
}

std::vector<Sample> Samples()
{
    std::vector<Sample> samples = {
        { "Phone", PhoneCard( QByteArray( "PHOTO;ENCODING=b;TYPE=JPEG:" ) + s_kFoldedPhoto ) },
        { "Mail", MailCard( "=0D=0A=\r\n", s_kFoldedPhoto ).replace( s_kDesign, s_kShortDesign ) },
        { "EncodedName", s_kEncodedNameCard },
        { "BareTypes", BareTypesCard( s_kShortPhoto ) },
        { "Addresses", s_kAddressesCard },
        { "EscapedName", s_kEscapedNameCard },
    };
    const std::vector<Sample> phonebook = PhonebookCards();
    samples.insert( samples.end(), phonebook.begin(), phonebook.end() );
    return samples;
}

class DamagedText
{
public:
    DamagedText( const QByteArray& a_text, const std::string& a_damage ) :
        m_text( a_text ),
        m_damage( a_damage ),
        m_cards( CardsOf( a_text ) )
    {
    }

    void ExpectPlainReading() const
    {
        const std::vector<CardData> expected = PlainReading( m_text ).Cards();
        if ( expected != m_cards )
            ADD_FAILURE() << m_damage << " of " << Escaped( m_text ) << "\nexpected "
                          << testing::PrintToString( expected ) << "\ngiven " << testing::PrintToString( m_cards );
    }
    void ExpectFirst( const CardData& a_card ) const
    {
        if ( m_cards.empty() || !( m_cards.front() == a_card ) )
            ADD_FAILURE() << m_damage << " lost the card before: " << Escaped( m_text );
    }
    void ExpectLast( const CardData& a_card ) const
    {
        if ( m_cards.empty() || !( m_cards.back() == a_card ) )
            ADD_FAILURE() << m_damage << " lost the last card: " << Escaped( m_text );
    }

private:
    const QByteArray m_text;
    const std::string m_damage;
    const std::vector<CardData> m_cards;
};

} // namespace

class DamagedTextTest : public testing::TestWithParam<Sample>
{
};

// The text ends at the cut, so there is no end of the damaged line to find.
TEST_P( DamagedTextTest, TextCutOffKeepsCardsBefore )
{
    const QByteArray sample = GetParam().m_text;
    for ( int length = 0; length < sample.size(); ++length )
    {
        const DamagedText text( CardText( "before" ) + sample.left( length ), "end at " + std::to_string( length ) );
        text.ExpectPlainReading();
        text.ExpectFirst( s_kBefore );
    }
}

TEST_P( DamagedTextTest, CardCutOffKeepsCardsAroundIt )
{
    const QByteArray sample = GetParam().m_text;
    for ( int length = 0; length < sample.size(); ++length )
    {
        const DamagedText text( TextWith( sample.left( length ) ), "cut at " + std::to_string( length ) );
        text.ExpectPlainReading();
        text.ExpectFirst( s_kBefore );
        text.ExpectLast( s_kLast );
    }
}

TEST_P( DamagedTextTest, ByteReplacedKeepsCardsAroundIt )
{
    for ( int place = 0; place < GetParam().m_text.size(); ++place )
    {
        for ( const Replacement& replacement : s_kReplacements )
        {
            QByteArray sample = GetParam().m_text;
            sample[place] = replacement.m_byte;
            const DamagedText text( TextWith( sample ), replacement.m_name + ( " at " + std::to_string( place ) ) );
            text.ExpectPlainReading();
            const bool isFold = place == 0 && replacement.m_byte == ' ';
            if ( !isFold )
                text.ExpectFirst( s_kBefore );
            const bool isCut = replacement.m_byte == '\0';
            if ( !isCut )
                text.ExpectLast( s_kLast );
        }
    }
}

INSTANTIATE_TEST_SUITE_P( Samples, DamagedTextTest, testing::ValuesIn( Samples() ), NameOf<Sample> );

// The losses that damage may cause in addition to the damaged card.

namespace
{

struct Row
{
    const char* m_name;
    QByteArray m_text;
    std::vector<CardData> m_cards;
};

CardData Merged( const CardData& a_first, const CardData& a_second )
{
    CardData both = a_first;
    both.push_back( { "", "BEGIN", {}, { "VCARD" } } );
    both.insert( both.end(), a_second.begin(), a_second.end() );
    return both;
}

} // namespace

TEST( DamageTest, DamageCostsTheseCards )
{
    const CardData damaged = Card( "x" );
    const std::vector<Row> rows = {
        { "no damage", TextWith( CardText( "x" ) ), { s_kBefore, damaged, s_kBehind, s_kLast } },
        { "a damaged line costs its card",
          TextWith( "BEGIN:VCARD\r\nFN x\r\nEND:VCARD\r\n" ),
          { s_kBefore, s_kBehind, s_kLast } },
        { "a fold into the line before costs that card too",
          TextWith( " EGIN:VCARD\r\nFN:x\r\nEND:VCARD\r\n" ),
          { s_kBehind, s_kLast } },
        { "a fold at the last line end costs the card behind too",
          TextWith( "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD\r " ),
          { s_kBefore, s_kLast } },
        { "a lost END merges two cards",
          TextWith( "BEGIN:VCARD\r\nFN:x\r\n" ),
          { s_kBefore, Merged( damaged, s_kBehind ), s_kLast } },
        { "a damaged END name merges two cards",
          TextWith( "BEGIN:VCARD\r\nFN:x\r\nEN:VCARD\r\n" ),
          { s_kBefore, Merged( { damaged.front(), { "", "EN", {}, { "VCARD" } } }, s_kBehind ), s_kLast } },
        { "a damaged END value passes over the card behind",
          TextWith( "BEGIN:VCARD\r\nFN:x\r\nEND:VCAR;\r\n" ),
          { s_kBefore, s_kLast } },
        { "a damaged BEGIN value costs its card only",
          TextWith( "BEGIN:VCAR;\r\nFN:x\r\nEND:VCARD\r\n" ),
          { s_kBefore, s_kBehind, s_kLast } },
        { "a lost line end merges two lines",
          TextWith( "BEGIN:VCARD\r\nFN:x;\nEND:VCARD\r\n" ),
          { s_kBefore, Merged( { { "", "FN", {}, { "x", "\nEND:VCARD" } } }, s_kBehind ), s_kLast } },
        { "a lost line end at the last END passes over the card behind",
          TextWith( "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD;\n" ),
          { s_kBefore, s_kLast } },
        { "a NUL cuts", TextWith( QByteArray( "BEGIN:VCARD\r\nFN:x" ) + '\0' + "\r\nEND:VCARD\r\n" ), { s_kBefore } },
        { "a NUL in the last line end cuts behind the card",
          TextWith( QByteArray( "BEGIN:VCARD\r\nFN:x\r\nEND:VCARD\r" ) + '\0' ),
          { s_kBefore, damaged } },
        { "a BEGIN on the last line is none",
          CardText( "before" ) + "BEGIN:VCARD\r\nFN x\r\nBEGIN:VCARD",
          { s_kBefore } },
        { "a BEGIN right behind the place of failure is one",
          TextWith( "BEGIN:VCARD\r\nFN " ),
          { s_kBefore, s_kBehind, s_kLast } },
        { "a BEGIN further on in a line is gone to and refused, and the card behind is passed over",
          TextWith( "BEGIN:VCARD\r\nFN x" ),
          { s_kBefore, s_kLast } },
    };
    for ( const Row& row : rows )
    {
        SCOPED_TRACE( row.m_name );
        EXPECT_EQ( row.m_cards, CardsOf( row.m_text ) );
        EXPECT_EQ( row.m_cards, PlainReading( row.m_text ).Cards() );
    }
}

} // namespace PimManager::vCard
