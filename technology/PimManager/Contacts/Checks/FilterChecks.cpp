#include "Checks/FilterChecks.h"

#include "Checks/Transcript.h"

#include <algorithm>

namespace PimManager::Contacts::Checks
{

namespace
{

// True for a property that is text if its value is the BASE64 of a letter.
bool MayBeBase64Text( const QByteArray& a_name )
{
    const Reading reading = ReadWhole( "BEGIN:VCARD\r\n" + a_name + ";BASE64:YQ==\r\nEND:VCARD\r\n" );
    if ( reading.m_cards.size() != 1 || reading.m_cards.front().LineCount() != 1 )
        return false;
    return ( *reading.m_cards.front().begin() ).Kind() != PimContactValueKind::Binary;
}

bool IsMedia( const PimContactLine& a_line )
{
    const QByteArray name = a_line.Name().toUpper();
    return name == "PHOTO" || name == "LOGO" || name == "SOUND" || name == "KEY" ||
           ( a_line.Encoding() == PimContactEncoding::Base64 && !MayBeBase64Text( name ) ) ||
           a_line.Value().trimmed().left( 5 ).toLower() == "data:";
}

bool IsNameWanted( const PimContactLine& a_line, const QList<QByteArray>& a_names )
{
    const QByteArray name = a_line.Name().toUpper();
    const auto isIt = [&name]( const QByteArray& a_name ) { return a_name.toUpper() == name; };
    return a_names.isEmpty() || name == "VERSION" || std::any_of( a_names.begin(), a_names.end(), isIt );
}

bool IsWanted( const PimContactLine& a_line, const PimContactOptions& a_options )
{
    return IsNameWanted( a_line, a_options.Names() ) && ( a_options.AreMediaWanted() || !IsMedia( a_line ) );
}

// The lines of a card that the filter keeps, including those of nested cards.
QByteArray WantedLinesOf( const PimContactCard& a_card, const PimContactOptions& a_options )
{
    QByteArray text;
    for ( const PimContactLine& line : a_card )
    {
        if ( !IsWanted( line, a_options ) )
            continue;
        text += TranscriptOf( line );
        if ( const PimContactCard nested = line.NestedCard(); !nested.IsNull() )
            text += "{\n" + WantedLinesOf( nested, a_options ) + "}\n";
    }
    return text;
}

Broken BrokenCard( const PimContactCard& a_card, const PimContactOptions& a_options )
{
    return FirstBrokenOf( a_card,
                          [&a_options]( const PimContactLine& a_line )
                          {
                              if ( !IsWanted( a_line, a_options ) )
                                  return "a line that is not wanted: " + TranscriptOf( a_line );
                              const PimContactCard nested = a_line.NestedCard();
                              return nested.IsNull() ? Broken() : BrokenCard( nested, a_options );
                          } );
}

// Both readings have no limits, because a line over its limit can also end a card without BEGIN, without a report.
PimContactOptions Unlimited( PimContactOptions a_options )
{
    a_options.SetCardBytes( 0 );
    a_options.SetLineBytes( 0 );
    a_options.SetCardLines( 0 );
    a_options.SetNesting( 0 );
    a_options.SetCards( 0 );
    a_options.SetBookBytes( 0 );
    return a_options;
}

Broken BrokenRest( const Subject& a_subject )
{
    PimContactOptions options = Unlimited( a_subject.m_options );
    const std::vector<PimContactCard> filtered = ReadWhole( a_subject.m_bytes, options ).m_cards;
    options.SetNames( {} );
    options.SetMediaWanted( true );
    const Reading all = ReadWhole( a_subject.m_bytes, options );
    if ( all.m_cards.size() != filtered.size() )
        return "the filter changes the number of cards";
    for ( size_t i = 0; i < filtered.size(); ++i )
    {
        const QByteArray expected = WantedLinesOf( all.m_cards[i], a_subject.m_options );
        const QByteArray found = WantedLinesOf( filtered[i], a_subject.m_options );
        if ( found != expected )
            return "the filter changes other lines:\n" + found + "instead of\n" + expected;
    }
    return Broken();
}

} // namespace

Broken BrokenFilter( const Subject& a_subject )
{
    if ( a_subject.m_options.Names().isEmpty() && a_subject.m_options.AreMediaWanted() )
        return Same( "filtered bytes without a filter",
                     a_subject.m_reading.m_report.Bytes( PimContactExtentKind::Filtered ), 0 );
    return FirstBroken(
        [&]
        {
            return FirstBrokenOf( a_subject.m_reading.m_cards, [&a_subject]( const PimContactCard& a_card )
                                  { return BrokenCard( a_card, a_subject.m_options ); } );
        },
        [&] { return BrokenRest( a_subject ); } );
}

} // namespace PimManager::Contacts::Checks
